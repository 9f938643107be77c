<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de_DE">
<context>
    <name>Library</name>
    <message>
        <location filename="../Library.cpp" line="+83"/>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
</context>
<context>
    <name>UIWPClauss</name>
    <message>
        <location filename="../../pages/UIWPClauss.cpp" line="+81"/>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Error parse file:%1</source>
        <translation>Fehler beim Einlesen der Datei: %1</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Select the preset file and/or images</source>
        <translation>Vorgabedatei und/oder Bilder auswählen</translation>
    </message>
    <message>
        <location line="+30"/>
        <location line="+2"/>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
</context>
<context>
    <name>UIWPClaussClass</name>
    <message>
        <location filename="../../pages/UIWPClauss.ui" line="+20"/>
        <source>Clauss panohead</source>
        <translation>Clauss-Panoramakopf</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Clauss panohead import</source>
        <translation>Import vom Clauss-Panoramakopf</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/clauss&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Clauss&lt;/span&gt;&lt;/a&gt; provides special equipment for panoramic photography and VR applications.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/clauss&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Clauss&lt;/span&gt;&lt;/a&gt; bietet Spezialausrüstung für Panoramafotografie und VR-Anwendungen.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Script file:</source>
        <translation>Skriptdatei:</translation>
    </message>
    <message>
        <location line="+10"/>
        <location line="+104"/>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <location line="-91"/>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Number of shoot:</source>
        <translation>Anzahl der Aufnahmen:</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+35"/>
        <location line="+14"/>
        <location line="+48"/>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
    <message>
        <location line="-69"/>
        <source>Theta:</source>
        <translation>Theta:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Phi:</source>
        <translation>Phi:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Inverse Y coordinates</source>
        <translation>Y-Koordinaten umkehren</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Images:</source>
        <translation>Bilder:</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Number of image:</source>
        <translation>Bildanzahl:</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>Automatische Erkennung</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>Falsche Verknüpfungen entfernen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>Optimierung überspringen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Guided optimization</source>
        <translation>Geführte Optimierung</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
<context>
    <name>UIWPGigapan</name>
    <message>
        <location filename="../../pages/UIWPGigapan.cpp" line="+114"/>
        <source>images in </source>
        <translation>Bilder in </translation>
    </message>
</context>
<context>
    <name>UIWPGigapanClass</name>
    <message>
        <location filename="../../pages/UIWPGigapan.ui" line="+20"/>
        <source>UIWPGigapan</source>
        <translation>UIWPGigapan</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Gigapan panorama import</source>
        <translation>Gigapan-Panorama-Import</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/gigapan&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Gigapan&lt;/span&gt;&lt;/a&gt; allows users to upload, share, and explore brilliant gigapixel+ panoramas from around the globe.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/gigapan&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Gigapan&lt;/span&gt;&lt;/a&gt; ermöglicht es, brillante Gigapixel-Panoramen aus aller Welt hochzuladen, zu teilen und zu erkunden.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Images :</source>
        <translation>Bilder:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <location line="+9"/>
        <source># Images in</source>
        <translation># Bilder in</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>rows and</source>
        <translation>Zeilen und</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>columns.</source>
        <translation>Spalten.</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Ignore N files </source>
        <translation>N Dateien überspringen </translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Nb image per location ( bracketing )</source>
        <translation>Bilder pro Position (Belichtungsreihe)</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Shoot layout</source>
        <translation>Aufnahmeraster</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Columns: to left</source>
        <translation>Spalten: nach links</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Columns (default)</source>
        <translation>Spalten (Standard)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Rows: upward</source>
        <translation>Zeilen: nach oben</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Rows: downward</source>
        <translation>Zeilen: nach unten</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Layout</source>
        <translation>Anordnung</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Shoot setup</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Force 360° panorama</source>
        <translation>360°-Panorama erzwingen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Overlapping</source>
        <translation>Überlappung</translation>
    </message>
    <message>
        <location line="+7"/>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Stack</source>
        <translation>Stapel</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>Verknüpfungen erkennen in:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>der Referenzebene</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>allen Stapelebenen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>Innerhalb eines Stapels:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>Feste Verknüpfungen verwenden</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>Kontrollpunkte erkennen</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>Erkennungsoptionen</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>Automatische Erkennung</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Clean wrong link</source>
        <translation>Falsche Verknüpfungen entfernen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>Optimierung überspringen</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
