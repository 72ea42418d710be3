<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ActionPalette</name>
    <message>
        <source>Find Action</source>
        <translation>Rechercher une action</translation>
    </message>
    <message>
        <source>Type words of what you want to do</source>
        <translation>Tapez des mots décrivant ce que vous voulez faire</translation>
    </message>
    <message>
        <source>Words to find</source>
        <translation>Mots à rechercher</translation>
    </message>
    <message>
        <source>Actions</source>
        <translation>Actions</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Touches</translation>
    </message>
</context>
<context>
    <name>Actions</name>
    <message>
        <source>Zoom &amp;In</source>
        <translation>&amp;Zoom avant</translation>
    </message>
    <message>
        <source>Zoom &amp;Out</source>
        <translation>Zoom &amp;arrière</translation>
    </message>
    <message>
        <source>&amp;Actual Size</source>
        <translation>Ta&amp;ille réelle</translation>
    </message>
    <message>
        <source>Go to &amp;Top Left</source>
        <translation>Aller &amp;en haut à gauche</translation>
    </message>
    <message>
        <source>&amp;Reset View</source>
        <translation>Réinitialiser la &amp;vue</translation>
    </message>
    <message>
        <source>&amp;Frame Selection</source>
        <translation>Cad&amp;rer la sélection</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>Tout &amp;sélectionner</translation>
    </message>
    <message>
        <source>&amp;Deselect All</source>
        <translation>To&amp;ut désélectionner</translation>
    </message>
    <message>
        <source>Show &amp;Every Node</source>
        <translation>Afficher tous les &amp;nœuds</translation>
    </message>
    <message>
        <source>&amp;Show</source>
        <translation>&amp;Afficher</translation>
    </message>
    <message>
        <source>&amp;Hide</source>
        <translation>&amp;Masquer</translation>
    </message>
    <message>
        <source>Hide All &amp;Others</source>
        <translation>Masquer tous &amp;les autres</translation>
    </message>
    <message>
        <source>Is&amp;olate</source>
        <translation>&amp;Isoler</translation>
    </message>
    <message>
        <source>&amp;Collapse All</source>
        <translation>&amp;Tout replier</translation>
    </message>
    <message>
        <source>E&amp;xpand All</source>
        <translation>T&amp;out déplier</translation>
    </message>
    <message>
        <source>Hide Navigator</source>
        <translation>Masquer le navigateur</translation>
    </message>
    <message>
        <source>Top &amp;Left</source>
        <translation>&amp;En haut à gauche</translation>
    </message>
    <message>
        <source>Top &amp;Right</source>
        <translation>En &amp;haut à droite</translation>
    </message>
    <message>
        <source>&amp;Bottom Left</source>
        <translation>En &amp;bas à gauche</translation>
    </message>
    <message>
        <source>B&amp;ottom Right</source>
        <translation>En bas à &amp;droite</translation>
    </message>
    <message>
        <source>Expand &amp;Selection</source>
        <translation>Déplie&amp;r la sélection</translation>
    </message>
    <message>
        <source>Collapse S&amp;election</source>
        <translation>Replier la sélectio&amp;n</translation>
    </message>
    <message>
        <source>Copy Subnode &amp;Name</source>
        <translation>Copier le nom du &amp;sous-nœud</translation>
    </message>
    <message>
        <source>&amp;Debug Mode</source>
        <translation>&amp;Mode débogage</translation>
    </message>
    <message>
        <source>Select &amp;Parent</source>
        <translation>&amp;Sélectionner le parent</translation>
    </message>
    <message>
        <source>Select First &amp;Child</source>
        <translation>Sélectionner le &amp;premier enfant</translation>
    </message>
    <message>
        <source>Select &amp;Next Sibling</source>
        <translation>Sélecti&amp;onner le frère suivant</translation>
    </message>
    <message>
        <source>Select Pre&amp;vious Sibling</source>
        <translation>Sélec&amp;tionner le frère précédent</translation>
    </message>
    <message>
        <source>&amp;Enable</source>
        <translation>A&amp;ctiver</translation>
    </message>
    <message>
        <source>&amp;Disable</source>
        <translation>&amp;Désactiver</translation>
    </message>
    <message>
        <source>Show S&amp;hape</source>
        <translation>Afficher la &amp;forme</translation>
    </message>
    <message>
        <source>H&amp;ide Shape</source>
        <translation>Mas&amp;quer la forme</translation>
    </message>
    <message>
        <source>&amp;Make Properties Available</source>
        <translation>R&amp;endre les propriétés disponibles</translation>
    </message>
    <message>
        <source>&amp;Add Kinematic Output</source>
        <translation>A&amp;jouter une sortie cinématique</translation>
    </message>
    <message>
        <source>D&amp;ump Scene Graph</source>
        <translation>Lister le &amp;graphe de scène</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>Navigator &amp;Corner</source>
        <translation>Coin du navi&amp;gateur</translation>
    </message>
    <message>
        <source>&amp;Subnodes</source>
        <translation>&amp;Sous-nœuds</translation>
    </message>
    <message>
        <source>Subnodes</source>
        <translation>Sous-nœuds</translation>
    </message>
    <message>
        <source>&amp;Walk</source>
        <translation>&amp;Parcourir</translation>
    </message>
    <message>
        <source>Subnode Tree</source>
        <translation>Arborescence</translation>
    </message>
    <message>
        <source>Graph View</source>
        <translation>Vue en graphe</translation>
    </message>
