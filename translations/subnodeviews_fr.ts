<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>ActionDefinitions</name>
    <message>
        <source>Line %1: %2</source>
        <translation>Ligne %1&#x202f;: %2</translation>
    </message>
    <message>
        <source>&lt;%1&gt; has no id.</source>
        <translation>&lt;%1&gt; n’a pas d’identifiant.</translation>
    </message>
    <message>
        <source>&lt;%1&gt; is not known.</source>
        <translation>&lt;%1&gt; est inconnu.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is defined twice.</source>
        <translation>«&#x202f;%1&#x202f;» est défini deux fois.</translation>
    </message>
    <message>
        <source>An action needs a responder, a slot and a text.</source>
        <translation>Une action doit avoir un destinataire, une méthode et un texte.</translation>
    </message>
    <message>
        <source>The argument is not a number.</source>
        <translation>L’argument n’est pas un nombre.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a key.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas une touche.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a single key.</source>
        <translation>«&#x202f;%1&#x202f;» n’est pas une touche seule.</translation>
    </message>
    <message>
        <source>No action &quot;%1&quot; is defined.</source>
        <translation>Aucune action «&#x202f;%1&#x202f;» n’est définie.</translation>
    </message>
</context>
<context>
    <name>GT_Graph3DResponder</name>
    <message>
        <source>Make Subnode Properties Available</source>
        <translation>Mise à disposition des propriétés du sous-nœud</translation>
    </message>
    <message>
        <source>Enable Subnode</source>
        <translation>Activation du sous-nœud</translation>
    </message>
    <message>
        <source>Disable Subnode</source>
        <translation>Désactivation du sous-nœud</translation>
    </message>
    <message>
        <source>Show Subnode Shape</source>
        <translation>Affichage de la forme du sous-nœud</translation>
    </message>
    <message>
        <source>Hide Subnode Shape</source>
        <translation>Masquage de la forme du sous-nœud</translation>
    </message>
</context>
<context>
    <name>GV_GraphXViewQt</name>
    <message>
        <source>Hide Navigator</source>
        <translation>Masquer le navigateur</translation>
    </message>
    <message>
        <source>Show Navigator</source>
        <translation>Afficher le navigateur</translation>
    </message>
</context>
<context>
    <name>GraphXView</name>
    <message>
        <source>no_name</source>
        <translation>sans_nom</translation>
    </message>
    <message>
        <source>Layer </source>
        <translation>Calque </translation>
    </message>
</context>
<context>
    <name>QObject</name>
    <message>
        <source>Show Model Nodes</source>
        <translation>Affichage de nœuds du modèle</translation>
    </message>
    <message>
        <source>Hide Model Nodes</source>
        <translation>Masquage de nœuds du modèle</translation>
    </message>
</context>
<context>
    <name>SGV_Graph3DView</name>
    <message>
        <source>Subnodes</source>
        <translation>Sous-nœuds</translation>
    </message>
    <message>
        <source>Filter subnodes</source>
        <translation>Filtrer les sous-nœuds</translation>
    </message>
    <message>
        <source>Subnode Selection</source>
        <translation>Sélection de sous-nœuds</translation>
    </message>
</context>
<context>
    <name>SGV_GraphModel</name>
    <message>
        <source>Connected to </source>
        <translation>Connecté à </translation>
    </message>
</context>
<context>
    <name>SL_SelectionCommands</name>
    <message>
        <source>Selection</source>
        <translation>Sélection</translation>
    </message>
</context>
<context>
    <name>Scene</name>
    <message>
        <source>Add &quot;%1&quot; node</source>
        <translation>Ajout du nœud «&#x202f;%1&#x202f;»</translation>
    </message>
</context>
<context>
    <name>TD_SceneGraphDumper</name>
    <message>
        <source>There is no scene graph.</source>
        <translation>Il n’y a pas de graphe de scène.</translation>
    </message>
</context>
</TS>
