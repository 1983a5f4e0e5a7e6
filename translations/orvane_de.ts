<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de" sourcelanguage="en">
<context>
    <name>AccessibleMessage</name>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Fehler</translation>
    </message>
</context>
<context>
    <name>ActionKeys</name>
    <message>
        <source>Press a key.</source>
        <translation>Taste drücken.</translation>
    </message>
    <message>
        <source>%1 is needed to move in the window and its tables.</source>
        <translation>%1 wird gebraucht, um sich im Fenster und in seinen Tabellen zu bewegen.</translation>
    </message>
    <message>
        <source>%1 opens a menu.</source>
        <translation>%1 öffnet ein Menü.</translation>
    </message>
    <message>
        <source>%1 is needed for typing. Add Ctrl or Alt.</source>
        <translation>%1 wird zum Schreiben gebraucht. Strg oder Alt dazunehmen.</translation>
    </message>
</context>
<context>
    <name>ActionList</name>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>%1 anzeigen</translation>
    </message>
</context>
<context>
    <name>ActionSource</name>
    <message>
        <source>Command palette</source>
        <translation>Befehlspalette</translation>
    </message>
    <message>
        <source>Letters of a command</source>
        <translation>Buchstaben eines Befehls</translation>
    </message>
    <message>
        <source>No command has these letters in this order.</source>
        <translation>Kein Befehl enthält diese Buchstaben in dieser Reihenfolge.</translation>
    </message>
    <message>
        <source>%1 (on)</source>
        <translation>%1 (ein)</translation>
    </message>
    <message>
        <source>%1 (off)</source>
        <translation>%1 (aus)</translation>
    </message>
    <message>
        <source>This can&apos;t be done now.</source>
        <translation>Das ist gerade nicht möglich.</translation>
    </message>
</context>
<context>
    <name>AddNodeDialog</name>
    <message>
        <source>Add Node</source>
        <translation>Knoten hinzufügen</translation>
    </message>
    <message>
        <source>Words of the class or its description</source>
        <translation>Wörter der Klasse oder ihrer Beschreibung</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Classes</source>
        <translation>Klassen</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>&amp;Add</source>
        <translation>&amp;Hinzufügen</translation>
    </message>
</context>
<context>
    <name>AppSettings</name>
    <message>
        <source>it isn&apos;t a file of settings</source>
        <translation>es ist keine Datei mit Einstellungen</translation>
    </message>
    <message>
        <source>line %1: expected a setting as in &quot;name=value&quot;</source>
        <translation>Zeile %1: erwartet wird eine Einstellung wie „name=wert“</translation>
    </message>
    <message>
        <source>line %1 isn&apos;t complete; the file may be half written</source>
        <translation>Zeile %1 ist unvollständig; die Datei ist vielleicht nur halb geschrieben</translation>
    </message>
    <message>
        <source>a later version of Orvane has written it (settings %1, this version writes %2)</source>
        <translation>eine spätere Version von Orvane hat sie geschrieben (Einstellungen %1, diese Version schreibt %2)</translation>
    </message>
    <message>
        <source>the file or its folder can&apos;t be written, or the disk is full</source>
        <translation>die Datei oder ihr Ordner ist nicht beschreibbar, oder der Datenträger ist voll</translation>
    </message>
    <message>
        <source>%1: The settings are used as far as this version knows them: %2. The file is left as it is, and changes hold for this run only.</source>
        <translation>%1: Die Einstellungen gelten, soweit diese Version sie kennt: %2. Die Datei bleibt, wie sie ist, und Änderungen gelten nur bis zum Beenden.</translation>
    </message>
    <message>
        <source>%1: The settings can&apos;t be saved: %2. Changes hold for this run, and are saved as soon as that is possible.</source>
        <translation>%1: Die Einstellungen lassen sich nicht speichern: %2. Änderungen gelten bis zum Beenden und werden gespeichert, sobald es möglich ist.</translation>
    </message>
    <message>
        <source>%1: The settings can&apos;t be read, or in part only: %2. The file is left as it is, and changes hold for this run only.</source>
        <translation>%1: Die Einstellungen sind nicht oder nur zum Teil lesbar: %2. Die Datei bleibt, wie sie ist, und Änderungen gelten nur bis zum Beenden.</translation>
    </message>
</context>
<context>
    <name>BookmarkDialog</name>
    <message>
        <source>&amp;Go To</source>
        <translation>&amp;Springen</translation>
    </message>
    <message>
        <source>Looks from where the bookmark was set</source>
        <translation>Zeigt die Szene von dort, wo das Lesezeichen gesetzt wurde</translation>
    </message>
    <message>
        <source>&amp;Rename</source>
        <translation>&amp;Umbenennen</translation>
    </message>
    <message>
        <source>Gives the bookmark another name</source>
        <translation>Gibt dem Lesezeichen einen anderen Namen</translation>
    </message>
    <message>
        <source>Set to the &amp;View</source>
        <translation>Auf die &amp;Ansicht setzen</translation>
    </message>
    <message>
        <source>The bookmark becomes what the view shows now</source>
        <translation>Das Lesezeichen wird zu dem, was die Ansicht jetzt zeigt</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>Removes the bookmark</source>
        <translation>Entfernt das Lesezeichen</translation>
    </message>
    <message>
        <source>Bookmarks</source>
        <translation>Lesezeichen</translation>
    </message>
</context>
<context>
    <name>BookmarkMenu</name>
    <message>
        <source>&amp;Add Bookmark…</source>
        <translation>Lesezeichen &amp;hinzufügen…</translation>
    </message>
    <message>
        <source>Keeps from where the view looks now</source>
        <translation>Merkt sich, von wo die Ansicht jetzt blickt</translation>
    </message>
    <message>
        <source>&amp;Edit Bookmarks…</source>
        <translation>Lesezeichen &amp;bearbeiten…</translation>
    </message>
    <message>
        <source>Renames, changes and removes the bookmarks of the scene</source>
        <translation>Benennt Lesezeichen der Szene um, ändert und entfernt sie</translation>
    </message>
    <message>
        <source>Looks from where this bookmark was set</source>
        <translation>Blickt von dort, wo dieses Lesezeichen gesetzt wurde</translation>
    </message>
    <message>
        <source>&amp;%1 %2</source>
        <translation>&amp;%1 %2</translation>
    </message>
    <message>
        <source>The scene has no bookmarks.</source>
        <translation>Die Szene hat keine Lesezeichen.</translation>
    </message>
    <message>
        <source>A scene has %1 bookmarks at most. Remove one first.</source>
        <translation>Eine Szene hat höchstens %1 Lesezeichen. Zuerst eines entfernen.</translation>
    </message>
    <message>
        <source>No scene is open.</source>
        <translation>Keine Szene ist geöffnet.</translation>
    </message>
    <message>
        <source>Add Bookmark</source>
        <translation>Lesezeichen hinzufügen</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>&amp;Bookmarks</source>
        <translation>&amp;Lesezeichen</translation>
    </message>
</context>
<context>
    <name>CameraActions</name>
    <message>
        <source>New &amp;Camera from the View</source>
        <translation>Neue &amp;Kamera aus der Ansicht</translation>
    </message>
    <message>
        <source>Adds a camera to the scene that looks as the view does now</source>
        <translation>Fügt der Szene eine Kamera hinzu, die so blickt wie jetzt die Ansicht</translation>
    </message>
    <message>
        <source>&amp;Set Camera to the View</source>
        <translation>Kamera auf die Ansicht &amp;setzen</translation>
    </message>
    <message>
        <source>Lets the selected camera, or the one that was looked through last, look as the view does now</source>
        <translation>Lässt die ausgewählte Kamera oder die, durch die zuletzt geblickt wurde, so blicken wie jetzt die Ansicht</translation>
    </message>
    <message>
        <source>No scene is open.</source>
        <translation>Keine Szene ist geöffnet.</translation>
    </message>
    <message>
        <source>Select a camera, or look through one first.</source>
        <translation>Zuerst eine Kamera auswählen oder durch eine blicken.</translation>
    </message>
    <message>
        <source>%1 of &quot;%2&quot; is ignored, so the camera can&apos;t be set. Clear its mark &quot;ignored&quot; in the field table first.</source>
        <translation>%1 von „%2“ wird ignoriert, deshalb lässt sich die Kamera nicht setzen. Zuerst in der Feldtabelle die Markierung „ignoriert“ entfernen.</translation>
    </message>
    <message>
        <source>Set %1 to the view</source>
        <translation>%1 auf die Ansicht setzen</translation>
    </message>
    <message>
        <source>The camera and the view have different projections, so the camera got the place and the direction of the view alone.</source>
        <translation>Kamera und Ansicht haben verschiedene Projektionen, deshalb hat die Kamera nur den Ort und die Richtung der Ansicht erhalten.</translation>
    </message>
    <message>
        <source>A group above &quot;%1&quot; makes everything flat, so the camera can&apos;t be set to the view.</source>
        <translation>Eine Gruppe über „%1“ macht alles flach, deshalb lässt sich die Kamera nicht auf die Ansicht setzen.</translation>
    </message>
</context>
<context>
    <name>CameraMenu</name>
    <message>
        <source>&amp;Cameras</source>
        <translation>&amp;Kameras</translation>
    </message>
    <message>
        <source>Free</source>
        <translation>Frei</translation>
    </message>
</context>
<context>
    <name>ChoicePopup</name>
    <message>
        <source>Choices</source>
        <translation>Möglichkeiten</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Filter the choices</source>
        <translation>Möglichkeiten filtern</translation>
    </message>
</context>
<context>
    <name>ColorBar</name>
    <message>
        <source>Hue</source>
        <translation>Farbton</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
</context>
<context>
    <name>ColorName</name>
    <message>
        <source>black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source>dark grey</source>
        <translation>Dunkelgrau</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>light grey</source>
        <translation>Hellgrau</translation>
    </message>
    <message>
        <source>white</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>orange</source>
        <translation>Orange</translation>
    </message>
    <message>
        <source>yellow</source>
        <translation>Gelb</translation>
    </message>
    <message>
        <source>green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>cyan</source>
        <translation>Cyan</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>violet</source>
        <translation>Violett</translation>
    </message>
    <message>
        <source>magenta</source>
        <translation>Magenta</translation>
    </message>
    <message>
        <source>dark %1</source>
        <translation>dunkles %1</translation>
    </message>
    <message>
        <source>light %1</source>
        <translation>helles %1</translation>
    </message>
</context>
<context>
    <name>ColorPopup</name>
    <message>
        <source>Colour</source>
        <translation>Farbe</translation>
    </message>
    <message>
        <source>Colour before and now</source>
        <translation>Farbe vorher und jetzt</translation>
    </message>
    <message>
        <source>R</source>
        <translation>R</translation>
    </message>
    <message>
        <source>Red</source>
        <translation>Rot</translation>
    </message>
    <message>
        <source>G</source>
        <translation>G</translation>
    </message>
    <message>
        <source>Green</source>
        <translation>Grün</translation>
    </message>
    <message>
        <source>B</source>
        <translation>B</translation>
    </message>
    <message>
        <source>Blue</source>
        <translation>Blau</translation>
    </message>
    <message>
        <source>A</source>
        <translation>A</translation>
    </message>
    <message>
        <source>Opacity</source>
        <translation>Deckkraft</translation>
    </message>
    <message>
        <source>H°</source>
        <translation>H°</translation>
    </message>
    <message>
        <source>Hue in degrees</source>
        <translation>Farbton in Grad</translation>
    </message>
    <message>
        <source>S</source>
        <translation>S</translation>
    </message>
    <message>
        <source>Saturation</source>
        <translation>Sättigung</translation>
    </message>
    <message>
        <source>V</source>
        <translation>V</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Hellwert</translation>
    </message>
    <message>
        <source>Hexadecimal colour</source>
        <translation>Hexadezimale Farbe</translation>
    </message>
    <message>
        <source>Hex</source>
        <translation>Hex</translation>
    </message>
    <message>
        <source>Pick from the screen</source>
        <translation>Vom Bildschirm aufnehmen</translation>
    </message>
    <message>
        <source>Takes the colour of the pixel that is clicked next. Escape ends it.</source>
        <translation>Nimmt die Farbe des Pixels, auf das als Nächstes geklickt wird. Esc bricht ab.</translation>
    </message>
    <message>
        <source>The colours of the screen can&apos;t be read here.</source>
        <translation>Die Farben des Bildschirms lassen sich hier nicht lesen.</translation>
    </message>
    <message>
        <source>“%1” isn&apos;t a hexadecimal colour. Needed are six digits such as #ff8000, or three.</source>
        <translation>„%1“ ist keine hexadezimale Farbe. Gebraucht werden sechs Ziffern wie #ff8000, oder drei.</translation>
    </message>
</context>
<context>
    <name>ColorSquare</name>
    <message>
        <source>Saturation and value</source>
        <translation>Sättigung und Hellwert</translation>
    </message>
</context>
<context>
    <name>ComparisonDock</name>
    <message>
        <source>Comparison</source>
        <translation>Vergleich</translation>
    </message>
</context>
<context>
    <name>ComparisonJob</name>
    <message>
        <source>The comparison with %1 doesn&apos;t fit in memory.</source>
        <translation>Der Vergleich mit %1 passt nicht in den Speicher.</translation>
    </message>
</context>
<context>
    <name>DifferenceModel</name>
    <message>
        <source>%1, ignored</source>
        <translation>%1, ignoriert</translation>
    </message>
    <message>
        <source>Node</source>
        <translation>Knoten</translation>
    </message>
    <message>
        <source>Field or Change</source>
        <translation>Feld oder Änderung</translation>
    </message>
    <message>
        <source>This Scene</source>
        <translation>Diese Szene</translation>
    </message>
    <message>
        <source>Other File</source>
        <translation>Andere Datei</translation>
    </message>
</context>
<context>
    <name>DifferencePanel</name>
    <message>
        <source>Shows the rows that contain these words. not, or, brackets, &quot;texts with blanks&quot; and /regular expressions/ may be used.</source>
        <translation>Zeigt die Zeilen, die diese Wörter enthalten. not, or, Klammern, &quot;Texte mit Leerzeichen&quot; und /reguläre Ausdrücke/ sind möglich.</translation>
    </message>
    <message>
        <source>Compare Again</source>
        <translation>Erneut vergleichen</translation>
    </message>
    <message>
        <source>Compares the scene as it is now</source>
        <translation>Vergleicht die Szene, wie sie jetzt ist</translation>
    </message>
    <message>
        <source>Differences</source>
        <translation>Unterschiede</translation>
    </message>
    <message>
        <source>File &gt; Compare With compares the open scene with a file.</source>
        <translation>Datei &gt; Vergleichen mit vergleicht die geöffnete Szene mit einer Datei.</translation>
    </message>
    <message>
        <source>Comparing with %1…</source>
        <translation>Vergleich mit %1…</translation>
    </message>
    <message>
        <source>No differences: the scene and %1 are equal.</source>
        <translation>Keine Unterschiede: Die Szene und %1 sind gleich.</translation>
    </message>
    <message>
        <source>No differences from %1</source>
        <translation>Keine Unterschiede zu %1</translation>
    </message>
    <message>
        <source>1 difference from %1</source>
        <translation>1 Unterschied zu %1</translation>
    </message>
    <message>
        <source>%1 differences from %2</source>
        <translation>%1 Unterschiede zu %2</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>Copying %1 differences</source>
        <translation>%1 Unterschiede werden kopiert</translation>
    </message>
</context>
<context>
    <name>DiskChangeBar</name>
    <message>
        <source>%1 has changed on disk.</source>
        <translation>%1 wurde auf dem Datenträger geändert.</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Neu laden</translation>
    </message>
    <message>
        <source>Keep Mine</source>
        <translation>Meine behalten</translation>
    </message>
    <message>
        <source>Compare</source>
        <translation>Vergleichen</translation>
    </message>
    <message>
        <source>%1 was deleted or moved. The scene is still here: save it to keep it.</source>
        <translation>%1 wurde gelöscht oder verschoben. Die Szene ist noch hier: Speichern Sie sie, um sie zu behalten.</translation>
    </message>
    <message>
        <source>%1 was deleted or moved. The scene is still here, and saving writes the file again.</source>
        <translation>%1 wurde gelöscht oder verschoben. Die Szene ist noch hier, und Speichern schreibt die Datei erneut.</translation>
    </message>
    <message>
        <source>%1 was replaced by something that is no file. The scene is still here: save it under another name.</source>
        <translation>%1 wurde durch etwas ersetzt, das keine Datei ist. Die Szene ist noch hier: Speichern Sie sie unter einem anderen Namen.</translation>
    </message>
    <message>
        <source>It can&apos;t be seen whether %1 has changed on disk, because it can&apos;t be read: %2</source>
        <translation>Ob %1 auf dem Datenträger geändert wurde, ist nicht zu erkennen, weil die Datei nicht lesbar ist: %2</translation>
    </message>
</context>
<context>
    <name>DisplayMenu</name>
    <message>
        <source>Disp&amp;lay</source>
        <translation>Dars&amp;tellung</translation>
    </message>
    <message>
        <source>&amp;Shaded</source>
        <translation>&amp;Schattiert</translation>
    </message>
    <message>
        <source>Shows materials and textures in the light of the scene</source>
        <translation>Zeigt Materialien und Texturen im Licht der Szene</translation>
    </message>
    <message>
        <source>&amp;Unlit</source>
        <translation>&amp;Unbeleuchtet</translation>
    </message>
    <message>
        <source>Shows materials and textures without light and shade</source>
        <translation>Zeigt Materialien und Texturen ohne Licht und Schatten</translation>
    </message>
    <message>
        <source>&amp;Normals</source>
        <translation>&amp;Normalen</translation>
    </message>
    <message>
        <source>Shows the normals: x red, y green, z blue, from -1 dark to 1 bright</source>
        <translation>Zeigt die Normalen: x rot, y grün, z blau, von -1 dunkel bis 1 hell</translation>
    </message>
    <message>
        <source>&amp;Texture Coordinates</source>
        <translation>&amp;Texturkoordinaten</translation>
    </message>
    <message>
        <source>Shows the texture coordinates as a checker, u in red and v in green</source>
        <translation>Zeigt die Texturkoordinaten als Schachbrett, u in Rot und v in Grün</translation>
    </message>
    <message>
        <source>&amp;Vertex Colors</source>
        <translation>&amp;Eckpunktfarben</translation>
    </message>
    <message>
        <source>Shows the colors of the meshes alone</source>
        <translation>Zeigt nur die Farben der Netze</translation>
    </message>
    <message>
        <source>&amp;Wireframe over Surfaces</source>
        <translation>&amp;Drahtgitter über Flächen</translation>
    </message>
    <message>
        <source>Shows the sides of the triangles over the surfaces</source>
        <translation>Zeigt die Seiten der Dreiecke über den Flächen</translation>
    </message>
    <message>
        <source>&amp;Head Light</source>
        <translation>&amp;Kopflicht</translation>
    </message>
    <message>
        <source>Adds a light at the viewer&apos;s eye to those of the scene</source>
        <translation>Ergänzt die Lichter der Szene um eines am Auge des Betrachters</translation>
    </message>
    <message>
        <source>Other &amp;Background</source>
        <translation>Anderer &amp;Hintergrund</translation>
    </message>
    <message>
        <source>Shows the scene on light, on dark, or as the window is, so that lines and points of any color are seen</source>
        <translation>Zeigt die Szene auf Hell, auf Dunkel oder wie das Fenster, sodass Linien und Punkte jeder Farbe zu sehen sind</translation>
    </message>
    <message>
        <source>Se&amp;ction Plane</source>
        <translation>S&amp;chnittebene</translation>
    </message>
    <message>
        <source>Cuts the scene open along a plane</source>
        <translation>Schneidet die Szene an einer Ebene auf</translation>
    </message>
    <message>
        <source>St&amp;atistics</source>
        <translation>St&amp;atistik</translation>
    </message>
    <message>
        <source>Shows nodes, triangles, draw calls, memory and time of the picture</source>
        <translation>Zeigt Knoten, Dreiecke, Zeichenaufrufe, Speicher und Zeit des Bildes</translation>
    </message>
</context>
<context>
    <name>DraggedNodes</name>
    <message>
        <source>The nodes can&apos;t be dragged to other programs: %1</source>
        <translation>Die Knoten lassen sich nicht in andere Programme ziehen: %1</translation>
    </message>
</context>
<context>
    <name>EditMenu</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Undo</source>
        <translation>&amp;Rückgängig</translation>
    </message>
    <message>
        <source>Takes back the last step</source>
        <translation>Nimmt den letzten Schritt zurück</translation>
    </message>
    <message>
        <source>&amp;Redo</source>
        <translation>&amp;Wiederherstellen</translation>
    </message>
    <message>
        <source>Makes the step again that was taken back last</source>
        <translation>Stellt den zuletzt zurückgenommenen Schritt wieder her</translation>
    </message>
    <message>
        <source>Re&amp;name Node</source>
        <translation>Knoten um&amp;benennen</translation>
    </message>
    <message>
        <source>Edits the name of the selected node in the tree</source>
        <translation>Bearbeitet den Namen des ausgewählten Knotens im Baum</translation>
    </message>
    <message>
        <source>There is no such step.</source>
        <translation>Es gibt keinen solchen Schritt.</translation>
    </message>
    <message>
        <source>Select a node first.</source>
        <translation>Zuerst einen Knoten auswählen.</translation>
    </message>
</context>
<context>
    <name>EditTexts</name>
    <message>
        <source>%1 nodes</source>
        <translation>%1 Knoten</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Duplicate %1</source>
        <translation>%1 duplizieren</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>%1 gruppieren</translation>
    </message>
    <message>
        <source>Ungroup %1</source>
        <translation>Gruppe %1 auflösen</translation>
    </message>
    <message>
        <source>Ungroup %1 groups</source>
        <translation>%1 Gruppen auflösen</translation>
    </message>
    <message>
        <source>Make own copy of %1</source>
        <translation>Eigene Kopie von %1 anlegen</translation>
    </message>
    <message>
        <source>Reorder %1</source>
        <translation>%1 umordnen</translation>
    </message>
    <message>
        <source>Move %1 to the top</source>
        <translation>%1 nach oben verschieben</translation>
    </message>
    <message>
        <source>Move %1 to %2</source>
        <translation>%1 nach %2 verschieben</translation>
    </message>
    <message>
        <source>Move %1 out of their groups</source>
        <translation>%1 aus ihren Gruppen herausnehmen</translation>
    </message>
    <message>
        <source>Move %1 out of %2</source>
        <translation>%1 aus %2 herausnehmen</translation>
    </message>
    <message>
        <source>Move %1 into the group above</source>
        <translation>%1 in die Gruppe darüber verschieben</translation>
    </message>
    <message>
        <source>Use %1 at the top</source>
        <translation>%1 ganz oben verwenden</translation>
    </message>
    <message>
        <source>Use %1 in %2</source>
        <translation>%1 in %2 verwenden</translation>
    </message>
    <message>
        <source>Copy %1 to the top</source>
        <translation>%1 nach oben kopieren</translation>
    </message>
    <message>
        <source>Copy %1 to %2</source>
        <translation>%1 nach %2 kopieren</translation>
    </message>
    <message>
        <source>Cut %1</source>
        <translation>%1 ausschneiden</translation>
    </message>
    <message>
        <source>Paste %1</source>
        <translation>%1 einfügen</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>%1 can&apos;t be copied: its class makes no nodes, or the memory isn&apos;t enough.</source>
        <translation>%1 lässt sich nicht kopieren: Die Klasse erzeugt keine Knoten, oder der Speicher reicht nicht.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be put into itself or into a node below it.</source>
        <translation>%1 lässt sich nicht in sich selbst oder einen Knoten darunter verschieben.</translation>
    </message>
    <message>
        <source>%1 is the first node in its group.</source>
        <translation>%1 ist der erste Knoten seiner Gruppe.</translation>
    </message>
    <message>
        <source>The selected nodes are the first ones in their groups.</source>
        <translation>Die ausgewählten Knoten sind die ersten ihrer Gruppen.</translation>
    </message>
    <message>
        <source>%1 is the last node in its group.</source>
        <translation>%1 ist der letzte Knoten seiner Gruppe.</translation>
    </message>
    <message>
        <source>The selected nodes are the last ones in their groups.</source>
        <translation>Die ausgewählten Knoten sind die letzten ihrer Gruppen.</translation>
    </message>
    <message>
        <source>%1 is in no group that it could leave.</source>
        <translation>%1 ist in keiner Gruppe, die der Knoten verlassen könnte.</translation>
    </message>
    <message>
        <source>The selected nodes are in no groups that they could leave.</source>
        <translation>Die ausgewählten Knoten sind in keinen Gruppen, die sie verlassen könnten.</translation>
    </message>
    <message>
        <source>There is no group directly above %1 that could take it.</source>
        <translation>Direkt über %1 gibt es keine Gruppe, die den Knoten aufnehmen könnte.</translation>
    </message>
    <message>
        <source>There is no group directly above the selected nodes that could take them.</source>
        <translation>Direkt über den ausgewählten Knoten gibt es keine Gruppe, die sie aufnehmen könnte.</translation>
    </message>
    <message>
        <source>%1 is no group that can be dissolved.</source>
        <translation>%1 ist keine Gruppe, die sich auflösen lässt.</translation>
    </message>
    <message>
        <source>None of the selected nodes is a group that can be dissolved.</source>
        <translation>Keiner der ausgewählten Knoten ist eine Gruppe, die sich auflösen lässt.</translation>
    </message>
    <message>
        <source>%1 is in one place only, so it needs no copy of its own.</source>
        <translation>%1 ist nur an einer Stelle, braucht also keine eigene Kopie.</translation>
    </message>
    <message>
        <source>The selected nodes are in one place each, so they need no copies of their own.</source>
        <translation>Die ausgewählten Knoten sind nur an je einer Stelle, brauchen also keine eigenen Kopien.</translation>
    </message>
    <message>
        <source>A transform was added above the node, so that it keeps its place.</source>
        <translation>Über dem Knoten wurde eine Transformation ergänzt, damit er seinen Ort behält.</translation>
    </message>
    <message>
        <source>%1 transforms were added above nodes, so that these keep their places.</source>
        <translation>%1 Transformationen wurden über Knoten ergänzt, damit diese ihren Ort behalten.</translation>
    </message>
</context>
<context>
    <name>EditorImages</name>
    <message>
        <source>images of its folder aren&apos;t allowed</source>
        <translation>Bilder seines Ordners sind nicht erlaubt</translation>
    </message>
</context>
<context>
    <name>ExportJob</name>
    <message>
        <source>%1: This file exists already and would be overwritten by one that belongs to %2. Choose another name for the model, or move the file away.</source>
        <translation>%1: Diese Datei gibt es schon, und eine zu %2 gehörende würde sie überschreiben. Wählen Sie einen anderen Namen für das Modell, oder verschieben Sie die Datei.</translation>
    </message>
    <message>
        <source>%1: the name of a model needs a format behind its dot and something before it, as in model.glb</source>
        <translation>%1: Der Name eines Modells braucht ein Format hinter dem Punkt und etwas davor, etwa modell.glb</translation>
    </message>
    <message>
        <source>%1: the import helper sent something that isn&apos;t a model</source>
        <translation>%1: Das Importprogramm lieferte etwas, das kein Modell ist</translation>
    </message>
</context>
<context>
    <name>FactsText</name>
    <message>
        <source>above %1</source>
        <translation>über %1</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>below %1</source>
        <translation>unter %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>höchstens %1</translation>
    </message>
    <message>
        <source>%1 to %2</source>
        <translation>%1 bis %2</translation>
    </message>
    <message>
        <source>%1 and %2</source>
        <translation>%1 und %2</translation>
    </message>
    <message>
        <source>useful %1</source>
        <translation>sinnvoll %1</translation>
    </message>
    <message>
        <source>radians</source>
        <translation>Radiant</translation>
    </message>
    <message>
        <source>metres</source>
        <translation>Meter</translation>
    </message>
    <message>
        <source>per cent</source>
        <translation>Prozent</translation>
    </message>
    <message>
        <source>seconds</source>
        <translation>Sekunden</translation>
    </message>
</context>
<context>
    <name>FavoriteActions</name>
    <message>
        <source>Fa&amp;vorite Node</source>
        <translation>&amp;Favoritenknoten</translation>
    </message>
    <message>
        <source>Marks the selected node with a star, and adds it to the list of favorites</source>
        <translation>Markiert den ausgewählten Knoten mit einem Stern und fügt ihn der Liste der Favoriten hinzu</translation>
    </message>
    <message>
        <source>A scene has %1 favorites at most. Take the star from another one first.</source>
        <translation>Eine Szene hat höchstens %1 Favoriten. Zuerst einem anderen den Stern nehmen.</translation>
    </message>
    <message>
        <source>Select a node first.</source>
        <translation>Zuerst einen Knoten auswählen.</translation>
    </message>
    <message>
        <source>No favorites in this scene</source>
        <translation>Keine Favoriten in dieser Szene</translation>
    </message>
</context>
<context>
    <name>FavoriteModel</name>
    <message>
        <source>Favorite: %1 &quot;%2&quot;</source>
        <translation>Favorit: %1 „%2“</translation>
    </message>
</context>
<context>
    <name>FavoriteStrip</name>
    <message>
        <source>Favorite Nodes</source>
        <translation>Favoritenknoten</translation>
    </message>
</context>
<context>
    <name>FieldActions</name>
    <message>
        <source>&amp;Edit</source>
        <translation>&amp;Bearbeiten</translation>
    </message>
    <message>
        <source>Opens the editor of the value</source>
        <translation>Öffnet den Editor des Wertes</translation>
    </message>
    <message>
        <source>&amp;Copy Value</source>
        <translation>Wert &amp;kopieren</translation>
    </message>
    <message>
        <source>Copies the value as text</source>
        <translation>Kopiert den Wert als Text</translation>
    </message>
    <message>
        <source>&amp;Paste Value</source>
        <translation>Wert &amp;einfügen</translation>
    </message>
    <message>
        <source>Writes the value of the clipboard</source>
        <translation>Schreibt den Wert aus der Zwischenablage</translation>
    </message>
    <message>
        <source>Copy P&amp;ath</source>
        <translation>&amp;Pfad kopieren</translation>
    </message>
    <message>
        <source>Copies the path of the field in the scene</source>
        <translation>Kopiert den Pfad des Feldes in der Szene</translation>
    </message>
    <message>
        <source>Copy as --&amp;set Argument</source>
        <translation>Als --&amp;set-Argument kopieren</translation>
    </message>
    <message>
        <source>Copies path and value as an argument of the command line</source>
        <translation>Kopiert Pfad und Wert als Argument der Befehlszeile</translation>
    </message>
    <message>
        <source>Copy A&amp;ll Fields</source>
        <translation>&amp;Alle Felder kopieren</translation>
    </message>
    <message>
        <source>Copies all values of the node</source>
        <translation>Kopiert alle Werte des Knotens</translation>
    </message>
    <message>
        <source>Copy Fields of This &amp;Group</source>
        <translation>Felder dieser &amp;Gruppe kopieren</translation>
    </message>
    <message>
        <source>Copies the values of this group of fields</source>
        <translation>Kopiert die Werte dieser Gruppe von Feldern</translation>
    </message>
    <message>
        <source>Paste All F&amp;ields</source>
        <translation>Alle &amp;Felder einfügen</translation>
    </message>
    <message>
        <source>Writes all values of the clipboard to fields of the same name</source>
        <translation>Schreibt alle Werte der Zwischenablage in Felder gleichen Namens</translation>
    </message>
    <message>
        <source>&amp;Reset to Default</source>
        <translation>Auf &amp;Vorgabe zurücksetzen</translation>
    </message>
    <message>
        <source>Gives the field its default value</source>
        <translation>Gibt dem Feld seinen Vorgabewert</translation>
    </message>
    <message>
        <source>I&amp;gnore</source>
        <translation>&amp;Ignorieren</translation>
    </message>
    <message>
        <source>Makes the scene behave as if the field had its default</source>
        <translation>Die Szene verhält sich, als hätte das Feld seinen Vorgabewert</translation>
    </message>
    <message>
        <source>&amp;Favorite</source>
        <translation>Fav&amp;orit</translation>
    </message>
    <message>
        <source>Keeps the field on top for all nodes of this class</source>
        <translation>Hält das Feld bei allen Knoten dieser Klasse oben</translation>
    </message>
    <message>
        <source>&amp;Write When Done</source>
        <translation>Erst am Ende sch&amp;reiben</translation>
    </message>
    <message>
        <source>While you drag, step or use a popup, the value is only shown; it is written when you are done.</source>
        <translation>Beim Ziehen, beim schrittweisen Ändern und im Popup wird der Wert nur angezeigt und erst am Ende geschrieben.</translation>
    </message>
    <message>
        <source>Select &amp;Nodes with This Value</source>
        <translation>K&amp;noten mit diesem Wert auswählen</translation>
    </message>
    <message>
        <source>Selects all nodes whose field has this value</source>
        <translation>Wählt alle Knoten aus, deren Feld diesen Wert hat</translation>
    </message>
    <message>
        <source>%1 nodes</source>
        <translation>%1 Knoten</translation>
    </message>
    <message>
        <source>&amp;Open List</source>
        <translation>&amp;Liste öffnen</translation>
    </message>
    <message>
        <source>The %1 nodes have different values. Select one of them to copy its value.</source>
        <translation>Die %1 Knoten haben verschiedene Werte. Wählen Sie einen davon aus, um seinen Wert zu kopieren.</translation>
    </message>
    <message>
        <source>There is no field to copy that has one value.</source>
        <translation>Kein Feld mit einem einheitlichen Wert lässt sich kopieren.</translation>
    </message>
    <message>
        <source>The %1 nodes have different values. Select one of them first.</source>
        <translation>Die %1 Knoten haben verschiedene Werte. Zuerst einen davon auswählen.</translation>
    </message>
    <message>
        <source>No other node has this value of %1.</source>
        <translation>Kein anderer Knoten hat diesen Wert von %1.</translation>
    </message>
