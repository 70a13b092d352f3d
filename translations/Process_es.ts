<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en" language="es">
<context>
    <name>AppProperties</name>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>The changes were taken into the dictionary</source>
        <translation>Los cambios se incorporaron al diccionario</translation>
    </message>
    <message>
        <source>EN CONSTRUCCION</source>
        <translation>EN CONSTRUCCIÓN</translation>
    </message>
</context>
<context>
    <name>ArealistViewOptionsDialog</name>
    <message>
        <source>Show Totals Row</source>
        <translation>Mostrar fila de totales</translation>
    </message>
    <message>
        <source>View Options</source>
        <translation>Opciones de vista</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Add a row with the sum of each column of whole numbers</source>
        <translation>Agrega una fila con la suma de cada columna de números enteros</translation>
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
        <translation>Promedio</translation>
    </message>
</context>
<context>
    <name>BottomPanel</name>
    <message>
        <source>Output</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>Messages and finding</source>
        <translation>Mensajes y búsqueda</translation>
    </message>
</context>
<context>
    <name>CategoryTable</name>
    <message>
        <source>Lines of the clipboard that are no category: %1</source>
        <translation>Líneas del portapapeles que no son categorías: %1</translation>
    </message>
    <message>
        <source>Variable Categories</source>
        <translation>Categorías de la variable</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Agregar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Quitar</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpiar</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Add a new row in the category table</source>
        <translation>Agregar una fila a la tabla de categorías</translation>
    </message>
    <message>
        <source>Copy the category table of the variable</source>
        <translation>Copiar la tabla de categorías de la variable</translation>
    </message>
    <message>
        <source>Paste the category table copied from another variable into the current one.</source>
        <translation>Pegar en la variable actual la tabla de categorías copiada de otra variable.</translation>
    </message>
    <message>
        <source>Remove the active row form the category table</source>
        <translation>Quitar la fila activa de la tabla de categorías</translation>
    </message>
    <message>
        <source>Clear all information in the category table</source>
        <translation>Borrar toda la información de la tabla de categorías</translation>
    </message>
    <message>
        <source>Take back the last change of the category table</source>
        <translation>Deshacer el último cambio de la tabla de categorías</translation>
    </message>
</context>
<context>
    <name>ColumnGroupRows</name>
    <message>
        <source>Columns at place %1</source>
        <translation>Columnas en la posición %1</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>Mostrar %1</translation>
    </message>
    <message>
        <source>Checked: %1 shows in the table</source>
        <translation>Marcado: el tabulado muestra %1</translation>
    </message>
    <message>
        <source>%1 always shows</source>
        <translation>Siempre se muestra: %1</translation>
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
        <translation>Preferencias de KelX</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
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
        <translation>Este tabulado de %1 filas y %2 columnas es demasiado grande para mostrarlo: tendría más de %3 celdas. Agrupe las categorías de sus variables o filtre los registros.</translation>
    </message>
</context>
<context>
    <name>DataFileForm</name>
    <message>
        <source>Input data file for the loading process</source>
        <translation>Archivo de datos de entrada para el proceso de carga</translation>
    </message>
    <message>
        <source>Is found on disk</source>
        <translation>Se encuentra en el disco</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Examinar...</translation>
    </message>
    <message>
        <source>Choose another data file</source>
        <translation>Elegir otro archivo de datos</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>DataSourceVariableTab</name>
    <message>
        <source>The relative position should be from 1 to n, where n is the size</source>
        <translation>La posición relativa debe estar entre 1 y n, donde n es el tamaño</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Kelvora native file format</source>
        <translation>Formato de archivo nativo de Kelvora</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identificador</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Campo</translation>
    </message>
    <message>
        <source>Relative position</source>
        <translation>Posición relativa</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Data Source</source>
        <translation>Fuente de datos</translation>
    </message>
</context>
<context>
    <name>DialogEntityProperties</name>
    <message>
        <source>Properties of %1</source>
        <translation>Propiedades de %1</translation>
    </message>
    <message>
        <source>Entity definition has been modified. Save changes?</source>
        <translation>La definición de la entidad fue modificada. ¿Desea guardar los cambios?</translation>
    </message>
</context>
<context>
    <name>DictionarySaver</name>
    <message>
        <source>There is no open dictionary.</source>
        <translation>No hay ningún diccionario abierto.</translation>
    </message>
</context>
<context>
    <name>DictionaryToolBar</name>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save the dictionary</source>
        <translation>Guardar el diccionario</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Save the dictionary under another name</source>
        <translation>Guardar el diccionario con otro nombre</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>Diccionario</translation>
    </message>
    <message>
        <source>Locate</source>
        <translation>Localizar</translation>
    </message>
    <message>
        <source>Find the data files that are missing where the dictionary says</source>
        <translation>Buscar los archivos de datos que no están donde indica el diccionario</translation>
    </message>
    <message>
        <source>Consistency</source>
        <translation>Consistencia</translation>
    </message>
    <message>
        <source>Check the data files against the dictionary</source>
        <translation>Verificar los archivos de datos con respecto al diccionario</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Informe</translation>
    </message>
    <message>
        <source>Make a report of the dictionary</source>
        <translation>Generar un informe del diccionario</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close the dictionary</source>
        <translation>Cerrar el diccionario</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open a dictionary, or one of the recent ones</source>
        <translation>Abrir un diccionario o uno de los recientes</translation>
    </message>
    <message>
        <source>Open Dictionary</source>
        <translation>Abrir diccionario</translation>
    </message>
    <message>
        <source>Error %s sending event</source>
        <translation>Error %s al enviar el evento</translation>
    </message>
    <message>
        <source>Please, you must open a dictionary beforehand</source>
        <translation>Primero debe abrir un diccionario</translation>
    </message>
    <message>
        <source>KelX Dictionary (*.kxdb);;Kel7 Dictionary (*.dicx)</source>
        <translation>Diccionario KelX (*.kxdb);;Diccionario Kel7 (*.dicx)</translation>
    </message>
</context>
<context>
    <name>DictionaryTreeModel</name>
    <message>
        <source>File not found: %1</source>
        <translation>Archivo no encontrado: %1</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Archivo: %1</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>Registros: %1</translation>
    </message>
    <message>
        <source>Variables: %1</source>
        <translation>Variables: %1</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
</context>
<context>
    <name>DictionaryUtil</name>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>No se puede escribir el archivo %1: %2</translation>
    </message>
</context>
<context>
    <name>DirectExport</name>
    <message>
        <source>The folder %1 does not exist. %2 is written into the folder of results, %3.</source>
        <translation>La carpeta %1 no existe. %2 se escribe en la carpeta de resultados, %3.</translation>
    </message>
    <message>
        <source>The program gives no name of a file.</source>
        <translation>El programa no indica ningún nombre de archivo.</translation>
    </message>
</context>
<context>
    <name>DocumentationVariableTab</name>
    <message>
        <source>Documentation</source>
        <translation>Documentación</translation>
    </message>
</context>
<context>
    <name>Editor</name>
    <message>
        <source>Program text</source>
        <translation>Texto del programa</translation>
    </message>
    <message>
        <source>Line numbers</source>
        <translation>Números de línea</translation>
    </message>
    <message>
        <source>Funcionalidad %1 en Construcción</source>
        <translation>Funcionalidad %1 en construcción</translation>
    </message>
    <message>
        <source>&quot;Toggle Comment&quot;</source>
        <translation>&quot;Alternar comentario&quot;</translation>
    </message>
    <message>
        <source>&quot;Wizard Define&quot;</source>
        <translation>&quot;Asistente DEFINE&quot;</translation>
    </message>
    <message>
        <source>&quot;Wizard Table&quot;</source>
        <translation>&quot;Asistente TABLE&quot;</translation>
    </message>
    <message>
        <source>&quot;Execute Blow Up&quot;</source>
        <translation>&quot;Desplegar EXECUTE&quot;</translation>
    </message>
    <message>
        <source>&quot;Define Frequency&quot;</source>
        <translation>&quot;Definir frecuencia&quot;</translation>
    </message>
    <message>
        <source>&quot;Syntax Clue&quot;</source>
        <translation>&quot;Ayuda de sintaxis&quot;</translation>
    </message>
    <message>
        <source>&quot;Edit Table&quot;</source>
        <translation>&quot;Editar tabla&quot;</translation>
    </message>
    <message>
        <source>&quot;Edit Graph&quot;</source>
        <translation>&quot;Editar gráfico&quot;</translation>
    </message>
    <message>
        <source>No results found.</source>
        <translation>No se encontraron resultados.</translation>
    </message>
    <message>
        <source>No more results found.</source>
        <translation>No se encontraron más resultados.</translation>
    </message>
    <message>
        <source>Found %1 coincidences</source>
        <translation>Se encontraron %1 coincidencias</translation>
    </message>
    <message>
        <source>Document searched. Replaced </source>
        <translation>Búsqueda finalizada. Se reemplazaron </translation>
    </message>
    <message>
        <source> instances.</source>
        <translation> coincidencias.</translation>
    </message>
    <message>
        <source>Invalid line number.</source>
        <translation>Número de línea no válido.</translation>
    </message>
