<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en" sourcelanguage="en">
<context>
    <name>DictionaryBrowser</name>
    <message>
        <source>Value labels</source>
        <translation>Value labels</translation>
    </message>
    <message>
        <source>Value labels of %1</source>
        <translation>Value labels of %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 of %2</translation>
    </message>
    <message>
        <source>No dictionary is open. Choose File &gt; Open Dictionary.</source>
        <translation>No dictionary is open. Choose File &gt; Open Dictionary.</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Filter:</translation>
    </message>
    <message>
        <source>Name, label or group</source>
        <translation>Name, label or group</translation>
    </message>
    <message>
        <source>Show the variables whose name, label or group holds this text</source>
        <translation>Show the variables whose name, label or group holds this text</translation>
    </message>
    <message>
        <source>Filter of the variables</source>
        <translation>Filter of the variables</translation>
    </message>
    <message>
        <source>Entities</source>
        <translation>Entities</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
</context>
<context>
    <name>EntityTreeModel</name>
    <message>
        <source>Weight: %1</source>
        <translation>Weight: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n variable(s)</source>
        <translation>
            <numerusform>%n variable</numerusform>
            <numerusform>%n variables</numerusform>
        </translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entity</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Records</translation>
    </message>
    <message>
        <source>File not found: %1</source>
        <translation>File not found: %1</translation>
    </message>
</context>
<context>
    <name>FrequencyTable</name>
    <message>
        <source>Unit of count: %1</source>
        <translation>Unit of count: %1</translation>
    </message>
    <message>
        <source>Not weighted</source>
        <translation>Not weighted</translation>
    </message>
    <message>
        <source>Weight: %1</source>
        <translation>Weight: %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filter: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n cell(s) hidden to protect persons</source>
        <translation>
            <numerusform>%n cell hidden to protect persons</numerusform>
            <numerusform>%n cells hidden to protect persons</numerusform>
        </translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Missing</translation>
    </message>
    <message>
        <source>Not applicable</source>
        <translation>Not applicable</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Count</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Percent</translation>
    </message>
    <message>
        <source>Weighted count</source>
        <translation>Weighted count</translation>
    </message>
</context>
<context>
    <name>FrequencyView</name>
    <message>
        <source>No results yet</source>
        <translation>No results yet</translation>
    </message>
    <message>
        <source>Select a variable and choose Frequency (F9).</source>
        <translation>Select a variable and choose Frequency (F9).</translation>
    </message>
    <message>
        <source>Copy Table</source>
        <translation>Copy Table</translation>
    </message>
    <message>
        <source>Frequency table</source>
        <translation>Frequency table</translation>
    </message>
</context>
<context>
    <name>MainActions</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;File</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;View</translation>
    </message>
    <message>
        <source>&amp;Statistics</source>
        <translation>&amp;Statistics</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Help</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Tool bar</translation>
    </message>
    <message>
        <source>&amp;Open Dictionary...</source>
        <translation>&amp;Open Dictionary...</translation>
    </message>
    <message>
        <source>Open a dictionary</source>
        <translation>Open a dictionary</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>E&amp;xit</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>Close the program</translation>
    </message>
    <message>
        <source>&amp;Find Variable</source>
        <translation>&amp;Find Variable</translation>
    </message>
    <message>
        <source>Go to the filter of the variables</source>
        <translation>Go to the filter of the variables</translation>
    </message>
    <message>
        <source>Value &amp;Labels</source>
        <translation>Value &amp;Labels</translation>
    </message>
    <message>
        <source>Show the labels of the selected variable</source>
        <translation>Show the labels of the selected variable</translation>
    </message>
    <message>
        <source>F&amp;requency</source>
        <translation>F&amp;requency</translation>
    </message>
    <message>
        <source>Count the categories of the selected variable</source>
        <translation>Count the categories of the selected variable</translation>
    </message>
    <message>
        <source>&amp;About Kelvora X</source>
        <translation>&amp;About Kelvora X</translation>
    </message>
    <message>
        <source>Version of the program and of its engine</source>
        <translation>Version of the program and of its engine</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>and %1 more</source>
        <translation>and %1 more</translation>
    </message>
    <message>
        <source>Open Dictionary</source>
        <translation>Open Dictionary</translation>
    </message>
    <message>
        <source>Dictionaries (*.kxdb *.dicx *.KXDB *.DICX)</source>
        <translation>Dictionaries (*.kxdb *.dicx *.KXDB *.DICX)</translation>
    </message>
    <message>
        <source>Archivo no válido</source>
        <translation>Invalid file</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Loading...</translation>
    </message>
    <message>
        <source>Dictionary Loaded</source>
        <translation>Dictionary Loaded</translation>
    </message>
    <message>
        <source>Some variable and/or entity paths could not be found!</source>
        <translation>Some variable and/or entity paths could not be found!</translation>
    </message>
    <message>
        <source>The dictionary was not opened</source>
        <translation>The dictionary was not opened</translation>
    </message>
    <message>
        <source>Running...</source>
        <translation>Running...</translation>
    </message>
    <message>
        <source>The program has errors</source>
        <translation>The program has errors</translation>
    </message>
    <message>
        <source>Finished in %1 s</source>
        <translation>Finished in %1 s</translation>
    </message>
    <message>
        <source>Kelvora X, a workbench for census microdata.

Program version: %1
Engine version: %2</source>
        <translation>Kelvora X, a workbench for census microdata.

Program version: %1
Engine version: %2</translation>
    </message>
    <message>
        <source>Save Dictionary</source>
        <translation>Save Dictionary</translation>
    </message>
    <message>
        <source>Do you want to save the changes in the dictionary?</source>
        <translation>Do you want to save the changes in the dictionary?</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Results</translation>
    </message>
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
    <name>ValueLabelModel</name>
    <message>
        <source>Value</source>
        <translation>Value</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
</context>
<context>
    <name>VariableTableModel</name>
    <message>
        <source>Found</source>
        <translation>Found</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Missing</translation>
    </message>
    <message>
        <source>Alias: %1</source>
        <translation>Alias: %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Label</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Group</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Size</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categories</translation>
    </message>
    <message>
        <source>File</source>
        <translation>File</translation>
    </message>
</context>
</TS>
