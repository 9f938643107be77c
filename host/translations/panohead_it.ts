<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>HostSettingsDialog</name>
    <message>
        <location filename="../HostSettingsDialog.cpp" line="+22"/>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>found on PATH</source>
        <translation>cercati nel PATH</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Browse...</source>
        <translation>Sfoglia...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Folder of Hugin&apos;s programs</source>
        <translation>Cartella dei programmi di Hugin</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>The system&apos;s</source>
        <translation>Lingua di sistema</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>The language applies from the next start.</source>
        <translation>La lingua si applica dal prossimo avvio.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Hugin&apos;s programs:</source>
        <translation>Programmi di Hugin:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Language:</source>
        <translation>Lingua:</translation>
    </message>
    <message>
        <location line="+49"/>
        <source>on PATH</source>
        <translation>nel PATH</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>in %1</source>
        <translation>in %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Not found %2: %1. On Debian and Ubuntu, Hugin&apos;s programs come with the packages %3 (sudo apt install %3).</source>
        <translation>Non trovato %2: %1. Su Debian e Ubuntu i programmi di Hugin si trovano nei pacchetti %3 (sudo apt install %3).</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Every program the stitch needs is found.</source>
        <translation>Tutti i programmi necessari all&apos;unione sono stati trovati.</translation>
    </message>