</context>
<context>
    <name>FieldButtons</name>
    <message>
        <source>Set to default</source>
        <translation>Auf Vorgabewert setzen</translation>
    </message>
    <message>
        <source>Ignore this field</source>
        <translation>Dieses Feld ignorieren</translation>
    </message>
</context>
<context>
    <name>FieldClipboard</name>
    <message>
        <source>Choose the field to paste to.</source>
        <translation>Wählen Sie das Feld, in das eingefügt werden soll.</translation>
    </message>
    <message>
        <source>The clipboard has %1 fields, not one value. Paste All Fields sets those that the node has.</source>
        <translation>Die Zwischenablage enthält %1 Felder, nicht einen Wert. „Alle Felder einfügen“ setzt die, die der Knoten hat.</translation>
    </message>
    <message>
        <source>The clipboard has no text.</source>
        <translation>Die Zwischenablage enthält keinen Text.</translation>
    </message>
    <message>
        <source>The clipboard has the value of %1, a field of type %2. %3</source>
        <translation>Die Zwischenablage enthält den Wert von %1, einem Feld vom Typ %2. %3</translation>
    </message>
    <message>
        <source>The clipboard has no fields. Copy All Fields copies those of a node.</source>
        <translation>Die Zwischenablage enthält keine Felder. „Alle Felder kopieren“ kopiert die eines Knotens.</translation>
    </message>
    <message>
        <source>None of the fields on the clipboard is a field of %1.</source>
        <translation>Keines der Felder der Zwischenablage ist ein Feld von %1.</translation>
    </message>
    <message>
        <source>Paste %1 fields to %2</source>
        <translation>%1 Felder in %2 einfügen</translation>
    </message>
    <message>
        <source>%1 fields were pasted. %2 has no field %3.</source>
        <translation>%1 Felder wurden eingefügt. %2 hat kein Feld %3.</translation>
    </message>
</context>
<context>
    <name>FieldColumns</name>
    <message>
        <source>Show &amp;Types</source>
        <translation>&amp;Typen anzeigen</translation>
    </message>
    <message>
        <source>Shows the column with the types of the fields</source>
        <translation>Zeigt die Spalte mit den Typen der Felder</translation>
    </message>
</context>
<context>
    <name>FieldFilterBar</name>
    <message>
        <source>Filter the fields</source>
        <translation>Felder filtern</translation>
    </message>
    <message>
        <source>Filter by name, type or value</source>
        <translation>Nach Name, Typ oder Wert filtern</translation>
    </message>
    <message>
        <source>Letters of the name or the type in their order, words of the value, or a query: f:radius, t:Vec3f, &gt;0.5, =true, ~text, changed, ignored, not, or, brackets, /regular expressions/.</source>
        <translation>Buchstaben des Namens oder Typs in ihrer Reihenfolge, Wörter des Wertes oder eine Abfrage: f:radius, t:Vec3f, &gt;0.5, =true, ~text, changed, ignored, not, or, Klammern, /reguläre Ausdrücke/.</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>Show only fields that differ from their defaults.</source>
        <translation>Nur Felder anzeigen, die von ihren Vorgabewerten abweichen.</translation>
    </message>
    <message>
        <source>Show only changed fields</source>
        <translation>Nur geänderte Felder anzeigen</translation>
    </message>
</context>
<context>
    <name>FieldGroup</name>
    <message>
        <source>Favorites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Unknown fields</source>
        <translation>Unbekannte Felder</translation>
    </message>
</context>
<context>
    <name>FieldPanel</name>
    <message>
        <source>Select a node in the view or the scene tree to see its fields.</source>
        <translation>Wählen Sie einen Knoten in der Ansicht oder im Szenenbaum aus, um seine Felder zu sehen.</translation>
    </message>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>%1 nodes, the last one: %2</source>
        <translation>%1 Knoten, der letzte: %2</translation>
    </message>
    <message>
        <source>These nodes have no field in common.</source>
        <translation>Diese Knoten haben kein gemeinsames Feld.</translation>
    </message>
    <message>
        <source>Nodes of this class have no fields.</source>
        <translation>Knoten dieser Klasse haben keine Felder.</translation>
    </message>
    <message>
        <source>No field fits the filter.</source>
        <translation>Kein Feld passt zum Filter.</translation>
    </message>
</context>
<context>
    <name>FieldPart</name>
    <message>
        <source>Edit %1</source>
        <translation>%1 bearbeiten</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>gemischt</translation>
    </message>
    <message>
        <source>This number is unusual.</source>
        <translation>Diese Zahl ist ungewöhnlich.</translation>
    </message>
    <message>
        <source>This number makes no sense here.</source>
        <translation>Diese Zahl ist hier nicht sinnvoll.</translation>
    </message>
    <message>
        <source>This value isn&apos;t written yet.</source>
        <translation>Dieser Wert ist noch nicht geschrieben.</translation>
    </message>
</context>
<context>
    <name>FieldRow</name>
    <message>
        <source>unknown</source>
        <translation>unbekannt</translation>
    </message>
    <message>
        <source>1 value</source>
        <translation>1 Wert</translation>
    </message>
    <message>
        <source>%1 values</source>
        <translation>%1 Werte</translation>
    </message>
    <message>
        <source>%1 bytes</source>
        <translation>%1 Bytes</translation>
    </message>
    <message>
        <source>Click to show the field&apos;s own editor.</source>
        <translation>Klicken, um den eigenen Editor des Feldes zu zeigen.</translation>
    </message>
    <message>
        <source>Choose a colour</source>
        <translation>Farbe wählen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t the text of a value of the type %2; the former value stays.</source>
        <translation>„%1“ ist nicht der Text eines Wertes vom Typ %2; der bisherige Wert bleibt.</translation>
    </message>
</context>
<context>
    <name>FieldSet</name>
    <message>
        <source>%1 of %L2 nodes</source>
        <translation>%1 von %L2 Knoten</translation>
    </message>
</context>
<context>
    <name>FieldTableModel</name>
    <message>
        <source>%1 changed</source>
        <translation>%1 geändert</translation>
    </message>
    <message>
        <source>mixed</source>
        <translation>gemischt</translation>
    </message>
    <message>
        <source>%1, not written yet</source>
        <translation>%1, noch nicht geschrieben</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Marks</source>
        <translation>Marken</translation>
    </message>
</context>
<context>
    <name>FieldTableView</name>
    <message>
        <source>Fields</source>
        <translation>Felder</translation>
    </message>
</context>
<context>
    <name>FieldTitleBar</name>
    <message>
        <source>Float or dock</source>
        <translation>Lösen oder andocken</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1
The lock is on: it stays on this field.</source>
        <translation>%1
Fixiert: bleibt auf diesem Feld.</translation>
    </message>
</context>
<context>
    <name>FieldToolTip</name>
    <message>
        <source>Unit: %1</source>
        <translation>Einheit: %1</translation>
    </message>
    <message>
        <source>Range: %1</source>
        <translation>Bereich: %1</translation>
    </message>
    <message>
        <source>The %1 nodes have different values.</source>
        <translation>Die %1 Knoten haben verschiedene Werte.</translation>
    </message>
    <message>
        <source>Value: %1</source>
        <translation>Wert: %1</translation>
    </message>
    <message>
        <source>This is the default.</source>
        <translation>Das ist der Vorgabewert.</translation>
    </message>
    <message>
        <source>Default: %1</source>
        <translation>Vorgabe: %1</translation>
    </message>
    <message>
        <source>The class of this node has no such field. It is kept and written back as it was.</source>
        <translation>Die Klasse dieses Knotens hat kein solches Feld. Es bleibt erhalten und wird unverändert gespeichert.</translation>
    </message>
    <message>
        <source>Type: %1</source>
        <translation>Typ: %1</translation>
    </message>
    <message>
        <source>Ignored: the scene takes no notice of this value.</source>
        <translation>Ignoriert: Die Szene beachtet diesen Wert nicht.</translation>
    </message>
    <message>
        <source>The fields of this class that have a star.</source>
        <translation>Die Felder dieser Klasse, die einen Stern haben.</translation>
    </message>
    <message>
        <source>The class of this node has no such fields. They are kept and written back as they were.</source>
        <translation>Die Klasse dieses Knotens hat keine solchen Felder. Sie bleiben erhalten und werden unverändert gespeichert.</translation>
    </message>
    <message>
        <source>The fields that the class %1 declares.</source>
        <translation>Die Felder, die die Klasse %1 deklariert.</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>ignored</source>
        <translation>ignoriert</translation>
    </message>
    <message>
        <source>favorite</source>
        <translation>Favorit</translation>
    </message>
</context>
<context>
    <name>FieldWriter</name>
    <message>
        <source>There is no field to set.</source>
        <translation>Es gibt kein Feld zum Setzen.</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t consist of numbers.</source>
        <translation>%1 besteht nicht aus Zahlen.</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>&quot;%1&quot; can&apos;t be taken. %2</source>
        <translation>„%1“ wird nicht angenommen. %2</translation>
    </message>
    <message>
        <source>%1 is a field of type %2; a value of type %3 can&apos;t be copied to it.</source>
        <translation>%1 ist ein Feld vom Typ %2; ein Wert vom Typ %3 lässt sich nicht dorthin kopieren.</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>%1 zurücksetzen</translation>
    </message>
    <message>
        <source>The fields can&apos;t be changed: the values don&apos;t fit in memory.</source>
        <translation>Die Felder lassen sich nicht ändern: Die Werte passen nicht in den Speicher.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be changed: the values don&apos;t fit in memory.</source>
        <translation>%1 lässt sich nicht ändern: Die Werte passen nicht in den Speicher.</translation>
    </message>
</context>
<context>
    <name>FileDialogs</name>
    <message>
        <source>Open</source>
        <translation>Öffnen</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Compare With</source>
        <translation>Vergleichen mit</translation>
    </message>
    <message>
        <source>Save Scene</source>
        <translation>Szene speichern</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
</context>
<context>
    <name>FileDrops</name>
    <message>
        <source>Only files can be dropped here.</source>
        <translation>Hier lassen sich nur Dateien ablegen.</translation>
    </message>
    <message>
        <source>Open a scene before you drop an image.</source>
        <translation>Öffnen Sie eine Szene, bevor Sie ein Bild ablegen.</translation>
    </message>
    <message>
        <source>Drop an image onto a mesh or a material, whose texture it is to be.</source>
        <translation>Legen Sie ein Bild auf einem Netz oder Material ab, um es als Textur zu verwenden.</translation>
    </message>
    <message>
        <source>Drop a single image: a mesh has one texture at a time.</source>
        <translation>Legen Sie ein einzelnes Bild ab: Ein Netz hat nur eine Textur zugleich.</translation>
    </message>
    <message>
        <source>Makes the image a texture of %1</source>
        <translation>Macht das Bild zu einer Textur von %1</translation>
    </message>
    <message>
        <source>%1 files</source>
        <translation>%1 Dateien</translation>
    </message>
    <message>
        <source>Opens %1</source>
        <translation>Öffnet %1</translation>
    </message>
    <message>
        <source>Adds %1 to the scene</source>
        <translation>Fügt der Szene %1 hinzu</translation>
    </message>
    <message>
        <source>Adds %1 to %2</source>
        <translation>Fügt %1 zu %2 hinzu</translation>
    </message>
    <message>
        <source>Other files are still being added; drop these when that is done.</source>
        <translation>Andere Dateien werden noch hinzugefügt; legen Sie diese danach ab.</translation>
    </message>
    <message>
        <source>%1 is an address on the net. Download the file and drop that.</source>
        <translation>%1 ist eine Netzadresse. Laden Sie die Datei herunter und legen Sie diese ab.</translation>
    </message>
    <message>
        <source>%1 doesn&apos;t exist.</source>
        <translation>%1 gibt es nicht.</translation>
    </message>
    <message>
        <source>%1 is a folder. Drop the files in it.</source>
        <translation>%1 ist ein Ordner. Legen Sie die Dateien darin ab.</translation>
    </message>
    <message>
        <source>%1 is no file that can be added: neither a scene, nor a model or an image that the tool knows by its name.</source>
        <translation>%1 ist keine Datei, die sich hinzufügen lässt: weder eine Szene noch ein Modell oder ein Bild mit bekannter Namensendung.</translation>
    </message>
    <message>
        <source>Add texture to %1</source>
        <translation>Textur zu %1 hinzufügen</translation>
    </message>
    <message>
        <source>Add %1 files</source>
        <translation>%1 Dateien hinzufügen</translation>
    </message>
</context>
<context>
    <name>FileFilters</name>
    <message>
        <source>Scenes and models</source>
        <translation>Szenen und Modelle</translation>
    </message>
    <message>
        <source>Scenes</source>
        <translation>Szenen</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>Models</source>
        <translation>Modelle</translation>
    </message>
</context>
<context>
    <name>FileFlow</name>
    <message>
        <source>A new scene was made instead.</source>
        <translation>Stattdessen wurde eine neue Szene angelegt.</translation>
    </message>
    <message>
        <source>The scene was closed.</source>
        <translation>Die Szene wurde geschlossen.</translation>
    </message>
    <message>
        <source>No scene is open.</source>
        <translation>Keine Szene ist geöffnet.</translation>
    </message>
    <message>
        <source>%1 is being opened.</source>
        <translation>%1 wird geöffnet.</translation>
    </message>
    <message>
        <source>Opening %1 was cancelled.</source>
        <translation>Das Öffnen von %1 wurde abgebrochen.</translation>
    </message>
</context>
<context>
    <name>FileLook</name>
    <message>
        <source>can&apos;t be read: %1</source>
        <translation>ist nicht lesbar: %1</translation>
    </message>
    <message>
        <source>is in none of the image formats that can be read</source>
        <translation>hat keines der lesbaren Bildformate</translation>
    </message>
    <message>
        <source>is broken: it doesn&apos;t state the size of its image</source>
        <translation>ist beschädigt: die Größe des Bildes fehlt</translation>
    </message>
    <message>
        <source>has %1 by %2 pixels; images of more than %3 pixels, or %4 a side, aren&apos;t read</source>
        <translation>hat %1 mal %2 Pixel; Bilder mit mehr als %3 Pixeln oder %4 je Seite werden nicht gelesen</translation>
    </message>
    <message>
        <source>isn&apos;t a regular file</source>
        <translation>ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>is empty</source>
        <translation>ist leer</translation>
    </message>
    <message>
        <source>is larger than %1 MiB</source>
        <translation>ist größer als %1 MiB</translation>
    </message>
    <message>
        <source>is in no folder, since the scene isn&apos;t saved yet</source>
        <translation>ist in keinem Ordner, weil die Szene noch nicht gespeichert ist</translation>
    </message>
</context>
<context>
    <name>FileMenu</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Datei</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Neu</translation>
    </message>
    <message>
        <source>Starts an empty scene</source>
        <translation>Beginnt eine leere Szene</translation>
    </message>
    <message>
        <source>&amp;Open…</source>
        <translation>&amp;Öffnen…</translation>
    </message>
    <message>
        <source>Opens a scene or a model</source>
        <translation>Öffnet eine Szene oder ein Modell</translation>
    </message>
    <message>
        <source>Open &amp;Recent</source>
        <translation>&amp;Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Save</source>
        <translation>&amp;Speichern</translation>
    </message>
    <message>
        <source>Writes the scene to its file</source>
        <translation>Schreibt die Szene in ihre Datei</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>Writes the scene to another file, which becomes its own</source>
        <translation>Schreibt die Szene in eine andere Datei, die dann die ihre wird</translation>
    </message>
    <message>
        <source>Re&amp;load from Disk</source>
        <translation>Neu vom Datenträger &amp;laden</translation>
    </message>
    <message>
        <source>Makes the scene equal to its file again; undo brings your changes back</source>
        <translation>Macht die Szene wieder gleich ihrer Datei; Rückgängig bringt Ihre Änderungen zurück</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importieren…</translation>
    </message>
    <message>
        <source>Adds the content of a file to the scene</source>
        <translation>Fügt der Szene den Inhalt einer Datei hinzu</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren…</translation>
    </message>
    <message>
        <source>Writes the scene to a file of another format</source>
        <translation>Schreibt die Szene in eine Datei eines anderen Formats</translation>
    </message>
    <message>
        <source>Compare &amp;With…</source>
        <translation>&amp;Vergleichen mit…</translation>
    </message>
    <message>
        <source>Shows how the scene differs from a file</source>
        <translation>Zeigt, wie sich die Szene von einer Datei unterscheidet</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Closes the scene</source>
        <translation>Schließt die Szene</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Closes the window and ends the program</source>
        <translation>Schließt das Fenster und beendet das Programm</translation>
    </message>
    <message>
        <source>&amp;Clear List</source>
        <translation>Liste &amp;leeren</translation>
    </message>
    <message>
        <source>Forgets which files were opened</source>
        <translation>Vergisst, welche Dateien geöffnet wurden</translation>
    </message>
    <message>
        <source>No scene is open.</source>
        <translation>Keine Szene ist geöffnet.</translation>
    </message>
    <message>
        <source>The scene has no file yet.</source>
        <translation>Die Szene hat noch keine Datei.</translation>
    </message>
    <message>
        <source>New Win&amp;dow</source>
        <translation>Neues &amp;Fenster</translation>
    </message>
    <message>
        <source>Opens another window, with a program of its own</source>
        <translation>Öffnet ein weiteres Fenster mit eigenem Programm</translation>
    </message>
</context>
<context>
    <name>FileRequests</name>
    <message>
        <source>a file</source>
        <translation>einer Datei</translation>
    </message>
    <message>
        <source>making a new scene</source>
        <translation>Anlegen einer neuen Szene</translation>
    </message>
    <message>
        <source>opening %1</source>
        <translation>Öffnen von %1</translation>
    </message>
    <message>
        <source>adding %1</source>
        <translation>Hinzufügen von %1</translation>
    </message>
    <message>
        <source>comparing with %1</source>
        <translation>Vergleichen mit %1</translation>
    </message>
    <message>
        <source>reloading %1</source>
        <translation>Neuladen von %1</translation>
    </message>
    <message>
        <source>saving the scene</source>
        <translation>Speichern der Szene</translation>
    </message>
    <message>
        <source>saving %1</source>
        <translation>Speichern von %1</translation>
    </message>
    <message>
        <source>exporting to %1</source>
        <translation>Exportieren nach %1</translation>
    </message>
    <message>
        <source>closing the scene</source>
        <translation>Schließen der Szene</translation>
    </message>
    <message>
        <source>quitting</source>
        <translation>Beenden</translation>
    </message>
</context>
<context>
    <name>FileWork</name>
    <message>
        <source>Adding %1</source>
        <translation>%1 wird hinzugefügt</translation>
    </message>
    <message>
        <source>Reading %1 to compare it</source>
        <translation>%1 wird zum Vergleichen gelesen</translation>
    </message>
    <message>
        <source>Reloading %1</source>
        <translation>%1 wird neu geladen</translation>
    </message>
    <message>
        <source>Opening %1</source>
        <translation>%1 wird geöffnet</translation>
    </message>
    <message>
        <source>%1 is compared instead.</source>
        <translation>Stattdessen wird %1 verglichen.</translation>
    </message>
    <message>
        <source>%1 is opened instead.</source>
        <translation>Stattdessen wird %1 geöffnet.</translation>
    </message>
    <message>
        <source>Opening %1 was cancelled.</source>
        <translation>Das Öffnen von %1 wurde abgebrochen.</translation>
    </message>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>%1 wasn&apos;t written.</source>
        <translation>%1 wurde nicht geschrieben.</translation>
    </message>
    <message>
        <source>The scene was closed.</source>
        <translation>Die Szene wurde geschlossen.</translation>
    </message>
    <message>
        <source>Not done: %1. %2</source>
        <translation>Nicht ausgeführt: %1. %2</translation>
    </message>
</context>
<context>
    <name>FilterLine</name>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
</context>
<context>
    <name>FindLine</name>
    <message>
        <source>Find nodes</source>
        <translation>Knoten suchen</translation>
    </message>
    <message>
        <source>Words of the name or the class, or a query: t:Light, f:radius &gt;1, changed, unused, missing, not, or, brackets, /regular expressions/. Return goes to the next hit, Shift+Return to the previous one, Alt+Return selects all.</source>
        <translation>Wörter des Namens oder der Klasse oder eine Abfrage: t:Light, f:radius &gt;1, changed, unused, missing, not, or, Klammern, /reguläre Ausdrücke/. Return springt zum nächsten Treffer, Umschalt+Return zum vorigen, Alt+Return wählt alle aus.</translation>
    </message>
    <message>
        <source>Searches that are kept</source>
        <translation>Gespeicherte Suchen</translation>
    </message>
</context>
<context>
    <name>FindMenu</name>
    <message>
        <source>Searches for this again</source>
        <translation>Sucht erneut danach</translation>
    </message>
    <message>
        <source>&amp;Keep This Search…</source>
        <translation>Diese Suche &amp;speichern…</translation>
    </message>
    <message>
        <source>Nothing is searched for</source>
        <translation>Es wird nichts gesucht</translation>
    </message>
    <message>
        <source>Keeps the search by a name of your own</source>
        <translation>Speichert die Suche unter einem eigenen Namen</translation>
    </message>
    <message>
        <source>This search is kept already</source>
        <translation>Diese Suche ist schon gespeichert</translation>
    </message>
    <message>
        <source>&amp;Rename…</source>
        <translation>&amp;Umbenennen…</translation>
    </message>
    <message>
        <source>&amp;Rename “%1”…</source>
        <translation>„%1“ &amp;umbenennen…</translation>
    </message>
    <message>
        <source>&amp;Delete</source>
        <translation>&amp;Löschen</translation>
    </message>
    <message>
        <source>&amp;Delete “%1”</source>
        <translation>„%1“ &amp;löschen</translation>
    </message>
    <message>
        <source>Choose a kept search first</source>
        <translation>Zuerst eine gespeicherte Suche auswählen</translation>
    </message>
    <message>
        <source>Stores the search with the settings, by a name</source>
        <translation>Speichert die Suche unter einem Namen in den Einstellungen</translation>
    </message>
    <message>
        <source>Gives the kept search another name</source>
        <translation>Gibt der gespeicherten Suche einen anderen Namen</translation>
    </message>
    <message>
        <source>Deletes the kept search</source>
        <translation>Löscht die gespeicherte Suche</translation>
    </message>
    <message>
        <source>Keep Search</source>
        <translation>Suche speichern</translation>
    </message>
    <message>
        <source>Name of the search:</source>
        <translation>Name der Suche:</translation>
    </message>
    <message>
        <source>Rename Search</source>
        <translation>Suche umbenennen</translation>
    </message>
    <message>
        <source>Another name of the search:</source>
        <translation>Anderer Name der Suche:</translation>
    </message>
</context>
<context>
    <name>FixedKeys</name>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Felder</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tabellen</translation>
    </message>
    <message>
        <source>Go on to the next part of the window, or back</source>
        <translation>Zum nächsten Fensterteil oder zurück</translation>
    </message>
    <message>
        <source>F6, Shift+F6</source>
        <translation>F6, Umschalt+F6</translation>
    </message>
    <message>
        <source>From one control to the next, or back</source>
        <translation>Von einem Bedienelement zum nächsten oder zurück</translation>
    </message>
    <message>
        <source>Tab, Shift+Tab</source>
        <translation>Tab, Umschalt+Tab</translation>
    </message>
    <message>
        <source>Menus</source>
        <translation>Menüs</translation>
    </message>
    <message>
        <source>Alt and the underlined letter, F10</source>
        <translation>Alt und der unterstrichene Buchstabe, F10</translation>
    </message>
    <message>
        <source>Context menu of what is selected</source>
        <translation>Kontextmenü der Auswahl</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menü</translation>
    </message>
    <message>
        <source>Leave an editor or a popup, restoring what was there</source>
        <translation>Editor oder Popup verlassen, der vorige Wert kommt zurück</translation>
    </message>
    <message>
        <source>Esc</source>
        <translation>Esc</translation>
    </message>
    <message>
        <source>Go round the scene</source>
        <translation>Die Szene umkreisen</translation>
    </message>
    <message>
        <source>Arrow keys</source>
        <translation>Pfeiltasten</translation>
    </message>
    <message>
        <source>Fly, with the right button held: on, back, sideways, down, up</source>
        <translation>Mit gedrückter rechter Maustaste fliegen: vor, zurück, seitwärts, ab, auf</translation>
    </message>
    <message>
        <source>W, S, A, D, Q, E</source>
        <translation>W, S, A, D, Q, E</translation>
    </message>
    <message>
        <source>Move the picture</source>
        <translation>Das Bild verschieben</translation>
    </message>
    <message>
        <source>Shift and arrow keys</source>
        <translation>Umschalt und Pfeiltasten</translation>
    </message>
    <message>
        <source>Come closer, go back</source>
        <translation>Näher, weiter weg</translation>
    </message>
    <message>
        <source>+, -</source>
        <translation>+, -</translation>
    </message>
    <message>
        <source>Select nothing</source>
        <translation>Nichts auswählen</translation>
    </message>
    <message>
        <source>Unfold and fold a node</source>
        <translation>Einen Knoten aus- und einklappen</translation>
    </message>
    <message>
        <source>Right, Left</source>
        <translation>Rechts, Links</translation>
    </message>
    <message>
        <source>Unfold a node with all below it</source>
        <translation>Einen Knoten mit allem darunter ausklappen</translation>
    </message>
    <message>
        <source>*</source>
        <translation>*</translation>
    </message>
    <message>
        <source>Go to the next node whose name begins with letters</source>
        <translation>Zum nächsten Knoten, dessen Name mit Buchstaben beginnt</translation>
    </message>
    <message>
        <source>Letters</source>
        <translation>Buchstaben</translation>
    </message>
    <message>
        <source>Select several nodes</source>
        <translation>Mehrere Knoten auswählen</translation>
    </message>
    <message>
        <source>Shift and arrow keys, Ctrl+Space</source>
        <translation>Umschalt und Pfeiltasten, Strg+Leertaste</translation>
    </message>
    <message>
        <source>Edit the value</source>
        <translation>Den Wert bearbeiten</translation>
    </message>
    <message>
        <source>Return, F2</source>
        <translation>Return, F2</translation>
    </message>
    <message>
        <source>Go on in the editor of the field</source>
        <translation>Im Editor des Feldes weiterarbeiten</translation>
    </message>
    <message>
        <source>Ctrl+Return</source>
        <translation>Strg+Return</translation>
    </message>
    <message>
        <source>Fold and unfold a group</source>
        <translation>Eine Gruppe ein- und ausklappen</translation>
    </message>
    <message>
        <source>Left, Right</source>
        <translation>Links, Rechts</translation>
    </message>
    <message>
        <source>Step a number while it is edited</source>
        <translation>Eine Zahl beim Bearbeiten schrittweise ändern</translation>
    </message>
    <message>
        <source>Up, Down; Ctrl and Shift make it coarser and finer</source>
        <translation>Hoch, Herunter; Strg und Umschalt ändern die Schrittweite</translation>
    </message>
    <message>
        <source>Edit the cell</source>
        <translation>Die Zelle bearbeiten</translation>
    </message>
    <message>
        <source>Next cell while one is edited</source>
        <translation>Nächste Zelle beim Bearbeiten</translation>
    </message>
    <message>
        <source>Go to what the row is about</source>
        <translation>Dorthin springen, worum es in der Zeile geht</translation>
    </message>
    <message>
        <source>Return</source>
        <translation>Return</translation>
    </message>
</context>
<context>
    <name>FlyTool</name>
    <message>
        <source>Flying at %1 units per second: W A S D, Q and E for down and up, Shift for faster. The wheel changes the speed.</source>
        <translation>Flug mit %1 Einheiten pro Sekunde: W A S D, Q und E für ab und auf, Umschalt für schneller. Das Mausrad ändert die Geschwindigkeit.</translation>
    </message>
</context>
<context>
    <name>GoToSource</name>
    <message>
        <source>Go to</source>
        <translation>Springen zu</translation>
    </message>
    <message>
        <source>Letters of a node, camera, bookmark or file; parent/node, node.field</source>
        <translation>Buchstaben von Knoten, Kamera, Lesezeichen oder Datei; Gruppe/Knoten, Knoten.Feld</translation>
    </message>
    <message>
        <source>Nothing in the scene has these letters in this order, and no recent file.</source>
        <translation>Nichts in der Szene und keine zuletzt geöffnete Datei enthält diese Buchstaben in dieser Reihenfolge.</translation>
    </message>
    <message>
        <source>No scene is open, and no recent file has these letters in this order.</source>
        <translation>Keine Szene ist geöffnet, und keine zuletzt geöffnete Datei enthält diese Buchstaben in dieser Reihenfolge.</translation>
    </message>
    <message>
        <source>Bookmark of the view</source>
        <translation>Lesezeichen der Ansicht</translation>
    </message>
    <message>
        <source>Open from %1</source>
        <translation>Öffnen aus %1</translation>
    </message>
    <message>
        <source>Look through this camera, in %1</source>
        <translation>Durch diese Kamera blicken, in %1</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in %2</translation>
    </message>
</context>
<context>
    <name>HandOver</name>
    <message>
        <source>No running window can be found, so a new one is opened. %1</source>
        <translation>Kein laufendes Fenster wurde gefunden, deshalb wird ein neues geöffnet. %1</translation>
    </message>
    <message>
        <source>The running window was brought to the front.
</source>
        <translation>Das laufende Fenster wurde nach vorn geholt.
</translation>
    </message>
    <message>
        <source>%1: handed to the running window.
</source>
        <translation>%1: an das laufende Fenster übergeben.
</translation>
    </message>
    <message>
        <source>%1 A new window is opened.</source>
        <translation>%1 Ein neues Fenster wird geöffnet.</translation>
    </message>
</context>
<context>
    <name>HandedFiles</name>
    <message>
        <source>The running window is being closed.</source>
        <translation>Das laufende Fenster wird gerade geschlossen.</translation>
    </message>
</context>
<context>
    <name>HandleTool</name>
    <message>
        <source>%1 of &quot;%2&quot; is ignored, so a change of it would not be seen. Clear its mark &quot;ignored&quot; in the field table first.</source>
        <translation>%1 von „%2“ wird ignoriert, eine Änderung wäre deshalb nicht zu sehen. Zuerst in der Feldtabelle die Markierung „ignoriert“ entfernen.</translation>
    </message>
    <message numerus="yes">
        <source>%n nodes</source>
        <translation>
            <numerusform>%n Knoten</numerusform>
            <numerusform>%n Knoten</numerusform>
        </translation>
    </message>
    <message>
        <source>Move %1</source>
        <translation>%1 verschieben</translation>
    </message>
    <message>
        <source>Turn %1</source>
        <translation>%1 drehen</translation>
    </message>
    <message>
        <source>Scale %1</source>
        <translation>%1 skalieren</translation>
    </message>
    <message>
        <source>%1°</source>
        <comment>angle in degrees</comment>
        <translation>%1°</translation>
    </message>
    <message>
        <source>× %1</source>
        <comment>factor</comment>
        <translation>× %1</translation>
    </message>
</context>
<context>
    <name>HelpBrowser</name>
    <message>
        <source>No program opens %1.</source>
        <translation>Kein Programm öffnet %1.</translation>
    </message>
    <message>
        <source>%1 isn&apos;t part of the help. It is in the sources.</source>
        <translation>%1 ist nicht Teil der Hilfe, sondern in den Quelltexten.</translation>
    </message>
