<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>HostSettingsDialog</name>
    <message>
        <location filename="../HostSettingsDialog.cpp" line="+22"/>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>found on PATH</source>
        <translation>recherchés dans le PATH</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Folder of Hugin&apos;s programs</source>
        <translation>Dossier des programmes de Hugin</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>The system&apos;s</source>
        <translation>Langue du système</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>The language applies from the next start.</source>
        <translation>La langue s&apos;applique au prochain démarrage.</translation>
    </message>
    <message>
        <location line="+7"/>
        <source>Hugin&apos;s programs:</source>
        <translation>Programmes de Hugin :</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Language:</source>
        <translation>Langue :</translation>
    </message>
    <message>
        <location line="+49"/>
        <source>on PATH</source>
        <translation>dans le PATH</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>in %1</source>
        <translation>dans %1</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Not found %2: %1. On Debian and Ubuntu, Hugin&apos;s programs come with the packages %3 (sudo apt install %3).</source>
        <translation>Introuvable %2 : %1. Sous Debian et Ubuntu, les programmes de Hugin sont fournis par les paquets %3 (sudo apt install %3).</translation>
    </message>
    <message>
        <location line="+8"/>
        <source>Every program the stitch needs is found.</source>
        <translation>Tous les programmes nécessaires à l&apos;assemblage sont trouvés.</translation>
    </message>
