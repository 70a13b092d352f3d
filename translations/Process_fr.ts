<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>DictionaryBrowser</name>
    <message>
        <source>Value labels</source>
        <translation>Libellés des valeurs</translation>
    </message>
    <message>
        <source>Value labels of %1</source>
        <translation>Libellés des valeurs de %1</translation>
    </message>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>No dictionary is open. Choose File &gt; Open Dictionary.</source>
        <translation>Aucun dictionnaire n’est ouvert. Choisissez Fichier &gt; Ouvrir un dictionnaire.</translation>
    </message>
    <message>
        <source>&amp;Filter:</source>
        <translation>&amp;Filtre :</translation>
    </message>
    <message>
        <source>Name, label or group</source>
        <translation>Nom, libellé ou groupe</translation>
    </message>
    <message>
        <source>Show the variables whose name, label or group holds this text</source>
        <translation>Afficher les variables dont le nom, le libellé ou le groupe contient ce texte</translation>
    </message>
    <message>
        <source>Filter of the variables</source>
        <translation>Filtre des variables</translation>
    </message>
    <message>
        <source>Entities</source>
        <translation>Entités</translation>
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
        <translation>Pondération : %1</translation>
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
        <translation>Entité</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Enregistrements</translation>
    </message>
    <message>
        <source>File not found: %1</source>
        <translation>Fichier introuvable : %1</translation>
    </message>
</context>
<context>
    <name>FrequencyTable</name>
    <message>
        <source>Unit of count: %1</source>
        <translation>Unité de compte : %1</translation>
    </message>
    <message>
        <source>Not weighted</source>
        <translation>Non pondéré</translation>
    </message>
    <message>
        <source>Weight: %1</source>
        <translation>Pondération : %1</translation>
    </message>
    <message>
        <source>Filter: %1</source>
        <translation>Filtre : %1</translation>
    </message>
    <message numerus="yes">
        <source>%n cell(s) hidden to protect persons</source>
        <translation>
            <numerusform>%n cellule masquée pour protéger les personnes</numerusform>
            <numerusform>%n cellules masquées pour protéger les personnes</numerusform>
        </translation>
    </message>
    <message>
        <source>Total</source>
        <translation>Total</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Manquant</translation>
    </message>
    <message>
        <source>Not applicable</source>
        <translation>Sans objet</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Libellé</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Effectif</translation>
    </message>
    <message>
        <source>Percent</source>
        <translation>Pourcentage</translation>
    </message>
    <message>
        <source>Weighted count</source>
        <translation>Effectif pondéré</translation>
    </message>
</context>
<context>
    <name>FrequencyView</name>
    <message>
        <source>No results yet</source>
        <translation>Pas encore de résultats</translation>
    </message>
    <message>
        <source>Select a variable and choose Frequency (F9).</source>
        <translation>Sélectionnez une variable et choisissez Fréquence (F9).</translation>
    </message>
    <message>
        <source>Copy Table</source>
        <translation>Copier le tableau</translation>
    </message>
    <message>
        <source>Frequency table</source>
        <translation>Tableau de fréquences</translation>
    </message>