</context>
<context>
    <name>HelpMenu</name>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>&amp;About Orvane</source>
        <translation>&amp;Über Orvane</translation>
    </message>
    <message>
        <source>Shows the version of the program and its extensions</source>
        <translation>Zeigt die Version des Programms und seine Erweiterungen</translation>
    </message>
    <message>
        <source>About Orvane</source>
        <translation>Über Orvane</translation>
    </message>
    <message>
        <source>Inspects and edits the scene graph of 3D scenes.</source>
        <translation>Untersucht und bearbeitet den Szenengraphen von 3D-Szenen.</translation>
    </message>
    <message>
        <source>No extension is active.</source>
        <translation>Keine Erweiterung ist aktiv.</translation>
    </message>
    <message>
        <source>Active extensions</source>
        <translation>Aktive Erweiterungen</translation>
    </message>
    <message>
        <source>&amp;Contents</source>
        <translation>&amp;Inhalt</translation>
    </message>
    <message>
        <source>Shows the list of all pages of the help</source>
        <translation>Zeigt die Liste aller Seiten der Hilfe</translation>
    </message>
    <message>
        <source>&amp;Guide</source>
        <translation>&amp;Handbuch</translation>
    </message>
    <message>
        <source>Shows the guide, from the first start to a plug-in of your own</source>
        <translation>Zeigt das Handbuch, vom ersten Start bis zum eigenen Plug-in</translation>
    </message>
    <message>
        <source>&amp;Tutorial</source>
        <translation>&amp;Einführung</translation>
    </message>
    <message>
        <source>Shows ten minutes of work with a robot, step by step</source>
        <translation>Zeigt zehn Minuten Arbeit mit einem Roboter, Schritt für Schritt</translation>
    </message>
    <message>
        <source>&amp;Help on This Part</source>
        <translation>Hilfe &amp;zu diesem Teil</translation>
    </message>
    <message>
        <source>Shows the page about the part of the window that has the focus</source>
        <translation>Zeigt die Seite zum Fensterteil mit dem Fokus</translation>
    </message>
</context>
<context>
    <name>HelpWindow</name>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Goes to the page before</source>
        <translation>Geht zur Seite davor</translation>
    </message>
    <message>
        <source>Forward</source>
        <translation>Vorwärts</translation>
    </message>
    <message>
        <source>Goes forward again</source>
        <translation>Geht wieder vorwärts</translation>
    </message>
    <message>
        <source>Contents</source>
        <translation>Inhalt</translation>
    </message>
    <message>
        <source>Shows the list of all pages</source>
        <translation>Zeigt die Liste aller Seiten</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Searches all pages</source>
        <translation>Durchsucht alle Seiten</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>Weiter</translation>
    </message>
    <message>
        <source>Goes to the next place that was found</source>
        <translation>Geht zur nächsten gefundenen Stelle</translation>
    </message>
    <message>
        <source>Previous</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Goes to the previous place that was found</source>
        <translation>Geht zur vorigen gefundenen Stelle</translation>
    </message>
    <message>
        <source>Larger</source>
        <translation>Größer</translation>
    </message>
    <message>
        <source>Makes the letters larger</source>
        <translation>Macht die Schrift größer</translation>
    </message>
    <message>
        <source>Smaller</source>
        <translation>Kleiner</translation>
    </message>
    <message>
        <source>Makes the letters smaller</source>
        <translation>Macht die Schrift kleiner</translation>
    </message>
    <message>
        <source>Search all pages</source>
        <translation>Alle Seiten durchsuchen</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Seiten</translation>
    </message>
    <message>
        <source>Page</source>
        <translation>Seite</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>No page has all these words.</source>
        <translation>Keine Seite enthält alle diese Wörter.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>%1 — Help</source>
        <translation>%1 — Hilfe</translation>
    </message>
    <message>
        <source>This is the first page.</source>
        <translation>Das ist die erste Seite.</translation>
    </message>
    <message>
        <source>This is the last page.</source>
        <translation>Das ist die letzte Seite.</translation>
    </message>
</context>
<context>
    <name>HelperProcess</name>
    <message>
        <source>the import helper did nothing for %1 s and was stopped</source>
        <translation>das Importprogramm tat %1 s lang nichts und wurde beendet</translation>
    </message>
    <message>
        <source>the import helper wasn&apos;t ready after %1 s and was stopped</source>
        <translation>das Importprogramm war nach %1 s nicht fertig und wurde beendet</translation>
    </message>
    <message>
        <source>what the import helper wrote doesn&apos;t fit in memory</source>
        <translation>was das Importprogramm schrieb, passt nicht in den Speicher</translation>
    </message>
    <message>
        <source>the import helper wrote more than %1 MiB and was stopped</source>
        <translation>das Importprogramm schrieb mehr als %1 MiB und wurde beendet</translation>
    </message>
    <message>
        <source>the import helper ended with status %1 and didn&apos;t say why</source>
        <translation>das Importprogramm endete mit dem Status %1, ohne einen Grund zu nennen</translation>
    </message>
    <message>
        <source>the import helper %1 can&apos;t be started: %2</source>
        <translation>das Importprogramm %1 startet nicht: %2</translation>
    </message>
    <message>
        <source>the import helper needed too much processor time and was stopped</source>
        <translation>das Importprogramm brauchte zu viel Rechenzeit und wurde beendet</translation>
    </message>
    <message>
        <source>the import helper was killed, maybe for want of memory</source>
        <translation>das Importprogramm wurde beendet, vielleicht aus Mangel an Speicher</translation>
    </message>
    <message>
        <source>the import helper crashed with signal %1</source>
        <translation>das Importprogramm stürzte mit dem Signal %1 ab</translation>
    </message>
</context>
<context>
    <name>HidingActions</name>
    <message>
        <source>Isolat&amp;e</source>
        <translation>&amp;Isolieren</translation>
    </message>
    <message>
        <source>Shows the selected nodes alone in the view</source>
        <translation>Zeigt nur die ausgewählten Knoten in der Ansicht</translation>
    </message>
    <message>
        <source>Hide</source>
        <translation>Ausblenden</translation>
    </message>
    <message>
        <source>Hides the selected nodes in the view; the scene stays as it is</source>
        <translation>Blendet die ausgewählten Knoten in der Ansicht aus; die Szene bleibt, wie sie ist</translation>
    </message>
    <message>
        <source>Show All</source>
        <translation>Alle einblenden</translation>
    </message>
    <message>
        <source>Shows all nodes that were hidden or left out by isolating</source>
        <translation>Zeigt alle Knoten, die ausgeblendet oder beim Isolieren weggelassen wurden</translation>
    </message>
    <message>
        <source>Shows all nodes again (Shift+H)</source>
        <translation>Blendet alle Knoten wieder ein (Umschalt+H)</translation>
    </message>
    <message>
        <source>No node is selected</source>
        <translation>Kein Knoten ist ausgewählt</translation>
    </message>
    <message>
        <source>Nothing is hidden</source>
        <translation>Nichts ist ausgeblendet</translation>
    </message>
    <message>
        <source>1 node isolated</source>
        <translation>1 Knoten isoliert</translation>
    </message>
    <message>
        <source>%1 nodes isolated</source>
        <translation>%1 Knoten isoliert</translation>
    </message>
    <message>
        <source>%1 hidden in %2 places</source>
        <translation>%1 an %2 Stellen ausgeblendet</translation>
    </message>
    <message>
        <source>1 hidden</source>
        <translation>1 ausgeblendet</translation>
    </message>
    <message>
        <source>%1 hidden</source>
        <translation>%1 ausgeblendet</translation>
    </message>
    <message>
        <source>No isolated node is left in the scene, so the others are shown again.</source>
        <translation>Kein isolierter Knoten ist mehr in der Szene, daher werden die anderen wieder gezeigt.</translation>
    </message>
</context>
<context>
    <name>HistoryDock</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>No scene is open</source>
        <translation>Keine Szene ist geöffnet</translation>
    </message>
    <message>
        <source>New scene</source>
        <translation>Neue Szene</translation>
    </message>
    <message>
        <source>Opened %1</source>
        <translation>%1 geöffnet</translation>
    </message>
</context>
<context>
    <name>HistoryModel</name>
    <message>
        <source>Now, saved</source>
        <translation>Jetzt, gespeichert</translation>
    </message>
    <message>
        <source>Saved</source>
        <translation>Gespeichert</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>Undone</source>
        <translation>Zurückgenommen</translation>
    </message>
    <message>
        <source>The oldest state that is kept</source>
        <translation>Der älteste erhaltene Zustand</translation>
    </message>
    <message>
        <source>Nothing changed</source>
        <translation>Nichts geändert</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Step</source>
        <translation>Schritt</translation>
    </message>
    <message>
        <source>Before</source>
        <translation>Vorher</translation>
    </message>
    <message>
        <source>After</source>
        <translation>Nachher</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
</context>
<context>
    <name>HistoryPanel</name>
    <message>
        <source>&amp;Go to This State</source>
        <translation>&amp;Zu diesem Zustand gehen</translation>
    </message>
    <message>
        <source>&amp;Put This Value Back</source>
        <translation>Diesen Wert zurück&amp;holen</translation>
    </message>
    <message>
        <source>Shows the steps that contain these words: in their name, or in a value. not, or, brackets, &quot;texts with blanks&quot; and /regular expressions/ may be used.</source>
        <translation>Zeigt die Schritte, die diese Wörter enthalten, im Namen oder in einem Wert. not, or, Klammern, &quot;Texte mit Leerzeichen&quot; und /reguläre Ausdrücke/ sind möglich.</translation>
    </message>
    <message>
        <source>Beyond this limit the oldest steps are dropped. The preference ORVANE_HISTORY sets it.</source>
        <translation>Über dieser Grenze fallen die ältesten Schritte weg. Die Einstellung ORVANE_HISTORY legt sie fest.</translation>
    </message>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>Undoes or redoes the steps up to the selected one</source>
        <translation>Macht die Schritte bis zum ausgewählten rückgängig oder stellt sie wieder her</translation>
    </message>
    <message>
        <source>Writes the value from before the selected step, without undoing what came after it</source>
        <translation>Schreibt den Wert vor dem ausgewählten Schritt, ohne das Spätere rückgängig zu machen</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Goes through all states of the scene</source>
        <translation>Geht durch alle Zustände der Szene</translation>
    </message>
    <message>
        <source>Step %1 of %2</source>
        <translation>Schritt %1 von %2</translation>
    </message>
    <message>
        <source>1 step</source>
        <translation>1 Schritt</translation>
    </message>
    <message>
        <source>%1 steps</source>
        <translation>%1 Schritte</translation>
    </message>
    <message>
        <source>%1, %2 of %3</source>
        <translation>%1, %2 von %3</translation>
    </message>
    <message>
        <source>Select a step of the history first.</source>
        <translation>Zuerst einen Schritt des Verlaufs auswählen.</translation>
    </message>
    <message>
        <source>The scene is in this state.</source>
        <translation>Die Szene ist in diesem Zustand.</translation>
    </message>
    <message>
        <source>Each edit of the scene is listed here</source>
        <translation>Jede Änderung der Szene wird hier aufgeführt</translation>
    </message>
</context>
<context>
    <name>ImageCell</name>
    <message>
        <source>Choose an Image</source>
        <translation>Bild wählen</translation>
    </message>
    <message>
        <source>Images (*.png *.jpg *.jpeg *.bmp *.gif *.tga *.tif *.tiff *.webp)</source>
        <translation>Bilder (*.png *.jpg *.jpeg *.bmp *.gif *.tga *.tif *.tiff *.webp)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
</context>
<context>
    <name>ImageFile</name>
    <message>
        <source>the scene has no folder that it could be in; save the scene first</source>
        <translation>die Szene hat keinen Ordner, in dem sie sein könnte; zuerst die Szene speichern</translation>
    </message>
    <message>
        <source>it isn&apos;t a regular file</source>
        <translation>es ist keine gewöhnliche Datei</translation>
    </message>
    <message>
        <source>it is empty</source>
        <translation>sie ist leer</translation>
    </message>
    <message>
        <source>it is larger than %1 MiB</source>
        <translation>sie ist größer als %1 MiB</translation>
    </message>
</context>
<context>
    <name>ImageFolderQuestion</name>
    <message>
        <source>Forget Allowed Image Folde&amp;rs</source>
        <translation>&amp;Erlaubte Bildordner vergessen</translation>
    </message>
    <message>
        <source>Takes back that scenes may refer to images in folders outside their own</source>
        <translation>Nimmt zurück, dass Szenen auf Bilder in fremden Ordnern verweisen dürfen</translation>
    </message>
    <message>
        <source>No folder has been allowed.</source>
        <translation>Kein Ordner wurde erlaubt.</translation>
    </message>
    <message>
        <source>The scene refers to images in %1, outside its own folder. They aren&apos;t loaded unless you allow it.</source>
        <translation>Die Szene verweist auf Bilder in %1, außerhalb ihres eigenen Ordners. Sie werden nur geladen, wenn Sie es erlauben.</translation>
    </message>
    <message>
        <source>Allow Folder</source>
        <translation>Ordner erlauben</translation>
    </message>
</context>
<context>
    <name>ImagePopup</name>
    <message>
        <source>Choose &amp;File…</source>
        <translation>&amp;Datei wählen…</translation>
    </message>
    <message>
        <source>Replaces the image by that of a file. A file can also be dropped on the row.</source>
        <translation>Ersetzt das Bild durch das einer Datei. Eine Datei lässt sich auch auf der Zeile ablegen.</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Replaces the image by the one on the clipboard.</source>
        <translation>Ersetzt das Bild durch das der Zwischenablage.</translation>
    </message>
    <message>
        <source>The clipboard has no image.</source>
        <translation>Die Zwischenablage enthält kein Bild.</translation>
    </message>
    <message>
        <source>&amp;Clear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Empties the image.</source>
        <translation>Leert das Bild.</translation>
    </message>
    <message>
        <source>The image is empty already.</source>
        <translation>Das Bild ist schon leer.</translation>
    </message>
</context>
<context>
    <name>ImageReplacement</name>
    <message>
        <source>The image on the clipboard</source>
        <translation>Das Bild der Zwischenablage</translation>
    </message>
    <message>
        <source>The empty image</source>
        <translation>Das leere Bild</translation>
    </message>
    <message>
        <source>another node is shown by now</source>
        <translation>inzwischen wird ein anderer Knoten angezeigt</translation>
    </message>
    <message>
        <source>it is larger than %1 pixels a side</source>
        <translation>es hat mehr als %1 Pixel je Seite</translation>
    </message>
    <message>
        <source>%1 wasn&apos;t taken: %2. The field keeps its image.</source>
        <translation>%1 wurde nicht übernommen: %2. Das Feld behält sein Bild.</translation>
    </message>
</context>
<context>
    <name>ImageSample</name>
    <message>
        <source>no image</source>
        <translation>kein Bild</translation>
    </message>
    <message>
        <source>grey</source>
        <translation>Grau</translation>
    </message>
    <message>
        <source>grey and opacity</source>
        <translation>Grau und Deckkraft</translation>
    </message>
    <message>
        <source>RGB</source>
        <translation>RGB</translation>
    </message>
    <message>
        <source>RGBA</source>
        <translation>RGBA</translation>
    </message>
</context>
<context>
    <name>ImportDialog</name>
    <message>
        <source>Import Settings</source>
        <translation>Einstellungen importieren</translation>
    </message>
    <message>
        <source>These settings change. What isn&apos;t checked stays as it is.</source>
        <translation>Diese Einstellungen ändern sich. Was nicht angekreuzt ist, bleibt, wie es ist.</translation>
    </message>
    <message>
        <source>Import</source>
        <translation>Importieren</translation>
    </message>
    <message>
        <source>Settings that change</source>
        <translation>Einstellungen, die sich ändern</translation>
    </message>
    <message>
        <source>Setting</source>
        <translation>Einstellung</translation>
    </message>
    <message>
        <source>Now</source>
        <translation>Jetzt</translation>
    </message>
    <message>
        <source>In the File</source>
        <translation>In der Datei</translation>
    </message>
    <message>
        <source>Check a setting first.</source>
        <translation>Zuerst eine Einstellung ankreuzen.</translation>
    </message>
</context>
<context>
    <name>ImportJob</name>
    <message>
        <source>there are bytes behind its end</source>
        <translation>hinter dem Ende sind noch Bytes</translation>
    </message>
    <message>
        <source>%1: the import helper sent something that isn&apos;t a scene: %2</source>
        <translation>%1: Das Importprogramm lieferte etwas, das keine Szene ist: %2</translation>
    </message>
</context>
<context>
    <name>InspectorDock</name>
    <message>
        <source>Inspector %1</source>
        <translation>Inspektor %1</translation>
    </message>
</context>
<context>
    <name>InspectorDocks</name>
    <message>
        <source>New &amp;Inspector</source>
        <translation>Ne&amp;uer Inspektor</translation>
    </message>
    <message>
        <source>Opens a further table of fields, which stays on this node; %1 at most</source>
        <translation>Öffnet eine weitere Feldtabelle, die bei diesem Knoten bleibt; höchstens %1</translation>
    </message>
    <message>
        <source>There are %1 inspectors. Close one first.</source>
        <translation>Es gibt schon %1 Inspektoren. Zuerst einen schließen.</translation>
    </message>
</context>
<context>
    <name>Inspectors</name>
    <message>
        <source>Selection</source>
        <translation>Auswahl</translation>
    </message>
</context>
<context>
    <name>JobBar</name>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>KeptLocks</name>
    <message>
        <source>Inspector %1 was locked on %2, which isn&apos;t in the file any more. It follows the selection.</source>
        <translation>Inspektor %1 war auf %2 fixiert, das nicht mehr in der Datei ist. Er folgt der Auswahl.</translation>
    </message>
</context>
<context>
    <name>KeptSearches</name>
    <message>
        <source>A search needs a name to be kept.</source>
        <translation>Zum Speichern braucht eine Suche einen Namen.</translation>
    </message>
    <message>
        <source>The name is longer than %1 characters.</source>
        <translation>Der Name ist länger als %1 Zeichen.</translation>
    </message>
    <message>
        <source>There is a search of that name already.</source>
        <translation>Eine Suche dieses Namens gibt es schon.</translation>
    </message>
    <message>
        <source>%1 searches are kept already. Delete one first.</source>
        <translation>%1 Suchen sind schon gespeichert. Zuerst eine löschen.</translation>
    </message>
</context>
<context>
    <name>KeyLine</name>
    <message>
        <source>Press the new key</source>
        <translation>Neue Taste drücken</translation>
    </message>
    <message>
        <source>New key</source>
        <translation>Neue Taste</translation>
    </message>
</context>
<context>
    <name>KeyTips</name>
    <message>
        <source>%1&lt;br&gt;%2</source>
        <translation>%1&lt;br&gt;%2</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <comment>tool tip (keys)</comment>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>KeysDialog</name>
    <message>
        <source>&amp;No Key</source>
        <translation>&amp;Keine Taste</translation>
    </message>
    <message>
        <source>&amp;Reset</source>
        <translation>&amp;Zurücksetzen</translation>
    </message>
    <message>
        <source>Reset &amp;All</source>
        <translation>A&amp;lle zurücksetzen</translation>
    </message>
    <message>
        <source>&amp;Take Over</source>
        <translation>&amp;Übernehmen</translation>
    </message>
    <message>
        <source>Keyboard Shortcuts</source>
        <translation>Tastenkürzel</translation>
    </message>
    <message>
        <source>Letters of an action, or a key such as Ctrl+O</source>
        <translation>Buchstaben einer Aktion oder eine Taste wie Strg+O</translation>
    </message>
    <message>
        <source>Search the keys</source>
        <translation>Tasten durchsuchen</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>No action and no key has these letters.</source>
        <translation>Keine Aktion und keine Taste enthält diese Buchstaben.</translation>
    </message>
    <message>
        <source>Select an action first.</source>
        <translation>Zuerst eine Aktion auswählen.</translation>
    </message>
    <message>
        <source>This key can&apos;t be changed.</source>
        <translation>Diese Taste ist nicht änderbar.</translation>
    </message>
    <message>
        <source>The next key that is pressed here becomes the key of the action</source>
        <translation>Die nächste hier gedrückte Taste wird zur Taste der Aktion</translation>
    </message>
    <message>
        <source>Takes the keys from the action</source>
        <translation>Nimmt der Aktion die Tasten</translation>
    </message>
    <message>
        <source>Gives the action the keys that it came with</source>
        <translation>Gibt der Aktion ihre ursprünglichen Tasten</translation>
    </message>
    <message>
        <source>Gives all actions the keys that they came with</source>
        <translation>Gibt allen Aktionen ihre ursprünglichen Tasten</translation>
    </message>
    <message>
        <source>%1 is the key of %2.</source>
        <translation>%1 ist die Taste von %2.</translation>
    </message>
    <message>
        <source>%1 has the key %2 now.</source>
        <translation>%1 hat jetzt die Taste %2.</translation>
    </message>
    <message>
        <source>%1 is the key of %2 now. Reset that one first, or all.</source>
        <translation>%1 ist jetzt die Taste von %2. Zuerst jene zurücksetzen, oder alle.</translation>
    </message>
</context>
<context>
    <name>KeysModel</name>
    <message>
        <source>fixed</source>
        <translation>fest</translation>
    </message>
    <message>
        <source>changed</source>
        <translation>geändert</translation>
    </message>
    <message>
        <source>This key can&apos;t be changed.</source>
        <translation>Diese Taste ist nicht änderbar.</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Place</source>
        <translation>Ort</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
</context>
<context>
    <name>LanguageMenu</name>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>Wie der &amp;Desktop</translation>
    </message>
    <message>
        <source>Shows all texts in the language of the desktop</source>
        <translation>Zeigt alle Texte in der Sprache des Desktops</translation>
    </message>
    <message>
        <source>Shows all texts in this language: %1</source>
        <translation>Zeigt alle Texte in dieser Sprache: %1</translation>
    </message>
</context>
<context>
    <name>LineCover</name>
    <message>
        <source>Number or formula</source>
        <translation>Zahl oder Formel</translation>
    </message>
    <message>
        <source>Takes %1, or a formula in which x is the present value. Up and Down step, with Shift ten times as far, with Ctrl a tenth.</source>
        <translation>Nimmt %1 an oder eine Formel, in der x der jetzige Wert ist. Hoch und Herunter ändern schrittweise, mit Umschalt zehnmal so weit, mit Strg ein Zehntel.</translation>
    </message>
    <message>
        <source>The editor doesn&apos;t take %1. Enter %2.</source>
        <translation>Der Editor nimmt %1 nicht an. Geben Sie %2 ein.</translation>
    </message>
    <message>
        <source>Another field has been selected meanwhile.</source>
        <translation>Inzwischen wurde ein anderes Feld ausgewählt.</translation>
    </message>
    <message>
        <source>The editor has set %1 instead of %2.</source>
        <translation>Der Editor hat %1 statt %2 gesetzt.</translation>
    </message>
</context>
<context>
    <name>ListActions</name>
    <message>
        <source>&amp;Insert Rows</source>
        <translation>Zeilen &amp;einfügen</translation>
    </message>
    <message>
        <source>Adds rows with default values before the selected ones</source>
        <translation>Fügt vor den ausgewählten Zeilen solche mit Vorgabewerten ein</translation>
    </message>
    <message>
        <source>D&amp;uplicate Rows</source>
        <translation>Zeilen &amp;duplizieren</translation>
    </message>
    <message>
        <source>Adds copies of the selected rows behind them</source>
        <translation>Fügt Kopien der ausgewählten Zeilen dahinter ein</translation>
    </message>
    <message>
        <source>&amp;Delete Rows</source>
        <translation>Zeilen &amp;löschen</translation>
    </message>
    <message>
        <source>Removes the selected rows</source>
        <translation>Entfernt die ausgewählten Zeilen</translation>
    </message>
    <message>
        <source>Move &amp;Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Moves the selected rows one place up</source>
        <translation>Verschiebt die ausgewählten Zeilen eine Stelle nach oben</translation>
    </message>
    <message>
        <source>Move D&amp;own</source>
        <translation>Nach &amp;unten</translation>
    </message>
    <message>
        <source>Moves the selected rows one place down</source>
        <translation>Verschiebt die ausgewählten Zeilen eine Stelle nach unten</translation>
    </message>
    <message>
        <source>Cu&amp;t Rows</source>
        <translation>Zeilen &amp;ausschneiden</translation>
    </message>
    <message>
        <source>Copies the selected rows and removes them</source>
        <translation>Kopiert die ausgewählten Zeilen und entfernt sie</translation>
    </message>
    <message>
        <source>&amp;Copy Cells</source>
        <translation>Zellen &amp;kopieren</translation>
    </message>
    <message>
        <source>Copies the selected cells as text</source>
        <translation>Kopiert die ausgewählten Zellen als Text</translation>
    </message>
    <message>
        <source>&amp;Paste Cells</source>
        <translation>Zellen e&amp;infügen</translation>
    </message>
    <message>
        <source>Writes the cells of the clipboard from the current cell on</source>
        <translation>Schreibt die Zellen der Zwischenablage ab der aktuellen Zelle</translation>
    </message>
    <message>
        <source>Fill &amp;Evenly from First to Last</source>
        <translation>&amp;Gleichmäßig füllen</translation>
    </message>
    <message>
        <source>Gives the selected cells of a column values with equal steps between the first and the last of them</source>
        <translation>Gibt den ausgewählten Zellen einer Spalte Werte in gleichen Abständen vom ersten bis zum letzten</translation>
    </message>
    <message>
        <source>&amp;Number of Rows…</source>
        <translation>A&amp;nzahl der Zeilen…</translation>
    </message>
    <message>
        <source>Sets how many rows the list has</source>
        <translation>Legt fest, wie viele Zeilen die Liste hat</translation>
    </message>
    <message>
        <source>No list is shown.</source>
        <translation>Keine Liste wird angezeigt.</translation>
    </message>
    <message>
        <source>Select rows of a list first.</source>
        <translation>Zuerst Zeilen einer Liste auswählen.</translation>
    </message>
    <message>
        <source>Select three rows or more of a list of numbers first.</source>
        <translation>Zuerst drei oder mehr Zeilen einer Liste von Zahlen auswählen.</translation>
    </message>
    <message>
        <source>Rows can be moved only while all of them are shown in their order. Clear range, filter and sorting.</source>
        <translation>Zeilen lassen sich nur verschieben, wenn alle in ihrer Reihenfolge angezeigt werden. Zeilenbereich, Filter und Sortierung aufheben.</translation>
    </message>
    <message>
        <source>Number of Rows</source>
        <translation>Anzahl der Zeilen</translation>
    </message>
    <message>
        <source>Number of rows of %1:</source>
        <translation>Anzahl der Zeilen von %1:</translation>
    </message>
    <message>
        <source>Another list is shown now. Nothing was changed.</source>
        <translation>Jetzt wird eine andere Liste angezeigt. Nichts wurde geändert.</translation>
    </message>
    <message>
        <source>%1 is going to have %2 rows, which need a lot of memory. Go on?</source>
        <translation>%1 bekommt %2 Zeilen, die viel Speicher brauchen. Fortfahren?</translation>
    </message>
    <message>
        <source>Make %1 Rows</source>
        <translation>%1 Zeilen anlegen</translation>
    </message>
</context>
<context>
    <name>ListClipboard</name>
    <message>
        <source>Copying rows</source>
        <translation>Zeilen werden kopiert</translation>
    </message>
    <message>
        <source>The list changed while it was being copied. Copy it again.</source>
        <translation>Die Liste hat sich beim Kopieren geändert. Kopieren Sie sie erneut.</translation>
    </message>
    <message>
        <source>1 row was copied.</source>
        <translation>1 Zeile wurde kopiert.</translation>
    </message>
    <message>
        <source>%1 rows were copied.</source>
        <translation>%1 Zeilen wurden kopiert.</translation>
    </message>
    <message>
        <source>The clipboard has HTML without plain text, which can&apos;t be pasted. Copy the cells in a program that copies them as text, such as a spreadsheet.</source>
        <translation>Die Zwischenablage enthält HTML ohne reinen Text, das sich nicht einfügen lässt. Kopieren Sie die Zellen in einem Programm, das sie als Text kopiert, etwa einer Tabellenkalkulation.</translation>
    </message>
    <message>
        <source>There is nothing to paste: the clipboard has no text.</source>
        <translation>Nichts einzufügen: Die Zwischenablage enthält keinen Text.</translation>
    </message>
    <message>
        <source>Reading the clipboard</source>
        <translation>Zwischenablage wird gelesen</translation>
    </message>
    <message>
        <source>The list changed while the clipboard was being read. Nothing was pasted; paste again.</source>
        <translation>Die Liste hat sich beim Lesen der Zwischenablage geändert. Nichts wurde eingefügt; fügen Sie erneut ein.</translation>
    </message>
    <message>
        <source>1 row was pasted.</source>
        <translation>1 Zeile wurde eingefügt.</translation>
    </message>
    <message>
        <source>%1 rows were pasted.</source>
        <translation>%1 Zeilen wurden eingefügt.</translation>
    </message>
    <message>
        <source>The clipboard has %1 rows, but only %2 are shown from here on. Nothing was pasted. Show all rows first, or copy fewer.</source>
        <translation>Die Zwischenablage hat %1 Zeilen, aber ab hier werden nur %2 angezeigt. Nichts wurde eingefügt. Zeigen Sie zuerst alle Zeilen an, oder kopieren Sie weniger.</translation>
    </message>
</context>
<context>
    <name>ListColumns</name>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>A text can&apos;t have a NUL character.</source>
        <translation>Ein Text kann kein NUL-Zeichen enthalten.</translation>
    </message>
    <message>
        <source>A name can&apos;t have the character &quot;%1&quot;, only those of Latin-1.</source>
        <translation>Ein Name kann das Zeichen „%1“ nicht enthalten, nur solche aus Latin-1.</translation>
    </message>
</context>
<context>
    <name>ListDelegate</name>
    <message>
        <source>&quot;%1&quot; wasn&apos;t written.</source>
        <translation>„%1“ wurde nicht geschrieben.</translation>
    </message>
</context>
<context>
    <name>ListDock</name>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
</context>
<context>
    <name>ListEdits</name>
    <message>
        <source>The list isn&apos;t there any more.</source>
        <translation>Die Liste gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>There isn&apos;t enough memory for this. The list is as it was.</source>
        <translation>Dafür reicht der Speicher nicht. Die Liste ist, wie sie war.</translation>
    </message>
    <message>
        <source>The rows of this list aren&apos;t numbers.</source>
        <translation>Die Zeilen dieser Liste sind keine Zahlen.</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>There is no row %1 any more.</source>
        <translation>Zeile %1 gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>%1 rows of %2</source>
        <translation>%1 Zeilen von %2</translation>
    </message>
    <message>
        <source>Set %1</source>
        <translation>%1 setzen</translation>
    </message>
    <message>
        <source>Set %1 of %2</source>
        <translation>%1 von %2 setzen</translation>
    </message>
    <message>
        <source>Set %1[%2]</source>
        <translation>%1[%2] setzen</translation>
    </message>
    <message>
        <source>Set %1 rows of %2</source>
        <translation>%1 Zeilen von %2 setzen</translation>
    </message>
    <message>
        <source>&quot;%1&quot; isn&apos;t the text of a value of this list.</source>
        <translation>„%1“ ist nicht der Text eines Wertes dieser Liste.</translation>
    </message>
    <message>
        <source>A list has at most %1 rows.</source>
        <translation>Eine Liste hat höchstens %1 Zeilen.</translation>
    </message>
    <message>
        <source>Insert a row into %1</source>
        <translation>Neue Zeile in %1 einfügen</translation>
    </message>
    <message>
        <source>Insert %1 rows into %2</source>
        <translation>%1 neue Zeilen in %2 einfügen</translation>
    </message>
    <message>
        <source>Duplicate a row of %1</source>
        <translation>Zeile von %1 duplizieren</translation>
    </message>
    <message>
        <source>Duplicate %1 rows of %2</source>
        <translation>%1 Zeilen von %2 duplizieren</translation>
    </message>
    <message>
        <source>Delete a row of %1</source>
        <translation>Zeile von %1 löschen</translation>
    </message>
    <message>
        <source>Delete %1 rows of %2</source>
        <translation>%1 Zeilen von %2 löschen</translation>
    </message>
    <message>
        <source>Move a row of %1</source>
        <translation>Zeile von %1 verschieben</translation>
    </message>
    <message>
        <source>Move %1 rows of %2</source>
        <translation>%1 Zeilen von %2 verschieben</translation>
    </message>
    <message>
        <source>Resize %1 to %2 rows</source>
        <translation>%1 auf %2 Zeilen bringen</translation>
    </message>
    <message>
        <source>Fill %1 rows of %2</source>
        <translation>%1 Zeilen von %2 füllen</translation>
    </message>
    <message>
        <source>Paste a row into %1</source>
        <translation>Zeile in %1 einfügen</translation>
    </message>
    <message>
        <source>Paste %1 rows into %2</source>
        <translation>%1 Zeilen in %2 einfügen</translation>
    </message>
