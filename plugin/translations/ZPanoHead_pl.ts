<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pl_PL">
<context>
    <name>Library</name>
    <message>
        <location filename="../Library.cpp" line="+83"/>
        <source>Comment</source>
        <translation>Komentarz</translation>
    </message>
</context>
<context>
    <name>UIWPClauss</name>
    <message>
        <location filename="../../pages/UIWPClauss.cpp" line="+81"/>
        <source>Error</source>
        <translation>Błąd</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Error parse file:%1</source>
        <translation>Błąd analizy pliku: %1</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Select the preset file and/or images</source>
        <translation>Wybierz plik ustawień i/lub zdjęcia</translation>
    </message>
    <message>
        <location line="+30"/>
        <location line="+2"/>
        <source>N/A</source>
        <translation>b.d.</translation>
    </message>
</context>
<context>
    <name>UIWPClaussClass</name>
    <message>
        <location filename="../../pages/UIWPClauss.ui" line="+20"/>
        <source>Clauss panohead</source>
        <translation>Głowica panoramiczna Clauss</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Clauss panohead import</source>
        <translation>Import z głowicy panoramicznej Clauss</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/clauss&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Clauss&lt;/span&gt;&lt;/a&gt; provides special equipment for panoramic photography and VR applications.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/clauss&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Clauss&lt;/span&gt;&lt;/a&gt; oferuje specjalistyczny sprzęt do fotografii panoramicznej i zastosowań VR.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Script file:</source>
        <translation>Plik skryptu:</translation>
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
        <translation>Resetuj</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Number of shoot:</source>
        <translation>Liczba ujęć:</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+35"/>
        <location line="+14"/>
        <location line="+48"/>
        <source>N/A</source>
        <translation>b.d.</translation>
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
        <translation>Odwróć współrzędne Y</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Images:</source>
        <translation>Zdjęcia:</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Number of image:</source>
        <translation>Liczba zdjęć:</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Options</source>
        <translation>Opcje</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>Automatyczne wykrywanie</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>Usuń błędne połączenia</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>Pomiń optymalizację</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Guided optimization</source>
        <translation>Optymalizacja prowadzona</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Zoom</source>
        <translation>Powiększenie</translation>
    </message>
</context>
<context>
    <name>UIWPGigapan</name>
    <message>
        <location filename="../../pages/UIWPGigapan.cpp" line="+114"/>
        <source>images in </source>
        <translation>zdjęć w </translation>
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
        <translation>Import panoramy Gigapan</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/gigapan&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Gigapan&lt;/span&gt;&lt;/a&gt; allows users to upload, share, and explore brilliant gigapixel+ panoramas from around the globe.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/gigapan&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Gigapan&lt;/span&gt;&lt;/a&gt; pozwala przesyłać, udostępniać i odkrywać wspaniałe panoramy gigapikselowe z całego świata.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Images :</source>
        <translation>Zdjęcia:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Reset</source>
        <translation>Resetuj</translation>
    </message>
    <message>
        <location line="+9"/>
        <source># Images in</source>
        <translation># zdjęć w</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>rows and</source>
        <translation>rzędach i</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>columns.</source>
        <translation>kolumnach.</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Ignore N files </source>
        <translation>Pomiń N plików </translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Nb image per location ( bracketing )</source>
        <translation>Liczba zdjęć na pozycję (bracketing)</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Shoot layout</source>
        <translation>Układ ujęć</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Columns: to left</source>
        <translation>Kolumny: w lewo</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Columns (default)</source>
        <translation>Kolumny (domyślnie)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Rows: upward</source>
        <translation>Rzędy: w górę</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Rows: downward</source>
        <translation>Rzędy: w dół</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Layout</source>
        <translation>Układ</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Shoot setup</source>
        <translation>Ustawienia ujęć</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Force 360° panorama</source>
        <translation>Wymuś panoramę 360°</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Overlapping</source>
        <translation>Zakładka</translation>
    </message>
    <message>
        <location line="+7"/>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Stack</source>
        <translation>Stos</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>Wykrywaj połączenia w:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>poziomie odniesienia</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>wszystkich poziomach stosu</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>W obrębie stosu:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>Użyj stałych połączeń</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>Wykrywaj punkty kontrolne</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>Opcje wykrywania</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>Automatyczne wykrywanie</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Clean wrong link</source>
        <translation>Usuń błędne połączenia</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>Pomiń optymalizację</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Zoom</source>
        <translation>Powiększenie</translation>
    </message>