</context>
<context>
    <name>ImportResultPage</name>
    <message>
        <location filename="../ImportResultPage.cpp" line="+39"/>
        <source>yes</source>
        <translation>oui</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>no</source>
        <translation>non</translation>
    </message>
    <message>
        <location line="+29"/>
        <source>Cannot read %1.</source>
        <translation>Impossible de lire %1.</translation>
    </message>
    <message>
        <location line="+35"/>
        <source>Imported panorama</source>
        <translation>Panorama importé</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>What the plug-in handed over: the stacks of photographs, their positions and the links along which control points will be looked for.</source>
        <translation>Ce que le module a transmis : les piles de photographies, leurs positions et les liens le long desquels les points de contrôle seront cherchés.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>Layout</source>
        <translation>Disposition</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Panorama</source>
        <translation>Panorama</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>Save project...</source>
        <translation>Enregistrer le projet...</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Saves the Hugin project and its description (.json), which the stitch needs.</source>
        <translation>Enregistre le projet Hugin et sa description (.json), dont l&apos;assemblage a besoin.</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Save layout picture...</source>
        <translation>Enregistrer l&apos;image de la disposition...</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Stitch panorama...</source>
        <translation>Assembler le panorama...</translation>
    </message>
    <message>
        <location line="+41"/>
        <source>&lt;p&gt;The plug-in handed nothing over.&lt;/p&gt;</source>
        <translation>&lt;p&gt;Le module n&apos;a rien transmis.&lt;/p&gt;</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>columns</source>
        <translation>colonnes</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>rows downward</source>
        <translation>rangées vers le bas</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>rows upward</source>
        <translation>rangées vers le haut</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>columns to the left</source>
        <translation>colonnes vers la gauche</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>serpentine</source>
        <translation>serpentin</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>order %1</source>
        <translation>ordre %1</translation>
    </message>
    <message>
        <location line="+37"/>
        <source>no direction</source>
        <translation>sans direction</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>below</source>
        <translation>en dessous</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>right</source>
        <translation>à droite</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>below right</source>
        <translation>en bas à droite</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>above right</source>
        <translation>en haut à droite</translation>
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
        <translation>inconnu</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 mm</source>
        <translation>%1 mm</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>not set</source>
        <translation>non défini</translation>
    </message>
    <message>
        <location line="+3"/>
        <location line="+6"/>
        <source>from the photographs</source>
        <translation>d&apos;après les photographies</translation>
    </message>
    <message>
        <location line="-6"/>
        <location line="+6"/>
        <source>from the record</source>
        <translation>d&apos;après l&apos;enregistrement</translation>
    </message>
    <message>
        <location line="-4"/>
        <source>%1 mm (%2)</source>
        <translation>%1 mm (%2)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>not known: neither the record nor the photographs give one</source>
        <translation>inconnue : ni l&apos;enregistrement ni les photographies n&apos;en donnent</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>8-bits / 16-bits tonemapped</source>
        <translation>8 bits / 16 bits, tons compressés</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>32-bits HDR radiance</source>
        <translation>radiance HDR 32 bits</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>not chosen</source>
        <translation>non choisi</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Plug-in</source>
        <translation>Module</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Stacks</source>
        <translation>Piles</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Images</source>
        <translation>Images</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (%2 per stack)</source>
        <translation>%1 (%2 par pile)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 (%2 to %3 per stack)</source>
        <translation>%1 (%2 à %3 par pile)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Shots with angles</source>
        <translation>Prises avec angles</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Links</source>
        <translation>Liens</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>none (no restriction)</source>
        <translation>aucun (pas de restriction)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Focal length</source>
        <translation>Focale</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Lens</source>
        <translation>Objectif</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Auto detection</source>
        <translation>Détection automatique</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>For a stack</source>
        <translation>Pour une pile</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Detect control points</source>
        <translation>Détecter les points de contrôle</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>Use hard links</source>
        <translation>Utiliser des liens fixes</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Detect links in</source>
        <translation>Détecter les liens dans</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>All stack levels</source>
        <translation>Tous les niveaux de pile</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>The reference level</source>
        <translation>Le niveau de référence</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Use recorded location</source>
        <translation>Utiliser la position enregistrée</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Skip optimization</source>
        <translation>Ignorer l&apos;optimisation</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Clean wrong link</source>
        <translation>Nettoyer les liens erronés</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Overlap</source>
        <translation>Recouvrement</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>%1 %</source>
        <translation>%1 %</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Grid</source>
        <translation>Grille</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>%1 rows, shot by %2, %3 per stack%4</source>
        <translation>%1 rangées, prises par %2, %3 par pile%4</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>, full 360°</source>
        <translation>, 360° complets</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stacks, reference image first</source>
        <translation>Piles, image de référence en premier</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <location line="+16"/>
        <location line="+100"/>
        <source>Nothing was imported.</source>
        <translation>Rien n&apos;a été importé.</translation>
    </message>
    <message>
        <location line="-50"/>
        <location line="+8"/>
        <source>Save project</source>
        <translation>Enregistrer le projet</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>Hugin projects (*.pto)</source>
        <translation>Projets Hugin (*.pto)</translation>
    </message>
    <message>
        <location line="+10"/>
        <source>Saved %1 and its description</source>
        <translation>%1 et sa description enregistrés</translation>
    </message>
    <message>
        <location line="+7"/>
        <location line="+8"/>
        <source>Save layout picture</source>
        <translation>Enregistrer l&apos;image de la disposition</translation>
    </message>
    <message>
        <location line="-7"/>
        <source>PNG pictures (*.png)</source>
        <translation>Images PNG (*.png)</translation>
    </message>
    <message>
        <location line="+5"/>
        <source>Saved %1</source>
        <translation>%1 enregistré</translation>
    </message>
    <message>
        <location line="+24"/>
        <source>A stitch is running.</source>
        <translation>Un assemblage est en cours.</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Stitching %1</source>
        <translation>Assemblage de %1</translation>
    </message>
    <message>
        <location line="+14"/>
        <source>JPEG pictures (*.jpg)</source>
        <translation>Images JPEG (*.jpg)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>TIFF pictures (*.tif)</source>
        <translation>Images TIFF (*.tif)</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>OpenEXR HDR pictures (*.exr)</source>
        <translation>Images HDR OpenEXR (*.exr)</translation>
    </message>
    <message>
        <location line="+4"/>
        <location line="+11"/>
        <location line="+43"/>
        <source>Stitch panorama</source>
        <translation>Assembler le panorama</translation>
    </message>
    <message>
        <location line="-20"/>
        <source>Stitched %1 in %2 s</source>
        <translation>%1 assemblé en %2 s</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The stitch was cancelled; no panorama was written.</source>
        <translation>L&apos;assemblage a été annulé ; aucun panorama n&apos;a été écrit.</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>The stitch failed.</source>
        <translation>L&apos;assemblage a échoué.</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>The step &quot;%1&quot; (%2) failed:
%3</source>
        <translation>L&apos;étape « %1 » (%2) a échoué :
%3</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The stitch could not start:
%1</source>
        <translation>L&apos;assemblage n&apos;a pas pu démarrer :
%1</translation>
    </message>
</context>
<context>
    <name>ImportWizard</name>
    <message>
        <location filename="../ImportWizard.cpp" line="+23"/>
        <source>panohead: import a panorama</source>
        <translation>panohead : importer un panorama</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Settings...</source>
        <translation>Réglages...</translation>
    </message>
    <message>
        <location line="+11"/>
        <source>%1 %2 by %3, loaded from %4</source>
        <translation>%1 %2 par %3, chargé depuis %4</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>Unsaved import</source>
        <translation>Import non enregistré</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>The imported panorama was neither saved nor stitched. Save its project first?</source>
        <translation>Le panorama importé n&apos;a été ni enregistré ni assemblé. Enregistrer d&apos;abord son projet ?</translation>
    </message>