</context>
<context>
    <name>ListFindLine</name>
    <message>
        <source>Go to row</source>
        <translation>Zu Zeile springen</translation>
    </message>
    <message>
        <source>The number of a row, counted from 0; from the end of the list if it is negative. Several are selected by a range such as 10:20.</source>
        <translation>Die Nummer einer Zeile, gezählt ab 0; vom Ende der Liste, wenn sie negativ ist. Mehrere wählt ein Bereich wie 10:20 aus.</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Zeilenbereich</translation>
    </message>
    <message>
        <source>Shows the rows of a range: 0:5000, 10:, -5: for the last five, ::2 for every other one, ::-1 backwards</source>
        <translation>Zeigt die Zeilen eines Bereichs: 0:5000, 10:, -5: für die letzten fünf, ::2 für jede zweite, ::-1 rückwärts</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Shows the rows whose text has these words</source>
        <translation>Zeigt die Zeilen, deren Text diese Wörter enthält</translation>
    </message>
    <message>
        <source>Shows the rows for which a formula is true, such as %1 &gt; 0 and i &lt; 100. It knows %2, and i, the number of the row.</source>
        <translation>Zeigt die Zeilen, für die eine Formel wahr ist, etwa %1 &gt; 0 and i &lt; 100. Sie kennt %2 und i, die Nummer der Zeile.</translation>
    </message>
    <message>
        <source>The list is empty.</source>
        <translation>Die Liste ist leer.</translation>
    </message>
    <message>
        <source>There is no such row; the list has rows 0 to %1.</source>
        <translation>Eine solche Zeile gibt es nicht; die Liste hat die Zeilen 0 bis %1.</translation>
    </message>
    <message>
        <source>Rows with gaps can&apos;t be selected. Show them alone with the line Range.</source>
        <translation>Zeilen mit Lücken lassen sich nicht auswählen. Zeigen Sie sie mit der Eingabe Zeilenbereich allein an.</translation>
    </message>
    <message>
        <source>Row %1 isn&apos;t among those that are shown.</source>
        <translation>Zeile %1 ist nicht unter den angezeigten.</translation>
    </message>
</context>
<context>
    <name>ListPanel</name>
    <message>
        <source>Select a list field, such as the positions of a mesh, to see its rows.</source>
        <translation>Wählen Sie ein Listenfeld aus, etwa die Positionen eines Netzes, um seine Zeilen zu sehen.</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>&amp;Statistics</source>
        <translation>&amp;Statistik</translation>
    </message>
    <message>
        <source>Shows smallest, largest and mean values beside the rows</source>
        <translation>Zeigt kleinste, größte und mittlere Werte neben den Zeilen</translation>
    </message>
    <message>
        <source>Rows</source>
        <translation>Zeilen</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>Go to Row</source>
        <translation>Zu Zeile springen</translation>
    </message>
    <message>
        <source>Types the number of a row to go to</source>
        <translation>Nummer einer Zeile eingeben, zu der gesprungen wird</translation>
    </message>
    <message>
        <source>Filter Rows</source>
        <translation>Zeilen filtern</translation>
    </message>
    <message>
        <source>Types what the shown rows contain</source>
        <translation>Eingeben, was die angezeigten Zeilen enthalten</translation>
    </message>
    <message>
        <source>Set Column</source>
        <translation>Spalte setzen</translation>
    </message>
    <message>
        <source>Types a formula for the values of a column</source>
        <translation>Formel für die Werte einer Spalte eingeben</translation>
    </message>
    <message>
        <source>&quot;%1&quot; wasn&apos;t written: %2 isn&apos;t shown any more.</source>
        <translation>„%1“ wurde nicht geschrieben: %2 wird nicht mehr angezeigt.</translation>
    </message>
    <message>
        <source>%1 × %2</source>
        <translation>%1 × %2</translation>
    </message>
    <message>
        <source>, %1 shown</source>
        <translation>, %1 angezeigt</translation>
    </message>
    <message>
        <source>, %1 selected</source>
        <translation>, %1 ausgewählt</translation>
    </message>
</context>
<context>
    <name>ListSetLine</name>
    <message>
        <source>&amp;Set</source>
        <translation>&amp;Setzen</translation>
    </message>
    <message>
        <source>Column</source>
        <translation>Spalte</translation>
    </message>
    <message>
        <source>to</source>
        <translation>auf</translation>
    </message>
    <message>
        <source>Formula for the selected rows</source>
        <translation>Formel für die ausgewählten Zeilen</translation>
    </message>
    <message>
        <source>Formula</source>
        <translation>Formel</translation>
    </message>
    <message>
        <source>A number or a formula for the selected rows, such as x * 2 or i * 0.1. It knows the components by their names, and the number of the row as i.</source>
        <translation>Eine Zahl oder eine Formel für die ausgewählten Zeilen, etwa x * 2 oder i * 0.1. Sie kennt die Komponenten bei ihren Namen und die Nummer der Zeile als i.</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Sets the column in the selected rows; in all that are shown if none is selected</source>
        <translation>Setzt die Spalte in den ausgewählten Zeilen; in allen angezeigten, wenn keine ausgewählt ist</translation>
    </message>
    <message>
        <source>%1 Nothing was changed.</source>
        <translation>%1 Nichts wurde geändert.</translation>
    </message>
    <message>
        <source>Computing rows</source>
        <translation>Zeilen werden berechnet</translation>
    </message>
    <message>
        <source>The list changed while the rows were being computed.</source>
        <translation>Die Liste hat sich beim Berechnen der Zeilen geändert.</translation>
    </message>
</context>
<context>
    <name>ListStatistics</name>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Minimum</source>
        <translation>Minimum</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximum</translation>
    </message>
    <message>
        <source>Mean</source>
        <translation>Mittelwert</translation>
    </message>
    <message>
        <source>NaN</source>
        <translation>NaN</translation>
    </message>
    <message>
        <source>%1 selected rows</source>
        <translation>%1 ausgewählte Zeilen</translation>
    </message>
    <message>
        <source>1 row</source>
        <translation>1 Zeile</translation>
    </message>
    <message>
        <source>%1 rows</source>
        <translation>%1 Zeilen</translation>
    </message>
    <message>
        <source>%1 of %2 rows</source>
        <translation>%1 von %2 Zeilen</translation>
    </message>
</context>
<context>
    <name>ListView</name>
    <message>
        <source>Rows of the list</source>
        <translation>Zeilen der Liste</translation>
    </message>
</context>
<context>
    <name>LockAction</name>
    <message>
        <source>Lock Inspec&amp;tor</source>
        <translation>Inspektor fi&amp;xieren</translation>
    </message>
    <message>
        <source>Keeps fields and editors on this node while you browse on</source>
        <translation>Hält Felder und Editoren auf diesem Knoten, während Sie weiterblättern</translation>
    </message>
    <message>
        <source>Locked on %1. Click to follow the selection again.</source>
        <translation>Fixiert auf %1. Klicken, um wieder der Auswahl zu folgen.</translation>
    </message>
    <message>
        <source>Lock: stay on this node while you browse on.</source>
        <translation>Fixieren: auf diesem Knoten bleiben, während Sie weiterblättern.</translation>
    </message>
    <message>
        <source>Select a node first, to lock the inspector on it.</source>
        <translation>Zuerst einen Knoten auswählen, um den Inspektor darauf zu fixieren.</translation>
    </message>
</context>
<context>
    <name>LockStatus</name>
    <message>
        <source>Locked on %1</source>
        <translation>Fixiert auf %1</translation>
    </message>
    <message>
        <source>Click here</source>
        <translation>Hier klicken</translation>
    </message>
    <message>
        <source>Click here or press %1</source>
        <translation>Hier klicken oder %1 drücken</translation>
    </message>
    <message>
        <source>Fields and editors stay on %1. %2, and they follow the selection again.</source>
        <translation>Felder und Editoren bleiben auf %1. %2, und sie folgen wieder der Auswahl.</translation>
    </message>
</context>
<context>
    <name>LogDock</name>
    <message>
        <source>Window</source>
        <translation>Fenster</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
</context>
<context>
    <name>LogFile</name>
    <message>
        <source>%1 doesn&apos;t exist any more.</source>
        <translation>%1 gibt es nicht mehr.</translation>
    </message>
    <message>
        <source>The desktop has no program that opens %1.</source>
        <translation>Der Desktop hat kein Programm, das %1 öffnet.</translation>
    </message>
</context>
<context>
    <name>LogFindLine</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Marks the rows that contain this text; the rows around them stay</source>
        <translation>Markiert die Zeilen, die diesen Text enthalten; die Zeilen darum bleiben</translation>
    </message>
    <message>
        <source>Previous hit</source>
        <translation>Voriger Treffer</translation>
    </message>
    <message>
        <source>Next hit</source>
        <translation>Nächster Treffer</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>No hits</source>
        <translation>Keine Treffer</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>%1 hits</source>
        <translation>%1 Treffer</translation>
    </message>
</context>
<context>
    <name>LogModel</name>
    <message>
        <source>%1 times</source>
        <translation>%1-mal</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>Zeit</translation>
    </message>
    <message>
        <source>Source</source>
        <translation>Quelle</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Anzahl</translation>
    </message>
</context>
<context>
    <name>LogPanel</name>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Öffnen</translation>
    </message>
    <message>
        <source>Selects the node or opens the file that the row is about</source>
        <translation>Wählt den Knoten aus oder öffnet die Datei, um die es in der Zeile geht</translation>
    </message>
    <message>
        <source>Open &amp;Folder</source>
        <translation>Or&amp;dner öffnen</translation>
    </message>
    <message>
        <source>Opens the folder of the file that the row is about</source>
        <translation>Öffnet den Ordner der Datei, um die es in der Zeile geht</translation>
    </message>
    <message>
        <source>&amp;Group Equal Lines</source>
        <translation>Gleiche Zeilen &amp;gruppieren</translation>
    </message>
    <message>
        <source>Shows equal lines that follow each other as one row with their number</source>
        <translation>Zeigt gleiche aufeinanderfolgende Zeilen als eine Zeile mit ihrer Anzahl</translation>
    </message>
    <message>
        <source>C&amp;lear</source>
        <translation>&amp;Leeren</translation>
    </message>
    <message>
        <source>Forgets all lines of the log</source>
        <translation>Vergisst alle Zeilen des Protokolls</translation>
    </message>
    <message>
        <source>&amp;Save…</source>
        <translation>&amp;Speichern…</translation>
    </message>
    <message>
        <source>Writes the rows that are shown to a text file</source>
        <translation>Schreibt die angezeigten Zeilen in eine Textdatei</translation>
    </message>
    <message>
        <source>F&amp;ind</source>
        <translation>S&amp;uchen</translation>
    </message>
    <message>
        <source>Searches the rows of the log, and keeps the rows around the hits</source>
        <translation>Durchsucht die Zeilen des Protokolls; die Zeilen um die Treffer bleiben</translation>
    </message>
    <message>
        <source>Find &amp;Next</source>
        <translation>&amp;Weitersuchen</translation>
    </message>
    <message>
        <source>Goes to the next hit in the log</source>
        <translation>Springt zum nächsten Treffer im Protokoll</translation>
    </message>
    <message>
        <source>Find &amp;Previous</source>
        <translation>&amp;Rückwärts suchen</translation>
    </message>
    <message>
        <source>Goes to the previous hit in the log</source>
        <translation>Springt zum vorigen Treffer im Protokoll</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Shows the rows that contain all of these words, in the text or the source; the others are hidden, not lost</source>
        <translation>Zeigt die Zeilen, die alle diese Wörter im Text oder in der Quelle enthalten; die anderen sind ausgeblendet, nicht verloren</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>%1, shown or hidden by this button</source>
        <translation>%1, mit dieser Schaltfläche ein- oder auszublenden</translation>
    </message>
    <message>
        <source>the last %1 lines or %2 are kept</source>
        <translation>die letzten %1 Zeilen oder %2 bleiben erhalten</translation>
    </message>
    <message>
        <source>%1 lines; %2</source>
        <translation>%1 Zeilen; %2</translation>
    </message>
    <message>
        <source>; %1 older ones were dropped</source>
        <translation>; %1 ältere sind weggefallen</translation>
    </message>
    <message>
        <source>The filter hides all lines. </source>
        <translation>Der Filter blendet alle Zeilen aus. </translation>
    </message>
    <message>
        <source>The log is empty.</source>
        <translation>Das Protokoll ist leer.</translation>
    </message>
    <message>
        <source>No lines are shown.</source>
        <translation>Keine Zeilen werden angezeigt.</translation>
    </message>
    <message>
        <source>The row names no node and no file that exists.</source>
        <translation>Die Zeile nennt keinen Knoten und keine vorhandene Datei.</translation>
    </message>
    <message>
        <source>Save the Log</source>
        <translation>Protokoll speichern</translation>
    </message>
    <message>
        <source>Text files (*.txt *.log)</source>
        <translation>Textdateien (*.txt *.log)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>The log wasn&apos;t written: %1</source>
        <translation>Das Protokoll wurde nicht geschrieben: %1</translation>
    </message>
</context>
<context>
    <name>LogTap</name>
    <message>
        <source>Standard error</source>
        <translation>Fehlerausgabe</translation>
    </message>
    <message>
        <source>Standard output</source>
        <translation>Standardausgabe</translation>
    </message>
    <message>
        <source>Standard log</source>
        <translation>Protokollausgabe</translation>
    </message>
    <message>
        <source>Reading</source>
        <translation>Lesen</translation>
    </message>
    <message>
        <source>OpenGL</source>
        <translation>OpenGL</translation>
    </message>
    <message>
        <source>Memory</source>
        <translation>Speicher</translation>
    </message>
    <message>
        <source>Toolkit</source>
        <translation>Toolkit</translation>
    </message>
</context>
<context>
    <name>LogView</name>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>No scene is open.</source>
        <translation>Keine Szene ist geöffnet.</translation>
    </message>
    <message>
        <source>Unsaved changes can&apos;t be kept for recovery after a crash: %1. It is tried again every minute.</source>
        <translation>Ungespeicherte Änderungen lassen sich nicht für die Wiederherstellung nach einem Absturz sichern: %1. Jede Minute folgt ein neuer Versuch.</translation>
    </message>
    <message>
        <source>%1[*] — Orvane</source>
        <translation>%1[*] — Orvane</translation>
    </message>
    <message>
        <source>Orvane</source>
        <translation>Orvane</translation>
    </message>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
    <message>
        <source>Fields</source>
        <translation>Felder</translation>
    </message>
    <message>
        <source>File and Edit</source>
        <translation>Datei und Bearbeiten</translation>
    </message>
    <message>
        <source>&amp;Guides</source>
        <translation>&amp;Hilfselemente</translation>
    </message>
    <message>
        <source>&amp;Inspectors</source>
        <translation>Inspekt&amp;oren</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Farbschema</translation>
    </message>
</context>
<context>
    <name>MarkDelegate</name>
    <message>
        <source>Ignored: click to use the value again (Ctrl+Alt+I)</source>
        <translation>Ignoriert: klicken, um den Wert wieder zu verwenden (Strg+Alt+I)</translation>
    </message>
    <message>
        <source>Let the scene ignore this value (Ctrl+Alt+I)</source>
        <translation>Diesen Wert in der Szene ignorieren (Strg+Alt+I)</translation>
    </message>
    <message>
        <source>A favorite of this class: click to put it back (Ctrl+B)</source>
        <translation>Ein Favorit dieser Klasse: klicken, um ihn zurückzulegen (Strg+B)</translation>
    </message>
    <message>
        <source>Put this field of the class to the top (Ctrl+B)</source>
        <translation>Dieses Feld der Klasse nach oben legen (Strg+B)</translation>
    </message>
    <message>
        <source>Reset to the default (Ctrl+Backspace)</source>
        <translation>Auf den Vorgabewert zurücksetzen (Strg+Rücktaste)</translation>
    </message>
</context>
<context>
    <name>MaskPopup</name>
    <message>
        <source>Bits</source>
        <translation>Bits</translation>
    </message>
    <message>
        <source>bits 0x%1, without a name</source>
        <translation>Bits 0x%1, ohne Namen</translation>
    </message>
</context>
<context>
    <name>MatrixCell</name>
    <message>
        <source>identity</source>
        <translation>Einheitsmatrix</translation>
    </message>
    <message>
        <source>with shear: %1</source>
        <translation>mit Scherung: %1</translation>
    </message>
    <message>
        <source>projection: %1</source>
        <translation>Projektion: %1</translation>
    </message>
    <message>
        <source>moved %1</source>
        <translation>verschoben %1</translation>
    </message>
    <message>
        <source>turned %1°</source>
        <translation>gedreht %1°</translation>
    </message>
    <message>
        <source>scaled %1</source>
        <translation>skaliert %1</translation>
    </message>
</context>
<context>
    <name>MatrixPopup</name>
    <message>
        <source>The matrix has shear: its axes aren&apos;t at right angles. Translation, rotation and scale don&apos;t give it exactly.</source>
        <translation>Die Matrix hat eine Scherung: Ihre Achsen stehen nicht rechtwinklig. Verschiebung, Drehung und Skalierung ergeben sie nicht genau.</translation>
    </message>
    <message>
        <source>The last column isn&apos;t 0, 0, 0, 1. Translation, rotation and scale don&apos;t give such a projection.</source>
        <translation>Die letzte Spalte ist nicht 0, 0, 0, 1. Verschiebung, Drehung und Skalierung ergeben keine solche Projektion.</translation>
    </message>
    <message>
        <source>The matrix has elements that aren&apos;t finite, so it has no parts.</source>
        <translation>Die Matrix hat Elemente, die nicht endlich sind, lässt sich also nicht zerlegen.</translation>
    </message>
    <message>
        <source>Remove the shear</source>
        <translation>Scherung entfernen</translation>
    </message>
    <message>
        <source>Remove the projection</source>
        <translation>Projektion entfernen</translation>
    </message>
    <message>
        <source>Make it the identity</source>
        <translation>Zur Einheitsmatrix machen</translation>
    </message>
    <message>
        <source>Matrix</source>
        <translation>Matrix</translation>
    </message>
    <message>
        <source>Row %1, column %2</source>
        <translation>Zeile %1, Spalte %2</translation>
    </message>
    <message>
        <source>Row %1</source>
        <translation>Zeile %1</translation>
    </message>
    <message>
        <source>Translation</source>
        <translation>Verschiebung</translation>
    </message>
    <message>
        <source>Rotation °</source>
        <translation>Drehung °</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Euler degrees: turns about the fixed axes, x first, then y, then z.</source>
        <translation>Eulerwinkel in Grad: Drehungen um die festen Achsen, erst x, dann y, dann z.</translation>
    </message>
</context>
<context>
    <name>MeasureTool</name>
    <message>
        <source>&amp;Measure</source>
        <translation>&amp;Messen</translation>
    </message>
    <message>
        <source>Measures distances and angles between points that are clicked, and the selection</source>
        <translation>Misst Abstände und Winkel zwischen angeklickten Punkten sowie die Auswahl</translation>
    </message>
    <message>
        <source>Selection: %1</source>
        <translation>Auswahl: %1</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>von %1 bis %2</translation>
    </message>
    <message>
        <source>Click on two points to measure their distance, on a third one for an angle. Escape ends it.</source>
        <translation>Auf zwei Punkte klicken, um ihren Abstand zu messen, auf einen dritten für einen Winkel. Esc beendet das Messen.</translation>
    </message>
    <message>
        <source>From %1</source>
        <translation>Von %1</translation>
    </message>
    <message>
        <source>Distance: %1 (%2)</source>
        <translation>Abstand: %1 (%2)</translation>
    </message>
    <message>
        <source>Angle: %1°</source>
        <translation>Winkel: %1°</translation>
    </message>
</context>
<context>
    <name>MessageRow</name>
    <message>
        <source>Close this message</source>
        <translation>Diese Meldung schließen</translation>
    </message>
    <message>
        <source>Message</source>
        <translation>Meldung</translation>
    </message>
</context>
<context>
    <name>NameScrub</name>
    <message>
        <source>Drag to change the number; with Shift ten times as fast, with Ctrl ten times as slow.</source>
        <translation>Ziehen, um die Zahl zu ändern; mit Umschalt zehnmal so schnell, mit Strg zehnmal so langsam.</translation>
    </message>
</context>
<context>
    <name>NavigationActions</name>
    <message>
        <source>&amp;Orbit about the Picked Point</source>
        <translation>&amp;Angeklickten Punkt umkreisen</translation>
    </message>
    <message>
        <source>A drag goes round what is under the pointer, rather than round the middle of the picture</source>
        <translation>Ziehen umkreist, was unter dem Mauszeiger ist, statt die Mitte des Bildes</translation>
    </message>
    <message>
        <source>&amp;Animate the View</source>
        <translation>A&amp;nsicht animieren</translation>
    </message>
    <message>
        <source>Views from the sides, framing and bookmarks are reached by a short movement, where the desktop allows it</source>
        <translation>Ansichten von den Seiten, Einpassen und Lesezeichen folgen einer kurzen Bewegung, wo der Desktop es erlaubt</translation>
    </message>
    <message>
        <source>Na&amp;vigation</source>
        <translation>Na&amp;vigation</translation>
    </message>
</context>
<context>
    <name>NewWindow</name>
    <message>
        <source>Another window can&apos;t be opened: the program %1 can&apos;t be started.</source>
        <translation>Ein weiteres Fenster lässt sich nicht öffnen: Das Programm %1 startet nicht.</translation>
    </message>
</context>
<context>
    <name>NodeActions</name>
    <message>
        <source>Cu&amp;t</source>
        <translation>Aus&amp;schneiden</translation>
    </message>
    <message>
        <source>Moves the selected nodes to the clipboard</source>
        <translation>Verschiebt die ausgewählten Knoten in die Zwischenablage</translation>
    </message>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copies the selected nodes to the clipboard, as text too</source>
        <translation>Kopiert die ausgewählten Knoten in die Zwischenablage, auch als Text</translation>
    </message>
    <message>
        <source>&amp;Paste</source>
        <translation>&amp;Einfügen</translation>
    </message>
    <message>
        <source>Adds the nodes of the clipboard to the selected group, or behind the selected node</source>
        <translation>Fügt die Knoten der Zwischenablage in die ausgewählte Gruppe oder hinter dem ausgewählten Knoten ein</translation>
    </message>
    <message>
        <source>Paste a&amp;s Shared</source>
        <translation>&amp;Gemeinsam einfügen</translation>
    </message>
    <message>
        <source>Lets the nodes that were copied be in this place as well, so that a change is seen in both</source>
        <translation>Setzt die kopierten Knoten auch an diese Stelle, sodass eine Änderung an beiden zu sehen ist</translation>
    </message>
    <message>
        <source>&amp;Add Node…</source>
        <translation>Knoten hin&amp;zufügen…</translation>
    </message>
    <message>
        <source>Adds a node of a class that you choose to the selected group, or behind the selected node</source>
        <translation>Fügt einen Knoten einer wählbaren Klasse in die ausgewählte Gruppe oder hinter dem ausgewählten Knoten ein</translation>
    </message>
    <message>
        <source>The node comes to the top of the scene.</source>
        <translation>Der Knoten kommt ganz oben in die Szene.</translation>
    </message>
    <message>
        <source>The node comes into %1.</source>
        <translation>Der Knoten kommt in %1.</translation>
    </message>
    <message>
        <source>Dup&amp;licate</source>
        <translation>&amp;Duplizieren</translation>
    </message>
    <message>
        <source>Copies the selected nodes behind themselves</source>
        <translation>Kopiert die ausgewählten Knoten hinter sich selbst</translation>
    </message>
    <message>
        <source>&amp;Delete Node</source>
        <translation>Knoten l&amp;öschen</translation>
    </message>
    <message>
        <source>Removes the selected nodes with everything below them</source>
        <translation>Entfernt die ausgewählten Knoten mit allem darunter</translation>
    </message>
    <message>
        <source>&amp;Group</source>
        <translation>Gru&amp;ppieren</translation>
    </message>
    <message>
        <source>Puts the selected nodes into a new group</source>
        <translation>Legt die ausgewählten Knoten in eine neue Gruppe</translation>
    </message>
    <message>
        <source>Ungr&amp;oup</source>
        <translation>Gruppe &amp;auflösen</translation>
    </message>
    <message>
        <source>Replaces the selected groups by what is in them</source>
        <translation>Ersetzt die ausgewählten Gruppen durch ihren Inhalt</translation>
    </message>
    <message>
        <source>Make Own Cop&amp;y</source>
        <translation>Eige&amp;ne Kopie anlegen</translation>
    </message>
    <message>
        <source>Gives these places a copy of their own of a node that is in other places as well</source>
        <translation>Gibt diesen Stellen eine eigene Kopie eines Knotens, der auch an anderen Stellen ist</translation>
    </message>
    <message>
        <source>&amp;Move Up</source>
        <translation>Nach &amp;oben</translation>
    </message>
    <message>
        <source>Moves the selected nodes before the node above them</source>
        <translation>Verschiebt die ausgewählten Knoten vor den Knoten darüber</translation>
    </message>
    <message>
        <source>Move Do&amp;wn</source>
        <translation>Nac&amp;h unten</translation>
    </message>
    <message>
        <source>Moves the selected nodes behind the node below them</source>
        <translation>Verschiebt die ausgewählten Knoten hinter den Knoten darunter</translation>
    </message>
    <message>
        <source>Moves the selected nodes behind the group that they are in</source>
        <translation>Verschiebt die ausgewählten Knoten hinter die Gruppe, in der sie sind</translation>
    </message>
    <message>
        <source>Moves the selected nodes to the end of the group above them</source>
        <translation>Verschiebt die ausgewählten Knoten ans Ende der Gruppe darüber</translation>
    </message>
    <message>
        <source>&amp;Keep Place</source>
        <translation>Or&amp;t beibehalten</translation>
    </message>
    <message>
        <source>Nodes stay where they are in the world when they move to other groups</source>
        <translation>Knoten bleiben an ihrem Ort in der Welt, wenn sie in andere Gruppen kommen</translation>
    </message>
    <message>
        <source>No node is selected.</source>
        <translation>Kein Knoten ist ausgewählt.</translation>
    </message>
    <message>
        <source>No scene is open.</source>
        <translation>Keine Szene ist geöffnet.</translation>
    </message>
    <message>
        <source>Mov&amp;e Out of Group</source>
        <translation>Aus Gruppe herausneh&amp;men</translation>
    </message>
    <message>
        <source>Move into Group A&amp;bove</source>
        <translation>In Gruppe darüber &amp;verschieben</translation>
    </message>
</context>
<context>
    <name>NodeClipboard</name>
    <message>
        <source>Only nodes that were copied from this scene can be shared in it. Paste them as copies.</source>
        <translation>Nur aus dieser Szene kopierte Knoten lassen sich gemeinsam einfügen. Fügen Sie sie als Kopien ein.</translation>
    </message>
    <message>
        <source>Clipboard</source>
        <translation>Zwischenablage</translation>
    </message>
    <message>
        <source>Reading what is pasted…</source>
        <translation>Eingefügtes wird gelesen…</translation>
    </message>
    <message>
        <source>Nothing was pasted. %1</source>
        <translation>Nichts wurde eingefügt. %1</translation>
    </message>
    <message>
        <source>Nothing was pasted, since another scene was opened meanwhile.</source>
        <translation>Nichts wurde eingefügt, weil inzwischen eine andere Szene geöffnet wurde.</translation>
    </message>
    <message>
        <source>The clipboard holds no nodes.</source>
        <translation>Die Zwischenablage enthält keine Knoten.</translation>
    </message>