</context>
<context>
    <name>UIWPMerlinClass</name>
    <message>
        <location filename="../../pages/UIWPMerlin.ui" line="+20"/>
        <source>Papywizard panohead control software</source>
        <translation>Papywizard – oprogramowanie sterujące głowicami panoramicznymi</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Papywizard import</source>
        <translation>Import z Papywizard</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/papywizard&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Papywizard&lt;/span&gt;&lt;/a&gt; is a free project to drive Merlin/Orion panorama heads. The XML file format is open and used by a wide range of motorized panorama heads.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/papywizard&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Papywizard&lt;/span&gt;&lt;/a&gt; to wolny projekt do sterowania głowicami Merlin/Orion. Jego otwarty format XML obsługuje wiele zmotoryzowanych głowic.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>Ogólne</translation>
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
        <translation>Resetuj</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+125"/>
        <source>Number of images:</source>
        <translation>Liczba zdjęć:</translation>
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
        <translation>b.d.</translation>
    </message>
    <message>
        <location line="-111"/>
        <source>Yaw:</source>
        <translation>Odchylenie:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Pitch:</source>
        <translation>Pochylenie:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Bracketing:</source>
        <translation>Bracketing:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>XML focal:</source>
        <translation>Ogniskowa XML:</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Images:</source>
        <translation>Zdjęcia:</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Image focal:</source>
        <translation>Ogniskowa zdjęć:</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Shoot setup</source>
        <translation>Ustawienia ujęć</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Inverse Y coordinates</source>
        <translation>Odwróć współrzędne Y</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>Focal length:</source>
        <translation>Ogniskowa:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Lens Type:</source>
        <translation>Typ obiektywu:</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Use XML information</source>
        <translation>Użyj danych z XML</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use image information</source>
        <translation>Użyj danych ze zdjęć</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Stack</source>
        <translation>Stos</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>Wykrywaj połączenia w:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>poziomie odniesienia</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>wszystkich poziomach stosu</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>W obrębie stosu:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>Użyj stałych połączeń</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>Wykrywaj punkty kontrolne</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>Opcje wykrywania</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>Automatyczne wykrywanie</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>Usuń błędne połączenia</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>Pomiń optymalizację</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use recorded location</source>
        <translation>Użyj zapisanego położenia</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Header details</source>
        <translation>Szczegóły nagłówka</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Title:</source>
        <translation>Tytuł:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>GPS:</source>
        <translation>GPS:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Comment:</source>
        <translation>Komentarz:</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Zoom</source>
        <translation>Powiększenie</translation>
    </message>
