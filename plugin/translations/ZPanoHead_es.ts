<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es_ES">
<context>
    <name>Library</name>
    <message>
        <location filename="../Library.cpp" line="+83"/>
        <source>Comment</source>
        <translation>Comentario</translation>
    </message>
</context>
<context>
    <name>UIWPClauss</name>
    <message>
        <location filename="../../pages/UIWPClauss.cpp" line="+81"/>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Error parse file:%1</source>
        <translation>Error al analizar el archivo: %1</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Select the preset file and/or images</source>
        <translation>Seleccionar el archivo de preajuste y/o las imágenes</translation>
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
        <translation>Cabezal panorámico Clauss</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Clauss panohead import</source>
        <translation>Importación desde un cabezal panorámico Clauss</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/clauss&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Clauss&lt;/span&gt;&lt;/a&gt; provides special equipment for panoramic photography and VR applications.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/clauss&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Clauss&lt;/span&gt;&lt;/a&gt; ofrece equipos especiales para fotografía panorámica y aplicaciones de realidad virtual.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Script file:</source>
        <translation>Archivo de script:</translation>
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
        <translation>Restablecer</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Number of shoot:</source>
        <translation>Número de tomas:</translation>
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
        <translation>Invertir coordenadas Y</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Images:</source>
        <translation>Imágenes:</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Number of image:</source>
        <translation>N.º de imágenes:</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>Detección automática</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>Eliminar enlaces erróneos</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>Omitir la optimización</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Guided optimization</source>
        <translation>Optimización guiada</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>Vista previa</translation>
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
        <translation>imágenes en </translation>
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
        <translation>Importación de panorama Gigapan</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/gigapan&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Gigapan&lt;/span&gt;&lt;/a&gt; allows users to upload, share, and explore brilliant gigapixel+ panoramas from around the globe.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/gigapan&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Gigapan&lt;/span&gt;&lt;/a&gt; permite subir, compartir y explorar magníficos panoramas de más de un gigapíxel de todo el mundo.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Images :</source>
        <translation>Imágenes:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <location line="+9"/>
        <source># Images in</source>
        <translation># imágenes en</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>rows and</source>
        <translation>filas y</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>columns.</source>
        <translation>columnas.</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Ignore N files </source>
        <translation>Ignorar N archivos </translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Nb image per location ( bracketing )</source>
        <translation>N.º de imágenes por posición (horquillado)</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Shoot layout</source>
        <translation>Disposición de las tomas</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Columns: to left</source>
        <translation>Columnas: hacia la izquierda</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Columns (default)</source>
        <translation>Columnas (predeterminado)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Rows: upward</source>
        <translation>Filas: hacia arriba</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Rows: downward</source>
        <translation>Filas: hacia abajo</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Layout</source>
        <translation>Disposición</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Shoot setup</source>
        <translation>Toma</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Force 360° panorama</source>
        <translation>Forzar un panorama de 360°</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Overlapping</source>
        <translation>Solapamiento</translation>
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
        <translation>Detectar enlaces en:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>el nivel de referencia</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>todos los niveles de la pila</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>Para una pila:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>Usar enlaces fijos</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>Detectar puntos de control</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>Opciones de detección</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>Detección automática</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Clean wrong link</source>
        <translation>Eliminar enlaces erróneos</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>Omitir la optimización</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>Vista previa</translation>
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
        <translation>Papywizard, software de control de cabezales panorámicos</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Papywizard import</source>
        <translation>Importación de Papywizard</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/papywizard&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Papywizard&lt;/span&gt;&lt;/a&gt; is a free project to drive Merlin/Orion panorama heads. The XML file format is open and used by a wide range of motorized panorama heads.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/papywizard&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Papywizard&lt;/span&gt;&lt;/a&gt; es un proyecto libre para controlar cabezales Merlin/Orion. Su formato XML abierto lo usan muchos cabezales motorizados.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>General</translation>
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
        <translation>Restablecer</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+125"/>
        <source>Number of images:</source>
        <translation>N.º de imágenes:</translation>
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
        <translation>Guiñada:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Pitch:</source>
        <translation>Cabeceo:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Bracketing:</source>
        <translation>Horquillado:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>XML focal:</source>
        <translation>Focal del XML:</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Images:</source>
        <translation>Imágenes:</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Image focal:</source>
        <translation>Focal imágenes:</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Shoot setup</source>
        <translation>Toma</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Inverse Y coordinates</source>
        <translation>Invertir coordenadas Y</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>Focal length:</source>
        <translation>Distancia focal:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Lens Type:</source>
        <translation>Tipo de objetivo:</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Use XML information</source>
        <translation>Usar la información del XML</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use image information</source>
        <translation>Usar la información de las imágenes</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Stack</source>
        <translation>Pila</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>Detectar enlaces en:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>el nivel de referencia</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>todos los niveles de la pila</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>Para una pila:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>Usar enlaces fijos</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>Detectar puntos de control</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>Opciones de detección</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>Detección automática</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>Eliminar enlaces erróneos</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>Omitir la optimización</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use recorded location</source>
        <translation>Usar la posición registrada</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Header details</source>
        <translation>Detalles del encabezado</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Title:</source>
        <translation>Título:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>GPS:</source>
        <translation>GPS:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Comment:</source>
        <translation>Comentario:</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Preview</source>
        <translation>Vista previa</translation>
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
        <translation>Estándar</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Fisheye</source>
        <translation>Ojo de pez</translation>
    </message>
    <message>
        <location line="+76"/>
        <source>All Files (*.*)</source>
        <translation>Todos los archivos (*.*)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Select images</source>
        <translation>Seleccionar imágenes</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2Class</name>
    <message>
        <location filename="../../pages/UIWPVRDrive2.ui" line="+20"/>
        <source>VR Drive II import plugin</source>
        <translation>Complemento de importación VR Drive II</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>VR Drive 2</source>
        <translation>VR Drive 2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The &lt;a href=&quot;https://zelmo.example/panohead/heads/vrdrive2&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;VR Drive 2&lt;/span&gt;&lt;/a&gt; motorized panoramic head writes its shooting as an XML preset; its bracketed shots become HDR-ready stacks.</source>
        <translation>El cabezal motorizado &lt;a href=&quot;https://zelmo.example/panohead/heads/vrdrive2&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;VR Drive 2&lt;/span&gt;&lt;/a&gt; guarda la toma como preajuste XML; sus series con horquillado se convierten en pilas listas para HDR.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Images:</source>
        <translation>Imágenes:</translation>
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
        <translation>N.º de imágenes:</translation>
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
        <translation>Focal imágenes:</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>XML:</source>
        <translation>XML:</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Reset</source>
        <translation>Restablecer</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Yaw:</source>
        <translation>Guiñada:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Pitch:</source>
        <translation>Cabeceo:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Bracketing:</source>
        <translation>Horquillado:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>XML focal:</source>
        <translation>Focal del XML:</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Output:</source>
        <translation>Salida:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8/16 bits, mapeo tonal</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>32-bits HDR radiance</source>
        <translation>32 bits HDR Radiance</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>TextLabel</source>
        <translation>TextLabel</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Shoot setup</source>
        <translation>Toma</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Inverse Y coordinates</source>
        <translation>Invertir coordenadas Y</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>Focal length:</source>
        <translation>Distancia focal:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Lens Type:</source>
        <translation>Tipo de objetivo:</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Use XML information</source>
        <translation>Usar la información del XML</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use image information</source>
        <translation>Usar la información de las imágenes</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Stack</source>
        <translation>Pila</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>Detectar enlaces en:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>el nivel de referencia</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>todos los niveles de la pila</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>Para una pila:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>Usar enlaces fijos</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>Detectar puntos de control</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>Opciones de detección</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>Detección automática</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>Eliminar enlaces erróneos</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>Omitir la optimización</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use recorded location</source>
        <translation>Usar la posición registrada</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>Vista previa</translation>
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
        <translation>Todos los archivos (*.*)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Select the preset file and/or images</source>
        <translation>Seleccionar el archivo de preajuste y/o las imágenes</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>Todos los archivos (*.*);;Archivos XML (*.xml)</translation>
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
        <translation>El XML usa horquillado: el número de imágenes debería ser múltiplo de ese número</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Not the same as in XML fil</source>
        <translation>No coincide con el archivo XML</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Focal Length difference between EXIF and XML</source>
        <translation>Diferencia de distancia focal entre EXIF y XML</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Focal length difference between EXIF and XML</source>
        <translation>Diferencia de distancia focal entre EXIF y XML</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Lens type difference between EXIF and XML</source>
        <translation>Diferencia de tipo de objetivo entre EXIF y XML</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Warning</source>
        <translation>Advertencia</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>El XML de Papywizard tiene horquillado y el número de imágenes no es múltiplo del número de tomas por serie.</translation>
    </message>
</context>
<context>
    <name>ZClaussImport</name>
    <message>
        <location filename="../ZImportDescriptor.h" line="+28"/>
        <source>Clauss Rodeon import plugin</source>
        <translation>Complemento de importación Clauss Rodeon</translation>
    </message>
</context>
<context>
    <name>ZGigapanImport</name>
    <message>
        <location line="+9"/>
        <source>Gigapan import plugin</source>
        <translation>Complemento de importación Gigapan</translation>
    </message>
</context>
<context>
    <name>ZMerlinImport</name>
    <message>
        <location line="+9"/>
        <source>Papywizard XML import plugin</source>
        <translation>Complemento de importación XML de Papywizard</translation>
    </message>
</context>
<context>
    <name>ZVRDrive2Import</name>
    <message>
        <location line="+9"/>
        <source>VRDrive2 XML import plugin</source>
        <translation>Complemento de importación XML de VRDrive2</translation>
    </message>
</context>
</TS>
