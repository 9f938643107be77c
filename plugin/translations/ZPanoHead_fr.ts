<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr_FR">
<context>
    <name>Library</name>
    <message>
        <location filename="../Library.cpp" line="+83"/>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
</context>
<context>
    <name>UIWPClauss</name>
    <message>
        <location filename="../../pages/UIWPClauss.cpp" line="+81"/>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Error parse file:%1</source>
        <translation>Erreur d&apos;analyse du fichier&#xa0;: %1</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Select the preset file and/or images</source>
        <translation>Sélectionner le fichier de préréglage et/ou les images</translation>
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
        <translation>Tête panoramique Clauss</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Clauss panohead import</source>
        <translation>Importation depuis une tête panoramique Clauss</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/clauss&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Clauss&lt;/span&gt;&lt;/a&gt; provides special equipment for panoramic photography and VR applications.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/clauss&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Clauss&lt;/span&gt;&lt;/a&gt; propose du matériel spécialisé pour la photographie panoramique et les applications de réalité virtuelle.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Script file:</source>
        <translation>Fichier de script&#xa0;:</translation>
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
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Number of shoot:</source>
        <translation>Nombre de prises de vue&#xa0;:</translation>
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
        <translation>Thêta&#xa0;:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Phi:</source>
        <translation>Phi&#xa0;:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Inverse Y coordinates</source>
        <translation>Inverser les coordonnées Y</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Images:</source>
        <translation>Images&#xa0;:</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Number of image:</source>
        <translation>Nb d&apos;images&#xa0;:</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>Détection automatique</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>Supprimer les liens erronés</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>Ignorer l&apos;optimisation</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Guided optimization</source>
        <translation>Optimisation guidée</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>Aperçu</translation>
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
        <translation>images en </translation>
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
        <translation>Importation de panorama Gigapan</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/gigapan&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Gigapan&lt;/span&gt;&lt;/a&gt; allows users to upload, share, and explore brilliant gigapixel+ panoramas from around the globe.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/gigapan&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Gigapan&lt;/span&gt;&lt;/a&gt; permet de publier, de partager et d&apos;explorer de superbes panoramas de plus d&apos;un gigapixel venus du monde entier.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Images :</source>
        <translation>Images&#xa0;:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>...</source>
        <translation>...</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <location line="+9"/>
        <source># Images in</source>
        <translation># images en</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>rows and</source>
        <translation>lignes et</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>columns.</source>
        <translation>colonnes.</translation>
    </message>
    <message>
        <location line="+22"/>
        <source>Ignore N files </source>
        <translation>Ignorer N fichiers </translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Nb image per location ( bracketing )</source>
        <translation>Nb d&apos;images par position (bracketing)</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>Shoot layout</source>
        <translation>Disposition des prises</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Columns: to left</source>
        <translation>Colonnes&#xa0;: vers la gauche</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Columns (default)</source>
        <translation>Colonnes (par défaut)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Rows: upward</source>
        <translation>Lignes&#xa0;: vers le haut</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Rows: downward</source>
        <translation>Lignes&#xa0;: vers le bas</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Layout</source>
        <translation>Disposition</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Shoot setup</source>
        <translation>Prise de vue</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Force 360° panorama</source>
        <translation>Forcer un panorama à 360°</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Overlapping</source>
        <translation>Recouvrement</translation>
    </message>
    <message>
        <location line="+7"/>
        <source> %</source>
        <translation> %</translation>
    </message>
    <message>
        <location line="+33"/>
        <source>Stack</source>
        <translation>Pile</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>Détecter les liens dans&#xa0;:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>le niveau de référence</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>tous les niveaux de la pile</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>Pour une pile&#xa0;:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>Utiliser des liens fixes</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>Détecter les points de contrôle</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>Options de détection</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>Détection automatique</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Clean wrong link</source>
        <translation>Supprimer les liens erronés</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>Ignorer l&apos;optimisation</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>Aperçu</translation>
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
        <translation>Papywizard, logiciel de pilotage de têtes panoramiques</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Papywizard import</source>
        <translation>Importation Papywizard</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>&lt;a href=&quot;https://zelmo.example/panohead/heads/papywizard&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Papywizard&lt;/span&gt;&lt;/a&gt; is a free project to drive Merlin/Orion panorama heads. The XML file format is open and used by a wide range of motorized panorama heads.</source>
        <translation>&lt;a href=&quot;https://zelmo.example/panohead/heads/papywizard&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;Papywizard&lt;/span&gt;&lt;/a&gt; est un projet libre de pilotage des têtes Merlin/Orion. Son format XML ouvert est utilisé par de nombreuses têtes motorisées.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>XML:</source>
        <translation>XML&#xa0;:</translation>
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
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+125"/>
        <source>Number of images:</source>
        <translation>Nb d&apos;images&#xa0;:</translation>
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
        <translation>Lacet&#xa0;:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Pitch:</source>
        <translation>Tangage&#xa0;:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Bracketing:</source>
        <translation>Bracketing&#xa0;:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>XML focal:</source>
        <translation>Focale XML&#xa0;:</translation>
    </message>
    <message>
        <location line="+34"/>
        <source>Images:</source>
        <translation>Images&#xa0;:</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Image focal:</source>
        <translation>Focale images&#xa0;:</translation>
    </message>
    <message>
        <location line="+38"/>
        <source>Shoot setup</source>
        <translation>Prise de vue</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Inverse Y coordinates</source>
        <translation>Inverser les coordonnées Y</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>Focal length:</source>
        <translation>Focale&#xa0;:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Lens Type:</source>
        <translation>Type d&apos;objectif&#xa0;:</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Use XML information</source>
        <translation>Utiliser les informations XML</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use image information</source>
        <translation>Utiliser les informations des images</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Stack</source>
        <translation>Pile</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>Détecter les liens dans&#xa0;:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>le niveau de référence</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>tous les niveaux de la pile</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>Pour une pile&#xa0;:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>Utiliser des liens fixes</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>Détecter les points de contrôle</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>Options de détection</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>Détection automatique</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>Supprimer les liens erronés</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>Ignorer l&apos;optimisation</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use recorded location</source>
        <translation>Utiliser la position enregistrée</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Header details</source>
        <translation>Détails de l&apos;en-tête</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Title:</source>
        <translation>Titre&#xa0;:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>GPS:</source>
        <translation>GPS&#xa0;:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Comment:</source>
        <translation>Commentaire&#xa0;:</translation>
    </message>
    <message>
        <location line="+27"/>
        <source>Preview</source>
        <translation>Aperçu</translation>
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
        <translation>Fish-eye</translation>
    </message>
    <message>
        <location line="+76"/>
        <source>All Files (*.*)</source>
        <translation>Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Select images</source>
        <translation>Sélectionner des images</translation>
    </message>