</context>
<context>
    <name>UIWPPage</name>
    <message>
        <location filename="../../pages/UIWPPage.cpp" line="+90"/>
        <source>Standard</source>
        <translation>Standardowy</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Fisheye</source>
        <translation>Rybie oko</translation>
    </message>
    <message>
        <location line="+76"/>
        <source>All Files (*.*)</source>
        <translation>Wszystkie pliki (*.*)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Select images</source>
        <translation>Wybierz zdjęcia</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2Class</name>
    <message>
        <location filename="../../pages/UIWPVRDrive2.ui" line="+20"/>
        <source>VR Drive II import plugin</source>
        <translation>Wtyczka importu VR Drive II</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>VR Drive 2</source>
        <translation>VR Drive 2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The &lt;a href=&quot;https://zelmo.example/panohead/heads/vrdrive2&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;VR Drive 2&lt;/span&gt;&lt;/a&gt; motorized panoramic head writes its shooting as an XML preset; its bracketed shots become HDR-ready stacks.</source>
        <translation>Zmotoryzowana głowica &lt;a href=&quot;https://zelmo.example/panohead/heads/vrdrive2&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;VR Drive 2&lt;/span&gt;&lt;/a&gt; zapisuje sesję jako ustawienie XML; serie z bracketingiem stają się stosami gotowymi do HDR.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>Ogólne</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Images:</source>
        <translation>Zdjęcia:</translation>
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
        <translation>Liczba zdjęć:</translation>
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
        <translation>b.d.</translation>
    </message>
    <message>
        <location line="-114"/>
        <source>Image focal:</source>
        <translation>Ogniskowa zdjęć:</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>XML:</source>
        <translation>XML:</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Reset</source>
        <translation>Resetuj</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Yaw:</source>
        <translation>Odchylenie:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Pitch:</source>
        <translation>Pochylenie:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Bracketing:</source>
        <translation>Bracketing:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>XML focal:</source>
        <translation>Ogniskowa XML:</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Output:</source>
        <translation>Wyjście:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8/16 bitów, tonemapping</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>32-bits HDR radiance</source>
        <translation>32 bity HDR Radiance</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Shoot setup</source>
        <translation>Ustawienia ujęć</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Inverse Y coordinates</source>
        <translation>Odwróć współrzędne Y</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>Focal length:</source>
        <translation>Ogniskowa:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Lens Type:</source>
        <translation>Typ obiektywu:</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Use XML information</source>
        <translation>Użyj danych z XML</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use image information</source>
        <translation>Użyj danych ze zdjęć</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Stack</source>
        <translation>Stos</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>Wykrywaj połączenia w:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>poziomie odniesienia</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>wszystkich poziomach stosu</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>W obrębie stosu:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>Użyj stałych połączeń</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>Wykrywaj punkty kontrolne</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>Opcje wykrywania</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>Automatyczne wykrywanie</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>Usuń błędne połączenia</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>Pomiń optymalizację</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use recorded location</source>
        <translation>Użyj zapisanego położenia</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>Podgląd</translation>
    </message>
    <message>
        <location line="+25"/>
        <source>Zoom</source>
        <translation>Powiększenie</translation>
    </message>
</context>
<context>
    <name>UIWPXmlPage</name>
    <message>
        <location filename="../../pages/UIWPXmlPage.cpp" line="+102"/>
        <source>All Files (*.*)</source>
        <translation>Wszystkie pliki (*.*)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Select the preset file and/or images</source>
        <translation>Wybierz plik ustawień i/lub zdjęcia</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>Wszystkie pliki (*.*);;Pliki XML (*.xml)</translation>
    </message>
    <message>
        <location line="+154"/>
        <location line="+2"/>
        <location line="+3"/>
        <location line="+2"/>
        <location line="+5"/>
        <location line="+4"/>
        <source>N/A</source>
        <translation>b.d.</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>XML używa bracketingu: liczba zdjęć powinna być wielokrotnością tej liczby</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Not the same as in XML fil</source>
        <translation>Nie zgadza się z plikiem XML</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Focal Length difference between EXIF and XML</source>
        <translation>Różnica ogniskowej między EXIF a XML</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Focal length difference between EXIF and XML</source>
        <translation>Różnica ogniskowej między EXIF a XML</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Lens type difference between EXIF and XML</source>
        <translation>Różnica typu obiektywu między EXIF a XML</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Warning</source>
        <translation>Ostrzeżenie</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>XML Papywizard zawiera bracketing, a liczba zdjęć nie jest wielokrotnością liczby ujęć w serii.</translation>
    </message>
</context>
<context>
    <name>ZClaussImport</name>
    <message>
        <location filename="../ZImportDescriptor.h" line="+28"/>
        <source>Clauss Rodeon import plugin</source>
        <translation>Wtyczka importu Clauss Rodeon</translation>
    </message>
</context>
<context>
    <name>ZGigapanImport</name>
    <message>
        <location line="+9"/>
        <source>Gigapan import plugin</source>
        <translation>Wtyczka importu Gigapan</translation>
    </message>
</context>
<context>
    <name>ZMerlinImport</name>
    <message>
        <location line="+9"/>
        <source>Papywizard XML import plugin</source>
        <translation>Wtyczka importu XML Papywizard</translation>
    </message>
</context>
<context>
    <name>ZVRDrive2Import</name>
    <message>
        <location line="+9"/>
        <source>VRDrive2 XML import plugin</source>
        <translation>Wtyczka importu XML VRDrive2</translation>
    </message>
</context>
</TS>
