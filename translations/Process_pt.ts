<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>AppProperties</name>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The changes were taken into the dictionary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>EN CONSTRUCCION</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>CategoryTable</name>
    <message>
        <source>Lines of the clipboard that are no category: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable Categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add a new row in the category table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy the category table of the variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Paste the category table copied from another variable into the current one.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the active row form the category table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clear all information in the category table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Take back the last change of the category table</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ConfigDialog</name>
    <message>
        <source>Kelx Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataFileForm</name>
    <message>
        <source>Input data file for the loading process</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Is found on disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose another data file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DataSourceVariableTab</name>
    <message>
        <source>The relative position should be from 1 to n, where n is the size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kelvora native file format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Field</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Relative position</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished">Tamanho</translation>
    </message>
    <message>
        <source>Data Source</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogEntityProperties</name>
    <message>
        <source>Properties of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entity definition has been modified. Save changes?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DictionarySaver</name>
    <message>
        <source>There is no open dictionary.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DictionaryToolBar</name>
    <message>
        <source>File</source>
        <translation type="unfinished">Arquivo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the dictionary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the dictionary under another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation type="unfinished">Dicionário</translation>
    </message>
    <message>
        <source>Locate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find the data files that are missing where the dictionary says</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Consistency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the data files against the dictionary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Report</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make a report of the dictionary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the dictionary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished">Abrir</translation>
    </message>
    <message>
        <source>Open a dictionary, or one of the recent ones</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Dictionary</source>
        <translation type="unfinished">Abrir dicionário</translation>
    </message>
    <message>
        <source>Error %s sending event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please, you must open a dictionary beforehand</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DictionaryTreeModel</name>
    <message>
        <source>File not found: %1</source>
        <translation type="unfinished">Arquivo não encontrado: %1</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variables: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entity</source>
        <translation type="unfinished">Entidade</translation>
    </message>
