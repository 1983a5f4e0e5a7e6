<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>ActionKeys</name>
    <message>
        <source>Press a key.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is needed to move in the window and its tables.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 opens a menu.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is needed for typing. Add Ctrl or Alt.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ActionList</name>
    <message>
        <source>Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ActionSource</name>
    <message>
        <source>Command palette</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letters of a command</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No command has these letters in this order.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (on)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (off)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This can&apos;t be done now.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AddNodeDialog</name>
    <message>
        <source>Add Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Words of the class or its description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Classes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Class</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BookmarkDialog</name>
    <message>
        <source>&amp;Go To</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looks from where the bookmark was set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives the bookmark another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set to the &amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The bookmark becomes what the view shows now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removes the bookmark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>BookmarkMenu</name>
    <message>
        <source>Bookmarks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Bookmark…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps from where the view looks now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit Bookmarks…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Renames, changes and removes the bookmarks of the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looks from where this bookmark was set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;%1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scene has no bookmarks.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A scene has %1 bookmarks at most. Remove one first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No scene is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add Bookmark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CameraActions</name>
    <message>
        <source>New &amp;Camera from the View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds a camera to the scene that looks as the view does now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Set Camera to the View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lets the selected camera, or the one that was looked through last, look as the view does now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No scene is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a camera, or look through one first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of &quot;%2&quot; is ignored, so the camera can&apos;t be set. Clear its mark &quot;ignored&quot; in the field table first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set %1 to the view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The camera and the view have different projections, so the camera got the place and the direction of the view alone.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A group above &quot;%1&quot; makes everything flat, so the camera can&apos;t be set to the view.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CameraMenu</name>
    <message>
        <source>&amp;Cameras</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Free</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ChoicePopup</name>
    <message>
        <source>Choices</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter the choices</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>Hue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColorPopup</name>
    <message>
        <source>Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Colour before and now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>G</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>H°</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hue in degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>V</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hexadecimal colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hex</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pick from the screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes the colour of the pixel that is clicked next. Escape ends it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The colours of the screen can&apos;t be read here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1” isn&apos;t a hexadecimal colour. Needed are six digits such as #ff8000, or three.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ColorSquare</name>
    <message>
        <source>Saturation and value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ComparisonDock</name>
    <message>
        <source>Comparison</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ComparisonJob</name>
    <message>
        <source>The comparison with %1 doesn&apos;t fit in memory.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>%1, ignored</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field or Change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other File</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DifferencePanel</name>
    <message>
        <source>Shows the rows that contain these words. not, or, brackets, &quot;texts with blanks&quot; and /regular expressions/ may be used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compares the scene as it is now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Differences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File &gt; Compare With compares the open scene with a file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Comparing with %1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No differences: the scene and %1 are equal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No differences from %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 difference from %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 differences from %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copying %1 differences</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DiskChangeBar</name>
    <message>
        <source>%1 has changed on disk.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reload</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Mine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was deleted or moved. The scene is still here: save it to keep it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was deleted or moved. The scene is still here, and saving writes the file again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was replaced by something that is no file. The scene is still here: save it under another name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It can&apos;t be seen whether %1 has changed on disk, because it can&apos;t be read: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DisplayMenu</name>
    <message>
        <source>Disp&amp;lay</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Shaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows materials and textures in the light of the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Unlit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows materials and textures without light and shade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Normals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the normals: x red, y green, z blue, from -1 dark to 1 bright</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Texture Coordinates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the texture coordinates as a checker, u in red and v in green</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Vertex Colors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the colors of the meshes alone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Wireframe over Surfaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the sides of the triangles over the surfaces</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Head Light</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds a light at the viewer&apos;s eye to those of the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other &amp;Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the scene on light, on dark, or as the window is, so that lines and points of any color are seen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Se&amp;ction Plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cuts the scene open along a plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>St&amp;atistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows nodes, triangles, draw calls, memory and time of the picture</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes back the last step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes the step again that was taken back last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;name Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edits the name of the selected node in the tree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such step.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a node first.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditTexts</name>
    <message>
        <source>%1 nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ungroup %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ungroup %1 groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make own copy of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reorder %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move %1 to the top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move %1 out of their groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move %1 out of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move %1 into the group above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use %1 at the top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use %1 in %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy %1 to the top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cut %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be copied: its class makes no nodes, or the memory isn&apos;t enough.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be put into itself or into a node below it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is the first node in its group.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected nodes are the first ones in their groups.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is the last node in its group.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected nodes are the last ones in their groups.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is in no group that it could leave.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected nodes are in no groups that they could leave.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no group directly above %1 that could take it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no group directly above the selected nodes that could take them.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no group that can be dissolved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None of the selected nodes is a group that can be dissolved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is in one place only, so it needs no copy of its own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected nodes are in one place each, so they need no copies of their own.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A transform was added above the node, so that it keeps its place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 transforms were added above nodes, so that these keep their places.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditorImages</name>
    <message>
        <source>images of its folder aren&apos;t allowed</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ExportJob</name>
    <message>
        <source>%1: This file exists already and would be overwritten by one that belongs to %2. Choose another name for the model, or move the file away.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FavoriteActions</name>
    <message>
        <source>Fa&amp;vorite Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Marks the selected node with a star, and adds it to the list of favorites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A scene has %1 favorites at most. Take the star from another one first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a node first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No favorites in this scene</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FavoriteModel</name>
    <message>
        <source>Favorite: %1 &quot;%2&quot;</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FavoriteStrip</name>
    <message>
        <source>Favorite Nodes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FieldActions</name>
    <message>
        <source>&amp;Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the editor of the value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies the value as text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the value of the clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy P&amp;ath</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies the path of the field in the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy as --&amp;set Argument</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies path and value as an argument of the command line</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy A&amp;ll Fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies all values of the node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Fields of This &amp;Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies the values of this group of fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste All F&amp;ields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes all values of the clipboard to fields of the same name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset to Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives the field its default value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>I&amp;gnore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes the scene behave as if the field had its default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Favorite</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps the field on top for all nodes of this class</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Write When Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>While you drag, step or use a popup, the value is only shown; it is written when you are done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;Nodes with This Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects all nodes whose field has this value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The %1 nodes have different values. Select one of them to copy its value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no field to copy that has one value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The %1 nodes have different values. Select one of them first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No other node has this value of %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FieldButtons</name>
    <message>
        <source>Set to default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignore this field</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FieldColumns</name>
    <message>
        <source>Show &amp;Types</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the column with the types of the fields</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FieldFilterBar</name>
    <message>
        <source>Filter the fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter by name, type or value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letters of the name or the type in their order, words of the value, or a query: f:radius, t:Vec3f, &gt;0.5, =true, ~text, changed, ignored, not, or, brackets, /regular expressions/.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show only fields that differ from their defaults.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show only changed fields</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FieldPanel</name>
    <message>
        <source>Select a node in the view or the scene tree to see its fields.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 nodes, the last one: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>These nodes have no field in common.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nodes of this class have no fields.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No field fits the filter.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FieldRow</name>
    <message>
        <source>unknown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click to show the field&apos;s own editor.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t the text of a value of the type %2; the former value stays.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FieldSet</name>
    <message>
        <source>%1 of %L2 nodes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FieldTableModel</name>
    <message>
        <source>%1 changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>mixed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, not written yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FieldTableView</name>
    <message>
        <source>Fields</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FieldTitleBar</name>
    <message>
        <source>Float or dock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1