</context>
<context>
    <name>EditorContextMenu</name>
    <message>
        <source>Toggle Comment</source>
        <translation>Alternar comentario</translation>
    </message>
    <message>
        <source>Syntax clue</source>
        <translation>Ayuda de sintaxis</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>Barra de estado</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Salida</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloque</translation>
    </message>
    <message>
        <source>Compile</source>
        <translation>Compilar</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Ejecutar</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Ejecutar</translation>
    </message>
    <message>
        <source>Assist</source>
        <translation>Asistente</translation>
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
        <translation>Desplegar</translation>
    </message>
    <message>
        <source>Wizards</source>
        <translation>Asistentes</translation>
    </message>
    <message>
        <source>DEFINEs </source>
        <translation>DEFINEs </translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Edit Style</source>
        <translation>Editar estilo</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabla</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Gráfico</translation>
    </message>
</context>
<context>
    <name>EntityInfo</name>
    <message>
        <source>Code Variable: </source>
        <translation>Variable de código: </translation>
    </message>
    <message>
        <source>Entity cannot be selected</source>
        <translation>La entidad no es seleccionable</translation>
    </message>
    <message>
        <source>Entity has not Label Variable</source>
        <translation>La entidad no tiene variable de etiqueta</translation>
    </message>
    <message>
        <source>Label Variable: </source>
        <translation>Variable de etiqueta: </translation>
    </message>
    <message>
        <source>No automatic weight</source>
        <translation>Sin ponderador automático</translation>
    </message>
    <message>
        <source>Automatic weight variable [</source>
        <translation>Variable de ponderación automática [</translation>
    </message>
    <message>
        <source>Virtual Entity - Mother is </source>
        <translation>Entidad virtual - La entidad madre es </translation>
    </message>
    <message>
        <source>Number of Elements: </source>
        <translation>Número de elementos: </translation>
    </message>
</context>
<context>
    <name>EntityInfoView</name>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
    <message>
        <source>Number of Elements</source>
        <translation>Número de elementos</translation>
    </message>
    <message>
        <source>Selected Entity</source>
        <translation>Entidad seleccionada</translation>
    </message>
    <message>
        <source>Entity Properties</source>
        <translation>Propiedades de la entidad</translation>
    </message>
    <message>
        <source>Expand Information</source>
        <translation>Ampliar información</translation>
    </message>
    <message>
        <source>Properties Documentation</source>
        <translation>Documentación de las propiedades</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentación</translation>
    </message>
</context>
<context>
    <name>EntityPropertiesQDockWidget</name>
    <message>
        <source>Entity Properties</source>
        <translation>Propiedades de la entidad</translation>
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
        <translation>Datos</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentación</translation>
    </message>
    <message>
        <source>Label:</source>
        <translation>Etiqueta:</translation>
    </message>
    <message>
        <source>Alias:</source>
        <translation>Alias:</translation>
    </message>
    <message>
        <source>Another name of the entity; Return stores it</source>
        <translation>Otro nombre de la entidad; se guarda con la tecla Intro</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>Marca:</translation>
    </message>
    <message>
        <source>A number of yours, 9999 at most</source>
        <translation>Un número propio, 9999 como máximo</translation>
    </message>
    <message>
        <source>Code:</source>
        <translation>Código:</translation>
    </message>
    <message>
        <source>The variable that holds the code</source>
        <translation>La variable que contiene el código</translation>
    </message>
    <message>
        <source>Code size:</source>
        <translation>Tamaño del código:</translation>
    </message>
    <message>
        <source>One zero for each character of the code</source>
        <translation>Un cero por cada carácter del código</translation>
    </message>
    <message>
        <source>The variable that holds the label</source>
        <translation>La variable que contiene la etiqueta</translation>
    </message>
    <message>
        <source>Weight:</source>
        <translation>Ponderador:</translation>
    </message>
    <message>
        <source>The variable that weights tables by itself</source>
        <translation>La variable que pondera los tabulados automáticamente</translation>
    </message>
    <message>
        <source>Compound:</source>
        <translation>Compuesto:</translation>
    </message>
    <message>
        <source>The codes from the top of the hierarchy down, joined</source>
        <translation>Los códigos concatenados desde el nivel más alto de la jerarquía</translation>
    </message>
    <message>
        <source>Disclosure:</source>
        <translation>Confidencialidad:</translation>
    </message>
    <message>
        <source>The variable that controls disclosure</source>
        <translation>La variable que controla la confidencialidad</translation>
    </message>
    <message>
        <source>Elements:</source>
        <translation>Elementos:</translation>
    </message>
    <message>
        <source>Number of records</source>
        <translation>Número de registros</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Archivo:</translation>
    </message>
    <message>
        <source>Found on disk</source>
        <translation>Se encuentra en el disco</translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation>Seleccionable</translation>
    </message>
    <message>
        <source>May be used in selections and area lists</source>
        <translation>Puede usarse en selecciones y listas de áreas</translation>
    </message>
    <message>
        <source>Virtual</source>
        <translation>Virtual</translation>
    </message>
    <message>
        <source>SensitiveEntity</source>
        <translation>Entidad sensible</translation>
    </message>
</context>
<context>
    <name>ErrorList</name>
    <message>
        <source>Messages of the program</source>
        <translation>Mensajes del programa</translation>
    </message>
    <message>
        <source>Copy error list</source>
        <translation>Copiar la lista de errores</translation>
    </message>
    <message>
        <source>Clear error list</source>
        <translation>Limpiar la lista de errores</translation>
    </message>
</context>
<context>
    <name>ExportProgress</name>
    <message>
        <source>Export</source>
        <translation>Exportar</translation>
    </message>
    <message>
        <source>Writing %1</source>
        <translation>Escribiendo %1</translation>
    </message>
</context>
<context>
    <name>FileChangeNotice</name>
    <message>
        <source>The file %1 was changed by another program, and this text has changes that are not saved. Saving will replace the file.

Do you want to reload the file instead?</source>
        <translation>Otro programa modificó el archivo %1, y este texto tiene cambios sin guardar. Si lo guarda, se reemplazará el archivo.

¿Desea recargar el archivo en lugar de reemplazarlo?</translation>
    </message>
    <message>
        <source>The file %1 was changed by another program. Do you want to reload it?</source>
        <translation>Otro programa modificó el archivo %1. ¿Desea recargarlo?</translation>
    </message>
    <message>
        <source>File changed</source>
        <translation>Archivo modificado</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recargar</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Conservar</translation>
    </message>
    <message>
        <source>The file %1 cannot be reloaded: %2</source>
        <translation>No se puede recargar el archivo %1: %2</translation>
    </message>
    <message>
        <source>The file %1 was removed by another program. Its text stays open here: save it to keep it.</source>
        <translation>Otro programa eliminó el archivo %1. Su texto sigue abierto aquí: guárdelo para conservarlo.</translation>
    </message>
    <message>
        <source>The file %1 was changed by another program since it was read here. Do you want to replace it?</source>
        <translation>Otro programa modificó el archivo %1 después de que se leyó aquí. ¿Desea reemplazarlo?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
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
        <translation>No se encontró el archivo %1.</translation>
    </message>
    <message>
        <source>Please, close all the windows from the application work area before changing the dictionary</source>
        <translation>Cierre todas las ventanas del área de trabajo antes de cambiar de diccionario</translation>
    </message>
</context>
<context>
    <name>FileToolBar</name>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Begin a new program, selection or map</source>
        <translation>Comenzar un programa, una selección o un mapa</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open a program, selection or map</source>
        <translation>Abrir un programa, una selección o un mapa</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documentos</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programas</translation>
    </message>
    <message>
        <source>Programs in the command language</source>
        <translation>Programas en el lenguaje de comandos</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Selecciones</translation>
    </message>
    <message>
        <source>Selections of areas</source>
        <translation>Selecciones de áreas</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Mapas</translation>
    </message>
    <message>
        <source>Thematic maps</source>
        <translation>Mapas temáticos</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>Estilos</translation>
    </message>
    <message>
        <source>Table Styles</source>
        <translation>Estilos de tabla</translation>
    </message>
    <message>
        <source>How tables look</source>
        <translation>Aspecto de las tablas</translation>
    </message>
    <message>
        <source>Graph Styles</source>
        <translation>Estilos de gráfico</translation>
    </message>
    <message>
        <source>How charts look</source>
        <translation>Aspecto de los gráficos</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Ejecución</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Ejecutar</translation>
    </message>
    <message>
        <source>Programs that run other programs</source>
        <translation>Programas que ejecutan otros programas</translation>
    </message>
    <message>
        <source>&amp;Program</source>
        <translation>&amp;Programa</translation>
    </message>
    <message>
        <source>&amp;Execute program</source>
        <translation>Programa &amp;EXECUTE</translation>
    </message>
    <message>
        <source>&amp;Selection</source>
        <translation>&amp;Selección</translation>
    </message>
    <message>
        <source>&amp;Map</source>
        <translation>&amp;Mapa</translation>
    </message>
    <message>
        <source>&amp;Program...</source>
        <translation>&amp;Programa...</translation>
    </message>
    <message>
        <source>&amp;Execute program...</source>
        <translation>Programa &amp;EXECUTE...</translation>
    </message>
    <message>
        <source>&amp;Selection...</source>
        <translation>&amp;Selección...</translation>
    </message>
    <message>
        <source>&amp;Map...</source>
        <translation>&amp;Mapa...</translation>
    </message>
    <message>
        <source>Recent programs</source>
        <translation>Programas recientes</translation>
    </message>
    <message>
        <source>Programs of the dictionary</source>
        <translation>Programas del diccionario</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nuevo</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message>
        <source>Kelx Command Set (*.spc)</source>
        <translation>Kelx Command Set (*.spc)</translation>
    </message>
    <message>
        <source>Error %s sending event</source>
        <translation>Error %s al enviar el evento</translation>
    </message>
    <message>
        <source>Open program</source>
        <translation>Abrir programa</translation>
    </message>
    <message>
        <source>Open EXECUTE program</source>
        <translation>Abrir programa EXECUTE</translation>
    </message>
</context>
<context>
    <name>FindDialog</name>
    <message>
        <source>Find</source>
        <translation>Buscar</translation>
    </message>
    <message>
        <source>Find what: </source>
        <translation>Buscar: </translation>
    </message>
    <message>
        <source>Replace with: </source>
        <translation>Reemplazar con: </translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Distinguir mayúsculas</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>Palabras completas</translation>
    </message>
    <message>
        <source>Find next</source>
        <translation>Buscar siguiente</translation>
    </message>
    <message>
        <source>Find all</source>
        <translation>Buscar todo</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Reemplazar</translation>
    </message>
    <message>
        <source>Replace all</source>
        <translation>Reemplazar todo</translation>
    </message>
    <message>
        <source>Empty Field</source>
        <translation>Campo vacío</translation>
    </message>
    <message>
        <source>Please enter a query.</source>
        <translation>Escriba el texto que desea buscar.</translation>
    </message>
</context>
<context>
    <name>FormatDialog</name>
    <message>
        <source>View Options</source>
        <translation>Opciones de vista</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Orden</translation>
    </message>
</context>
<context>
    <name>GeneralEntityTab</name>
    <message>
        <source>Label:</source>
        <translation>Etiqueta:</translation>
    </message>
    <message>
        <source>Alias:</source>
        <translation>Alias:</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>Marca:</translation>
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
        <translation>Configuración inicial</translation>
    </message>
    <message>
        <source>All preferences, the lists of recent files and the remembered folders go back to their initial values. Do you want to continue?</source>
        <translation>Todas las preferencias, las listas de archivos recientes y las carpetas recordadas volverán a sus valores iniciales. ¿Desea continuar?</translation>
    </message>
    <message>
        <source>Application Language</source>
        <translation>Idioma de la aplicación</translation>
    </message>
    <message>
        <source>Select Language:</source>
        <translation>Seleccione el idioma:</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Inicio</translation>
    </message>
    <message>
        <source>Show splash form on startup</source>
        <translation>Mostrar la pantalla de presentación al iniciar</translation>
    </message>
    <message>
        <source>Show Tips and Tricks form on startup</source>
        <translation>Mostrar consejos y sugerencias al iniciar</translation>
    </message>
    <message>
        <source>Open last dictionary on starting program</source>
        <translation>Abrir el último diccionario al iniciar</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menú</translation>
    </message>
    <message>
        <source>Menu Colors:</source>
        <translation>Colores del menú:</translation>
    </message>
    <message>
        <source>Maximum number of files in the button list</source>
        <translation>Máximo de archivos recientes</translation>
    </message>
    <message>
        <source>Put all settings back to those of a new installation</source>
        <translation>Restablecer todas las preferencias a las de una instalación nueva</translation>
    </message>
</context>
<context>
    <name>GeneralStylePage</name>
    <message>
        <source>Comma  ( , )</source>
        <translation>Coma  ( , )</translation>
    </message>
    <message>
        <source>Period ( . )</source>
        <translation>Punto  ( . )</translation>
    </message>
    <message>
        <source>Space  (   )</source>
        <translation>Espacio  (   )</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Ninguno</translation>
    </message>
    <message>
        <source>e.g. Census2024</source>
        <translation>p. ej., Censo2024</translation>
    </message>
    <message>
        <source>Optional description</source>
        <translation>Descripción opcional</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nombre:</translation>
    </message>
    <message>
        <source>Label:</source>
        <translation>Etiqueta:</translation>
    </message>
    <message>
        <source> decimal(s)</source>
        <translation> decimal(es)</translation>
    </message>
    <message>
        <source>Numbers in this style</source>
        <translation>Números con este estilo</translation>
    </message>
    <message>
        <source>Decimals:</source>
        <translation>Decimales:</translation>
    </message>
    <message>
        <source>Thousand separator:</source>
        <translation>Separador de miles:</translation>
    </message>
    <message>
        <source>Sample:</source>
        <translation>Ejemplo:</translation>
    </message>
</context>
<context>
    <name>GeneralToolBar</name>
    <message>
        <source>Application</source>
        <translation>Aplicación</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
    <message>
        <source>Language, looks and habits of the program</source>
        <translation>Idioma, aspecto y comportamiento del programa</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ayuda</translation>
    </message>
    <message>
        <source>Open the help pages in the browser</source>
        <translation>Abrir las páginas de ayuda en el navegador</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Acerca de</translation>
    </message>
    <message>
        <source>Versions of the program</source>
        <translation>Versiones del programa</translation>
    </message>
    <message>
        <source>The help pages could not be opened. You find them at %1</source>
        <translation>No se pudieron abrir las páginas de ayuda. Se encuentran en %1</translation>
    </message>
</context>
<context>
    <name>GeneralVariablelTab</name>
    <message>
        <source>Label:</source>
        <translation>Etiqueta:</translation>
    </message>
    <message>
        <source>Alias:</source>
        <translation>Alias:</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Grupo:</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>Marca:</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Oculta</translation>
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
        <translation>Ir</translation>
    </message>
    <message>
        <source>Must enter a line number.</source>
        <translation>Debe escribir un número de línea.</translation>
    </message>
    <message>
        <source>Go To</source>
        <translation>Ir a</translation>
    </message>
    <message>
        <source>Line number: </source>
        <translation>Número de línea: </translation>
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
        <translation>Entidad</translation>
    </message>
    <message>
        <source>Quick View</source>
        <translation>Vista rápida</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>Failed to create JSON doc.</source>
        <translation>No se pudo crear el documento JSON.</translation>
    </message>
    <message>
        <source>JSON is not an object.</source>
        <translation>El JSON no es un objeto.</translation>
    </message>
    <message>
        <source>JSON object is empty.</source>
        <translation>El objeto JSON está vacío.</translation>
    </message>
    <message>
        <source>The file %1 is too large to be read.</source>
        <translation>El archivo %1 es demasiado grande para leerlo.</translation>
    </message>
    <message>
        <source>Error %s sending event</source>
        <translation>Error %s al enviar el evento</translation>
    </message>
</context>
<context>
    <name>KelTreeView</name>
    <message>
        <source>A entity must be selected</source>
        <translation>Debe seleccionar una entidad</translation>
    </message>
    <message>
        <source>Entities</source>
        <translation>Entidades</translation>
    </message>
</context>
<context>
    <name>KelVariablesTableView</name>
    <message>
        <source>EN CONSTRUCCION- Se debe establecer si es posible borrar y el proceso a seguir</source>
        <translation>EN CONSTRUCCIÓN - Se debe establecer si es posible borrar y el proceso a seguir</translation>
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
        <translation>Localizar rutas: %1 de %2</translation>
    </message>
    <message>
        <source>Variable: </source>
        <translation>Variable: </translation>
    </message>
    <message>
        <source>Missing File: </source>
        <translation>Archivo faltante: </translation>
    </message>
    <message>
        <source>Missing Path: </source>
        <translation>Ruta faltante: </translation>
    </message>
    <message>
        <source>Select Variable Path</source>
        <translation>Seleccione la ruta de la variable</translation>
    </message>
    <message>
        <source>New Path:</source>
        <translation>Nueva ruta:</translation>
    </message>
    <message>
        <source>Relocate</source>
        <translation>Reubicar</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
    <message>
        <source>Leave this file missing and go on with the next</source>
        <translation>Dejar este archivo como faltante y continuar con el siguiente</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Stop looking for files; what was relocated stays</source>
        <translation>Dejar de buscar archivos; lo ya reubicado se conserva</translation>
    </message>
    <message>
        <source>The missing and relocated files are not the same.</source>
        <translation>El archivo faltante y el reubicado no son el mismo.</translation>
    </message>
    <message>
        <source>The file %1 was not found.</source>
        <translation>No se encontró el archivo %1.</translation>
    </message>
    <message>
        <source>Files (*.%1)</source>
        <translation>Archivos (*.%1)</translation>
    </message>
    <message>
        <source>No errors found in the database</source>
        <translation>No se encontraron errores en la base de datos</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Save Dictionary</source>
        <translation>Guardar diccionario</translation>
    </message>
    <message>
        <source>Do you want to save the changes in the dictionary?</source>
        <translation>¿Desea guardar los cambios del diccionario?</translation>
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
    <name>MetricReporter</name>
    <message>
        <source>Words: </source>
        <translation>Palabras: </translation>
    </message>
    <message>
        <source>Chars: </source>
        <translation>Caracteres: </translation>
    </message>
    <message>
        <source>Line: </source>
        <translation>Línea: </translation>
    </message>
    <message>
        <source>Column: </source>
        <translation>Columna: </translation>
    </message>
</context>
<context>
    <name>OneVariableLayout</name>
    <message>
        <source>Count</source>
        <translation>Casos</translation>
    </message>
    <message>
        <source>count</source>
        <translation>casos</translation>
    </message>
    <message>
        <source>Cumul%</source>
        <translation>% acumulado</translation>
    </message>
</context>
<context>
    <name>OneVariableStylePage</name>
    <message>
        <source>Show percentage column</source>
        <translation>Mostrar la columna de porcentaje</translation>
    </message>
    <message>
        <source>Show cumulative percentage column</source>
        <translation>Mostrar la columna de porcentaje acumulado</translation>
    </message>
    <message>
        <source>Show Total row</source>
        <translation>Mostrar la fila Total</translation>
    </message>
    <message>
        <source>Show N/A row</source>
        <translation>Mostrar la fila N/A</translation>
    </message>
    <message>
        <source>Show MV row</source>
        <translation>Mostrar la fila MV</translation>
    </message>
    <message>
        <source>Default (engine order)</source>
        <translation>Predeterminado (orden del motor)</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Ascendente</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Descendente</translation>
    </message>
    <message>
        <source>Row order:</source>
        <translation>Orden de las filas:</translation>
    </message>
</context>
<context>
    <name>OpenDictionaryButtonMenu</name>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Abrir...</translation>
    </message>
    <message>
        <source>Choose a dictionary file</source>
        <translation>Elegir un archivo de diccionario</translation>
    </message>
    <message>
        <source>Recent dictionaries</source>
        <translation>Diccionarios recientes</translation>
    </message>
</context>
<context>
    <name>OrderDialog</name>
    <message>
        <source>Default</source>
        <translation>Predeterminado</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Ascendente</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Descendente</translation>
    </message>
    <message>
        <source>View Options</source>
        <translation>Opciones de vista</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Orden</translation>
    </message>
</context>
<context>
    <name>PrintedFile</name>
    <message>
        <source>The pages could not be written into the folder of temporary files. Its disk may be full.</source>
        <translation>No se pudieron escribir las páginas en la carpeta de archivos temporales. Es posible que el disco esté lleno.</translation>
    </message>
</context>
<context>
    <name>ProcessExecuter</name>
    <message>
        <source>compiler syntax error</source>
        <translation>error de sintaxis del compilador</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Error</translation>
    </message>
    <message>
        <source>Program code is empty</source>
        <translation>El código del programa está vacío</translation>
    </message>
    <message>
        <source>The executing program is empty</source>
        <translation>El programa que se va a ejecutar está vacío</translation>
    </message>
    <message>
        <source>Execution Canceled</source>
        <translation>Ejecución cancelada</translation>
    </message>
    <message>
        <source>Processing</source>
        <translation>Procesando</translation>
    </message>
    <message>
        <source>Time Expected: </source>
        <translation>Tiempo previsto: </translation>
    </message>
    <message>
        <source> s - Time Elapsed: </source>
        <translation> s - Tiempo transcurrido: </translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Execution Finished</source>
        <translation>Ejecución finalizada</translation>
    </message>
    <message>
        <source>Creating Table</source>
        <translation>Creando tabulado</translation>
    </message>
    <message>
        <source>Table Created</source>
        <translation>Tabulado creado</translation>
    </message>
    <message>
        <source>Compilation successful, no errors or warnings found</source>
        <translation>Compilación correcta, no se encontraron errores ni advertencias</translation>
    </message>
    <message>
        <source>Compilation by block successful, no errors or warnings found</source>
        <translation>Compilación por bloque correcta, no se encontraron errores ni advertencias</translation>
    </message>
    <message>
        <source>Compiling...</source>
        <translation>Compilando...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Progreso de la ejecución</translation>
    </message>
    <message>
        <source>Dicctionary Selection</source>
        <translation>Selección de diccionario</translation>
    </message>
    <message>
        <source>The &lt;b&gt;Select at least one dictionary&lt;/b&gt; </source>
        <translation>&lt;b&gt;Seleccione al menos un diccionario&lt;/b&gt; </translation>
    </message>
    <message>
        <source>The program was not run, since another one had not ended.</source>
        <translation>El programa no se ejecutó porque otro aún no había terminado.</translation>
    </message>
    <message>
        <source>Execution Failed</source>
        <translation>La ejecución falló</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En ejecución</translation>
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
        <translation>&lt;b&gt;Al parecer, el formato del texto de error recibido de KelEngine no coincide con el formato definido inicialmente, por lo que no es posible ir a la línea de código donde ocurre el error&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Apply to all open and future tabs?</source>
        <translation>¿Aplicar a todas las pestañas abiertas y futuras?</translation>
    </message>
    <message>
        <source>Word wrapping</source>
        <translation>Ajuste de línea</translation>
    </message>
    <message>
        <source>Auto indentation</source>
        <translation>Sangría automática</translation>
    </message>
    <message>
        <source>Font change</source>
        <translation>Cambio de fuente</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Lenguaje:</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprimiendo</translation>
    </message>
    <message>
        <source> [Unsaved]</source>
        <translation> [Sin guardar]</translation>
    </message>
</context>
<context>
    <name>ProgramActions</name>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimir...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Salir</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Deshacer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rehacer</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Cortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Pegar</translation>
    </message>
    <message>
        <source>Find...</source>
        <translation>Buscar...</translation>
    </message>
    <message>
        <source>Replace...</source>
        <translation>Reemplazar...</translation>
    </message>
    <message>
        <source>Go To...</source>
        <translation>Ir a...</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Time/Date</source>
        <translation>Hora y fecha</translation>
    </message>
    <message>
        <source>Font...</source>
        <translation>Fuente...</translation>
    </message>
    <message>
        <source>Auto Indent</source>
        <translation>Sangría automática</translation>
    </message>
    <message>
        <source>Word Wrap</source>
        <translation>Ajuste de línea</translation>
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
        <translation>Barra de estado</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barra de herramientas</translation>
    </message>
    <message>
        <source>SyntaxClue</source>
        <translation>Ayuda de sintaxis</translation>
    </message>
    <message>
        <source>Show the available commands syntax (F8)</source>
        <translation>Mostrar la sintaxis de los comandos disponibles (F8)</translation>
    </message>
    <message>
        <source>GoTo</source>
        <translation>Ir a</translation>
    </message>
    <message>
        <source>Go to line</source>
        <translation>Ir a la línea</translation>
    </message>
    <message>
        <source>Compile</source>
        <translation>Compilar</translation>
    </message>
    <message>
        <source>Compile the program</source>
        <translation>Compilar el programa</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Ejecutar</translation>
    </message>
    <message>
        <source>Run Program</source>
        <translation>Ejecutar el programa</translation>
    </message>
    <message>
        <source>Splitter</source>
        <translation>Consola</translation>
    </message>
    <message>
        <source>Show/Hide Console</source>
        <translation>Mostrar u ocultar la consola</translation>
    </message>
    <message>
        <source>Close tab</source>
        <translation>Cerrar pestaña</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Lenguaje</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Menus of the program window</source>
        <translation>Menús de la ventana del programa</translation>
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
        <translation>No se puede guardar el archivo: </translation>
    </message>
    <message>
        <source>Untitled document</source>
        <translation>Documento sin título</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>The file %1 is open in another tab.</source>
        <translation>El archivo %1 está abierto en otra pestaña.</translation>
    </message>
    <message>
        <source>Document saved</source>
        <translation>Documento guardado</translation>
    </message>
    <message>
        <source>Do you want to save the changes to </source>
        <translation>¿Desea guardar los cambios en </translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>The file %1 is open in another window.</source>
        <translation>El archivo %1 está abierto en otra ventana.</translation>
    </message>
</context>
<context>
    <name>ProgramListRun</name>
    <message>
        <source>Current Program: </source>
        <translation>Programa actual: </translation>
    </message>
    <message>
        <source>Current Program :</source>
        <translation>Programa actual:</translation>
    </message>
    <message>
        <source>Execution Canceled</source>
        <translation>Ejecución cancelada</translation>
    </message>
    <message>
        <source>Processing</source>
        <translation>Procesando</translation>
    </message>
    <message>
        <source>Execution Finished</source>
        <translation>Ejecución finalizada</translation>
    </message>
    <message>
        <source>Creating Table</source>
        <translation>Creando tabulado</translation>
    </message>
    <message>
        <source>Table Created</source>
        <translation>Tabulado creado</translation>
    </message>
</context>
<context>
    <name>ProgramRunner</name>
    <message>
        <source>Compile</source>
        <translation>Compilar</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Ejecutar</translation>
    </message>
    <message>
        <source>Please &lt;b&gt;open &lt;/b&gt;a program file or &lt;b&gt;write&lt;/b&gt; a command </source>
        <translation>&lt;b&gt;Abra &lt;/b&gt;un archivo de programa o &lt;b&gt;escriba&lt;/b&gt; un comando </translation>
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
        <translation>El código ingresado no es suficiente para mostrar el asistente %1</translation>
    </message>
    <message>
        <source>SUGGESTION</source>
        <translation>SUGERENCIA</translation>
    </message>
    <message>
        <source>DEPRECATED</source>
        <translation>OBSOLETO</translation>
    </message>
    <message>
        <source>USE</source>
        <translation>USE</translation>
    </message>
    <message>
        <source>The directory %1 used in the %2 statement doesn&apos;t exist</source>
        <translation>La carpeta %1 usada en la sentencia %2 no existe</translation>
    </message>
</context>
<context>
    <name>ProjectToolBar</name>
    <message>
        <source>File</source>
        <translation>Archivo</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Make a new project</source>
        <translation>Crear un proyecto nuevo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open a project</source>
        <translation>Abrir un proyecto</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Guardar el proyecto</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Guardar como</translation>
    </message>
    <message>
        <source>Save the project under another name</source>
        <translation>Guardar el proyecto con otro nombre</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Proyecto</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Show and change what the project holds</source>
        <translation>Ver y modificar el contenido del proyecto</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Cerrar</translation>
    </message>
    <message>
        <source>Close the project</source>
        <translation>Cerrar el proyecto</translation>
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
        <translation>Texto del programa</translation>
    </message>
</context>
<context>
    <name>QUpdater</name>
    <message>
        <source>New version has been released!</source>
        <translation>¡Hay una nueva versión disponible!</translation>
    </message>
    <message>
        <source>Would you like to download the update now? Current application will be close</source>
        <translation>¿Desea descargar la actualización ahora? La aplicación se cerrará</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Untitled</source>
        <translation>Sin título</translation>
    </message>
    <message>
        <source>Unsaved programs</source>
        <translation>Programas sin guardar</translation>
    </message>
    <message>
        <source>Kelvora X ended before these &amp;programs were saved. Restored programs open with their changes; their files stay as they are until you save.</source>
        <translation>Kelvora X terminó antes de que se guardaran estos &amp;programas. Los programas restaurados se abren con sus cambios; sus archivos no se modifican hasta que usted los guarde.</translation>
    </message>
    <message>
        <source>Programs that were not saved</source>
        <translation>Programas que no se guardaron</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message>
        <source>Last change</source>
        <translation>Último cambio</translation>
    </message>
    <message>
        <source>State of the file</source>
        <translation>Estado del archivo</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Carpeta</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>Open the ticked programs</source>
        <translation>Abrir los programas marcados</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Descartar</translation>
    </message>
    <message>
        <source>Delete the ticked texts for good</source>
        <translation>Eliminar definitivamente los textos marcados</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>&amp;Más tarde</translation>
    </message>
    <message>
        <source>Ask again when Kelvora X starts next time</source>
        <translation>Preguntar de nuevo la próxima vez que se inicie Kelvora X</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to discard %n program(s)? The text cannot be brought back.</source>
        <translation>
            <numerusform>¿Desea descartar %n programa? El texto no se podrá recuperar.</numerusform>
            <numerusform>¿Desea descartar %n programas? El texto no se podrá recuperar.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
</context>
<context>
    <name>RecoveryRow</name>
    <message>
        <source>Was never saved</source>
        <translation>Nunca se guardó</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>El archivo ya no existe</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>No se puede leer el archivo</translation>
    </message>
    <message>
        <source>The file holds the same text</source>
        <translation>El archivo contiene el mismo texto</translation>
    </message>
    <message>
        <source>Differs from the file</source>
        <translation>Difiere del archivo</translation>
    </message>
    <message>
        <source>Differs; the file was changed later</source>
        <translation>Difiere; el archivo se modificó después</translation>
    </message>
</context>
<context>
    <name>ReportSheet</name>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Base de datos</translation>
    </message>
    <message>
        <source>Geographic Area</source>
        <translation>Área geográfica</translation>
    </message>
    <message>
        <source>Tally</source>
        <translation>Variable de conteo</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Ponderador</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Universal Filter</source>
        <translation>Filtro universal</translation>
    </message>
    <message>
        <source>Sorted (%1) by</source>
        <translation>Ordenado (%1) por</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Ascendente</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Descendente</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Clave</translation>
    </message>
    <message>
        <source>Crosstab</source>
        <translation>Cruce</translation>
    </message>
    <message>
        <source>of </source>
        <translation>de </translation>
    </message>
    <message>
        <source>by </source>
        <translation>por </translation>
    </message>
    <message>
        <source>Sorted(%1) by</source>
        <translation>Ordenado (%1) por</translation>
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
        <translation>Seleccione un tabulado</translation>
    </message>
    <message>
        <source>Export completed</source>
        <translation>Exportación finalizada</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Guardar archivo</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Seleccione la carpeta</translation>
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
        <translation>Ascendente</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Descendente</translation>
    </message>
    <message>
        <source>Sorted</source>
        <translation>Ordenado</translation>
    </message>
    <message>
        <source>by</source>
        <translation>por</translation>
    </message>
    <message>
        <source>Tally</source>
        <translation>Variable de conteo</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Ponderador</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Universal Filter</source>
        <translation>Filtro universal</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Título</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Base de datos</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Clave</translation>
    </message>
    <message>
        <source>of</source>
        <translation>de</translation>
    </message>
    <message>
        <source>Geographic Area</source>
        <translation>Área geográfica</translation>
    </message>
    <message>
        <source>Crosstab</source>
        <translation>Cruce</translation>
    </message>
</context>
<context>
    <name>ResultFaults</name>
    <message>
        <source>%1 was not written: cancelled</source>
        <translation>No se escribió %1: cancelado</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>No se escribió %1: %2</translation>
    </message>
</context>
<context>
    <name>ResultsManager</name>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>CSV (Label as header)</source>
        <translation>CSV (etiqueta como encabezado)</translation>
    </message>
    <message>
        <source>Export as CSV (Label as header)</source>
        <translation>Exportar como CSV (etiqueta como encabezado)</translation>
    </message>
    <message>
        <source>CSV (Name as header)</source>
        <translation>CSV (nombre como encabezado)</translation>
    </message>
    <message>
        <source>Export as CSV (Name as header)</source>
        <translation>Exportar como CSV (nombre como encabezado)</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>Export as JSON</source>
        <translation>Exportar como JSON</translation>
    </message>
    <message>
        <source>XLSX</source>
        <translation>XLSX</translation>
    </message>
    <message>
        <source>Export as XLSX</source>
        <translation>Exportar como XLSX</translation>
    </message>
    <message>
        <source>XML</source>
        <translation>XML</translation>
    </message>
    <message>
        <source>Export as XML</source>
        <translation>Exportar como XML</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Export as PDF</source>
        <translation>Exportar como PDF</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opciones</translation>
    </message>
    <message>
        <source>View options</source>
        <translation>Opciones de vista</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the selected cells</source>
        <translation>Copiar las celdas seleccionadas</translation>
    </message>
    <message>
        <source>No table has been selected.</source>
        <translation>No se ha seleccionado ningún tabulado.</translation>
    </message>
    <message>
        <source>Table result was exported directly.</source>
        <translation>El tabulado se exportó directamente.</translation>
    </message>
    <message>
        <source>No cells are selected</source>
        <translation>No hay celdas seleccionadas</translation>
    </message>
    <message>
        <source>Copied to clipboard</source>
        <translation>Copiado al portapapeles</translation>
    </message>
    <message>
        <source>Too many cells to copy; an export takes them all</source>
        <translation>Demasiadas celdas para copiar; una exportación las incluye todas</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabla</translation>
    </message>
    <message>
        <source>No table is shown.
Run a program, or choose a table in the tree.</source>
        <translation>No se muestra ningún tabulado.
Ejecute un programa o elija un tabulado en el árbol.</translation>
    </message>
    <message>
        <source>Runs and their tables</source>
        <translation>Ejecuciones y sus tabulados</translation>
    </message>
    <message>
        <source>Cells of the table</source>
        <translation>Celdas del tabulado</translation>
    </message>
    <message>
        <source>Report of the table</source>
        <translation>Informe del tabulado</translation>
    </message>
    <message>
        <source>Exports and options</source>
        <translation>Exportaciones y opciones</translation>
    </message>
    <message numerus="yes">
        <source>(and %n more)</source>
        <translation>
            <numerusform>(y %n más)</numerusform>
            <numerusform>(y %n más)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ResultsTreeViewContextMenu</name>
    <message>
        <source>Select all</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Deselect all</source>
        <translation>Anular la selección</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Export selected</source>
        <translation>Exportar la selección</translation>
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
        <translation>Pestañas o ventanas en el área de trabajo</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferencias</translation>
    </message>
</context>
<context>
    <name>RibbonPages</name>
    <message>
        <source>  PROJECT  </source>
        <translation>  PROYECTO  </translation>
    </message>
    <message>
        <source>  DICTIONARY  </source>
        <translation>  DICCIONARIO  </translation>
    </message>
    <message>
        <source>  FILE  </source>
        <translation>  ARCHIVO  </translation>
    </message>
    <message>
        <source>  BASIC STATISTICS  </source>
        <translation>  ESTADÍSTICAS BÁSICAS  </translation>
    </message>
    <message>
        <source>  EASY INDICATORS  </source>
        <translation>  INDICADORES FÁCILES  </translation>
    </message>
    <message>
        <source>  WINDOW  </source>
        <translation>  VENTANA  </translation>
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
        <translation>Idioma</translation>
    </message>
    <message>
        <source>Select Language</source>
        <translation>Seleccione el idioma</translation>
    </message>
</context>
<context>
    <name>SeveralVariablesStylePage</name>
    <message>
        <source>Show N/A rows/columns</source>
        <translation>Mostrar filas y columnas N/A</translation>
    </message>
    <message>
        <source>Show MV rows/columns</source>
        <translation>Mostrar filas y columnas MV</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Predeterminada</translation>
    </message>
    <message>
        <source>3-variable matrix by first variable</source>
        <translation>Matriz de 3 variables por la primera variable</translation>
    </message>
    <message>
        <source>3-variable layout:</source>
        <translation>Disposición con 3 variables:</translation>
    </message>
</context>
<context>
    <name>SheetFrame</name>
    <message>
        <source>Texts were cut off after %1 characters, which is all that a cell holds</source>
        <translation>Los textos se cortaron a los %1 caracteres, el máximo que admite una celda</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>Census and survey microdata: browse a database, make tables, charts and maps.</source>
        <translation>Microdatos de censos y encuestas: explore una base de datos, elabore tabulados, gráficos y mapas.</translation>
    </message>
    <message>
        <source>Open Dictionary...</source>
        <translation>Abrir diccionario...</translation>
    </message>
    <message>
        <source>Choose a dictionary file</source>
        <translation>Elegir un archivo de diccionario</translation>
    </message>
    <message>
        <source>Recent dictionaries</source>
        <translation>Diccionarios recientes</translation>
    </message>
    <message>
        <source>Select an entity in the tree to see its variables.</source>
        <translation>Seleccione una entidad del árbol para ver sus variables.</translation>
    </message>
    <message>
        <source>Entities of the dictionary</source>
        <translation>Entidades del diccionario</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Registros</translation>
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
        <translation>Universo</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtro</translation>
    </message>
    <message>
        <source>Limit the cases by an expression</source>
        <translation>Limitar los casos mediante una expresión</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Selección</translation>
    </message>
    <message>
        <source>Limit the areas by a selection</source>
        <translation>Limitar las áreas mediante una selección</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumen</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Estadísticas</translation>
    </message>
    <message>
        <source>Key figures of a variable</source>
        <translation>Medidas principales de una variable</translation>
    </message>
    <message>
        <source>Areas</source>
        <translation>Áreas</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Conteo</translation>
    </message>
    <message>
        <source>Count the elements of an entity by area</source>
        <translation>Contar los elementos de una entidad por área</translation>
    </message>
    <message>
        <source>Arealist</source>
        <translation>Lista de áreas</translation>
    </message>
    <message>
        <source>List figures of variables by area</source>
        <translation>Listar valores de variables por área</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>See the values case by case</source>
        <translation>Ver los valores caso por caso</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tabulados</translation>
    </message>
    <message>
        <source>Frequencies</source>
        <translation>Frecuencias</translation>
    </message>
    <message>
        <source>Frequencies of variables</source>
        <translation>Frecuencias de variables</translation>
    </message>
    <message>
        <source>Crosstab</source>
        <translation>Cruce</translation>
    </message>
    <message>
        <source>Tables of two or more variables</source>
        <translation>Cruces de dos o más variables</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>Funciones</translation>
    </message>
    <message>
        <source>Averages, medians, maxima and minima</source>
        <translation>Promedios, medianas, máximos y mínimos</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Información</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Properties of a variable</source>
        <translation>Propiedades de una variable</translation>
    </message>
    <message>
        <source>Output Summary</source>
        <translation>Resumen de salida</translation>
    </message>
    <message>
        <source>All results so far</source>
        <translation>Todos los resultados obtenidos hasta ahora</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
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
    <name>SyntaxClue</name>
    <message>
        <source>Commands</source>
        <translation>Comandos</translation>
    </message>
</context>
<context>
    <name>TabDialogVariableProperties</name>
    <message>
        <source>Properties of %1</source>
        <translation>Propiedades de %1</translation>
    </message>
    <message>
        <source>Variable definition has been modified. Save changes?
</source>
        <translation>La definición de la variable fue modificada. ¿Desea guardar los cambios?
</translation>
    </message>
</context>
<context>
    <name>TableMetadata</name>
    <message>
        <source>All Database</source>
        <translation>Toda la base de datos</translation>
    </message>
    <message numerus="yes">
        <source>%n cell(s) hidden to protect persons</source>
        <translation>
            <numerusform>%n celda oculta para proteger a las personas</numerusform>
            <numerusform>%n celdas ocultas para proteger a las personas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TableStyleEditorDialog</name>
    <message>
        <source>Table Style Editor</source>
        <translation>Editor de estilos de tabla</translation>
    </message>
    <message>
        <source>New Table Style</source>
        <translation>Nuevo estilo de tabla</translation>
    </message>
    <message>
        <source>The file %1 cannot be read as a table style. What is saved here becomes a new file.</source>
        <translation>No se puede leer el archivo %1 como estilo de tabla. Lo que se guarde aquí será un archivo nuevo.</translation>
    </message>
    <message>
        <source>This file has settings of an older form, which do not show here. Once it is saved, tables follow the settings below.</source>
        <translation>Este archivo tiene opciones de un formato anterior, que no se muestran aquí. Una vez guardado, los tabulados seguirán las opciones siguientes.</translation>
    </message>
    <message>
        <source>Table Style — %1</source>
        <translation>Estilo de tabla — %1</translation>
    </message>
    <message>
        <source>Sections of the style</source>
        <translation>Secciones del estilo</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Frequency (1 Var)</source>
        <translation>Frecuencia (1 var.)</translation>
    </message>
    <message>
        <source>Frequency (Multi Var)</source>
        <translation>Frecuencia (varias var.)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Guardar como…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save Table Style</source>
        <translation>Guardar estilo de tabla</translation>
    </message>
    <message>
        <source>Table Style (*.json);;All Files (*)</source>
        <translation>Estilo de tabla (*.json);;Todos los archivos (*)</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Error al guardar</translation>
    </message>
    <message>
        <source>Could not write file:
%1</source>
        <translation>No se pudo escribir el archivo:
%1</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Cambios sin guardar</translation>
    </message>
    <message>
        <source>The changes to this table style are not saved. Do you want to discard them?</source>
        <translation>Los cambios de este estilo de tabla no se han guardado. ¿Desea descartarlos?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation>Seguir editando</translation>
    </message>
</context>
<context>
    <name>TableStylesButtonMenu</name>
    <message>
        <source>Table style saved.

No program file is currently active.
Add this line inside the DEFINE block of your .spc:

    TABLESTYLE &quot;%1&quot;</source>
        <translation>Estilo de tabla guardado.

No hay ningún archivo de programa activo.
Agregue esta línea dentro del bloque DEFINE de su .spc:

    TABLESTYLE &quot;%1&quot;</translation>
    </message>
    <message>
        <source>TABLESTYLE line inserted into:
%1</source>
        <translation>Línea TABLESTYLE insertada en:
%1</translation>
    </message>
    <message>
        <source>Table style saved.
Could not update program file.
Add this line manually inside the DEFINE block:

    TABLESTYLE &quot;%1&quot;</source>
        <translation>Estilo de tabla guardado.
No se pudo actualizar el archivo de programa.
Agregue esta línea manualmente dentro del bloque DEFINE:

    TABLESTYLE &quot;%1&quot;</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuevo</translation>
    </message>
    <message>
        <source>Make a table style and name it in the program in front</source>
        <translation>Crear un estilo de tabla e indicarlo en el programa activo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Change a table style and name it in the program in front</source>
        <translation>Modificar un estilo de tabla e indicarlo en el programa activo</translation>
    </message>
    <message>
        <source>Open Table Style</source>
        <translation>Abrir estilo de tabla</translation>
    </message>
    <message>
        <source>Table Style (*.json);;All Files (*)</source>
        <translation>Estilo de tabla (*.json);;Todos los archivos (*)</translation>
    </message>
</context>
<context>
    <name>TecnicalVariableTab</name>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamaño</translation>
    </message>
    <message>
        <source>Decimals</source>
        <translation>Decimales</translation>
    </message>
    <message>
        <source>No applicable</source>
        <translation>No aplica</translation>
    </message>
    <message>
        <source>Missing value</source>
        <translation>Valor omitido</translation>
    </message>
    <message>
        <source>Thecnical specification</source>
        <translation>Especificación técnica</translation>
    </message>
</context>
<context>
    <name>TextFile</name>
    <message>
        <source>This is a device or a pipe, not a file.</source>
        <translation>Es un dispositivo o una canalización, no un archivo.</translation>
    </message>
    <message>
        <source>This is not a text file: line %1 has a null byte.</source>
        <translation>No es un archivo de texto: la línea %1 contiene un byte nulo.</translation>
    </message>
    <message>
        <source>The file is not encoded in UTF-8: line %1 has other bytes. Convert it to UTF-8 to open it here.</source>
        <translation>El archivo no está codificado en UTF-8: la línea %1 contiene otros bytes. Conviértalo a UTF-8 para abrirlo aquí.</translation>
    </message>
    <message>
        <source>The file is too large to be read (beyond 256 MB).</source>
        <translation>El archivo es demasiado grande para leerlo (más de 256 MB).</translation>
    </message>
</context>
<context>
    <name>TfrmDictionary</name>
    <message>
        <source>Dictionary</source>
        <translation>Diccionario</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Cargando...</translation>
    </message>
    <message>
        <source>Invalid Dictionary</source>
        <translation>Diccionario no válido</translation>
    </message>
    <message>
        <source>Error validating Dictionary:</source>
        <translation>Error al validar el diccionario:</translation>
    </message>
    <message>
        <source>Dictionary Loaded</source>
        <translation>Diccionario cargado</translation>
    </message>
    <message>
        <source>Some variable and/or entity paths could not be found!
Please, press Locate button in the Dictionary ToolBar</source>
        <translation>No se encontraron las rutas de algunas variables o entidades.
Pulse el botón Localizar de la barra Diccionario</translation>
    </message>
    <message>
        <source>Saving...</source>
        <translation>Guardando...</translation>
    </message>
    <message>
        <source>Dictionary saved</source>
        <translation>Diccionario guardado</translation>
    </message>
    <message>
        <source>Save file</source>
        <translation>Guardar archivo</translation>
    </message>
    <message>
        <source>Files (*%1)</source>
        <translation>Archivos (*%1)</translation>
    </message>
    <message>
        <source>Please, close all the windows from the application work area before exiting from the project</source>
        <translation>Cierre todas las ventanas del área de trabajo antes de salir del proyecto</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>Dictionary has been modified. Save modifications?</source>
        <translation>El diccionario fue modificado. ¿Desea guardar las modificaciones?</translation>
    </message>
</context>
<context>
    <name>TfrmProperties</name>
    <message>
        <source>Confirm</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>Entity definition has been modified. Save changes?</source>
        <translation>La definición de la entidad fue modificada. ¿Desea guardar los cambios?</translation>
    </message>
    <message>
        <source>Variable definition has been modified. Save changes?
</source>
        <translation>La definición de la variable fue modificada. ¿Desea guardar los cambios?
</translation>
    </message>
    <message>
        <source>The variable %1 is not in the dictionary any more. Your changes of it were not saved.</source>
        <translation>La variable %1 ya no está en el diccionario. No se guardaron los cambios que le hizo.</translation>
    </message>
</context>
<context>
    <name>TreeViewContextMenu</name>
    <message>
        <source>Quick View</source>
        <translation>Vista rápida</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Estadísticas</translation>
    </message>
    <message>
        <source>&lt;b&gt;Construction: Statistics variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construcción: menú contextual Estadísticas de la variable &lt;/b&gt; </translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: View context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construcción: menú contextual Ver &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Hide All Variables</source>
        <translation>Ocultar todas las variables</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Hide All Variables context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construcción: menú contextual Ocultar todas las variables &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Unhide All Variables</source>
        <translation>Mostrar todas las variables</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Unhide All Variables from context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construcción: menú contextual Mostrar todas las variables &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation>Seleccionable</translation>
    </message>
    <message>
        <source>Printing is not available yet</source>
        <translation>La impresión aún no está disponible</translation>
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
    <name>Validate</name>
    <message>
        <source>The typed character string has a length greater than 50</source>
        <translation>El texto ingresado tiene más de 50 caracteres</translation>
    </message>
    <message>
        <source>The typed character string already exists as a group name of </source>
        <translation>El texto ingresado ya existe como nombre de grupo de </translation>
    </message>
    <message>
        <source>The typed character string already exists and it is the entity </source>
        <translation>El texto ingresado ya existe y corresponde a la entidad </translation>
    </message>
    <message>
        <source>The typed character string already exists as entity alias of </source>
        <translation>El texto ingresado ya existe como alias de la entidad </translation>
    </message>
    <message>
        <source>The typed character string already exists as a variable name: </source>
        <translation>El texto ingresado ya existe como nombre de variable: </translation>
    </message>
    <message>
        <source>The typed character string already exists as variable alias of </source>
        <translation>El texto ingresado ya existe como alias de la variable </translation>
    </message>
    <message>
        <source>The typed character string is empty</source>
        <translation>El texto ingresado está vacío</translation>
    </message>
    <message>
        <source>The typed character string is a Kelvora reserved word</source>
        <translation>El texto ingresado es una palabra reservada de Kelvora</translation>
    </message>
    <message>
        <source>The typed character string contains blanks</source>
        <translation>El texto ingresado contiene espacios en blanco</translation>
    </message>
    <message>
        <source>The typed character string contains invalid characters, such as accents or special symbols</source>
        <translation>El texto ingresado contiene caracteres no válidos, como acentos o símbolos especiales</translation>
    </message>
    <message>
        <source>The variable could not be renamed, it is not a local variable</source>
        <translation>No se pudo cambiar el nombre de la variable porque no es una variable local</translation>
    </message>
</context>
<context>
    <name>VarValueLabelDiccionaryModel</name>
    <message>
        <source>The category &quot;%1&quot; has no code</source>
        <translation>La categoría &quot;%1&quot; no tiene código</translation>
    </message>
    <message>
        <source>The code %1 stands more than once in the table</source>
        <translation>El código %1 aparece más de una vez en la tabla</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
</context>
<context>
    <name>VariableDiccionaryModel</name>
    <message>
        <source>Type: %1</source>
        <translation>Tipo: %1</translation>
    </message>
    <message>
        <source>Alias: %1</source>
        <translation>Alias: %1</translation>
    </message>
    <message>
        <source>File not found: %1</source>
        <translation>Archivo no encontrado: %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nombre</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Etiqueta</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Marca</translation>
    </message>
</context>
<context>
    <name>VariableInfoView</name>
    <message>
        <source>Name: </source>
        <translation>Nombre: </translation>
    </message>
    <message>
        <source>Label: </source>
        <translation>Etiqueta: </translation>
    </message>
    <message>
        <source>Alias: </source>
        <translation>Alias: </translation>
    </message>
    <message>
        <source>Group: </source>
        <translation>Grupo: </translation>
    </message>
    <message>
        <source>Tag: </source>
        <translation>Marca: </translation>
    </message>
    <message>
        <source>Type: </source>
        <translation>Tipo: </translation>
    </message>
    <message>
        <source>Min: </source>
        <translation>Mín.: </translation>
    </message>
    <message>
        <source>Max: </source>
        <translation>Máx.: </translation>
    </message>
    <message>
        <source>NotApp: </source>
        <translation>No aplica: </translation>
    </message>
    <message>
        <source>Missing: </source>
        <translation>Omitido: </translation>
    </message>
    <message>
        <source>Variable Properties</source>
        <translation>Propiedades de la variable</translation>
    </message>
    <message>
        <source>Variable Categories</source>
        <translation>Categorías de la variable</translation>
    </message>
    <message>
        <source>Properties Documentation</source>
        <translation>Documentación de las propiedades</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentación</translation>
    </message>
</context>
<context>
    <name>VariablePropertiesQDockWidget</name>
    <message>
        <source>Error %1 sending event</source>
        <translation>Error %1 al enviar el evento</translation>
    </message>
    <message>
        <source>Variable Properties</source>
        <translation>Propiedades de la variable</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentación</translation>
    </message>
    <message>
        <source>Label:</source>
        <translation>Etiqueta:</translation>
    </message>
    <message>
        <source>Alias:</source>
        <translation>Alias:</translation>
    </message>
    <message>
        <source>Another name of the variable; Return stores it</source>
        <translation>Otro nombre de la variable; se guarda con la tecla Intro</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Grupo:</translation>
    </message>
    <message>
        <source>Variables of one group belong together; Return stores it</source>
        <translation>Las variables de un mismo grupo van juntas; se guarda con la tecla Intro</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>Marca:</translation>
    </message>
    <message>
        <source>A number of yours, 9999 at most</source>
        <translation>Un número propio, 9999 como máximo</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Oculta</translation>
    </message>
    <message>
        <source>Marks the variable as hidden in lists</source>
        <translation>Marca la variable como oculta en las listas</translation>
    </message>
    <message>
        <source>General</source>
        <translation>General</translation>
    </message>
    <message>
        <source>Variable Categories</source>
        <translation>Categorías de la variable</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Mín.</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Máx.</translation>
    </message>
    <message>
        <source>No applicable</source>
        <translation>No aplica</translation>
    </message>
    <message>
        <source>Missing value</source>
        <translation>Valor omitido</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nombre del archivo</translation>
    </message>
    <message>
        <source>Found on Disk</source>
        <translation>Se encuentra en el disco</translation>
    </message>
    <message>
        <source>Technical Spec.</source>
        <translation>Espec. técnica</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Rango</translation>
    </message>
    <message>
        <source>Kelvora native file format</source>
        <translation>Formato de archivo nativo de Kelvora</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Guardar los cambios</translation>
    </message>
</context>
<context>
    <name>VariablesContextMenu</name>
    <message>
        <source>Quick View</source>
        <translation>Vista rápida</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propiedades</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Cambiar nombre</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Eliminar</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Seleccionar todo</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frecuencia</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Estadísticas</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Statistics variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construcción: menú contextual Estadísticas de la variable &lt;/b&gt; </translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ver</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: View variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construcción: menú contextual Ver variable &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Mark as hidden</source>
        <translation>Marcar como oculta</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Mark as hidden variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construcción: menú contextual Marcar variable como oculta &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Unmark as hidden</source>
        <translation>Desmarcar como oculta</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Unmark as hidden variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construcción: menú contextual Desmarcar variable como oculta &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Group Name</source>
        <translation>Nombre del grupo</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group Frequency variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construcción: menú contextual Frecuencia de las variables del grupo &lt;/b&gt; </translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group Statisitcs variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construcción: menú contextual Estadísticas de las variables del grupo &lt;/b&gt; </translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group View variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construcción: menú contextual Ver variables del grupo &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Mark hidden</source>
        <translation>Marcar ocultas</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group Mark as hidden variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construcción: menú contextual Marcar como ocultas las variables del grupo &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Unmark hidden</source>
        <translation>Desmarcar ocultas</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group unmark as hidden variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construcción: menú contextual Desmarcar como ocultas las variables del grupo &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Confirmation screen</source>
        <translation>Confirmación</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the variable(s)?</source>
        <translation>¿Está seguro de que desea eliminar las variables seleccionadas?</translation>
    </message>
    <message>
        <source>The variable could not be deleted, it is not a local variable</source>
        <translation>No se pudo eliminar la variable porque no es una variable local</translation>
    </message>
</context>
<context>
    <name>VariablesPane</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>Filter...</source>
        <translation>Filtrar...</translation>
    </message>
    <message>
        <source>Enter a filter term, you can filter by name, alias, group, label or tag</source>
        <translation>Escriba un término para filtrar por nombre, alias, grupo, etiqueta o marca</translation>
    </message>
    <message>
        <source>Filter of the variables</source>
        <translation>Filtro de las variables</translation>
    </message>
    <message>
        <source>Variables shown</source>
        <translation>Variables mostradas</translation>
    </message>
</context>
<context>
    <name>WaitingSpinnerWidget</name>
    <message>
        <source>Busy</source>
        <translation>En proceso</translation>
    </message>
</context>
<context>
    <name>WindowToolBar</name>
    <message>
        <source>Tabs</source>
        <translation>Pestañas</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Show the windows as tabs again</source>
        <translation>Mostrar de nuevo las ventanas como pestañas</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Organizar</translation>
    </message>
    <message>
        <source>Tile vertical</source>
        <translation>Mosaico vertical</translation>
    </message>
    <message>
        <source>Place the windows side by side</source>
        <translation>Colocar las ventanas una al lado de otra</translation>
    </message>
    <message>
        <source>Tile horizontal</source>
        <translation>Mosaico horizontal</translation>
    </message>
    <message>
        <source>Place the windows above one another</source>
        <translation>Colocar las ventanas una encima de otra</translation>
    </message>
    <message>
        <source>Cascade</source>
        <translation>Cascada</translation>
    </message>
    <message>
        <source>Let the windows overlap</source>
        <translation>Superponer las ventanas</translation>
    </message>
    <message>
        <source>Minimize All</source>
        <translation>Minimizar todo</translation>
    </message>
    <message>
        <source>Minimize all windows</source>
        <translation>Minimizar todas las ventanas</translation>
    </message>
    <message>
        <source>Arrange Icons</source>
        <translation>Organizar iconos</translation>
    </message>
    <message>
        <source>Line up the minimized windows at the bottom</source>
        <translation>Alinear en la parte inferior las ventanas minimizadas</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Show the tables made so far</source>
        <translation>Mostrar los tabulados obtenidos hasta ahora</translation>
    </message>
</context>
<context>
    <name>WorkbookError</name>
    <message>
        <source>there is no room for the sheet %1</source>
        <translation>no hay espacio para la hoja %1</translation>
    </message>
    <message>
        <source>The workbook can&apos;t be written: %1.</source>
        <translation>No se puede escribir el libro: %1.</translation>
    </message>
    <message>
        <source>it did not reach the disk as a whole; is there enough space?</source>
        <translation>no llegó completo al disco; ¿hay espacio suficiente?</translation>
    </message>
    <message>
        <source>%1 needs %2 rows, more than a sheet of a workbook has. Export it as CSV.</source>
        <translation>%1 necesita %2 filas, más de las que admite una hoja de un libro. Expórtelo como CSV.</translation>
    </message>
    <message>
        <source>%1 needs %2 columns, more than a sheet of a workbook has. Export it as CSV.</source>
        <translation>%1 necesita %2 columnas, más de las que admite una hoja de un libro. Expórtelo como CSV.</translation>
    </message>
    <message>
        <source>The file that is there is no XLSX workbook. Choose another name, or replace the file.</source>
        <translation>El archivo existente no es un libro XLSX. Elija otro nombre o reemplace el archivo.</translation>
    </message>
    <message>
        <source>The workbook that is there is protected by a password or in an older format. Choose another name, or replace the file.</source>
        <translation>El libro existente está protegido con contraseña o tiene un formato anterior. Elija otro nombre o reemplace el archivo.</translation>
    </message>
    <message>
        <source>The workbook that is there is kept as Strict Open XML. Save it as a usual workbook first, or choose another name.</source>
        <translation>El libro existente está guardado como Strict Open XML. Guárdelo primero como un libro normal o elija otro nombre.</translation>
    </message>
    <message>
        <source>The workbook that is there is signed; another sheet would break the signature. Choose another name.</source>
        <translation>El libro existente está firmado; otra hoja invalidaría la firma. Elija otro nombre.</translation>
    </message>
    <message>
        <source>The workbook is open in another program. Close it there first. (If it is not, remove the file %1.)</source>
        <translation>El libro está abierto en otro programa. Ciérrelo allí primero. (Si no lo está, elimine el archivo %1.)</translation>
    </message>
    <message>
        <source>The workbook that is there is damaged (%1). Choose another name, or replace the file.</source>
        <translation>El libro existente está dañado (%1). Elija otro nombre o reemplace el archivo.</translation>
    </message>
    <message>
        <source>The workbook that is there can&apos;t take more sheets (%1 is too large). Choose another name.</source>
        <translation>El libro existente no admite más hojas (%1 es demasiado grande). Elija otro nombre.</translation>
    </message>
</context>
<context>
    <name>XmlDicxDictionary</name>
    <message>
        <source>Error by opening the dictionary file</source>
        <translation>Error al abrir el archivo del diccionario</translation>
    </message>
    <message>
        <source>Error opening dictionary [%1]</source>
        <translation>Error al abrir el diccionario [%1]</translation>
    </message>
    <message>
        <source> [%1]
</source>
        <translation> [%1]
</translation>
    </message>
    <message>
        <source>File [%2] not found</source>
        <translation>Archivo [%2] no encontrado</translation>
    </message>
    <message>
        <source>Do you want to located?</source>
        <translation>¿Desea localizarlo?</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmar</translation>
    </message>
    <message>
        <source>The same answer for the rest</source>
        <translation>La misma respuesta para los demás</translation>
    </message>
    <message>
        <source>The files relocation for *.dicx files is not yet supported in KelX</source>
        <translation>La reubicación de archivos *.dicx aún no está disponible en KelX</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidad</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message numerus="yes">
        <source>(and %n more)</source>
        <translation>
            <numerusform>(y %n más)</numerusform>
            <numerusform>(y %n más)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tt::Page</name>
    <message>
        <source>Scroll back</source>
        <translation>Desplazar hacia atrás</translation>
    </message>
    <message>
        <source>Scroll forward</source>
        <translation>Desplazar hacia adelante</translation>
    </message>
</context>
<context>
    <name>tt::TabToolbar</name>
    <message>
        <source>Ribbon</source>
        <translation>Cinta</translation>
    </message>
    <message>
        <source>Show the ribbon</source>
        <translation>Mostrar la cinta</translation>
    </message>
    <message>
        <source>Minimize the ribbon</source>
        <translation>Minimizar la cinta</translation>
    </message>
</context>
</TS>