</context>
<context>
    <name>NodeDescriptions</name>
    <message>
        <source>The detail with which the surfaces and textures that follow in the group are drawn.</source>
        <translation>Wie detailliert die in der Gruppe folgenden Flächen und Texturen gezeichnet werden.</translation>
    </message>
    <message>
        <source>What value is measured against: the object at any distance, the picture, or neither, and then only boxes are drawn.</source>
        <translation>Woran value gemessen wird: am Objekt in jeder Entfernung, am Bild oder an keinem, dann werden nur Quader gezeichnet.</translation>
    </message>
    <message>
        <source>The detail of surfaces, from coarse and fast (0) to fine and slow (1).</source>
        <translation>Das Detail der Flächen, von grob und schnell (0) bis fein und langsam (1).</translation>
    </message>
    <message>
        <source>The quality of textures, from none drawn (0) to all kinds of smoothing (1).</source>
        <translation>Die Qualität der Texturen, von gar keinen (0) bis zu allen Arten der Glättung (1).</translation>
    </message>
    <message>
        <source>Light from very far away, the same everywhere, such as that of the sun.</source>
        <translation>Licht aus weiter Ferne, überall gleich, etwa das der Sonne.</translation>
    </message>
    <message>
        <source>Whether the light shines.</source>
        <translation>Ob das Licht leuchtet.</translation>
    </message>
    <message>
        <source>How bright the light is, from dark (0) to full (1).</source>
        <translation>Wie hell das Licht ist, von dunkel (0) bis voll (1).</translation>
    </message>
    <message>
        <source>The colour of the light.</source>
        <translation>Die Farbe des Lichts.</translation>
    </message>
    <message>
        <source>Where the rays go, as a vector of any length but 0.</source>
        <translation>Wohin die Strahlen gehen, als Vektor beliebiger Länge außer 0.</translation>
    </message>
    <message>
        <source>Has one field of every field class to try editors with, and draws nothing.</source>
        <translation>Hat ein Feld jeder Feldklasse, um Editoren zu erproben, und zeichnet nichts.</translation>
    </message>
    <message>
        <source>A set of bits with names.</source>
        <translation>Eine Menge benannter Bits.</translation>
    </message>
    <message>
        <source>A boolean.</source>
        <translation>Ein Wahrheitswert.</translation>
    </message>
    <message>
        <source>A rectangle.</source>
        <translation>Ein Rechteck.</translation>
    </message>
    <message>
        <source>A box of 16-bit integers.</source>
        <translation>Ein Quader aus 16-Bit-Ganzzahlen.</translation>
    </message>
    <message>
        <source>A colour.</source>
        <translation>Eine Farbe.</translation>
    </message>
    <message>
        <source>A colour with opacity.</source>
        <translation>Eine Farbe mit Deckkraft.</translation>
    </message>
    <message>
        <source>A 64-bit number.</source>
        <translation>Eine 64-Bit-Zahl.</translation>
    </message>
    <message>
        <source>One of four names.</source>
        <translation>Einer von vier Namen.</translation>
    </message>
    <message>
        <source>The path of a file.</source>
        <translation>Der Pfad einer Datei.</translation>
    </message>
    <message>
        <source>A 32-bit number.</source>
        <translation>Eine 32-Bit-Zahl.</translation>
    </message>
    <message>
        <source>A small or large image.</source>
        <translation>Ein kleines oder großes Bild.</translation>
    </message>
    <message>
        <source>A 32-bit integer.</source>
        <translation>Eine 32-Bit-Ganzzahl.</translation>
    </message>
    <message>
        <source>A 4 by 4 matrix.</source>
        <translation>Eine 4×4-Matrix.</translation>
    </message>
    <message>
        <source>A name.</source>
        <translation>Ein Name.</translation>
    </message>
    <message>
        <source>A plane.</source>
        <translation>Eine Ebene.</translation>
    </message>
    <message>
        <source>A turn about an axis.</source>
        <translation>Eine Drehung um eine Achse.</translation>
    </message>
    <message>
        <source>A 16-bit integer.</source>
        <translation>Eine 16-Bit-Ganzzahl.</translation>
    </message>
    <message>
        <source>A text.</source>
        <translation>Ein Text.</translation>
    </message>
    <message>
        <source>A time.</source>
        <translation>Eine Zeit.</translation>
    </message>
    <message>
        <source>A 32-bit integer that is never negative.</source>
        <translation>Eine 32-Bit-Ganzzahl, die nie negativ ist.</translation>
    </message>
    <message>
        <source>A 16-bit integer that is never negative.</source>
        <translation>Eine 16-Bit-Ganzzahl, die nie negativ ist.</translation>
    </message>
    <message>
        <source>Two numbers.</source>
        <translation>Zwei Zahlen.</translation>
    </message>
    <message>
        <source>Two 32-bit integers.</source>
        <translation>Zwei 32-Bit-Ganzzahlen.</translation>
    </message>
    <message>
        <source>Two 16-bit integers.</source>
        <translation>Zwei 16-Bit-Ganzzahlen.</translation>
    </message>
    <message>
        <source>Three numbers.</source>
        <translation>Drei Zahlen.</translation>
    </message>
    <message>
        <source>Three 16-bit integers.</source>
        <translation>Drei 16-Bit-Ganzzahlen.</translation>
    </message>
    <message>
        <source>Four numbers.</source>
        <translation>Vier Zahlen.</translation>
    </message>
    <message>
        <source>Booleans.</source>
        <translation>Wahrheitswerte.</translation>
    </message>
    <message>
        <source>Colours.</source>
        <translation>Farben.</translation>
    </message>
    <message>
        <source>Colours with opacity.</source>
        <translation>Farben mit Deckkraft.</translation>
    </message>
    <message>
        <source>64-bit numbers.</source>
        <translation>64-Bit-Zahlen.</translation>
    </message>
    <message>
        <source>Some of four names.</source>
        <translation>Einige von vier Namen.</translation>
    </message>
    <message>
        <source>32-bit numbers.</source>
        <translation>32-Bit-Zahlen.</translation>
    </message>
    <message>
        <source>32-bit integers.</source>
        <translation>32-Bit-Ganzzahlen.</translation>
    </message>
    <message>
        <source>4 by 4 matrices.</source>
        <translation>4×4-Matrizen.</translation>
    </message>
    <message>
        <source>Names.</source>
        <translation>Namen.</translation>
    </message>
    <message>
        <source>Planes.</source>
        <translation>Ebenen.</translation>
    </message>
    <message>
        <source>Turns, each about an axis.</source>
        <translation>Drehungen, jede um eine Achse.</translation>
    </message>
    <message>
        <source>16-bit integers.</source>
        <translation>16-Bit-Ganzzahlen.</translation>
    </message>
    <message>
        <source>Texts.</source>
        <translation>Texte.</translation>
    </message>
    <message>
        <source>32-bit integers that are never negative.</source>
        <translation>32-Bit-Ganzzahlen, die nie negativ sind.</translation>
    </message>
    <message>
        <source>16-bit integers that are never negative.</source>
        <translation>16-Bit-Ganzzahlen, die nie negativ sind.</translation>
    </message>
    <message>
        <source>Vectors of two numbers.</source>
        <translation>Vektoren aus zwei Zahlen.</translation>
    </message>
    <message>
        <source>Vectors of two 32-bit integers.</source>
        <translation>Vektoren aus zwei 32-Bit-Ganzzahlen.</translation>
    </message>
    <message>
        <source>Vectors of two 16-bit integers.</source>
        <translation>Vektoren aus zwei 16-Bit-Ganzzahlen.</translation>
    </message>
    <message>
        <source>Vectors of three numbers.</source>
        <translation>Vektoren aus drei Zahlen.</translation>
    </message>
    <message>
        <source>Vectors of four numbers.</source>
        <translation>Vektoren aus vier Zahlen.</translation>
    </message>
    <message>
        <source>A node that holds other nodes, in order.</source>
        <translation>Ein Knoten, der andere Knoten in ihrer Reihenfolge enthält.</translation>
    </message>
    <message>
        <source>The look of the surfaces that follow in the group.</source>
        <translation>Das Aussehen der in der Gruppe folgenden Flächen.</translation>
    </message>
    <message>
        <source>The part of the ambient light that is reflected.</source>
        <translation>Der reflektierte Anteil des Umgebungslichts.</translation>
    </message>
    <message>
        <source>The colour of the surface in direct light.</source>
        <translation>Die Farbe der Fläche in direktem Licht.</translation>
    </message>
    <message>
        <source>The colour of highlights.</source>
        <translation>Die Farbe der Glanzlichter.</translation>
    </message>
    <message>
        <source>The light that the surface gives off by itself.</source>
        <translation>Das Licht, das die Fläche selbst abgibt.</translation>
    </message>
    <message>
        <source>How sharp highlights are, from wide (0) to small and sharp (1).</source>
        <translation>Wie scharf Glanzlichter sind, von breit (0) bis klein und scharf (1).</translation>
    </message>
    <message>
        <source>How much shines through, from opaque (0) to invisible (1).</source>
        <translation>Wie viel durchscheint, von deckend (0) bis unsichtbar (1).</translation>
    </message>
    <message>
        <source>How metallic the surface is, from plastic or stone (0) to bare metal (1).</source>
        <translation>Wie metallisch die Fläche ist, von Kunststoff oder Stein (0) bis zu blankem Metall (1).</translation>
    </message>
    <message>
        <source>How rough the surface is, from a mirror (0) to dull (1); below 1, or with some metalness, specularColor and shininess have no effect.</source>
        <translation>Wie rau die Fläche ist, vom Spiegel (0) bis stumpf (1); unter 1 oder mit metalness wirken specularColor und shininess nicht.</translation>
    </message>
    <message>
        <source>Whether triangles are also seen from behind, where their corners are in clockwise order.</source>
        <translation>Ob Dreiecke auch von hinten zu sehen sind, wo ihre Ecken im Uhrzeigersinn liegen.</translation>
    </message>
    <message>
        <source>The opacity below which nothing is drawn, while all else is opaque; 0 draws every opacity.</source>
        <translation>Die Deckkraft, unter der nichts gezeichnet wird, während alles andere deckend ist; 0 zeichnet jede Deckkraft.</translation>
    </message>
    <message>
        <source>A group whose children are transformed by a matrix.</source>
        <translation>Eine Gruppe, deren Kindknoten durch eine Matrix transformiert werden.</translation>
    </message>
    <message>
        <source>The matrix from the children to the group above, with the translation in the last row.</source>
        <translation>Die Matrix von den Kindknoten zur Gruppe darüber, mit der Verschiebung in der letzten Zeile.</translation>
    </message>
    <message>
        <source>Triangles, lines or points with shared corners.</source>
        <translation>Dreiecke, Linien oder Punkte mit gemeinsamen Ecken.</translation>
    </message>
    <message>
        <source>The corners.</source>
        <translation>Die Ecken.</translation>
    </message>
    <message>
        <source>The direction of unit length that the surface faces at each corner: one for each position, or none for flat triangles that are lit by their own normals.</source>
        <translation>Die Richtung der Länge 1, in die die Fläche an jeder Ecke zeigt: eine je Position, oder keine für flache Dreiecke mit ihren eigenen Normalen.</translation>
    </message>
    <message>
        <source>The place in the texture for each corner, from 0 to 1 across it with (0, 0) at the lower left: one for each position, or none.</source>
        <translation>Die Stelle in der Textur für jede Ecke, von 0 bis 1 mit (0, 0) links unten: eine je Position, oder keine.</translation>
    </message>
    <message>
        <source>Colours that replace the diffuse colour and the transparency of the material: one for each position, one for all, or none.</source>
        <translation>Farben statt der diffusen Farbe und der Transparenz des Materials: eine je Position, eine für alle oder keine.</translation>
    </message>
    <message>
        <source>The positions in the order of drawing, counted from 0: three for each triangle (counter-clockwise as seen from outside), two for each line, one for each point, or none at all for all positions in order.</source>
        <translation>Die Positionen in der Reihenfolge des Zeichnens, gezählt ab 0: drei je Dreieck (von außen gegen den Uhrzeigersinn), zwei je Linie, eine je Punkt, oder gar keine für alle Positionen der Reihe nach.</translation>
    </message>
    <message>
        <source>What the indices make.</source>
        <translation>Was die Indizes bilden.</translation>
    </message>
    <message>
        <source>A camera that sees things of the same size at any distance.</source>
        <translation>Eine Kamera, die alles in jeder Entfernung gleich groß sieht.</translation>
    </message>
    <message>
        <source>Where the camera is.</source>
        <translation>Wo die Kamera ist.</translation>
    </message>
    <message>
        <source>How the camera is turned from looking along negative z with y upwards.</source>
        <translation>Wie die Kamera gedreht ist, ausgehend vom Blick entlang der negativen z-Achse mit y nach oben.</translation>
    </message>
    <message>
        <source>How close to the camera a thing may be and still be seen.</source>
        <translation>Wie nah etwas der Kamera sein darf, um noch gesehen zu werden.</translation>
    </message>
    <message>
        <source>How far from the camera a thing may be and still be seen, more than nearDistance.</source>
        <translation>Wie weit etwas von der Kamera sein darf, um noch gesehen zu werden, mehr als nearDistance.</translation>
    </message>
    <message>
        <source>The height of what is seen.</source>
        <translation>Die Höhe dessen, was zu sehen ist.</translation>
    </message>
    <message>
        <source>A camera that sees distant things smaller.</source>
        <translation>Eine Kamera, die Fernes kleiner sieht.</translation>
    </message>
    <message>
        <source>The angle between the lower and the upper border of the picture.</source>
        <translation>Der Winkel zwischen dem unteren und dem oberen Rand des Bildes.</translation>
    </message>
    <message>
        <source>A lamp that shines into all directions.</source>
        <translation>Eine Lampe, die in alle Richtungen leuchtet.</translation>
    </message>
    <message>
        <source>Where the lamp is.</source>
        <translation>Wo die Lampe ist.</translation>
    </message>
    <message>
        <source>How the light fades with the distance d: it is divided by x + y d + z d².</source>
        <translation>Wie das Licht mit der Entfernung d abnimmt: geteilt durch x + y d + z d².</translation>
    </message>
    <message>
        <source>A lamp that shines into a cone.</source>
        <translation>Eine Lampe, die in einen Kegel leuchtet.</translation>
    </message>
    <message>
        <source>Where the lamp is, the tip of the cone.</source>
        <translation>Wo die Lampe ist, die Spitze des Kegels.</translation>
    </message>
    <message>
        <source>The axis of the cone, as a vector of any length but 0.</source>
        <translation>Die Achse des Kegels, als Vektor beliebiger Länge außer 0.</translation>
    </message>
    <message>
        <source>The angle between the axis and the side of the cone.</source>
        <translation>Der Winkel zwischen der Achse und der Seite des Kegels.</translation>
    </message>
    <message>
        <source>How the light fades from the axis to the side, from not at all (0) to most (1).</source>
        <translation>Wie das Licht von der Achse zur Seite abnimmt, von gar nicht (0) bis am meisten (1).</translation>
    </message>
    <message>
        <source>A group that shows one of its children, none or all.</source>
        <translation>Eine Gruppe, die einen ihrer Kindknoten zeigt, keinen oder alle.</translation>
    </message>
    <message>
        <source>The index of the shown child, counted from 0; -1 or an index without a child shows none, -3 shows all.</source>
        <translation>Der Index des angezeigten Kindknotens, gezählt ab 0; -1 oder ein Index ohne Kindknoten zeigt keinen, -3 alle.</translation>
    </message>
    <message>
        <source>An image on the surfaces that follow in the group, placed by their texture coordinates.</source>
        <translation>Ein Bild auf den in der Gruppe folgenden Flächen, platziert durch ihre Texturkoordinaten.</translation>
    </message>
    <message>
        <source>The file of the image, relative to the folder of the scene file; it is used when image is empty.</source>
        <translation>Die Datei des Bildes, relativ zum Ordner der Szenendatei; sie gilt, wenn image leer ist.</translation>
    </message>
    <message>
        <source>The image itself, with the row at the bottom first.</source>
        <translation>Das Bild selbst, mit der untersten Zeile zuerst.</translation>
    </message>
    <message>
        <source>What lies to the left and right of the image.</source>
        <translation>Was links und rechts vom Bild liegt.</translation>
    </message>
    <message>
        <source>What lies below and above the image.</source>
        <translation>Was unter und über dem Bild liegt.</translation>
    </message>
    <message>
        <source>What the image changes: the colour, the normals, or metalness (blue) and roughness (green).</source>
        <translation>Was das Bild ändert: die Farbe, die Normalen oder metalness (Blau) und roughness (Grün).</translation>
    </message>
    <message>
        <source>A group whose children are scaled and turned about a point, then moved.</source>
        <translation>Eine Gruppe, deren Kindknoten um einen Punkt skaliert und gedreht, dann verschoben werden.</translation>
    </message>
    <message>
        <source>How far the children are moved along x, y and z.</source>
        <translation>Wie weit die Kindknoten entlang x, y und z verschoben werden.</translation>
    </message>
    <message>
        <source>How the children are turned: about an axis of any length but 0, counter-clockwise when it points at the viewer.</source>
        <translation>Wie die Kindknoten gedreht werden: um eine Achse beliebiger Länge außer 0, gegen den Uhrzeigersinn, wenn sie zum Betrachter zeigt.</translation>
    </message>
    <message>
        <source>The factors along x, y and z, of which a negative one mirrors.</source>
        <translation>Die Faktoren entlang x, y und z; ein negativer spiegelt.</translation>
    </message>
    <message>
        <source>The point about which the children are scaled and turned, in their own units.</source>
        <translation>Der Punkt, um den die Kindknoten skaliert und gedreht werden, in ihren eigenen Einheiten.</translation>
    </message>
    <message>
        <source>Stands for a node whose class isn&apos;t known here, and keeps all of it.</source>
        <translation>Steht für einen Knoten, dessen Klasse hier nicht bekannt ist, und behält alles von ihm.</translation>
    </message>
</context>
<context>
    <name>NodeEditor</name>
    <message>
        <source>There isn&apos;t enough memory for that; nothing was changed.</source>
        <translation>Dafür reicht der Speicher nicht; nichts wurde geändert.</translation>
    </message>
</context>
<context>
    <name>NodeLock</name>
    <message>
        <source>the scene was closed</source>
        <translation>die Szene wurde geschlossen</translation>
    </message>
    <message>
        <source>The lock on %1 is off, since %2.</source>
        <translation>Die Fixierung auf %1 ist aufgehoben: %2.</translation>
    </message>
    <message>
        <source>%1 was replaced by the reload; the lock is on the node in its place.</source>
        <translation>%1 wurde beim Neuladen ersetzt; die Fixierung ist auf dem Knoten an seiner Stelle.</translation>
    </message>
    <message>
        <source>the node isn&apos;t in the scene any more</source>
        <translation>der Knoten ist nicht mehr in der Szene</translation>
    </message>
</context>
<context>
    <name>NodeMenu</name>
    <message>
        <source>Copy Pat&amp;h</source>
        <translation>Pfad k&amp;opieren</translation>
    </message>
    <message>
        <source>Copies the path of the selected node in the scene</source>
        <translation>Kopiert den Pfad des ausgewählten Knotens in der Szene</translation>
    </message>
    <message>
        <source>Copy All F&amp;ields</source>
        <translation>Alle &amp;Felder kopieren</translation>
    </message>
    <message>
        <source>Copies the values of all fields of the node</source>
        <translation>Kopiert die Werte aller Felder des Knotens</translation>
    </message>
    <message>
        <source>Pa&amp;ste All Fields</source>
        <translation>Alle Felder &amp;einfügen</translation>
    </message>
    <message>
        <source>Writes the values of the clipboard to the fields of the node</source>
        <translation>Schreibt die Werte der Zwischenablage in die Felder des Knotens</translation>
    </message>
    <message>
        <source>&amp;Find Nodes of This Class</source>
        <translation>Knoten dieser Klasse su&amp;chen</translation>
    </message>
    <message>
        <source>Searches the tree for nodes of the class of the selected node</source>
        <translation>Sucht im Baum nach Knoten der Klasse des ausgewählten Knotens</translation>
    </message>
    <message>
        <source>Loc&amp;k Inspector on This</source>
        <translation>Inspektor hier fi&amp;xieren</translation>
    </message>
    <message>
        <source>Keeps fields and editors on the node that is selected in the tree</source>
        <translation>Hält Felder und Editoren auf dem im Baum ausgewählten Knoten</translation>
    </message>
    <message>
        <source>Look Thro&amp;ugh Camera</source>
        <translation>Durch Ka&amp;mera blicken</translation>
    </message>
    <message>
        <source>Shows in the view what the selected camera sees</source>
        <translation>Zeigt in der Ansicht, was die ausgewählte Kamera sieht</translation>
    </message>
    <message>
        <source>Select a node first.</source>
        <translation>Zuerst einen Knoten auswählen.</translation>
    </message>
    <message>
        <source>Select a camera first.</source>
        <translation>Zuerst eine Kamera auswählen.</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Verschieben</translation>
    </message>
    <message>
        <source>Fields as Te&amp;xt</source>
        <translation>Felder als &amp;Text</translation>
    </message>
    <message>
        <source>%1 has no fields to copy.</source>
        <translation>%1 hat keine Felder zum Kopieren.</translation>
    </message>
</context>
<context>
    <name>NodeMimeData</name>
    <message>
        <source>The clipboard holds %1 of text, but at most %2 can be pasted. Save the text as a scene file and import that.</source>
        <translation>Die Zwischenablage enthält %1 Text, aber höchstens %2 lassen sich einfügen. Speichern Sie den Text als Szenendatei, und importieren Sie diese.</translation>
    </message>
    <message>
        <source>The selected nodes are more than %1 of text, too much for the clipboard. Duplicate them instead, or import their file into the other scene.</source>
        <translation>Die ausgewählten Knoten sind mehr als %1 Text, zu viel für die Zwischenablage. Duplizieren Sie sie stattdessen, oder importieren Sie ihre Datei in die andere Szene.</translation>
    </message>
    <message>
        <source>The clipboard holds no nodes and no text.</source>
        <translation>Die Zwischenablage enthält weder Knoten noch Text.</translation>
    </message>
</context>
<context>
    <name>NodeToolTip</name>
    <message>
        <source>Ignored fields: %1</source>
        <translation>Ignorierte Felder: %1</translation>
    </message>
    <message>
        <source>, 1 child node</source>
        <translation>, 1 Kindknoten</translation>
    </message>
    <message>
        <source>, %1 child nodes</source>
        <translation>, %1 Kindknoten</translation>
    </message>
    <message>
        <source>1 mesh</source>
        <translation>1 Netz</translation>
    </message>
    <message>
        <source>%1 meshes</source>
        <translation>%1 Netze</translation>
    </message>
    <message>
        <source>1 triangle</source>
        <translation>1 Dreieck</translation>
    </message>
    <message>
        <source>%1 triangles</source>
        <translation>%1 Dreiecke</translation>
    </message>
    <message>
        <source>At least %1</source>
        <translation>Mindestens %1</translation>
    </message>
    <message>
        <source>Bounds in the scene: %1 × %2 × %3 around %4, %5, %6</source>
        <translation>Ausdehnung in der Szene: %1 × %2 × %3 um %4, %5, %6</translation>
    </message>
</context>
<context>
    <name>NumberEditor</name>
    <message>
        <source>several values</source>
        <translation>mehrere Werte</translation>
    </message>
</context>
<context>
    <name>NumberLimits</name>
    <message>
        <source>%1 isn&apos;t a number that fits here. Enter %2.</source>
        <translation>%1 ist keine Zahl, die hier passt. Geben Sie %2 ein.</translation>
    </message>
    <message>
        <source>%1 has a fraction. Enter %2.</source>
        <translation>%1 hat Nachkommastellen. Geben Sie %2 ein.</translation>
    </message>
    <message>
        <source>%1 is too small.</source>
        <translation>%1 ist zu klein.</translation>
    </message>
    <message>
        <source>The least is %1.</source>
        <translation>Die kleinste ist %1.</translation>
    </message>
    <message>
        <source>%1 is too large.</source>
        <translation>%1 ist zu groß.</translation>
    </message>
    <message>
        <source>The greatest is %1.</source>
        <translation>Die größte ist %1.</translation>
    </message>
    <message>
        <source>%1 Enter %2.</source>
        <translation>%1 Geben Sie %2 ein.</translation>
    </message>
    <message>
        <source>a whole number</source>
        <translation>eine ganze Zahl</translation>
    </message>
    <message>
        <source>a number</source>
        <translation>eine Zahl</translation>
    </message>
    <message>
        <source>%1 from %2 to %3</source>
        <translation>%1 von %2 bis %3</translation>
    </message>
    <message>
        <source>%1 of at least %2</source>
        <translation>%1 ab %2</translation>
    </message>
    <message>
        <source>%1 of at most %2</source>
        <translation>%1 bis %2</translation>
    </message>
</context>
<context>
    <name>NumberLine</name>
    <message>
        <source>“%1”: %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message>
        <source>%1 Enter %2 or a formula.</source>
        <translation>%1 Geben Sie %2 oder eine Formel ein.</translation>
    </message>
    <message>
        <source>The text is longer than the %1 characters of the longest formula, so it wasn&apos;t inserted.</source>
        <translation>Der Text ist länger als die %1 Zeichen der längsten Formel, deshalb wurde er nicht eingefügt.</translation>
    </message>
</context>
<context>
    <name>NumberRow</name>
    <message>
        <source>x</source>
        <translation>x</translation>
    </message>
    <message>
        <source>%1 x</source>
        <translation>%1 x</translation>
    </message>
    <message>
        <source>y</source>
        <translation>y</translation>
    </message>
    <message>
        <source>%1 y</source>
        <translation>%1 y</translation>
    </message>
    <message>
        <source>z</source>
        <translation>z</translation>
    </message>
    <message>
        <source>%1 z</source>
        <translation>%1 z</translation>
    </message>
</context>
<context>
    <name>NumberTyping</name>
    <message>
        <source>The text is longer than the %1 characters of the longest formula, so it wasn&apos;t inserted.</source>
        <translation>Der Text ist länger als die %1 Zeichen der längsten Formel, deshalb wurde er nicht eingefügt.</translation>
    </message>
    <message>
        <source>This isn&apos;t a number. Enter %1.</source>
        <translation>Das ist keine Zahl. Geben Sie %1 ein.</translation>
    </message>
    <message>
        <source>The editor doesn&apos;t take it. Enter %1.</source>
        <translation>Der Editor nimmt sie nicht an. Geben Sie %1 ein.</translation>
    </message>
    <message>
        <source>“%1”: %2</source>
        <translation>„%1“: %2</translation>
    </message>
    <message>
        <source>Not written yet: these numbers are written together, at Return.</source>
        <translation>Noch nicht geschrieben: Diese Zahlen werden zusammen mit Return geschrieben.</translation>
    </message>
</context>
<context>
    <name>OrvImages</name>
    <message>
        <source>nothing loads images here</source>
        <translation>hier lädt nichts Bilder</translation>
    </message>
</context>
<context>
    <name>OverwriteQuestion</name>
    <message>
        <source>File Changed on Disk</source>
        <translation>Geänderte Datei</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has changed on disk since it was opened or saved here. Save anyway?</source>
        <translation>„%1“ wurde auf dem Datenträger geändert, seit die Datei hier geöffnet oder gespeichert wurde. Trotzdem speichern?</translation>
    </message>
    <message>
        <source>What has changed in the file is lost if you save over it.</source>
        <translation>Was in der Datei geändert wurde, geht beim Überschreiben verloren.</translation>
    </message>
    <message>
        <source>Save &amp;Over It</source>
        <translation>&amp;Überschreiben</translation>
    </message>
    <message>
        <source>Save &amp;As…</source>
        <translation>Speichern &amp;unter…</translation>
    </message>
    <message>
        <source>&amp;Compare</source>
        <translation>&amp;Vergleichen</translation>
    </message>
</context>
<context>
    <name>PasteJob</name>
    <message>
        <source>There is nothing to paste: the clipboard has no text.</source>
        <translation>Nichts einzufügen: Die Zwischenablage enthält keinen Text.</translation>
    </message>
    <message>
        <source>1 cell</source>
        <translation>1 Zelle</translation>
    </message>
    <message>
        <source>%1 cells</source>
        <translation>%1 Zellen</translation>
    </message>
    <message>
        <source>Line %1 of the clipboard has %2, but the lines before it have %3. Nothing was pasted.</source>
        <translation>Zeile %1 der Zwischenablage hat %2, die Zeilen davor haben aber %3. Nichts wurde eingefügt.</translation>
    </message>
    <message>
        <source>Line %1: %2 Nothing was pasted.</source>
        <translation>Zeile %1: %2 Nichts wurde eingefügt.</translation>
    </message>
    <message>
        <source>The clipboard has %1 columns, and the list has one. Nothing was pasted.</source>
        <translation>Die Zwischenablage hat %1 Spalten, die Liste hat eine. Nichts wurde eingefügt.</translation>
    </message>
    <message>
        <source>The clipboard has %1 columns, but from column %2 on the list has %3. Nothing was pasted.</source>
        <translation>Die Zwischenablage hat %1 Spalten, ab Spalte %2 hat die Liste aber %3. Nichts wurde eingefügt.</translation>
    </message>
    <message>
        <source>Line %1, column %2: %3 can&apos;t be pasted. %4 Nothing was pasted.</source>
        <translation>Zeile %1, Spalte %2: %3 lässt sich nicht einfügen. %4 Nichts wurde eingefügt.</translation>
    </message>
    <message>
        <source>A cell of this list is true or false.</source>
        <translation>Eine Zelle dieser Liste ist wahr oder falsch.</translation>
    </message>
    <message>
        <source>The enumeration has no such name.</source>
        <translation>Die Aufzählung hat keinen solchen Namen.</translation>
    </message>
    <message>
        <source>The cell is empty.</source>
        <translation>Die Zelle ist leer.</translation>
    </message>
</context>
<context>
    <name>PastedNumbers</name>
    <message>
        <source>&quot;%1&quot; is neither yes nor no.</source>
        <translation>„%1“ ist weder Ja noch Nein.</translation>
    </message>
    <message>
        <source>A value has %1 numbers, and here are %2.</source>
        <translation>Ein Wert hat %1 Zahlen, hier sind %2.</translation>
    </message>
    <message>
        <source>Row %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
</context>
<context>
    <name>PastedValue</name>
    <message>
        <source>A number is out of the range of its type.</source>
        <translation>Eine Zahl liegt außerhalb des Wertebereichs ihres Typs.</translation>
    </message>
</context>
<context>
    <name>PathCell</name>
    <message>
        <source>There is no file %1.</source>
        <translation>Die Datei %1 gibt es nicht.</translation>
    </message>
</context>
<context>
    <name>PathEdit</name>
    <message>
        <source>File path</source>
        <translation>Dateipfad</translation>
    </message>
    <message>
        <source>Choose a file</source>
        <translation>Datei wählen</translation>
    </message>
    <message>
        <source>Chooses a file in a dialog.</source>
        <translation>Wählt eine Datei in einem Dialog.</translation>
    </message>
    <message>
        <source>Choose a File</source>
        <translation>Datei wählen</translation>
    </message>
</context>
<context>
    <name>PendingText</name>
    <message>
        <source>Not written yet. It is written when you release the button, press Return or close the popup; Escape drops it.</source>
        <translation>Noch nicht geschrieben. Geschrieben wird beim Loslassen der Maustaste, mit Return oder beim Schließen des Popups; Esc verwirft den Wert.</translation>
    </message>
</context>
<context>
    <name>PickerPopup</name>
    <message>
        <source>Searching…</source>
        <translation>Suche läuft…</translation>
    </message>
</context>
<context>
    <name>PictureDecoder</name>
    <message>
        <source>the import helper ended without a picture</source>
        <translation>das Importprogramm endete ohne ein Bild</translation>
    </message>
    <message>
        <source>it can&apos;t be read to its end</source>
        <translation>sie ist nicht bis zum Ende lesbar</translation>
    </message>
    <message>
        <source>it doesn&apos;t fit in memory</source>
        <translation>sie passt nicht in den Speicher</translation>
    </message>
    <message>
        <source>the import helper sent something that isn&apos;t a picture</source>
        <translation>das Importprogramm lieferte etwas, das kein Bild ist</translation>
    </message>
</context>
<context>
    <name>PictureDialog</name>
    <message>
        <source>Width</source>
        <translation>Breite</translation>
    </message>
    <message>
        <source>Height</source>
        <translation>Höhe</translation>
    </message>
    <message>
        <source>&amp;Grid and axes</source>
        <translation>&amp;Raster und Achsen</translation>
    </message>
    <message>
        <source>Export Picture</source>
        <translation>Bild exportieren</translation>
    </message>
    <message>
        <source>Seen from</source>
        <translation>Gesehen von</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>Transparent</source>
        <translation>Transparent</translation>
    </message>
    <message>
        <source>White</source>
        <translation>Weiß</translation>
    </message>
    <message>
        <source>Black</source>
        <translation>Schwarz</translation>
    </message>
    <message>
        <source> pixels</source>
        <translation> Pixel</translation>
    </message>
    <message>
        <source>&amp;Width:</source>
        <translation>&amp;Breite:</translation>
    </message>
    <message>
        <source>&amp;Height:</source>
        <translation>&amp;Höhe:</translation>
    </message>
    <message>
        <source>&amp;Seen from:</source>
        <translation>&amp;Gesehen von:</translation>
    </message>
    <message>
        <source>&amp;Background:</source>
        <translation>Hintergr&amp;und:</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren…</translation>
    </message>
    <message>
        <source>%1 million pixels</source>
        <translation>%1 Millionen Pixel</translation>
    </message>
    <message>
        <source>Too large: %1.</source>
        <translation>Zu groß: %1.</translation>
    </message>
</context>
<context>
    <name>PictureExport</name>
    <message>
        <source>Export Picture…</source>
        <translation>Bild exportieren…</translation>
    </message>
    <message>
        <source>Writes a picture of the scene of any size, with a transparent background if wanted</source>
        <translation>Schreibt ein Bild der Szene in beliebiger Größe, auf Wunsch mit transparentem Hintergrund</translation>
    </message>
    <message>
        <source>No scene is open.</source>
        <translation>Keine Szene ist geöffnet.</translation>
    </message>
    <message>
        <source>The view as it is</source>
        <translation>Die Ansicht, wie sie ist</translation>
    </message>
    <message>
        <source>All of the scene</source>
        <translation>Die ganze Szene</translation>
    </message>
    <message>
        <source>Camera %1</source>
        <translation>Kamera %1</translation>
    </message>
    <message>
        <source>Bookmark %1</source>
        <translation>Lesezeichen %1</translation>
    </message>
    <message>
        <source>Export Picture</source>
        <translation>Bild exportieren</translation>
    </message>
    <message>
        <source>PNG images (*.png)</source>
        <translation>PNG-Bilder (*.png)</translation>
    </message>
    <message>
        <source>JPEG images (*.jpg *.jpeg)</source>
        <translation>JPEG-Bilder (*.jpg *.jpeg)</translation>
    </message>
    <message>
        <source>BMP images (*.bmp)</source>
        <translation>BMP-Bilder (*.bmp)</translation>
    </message>
    <message>
        <source>PPM images (*.ppm)</source>
        <translation>PPM-Bilder (*.ppm)</translation>
    </message>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
    <message>
        <source>Drawing the picture…</source>
        <translation>Bild wird gezeichnet…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Writing the picture…</source>
        <translation>Bild wird geschrieben…</translation>
    </message>
    <message>
        <source>Wrote %1, %2 by %3 pixels</source>
        <translation>%1 geschrieben, %2 mal %3 Pixel</translation>
    </message>
</context>
<context>
    <name>PictureFile</name>
    <message>
        <source>%1: the name of a picture ends in .png, .jpg, .bmp or .ppm</source>
        <translation>%1: Der Name eines Bildes endet auf .png, .jpg, .bmp oder .ppm</translation>
    </message>
</context>
<context>
    <name>PictureRun</name>
    <message>
        <source>%1: this is no camera. --find &apos;t:Camera&apos; lists the cameras.</source>
        <translation>%1: Das ist keine Kamera. --find &apos;t:Camera&apos; listet die Kameras auf.</translation>
    </message>
    <message>
        <source>--camera %1: %2 has no bookmarks. The path of a camera begins with a slash.</source>
        <translation>--camera %1: %2 hat keine Lesezeichen. Der Pfad einer Kamera beginnt mit einem Schrägstrich.</translation>
    </message>
    <message>
        <source>--camera %1: %2 has no bookmark of that name, but %3. The path of a camera begins with a slash.</source>
        <translation>--camera %1: %2 hat kein Lesezeichen dieses Namens, aber %3. Der Pfad einer Kamera beginnt mit einem Schrägstrich.</translation>
    </message>
    <message>
        <source>%1: a picture of this format can&apos;t be transparent. Give another color with --background, or write a .png.</source>
        <translation>%1: Ein Bild dieses Formats kann nicht transparent sein. Geben Sie mit --background eine andere Farbe an, oder schreiben Sie ein .png.</translation>
    </message>
    <message>
        <source>%1: The scene refers to images in this folder, outside its own. They aren&apos;t loaded; open the scene in a window to allow it.</source>
        <translation>%1: Die Szene verweist auf Bilder in diesem Ordner, außerhalb ihres eigenen. Sie werden nicht geladen; öffnen Sie die Szene in einem Fenster, um es zu erlauben.</translation>
    </message>
</context>
<context>
    <name>PlaceActions</name>
    <message>
        <source>%1 — %2</source>
        <translation>%1 — %2</translation>
    </message>
    <message>
        <source>Bac&amp;k</source>
        <translation>&amp;Zurück</translation>
    </message>
    <message>
        <source>Selects the node that was selected before</source>
        <translation>Wählt den zuvor ausgewählten Knoten aus</translation>
    </message>
    <message>
        <source>&amp;Forward</source>
        <translation>&amp;Vorwärts</translation>
    </message>
    <message>
        <source>Selects the node that Back has left</source>
        <translation>Wählt den Knoten aus, den Zurück verlassen hat</translation>
    </message>
    <message>
        <source>Nothing else was selected before.</source>
        <translation>Zuvor war nichts anderes ausgewählt.</translation>
    </message>
    <message>
        <source>You haven&apos;t gone back.</source>
        <translation>Sie sind nicht zurückgegangen.</translation>
    </message>
