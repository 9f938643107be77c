<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl">
<context>
    <name>HostSettingsDialog</name>
    <message>
        <location filename="../HostSettingsDialog.cpp" line="+22"/>
        <source>Settings</source>
        <translation>Ustawienia</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>found on PATH</source>
        <translation>wyszukiwane w PATH</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Browse...</source>
        <translation>Przeglądaj...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Folder of Hugin&apos;s programs</source>
        <translation>Folder programów Hugina</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>The system&apos;s</source>
        <translation>Język systemu</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>The language applies from the next start.</source>
        <translation>Język zostanie zastosowany przy następnym uruchomieniu.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Hugin&apos;s programs:</source>
        <translation>Programy Hugina:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Language:</source>
        <translation>Język:</translation>
    </message>
    <message>
        <location line="+49"/>
        <source>on PATH</source>
        <translation>w PATH</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>in %1</source>
        <translation>w %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Not found %2: %1. On Debian and Ubuntu, Hugin&apos;s programs come with the packages %3 (sudo apt install %3).</source>
        <translation>Nie znaleziono %2: %1. W Debianie i Ubuntu programy Hugina są w pakietach %3 (sudo apt install %3).</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Every program the stitch needs is found.</source>
        <translation>Znaleziono wszystkie programy potrzebne do sklejania.</translation>
    </message>