</context>
<context>
    <name>Autosave</name>
    <message>
        <source>the folder %1 cannot be made</source>
        <translation>le dossier %1 ne peut pas être créé</translation>
    </message>
    <message>
        <source>%1 cannot be locked</source>
        <translation>%1 ne peut pas être verrouillé</translation>
    </message>
    <message>
        <source>The scene is not kept safe: %1</source>
        <translation>La scène n’est pas sauvegardée automatiquement&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>BatchRun</name>
    <message>
        <source>%1 has no subnode named &quot;%2&quot;.</source>
        <translation>%1 n’a pas de sous-nœud nommé «&#x202f;%2&#x202f;».</translation>
    </message>
    <message>
        <source>There is no action &quot;%1&quot;.</source>
        <translation>Il n’y a pas d’action «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>The action &quot;%1&quot; is not available now.</source>
        <translation>L’action «&#x202f;%1&#x202f;» n’est pas disponible actuellement.</translation>
    </message>
    <message>
        <source>Standard output cannot be written.</source>
        <translation>Impossible d’écrire sur la sortie standard.</translation>
    </message>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>Impossible d’écrire %1&#x202f;: %2</translation>
    </message>
    <message>
        <source>There is no model to select in.</source>
        <translation>Il n’y a pas de modèle où sélectionner.</translation>
    </message>
    <message>
        <source>%1 was not saved, since not everything could be done.</source>
        <translation>%1 n’a pas été enregistré, car tout n’a pas pu être fait.</translation>
    </message>
    <message>
        <source>%1 is a model, which no scene may replace.</source>
        <translation>%1 est un modèle, qu’aucune scène ne peut remplacer.</translation>
    </message>
</context>
<context>
    <name>CommandLine</name>
    <message>
        <source>Shows this help.</source>
        <translation>Affiche cette aide.</translation>
    </message>
    <message>
        <source>Shows the version.</source>
        <translation>Affiche la version.</translation>
    </message>
    <message>
        <source>Lists the model formats that can be opened.</source>
        <translation>Liste les formats de modèle qui peuvent être ouverts.</translation>
    </message>
    <message>
        <source>The current frame; the first one is 1.</source>
        <translation>L’image courante&#x202f;; la première est 1.</translation>
    </message>
    <message>
        <source>N</source>
        <translation>N</translation>
    </message>
    <message>
        <source>Shows every scene-graph node, not the subnodes alone.</source>
        <translation>Affiche tous les nœuds du graphe de scène, et non les seuls sous-nœuds.</translation>
    </message>
    <message>
        <source>Shows only subnodes whose name contains TEXT, and what leads to them.</source>
        <translation>N’affiche que les sous-nœuds dont le nom contient TEXTE, et ce qui y mène.</translation>
    </message>
    <message>
        <source>TEXT</source>
        <translation>TEXTE</translation>
    </message>
    <message>
        <source>Selects the subnode NAME of the selected model; can be repeated.</source>
        <translation>Sélectionne le sous-nœud NOM du modèle sélectionné&#x202f;; peut être répétée.</translation>
    </message>
    <message>
        <source>NAME</source>
        <translation>NOM</translation>
    </message>
    <message>
        <source>Performs the action NAME, as menus do, after selecting; can be repeated.</source>
        <translation>Exécute l’action NOM, comme le font les menus, après la sélection&#x202f;; peut être répétée.</translation>
    </message>
    <message>
        <source>Prints the subnodes of every model; FORMAT is text or json.</source>
        <translation>Imprime les sous-nœuds de chaque modèle&#x202f;; FORMAT vaut text ou json.</translation>
    </message>
    <message>
        <source>FORMAT</source>
        <translation>FORMAT</translation>
    </message>
    <message>
        <source>Saves a picture of the window as FILE.</source>
        <translation>Enregistre une image de la fenêtre dans FICHIER.</translation>
    </message>
    <message>
        <source>FILE</source>
        <translation>FICHIER</translation>
    </message>
    <message>
        <source>The size of the window, in pixels.</source>
        <translation>La taille de la fenêtre, en pixels.</translation>
    </message>
    <message>
        <source>WxH</source>
        <translation>LxH</translation>
    </message>
    <message>
        <source>Saves the scene as FILE in the end.</source>
        <translation>Enregistre à la fin la scène dans FICHIER.</translation>
    </message>
    <message>
        <source>Ends when all is done, without waiting for a user.</source>
        <translation>Quitte quand tout est fait, sans attendre d’utilisateur.</translation>
    </message>
    <message>
        <source>Reads a model again when its file changes.</source>
        <translation>Relit un modèle quand son fichier change.</translation>
    </message>
    <message>
        <source>How the window looks: light, dark or system.</source>
        <translation>L’apparence de la fenêtre&#x202f;: light (claire), dark (sombre) ou system (celle du système).</translation>
    </message>
    <message>
        <source>Shows the inner hierarchy of 3D models and works on their parts.</source>
        <translation>Montre la hiérarchie interne de modèles 3D et agit sur leurs parties.</translation>
    </message>
    <message>
        <source>A scene, or a model, whose element is named after the file. The first model is selected.</source>
        <translation>Une scène, ou un modèle, dont l’élément prend le nom du fichier. Le premier modèle est sélectionné.</translation>
    </message>
    <message>
        <source>[FILE...]</source>
        <translation>[FICHIER...]</translation>
    </message>
    <message>
        <source>--%1 needs the name of a file.</source>
        <translation>--%1 demande le nom d’un fichier.</translation>
    </message>
    <message>
        <source>--size needs a width and a height such as 1000x800, not &quot;%1&quot;.</source>
        <translation>--size demande une largeur et une hauteur, par exemple 1000x800, et non «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>--theme is light, dark or system, not &quot;%1&quot;.</source>
        <translation>--theme vaut light, dark ou system, et non «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>--dump is text or json, not &quot;%1&quot;.</source>
        <translation>--dump vaut text ou json, et non «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>--frame needs a number from 1 on, not &quot;%1&quot;.</source>
        <translation>--frame demande un nombre à partir de 1, et non «&#x202f;%1&#x202f;».</translation>
    </message>
    <message>
        <source>There is no model to work on.</source>
        <translation>Il n’y a pas de modèle sur lequel agir.</translation>
    </message>
    <message>
        <source>Neither reads nor writes preferences, layout, recent files and automatic copies.</source>
        <translation>Ne lit ni n’écrit les préférences, la disposition, les fichiers récents et les copies automatiques.</translation>
    </message>
    <message>
        <source>A scene can only be the first file, which &quot;%1&quot; is not.</source>
        <translation>Une scène ne peut être que le premier fichier, ce que «&#x202f;%1&#x202f;» n’est pas.</translation>
    </message>
