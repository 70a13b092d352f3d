<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt" sourcelanguage="en">
<context>
    <name>DictionaryBrowser</name>
    <message>
        <source>Value labels</source>
        <translation>Rótulos de valores</translation>
    </message>
    <message>
        <source>Value labels of %1</source>
        <translation>Rótulos de valores de %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 de %2</translation>
    </message>
    <message>
        <source>No dictionary is open. Choose File &gt; Open Dictionary.</source>
        <translation>Nenhum dicionário está aberto. Escolha Arquivo &gt; Abrir dicionário.</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Filtro:</translation>
    </message>
    <message>
        <source>Name, label or group</source>
        <translation>Nome, rótulo ou grupo</translation>
    </message>
    <message>
        <source>Show the variables whose name, label or group holds this text</source>
        <translation>Mostrar as variáveis cujo nome, rótulo ou grupo contém este texto</translation>
    </message>
    <message>
        <source>Filter of the variables</source>
        <translation>Filtro das variáveis</translation>
    </message>
    <message>
        <source>Entities</source>
        <translation>Entidades</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variáveis</translation>
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
            <numerusform>%n variável</numerusform>
            <numerusform>%n variáveis</numerusform>
        </translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entidade</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Registros</translation>
    </message>
    <message>
        <source>File not found: %1</source>
        <translation>Arquivo não encontrado: %1</translation>
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
    <name>MainActions</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Arquivo</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Exibir</translation>
    </message>
    <message>
        <source>&amp;Statistics</source>
        <translation>E&amp;statísticas</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;juda</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Barra de ferramentas</translation>
    </message>
    <message>
        <source>&amp;Open Dictionary...</source>
        <translation>&amp;Abrir dicionário...</translation>
    </message>
    <message>
        <source>Open a dictionary</source>
        <translation>Abrir um dicionário</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>Sai&amp;r</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>Fechar o programa</translation>
    </message>
    <message>
        <source>&amp;Find Variable</source>
        <translation>&amp;Localizar variável</translation>
    </message>
    <message>
        <source>Go to the filter of the variables</source>
        <translation>Ir para o filtro das variáveis</translation>
    </message>
    <message>
        <source>Value &amp;Labels</source>
        <translation>&amp;Rótulos de valores</translation>
    </message>
    <message>
        <source>Show the labels of the selected variable</source>
        <translation>Mostrar os rótulos da variável selecionada</translation>
    </message>
    <message>
        <source>F&amp;requency</source>
        <translation>&amp;Frequência</translation>
    </message>
    <message>
        <source>Count the categories of the selected variable</source>
        <translation>Contar as categorias da variável selecionada</translation>
    </message>
    <message>
        <source>&amp;About Kelvora X</source>
        <translation>&amp;Sobre o Kelvora X</translation>
    </message>
    <message>
        <source>Version of the program and of its engine</source>
        <translation>Versão do programa e do seu motor</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>and %1 more</source>
        <translation>e mais %1</translation>
    </message>
    <message>
        <source>Open Dictionary</source>
        <translation>Abrir dicionário</translation>
    </message>
    <message>
        <source>Dictionaries (*.kxdb *.dicx *.KXDB *.DICX)</source>
        <translation>Dicionários (*.kxdb *.dicx *.KXDB *.DICX)</translation>
    </message>
    <message>
        <source>Archivo no válido</source>
        <translation>Arquivo inválido</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Carregando...</translation>
    </message>
    <message>
        <source>Dictionary Loaded</source>
        <translation>Dicionário carregado</translation>
    </message>
    <message>
        <source>Some variable and/or entity paths could not be found!</source>
        <translation>Alguns caminhos de variáveis ou entidades não foram encontrados!</translation>
    </message>
    <message>
        <source>The dictionary was not opened</source>
        <translation>O dicionário não foi aberto</translation>
    </message>
    <message>
        <source>Running...</source>
        <translation>Executando...</translation>
    </message>
    <message>
        <source>The program has errors</source>
        <translation>O programa tem erros</translation>
    </message>
    <message>
        <source>Finished in %1 s</source>
        <translation>Concluído em %1 s</translation>
    </message>
    <message>
        <source>Kelvora X, a workbench for census microdata.

Program version: %1
Engine version: %2</source>
        <translation>Kelvora X, um ambiente de trabalho para microdados censitários.

Versão do programa: %1
Versão do motor: %2</translation>
    </message>
    <message>
        <source>Save Dictionary</source>
        <translation>Salvar dicionário</translation>
    </message>
    <message>
        <source>Do you want to save the changes in the dictionary?</source>
        <translation>Deseja salvar as alterações do dicionário?</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Resultados</translation>
    </message>
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
    <name>ValueLabelModel</name>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Rótulo</translation>
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
        <translation>Não encontrado</translation>
    </message>
    <message>
        <source>Alias: %1</source>
        <translation>Alias: %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Rótulo</translation>
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
        <translation>Tamanho</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Categorias</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
</context>
</TS>
