<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>HostSettingsDialog</name>
    <message>
        <location filename="../HostSettingsDialog.cpp" line="+22"/>
        <source>Settings</source>
        <translation>Ajustes</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>found on PATH</source>
        <translation>se buscan en el PATH</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Folder of Hugin&apos;s programs</source>
        <translation>Carpeta de los programas de Hugin</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>The system&apos;s</source>
        <translation>Idioma del sistema</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>The language applies from the next start.</source>
        <translation>El idioma se aplica a partir del próximo inicio.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Hugin&apos;s programs:</source>
        <translation>Programas de Hugin:</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Language:</source>
        <translation>Idioma:</translation>
    </message>
    <message>
        <location line="+49"/>
        <source>on PATH</source>
        <translation>en el PATH</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>in %1</source>
        <translation>en %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Not found %2: %1. On Debian and Ubuntu, Hugin&apos;s programs come with the packages %3 (sudo apt install %3).</source>
        <translation>No se encuentra %2: %1. En Debian y Ubuntu, los programas de Hugin vienen en los paquetes %3 (sudo apt install %3).</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Every program the stitch needs is found.</source>
        <translation>Se encuentran todos los programas que necesita el cosido.</translation>
    </message>
</context>
<context>
    <name>ImportResultPage</name>
    <message>
        <location filename="../ImportResultPage.cpp" line="+39"/>
        <source>yes</source>
        <translation>sí</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>no</source>
        <translation>no</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Cannot read %1.</source>
        <translation>No se puede leer %1.</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Imported panorama</source>
        <translation>Panorama importado</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>What the plug-in handed over: the stacks of photographs, their positions and the links along which control points will be looked for.</source>
        <translation>Lo que entregó el complemento: las pilas de fotografías, sus posiciones y los enlaces a lo largo de los cuales se buscarán puntos de control.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Layout</source>
        <translation>Disposición</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Panorama</source>
        <translation>Panorama</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Save project...</source>
        <translation>Guardar proyecto...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Saves the Hugin project and its description (.json), which the stitch needs.</source>
        <translation>Guarda el proyecto de Hugin y su descripción (.json), que necesita el cosido.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save layout picture...</source>
        <translation>Guardar imagen de la disposición...</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Stitch panorama...</source>
        <translation>Coser panorama...</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>&lt;p&gt;The plug-in handed nothing over.&lt;/p&gt;</source>
        <translation>&lt;p&gt;El complemento no entregó nada.&lt;/p&gt;</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>columns</source>
        <translation>columnas</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>rows downward</source>
        <translation>filas hacia abajo</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>rows upward</source>
        <translation>filas hacia arriba</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>columns to the left</source>
        <translation>columnas hacia la izquierda</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>serpentine</source>
        <translation>serpentina</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>order %1</source>
        <translation>orden %1</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>no direction</source>
        <translation>sin dirección</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>below</source>
        <translation>abajo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>right</source>
        <translation>derecha</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>below right</source>
        <translation>abajo a la derecha</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>above right</source>
        <translation>arriba a la derecha</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>direction %1</source>
        <translation>dirección %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Standard</source>
        <translation>Estándar</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Fisheye</source>
        <translation>Ojo de pez</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>not known</source>
        <translation>desconocido</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>not set</source>
        <translation>sin definir</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+6"/>
        <source>from the photographs</source>
        <translation>de las fotografías</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+6"/>
        <source>from the record</source>
        <translation>del registro</translation>
    </message>
    <message>
        <location line="-4"/>
        <source>%1 mm (%2)</source>
        <translation>%1 mm (%2)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>not known: neither the record nor the photographs give one</source>
        <translation>desconocida: ni el registro ni las fotografías la indican</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8 bits / 16 bits con mapeo tonal</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>32-bits HDR radiance</source>
        <translation>radiancia HDR de 32 bits</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>not chosen</source>
        <translation>sin elegir</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Plug-in</source>
        <translation>Complemento</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stacks</source>
        <translation>Pilas</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Images</source>
        <translation>Imágenes</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (%2 per stack)</source>
        <translation>%1 (%2 por pila)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (%2 to %3 per stack)</source>
        <translation>%1 (de %2 a %3 por pila)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shots with angles</source>
        <translation>Tomas con ángulos</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Links</source>
        <translation>Enlaces</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>none (no restriction)</source>
        <translation>ninguno (sin restricción)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Focal length</source>
        <translation>Distancia focal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Lens</source>
        <translation>Objetivo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Auto detection</source>
        <translation>Detección automática</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>For a stack</source>
        <translation>Para una pila</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Detect control points</source>
        <translation>Detectar puntos de control</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Use hard links</source>
        <translation>Usar enlaces fijos</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Detect links in</source>
        <translation>Detectar enlaces en</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All stack levels</source>
        <translation>Todos los niveles de la pila</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The reference level</source>
        <translation>El nivel de referencia</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Use recorded location</source>
        <translation>Usar la posición registrada</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Skip optimization</source>
        <translation>Omitir la optimización</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Clean wrong link</source>
        <translation>Limpiar enlace erróneo</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Overlap</source>
        <translation>Solapamiento</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Output</source>
        <translation>Salida</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Grid</source>
        <translation>Cuadrícula</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 rows, shot by %2, %3 per stack%4</source>
        <translation>%1 filas, tomadas por %2, %3 por pila%4</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>, full 360°</source>
        <translation>, 360° completos</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stacks, reference image first</source>
        <translation>Pilas, imagen de referencia primero</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <location line="+16"/>
        <location line="+100"/>
        <source>Nothing was imported.</source>
        <translation>No se importó nada.</translation>
    </message>
    <message>
        <location line="-50"/>
        <location line="+8"/>
        <source>Save project</source>
        <translation>Guardar proyecto</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>Hugin projects (*.pto)</source>
        <translation>Proyectos de Hugin (*.pto)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Saved %1 and its description</source>
        <translation>Se guardó %1 y su descripción</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+8"/>
        <source>Save layout picture</source>
        <translation>Guardar imagen de la disposición</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>PNG pictures (*.png)</source>
        <translation>Imágenes PNG (*.png)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Saved %1</source>
        <translation>Se guardó %1</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>A stitch is running.</source>
        <translation>Hay un cosido en curso.</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Stitching %1</source>
        <translation>Cosiendo %1</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>JPEG pictures (*.jpg)</source>
        <translation>Imágenes JPEG (*.jpg)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>TIFF pictures (*.tif)</source>
        <translation>Imágenes TIFF (*.tif)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>OpenEXR HDR pictures (*.exr)</source>
        <translation>Imágenes HDR OpenEXR (*.exr)</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+11"/>
        <location line="+43"/>
        <source>Stitch panorama</source>
        <translation>Coser panorama</translation>
    </message>
    <message>
        <location line="-20"/>
        <source>Stitched %1 in %2 s</source>
        <translation>%1 cosido en %2 s</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The stitch was cancelled; no panorama was written.</source>
        <translation>Se canceló el cosido; no se escribió ningún panorama.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The stitch failed.</source>
        <translation>El cosido falló.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The step &quot;%1&quot; (%2) failed:
%3</source>
        <translation>El paso «%1» (%2) falló:
%3</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The stitch could not start:
%1</source>
        <translation>No se pudo iniciar el cosido:
%1</translation>
    </message>
</context>
<context>
    <name>ImportWizard</name>
    <message>
        <location filename="../ImportWizard.cpp" line="+23"/>
        <source>panohead: import a panorama</source>
        <translation>panohead: importar un panorama</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Settings...</source>
        <translation>Ajustes...</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>%1 %2 by %3, loaded from %4</source>
        <translation>%1 %2 de %3, cargado desde %4</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Unsaved import</source>
        <translation>Importación sin guardar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The imported panorama was neither saved nor stitched. Save its project first?</source>
        <translation>El panorama importado no se ha guardado ni cosido. ¿Guardar antes su proyecto?</translation>
    </message>
</context>
<context>
    <name>PanoramaLayoutView</name>
    <message>
        <location filename="../PanoramaLayoutView.cpp" line="+134"/>
        <source>No positions to draw</source>
        <translation>No hay posiciones que dibujar</translation>
    </message>
    <message>
        <location line="+78"/>
        <source>below</source>
        <translation>abajo</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>right</source>
        <translation>derecha</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>diagonal</source>
        <translation>diagonal</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>no direction</source>
        <translation>sin dirección</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>yaw →, pitch ↑ (degrees)</source>
        <translation>guiñada →, cabeceo ↑ (grados)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>grid: columns →, rows ↓</source>
        <translation>cuadrícula: columnas →, filas ↓</translation>
    </message>