</context>
<context>
    <name>ExposureCommands</name>
    <message>
        <source>Clear Drawing</source>
        <translation>Effacement du dessin</translation>
    </message>
    <message>
        <source>Split Drawing</source>
        <translation>Division du dessin</translation>
    </message>
    <message>
        <source>Extend Drawing to End</source>
        <translation>Prolongement du dessin jusqu’à la fin</translation>
    </message>
    <message>
        <source>Hold Drawing on One Frame</source>
        <translation>Maintien du dessin sur une seule image</translation>
    </message>
    <message>
        <source>Duplicate Drawing</source>
        <translation>Duplication du dessin</translation>
    </message>
    <message>
        <source>Show &quot;%1&quot;</source>
        <translation>Affichage de «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>Move Drawing</source>
        <translation>Déplacement du dessin</translation>
    </message>
    <message>
        <source>Trim Drawing</source>
        <translation>Ajustement du dessin</translation>
    </message>
</context>
<context>
    <name>FileActions</name>
    <message>
        <source>Opened &quot;%1&quot;.</source>
        <translation>«&#x202f;%1&#x202f;» est ouvert.</translation>
    </message>
    <message>
        <source>&amp;New Scene</source>
        <translation>&amp;Nouvelle scène</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>Ouvrir &amp;un fichier récent</translation>
    </message>
    <message>
        <source>Re&amp;load Models</source>
        <translation>&amp;Recharger les modèles</translation>
    </message>
    <message>
        <source>Reload When Files &amp;Change</source>
        <translation>Recharger quand &amp;les fichiers changent</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Enregistrer</translation>
    </message>
    <message>
        <source>Save &amp;As...</source>
        <translation>Enregistrer &amp;sous...</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>No files yet</source>
        <translation>Aucun fichier pour l’instant</translation>
    </message>
    <message>
        <source>&amp;Clear Missing</source>
        <translation>&amp;Effacer les fichiers absents</translation>
    </message>
    <message>
        <source>Clear &amp;All</source>
        <translation>&amp;Tout effacer</translation>
    </message>
    <message>
        <source>Open Models and Scenes</source>
        <translation>Ouvrir des modèles et des scènes</translation>
    </message>
    <message>
        <source>Models and scenes (%1 %2);;Scenes (%1);;3D models (%2);;All files (*)</source>
        <translation>Modèles et scènes (%1 %2);;Scènes (%1);;Modèles 3D (%2);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Model files read again: %1.</source>
        <translation>Fichiers de modèle relus&#x202f;: %1.</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>Enregistrer la scène</translation>
    </message>
    <message>
        <source>Scenes (%1)</source>
        <translation>Scènes (%1)</translation>
    </message>
    <message>
        <source>&quot;%1&quot; could not be read wholly. Replace it by what was read?</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas pu être lu en entier. Le remplacer par ce qui a été lu&#x202f;?</translation>
    </message>
    <message>
        <source>&quot;%1&quot; was changed by another program. Replace it?</source>
        <translation>«&#x202f;%1&#x202f;» a été modifié par un autre programme. Le remplacer&#x202f;?</translation>
    </message>
    <message>
        <source>&amp;Replace</source>
        <translation>&amp;Remplacer</translation>
    </message>
    <message>
        <source>Saved &quot;%1&quot;.</source>
        <translation>«&#x202f;%1&#x202f;» est enregistré.</translation>
    </message>
    <message>
        <source>Unsaved Changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>Save the changes of &quot;%1&quot;?</source>
        <translation>Enregistrer les modifications de «&#x202f;%1&#x202f;»&#x202f;?</translation>
    </message>
    <message>
        <source>Otherwise they are lost.</source>
        <translation>Sinon, elles seront perdues.</translation>
    </message>
    <message>
        <source>A scene without a name</source>
        <translation>Une scène sans nom</translation>
    </message>
    <message>
        <source>Unsaved Scene</source>
        <translation>Scène non enregistrée</translation>
    </message>
    <message>
        <source>%1 was not saved when the workbench last ended.</source>
        <translation>%1 n’était pas enregistrée quand le programme s’est arrêté la dernière fois.</translation>
    </message>
    <message>
        <source>There is a copy of %1.</source>
        <translation>Il en existe une copie, du %1.</translation>
    </message>
    <message>
        <source>&amp;Open Copy</source>
        <translation>&amp;Ouvrir la copie</translation>
    </message>
    <message>
        <source>&amp;Discard Copy</source>
        <translation>&amp;Jeter la copie</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Plus tard</translation>
    </message>