</context>
<context>
    <name>ImportResultPage</name>
    <message>
        <location filename="../ImportResultPage.cpp" line="+39"/>
        <source>yes</source>
        <translation>tak</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>no</source>
        <translation>nie</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Cannot read %1.</source>
        <translation>Nie można odczytać %1.</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Imported panorama</source>
        <translation>Zaimportowana panorama</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>What the plug-in handed over: the stacks of photographs, their positions and the links along which control points will be looked for.</source>
        <translation>Co przekazała wtyczka: stosy zdjęć, ich położenia i połączenia, wzdłuż których będą szukane punkty kontrolne.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Layout</source>
        <translation>Układ</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Panorama</source>
        <translation>Panorama</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Save project...</source>
        <translation>Zapisz projekt...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Saves the Hugin project and its description (.json), which the stitch needs.</source>
        <translation>Zapisuje projekt Hugina i jego opis (.json), potrzebny do sklejania.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save layout picture...</source>
        <translation>Zapisz obraz układu...</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Stitch panorama...</source>
        <translation>Sklej panoramę...</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>&lt;p&gt;The plug-in handed nothing over.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Wtyczka niczego nie przekazała.&lt;/p&gt;</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>columns</source>
        <translation>kolumnami</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>rows downward</source>
        <translation>rzędami w dół</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>rows upward</source>
        <translation>rzędami w górę</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>columns to the left</source>
        <translation>kolumnami w lewo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>serpentine</source>
        <translation>wężykiem</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>order %1</source>
        <translation>kolejność %1</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>no direction</source>
        <translation>bez kierunku</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>below</source>
        <translation>poniżej</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>right</source>
        <translation>w prawo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>below right</source>
        <translation>poniżej w prawo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>above right</source>
        <translation>powyżej w prawo</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>direction %1</source>
        <translation>kierunek %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Standard</source>
        <translation>Standardowy</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Fisheye</source>
        <translation>Rybie oko</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>not known</source>
        <translation>nieznany</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>not set</source>
        <translation>nie ustawiona</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+6"/>
        <source>from the photographs</source>
        <translation>ze zdjęć</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+6"/>
        <source>from the record</source>
        <translation>z zapisu</translation>
    </message>
    <message>
        <location line="-4"/>
        <source>%1 mm (%2)</source>
        <translation>%1 mm (%2)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>not known: neither the record nor the photographs give one</source>
        <translation>nieznana: nie podaje jej ani zapis, ani zdjęcia</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8 / 16 bitów, mapowanie tonów</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>32-bits HDR radiance</source>
        <translation>radiancja HDR 32 bity</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>not chosen</source>
        <translation>nie wybrano</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Plug-in</source>
        <translation>Wtyczka</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stacks</source>
        <translation>Stosy</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Images</source>
        <translation>Obrazy</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (%2 per stack)</source>
        <translation>%1 (%2 na stos)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (%2 to %3 per stack)</source>
        <translation>%1 (od %2 do %3 na stos)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shots with angles</source>
        <translation>Ujęcia z kątami</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Links</source>
        <translation>Połączenia</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>none (no restriction)</source>
        <translation>brak (bez ograniczeń)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Focal length</source>
        <translation>Ogniskowa</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Lens</source>
        <translation>Obiektyw</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Auto detection</source>
        <translation>Automatyczne wykrywanie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>For a stack</source>
        <translation>Dla stosu</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Detect control points</source>
        <translation>Wykrywaj punkty kontrolne</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Use hard links</source>
        <translation>Używaj stałych połączeń</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Detect links in</source>
        <translation>Wykrywaj połączenia w</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All stack levels</source>
        <translation>Wszystkich poziomach stosu</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The reference level</source>
        <translation>Poziomie odniesienia</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Use recorded location</source>
        <translation>Użyj zapisanego położenia</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Skip optimization</source>
        <translation>Pomiń optymalizację</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Clean wrong link</source>
        <translation>Usuń błędne połączenie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Overlap</source>
        <translation>Nakładanie</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>%1 %</source>
        <translation>%1%</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Output</source>
        <translation>Wyjście</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Grid</source>
        <translation>Siatka</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 rows, shot by %2, %3 per stack%4</source>
        <translation>%1 rzędów, zdjęcia %2, %3 na stos%4</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>, full 360°</source>
        <translation>, pełne 360°</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stacks, reference image first</source>
        <translation>Stosy, najpierw obraz odniesienia</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>and %1 more</source>
        <translation>i %1 więcej</translation>
    </message>
    <message>
        <location line="+16"/>
        <location line="+100"/>
        <source>Nothing was imported.</source>
        <translation>Niczego nie zaimportowano.</translation>
    </message>
    <message>
        <location line="-50"/>
        <location line="+8"/>
        <source>Save project</source>
        <translation>Zapisz projekt</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>Hugin projects (*.pto)</source>
        <translation>Projekty Hugina (*.pto)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Saved %1 and its description</source>
        <translation>Zapisano %1 i jego opis</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+8"/>
        <source>Save layout picture</source>
        <translation>Zapisz obraz układu</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>PNG pictures (*.png)</source>
        <translation>Obrazy PNG (*.png)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Saved %1</source>
        <translation>Zapisano %1</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>A stitch is running.</source>
        <translation>Trwa sklejanie.</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Stitching %1</source>
        <translation>Sklejanie %1</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>JPEG pictures (*.jpg)</source>
        <translation>Obrazy JPEG (*.jpg)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>TIFF pictures (*.tif)</source>
        <translation>Obrazy TIFF (*.tif)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>OpenEXR HDR pictures (*.exr)</source>
        <translation>Obrazy HDR OpenEXR (*.exr)</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+11"/>
        <location line="+43"/>
        <source>Stitch panorama</source>
        <translation>Sklej panoramę</translation>
    </message>
    <message>
        <location line="-20"/>
        <source>Stitched %1 in %2 s</source>
        <translation>Sklejono %1 w %2 s</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The stitch was cancelled; no panorama was written.</source>
        <translation>Sklejanie anulowano; nie zapisano panoramy.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The stitch failed.</source>
        <translation>Sklejanie nie powiodło się.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The step &quot;%1&quot; (%2) failed:
%3</source>
        <translation>Krok „%1” (%2) nie powiódł się:
%3</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The stitch could not start:
%1</source>
        <translation>Nie można rozpocząć sklejania:
%1</translation>
    </message>
</context>
<context>
    <name>ImportWizard</name>
    <message>
        <location filename="../ImportWizard.cpp" line="+23"/>
        <source>panohead: import a panorama</source>
        <translation>panohead: import panoramy</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Settings...</source>
        <translation>Ustawienia...</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>%1 %2 by %3, loaded from %4</source>
        <translation>%1 %2 od %3, wczytano z %4</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Unsaved import</source>
        <translation>Niezapisany import</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The imported panorama was neither saved nor stitched. Save its project first?</source>
        <translation>Zaimportowana panorama nie została ani zapisana, ani sklejona. Najpierw zapisać jej projekt?</translation>
    </message>
