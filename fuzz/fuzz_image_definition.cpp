// Fuzz target: the host's reading of an image definition (EXIF figures and
// the thumbnail) over mutated JPEG files, with and without the thumbnail, and
// the thumbnail's pixmap made on the GUI thread as the pages do.
#include "FuzzCheck.h"
#include "FuzzTempFile.h"
#include "ImageDefinition.h"

#include <QGuiApplication>
#include <QPixmap>

#include <cmath>
#include <memory>

extern "C" int LLVMFuzzerInitialize(int* argc, char*** argv)
{
    // A pixmap needs a GUI application; the offscreen platform needs no display.
    qputenv("QT_QPA_PLATFORM", "offscreen");
    static int appArgc = 1;
    static char* appArgv[] = { (*argc > 0) ? (*argv)[0] : const_cast<char*>("fuzz"), nullptr };
    // Never destroyed: the process ends with the fuzzer, and the offscreen
    // platform does not free its screen on destruction.
    static QGuiApplication* app = new QGuiApplication(appArgc, appArgv);
    Q_UNUSED(app);
    // Nearly every mutated file draws a warning from the reader or from Qt's
    // decoders; printing them cost a tenth of the run. ZPH_FUZZ_VERBOSE=1
    // shows them again. A fatal message still ends the process.
    if (qEnvironmentVariableIntValue("ZPH_FUZZ_VERBOSE") == 0)
        qInstallMessageHandler([](QtMsgType, const QMessageLogContext&, const QString&) {});
    return 0;
}

namespace {

void checkDefinition(const ImageDefinition& def)
{
    FUZZ_CHECK(def.Orientation() >= 1 && def.Orientation() <= 8);
    FUZZ_CHECK(def.LensType() == 0 || def.LensType() == 1);
    FUZZ_CHECK(def.Width() >= 0 && def.Height() >= 0);
    FUZZ_CHECK(!std::isnan(def.FocalLength()));
    const QImage thumb = def.ThumbnailImage();
    FUZZ_CHECK(thumb.width() <= ImageDefinition::ThumbnailSide
        && thumb.height() <= ImageDefinition::ThumbnailSide);
    // A definition stays small whatever the file declares.
    FUZZ_CHECK(def.MemoryFootprint() < 4 * 1024 * 1024);
    // Reading every figure must be safe, whatever the file said.
    (void)def.Exposure();
    (void)def.OrderKey();
    (void)def.CropFactor();
    (void)def.OrientedSize();
    (void)def.LensDescription().size();
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    static FuzzTempFile file("image", ".jpg");
    if (!file.write(data, size))
        return 0;

    const std::unique_ptr<ImageDefinition> meta(
        ImageDefinition::Read(file.path(), ImageDefinition::MetadataOnly));
    if (meta) {
        checkDefinition(*meta);
        FUZZ_CHECK(meta->ThumbnailImage().isNull());
    }

    const std::unique_ptr<ImageDefinition> full(
        ImageDefinition::Read(file.path(), ImageDefinition::WithThumbnail));
    if (full) {
        // What fails without the thumbnail fails with it too.
        FUZZ_CHECK(meta != nullptr);
        checkDefinition(*full);
        FUZZ_CHECK(!full->ThumbnailImage().isNull());
        const QPixmap& pixmap = full->Thumbnail();
        FUZZ_CHECK(pixmap.width() <= ImageDefinition::ThumbnailSide
            && pixmap.height() <= ImageDefinition::ThumbnailSide);
    }
    return 0;
}
