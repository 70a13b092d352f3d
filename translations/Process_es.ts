<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es" sourcelanguage="en">
<context>
    <name>DictionaryBrowser</name>
    <message>
        <source>Value labels</source>
        <translation>Etiquetas de valores</translation>
    </message>
    <message>
        <source>Value labels of %1</source>
        <translation>Etiquetas de valores de %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>No dictionary is open. Choose File &gt; Open Dictionary.</source>
        <translation>No hay ningún diccionario abierto. Elija Archivo &gt; Abrir diccionario.</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Filtro:</translation>
    </message>
    <message>
        <source>Name, label or group</source>
        <translation>Nombre, etiqueta o grupo</translation>
    </message>
    <message>
        <source>Show the variables whose name, label or group holds this text</source>
        <translation>Mostrar las variables cuyo nombre, etiqueta o grupo contiene este texto</translation>
    </message>
    <message>
        <source>Filter of the variables</source>
        <translation>Filtro de las variables</translation>
    </message>
    <message>
        <source>Entities</source>
        <translation>Entidades</translation>
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
        <translation>Ponderador: %1</translation>
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
        <translation>Entidad</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Registros</translation>
    </message>
    <message>
        <source>File not found: %1</source>
        <translation>Archivo no encontrado: %1</translation>
    </message>
</context>
<context>
    <name>FrequencyTable</name>
    <message>
        <source>Unit of count: %1</source>
        <translation>Unidad de conteo: %1</translation>
    </message>
    <message>
        <source>Not weighted</source>
        <translation>Sin ponderar</translation>
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
            <numerusform>%n celda oculta para proteger a las personas</numerusform>
            <numerusform>%n celdas ocultas para proteger a las personas</numerusform>
        </translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Omitido</translation>
    </message>
    <message>
        <source>Not applicable</source>
        <translation>No aplica</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Casos</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Porcentaje</translation>
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
        <translation>Aún no hay resultados</translation>
    </message>
    <message>
        <source>Select a variable and choose Frequency (F9).</source>
        <translation>Seleccione una variable y elija Frecuencia (F9).</translation>
    </message>
    <message>
        <source>Copy Table</source>
        <translation>Copiar tabla</translation>
    </message>
    <message>
        <source>Frequency table</source>
        <translation>Tabla de frecuencias</translation>
    </message>
</context>
<context>
    <name>MainActions</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Archivo</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Ver</translation>
    </message>
    <message>
        <source>&amp;Statistics</source>
        <translation>&amp;Estadísticas</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;yuda</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>&amp;Open Dictionary...</source>
        <translation>&amp;Abrir diccionario...</translation>
    </message>
    <message>
        <source>Open a dictionary</source>
        <translation>Abrir un diccionario</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Salir</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>Cerrar el programa</translation>
    </message>
    <message>
        <source>&amp;Find Variable</source>
        <translation>&amp;Buscar variable</translation>
    </message>
    <message>
        <source>Go to the filter of the variables</source>
        <translation>Ir al filtro de las variables</translation>
    </message>
    <message>
        <source>Value &amp;Labels</source>
        <translation>&amp;Etiquetas de valores</translation>
    </message>
    <message>
        <source>Show the labels of the selected variable</source>
        <translation>Mostrar las etiquetas de la variable seleccionada</translation>
    </message>
    <message>
        <source>F&amp;requency</source>
        <translation>&amp;Frecuencia</translation>
    </message>
    <message>
        <source>Count the categories of the selected variable</source>
        <translation>Contar las categorías de la variable seleccionada</translation>
    </message>
    <message>
        <source>&amp;About Kelvora X</source>
        <translation>Acerca &amp;de Kelvora X</translation>
    </message>
    <message>
        <source>Version of the program and of its engine</source>
        <translation>Versión del programa y de su motor</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>and %1 more</source>
        <translation>y %1 más</translation>
    </message>
    <message>
        <source>Open Dictionary</source>
        <translation>Abrir diccionario</translation>
    </message>
    <message>
        <source>Dictionaries (*.kxdb *.dicx *.KXDB *.DICX)</source>
        <translation>Diccionarios (*.kxdb *.dicx *.KXDB *.DICX)</translation>
    </message>
    <message>
        <source>Archivo no válido</source>
        <translation>Archivo no válido</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando...</translation>
    </message>
    <message>
        <source>Dictionary Loaded</source>
        <translation>Diccionario cargado</translation>
    </message>
    <message>
        <source>Some variable and/or entity paths could not be found!</source>
        <translation>¡No se encontraron algunas rutas de variables o entidades!</translation>
    </message>
    <message>
        <source>The dictionary was not opened</source>
        <translation>No se abrió el diccionario</translation>
    </message>
    <message>
        <source>Running...</source>
        <translation>Ejecutando...</translation>
    </message>
    <message>
        <source>The program has errors</source>
        <translation>El programa tiene errores</translation>
    </message>
    <message>
        <source>Finished in %1 s</source>
        <translation>Terminado en %1 s</translation>
    </message>
    <message>
        <source>Kelvora X, a workbench for census microdata.

Program version: %1
Engine version: %2</source>
        <translation>Kelvora X, un entorno de trabajo para microdatos censales.

Versión del programa: %1
Versión del motor: %2</translation>
    </message>
    <message>
        <source>Save Dictionary</source>
        <translation>Guardar diccionario</translation>
    </message>
    <message>
        <source>Do you want to save the changes in the dictionary?</source>
        <translation>¿Desea guardar los cambios del diccionario?</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progreso</translation>
    </message>
    <message>
        <source>Open dictionary</source>
        <translation>Diccionario abierto</translation>
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
        <translation>Información</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Advertencia</translation>
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
        <translation>Seleccione el idioma</translation>
    </message>
</context>
<context>
    <name>UIInvoker</name>
    <message>
        <source>Show the password</source>
        <translation>Mostrar la contraseña</translation>
    </message>
    <message>
        <source>Enter password</source>
        <translation>Escriba la contraseña</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Contraseña</translation>
    </message>
    <message>
        <source>Dictionary password</source>
        <translation>Contraseña del diccionario</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>Diccionario</translation>
    </message>
    <message>
        <source>Select data folder to</source>
        <translation>Seleccione la carpeta de datos de</translation>
    </message>
</context>
<context>
    <name>ValueLabelModel</name>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
</context>
<context>
    <name>VariableTableModel</name>
    <message>
        <source>Found</source>
        <translation>Encontrado</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>No encontrado</translation>
    </message>
    <message>
        <source>Alias: %1</source>
        <translation>Alias: %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categorías</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
</context>
</TS>