</context>
<context>
    <name>PlaceKeeping</name>
    <message>
        <source>%1 can&apos;t keep its place in %2, which is scaled to nothing or has a matrix that can&apos;t be reversed. Turn off Keep Place in the Edit menu to move it.</source>
        <translation>%1 kann den Ort in %2 nicht behalten, denn diese Gruppe ist auf nichts skaliert oder hat eine nicht umkehrbare Matrix. Schalten Sie im Menü Bearbeiten „Ort beibehalten“ aus, um den Knoten zu verschieben.</translation>
    </message>
</context>
<context>
    <name>PluginActions</name>
    <message>
        <source>&amp;Plug-ins...</source>
        <translation>&amp;Plug-ins...</translation>
    </message>
    <message>
        <source>Shows the plug-ins, what is wrong with them, and a switch for each</source>
        <translation>Zeigt die Plug-ins, ihre Fehler und je einen Schalter</translation>
    </message>
    <message>
        <source>The plug-in %1 did not come through loading: the program ended meanwhile. It was left out.</source>
        <translation>Das Plug-in %1 hat das Laden nicht überstanden: Das Programm endete dabei. Es wurde ausgelassen.</translation>
    </message>
    <message>
        <source>Leave It Out</source>
        <translation>Auslassen</translation>
    </message>
    <message>
        <source>Load It Now</source>
        <translation>Jetzt laden</translation>
    </message>
</context>
<context>
    <name>PluginLoader</name>
    <message>
        <source>%1: its extension &quot;%2&quot; has the name of one of %3, so that profiles take both for the same.</source>
        <translation>%1: Die Erweiterung „%2“ hat den Namen einer von %3, deshalb halten Profile beide für dieselbe.</translation>
    </message>
</context>
<context>
    <name>PluginModel</name>
    <message>
        <source>Loaded</source>
        <translation>Geladen</translation>
    </message>
    <message>
        <source>Loaded, with warnings</source>
        <translation>Geladen, mit Warnungen</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Not loaded</source>
        <translation>Nicht geladen</translation>
    </message>
    <message>
        <source>Left out: it ended the program</source>
        <translation>Ausgelassen: hat das Programm beendet</translation>
    </message>
    <message>
        <source>%1 ms</source>
        <translation>%1 ms</translation>
    </message>
    <message>
        <source>Plug-in</source>
        <translation>Plug-in</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
    <message>
        <source>Load time</source>
        <translation>Ladezeit</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
</context>
<context>
    <name>PluginsDialog</name>
    <message>
        <source>Plug-ins</source>
        <translation>Plug-ins</translation>
    </message>
    <message>
        <source>A plug-in that is switched off isn&apos;t loaded from the next start on. Load Now takes effect at once.</source>
        <translation>Ein ausgeschaltetes Plug-in wird ab dem nächsten Start nicht geladen. „Jetzt laden“ wirkt sofort.</translation>
    </message>
    <message>
        <source>About the selected plug-in</source>
        <translation>Über das ausgewählte Plug-in</translation>
    </message>
    <message>
        <source>&amp;Load Now</source>
        <translation>&amp;Jetzt laden</translation>
    </message>
    <message>
        <source>It is loaded already.</source>
        <translation>Es ist schon geladen.</translation>
    </message>
    <message>
        <source>No plug-in was found.</source>
        <translation>Kein Plug-in wurde gefunden.</translation>
    </message>
    <message>
        <source>By %1</source>
        <translation>Von %1</translation>
    </message>
    <message>
        <source>Extensions: %1</source>
        <translation>Erweiterungen: %1</translation>
    </message>
    <message>
        <source>The program ended while it was loading this plug-in. It is left out until you switch it on or load it.</source>
        <translation>Das Programm endete beim Laden dieses Plug-ins. Es wird ausgelassen, bis Sie es einschalten oder laden.</translation>
    </message>
</context>
<context>
    <name>ProblemModel</name>
    <message>
        <source>Mend: %1</source>
        <translation>Beheben: %1</translation>
    </message>
    <message>
        <source>Problem</source>
        <translation>Problem</translation>
    </message>
    <message>
        <source>Node or Field</source>
        <translation>Knoten oder Feld</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Kennung</translation>
    </message>
</context>
<context>
    <name>ProblemPanel</name>
    <message>
        <source>&amp;Go to Field</source>
        <translation>Zum Feld &amp;springen</translation>
    </message>
    <message>
        <source>&amp;Mend</source>
        <translation>&amp;Beheben</translation>
    </message>
    <message>
        <source>Mend All of This &amp;Kind</source>
        <translation>Alle &amp;dieser Art beheben</translation>
    </message>
    <message>
        <source>Check A&amp;gain</source>
        <translation>&amp;Erneut prüfen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Shows the problems that contain all of these words: in the sentence, the names on the way to the node, its class, or the identifier</source>
        <translation>Zeigt die Probleme, die alle diese Wörter enthalten: im Satz, in den Namen auf dem Weg zum Knoten, in seiner Klasse oder der Kennung</translation>
    </message>
    <message>
        <source>Mends the selected problems as one step</source>
        <translation>Behebt die ausgewählten Probleme in einem Schritt</translation>
    </message>
    <message>
        <source>Mends all problems of the kind of the selected one as one step</source>
        <translation>Behebt alle Probleme von der Art des ausgewählten in einem Schritt</translation>
    </message>
    <message>
        <source>Checks the whole scene again, and looks at its files again</source>
        <translation>Prüft die ganze Szene und ihre Dateien erneut</translation>
    </message>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>Selects the node and the field of the selected problem</source>
        <translation>Wählt den Knoten und das Feld des ausgewählten Problems aus</translation>
    </message>
    <message>
        <source>No scene is open.</source>
        <translation>Keine Szene ist geöffnet.</translation>
    </message>
    <message>
        <source>Checking the scene… %1 nodes so far</source>
        <translation>Szene wird geprüft… bisher %1 Knoten</translation>
    </message>
    <message>
        <source>The filter hides all problems.</source>
        <translation>Der Filter blendet alle Probleme aus.</translation>
    </message>
    <message>
        <source>No problems were found.</source>
        <translation>Keine Probleme gefunden.</translation>
    </message>
    <message>
        <source>%1, shown or hidden by this button</source>
        <translation>%1, mit dieser Schaltfläche ein- oder auszublenden</translation>
    </message>
    <message>
        <source>Select a problem to mend it.</source>
        <translation>Wählen Sie ein Problem aus, um es zu beheben.</translation>
    </message>
    <message>
        <source>There is no safe mend for this problem.</source>
        <translation>Dieses Problem lässt sich nicht sicher beheben.</translation>
    </message>
    <message>
        <source>The scene is still being checked.</source>
        <translation>Die Szene wird noch geprüft.</translation>
    </message>
    <message>
        <source>Select a problem first.</source>
        <translation>Zuerst ein Problem auswählen.</translation>
    </message>
    <message>
        <source>Mends all problems of the scene with the identifier %1 as one step</source>
        <translation>Behebt alle Probleme der Szene mit der Kennung %1 in einem Schritt</translation>
    </message>
    <message>
        <source>Mend: %1</source>
        <translation>Beheben: %1</translation>
    </message>
    <message>
        <source>Mend %1 problems</source>
        <translation>%1 Probleme beheben</translation>
    </message>
    <message>
        <source>Copying %1 problems</source>
        <translation>%1 Probleme werden kopiert</translation>
    </message>
    <message>
        <source>1 error</source>
        <translation>1 Fehler</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 Fehler</translation>
    </message>
    <message>
        <source>1 warning</source>
        <translation>1 Warnung</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 Warnungen</translation>
    </message>
    <message>
        <source>%1 information</source>
        <translation>%1 Information</translation>
    </message>
</context>
<context>
    <name>ProblemsDock</name>
    <message>
        <source>Problems</source>
        <translation>Probleme</translation>
    </message>
    <message>
        <source>%1 errors, %2 warnings</source>
        <translation>%1 Fehler, %2 Warnungen</translation>
    </message>
    <message>
        <source>%1 errors</source>
        <translation>%1 Fehler</translation>
    </message>
    <message>
        <source>%1 warnings</source>
        <translation>%1 Warnungen</translation>
    </message>
</context>
<context>
    <name>PutBack</name>
    <message>
        <source>The node has this name already.</source>
        <translation>Der Knoten hat schon diesen Namen.</translation>
    </message>
    <message>
        <source>This value can&apos;t be read any more: the rows that the later steps changed aren&apos;t there.</source>
        <translation>Dieser Wert ist nicht mehr lesbar: Die von späteren Schritten geänderten Zeilen fehlen.</translation>
    </message>
    <message>
        <source>The older value doesn&apos;t fit in memory.</source>
        <translation>Der ältere Wert passt nicht in den Speicher.</translation>
    </message>
    <message>
        <source>The field has this value already.</source>
        <translation>Das Feld hat schon diesen Wert.</translation>
    </message>
    <message>
        <source>Choose a step that changed the value of a field.</source>
        <translation>Wählen Sie einen Schritt, der den Wert eines Feldes geändert hat.</translation>
    </message>
    <message>
        <source>This step changed nothing.</source>
        <translation>Dieser Schritt hat nichts geändert.</translation>
    </message>
    <message>
        <source>This step changed which nodes are in the scene, not one value.</source>
        <translation>Dieser Schritt hat geändert, welche Knoten in der Szene sind, nicht einen Wert.</translation>
    </message>
    <message>
        <source>This step changed whether a field is ignored, not its value.</source>
        <translation>Dieser Schritt hat geändert, ob ein Feld ignoriert wird, nicht seinen Wert.</translation>
    </message>
    <message>
        <source>This step changed several values.</source>
        <translation>Dieser Schritt hat mehrere Werte geändert.</translation>
    </message>
    <message>
        <source>The node of this value, &quot;%1&quot;, isn&apos;t in the scene any more. Go to a state in which it is, or undo its removal.</source>
        <translation>Der Knoten dieses Wertes, „%1“, ist nicht mehr in der Szene. Gehen Sie zu einem Zustand, in dem er da ist, oder machen Sie sein Entfernen rückgängig.</translation>
    </message>
</context>
<context>
    <name>RecentModel</name>
    <message>
        <source>Missing</source>
        <translation>Fehlt</translation>
    </message>
    <message>
        <source>The drive doesn&apos;t answer</source>
        <translation>Das Laufwerk antwortet nicht</translation>
    </message>
    <message>
        <source>pinned</source>
        <translation>angeheftet</translation>
    </message>
</context>
<context>
    <name>RecentView</name>
    <message>
        <source>Recent files</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>&amp;Open Recent File</source>
        <translation>Datei der Liste ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Opens the marked file of the start page</source>
        <translation>Öffnet die markierte Datei der Startseite</translation>
    </message>
    <message>
        <source>Open in &amp;New Window</source>
        <translation>In &amp;neuem Fenster öffnen</translation>
    </message>
    <message>
        <source>Opens the marked file of the start page in another window</source>
        <translation>Öffnet die markierte Datei der Startseite in einem weiteren Fenster</translation>
    </message>
    <message>
        <source>&amp;Show in Folder</source>
        <translation>Im Ordner &amp;zeigen</translation>
    </message>
    <message>
        <source>Opens the folder of the marked file in the file manager</source>
        <translation>Öffnet den Ordner der markierten Datei im Dateimanager</translation>
    </message>
    <message>
        <source>&amp;Remove from List</source>
        <translation>Aus der &amp;Liste entfernen</translation>
    </message>
    <message>
        <source>Takes the marked file off the recent files; the file itself stays</source>
        <translation>Nimmt die markierte Datei aus den zuletzt geöffneten; die Datei selbst bleibt</translation>
    </message>
    <message>
        <source>Mark a recent file on the start page first.</source>
        <translation>Zuerst auf der Startseite eine Datei markieren.</translation>
    </message>
    <message>
        <source>Un&amp;pin</source>
        <translation>&amp;Lösen</translation>
    </message>
    <message>
        <source>&amp;Pin</source>
        <translation>An&amp;heften</translation>
    </message>
    <message>
        <source>Lets the marked file take its place among the recent ones again</source>
        <translation>Reiht die markierte Datei wieder unter den zuletzt geöffneten ein</translation>
    </message>
    <message>
        <source>Keeps the marked file first in the list</source>
        <translation>Hält die markierte Datei oben in der Liste</translation>
    </message>
    <message>
        <source>%1 can&apos;t be shown: no file manager can be started.</source>
        <translation>%1 lässt sich nicht anzeigen: Kein Dateimanager startet.</translation>
    </message>
</context>
<context>
    <name>RecoverJob</name>
    <message>
        <source>its file has changed since then</source>
        <translation>die Datei hat sich seitdem geändert</translation>
    </message>
    <message>
        <source>%1 can&apos;t be recovered: %2</source>
        <translation>%1 lässt sich nicht wiederherstellen: %2</translation>
    </message>
</context>
<context>
    <name>RecoveryLog</name>
    <message>
        <source>There isn&apos;t enough memory to keep changes for recovery.</source>
        <translation>Der Speicher reicht nicht, um Änderungen für die Wiederherstellung zu sichern.</translation>
    </message>
</context>
<context>
    <name>RecoveryOffer</name>
    <message>
        <source>Recover</source>
        <translation>Wiederherstellen</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Verwerfen</translation>
    </message>
    <message>
        <source>A scene</source>
        <translation>Eine Szene</translation>
    </message>
    <message>
        <source>%1 was open when Orvane ended unexpectedly. Its unsaved changes can&apos;t be recovered: %2.</source>
        <translation>%1 war geöffnet, als Orvane unerwartet endete. Die ungespeicherten Änderungen lassen sich nicht wiederherstellen: %2.</translation>
    </message>
    <message>
        <source>1 unsaved change</source>
        <translation>1 ungespeicherte Änderung</translation>
    </message>
    <message>
        <source>%1 unsaved changes</source>
        <translation>%1 ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>%1 was open when Orvane ended unexpectedly. %2 can be recovered, up to %3.</source>
        <translation>%1 war geöffnet, als Orvane unerwartet endete. Wiederherstellbar: %2, bis %3.</translation>
    </message>
</context>
<context>
    <name>RecoveryScan</name>
    <message>
        <source>its file has changed since then</source>
        <translation>die Datei hat sich seitdem geändert</translation>
    </message>
</context>
<context>
    <name>Refusal</name>
    <message>
        <source>&quot;%1&quot; isn&apos;t a value for %2, a field of type %3.</source>
        <translation>„%1“ ist kein Wert für %2, ein Feld vom Typ %3.</translation>
    </message>
    <message>
        <source>It takes: %1.</source>
        <translation>Möglich ist: %1.</translation>
    </message>
    <message>
        <source>The default is an example of one: %1</source>
        <translation>Der Vorgabewert ist ein Beispiel dafür: %1</translation>
    </message>
</context>
<context>
    <name>RotationCell</name>
    <message>
        <source>%1, degrees about %2</source>
        <translation>%1, Grad um %2</translation>
    </message>
    <message>
        <source>The axis doesn&apos;t have the length 1, which changes nothing about the rotation.</source>
        <translation>Die Achse hat nicht die Länge 1, was an der Drehung nichts ändert.</translation>
    </message>
</context>
<context>
    <name>RotationPopup</name>
    <message>
        <source>Axis</source>
        <translation>Achse</translation>
    </message>
    <message>
        <source>rad</source>
        <translation>rad</translation>
    </message>
    <message>
        <source>Angle in radians</source>
        <translation>Winkel in Radiant</translation>
    </message>
    <message>
        <source>deg</source>
        <translation>Grad</translation>
    </message>
    <message>
        <source>Angle in degrees</source>
        <translation>Winkel in Grad</translation>
    </message>
    <message>
        <source>Euler degrees</source>
        <translation>Eulerwinkel</translation>
    </message>
    <message>
        <source>Normalise the axis</source>
        <translation>Achse normieren</translation>
    </message>
    <message>
        <source>Show Euler degrees in the table</source>
        <translation>Eulerwinkel in der Tabelle zeigen</translation>
    </message>
    <message>
        <source>Rotation</source>
        <translation>Drehung</translation>
    </message>
    <message>
        <source>Angle</source>
        <translation>Winkel</translation>
    </message>
    <message>
        <source>Turns about the fixed axes: x first, then y, then z.</source>
        <translation>Drehungen um die festen Achsen: erst x, dann y, dann z.</translation>
    </message>
</context>
<context>
    <name>RowExpression</name>
    <message>
        <source>Row %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>This is NaN, which is neither true nor false. To find rows with NaN, compare a component with itself, such as not x = x.</source>
        <translation>Das ist NaN, also weder wahr noch falsch. Um Zeilen mit NaN zu finden, vergleichen Sie eine Komponente mit sich selbst, etwa not x = x.</translation>
    </message>
</context>
<context>
    <name>RowRange</name>
    <message>
        <source>&quot;%1&quot; isn&apos;t the number of a row. Write a range such as 0:5000, 10:, -5: or ::-1.</source>
        <translation>„%1“ ist nicht die Nummer einer Zeile. Schreiben Sie einen Bereich wie 0:5000, 10:, -5: oder ::-1.</translation>
    </message>
    <message>
        <source>A range has at most three parts: first:end:step.</source>
        <translation>Ein Bereich hat höchstens drei Teile: Anfang:Ende:Schritt.</translation>
    </message>
    <message>
        <source>The step of a range can&apos;t be 0.</source>
        <translation>Der Schritt eines Bereichs kann nicht 0 sein.</translation>
    </message>
</context>
<context>
    <name>RowTable</name>
    <message>
        <source>&amp;Copy</source>
        <translation>&amp;Kopieren</translation>
    </message>
    <message>
        <source>Copies the selected rows as text</source>
        <translation>Kopiert die ausgewählten Zeilen als Text</translation>
    </message>
    <message>
        <source>Copy &amp;All</source>
        <translation>&amp;Alle kopieren</translation>
    </message>
    <message>
        <source>Copies all rows that are shown as text</source>
        <translation>Kopiert alle angezeigten Zeilen als Text</translation>
    </message>
</context>
<context>
    <name>SaveQuestion</name>
    <message>
        <source>Unsaved Changes</source>
        <translation>Ungespeicherte Änderungen</translation>
    </message>
    <message>
        <source>Save the changes to &quot;%1&quot;?</source>
        <translation>Änderungen an „%1“ speichern?</translation>
    </message>
    <message>
        <source>They are lost if you don&apos;t save them.</source>
        <translation>Sie gehen verloren, wenn Sie nicht speichern.</translation>
    </message>
</context>
<context>
    <name>SceneBookmarks</name>
    <message>
        <source>View %1</source>
        <translation>Ansicht %1</translation>
    </message>
</context>
<context>
    <name>SceneComparer</name>
    <message>
        <source>Comparing with %1</source>
        <translation>Vergleich mit %1</translation>
    </message>
    <message>
        <source>Not done: %1. The scene was closed.</source>
        <translation>Nicht ausgeführt: %1. Die Szene wurde geschlossen.</translation>
    </message>
</context>
<context>
    <name>SceneDocument</name>
    <message>
        <source>Untitled</source>
        <translation>Unbenannt</translation>
    </message>
</context>
<context>
    <name>SceneDrops</name>
    <message>
        <source>Drop nodes in the scene tree, which shows where they come.</source>
        <translation>Legen Sie Knoten im Szenenbaum ab; er zeigt, wohin sie kommen.</translation>
    </message>
</context>
<context>
    <name>ScenePicture</name>
    <message>
        <source>at most %1 pixels a side and %2 million in all</source>
        <translation>höchstens %1 Pixel je Seite und insgesamt %2 Millionen</translation>
    </message>
    <message>
        <source>There is no memory for a picture of %1x%2 pixels.</source>
        <translation>Für ein Bild von %1x%2 Pixeln reicht der Speicher nicht.</translation>
    </message>
</context>
<context>
    <name>SceneReload</name>
    <message>
        <source>%1: the reloaded scene doesn&apos;t fit in memory</source>
        <translation>%1: Die neu geladene Szene passt nicht in den Speicher</translation>
    </message>
    <message>
        <source>Reload %1</source>
        <translation>%1 neu laden</translation>
    </message>
    <message>
        <source>The scene is the same as in %1.</source>
        <translation>Die Szene ist dieselbe wie in %1.</translation>
    </message>
    <message>
        <source>Reloaded %1. Undo brings your changes back.</source>
        <translation>%1 neu geladen. Rückgängig bringt Ihre Änderungen zurück.</translation>
    </message>
    <message>
        <source>Reloaded %1.</source>
        <translation>%1 neu geladen.</translation>
    </message>
</context>
<context>
    <name>SceneSaving</name>
    <message>
        <source>Saving</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>The scene was saved.</source>
        <translation>Die Szene wurde gespeichert.</translation>
    </message>
    <message>
        <source>Exporting</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Exported to %1.</source>
        <translation>Nach %1 exportiert.</translation>
    </message>
    <message>
        <source>Nothing was saved: a mouse button is held down.</source>
        <translation>Nichts wurde gespeichert: Eine Maustaste ist gedrückt.</translation>
    </message>
</context>
<context>
    <name>SceneTreeModel</name>
    <message>
        <source>Shown</source>
        <translation>Angezeigt</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Ausgeblendet</translation>
    </message>
    <message>
        <source>Shown in the view</source>
        <translation>In der Ansicht angezeigt</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Class</source>
        <translation>Klasse</translation>
    </message>
    <message>
        <source>Hides the node in the view</source>
        <translation>Blendet den Knoten in der Ansicht aus</translation>
    </message>
    <message>
        <source>Shows the node in the view</source>
        <translation>Blendet den Knoten in der Ansicht ein</translation>
    </message>
    <message>
        <source>Nothing to see</source>
        <translation>Nichts zu sehen</translation>
    </message>
</context>
<context>
    <name>SceneTreePanel</name>
    <message>
        <source>Scene</source>
        <translation>Szene</translation>
    </message>
</context>
<context>
    <name>SceneView</name>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>The picture of the scene. The arrow keys go round it, with Shift they move it; plus and minus zoom, F frames the selection, A frames all, 1 to 6 look along the axes, 7 from a corner. With the right button held, W, A, S, D, Q and E fly.</source>
        <translation>Das Bild der Szene. Die Pfeiltasten umkreisen sie, mit Umschalt verschieben sie das Bild; Plus und Minus zoomen, F passt die Auswahl ein, A alles, 1 bis 6 blicken entlang der Achsen, 7 von einer Ecke. Mit gedrückter rechter Maustaste fliegen W, A, S, D, Q und E.</translation>
    </message>
</context>
<context>
    <name>SectionBar</name>
    <message>
        <source>Section plane</source>
        <translation>Schnittebene</translation>
    </message>
    <message>
        <source>Section</source>
        <translation>Schnitt</translation>
    </message>
    <message>
        <source>Axis</source>
        <translation>Achse</translation>
    </message>
    <message>
        <source>Position of the section</source>
        <translation>Position des Schnitts</translation>
    </message>
    <message>
        <source>The place of the plane on its axis, in scene units</source>
        <translation>Die Stelle der Ebene auf ihrer Achse, in Einheiten der Szene</translation>
    </message>
    <message>
        <source>Flip</source>
        <translation>Umdrehen</translation>
    </message>
    <message>
        <source>Shows the other side of the plane</source>
        <translation>Zeigt die andere Seite der Ebene</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Shows all of the scene again</source>
        <translation>Zeigt wieder die ganze Szene</translation>
    </message>
</context>
<context>
    <name>SelectionLink</name>
    <message>
        <source>another node was selected</source>
        <translation>ein anderer Knoten wurde ausgewählt</translation>
    </message>
    <message>
        <source>nothing is selected any more</source>
        <translation>nichts ist mehr ausgewählt</translation>
    </message>
</context>
<context>
    <name>SelectionStatus</name>
    <message>
        <source>top node</source>
        <translation>oberster Knoten</translation>
    </message>
    <message>
        <source>top nodes</source>
        <translation>oberste Knoten</translation>
    </message>
    <message>
        <source>field</source>
        <translation>Feld</translation>
    </message>
    <message>
        <source>fields</source>
        <translation>Felder</translation>
    </message>
    <message>
        <source>child node</source>
        <translation>Kindknoten</translation>
    </message>
    <message>
        <source>child nodes</source>
        <translation>Kindknoten</translation>
    </message>
</context>
<context>
    <name>Session</name>
    <message>
        <source>There is no profile &quot;%1&quot;, only %2.</source>
        <translation>Das Profil „%1“ gibt es nicht, nur %2.</translation>
    </message>
    <message>
        <source>No profile was found, so no extension runs.</source>
        <translation>Kein Profil wurde gefunden, deshalb läuft keine Erweiterung.</translation>
    </message>
</context>
<context>
    <name>SettingControl</name>
    <message>
        <source>Choose…</source>
        <translation>Wählen…</translation>
    </message>
    <message>
        <source>Choose: %1</source>
        <translation>Wählen: %1</translation>
    </message>
    <message>
        <source>This can&apos;t be used; allowed is: %1.</source>
        <translation>Das ist unbrauchbar; erlaubt ist: %1.</translation>
    </message>
</context>
<context>
    <name>SettingRow</name>
    <message>
        <source>Default: %1 · %2</source>
        <translation>Vorgabe: %1 · %2</translation>
    </message>
    <message>
        <source>Back to the default: %1</source>
        <translation>Zurück zur Vorgabe: %1</translation>
    </message>
    <message>
        <source>Reset %1</source>
        <translation>%1 zurücksetzen</translation>
    </message>
    <message>
        <source>%1 has a value that can&apos;t be used; allowed is: %2.</source>
        <translation>%1 hat einen unbrauchbaren Wert; erlaubt ist: %2.</translation>
    </message>
    <message>
        <source>%1 sets &quot;%2&quot; for this run, whatever is chosen here.</source>
        <translation>%1 setzt bis zum Beenden „%2“, was auch immer hier gewählt ist.</translation>
    </message>
    <message>
        <source>The file has the value &quot;%1&quot;, which can&apos;t be used; allowed is: %2. The default counts.</source>
        <translation>Die Datei hat den unbrauchbaren Wert „%1“; erlaubt ist: %2. Es gilt die Vorgabe.</translation>
    </message>
    <message>
        <source>The file preferences.conf sets this, until something is chosen here.</source>
        <translation>Die Datei preferences.conf legt dies fest, bis hier etwas gewählt wird.</translation>
    </message>
