<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en" language="pt">
<context>
    <name>AppProperties</name>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmação</translation>
    </message>
    <message>
        <source>The changes were taken into the dictionary</source>
        <translation>As alterações foram incorporadas ao dicionário</translation>
    </message>
    <message>
        <source>EN CONSTRUCCION</source>
        <translation>EM CONSTRUÇÃO</translation>
    </message>
</context>
<context>
    <name>ArealistViewOptionsDialog</name>
    <message>
        <source>Show Totals Row</source>
        <translation>Mostrar linha de totais</translation>
    </message>
    <message>
        <source>View Options</source>
        <translation>Opções de exibição</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variáveis</translation>
    </message>
    <message>
        <source>Add a row with the sum of each column of whole numbers</source>
        <translation>Adiciona uma linha com a soma de cada coluna de números inteiros</translation>
    </message>
</context>
<context>
    <name>AverageLayout</name>
    <message>
        <source>Variable</source>
        <translation>Variável</translation>
    </message>
    <message>
        <source>Average</source>
        <translation>Média</translation>
    </message>
</context>
<context>
    <name>BottomPanel</name>
    <message>
        <source>Output</source>
        <translation>Saída</translation>
    </message>
    <message>
        <source>Messages and finding</source>
        <translation>Mensagens e busca</translation>
    </message>
</context>
<context>
    <name>CategoryTable</name>
    <message>
        <source>Lines of the clipboard that are no category: %1</source>
        <translation>Linhas da área de transferência que não são categorias: %1</translation>
    </message>
    <message>
        <source>Variable Categories</source>
        <translation>Categorias da variável</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Limpar</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Add a new row in the category table</source>
        <translation>Adicionar uma nova linha à tabela de categorias</translation>
    </message>
    <message>
        <source>Copy the category table of the variable</source>
        <translation>Copiar a tabela de categorias da variável</translation>
    </message>
    <message>
        <source>Paste the category table copied from another variable into the current one.</source>
        <translation>Colar na variável atual a tabela de categorias copiada de outra variável.</translation>
    </message>
    <message>
        <source>Remove the active row form the category table</source>
        <translation>Remover a linha ativa da tabela de categorias</translation>
    </message>
    <message>
        <source>Clear all information in the category table</source>
        <translation>Limpar todas as informações da tabela de categorias</translation>
    </message>
    <message>
        <source>Take back the last change of the category table</source>
        <translation>Desfazer a última alteração da tabela de categorias</translation>
    </message>
</context>
<context>
    <name>ColumnGroupRows</name>
    <message>
        <source>Columns at place %1</source>
        <translation>Colunas na posição %1</translation>
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
        <translation>Marcado: %1 aparece na tabela</translation>
    </message>
    <message>
        <source>%1 always shows</source>
        <translation>%1 aparece sempre</translation>
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
        <translation>Variáveis</translation>
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
        <translation>Preferências do KelX</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Páginas</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
</context>
<context>
    <name>CrossTable</name>
    <message>
        <source>This table of %1 rows and %2 columns is too large to be shown: it would have more than %3 cells. Group the categories of its variables or filter the records.</source>
        <translation>Esta tabela de %1 linhas e %2 colunas é grande demais para ser mostrada: teria mais de %3 células. É preciso agrupar as categorias das variáveis ou filtrar os registros.</translation>
    </message>
</context>
<context>
    <name>DataFileForm</name>
    <message>
        <source>Input data file for the loading process</source>
        <translation>Arquivo de dados de entrada para o processo de carga</translation>
    </message>
    <message>
        <source>Is found on disk</source>
        <translation>Encontrado no disco</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Procurar...</translation>
    </message>
    <message>
        <source>Choose another data file</source>
        <translation>Escolher outro arquivo de dados</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Todos os arquivos (*)</translation>
    </message>
</context>
<context>
    <name>DataSourceVariableTab</name>
    <message>
        <source>The relative position should be from 1 to n, where n is the size</source>
        <translation>A posição relativa deve estar entre 1 e n, onde n é o tamanho</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formato</translation>
    </message>
    <message>
        <source>Kelvora native file format</source>
        <translation>Formato de arquivo nativo do Kelvora</translation>
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
        <translation>Posição relativa</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Data Source</source>
        <translation>Fonte de dados</translation>
    </message>
</context>
<context>
    <name>DialogEntityProperties</name>
    <message>
        <source>Properties of %1</source>
        <translation>Propriedades de %1</translation>
    </message>
    <message>
        <source>Entity definition has been modified. Save changes?</source>
        <translation>A definição da entidade foi modificada. Salvar as alterações?</translation>
    </message>
</context>
<context>
    <name>DictionarySaver</name>
    <message>
        <source>There is no open dictionary.</source>
        <translation>Não há dicionário aberto.</translation>
    </message>
</context>
<context>
    <name>DictionaryToolBar</name>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Save the dictionary</source>
        <translation>Salvar o dicionário</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Salvar como</translation>
    </message>
    <message>
        <source>Save the dictionary under another name</source>
        <translation>Salvar o dicionário com outro nome</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>Dicionário</translation>
    </message>
    <message>
        <source>Locate</source>
        <translation>Localizar</translation>
    </message>
    <message>
        <source>Find the data files that are missing where the dictionary says</source>
        <translation>Procurar os arquivos de dados que não estão onde o dicionário indica</translation>
    </message>
    <message>
        <source>Consistency</source>
        <translation>Consistência</translation>
    </message>
    <message>
        <source>Check the data files against the dictionary</source>
        <translation>Verificar os arquivos de dados em relação ao dicionário</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Relatório</translation>
    </message>
    <message>
        <source>Make a report of the dictionary</source>
        <translation>Gerar um relatório do dicionário</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Close the dictionary</source>
        <translation>Fechar o dicionário</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open a dictionary, or one of the recent ones</source>
        <translation>Abrir um dicionário ou um dos recentes</translation>
    </message>
    <message>
        <source>Open Dictionary</source>
        <translation>Abrir dicionário</translation>
    </message>
    <message>
        <source>Error %s sending event</source>
        <translation>Erro %s ao enviar o evento</translation>
    </message>
    <message>
        <source>Please, you must open a dictionary beforehand</source>
        <translation>É necessário abrir antes um dicionário</translation>
    </message>
    <message>
        <source>KelX Dictionary (*.kxdb);;Kel7 Dictionary (*.dicx)</source>
        <translation>Dicionário KelX (*.kxdb);;Dicionário Kel7 (*.dicx)</translation>
    </message>
</context>
<context>
    <name>DictionaryTreeModel</name>
    <message>
        <source>File not found: %1</source>
        <translation>Arquivo não encontrado: %1</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Arquivo: %1</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>Registros: %1</translation>
    </message>
    <message>
        <source>Variables: %1</source>
        <translation>Variáveis: %1</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidade</translation>
    </message>
</context>
<context>
    <name>DictionaryUtil</name>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Não é possível gravar o arquivo %1: %2</translation>
    </message>
</context>
<context>
    <name>DirectExport</name>
    <message>
        <source>The folder %1 does not exist. %2 is written into the folder of results, %3.</source>
        <translation>A pasta %1 não existe. O arquivo %2 será gravado na pasta de resultados, %3.</translation>
    </message>
    <message>
        <source>The program gives no name of a file.</source>
        <translation>O programa não indica nenhum nome de arquivo.</translation>
    </message>
</context>
<context>
    <name>DocumentationVariableTab</name>
    <message>
        <source>Documentation</source>
        <translation>Documentação</translation>
    </message>
</context>
<context>
    <name>Editor</name>
    <message>
        <source>Program text</source>
        <translation>Texto do programa</translation>
    </message>
    <message>
        <source>Line numbers</source>
        <translation>Números de linha</translation>
    </message>
    <message>
        <source>Funcionalidad %1 en Construcción</source>
        <translation>Funcionalidade %1 em construção</translation>
    </message>
    <message>
        <source>&quot;Toggle Comment&quot;</source>
        <translation>&quot;Alternar comentário&quot;</translation>
    </message>
    <message>
        <source>&quot;Wizard Define&quot;</source>
        <translation>&quot;Assistente DEFINE&quot;</translation>
    </message>
    <message>
        <source>&quot;Wizard Table&quot;</source>
        <translation>&quot;Assistente TABLE&quot;</translation>
    </message>
    <message>
        <source>&quot;Execute Blow Up&quot;</source>
        <translation>&quot;Desdobrar EXECUTE&quot;</translation>
    </message>
    <message>
        <source>&quot;Define Frequency&quot;</source>
        <translation>&quot;Definir frequência&quot;</translation>
    </message>
    <message>
        <source>&quot;Syntax Clue&quot;</source>
        <translation>&quot;Ajuda de sintaxe&quot;</translation>
    </message>
    <message>
        <source>&quot;Edit Table&quot;</source>
        <translation>&quot;Editar tabela&quot;</translation>
    </message>
    <message>
        <source>&quot;Edit Graph&quot;</source>
        <translation>&quot;Editar gráfico&quot;</translation>
    </message>
    <message>
        <source>No results found.</source>
        <translation>Nenhum resultado encontrado.</translation>
    </message>
    <message>
        <source>No more results found.</source>
        <translation>Não há mais resultados.</translation>
    </message>
    <message>
        <source>Found %1 coincidences</source>
        <translation>Ocorrências encontradas: %1</translation>
    </message>
    <message>
        <source>Document searched. Replaced </source>
        <translation>Pesquisa no documento concluída. Foram substituídas </translation>
    </message>
    <message>
        <source> instances.</source>
        <translation> ocorrências.</translation>
    </message>
    <message>
        <source>Invalid line number.</source>
        <translation>Número de linha inválido.</translation>
    </message>