</context>
<context>
    <name>MainActions</name>
    <message>
        <source>&amp;File</source>
        <translation>&amp;Fichier</translation>
    </message>
    <message>
        <source>&amp;View</source>
        <translation>&amp;Affichage</translation>
    </message>
    <message>
        <source>&amp;Statistics</source>
        <translation>&amp;Statistiques</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>A&amp;ide</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>&amp;Open Dictionary...</source>
        <translation>&amp;Ouvrir un dictionnaire...</translation>
    </message>
    <message>
        <source>Open a dictionary</source>
        <translation>Ouvrir un dictionnaire</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Close the program</source>
        <translation>Fermer le programme</translation>
    </message>
    <message>
        <source>&amp;Find Variable</source>
        <translation>&amp;Rechercher une variable</translation>
    </message>
    <message>
        <source>Go to the filter of the variables</source>
        <translation>Aller au filtre des variables</translation>
    </message>
    <message>
        <source>Value &amp;Labels</source>
        <translation>&amp;Libellés des valeurs</translation>
    </message>
    <message>
        <source>Show the labels of the selected variable</source>
        <translation>Afficher les libellés de la variable sélectionnée</translation>
    </message>
    <message>
        <source>F&amp;requency</source>
        <translation>&amp;Fréquence</translation>
    </message>
    <message>
        <source>Count the categories of the selected variable</source>
        <translation>Compter les catégories de la variable sélectionnée</translation>
    </message>
    <message>
        <source>&amp;About Kelvora X</source>
        <translation>À &amp;propos de Kelvora X</translation>
    </message>
    <message>
        <source>Version of the program and of its engine</source>
        <translation>Version du programme et de son moteur</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>and %1 more</source>
        <translation>et %1 de plus</translation>
    </message>
    <message>
        <source>Open Dictionary</source>
        <translation>Ouvrir un dictionnaire</translation>
    </message>
    <message>
        <source>Dictionaries (*.kxdb *.dicx *.KXDB *.DICX)</source>
        <translation>Dictionnaires (*.kxdb *.dicx *.KXDB *.DICX)</translation>
    </message>
    <message>
        <source>Archivo no válido</source>
        <translation>Fichier non valide</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement...</translation>
    </message>
    <message>
        <source>Dictionary Loaded</source>
        <translation>Dictionnaire chargé</translation>
    </message>
    <message>
        <source>Some variable and/or entity paths could not be found!</source>
        <translation>Certains chemins de variables ou d’entités sont introuvables !</translation>
    </message>
    <message>
        <source>The dictionary was not opened</source>
        <translation>Le dictionnaire n’a pas été ouvert</translation>
    </message>
    <message>
        <source>Running...</source>
        <translation>Exécution...</translation>
    </message>
    <message>
        <source>The program has errors</source>
        <translation>Le programme contient des erreurs</translation>
    </message>
    <message>
        <source>Finished in %1 s</source>
        <translation>Terminé en %1 s</translation>
    </message>
    <message>
        <source>Kelvora X, a workbench for census microdata.

Program version: %1
Engine version: %2</source>
        <translation>Kelvora X, un atelier pour les microdonnées de recensement.

Version du programme : %1
Version du moteur : %2</translation>
    </message>
    <message>
        <source>Save Dictionary</source>
        <translation>Enregistrer le dictionnaire</translation>
    </message>
    <message>
        <source>Do you want to save the changes in the dictionary?</source>
        <translation>Voulez-vous enregistrer les modifications du dictionnaire ?</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>Progression</translation>
    </message>
    <message>
        <source>Open dictionary</source>
        <translation>Dictionnaire ouvert</translation>
    </message>
</context>
<context>
    <name>Messages</name>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message>
        <source>Warning</source>
        <translation>Avertissement</translation>
    </message>
</context>
<context>
    <name>SelectorLanguageDlg</name>
    <message>
        <source>Language</source>
        <translation>Langue</translation>
    </message>
    <message>
        <source>Select Language</source>
        <translation>Choisissez la langue</translation>
    </message>
</context>
<context>
    <name>UIInvoker</name>
    <message>
        <source>Show the password</source>
        <translation>Afficher le mot de passe</translation>
    </message>
    <message>
        <source>Enter password</source>
        <translation>Saisissez le mot de passe</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Dictionary password</source>
        <translation>Mot de passe du dictionnaire</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>Dictionnaire</translation>
    </message>
    <message>
        <source>Select data folder to</source>
        <translation>Sélectionnez le dossier de données de</translation>
    </message>
</context>
<context>
    <name>ValueLabelModel</name>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Libellé</translation>
    </message>
</context>
<context>
    <name>VariableTableModel</name>
    <message>
        <source>Found</source>
        <translation>Trouvé</translation>
    </message>
    <message>
        <source>Missing</source>
        <translation>Introuvable</translation>
    </message>
    <message>
        <source>Alias: %1</source>
        <translation>Alias : %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Libellé</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Categories</source>
        <translation>Modalités</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
</context>
</TS>