</context>
<context>
    <name>FilterCount</name>
    <message>
        <source>Rows of the subnode tree</source>
        <translation>Lignes de l’arborescence</translation>
    </message>
    <message>
        <source>Subnodes: %1</source>
        <translation>Sous-nœuds&#x202f;: %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
</context>
<context>
    <name>FrameBox</name>
    <message>
        <source>Frame </source>
        <translation>Image </translation>
    </message>
    <message>
        <source>Current frame</source>
        <translation>Image courante</translation>
    </message>
</context>
<context>
    <name>ImportProcess</name>
    <message>
        <source>reading the file took longer than %1 seconds</source>
        <translation>la lecture du fichier a duré plus de %1 secondes</translation>
    </message>
    <message>
        <source>the importer gave an answer that makes no sense</source>
        <translation>l’importateur a donné une réponse incompréhensible</translation>
    </message>
    <message>
        <source>the importer %1 cannot be started</source>
        <translation>l’importateur %1 ne peut pas être lancé</translation>
    </message>
    <message>
        <source>the importer %1 is missing</source>
        <translation>l’importateur %1 est introuvable</translation>
    </message>
    <message>
        <source>reading the file crashed the importer</source>
        <translation>la lecture du fichier a fait échouer l’importateur</translation>
    </message>
</context>
<context>
    <name>ImportProgressDialog</name>
    <message>
        <source>Opening Models</source>
        <translation>Ouverture de modèles</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>Ouverture de %1</translation>
    </message>
</context>
<context>
    <name>ImportResult</name>
    <message>
        <source>(no file name)</source>
        <translation>(pas de nom de fichier)</translation>
    </message>
    <message>
        <source>there is not enough memory to read the file</source>
        <translation>il n’y a pas assez de mémoire pour lire le fichier</translation>
    </message>
    <message>
        <source>the import was cancelled</source>
        <translation>l’importation a été annulée</translation>
    </message>
</context>
<context>
    <name>Isolation</name>
    <message>
        <source>Isolate Subnodes</source>
        <translation>Isolation de sous-nœuds</translation>
    </message>
    <message>
        <source>Leave Isolation</source>
        <translation>Fin de l’isolation</translation>
    </message>
</context>
<context>
    <name>LogDock</name>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Dumps of scene graphs appear here.</source>
        <translation>Les listes des graphes de scène s’affichent ici.</translation>
    </message>
</context>
<context>
    <name>MessageBar</name>
    <message>
        <source>Messages</source>
        <translation>Messages</translation>
    </message>
    <message>
        <source>Close the messages</source>
        <translation>Fermer les messages</translation>
    </message>
    <message>
        <source>Earlier messages: %1</source>
        <translation>Messages précédents&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>ModelImporter</name>
    <message>
        <source>no file was given</source>
        <translation>aucun fichier n’est indiqué</translation>
    </message>
    <message>
        <source>there is no such file</source>
        <translation>ce fichier n’existe pas</translation>
    </message>
    <message>
        <source>this is a folder, not a file</source>
        <translation>c’est un dossier, pas un fichier</translation>
    </message>
    <message>
        <source>this is not a regular file</source>
        <translation>ce n’est pas un fichier ordinaire</translation>
    </message>
    <message>
        <source>the file cannot be opened: %1</source>
        <translation>le fichier ne peut pas être ouvert&#x202f;: %1</translation>
    </message>
    <message>
        <source>the file is empty</source>
        <translation>le fichier est vide</translation>
    </message>
    <message>
        <source>the file holds no model: it has no nodes and no meshes</source>
        <translation>le fichier ne contient pas de modèle&#x202f;: il n’a ni nœuds ni maillages</translation>
    </message>
    <message>
        <source>the file is of an unknown kind</source>
        <translation>le fichier est d’un type inconnu</translation>
    </message>
    <message>
        <source>there is not enough memory to read the file</source>
        <translation>il n’y a pas assez de mémoire pour lire le fichier</translation>
    </message>
    <message>
        <source>the file cannot be read as a model: %1</source>
        <translation>le fichier ne peut pas être lu comme un modèle&#x202f;: %1</translation>
    </message>
    <message>
        <source>the file cannot be read as a model</source>
        <translation>le fichier ne peut pas être lu comme un modèle</translation>
    </message>
    <message>
        <source>the scene graph has not been started</source>
        <translation>le graphe de scène n’a pas été démarré</translation>
    </message>
</context>
<context>
    <name>ModelStreamReader</name>
    <message>
        <source>the model arrived damaged</source>
        <translation>le modèle est arrivé endommagé</translation>
    </message>