</context>
<context>
    <name>ImportResultPage</name>
    <message>
        <location filename="../ImportResultPage.cpp" line="+39"/>
        <source>yes</source>
        <translation>sì</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Cannot read %1.</source>
        <translation>Impossibile leggere %1.</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Imported panorama</source>
        <translation>Panorama importato</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>What the plug-in handed over: the stacks of photographs, their positions and the links along which control points will be looked for.</source>
        <translation>Ciò che il plug-in ha consegnato: le pile di fotografie, le loro posizioni e i collegamenti lungo i quali verranno cercati i punti di controllo.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Layout</source>
        <translation>Disposizione</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Panorama</source>
        <translation>Panorama</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Save project...</source>
        <translation>Salva progetto...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Saves the Hugin project and its description (.json), which the stitch needs.</source>
        <translation>Salva il progetto Hugin e la sua descrizione (.json), necessaria all&apos;unione.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save layout picture...</source>
        <translation>Salva immagine della disposizione...</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Stitch panorama...</source>
        <translation>Unisci panorama...</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>&lt;p&gt;The plug-in handed nothing over.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Il plug-in non ha consegnato nulla.&lt;/p&gt;</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>columns</source>
        <translation>colonne</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>rows downward</source>
        <translation>righe verso il basso</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>rows upward</source>
        <translation>righe verso l&apos;alto</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>columns to the left</source>
        <translation>colonne verso sinistra</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>serpentine</source>
        <translation>serpentina</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>order %1</source>
        <translation>ordine %1</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>no direction</source>
        <translation>nessuna direzione</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>below</source>
        <translation>sotto</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>right</source>
        <translation>destra</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>below right</source>
        <translation>in basso a destra</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>above right</source>
        <translation>in alto a destra</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>direction %1</source>
        <translation>direzione %1</translation>
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
        <translation>sconosciuto</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>not set</source>
        <translation>non impostata</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+6"/>
        <source>from the photographs</source>
        <translation>dalle fotografie</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+6"/>
        <source>from the record</source>
        <translation>dalla registrazione</translation>
    </message>
    <message>
        <location line="-4"/>
        <source>%1 mm (%2)</source>
        <translation>%1 mm (%2)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>not known: neither the record nor the photographs give one</source>
        <translation>sconosciuta: né la registrazione né le fotografie la indicano</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8 bit / 16 bit con tone mapping</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>32-bits HDR radiance</source>
        <translation>radianza HDR a 32 bit</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>not chosen</source>
        <translation>non scelto</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Plug-in</source>
        <translation>Plug-in</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stacks</source>
        <translation>Pile</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Images</source>
        <translation>Immagini</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (%2 per stack)</source>
        <translation>%1 (%2 per pila)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (%2 to %3 per stack)</source>
        <translation>%1 (da %2 a %3 per pila)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shots with angles</source>
        <translation>Scatti con angoli</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Links</source>
        <translation>Collegamenti</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>none (no restriction)</source>
        <translation>nessuno (nessuna restrizione)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Focal length</source>
        <translation>Lunghezza focale</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Lens</source>
        <translation>Obiettivo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Auto detection</source>
        <translation>Rilevamento automatico</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>For a stack</source>
        <translation>Per una pila</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Detect control points</source>
        <translation>Rileva punti di controllo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Use hard links</source>
        <translation>Usa collegamenti fissi</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Detect links in</source>
        <translation>Rileva collegamenti in</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All stack levels</source>
        <translation>Tutti i livelli della pila</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The reference level</source>
        <translation>Il livello di riferimento</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Use recorded location</source>
        <translation>Usa la posizione registrata</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Skip optimization</source>
        <translation>Salta l&apos;ottimizzazione</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Clean wrong link</source>
        <translation>Pulisci collegamento errato</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Overlap</source>
        <translation>Sovrapposizione</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Output</source>
        <translation>Uscita</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Grid</source>
        <translation>Griglia</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 rows, shot by %2, %3 per stack%4</source>
        <translation>%1 righe, scattate per %2, %3 per pila%4</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>, full 360°</source>
        <translation>, 360° completi</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stacks, reference image first</source>
        <translation>Pile, immagine di riferimento per prima</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>and %1 more</source>
        <translation>e altre %1</translation>
    </message>
    <message>
        <location line="+16"/>
        <location line="+100"/>
        <source>Nothing was imported.</source>
        <translation>Non è stato importato nulla.</translation>
    </message>
    <message>
        <location line="-50"/>
        <location line="+8"/>
        <source>Save project</source>
        <translation>Salva progetto</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>Hugin projects (*.pto)</source>
        <translation>Progetti Hugin (*.pto)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Saved %1 and its description</source>
        <translation>Salvati %1 e la sua descrizione</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+8"/>
        <source>Save layout picture</source>
        <translation>Salva immagine della disposizione</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>PNG pictures (*.png)</source>
        <translation>Immagini PNG (*.png)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Saved %1</source>
        <translation>Salvato %1</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>A stitch is running.</source>
        <translation>È in corso un&apos;unione.</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Stitching %1</source>
        <translation>Unione di %1</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>JPEG pictures (*.jpg)</source>
        <translation>Immagini JPEG (*.jpg)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>TIFF pictures (*.tif)</source>
        <translation>Immagini TIFF (*.tif)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>OpenEXR HDR pictures (*.exr)</source>
        <translation>Immagini HDR OpenEXR (*.exr)</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+11"/>
        <location line="+43"/>
        <source>Stitch panorama</source>
        <translation>Unisci panorama</translation>
    </message>
    <message>
        <location line="-20"/>
        <source>Stitched %1 in %2 s</source>
        <translation>%1 unito in %2 s</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The stitch was cancelled; no panorama was written.</source>
        <translation>L&apos;unione è stata annullata; nessun panorama è stato scritto.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The stitch failed.</source>
        <translation>L&apos;unione non è riuscita.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The step &quot;%1&quot; (%2) failed:
%3</source>
        <translation>Il passo «%1» (%2) non è riuscito:
%3</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The stitch could not start:
%1</source>
        <translation>Impossibile avviare l&apos;unione:
%1</translation>
    </message>
</context>
<context>
    <name>ImportWizard</name>
    <message>
        <location filename="../ImportWizard.cpp" line="+23"/>
        <source>panohead: import a panorama</source>
        <translation>panohead: importa un panorama</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Settings...</source>
        <translation>Impostazioni...</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>%1 %2 by %3, loaded from %4</source>
        <translation>%1 %2 di %3, caricato da %4</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Unsaved import</source>
        <translation>Importazione non salvata</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The imported panorama was neither saved nor stitched. Save its project first?</source>
        <translation>Il panorama importato non è stato né salvato né unito. Salvare prima il suo progetto?</translation>
    </message>
