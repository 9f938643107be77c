<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>HostSettingsDialog</name>
    <message>
        <location filename="../HostSettingsDialog.cpp" line="+22"/>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>found on PATH</source>
        <translation>im PATH gesucht</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Browse...</source>
        <translation>Durchsuchen...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Folder of Hugin&apos;s programs</source>
        <translation>Ordner der Hugin-Programme</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>The system&apos;s</source>
        <translation>Systemsprache</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>The language applies from the next start.</source>
        <translation>Die Sprache gilt ab dem nächsten Start.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Hugin&apos;s programs:</source>
        <translation>Hugin-Programme:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Language:</source>
        <translation>Sprache:</translation>
    </message>
    <message>
        <location line="+49"/>
        <source>on PATH</source>
        <translation>im PATH</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>in %1</source>
        <translation>in %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Not found %2: %1. On Debian and Ubuntu, Hugin&apos;s programs come with the packages %3 (sudo apt install %3).</source>
        <translation>Nicht gefunden %2: %1. Unter Debian und Ubuntu kommen die Hugin-Programme mit den Paketen %3 (sudo apt install %3).</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Every program the stitch needs is found.</source>
        <translation>Alle Programme, die das Zusammenfügen braucht, sind vorhanden.</translation>
    </message>
</context>
<context>
    <name>ImportResultPage</name>
    <message>
        <location filename="../ImportResultPage.cpp" line="+39"/>
        <source>yes</source>
        <translation>ja</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>no</source>
        <translation>nein</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Cannot read %1.</source>
        <translation>%1 kann nicht gelesen werden.</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Imported panorama</source>
        <translation>Importiertes Panorama</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>What the plug-in handed over: the stacks of photographs, their positions and the links along which control points will be looked for.</source>
        <translation>Was das Plug-in übergeben hat: die Stapel der Fotos, ihre Positionen und die Verbindungen, entlang derer Kontrollpunkte gesucht werden.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Layout</source>
        <translation>Anordnung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Panorama</source>
        <translation>Panorama</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Save project...</source>
        <translation>Projekt speichern...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Saves the Hugin project and its description (.json), which the stitch needs.</source>
        <translation>Speichert das Hugin-Projekt und seine Beschreibung (.json), die das Zusammenfügen braucht.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save layout picture...</source>
        <translation>Anordnungsbild speichern...</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Stitch panorama...</source>
        <translation>Panorama zusammenfügen...</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>&lt;p&gt;The plug-in handed nothing over.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Das Plug-in hat nichts übergeben.&lt;/p&gt;</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>columns</source>
        <translation>Spalten</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>rows downward</source>
        <translation>Zeilen nach unten</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>rows upward</source>
        <translation>Zeilen nach oben</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>columns to the left</source>
        <translation>Spalten nach links</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>serpentine</source>
        <translation>Schlangenlinie</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>order %1</source>
        <translation>Reihenfolge %1</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>no direction</source>
        <translation>keine Richtung</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>below</source>
        <translation>unten</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>below right</source>
        <translation>unten rechts</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>above right</source>
        <translation>oben rechts</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>direction %1</source>
        <translation>Richtung %1</translation>
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
        <translation>Fischauge</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>not known</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>not set</source>
        <translation>nicht gesetzt</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+6"/>
        <source>from the photographs</source>
        <translation>aus den Fotos</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+6"/>
        <source>from the record</source>
        <translation>aus der Aufzeichnung</translation>
    </message>
    <message>
        <location line="-4"/>
        <source>%1 mm (%2)</source>
        <translation>%1 mm (%2)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>not known: neither the record nor the photographs give one</source>
        <translation>unbekannt: weder die Aufzeichnung noch die Fotos geben eine an</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8 Bit / 16 Bit, tonwertkomprimiert</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>32-bits HDR radiance</source>
        <translation>32 Bit HDR-Strahldichte</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>not chosen</source>
        <translation>nicht gewählt</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Plug-in</source>
        <translation>Plug-in</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stacks</source>
        <translation>Stapel</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Images</source>
        <translation>Bilder</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (%2 per stack)</source>
        <translation>%1 (%2 je Stapel)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (%2 to %3 per stack)</source>
        <translation>%1 (%2 bis %3 je Stapel)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shots with angles</source>
        <translation>Aufnahmen mit Winkeln</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Links</source>
        <translation>Verbindungen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>none (no restriction)</source>
        <translation>keine (keine Einschränkung)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Focal length</source>
        <translation>Brennweite</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Lens</source>
        <translation>Objektiv</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Auto detection</source>
        <translation>Automatische Erkennung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>For a stack</source>
        <translation>Für einen Stapel</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Detect control points</source>
        <translation>Kontrollpunkte erkennen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Use hard links</source>
        <translation>Feste Verbindungen verwenden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Detect links in</source>
        <translation>Verbindungen erkennen in</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All stack levels</source>
        <translation>Allen Stapelebenen</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The reference level</source>
        <translation>Der Referenzebene</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Use recorded location</source>
        <translation>Aufgezeichnete Position verwenden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Skip optimization</source>
        <translation>Optimierung überspringen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Clean wrong link</source>
        <translation>Falsche Verbindung bereinigen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Overlap</source>
        <translation>Überlappung</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Output</source>
        <translation>Ausgabe</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Grid</source>
        <translation>Raster</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 rows, shot by %2, %3 per stack%4</source>
        <translation>%1 Zeilen, aufgenommen nach %2, %3 je Stapel%4</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>, full 360°</source>
        <translation>, volle 360°</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stacks, reference image first</source>
        <translation>Stapel, Referenzbild zuerst</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>and %1 more</source>
        <translation>und %1 weitere</translation>
    </message>
    <message>
        <location line="+16"/>
        <location line="+100"/>
        <source>Nothing was imported.</source>
        <translation>Es wurde nichts importiert.</translation>
    </message>
    <message>
        <location line="-50"/>
        <location line="+8"/>
        <source>Save project</source>
        <translation>Projekt speichern</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>Hugin projects (*.pto)</source>
        <translation>Hugin-Projekte (*.pto)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Saved %1 and its description</source>
        <translation>%1 und seine Beschreibung gespeichert</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+8"/>
        <source>Save layout picture</source>
        <translation>Anordnungsbild speichern</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>PNG pictures (*.png)</source>
        <translation>PNG-Bilder (*.png)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Saved %1</source>
        <translation>%1 gespeichert</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>A stitch is running.</source>
        <translation>Ein Zusammenfügen läuft.</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Stitching %1</source>
        <translation>Füge %1 zusammen</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>JPEG pictures (*.jpg)</source>
        <translation>JPEG-Bilder (*.jpg)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>TIFF pictures (*.tif)</source>
        <translation>TIFF-Bilder (*.tif)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>OpenEXR HDR pictures (*.exr)</source>
        <translation>OpenEXR-HDR-Bilder (*.exr)</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+11"/>
        <location line="+43"/>
        <source>Stitch panorama</source>
        <translation>Panorama zusammenfügen</translation>
    </message>
    <message>
        <location line="-20"/>
        <source>Stitched %1 in %2 s</source>
        <translation>%1 in %2 s zusammengefügt</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The stitch was cancelled; no panorama was written.</source>
        <translation>Das Zusammenfügen wurde abgebrochen; es wurde kein Panorama geschrieben.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The stitch failed.</source>
        <translation>Das Zusammenfügen ist fehlgeschlagen.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The step &quot;%1&quot; (%2) failed:
%3</source>
        <translation>Der Schritt „%1“ (%2) ist fehlgeschlagen:
%3</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The stitch could not start:
%1</source>
        <translation>Das Zusammenfügen konnte nicht beginnen:
%1</translation>
    </message>
</context>
<context>
    <name>ImportWizard</name>
    <message>
        <location filename="../ImportWizard.cpp" line="+23"/>
        <source>panohead: import a panorama</source>
        <translation>panohead: ein Panorama importieren</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Settings...</source>
        <translation>Einstellungen...</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>%1 %2 by %3, loaded from %4</source>
        <translation>%1 %2 von %3, geladen aus %4</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Unsaved import</source>
        <translation>Nicht gespeicherter Import</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The imported panorama was neither saved nor stitched. Save its project first?</source>
        <translation>Das importierte Panorama wurde weder gespeichert noch zusammengefügt. Zuerst sein Projekt speichern?</translation>
    </message>
</context>
<context>
    <name>PanoramaLayoutView</name>
    <message>
        <location filename="../PanoramaLayoutView.cpp" line="+134"/>
        <source>No positions to draw</source>
        <translation>Keine Positionen zu zeichnen</translation>
    </message>
    <message>
        <location line="+78"/>
        <source>below</source>
        <translation>unten</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>diagonal</source>
        <translation>diagonal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>no direction</source>
        <translation>keine Richtung</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>yaw →, pitch ↑ (degrees)</source>
        <translation>Gier →, Nick ↑ (Grad)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>grid: columns →, rows ↓</source>
        <translation>Raster: Spalten →, Zeilen ↓</translation>
    </message>