</context>
<context>
    <name>PreferenceField</name>
    <message>
        <source>Reset %1 to its default</source>
        <translation>Rétablir la valeur par défaut&#x202f;: %1</translation>
    </message>
</context>
<context>
    <name>PreferenceKey</name>
    <message>
        <source>&amp;Text:</source>
        <translation>&amp;Texte&#x202f;:</translation>
    </message>
    <message>
        <source>Text, s&amp;elected:</source>
        <translation>Texte, &amp;sélectionné&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Node:</source>
        <translation>&amp;Nœud&#x202f;:</translation>
    </message>
    <message>
        <source>Node, &amp;selected:</source>
        <translation>Nœ&amp;ud, sélectionné&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Hidden node:</source>
        <translation>Nœud &amp;masqué&#x202f;:</translation>
    </message>
    <message>
        <source>H&amp;idden node, selected:</source>
        <translation>Nœu&amp;d masqué, sélectionné&#x202f;:</translation>
    </message>
    <message>
        <source>Node that cannot be &amp;acted on:</source>
        <translation>Nœud non mod&amp;ifiable&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Lines between nodes:</source>
        <translation>&amp;Lignes entre les nœuds&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <translation>Arrière-&amp;plan&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Font:</source>
        <translation>&amp;Police&#x202f;:</translation>
    </message>
    <message>
        <source>&amp;Wheel threshold:</source>
        <translation>&amp;Seuil de la molette&#x202f;:</translation>
    </message>
    <message>
        <source>How far the wheel turns before it zooms; a notch is 120.
Takes effect at the next start.</source>
        <translation>Rotation de la molette avant qu’elle ne zoome&#x202f;; un cran vaut 120.
Prend effet au prochain démarrage.</translation>
    </message>
    <message>
        <source>&amp;Navigator:</source>
        <translation>&amp;Navigateur&#x202f;:</translation>
    </message>
    <message>
        <source>Where the navigator is in graph views that are opened from now on.</source>
        <translation>Place du navigateur dans les vues en graphe ouvertes désormais.</translation>
    </message>
    <message>
        <source>Top Left</source>
        <translation>En haut à gauche</translation>
    </message>
    <message>
        <source>Top Right</source>
        <translation>En haut à droite</translation>
    </message>
    <message>
        <source>Bottom Left</source>
        <translation>En bas à gauche</translation>
    </message>
    <message>
        <source>Bottom Right</source>
        <translation>En bas à droite</translation>
    </message>
    <message>
        <source>&amp;Show the navigator</source>
        <translation>Afficher &amp;le navigateur</translation>
    </message>
    <message>
        <source>In graph views that are opened from now on.</source>
        <translation>Dans les vues en graphe ouvertes désormais.</translation>
    </message>
    <message>
        <source>Show &amp;every node of the scene graph</source>
        <translation>Afficher &amp;tous les nœuds du graphe de scène</translation>
    </message>
    <message>
        <source>&amp;Theme:</source>
        <translation>&amp;Thème&#x202f;:</translation>
    </message>
    <message>
        <source>Like the System</source>
        <translation>Comme le système</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Clair</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
</context>
<context>
    <name>PreferencePage</name>
    <message>
        <source>Graph View Colours</source>
        <translation>Couleurs de la vue en graphe</translation>
    </message>
    <message>
        <source>Graph View</source>
        <translation>Vue en graphe</translation>
    </message>
    <message>
        <source>Appearance</source>
        <translation>Apparence</translation>
    </message>
</context>
<context>
    <name>PreferencesDialog</name>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>Reset to &amp;Defaults</source>
        <translation>&amp;Valeurs par défaut</translation>
    </message>
    <message>
        <source>Brings back the defaults of everything on this page</source>
        <translation>Rétablit toutes les valeurs par défaut de cette page</translation>
    </message>
    <message>
        <source>The theme given on the command line holds for this run.</source>
        <translation>Le thème donné sur la ligne de commande vaut pour cette session.</translation>
    </message>
</context>
<context>
    <name>SceneBuilder</name>
    <message>
        <source>&quot;%1&quot; is of the unknown kind &quot;%2&quot;</source>
        <translation>«&#x202f;%1&#x202f;» est du type inconnu «&#x202f;%2&#x202f;»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is in a node that holds none</source>
        <translation>«&#x202f;%1&#x202f;» est dans un nœud qui ne peut pas en contenir</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no attribute &quot;%2&quot;</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas d’attribut «&#x202f;%2&#x202f;»</translation>
    </message>
    <message>
        <source>&quot;%1&quot; shows no models</source>
        <translation>«&#x202f;%1&#x202f;» ne montre pas de modèles</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no subnodes</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas de sous-nœuds</translation>
    </message>
    <message>
        <source>a link has no end, or ends where another does</source>
        <translation>un lien n’a pas d’extrémité, ou finit au même endroit qu’un autre</translation>
    </message>
    <message>
        <source>a selected node is not there, or selected twice</source>
        <translation>un nœud sélectionné est absent, ou sélectionné deux fois</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no subnode &quot;%2&quot;</source>
        <translation>«&#x202f;%1&#x202f;» n’a pas de sous-nœud «&#x202f;%2&#x202f;»</translation>
    </message>