</context>
<context>
    <name>PanoramaLayoutView</name>
    <message>
        <location filename="../PanoramaLayoutView.cpp" line="+134"/>
        <source>No positions to draw</source>
        <translation>Aucune position à dessiner</translation>
    </message>
    <message>
        <location line="+78"/>
        <source>below</source>
        <translation>en dessous</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>right</source>
        <translation>à droite</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>diagonal</source>
        <translation>diagonale</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>no direction</source>
        <translation>sans direction</translation>
    </message>
    <message>
        <location line="+13"/>
        <source>yaw →, pitch ↑ (degrees)</source>
        <translation>lacet →, tangage ↑ (degrés)</translation>
    </message>
    <message>
        <location line="+0"/>
        <source>grid: columns →, rows ↓</source>
        <translation>grille : colonnes →, rangées ↓</translation>
    </message>
</context>
<context>
    <name>PanoramaPreview</name>
    <message>
        <location filename="../PanoramaPreview.cpp" line="+26"/>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Show in folder</source>
        <translation>Afficher dans le dossier</translation>
    </message>
    <message>
        <location line="+28"/>
        <source>%1: %2 × %3 pixels</source>
        <translation>%1 : %2 × %3 pixels</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Stitched Hugin project: %1</source>
        <translation>Projet Hugin assemblé : %1</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>The panorama cannot be shown here; open it with &quot;Open&quot;.</source>
        <translation>Le panorama ne peut pas être affiché ici ; ouvrez-le avec « Ouvrir ».</translation>
    </message>
</context>
<context>
    <name>PluginChoicePage</name>
    <message>
        <location filename="../PluginChoicePage.cpp" line="+17"/>
        <source>Choose the panoramic head</source>
        <translation>Choisissez la tête panoramique</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Choose the import plug-in for the head, or the program, that recorded your panorama. Its page comes next.</source>
        <translation>Choisissez le module d&apos;importation de la tête, ou du programme, qui a enregistré votre panorama. Sa page suit.</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Plug-in</source>
        <translation>Module</translation>
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
        <translation>%1 n&apos;est pas un module Qt : %2</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>%1 is a plug-in for &quot;%2&quot;, not a ZPanoHead library</source>
        <translation>%1 est un module pour « %2 », pas une bibliothèque ZPanoHead</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>%1 declares the root class &quot;%2&quot; instead of &quot;%3&quot;</source>
        <translation>%1 déclare la classe racine « %2 » au lieu de « %3 »</translation>
    </message>
    <message>
        <location line="+45"/>
        <source>No ZPanoHead plug-in library was found in:
%1</source>
        <translation>Aucune bibliothèque de modules ZPanoHead trouvée dans :
%1</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>Build the ZPanoHead target, or name its folder with --plugin-dir.</source>
        <translation>Construisez la cible ZPanoHead, ou indiquez son dossier avec --plugin-dir.</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>Cannot load %1: %2</source>
        <translation>Impossible de charger %1 : %2</translation>
    </message>
    <message>
        <location line="+6"/>
        <source>%1 does not offer the plug-in library interfaces</source>
        <translation>%1 n&apos;offre pas les interfaces de la bibliothèque de modules</translation>
    </message>
</context>
<context>
    <name>StitchPipeline</name>
    <message>
        <location filename="../../stitch/StitchPipeline.cpp" line="+361"/>
        <source>Finding control points</source>
        <translation>Recherche des points de contrôle</translation>
    </message>
    <message>
        <location line="+3"/>
        <source>Removing points between positions that do not meet</source>
        <translation>Suppression des points entre positions qui ne se touchent pas</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Removing wrong points</source>
        <translation>Suppression des points erronés</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Placing the pictures</source>
        <translation>Placement des images</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Choosing canvas and crop</source>
        <translation>Choix du canevas et du recadrage</translation>
    </message>
    <message>
        <location line="+2"/>
        <source>Remapping</source>
        <translation>Reprojection</translation>
    </message>
    <message>
        <location line="+1"/>
        <source>Blending</source>
        <translation>Fusion</translation>
    </message>
</context>
<context>
    <name>StitchProgressWidget</name>
    <message>
        <location filename="../StitchProgressWidget.cpp" line="+21"/>
        <source>Cancel stitch</source>
        <translation>Annuler l&apos;assemblage</translation>
    </message>
    <message>
        <location line="+4"/>
        <source>Stopping...</source>
        <translation>Arrêt...</translation>
    </message>
    <message>
        <location line="+26"/>
        <source>Checking the project...</source>
        <translation>Vérification du projet...</translation>
    </message>
    <message>
        <location line="+15"/>
        <source>Step %1 of %2: %3</source>
        <translation>Étape %1 sur %2 : %3</translation>
    </message>
    <message>
        <location line="-2"/>
        <source>%1 %2 of %3</source>
        <translation>%1 : %2 sur %3</translation>
    </message>
    <message>
        <location line="+17"/>
        <source>%1:%2</source>
        <translation>%1:%2</translation>
    </message>
</context>
</TS>