</context>
<context>
    <name>PanoramaPreview</name>
    <message>
        <location filename="../PanoramaPreview.cpp" line="+26"/>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Show in folder</source>
        <translation>Mostrar en la carpeta</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>%1: %2 × %3 pixels</source>
        <translation>%1: %2 × %3 píxeles</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stitched Hugin project: %1</source>
        <translation>Proyecto de Hugin cosido: %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The panorama cannot be shown here; open it with &quot;Open&quot;.</source>
        <translation>El panorama no se puede mostrar aquí; ábralo con «Abrir».</translation>
    </message>
</context>
<context>
    <name>PluginChoicePage</name>
    <message>
        <location filename="../PluginChoicePage.cpp" line="+17"/>
        <source>Choose the panoramic head</source>
        <translation>Elija el cabezal panorámico</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Choose the import plug-in for the head, or the program, that recorded your panorama. Its page comes next.</source>
        <translation>Elija el complemento de importación del cabezal, o del programa, que registró su panorama. Su página viene a continuación.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Plug-in</source>
        <translation>Complemento</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Version</source>
        <translation>Versión</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Description</source>
        <translation>Descripción</translation>
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
        <translation>%1 no es un complemento de Qt: %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 is a plug-in for &quot;%2&quot;, not a ZPanoHead library</source>
        <translation>%1 es un complemento para «%2», no una biblioteca ZPanoHead</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 declares the root class &quot;%2&quot; instead of &quot;%3&quot;</source>
        <translation>%1 declara la clase raíz «%2» en lugar de «%3»</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>No ZPanoHead plug-in library was found in:
%1</source>
        <translation>No se encontró ninguna biblioteca de complementos ZPanoHead en:
%1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Build the ZPanoHead target, or name its folder with --plugin-dir.</source>
        <translation>Compile el objetivo ZPanoHead o indique su carpeta con --plugin-dir.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Cannot load %1: %2</source>
        <translation>No se puede cargar %1: %2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 does not offer the plug-in library interfaces</source>
        <translation>%1 no ofrece las interfaces de la biblioteca de complementos</translation>
    </message>
</context>
<context>
    <name>StitchPipeline</name>
    <message>
        <location filename="../../stitch/StitchPipeline.cpp" line="+361"/>
        <source>Finding control points</source>
        <translation>Buscando puntos de control</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Removing points between positions that do not meet</source>
        <translation>Quitando puntos entre posiciones que no se tocan</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Removing wrong points</source>
        <translation>Quitando puntos erróneos</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Placing the pictures</source>
        <translation>Colocando las imágenes</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Choosing canvas and crop</source>
        <translation>Eligiendo lienzo y recorte</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Remapping</source>
        <translation>Reproyectando</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Blending</source>
        <translation>Fusionando</translation>
    </message>
</context>
<context>
    <name>StitchProgressWidget</name>
    <message>
        <location filename="../StitchProgressWidget.cpp" line="+21"/>
        <source>Cancel stitch</source>
        <translation>Cancelar cosido</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Stopping...</source>
        <translation>Deteniendo...</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Checking the project...</source>
        <translation>Comprobando el proyecto...</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Step %1 of %2: %3</source>
        <translation>Paso %1 de %2: %3</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>%1 %2 of %3</source>
        <translation>%1: %2 de %3</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>%1:%2</source>
        <translation>%1:%2</translation>
    </message>
</context>
</TS>