</context>
<context>
    <name>SceneDocument</name>
    <message>
        <source>this is no file</source>
        <translation>ce n’est pas un fichier</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>%1 was not opened</source>
        <translation>%1 n’a pas été ouvert</translation>
    </message>
    <message>
        <source>The scene has no file yet.</source>
        <translation>La scène n’a pas encore de fichier.</translation>
    </message>
    <message>
        <source>saving would lose what could not be opened</source>
        <translation>l’enregistrement ferait perdre ce qui n’a pas pu être ouvert</translation>
    </message>
    <message>
        <source>the file was changed by another program</source>
        <translation>le fichier a été modifié par un autre programme</translation>
    </message>
</context>
<context>
    <name>SceneFileReader</name>
    <message>
        <source>it is damaged in line %1, and what follows was left out</source>
        <translation>elle est endommagée à la ligne %1, et la suite a été omise</translation>
    </message>
    <message>
        <source>the scene</source>
        <translation>la scène</translation>
    </message>
    <message>
        <source>the version is missing</source>
        <translation>la version manque</translation>
    </message>
    <message>
        <source>this is no scene file</source>
        <translation>ce n’est pas un fichier de scène</translation>
    </message>
    <message>
        <source>it was saved by a later version, and what is new was left out</source>
        <translation>elle a été enregistrée par une version ultérieure, et ce qui est nouveau a été omis</translation>
    </message>
    <message>
        <source>model %1</source>
        <translation>modèle %1</translation>
    </message>
</context>
<context>
    <name>SceneFileWriter</name>
    <message>
        <source>%1 cannot be written: %2</source>
        <translation>impossible d’écrire %1&#x202f;: %2</translation>
    </message>
</context>
<context>
    <name>SceneListDock</name>
    <message>
        <source>Scene</source>
        <translation>Scène</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Nodes of the scene</source>
        <translation>Nœuds de la scène</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Renommer</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>&amp;Monter</translation>
    </message>
    <message>
        <source>Move &amp;Down</source>
        <translation>&amp;Descendre</translation>
    </message>
    <message>
        <source>De&amp;lete</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>Rename &quot;%1&quot;</source>
        <translation>Renommage de «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>Delete &quot;%1&quot;</source>
        <translation>Suppression de «&#x202f;%1&#x202f;»</translation>
    </message>
    <message>
        <source>Delete %1 Nodes</source>
        <translation>Suppression de %1 nœuds</translation>
    </message>
    <message>
        <source>Move &quot;%1&quot;</source>
        <translation>Déplacement de «&#x202f;%1&#x202f;»</translation>
    </message>
</context>
<context>
    <name>SceneNodesReader</name>
    <message>
        <source>node %1</source>
        <translation>nœud %1</translation>
    </message>
    <message>
        <source>%1 is of no kind</source>
        <translation>%1&#x202f;: type absent</translation>
    </message>
    <message>
        <source>%1 has the id of another</source>
        <translation>%1&#x202f;: identifiant déjà utilisé</translation>
    </message>
    <message>
        <source>%1 is in a group that does not come before it</source>
        <translation>%1&#x202f;: groupe qui ne vient pas avant</translation>
    </message>
    <message>
        <source>an attribute of %1</source>
        <translation>attribut de %1</translation>
    </message>
    <message>
        <source>an exposure of %1</source>
        <translation>exposition de %1</translation>
    </message>
    <message>
        <source>%1 cannot be</source>
        <translation>%1&#x202f;: impossible</translation>
    </message>
    <message>
        <source>link %1</source>
        <translation>lien %1</translation>
    </message>
    <message>
        <source>%1 is of a node that is not there</source>
        <translation>%1&#x202f;: nœud absent</translation>
    </message>
    <message>
        <source>selected node %1</source>
        <translation>nœud sélectionné %1</translation>
    </message>
    <message>
        <source>%1 is not there</source>
        <translation>%1&#x202f;: absent</translation>
    </message>
    <message>
        <source>a subnode of %1 has no name</source>
        <translation>%1&#x202f;: sous-nœud sans nom</translation>
    </message>
    <message>
        <source>%1 is in groups that are nested too deep</source>
        <translation>%1&#x202f;: groupes imbriqués trop profondément</translation>
    </message>
</context>
<context>
    <name>SceneProblems</name>
    <message>
        <source>%1: the value of &quot;%2&quot; is not understood</source>
        <translation>%1&#x202f;: la valeur de «&#x202f;%2&#x202f;» n’est pas comprise</translation>
    </message>
    <message>
        <source>one that came from no file</source>
        <translation>un modèle qui ne vient d’aucun fichier</translation>
    </message>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>1 model is missing: %1</source>
        <translation>1 modèle manque&#x202f;: %1</translation>
    </message>
    <message>
        <source>%1 models are missing: %2</source>
        <translation>%1 modèles manquent&#x202f;: %2</translation>
    </message>
    <message>
        <source>1 node was left out</source>
        <translation>1 nœud a été omis</translation>
    </message>
    <message>
        <source>%1 nodes were left out</source>
        <translation>%1 nœuds ont été omis</translation>
    </message>
    <message>
        <source>1 link was left out</source>
        <translation>1 lien a été omis</translation>
    </message>
    <message>
        <source>%1 links were left out</source>
        <translation>%1 liens ont été omis</translation>
    </message>
    <message>
        <source>1 exposure was left out</source>
        <translation>1 exposition a été omise</translation>
    </message>
    <message>
        <source>%1 exposures were left out</source>
        <translation>%1 expositions ont été omises</translation>
    </message>
    <message>
        <source>the settings of 1 subnode were left out</source>
        <translation>les réglages de 1 sous-nœud ont été omis</translation>
    </message>
    <message>
        <source>the settings of %1 subnodes were left out</source>
        <translation>les réglages de %1 sous-nœuds ont été omis</translation>
    </message>
    <message>
        <source>1 selected item is not there</source>
        <translation>1 objet sélectionné est absent</translation>
    </message>
    <message>
        <source>%1 selected items are not there</source>
        <translation>%1 objets sélectionnés sont absents</translation>
    </message>
    <message>
        <source>1 value was not understood</source>
        <translation>1 valeur n’a pas été comprise</translation>
    </message>
    <message>
        <source>%1 values were not understood</source>
        <translation>%1 valeurs n’ont pas été comprises</translation>
    </message>
    <message>
        <source>the settings of %1</source>
        <translation>réglages de %1</translation>
    </message>
    <message>
        <source>%1 are of no subnode, or of one that has some</source>
        <translation>%1&#x202f;: sous-nœud absent, ou déjà réglé</translation>
    </message>
    <message>
        <source>%1: a transformation is not sixteen numbers</source>
        <translation>%1&#x202f;: une transformation n’a pas seize nombres</translation>
    </message>