<context>
    <name>UIWPMerlinClass</name>
    <message>
        <location filename="../../pages/UIWPMerlin.ui" line="+20"/>
        <source>Papywizard panohead control software</source>
        <translation>Papywizard – Steuersoftware für Panoramaköpfe</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Papywizard import</source>
        <translation>Papywizard-Import</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/papywizard&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Papywizard&lt;/span&gt;&lt;/a&gt; is a free project to drive Merlin/Orion panorama heads. The XML file format is open and used by a wide range of motorized panorama heads.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/papywizard&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Papywizard&lt;/span&gt;&lt;/a&gt; ist ein freies Projekt zur Steuerung von Merlin/Orion-Panoramaköpfen. Sein offenes XML-Format nutzen viele motorisierte Panoramaköpfe.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>XML:</source>
        <translation>XML:</translation>
    </message>
    <message>
        <location line="+10"/>
        <location line="+125"/>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <location line="-112"/>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+125"/>
        <source>Number of images:</source>
        <translation>Bildanzahl:</translation>
    </message>
    <message>
        <location line="-118"/>
        <location line="+42"/>
        <location line="+14"/>
        <location line="+14"/>
        <location line="+14"/>
        <location line="+41"/>
        <location line="+21"/>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
    <message>
        <location line="-111"/>
        <source>Yaw:</source>
        <translation>Gier:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Pitch:</source>
        <translation>Nick:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Bracketing:</source>
        <translation>Bracketing:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>XML focal:</source>
        <translation>XML-Brennweite:</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Images:</source>
        <translation>Bilder:</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Image focal:</source>
        <translation>Bild-Brennweite:</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Shoot setup</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Inverse Y coordinates</source>
        <translation>Y-Koordinaten umkehren</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>Focal length:</source>
        <translation>Brennweite:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Lens Type:</source>
        <translation>Objektivtyp:</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Use XML information</source>
        <translation>XML-Angaben verwenden</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use image information</source>
        <translation>Bildangaben verwenden</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Stack</source>
        <translation>Stapel</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>Verknüpfungen erkennen in:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>der Referenzebene</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>allen Stapelebenen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>Innerhalb eines Stapels:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>Feste Verknüpfungen verwenden</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>Kontrollpunkte erkennen</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>Erkennungsoptionen</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>Automatische Erkennung</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>Falsche Verknüpfungen entfernen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>Optimierung überspringen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use recorded location</source>
        <translation>Aufgezeichnete Position verwenden</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Header details</source>
        <translation>Kopfdaten</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Title:</source>
        <translation>Titel:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>GPS:</source>
        <translation>GPS:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Comment:</source>
        <translation>Kommentar:</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