</context>
<context>
    <name>EditorContextMenu</name>
    <message>
        <source>Toggle Comment</source>
        <translation>Alternar comentário</translation>
    </message>
    <message>
        <source>Syntax clue</source>
        <translation>Ajuda de sintaxe</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Barra de ferramentas</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>Barra de status</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Saída</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Novo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Salvar como</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloco</translation>
    </message>
    <message>
        <source>Compile</source>
        <translation>Compilar</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Executar</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Executar</translation>
    </message>
    <message>
        <source>Assist</source>
        <translation>Assistente</translation>
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
        <translation>Desdobrar</translation>
    </message>
    <message>
        <source>Wizards</source>
        <translation>Assistentes</translation>
    </message>
    <message>
        <source>DEFINEs </source>
        <translation>DEFINEs </translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequência</translation>
    </message>
    <message>
        <source>Edit Style</source>
        <translation>Editar estilo</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabela</translation>
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
        <translation>Variável de código: </translation>
    </message>
    <message>
        <source>Entity cannot be selected</source>
        <translation>A entidade não pode ser selecionada</translation>
    </message>
    <message>
        <source>Entity has not Label Variable</source>
        <translation>A entidade não tem variável de rótulo</translation>
    </message>
    <message>
        <source>Label Variable: </source>
        <translation>Variável de rótulo: </translation>
    </message>
    <message>
        <source>No automatic weight</source>
        <translation>Sem ponderação automática</translation>
    </message>
    <message>
        <source>Automatic weight variable [</source>
        <translation>Variável de ponderação automática [</translation>
    </message>
    <message>
        <source>Virtual Entity - Mother is </source>
        <translation>Entidade virtual - A entidade-mãe é </translation>
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
        <translation>Entidade</translation>
    </message>
    <message>
        <source>Number of Elements</source>
        <translation>Número de elementos</translation>
    </message>
    <message>
        <source>Selected Entity</source>
        <translation>Entidade selecionada</translation>
    </message>
    <message>
        <source>Entity Properties</source>
        <translation>Propriedades da entidade</translation>
    </message>
    <message>
        <source>Expand Information</source>
        <translation>Expandir informações</translation>
    </message>
    <message>
        <source>Properties Documentation</source>
        <translation>Documentação das propriedades</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentação</translation>
    </message>
</context>
<context>
    <name>EntityPropertiesQDockWidget</name>
    <message>
        <source>Entity Properties</source>
        <translation>Propriedades da entidade</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variáveis</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Dados</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentação</translation>
    </message>
    <message>
        <source>Label:</source>
        <translation>Rótulo:</translation>
    </message>
    <message>
        <source>Alias:</source>
        <translation>Alias:</translation>
    </message>
    <message>
        <source>Another name of the entity; Return stores it</source>
        <translation>Outro nome da entidade; tecle Enter para gravá-lo</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>Marcador:</translation>
    </message>
    <message>
        <source>A number of yours, 9999 at most</source>
        <translation>Um número de uso livre, até 9999</translation>
    </message>
    <message>
        <source>Code:</source>
        <translation>Código:</translation>
    </message>
    <message>
        <source>The variable that holds the code</source>
        <translation>A variável que contém o código</translation>
    </message>
    <message>
        <source>Code size:</source>
        <translation>Tamanho do código:</translation>
    </message>
    <message>
        <source>One zero for each character of the code</source>
        <translation>Um zero para cada caractere do código</translation>
    </message>
    <message>
        <source>The variable that holds the label</source>
        <translation>A variável que contém o rótulo</translation>
    </message>
    <message>
        <source>Weight:</source>
        <translation>Peso:</translation>
    </message>
    <message>
        <source>The variable that weights tables by itself</source>
        <translation>A variável que pondera as tabelas automaticamente</translation>
    </message>
    <message>
        <source>Compound:</source>
        <translation>Código composto:</translation>
    </message>
    <message>
        <source>The codes from the top of the hierarchy down, joined</source>
        <translation>Os códigos unidos, do topo da hierarquia para baixo</translation>
    </message>
    <message>
        <source>Disclosure:</source>
        <translation>Sigilo:</translation>
    </message>
    <message>
        <source>The variable that controls disclosure</source>
        <translation>A variável que controla o sigilo estatístico</translation>
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
        <translation>Arquivo:</translation>
    </message>
    <message>
        <source>Found on disk</source>
        <translation>Encontrado no disco</translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation>Selecionável</translation>
    </message>
    <message>
        <source>May be used in selections and area lists</source>
        <translation>Pode ser usada em seleções e listas de áreas</translation>
    </message>
    <message>
        <source>Virtual</source>
        <translation>Virtual</translation>
    </message>
    <message>
        <source>SensitiveEntity</source>
        <translation>Entidade sensível</translation>
    </message>
</context>
<context>
    <name>ErrorList</name>
    <message>
        <source>Messages of the program</source>
        <translation>Mensagens do programa</translation>
    </message>
    <message>
        <source>Copy error list</source>
        <translation>Copiar a lista de erros</translation>
    </message>
    <message>
        <source>Clear error list</source>
        <translation>Limpar a lista de erros</translation>
    </message>
</context>
<context>
    <name>ExportProgress</name>
    <message>
        <source>Export</source>
        <translation>Exportação</translation>
    </message>
    <message>
        <source>Writing %1</source>
        <translation>Gravando %1</translation>
    </message>
</context>
<context>
    <name>FileChangeNotice</name>
    <message>
        <source>The file %1 was changed by another program, and this text has changes that are not saved. Saving will replace the file.

Do you want to reload the file instead?</source>
        <translation>O arquivo %1 foi alterado por outro programa, e este texto tem alterações não salvas. Ao salvar, o arquivo será substituído.

Deseja recarregar o arquivo em vez disso?</translation>
    </message>
    <message>
        <source>The file %1 was changed by another program. Do you want to reload it?</source>
        <translation>O arquivo %1 foi alterado por outro programa. Deseja recarregá-lo?</translation>
    </message>
    <message>
        <source>File changed</source>
        <translation>Arquivo alterado</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recarregar</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Manter</translation>
    </message>
    <message>
        <source>The file %1 cannot be reloaded: %2</source>
        <translation>Não é possível recarregar o arquivo %1: %2</translation>
    </message>
    <message>
        <source>The file %1 was removed by another program. Its text stays open here: save it to keep it.</source>
        <translation>O arquivo %1 foi removido por outro programa. O texto continua aberto aqui: para conservá-lo, é preciso salvá-lo.</translation>
    </message>
    <message>
        <source>The file %1 was changed by another program since it was read here. Do you want to replace it?</source>
        <translation>O arquivo %1 foi alterado por outro programa depois de ter sido lido aqui. Deseja substituí-lo?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Substituir</translation>
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
        <translation>Arquivo inválido</translation>
    </message>
    <message>
        <source>The file %1 was not found.</source>
        <translation>O arquivo %1 não foi encontrado.</translation>
    </message>
    <message>
        <source>Please, close all the windows from the application work area before changing the dictionary</source>
        <translation>Feche todas as janelas da área de trabalho do aplicativo antes de trocar de dicionário</translation>
    </message>
</context>
<context>
    <name>FileToolBar</name>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Novo</translation>
    </message>
    <message>
        <source>Begin a new program, selection or map</source>
        <translation>Iniciar um novo programa, seleção ou mapa</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open a program, selection or map</source>
        <translation>Abrir um programa, seleção ou mapa</translation>
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
        <translation>Programas na linguagem de comandos</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Seleções</translation>
    </message>
    <message>
        <source>Selections of areas</source>
        <translation>Seleções de áreas</translation>
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
        <translation>Estilos de tabela</translation>
    </message>
    <message>
        <source>How tables look</source>
        <translation>A aparência das tabelas</translation>
    </message>
    <message>
        <source>Graph Styles</source>
        <translation>Estilos de gráfico</translation>
    </message>
    <message>
        <source>How charts look</source>
        <translation>A aparência dos gráficos</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Execução</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Executar</translation>
    </message>
    <message>
        <source>Programs that run other programs</source>
        <translation>Programas que executam outros programas</translation>
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
        <translation>&amp;Seleção</translation>
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
        <translation>&amp;Seleção...</translation>
    </message>
    <message>
        <source>&amp;Map...</source>
        <translation>&amp;Mapa...</translation>
    </message>
    <message>
        <source>Recent programs</source>
        <translation>Programas recentes</translation>
    </message>
    <message>
        <source>Programs of the dictionary</source>
        <translation>Programas do dicionário</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Novo</translation>
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
        <translation>Erro %s ao enviar o evento</translation>
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
        <translation>Localizar</translation>
    </message>
    <message>
        <source>Find what: </source>
        <translation>Localizar: </translation>
    </message>
    <message>
        <source>Replace with: </source>
        <translation>Substituir por: </translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Diferenciar maiúsculas de minúsculas</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>Palavras inteiras</translation>
    </message>
    <message>
        <source>Find next</source>
        <translation>Localizar próxima</translation>
    </message>
    <message>
        <source>Find all</source>
        <translation>Localizar todas</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Substituir</translation>
    </message>
    <message>
        <source>Replace all</source>
        <translation>Substituir todas</translation>
    </message>
    <message>
        <source>Empty Field</source>
        <translation>Campo vazio</translation>
    </message>
    <message>
        <source>Please enter a query.</source>
        <translation>É necessário digitar o texto a localizar.</translation>
    </message>
</context>
<context>
    <name>FormatDialog</name>
    <message>
        <source>View Options</source>
        <translation>Opções de exibição</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordem</translation>
    </message>
</context>
<context>
    <name>GeneralEntityTab</name>
    <message>
        <source>Label:</source>
        <translation>Rótulo:</translation>
    </message>
    <message>
        <source>Alias:</source>
        <translation>Alias:</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>Marcador:</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Initial Settings</source>
        <translation>Configurações iniciais</translation>
    </message>
    <message>
        <source>All preferences, the lists of recent files and the remembered folders go back to their initial values. Do you want to continue?</source>
        <translation>Todas as preferências, as listas de arquivos recentes e as pastas memorizadas voltarão aos valores iniciais. Deseja continuar?</translation>
    </message>
    <message>
        <source>Application Language</source>
        <translation>Idioma do aplicativo</translation>
    </message>
    <message>
        <source>Select Language:</source>
        <translation>Selecione o idioma:</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Inicialização</translation>
    </message>
    <message>
        <source>Show splash form on startup</source>
        <translation>Mostrar a tela de abertura ao iniciar</translation>
    </message>
    <message>
        <source>Show Tips and Tricks form on startup</source>
        <translation>Mostrar a tela de dicas e truques ao iniciar</translation>
    </message>
    <message>
        <source>Open last dictionary on starting program</source>
        <translation>Abrir o último dicionário ao iniciar</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Menu Colors:</source>
        <translation>Cores do menu:</translation>
    </message>
    <message>
        <source>Maximum number of files in the button list</source>
        <translation>Máximo de arquivos recentes</translation>
    </message>
    <message>
        <source>Put all settings back to those of a new installation</source>
        <translation>Restaurar as configurações de uma nova instalação</translation>
    </message>
</context>
<context>
    <name>GeneralStylePage</name>
    <message>
        <source>Comma  ( , )</source>
        <translation>Vírgula  ( , )</translation>
    </message>
    <message>
        <source>Period ( . )</source>
        <translation>Ponto ( . )</translation>
    </message>
    <message>
        <source>Space  (   )</source>
        <translation>Espaço  (   )</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message>
        <source>e.g. Census2024</source>
        <translation>p. ex., Censo2024</translation>
    </message>
    <message>
        <source>Optional description</source>
        <translation>Descrição opcional</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Label:</source>
        <translation>Rótulo:</translation>
    </message>
    <message>
        <source> decimal(s)</source>
        <translation> decimal(is)</translation>
    </message>
    <message>
        <source>Numbers in this style</source>
        <translation>Números neste estilo</translation>
    </message>
    <message>
        <source>Decimals:</source>
        <translation>Decimais:</translation>
    </message>
    <message>
        <source>Thousand separator:</source>
        <translation>Separador de milhar:</translation>
    </message>
    <message>
        <source>Sample:</source>
        <translation>Exemplo:</translation>
    </message>
</context>
<context>
    <name>GeneralToolBar</name>
    <message>
        <source>Application</source>
        <translation>Aplicativo</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message>
        <source>Language, looks and habits of the program</source>
        <translation>Idioma, aparência e comportamento do aplicativo</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message>
        <source>Open the help pages in the browser</source>
        <translation>Abrir as páginas de ajuda no navegador</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Sobre</translation>
    </message>
    <message>
        <source>Versions of the program</source>
        <translation>Versões do aplicativo</translation>
    </message>
    <message>
        <source>The help pages could not be opened. You find them at %1</source>
        <translation>Não foi possível abrir as páginas de ajuda. Elas estão em %1</translation>
    </message>
</context>
<context>
    <name>GeneralVariablelTab</name>
    <message>
        <source>Label:</source>
        <translation>Rótulo:</translation>
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
        <translation>Marcador:</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Oculta</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
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
        <translation>É necessário digitar um número de linha.</translation>
    </message>
    <message>
        <source>Go To</source>
        <translation>Ir para</translation>
    </message>
    <message>
        <source>Line number: </source>
        <translation>Número da linha: </translation>
    </message>
</context>
<context>
    <name>InfoProperties</name>
    <message>
        <source>Variable</source>
        <translation>Variável</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidade</translation>
    </message>
    <message>
        <source>Quick View</source>
        <translation>Visualização rápida</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>Failed to create JSON doc.</source>
        <translation>Falha ao criar o documento JSON.</translation>
    </message>
    <message>
        <source>JSON is not an object.</source>
        <translation>O JSON não é um objeto.</translation>
    </message>
    <message>
        <source>JSON object is empty.</source>
        <translation>O objeto JSON está vazio.</translation>
    </message>
    <message>
        <source>The file %1 is too large to be read.</source>
        <translation>O arquivo %1 é grande demais para ser lido.</translation>
    </message>
    <message>
        <source>Error %s sending event</source>
        <translation>Erro %s ao enviar o evento</translation>
    </message>
</context>
<context>
    <name>KelTreeView</name>
    <message>
        <source>A entity must be selected</source>
        <translation>É necessário selecionar uma entidade</translation>
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
        <translation>EM CONSTRUÇÃO - É preciso definir se é possível excluir e o procedimento a seguir</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variáveis</translation>
    </message>
</context>
<context>
    <name>LocatePaths</name>
    <message>
        <source>Locate Paths: %1 of %2</source>
        <translation>Localizar caminhos: %1 de %2</translation>
    </message>
    <message>
        <source>Variable: </source>
        <translation>Variável: </translation>
    </message>
    <message>
        <source>Missing File: </source>
        <translation>Arquivo não encontrado: </translation>
    </message>
    <message>
        <source>Missing Path: </source>
        <translation>Caminho não encontrado: </translation>
    </message>
    <message>
        <source>Select Variable Path</source>
        <translation>Selecionar o caminho da variável</translation>
    </message>
    <message>
        <source>New Path:</source>
        <translation>Novo caminho:</translation>
    </message>
    <message>
        <source>Relocate</source>
        <translation>Relocalizar</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
    <message>
        <source>Leave this file missing and go on with the next</source>
        <translation>Deixar este arquivo sem localizar e passar ao seguinte</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Stop looking for files; what was relocated stays</source>
        <translation>Interromper a busca de arquivos; o que já foi relocalizado é mantido</translation>
    </message>
    <message>
        <source>The missing and relocated files are not the same.</source>
        <translation>O arquivo não encontrado e o relocalizado não são o mesmo.</translation>
    </message>
    <message>
        <source>The file %1 was not found.</source>
        <translation>O arquivo %1 não foi encontrado.</translation>
    </message>
    <message>
        <source>Files (*.%1)</source>
        <translation>Arquivos (*.%1)</translation>
    </message>
    <message>
        <source>No errors found in the database</source>
        <translation>Nenhum erro encontrado na base de dados</translation>
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
    <name>MetricReporter</name>
    <message>
        <source>Words: </source>
        <translation>Palavras: </translation>
    </message>
    <message>
        <source>Chars: </source>
        <translation>Caracteres: </translation>
    </message>
    <message>
        <source>Line: </source>
        <translation>Linha: </translation>
    </message>
    <message>
        <source>Column: </source>
        <translation>Coluna: </translation>
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
        <translation>% acum.</translation>
    </message>
</context>
<context>
    <name>OneVariableStylePage</name>
    <message>
        <source>Show percentage column</source>
        <translation>Mostrar coluna de percentual</translation>
    </message>
    <message>
        <source>Show cumulative percentage column</source>
        <translation>Mostrar coluna de percentual acumulado</translation>
    </message>
    <message>
        <source>Show Total row</source>
        <translation>Mostrar linha Total</translation>
    </message>
    <message>
        <source>Show N/A row</source>
        <translation>Mostrar linha N/A</translation>
    </message>
    <message>
        <source>Show MV row</source>
        <translation>Mostrar linha MV</translation>
    </message>
    <message>
        <source>Default (engine order)</source>
        <translation>Padrão (ordem do motor de cálculo)</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Crescente</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Decrescente</translation>
    </message>
    <message>
        <source>Row order:</source>
        <translation>Ordem das linhas:</translation>
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
        <translation>Escolher um arquivo de dicionário</translation>
    </message>
    <message>
        <source>Recent dictionaries</source>
        <translation>Dicionários recentes</translation>
    </message>
</context>
<context>
    <name>OrderDialog</name>
    <message>
        <source>Default</source>
        <translation>Padrão</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Crescente</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Decrescente</translation>
    </message>
    <message>
        <source>View Options</source>
        <translation>Opções de exibição</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordem</translation>
    </message>
</context>
<context>
    <name>PrintedFile</name>
    <message>
        <source>The pages could not be written into the folder of temporary files. Its disk may be full.</source>
        <translation>Não foi possível gravar as páginas na pasta de arquivos temporários. O disco pode estar cheio.</translation>
    </message>
</context>
<context>
    <name>ProcessExecuter</name>
    <message>
        <source>compiler syntax error</source>
        <translation>erro de sintaxe do compilador</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erro</translation>
    </message>
    <message>
        <source>Program code is empty</source>
        <translation>O código do programa está vazio</translation>
    </message>
    <message>
        <source>The executing program is empty</source>
        <translation>O programa a executar está vazio</translation>
    </message>
    <message>
        <source>Execution Canceled</source>
        <translation>Execução cancelada</translation>
    </message>
    <message>
        <source>Processing</source>
        <translation>Processando</translation>
    </message>
    <message>
        <source>Time Expected: </source>
        <translation>Tempo previsto: </translation>
    </message>
    <message>
        <source> s - Time Elapsed: </source>
        <translation> s - Tempo decorrido: </translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Execution Finished</source>
        <translation>Execução concluída</translation>
    </message>
    <message>
        <source>Creating Table</source>
        <translation>Criando a tabela</translation>
    </message>
    <message>
        <source>Table Created</source>
        <translation>Tabela criada</translation>
    </message>
    <message>
        <source>Compilation successful, no errors or warnings found</source>
        <translation>Compilação concluída, sem erros nem avisos</translation>
    </message>
    <message>
        <source>Compilation by block successful, no errors or warnings found</source>
        <translation>Compilação do bloco concluída, sem erros nem avisos</translation>
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
        <translation>Andamento da execução</translation>
    </message>
    <message>
        <source>Dicctionary Selection</source>
        <translation>Seleção de dicionário</translation>
    </message>
    <message>
        <source>The &lt;b&gt;Select at least one dictionary&lt;/b&gt; </source>
        <translation>É necessário &lt;b&gt;selecionar pelo menos um dicionário&lt;/b&gt; </translation>
    </message>
    <message>
        <source>The program was not run, since another one had not ended.</source>
        <translation>O programa não foi executado porque outro ainda não havia terminado.</translation>
    </message>
    <message>
        <source>Execution Failed</source>
        <translation>Falha na execução</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Em execução</translation>
    </message>
</context>
<context>
    <name>ProcessProgramSPC</name>
    <message>
        <source>Error de formato</source>
        <translation>Erro de formato</translation>
    </message>
    <message>
        <source>&lt;b&gt;Apparently the format of the error text received from the KelEngine does not match the initially defined format, so it is not possible to navigate to the line of code where the error occurs&lt;/b&gt;</source>
        <translation>&lt;b&gt;Aparentemente, o formato do texto de erro recebido do KelEngine não corresponde ao formato definido inicialmente; por isso, não é possível ir até a linha de código em que ocorre o erro&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Apply to all open and future tabs?</source>
        <translation>Aplicar a todas as guias abertas e futuras?</translation>
    </message>
    <message>
        <source>Word wrapping</source>
        <translation>Quebra automática de linha</translation>
    </message>
    <message>
        <source>Auto indentation</source>
        <translation>Recuo automático</translation>
    </message>
    <message>
        <source>Font change</source>
        <translation>Alteração da fonte</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Linguagem:</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Imprimindo</translation>
    </message>
    <message>
        <source> [Unsaved]</source>
        <translation> [Não salvo]</translation>
    </message>
</context>
<context>
    <name>ProgramActions</name>
    <message>
        <source>New</source>
        <translation>Novo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Salvar como</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimir...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Desfazer</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Refazer</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Recortar</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Colar</translation>
    </message>
    <message>
        <source>Find...</source>
        <translation>Localizar...</translation>
    </message>
    <message>
        <source>Replace...</source>
        <translation>Substituir...</translation>
    </message>
    <message>
        <source>Go To...</source>
        <translation>Ir para...</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Time/Date</source>
        <translation>Hora/data</translation>
    </message>
    <message>
        <source>Font...</source>
        <translation>Fonte...</translation>
    </message>
    <message>
        <source>Auto Indent</source>
        <translation>Recuo automático</translation>
    </message>
    <message>
        <source>Word Wrap</source>
        <translation>Quebra automática de linha</translation>
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
        <translation>Barra de status</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barra de ferramentas</translation>
    </message>
    <message>
        <source>SyntaxClue</source>
        <translation>Ajuda de sintaxe</translation>
    </message>
    <message>
        <source>Show the available commands syntax (F8)</source>
        <translation>Mostrar a sintaxe dos comandos disponíveis (F8)</translation>
    </message>
    <message>
        <source>GoTo</source>
        <translation>Ir para</translation>
    </message>
    <message>
        <source>Go to line</source>
        <translation>Ir para a linha</translation>
    </message>
    <message>
        <source>Compile</source>
        <translation>Compilar</translation>
    </message>
    <message>
        <source>Compile the program</source>
        <translation>Compilar o programa</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Executar</translation>
    </message>
    <message>
        <source>Run Program</source>
        <translation>Executar o programa</translation>
    </message>
    <message>
        <source>Splitter</source>
        <translation>Console</translation>
    </message>
    <message>
        <source>Show/Hide Console</source>
        <translation>Mostrar/ocultar o console</translation>
    </message>
    <message>
        <source>Close tab</source>
        <translation>Fechar guia</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Editar</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Formatar</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Linguagem</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Exibir</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programa</translation>
    </message>
    <message>
        <source>Menus of the program window</source>
        <translation>Menus da janela de programas</translation>
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
        <translation>Não é possível salvar o arquivo: </translation>
    </message>
    <message>
        <source>Untitled document</source>
        <translation>Documento sem título</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Salvar como</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>The file %1 is open in another tab.</source>
        <translation>O arquivo %1 está aberto em outra guia.</translation>
    </message>
    <message>
        <source>Document saved</source>
        <translation>Documento salvo</translation>
    </message>
    <message>
        <source>Do you want to save the changes to </source>
        <translation>Deseja salvar as alterações em </translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Alterações não salvas</translation>
    </message>
    <message>
        <source>The file %1 is open in another window.</source>
        <translation>O arquivo %1 está aberto em outra janela.</translation>
    </message>
</context>
<context>
    <name>ProgramListRun</name>
    <message>
        <source>Current Program: </source>
        <translation>Programa atual: </translation>
    </message>
    <message>
        <source>Current Program :</source>
        <translation>Programa atual:</translation>
    </message>
    <message>
        <source>Execution Canceled</source>
        <translation>Execução cancelada</translation>
    </message>
    <message>
        <source>Processing</source>
        <translation>Processando</translation>
    </message>
    <message>
        <source>Execution Finished</source>
        <translation>Execução concluída</translation>
    </message>
    <message>
        <source>Creating Table</source>
        <translation>Criando a tabela</translation>
    </message>
    <message>
        <source>Table Created</source>
        <translation>Tabela criada</translation>
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
        <translation>Executar</translation>
    </message>
    <message>
        <source>Please &lt;b&gt;open &lt;/b&gt;a program file or &lt;b&gt;write&lt;/b&gt; a command </source>
        <translation>É necessário &lt;b&gt;abrir &lt;/b&gt;um arquivo de programa ou &lt;b&gt;escrever&lt;/b&gt; um comando </translation>
    </message>
    <message>
        <source>Error: </source>
        <translation>Erro: </translation>
    </message>
</context>
<context>
    <name>ProgramText</name>
    <message>
        <source>The typed code is incomplete to show a %1 assistant window</source>
        <translation>O código digitado está incompleto para mostrar a janela do assistente %1</translation>
    </message>
    <message>
        <source>SUGGESTION</source>
        <translation>SUGESTÃO</translation>
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
        <translation>A pasta %1 usada na instrução %2 não existe</translation>
    </message>
</context>
<context>
    <name>ProjectToolBar</name>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Novo</translation>
    </message>
    <message>
        <source>Make a new project</source>
        <translation>Criar um novo projeto</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Open a project</source>
        <translation>Abrir um projeto</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Salvar o projeto</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Salvar como</translation>
    </message>
    <message>
        <source>Save the project under another name</source>
        <translation>Salvar o projeto com outro nome</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projeto</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Mostrar</translation>
    </message>
    <message>
        <source>Show and change what the project holds</source>
        <translation>Mostrar e alterar o conteúdo do projeto</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>Close the project</source>
        <translation>Fechar o projeto</translation>
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
        <translation>Texto do programa</translation>
    </message>
</context>
<context>
    <name>QUpdater</name>
    <message>
        <source>New version has been released!</source>
        <translation>Uma nova versão foi lançada!</translation>
    </message>
    <message>
        <source>Would you like to download the update now? Current application will be close</source>
        <translation>Deseja baixar a atualização agora? O aplicativo atual será fechado</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Untitled</source>
        <translation>Sem título</translation>
    </message>
    <message>
        <source>Unsaved programs</source>
        <translation>Programas não salvos</translation>
    </message>
    <message>
        <source>Kelvora X ended before these &amp;programs were saved. Restored programs open with their changes; their files stay as they are until you save.</source>
        <translation>O Kelvora X foi encerrado antes que estes &amp;programas fossem salvos. Os programas restaurados são abertos com suas alterações; seus arquivos permanecem como estão até que os programas sejam salvos.</translation>
    </message>
    <message>
        <source>Programs that were not saved</source>
        <translation>Programas que não foram salvos</translation>
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
        <translation>Última alteração</translation>
    </message>
    <message>
        <source>State of the file</source>
        <translation>Situação do arquivo</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Pasta</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurar</translation>
    </message>
    <message>
        <source>Open the ticked programs</source>
        <translation>Abrir os programas marcados</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Descartar</translation>
    </message>
    <message>
        <source>Delete the ticked texts for good</source>
        <translation>Excluir definitivamente os textos marcados</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>Mais &amp;tarde</translation>
    </message>
    <message>
        <source>Ask again when Kelvora X starts next time</source>
        <translation>Perguntar novamente na próxima vez que o Kelvora X for iniciado</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to discard %n program(s)? The text cannot be brought back.</source>
        <translation>
            <numerusform>Deseja descartar %n programa? O texto não poderá ser recuperado.</numerusform>
            <numerusform>Deseja descartar %n programas? O texto não poderá ser recuperado.</numerusform>
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
        <translation>Nunca foi salvo</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>O arquivo não existe mais</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Não é possível ler o arquivo</translation>
    </message>
    <message>
        <source>The file holds the same text</source>
        <translation>O arquivo contém o mesmo texto</translation>
    </message>
    <message>
        <source>Differs from the file</source>
        <translation>Difere do arquivo</translation>
    </message>
    <message>
        <source>Differs; the file was changed later</source>
        <translation>Difere; o arquivo foi alterado depois</translation>
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
        <translation>Base de dados</translation>
    </message>
    <message>
        <source>Geographic Area</source>
        <translation>Área geográfica</translation>
    </message>
    <message>
        <source>Tally</source>
        <translation>Contagem</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
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
        <translation>Ordenação (%1) por</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Crescente</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Decrescente</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidade</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Chave</translation>
    </message>
    <message>
        <source>Crosstab</source>
        <translation>Cruzamento</translation>
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
        <translation>É necessário selecionar uma tabela</translation>
    </message>
    <message>
        <source>Export completed</source>
        <translation>Exportação concluída</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Salvar arquivo</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Selecionar pasta</translation>
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
        <translation>Crescente</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Decrescente</translation>
    </message>
    <message>
        <source>Sorted</source>
        <translation>Ordenação</translation>
    </message>
    <message>
        <source>by</source>
        <translation>por</translation>
    </message>
    <message>
        <source>Tally</source>
        <translation>Contagem</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Peso</translation>
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
        <translation>Base de dados</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidade</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Chave</translation>
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
        <translation>Cruzamento</translation>
    </message>
</context>
<context>
    <name>ResultFaults</name>
    <message>
        <source>%1 was not written: cancelled</source>
        <translation>%1 não foi gravado: operação cancelada</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 não foi gravado: %2</translation>
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
        <translation>CSV (rótulo no cabeçalho)</translation>
    </message>
    <message>
        <source>Export as CSV (Label as header)</source>
        <translation>Exportar como CSV (rótulo no cabeçalho)</translation>
    </message>
    <message>
        <source>CSV (Name as header)</source>
        <translation>CSV (nome no cabeçalho)</translation>
    </message>
    <message>
        <source>Export as CSV (Name as header)</source>
        <translation>Exportar como CSV (nome no cabeçalho)</translation>
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
        <translation>Opções</translation>
    </message>
    <message>
        <source>View options</source>
        <translation>Opções de exibição</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Copy the selected cells</source>
        <translation>Copiar as células selecionadas</translation>
    </message>
    <message>
        <source>No table has been selected.</source>
        <translation>Nenhuma tabela foi selecionada.</translation>
    </message>
    <message>
        <source>Table result was exported directly.</source>
        <translation>O resultado da tabela foi exportado diretamente.</translation>
    </message>
    <message>
        <source>No cells are selected</source>
        <translation>Nenhuma célula selecionada</translation>
    </message>
    <message>
        <source>Copied to clipboard</source>
        <translation>Copiado para a área de transferência</translation>
    </message>
    <message>
        <source>Too many cells to copy; an export takes them all</source>
        <translation>Há células demais para copiar; a exportação inclui todas</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Lista</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tabela</translation>
    </message>
    <message>
        <source>No table is shown.
Run a program, or choose a table in the tree.</source>
        <translation>Nenhuma tabela em exibição.
É preciso executar um programa ou escolher uma tabela na árvore.</translation>
    </message>
    <message>
        <source>Runs and their tables</source>
        <translation>Execuções e suas tabelas</translation>
    </message>
    <message>
        <source>Cells of the table</source>
        <translation>Células da tabela</translation>
    </message>
    <message>
        <source>Report of the table</source>
        <translation>Relatório da tabela</translation>
    </message>
    <message>
        <source>Exports and options</source>
        <translation>Exportações e opções</translation>
    </message>
    <message numerus="yes">
        <source>(and %n more)</source>
        <translation>
            <numerusform>(e mais %n)</numerusform>
            <numerusform>(e mais %n)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ResultsTreeViewContextMenu</name>
    <message>
        <source>Select all</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Deselect all</source>
        <translation>Desmarcar tudo</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message>
        <source>Export selected</source>
        <translation>Exportar seleção</translation>
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
        <translation>Guias ou janelas na área de trabalho</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
</context>
<context>
    <name>RibbonPages</name>
    <message>
        <source>  PROJECT  </source>
        <translation>  PROJETO  </translation>
    </message>
    <message>
        <source>  DICTIONARY  </source>
        <translation>  DICIONÁRIO  </translation>
    </message>
    <message>
        <source>  FILE  </source>
        <translation>  ARQUIVO  </translation>
    </message>
    <message>
        <source>  BASIC STATISTICS  </source>
        <translation>  ESTATÍSTICAS BÁSICAS  </translation>
    </message>
    <message>
        <source>  EASY INDICATORS  </source>
        <translation>  INDICADORES FÁCEIS  </translation>
    </message>
    <message>
        <source>  WINDOW  </source>
        <translation>  JANELA  </translation>
    </message>
    <message>
        <source>  GENERAL  </source>
        <translation>  GERAL  </translation>
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
    <name>SeveralVariablesStylePage</name>
    <message>
        <source>Show N/A rows/columns</source>
        <translation>Mostrar linhas/colunas N/A</translation>
    </message>
    <message>
        <source>Show MV rows/columns</source>
        <translation>Mostrar linhas/colunas MV</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Padrão</translation>
    </message>
    <message>
        <source>3-variable matrix by first variable</source>
        <translation>Matriz de 3 variáveis pela primeira variável</translation>
    </message>
    <message>
        <source>3-variable layout:</source>
        <translation>Disposição com 3 variáveis:</translation>
    </message>
</context>
<context>
    <name>SheetFrame</name>
    <message>
        <source>Texts were cut off after %1 characters, which is all that a cell holds</source>
        <translation>Textos truncados após %1 caracteres, o máximo que uma célula comporta</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>Census and survey microdata: browse a database, make tables, charts and maps.</source>
        <translation>Microdados de censos e pesquisas: explorar uma base de dados, elaborar tabelas, gráficos e mapas.</translation>
    </message>
    <message>
        <source>Open Dictionary...</source>
        <translation>Abrir dicionário...</translation>
    </message>
    <message>
        <source>Choose a dictionary file</source>
        <translation>Escolher um arquivo de dicionário</translation>
    </message>
    <message>
        <source>Recent dictionaries</source>
        <translation>Dicionários recentes</translation>
    </message>
    <message>
        <source>Select an entity in the tree to see its variables.</source>
        <translation>Selecione uma entidade na árvore para ver suas variáveis.</translation>
    </message>
    <message>
        <source>Entities of the dictionary</source>
        <translation>Entidades do dicionário</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidade</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Rótulo</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Registros</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variáveis</translation>
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
        <translation>Restringir os casos por meio de uma expressão</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Seleção</translation>
    </message>
    <message>
        <source>Limit the areas by a selection</source>
        <translation>Restringir as áreas por meio de uma seleção</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Resumo</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Estatísticas</translation>
    </message>
    <message>
        <source>Key figures of a variable</source>
        <translation>Medidas-resumo de uma variável</translation>
    </message>
    <message>
        <source>Areas</source>
        <translation>Áreas</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Contagem</translation>
    </message>
    <message>
        <source>Count the elements of an entity by area</source>
        <translation>Contar os elementos de uma entidade por área</translation>
    </message>
    <message>
        <source>Arealist</source>
        <translation>Lista de áreas</translation>
    </message>
    <message>
        <source>List figures of variables by area</source>
        <translation>Listar valores de variáveis por área</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Visualizar</translation>
    </message>
    <message>
        <source>See the values case by case</source>
        <translation>Ver os valores caso a caso</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tabelas</translation>
    </message>
    <message>
        <source>Frequencies</source>
        <translation>Frequências</translation>
    </message>
    <message>
        <source>Frequencies of variables</source>
        <translation>Frequências de variáveis</translation>
    </message>
    <message>
        <source>Crosstab</source>
        <translation>Cruzamento</translation>
    </message>
    <message>
        <source>Tables of two or more variables</source>
        <translation>Tabelas de duas ou mais variáveis</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>Funções</translation>
    </message>
    <message>
        <source>Averages, medians, maxima and minima</source>
        <translation>Médias, medianas, máximos e mínimos</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informações</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variável</translation>
    </message>
    <message>
        <source>Properties of a variable</source>
        <translation>Propriedades de uma variável</translation>
    </message>
    <message>
        <source>Output Summary</source>
        <translation>Resumo da saída</translation>
    </message>
    <message>
        <source>All results so far</source>
        <translation>Todos os resultados obtidos até o momento</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>Progress</source>
        <translation>Progresso</translation>
    </message>
    <message>
        <source>Open dictionary</source>
        <translation>Dicionário aberto</translation>
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
        <translation>Propriedades de %1</translation>
    </message>
    <message>
        <source>Variable definition has been modified. Save changes?
</source>
        <translation>A definição da variável foi modificada. Salvar as alterações?
</translation>
    </message>
</context>
<context>
    <name>TableMetadata</name>
    <message>
        <source>All Database</source>
        <translation>Toda a base de dados</translation>
    </message>
    <message numerus="yes">
        <source>%n cell(s) hidden to protect persons</source>
        <translation>
            <numerusform>%n célula oculta para preservar o sigilo das pessoas</numerusform>
            <numerusform>%n células ocultas para preservar o sigilo das pessoas</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TableStyleEditorDialog</name>
    <message>
        <source>Table Style Editor</source>
        <translation>Editor de estilos de tabela</translation>
    </message>
    <message>
        <source>New Table Style</source>
        <translation>Novo estilo de tabela</translation>
    </message>
    <message>
        <source>The file %1 cannot be read as a table style. What is saved here becomes a new file.</source>
        <translation>Não é possível ler o arquivo %1 como estilo de tabela. O que for salvo aqui será um novo arquivo.</translation>
    </message>
    <message>
        <source>This file has settings of an older form, which do not show here. Once it is saved, tables follow the settings below.</source>
        <translation>Este arquivo tem configurações de um formato anterior, que não são mostradas aqui. Depois que ele for salvo, as tabelas seguirão as configurações abaixo.</translation>
    </message>
    <message>
        <source>Table Style — %1</source>
        <translation>Estilo de tabela — %1</translation>
    </message>
    <message>
        <source>Sections of the style</source>
        <translation>Seções do estilo</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Frequency (1 Var)</source>
        <translation>Frequência (1 var.)</translation>
    </message>
    <message>
        <source>Frequency (Multi Var)</source>
        <translation>Frequência (várias var.)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Salvar como…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Save Table Style</source>
        <translation>Salvar estilo de tabela</translation>
    </message>
    <message>
        <source>Table Style (*.json);;All Files (*)</source>
        <translation>Estilo de tabela (*.json);;Todos os arquivos (*)</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Erro ao salvar</translation>
    </message>
    <message>
        <source>Could not write file:
%1</source>
        <translation>Não foi possível gravar o arquivo:
%1</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Alterações não salvas</translation>
    </message>
    <message>
        <source>The changes to this table style are not saved. Do you want to discard them?</source>
        <translation>As alterações deste estilo de tabela não foram salvas. Deseja descartá-las?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Descartar</translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation>Continuar editando</translation>
    </message>
</context>
<context>
    <name>TableStylesButtonMenu</name>
    <message>
        <source>Table style saved.

No program file is currently active.
Add this line inside the DEFINE block of your .spc:

    TABLESTYLE &quot;%1&quot;</source>
        <translation>Estilo de tabela salvo.

Nenhum arquivo de programa está ativo no momento.
É preciso adicionar esta linha ao bloco DEFINE do arquivo .spc:

    TABLESTYLE &quot;%1&quot;</translation>
    </message>
    <message>
        <source>TABLESTYLE line inserted into:
%1</source>
        <translation>Linha TABLESTYLE inserida em:
%1</translation>
    </message>
    <message>
        <source>Table style saved.
Could not update program file.
Add this line manually inside the DEFINE block:

    TABLESTYLE &quot;%1&quot;</source>
        <translation>Estilo de tabela salvo.
Não foi possível atualizar o arquivo de programa.
É preciso adicionar manualmente esta linha ao bloco DEFINE:

    TABLESTYLE &quot;%1&quot;</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Novo</translation>
    </message>
    <message>
        <source>Make a table style and name it in the program in front</source>
        <translation>Criar um estilo de tabela e indicá-lo no programa ativo</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>Change a table style and name it in the program in front</source>
        <translation>Alterar um estilo de tabela e indicá-lo no programa ativo</translation>
    </message>
    <message>
        <source>Open Table Style</source>
        <translation>Abrir estilo de tabela</translation>
    </message>
    <message>
        <source>Table Style (*.json);;All Files (*)</source>
        <translation>Estilo de tabela (*.json);;Todos os arquivos (*)</translation>
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
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Decimals</source>
        <translation>Decimais</translation>
    </message>
    <message>
        <source>No applicable</source>
        <translation>Não aplicável</translation>
    </message>
    <message>
        <source>Missing value</source>
        <translation>Valor ignorado</translation>
    </message>
    <message>
        <source>Thecnical specification</source>
        <translation>Especificação técnica</translation>
    </message>
</context>
<context>
    <name>TextFile</name>
    <message>
        <source>This is a device or a pipe, not a file.</source>
        <translation>Este é um dispositivo ou um pipe, não um arquivo.</translation>
    </message>
    <message>
        <source>This is not a text file: line %1 has a null byte.</source>
        <translation>Este não é um arquivo de texto: a linha %1 contém um byte nulo.</translation>
    </message>
    <message>
        <source>The file is not encoded in UTF-8: line %1 has other bytes. Convert it to UTF-8 to open it here.</source>
        <translation>O arquivo não está codificado em UTF-8: a linha %1 contém outros bytes. É preciso convertê-lo para UTF-8 para abri-lo aqui.</translation>
    </message>
    <message>
        <source>The file is too large to be read (beyond 256 MB).</source>
        <translation>O arquivo é grande demais para ser lido (acima de 256 MB).</translation>
    </message>
</context>
<context>
    <name>TfrmDictionary</name>
    <message>
        <source>Dictionary</source>
        <translation>Dicionário</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variáveis</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Carregando...</translation>
    </message>
    <message>
        <source>Invalid Dictionary</source>
        <translation>Dicionário inválido</translation>
    </message>
    <message>
        <source>Error validating Dictionary:</source>
        <translation>Erro ao validar o dicionário:</translation>
    </message>
    <message>
        <source>Dictionary Loaded</source>
        <translation>Dicionário carregado</translation>
    </message>
    <message>
        <source>Some variable and/or entity paths could not be found!
Please, press Locate button in the Dictionary ToolBar</source>
        <translation>Alguns caminhos de variáveis e/ou entidades não foram encontrados!
Use o botão Localizar da barra Dicionário</translation>
    </message>
    <message>
        <source>Saving...</source>
        <translation>Salvando...</translation>
    </message>
    <message>
        <source>Dictionary saved</source>
        <translation>Dicionário salvo</translation>
    </message>
    <message>
        <source>Save file</source>
        <translation>Salvar arquivo</translation>
    </message>
    <message>
        <source>Files (*%1)</source>
        <translation>Arquivos (*%1)</translation>
    </message>
    <message>
        <source>Please, close all the windows from the application work area before exiting from the project</source>
        <translation>Feche todas as janelas da área de trabalho do aplicativo antes de sair do projeto</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmação</translation>
    </message>
    <message>
        <source>Dictionary has been modified. Save modifications?</source>
        <translation>O dicionário foi modificado. Salvar as modificações?</translation>
    </message>
</context>
<context>
    <name>TfrmProperties</name>
    <message>
        <source>Confirm</source>
        <translation>Confirmação</translation>
    </message>
    <message>
        <source>Entity definition has been modified. Save changes?</source>
        <translation>A definição da entidade foi modificada. Salvar as alterações?</translation>
    </message>
    <message>
        <source>Variable definition has been modified. Save changes?
</source>
        <translation>A definição da variável foi modificada. Salvar as alterações?
</translation>
    </message>
    <message>
        <source>The variable %1 is not in the dictionary any more. Your changes of it were not saved.</source>
        <translation>A variável %1 não está mais no dicionário. As alterações feitas nela não foram salvas.</translation>
    </message>
</context>
<context>
    <name>TreeViewContextMenu</name>
    <message>
        <source>Quick View</source>
        <translation>Visualização rápida</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriedades</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimir</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequência</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Estatísticas</translation>
    </message>
    <message>
        <source>&lt;b&gt;Construction: Statistics variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Em construção: Estatísticas, menu de contexto da variável &lt;/b&gt; </translation>
    </message>
    <message>
        <source>View</source>
        <translation>Visualizar</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: View context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Em construção: Visualizar, menu de contexto &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Hide All Variables</source>
        <translation>Ocultar todas as variáveis</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Hide All Variables context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Em construção: Ocultar todas as variáveis, menu de contexto &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Unhide All Variables</source>
        <translation>Reexibir todas as variáveis</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Unhide All Variables from context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Em construção: Reexibir todas as variáveis, menu de contexto &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation>Selecionável</translation>
    </message>
    <message>
        <source>Printing is not available yet</source>
        <translation>A impressão ainda não está disponível</translation>
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
        <translation>O texto digitado tem mais de 50 caracteres</translation>
    </message>
    <message>
        <source>The typed character string already exists as a group name of </source>
        <translation>O texto digitado já existe como nome de grupo de </translation>
    </message>
    <message>
        <source>The typed character string already exists and it is the entity </source>
        <translation>O texto digitado já existe e corresponde à entidade </translation>
    </message>
    <message>
        <source>The typed character string already exists as entity alias of </source>
        <translation>O texto digitado já existe como alias da entidade </translation>
    </message>
    <message>
        <source>The typed character string already exists as a variable name: </source>
        <translation>O texto digitado já existe como nome de variável: </translation>
    </message>
    <message>
        <source>The typed character string already exists as variable alias of </source>
        <translation>O texto digitado já existe como alias da variável </translation>
    </message>
    <message>
        <source>The typed character string is empty</source>
        <translation>O texto digitado está vazio</translation>
    </message>
    <message>
        <source>The typed character string is a Kelvora reserved word</source>
        <translation>O texto digitado é uma palavra reservada do Kelvora</translation>
    </message>
    <message>
        <source>The typed character string contains blanks</source>
        <translation>O texto digitado contém espaços em branco</translation>
    </message>
    <message>
        <source>The typed character string contains invalid characters, such as accents or special symbols</source>
        <translation>O texto digitado contém caracteres inválidos, como acentos ou símbolos especiais</translation>
    </message>
    <message>
        <source>The variable could not be renamed, it is not a local variable</source>
        <translation>Não foi possível renomear a variável: não é uma variável local</translation>
    </message>
</context>
<context>
    <name>VarValueLabelDiccionaryModel</name>
    <message>
        <source>The category &quot;%1&quot; has no code</source>
        <translation>A categoria &quot;%1&quot; não tem código</translation>
    </message>
    <message>
        <source>The code %1 stands more than once in the table</source>
        <translation>O código %1 aparece mais de uma vez na tabela</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Código</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Rótulo</translation>
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
        <translation>Arquivo não encontrado: %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
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
        <translation>Rótulo</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Marcador</translation>
    </message>
</context>
<context>
    <name>VariableInfoView</name>
    <message>
        <source>Name: </source>
        <translation>Nome: </translation>
    </message>
    <message>
        <source>Label: </source>
        <translation>Rótulo: </translation>
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
        <translation>Marcador: </translation>
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
        <translation>Não aplic.: </translation>
    </message>
    <message>
        <source>Missing: </source>
        <translation>Ignorado: </translation>
    </message>
    <message>
        <source>Variable Properties</source>
        <translation>Propriedades da variável</translation>
    </message>
    <message>
        <source>Variable Categories</source>
        <translation>Categorias da variável</translation>
    </message>
    <message>
        <source>Properties Documentation</source>
        <translation>Documentação das propriedades</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentação</translation>
    </message>
</context>
<context>
    <name>VariablePropertiesQDockWidget</name>
    <message>
        <source>Error %1 sending event</source>
        <translation>Erro %1 ao enviar o evento</translation>
    </message>
    <message>
        <source>Variable Properties</source>
        <translation>Propriedades da variável</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentação</translation>
    </message>
    <message>
        <source>Label:</source>
        <translation>Rótulo:</translation>
    </message>
    <message>
        <source>Alias:</source>
        <translation>Alias:</translation>
    </message>
    <message>
        <source>Another name of the variable; Return stores it</source>
        <translation>Outro nome da variável; tecle Enter para gravá-lo</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Grupo:</translation>
    </message>
    <message>
        <source>Variables of one group belong together; Return stores it</source>
        <translation>As variáveis de um grupo formam um conjunto; tecle Enter para gravar o grupo</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>Marcador:</translation>
    </message>
    <message>
        <source>A number of yours, 9999 at most</source>
        <translation>Um número de uso livre, até 9999</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Oculta</translation>
    </message>
    <message>
        <source>Marks the variable as hidden in lists</source>
        <translation>Marca a variável como oculta nas listas</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Geral</translation>
    </message>
    <message>
        <source>Variable Categories</source>
        <translation>Categorias da variável</translation>
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
        <translation>Não aplicável</translation>
    </message>
    <message>
        <source>Missing value</source>
        <translation>Valor ignorado</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nome do arquivo</translation>
    </message>
    <message>
        <source>Found on Disk</source>
        <translation>Encontrado no disco</translation>
    </message>
    <message>
        <source>Technical Spec.</source>
        <translation>Espec. técnica</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Intervalo</translation>
    </message>
    <message>
        <source>Kelvora native file format</source>
        <translation>Formato de arquivo nativo do Kelvora</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Salvar as alterações</translation>
    </message>
</context>
<context>
    <name>VariablesContextMenu</name>
    <message>
        <source>Quick View</source>
        <translation>Visualização rápida</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriedades</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renomear</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Excluir</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Selecionar tudo</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Frequência</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Estatísticas</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Statistics variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Em construção: Estatísticas, menu de contexto da variável &lt;/b&gt; </translation>
    </message>
    <message>
        <source>View</source>
        <translation>Visualizar</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: View variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Em construção: Visualizar, menu de contexto da variável &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Mark as hidden</source>
        <translation>Marcar como oculta</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Mark as hidden variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Em construção: Marcar como oculta, menu de contexto da variável &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Unmark as hidden</source>
        <translation>Desmarcar como oculta</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Unmark as hidden variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Em construção: Desmarcar como oculta, menu de contexto da variável &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Grupo</translation>
    </message>
    <message>
        <source>Group Name</source>
        <translation>Nome do grupo</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group Frequency variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Em construção: Frequência do grupo, menu de contexto da variável &lt;/b&gt; </translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group Statisitcs variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Em construção: Estatísticas do grupo, menu de contexto da variável &lt;/b&gt; </translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group View variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Em construção: Visualizar o grupo, menu de contexto da variável &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Mark hidden</source>
        <translation>Marcar como ocultas</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group Mark as hidden variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Em construção: Marcar o grupo como oculto, menu de contexto da variável &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Unmark hidden</source>
        <translation>Desmarcar como ocultas</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group unmark as hidden variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;Em construção: Desmarcar o grupo como oculto, menu de contexto da variável &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Confirmation screen</source>
        <translation>Tela de confirmação</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the variable(s)?</source>
        <translation>Confirma a exclusão da(s) variável(is)?</translation>
    </message>
    <message>
        <source>The variable could not be deleted, it is not a local variable</source>
        <translation>Não foi possível excluir a variável: não é uma variável local</translation>
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
        <translation>Digite um termo de filtro; é possível filtrar por nome, alias, grupo, rótulo ou marcador</translation>
    </message>
    <message>
        <source>Filter of the variables</source>
        <translation>Filtro das variáveis</translation>
    </message>
    <message>
        <source>Variables shown</source>
        <translation>Variáveis mostradas</translation>
    </message>
</context>
<context>
    <name>WaitingSpinnerWidget</name>
    <message>
        <source>Busy</source>
        <translation>Ocupado</translation>
    </message>
</context>
<context>
    <name>WindowToolBar</name>
    <message>
        <source>Tabs</source>
        <translation>Guias</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurar</translation>
    </message>
    <message>
        <source>Show the windows as tabs again</source>
        <translation>Mostrar novamente as janelas como guias</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Organizar</translation>
    </message>
    <message>
        <source>Tile vertical</source>
        <translation>Na vertical</translation>
    </message>
    <message>
        <source>Place the windows side by side</source>
        <translation>Dispor as janelas lado a lado</translation>
    </message>
    <message>
        <source>Tile horizontal</source>
        <translation>Na horizontal</translation>
    </message>
    <message>
        <source>Place the windows above one another</source>
        <translation>Dispor as janelas uma acima da outra</translation>
    </message>
    <message>
        <source>Cascade</source>
        <translation>Em cascata</translation>
    </message>
    <message>
        <source>Let the windows overlap</source>
        <translation>Sobrepor as janelas</translation>
    </message>
    <message>
        <source>Minimize All</source>
        <translation>Minimizar todas</translation>
    </message>
    <message>
        <source>Minimize all windows</source>
        <translation>Minimizar todas as janelas</translation>
    </message>
    <message>
        <source>Arrange Icons</source>
        <translation>Organizar ícones</translation>
    </message>
    <message>
        <source>Line up the minimized windows at the bottom</source>
        <translation>Alinhar as janelas minimizadas na parte inferior</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
    <message>
        <source>Show the tables made so far</source>
        <translation>Mostrar as tabelas geradas até o momento</translation>
    </message>
</context>
<context>
    <name>WorkbookError</name>
    <message>
        <source>there is no room for the sheet %1</source>
        <translation>não há espaço para a planilha %1</translation>
    </message>
    <message>
        <source>The workbook can&apos;t be written: %1.</source>
        <translation>Não é possível gravar a pasta de trabalho: %1.</translation>
    </message>
    <message>
        <source>it did not reach the disk as a whole; is there enough space?</source>
        <translation>ela não foi gravada por completo no disco; há espaço suficiente?</translation>
    </message>
    <message>
        <source>%1 needs %2 rows, more than a sheet of a workbook has. Export it as CSV.</source>
        <translation>%1 requer %2 linhas, mais do que comporta uma planilha da pasta de trabalho. É preciso exportar como CSV.</translation>
    </message>
    <message>
        <source>%1 needs %2 columns, more than a sheet of a workbook has. Export it as CSV.</source>
        <translation>%1 requer %2 colunas, mais do que comporta uma planilha da pasta de trabalho. É preciso exportar como CSV.</translation>
    </message>
    <message>
        <source>The file that is there is no XLSX workbook. Choose another name, or replace the file.</source>
        <translation>O arquivo existente não é uma pasta de trabalho XLSX. É preciso escolher outro nome ou substituir o arquivo.</translation>
    </message>
    <message>
        <source>The workbook that is there is protected by a password or in an older format. Choose another name, or replace the file.</source>
        <translation>A pasta de trabalho existente está protegida por senha ou em um formato anterior. É preciso escolher outro nome ou substituir o arquivo.</translation>
    </message>
    <message>
        <source>The workbook that is there is kept as Strict Open XML. Save it as a usual workbook first, or choose another name.</source>
        <translation>A pasta de trabalho existente está no formato Strict Open XML. É preciso salvá-la antes como pasta de trabalho comum ou escolher outro nome.</translation>
    </message>
    <message>
        <source>The workbook that is there is signed; another sheet would break the signature. Choose another name.</source>
        <translation>A pasta de trabalho existente está assinada; outra planilha invalidaria a assinatura. É preciso escolher outro nome.</translation>
    </message>
    <message>
        <source>The workbook is open in another program. Close it there first. (If it is not, remove the file %1.)</source>
        <translation>A pasta de trabalho está aberta em outro programa. É preciso fechá-la nele antes. (Se não estiver aberta, basta remover o arquivo %1.)</translation>
    </message>
    <message>
        <source>The workbook that is there is damaged (%1). Choose another name, or replace the file.</source>
        <translation>A pasta de trabalho existente está danificada (%1). É preciso escolher outro nome ou substituir o arquivo.</translation>
    </message>
    <message>
        <source>The workbook that is there can&apos;t take more sheets (%1 is too large). Choose another name.</source>
        <translation>A pasta de trabalho existente não comporta mais planilhas (%1 é grande demais). É preciso escolher outro nome.</translation>
    </message>
</context>
<context>
    <name>XmlDicxDictionary</name>
    <message>
        <source>Error by opening the dictionary file</source>
        <translation>Erro ao abrir o arquivo do dicionário</translation>
    </message>
    <message>
        <source>Error opening dictionary [%1]</source>
        <translation>Erro ao abrir o dicionário [%1]</translation>
    </message>
    <message>
        <source> [%1]
</source>
        <translation> [%1]
</translation>
    </message>
    <message>
        <source>File [%2] not found</source>
        <translation>Arquivo [%2] não encontrado</translation>
    </message>
    <message>
        <source>Do you want to located?</source>
        <translation>Deseja localizá-lo?</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmação</translation>
    </message>
    <message>
        <source>The same answer for the rest</source>
        <translation>A mesma resposta para os demais</translation>
    </message>
    <message>
        <source>The files relocation for *.dicx files is not yet supported in KelX</source>
        <translation>A relocalização de arquivos em dicionários *.dicx ainda não está disponível no KelX</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidade</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variável</translation>
    </message>
    <message numerus="yes">
        <source>(and %n more)</source>
        <translation>
            <numerusform>(e mais %n)</numerusform>
            <numerusform>(e mais %n)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tt::Page</name>
    <message>
        <source>Scroll back</source>
        <translation>Rolar para trás</translation>
    </message>
    <message>
        <source>Scroll forward</source>
        <translation>Rolar para a frente</translation>
    </message>
</context>
<context>
    <name>tt::TabToolbar</name>
    <message>
        <source>Ribbon</source>
        <translation>Faixa de opções</translation>
    </message>
    <message>
        <source>Show the ribbon</source>
        <translation>Mostrar a faixa de opções</translation>
    </message>
    <message>
        <source>Minimize the ribbon</source>
        <translation>Minimizar a faixa de opções</translation>
    </message>
</context>
</TS>
