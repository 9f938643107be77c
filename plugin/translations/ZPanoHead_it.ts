<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it_IT">
<context>
    <name>Library</name>
    <message>
        <location filename="../Library.cpp" line="+83"/>
        <source>Comment</source>
        <translation>Commento</translation>
    </message>
</context>
<context>
    <name>UIWPClauss</name>
    <message>
        <location filename="../../pages/UIWPClauss.cpp" line="+81"/>
        <source>Error</source>
        <translation>Errore</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Error parse file:%1</source>
        <translation>Errore nell&apos;analisi del file: %1</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Select the preset file and/or images</source>
        <translation>Seleziona il file di preimpostazione e/o le immagini</translation>
    </message>
    <message>
        <location line="+30"/>
        <location line="+2"/>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
</context>
<context>
    <name>UIWPClaussClass</name>
    <message>
        <location filename="../../pages/UIWPClauss.ui" line="+20"/>
        <source>Clauss panohead</source>
        <translation>Testa panoramica Clauss</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Clauss panohead import</source>
        <translation>Importazione da testa panoramica Clauss</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/clauss&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Clauss&lt;/span&gt;&lt;/a&gt; provides special equipment for panoramic photography and VR applications.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/clauss&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Clauss&lt;/span&gt;&lt;/a&gt; offre attrezzature speciali per la fotografia panoramica e le applicazioni di realtà virtuale.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Script file:</source>
        <translation>File di script:</translation>
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
        <translation>Reimposta</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Number of shoot:</source>
        <translation>Numero di scatti:</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+35"/>
        <location line="+14"/>
        <location line="+48"/>
        <source>N/A</source>
        <translation>N/D</translation>
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
        <translation>Inverti coordinate Y</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Images:</source>
        <translation>Immagini:</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Number of image:</source>
        <translation>N. di immagini:</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>Rilevamento automatico</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>Rimuovi i collegamenti errati</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>Salta l&apos;ottimizzazione</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Guided optimization</source>
        <translation>Ottimizzazione guidata</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>Anteprima</translation>
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
        <translation>immagini in </translation>
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
        <translation>Importazione di panorami Gigapan</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/gigapan&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Gigapan&lt;/span&gt;&lt;/a&gt; allows users to upload, share, and explore brilliant gigapixel+ panoramas from around the globe.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/gigapan&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Gigapan&lt;/span&gt;&lt;/a&gt; permette di caricare, condividere ed esplorare splendidi panorami da oltre un gigapixel di tutto il mondo.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Images :</source>
        <translation>Immagini:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Reset</source>
        <translation>Reimposta</translation>
    </message>
    <message>
        <location line="+9"/>
        <source># Images in</source>
        <translation># immagini in</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>rows and</source>
        <translation>righe e</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>columns.</source>
        <translation>colonne.</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Ignore N files </source>
        <translation>Ignora N file </translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Nb image per location ( bracketing )</source>
        <translation>N. di immagini per posizione (bracketing)</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Shoot layout</source>
        <translation>Disposizione degli scatti</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Columns: to left</source>
        <translation>Colonne: verso sinistra</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Columns (default)</source>
        <translation>Colonne (predefinito)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Rows: upward</source>
        <translation>Righe: verso l&apos;alto</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Rows: downward</source>
        <translation>Righe: verso il basso</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Layout</source>
        <translation>Disposizione</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Shoot setup</source>
        <translation>Scatto</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Force 360° panorama</source>
        <translation>Forza un panorama a 360°</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Overlapping</source>
        <translation>Sovrapposizione</translation>
    </message>
    <message>
        <location line="+7"/>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Stack</source>
        <translation>Pila</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>Rileva collegamenti in:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>il livello di riferimento</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>tutti i livelli della pila</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>Per una pila:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>Usa collegamenti fissi</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>Rileva punti di controllo</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>Opzioni di rilevamento</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>Rilevamento automatico</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Clean wrong link</source>
        <translation>Rimuovi i collegamenti errati</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>Salta l&apos;ottimizzazione</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>Anteprima</translation>
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
        <translation>Papywizard, software di controllo per teste panoramiche</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Papywizard import</source>
        <translation>Importazione Papywizard</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/papywizard&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Papywizard&lt;/span&gt;&lt;/a&gt; is a free project to drive Merlin/Orion panorama heads. The XML file format is open and used by a wide range of motorized panorama heads.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/papywizard&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Papywizard&lt;/span&gt;&lt;/a&gt; è un progetto libero per pilotare le teste Merlin/Orion. Il suo formato XML aperto è usato da molte teste motorizzate.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>Generale</translation>
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
        <translation>Reimposta</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+125"/>
        <source>Number of images:</source>
        <translation>N. di immagini:</translation>
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
        <translation>N/D</translation>
    </message>
    <message>
        <location line="-111"/>
        <source>Yaw:</source>
        <translation>Imbardata:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Pitch:</source>
        <translation>Beccheggio:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Bracketing:</source>
        <translation>Bracketing:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>XML focal:</source>
        <translation>Focale XML:</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Images:</source>
        <translation>Immagini:</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Image focal:</source>
        <translation>Focale immagini:</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Shoot setup</source>
        <translation>Scatto</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Inverse Y coordinates</source>
        <translation>Inverti coordinate Y</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>Focal length:</source>
        <translation>Lunghezza focale:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Lens Type:</source>
        <translation>Tipo di obiettivo:</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Use XML information</source>
        <translation>Usa le informazioni XML</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use image information</source>
        <translation>Usa le informazioni delle immagini</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Stack</source>
        <translation>Pila</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>Rileva collegamenti in:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>il livello di riferimento</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>tutti i livelli della pila</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>Per una pila:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>Usa collegamenti fissi</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>Rileva punti di controllo</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>Opzioni di rilevamento</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>Rilevamento automatico</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>Rimuovi i collegamenti errati</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>Salta l&apos;ottimizzazione</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use recorded location</source>
        <translation>Usa la posizione registrata</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Header details</source>
        <translation>Dettagli dell&apos;intestazione</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Title:</source>
        <translation>Titolo:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>GPS:</source>
        <translation>GPS:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Comment:</source>
        <translation>Commento:</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Preview</source>
        <translation>Anteprima</translation>
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
        <translation>Standard</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Fisheye</source>
        <translation>Occhio di pesce</translation>
    </message>
    <message>
        <location line="+76"/>
        <source>All Files (*.*)</source>
        <translation>Tutti i file (*.*)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Select images</source>
        <translation>Seleziona le immagini</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2Class</name>
    <message>
        <location filename="../../pages/UIWPVRDrive2.ui" line="+20"/>
        <source>VR Drive II import plugin</source>
        <translation>Plugin di importazione VR Drive II</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>VR Drive 2</source>
        <translation>VR Drive 2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The &lt;a href=&quot;https://zelmo.example/panohead/heads/vrdrive2&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;VR Drive 2&lt;/span&gt;&lt;/a&gt; motorized panoramic head writes its shooting as an XML preset; its bracketed shots become HDR-ready stacks.</source>
        <translation>La testa motorizzata &lt;a href=&quot;https://zelmo.example/panohead/heads/vrdrive2&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;VR Drive 2&lt;/span&gt;&lt;/a&gt; salva lo scatto come preimpostazione XML; le serie in bracketing diventano pile pronte per l&apos;HDR.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>Generale</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Images:</source>
        <translation>Immagini:</translation>
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
        <translation>N. di immagini:</translation>
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
        <translation>N/D</translation>
    </message>
    <message>
        <location line="-114"/>
        <source>Image focal:</source>
        <translation>Focale immagini:</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>XML:</source>
        <translation>XML:</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Reset</source>
        <translation>Reimposta</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Yaw:</source>
        <translation>Imbardata:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Pitch:</source>
        <translation>Beccheggio:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Bracketing:</source>
        <translation>Bracketing:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>XML focal:</source>
        <translation>Focale XML:</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Output:</source>
        <translation>Uscita:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8/16 bit, tone mapping</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>32-bits HDR radiance</source>
        <translation>32 bit HDR Radiance</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Shoot setup</source>
        <translation>Scatto</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Inverse Y coordinates</source>
        <translation>Inverti coordinate Y</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>Focal length:</source>
        <translation>Lunghezza focale:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Lens Type:</source>
        <translation>Tipo di obiettivo:</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Use XML information</source>
        <translation>Usa le informazioni XML</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use image information</source>
        <translation>Usa le informazioni delle immagini</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Stack</source>
        <translation>Pila</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>Rileva collegamenti in:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>il livello di riferimento</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>tutti i livelli della pila</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>Per una pila:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>Usa collegamenti fissi</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>Rileva punti di controllo</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>Opzioni di rilevamento</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>Rilevamento automatico</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>Rimuovi i collegamenti errati</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>Salta l&apos;ottimizzazione</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use recorded location</source>
        <translation>Usa la posizione registrata</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>Anteprima</translation>
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
        <translation>Tutti i file (*.*)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Select the preset file and/or images</source>
        <translation>Seleziona il file di preimpostazione e/o le immagini</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>Tutti i file (*.*);;File XML (*.xml)</translation>
    </message>
    <message>
        <location line="+154"/>
        <location line="+2"/>
        <location line="+3"/>
        <location line="+2"/>
        <location line="+5"/>
        <location line="+4"/>
        <source>N/A</source>
        <translation>N/D</translation>
    </message>
    <message>
        <location line="+9"/>
        <source>Bracketing used in XML, should be multiple of that number</source>
        <translation>L&apos;XML usa il bracketing: il numero di immagini dovrebbe esserne un multiplo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Not the same as in XML fil</source>
        <translation>Non corrisponde al file XML</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Focal Length difference between EXIF and XML</source>
        <translation>Differenza di lunghezza focale tra EXIF e XML</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Focal length difference between EXIF and XML</source>
        <translation>Differenza di lunghezza focale tra EXIF e XML</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Lens type difference between EXIF and XML</source>
        <translation>Differenza di tipo di obiettivo tra EXIF e XML</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Warning</source>
        <translation>Avviso</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>L&apos;XML di Papywizard contiene il bracketing e il numero di immagini non è un multiplo del numero di scatti per serie.</translation>
    </message>
</context>
<context>
    <name>ZClaussImport</name>
    <message>
        <location filename="../ZImportDescriptor.h" line="+28"/>
        <source>Clauss Rodeon import plugin</source>
        <translation>Plugin di importazione Clauss Rodeon</translation>
    </message>
</context>
<context>
    <name>ZGigapanImport</name>
    <message>
        <location line="+9"/>
        <source>Gigapan import plugin</source>
        <translation>Plugin di importazione Gigapan</translation>
    </message>
</context>
<context>
    <name>ZMerlinImport</name>
    <message>
        <location line="+9"/>
        <source>Papywizard XML import plugin</source>
        <translation>Plugin di importazione XML Papywizard</translation>
    </message>
</context>
<context>
    <name>ZVRDrive2Import</name>
    <message>
        <location line="+9"/>
        <source>VRDrive2 XML import plugin</source>
        <translation>Plugin di importazione XML VRDrive2</translation>
    </message>
</context>
</TS>