</context>
<context>
    <name>PanoramaLayoutView</name>
    <message>
        <location filename="../PanoramaLayoutView.cpp" line="+134"/>
        <source>No positions to draw</source>
        <translation>Brak położeń do narysowania</translation>
    </message>
    <message>
        <location line="+78"/>
        <source>below</source>
        <translation>poniżej</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>right</source>
        <translation>w prawo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>diagonal</source>
        <translation>po przekątnej</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>no direction</source>
        <translation>bez kierunku</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>yaw →, pitch ↑ (degrees)</source>
        <translation>odchylenie →, pochylenie ↑ (stopnie)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>grid: columns →, rows ↓</source>
        <translation>siatka: kolumny →, rzędy ↓</translation>
    </message>
</context>
<context>
    <name>PanoramaPreview</name>
    <message>
        <location filename="../PanoramaPreview.cpp" line="+26"/>
        <source>Open</source>
        <translation>Otwórz</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Show in folder</source>
        <translation>Pokaż w folderze</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>%1: %2 × %3 pixels</source>
        <translation>%1: %2 × %3 pikseli</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stitched Hugin project: %1</source>
        <translation>Sklejony projekt Hugina: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The panorama cannot be shown here; open it with &quot;Open&quot;.</source>
        <translation>Nie można tu pokazać panoramy; otwórz ją przyciskiem „Otwórz”.</translation>
    </message>
</context>
<context>
    <name>PluginChoicePage</name>
    <message>
        <location filename="../PluginChoicePage.cpp" line="+17"/>
        <source>Choose the panoramic head</source>
        <translation>Wybierz głowicę panoramiczną</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Choose the import plug-in for the head, or the program, that recorded your panorama. Its page comes next.</source>
        <translation>Wybierz wtyczkę importu dla głowicy lub programu, który zapisał panoramę. Jej strona pojawi się dalej.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Plug-in</source>
        <translation>Wtyczka</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Version</source>
        <translation>Wersja</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Description</source>
        <translation>Opis</translation>
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
        <translation>%1 nie jest wtyczką Qt: %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 is a plug-in for &quot;%2&quot;, not a ZPanoHead library</source>
        <translation>%1 to wtyczka dla „%2”, a nie biblioteka ZPanoHead</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 declares the root class &quot;%2&quot; instead of &quot;%3&quot;</source>
        <translation>%1 deklaruje klasę główną „%2” zamiast „%3”</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>No ZPanoHead plug-in library was found in:
%1</source>
        <translation>Nie znaleziono biblioteki wtyczek ZPanoHead w:
%1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Build the ZPanoHead target, or name its folder with --plugin-dir.</source>
        <translation>Zbuduj cel ZPanoHead lub podaj jego folder opcją --plugin-dir.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Cannot load %1: %2</source>
        <translation>Nie można wczytać %1: %2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 does not offer the plug-in library interfaces</source>
        <translation>%1 nie udostępnia interfejsów biblioteki wtyczek</translation>
    </message>
</context>
<context>
    <name>StitchPipeline</name>
    <message>
        <location filename="../../stitch/StitchPipeline.cpp" line="+361"/>
        <source>Finding control points</source>
        <translation>Szukanie punktów kontrolnych</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Removing points between positions that do not meet</source>
        <translation>Usuwanie punktów między położeniami, które się nie stykają</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Removing wrong points</source>
        <translation>Usuwanie błędnych punktów</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Placing the pictures</source>
        <translation>Układanie zdjęć</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Choosing canvas and crop</source>
        <translation>Wybór płótna i kadrowania</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Remapping</source>
        <translation>Przekształcanie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Blending</source>
        <translation>Mieszanie</translation>
    </message>
</context>
<context>
    <name>StitchProgressWidget</name>
    <message>
        <location filename="../StitchProgressWidget.cpp" line="+21"/>
        <source>Cancel stitch</source>
        <translation>Anuluj sklejanie</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Stopping...</source>
        <translation>Zatrzymywanie...</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Checking the project...</source>
        <translation>Sprawdzanie projektu...</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Step %1 of %2: %3</source>
        <translation>Krok %1 z %2: %3</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>%1 %2 of %3</source>
        <translation>%1: %2 z %3</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>%1:%2</source>
        <translation>%1:%2</translation>
    </message>
</context>
</TS>
