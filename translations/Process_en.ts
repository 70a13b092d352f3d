<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en" language="en">
<context>
    <name>AppProperties</name>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirm</translation>
    </message>
    <message>
        <source>The changes were taken into the dictionary</source>
        <translation>The changes were taken into the dictionary</translation>
    </message>
    <message>
        <source>EN CONSTRUCCION</source>
        <translation>EN CONSTRUCCION</translation>
    </message>
</context>
<context>
    <name>ArealistViewOptionsDialog</name>
    <message>
        <source>Show Totals Row</source>
        <translation>Show Totals Row</translation>
    </message>
    <message>
        <source>View Options</source>
        <translation>View Options</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Add a row with the sum of each column of whole numbers</source>
        <translation>Add a row with the sum of each column of whole numbers</translation>
    </message>
</context>
<context>
    <name>AverageLayout</name>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Average</translation>
    </message>
</context>
<context>
    <name>BottomPanel</name>
    <message>
        <source>Output</source>
        <translation>Output</translation>
    </message>
    <message>
        <source>Messages and finding</source>
        <translation>Messages and finding</translation>
    </message>
</context>
<context>
    <name>CategoryTable</name>
    <message>
        <source>Lines of the clipboard that are no category: %1</source>
        <translation>Lines of the clipboard that are no category: %1</translation>
    </message>
    <message>
        <source>Variable Categories</source>
        <translation>Variable Categories</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Clear</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Add a new row in the category table</source>
        <translation>Add a new row in the category table</translation>
    </message>
    <message>
        <source>Copy the category table of the variable</source>
        <translation>Copy the category table of the variable</translation>
    </message>
    <message>
        <source>Paste the category table copied from another variable into the current one.</source>
        <translation>Paste the category table copied from another variable into the current one.</translation>
    </message>
    <message>
        <source>Remove the active row form the category table</source>
        <translation>Remove the active row form the category table</translation>
    </message>
    <message>
        <source>Clear all information in the category table</source>
        <translation>Clear all information in the category table</translation>
    </message>
    <message>
        <source>Take back the last change of the category table</source>
        <translation>Take back the last change of the category table</translation>
    </message>
</context>
<context>
    <name>ColumnGroupRows</name>
    <message>
        <source>Columns at place %1</source>
        <translation>Columns at place %1</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Show</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>Show %1</translation>
    </message>
    <message>
        <source>Checked: %1 shows in the table</source>
        <translation>Checked: %1 shows in the table</translation>
    </message>
    <message>
        <source>%1 always shows</source>
        <translation>%1 always shows</translation>
    </message>
</context>
<context>
    <name>ColumnGroups</name>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>NA</source>
        <translation>NA</translation>
    </message>
    <message>
        <source>MV</source>
        <translation>MV</translation>
    </message>
</context>
<context>
    <name>ConfigDialog</name>
    <message>
        <source>Kelx Preferences</source>
        <translation>Kelx Preferences</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
</context>
<context>
    <name>CrossTable</name>
    <message>
        <source>This table of %1 rows and %2 columns is too large to be shown: it would have more than %3 cells. Group the categories of its variables or filter the records.</source>
        <translation>This table of %1 rows and %2 columns is too large to be shown: it would have more than %3 cells. Group the categories of its variables or filter the records.</translation>
    </message>
</context>
<context>
    <name>DataFileForm</name>
    <message>
        <source>Input data file for the loading process</source>
        <translation>Input data file for the loading process</translation>
    </message>
    <message>
        <source>Is found on disk</source>
        <translation>Is found on disk</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Browse...</translation>
    </message>
    <message>
        <source>Choose another data file</source>
        <translation>Choose another data file</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>All files (*)</translation>
    </message>
</context>
<context>
    <name>DataSourceVariableTab</name>
    <message>
        <source>The relative position should be from 1 to n, where n is the size</source>
        <translation>The relative position should be from 1 to n, where n is the size</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Kelvora native file format</source>
        <translation>Kelvora native file format</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identifier</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Field</translation>
    </message>
    <message>
        <source>Relative position</source>
        <translation>Relative position</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Data Source</source>
        <translation>Data Source</translation>
    </message>
</context>
<context>
    <name>DialogEntityProperties</name>
    <message>
        <source>Properties of %1</source>
        <translation>Properties of %1</translation>
    </message>
    <message>
        <source>Entity definition has been modified. Save changes?</source>
        <translation>Entity definition has been modified. Save changes?</translation>
    </message>
</context>
<context>
    <name>DictionarySaver</name>
    <message>
        <source>There is no open dictionary.</source>
        <translation>There is no open dictionary.</translation>
    </message>
</context>
<context>
    <name>DictionaryToolBar</name>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Save the dictionary</source>
        <translation>Save the dictionary</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Save As</translation>
    </message>
    <message>
        <source>Save the dictionary under another name</source>
        <translation>Save the dictionary under another name</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>Dictionary</translation>
    </message>
    <message>
        <source>Locate</source>
        <translation>Locate</translation>
    </message>
    <message>
        <source>Find the data files that are missing where the dictionary says</source>
        <translation>Find the data files that are missing where the dictionary says</translation>
    </message>
    <message>
        <source>Consistency</source>
        <translation>Consistency</translation>
    </message>
    <message>
        <source>Check the data files against the dictionary</source>
        <translation>Check the data files against the dictionary</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Report</translation>
    </message>
    <message>
        <source>Make a report of the dictionary</source>
        <translation>Make a report of the dictionary</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Close the dictionary</source>
        <translation>Close the dictionary</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Open a dictionary, or one of the recent ones</source>
        <translation>Open a dictionary, or one of the recent ones</translation>
    </message>
    <message>
        <source>Open Dictionary</source>
        <translation>Open Dictionary</translation>
    </message>
    <message>
        <source>Error %s sending event</source>
        <translation>Error %s sending event</translation>
    </message>
    <message>
        <source>Please, you must open a dictionary beforehand</source>
        <translation>Please, you must open a dictionary beforehand</translation>
    </message>
    <message>
        <source>KelX Dictionary (*.kxdb);;Kel7 Dictionary (*.dicx)</source>
        <translation>KelX Dictionary (*.kxdb);;Kel7 Dictionary (*.dicx)</translation>
    </message>
</context>
<context>
    <name>DictionaryTreeModel</name>
    <message>
        <source>File not found: %1</source>
        <translation>File not found: %1</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>File: %1</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>Records: %1</translation>
    </message>
    <message>
        <source>Variables: %1</source>
        <translation>Variables: %1</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entity</translation>
    </message>
</context>
<context>
    <name>DictionaryUtil</name>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>The file %1 cannot be written: %2</translation>
    </message>
</context>
<context>
    <name>DirectExport</name>
    <message>
        <source>The folder %1 does not exist. %2 is written into the folder of results, %3.</source>
        <translation>The folder %1 does not exist. %2 is written into the folder of results, %3.</translation>
    </message>
    <message>
        <source>The program gives no name of a file.</source>
        <translation>The program gives no name of a file.</translation>
    </message>
</context>
<context>
    <name>DocumentationVariableTab</name>
    <message>
        <source>Documentation</source>
        <translation>Documentation</translation>
    </message>
</context>
<context>
    <name>Editor</name>
    <message>
        <source>Program text</source>
        <translation>Program text</translation>
    </message>
    <message>
        <source>Line numbers</source>
        <translation>Line numbers</translation>
    </message>
    <message>
        <source>Funcionalidad %1 en Construcción</source>
        <translation>Funcionalidad %1 en Construcción</translation>
    </message>
    <message>
        <source>&quot;Toggle Comment&quot;</source>
        <translation>&quot;Toggle Comment&quot;</translation>
    </message>
    <message>
        <source>&quot;Wizard Define&quot;</source>
        <translation>&quot;Wizard Define&quot;</translation>
    </message>
    <message>
        <source>&quot;Wizard Table&quot;</source>
        <translation>&quot;Wizard Table&quot;</translation>
    </message>
    <message>
        <source>&quot;Execute Blow Up&quot;</source>
        <translation>&quot;Execute Blow Up&quot;</translation>
    </message>
    <message>
        <source>&quot;Define Frequency&quot;</source>
        <translation>&quot;Define Frequency&quot;</translation>
    </message>
    <message>
        <source>&quot;Syntax Clue&quot;</source>
        <translation>&quot;Syntax Clue&quot;</translation>
    </message>
    <message>
        <source>&quot;Edit Table&quot;</source>
        <translation>&quot;Edit Table&quot;</translation>
    </message>
    <message>
        <source>&quot;Edit Graph&quot;</source>
        <translation>&quot;Edit Graph&quot;</translation>
    </message>
    <message>
        <source>No results found.</source>
        <translation>No results found.</translation>
    </message>
    <message>
        <source>No more results found.</source>
        <translation>No more results found.</translation>
    </message>
    <message>
        <source>Found %1 coincidences</source>
        <translation>Found %1 coincidences</translation>
    </message>
    <message>
        <source>Document searched. Replaced </source>
        <translation>Document searched. Replaced </translation>
    </message>
    <message>
        <source> instances.</source>
        <translation> instances.</translation>
    </message>
    <message>
        <source>Invalid line number.</source>
        <translation>Invalid line number.</translation>
    </message>