</context>
<context>
    <name>Settings</name>
    <message>
        <source>On</source>
        <translation>Ein</translation>
    </message>
    <message>
        <source>Off</source>
        <translation>Aus</translation>
    </message>
    <message>
        <source>empty</source>
        <translation>leer</translation>
    </message>
    <message>
        <source>no folder</source>
        <translation>kein Ordner</translation>
    </message>
    <message>
        <source>true or false</source>
        <translation>true oder false</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>von %1 bis %2</translation>
    </message>
    <message>
        <source>a path from the root</source>
        <translation>ein Pfad ab der Wurzel</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Allgemein</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Editing</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Recovery and History</source>
        <translation>Wiederherstellung und Verlauf</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Plug-ins</source>
        <translation>Plug-ins</translation>
    </message>
    <message>
        <source>Keep places</source>
        <translation>Orte beibehalten</translation>
    </message>
    <message>
        <source>Nodes stay where they are in the world when they move to other groups.</source>
        <translation>Knoten bleiben an ihrem Ort in der Welt, wenn sie in andere Gruppen kommen.</translation>
    </message>
    <message>
        <source>Keys</source>
        <translation>Tasten</translation>
    </message>
    <message>
        <source>Shading</source>
        <translation>Schattierung</translation>
    </message>
    <message>
        <source>How surfaces are colored.</source>
        <translation>Wie Flächen gefärbt sind.</translation>
    </message>
    <message>
        <source>Shaded</source>
        <translation>Schattiert</translation>
    </message>
    <message>
        <source>Unlit</source>
        <translation>Unbeleuchtet</translation>
    </message>
    <message>
        <source>Normals</source>
        <translation>Normalen</translation>
    </message>
    <message>
        <source>Texture coordinates</source>
        <translation>Texturkoordinaten</translation>
    </message>
    <message>
        <source>Vertex colors</source>
        <translation>Eckpunktfarben</translation>
    </message>
    <message>
        <source>Wireframe</source>
        <translation>Drahtgitter</translation>
    </message>
    <message>
        <source>Surfaces show their edges alone.</source>
        <translation>Flächen zeigen nur ihre Kanten.</translation>
    </message>
    <message>
        <source>Wireframe over surfaces</source>
        <translation>Drahtgitter über Flächen</translation>
    </message>
    <message>
        <source>Shows the sides of the triangles over the surfaces.</source>
        <translation>Zeigt die Seiten der Dreiecke über den Flächen.</translation>
    </message>
    <message>
        <source>Head light</source>
        <translation>Kopflicht</translation>
    </message>
    <message>
        <source>Adds a light at the viewer&apos;s eye to those of the scene.</source>
        <translation>Ergänzt die Lichter der Szene um eines am Auge des Betrachters.</translation>
    </message>
    <message>
        <source>Background</source>
        <translation>Hintergrund</translation>
    </message>
    <message>
        <source>What is behind the scene, so that lines and points of any color are seen.</source>
        <translation>Was hinter der Szene ist, sodass Linien und Punkte jeder Farbe zu sehen sind.</translation>
    </message>
    <message>
        <source>As the window</source>
        <translation>Wie das Fenster</translation>
    </message>
    <message>
        <source>Light</source>
        <translation>Hell</translation>
    </message>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Ground grid</source>
        <translation>Bodenraster</translation>
    </message>
    <message>
        <source>Shows a grid on the plane of x and z.</source>
        <translation>Zeigt ein Raster auf der Ebene von x und z.</translation>
    </message>
    <message>
        <source>Axes</source>
        <translation>Achsen</translation>
    </message>
    <message>
        <source>Shows the axes: x red, y green, z blue.</source>
        <translation>Zeigt die Achsen: x rot, y grün, z blau.</translation>
    </message>
    <message>
        <source>Bounding boxes</source>
        <translation>Hüllquader</translation>
    </message>
    <message>
        <source>Shows a box around each mesh.</source>
        <translation>Zeigt einen Quader um jedes Netz.</translation>
    </message>
    <message>
        <source>Symbols</source>
        <translation>Symbole</translation>
    </message>
    <message>
        <source>Shows lights and cameras as symbols, which can be clicked.</source>
        <translation>Zeigt Lichter und Kameras als anklickbare Symbole.</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistik</translation>
    </message>
    <message>
        <source>Shows nodes, triangles, draw calls, memory and time of the picture.</source>
        <translation>Zeigt Knoten, Dreiecke, Zeichenaufrufe, Speicher und Zeit des Bildes.</translation>
    </message>
    <message>
        <source>Handles</source>
        <translation>Griffe</translation>
    </message>
    <message>
        <source>Which handles the selected nodes have in the view.</source>
        <translation>Welche Griffe die ausgewählten Knoten in der Ansicht haben.</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>Move</source>
        <translation>Verschieben</translation>
    </message>
    <message>
        <source>Turn</source>
        <translation>Drehen</translation>
    </message>
    <message>
        <source>Scale</source>
        <translation>Skalierung</translation>
    </message>
    <message>
        <source>Axes of handles</source>
        <translation>Achsen der Griffe</translation>
    </message>
    <message>
        <source>The axes along which handles move, turn and scale.</source>
        <translation>Die Achsen, entlang derer Griffe verschieben, drehen und skalieren.</translation>
    </message>
    <message>
        <source>Those of the scene</source>
        <translation>Die der Szene</translation>
    </message>
    <message>
        <source>Those of the group above</source>
        <translation>Die der Gruppe darüber</translation>
    </message>
    <message>
        <source>Those of the node</source>
        <translation>Die des Knotens</translation>
    </message>
    <message>
        <source>Smooth edges</source>
        <translation>Kanten glätten</translation>
    </message>
    <message>
        <source>How many samples each pixel has. More are smoother and need more of the GPU.</source>
        <translation>Wie viele Abtastungen jedes Pixel hat. Mehr sind glatter und fordern die GPU mehr.</translation>
    </message>
    <message>
        <source>2 samples</source>
        <translation>2 Abtastungen</translation>
    </message>
    <message>
        <source>4 samples</source>
        <translation>4 Abtastungen</translation>
    </message>
    <message>
        <source>8 samples</source>
        <translation>8 Abtastungen</translation>
    </message>
    <message>
        <source>Orbit about the picked point</source>
        <translation>Angeklickten Punkt umkreisen</translation>
    </message>
    <message>
        <source>A drag goes round what is under the pointer, rather than round the middle of the picture.</source>
        <translation>Ziehen umkreist, was unter dem Mauszeiger ist, statt die Mitte des Bildes.</translation>
    </message>
    <message>
        <source>Animate the view</source>
        <translation>Ansicht animieren</translation>
    </message>
    <message>
        <source>Views from the sides, framing and bookmarks are reached by a short movement, where the desktop allows it.</source>
        <translation>Ansichten von den Seiten, Einpassen und Lesezeichen folgen einer kurzen Bewegung, wo der Desktop es erlaubt.</translation>
    </message>
    <message>
        <source>Fly speed</source>
        <translation>Fluggeschwindigkeit</translation>
    </message>
    <message>
        <source>How often as fast as usual flights through the scene are. The wheel changes it during a flight.</source>
        <translation>Wie viel Mal so schnell wie üblich Flüge durch die Szene sind. Das Mausrad ändert es im Flug.</translation>
    </message>
    <message>
        <source>Show the view</source>
        <translation>Ansicht zeigen</translation>
    </message>
    <message>
        <source>Without it, everything but the view works, on machines where drawing fails. From the next start on.</source>
        <translation>Ohne sie geht alles außer der Ansicht, auf Rechnern, die nicht zeichnen können. Ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Rotations in degrees</source>
        <translation>Drehungen in Grad</translation>
    </message>
    <message>
        <source>Rotations are shown as three angles in degrees, rather than as an axis and an angle.</source>
        <translation>Drehungen werden als drei Winkel in Grad gezeigt statt als Achse und Winkel.</translation>
    </message>
    <message>
        <source>Statistics of lists</source>
        <translation>Statistik von Listen</translation>
    </message>
    <message>
        <source>Shows smallest, largest and mean values beside the rows of a list.</source>
        <translation>Zeigt kleinste, größte und mittlere Werte neben den Zeilen einer Liste.</translation>
    </message>
    <message>
        <source>Help in the editors of plug-ins</source>
        <translation>Hilfen in Editoren von Plug-ins</translation>
    </message>
    <message>
        <source>Adds keys, formulas and messages to the lines in the docks of plug-ins. From the next start on.</source>
        <translation>Ergänzt Tasten, Formeln und Meldungen in den Eingaben der Andockfenster von Plug-ins. Ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Reload changed files</source>
        <translation>Geänderte Dateien neu laden</translation>
    </message>
    <message>
        <source>A file that changes on disk is reloaded without a question while the scene has no changes of your own.</source>
        <translation>Eine auf dem Datenträger geänderte Datei wird ohne Frage neu geladen, solange die Szene keine eigenen Änderungen hat.</translation>
    </message>
    <message>
        <source>Keep groups of models</source>
        <translation>Gruppen von Modellen behalten</translation>
    </message>
    <message>
        <source>Imports keep groups that neither hold anything nor move anything, which are left out else.</source>
        <translation>Importe behalten Gruppen, die weder etwas enthalten noch verschieben und sonst entfallen.</translation>
    </message>
    <message>
        <source>Axes and units of models</source>
        <translation>Achsen und Einheiten von Modellen</translation>
    </message>
    <message>
        <source>What imports do with models whose axes or units differ from those of scenes.</source>
        <translation>Was Importe mit Modellen tun, deren Achsen oder Einheiten von denen der Szenen abweichen.</translation>
    </message>
    <message>
        <source>Convert axes and units</source>
        <translation>Achsen und Einheiten umrechnen</translation>
    </message>
    <message>
        <source>Convert axes only</source>
        <translation>Nur Achsen umrechnen</translation>
    </message>
    <message>
        <source>Keep both</source>
        <translation>Beide behalten</translation>
    </message>
    <message>
        <source>Memory of an import</source>
        <translation>Speicher für einen Import</translation>
    </message>
    <message>
        <source>An import that needs more ends with a message. The tool itself goes on in any case.</source>
        <translation>Ein Import, der mehr braucht, endet mit einer Meldung. Das Programm selbst läuft auf jeden Fall weiter.</translation>
    </message>
    <message>
        <source>MiB</source>
        <translation>MiB</translation>
    </message>
    <message>
        <source>Keep unsaved changes</source>
        <translation>Änderungen sichern</translation>
    </message>
    <message>
        <source>Unsaved changes are kept on disk, and offered after a crash. From the next start on.</source>
        <translation>Ungespeicherte Änderungen werden auf dem Datenträger gesichert und nach einem Absturz angeboten. Ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Memory of the history</source>
        <translation>Speicher für den Verlauf</translation>
    </message>
    <message>
        <source>Beyond it, the oldest steps of undo are dropped.</source>
        <translation>Darüber fallen die ältesten Schritte von Rückgängig weg.</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Rückgängig</translation>
    </message>
    <message>
        <source>What a step takes back: all that changed, or what the commands of plug-ins take back by themselves. From the next scene on.</source>
        <translation>Was ein Schritt zurücknimmt: alles Geänderte oder das, was die Befehle von Plug-ins selbst zurücknehmen. Ab der nächsten Szene.</translation>
    </message>
    <message>
        <source>All that changed</source>
        <translation>Alles Geänderte</translation>
    </message>
    <message>
        <source>By the commands</source>
        <translation>Durch die Befehle</translation>
    </message>
    <message>
        <source>Capture the output</source>
        <translation>Ausgabe mitlesen</translation>
    </message>
    <message>
        <source>The console shows what the program and its plug-ins print. When the console is activated the next time.</source>
        <translation>Die Konsole zeigt, was das Programm und seine Plug-ins ausgeben. Sobald sie das nächste Mal aktiviert wird.</translation>
    </message>
    <message>
        <source>Folder of plug-ins</source>
        <translation>Ordner der Plug-ins</translation>
    </message>
    <message>
        <source>Plug-ins of this folder are loaded too. From the next start on.</source>
        <translation>Plug-ins dieses Ordners werden auch geladen. Ab dem nächsten Start.</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Sprache</translation>
    </message>
    <message>
        <source>The language of the texts. Numbers and dates are written as the desktop has them in any language.</source>
        <translation>Die Sprache der Texte. Zahlen und Daten sind in jeder Sprache wie beim Desktop.</translation>
    </message>
    <message>
        <source>As the desktop</source>
        <translation>Wie der Desktop</translation>
    </message>
    <message>
        <source>Open files in a running window</source>
        <translation>Dateien im laufenden Fenster öffnen</translation>
    </message>
    <message>
        <source>A file that is opened from a file manager or a terminal comes to the window that was used last, which asks about unsaved changes. Otherwise each has a window of its own.</source>
        <translation>Eine Datei aus einem Dateimanager oder Terminal kommt in das zuletzt benutzte Fenster, das nach ungespeicherten Änderungen fragt. Sonst hat jede ein eigenes Fenster.</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Farbschema</translation>
    </message>
    <message>
        <source>Whether the windows are light, dark, or as the desktop is.</source>
        <translation>Ob die Fenster hell, dunkel oder wie der Desktop sind.</translation>
    </message>
    <message>
        <source>Lines of the log</source>
        <translation>Zeilen des Protokolls</translation>
    </message>
    <message>
        <source>How many lines the log keeps at most; the oldest ones are dropped. It takes up to 32 MiB of memory for each 100,000 lines.</source>
        <translation>Wie viele Zeilen das Protokoll höchstens behält; die ältesten fallen weg. Es braucht bis zu 32 MiB Speicher je 100.000 Zeilen.</translation>
    </message>
    <message>
        <source>Group equal lines</source>
        <translation>Gleiche Zeilen gruppieren</translation>
    </message>
    <message>
        <source>Equal lines of the log that follow each other are one row with their number.</source>
        <translation>Gleiche Zeilen des Protokolls, die aufeinander folgen, sind eine Zeile mit ihrer Anzahl.</translation>
    </message>
</context>
<context>
    <name>SettingsActions</name>
    <message>
        <source>Shows and changes the settings of the tool</source>
        <translation>Zeigt und ändert die Einstellungen des Programms</translation>
    </message>
    <message>
        <source>Sett&amp;ings…</source>
        <translation>Einste&amp;llungen…</translation>
    </message>
</context>
<context>
    <name>SettingsFiles</name>
    <message>
        <source>line %1: %2</source>
        <translation>Zeile %1: %2</translation>
    </message>
    <message>
        <source>it isn&apos;t a file of settings</source>
        <translation>es ist keine Datei mit Einstellungen</translation>
    </message>
    <message>
        <source>it isn&apos;t text</source>
        <translation>es ist kein Text</translation>
    </message>
    <message>
        <source>expected a setting as in &quot;name=value&quot;</source>
        <translation>erwartet wird eine Einstellung wie „name=wert“</translation>
    </message>
    <message>
        <source>there is no room for temporary files</source>
        <translation>für temporäre Dateien ist kein Platz</translation>
    </message>
    <message>
        <source>a later version of Orvane has written it (settings %1, this version reads up to %2)</source>
        <translation>eine spätere Version von Orvane hat sie geschrieben (Einstellungen %1, diese Version liest bis %2)</translation>
    </message>
    <message>
        <source>%1 can&apos;t have this value; allowed is: %2</source>
        <translation>%1 kann diesen Wert nicht haben; erlaubt ist: %2</translation>
    </message>
    <message>
        <source>there are no settings in it</source>
        <translation>sie enthält keine Einstellungen</translation>
    </message>
</context>
<context>
    <name>SettingsStore</name>
    <message>
        <source>The setting %1 has a value that can&apos;t be used, &quot;%2&quot;; allowed is: %3. It counts as %4.</source>
        <translation>Die Einstellung %1 hat einen unbrauchbaren Wert, „%2“; erlaubt ist: %3. Sie gilt als %4.</translation>
    </message>
</context>
<context>
    <name>SettingsWindow</name>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Search the settings</source>
        <translation>Einstellungen durchsuchen</translation>
    </message>
    <message>
        <source>Pages of settings</source>
        <translation>Seiten der Einstellungen</translation>
    </message>
    <message>
        <source>No setting has these words in its title, its description or its name.</source>
        <translation>Keine Einstellung hat diese Wörter in Titel, Beschreibung oder Name.</translation>
    </message>
    <message>
        <source>Reset &amp;All…</source>
        <translation>A&amp;lle zurücksetzen…</translation>
    </message>
    <message>
        <source>&amp;Import…</source>
        <translation>&amp;Importieren…</translation>
    </message>
    <message>
        <source>Takes over settings from a file, after showing what changes</source>
        <translation>Übernimmt Einstellungen aus einer Datei und zeigt vorher, was sich ändert</translation>
    </message>
    <message>
        <source>&amp;Export…</source>
        <translation>&amp;Exportieren…</translation>
    </message>
    <message>
        <source>Writes all settings to a file</source>
        <translation>Schreibt alle Einstellungen in eine Datei</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Sets all settings to their defaults</source>
        <translation>Setzt alle Einstellungen auf ihre Vorgaben</translation>
    </message>
    <message>
        <source>All settings have their defaults.</source>
        <translation>Alle Einstellungen haben ihre Vorgaben.</translation>
    </message>
    <message>
        <source>One setting differs from its default. Reset it?</source>
        <translation>Eine Einstellung weicht von ihrer Vorgabe ab. Zurücksetzen?</translation>
    </message>
    <message>
        <source>%1 settings differ from their defaults. Reset them?</source>
        <translation>%1 Einstellungen weichen von ihrer Vorgabe ab. Zurücksetzen?</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Import Settings</source>
        <translation>Einstellungen importieren</translation>
    </message>
    <message>
        <source>Settings (*.ini)</source>
        <translation>Einstellungen (*.ini)</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Alle Dateien (*)</translation>
    </message>
    <message>
        <source>All settings have the values of the file already.</source>
        <translation>Alle Einstellungen haben schon die Werte der Datei.</translation>
    </message>
    <message>
        <source>Export Settings</source>
        <translation>Einstellungen exportieren</translation>
    </message>
</context>
<context>
    <name>ShownRows</name>
    <message>
        <source>Finding the rows was cancelled, so they are neither filtered nor sorted.</source>
        <translation>Das Suchen der Zeilen wurde abgebrochen, sie sind also weder gefiltert noch sortiert.</translation>
    </message>
    <message>
        <source>Finding rows</source>
        <translation>Zeilen werden gesucht</translation>
    </message>
</context>
<context>
    <name>SpaceStep</name>
    <message>
        <source>Convert Unit and Up Axis</source>
        <translation>Einheit und Hochachse umrechnen</translation>
    </message>
</context>
<context>
    <name>SpokenFacts</name>
    <message>
        <source>1 child</source>
        <translation>1 Kindknoten</translation>
    </message>
    <message>
        <source>%1 children</source>
        <translation>%1 Kindknoten</translation>
    </message>
    <message>
        <source>hidden</source>
        <translation>ausgeblendet</translation>
    </message>
    <message>
        <source>has ignored fields</source>
        <translation>hat ignorierte Felder</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>No scene is open</source>
        <translation>Keine Szene ist geöffnet</translation>
    </message>
    <message>
        <source>Open a scene or a 3D model, or drop its file on this window.</source>
        <translation>Öffnen Sie eine Szene oder ein 3D-Modell, oder legen Sie die Datei in diesem Fenster ab.</translation>
    </message>
    <message>
        <source>Open…</source>
        <translation>Öffnen…</translation>
    </message>
    <message>
        <source>New Scene</source>
        <translation>Neue Szene</translation>
    </message>
    <message>
        <source>Examples</source>
        <translation>Beispiele</translation>
    </message>
    <message>
        <source>Recent files</source>
        <translation>Zuletzt geöffnet</translation>
    </message>
    <message>
        <source>Search name or folder</source>
        <translation>Name oder Ordner suchen</translation>
    </message>
    <message>
        <source>Search recent files</source>
        <translation>Zuletzt geöffnete suchen</translation>
    </message>
    <message>
        <source>Remove Them from List</source>
        <translation>Aus der Liste entfernen</translation>
    </message>
    <message numerus="yes">
        <source>%n of the files are missing.</source>
        <translation>
            <numerusform>%n der Dateien fehlt.</numerusform>
            <numerusform>%n der Dateien fehlen.</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>StatisticsOverlay</name>
    <message>
        <source>Nodes: %1</source>
        <translation>Knoten: %1</translation>
    </message>
    <message>
        <source>Meshes in view: %1 of %2</source>
        <translation>Netze im Bild: %1 von %2</translation>
    </message>
    <message>
        <source>Triangles: %1</source>
        <translation>Dreiecke: %1</translation>
    </message>
    <message>
        <source>Draw calls: %1</source>
        <translation>Zeichenaufrufe: %1</translation>
    </message>
    <message>
        <source>GPU memory: %1</source>
        <translation>GPU-Speicher: %1</translation>
    </message>
    <message>
        <source>Picture: %1 ms</source>
        <translation>Bild: %1 ms</translation>
    </message>
</context>
<context>
    <name>StepLabel</name>
    <message>
        <source>Reorder %1</source>
        <translation>%1 umordnen</translation>
    </message>
    <message>
        <source>Move %1 to the top</source>
        <translation>%1 nach oben verschieben</translation>
    </message>
    <message>
        <source>Move %1 to %2</source>
        <translation>%1 nach %2 verschieben</translation>
    </message>
    <message>
        <source>Add %1</source>
        <translation>%1 hinzufügen</translation>
    </message>
    <message>
        <source>Remove %1</source>
        <translation>%1 entfernen</translation>
    </message>
    <message>
        <source>Change the structure</source>
        <translation>Struktur ändern</translation>
    </message>
    <message>
        <source>Change the children of %1</source>
        <translation>Kindknoten von %1 ändern</translation>
    </message>
    <message>
        <source>Change several nodes</source>
        <translation>Mehrere Knoten ändern</translation>
    </message>
    <message>
        <source>Set %1 of %2 nodes</source>
        <translation>%1 von %2 Knoten setzen</translation>
    </message>
    <message>
        <source>Ignore %1 of %2 nodes</source>
        <translation>%1 von %2 Knoten ignorieren</translation>
    </message>
    <message>
        <source>Use %1 of %2 nodes</source>
        <translation>%1 von %2 Knoten verwenden</translation>
    </message>
    <message>
        <source>Change %1</source>
        <translation>%1 ändern</translation>
    </message>
    <message>
        <source>Rename %1</source>
        <translation>%1 umbenennen</translation>
    </message>
    <message>
        <source>Ignore %1</source>
        <translation>%1 ignorieren</translation>
    </message>
    <message>
        <source>Use %1</source>
        <translation>%1 verwenden</translation>
    </message>
    <message>
        <source>Set %1</source>
        <translation>%1 setzen</translation>
    </message>
</context>
<context>
    <name>StepText</name>
    <message>
        <source>ignored</source>
        <translation>ignoriert</translation>
    </message>
    <message>
        <source>used</source>
        <translation>verwendet</translation>
    </message>
    <message>
        <source>%1 changes</source>
        <translation>%1 Änderungen</translation>
    </message>
</context>
<context>
    <name>TextLineEditor</name>
    <message>
        <source>several values</source>
        <translation>mehrere Werte</translation>
    </message>
</context>
<context>
    <name>TextPopup</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Ctrl+Return writes the text, Esc restores it.</source>
        <translation>Strg+Return schreibt den Text, Esc stellt ihn wieder her.</translation>
    </message>
    <message>
        <source>Ctrl+Return writes the text, Esc restores it. Long lines are broken here for the screen; the text keeps them whole.</source>
        <translation>Strg+Return schreibt den Text, Esc stellt ihn wieder her. Lange Zeilen sind hier für den Bildschirm umbrochen; der Text behält sie ganz.</translation>
    </message>
</context>
<context>
    <name>TextureFiles</name>
    <message>
        <source>it is larger than %1 pixels a side</source>
        <translation>es hat mehr als %1 Pixel je Seite</translation>
    </message>
</context>
<context>
    <name>Theme</name>
    <message>
        <source>As the &amp;Desktop</source>
        <translation>Wie der &amp;Desktop</translation>
    </message>
    <message>
        <source>The window is light or dark as the desktop is</source>
        <translation>Das Fenster ist hell oder dunkel wie der Desktop</translation>
    </message>
    <message>
        <source>&amp;Light</source>
        <translation>&amp;Hell</translation>
    </message>
    <message>
        <source>The window is light, with colors of its own</source>
        <translation>Das Fenster ist hell, mit eigenen Farben</translation>
    </message>
    <message>
        <source>Dar&amp;k</source>
        <translation>D&amp;unkel</translation>
    </message>
    <message>
        <source>The window is dark, with colors of its own</source>
        <translation>Das Fenster ist dunkel, mit eigenen Farben</translation>
    </message>
