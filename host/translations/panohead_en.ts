<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>HostSettingsDialog</name>
    <message>
        <location filename="../HostSettingsDialog.cpp" line="+22"/>
        <source>Settings</source>
        <translation>Settings</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>found on PATH</source>
        <translation>found on PATH</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Browse...</source>
        <translation>Browse...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Folder of Hugin&apos;s programs</source>
        <translation>Folder of Hugin&apos;s programs</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>The system&apos;s</source>
        <translation>The system&apos;s</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>The language applies from the next start.</source>
        <translation>The language applies from the next start.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Hugin&apos;s programs:</source>
        <translation>Hugin&apos;s programs:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Language:</source>
        <translation>Language:</translation>
    </message>
    <message>
        <location line="+49"/>
        <source>on PATH</source>
        <translation>on PATH</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>in %1</source>
        <translation>in %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Not found %2: %1. On Debian and Ubuntu, Hugin&apos;s programs come with the packages %3 (sudo apt install %3).</source>
        <translation>Not found %2: %1. On Debian and Ubuntu, Hugin&apos;s programs come with the packages %3 (sudo apt install %3).</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Every program the stitch needs is found.</source>
        <translation>Every program the stitch needs is found.</translation>
    </message>
</context>
<context>
    <name>ImportResultPage</name>
    <message>
        <location filename="../ImportResultPage.cpp" line="+39"/>
        <source>yes</source>
        <translation>yes</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Cannot read %1.</source>
        <translation>Cannot read %1.</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Imported panorama</source>
        <translation>Imported panorama</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>What the plug-in handed over: the stacks of photographs, their positions and the links along which control points will be looked for.</source>
        <translation>What the plug-in handed over: the stacks of photographs, their positions and the links along which control points will be looked for.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Layout</source>
        <translation>Layout</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Panorama</source>
        <translation>Panorama</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Save project...</source>
        <translation>Save project...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Saves the Hugin project and its description (.json), which the stitch needs.</source>
        <translation>Saves the Hugin project and its description (.json), which the stitch needs.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save layout picture...</source>
        <translation>Save layout picture...</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Stitch panorama...</source>
        <translation>Stitch panorama...</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>&lt;p&gt;The plug-in handed nothing over.&lt;/p&gt;</source>
        <translation>&lt;p&gt;The plug-in handed nothing over.&lt;/p&gt;</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>columns</source>
        <translation>columns</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>rows downward</source>
        <translation>rows downward</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>rows upward</source>
        <translation>rows upward</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>columns to the left</source>
        <translation>columns to the left</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>serpentine</source>
        <translation>serpentine</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>order %1</source>
        <translation>order %1</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>no direction</source>
        <translation>no direction</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>below</source>
        <translation>below</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>right</source>
        <translation>right</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>below right</source>
        <translation>below right</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>above right</source>
        <translation>above right</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>direction %1</source>
        <translation>direction %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Fisheye</source>
        <translation>Fisheye</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>not known</source>
        <translation>not known</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>not set</source>
        <translation>not set</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+6"/>
        <source>from the photographs</source>
        <translation>from the photographs</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+6"/>
        <source>from the record</source>
        <translation>from the record</translation>
    </message>
    <message>
        <location line="-4"/>
        <source>%1 mm (%2)</source>
        <translation>%1 mm (%2)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>not known: neither the record nor the photographs give one</source>
        <translation>not known: neither the record nor the photographs give one</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8-bits / 16-bits tonemapped</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>32-bits HDR radiance</source>
        <translation>32-bits HDR radiance</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>not chosen</source>
        <translation>not chosen</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Plug-in</source>
        <translation>Plug-in</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stacks</source>
        <translation>Stacks</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (%2 per stack)</source>
        <translation>%1 (%2 per stack)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (%2 to %3 per stack)</source>
        <translation>%1 (%2 to %3 per stack)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shots with angles</source>
        <translation>Shots with angles</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Links</source>
        <translation>Links</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>none (no restriction)</source>
        <translation>none (no restriction)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Focal length</source>
        <translation>Focal length</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Lens</source>
        <translation>Lens</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Auto detection</source>
        <translation>Auto detection</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>For a stack</source>
        <translation>For a stack</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Detect control points</source>
        <translation>Detect control points</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Use hard links</source>
        <translation>Use hard links</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Detect links in</source>
        <translation>Detect links in</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All stack levels</source>
        <translation>All stack levels</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The reference level</source>
        <translation>The reference level</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Use recorded location</source>
        <translation>Use recorded location</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Skip optimization</source>
        <translation>Skip optimization</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Clean wrong link</source>
        <translation>Clean wrong link</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Overlap</source>
        <translation>Overlap</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Output</source>
        <translation>Output</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Grid</source>
        <translation>Grid</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 rows, shot by %2, %3 per stack%4</source>
        <translation>%1 rows, shot by %2, %3 per stack%4</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>, full 360°</source>
        <translation>, full 360°</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stacks, reference image first</source>
        <translation>Stacks, reference image first</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>and %1 more</source>
        <translation>and %1 more</translation>
    </message>
    <message>
        <location line="+16"/>
        <location line="+100"/>
        <source>Nothing was imported.</source>
        <translation>Nothing was imported.</translation>
    </message>
    <message>
        <location line="-50"/>
        <location line="+8"/>
        <source>Save project</source>
        <translation>Save project</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>Hugin projects (*.pto)</source>
        <translation>Hugin projects (*.pto)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Saved %1 and its description</source>
        <translation>Saved %1 and its description</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+8"/>
        <source>Save layout picture</source>
        <translation>Save layout picture</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>PNG pictures (*.png)</source>
        <translation>PNG pictures (*.png)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Saved %1</source>
        <translation>Saved %1</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>A stitch is running.</source>
        <translation>A stitch is running.</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Stitching %1</source>
        <translation>Stitching %1</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>JPEG pictures (*.jpg)</source>
        <translation>JPEG pictures (*.jpg)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>TIFF pictures (*.tif)</source>
        <translation>TIFF pictures (*.tif)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>OpenEXR HDR pictures (*.exr)</source>
        <translation>OpenEXR HDR pictures (*.exr)</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+11"/>
        <location line="+43"/>
        <source>Stitch panorama</source>
        <translation>Stitch panorama</translation>
    </message>
    <message>
        <location line="-20"/>
        <source>Stitched %1 in %2 s</source>
        <translation>Stitched %1 in %2 s</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The stitch was cancelled; no panorama was written.</source>
        <translation>The stitch was cancelled; no panorama was written.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The stitch failed.</source>
        <translation>The stitch failed.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The step &quot;%1&quot; (%2) failed:
%3</source>
        <translation>The step &quot;%1&quot; (%2) failed:
%3</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The stitch could not start:
%1</source>
        <translation>The stitch could not start:
%1</translation>
    </message>
</context>
<context>
    <name>ImportWizard</name>
    <message>
        <location filename="../ImportWizard.cpp" line="+23"/>
        <source>panohead: import a panorama</source>
        <translation>panohead: import a panorama</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Settings...</source>
        <translation>Settings...</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>%1 %2 by %3, loaded from %4</source>
        <translation>%1 %2 by %3, loaded from %4</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Unsaved import</source>
        <translation>Unsaved import</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The imported panorama was neither saved nor stitched. Save its project first?</source>
        <translation>The imported panorama was neither saved nor stitched. Save its project first?</translation>
    </message>
</context>
<context>
    <name>PanoramaLayoutView</name>
    <message>
        <location filename="../PanoramaLayoutView.cpp" line="+134"/>
        <source>No positions to draw</source>
        <translation>No positions to draw</translation>
    </message>
    <message>
        <location line="+78"/>
        <source>below</source>
        <translation>below</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>right</source>
        <translation>right</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>diagonal</source>
        <translation>diagonal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>no direction</source>
        <translation>no direction</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>yaw →, pitch ↑ (degrees)</source>
        <translation>yaw →, pitch ↑ (degrees)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>grid: columns →, rows ↓</source>
        <translation>grid: columns →, rows ↓</translation>
    </message>
</context>
<context>
    <name>PanoramaPreview</name>
    <message>
        <location filename="../PanoramaPreview.cpp" line="+26"/>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Show in folder</source>
        <translation>Show in folder</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>%1: %2 × %3 pixels</source>
        <translation>%1: %2 × %3 pixels</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stitched Hugin project: %1</source>
        <translation>Stitched Hugin project: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The panorama cannot be shown here; open it with &quot;Open&quot;.</source>
        <translation>The panorama cannot be shown here; open it with &quot;Open&quot;.</translation>
    </message>
</context>
<context>
    <name>PluginChoicePage</name>
    <message>
        <location filename="../PluginChoicePage.cpp" line="+17"/>
        <source>Choose the panoramic head</source>
        <translation>Choose the panoramic head</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Choose the import plug-in for the head, or the program, that recorded your panorama. Its page comes next.</source>
        <translation>Choose the import plug-in for the head, or the program, that recorded your panorama. Its page comes next.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Plug-in</source>
        <translation>Plug-in</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>PluginLibraryLoader</name>
    <message>
        <location filename="../PluginLibraryLoader.cpp" line="+60"/>
        <source>%1 is not a Qt plug-in: %2</source>
        <translation>%1 is not a Qt plug-in: %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 is a plug-in for &quot;%2&quot;, not a ZPanoHead library</source>
        <translation>%1 is a plug-in for &quot;%2&quot;, not a ZPanoHead library</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 declares the root class &quot;%2&quot; instead of &quot;%3&quot;</source>
        <translation>%1 declares the root class &quot;%2&quot; instead of &quot;%3&quot;</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>No ZPanoHead plug-in library was found in:
%1</source>
        <translation>No ZPanoHead plug-in library was found in:
%1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Build the ZPanoHead target, or name its folder with --plugin-dir.</source>
        <translation>Build the ZPanoHead target, or name its folder with --plugin-dir.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Cannot load %1: %2</source>
        <translation>Cannot load %1: %2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 does not offer the plug-in library interfaces</source>
        <translation>%1 does not offer the plug-in library interfaces</translation>
    </message>
</context>
<context>
    <name>StitchPipeline</name>
    <message>
        <location filename="../../stitch/StitchPipeline.cpp" line="+361"/>
        <source>Finding control points</source>
        <translation>Finding control points</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Removing points between positions that do not meet</source>
        <translation>Removing points between positions that do not meet</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Removing wrong points</source>
        <translation>Removing wrong points</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Placing the pictures</source>
        <translation>Placing the pictures</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Choosing canvas and crop</source>
        <translation>Choosing canvas and crop</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Remapping</source>
        <translation>Remapping</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Blending</source>
        <translation>Blending</translation>
    </message>
</context>
<context>
    <name>StitchProgressWidget</name>
    <message>
        <location filename="../StitchProgressWidget.cpp" line="+21"/>
        <source>Cancel stitch</source>
        <translation>Cancel stitch</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Stopping...</source>
        <translation>Stopping...</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Checking the project...</source>
        <translation>Checking the project...</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Step %1 of %2: %3</source>
        <translation>Step %1 of %2: %3</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>%1 %2 of %3</source>
        <translation>%1 %2 of %3</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>%1:%2</source>
        <translation>%1:%2</translation>
    </message>
</context>
</TS>