</context>
<context>
    <name>PanoramaPreview</name>
    <message>
        <location filename="../PanoramaPreview.cpp" line="+26"/>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Show in folder</source>
        <translation>Im Ordner zeigen</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>%1: %2 × %3 pixels</source>
        <translation>%1: %2 × %3 Pixel</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stitched Hugin project: %1</source>
        <translation>Zusammengefügtes Hugin-Projekt: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The panorama cannot be shown here; open it with &quot;Open&quot;.</source>
        <translation>Das Panorama kann hier nicht angezeigt werden; öffnen Sie es mit „Öffnen“.</translation>
    </message>
</context>
<context>
    <name>PluginChoicePage</name>
    <message>
        <location filename="../PluginChoicePage.cpp" line="+17"/>
        <source>Choose the panoramic head</source>
        <translation>Den Panoramakopf wählen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Choose the import plug-in for the head, or the program, that recorded your panorama. Its page comes next.</source>
        <translation>Wählen Sie das Import-Plug-in für den Kopf oder das Programm, das Ihr Panorama aufgezeichnet hat. Seine Seite folgt.</translation>
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
        <translation>Beschreibung</translation>
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
        <translation>%1 ist kein Qt-Plug-in: %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 is a plug-in for &quot;%2&quot;, not a ZPanoHead library</source>
        <translation>%1 ist ein Plug-in für „%2“, keine ZPanoHead-Bibliothek</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 declares the root class &quot;%2&quot; instead of &quot;%3&quot;</source>
        <translation>%1 deklariert die Wurzelklasse „%2“ statt „%3“</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>No ZPanoHead plug-in library was found in:
%1</source>
        <translation>In diesen Ordnern wurde keine ZPanoHead-Plug-in-Bibliothek gefunden:
%1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Build the ZPanoHead target, or name its folder with --plugin-dir.</source>
        <translation>Bauen Sie das Ziel ZPanoHead oder nennen Sie seinen Ordner mit --plugin-dir.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Cannot load %1: %2</source>
        <translation>%1 kann nicht geladen werden: %2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 does not offer the plug-in library interfaces</source>
        <translation>%1 bietet die Schnittstellen der Plug-in-Bibliothek nicht an</translation>
    </message>
</context>
<context>
    <name>StitchPipeline</name>
    <message>
        <location filename="../../stitch/StitchPipeline.cpp" line="+361"/>
        <source>Finding control points</source>
        <translation>Kontrollpunkte suchen</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Removing points between positions that do not meet</source>
        <translation>Punkte zwischen Positionen entfernen, die sich nicht berühren</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Removing wrong points</source>
        <translation>Falsche Punkte entfernen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Placing the pictures</source>
        <translation>Bilder ausrichten</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Choosing canvas and crop</source>
        <translation>Leinwand und Zuschnitt wählen</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Remapping</source>
        <translation>Umrechnen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Blending</source>
        <translation>Überblenden</translation>
    </message>
</context>
<context>
    <name>StitchProgressWidget</name>
    <message>
        <location filename="../StitchProgressWidget.cpp" line="+21"/>
        <source>Cancel stitch</source>
        <translation>Zusammenfügen abbrechen</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Stopping...</source>
        <translation>Wird angehalten...</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Checking the project...</source>
        <translation>Projekt wird geprüft...</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Step %1 of %2: %3</source>
        <translation>Schritt %1 von %2: %3</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>%1 %2 of %3</source>
        <translation>%1: %2 von %3</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>%1:%2</source>
        <translation>%1:%2</translation>
    </message>
</context>
</TS>