</context>
<context>
    <name>TimelineActions</name>
    <message>
        <source>&amp;Clear Drawing</source>
        <translation>&amp;Effacer le dessin</translation>
    </message>
    <message>
        <source>&amp;Split at Current Frame</source>
        <translation>Diviser à &amp;l’image courante</translation>
    </message>
    <message>
        <source>&amp;Extend to End</source>
        <translation>&amp;Prolonger jusqu’à la fin</translation>
    </message>
    <message>
        <source>&amp;Hold on This Frame Only</source>
        <translation>&amp;Maintenir sur cette image seulement</translation>
    </message>
    <message>
        <source>&amp;Duplicate After</source>
        <translation>&amp;Dupliquer à la suite</translation>
    </message>
    <message>
        <source>Move Earlier</source>
        <translation>Avancer le dessin</translation>
    </message>
    <message>
        <source>Move Later</source>
        <translation>Retarder le dessin</translation>
    </message>
    <message>
        <source>End Earlier</source>
        <translation>Avancer la fin</translation>
    </message>
    <message>
        <source>End Later</source>
        <translation>Retarder la fin</translation>
    </message>
    <message>
        <source>Begin Earlier</source>
        <translation>Avancer le début</translation>
    </message>
    <message>
        <source>Begin Later</source>
        <translation>Retarder le début</translation>
    </message>
    <message>
        <source>Row Above</source>
        <translation>Ligne précédente</translation>
    </message>
    <message>
        <source>Row Below</source>
        <translation>Ligne suivante</translation>
    </message>
    <message>
        <source>Previous Drawing</source>
        <translation>Dessin précédent</translation>
    </message>
    <message>
        <source>Next Drawing</source>
        <translation>Dessin suivant</translation>
    </message>
    <message>
        <source>Previous Change of Drawing</source>
        <translation>Changement de dessin précédent</translation>
    </message>
    <message>
        <source>Next Change of Drawing</source>
        <translation>Changement de dessin suivant</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked</source>
        <translation>«&#x202f;%1&#x202f;» est verrouillé</translation>
    </message>
    <message>
        <source>Show &quot;%1&quot; Here</source>
        <translation>Afficher «&#x202f;%1&#x202f;» ici</translation>
    </message>
</context>
<context>
    <name>TimelineDock</name>
    <message>
        <source>Timeline</source>
        <translation>Ligne de temps</translation>
    </message>
</context>
<context>
    <name>TimelineView</name>
    <message>
        <source>Timeline</source>
        <translation>Ligne de temps</translation>
    </message>
    <message>
        <source>No row is selected</source>
        <translation>Aucune ligne n’est sélectionnée</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vide</translation>
    </message>
    <message>
        <source>%1, from frame %2 on</source>
        <translation>%1, à partir de l’image %2</translation>
    </message>
    <message>
        <source>%1, frames %2 to %3</source>
        <translation>%1, images %2 à %3</translation>
    </message>
    <message>
        <source>Open a model to see when it is shown.</source>
        <translation>Ouvrez un modèle pour voir quand il est affiché.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is locked and cannot be edited.</source>
        <translation>«&#x202f;%1&#x202f;» est verrouillé et ne peut pas être modifié.</translation>
    </message>
    <message>
        <source>%1: from frame %2 on</source>
        <translation>%1&#x202f;: à partir de l’image %2</translation>
    </message>
    <message>
        <source>%1: frames %2 to %3</source>
        <translation>%1&#x202f;: images %2 à %3</translation>
    </message>
</context>
<context>
    <name>TransportBar</name>
    <message>
        <source>Playback</source>
        <translation>Lecture</translation>
    </message>
    <message>
        <source> fps</source>
        <translation> i/s</translation>
    </message>
    <message>
        <source>Frames per second</source>
        <translation>Images par seconde</translation>
    </message>
    <message>
        <source>First Frame</source>
        <translation>Première image</translation>
    </message>
    <message>
        <source>Previous Frame</source>
        <translation>Image précédente</translation>
    </message>
    <message>
        <source>Play</source>
        <translation>Lire</translation>
    </message>
    <message>
        <source>Next Frame</source>
        <translation>Image suivante</translation>
    </message>
    <message>
        <source>Last Frame</source>
        <translation>Dernière image</translation>
    </message>
    <message>
        <source>Loop</source>
        <translation>Boucle</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