The lock is on: it stays on this field.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FieldWriter</name>
    <message>
        <source>There is no field to set.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 doesn&apos;t consist of numbers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be taken. %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a field of type %2; a value of type %3 can&apos;t be copied to it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The fields can&apos;t be changed: the values don&apos;t fit in memory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be changed: the values don&apos;t fit in memory.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Import</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare With</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileDrops</name>
    <message>
        <source>Only files can be dropped here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a scene before you drop an image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop an image onto a mesh or a material, whose texture it is to be.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drop a single image: a mesh has one texture at a time.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes the image a texture of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds %1 to the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other files are still being added; drop these when that is done.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is an address on the net. Download the file and drop that.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 doesn&apos;t exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is a folder. Drop the files in it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is no file that can be added: neither a scene, nor a model or an image that the tool knows by its name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add texture to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add %1 files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileFlow</name>
    <message>
        <source>A new scene was made instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scene was closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No scene is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is being opened.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opening %1 was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Starts an empty scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens a scene or a model</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the scene to its file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the scene to another file, which becomes its own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;load from Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Makes the scene equal to its file again; undo brings your changes back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds the content of a file to the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the scene to a file of another format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compare &amp;With…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows how the scene differs from a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closes the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Closes the window and ends the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forgets which files were opened</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No scene is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scene has no file yet.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileRequests</name>
    <message>
        <source>a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>making a new scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>opening %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>adding %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>comparing with %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>reloading %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>saving the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>saving %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>exporting to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>closing the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>quitting</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileWork</name>
    <message>
        <source>Adding %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading %1 to compare it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reloading %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is compared instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is opened instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opening %1 was cancelled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 wasn&apos;t written.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scene was closed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not done: %1. %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FindLine</name>
    <message>
        <source>Find nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Words of the name or the class, or a query: t:Light, f:radius &gt;1, changed, unused, missing, not, or, brackets, /regular expressions/. Return goes to the next hit, Shift+Return to the previous one, Alt+Return selects all.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searches that are kept</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FindMenu</name>
    <message>
        <source>Searches for this again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep This Search…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is searched for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps the search by a name of your own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This search is kept already</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Rename “%1”…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete “%1”</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a kept search first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stores the search with the settings, by a name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives the kept search another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Deletes the kept search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the search:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another name of the search:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FlyTool</name>
    <message>
        <source>Flying at %1 units per second: W A S D, Q and E for down and up, Shift for faster. The wheel changes the speed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GoToSource</name>
    <message>
        <source>Go to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letters of a node, camera, bookmark or file; parent/node, node.field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing in the scene has these letters in this order, and no recent file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No scene is open, and no recent file has these letters in this order.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bookmark of the view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open from %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look through this camera, in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HandleTool</name>
    <message>
        <source>%1 of &quot;%2&quot; is ignored, so a change of it would not be seen. Clear its mark &quot;ignored&quot; in the field table first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n nodes</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turn %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1°</source>
        <comment>angle in degrees</comment>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>× %1</source>
        <comment>factor</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About Orvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the version of the program and its extensions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Orvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Inspects and edits the scene graph of 3D scenes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No extension is active.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Active extensions</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HidingActions</name>
    <message>
        <source>Isolat&amp;e</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the selected nodes alone in the view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hides the selected nodes in the view; the scene stays as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows all nodes that were hidden or left out by isolating</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows all nodes again (Shift+H)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No node is selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 node isolated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 nodes isolated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 hidden in %2 places</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 hidden</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistoryDock</name>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No scene is open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opened %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>Now, saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The oldest state that is kept</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>After</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>HistoryPanel</name>
    <message>
        <source>&amp;Go to This State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Put This Value Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the steps that contain these words: in their name, or in a value. not, or, brackets, &quot;texts with blanks&quot; and /regular expressions/ may be used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Beyond this limit the oldest steps are dropped. The preference ORVANE_HISTORY sets it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>History</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undoes or redoes the steps up to the selected one</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the value from before the selected step, without undoing what came after it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goes through all states of the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 steps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a step of the history first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scene is in this state.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImageCell</name>
    <message>
        <source>Choose an Image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.bmp *.gif *.tga *.tif *.tiff *.webp)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImageFolderQuestion</name>
    <message>
        <source>Forget Allowed Image Folde&amp;rs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes back that scenes may refer to images in folders outside their own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No folder has been allowed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scene refers to images in %1, outside its own folder. They aren&apos;t loaded unless you allow it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Allow Folder</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImagePopup</name>
    <message>
        <source>Choose &amp;File…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replaces the image by that of a file. A file can also be dropped on the row.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replaces the image by the one on the clipboard.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The clipboard has no image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empties the image.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The image is empty already.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImageReplacement</name>
    <message>
        <source>The image on the clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The empty image</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>another node is shown by now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>it is larger than %1 pixels a side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 wasn&apos;t taken: %2. The field keeps its image.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ImageSample</name>
    <message>
        <source>no image</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InspectorDock</name>
    <message>
        <source>Inspector %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InspectorDocks</name>
    <message>
        <source>New &amp;Inspector</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens a further table of fields, which stays on this node; %1 at most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There are %1 inspectors. Close one first.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Inspectors</name>
    <message>
        <source>Selection</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JobBar</name>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeptLocks</name>
    <message>
        <source>Inspector %1 was locked on %2, which isn&apos;t in the file any more. It follows the selection.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeptSearches</name>
    <message>
        <source>A search needs a name to be kept.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The name is longer than %1 characters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is a search of that name already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 searches are kept already. Delete one first.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyLine</name>
    <message>
        <source>Press the new key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New key</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeyTips</name>
    <message>
        <source>%1&lt;br&gt;%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>tool tip (keys)</comment>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>&amp;No Key</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letters of an action, or a key such as Ctrl+O</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search the keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No action and no key has these letters.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select an action first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This key can&apos;t be changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The next key that is pressed here becomes the key of the action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes the keys from the action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives the action the keys that it came with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives all actions the keys that they came with</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is the key of %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has the key %2 now.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is the key of %2 now. Reset that one first, or all.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KeysModel</name>
    <message>
        <source>fixed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>changed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This key can&apos;t be changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LineCover</name>
    <message>
        <source>Number or formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Takes %1, or a formula in which x is the present value. Up and Down step, with Shift ten times as far, with Ctrl a tenth.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The editor doesn&apos;t take %1. Enter %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another field has been selected meanwhile.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The editor has set %1 instead of %2.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListActions</name>
    <message>
        <source>&amp;Insert Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds rows with default values before the selected ones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>D&amp;uplicate Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds copies of the selected rows behind them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removes the selected rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moves the selected rows one place up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moves the selected rows one place down</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cu&amp;t Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies the selected rows and removes them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy Cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies the selected cells as text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste Cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the cells of the clipboard from the current cell on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill &amp;Evenly from First to Last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives the selected cells of a column values with equal steps between the first and the last of them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Number of Rows…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets how many rows the list has</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No list is shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select rows of a list first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select three rows or more of a list of numbers first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows can be moved only while all of them are shown in their order. Clear range, filter and sorting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of rows of %1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another list is shown now. Nothing was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is going to have %2 rows, which need a lot of memory. Go on?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make %1 Rows</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListClipboard</name>
    <message>
        <source>Copying rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list changed while it was being copied. Copy it again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 row was copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rows were copied.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The clipboard has HTML without plain text, which can&apos;t be pasted. Copy the cells in a program that copies them as text, such as a spreadsheet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is nothing to paste: the clipboard has no text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading the clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list changed while the clipboard was being read. Nothing was pasted; paste again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 row was pasted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rows were pasted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The clipboard has %1 rows, but only %2 are shown from here on. Nothing was pasted. Show all rows first, or copy fewer.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListColumns</name>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A text can&apos;t have a NUL character.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A name can&apos;t have the character &quot;%1&quot;, only those of Latin-1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListDelegate</name>
    <message>
        <source>&quot;%1&quot; wasn&apos;t written.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListDock</name>
    <message>
        <source>List</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListEdits</name>
    <message>
        <source>The list isn&apos;t there any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There isn&apos;t enough memory for this. The list is as it was.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The rows of this list aren&apos;t numbers.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no row %1 any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rows of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set %1[%2]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set %1 rows of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t the text of a value of this list.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A list has at most %1 rows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert a row into %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Insert %1 rows into %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate a row of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Duplicate %1 rows of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete a row of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete %1 rows of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move a row of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move %1 rows of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize %1 to %2 rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fill %1 rows of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste a row into %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste %1 rows into %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListFindLine</name>
    <message>
        <source>Go to row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The number of a row, counted from 0; from the end of the list if it is negative. Several are selected by a range such as 10:20.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the rows of a range: 0:5000, 10:, -5: for the last five, ::2 for every other one, ::-1 backwards</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the rows whose text has these words</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the rows for which a formula is true, such as %1 &gt; 0 and i &lt; 100. It knows %2, and i, the number of the row.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no such row; the list has rows 0 to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows with gaps can&apos;t be selected. Show them alone with the line Range.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row %1 isn&apos;t among those that are shown.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListPanel</name>
    <message>
        <source>Select a list field, such as the positions of a mesh, to see its rows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Statistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows smallest, largest and mean values beside the rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to Row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Types the number of a row to go to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter Rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Types what the shown rows contain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set Column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Types a formula for the values of a column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; wasn&apos;t written: %2 isn&apos;t shown any more.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, %1 shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, %1 selected</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListSetLine</name>
    <message>
        <source>&amp;Set</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>to</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formula for the selected rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Formula</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number or a formula for the selected rows, such as x * 2 or i * 0.1. It knows the components by their names, and the number of the row as i.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets the column in the selected rows; in all that are shown if none is selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Nothing was changed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Computing rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list changed while the rows were being computed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListStatistics</name>
    <message>
        <source>Statistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mean</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NaN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 selected rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListView</name>
    <message>
        <source>Rows of the list</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LockAction</name>
    <message>
        <source>Lock Inspec&amp;tor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps fields and editors on this node while you browse on</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Locked on %1. Click to follow the selection again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lock: stay on this node while you browse on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a node first, to lock the inspector on it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>LockStatus</name>
    <message>
        <source>Locked on %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click here</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click here or press %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fields and editors stay on %1. %2, and they follow the selection again.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>No scene is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unsaved changes can&apos;t be kept for recovery after a crash: %1. It is tried again every minute.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1[*] — Orvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Orvane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File and Edit</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MarkDelegate</name>
    <message>
        <source>Ignored: click to use the value again (Ctrl+Alt+I)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Let the scene ignore this value (Ctrl+Alt+I)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A favorite of this class: click to put it back (Ctrl+B)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put this field of the class to the top (Ctrl+B)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset to the default (Ctrl+Backspace)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MaskPopup</name>
    <message>
        <source>Bits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>bits 0x%1, without a name</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MatrixPopup</name>
    <message>
        <source>The matrix has shear: its axes aren&apos;t at right angles. Translation, rotation and scale don&apos;t give it exactly.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The last column isn&apos;t 0, 0, 0, 1. Translation, rotation and scale don&apos;t give such a projection.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The matrix has elements that aren&apos;t finite, so it has no parts.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the shear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the projection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make it the identity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Matrix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row %1, column %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Translation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation °</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Euler degrees: turns about the fixed axes, x first, then y, then z.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MeasureTool</name>
    <message>
        <source>&amp;Measure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Measures distances and angles between points that are clicked, and the selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selection: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Click on two points to measure their distance, on a third one for an angle. Escape ends it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distance: %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle: %1°</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MessageRow</name>
    <message>
        <source>Close this message</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NameScrub</name>
    <message>
        <source>Drag to change the number; with Shift ten times as fast, with Ctrl ten times as slow.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NavigationActions</name>
    <message>
        <source>Navigation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Orbit about the Picked Point</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A drag goes round what is under the pointer, rather than round the middle of the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Animate the View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Views from the sides, framing and bookmarks are reached by a short movement, where the desktop allows it</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NodeActions</name>
    <message>
        <source>Cu&amp;t</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moves the selected nodes to the clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies the selected nodes to the clipboard, as text too</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds the nodes of the clipboard to the selected group, or behind the selected node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste a&amp;s Shared</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Lets the nodes that were copied be in this place as well, so that a change is seen in both</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Add Node…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Adds a node of a class that you choose to the selected group, or behind the selected node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The node comes to the top of the scene.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The node comes into %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies the selected nodes behind themselves</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Delete Node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removes the selected nodes with everything below them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Puts the selected nodes into a new group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ungr&amp;oup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Replaces the selected groups by what is in them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make Own Cop&amp;y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gives these places a copy of their own of a node that is in other places as well</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Move Up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moves the selected nodes before the node above them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moves the selected nodes behind the node below them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mov&amp;e Out of Group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moves the selected nodes behind the group that they are in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move &amp;into Group Above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Moves the selected nodes to the end of the group above them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Keep Place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nodes stay where they are in the world when they move to other groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No node is selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No scene is open.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NodeClipboard</name>
    <message>
        <source>Only nodes that were copied from this scene can be shared in it. Paste them as copies.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading what is pasted…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was pasted. %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was pasted, since another scene was opened meanwhile.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The clipboard holds no nodes.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NodeEditor</name>
    <message>
        <source>There isn&apos;t enough memory for that; nothing was changed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NodeLock</name>
    <message>
        <source>the scene was closed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The lock on %1 is off, since %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was replaced by the reload; the lock is on the node in its place.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the node isn&apos;t in the scene any more</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NodeMenu</name>
    <message>
        <source>Copy Pat&amp;h</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies the path of the selected node in the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy All F&amp;ields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies the values of all fields of the node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pa&amp;ste All Fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes the values of the clipboard to the fields of the node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Find Nodes of This Class</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searches the tree for nodes of the class of the selected node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loc&amp;k Inspector on This</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keeps fields and editors on the node that is selected in the tree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look Thro&amp;ugh Camera</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows in the view what the selected camera sees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a node first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a camera first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fields as Te&amp;xt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has no fields to copy.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NodeMimeData</name>
    <message>
        <source>The clipboard holds %1 of text, but at most %2 can be pasted. Save the text as a scene file and import that.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected nodes are more than %1 of text, too much for the clipboard. Duplicate them instead, or import their file into the other scene.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The clipboard holds no nodes and no text.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NodeToolTip</name>
    <message>
        <source>Ignored fields: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, 1 child node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>, %1 child nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 mesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 meshes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 triangle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 triangles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bounds in the scene: %1 × %2 × %3 around %4, %5, %6</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NumberEditor</name>
    <message>
        <source>several values</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NumberLimits</name>
    <message>
        <source>%1 isn&apos;t a number that fits here. Enter %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has a fraction. Enter %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is too small.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The least is %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is too large.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The greatest is %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Enter %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a number</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 from %2 to %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of at least %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of at most %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NumberLine</name>
    <message>
        <source>“%1”: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 Enter %2 or a formula.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The text is longer than the %1 characters of the longest formula, so it wasn&apos;t inserted.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NumberRow</name>
    <message>
        <source>x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 z</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>NumberTyping</name>
    <message>
        <source>The text is longer than the %1 characters of the longest formula, so it wasn&apos;t inserted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This isn&apos;t a number. Enter %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The editor doesn&apos;t take it. Enter %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not written yet: these numbers are written together, at Return.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OrvImages</name>
    <message>
        <source>nothing loads images here</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>OverwriteQuestion</name>
    <message>
        <source>File Changed on Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changed on disk since it was opened or saved here. Save anyway?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>What has changed in the file is lost if you save over it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;Over It</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PasteJob</name>
    <message>
        <source>There is nothing to paste: the clipboard has no text.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 cells</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1 of the clipboard has %2, but the lines before it have %3. Nothing was pasted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1: %2 Nothing was pasted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The clipboard has %1 columns, and the list has one. Nothing was pasted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The clipboard has %1 columns, but from column %2 on the list has %3. Nothing was pasted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line %1, column %2: %3 can&apos;t be pasted. %4 Nothing was pasted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A cell of this list is true or false.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The enumeration has no such name.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The cell is empty.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PathCell</name>
    <message>
        <source>There is no file %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PathEdit</name>
    <message>
        <source>File path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chooses a file in a dialog.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a File</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PendingText</name>
    <message>
        <source>Not written yet. It is written when you release the button, press Return or close the popup; Escape drops it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PickerPopup</name>
    <message>
        <source>Searching…</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PictureDialog</name>
    <message>
        <source>Width</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Height</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Grid and axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Seen from</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Background</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>White</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Black</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Seen from:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 million pixels</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Too large: %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PictureExport</name>
    <message>
        <source>Export Picture…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writes a picture of the scene of any size, with a transparent background if wanted</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No scene is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The view as it is</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All of the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bookmark %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Export Picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JPEG images (*.jpg *.jpeg)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>BMP images (*.bmp)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>PPM images (*.ppm)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Drawing the picture…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Writing the picture…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wrote %1, %2 by %3 pixels</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PictureRun</name>
    <message>
        <source>%1: this is no camera. --find &apos;t:Camera&apos; lists the cameras.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--camera %1: %2 has no bookmarks. The path of a camera begins with a slash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>--camera %1: %2 has no bookmark of that name, but %3. The path of a camera begins with a slash.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: a picture of this format can&apos;t be transparent. Give another color with --background, or write a .png.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: The scene refers to images in this folder, outside its own. They aren&apos;t loaded; open the scene in a window to allow it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlaceActions</name>
    <message>
        <source>%1 — %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Bac&amp;k</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects the node that was selected before</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects the node that Back has left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing else was selected before.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You haven&apos;t gone back.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PlaceKeeping</name>
    <message>
        <source>%1 can&apos;t keep its place in %2, which is scaled to nothing or has a matrix that can&apos;t be reversed. Turn off Keep Place in the Edit menu to move it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>&amp;Plug-ins...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the plug-ins, what is wrong with them, and a switch for each</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The plug-in %1 did not come through loading: the program ended meanwhile. It was left out.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave It Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load It Now</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PluginLoader</name>
    <message>
        <source>%1: its extension &quot;%2&quot; has the name of one of %3, so that profiles take both for the same.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PluginModel</name>
    <message>
        <source>Loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loaded, with warnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not loaded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left out: it ended the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Load time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PluginsDialog</name>
    <message>
        <source>Plug-ins</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A plug-in that is switched off isn&apos;t loaded from the next start on. Load Now takes effect at once.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About the selected plug-in</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Load Now</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is loaded already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No plug-in was found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>By %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Extensions: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The program ended while it was loading this plug-in. It is left out until you switch it on or load it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProblemModel</name>
    <message>
        <source>Mend: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problem</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Node or Field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProblemPanel</name>
    <message>
        <source>&amp;Go to Field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Mend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mend All of This &amp;Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check A&amp;gain</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the problems that contain all of these words: in the sentence, the names on the way to the node, its class, or the identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mends the selected problems as one step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mends all problems of the kind of the selected one as one step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checks the whole scene again, and looks at its files again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Problems</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects the node and the field of the selected problem</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No scene is open.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking the scene… %1 nodes so far</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The filter hides all problems.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No problems were found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1, shown or hidden by this button</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a problem to mend it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no safe mend for this problem.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scene is still being checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select a problem first.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mends all problems of the scene with the identifier %1 as one step</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mend: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mend %1 problems</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copying %1 problems</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProblemsDock</name>
    <message>
        <source>Problems</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 errors, %2 warnings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecoverJob</name>
    <message>
        <source>its file has changed since then</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 can&apos;t be recovered: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecoveryLog</name>
    <message>
        <source>There isn&apos;t enough memory to keep changes for recovery.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecoveryOffer</name>
    <message>
        <source>Recover</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Discard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was open when Orvane ended unexpectedly. Its unsaved changes can&apos;t be recovered: %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 unsaved change</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 unsaved changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was open when Orvane ended unexpectedly. %2 can be recovered, up to %3.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RecoveryScan</name>
    <message>
        <source>its file has changed since then</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RotationCell</name>
    <message>
        <source>%1, degrees about %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The axis doesn&apos;t have the length 1, which changes nothing about the rotation.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RotationPopup</name>
    <message>
        <source>Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>rad</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle in radians</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>deg</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle in degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Euler degrees</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Normalise the axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Euler degrees in the table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Angle</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Turns about the fixed axes: x first, then y, then z.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RowExpression</name>
    <message>
        <source>Row %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This is NaN, which is neither true nor false. To find rows with NaN, compare a component with itself, such as not x = x.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RowRange</name>
    <message>
        <source>&quot;%1&quot; isn&apos;t the number of a row. Write a range such as 0:5000, 10:, -5: or ::-1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A range has at most three parts: first:end:step.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The step of a range can&apos;t be 0.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RowTable</name>
    <message>
        <source>&amp;Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies the selected rows as text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copies all rows that are shown as text</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SaveQuestion</name>
    <message>
        <source>Unsaved Changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the changes to &quot;%1&quot;?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>They are lost if you don&apos;t save them.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SceneBookmarks</name>
    <message>
        <source>View %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SceneComparer</name>
    <message>
        <source>Comparing with %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not done: %1. The scene was closed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SceneDocument</name>
    <message>
        <source>Untitled</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SceneDrops</name>
    <message>
        <source>Drop nodes in the scene tree, which shows where they come.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScenePicture</name>
    <message>
        <source>at most %1 pixels a side and %2 million in all</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>There is no memory for a picture of %1x%2 pixels.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SceneReload</name>
    <message>
        <source>%1: the reloaded scene doesn&apos;t fit in memory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reload %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scene is the same as in %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reloaded %1. Undo brings your changes back.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reloaded %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SceneSaving</name>
    <message>
        <source>Saving</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scene was saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exported to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing was saved: a mouse button is held down.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SceneTreeModel</name>
    <message>
        <source>Shown</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shown in the view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Class</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hides the node in the view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the node in the view</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SceneTreePanel</name>
    <message>
        <source>Scene</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SceneView</name>
    <message>
        <source>View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The picture of the scene. The arrow keys go round it, with Shift they move it; plus and minus zoom, F frames the selection, A frames all, 1 to 6 look along the axes, 7 from a corner. With the right button held, W, A, S, D, Q and E fly.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SectionBar</name>
    <message>
        <source>Section plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>x</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>y</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Position of the section</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The place of the plane on its axis, in scene units</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Flip</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the other side of the plane</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows all of the scene again</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SelectionLink</name>
    <message>
        <source>another node was selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>nothing is selected any more</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SelectionStatus</name>
    <message>
        <source>top node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>top nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>child node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>child nodes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ShownRows</name>
    <message>
        <source>Finding the rows was cancelled, so they are neither filtered nor sorted.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finding rows</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SpaceStep</name>
    <message>
        <source>Convert Unit and Up Axis</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>No scene is open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open a scene or a 3D model, or drop its file on this window.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Examples</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatisticsOverlay</name>
    <message>
        <source>Nodes: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Meshes in view: %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Triangles: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Draw calls: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>GPU memory: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Picture: %1 ms</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TextLineEditor</name>
    <message>
        <source>several values</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TextPopup</name>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Return writes the text, Esc restores it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Return writes the text, Esc restores it. Long lines are broken here for the screen; the text keeps them whole.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TreeActions</name>
    <message>
        <source>&amp;Unfold and Fold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select &amp;Nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Unfold All Below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unfolds the selected nodes and everything below them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Fold</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Folds the selected nodes and everything below them</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fold to Level &amp;1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unfold to Level &amp;%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the top nodes alone in the tree</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows %1 levels of the tree, and folds what is below</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All &amp;Children</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects all children of the selected nodes in their place</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All of the Same C&amp;lass</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects all nodes of the scene that have the class of the node selected last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Inverse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects the unfolded rows of the tree that aren&apos;t selected, and no others</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No node is selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No scene is open</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The tree shows %1 more levels only: with the next one there would be more than %2 rows.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The selected nodes have no children.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TreeDrops</name>
    <message>
        <source>Open a scene before you drop nodes.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Only nodes, text and files can be dropped here.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TreeFinder</name>
    <message>
        <source>&amp;Find Nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searches the scene for nodes by name, class or value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find Ne&amp;xt</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects the next hit of the search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects the previous hit of the search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All &amp;Hits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selects all nodes that the search has found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Character %1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No hits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>1 hit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 hits</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Nothing is searched for</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scene is being checked.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Went on at the other end</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some hits are folded, since there are many; going to one unfolds it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TreeTips</name>
    <message>
        <source>Hidden in %1 places</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It is in %1 places of the scene and would be hidden in all of them.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateJob</name>
    <message>
        <source>%1: the comparison with the open scene doesn&apos;t fit in memory</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Frame &amp;All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brings all of the scene into view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frame &amp;Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Brings what is selected into view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Front</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>B&amp;ottom</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From a &amp;Corner</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looks in perspective from the right, from above and from the front, as at first</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Perspective</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Distant things look smaller</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Orthographic</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Things look the same size at any distance</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Soli&amp;d</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surfaces are filled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Wireframe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Surfaces show their edges alone</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Ground Grid</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows a grid on the plane of x and z</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Bounding Boxes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows a box around each mesh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A&amp;xes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows the axes: x red, y green, z blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looks along an axis</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look Along</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ViewDrawing</name>
    <message>
        <source>The view is turned off by the preference ORVANE_VIEW. Remove it, or set it to 1, and start Orvane again.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The scene can&apos;t be drawn here: %1. Install a driver with OpenGL 3.3, such as the packages libegl-mesa0 and libgl1-mesa-dri, and start Orvane again. Everything else works without it.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ViewHandles</name>
    <message>
        <source>&amp;Handles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>S&amp;ymbols</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows no handles in the view</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows handles that move what is selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Turn</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows handles that turn what is selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Scale</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows handles that scale what is selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;World Axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Handles have the axes of the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Parent Axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Handles have the axes of the group above the node that was selected last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Own Axes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Handles have the axes of the node that was selected last</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows lights and cameras as symbols, which can be clicked</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no size that could be scaled.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; shines from very far away, so it has no place. Turn it with E.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; shines into all directions, so it can&apos;t be turned. Move it with W.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no place in the scene, so it can&apos;t be moved. Select what it applies to.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no transform that could move it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no transform that could turn it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no transform that could scale it.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put a Transform above</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of the %2 selected nodes have nothing that could change like that.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put Transform above</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ViewLink</name>
    <message>
        <source>at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 · vertex %2 (%3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The point of the scene that was clicked, and the nearest vertex of the mesh with its position</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>It has nothing to show for what is selected.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows or hides this part of the window</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WindowActions</name>
    <message>
        <source>&amp;Keyboard Shortcuts…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shows and changes the keys of all actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go To…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Goes to a node, field, camera, bookmark or file by some letters of it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Command Palette…</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Runs any action by some letters of it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Context Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Opens the menu of what is selected in the part of the window with the focus</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WindowRun</name>
    <message>
        <source>%1 wasn&apos;t opened, so what the command line sets and selects is left out.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WindowShell</name>
    <message>
        <source>a dock of it has neither a title nor a name, so its place may get lost</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>a tool bar of it has neither a title nor a name, so its place may get lost</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orv::ToolBar</name>
    <message>
        <source>Nothing of the class %1 is selected.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>orvane</name>
    <message>
        <source>Window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fields</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go on to the next part of the window, or back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F6, Shift+F6</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>From one control to the next, or back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tab, Shift+Tab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menus</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alt and the underlined letter, F10</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Context menu of what is selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave an editor or a popup, restoring what was there</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Esc</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go round the scene</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fly, with the right button held: on, back, sideways, down, up</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>W, S, A, D, Q, E</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Move the picture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift and arrow keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Come closer, go back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>+, -</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unfold and fold a node</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Right, Left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unfold a node with all below it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>*</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to the next node whose name begins with letters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Letters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select several nodes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Shift and arrow keys, Ctrl+Space</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit the value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Return, F2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go on in the editor of the field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Return</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Fold and unfold a group</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Left, Right</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Step a number while it is edited</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Up, Down; Ctrl and Shift make it coarser and finer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit the cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next cell while one is edited</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Go to what the row is about</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Return</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The node has this name already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This value can&apos;t be read any more: the rows that the later steps changed aren&apos;t there.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The older value doesn&apos;t fit in memory.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The field has this value already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a step that changed the value of a field.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This step changed nothing.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This step changed which nodes are in the scene, not one value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This step changed whether a field is ignored, not its value.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>This step changed several values.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The node of this value, &quot;%1&quot;, isn&apos;t in the scene any more. Go to a state in which it is, or undo its removal.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ignore %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
