# shellcheck shell=bash
# The fuzz targets and what each one needs, for scripts/fuzz.sh and
# scripts/fuzz-campaign.sh (sourced by both).

targets_all=(fuzz_papywizard fuzz_clauss fuzz_gigapan fuzz_image_definition fuzz_hugin_project
  fuzz_pto_reader fuzz_description_json)

# Dictionary, longest input and fixture patterns of each target.
dict_of() {
  case $1 in
    fuzz_papywizard) echo "$root/fuzz/papywizard.dict" ;;
    fuzz_clauss) echo "$root/fuzz/clauss.dict" ;;
    fuzz_image_definition) echo "$root/fuzz/image_definition.dict" ;;
    fuzz_pto_reader) echo "$root/fuzz/pto.dict" ;;
    *) echo "" ;;
  esac
}
max_len_of() {
  case $1 in
    fuzz_papywizard) echo 32768 ;;
    fuzz_clauss) echo 16384 ;;
    fuzz_image_definition) echo 65536 ;;
    fuzz_description_json) echo 16384 ;;
    *) echo 4096 ;;
  esac
}
fixtures_of() {
  case $1 in
    fuzz_papywizard) echo "*.xml" ;;
    fuzz_clauss) echo "*.txt" ;;
    fuzz_image_definition) echo "*.jpg *.jpeg *.JPG *.JPEG" ;;
    fuzz_pto_reader) echo "*.pto" ;;
    fuzz_description_json) echo "*.json" ;;
    *) echo "" ;;
  esac
}
# Options of one target only. Qt 5.15's QJsonObject leaks the entries of a
# member that an object repeats, on the first look into that object; the
# description reader holds Qt values only, so its target runs without the
# leak check (AddressSanitizer's other checks stay on).
options_of() {
  case $1 in
    fuzz_description_json) echo "-detect_leaks=0" ;;
    *) echo "" ;;
  esac
}
# AddressSanitizer options of one target only (after the common ones): the
# leak check at the end of the process is off where the per-input one is.
# The image definition frees a few megabytes of decoder buffers per input:
# with the default quarantine of 256 MB each new block was fresh memory to
# fault in; 32 MB still holds back every block freed during one input and
# the dozen before it, and gave about a quarter more executions per second
# (679 against 524-574, 25 s each, one after the other on a loaded machine).
asan_of() {
  case $1 in
    fuzz_description_json) echo "detect_leaks=0" ;;
    fuzz_image_definition) echo "quarantine_size_mb=32" ;;
    *) echo "" ;;
  esac
}

# Executions a campaign aims at for each target.
goal_of() {
  case $1 in
    fuzz_image_definition) echo 2000000 ;;
    *) echo 10000000 ;;
  esac
}
# The source files of the code each target reads with, for the coverage report.
sources_of() {
  case $1 in
    fuzz_papywizard) echo "converters/MerlinToSPP.cpp converters/VRDrive2ToSPP.cpp" ;;
    fuzz_clauss) echo "converters/ClaussToSPP.cpp" ;;
    fuzz_gigapan) echo "converters/GigapanToSPP.cpp" ;;
    fuzz_image_definition) echo "photos/ImageDefinition.cpp photos/JpegStructure.cpp photos/ExifFields.cpp photos/MetadataReader.cpp photos/Thumbnailer.cpp" ;;
    fuzz_hugin_project) echo "export/HuginProjectWriter.cpp" ;;
    fuzz_pto_reader) echo "stitch/PtoProject.cpp" ;;
    fuzz_description_json) echo "export/DescriptionJson.cpp" ;;
  esac
}