</context>
<context>
    <name>ToolkitText</name>
    <message>
        <source>It isn&apos;t a finite number.</source>
        <translation>Das ist keine endliche Zahl.</translation>
    </message>
    <message>
        <source>%1 of %2 numbers isn&apos;t a finite number.</source>
        <translation>%1 von %2 Zahlen ist nicht endlich.</translation>
    </message>
    <message>
        <source>%1 of %2 numbers aren&apos;t finite numbers.</source>
        <translation>%1 von %2 Zahlen sind nicht endlich.</translation>
    </message>
    <message>
        <source>It is out of range, %1.</source>
        <translation>Der Wert liegt außerhalb des Bereichs, %1.</translation>
    </message>
    <message>
        <source>%1 of %2 numbers is out of range, %3.</source>
        <translation>%1 von %2 Zahlen liegt außerhalb des Bereichs, %3.</translation>
    </message>
    <message>
        <source>%1 of %2 numbers are out of range, %3.</source>
        <translation>%1 von %2 Zahlen liegen außerhalb des Bereichs, %3.</translation>
    </message>
    <message>
        <source>%1 of %2 positions are no finite numbers; what they belong to isn&apos;t drawn.</source>
        <translation>%1 von %2 Positionen sind keine endlichen Zahlen; was dazu gehört, wird nicht gezeichnet.</translation>
    </message>
    <message>
        <source>%1 of %2 indices are out of range, from 0 to %3; what they belong to isn&apos;t drawn.</source>
        <translation>%1 von %2 Indizes liegen außerhalb des Bereichs, von 0 bis %3; was dazu gehört, wird nicht gezeichnet.</translation>
    </message>
    <message>
        <source>The number of its positions, %1, isn&apos;t a multiple of %2; the last ones aren&apos;t drawn.</source>
        <translation>Die Anzahl der Positionen, %1, ist kein Vielfaches von %2; die letzten werden nicht gezeichnet.</translation>
    </message>
    <message>
        <source>The number of its indices, %1, isn&apos;t a multiple of %2; the last ones aren&apos;t drawn.</source>
        <translation>Die Anzahl der Indizes, %1, ist kein Vielfaches von %2; die letzten werden nicht gezeichnet.</translation>
    </message>
    <message>
        <source>%1 normals for %2 positions; drawn as if it had none.</source>
        <translation>%1 Normalen für %2 Positionen; gezeichnet wie ohne Normalen.</translation>
    </message>
    <message>
        <source>%1 colours for %2 positions; drawn as if it had none.</source>
        <translation>%1 Farben für %2 Positionen; gezeichnet wie ohne Farben.</translation>
    </message>
    <message>
        <source>%1 texture coordinates for %2 positions; drawn as if it had none.</source>
        <translation>%1 Texturkoordinaten für %2 Positionen; gezeichnet wie ohne Texturkoordinaten.</translation>
    </message>
    <message>
        <source>%1 of %2 normals has length 0.</source>
        <translation>%1 von %2 Normalen hat die Länge 0.</translation>
    </message>
    <message>
        <source>%1 of %2 normals have length 0.</source>
        <translation>%1 von %2 Normalen haben die Länge 0.</translation>
    </message>
    <message>
        <source>%1 of %2 normals doesn&apos;t have length 1.</source>
        <translation>%1 von %2 Normalen hat nicht die Länge 1.</translation>
    </message>
    <message>
        <source>%1 of %2 normals don&apos;t have length 1.</source>
        <translation>%1 von %2 Normalen haben nicht die Länge 1.</translation>
    </message>
    <message>
        <source>%1 of %2 triangles has no size and can&apos;t be seen.</source>
        <translation>%1 von %2 Dreiecken hat keine Größe und ist nicht zu sehen.</translation>
    </message>
    <message>
        <source>%1 of %2 triangles have no size and can&apos;t be seen.</source>
        <translation>%1 von %2 Dreiecken haben keine Größe und sind nicht zu sehen.</translation>
    </message>
    <message>
        <source>%1 of %2 lines has no size and can&apos;t be seen.</source>
        <translation>%1 von %2 Linien hat keine Größe und ist nicht zu sehen.</translation>
    </message>
    <message>
        <source>%1 of %2 lines have no size and can&apos;t be seen.</source>
        <translation>%1 von %2 Linien haben keine Größe und sind nicht zu sehen.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; doesn&apos;t exist.</source>
        <translation>Die Datei „%1“ gibt es nicht.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; can&apos;t be read: %2.</source>
        <translation>Die Datei „%1“ ist nicht lesbar: %2.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is in none of the image formats that can be read.</source>
        <translation>Die Datei „%1“ hat keines der lesbaren Bildformate.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is broken: it doesn&apos;t state the size of its image.</source>
        <translation>Die Datei „%1“ ist beschädigt: Die Größe ihres Bildes fehlt.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; has %2 by %3 pixels; images of more than %4 pixels, or %5 a side, aren&apos;t read.</source>
        <translation>Die Datei „%1“ hat %2 mal %3 Pixel; Bilder mit mehr als %4 Pixeln oder %5 je Seite werden nicht gelesen.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; isn&apos;t a regular file.</source>
        <translation>„%1“ ist keine gewöhnliche Datei.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is empty.</source>
        <translation>Die Datei „%1“ ist leer.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is larger than %2 MiB.</source>
        <translation>Die Datei „%1“ ist größer als %2 MiB.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; is in no folder, since the scene isn&apos;t saved yet.</source>
        <translation>Die Datei „%1“ ist in keinem Ordner, weil die Szene noch nicht gespeichert ist.</translation>
    </message>
    <message>
        <source>Its image of %1 by %2 pixels is drawn smaller; the GPU takes %3 a side.</source>
        <translation>Das Bild mit %1 mal %2 Pixeln wird kleiner gezeichnet; die GPU nimmt %3 je Seite.</translation>
    </message>
    <message>
        <source>It is on, but its intensity is 0, so it lights nothing.</source>
        <translation>Das Licht ist an, aber seine Stärke ist 0, es beleuchtet also nichts.</translation>
    </message>
    <message>
        <source>It is on, but its colour is black, so it lights nothing.</source>
        <translation>Das Licht ist an, aber seine Farbe ist Schwarz, es beleuchtet also nichts.</translation>
    </message>
    <message>
        <source>It is on, but all parts of its attenuation are 0, so it lights nothing.</source>
        <translation>Das Licht ist an, aber alle Teile seiner Abschwächung sind 0, es beleuchtet also nichts.</translation>
    </message>
    <message>
        <source>It is on, but the angle of its cone is 0, so it lights nothing.</source>
        <translation>Das Licht ist an, aber der Winkel seines Kegels ist 0, es beleuchtet also nichts.</translation>
    </message>
    <message>
        <source>More than %1 lights shine on this and %2 more of its group; those behind the first %3 are left out.</source>
        <translation>Auf dies und %2 weitere der Gruppe scheinen mehr als %1 Lichter; die hinter den ersten %3 entfallen.</translation>
    </message>
    <message>
        <source>%1 lights shine on it; those behind the first %2 are left out.</source>
        <translation>Darauf scheinen %1 Lichter; die hinter den ersten %2 entfallen.</translation>
    </message>
    <message>
        <source>It has no child of that number, so it shows none; it has %1 child.</source>
        <translation>Einen Kindknoten dieser Nummer gibt es nicht, es wird also keiner gezeigt; es gibt %1 Kindknoten.</translation>
    </message>
    <message>
        <source>It has no child of that number, so it shows none; it has %1 children.</source>
        <translation>Einen Kindknoten dieser Nummer gibt es nicht, es wird also keiner gezeigt; es gibt %1 Kindknoten.</translation>
    </message>
    <message>
        <source>%1 more names of this group are those of several children, such as &apos;%2&apos;.</source>
        <translation>%1 weitere Namen dieser Gruppe haben mehrere Kindknoten, etwa „%2“.</translation>
    </message>
    <message>
        <source>%1 children of the same group are called &apos;%2&apos;.</source>
        <translation>%1 Kindknoten derselben Gruppe heißen „%2“.</translation>
    </message>
    <message>
        <source>This material and %1 more of its group apply to nothing, since no mesh follows them.</source>
        <translation>Dieses Material und %1 weitere der Gruppe wirken auf nichts, weil kein Netz darauf folgt.</translation>
    </message>
    <message>
        <source>This texture and %1 more of its group apply to nothing, since no mesh follows them.</source>
        <translation>Diese Textur und %1 weitere der Gruppe wirken auf nichts, weil kein Netz darauf folgt.</translation>
    </message>
    <message>
        <source>This light and %1 more of its group apply to nothing, since no mesh follows them.</source>
        <translation>Dieses Licht und %1 weitere der Gruppe wirken auf nichts, weil kein Netz darauf folgt.</translation>
    </message>
    <message>
        <source>This complexity and %1 more of its group apply to nothing, since no mesh follows them.</source>
        <translation>Diese Komplexität und %1 weitere der Gruppe wirken auf nichts, weil kein Netz darauf folgt.</translation>
    </message>
    <message>
        <source>No mesh follows this material in its group, so it applies to nothing.</source>
        <translation>In der Gruppe folgt kein Netz auf dieses Material, es wirkt also auf nichts.</translation>
    </message>
    <message>
        <source>No mesh follows this texture in its group, so it applies to nothing.</source>
        <translation>In der Gruppe folgt kein Netz auf diese Textur, sie wirkt also auf nichts.</translation>
    </message>
    <message>
        <source>No mesh follows this light in its group, so it applies to nothing.</source>
        <translation>In der Gruppe folgt kein Netz auf dieses Licht, es wirkt also auf nichts.</translation>
    </message>
    <message>
        <source>No mesh follows this complexity in its group, so it applies to nothing.</source>
        <translation>In der Gruppe folgt kein Netz auf diese Komplexität, sie wirkt also auf nichts.</translation>
    </message>
    <message>
        <source>A scale factor is 0; what it places is flat or can&apos;t be drawn.</source>
        <translation>Ein Skalierungsfaktor ist 0; was er platziert, ist flach oder nicht zeichenbar.</translation>
    </message>
    <message>
        <source>Its axis has length 0, so it has no direction.</source>
        <translation>Die Achse hat die Länge 0, also keine Richtung.</translation>
    </message>
    <message>
        <source>Its matrix can&apos;t be inverted; what it places is flat or can&apos;t be drawn.</source>
        <translation>Die Matrix ist nicht umkehrbar; was sie platziert, ist flach oder nicht zeichenbar.</translation>
    </message>
    <message>
        <source>It has no positions to draw.</source>
        <translation>Es gibt keine Positionen zum Zeichnen.</translation>
    </message>
    <message>
        <source>It has neither an image nor an image file; surfaces are drawn without it.</source>
        <translation>Weder ein Bild noch eine Bilddatei ist angegeben; Flächen werden ohne gezeichnet.</translation>
    </message>
    <message>
        <source>Its far distance isn&apos;t greater than its near distance, so it sees nothing.</source>
        <translation>Die ferne Entfernung ist nicht größer als die nahe, die Kamera sieht also nichts.</translation>
    </message>
    <message>
        <source>It has no children.</source>
        <translation>Es gibt keine Kindknoten.</translation>
    </message>
    <message>
        <source>Its class isn&apos;t known here; it is kept as it is.</source>
        <translation>Die Klasse ist hier nicht bekannt; der Knoten bleibt, wie er ist.</translation>
    </message>
    <message>
        <source>from %1 to %2</source>
        <translation>von %1 bis %2</translation>
    </message>
    <message>
        <source>above %1 and below %2</source>
        <translation>über %1 und unter %2</translation>
    </message>
    <message>
        <source>above %1 and at most %2</source>
        <translation>über %1 und höchstens %2</translation>
    </message>
    <message>
        <source>at least %1 and below %2</source>
        <translation>mindestens %1 und unter %2</translation>
    </message>
    <message>
        <source>at least %1 and at most %2</source>
        <translation>mindestens %1 und höchstens %2</translation>
    </message>
    <message>
        <source>above %1</source>
        <translation>über %1</translation>
    </message>
    <message>
        <source>at least %1</source>
        <translation>mindestens %1</translation>
    </message>
    <message>
        <source>below %1</source>
        <translation>unter %1</translation>
    </message>
    <message>
        <source>at most %1</source>
        <translation>höchstens %1</translation>
    </message>
    <message>
        <source>Replace by the default</source>
        <translation>Durch den Vorgabewert ersetzen</translation>
    </message>
    <message>
        <source>Limit to the range</source>
        <translation>Auf den Bereich begrenzen</translation>
    </message>
    <message>
        <source>Set to the default</source>
        <translation>Auf den Vorgabewert setzen</translation>
    </message>
    <message>
        <source>Remove what they belong to, and set them to 0</source>
        <translation>Entfernen, was dazu gehört, und auf 0 setzen</translation>
    </message>
    <message>
        <source>Remove what they belong to</source>
        <translation>Entfernen, was dazu gehört</translation>
    </message>
    <message>
        <source>Remove the incomplete primitive</source>
        <translation>Unvollständiges Primitiv entfernen</translation>
    </message>
    <message>
        <source>Compute them from the triangles</source>
        <translation>Aus den Dreiecken berechnen</translation>
    </message>
    <message>
        <source>Normalise them</source>
        <translation>Normieren</translation>
    </message>
    <message>
        <source>Remove them</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Show no child</source>
        <translation>Keinen Kindknoten zeigen</translation>
    </message>
    <message>
        <source>Rename all but the first</source>
        <translation>Alle außer dem ersten umbenennen</translation>
    </message>
    <message>
        <source>Remove the material</source>
        <translation>Material entfernen</translation>
    </message>
    <message>
        <source>Remove the texture</source>
        <translation>Textur entfernen</translation>
    </message>
    <message>
        <source>Remove the light</source>
        <translation>Licht entfernen</translation>
    </message>
    <message>
        <source>Remove the complexity</source>
        <translation>Komplexität entfernen</translation>
    </message>
    <message>
        <source>information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>warning</source>
        <translation>Warnung</translation>
    </message>
    <message>
        <source>error</source>
        <translation>Fehler</translation>
    </message>
    <message>
        <source>The text is longer than %1 characters, which is the limit of a query.</source>
        <translation>Der Text ist länger als %1 Zeichen, die Grenze einer Abfrage.</translation>
    </message>
    <message>
        <source>An opening bracket is missing for this closing one. Put brackets to search for in quotes.</source>
        <translation>Zu dieser schließenden Klammer fehlt die öffnende. Gesuchte Klammern gehören in Anführungszeichen.</translation>
    </message>
    <message>
        <source>A closing bracket is missing for this opening one. Put brackets to search for in quotes.</source>
        <translation>Zu dieser öffnenden Klammer fehlt die schließende. Gesuchte Klammern gehören in Anführungszeichen.</translation>
    </message>
    <message>
        <source>More than %1 brackets are within each other, which is the limit of a query.</source>
        <translation>Mehr als %1 Klammern sind ineinander, die Grenze einer Abfrage.</translation>
    </message>
    <message>
        <source>A word is missing at the end.</source>
        <translation>Am Ende fehlt ein Wort.</translation>
    </message>
    <message>
        <source>A word is missing before &quot;%1&quot;. Put it in quotes to search for it.</source>
        <translation>Vor „%1“ fehlt ein Wort. Wird es selbst gesucht, gehört es in Anführungszeichen.</translation>
    </message>
    <message>
        <source>A value is missing after %1.</source>
        <translation>Nach %1 fehlt ein Wert.</translation>
    </message>
    <message>
        <source>A word.</source>
        <translation>Ein Wort.</translation>
    </message>
    <message>
        <source>The name of a field is missing after f:.</source>
        <translation>Nach f: fehlt der Name eines Feldes.</translation>
    </message>
    <message>
        <source>The name of a class is missing after t:, such as t:Mesh.</source>
        <translation>Nach t: fehlt der Name einer Klasse, etwa t:Mesh.</translation>
    </message>
    <message>
        <source>Only numbers are greater or less. Texts are compared by = and !=.</source>
        <translation>Nur Zahlen sind größer oder kleiner. Texte werden mit = und != verglichen.</translation>
    </message>
    <message>
        <source>Nothing is greater or less than nan. Write =nan to find it.</source>
        <translation>Nichts ist größer oder kleiner als nan. =nan findet es.</translation>
    </message>
    <message>
        <source>A text is missing after ~.</source>
        <translation>Nach ~ fehlt ein Text.</translation>
    </message>
    <message>
        <source>The closing / of the regular expression is missing.</source>
        <translation>Das schließende / des regulären Ausdrucks fehlt.</translation>
    </message>
    <message>
        <source>A regular expression is missing.</source>
        <translation>Ein regulärer Ausdruck fehlt.</translation>
    </message>
    <message>
        <source>The query has more than %1 regular expressions, which is the limit.</source>
        <translation>Die Abfrage hat mehr als %1 reguläre Ausdrücke, das ist die Grenze.</translation>
    </message>
    <message>
        <source>The closing quote is missing.</source>
        <translation>Das schließende Anführungszeichen fehlt.</translation>
    </message>
    <message>
        <source>The regular expression has a [ without ].</source>
        <translation>Der reguläre Ausdruck hat ein [ ohne ].</translation>
    </message>
    <message>
        <source>The regular expression has a ( without ).</source>
        <translation>Der reguläre Ausdruck hat ein ( ohne ).</translation>
    </message>
    <message>
        <source>The regular expression has a ) without (.</source>
        <translation>Der reguläre Ausdruck hat ein ) ohne (.</translation>
    </message>
    <message>
        <source>The regular expression has bytes that are no text.</source>
        <translation>Der reguläre Ausdruck hat Bytes, die kein Text sind.</translation>
    </message>
    <message>
        <source>The regular expression has a wrong name in %1.</source>
        <translation>Der reguläre Ausdruck hat einen falschen Namen in %1.</translation>
    </message>
    <message>
        <source>The regular expression has two repetitions in a row: %1.</source>
        <translation>Der reguläre Ausdruck hat zwei Wiederholungen hintereinander: %1.</translation>
    </message>
    <message>
        <source>The regular expression has %1, which has no meaning.</source>
        <translation>Der reguläre Ausdruck hat %1, das nichts bedeutet.</translation>
    </message>
    <message>
        <source>The regular expression has %1, which is no range or class of characters.</source>
        <translation>Der reguläre Ausdruck hat %1, weder Bereich noch Klasse von Zeichen.</translation>
    </message>
    <message>
        <source>The regular expression has %1, but nothing before it to repeat.</source>
        <translation>Der reguläre Ausdruck hat %1, aber davor nichts zu wiederholen.</translation>
    </message>
    <message>
        <source>The regular expression has %1, which isn&apos;t supported.</source>
        <translation>Der reguläre Ausdruck hat %1, das nicht unterstützt wird.</translation>
    </message>
    <message>
        <source>The regular expression ends in a backslash. Write \\ to find one.</source>
        <translation>Der reguläre Ausdruck endet mit einem Backslash. \\ findet einen.</translation>
    </message>
    <message>
        <source>The regular expression repeats too often or the wrong way round: %1.</source>
        <translation>Der reguläre Ausdruck wiederholt zu oft oder verkehrt herum: %1.</translation>
    </message>
    <message>
        <source>The regular expression is too large.</source>
        <translation>Der reguläre Ausdruck ist zu groß.</translation>
    </message>
    <message>
        <source>The regular expression is wrong: %1.</source>
        <translation>Der reguläre Ausdruck ist falsch: %1.</translation>
    </message>
    <message>
        <source>%1 A comma is a decimal sign: separate arguments with a semicolon.</source>
        <translation>%1 Ein Komma ist ein Dezimalzeichen: Argumente durch Semikolon trennen.</translation>
    </message>
    <message>
        <source>The text is longer than %1 characters, which is the limit of a formula.</source>
        <translation>Der Text ist länger als %1 Zeichen, die Grenze einer Formel.</translation>
    </message>
    <message>
        <source>A comma is a decimal sign and needs digits after it; arguments are separated by a semicolon.</source>
        <translation>Ein Komma ist ein Dezimalzeichen und braucht Ziffern danach; Argumente werden durch Semikolon getrennt.</translation>
    </message>
    <message>
        <source>%1 has no meaning in a formula.</source>
        <translation>%1 bedeutet in einer Formel nichts.</translation>
    </message>
    <message>
        <source>A number is missing before %1.</source>
        <translation>Vor %1 fehlt eine Zahl.</translation>
    </message>
    <message>
        <source>%1 can&apos;t be used here: a finite number is needed.</source>
        <translation>%1 geht hier nicht: Eine endliche Zahl ist nötig.</translation>
    </message>
    <message>
        <source>Write %1 and what follows it in brackets.</source>
        <translation>%1 und was folgt gehören in Klammern.</translation>
    </message>
    <message>
        <source>&quot;log&quot; has several meanings: write ln, log2 or log10.</source>
        <translation>&quot;log&quot; ist mehrdeutig: Schreiben Sie ln, log2 oder log10.</translation>
    </message>
    <message>
        <source>There is no function %1. There are: %2.</source>
        <translation>Die Funktion %1 gibt es nicht. Es gibt: %2.</translation>
    </message>
    <message>
        <source>%1 isn&apos;t known here. There are no variables.</source>
        <translation>%1 ist hier nicht bekannt. Es gibt keine Variablen.</translation>
    </message>
    <message>
        <source>%1 isn&apos;t known here. The variables are: %2.</source>
        <translation>%1 ist hier nicht bekannt. Die Variablen sind: %2.</translation>
    </message>
    <message>
        <source>The function %1 needs its argument in brackets: %2.</source>
        <translation>Die Funktion %1 braucht ihr Argument in Klammern: %2.</translation>
    </message>
    <message>
        <source>A sign such as + or * is missing before %1.</source>
        <translation>Vor %1 fehlt ein Zeichen wie + oder *.</translation>
    </message>
    <message>
        <source>A multiplication needs its sign: write * before the bracket.</source>
        <translation>Eine Multiplikation braucht ihr Zeichen: Schreiben Sie * vor die Klammer.</translation>
    </message>
    <message>
        <source>A multiplication needs its sign: write * before %1.</source>
        <translation>Eine Multiplikation braucht ihr Zeichen: Schreiben Sie * vor %1.</translation>
    </message>
    <message>
        <source>Write if(condition; then; otherwise) instead of %1.</source>
        <translation>Schreiben Sie if(Bedingung; dann; sonst) statt %1.</translation>
    </message>
    <message>
        <source>&quot;rad&quot; is for angles, and this isn&apos;t an angle.</source>
        <translation>&quot;rad&quot; ist für Winkel, und dies ist kein Winkel.</translation>
    </message>
    <message>
        <source>%1 is for angles, and this isn&apos;t an angle.</source>
        <translation>%1 ist für Winkel, und dies ist kein Winkel.</translation>
    </message>
    <message>
        <source>Two comparisons in a row: write them apart, such as 0 &lt; x and x &lt; 1.</source>
        <translation>Zwei Vergleiche hintereinander: einzeln schreiben, etwa 0 &lt; x and x &lt; 1.</translation>
    </message>
    <message>
        <source>More than %1 brackets are within each other, which is the limit of a formula.</source>
        <translation>Mehr als %1 Klammern sind ineinander, die Grenze einer Formel.</translation>
    </message>
    <message>
        <source>An opening bracket is missing for this closing one.</source>
        <translation>Zu dieser schließenden Klammer fehlt die öffnende.</translation>
    </message>
    <message>
        <source>A closing bracket is missing for this opening one.</source>
        <translation>Zu dieser öffnenden Klammer fehlt die schließende.</translation>
    </message>
    <message>
        <source>%1 takes %2 or more arguments, not %3.</source>
        <translation>%1 braucht mindestens %2 Argumente, nicht %3.</translation>
    </message>
    <message>
        <source>%1 takes %2 or more argument, not %3.</source>
        <translation>%1 braucht mindestens %2 Argument, nicht %3.</translation>
    </message>
    <message>
        <source>%1 takes %2 arguments, not %3.</source>
        <translation>%1 braucht %2 Argumente, nicht %3.</translation>
    </message>
    <message>
        <source>%1 takes %2 argument, not %3.</source>
        <translation>%1 braucht %2 Argument, nicht %3.</translation>
    </message>
    <message>
        <source>A semicolon separates the arguments of a function, and there is no function here.</source>
        <translation>Ein Semikolon trennt die Argumente einer Funktion, und hier ist keine Funktion.</translation>
    </message>
    <message>
        <source>Two units in a row: write brackets before %1.</source>
        <translation>Zwei Einheiten hintereinander: Schreiben Sie Klammern vor %1.</translation>
    </message>
    <message>
        <source>A number or a formula is missing.</source>
        <translation>Eine Zahl oder eine Formel fehlt.</translation>
    </message>
    <message>
        <source>A number is missing at the end.</source>
        <translation>Am Ende fehlt eine Zahl.</translation>
    </message>
    <message>
        <source>The formula is too long.</source>
        <translation>Die Formel ist zu lang.</translation>
    </message>
    <message>
        <source>The formula can&apos;t be evaluated: %1</source>
        <translation>Die Formel lässt sich nicht auswerten: %1</translation>
    </message>
    <message>
        <source>%1 isn&apos;t a whole number.</source>
        <translation>%1 ist keine ganze Zahl.</translation>
    </message>
    <message>
        <source>%1 is %2, which isn&apos;t a number to calculate with.</source>
        <translation>%1 ist %2, und damit lässt sich nicht rechnen.</translation>
    </message>
    <message>
        <source>%1 is out of range: the field takes whole numbers from %2 to %3.</source>
        <translation>%1 liegt außerhalb des Bereichs: Das Feld nimmt ganze Zahlen von %2 bis %3.</translation>
    </message>
    <message>
        <source>%1 is out of range: the field takes numbers from %2 to %3.</source>
        <translation>%1 liegt außerhalb des Bereichs: Das Feld nimmt Zahlen von %2 bis %3.</translation>
    </message>
    <message>
        <source>A division by 0 has no result.</source>
        <translation>Eine Division durch 0 hat kein Ergebnis.</translation>
    </message>
    <message>
        <source>The result is infinite, such as the logarithm of 0 or a negative power of 0.</source>
        <translation>Das Ergebnis ist unendlich, etwa der Logarithmus von 0 oder eine negative Potenz von 0.</translation>
    </message>
    <message>
        <source>The result is too large for a number.</source>
        <translation>Das Ergebnis ist zu groß für eine Zahl.</translation>
    </message>
    <message>
        <source>The result isn&apos;t defined, such as 0 divided by 0 or the square root of a negative number.</source>
        <translation>Das Ergebnis ist nicht definiert, etwa 0 durch 0 oder die Wurzel einer negativen Zahl.</translation>
    </message>
    <message>
        <source>Digits from 0 to 9 and from a to f are missing after 0x.</source>
        <translation>Nach 0x fehlen Ziffern von 0 bis 9 und von a bis f.</translation>
    </message>
    <message>
        <source>The number %1 is too large.</source>
        <translation>Die Zahl %1 ist zu groß.</translation>
    </message>
    <message>
        <source>%1 isn&apos;t a number: it may have one decimal sign and no other signs.</source>
        <translation>%1 ist keine Zahl: Möglich ist ein Dezimalzeichen, sonst keine Zeichen.</translation>
    </message>
    <message>
        <source>Signs between thousands can&apos;t be read: write %1 for %2.</source>
        <translation>Tausenderzeichen sind nicht lesbar: Schreiben Sie %1 für %2.</translation>
    </message>
    <message>
        <source>The file &apos;%1&apos; %2.</source>
        <translation>Die Datei „%1“ %2.</translation>
    </message>
</context>
<context>
    <name>TreeActions</name>
    <message>
        <source>&amp;Unfold and Fold</source>
        <translation>A&amp;us- und Einklappen</translation>
    </message>
    <message>
        <source>Select &amp;Nodes</source>
        <translation>K&amp;noten auswählen</translation>
    </message>
    <message>
        <source>&amp;Unfold All Below</source>
        <translation>&amp;Alles darunter ausklappen</translation>
    </message>
    <message>
        <source>Unfolds the selected nodes and everything below them</source>
        <translation>Klappt die ausgewählten Knoten und alles darunter aus</translation>
    </message>
    <message>
        <source>&amp;Fold</source>
        <translation>&amp;Einklappen</translation>
    </message>
    <message>
        <source>Folds the selected nodes and everything below them</source>
        <translation>Klappt die ausgewählten Knoten und alles darunter ein</translation>
    </message>
    <message>
        <source>Fold to Level &amp;1</source>
        <translation>Auf Ebene &amp;1 einklappen</translation>
    </message>
    <message>
        <source>Unfold to Level &amp;%1</source>
        <translation>Auf Ebene &amp;%1 ausklappen</translation>
    </message>
    <message>
        <source>Shows the top nodes alone in the tree</source>
        <translation>Zeigt im Baum nur die obersten Knoten</translation>
    </message>
    <message>
        <source>Shows %1 levels of the tree, and folds what is below</source>
        <translation>Zeigt %1 Ebenen des Baums und klappt ein, was darunter ist</translation>
    </message>
    <message>
        <source>All &amp;Children</source>
        <translation>Alle &amp;Kindknoten</translation>
    </message>
    <message>
        <source>Selects all children of the selected nodes in their place</source>
        <translation>Wählt alle Kindknoten der ausgewählten Knoten an ihrer Stelle aus</translation>
    </message>
    <message>
        <source>All of the Same C&amp;lass</source>
        <translation>Alle der &amp;gleichen Klasse</translation>
    </message>
    <message>
        <source>Selects all nodes of the scene that have the class of the node selected last</source>
        <translation>Wählt alle Knoten der Szene aus, die die Klasse des zuletzt ausgewählten Knotens haben</translation>
    </message>
    <message>
        <source>&amp;Inverse</source>
        <translation>Auswahl &amp;umkehren</translation>
    </message>
    <message>
        <source>Selects the unfolded rows of the tree that aren&apos;t selected, and no others</source>
        <translation>Wählt die ausgeklappten Zeilen des Baums aus, die nicht ausgewählt sind, und keine anderen</translation>
    </message>
    <message>
        <source>No node is selected</source>
        <translation>Kein Knoten ist ausgewählt</translation>
    </message>
    <message>
        <source>No scene is open</source>
        <translation>Keine Szene ist geöffnet</translation>
    </message>
    <message>
        <source>The tree shows %1 more levels only: with the next one there would be more than %2 rows.</source>
        <translation>Der Baum zeigt nur %1 weitere Ebenen: Mit der nächsten wären es mehr als %2 Zeilen.</translation>
    </message>
    <message>
        <source>The selected nodes have no children.</source>
        <translation>Die ausgewählten Knoten haben keine Kindknoten.</translation>
    </message>
</context>
<context>
    <name>TreeDrops</name>
    <message>
        <source>Open a scene before you drop nodes.</source>
        <translation>Öffnen Sie eine Szene, bevor Sie Knoten ablegen.</translation>
    </message>
    <message>
        <source>Only nodes, text and files can be dropped here.</source>
        <translation>Hier lassen sich nur Knoten, Text und Dateien ablegen.</translation>
    </message>
</context>
<context>
    <name>TreeFinder</name>
    <message>
        <source>&amp;Find Nodes</source>
        <translation>Knoten s&amp;uchen</translation>
    </message>
    <message>
        <source>Searches the scene for nodes by name, class or value</source>
        <translation>Sucht in der Szene Knoten nach Name, Klasse oder Wert</translation>
    </message>
    <message>
        <source>Find Ne&amp;xt</source>
        <translation>We&amp;itersuchen</translation>
    </message>
    <message>
        <source>Selects the next hit of the search</source>
        <translation>Wählt den nächsten Treffer der Suche aus</translation>
    </message>
    <message>
        <source>Find Pre&amp;vious</source>
        <translation>Rü&amp;ckwärts suchen</translation>
    </message>
    <message>
        <source>Selects the previous hit of the search</source>
        <translation>Wählt den vorigen Treffer der Suche aus</translation>
    </message>
    <message>
        <source>Select All &amp;Hits</source>
        <translation>Alle Tre&amp;ffer auswählen</translation>
    </message>
    <message>
        <source>Selects all nodes that the search has found</source>
        <translation>Wählt alle Knoten aus, die die Suche gefunden hat</translation>
    </message>
    <message>
        <source>Character %1: %2</source>
        <translation>Zeichen %1: %2</translation>
    </message>
    <message>
        <source>%1…</source>
        <translation>%1…</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 von %2</translation>
    </message>
    <message>
        <source>No hits</source>
        <translation>Keine Treffer</translation>
    </message>
    <message>
        <source>Searching…</source>
        <translation>Suche läuft…</translation>
    </message>
    <message>
        <source>1 hit</source>
        <translation>1 Treffer</translation>
    </message>
    <message>
        <source>%1 hits</source>
        <translation>%1 Treffer</translation>
    </message>
    <message>
        <source>Nothing is searched for</source>
        <translation>Es wird nichts gesucht</translation>
    </message>
    <message>
        <source>The scene is being checked.</source>
        <translation>Die Szene wird geprüft.</translation>
    </message>
    <message>
        <source>Went on at the other end</source>
        <translation>Am anderen Ende fortgesetzt</translation>
    </message>
    <message>
        <source>Some hits are folded, since there are many; going to one unfolds it.</source>
        <translation>Manche Treffer sind eingeklappt, da es viele sind; hinspringen klappt sie aus.</translation>
    </message>
</context>
<context>
    <name>TreeTips</name>
    <message>
        <source>Hidden in %1 places</source>
        <translation>An %1 Stellen ausgeblendet</translation>
    </message>
    <message>
        <source>It is in %1 places of the scene and would be hidden in all of them.</source>
        <translation>Der Knoten ist an %1 Stellen der Szene und würde an allen ausgeblendet.</translation>
    </message>
</context>
<context>
    <name>UpdateJob</name>
    <message>
        <source>%1: the comparison with the open scene doesn&apos;t fit in memory</source>
        <translation>%1: Der Vergleich mit der geöffneten Szene passt nicht in den Speicher</translation>
    </message>
</context>
<context>
    <name>ViewActions</name>
    <message>
        <source>Frame &amp;All</source>
        <translation>&amp;Alles einpassen</translation>
    </message>
    <message>
        <source>Brings all of the scene into view</source>
        <translation>Bringt die ganze Szene ins Bild</translation>
    </message>
    <message>
        <source>Frame &amp;Selection</source>
        <translation>Aus&amp;wahl einpassen</translation>
    </message>
    <message>
        <source>Brings what is selected into view</source>
        <translation>Bringt die Auswahl ins Bild</translation>
    </message>
    <message>
        <source>&amp;Front</source>
        <translation>&amp;Vorn</translation>
    </message>
    <message>
        <source>&amp;Back</source>
        <translation>&amp;Hinten</translation>
    </message>
    <message>
        <source>&amp;Right</source>
        <translation>&amp;Rechts</translation>
    </message>
    <message>
        <source>&amp;Left</source>
        <translation>&amp;Links</translation>
    </message>
    <message>
        <source>&amp;Top</source>
        <translation>&amp;Oben</translation>
    </message>
    <message>
        <source>B&amp;ottom</source>
        <translation>&amp;Unten</translation>
    </message>
    <message>
        <source>From a &amp;Corner</source>
        <translation>Von einer &amp;Ecke</translation>
    </message>
    <message>
        <source>Looks in perspective from the right, from above and from the front, as at first</source>
        <translation>Blickt perspektivisch von rechts, oben und vorn, wie zu Beginn</translation>
    </message>
    <message>
        <source>&amp;Perspective</source>
        <translation>&amp;Perspektivisch</translation>
    </message>
    <message>
        <source>Distant things look smaller</source>
        <translation>Fernes sieht kleiner aus</translation>
    </message>
    <message>
        <source>&amp;Orthographic</source>
        <translation>O&amp;rthografisch</translation>
    </message>
    <message>
        <source>Things look the same size at any distance</source>
        <translation>Alles sieht in jeder Entfernung gleich groß aus</translation>
    </message>
    <message>
        <source>Soli&amp;d</source>
        <translation>&amp;Flächen</translation>
    </message>
    <message>
        <source>Surfaces are filled</source>
        <translation>Flächen sind gefüllt</translation>
    </message>
    <message>
        <source>&amp;Wireframe</source>
        <translation>&amp;Drahtgitter</translation>
    </message>
    <message>
        <source>Surfaces show their edges alone</source>
        <translation>Flächen zeigen nur ihre Kanten</translation>
    </message>
    <message>
        <source>&amp;Ground Grid</source>
        <translation>&amp;Bodenraster</translation>
    </message>
    <message>
        <source>Shows a grid on the plane of x and z</source>
        <translation>Zeigt ein Raster auf der Ebene von x und z</translation>
    </message>
    <message>
        <source>&amp;Bounding Boxes</source>
        <translation>Hüll&amp;quader</translation>
    </message>
    <message>
        <source>Shows a box around each mesh</source>
        <translation>Zeigt einen Quader um jedes Netz</translation>
    </message>
    <message>
        <source>A&amp;xes</source>
        <translation>A&amp;chsen</translation>
    </message>
    <message>
        <source>Shows the axes: x red, y green, z blue</source>
        <translation>Zeigt die Achsen: x rot, y grün, z blau</translation>
    </message>
    <message>
        <source>Looks along an axis</source>
        <translation>Blickt entlang einer Achse</translation>
    </message>
    <message>
        <source>Look Along</source>
        <translation>Blickrichtung</translation>
    </message>
</context>
<context>
    <name>ViewDrawing</name>
    <message>
        <source>The view is turned off by the preference ORVANE_VIEW. Remove it, or set it to 1, and start Orvane again.</source>
        <translation>Die Ansicht ist durch die Einstellung ORVANE_VIEW ausgeschaltet. Entfernen Sie diese, oder setzen Sie sie auf 1, und starten Sie Orvane erneut.</translation>
    </message>
    <message>
        <source>The scene can&apos;t be drawn here: %1. Install a driver with OpenGL 3.3, such as the packages libegl-mesa0 and libgl1-mesa-dri, and start Orvane again. Everything else works without it.</source>
        <translation>Die Szene lässt sich hier nicht zeichnen: %1. Installieren Sie einen Treiber mit OpenGL 3.3, etwa die Pakete libegl-mesa0 und libgl1-mesa-dri, und starten Sie Orvane erneut. Alles andere geht auch ohne.</translation>
    </message>
</context>
<context>
    <name>ViewHandles</name>
    <message>
        <source>&amp;Handles</source>
        <translation>&amp;Griffe</translation>
    </message>
    <message>
        <source>S&amp;ymbols</source>
        <translation>S&amp;ymbole</translation>
    </message>
    <message>
        <source>&amp;None</source>
        <translation>&amp;Keine</translation>
    </message>
    <message>
        <source>Shows no handles in the view</source>
        <translation>Zeigt keine Griffe in der Ansicht</translation>
    </message>
    <message>
        <source>&amp;Move</source>
        <translation>&amp;Verschieben</translation>
    </message>
    <message>
        <source>Shows handles that move what is selected</source>
        <translation>Zeigt Griffe zum Verschieben der Auswahl</translation>
    </message>
    <message>
        <source>&amp;Turn</source>
        <translation>&amp;Drehen</translation>
    </message>
    <message>
        <source>Shows handles that turn what is selected</source>
        <translation>Zeigt Griffe zum Drehen der Auswahl</translation>
    </message>
    <message>
        <source>&amp;Scale</source>
        <translation>&amp;Skalieren</translation>
    </message>
    <message>
        <source>Shows handles that scale what is selected</source>
        <translation>Zeigt Griffe zum Skalieren der Auswahl</translation>
    </message>
    <message>
        <source>&amp;World Axes</source>
        <translation>&amp;Weltachsen</translation>
    </message>
    <message>
        <source>Handles have the axes of the scene</source>
        <translation>Griffe haben die Achsen der Szene</translation>
    </message>
    <message>
        <source>&amp;Parent Axes</source>
        <translation>Achsen der &amp;Gruppe</translation>
    </message>
    <message>
        <source>Handles have the axes of the group above the node that was selected last</source>
        <translation>Griffe haben die Achsen der Gruppe über dem zuletzt ausgewählten Knoten</translation>
    </message>
    <message>
        <source>&amp;Own Axes</source>
        <translation>&amp;Eigene Achsen</translation>
    </message>
    <message>
        <source>Handles have the axes of the node that was selected last</source>
        <translation>Griffe haben die Achsen des zuletzt ausgewählten Knotens</translation>
    </message>
    <message>
        <source>Shows lights and cameras as symbols, which can be clicked</source>
        <translation>Zeigt Lichter und Kameras als anklickbare Symbole</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no size that could be scaled.</source>
        <translation>„%1“ hat keine Größe, die sich skalieren ließe.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; shines from very far away, so it has no place. Turn it with E.</source>
        <translation>„%1“ leuchtet aus weiter Ferne, hat also keinen Ort. Drehen Sie das Licht mit E.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; shines into all directions, so it can&apos;t be turned. Move it with W.</source>
        <translation>„%1“ leuchtet in alle Richtungen, lässt sich also nicht drehen. Verschieben Sie das Licht mit W.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no place in the scene, so it can&apos;t be moved. Select what it applies to.</source>
        <translation>„%1“ hat keinen Ort in der Szene, lässt sich also nicht verschieben. Wählen Sie aus, worauf es wirkt.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no transform that could move it.</source>
        <translation>„%1“ hat keine Transformation zum Verschieben.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no transform that could turn it.</source>
        <translation>„%1“ hat keine Transformation zum Drehen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; has no transform that could scale it.</source>
        <translation>„%1“ hat keine Transformation zum Skalieren.</translation>
    </message>
    <message>
        <source>Put a Transform above</source>
        <translation>Transformation ergänzen</translation>
    </message>
    <message>
        <source>%1 of the %2 selected nodes have nothing that could change like that.</source>
        <translation>%1 der %2 ausgewählten Knoten haben nichts, was sich so ändern ließe.</translation>
    </message>
    <message>
        <source>Put Transform above</source>
        <translation>Transformation ergänzen</translation>
    </message>
</context>
<context>
    <name>ViewLink</name>
    <message>
        <source>at %1</source>
        <translation>bei %1</translation>
    </message>
    <message>
        <source>%1 · vertex %2 (%3)</source>
        <translation>%1 · Eckpunkt %2 (%3)</translation>
    </message>
    <message>
        <source>The point of the scene that was clicked, and the nearest vertex of the mesh with its position</source>
        <translation>Der angeklickte Punkt der Szene und der nächste Eckpunkt des Netzes mit seiner Position</translation>
    </message>
</context>
<context>
    <name>ViewMenu</name>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ansicht</translation>
    </message>
    <message>
        <source>It has nothing to show for what is selected.</source>
        <translation>Zur Auswahl gibt es hier nichts zu zeigen.</translation>
    </message>
    <message>
        <source>Shows or hides this part of the window</source>
        <translation>Blendet diesen Teil des Fensters ein oder aus</translation>
    </message>
    <message>
        <source>Doc&amp;ks</source>
        <translation>Ando&amp;ckfenster</translation>
    </message>
    <message>
        <source>&amp;Tool Bars</source>
        <translation>Werk&amp;zeugleisten</translation>
    </message>
</context>
<context>
    <name>ViewText</name>
    <message>
        <source>the front</source>
        <translation>vorn</translation>
    </message>
    <message>
        <source>the back</source>
        <translation>hinten</translation>
    </message>
    <message>
        <source>the right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>the left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>above</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>below</source>
        <translation>unten</translation>
    </message>
    <message>
        <source> and </source>
        <translation> und </translation>
    </message>
    <message>
        <source>Seen from %1, without perspective.</source>
        <translation>Gesehen von %1, ohne Perspektive.</translation>
    </message>
    <message>
        <source>Seen from %1, in perspective.</source>
        <translation>Gesehen von %1, mit Perspektive.</translation>
    </message>
    <message>
        <source>%1, a %2</source>
        <translation>%1, ein %2</translation>
    </message>
    <message>
        <source>outside of the picture</source>
        <translation>außerhalb des Bildes</translation>
    </message>
    <message>
        <source>at the top</source>
        <translation>oben</translation>
    </message>
    <message>
        <source>at the bottom</source>
        <translation>unten</translation>
    </message>
    <message>
        <source>to the left</source>
        <translation>links</translation>
    </message>
    <message>
        <source>to the right</source>
        <translation>rechts</translation>
    </message>
    <message>
        <source>in the middle of the picture</source>
        <translation>in der Mitte des Bildes</translation>
    </message>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
    <message>
        <source>behind the viewer</source>
        <translation>hinter dem Betrachter</translation>
    </message>
    <message>
        <source>Nothing is selected.</source>
        <translation>Nichts ist ausgewählt.</translation>
    </message>
    <message>
        <source>Selected: %1. It can&apos;t be seen by itself.</source>
        <translation>Ausgewählt: %1. Für sich ist das nicht zu sehen.</translation>
    </message>
    <message>
        <source>Selected: %1, %2 units large, %3.</source>
        <translation>Ausgewählt: %1, %2 Einheiten groß, %3.</translation>
    </message>
    <message>
        <source> by </source>
        <translation> mal </translation>
    </message>
    <message>
        <source>No scene is open.</source>
        <translation>Keine Szene ist geöffnet.</translation>
    </message>
    <message>
        <source>Nothing of the scene can be seen.</source>
        <translation>Von der Szene ist nichts zu sehen.</translation>
    </message>
    <message>
        <source>%1 of %2 meshes are in view.</source>
        <translation>%1 von %2 Netzen sind im Bild.</translation>
    </message>
</context>
<context>
    <name>WindowActions</name>
    <message>
        <source>&amp;Keyboard Shortcuts…</source>
        <translation>&amp;Tastenkürzel…</translation>
    </message>
    <message>
        <source>Shows and changes the keys of all actions</source>
        <translation>Zeigt und ändert die Tasten aller Aktionen</translation>
    </message>
    <message>
        <source>&amp;Go To…</source>
        <translation>&amp;Springen zu…</translation>
    </message>
    <message>
        <source>Goes to a node, field, camera, bookmark or file by some letters of it</source>
        <translation>Springt zu Knoten, Feld, Kamera, Lesezeichen oder Datei nach einigen Buchstaben</translation>
    </message>
    <message>
        <source>&amp;Command Palette…</source>
        <translation>&amp;Befehlspalette…</translation>
    </message>
    <message>
        <source>Runs any action by some letters of it</source>
        <translation>Führt eine beliebige Aktion nach einigen Buchstaben aus</translation>
    </message>
    <message>
        <source>&amp;Go</source>
        <translation>&amp;Gehe zu</translation>
    </message>
    <message>
        <source>Context Menu</source>
        <translation>Kontextmenü</translation>
    </message>
    <message>
        <source>Opens the menu of what is selected in the part of the window with the focus</source>
        <translation>Öffnet das Menü der Auswahl im Fensterteil mit dem Fokus</translation>
    </message>
</context>
<context>
    <name>WindowRun</name>
    <message>
        <source>%1 wasn&apos;t opened, so what the command line sets and selects is left out.</source>
        <translation>%1 wurde nicht geöffnet, deshalb entfällt, was die Befehlszeile setzt und auswählt.</translation>
    </message>
</context>
<context>
    <name>WindowShell</name>
    <message>
        <source>a dock of it has neither a title nor a name, so its place may get lost</source>
        <translation>ein Andockfenster davon hat weder Titel noch Namen, sein Platz kann also verloren gehen</translation>
    </message>
    <message>
        <source>a tool bar of it has neither a title nor a name, so its place may get lost</source>
        <translation>eine Werkzeugleiste davon hat weder Titel noch Namen, ihr Platz kann also verloren gehen</translation>
    </message>
</context>
<context>
    <name>orv::ToolBar</name>
    <message>
        <source>Nothing of the class %1 is selected.</source>
        <translation>Nichts von der Klasse %1 ist ausgewählt.</translation>
    </message>
</context>
</TS>