</context>
<context>
    <name>DictionaryUtil</name>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DocumentationVariableTab</name>
    <message>
        <source>Documentation</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EntityInfo</name>
    <message>
        <source>Code Variable: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entity cannot be selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entity has not Label Variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label Variable: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No automatic weight</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatic weight variable [</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Virtual Entity - Mother is </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of Elements: </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EntityInfoView</name>
    <message>
        <source>Entity</source>
        <translation type="unfinished">Entidade</translation>
    </message>
    <message>
        <source>Number of Elements</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selected Entity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entity Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Expand Information</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties Documentation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EntityPropertiesQDockWidget</name>
    <message>
        <source>Entity Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variables</source>
        <translation type="unfinished">Variáveis</translation>
    </message>
    <message>
        <source>Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alias:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another name of the entity; Return stores it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number of yours, 9999 at most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The variable that holds the code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code size:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One zero for each character of the code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The variable that holds the label</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Weight:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The variable that weights tables by itself</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Compound:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The codes from the top of the hierarchy down, joined</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disclosure:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The variable that controls disclosure</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Elements:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Number of records</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found on disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>May be used in selections and area lists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Virtual</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>SensitiveEntity</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>Archivo no válido</source>
        <translation type="unfinished">Arquivo inválido</translation>
    </message>
    <message>
        <source>The file %1 was not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please, close all the windows from the application work area before changing the dictionary</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FileToolBar</name>
    <message>
        <source>File</source>
        <translation type="unfinished">Arquivo</translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Begin a new program, selection or map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished">Abrir</translation>
    </message>
    <message>
        <source>Open a program, selection or map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Programs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Programs in the command language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selections</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selections of areas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thematic maps</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Styles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Table Styles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How tables look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Graph Styles</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>How charts look</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Run</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Execute</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Programs that run other programs</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FrequencyTable</name>
    <message>
        <source>Unit of count: %1</source>
        <translation>Unidade de contagem: %1</translation>
    </message>
    <message>
        <source>Not weighted</source>
        <translation>Sem ponderação</translation>
    </message>
    <message>
        <source>Weight: %1</source>
        <translation>Ponderador: %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtro: %1</translation>
    </message>
    <message numerus="yes">
        <source>%n cell(s) hidden to protect persons</source>
        <translation>
            <numerusform>%n célula oculta para proteger as pessoas</numerusform>
            <numerusform>%n células ocultas para proteger as pessoas</numerusform>
        </translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Omisso</translation>
    </message>
    <message>
        <source>Not applicable</source>
        <translation>Não se aplica</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Rótulo</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Casos</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Porcentagem</translation>
    </message>
    <message>
        <source>Weighted count</source>
        <translation>Casos ponderados</translation>
    </message>
</context>
<context>
    <name>FrequencyView</name>
    <message>
        <source>No results yet</source>
        <translation>Ainda não há resultados</translation>
    </message>
    <message>
        <source>Select a variable and choose Frequency (F9).</source>
        <translation>Selecione uma variável e escolha Frequência (F9).</translation>
    </message>
    <message>
        <source>Copy Table</source>
        <translation>Copiar tabela</translation>
    </message>
    <message>
        <source>Frequency table</source>
        <translation>Tabela de frequências</translation>
    </message>
</context>
<context>
    <name>GeneralEntityTab</name>
    <message>
        <source>Label:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alias:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Initial Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All preferences, the lists of recent files and the remembered folders go back to their initial values. Do you want to continue?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Application Language</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Language:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Startup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show splash form on startup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show Tips and Tricks form on startup</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open last dictionary on starting program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Menu Colors:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum number of files in the button list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Put all settings back to those of a new installation</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GeneralToolBar</name>
    <message>
        <source>Application</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language, looks and habits of the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open the help pages in the browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Versions of the program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The help pages could not be opened. You find them at %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GeneralVariablelTab</name>
    <message>
        <source>Label:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alias:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>InfoProperties</name>
    <message>
        <source>Variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entity</source>
        <translation type="unfinished">Entidade</translation>
    </message>
    <message>
        <source>Quick View</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>Failed to create JSON doc.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JSON is not an object.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>JSON object is empty.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 is too large to be read.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error %s sending event</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>KelTreeView</name>
    <message>
        <source>A entity must be selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entities</source>
        <translation type="unfinished">Entidades</translation>
    </message>
</context>
<context>
    <name>KelVariablesTableView</name>
    <message>
        <source>EN CONSTRUCCION- Se debe establecer si es posible borrar y el proceso a seguir</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variables</source>
        <translation type="unfinished">Variáveis</translation>
    </message>
</context>
<context>
    <name>LocatePaths</name>
    <message>
        <source>Locate Paths: %1 of %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing File: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing Path: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select Variable Path</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Path:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Relocate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Leave this file missing and go on with the next</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop looking for files; what was relocated stays</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The missing and relocated files are not the same.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The file %1 was not found.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files (*.%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No errors found in the database</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Save Dictionary</source>
        <translation>Salvar dicionário</translation>
    </message>
    <message>
        <source>Do you want to save the changes in the dictionary?</source>
        <translation>Deseja salvar as alterações do dicionário?</translation>
    </message>
    <message>
        <source>Processing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Execution Failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Execution Finished</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The results cannot be shown as a frequency.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informação</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Aviso</translation>
    </message>
</context>
<context>
    <name>OpenDictionaryButtonMenu</name>
    <message>
        <source>&amp;Open...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a dictionary file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent dictionaries</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Page</name>
    <message>
        <source>Scroll back</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Scroll forward</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ProjectToolBar</name>
    <message>
        <source>File</source>
        <translation type="unfinished">Arquivo</translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Make a new project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open</source>
        <translation type="unfinished">Abrir</translation>
    </message>
    <message>
        <source>Open a project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save As</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save the project under another name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show and change what the project holds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the project</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PropertyDock</name>
    <message>
        <source> - %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QUpdater</name>
    <message>
        <source>New version has been released!</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Would you like to download the update now? Current application will be close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ResultsManager</name>
    <message>
        <source>Results</source>
        <translation type="unfinished">Resultados</translation>
    </message>
    <message>
        <source>Tables of the results</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RibbonHost</name>
    <message>
        <source>Tabs or windows in the work area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RibbonPages</name>
    <message>
        <source>  PROJECT  </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  DICTIONARY  </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  FILE  </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  BASIC STATISTICS  </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  EASY INDICATORS  </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  WINDOW  </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  GENERAL  </source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SelectorLanguageDlg</name>
    <message>
        <source>Language</source>
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Select Language</source>
        <translation>Selecione o idioma</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>Census and survey microdata: browse a database, make tables, charts and maps.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Open Dictionary...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Choose a dictionary file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recent dictionaries</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select an entity in the tree to see its variables.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entities of the dictionary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entity</source>
        <translation type="unfinished">Entidade</translation>
    </message>
    <message>
        <source>Label</source>
        <translation type="unfinished">Rótulo</translation>
    </message>
    <message>
        <source>Records</source>
        <translation type="unfinished">Registros</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation type="unfinished">Variáveis</translation>
    </message>
</context>
<context>
    <name>StatisticalToolBar</name>
    <message>
        <source>Universe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limit the cases by an expression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Limit the areas by a selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Key figures of a variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Areas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Count</source>
        <translation type="unfinished">Casos</translation>
    </message>
    <message>
        <source>Count the elements of an entity by area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arealist</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List figures of variables by area</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>See the values case by case</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequencies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequencies of variables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Crosstab</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tables of two or more variables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Functions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Averages, medians, maxima and minima</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Information</source>
        <translation type="unfinished">Informação</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties of a variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Output Summary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>All results so far</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Progress</source>
        <translation type="unfinished">Progresso</translation>
    </message>
    <message>
        <source>Open dictionary</source>
        <translation type="unfinished">Dicionário aberto</translation>
    </message>
</context>
<context>
    <name>TabDialogVariableProperties</name>
    <message>
        <source>Properties of %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable definition has been modified. Save changes?
</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TabToolbar</name>
    <message>
        <source>Ribbon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the ribbon</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimize the ribbon</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TecnicalVariableTab</name>
    <message>
        <source>Type</source>
        <translation type="unfinished">Tipo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished">Tamanho</translation>
    </message>
    <message>
        <source>Decimals</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No applicable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Thecnical specification</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TfrmDictionary</name>
    <message>
        <source>Dictionary</source>
        <translation type="unfinished">Dicionário</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation type="unfinished">Variáveis</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation type="unfinished">Carregando...</translation>
    </message>
    <message>
        <source>Invalid Dictionary</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error validating Dictionary:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dictionary Loaded</source>
        <translation type="unfinished">Dicionário carregado</translation>
    </message>
    <message>
        <source>Some variable and/or entity paths could not be found!
Please, press Locate button in the Dictionary ToolBar</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saving...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dictionary saved</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files (*%1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please, close all the windows from the application work area before exiting from the project</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dictionary has been modified. Save modifications?</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TfrmProperties</name>
    <message>
        <source>Confirm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entity definition has been modified. Save changes?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable definition has been modified. Save changes?
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The variable %1 is not in the dictionary any more. Your changes of it were not saved.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TreeViewContextMenu</name>
    <message>
        <source>Quick View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Print</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Construction: Statistics variable context menu &lt;/b&gt; </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: View context menu &lt;/b&gt; </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide All Variables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Hide All Variables context menu &lt;/b&gt; </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unhide All Variables</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Unhide All Variables from context menu &lt;/b&gt; </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UIInvoker</name>
    <message>
        <source>Show the password</source>
        <translation>Mostrar a senha</translation>
    </message>
    <message>
        <source>Enter password</source>
        <translation>Digite a senha</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>Dictionary password</source>
        <translation>Senha do dicionário</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>Dicionário</translation>
    </message>
    <message>
        <source>Select data folder to</source>
        <translation>Selecione a pasta de dados de</translation>
    </message>
</context>
<context>
    <name>Validate</name>
    <message>
        <source>The typed character string has a length greater than 50</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The typed character string already exists as a group name of </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The typed character string already exists and it is the entity </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The typed character string already exists as entity alias of </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The typed character string already exists as a variable name: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The typed character string already exists as variable alias of </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The typed character string is empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The typed character string is a Kelvora reserved word</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The typed character string contains blanks</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The typed character string contains invalid characters, such as accents or special symbols</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The variable could not be renamed, it is not a local variable</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VarValueLabelDiccionaryModel</name>
    <message>
        <source>The category &quot;%1&quot; has no code</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The code %1 stands more than once in the table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Code</source>
        <translation type="unfinished">Código</translation>
    </message>
    <message>
        <source>Label</source>
        <translation type="unfinished">Rótulo</translation>
    </message>
</context>
<context>
    <name>VariableDiccionaryModel</name>
    <message>
        <source>Type: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alias: %1</source>
        <translation type="unfinished">Alias: %1</translation>
    </message>
    <message>
        <source>File not found: %1</source>
        <translation type="unfinished">Arquivo não encontrado: %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished">Nome</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group</source>
        <translation type="unfinished">Grupo</translation>
    </message>
    <message>
        <source>Label</source>
        <translation type="unfinished">Rótulo</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VariableInfoView</name>
    <message>
        <source>Name: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alias: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tag: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Min: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>NotApp: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing: </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable Categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties Documentation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VariablePropertiesQDockWidget</name>
    <message>
        <source>Error %1 sending event</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Label:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Alias:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Another name of the variable; Return stores it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variables of one group belong together; Return stores it</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A number of yours, 9999 at most</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Marks the variable as hidden in lists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>General</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable Categories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished">Tipo</translation>
    </message>
    <message>
        <source>Min</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Max</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No applicable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Missing value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Found on Disk</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Technical Spec.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Range</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kelvora native file format</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VariablesContextMenu</name>
    <message>
        <source>Quick View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Properties</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rename</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Delete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Statistics variable context menu &lt;/b&gt; </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: View variable context menu &lt;/b&gt; </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark as hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Mark as hidden variable context menu &lt;/b&gt; </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unmark as hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Unmark as hidden variable context menu &lt;/b&gt; </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group</source>
        <translation type="unfinished">Grupo</translation>
    </message>
    <message>
        <source>Group Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group Frequency variable context menu &lt;/b&gt; </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group Statisitcs variable context menu &lt;/b&gt; </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group View variable context menu &lt;/b&gt; </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mark hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group Mark as hidden variable context menu &lt;/b&gt; </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unmark hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group unmark as hidden variable context menu &lt;/b&gt; </source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirmation screen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to delete the variable(s)?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The variable could not be deleted, it is not a local variable</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>VariablesPane</name>
    <message>
        <source>%1 of %2</source>
        <translation type="unfinished">%1 de %2</translation>
    </message>
    <message>
        <source>Filter...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enter a filter term, you can filter by name, alias, group, label or tag</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter of the variables</source>
        <translation type="unfinished">Filtro das variáveis</translation>
    </message>
    <message>
        <source>Variables shown</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WaitingSpinnerWidget</name>
    <message>
        <source>Busy</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>WindowToolBar</name>
    <message>
        <source>Tabs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Restore</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show the windows as tabs again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile vertical</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place the windows side by side</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tile horizontal</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Place the windows above one another</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cascade</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Let the windows overlap</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimize All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Minimize all windows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Arrange Icons</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Line up the minimized windows at the bottom</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>XmlDicxDictionary</name>
    <message>
        <source>Error by opening the dictionary file</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error opening dictionary [%1]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> [%1]
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File [%2] not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Do you want to located?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The same answer for the rest</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The files relocation for *.dicx files is not yet supported in KelX</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Entity</source>
        <translation type="unfinished">Entidade</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