</context>
<context>
    <name>EditorContextMenu</name>
    <message>
        <source>Toggle Comment</source>
        <translation>Toggle Comment</translation>
    </message>
    <message>
        <source>Syntax clue</source>
        <translation>Syntax clue</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Tool bar</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>Status bar</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Output</translation>
    </message>
    <message>
        <source>New</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Save as</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Block</translation>
    </message>
    <message>
        <source>Compile</source>
        <translation>Compile</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Run</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Execute</translation>
    </message>
    <message>
        <source>Assist</source>
        <translation>Assist</translation>
    </message>
    <message>
        <source>RUNDEF </source>
        <translation>RUNDEF </translation>
    </message>
    <message>
        <source>DEFINE </source>
        <translation>DEFINE </translation>
    </message>
    <message>
        <source>TABLE </source>
        <translation>TABLE </translation>
    </message>
    <message>
        <source>EXECUTE </source>
        <translation>EXECUTE </translation>
    </message>
    <message>
        <source>BlowUp</source>
        <translation>BlowUp</translation>
    </message>
    <message>
        <source>Wizards</source>
        <translation>Wizards</translation>
    </message>
    <message>
        <source>DEFINEs </source>
        <translation>DEFINEs </translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <source>Edit Style</source>
        <translation>Edit Style</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Table</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Graph</translation>
    </message>