</context>
<context>
    <name>ViewDock</name>
    <message>
        <source>Menu of the view</source>
        <translation>Menu de la vue</translation>
    </message>
</context>
<context>
    <name>WorkbenchWindow</name>
    <message>
        <source>Subnode Tree</source>
        <translation>Arborescence</translation>
    </message>
    <message>
        <source>Graph View</source>
        <translation>Vue en graphe</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>As opened</source>
        <translation>Comme à l’ouverture</translation>
    </message>
    <message>
        <source>Undo history</source>
        <translation>Historique des annulations</translation>
    </message>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;Edit</source>
        <translation>É&amp;dition</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Annuler</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Rétablir</translation>
    </message>
    <message>
        <source>&amp;Filter Subnodes</source>
        <translation>&amp;Filtrer les sous-nœuds</translation>
    </message>
    <message>
        <source>&amp;Preferences...</source>
        <translation>&amp;Préférences...</translation>
    </message>
    <message>
        <source>&amp;Playback</source>
        <translation>&amp;Lecture</translation>
    </message>
    <message>
        <source>&amp;Window</source>
        <translation>F&amp;enêtre</translation>
    </message>
    <message>
        <source>New &amp;Graph View</source>
        <translation>&amp;Nouvelle vue en graphe</translation>
    </message>
    <message>
        <source>&amp;Reset Layout</source>
        <translation>&amp;Réinitialiser la disposition</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>Find &amp;Action...</source>
        <translation>&amp;Rechercher une action...</translation>
    </message>
    <message>
        <source>About &amp;Qt</source>
        <translation>À propos de &amp;Qt</translation>
    </message>
    <message>
        <source>&lt;b&gt;Nothing is open.&lt;/b&gt;&lt;br&gt;Drop a model here, or &lt;a href=&quot;open&quot;&gt;open one&lt;/a&gt; (Ctrl+O).</source>
        <translation>&lt;b&gt;Rien n’est ouvert.&lt;/b&gt;&lt;br&gt;Déposez un modèle ici, ou &lt;a href=&quot;open&quot;&gt;ouvrez-en un&lt;/a&gt; (Ctrl+O).</translation>
    </message>
    <message>
        <source>&lt;b&gt;No model is selected.&lt;/b&gt;&lt;br&gt;Select one in the scene list.</source>
        <translation>&lt;b&gt;Aucun modèle n’est sélectionné.&lt;/b&gt;&lt;br&gt;Sélectionnez-en un dans la liste de la scène.</translation>
    </message>
    <message>
        <source>&lt;b&gt;%1 shows nothing at frame %2.&lt;/b&gt;&lt;br&gt;Go to another frame in the time line.</source>
        <translation>&lt;b&gt;%1 ne montre rien à l’image %2.&lt;/b&gt;&lt;br&gt;Allez à une autre image dans la ligne de temps.</translation>
    </message>
    <message>
        <source>&lt;b&gt;The model of %1 is missing.&lt;/b&gt;&lt;br&gt;Put its file back and reload (F5).</source>
        <translation>&lt;b&gt;Le modèle de %1 manque.&lt;/b&gt;&lt;br&gt;Remettez son fichier en place et rechargez (F5).</translation>
    </message>
    <message>
        <source>F1 finds any action and its keys.</source>
        <translation>F1 trouve toutes les actions et leurs touches.</translation>
    </message>
    <message>
        <source>%1[*] - Subnode Workbench</source>
        <translation>%1[*] – Subnode Workbench</translation>
    </message>
    <message>
        <source>Graph View %1</source>
        <translation>Vue en graphe %1</translation>
    </message>
    <message>
        <source>&lt;b&gt;No subnode has &quot;%1&quot; in its name.&lt;/b&gt;</source>
        <translation>&lt;b&gt;Aucun sous-nœud n’a «&#x202f;%1&#x202f;» dans son nom.&lt;/b&gt;</translation>
    </message>
    <message>
        <source>About Subnode Workbench</source>
        <translation>À propos de Subnode Workbench</translation>
    </message>
    <message>
        <source>&lt;b&gt;Subnode Workbench %1&lt;/b&gt;&lt;br&gt;Shows the inner hierarchy of 3D models and works on their parts.&lt;br&gt;Free software under the MIT licence.</source>
        <translation>&lt;b&gt;Subnode Workbench %1&lt;/b&gt;&lt;br&gt;Montre la hiérarchie interne de modèles 3D et agit sur leurs parties.&lt;br&gt;Logiciel libre sous licence MIT.</translation>
    </message>
    <message>
        <source>&lt;b&gt;The model has no subnodes.&lt;/b&gt;&lt;br&gt;Debug mode (Ctrl+Shift+D) lists all of its nodes.</source>
        <translation>&lt;b&gt;Le modèle n’a pas de sous-nœuds.&lt;/b&gt;&lt;br&gt;Le mode débogage (Ctrl+Shift+D) liste tous ses nœuds.</translation>
    </message>
    <message>
        <source>A&amp;bout Subnode Workbench</source>
        <translation>À &amp;propos de Subnode Workbench</translation>
    </message>
</context>
</TS>