</context>
<context>
    <name>UIWPVRDrive2Class</name>
    <message>
        <location filename="../../pages/UIWPVRDrive2.ui" line="+20"/>
        <source>VR Drive II import plugin</source>
        <translation>Module d&apos;importation VR Drive II</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>VR Drive 2</source>
        <translation>VR Drive 2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The &lt;a href=&quot;https://zelmo.example/panohead/heads/vrdrive2&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;VR Drive 2&lt;/span&gt;&lt;/a&gt; motorized panoramic head writes its shooting as an XML preset; its bracketed shots become HDR-ready stacks.</source>
        <translation>La tête motorisée &lt;a href=&quot;https://zelmo.example/panohead/heads/vrdrive2&quot;&gt;&lt;span style=&quot; text-decoration: underline; color:#DCDCDC;&quot;&gt;VR Drive 2&lt;/span&gt;&lt;/a&gt; enregistre la prise de vue en préréglage XML&#xa0;; ses séries en bracketing deviennent des piles prêtes pour le HDR.</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Images:</source>
        <translation>Images&#xa0;:</translation>
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
        <translation>Nb d&apos;images&#xa0;:</translation>
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
        <translation>Focale images&#xa0;:</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>XML:</source>
        <translation>XML&#xa0;:</translation>
    </message>
    <message>
        <location line="+23"/>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Yaw:</source>
        <translation>Lacet&#xa0;:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Pitch:</source>
        <translation>Tangage&#xa0;:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>Bracketing:</source>
        <translation>Bracketing&#xa0;:</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>XML focal:</source>
        <translation>Focale XML&#xa0;:</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Output:</source>
        <translation>Sortie&#xa0;:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8/16 bits, tons mappés</translation>
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
        <translation>Prise de vue</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Inverse Y coordinates</source>
        <translation>Inverser les coordonnées Y</translation>
    </message>
    <message>
        <location line="+50"/>
        <source>Focal length:</source>
        <translation>Focale&#xa0;:</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Lens Type:</source>
        <translation>Type d&apos;objectif&#xa0;:</translation>
    </message>
    <message>
        <location line="+12"/>
        <source>Use XML information</source>
        <translation>Utiliser les informations XML</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use image information</source>
        <translation>Utiliser les informations des images</translation>
    </message>
    <message>
        <location line="+36"/>
        <source>Stack</source>
        <translation>Pile</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Detect links in:</source>
        <translation>Détecter les liens dans&#xa0;:</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>The reference level</source>
        <translation>le niveau de référence</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>All stack levels</source>
        <translation>tous les niveaux de la pile</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>For a stack:</source>
        <translation>Pour une pile&#xa0;:</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Use hard links</source>
        <translation>Utiliser des liens fixes</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Detect control points</source>
        <translation>Détecter les points de contrôle</translation>
    </message>
    <message>
        <location line="+21"/>
        <source>Detection options</source>
        <translation>Options de détection</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Auto detection</source>
        <translation>Détection automatique</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Clean wrong link</source>
        <translation>Supprimer les liens erronés</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Skip optimization</source>
        <translation>Ignorer l&apos;optimisation</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Use recorded location</source>
        <translation>Utiliser la position enregistrée</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>Preview</source>
        <translation>Aperçu</translation>
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
        <translation>Tous les fichiers (*.*)</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Select the preset file and/or images</source>
        <translation>Sélectionner le fichier de préréglage et/ou les images</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All Files (*.*);;XML files (*.xml)</source>
        <translation>Tous les fichiers (*.*);;Fichiers XML (*.xml)</translation>
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
        <translation>Bracketing utilisé dans le XML&#xa0;: le nombre d&apos;images doit en être un multiple</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Not the same as in XML fil</source>
        <translation>Pas le même nombre que dans le fichier XML</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Focal Length difference between EXIF and XML</source>
        <translation>Différence de focale entre EXIF et XML</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Focal length difference between EXIF and XML</source>
        <translation>Différence de focale entre EXIF et XML</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Lens type difference between EXIF and XML</source>
        <translation>Différence de type d&apos;objectif entre EXIF et XML</translation>
    </message>
    <message>
        <location line="+20"/>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Papywizard XML has bracketing and the number of images isn&apos;t a multiple of this number of brackets.</source>
        <translation>Le XML Papywizard comporte du bracketing et le nombre d&apos;images n&apos;est pas un multiple du nombre de vues par série.</translation>
    </message>
</context>
<context>
    <name>ZClaussImport</name>
    <message>
        <location filename="../ZImportDescriptor.h" line="+28"/>
        <source>Clauss Rodeon import plugin</source>
        <translation>Module d&apos;importation Clauss Rodeon</translation>
    </message>
</context>
<context>
    <name>ZGigapanImport</name>
    <message>
        <location line="+9"/>
        <source>Gigapan import plugin</source>
        <translation>Module d&apos;importation Gigapan</translation>
    </message>
</context>
<context>
    <name>ZMerlinImport</name>
    <message>
        <location line="+9"/>
        <source>Papywizard XML import plugin</source>
        <translation>Module d&apos;importation XML Papywizard</translation>
    </message>
</context>
<context>
    <name>ZVRDrive2Import</name>
    <message>
        <location line="+9"/>
        <source>VRDrive2 XML import plugin</source>
        <translation>Module d&apos;importation XML VRDrive2</translation>
    </message>
</context>
</TS>