</context>
<context>
    <name>EntityInfo</name>
    <message>
        <source>Code Variable: </source>
        <translation>Code Variable: </translation>
    </message>
    <message>
        <source>Entity cannot be selected</source>
        <translation>Entity cannot be selected</translation>
    </message>
    <message>
        <source>Entity has not Label Variable</source>
        <translation>Entity has not Label Variable</translation>
    </message>
    <message>
        <source>Label Variable: </source>
        <translation>Label Variable: </translation>
    </message>
    <message>
        <source>No automatic weight</source>
        <translation>No automatic weight</translation>
    </message>
    <message>
        <source>Automatic weight variable [</source>
        <translation>Automatic weight variable [</translation>
    </message>
    <message>
        <source>Virtual Entity - Mother is </source>
        <translation>Virtual Entity - Mother is </translation>
    </message>
    <message>
        <source>Number of Elements: </source>
        <translation>Number of Elements: </translation>
    </message>
</context>
<context>
    <name>EntityInfoView</name>
    <message>
        <source>Entity</source>
        <translation>Entity</translation>
    </message>
    <message>
        <source>Number of Elements</source>
        <translation>Number of Elements</translation>
    </message>
    <message>
        <source>Selected Entity</source>
        <translation>Selected Entity</translation>
    </message>
    <message>
        <source>Entity Properties</source>
        <translation>Entity Properties</translation>
    </message>
    <message>
        <source>Expand Information</source>
        <translation>Expand Information</translation>
    </message>
    <message>
        <source>Properties Documentation</source>
        <translation>Properties Documentation</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentation</translation>
    </message>
</context>
<context>
    <name>EntityPropertiesQDockWidget</name>
    <message>
        <source>Entity Properties</source>
        <translation>Entity Properties</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Data</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentation</translation>
    </message>
    <message>
        <source>Label:</source>
        <translation>Label:</translation>
    </message>
    <message>
        <source>Alias:</source>
        <translation>Alias:</translation>
    </message>
    <message>
        <source>Another name of the entity; Return stores it</source>
        <translation>Another name of the entity; Return stores it</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>Tag:</translation>
    </message>
    <message>
        <source>A number of yours, 9999 at most</source>
        <translation>A number of yours, 9999 at most</translation>
    </message>
    <message>
        <source>Code:</source>
        <translation>Code:</translation>
    </message>
    <message>
        <source>The variable that holds the code</source>
        <translation>The variable that holds the code</translation>
    </message>
    <message>
        <source>Code size:</source>
        <translation>Code size:</translation>
    </message>
    <message>
        <source>One zero for each character of the code</source>
        <translation>One zero for each character of the code</translation>
    </message>
    <message>
        <source>The variable that holds the label</source>
        <translation>The variable that holds the label</translation>
    </message>
    <message>
        <source>Weight:</source>
        <translation>Weight:</translation>
    </message>
    <message>
        <source>The variable that weights tables by itself</source>
        <translation>The variable that weights tables by itself</translation>
    </message>
    <message>
        <source>Compound:</source>
        <translation>Compound:</translation>
    </message>
    <message>
        <source>The codes from the top of the hierarchy down, joined</source>
        <translation>The codes from the top of the hierarchy down, joined</translation>
    </message>
    <message>
        <source>Disclosure:</source>
        <translation>Disclosure:</translation>
    </message>
    <message>
        <source>The variable that controls disclosure</source>
        <translation>The variable that controls disclosure</translation>
    </message>
    <message>
        <source>Elements:</source>
        <translation>Elements:</translation>
    </message>
    <message>
        <source>Number of records</source>
        <translation>Number of records</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>File:</translation>
    </message>
    <message>
        <source>Found on disk</source>
        <translation>Found on disk</translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation>Selectable</translation>
    </message>
    <message>
        <source>May be used in selections and area lists</source>
        <translation>May be used in selections and area lists</translation>
    </message>
    <message>
        <source>Virtual</source>
        <translation>Virtual</translation>
    </message>
    <message>
        <source>SensitiveEntity</source>
        <translation>SensitiveEntity</translation>
    </message>
</context>
<context>
    <name>ErrorList</name>
    <message>
        <source>Messages of the program</source>
        <translation>Messages of the program</translation>
    </message>
    <message>
        <source>Copy error list</source>
        <translation>Copy error list</translation>
    </message>
    <message>
        <source>Clear error list</source>
        <translation>Clear error list</translation>
    </message>
</context>
<context>
    <name>ExportProgress</name>
    <message>
        <source>Export</source>
        <translation>Export</translation>
    </message>
    <message>
        <source>Writing %1</source>
        <translation>Writing %1</translation>
    </message>
</context>
<context>
    <name>FileChangeNotice</name>
    <message>
        <source>The file %1 was changed by another program, and this text has changes that are not saved. Saving will replace the file.

Do you want to reload the file instead?</source>
        <translation>The file %1 was changed by another program, and this text has changes that are not saved. Saving will replace the file.

Do you want to reload the file instead?</translation>
    </message>
    <message>
        <source>The file %1 was changed by another program. Do you want to reload it?</source>
        <translation>The file %1 was changed by another program. Do you want to reload it?</translation>
    </message>
    <message>
        <source>File changed</source>
        <translation>File changed</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Reload</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Keep</translation>
    </message>
    <message>
        <source>The file %1 cannot be reloaded: %2</source>
        <translation>The file %1 cannot be reloaded: %2</translation>
    </message>
    <message>
        <source>The file %1 was removed by another program. Its text stays open here: save it to keep it.</source>
        <translation>The file %1 was removed by another program. Its text stays open here: save it to keep it.</translation>
    </message>
    <message>
        <source>The file %1 was changed by another program since it was read here. Do you want to replace it?</source>
        <translation>The file %1 was changed by another program since it was read here. Do you want to replace it?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>Archivo no válido</source>
        <translation>Archivo no válido</translation>
    </message>
    <message>
        <source>The file %1 was not found.</source>
        <translation>The file %1 was not found.</translation>
    </message>
    <message>
        <source>Please, close all the windows from the application work area before changing the dictionary</source>
        <translation>Please, close all the windows from the application work area before changing the dictionary</translation>
    </message>
</context>
<context>
    <name>FileToolBar</name>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>New</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Begin a new program, selection or map</source>
        <translation>Begin a new program, selection or map</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Open a program, selection or map</source>
        <translation>Open a program, selection or map</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programs</translation>
    </message>
    <message>
        <source>Programs in the command language</source>
        <translation>Programs in the command language</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Selections</translation>
    </message>
    <message>
        <source>Selections of areas</source>
        <translation>Selections of areas</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Maps</translation>
    </message>
    <message>
        <source>Thematic maps</source>
        <translation>Thematic maps</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>Styles</translation>
    </message>
    <message>
        <source>Table Styles</source>
        <translation>Table Styles</translation>
    </message>
    <message>
        <source>How tables look</source>
        <translation>How tables look</translation>
    </message>
    <message>
        <source>Graph Styles</source>
        <translation>Graph Styles</translation>
    </message>
    <message>
        <source>How charts look</source>
        <translation>How charts look</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Run</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Execute</translation>
    </message>
    <message>
        <source>Programs that run other programs</source>
        <translation>Programs that run other programs</translation>
    </message>
    <message>
        <source>&amp;Program</source>
        <translation>&amp;Program</translation>
    </message>
    <message>
        <source>&amp;Execute program</source>
        <translation>&amp;Execute program</translation>
    </message>
    <message>
        <source>&amp;Selection</source>
        <translation>&amp;Selection</translation>
    </message>
    <message>
        <source>&amp;Map</source>
        <translation>&amp;Map</translation>
    </message>
    <message>
        <source>&amp;Program...</source>
        <translation>&amp;Program...</translation>
    </message>
    <message>
        <source>&amp;Execute program...</source>
        <translation>&amp;Execute program...</translation>
    </message>
    <message>
        <source>&amp;Selection...</source>
        <translation>&amp;Selection...</translation>
    </message>
    <message>
        <source>&amp;Map...</source>
        <translation>&amp;Map...</translation>
    </message>
    <message>
        <source>Recent programs</source>
        <translation>Recent programs</translation>
    </message>
    <message>
        <source>Programs of the dictionary</source>
        <translation>Programs of the dictionary</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;New</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Open...</translation>
    </message>
    <message>
        <source>Kelx Command Set (*.spc)</source>
        <translation>Kelx Command Set (*.spc)</translation>
    </message>
    <message>
        <source>Error %s sending event</source>
        <translation>Error %s sending event</translation>
    </message>
    <message>
        <source>Open program</source>
        <translation>Open program</translation>
    </message>
    <message>
        <source>Open EXECUTE program</source>
        <translation>Open EXECUTE program</translation>
    </message>
</context>
<context>
    <name>FindDialog</name>
    <message>
        <source>Find</source>
        <translation>Find</translation>
    </message>
    <message>
        <source>Find what: </source>
        <translation>Find what: </translation>
    </message>
    <message>
        <source>Replace with: </source>
        <translation>Replace with: </translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Match case</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>Whole words</translation>
    </message>
    <message>
        <source>Find next</source>
        <translation>Find next</translation>
    </message>
    <message>
        <source>Find all</source>
        <translation>Find all</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Replace</translation>
    </message>
    <message>
        <source>Replace all</source>
        <translation>Replace all</translation>
    </message>
    <message>
        <source>Empty Field</source>
        <translation>Empty Field</translation>
    </message>
    <message>
        <source>Please enter a query.</source>
        <translation>Please enter a query.</translation>
    </message>
</context>
<context>
    <name>FormatDialog</name>
    <message>
        <source>View Options</source>
        <translation>View Options</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Order</translation>
    </message>
</context>
<context>
    <name>GeneralEntityTab</name>
    <message>
        <source>Label:</source>
        <translation>Label:</translation>
    </message>
    <message>
        <source>Alias:</source>
        <translation>Alias:</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>Tag:</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Initial Settings</source>
        <translation>Initial Settings</translation>
    </message>
    <message>
        <source>All preferences, the lists of recent files and the remembered folders go back to their initial values. Do you want to continue?</source>
        <translation>All preferences, the lists of recent files and the remembered folders go back to their initial values. Do you want to continue?</translation>
    </message>
    <message>
        <source>Application Language</source>
        <translation>Application Language</translation>
    </message>
    <message>
        <source>Select Language:</source>
        <translation>Select Language:</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Startup</translation>
    </message>
    <message>
        <source>Show splash form on startup</source>
        <translation>Show splash form on startup</translation>
    </message>
    <message>
        <source>Show Tips and Tricks form on startup</source>
        <translation>Show Tips and Tricks form on startup</translation>
    </message>
    <message>
        <source>Open last dictionary on starting program</source>
        <translation>Open last dictionary on starting program</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Menu Colors:</source>
        <translation>Menu Colors:</translation>
    </message>
    <message>
        <source>Maximum number of files in the button list</source>
        <translation>Maximum number of files in the button list</translation>
    </message>
    <message>
        <source>Put all settings back to those of a new installation</source>
        <translation>Put all settings back to those of a new installation</translation>
    </message>
</context>
<context>
    <name>GeneralStylePage</name>
    <message>
        <source>Comma  ( , )</source>
        <translation>Comma  ( , )</translation>
    </message>
    <message>
        <source>Period ( . )</source>
        <translation>Period ( . )</translation>
    </message>
    <message>
        <source>Space  (   )</source>
        <translation>Space  (   )</translation>
    </message>
    <message>
        <source>None</source>
        <translation>None</translation>
    </message>
    <message>
        <source>e.g. Census2024</source>
        <translation>e.g. Census2024</translation>
    </message>
    <message>
        <source>Optional description</source>
        <translation>Optional description</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Label:</source>
        <translation>Label:</translation>
    </message>
    <message>
        <source> decimal(s)</source>
        <translation> decimal(s)</translation>
    </message>
    <message>
        <source>Numbers in this style</source>
        <translation>Numbers in this style</translation>
    </message>
    <message>
        <source>Decimals:</source>
        <translation>Decimals:</translation>
    </message>
    <message>
        <source>Thousand separator:</source>
        <translation>Thousand separator:</translation>
    </message>
    <message>
        <source>Sample:</source>
        <translation>Sample:</translation>
    </message>
</context>
<context>
    <name>GeneralToolBar</name>
    <message>
        <source>Application</source>
        <translation>Application</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferences</translation>
    </message>
    <message>
        <source>Language, looks and habits of the program</source>
        <translation>Language, looks and habits of the program</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message>
        <source>Open the help pages in the browser</source>
        <translation>Open the help pages in the browser</translation>
    </message>
    <message>
        <source>About</source>
        <translation>About</translation>
    </message>
    <message>
        <source>Versions of the program</source>
        <translation>Versions of the program</translation>
    </message>
    <message>
        <source>The help pages could not be opened. You find them at %1</source>
        <translation>The help pages could not be opened. You find them at %1</translation>
    </message>
</context>
<context>
    <name>GeneralVariablelTab</name>
    <message>
        <source>Label:</source>
        <translation>Label:</translation>
    </message>
    <message>
        <source>Alias:</source>
        <translation>Alias:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Group:</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>Tag:</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Hidden</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
</context>
<context>
    <name>GotoDialog</name>
    <message>
        <source>Go</source>
        <translation>Go</translation>
    </message>
    <message>
        <source>Must enter a line number.</source>
        <translation>Must enter a line number.</translation>
    </message>
    <message>
        <source>Go To</source>
        <translation>Go To</translation>
    </message>
    <message>
        <source>Line number: </source>
        <translation>Line number: </translation>
    </message>
</context>
<context>
    <name>InfoProperties</name>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entity</translation>
    </message>
    <message>
        <source>Quick View</source>
        <translation>Quick View</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>Failed to create JSON doc.</source>
        <translation>Failed to create JSON doc.</translation>
    </message>
    <message>
        <source>JSON is not an object.</source>
        <translation>JSON is not an object.</translation>
    </message>
    <message>
        <source>JSON object is empty.</source>
        <translation>JSON object is empty.</translation>
    </message>
    <message>
        <source>The file %1 is too large to be read.</source>
        <translation>The file %1 is too large to be read.</translation>
    </message>
    <message>
        <source>Error %s sending event</source>
        <translation>Error %s sending event</translation>
    </message>
</context>
<context>
    <name>KelTreeView</name>
    <message>
        <source>A entity must be selected</source>
        <translation>A entity must be selected</translation>
    </message>
    <message>
        <source>Entities</source>
        <translation>Entities</translation>
    </message>
</context>
<context>
    <name>KelVariablesTableView</name>
    <message>
        <source>EN CONSTRUCCION- Se debe establecer si es posible borrar y el proceso a seguir</source>
        <translation>EN CONSTRUCCION- Se debe establecer si es posible borrar y el proceso a seguir</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
</context>
<context>
    <name>LocatePaths</name>
    <message>
        <source>Locate Paths: %1 of %2</source>
        <translation>Locate Paths: %1 of %2</translation>
    </message>
    <message>
        <source>Variable: </source>
        <translation>Variable: </translation>
    </message>
    <message>
        <source>Missing File: </source>
        <translation>Missing File: </translation>
    </message>
    <message>
        <source>Missing Path: </source>
        <translation>Missing Path: </translation>
    </message>
    <message>
        <source>Select Variable Path</source>
        <translation>Select Variable Path</translation>
    </message>
    <message>
        <source>New Path:</source>
        <translation>New Path:</translation>
    </message>
    <message>
        <source>Relocate</source>
        <translation>Relocate</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Leave this file missing and go on with the next</source>
        <translation>Leave this file missing and go on with the next</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Stop looking for files; what was relocated stays</source>
        <translation>Stop looking for files; what was relocated stays</translation>
    </message>
    <message>
        <source>The missing and relocated files are not the same.</source>
        <translation>The missing and relocated files are not the same.</translation>
    </message>
    <message>
        <source>The file %1 was not found.</source>
        <translation>The file %1 was not found.</translation>
    </message>
    <message>
        <source>Files (*.%1)</source>
        <translation>Files (*.%1)</translation>
    </message>
    <message>
        <source>No errors found in the database</source>
        <translation>No errors found in the database</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Save Dictionary</source>
        <translation>Save Dictionary</translation>
    </message>
    <message>
        <source>Do you want to save the changes in the dictionary?</source>
        <translation>Do you want to save the changes in the dictionary?</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Warning</translation>
    </message>
</context>
<context>
    <name>MetricReporter</name>
    <message>
        <source>Words: </source>
        <translation>Words: </translation>
    </message>
    <message>
        <source>Chars: </source>
        <translation>Chars: </translation>
    </message>
    <message>
        <source>Line: </source>
        <translation>Line: </translation>
    </message>
    <message>
        <source>Column: </source>
        <translation>Column: </translation>
    </message>
</context>
<context>
    <name>OneVariableLayout</name>
    <message>
        <source>Count</source>
        <translation>Count</translation>
    </message>
    <message>
        <source>count</source>
        <translation>count</translation>
    </message>
    <message>
        <source>Cumul%</source>
        <translation>Cumul%</translation>
    </message>
</context>
<context>
    <name>OneVariableStylePage</name>
    <message>
        <source>Show percentage column</source>
        <translation>Show percentage column</translation>
    </message>
    <message>
        <source>Show cumulative percentage column</source>
        <translation>Show cumulative percentage column</translation>
    </message>
    <message>
        <source>Show Total row</source>
        <translation>Show Total row</translation>
    </message>
    <message>
        <source>Show N/A row</source>
        <translation>Show N/A row</translation>
    </message>
    <message>
        <source>Show MV row</source>
        <translation>Show MV row</translation>
    </message>
    <message>
        <source>Default (engine order)</source>
        <translation>Default (engine order)</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Ascending</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Descending</translation>
    </message>
    <message>
        <source>Row order:</source>
        <translation>Row order:</translation>
    </message>
</context>
<context>
    <name>OpenDictionaryButtonMenu</name>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Open...</translation>
    </message>
    <message>
        <source>Choose a dictionary file</source>
        <translation>Choose a dictionary file</translation>
    </message>
    <message>
        <source>Recent dictionaries</source>
        <translation>Recent dictionaries</translation>
    </message>
</context>
<context>
    <name>OrderDialog</name>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Ascending</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Descending</translation>
    </message>
    <message>
        <source>View Options</source>
        <translation>View Options</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Order</translation>
    </message>
</context>
<context>
    <name>PrintedFile</name>
    <message>
        <source>The pages could not be written into the folder of temporary files. Its disk may be full.</source>
        <translation>The pages could not be written into the folder of temporary files. Its disk may be full.</translation>
    </message>
</context>
<context>
    <name>ProcessExecuter</name>
    <message>
        <source>compiler syntax error</source>
        <translation>compiler syntax error</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Program code is empty</source>
        <translation>Program code is empty</translation>
    </message>
    <message>
        <source>The executing program is empty</source>
        <translation>The executing program is empty</translation>
    </message>
    <message>
        <source>Execution Canceled</source>
        <translation>Execution Canceled</translation>
    </message>
    <message>
        <source>Processing</source>
        <translation>Processing</translation>
    </message>
    <message>
        <source>Time Expected: </source>
        <translation>Time Expected: </translation>
    </message>
    <message>
        <source> s - Time Elapsed: </source>
        <translation> s - Time Elapsed: </translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Execution Finished</source>
        <translation>Execution Finished</translation>
    </message>
    <message>
        <source>Creating Table</source>
        <translation>Creating Table</translation>
    </message>
    <message>
        <source>Table Created</source>
        <translation>Table Created</translation>
    </message>
    <message>
        <source>Compilation successful, no errors or warnings found</source>
        <translation>Compilation successful, no errors or warnings found</translation>
    </message>
    <message>
        <source>Compilation by block successful, no errors or warnings found</source>
        <translation>Compilation by block successful, no errors or warnings found</translation>
    </message>
    <message>
        <source>Compiling...</source>
        <translation>Compiling...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Progress of the run</translation>
    </message>
    <message>
        <source>Dicctionary Selection</source>
        <translation>Dicctionary Selection</translation>
    </message>
    <message>
        <source>The &lt;b&gt;Select at least one dictionary&lt;/b&gt; </source>
        <translation>The &lt;b&gt;Select at least one dictionary&lt;/b&gt; </translation>
    </message>
    <message>
        <source>The program was not run, since another one had not ended.</source>
        <translation>The program was not run, since another one had not ended.</translation>
    </message>
    <message>
        <source>Execution Failed</source>
        <translation>Execution Failed</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Running</translation>
    </message>
</context>
<context>
    <name>ProcessProgramSPC</name>
    <message>
        <source>Error de formato</source>
        <translation>Error de formato</translation>
    </message>
    <message>
        <source>&lt;b&gt;Apparently the format of the error text received from the KelEngine does not match the initially defined format, so it is not possible to navigate to the line of code where the error occurs&lt;/b&gt;</source>
        <translation>&lt;b&gt;Apparently the format of the error text received from the KelEngine does not match the initially defined format, so it is not possible to navigate to the line of code where the error occurs&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Apply to all open and future tabs?</source>
        <translation>Apply to all open and future tabs?</translation>
    </message>
    <message>
        <source>Word wrapping</source>
        <translation>Word wrapping</translation>
    </message>
    <message>
        <source>Auto indentation</source>
        <translation>Auto indentation</translation>
    </message>
    <message>
        <source>Font change</source>
        <translation>Font change</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Language:</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Printing</translation>
    </message>
    <message>
        <source> [Unsaved]</source>
        <translation> [Unsaved]</translation>
    </message>
</context>
<context>
    <name>ProgramActions</name>
    <message>
        <source>New</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Save As</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Print...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Exit</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Undo</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Redo</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cut</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Paste</translation>
    </message>
    <message>
        <source>Find...</source>
        <translation>Find...</translation>
    </message>
    <message>
        <source>Replace...</source>
        <translation>Replace...</translation>
    </message>
    <message>
        <source>Go To...</source>
        <translation>Go To...</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
    <message>
        <source>Time/Date</source>
        <translation>Time/Date</translation>
    </message>
    <message>
        <source>Font...</source>
        <translation>Font...</translation>
    </message>
    <message>
        <source>Auto Indent</source>
        <translation>Auto Indent</translation>
    </message>
    <message>
        <source>Word Wrap</source>
        <translation>Word Wrap</translation>
    </message>
    <message>
        <source>C</source>
        <translation>C</translation>
    </message>
    <message>
        <source>C++</source>
        <translation>C++</translation>
    </message>
    <message>
        <source>Java</source>
        <translation>Java</translation>
    </message>
    <message>
        <source>Python</source>
        <translation>Python</translation>
    </message>
    <message>
        <source>Kelx</source>
        <translation>Kelx</translation>
    </message>
    <message>
        <source>Status Bar</source>
        <translation>Status Bar</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Tool Bar</translation>
    </message>
    <message>
        <source>SyntaxClue</source>
        <translation>SyntaxClue</translation>
    </message>
    <message>
        <source>Show the available commands syntax (F8)</source>
        <translation>Show the available commands syntax (F8)</translation>
    </message>
    <message>
        <source>GoTo</source>
        <translation>GoTo</translation>
    </message>
    <message>
        <source>Go to line</source>
        <translation>Go to line</translation>
    </message>
    <message>
        <source>Compile</source>
        <translation>Compile</translation>
    </message>
    <message>
        <source>Compile the program</source>
        <translation>Compile the program</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Run</translation>
    </message>
    <message>
        <source>Run Program</source>
        <translation>Run Program</translation>
    </message>
    <message>
        <source>Splitter</source>
        <translation>Splitter</translation>
    </message>
    <message>
        <source>Show/Hide Console</source>
        <translation>Show/Hide Console</translation>
    </message>
    <message>
        <source>Close tab</source>
        <translation>Close tab</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Edit</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>View</source>
        <translation>View</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Menus of the program window</source>
        <translation>Menus of the program window</translation>
    </message>
</context>
<context>
    <name>ProgramFiles</name>
    <message>
        <source>Kelx Command Set (*.spc)</source>
        <translation>Kelx Command Set (*.spc)</translation>
    </message>
    <message>
        <source>Cannot save file: </source>
        <translation>Cannot save file: </translation>
    </message>
    <message>
        <source>Untitled document</source>
        <translation>Untitled document</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Save As</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>The file %1 is open in another tab.</source>
        <translation>The file %1 is open in another tab.</translation>
    </message>
    <message>
        <source>Document saved</source>
        <translation>Document saved</translation>
    </message>
    <message>
        <source>Do you want to save the changes to </source>
        <translation>Do you want to save the changes to </translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Unsaved changes</translation>
    </message>
    <message>
        <source>The file %1 is open in another window.</source>
        <translation>The file %1 is open in another window.</translation>
    </message>
</context>
<context>
    <name>ProgramListRun</name>
    <message>
        <source>Current Program: </source>
        <translation>Current Program: </translation>
    </message>
    <message>
        <source>Current Program :</source>
        <translation>Current Program :</translation>
    </message>
    <message>
        <source>Execution Canceled</source>
        <translation>Execution Canceled</translation>
    </message>
    <message>
        <source>Processing</source>
        <translation>Processing</translation>
    </message>
    <message>
        <source>Execution Finished</source>
        <translation>Execution Finished</translation>
    </message>
    <message>
        <source>Creating Table</source>
        <translation>Creating Table</translation>
    </message>
    <message>
        <source>Table Created</source>
        <translation>Table Created</translation>
    </message>
</context>
<context>
    <name>ProgramRunner</name>
    <message>
        <source>Compile</source>
        <translation>Compile</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Run</translation>
    </message>
    <message>
        <source>Please &lt;b&gt;open &lt;/b&gt;a program file or &lt;b&gt;write&lt;/b&gt; a command </source>
        <translation>Please &lt;b&gt;open &lt;/b&gt;a program file or &lt;b&gt;write&lt;/b&gt; a command </translation>
    </message>
    <message>
        <source>Error: </source>
        <translation>Error: </translation>
    </message>
</context>
<context>
    <name>ProgramText</name>
    <message>
        <source>The typed code is incomplete to show a %1 assistant window</source>
        <translation>The typed code is incomplete to show a %1 assistant window</translation>
    </message>
    <message>
        <source>SUGGESTION</source>
        <translation>SUGGESTION</translation>
    </message>
    <message>
        <source>DEPRECATED</source>
        <translation>DEPRECATED</translation>
    </message>
    <message>
        <source>USE</source>
        <translation>USE</translation>
    </message>
    <message>
        <source>The directory %1 used in the %2 statement doesn&apos;t exist</source>
        <translation>The directory %1 used in the %2 statement doesn&apos;t exist</translation>
    </message>
</context>
<context>
    <name>ProjectToolBar</name>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
    <message>
        <source>New</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Make a new project</source>
        <translation>Make a new project</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Open a project</source>
        <translation>Open a project</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Save the project</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Save As</translation>
    </message>
    <message>
        <source>Save the project under another name</source>
        <translation>Save the project under another name</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Project</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Show</translation>
    </message>
    <message>
        <source>Show and change what the project holds</source>
        <translation>Show and change what the project holds</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message>
        <source>Close the project</source>
        <translation>Close the project</translation>
    </message>
</context>
<context>
    <name>PropertyDock</name>
    <message>
        <source> - %1</source>
        <translation> - %1</translation>
    </message>
</context>
<context>
    <name>QCodeEditor</name>
    <message>
        <source>Program text</source>
        <translation>Program text</translation>
    </message>
</context>
<context>
    <name>QUpdater</name>
    <message>
        <source>New version has been released!</source>
        <translation>New version has been released!</translation>
    </message>
    <message>
        <source>Would you like to download the update now? Current application will be close</source>
        <translation>Would you like to download the update now? Current application will be close</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Untitled</source>
        <translation>Untitled</translation>
    </message>
    <message>
        <source>Unsaved programs</source>
        <translation>Unsaved programs</translation>
    </message>
    <message>
        <source>Kelvora X ended before these &amp;programs were saved. Restored programs open with their changes; their files stay as they are until you save.</source>
        <translation>Kelvora X ended before these &amp;programs were saved. Restored programs open with their changes; their files stay as they are until you save.</translation>
    </message>
    <message>
        <source>Programs that were not saved</source>
        <translation>Programs that were not saved</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Program</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Last change</source>
        <translation>Last change</translation>
    </message>
    <message>
        <source>State of the file</source>
        <translation>State of the file</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Folder</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restore</translation>
    </message>
    <message>
        <source>Open the ticked programs</source>
        <translation>Open the ticked programs</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Discard</translation>
    </message>
    <message>
        <source>Delete the ticked texts for good</source>
        <translation>Delete the ticked texts for good</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Later</translation>
    </message>
    <message>
        <source>Ask again when Kelvora X starts next time</source>
        <translation>Ask again when Kelvora X starts next time</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Discard</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to discard %n program(s)? The text cannot be brought back.</source>
        <translation>
            <numerusform>Do you want to discard %n program? The text cannot be brought back.</numerusform>
            <numerusform>Do you want to discard %n programs? The text cannot be brought back.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
</context>
<context>
    <name>RecoveryRow</name>
    <message>
        <source>Was never saved</source>
        <translation>Was never saved</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>The file is no longer there</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>The file cannot be read</translation>
    </message>
    <message>
        <source>The file holds the same text</source>
        <translation>The file holds the same text</translation>
    </message>
    <message>
        <source>Differs from the file</source>
        <translation>Differs from the file</translation>
    </message>
    <message>
        <source>Differs; the file was changed later</source>
        <translation>Differs; the file was changed later</translation>
    </message>
</context>
<context>
    <name>ReportSheet</name>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Database</translation>
    </message>
    <message>
        <source>Geographic Area</source>
        <translation>Geographic Area</translation>
    </message>
    <message>
        <source>Tally</source>
        <translation>Tally</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Weight</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Universal Filter</source>
        <translation>Universal Filter</translation>
    </message>
    <message>
        <source>Sorted (%1) by</source>
        <translation>Sorted (%1) by</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Ascending</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Descending</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entity</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Key</translation>
    </message>
    <message>
        <source>Crosstab</source>
        <translation>Crosstab</translation>
    </message>
    <message>
        <source>of </source>
        <translation>of </translation>
    </message>
    <message>
        <source>by </source>
        <translation>by </translation>
    </message>
    <message>
        <source>Sorted(%1) by</source>
        <translation>Sorted(%1) by</translation>
    </message>
</context>
<context>
    <name>ResultExports</name>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>XML (*.xml)</source>
        <translation>XML (*.xml)</translation>
    </message>
    <message>
        <source>PDF (*.pdf)</source>
        <translation>PDF (*.pdf)</translation>
    </message>
    <message>
        <source>CSV (*.csv)</source>
        <translation>CSV (*.csv)</translation>
    </message>
    <message>
        <source>Select a table</source>
        <translation>Select a table</translation>
    </message>
    <message>
        <source>Export completed</source>
        <translation>Export completed</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Save File</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Select Folder</translation>
    </message>
    <message>
        <source>EXCEL (*.xlsx)</source>
        <translation>EXCEL (*.xlsx)</translation>
    </message>
</context>
<context>
    <name>ResultFacts</name>
    <message>
        <source>Ascending</source>
        <translation>Ascending</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Descending</translation>
    </message>
    <message>
        <source>Sorted</source>
        <translation>Sorted</translation>
    </message>
    <message>
        <source>by</source>
        <translation>by</translation>
    </message>
    <message>
        <source>Tally</source>
        <translation>Tally</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Weight</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Universal Filter</source>
        <translation>Universal Filter</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Title</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Database</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entity</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Key</translation>
    </message>
    <message>
        <source>of</source>
        <translation>of</translation>
    </message>
    <message>
        <source>Geographic Area</source>
        <translation>Geographic Area</translation>
    </message>
    <message>
        <source>Crosstab</source>
        <translation>Crosstab</translation>
    </message>
</context>
<context>
    <name>ResultFaults</name>
    <message>
        <source>%1 was not written: cancelled</source>
        <translation>%1 was not written: cancelled</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 was not written: %2</translation>
    </message>
</context>
<context>
    <name>ResultsManager</name>
    <message>
        <source>Results</source>
        <translation>Results</translation>
    </message>
    <message>
        <source>CSV (Label as header)</source>
        <translation>CSV (Label as header)</translation>
    </message>
    <message>
        <source>Export as CSV (Label as header)</source>
        <translation>Export as CSV (Label as header)</translation>
    </message>
    <message>
        <source>CSV (Name as header)</source>
        <translation>CSV (Name as header)</translation>
    </message>
    <message>
        <source>Export as CSV (Name as header)</source>
        <translation>Export as CSV (Name as header)</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>Export as JSON</source>
        <translation>Export as JSON</translation>
    </message>
    <message>
        <source>XLSX</source>
        <translation>XLSX</translation>
    </message>
    <message>
        <source>Export as XLSX</source>
        <translation>Export as XLSX</translation>
    </message>
    <message>
        <source>XML</source>
        <translation>XML</translation>
    </message>
    <message>
        <source>Export as XML</source>
        <translation>Export as XML</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Export as PDF</source>
        <translation>Export as PDF</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>View options</source>
        <translation>View options</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Copy the selected cells</source>
        <translation>Copy the selected cells</translation>
    </message>
    <message>
        <source>No table has been selected.</source>
        <translation>No table has been selected.</translation>
    </message>
    <message>
        <source>Table result was exported directly.</source>
        <translation>Table result was exported directly.</translation>
    </message>
    <message>
        <source>No cells are selected</source>
        <translation>No cells are selected</translation>
    </message>
    <message>
        <source>Copied to clipboard</source>
        <translation>Copied to clipboard</translation>
    </message>
    <message>
        <source>Too many cells to copy; an export takes them all</source>
        <translation>Too many cells to copy; an export takes them all</translation>
    </message>
    <message>
        <source>List</source>
        <translation>List</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Table</translation>
    </message>
    <message>
        <source>No table is shown.
Run a program, or choose a table in the tree.</source>
        <translation>No table is shown.
Run a program, or choose a table in the tree.</translation>
    </message>
    <message>
        <source>Runs and their tables</source>
        <translation>Runs and their tables</translation>
    </message>
    <message>
        <source>Cells of the table</source>
        <translation>Cells of the table</translation>
    </message>
    <message>
        <source>Report of the table</source>
        <translation>Report of the table</translation>
    </message>
    <message>
        <source>Exports and options</source>
        <translation>Exports and options</translation>
    </message>
    <message numerus="yes">
        <source>(and %n more)</source>
        <translation>
            <numerusform>(and %n more)</numerusform>
            <numerusform>(and %n more)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ResultsTreeViewContextMenu</name>
    <message>
        <source>Select all</source>
        <translation>Select all</translation>
    </message>
    <message>
        <source>Deselect all</source>
        <translation>Deselect all</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message>
        <source>Export selected</source>
        <translation>Export selected</translation>
    </message>
    <message>
        <source>CSV</source>
        <translation>CSV</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>EXCEL</source>
        <translation>EXCEL</translation>
    </message>
    <message>
        <source>XML</source>
        <translation>XML</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
</context>
<context>
    <name>RibbonHost</name>
    <message>
        <source>Tabs or windows in the work area</source>
        <translation>Tabs or windows in the work area</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferences</translation>
    </message>
</context>
<context>
    <name>RibbonPages</name>
    <message>
        <source>  PROJECT  </source>
        <translation>  PROJECT  </translation>
    </message>
    <message>
        <source>  DICTIONARY  </source>
        <translation>  DICTIONARY  </translation>
    </message>
    <message>
        <source>  FILE  </source>
        <translation>  FILE  </translation>
    </message>
    <message>
        <source>  BASIC STATISTICS  </source>
        <translation>  BASIC STATISTICS  </translation>
    </message>
    <message>
        <source>  EASY INDICATORS  </source>
        <translation>  EASY INDICATORS  </translation>
    </message>
    <message>
        <source>  WINDOW  </source>
        <translation>  WINDOW  </translation>
    </message>
    <message>
        <source>  GENERAL  </source>
        <translation>  GENERAL  </translation>
    </message>
</context>
<context>
    <name>SelectorLanguageDlg</name>
    <message>
        <source>Language</source>
        <translation>Language</translation>
    </message>
    <message>
        <source>Select Language</source>
        <translation>Select Language</translation>
    </message>
</context>
<context>
    <name>SeveralVariablesStylePage</name>
    <message>
        <source>Show N/A rows/columns</source>
        <translation>Show N/A rows/columns</translation>
    </message>
    <message>
        <source>Show MV rows/columns</source>
        <translation>Show MV rows/columns</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Default</translation>
    </message>
    <message>
        <source>3-variable matrix by first variable</source>
        <translation>3-variable matrix by first variable</translation>
    </message>
    <message>
        <source>3-variable layout:</source>
        <translation>3-variable layout:</translation>
    </message>
</context>
<context>
    <name>SheetFrame</name>
    <message>
        <source>Texts were cut off after %1 characters, which is all that a cell holds</source>
        <translation>Texts were cut off after %1 characters, which is all that a cell holds</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>Census and survey microdata: browse a database, make tables, charts and maps.</source>
        <translation>Census and survey microdata: browse a database, make tables, charts and maps.</translation>
    </message>
    <message>
        <source>Open Dictionary...</source>
        <translation>Open Dictionary...</translation>
    </message>
    <message>
        <source>Choose a dictionary file</source>
        <translation>Choose a dictionary file</translation>
    </message>
    <message>
        <source>Recent dictionaries</source>
        <translation>Recent dictionaries</translation>
    </message>
    <message>
        <source>Select an entity in the tree to see its variables.</source>
        <translation>Select an entity in the tree to see its variables.</translation>
    </message>
    <message>
        <source>Entities of the dictionary</source>
        <translation>Entities of the dictionary</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entity</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Records</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
</context>
<context>
    <name>StatisticalToolBar</name>
    <message>
        <source>Universe</source>
        <translation>Universe</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Limit the cases by an expression</source>
        <translation>Limit the cases by an expression</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selection</translation>
    </message>
    <message>
        <source>Limit the areas by a selection</source>
        <translation>Limit the areas by a selection</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Summary</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistics</translation>
    </message>
    <message>
        <source>Key figures of a variable</source>
        <translation>Key figures of a variable</translation>
    </message>
    <message>
        <source>Areas</source>
        <translation>Areas</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Count</translation>
    </message>
    <message>
        <source>Count the elements of an entity by area</source>
        <translation>Count the elements of an entity by area</translation>
    </message>
    <message>
        <source>Arealist</source>
        <translation>Arealist</translation>
    </message>
    <message>
        <source>List figures of variables by area</source>
        <translation>List figures of variables by area</translation>
    </message>
    <message>
        <source>View</source>
        <translation>View</translation>
    </message>
    <message>
        <source>See the values case by case</source>
        <translation>See the values case by case</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tables</translation>
    </message>
    <message>
        <source>Frequencies</source>
        <translation>Frequencies</translation>
    </message>
    <message>
        <source>Frequencies of variables</source>
        <translation>Frequencies of variables</translation>
    </message>
    <message>
        <source>Crosstab</source>
        <translation>Crosstab</translation>
    </message>
    <message>
        <source>Tables of two or more variables</source>
        <translation>Tables of two or more variables</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>Functions</translation>
    </message>
    <message>
        <source>Averages, medians, maxima and minima</source>
        <translation>Averages, medians, maxima and minima</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Properties of a variable</source>
        <translation>Properties of a variable</translation>
    </message>
    <message>
        <source>Output Summary</source>
        <translation>Output Summary</translation>
    </message>
    <message>
        <source>All results so far</source>
        <translation>All results so far</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Progress</source>
        <translation>Progress</translation>
    </message>
    <message>
        <source>Open dictionary</source>
        <translation>Open dictionary</translation>
    </message>
</context>
<context>
    <name>SyntaxClue</name>
    <message>
        <source>Commands</source>
        <translation>Commands</translation>
    </message>
</context>
<context>
    <name>TabDialogVariableProperties</name>
    <message>
        <source>Properties of %1</source>
        <translation>Properties of %1</translation>
    </message>
    <message>
        <source>Variable definition has been modified. Save changes?
</source>
        <translation>Variable definition has been modified. Save changes?
</translation>
    </message>
</context>
<context>
    <name>TableMetadata</name>
    <message>
        <source>All Database</source>
        <translation>All Database</translation>
    </message>
    <message numerus="yes">
        <source>%n cell(s) hidden to protect persons</source>
        <translation>
            <numerusform>%n cell hidden to protect persons</numerusform>
            <numerusform>%n cells hidden to protect persons</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TableStyleEditorDialog</name>
    <message>
        <source>Table Style Editor</source>
        <translation>Table Style Editor</translation>
    </message>
    <message>
        <source>New Table Style</source>
        <translation>New Table Style</translation>
    </message>
    <message>
        <source>The file %1 cannot be read as a table style. What is saved here becomes a new file.</source>
        <translation>The file %1 cannot be read as a table style. What is saved here becomes a new file.</translation>
    </message>
    <message>
        <source>This file has settings of an older form, which do not show here. Once it is saved, tables follow the settings below.</source>
        <translation>This file has settings of an older form, which do not show here. Once it is saved, tables follow the settings below.</translation>
    </message>
    <message>
        <source>Table Style — %1</source>
        <translation>Table Style — %1</translation>
    </message>
    <message>
        <source>Sections of the style</source>
        <translation>Sections of the style</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Frequency (1 Var)</source>
        <translation>Frequency (1 Var)</translation>
    </message>
    <message>
        <source>Frequency (Multi Var)</source>
        <translation>Frequency (Multi Var)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Save As…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message>
        <source>Save Table Style</source>
        <translation>Save Table Style</translation>
    </message>
    <message>
        <source>Table Style (*.json);;All Files (*)</source>
        <translation>Table Style (*.json);;All Files (*)</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Save Error</translation>
    </message>
    <message>
        <source>Could not write file:
%1</source>
        <translation>Could not write file:
%1</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Unsaved changes</translation>
    </message>
    <message>
        <source>The changes to this table style are not saved. Do you want to discard them?</source>
        <translation>The changes to this table style are not saved. Do you want to discard them?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Discard</translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation>Keep Editing</translation>
    </message>
</context>
<context>
    <name>TableStylesButtonMenu</name>
    <message>
        <source>Table style saved.

No program file is currently active.
Add this line inside the DEFINE block of your .spc:

    TABLESTYLE &quot;%1&quot;</source>
        <translation>Table style saved.

No program file is currently active.
Add this line inside the DEFINE block of your .spc:

    TABLESTYLE &quot;%1&quot;</translation>
    </message>
    <message>
        <source>TABLESTYLE line inserted into:
%1</source>
        <translation>TABLESTYLE line inserted into:
%1</translation>
    </message>
    <message>
        <source>Table style saved.
Could not update program file.
Add this line manually inside the DEFINE block:

    TABLESTYLE &quot;%1&quot;</source>
        <translation>Table style saved.
Could not update program file.
Add this line manually inside the DEFINE block:

    TABLESTYLE &quot;%1&quot;</translation>
    </message>
    <message>
        <source>New</source>
        <translation>New</translation>
    </message>
    <message>
        <source>Make a table style and name it in the program in front</source>
        <translation>Make a table style and name it in the program in front</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>Change a table style and name it in the program in front</source>
        <translation>Change a table style and name it in the program in front</translation>
    </message>
    <message>
        <source>Open Table Style</source>
        <translation>Open Table Style</translation>
    </message>
    <message>
        <source>Table Style (*.json);;All Files (*)</source>
        <translation>Table Style (*.json);;All Files (*)</translation>
    </message>
</context>
<context>
    <name>TecnicalVariableTab</name>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Decimals</source>
        <translation>Decimals</translation>
    </message>
    <message>
        <source>No applicable</source>
        <translation>No applicable</translation>
    </message>
    <message>
        <source>Missing value</source>
        <translation>Missing value</translation>
    </message>
    <message>
        <source>Thecnical specification</source>
        <translation>Thecnical specification</translation>
    </message>
</context>
<context>
    <name>TextFile</name>
    <message>
        <source>This is a device or a pipe, not a file.</source>
        <translation>This is a device or a pipe, not a file.</translation>
    </message>
    <message>
        <source>This is not a text file: line %1 has a null byte.</source>
        <translation>This is not a text file: line %1 has a null byte.</translation>
    </message>
    <message>
        <source>The file is not encoded in UTF-8: line %1 has other bytes. Convert it to UTF-8 to open it here.</source>
        <translation>The file is not encoded in UTF-8: line %1 has other bytes. Convert it to UTF-8 to open it here.</translation>
    </message>
    <message>
        <source>The file is too large to be read (beyond 256 MB).</source>
        <translation>The file is too large to be read (beyond 256 MB).</translation>
    </message>
</context>
<context>
    <name>TfrmDictionary</name>
    <message>
        <source>Dictionary</source>
        <translation>Dictionary</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>Invalid Dictionary</source>
        <translation>Invalid Dictionary</translation>
    </message>
    <message>
        <source>Error validating Dictionary:</source>
        <translation>Error validating Dictionary:</translation>
    </message>
    <message>
        <source>Dictionary Loaded</source>
        <translation>Dictionary Loaded</translation>
    </message>
    <message>
        <source>Some variable and/or entity paths could not be found!
Please, press Locate button in the Dictionary ToolBar</source>
        <translation>Some variable and/or entity paths could not be found!
Please, press Locate button in the Dictionary ToolBar</translation>
    </message>
    <message>
        <source>Saving...</source>
        <translation>Saving...</translation>
    </message>
    <message>
        <source>Dictionary saved</source>
        <translation>Dictionary saved</translation>
    </message>
    <message>
        <source>Save file</source>
        <translation>Save file</translation>
    </message>
    <message>
        <source>Files (*%1)</source>
        <translation>Files (*%1)</translation>
    </message>
    <message>
        <source>Please, close all the windows from the application work area before exiting from the project</source>
        <translation>Please, close all the windows from the application work area before exiting from the project</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirm</translation>
    </message>
    <message>
        <source>Dictionary has been modified. Save modifications?</source>
        <translation>Dictionary has been modified. Save modifications?</translation>
    </message>
</context>
<context>
    <name>TfrmProperties</name>
    <message>
        <source>Confirm</source>
        <translation>Confirm</translation>
    </message>
    <message>
        <source>Entity definition has been modified. Save changes?</source>
        <translation>Entity definition has been modified. Save changes?</translation>
    </message>
    <message>
        <source>Variable definition has been modified. Save changes?
</source>
        <translation>Variable definition has been modified. Save changes?
</translation>
    </message>
    <message>
        <source>The variable %1 is not in the dictionary any more. Your changes of it were not saved.</source>
        <translation>The variable %1 is not in the dictionary any more. Your changes of it were not saved.</translation>
    </message>
</context>
<context>
    <name>TreeViewContextMenu</name>
    <message>
        <source>Quick View</source>
        <translation>Quick View</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Properties</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Print</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistics</translation>
    </message>
    <message>
        <source>&lt;b&gt;Construction: Statistics variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Construction: Statistics variable context menu &lt;/b&gt; </translation>
    </message>
    <message>
        <source>View</source>
        <translation>View</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: View context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Contruction: View context menu &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Hide All Variables</source>
        <translation>Hide All Variables</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Hide All Variables context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Contruction: Hide All Variables context menu &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Unhide All Variables</source>
        <translation>Unhide All Variables</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Unhide All Variables from context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Contruction: Unhide All Variables from context menu &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation>Selectable</translation>
    </message>
    <message>
        <source>Printing is not available yet</source>
        <translation>Printing is not available yet</translation>
    </message>
</context>
<context>
    <name>UIInvoker</name>
    <message>
        <source>Show the password</source>
        <translation>Show the password</translation>
    </message>
    <message>
        <source>Enter password</source>
        <translation>Enter password</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Dictionary password</source>
        <translation>Dictionary password</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>Dictionary</translation>
    </message>
    <message>
        <source>Select data folder to</source>
        <translation>Select data folder to</translation>
    </message>
</context>
<context>
    <name>Validate</name>
    <message>
        <source>The typed character string has a length greater than 50</source>
        <translation>The typed character string has a length greater than 50</translation>
    </message>
    <message>
        <source>The typed character string already exists as a group name of </source>
        <translation>The typed character string already exists as a group name of </translation>
    </message>
    <message>
        <source>The typed character string already exists and it is the entity </source>
        <translation>The typed character string already exists and it is the entity </translation>
    </message>
    <message>
        <source>The typed character string already exists as entity alias of </source>
        <translation>The typed character string already exists as entity alias of </translation>
    </message>
    <message>
        <source>The typed character string already exists as a variable name: </source>
        <translation>The typed character string already exists as a variable name: </translation>
    </message>
    <message>
        <source>The typed character string already exists as variable alias of </source>
        <translation>The typed character string already exists as variable alias of </translation>
    </message>
    <message>
        <source>The typed character string is empty</source>
        <translation>The typed character string is empty</translation>
    </message>
    <message>
        <source>The typed character string is a Kelvora reserved word</source>
        <translation>The typed character string is a Kelvora reserved word</translation>
    </message>
    <message>
        <source>The typed character string contains blanks</source>
        <translation>The typed character string contains blanks</translation>
    </message>
    <message>
        <source>The typed character string contains invalid characters, such as accents or special symbols</source>
        <translation>The typed character string contains invalid characters, such as accents or special symbols</translation>
    </message>
    <message>
        <source>The variable could not be renamed, it is not a local variable</source>
        <translation>The variable could not be renamed, it is not a local variable</translation>
    </message>
</context>
<context>
    <name>VarValueLabelDiccionaryModel</name>
    <message>
        <source>The category &quot;%1&quot; has no code</source>
        <translation>The category &quot;%1&quot; has no code</translation>
    </message>
    <message>
        <source>The code %1 stands more than once in the table</source>
        <translation>The code %1 stands more than once in the table</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
</context>
<context>
    <name>VariableDiccionaryModel</name>
    <message>
        <source>Type: %1</source>
        <translation>Type: %1</translation>
    </message>
    <message>
        <source>Alias: %1</source>
        <translation>Alias: %1</translation>
    </message>
    <message>
        <source>File not found: %1</source>
        <translation>File not found: %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Tag</translation>
    </message>
</context>
<context>
    <name>VariableInfoView</name>
    <message>
        <source>Name: </source>
        <translation>Name: </translation>
    </message>
    <message>
        <source>Label: </source>
        <translation>Label: </translation>
    </message>
    <message>
        <source>Alias: </source>
        <translation>Alias: </translation>
    </message>
    <message>
        <source>Group: </source>
        <translation>Group: </translation>
    </message>
    <message>
        <source>Tag: </source>
        <translation>Tag: </translation>
    </message>
    <message>
        <source>Type: </source>
        <translation>Type: </translation>
    </message>
    <message>
        <source>Min: </source>
        <translation>Min: </translation>
    </message>
    <message>
        <source>Max: </source>
        <translation>Max: </translation>
    </message>
    <message>
        <source>NotApp: </source>
        <translation>NotApp: </translation>
    </message>
    <message>
        <source>Missing: </source>
        <translation>Missing: </translation>
    </message>
    <message>
        <source>Variable Properties</source>
        <translation>Variable Properties</translation>
    </message>
    <message>
        <source>Variable Categories</source>
        <translation>Variable Categories</translation>
    </message>
    <message>
        <source>Properties Documentation</source>
        <translation>Properties Documentation</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentation</translation>
    </message>
</context>
<context>
    <name>VariablePropertiesQDockWidget</name>
    <message>
        <source>Error %1 sending event</source>
        <translation>Error %1 sending event</translation>
    </message>
    <message>
        <source>Variable Properties</source>
        <translation>Variable Properties</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentation</translation>
    </message>
    <message>
        <source>Label:</source>
        <translation>Label:</translation>
    </message>
    <message>
        <source>Alias:</source>
        <translation>Alias:</translation>
    </message>
    <message>
        <source>Another name of the variable; Return stores it</source>
        <translation>Another name of the variable; Return stores it</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Group:</translation>
    </message>
    <message>
        <source>Variables of one group belong together; Return stores it</source>
        <translation>Variables of one group belong together; Return stores it</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>Tag:</translation>
    </message>
    <message>
        <source>A number of yours, 9999 at most</source>
        <translation>A number of yours, 9999 at most</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Hidden</translation>
    </message>
    <message>
        <source>Marks the variable as hidden in lists</source>
        <translation>Marks the variable as hidden in lists</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Variable Categories</source>
        <translation>Variable Categories</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Min</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max</translation>
    </message>
    <message>
        <source>No applicable</source>
        <translation>No applicable</translation>
    </message>
    <message>
        <source>Missing value</source>
        <translation>Missing value</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>File Name</translation>
    </message>
    <message>
        <source>Found on Disk</source>
        <translation>Found on Disk</translation>
    </message>
    <message>
        <source>Technical Spec.</source>
        <translation>Technical Spec.</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Range</translation>
    </message>
    <message>
        <source>Kelvora native file format</source>
        <translation>Kelvora native file format</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Save changes</translation>
    </message>
</context>
<context>
    <name>VariablesContextMenu</name>
    <message>
        <source>Quick View</source>
        <translation>Quick View</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Properties</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Rename</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Select All</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequency</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistics</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Statistics variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Contruction: Statistics variable context menu &lt;/b&gt; </translation>
    </message>
    <message>
        <source>View</source>
        <translation>View</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: View variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Contruction: View variable context menu &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Mark as hidden</source>
        <translation>Mark as hidden</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Mark as hidden variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Contruction: Mark as hidden variable context menu &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Unmark as hidden</source>
        <translation>Unmark as hidden</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Unmark as hidden variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Contruction: Unmark as hidden variable context menu &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>Group Name</source>
        <translation>Group Name</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group Frequency variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Contruction: Group Frequency variable context menu &lt;/b&gt; </translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group Statisitcs variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Contruction: Group Statisitcs variable context menu &lt;/b&gt; </translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group View variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Contruction: Group View variable context menu &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Mark hidden</source>
        <translation>Mark hidden</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group Mark as hidden variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Contruction: Group Mark as hidden variable context menu &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Unmark hidden</source>
        <translation>Unmark hidden</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group unmark as hidden variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Contruction: Group unmark as hidden variable context menu &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Confirmation screen</source>
        <translation>Confirmation screen</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the variable(s)?</source>
        <translation>Are you sure you want to delete the variable(s)?</translation>
    </message>
    <message>
        <source>The variable could not be deleted, it is not a local variable</source>
        <translation>The variable could not be deleted, it is not a local variable</translation>
    </message>
</context>
<context>
    <name>VariablesPane</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>Filter...</source>
        <translation>Filter...</translation>
    </message>
    <message>
        <source>Enter a filter term, you can filter by name, alias, group, label or tag</source>
        <translation>Enter a filter term, you can filter by name, alias, group, label or tag</translation>
    </message>
    <message>
        <source>Filter of the variables</source>
        <translation>Filter of the variables</translation>
    </message>
    <message>
        <source>Variables shown</source>
        <translation>Variables shown</translation>
    </message>
</context>
<context>
    <name>WaitingSpinnerWidget</name>
    <message>
        <source>Busy</source>
        <translation>Busy</translation>
    </message>
</context>
<context>
    <name>WindowToolBar</name>
    <message>
        <source>Tabs</source>
        <translation>Tabs</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restore</translation>
    </message>
    <message>
        <source>Show the windows as tabs again</source>
        <translation>Show the windows as tabs again</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Arrange</translation>
    </message>
    <message>
        <source>Tile vertical</source>
        <translation>Tile vertical</translation>
    </message>
    <message>
        <source>Place the windows side by side</source>
        <translation>Place the windows side by side</translation>
    </message>
    <message>
        <source>Tile horizontal</source>
        <translation>Tile horizontal</translation>
    </message>
    <message>
        <source>Place the windows above one another</source>
        <translation>Place the windows above one another</translation>
    </message>
    <message>
        <source>Cascade</source>
        <translation>Cascade</translation>
    </message>
    <message>
        <source>Let the windows overlap</source>
        <translation>Let the windows overlap</translation>
    </message>
    <message>
        <source>Minimize All</source>
        <translation>Minimize All</translation>
    </message>
    <message>
        <source>Minimize all windows</source>
        <translation>Minimize all windows</translation>
    </message>
    <message>
        <source>Arrange Icons</source>
        <translation>Arrange Icons</translation>
    </message>
    <message>
        <source>Line up the minimized windows at the bottom</source>
        <translation>Line up the minimized windows at the bottom</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Results</translation>
    </message>
    <message>
        <source>Show the tables made so far</source>
        <translation>Show the tables made so far</translation>
    </message>
</context>
<context>
    <name>WorkbookError</name>
    <message>
        <source>there is no room for the sheet %1</source>
        <translation>there is no room for the sheet %1</translation>
    </message>
    <message>
        <source>The workbook can&apos;t be written: %1.</source>
        <translation>The workbook can&apos;t be written: %1.</translation>
    </message>
    <message>
        <source>it did not reach the disk as a whole; is there enough space?</source>
        <translation>it did not reach the disk as a whole; is there enough space?</translation>
    </message>
    <message>
        <source>%1 needs %2 rows, more than a sheet of a workbook has. Export it as CSV.</source>
        <translation>%1 needs %2 rows, more than a sheet of a workbook has. Export it as CSV.</translation>
    </message>
    <message>
        <source>%1 needs %2 columns, more than a sheet of a workbook has. Export it as CSV.</source>
        <translation>%1 needs %2 columns, more than a sheet of a workbook has. Export it as CSV.</translation>
    </message>
    <message>
        <source>The file that is there is no XLSX workbook. Choose another name, or replace the file.</source>
        <translation>The file that is there is no XLSX workbook. Choose another name, or replace the file.</translation>
    </message>
    <message>
        <source>The workbook that is there is protected by a password or in an older format. Choose another name, or replace the file.</source>
        <translation>The workbook that is there is protected by a password or in an older format. Choose another name, or replace the file.</translation>
    </message>
    <message>
        <source>The workbook that is there is kept as Strict Open XML. Save it as a usual workbook first, or choose another name.</source>
        <translation>The workbook that is there is kept as Strict Open XML. Save it as a usual workbook first, or choose another name.</translation>
    </message>
    <message>
        <source>The workbook that is there is signed; another sheet would break the signature. Choose another name.</source>
        <translation>The workbook that is there is signed; another sheet would break the signature. Choose another name.</translation>
    </message>
    <message>
        <source>The workbook is open in another program. Close it there first. (If it is not, remove the file %1.)</source>
        <translation>The workbook is open in another program. Close it there first. (If it is not, remove the file %1.)</translation>
    </message>
    <message>
        <source>The workbook that is there is damaged (%1). Choose another name, or replace the file.</source>
        <translation>The workbook that is there is damaged (%1). Choose another name, or replace the file.</translation>
    </message>
    <message>
        <source>The workbook that is there can&apos;t take more sheets (%1 is too large). Choose another name.</source>
        <translation>The workbook that is there can&apos;t take more sheets (%1 is too large). Choose another name.</translation>
    </message>
</context>
<context>
    <name>XmlDicxDictionary</name>
    <message>
        <source>Error by opening the dictionary file</source>
        <translation>Error by opening the dictionary file</translation>
    </message>
    <message>
        <source>Error opening dictionary [%1]</source>
        <translation>Error opening dictionary [%1]</translation>
    </message>
    <message>
        <source> [%1]
</source>
        <translation> [%1]
</translation>
    </message>
    <message>
        <source>File [%2] not found</source>
        <translation>File [%2] not found</translation>
    </message>
    <message>
        <source>Do you want to located?</source>
        <translation>Do you want to located?</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirm</translation>
    </message>
    <message>
        <source>The same answer for the rest</source>
        <translation>The same answer for the rest</translation>
    </message>
    <message>
        <source>The files relocation for *.dicx files is not yet supported in KelX</source>
        <translation>The files relocation for *.dicx files is not yet supported in KelX</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entity</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message numerus="yes">
        <source>(and %n more)</source>
        <translation>
            <numerusform>(and %n more)</numerusform>
            <numerusform>(and %n more)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tt::Page</name>
    <message>
        <source>Scroll back</source>
        <translation>Scroll back</translation>
    </message>
    <message>
        <source>Scroll forward</source>
        <translation>Scroll forward</translation>
    </message>
</context>
<context>
    <name>tt::TabToolbar</name>
    <message>
        <source>Ribbon</source>
        <translation>Ribbon</translation>
    </message>
    <message>
        <source>Show the ribbon</source>
        <translation>Show the ribbon</translation>
    </message>
    <message>
        <source>Minimize the ribbon</source>
        <translation>Minimize the ribbon</translation>
    </message>
</context>
</TS>