</context>
<context>
    <name>PanoramaLayoutView</name>
    <message>
        <location filename="../PanoramaLayoutView.cpp" line="+134"/>
        <source>No positions to draw</source>
        <translation>Nessuna posizione da disegnare</translation>
    </message>
    <message>
        <location line="+78"/>
        <source>below</source>
        <translation>sotto</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>right</source>
        <translation>destra</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>diagonal</source>
        <translation>diagonale</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>no direction</source>
        <translation>nessuna direzione</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>yaw →, pitch ↑ (degrees)</source>
        <translation>imbardata →, beccheggio ↑ (gradi)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>grid: columns →, rows ↓</source>
        <translation>griglia: colonne →, righe ↓</translation>
    </message>
</context>
<context>
    <name>PanoramaPreview</name>
    <message>
        <location filename="../PanoramaPreview.cpp" line="+26"/>
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Show in folder</source>
        <translation>Mostra nella cartella</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>%1: %2 × %3 pixels</source>
        <translation>%1: %2 × %3 pixel</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stitched Hugin project: %1</source>
        <translation>Progetto Hugin unito: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The panorama cannot be shown here; open it with &quot;Open&quot;.</source>
        <translation>Il panorama non può essere mostrato qui; aprilo con «Apri».</translation>
    </message>
</context>
<context>
    <name>PluginChoicePage</name>
    <message>
        <location filename="../PluginChoicePage.cpp" line="+17"/>
        <source>Choose the panoramic head</source>
        <translation>Scegli la testa panoramica</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Choose the import plug-in for the head, or the program, that recorded your panorama. Its page comes next.</source>
        <translation>Scegli il plug-in di importazione per la testa, o il programma, che ha registrato il panorama. La sua pagina segue.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Plug-in</source>
        <translation>Plug-in</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Version</source>
        <translation>Versione</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Description</source>
        <translation>Descrizione</translation>
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
        <translation>%1 non è un plug-in Qt: %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 is a plug-in for &quot;%2&quot;, not a ZPanoHead library</source>
        <translation>%1 è un plug-in per «%2», non una libreria ZPanoHead</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 declares the root class &quot;%2&quot; instead of &quot;%3&quot;</source>
        <translation>%1 dichiara la classe radice «%2» invece di «%3»</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>No ZPanoHead plug-in library was found in:
%1</source>
        <translation>Nessuna libreria di plug-in ZPanoHead trovata in:
%1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Build the ZPanoHead target, or name its folder with --plugin-dir.</source>
        <translation>Compila il target ZPanoHead, o indica la sua cartella con --plugin-dir.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Cannot load %1: %2</source>
        <translation>Impossibile caricare %1: %2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 does not offer the plug-in library interfaces</source>
        <translation>%1 non offre le interfacce della libreria di plug-in</translation>
    </message>
</context>
<context>
    <name>StitchPipeline</name>
    <message>
        <location filename="../../stitch/StitchPipeline.cpp" line="+361"/>
        <source>Finding control points</source>
        <translation>Ricerca dei punti di controllo</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Removing points between positions that do not meet</source>
        <translation>Rimozione dei punti tra posizioni che non si toccano</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Removing wrong points</source>
        <translation>Rimozione dei punti errati</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Placing the pictures</source>
        <translation>Posizionamento delle immagini</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Choosing canvas and crop</source>
        <translation>Scelta di tela e ritaglio</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Remapping</source>
        <translation>Riproiezione</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Blending</source>
        <translation>Fusione</translation>
    </message>
</context>
<context>
    <name>StitchProgressWidget</name>
    <message>
        <location filename="../StitchProgressWidget.cpp" line="+21"/>
        <source>Cancel stitch</source>
        <translation>Annulla unione</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Stopping...</source>
        <translation>Arresto...</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Checking the project...</source>
        <translation>Verifica del progetto...</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Step %1 of %2: %3</source>
        <translation>Passo %1 di %2: %3</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>%1 %2 of %3</source>
        <translation>%1: %2 di %3</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>%1:%2</source>
        <translation>%1:%2</translation>
    </message>
</context>
</TS>