<context>
    <name>UIWPPage</name>
    <message>
        <location filename="../../pages/UIWPPage.cpp" line="+90"/>
        <source>Standard</source>
        <translation>Normal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Fisheye</source>
        <translation>Fischauge</translation>
    </message>
    <message>
        <location line="+76"/>
        <source>All Files (*.*)</source>
        <translation>Alle Dateien (*.*)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Select images</source>
        <translation>Bilder auswählen</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2Class</name>
    <message>
        <location filename="../../pages/UIWPVRDrive2.ui" line="+20"/>
        <source>VR Drive II import plugin</source>
        <translation>VR-Drive-II-Import-Plugin</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>VR Drive 2</source>
        <translation>VR Drive 2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The &lt;a href=&quot;https://zelmo.example/panohead/heads/vrdrive2&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;VR Drive 2&lt;/span&gt;&lt;/a&gt; motorized panoramic head writes its shooting as an XML preset; its bracketed shots become HDR-ready stacks.</source>
        <translation>Der motorisierte Kopf &lt;a href=&quot;https://zelmo.example/panohead/heads/vrdrive2&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;VR Drive 2&lt;/span&gt;&lt;/a&gt; speichert die Aufnahme als XML-Vorgabe; seine Belichtungsreihen werden zu HDR-fähigen Stapeln.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Images:</source>
        <translation>Bilder:</translation>
    </message>
    <message>
        <location line="+14"/>
        <location line="+58"/>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <location line="-45"/>
        <location line="+65"/>
        <source>Number of images:</source>
        <translation>Bildanzahl:</translation>
    </message>
    <message>
        <location line="-58"/>
        <location line="+14"/>
        <location line="+51"/>
        <location line="+14"/>
        <location line="+14"/>
        <location line="+14"/>
        <location line="+14"/>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
    <message>
        <location line="-114"/>
        <source>Image focal:</source>
        <translation>Bild-Brennweite:</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>XML:</source>
        <translation>XML:</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Yaw:</source>
        <translation>Gier:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Pitch:</source>
        <translation>Nick:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Bracketing:</source>
        <translation>Bracketing:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>XML focal:</source>
        <translation>XML-Brennweite:</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Output:</source>
        <translation>Ausgabe:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8/16 Bit, Tonemapping</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>32-bits HDR radiance</source>
        <translation>32 Bit HDR-Radiance</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Shoot setup</source>
        <translation>Aufnahme</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Inverse Y coordinates</source>
        <translation>Y-Koordinaten umkehren</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>Focal length:</source>
        <translation>Brennweite:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Lens Type:</source>
        <translation>Objektivtyp:</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Use XML information</source>
        <translation>XML-Angaben verwenden</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use image information</source>
        <translation>Bildangaben verwenden</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Stack</source>
        <translation>Stapel</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>Verknüpfungen erkennen in:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>der Referenzebene</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>allen Stapelebenen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>Innerhalb eines Stapels:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>Feste Verknüpfungen verwenden</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>Kontrollpunkte erkennen</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>Erkennungsoptionen</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>Automatische Erkennung</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>Falsche Verknüpfungen entfernen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>Optimierung überspringen</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use recorded location</source>
        <translation>Aufgezeichnete Position verwenden</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>Vorschau</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Zoom</source>
        <translation>Zoom</translation>
    </message>
</context>
<context>
    <name>UIWPXmlPage</name>
    <message>
        <location filename="../../pages/UIWPXmlPage.cpp" line="+102"/>
        <source>All Files (*.*)</source>
        <translation>Alle Dateien (*.*)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Select the preset file and/or images</source>
        <translation>Vorgabedatei und/oder Bilder auswählen</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>Alle Dateien (*.*);;XML-Dateien (*.xml)</translation>
    </message>
    <message>
        <location line="+154"/>
        <location line="+2"/>
        <location line="+3"/>
        <location line="+2"/>
        <location line="+5"/>
        <location line="+4"/>
        <source>N/A</source>
        <translation>k. A.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>Das XML verwendet Belichtungsreihen; die Bildanzahl sollte ein Vielfaches davon sein</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Not the same as in XML fil</source>
        <translation>Nicht dieselbe Anzahl wie in der XML-Datei</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Focal Length difference between EXIF and XML</source>
        <translation>Brennweite in EXIF und XML verschieden</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Focal length difference between EXIF and XML</source>
        <translation>Brennweite in EXIF und XML verschieden</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Lens type difference between EXIF and XML</source>
        <translation>Objektivtyp in EXIF und XML verschieden</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>Das Papywizard-XML enthält Belichtungsreihen, und die Anzahl der Bilder ist kein Vielfaches der Anzahl der Aufnahmen pro Reihe.</translation>
    </message>
</context>
<context>
    <name>ZClaussImport</name>
    <message>
        <location filename="../ZImportDescriptor.h" line="+28"/>
        <source>Clauss Rodeon import plugin</source>
        <translation>Clauss-Rodeon-Import-Plugin</translation>
    </message>
</context>
<context>
    <name>ZGigapanImport</name>
    <message>
        <location line="+9"/>
        <source>Gigapan import plugin</source>
        <translation>Gigapan-Import-Plugin</translation>
    </message>
</context>
<context>
    <name>ZMerlinImport</name>
    <message>
        <location line="+9"/>
        <source>Papywizard XML import plugin</source>
        <translation>Papywizard-XML-Import-Plugin</translation>
    </message>
</context>
<context>
    <name>ZVRDrive2Import</name>
    <message>
        <location line="+9"/>
        <source>VRDrive2 XML import plugin</source>
        <translation>VRDrive2-XML-Import-Plugin</translation>
    </message>
</context>
</TS>
