<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" sourcelanguage="en" language="fr">
<context>
    <name>AppProperties</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmation</translation>
    </message>
    <message>
        <source>The changes were taken into the dictionary</source>
        <translation>Les modifications ont été reprises dans le dictionnaire</translation>
    </message>
    <message>
        <source>EN CONSTRUCCION</source>
        <translation>EN CONSTRUCTION</translation>
    </message>
</context>
<context>
    <name>ArealistViewOptionsDialog</name>
    <message>
        <source>Show Totals Row</source>
        <translation>Afficher la ligne des totaux</translation>
    </message>
    <message>
        <source>View Options</source>
        <translation>Options d’affichage</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Add a row with the sum of each column of whole numbers</source>
        <translation>Ajoute une ligne avec la somme de chaque colonne de nombres entiers</translation>
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
        <translation>Moyenne</translation>
    </message>
</context>
<context>
    <name>BottomPanel</name>
    <message>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>Messages and finding</source>
        <translation>Messages et recherche</translation>
    </message>
</context>
<context>
    <name>CategoryTable</name>
    <message>
        <source>Lines of the clipboard that are no category: %1</source>
        <translation>Lignes du presse-papiers qui ne sont pas des modalités : %1</translation>
    </message>
    <message>
        <source>Variable Categories</source>
        <translation>Modalités de la variable</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Add a new row in the category table</source>
        <translation>Ajouter une ligne à la table des modalités</translation>
    </message>
    <message>
        <source>Copy the category table of the variable</source>
        <translation>Copier la table des modalités de la variable</translation>
    </message>
    <message>
        <source>Paste the category table copied from another variable into the current one.</source>
        <translation>Coller dans la variable active la table des modalités copiée d’une autre variable.</translation>
    </message>
    <message>
        <source>Remove the active row form the category table</source>
        <translation>Supprimer la ligne active de la table des modalités</translation>
    </message>
    <message>
        <source>Clear all information in the category table</source>
        <translation>Effacer tout le contenu de la table des modalités</translation>
    </message>
    <message>
        <source>Take back the last change of the category table</source>
        <translation>Annuler la dernière modification de la table des modalités</translation>
    </message>
</context>
<context>
    <name>ColumnGroupRows</name>
    <message>
        <source>Columns at place %1</source>
        <translation>Colonnes en position %1</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Show %1</source>
        <translation>Afficher %1</translation>
    </message>
    <message>
        <source>Checked: %1 shows in the table</source>
        <translation>Coché : %1 figure dans le tableau</translation>
    </message>
    <message>
        <source>%1 always shows</source>
        <translation>Affichage permanent : %1</translation>
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
        <translation>Préférences de KelX</translation>
    </message>
    <message>
        <source>Pages</source>
        <translation>Pages</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
</context>
<context>
    <name>CrossTable</name>
    <message>
        <source>This table of %1 rows and %2 columns is too large to be shown: it would have more than %3 cells. Group the categories of its variables or filter the records.</source>
        <translation>Ce tableau de %1 lignes et %2 colonnes est trop grand pour être affiché : il compterait plus de %3 cellules. Regroupez les modalités de ses variables ou filtrez les enregistrements.</translation>
    </message>
</context>
<context>
    <name>DataFileForm</name>
    <message>
        <source>Input data file for the loading process</source>
        <translation>Fichier de données en entrée du chargement</translation>
    </message>
    <message>
        <source>Is found on disk</source>
        <translation>Trouvé sur le disque</translation>
    </message>
    <message>
        <source>Browse...</source>
        <translation>Parcourir...</translation>
    </message>
    <message>
        <source>Choose another data file</source>
        <translation>Choisir un autre fichier de données</translation>
    </message>
    <message>
        <source>All files (*)</source>
        <translation>Tous les fichiers (*)</translation>
    </message>
</context>
<context>
    <name>DataSourceVariableTab</name>
    <message>
        <source>The relative position should be from 1 to n, where n is the size</source>
        <translation>La position relative doit être comprise entre 1 et n, où n est la taille</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Kelvora native file format</source>
        <translation>Format de fichier natif Kelvora</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Field</source>
        <translation>Champ</translation>
    </message>
    <message>
        <source>Relative position</source>
        <translation>Position relative</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Data Source</source>
        <translation>Source des données</translation>
    </message>
</context>
<context>
    <name>DialogEntityProperties</name>
    <message>
        <source>Properties of %1</source>
        <translation>Propriétés de %1</translation>
    </message>
    <message>
        <source>Entity definition has been modified. Save changes?</source>
        <translation>La définition de l’entité a été modifiée. Enregistrer les modifications ?</translation>
    </message>
</context>
<context>
    <name>DictionarySaver</name>
    <message>
        <source>There is no open dictionary.</source>
        <translation>Aucun dictionnaire n’est ouvert.</translation>
    </message>
</context>
<context>
    <name>DictionaryToolBar</name>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save the dictionary</source>
        <translation>Enregistrer le dictionnaire</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Save the dictionary under another name</source>
        <translation>Enregistrer le dictionnaire sous un autre nom</translation>
    </message>
    <message>
        <source>Dictionary</source>
        <translation>Dictionnaire</translation>
    </message>
    <message>
        <source>Locate</source>
        <translation>Localiser</translation>
    </message>
    <message>
        <source>Find the data files that are missing where the dictionary says</source>
        <translation>Rechercher les fichiers de données absents de l’emplacement indiqué par le dictionnaire</translation>
    </message>
    <message>
        <source>Consistency</source>
        <translation>Cohérence</translation>
    </message>
    <message>
        <source>Check the data files against the dictionary</source>
        <translation>Contrôler les fichiers de données par rapport au dictionnaire</translation>
    </message>
    <message>
        <source>Report</source>
        <translation>Rapport</translation>
    </message>
    <message>
        <source>Make a report of the dictionary</source>
        <translation>Produire un rapport sur le dictionnaire</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close the dictionary</source>
        <translation>Fermer le dictionnaire</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open a dictionary, or one of the recent ones</source>
        <translation>Ouvrir un dictionnaire, ou l’un des dictionnaires récents</translation>
    </message>
    <message>
        <source>Open Dictionary</source>
        <translation>Ouvrir un dictionnaire</translation>
    </message>
    <message>
        <source>Error %s sending event</source>
        <translation>Erreur %s lors de l’envoi de l’événement</translation>
    </message>
    <message>
        <source>Please, you must open a dictionary beforehand</source>
        <translation>Veuillez d’abord ouvrir un dictionnaire</translation>
    </message>
    <message>
        <source>KelX Dictionary (*.kxdb);;Kel7 Dictionary (*.dicx)</source>
        <translation>Dictionnaire KelX (*.kxdb);;Dictionnaire Kel7 (*.dicx)</translation>
    </message>
</context>
<context>
    <name>DictionaryTreeModel</name>
    <message>
        <source>File not found: %1</source>
        <translation>Fichier introuvable : %1</translation>
    </message>
    <message>
        <source>File: %1</source>
        <translation>Fichier : %1</translation>
    </message>
    <message>
        <source>Records: %1</source>
        <translation>Enregistrements : %1</translation>
    </message>
    <message>
        <source>Variables: %1</source>
        <translation>Variables : %1</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entité</translation>
    </message>
</context>
<context>
    <name>DictionaryUtil</name>
    <message>
        <source>The file %1 cannot be written: %2</source>
        <translation>Impossible d’écrire le fichier %1 : %2</translation>
    </message>
</context>
<context>
    <name>DirectExport</name>
    <message>
        <source>The folder %1 does not exist. %2 is written into the folder of results, %3.</source>
        <translation>Le dossier %1 n’existe pas. %2 est écrit dans le dossier des résultats, %3.</translation>
    </message>
    <message>
        <source>The program gives no name of a file.</source>
        <translation>Le programme n’indique aucun nom de fichier.</translation>
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
        <translation>Texte du programme</translation>
    </message>
    <message>
        <source>Line numbers</source>
        <translation>Numéros de ligne</translation>
    </message>
    <message>
        <source>Funcionalidad %1 en Construcción</source>
        <translation>Fonctionnalité %1 en construction</translation>
    </message>
    <message>
        <source>&quot;Toggle Comment&quot;</source>
        <translation>« Commenter/Décommenter »</translation>
    </message>
    <message>
        <source>&quot;Wizard Define&quot;</source>
        <translation>« Assistant DEFINE »</translation>
    </message>
    <message>
        <source>&quot;Wizard Table&quot;</source>
        <translation>« Assistant TABLE »</translation>
    </message>
    <message>
        <source>&quot;Execute Blow Up&quot;</source>
        <translation>« Déplier EXECUTE »</translation>
    </message>
    <message>
        <source>&quot;Define Frequency&quot;</source>
        <translation>« Tri à plat des DEFINE »</translation>
    </message>
    <message>
        <source>&quot;Syntax Clue&quot;</source>
        <translation>« Aide syntaxique »</translation>
    </message>
    <message>
        <source>&quot;Edit Table&quot;</source>
        <translation>« Modifier le tableau »</translation>
    </message>
    <message>
        <source>&quot;Edit Graph&quot;</source>
        <translation>« Modifier le graphique »</translation>
    </message>
    <message>
        <source>No results found.</source>
        <translation>Aucun résultat trouvé.</translation>
    </message>
    <message>
        <source>No more results found.</source>
        <translation>Aucun autre résultat trouvé.</translation>
    </message>
    <message>
        <source>Found %1 coincidences</source>
        <translation>Occurrences trouvées : %1</translation>
    </message>
    <message>
        <source>Document searched. Replaced </source>
        <translation>Document parcouru. Remplacement de </translation>
    </message>
    <message>
        <source> instances.</source>
        <translation> occurrence(s).</translation>
    </message>
    <message>
        <source>Invalid line number.</source>
        <translation>Numéro de ligne non valide.</translation>
    </message>
</context>
<context>
    <name>EditorContextMenu</name>
    <message>
        <source>Toggle Comment</source>
        <translation>Commenter/Décommenter</translation>
    </message>
    <message>
        <source>Syntax clue</source>
        <translation>Aide syntaxique</translation>
    </message>
    <message>
        <source>Tool bar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>Status bar</source>
        <translation>Barre d’état</translation>
    </message>
    <message>
        <source>Output</source>
        <translation>Sortie</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save as</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Block</source>
        <translation>Bloc</translation>
    </message>
    <message>
        <source>Compile</source>
        <translation>Compiler</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Exécuter</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Exécuter</translation>
    </message>
    <message>
        <source>Assist</source>
        <translation>Assistants</translation>
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
        <translation>Déplier</translation>
    </message>
    <message>
        <source>Wizards</source>
        <translation>Assistants</translation>
    </message>
    <message>
        <source>DEFINEs </source>
        <translation>Commandes DEFINE </translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Tri à plat</translation>
    </message>
    <message>
        <source>Edit Style</source>
        <translation>Modifier le style</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tableau</translation>
    </message>
    <message>
        <source>Graph</source>
        <translation>Graphique</translation>
    </message>
</context>
<context>
    <name>EntityInfo</name>
    <message>
        <source>Code Variable: </source>
        <translation>Variable code : </translation>
    </message>
    <message>
        <source>Entity cannot be selected</source>
        <translation>L’entité n’est pas sélectionnable</translation>
    </message>
    <message>
        <source>Entity has not Label Variable</source>
        <translation>L’entité n’a pas de variable libellé</translation>
    </message>
    <message>
        <source>Label Variable: </source>
        <translation>Variable libellé : </translation>
    </message>
    <message>
        <source>No automatic weight</source>
        <translation>Pas de pondération automatique</translation>
    </message>
    <message>
        <source>Automatic weight variable [</source>
        <translation>Variable de pondération automatique [</translation>
    </message>
    <message>
        <source>Virtual Entity - Mother is </source>
        <translation>Entité virtuelle - L’entité mère est </translation>
    </message>
    <message>
        <source>Number of Elements: </source>
        <translation>Nombre d’éléments : </translation>
    </message>
</context>
<context>
    <name>EntityInfoView</name>
    <message>
        <source>Entity</source>
        <translation>Entité</translation>
    </message>
    <message>
        <source>Number of Elements</source>
        <translation>Nombre d’éléments</translation>
    </message>
    <message>
        <source>Selected Entity</source>
        <translation>Entité sélectionnée</translation>
    </message>
    <message>
        <source>Entity Properties</source>
        <translation>Propriétés de l’entité</translation>
    </message>
    <message>
        <source>Expand Information</source>
        <translation>Développer les informations</translation>
    </message>
    <message>
        <source>Properties Documentation</source>
        <translation>Documentation des propriétés</translation>
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
        <translation>Propriétés de l’entité</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Data</source>
        <translation>Données</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentation</translation>
    </message>
    <message>
        <source>Label:</source>
        <translation>Libellé :</translation>
    </message>
    <message>
        <source>Alias:</source>
        <translation>Alias :</translation>
    </message>
    <message>
        <source>Another name of the entity; Return stores it</source>
        <translation>Autre nom de l’entité ; la touche Entrée l’enregistre</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>Repère :</translation>
    </message>
    <message>
        <source>A number of yours, 9999 at most</source>
        <translation>Un numéro de votre choix, 9999 au maximum</translation>
    </message>
    <message>
        <source>Code:</source>
        <translation>Code :</translation>
    </message>
    <message>
        <source>The variable that holds the code</source>
        <translation>Variable qui contient le code</translation>
    </message>
    <message>
        <source>Code size:</source>
        <translation>Taille du code :</translation>
    </message>
    <message>
        <source>One zero for each character of the code</source>
        <translation>Un zéro pour chaque caractère du code</translation>
    </message>
    <message>
        <source>The variable that holds the label</source>
        <translation>Variable qui contient le libellé</translation>
    </message>
    <message>
        <source>Weight:</source>
        <translation>Pondération :</translation>
    </message>
    <message>
        <source>The variable that weights tables by itself</source>
        <translation>Variable qui pondère automatiquement les tableaux</translation>
    </message>
    <message>
        <source>Compound:</source>
        <translation>Composé :</translation>
    </message>
    <message>
        <source>The codes from the top of the hierarchy down, joined</source>
        <translation>Codes mis bout à bout depuis le sommet de la hiérarchie</translation>
    </message>
    <message>
        <source>Disclosure:</source>
        <translation>Divulgation :</translation>
    </message>
    <message>
        <source>The variable that controls disclosure</source>
        <translation>Variable de contrôle de la divulgation</translation>
    </message>
    <message>
        <source>Elements:</source>
        <translation>Éléments :</translation>
    </message>
    <message>
        <source>Number of records</source>
        <translation>Nombre d’enregistrements</translation>
    </message>
    <message>
        <source>File:</source>
        <translation>Fichier :</translation>
    </message>
    <message>
        <source>Found on disk</source>
        <translation>Trouvé sur le disque</translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation>Sélectionnable</translation>
    </message>
    <message>
        <source>May be used in selections and area lists</source>
        <translation>Utilisable dans les sélections et les listes de zones</translation>
    </message>
    <message>
        <source>Virtual</source>
        <translation>Virtuelle</translation>
    </message>
    <message>
        <source>SensitiveEntity</source>
        <translation>Entité sensible</translation>
    </message>
</context>
<context>
    <name>ErrorList</name>
    <message>
        <source>Messages of the program</source>
        <translation>Messages du programme</translation>
    </message>
    <message>
        <source>Copy error list</source>
        <translation>Copier la liste des erreurs</translation>
    </message>
    <message>
        <source>Clear error list</source>
        <translation>Effacer la liste des erreurs</translation>
    </message>
</context>
<context>
    <name>ExportProgress</name>
    <message>
        <source>Export</source>
        <translation>Exportation</translation>
    </message>
    <message>
        <source>Writing %1</source>
        <translation>Écriture de %1</translation>
    </message>
</context>
<context>
    <name>FileChangeNotice</name>
    <message>
        <source>The file %1 was changed by another program, and this text has changes that are not saved. Saving will replace the file.

Do you want to reload the file instead?</source>
        <translation>Le fichier %1 a été modifié par un autre programme et ce texte contient des modifications non enregistrées. L’enregistrement remplacera le fichier.

Voulez-vous plutôt recharger le fichier ?</translation>
    </message>
    <message>
        <source>The file %1 was changed by another program. Do you want to reload it?</source>
        <translation>Le fichier %1 a été modifié par un autre programme. Voulez-vous le recharger ?</translation>
    </message>
    <message>
        <source>File changed</source>
        <translation>Fichier modifié</translation>
    </message>
    <message>
        <source>Reload</source>
        <translation>Recharger</translation>
    </message>
    <message>
        <source>Keep</source>
        <translation>Conserver</translation>
    </message>
    <message>
        <source>The file %1 cannot be reloaded: %2</source>
        <translation>Impossible de recharger le fichier %1 : %2</translation>
    </message>
    <message>
        <source>The file %1 was removed by another program. Its text stays open here: save it to keep it.</source>
        <translation>Le fichier %1 a été supprimé par un autre programme. Son texte reste ouvert ici : enregistrez-le pour le conserver.</translation>
    </message>
    <message>
        <source>The file %1 was changed by another program since it was read here. Do you want to replace it?</source>
        <translation>Le fichier %1 a été modifié par un autre programme depuis sa lecture ici. Voulez-vous le remplacer ?</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>FileOpener</name>
    <message>
        <source>Archivo no válido</source>
        <translation>Fichier non valide</translation>
    </message>
    <message>
        <source>The file %1 was not found.</source>
        <translation>Le fichier %1 est introuvable.</translation>
    </message>
    <message>
        <source>Please, close all the windows from the application work area before changing the dictionary</source>
        <translation>Veuillez fermer toutes les fenêtres de l’espace de travail avant de changer de dictionnaire</translation>
    </message>
</context>
<context>
    <name>FileToolBar</name>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Begin a new program, selection or map</source>
        <translation>Commencer un programme, une sélection ou une carte</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open a program, selection or map</source>
        <translation>Ouvrir un programme, une sélection ou une carte</translation>
    </message>
    <message>
        <source>Documents</source>
        <translation>Documents</translation>
    </message>
    <message>
        <source>Programs</source>
        <translation>Programmes</translation>
    </message>
    <message>
        <source>Programs in the command language</source>
        <translation>Programmes dans le langage de commandes</translation>
    </message>
    <message>
        <source>Selections</source>
        <translation>Sélections</translation>
    </message>
    <message>
        <source>Selections of areas</source>
        <translation>Sélections de zones</translation>
    </message>
    <message>
        <source>Maps</source>
        <translation>Cartes</translation>
    </message>
    <message>
        <source>Thematic maps</source>
        <translation>Cartes thématiques</translation>
    </message>
    <message>
        <source>Styles</source>
        <translation>Styles</translation>
    </message>
    <message>
        <source>Table Styles</source>
        <translation>Styles tableaux</translation>
    </message>
    <message>
        <source>How tables look</source>
        <translation>Présentation des tableaux</translation>
    </message>
    <message>
        <source>Graph Styles</source>
        <translation>Styles graphiques</translation>
    </message>
    <message>
        <source>How charts look</source>
        <translation>Présentation des graphiques</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Exécution</translation>
    </message>
    <message>
        <source>Execute</source>
        <translation>Exécuter</translation>
    </message>
    <message>
        <source>Programs that run other programs</source>
        <translation>Programmes qui lancent d’autres programmes</translation>
    </message>
    <message>
        <source>&amp;Program</source>
        <translation>&amp;Programme</translation>
    </message>
    <message>
        <source>&amp;Execute program</source>
        <translation>Programme &amp;EXECUTE</translation>
    </message>
    <message>
        <source>&amp;Selection</source>
        <translation>&amp;Sélection</translation>
    </message>
    <message>
        <source>&amp;Map</source>
        <translation>&amp;Carte</translation>
    </message>
    <message>
        <source>&amp;Program...</source>
        <translation>&amp;Programme...</translation>
    </message>
    <message>
        <source>&amp;Execute program...</source>
        <translation>Programme &amp;EXECUTE...</translation>
    </message>
    <message>
        <source>&amp;Selection...</source>
        <translation>&amp;Sélection...</translation>
    </message>
    <message>
        <source>&amp;Map...</source>
        <translation>&amp;Carte...</translation>
    </message>
    <message>
        <source>Recent programs</source>
        <translation>Programmes récents</translation>
    </message>
    <message>
        <source>Programs of the dictionary</source>
        <translation>Programmes du dictionnaire</translation>
    </message>
    <message>
        <source>&amp;New</source>
        <translation>&amp;Nouveau</translation>
    </message>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>Kelx Command Set (*.spc)</source>
        <translation>Kelx Command Set (*.spc)</translation>
    </message>
    <message>
        <source>Error %s sending event</source>
        <translation>Erreur %s lors de l’envoi de l’événement</translation>
    </message>
    <message>
        <source>Open program</source>
        <translation>Ouvrir un programme</translation>
    </message>
    <message>
        <source>Open EXECUTE program</source>
        <translation>Ouvrir un programme EXECUTE</translation>
    </message>
</context>
<context>
    <name>FindDialog</name>
    <message>
        <source>Find</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Find what: </source>
        <translation>Rechercher : </translation>
    </message>
    <message>
        <source>Replace with: </source>
        <translation>Remplacer par : </translation>
    </message>
    <message>
        <source>Match case</source>
        <translation>Respecter la casse</translation>
    </message>
    <message>
        <source>Whole words</source>
        <translation>Mots entiers</translation>
    </message>
    <message>
        <source>Find next</source>
        <translation>Rechercher le suivant</translation>
    </message>
    <message>
        <source>Find all</source>
        <translation>Rechercher tout</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>Replace all</source>
        <translation>Remplacer tout</translation>
    </message>
    <message>
        <source>Empty Field</source>
        <translation>Champ vide</translation>
    </message>
    <message>
        <source>Please enter a query.</source>
        <translation>Veuillez saisir le texte à rechercher.</translation>
    </message>
</context>
<context>
    <name>FormatDialog</name>
    <message>
        <source>View Options</source>
        <translation>Options d’affichage</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordre</translation>
    </message>
</context>
<context>
    <name>GeneralEntityTab</name>
    <message>
        <source>Label:</source>
        <translation>Libellé :</translation>
    </message>
    <message>
        <source>Alias:</source>
        <translation>Alias :</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>Repère :</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
</context>
<context>
    <name>GeneralPage</name>
    <message>
        <source>Initial Settings</source>
        <translation>Paramètres initiaux</translation>
    </message>
    <message>
        <source>All preferences, the lists of recent files and the remembered folders go back to their initial values. Do you want to continue?</source>
        <translation>Toutes les préférences, les listes de fichiers récents et les dossiers mémorisés reprendront leurs valeurs initiales. Voulez-vous continuer ?</translation>
    </message>
    <message>
        <source>Application Language</source>
        <translation>Langue de l’application</translation>
    </message>
    <message>
        <source>Select Language:</source>
        <translation>Choisir la langue :</translation>
    </message>
    <message>
        <source>Startup</source>
        <translation>Démarrage</translation>
    </message>
    <message>
        <source>Show splash form on startup</source>
        <translation>Afficher l’écran d’accueil au démarrage</translation>
    </message>
    <message>
        <source>Show Tips and Tricks form on startup</source>
        <translation>Afficher les trucs et astuces au démarrage</translation>
    </message>
    <message>
        <source>Open last dictionary on starting program</source>
        <translation>Ouvrir le dernier dictionnaire au démarrage</translation>
    </message>
    <message>
        <source>Menu</source>
        <translation>Menu</translation>
    </message>
    <message>
        <source>Menu Colors:</source>
        <translation>Couleurs du menu :</translation>
    </message>
    <message>
        <source>Maximum number of files in the button list</source>
        <translation>Nombre maximal de fichiers récents</translation>
    </message>
    <message>
        <source>Put all settings back to those of a new installation</source>
        <translation>Rétablir tous les paramètres d’une nouvelle installation</translation>
    </message>
</context>
<context>
    <name>GeneralStylePage</name>
    <message>
        <source>Comma  ( , )</source>
        <translation>Virgule  ( , )</translation>
    </message>
    <message>
        <source>Period ( . )</source>
        <translation>Point ( . )</translation>
    </message>
    <message>
        <source>Space  (   )</source>
        <translation>Espace  (   )</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>e.g. Census2024</source>
        <translation>p. ex. Recensement2024</translation>
    </message>
    <message>
        <source>Optional description</source>
        <translation>Description facultative</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom :</translation>
    </message>
    <message>
        <source>Label:</source>
        <translation>Libellé :</translation>
    </message>
    <message>
        <source> decimal(s)</source>
        <translation> décimale(s)</translation>
    </message>
    <message>
        <source>Numbers in this style</source>
        <translation>Nombres dans ce style</translation>
    </message>
    <message>
        <source>Decimals:</source>
        <translation>Décimales :</translation>
    </message>
    <message>
        <source>Thousand separator:</source>
        <translation>Séparateur de milliers :</translation>
    </message>
    <message>
        <source>Sample:</source>
        <translation>Exemple :</translation>
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
        <translation>Préférences</translation>
    </message>
    <message>
        <source>Language, looks and habits of the program</source>
        <translation>Langue, apparence et comportement du programme</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>Open the help pages in the browser</source>
        <translation>Ouvrir les pages d’aide dans le navigateur</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Versions of the program</source>
        <translation>Versions du programme</translation>
    </message>
    <message>
        <source>The help pages could not be opened. You find them at %1</source>
        <translation>Impossible d’ouvrir les pages d’aide. Elles se trouvent à l’adresse %1</translation>
    </message>
</context>
<context>
    <name>GeneralVariablelTab</name>
    <message>
        <source>Label:</source>
        <translation>Libellé :</translation>
    </message>
    <message>
        <source>Alias:</source>
        <translation>Alias :</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Groupe :</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>Repère :</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Masquée</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
</context>
<context>
    <name>GotoDialog</name>
    <message>
        <source>Go</source>
        <translation>Aller</translation>
    </message>
    <message>
        <source>Must enter a line number.</source>
        <translation>Veuillez saisir un numéro de ligne.</translation>
    </message>
    <message>
        <source>Go To</source>
        <translation>Atteindre</translation>
    </message>
    <message>
        <source>Line number: </source>
        <translation>Numéro de ligne : </translation>
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
        <translation>Entité</translation>
    </message>
    <message>
        <source>Quick View</source>
        <translation>Aperçu rapide</translation>
    </message>
</context>
<context>
    <name>JsonFile</name>
    <message>
        <source>Failed to create JSON doc.</source>
        <translation>Échec de la création du document JSON.</translation>
    </message>
    <message>
        <source>JSON is not an object.</source>
        <translation>Le contenu JSON n’est pas un objet.</translation>
    </message>
    <message>
        <source>JSON object is empty.</source>
        <translation>L’objet JSON est vide.</translation>
    </message>
    <message>
        <source>The file %1 is too large to be read.</source>
        <translation>Le fichier %1 est trop volumineux pour être lu.</translation>
    </message>
    <message>
        <source>Error %s sending event</source>
        <translation>Erreur %s lors de l’envoi de l’événement</translation>
    </message>
</context>
<context>
    <name>KelTreeView</name>
    <message>
        <source>A entity must be selected</source>
        <translation>Veuillez sélectionner une entité</translation>
    </message>
    <message>
        <source>Entities</source>
        <translation>Entités</translation>
    </message>
</context>
<context>
    <name>KelVariablesTableView</name>
    <message>
        <source>EN CONSTRUCCION- Se debe establecer si es posible borrar y el proceso a seguir</source>
        <translation>EN CONSTRUCTION - Il reste à établir si la suppression est possible et la procédure à suivre</translation>
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
        <translation>Localiser les chemins : %1 sur %2</translation>
    </message>
    <message>
        <source>Variable: </source>
        <translation>Variable : </translation>
    </message>
    <message>
        <source>Missing File: </source>
        <translation>Fichier manquant : </translation>
    </message>
    <message>
        <source>Missing Path: </source>
        <translation>Chemin manquant : </translation>
    </message>
    <message>
        <source>Select Variable Path</source>
        <translation>Sélectionner le chemin de la variable</translation>
    </message>
    <message>
        <source>New Path:</source>
        <translation>Nouveau chemin :</translation>
    </message>
    <message>
        <source>Relocate</source>
        <translation>Relocaliser</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Leave this file missing and go on with the next</source>
        <translation>Laisser ce fichier manquant et passer au suivant</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Stop looking for files; what was relocated stays</source>
        <translation>Arrêter la recherche des fichiers ; les relocalisations déjà faites sont conservées</translation>
    </message>
    <message>
        <source>The missing and relocated files are not the same.</source>
        <translation>Le fichier manquant et le fichier relocalisé ne sont pas les mêmes.</translation>
    </message>
    <message>
        <source>The file %1 was not found.</source>
        <translation>Le fichier %1 est introuvable.</translation>
    </message>
    <message>
        <source>Files (*.%1)</source>
        <translation>Fichiers (*.%1)</translation>
    </message>
    <message>
        <source>No errors found in the database</source>
        <translation>Aucune erreur trouvée dans la base de données</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Save Dictionary</source>
        <translation>Enregistrer le dictionnaire</translation>
    </message>
    <message>
        <source>Do you want to save the changes in the dictionary?</source>
        <translation>Voulez-vous enregistrer les modifications du dictionnaire ?</translation>
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
    <name>MetricReporter</name>
    <message>
        <source>Words: </source>
        <translation>Mots : </translation>
    </message>
    <message>
        <source>Chars: </source>
        <translation>Caractères : </translation>
    </message>
    <message>
        <source>Line: </source>
        <translation>Ligne : </translation>
    </message>
    <message>
        <source>Column: </source>
        <translation>Colonne : </translation>
    </message>
</context>
<context>
    <name>OneVariableLayout</name>
    <message>
        <source>Count</source>
        <translation>Effectif</translation>
    </message>
    <message>
        <source>count</source>
        <translation>effectif</translation>
    </message>
    <message>
        <source>Cumul%</source>
        <translation>% cumulé</translation>
    </message>
</context>
<context>
    <name>OneVariableStylePage</name>
    <message>
        <source>Show percentage column</source>
        <translation>Afficher la colonne des pourcentages</translation>
    </message>
    <message>
        <source>Show cumulative percentage column</source>
        <translation>Afficher la colonne des pourcentages cumulés</translation>
    </message>
    <message>
        <source>Show Total row</source>
        <translation>Afficher la ligne Total</translation>
    </message>
    <message>
        <source>Show N/A row</source>
        <translation>Afficher la ligne Sans objet (NA)</translation>
    </message>
    <message>
        <source>Show MV row</source>
        <translation>Afficher la ligne Non déclaré (MV)</translation>
    </message>
    <message>
        <source>Default (engine order)</source>
        <translation>Par défaut (ordre du moteur)</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Croissant</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Décroissant</translation>
    </message>
    <message>
        <source>Row order:</source>
        <translation>Ordre des lignes :</translation>
    </message>
</context>
<context>
    <name>OpenDictionaryButtonMenu</name>
    <message>
        <source>&amp;Open...</source>
        <translation>&amp;Ouvrir...</translation>
    </message>
    <message>
        <source>Choose a dictionary file</source>
        <translation>Choisir un fichier dictionnaire</translation>
    </message>
    <message>
        <source>Recent dictionaries</source>
        <translation>Dictionnaires récents</translation>
    </message>
</context>
<context>
    <name>OrderDialog</name>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Croissant</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Décroissant</translation>
    </message>
    <message>
        <source>View Options</source>
        <translation>Options d’affichage</translation>
    </message>
    <message>
        <source>Order</source>
        <translation>Ordre</translation>
    </message>
</context>
<context>
    <name>PrintedFile</name>
    <message>
        <source>The pages could not be written into the folder of temporary files. Its disk may be full.</source>
        <translation>Impossible d’écrire les pages dans le dossier des fichiers temporaires. Le disque est peut-être plein.</translation>
    </message>
</context>
<context>
    <name>ProcessExecuter</name>
    <message>
        <source>compiler syntax error</source>
        <translation>erreur de syntaxe du compilateur</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Program code is empty</source>
        <translation>Le code du programme est vide</translation>
    </message>
    <message>
        <source>The executing program is empty</source>
        <translation>Le programme à exécuter est vide</translation>
    </message>
    <message>
        <source>Execution Canceled</source>
        <translation>Exécution annulée</translation>
    </message>
    <message>
        <source>Processing</source>
        <translation>Traitement en cours</translation>
    </message>
    <message>
        <source>Time Expected: </source>
        <translation>Temps prévu : </translation>
    </message>
    <message>
        <source> s - Time Elapsed: </source>
        <translation> s - Temps écoulé : </translation>
    </message>
    <message>
        <source> s</source>
        <translation> s</translation>
    </message>
    <message>
        <source>Execution Finished</source>
        <translation>Exécution terminée</translation>
    </message>
    <message>
        <source>Creating Table</source>
        <translation>Création du tableau</translation>
    </message>
    <message>
        <source>Table Created</source>
        <translation>Tableau créé</translation>
    </message>
    <message>
        <source>Compilation successful, no errors or warnings found</source>
        <translation>Compilation réussie, aucune erreur ni aucun avertissement</translation>
    </message>
    <message>
        <source>Compilation by block successful, no errors or warnings found</source>
        <translation>Compilation du bloc réussie, aucune erreur ni aucun avertissement</translation>
    </message>
    <message>
        <source>Compiling...</source>
        <translation>Compilation en cours...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Progress of the run</source>
        <translation>Progression de l’exécution</translation>
    </message>
    <message>
        <source>Dicctionary Selection</source>
        <translation>Sélection du dictionnaire</translation>
    </message>
    <message>
        <source>The &lt;b&gt;Select at least one dictionary&lt;/b&gt; </source>
        <translation>Veuillez &lt;b&gt;sélectionner au moins un dictionnaire&lt;/b&gt; </translation>
    </message>
    <message>
        <source>The program was not run, since another one had not ended.</source>
        <translation>Le programme n’a pas été exécuté, car un autre n’était pas terminé.</translation>
    </message>
    <message>
        <source>Execution Failed</source>
        <translation>Échec de l’exécution</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Exécution en cours</translation>
    </message>
</context>
<context>
    <name>ProcessProgramSPC</name>
    <message>
        <source>Error de formato</source>
        <translation>Erreur de format</translation>
    </message>
    <message>
        <source>&lt;b&gt;Apparently the format of the error text received from the KelEngine does not match the initially defined format, so it is not possible to navigate to the line of code where the error occurs&lt;/b&gt;</source>
        <translation>&lt;b&gt;Le format du texte d’erreur reçu de KelEngine ne semble pas correspondre au format défini initialement ; il est donc impossible d’atteindre la ligne de code où se produit l’erreur&lt;/b&gt;</translation>
    </message>
    <message>
        <source>Apply to all open and future tabs?</source>
        <translation>Appliquer à tous les onglets ouverts et à venir ?</translation>
    </message>
    <message>
        <source>Word wrapping</source>
        <translation>Retour automatique à la ligne</translation>
    </message>
    <message>
        <source>Auto indentation</source>
        <translation>Retrait automatique</translation>
    </message>
    <message>
        <source>Font change</source>
        <translation>Changement de police</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Langage :</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impression en cours</translation>
    </message>
    <message>
        <source> [Unsaved]</source>
        <translation> [Non enregistré]</translation>
    </message>
</context>
<context>
    <name>ProgramActions</name>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Print...</source>
        <translation>Imprimer...</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Undo</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Redo</source>
        <translation>Rétablir</translation>
    </message>
    <message>
        <source>Cut</source>
        <translation>Couper</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Paste</source>
        <translation>Coller</translation>
    </message>
    <message>
        <source>Find...</source>
        <translation>Rechercher...</translation>
    </message>
    <message>
        <source>Replace...</source>
        <translation>Remplacer...</translation>
    </message>
    <message>
        <source>Go To...</source>
        <translation>Atteindre...</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Time/Date</source>
        <translation>Heure/Date</translation>
    </message>
    <message>
        <source>Font...</source>
        <translation>Police...</translation>
    </message>
    <message>
        <source>Auto Indent</source>
        <translation>Retrait automatique</translation>
    </message>
    <message>
        <source>Word Wrap</source>
        <translation>Retour automatique à la ligne</translation>
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
        <translation>Barre d’état</translation>
    </message>
    <message>
        <source>Tool Bar</source>
        <translation>Barre d’outils</translation>
    </message>
    <message>
        <source>SyntaxClue</source>
        <translation>Aide syntaxique</translation>
    </message>
    <message>
        <source>Show the available commands syntax (F8)</source>
        <translation>Afficher la syntaxe des commandes disponibles (F8)</translation>
    </message>
    <message>
        <source>GoTo</source>
        <translation>Atteindre</translation>
    </message>
    <message>
        <source>Go to line</source>
        <translation>Atteindre une ligne</translation>
    </message>
    <message>
        <source>Compile</source>
        <translation>Compiler</translation>
    </message>
    <message>
        <source>Compile the program</source>
        <translation>Compiler le programme</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Exécuter</translation>
    </message>
    <message>
        <source>Run Program</source>
        <translation>Exécuter le programme</translation>
    </message>
    <message>
        <source>Splitter</source>
        <translation>Console</translation>
    </message>
    <message>
        <source>Show/Hide Console</source>
        <translation>Afficher/masquer la console</translation>
    </message>
    <message>
        <source>Close tab</source>
        <translation>Fermer l’onglet</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Édition</translation>
    </message>
    <message>
        <source>Format</source>
        <translation>Format</translation>
    </message>
    <message>
        <source>Language</source>
        <translation>Langage</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Menus of the program window</source>
        <translation>Menus de la fenêtre de programme</translation>
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
        <translation>Impossible d’enregistrer le fichier : </translation>
    </message>
    <message>
        <source>Untitled document</source>
        <translation>Document sans titre</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>The file %1 is open in another tab.</source>
        <translation>Le fichier %1 est ouvert dans un autre onglet.</translation>
    </message>
    <message>
        <source>Document saved</source>
        <translation>Document enregistré</translation>
    </message>
    <message>
        <source>Do you want to save the changes to </source>
        <translation>Voulez-vous enregistrer les modifications apportées à </translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>The file %1 is open in another window.</source>
        <translation>Le fichier %1 est ouvert dans une autre fenêtre.</translation>
    </message>
</context>
<context>
    <name>ProgramListRun</name>
    <message>
        <source>Current Program: </source>
        <translation>Programme en cours : </translation>
    </message>
    <message>
        <source>Current Program :</source>
        <translation>Programme en cours :</translation>
    </message>
    <message>
        <source>Execution Canceled</source>
        <translation>Exécution annulée</translation>
    </message>
    <message>
        <source>Processing</source>
        <translation>Traitement en cours</translation>
    </message>
    <message>
        <source>Execution Finished</source>
        <translation>Exécution terminée</translation>
    </message>
    <message>
        <source>Creating Table</source>
        <translation>Création du tableau</translation>
    </message>
    <message>
        <source>Table Created</source>
        <translation>Tableau créé</translation>
    </message>
</context>
<context>
    <name>ProgramRunner</name>
    <message>
        <source>Compile</source>
        <translation>Compiler</translation>
    </message>
    <message>
        <source>Run</source>
        <translation>Exécuter</translation>
    </message>
    <message>
        <source>Please &lt;b&gt;open &lt;/b&gt;a program file or &lt;b&gt;write&lt;/b&gt; a command </source>
        <translation>Veuillez &lt;b&gt;ouvrir &lt;/b&gt;un fichier programme ou &lt;b&gt;écrire&lt;/b&gt; une commande </translation>
    </message>
    <message>
        <source>Error: </source>
        <translation>Erreur : </translation>
    </message>
</context>
<context>
    <name>ProgramText</name>
    <message>
        <source>The typed code is incomplete to show a %1 assistant window</source>
        <translation>Le code saisi est incomplet pour afficher une fenêtre d’assistant %1</translation>
    </message>
    <message>
        <source>SUGGESTION</source>
        <translation>SUGGESTION</translation>
    </message>
    <message>
        <source>DEPRECATED</source>
        <translation>OBSOLÈTE</translation>
    </message>
    <message>
        <source>USE</source>
        <translation>UTILISER</translation>
    </message>
    <message>
        <source>The directory %1 used in the %2 statement doesn&apos;t exist</source>
        <translation>Le dossier %1 utilisé dans l’instruction %2 n’existe pas</translation>
    </message>
</context>
<context>
    <name>ProjectToolBar</name>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Make a new project</source>
        <translation>Créer un projet</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Open a project</source>
        <translation>Ouvrir un projet</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save the project</source>
        <translation>Enregistrer le projet</translation>
    </message>
    <message>
        <source>Save As</source>
        <translation>Enregistrer sous</translation>
    </message>
    <message>
        <source>Save the project under another name</source>
        <translation>Enregistrer le projet sous un autre nom</translation>
    </message>
    <message>
        <source>Project</source>
        <translation>Projet</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Show and change what the project holds</source>
        <translation>Afficher et modifier le contenu du projet</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Close the project</source>
        <translation>Fermer le projet</translation>
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
        <translation>Texte du programme</translation>
    </message>
</context>
<context>
    <name>QUpdater</name>
    <message>
        <source>New version has been released!</source>
        <translation>Une nouvelle version est disponible !</translation>
    </message>
    <message>
        <source>Would you like to download the update now? Current application will be close</source>
        <translation>Voulez-vous télécharger la mise à jour maintenant ? L’application en cours sera fermée</translation>
    </message>
</context>
<context>
    <name>RecoveryDialog</name>
    <message>
        <source>Untitled</source>
        <translation>Sans titre</translation>
    </message>
    <message>
        <source>Unsaved programs</source>
        <translation>Programmes non enregistrés</translation>
    </message>
    <message>
        <source>Kelvora X ended before these &amp;programs were saved. Restored programs open with their changes; their files stay as they are until you save.</source>
        <translation>Kelvora X s’est arrêté avant l’enregistrement de ces &amp;programmes. Les programmes restaurés s’ouvrent avec leurs modifications ; leurs fichiers restent en l’état jusqu’à ce que vous enregistriez.</translation>
    </message>
    <message>
        <source>Programs that were not saved</source>
        <translation>Programmes qui n’ont pas été enregistrés</translation>
    </message>
    <message>
        <source>Program</source>
        <translation>Programme</translation>
    </message>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Last change</source>
        <translation>Dernière modification</translation>
    </message>
    <message>
        <source>State of the file</source>
        <translation>État du fichier</translation>
    </message>
    <message>
        <source>Folder</source>
        <translation>Dossier</translation>
    </message>
    <message>
        <source>&amp;Restore</source>
        <translation>&amp;Restaurer</translation>
    </message>
    <message>
        <source>Open the ticked programs</source>
        <translation>Ouvrir les programmes cochés</translation>
    </message>
    <message>
        <source>&amp;Discard</source>
        <translation>&amp;Abandonner</translation>
    </message>
    <message>
        <source>Delete the ticked texts for good</source>
        <translation>Supprimer définitivement les textes cochés</translation>
    </message>
    <message>
        <source>&amp;Later</source>
        <translation>Plus &amp;tard</translation>
    </message>
    <message>
        <source>Ask again when Kelvora X starts next time</source>
        <translation>Redemander au prochain démarrage de Kelvora X</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message numerus="yes">
        <source>Do you want to discard %n program(s)? The text cannot be brought back.</source>
        <translation>
            <numerusform>Voulez-vous abandonner %n programme ? Son texte ne pourra pas être récupéré.</numerusform>
            <numerusform>Voulez-vous abandonner %n programmes ? Leur texte ne pourra pas être récupéré.</numerusform>
        </translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>RecoveryRow</name>
    <message>
        <source>Was never saved</source>
        <translation>Jamais enregistré</translation>
    </message>
    <message>
        <source>The file is no longer there</source>
        <translation>Le fichier n’existe plus</translation>
    </message>
    <message>
        <source>The file cannot be read</source>
        <translation>Le fichier est illisible</translation>
    </message>
    <message>
        <source>The file holds the same text</source>
        <translation>Le fichier contient le même texte</translation>
    </message>
    <message>
        <source>Differs from the file</source>
        <translation>Différent du fichier</translation>
    </message>
    <message>
        <source>Differs; the file was changed later</source>
        <translation>Différent ; le fichier a été modifié après</translation>
    </message>
</context>
<context>
    <name>ReportSheet</name>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Base de données</translation>
    </message>
    <message>
        <source>Geographic Area</source>
        <translation>Zone géographique</translation>
    </message>
    <message>
        <source>Tally</source>
        <translation>Variable sommée</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Pondération</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Universal Filter</source>
        <translation>Filtre de l’univers</translation>
    </message>
    <message>
        <source>Sorted (%1) by</source>
        <translation>Trié (%1) par</translation>
    </message>
    <message>
        <source>Ascending</source>
        <translation>Croissant</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Décroissant</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entité</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Clé</translation>
    </message>
    <message>
        <source>Crosstab</source>
        <translation>Tableau croisé</translation>
    </message>
    <message>
        <source>of </source>
        <translation>de </translation>
    </message>
    <message>
        <source>by </source>
        <translation>par </translation>
    </message>
    <message>
        <source>Sorted(%1) by</source>
        <translation>Trié (%1) par</translation>
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
        <translation>Veuillez sélectionner un tableau</translation>
    </message>
    <message>
        <source>Export completed</source>
        <translation>Exportation terminée</translation>
    </message>
    <message>
        <source>Save File</source>
        <translation>Enregistrer le fichier</translation>
    </message>
    <message>
        <source>Select Folder</source>
        <translation>Sélectionner un dossier</translation>
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
        <translation>Croissant</translation>
    </message>
    <message>
        <source>Descending</source>
        <translation>Décroissant</translation>
    </message>
    <message>
        <source>Sorted</source>
        <translation>Trié</translation>
    </message>
    <message>
        <source>by</source>
        <translation>par</translation>
    </message>
    <message>
        <source>Tally</source>
        <translation>Variable sommée</translation>
    </message>
    <message>
        <source>Weight</source>
        <translation>Pondération</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Universal Filter</source>
        <translation>Filtre de l’univers</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Database</source>
        <translation>Base de données</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entité</translation>
    </message>
    <message>
        <source>Key</source>
        <translation>Clé</translation>
    </message>
    <message>
        <source>of</source>
        <translation>de</translation>
    </message>
    <message>
        <source>Geographic Area</source>
        <translation>Zone géographique</translation>
    </message>
    <message>
        <source>Crosstab</source>
        <translation>Tableau croisé</translation>
    </message>
</context>
<context>
    <name>ResultFaults</name>
    <message>
        <source>%1 was not written: cancelled</source>
        <translation>%1 n’a pas été écrit : opération annulée</translation>
    </message>
    <message>
        <source>%1 was not written: %2</source>
        <translation>%1 n’a pas été écrit : %2</translation>
    </message>
</context>
<context>
    <name>ResultsManager</name>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>CSV (Label as header)</source>
        <translation>CSV (libellés en en-tête)</translation>
    </message>
    <message>
        <source>Export as CSV (Label as header)</source>
        <translation>Exporter en CSV (libellés en en-tête)</translation>
    </message>
    <message>
        <source>CSV (Name as header)</source>
        <translation>CSV (noms en en-tête)</translation>
    </message>
    <message>
        <source>Export as CSV (Name as header)</source>
        <translation>Exporter en CSV (noms en en-tête)</translation>
    </message>
    <message>
        <source>JSON</source>
        <translation>JSON</translation>
    </message>
    <message>
        <source>Export as JSON</source>
        <translation>Exporter en JSON</translation>
    </message>
    <message>
        <source>XLSX</source>
        <translation>XLSX</translation>
    </message>
    <message>
        <source>Export as XLSX</source>
        <translation>Exporter en XLSX</translation>
    </message>
    <message>
        <source>XML</source>
        <translation>XML</translation>
    </message>
    <message>
        <source>Export as XML</source>
        <translation>Exporter en XML</translation>
    </message>
    <message>
        <source>PDF</source>
        <translation>PDF</translation>
    </message>
    <message>
        <source>Export as PDF</source>
        <translation>Exporter en PDF</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>View options</source>
        <translation>Options d’affichage</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Copy the selected cells</source>
        <translation>Copier les cellules sélectionnées</translation>
    </message>
    <message>
        <source>No table has been selected.</source>
        <translation>Aucun tableau n’a été sélectionné.</translation>
    </message>
    <message>
        <source>Table result was exported directly.</source>
        <translation>Le tableau de résultats a été exporté directement.</translation>
    </message>
    <message>
        <source>No cells are selected</source>
        <translation>Aucune cellule n’est sélectionnée</translation>
    </message>
    <message>
        <source>Copied to clipboard</source>
        <translation>Copié dans le presse-papiers</translation>
    </message>
    <message>
        <source>Too many cells to copy; an export takes them all</source>
        <translation>Trop de cellules à copier ; une exportation les reprend toutes</translation>
    </message>
    <message>
        <source>List</source>
        <translation>Liste</translation>
    </message>
    <message>
        <source>Table</source>
        <translation>Tableau</translation>
    </message>
    <message>
        <source>No table is shown.
Run a program, or choose a table in the tree.</source>
        <translation>Aucun tableau n’est affiché.
Exécutez un programme ou choisissez un tableau dans l’arborescence.</translation>
    </message>
    <message>
        <source>Runs and their tables</source>
        <translation>Exécutions et leurs tableaux</translation>
    </message>
    <message>
        <source>Cells of the table</source>
        <translation>Cellules du tableau</translation>
    </message>
    <message>
        <source>Report of the table</source>
        <translation>Rapport du tableau</translation>
    </message>
    <message>
        <source>Exports and options</source>
        <translation>Exportations et options</translation>
    </message>
    <message numerus="yes">
        <source>(and %n more)</source>
        <translation>
            <numerusform>(et %n autre)</numerusform>
            <numerusform>(et %n autres)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ResultsTreeViewContextMenu</name>
    <message>
        <source>Select all</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Deselect all</source>
        <translation>Tout désélectionner</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Export selected</source>
        <translation>Exporter la sélection</translation>
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
        <translation>Onglets ou fenêtres dans l’espace de travail</translation>
    </message>
    <message>
        <source>Preferences</source>
        <translation>Préférences</translation>
    </message>
</context>
<context>
    <name>RibbonPages</name>
    <message>
        <source>  PROJECT  </source>
        <translation>  PROJET  </translation>
    </message>
    <message>
        <source>  DICTIONARY  </source>
        <translation>  DICTIONNAIRE  </translation>
    </message>
    <message>
        <source>  FILE  </source>
        <translation>  FICHIER  </translation>
    </message>
    <message>
        <source>  BASIC STATISTICS  </source>
        <translation>  STATISTIQUES DE BASE  </translation>
    </message>
    <message>
        <source>  EASY INDICATORS  </source>
        <translation>  INDICATEURS FACILES  </translation>
    </message>
    <message>
        <source>  WINDOW  </source>
        <translation>  FENÊTRE  </translation>
    </message>
    <message>
        <source>  GENERAL  </source>
        <translation>  GÉNÉRAL  </translation>
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
        <translation>Choisir la langue</translation>
    </message>
</context>
<context>
    <name>SeveralVariablesStylePage</name>
    <message>
        <source>Show N/A rows/columns</source>
        <translation>Afficher les lignes/colonnes Sans objet (NA)</translation>
    </message>
    <message>
        <source>Show MV rows/columns</source>
        <translation>Afficher les lignes/colonnes Non déclaré (MV)</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>3-variable matrix by first variable</source>
        <translation>Matrice à 3 variables selon la première variable</translation>
    </message>
    <message>
        <source>3-variable layout:</source>
        <translation>Disposition à 3 variables :</translation>
    </message>
</context>
<context>
    <name>SheetFrame</name>
    <message>
        <source>Texts were cut off after %1 characters, which is all that a cell holds</source>
        <translation>Des textes ont été coupés après %1 caractères, soit le maximum que contient une cellule</translation>
    </message>
</context>
<context>
    <name>StartPage</name>
    <message>
        <source>Census and survey microdata: browse a database, make tables, charts and maps.</source>
        <translation>Microdonnées de recensements et d’enquêtes : explorez une base de données, produisez des tableaux, des graphiques et des cartes.</translation>
    </message>
    <message>
        <source>Open Dictionary...</source>
        <translation>Ouvrir un dictionnaire...</translation>
    </message>
    <message>
        <source>Choose a dictionary file</source>
        <translation>Choisir un fichier dictionnaire</translation>
    </message>
    <message>
        <source>Recent dictionaries</source>
        <translation>Dictionnaires récents</translation>
    </message>
    <message>
        <source>Select an entity in the tree to see its variables.</source>
        <translation>Sélectionnez une entité dans l’arborescence pour voir ses variables.</translation>
    </message>
    <message>
        <source>Entities of the dictionary</source>
        <translation>Entités du dictionnaire</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entité</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Libellé</translation>
    </message>
    <message>
        <source>Records</source>
        <translation>Enregistrements</translation>
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
        <translation>Univers</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtre</translation>
    </message>
    <message>
        <source>Limit the cases by an expression</source>
        <translation>Restreindre les cas par une expression</translation>
    </message>
    <message>
        <source>Selection</source>
        <translation>Sélection</translation>
    </message>
    <message>
        <source>Limit the areas by a selection</source>
        <translation>Restreindre les zones par une sélection</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>Key figures of a variable</source>
        <translation>Principales statistiques d’une variable</translation>
    </message>
    <message>
        <source>Areas</source>
        <translation>Zones</translation>
    </message>
    <message>
        <source>Count</source>
        <translation>Comptage</translation>
    </message>
    <message>
        <source>Count the elements of an entity by area</source>
        <translation>Compter les éléments d’une entité par zone</translation>
    </message>
    <message>
        <source>Arealist</source>
        <translation>Liste zonale</translation>
    </message>
    <message>
        <source>List figures of variables by area</source>
        <translation>Lister par zone les valeurs de variables</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Visualiser</translation>
    </message>
    <message>
        <source>See the values case by case</source>
        <translation>Voir les valeurs cas par cas</translation>
    </message>
    <message>
        <source>Tables</source>
        <translation>Tableaux</translation>
    </message>
    <message>
        <source>Frequencies</source>
        <translation>Tris à plat</translation>
    </message>
    <message>
        <source>Frequencies of variables</source>
        <translation>Tris à plat de variables</translation>
    </message>
    <message>
        <source>Crosstab</source>
        <translation>Tableau croisé</translation>
    </message>
    <message>
        <source>Tables of two or more variables</source>
        <translation>Tableaux de deux variables ou plus</translation>
    </message>
    <message>
        <source>Functions</source>
        <translation>Fonctions</translation>
    </message>
    <message>
        <source>Averages, medians, maxima and minima</source>
        <translation>Moyennes, médianes, maximums et minimums</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>Informations</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Properties of a variable</source>
        <translation>Propriétés d’une variable</translation>
    </message>
    <message>
        <source>Output Summary</source>
        <translation>Récapitulatif</translation>
    </message>
    <message>
        <source>All results so far</source>
        <translation>Tous les résultats obtenus jusqu’ici</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
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
    <name>SyntaxClue</name>
    <message>
        <source>Commands</source>
        <translation>Commandes</translation>
    </message>
</context>
<context>
    <name>TabDialogVariableProperties</name>
    <message>
        <source>Properties of %1</source>
        <translation>Propriétés de %1</translation>
    </message>
    <message>
        <source>Variable definition has been modified. Save changes?
</source>
        <translation>La définition de la variable a été modifiée. Enregistrer les modifications ?
</translation>
    </message>
</context>
<context>
    <name>TableMetadata</name>
    <message>
        <source>All Database</source>
        <translation>Toute la base de données</translation>
    </message>
    <message numerus="yes">
        <source>%n cell(s) hidden to protect persons</source>
        <translation>
            <numerusform>%n cellule masquée pour protéger les personnes</numerusform>
            <numerusform>%n cellules masquées pour protéger les personnes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>TableStyleEditorDialog</name>
    <message>
        <source>Table Style Editor</source>
        <translation>Éditeur de style de tableau</translation>
    </message>
    <message>
        <source>New Table Style</source>
        <translation>Nouveau style de tableau</translation>
    </message>
    <message>
        <source>The file %1 cannot be read as a table style. What is saved here becomes a new file.</source>
        <translation>Impossible de lire le fichier %1 comme style de tableau. Ce qui est enregistré ici devient un nouveau fichier.</translation>
    </message>
    <message>
        <source>This file has settings of an older form, which do not show here. Once it is saved, tables follow the settings below.</source>
        <translation>Ce fichier contient des paramètres d’un ancien format, qui n’apparaissent pas ici. Une fois le fichier enregistré, les tableaux suivront les paramètres ci-dessous.</translation>
    </message>
    <message>
        <source>Table Style — %1</source>
        <translation>Style de tableau — %1</translation>
    </message>
    <message>
        <source>Sections of the style</source>
        <translation>Sections du style</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Frequency (1 Var)</source>
        <translation>Tri à plat (1 var.)</translation>
    </message>
    <message>
        <source>Frequency (Multi Var)</source>
        <translation>Tri croisé (plusieurs var.)</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save As…</source>
        <translation>Enregistrer sous…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Save Table Style</source>
        <translation>Enregistrer le style de tableau</translation>
    </message>
    <message>
        <source>Table Style (*.json);;All Files (*)</source>
        <translation>Style de tableau (*.json);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>Save Error</source>
        <translation>Erreur d’enregistrement</translation>
    </message>
    <message>
        <source>Could not write file:
%1</source>
        <translation>Impossible d’écrire le fichier :
%1</translation>
    </message>
    <message>
        <source>Unsaved changes</source>
        <translation>Modifications non enregistrées</translation>
    </message>
    <message>
        <source>The changes to this table style are not saved. Do you want to discard them?</source>
        <translation>Les modifications de ce style de tableau ne sont pas enregistrées. Voulez-vous les abandonner ?</translation>
    </message>
    <message>
        <source>Discard</source>
        <translation>Abandonner</translation>
    </message>
    <message>
        <source>Keep Editing</source>
        <translation>Poursuivre la modification</translation>
    </message>
</context>
<context>
    <name>TableStylesButtonMenu</name>
    <message>
        <source>Table style saved.

No program file is currently active.
Add this line inside the DEFINE block of your .spc:

    TABLESTYLE &quot;%1&quot;</source>
        <translation>Style de tableau enregistré.

Aucun fichier programme n’est actif actuellement.
Ajoutez cette ligne dans le bloc DEFINE de votre fichier .spc :

    TABLESTYLE &quot;%1&quot;</translation>
    </message>
    <message>
        <source>TABLESTYLE line inserted into:
%1</source>
        <translation>Ligne TABLESTYLE insérée dans :
%1</translation>
    </message>
    <message>
        <source>Table style saved.
Could not update program file.
Add this line manually inside the DEFINE block:

    TABLESTYLE &quot;%1&quot;</source>
        <translation>Style de tableau enregistré.
Impossible de mettre à jour le fichier programme.
Ajoutez cette ligne manuellement dans le bloc DEFINE :

    TABLESTYLE &quot;%1&quot;</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Make a table style and name it in the program in front</source>
        <translation>Créer un style de tableau et l’indiquer dans le programme au premier plan</translation>
    </message>
    <message>
        <source>Open</source>
        <translation>Ouvrir</translation>
    </message>
    <message>
        <source>Change a table style and name it in the program in front</source>
        <translation>Modifier un style de tableau et l’indiquer dans le programme au premier plan</translation>
    </message>
    <message>
        <source>Open Table Style</source>
        <translation>Ouvrir un style de tableau</translation>
    </message>
    <message>
        <source>Table Style (*.json);;All Files (*)</source>
        <translation>Style de tableau (*.json);;Tous les fichiers (*)</translation>
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
        <translation>Taille</translation>
    </message>
    <message>
        <source>Decimals</source>
        <translation>Décimales</translation>
    </message>
    <message>
        <source>No applicable</source>
        <translation>Sans objet</translation>
    </message>
    <message>
        <source>Missing value</source>
        <translation>Non déclaré</translation>
    </message>
    <message>
        <source>Thecnical specification</source>
        <translation>Spécifications techniques</translation>
    </message>
</context>
<context>
    <name>TextFile</name>
    <message>
        <source>This is a device or a pipe, not a file.</source>
        <translation>Il s’agit d’un périphérique ou d’un tube, pas d’un fichier.</translation>
    </message>
    <message>
        <source>This is not a text file: line %1 has a null byte.</source>
        <translation>Ce n’est pas un fichier texte : la ligne %1 contient un octet nul.</translation>
    </message>
    <message>
        <source>The file is not encoded in UTF-8: line %1 has other bytes. Convert it to UTF-8 to open it here.</source>
        <translation>Le fichier n’est pas codé en UTF-8 : la ligne %1 contient d’autres octets. Convertissez-le en UTF-8 pour l’ouvrir ici.</translation>
    </message>
    <message>
        <source>The file is too large to be read (beyond 256 MB).</source>
        <translation>Le fichier est trop volumineux pour être lu (plus de 256 Mo).</translation>
    </message>
</context>
<context>
    <name>TfrmDictionary</name>
    <message>
        <source>Dictionary</source>
        <translation>Dictionnaire</translation>
    </message>
    <message>
        <source>Variables</source>
        <translation>Variables</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>Chargement...</translation>
    </message>
    <message>
        <source>Invalid Dictionary</source>
        <translation>Dictionnaire non valide</translation>
    </message>
    <message>
        <source>Error validating Dictionary:</source>
        <translation>Erreur lors de la validation du dictionnaire :</translation>
    </message>
    <message>
        <source>Dictionary Loaded</source>
        <translation>Dictionnaire chargé</translation>
    </message>
    <message>
        <source>Some variable and/or entity paths could not be found!
Please, press Locate button in the Dictionary ToolBar</source>
        <translation>Certains chemins de variables ou d’entités sont introuvables !
Veuillez cliquer sur le bouton Localiser de la barre d’outils Dictionnaire</translation>
    </message>
    <message>
        <source>Saving...</source>
        <translation>Enregistrement en cours...</translation>
    </message>
    <message>
        <source>Dictionary saved</source>
        <translation>Dictionnaire enregistré</translation>
    </message>
    <message>
        <source>Save file</source>
        <translation>Enregistrer le fichier</translation>
    </message>
    <message>
        <source>Files (*%1)</source>
        <translation>Fichiers (*%1)</translation>
    </message>
    <message>
        <source>Please, close all the windows from the application work area before exiting from the project</source>
        <translation>Veuillez fermer toutes les fenêtres de l’espace de travail avant de quitter le projet</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmation</translation>
    </message>
    <message>
        <source>Dictionary has been modified. Save modifications?</source>
        <translation>Le dictionnaire a été modifié. Enregistrer les modifications ?</translation>
    </message>
</context>
<context>
    <name>TfrmProperties</name>
    <message>
        <source>Confirm</source>
        <translation>Confirmation</translation>
    </message>
    <message>
        <source>Entity definition has been modified. Save changes?</source>
        <translation>La définition de l’entité a été modifiée. Enregistrer les modifications ?</translation>
    </message>
    <message>
        <source>Variable definition has been modified. Save changes?
</source>
        <translation>La définition de la variable a été modifiée. Enregistrer les modifications ?
</translation>
    </message>
    <message>
        <source>The variable %1 is not in the dictionary any more. Your changes of it were not saved.</source>
        <translation>La variable %1 ne figure plus dans le dictionnaire. Vos modifications la concernant n’ont pas été enregistrées.</translation>
    </message>
</context>
<context>
    <name>TreeViewContextMenu</name>
    <message>
        <source>Quick View</source>
        <translation>Aperçu rapide</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Print</source>
        <translation>Imprimer</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Tri à plat</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>&lt;b&gt;Construction: Statistics variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construction : menu contextuel Statistiques des variables &lt;/b&gt; </translation>
    </message>
    <message>
        <source>View</source>
        <translation>Visualiser</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: View context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construction : menu contextuel Visualiser &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Hide All Variables</source>
        <translation>Masquer toutes les variables</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Hide All Variables context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construction : menu contextuel Masquer toutes les variables &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Unhide All Variables</source>
        <translation>Réafficher toutes les variables</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Unhide All Variables from context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construction : menu contextuel Réafficher toutes les variables &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Selectable</source>
        <translation>Sélectionnable</translation>
    </message>
    <message>
        <source>Printing is not available yet</source>
        <translation>L’impression n’est pas encore disponible</translation>
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
        <translation>Saisir le mot de passe</translation>
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
        <translation>Sélectionner le dossier de données pour</translation>
    </message>
</context>
<context>
    <name>Validate</name>
    <message>
        <source>The typed character string has a length greater than 50</source>
        <translation>La chaîne de caractères saisie dépasse 50 caractères</translation>
    </message>
    <message>
        <source>The typed character string already exists as a group name of </source>
        <translation>La chaîne de caractères saisie existe déjà comme nom de groupe de </translation>
    </message>
    <message>
        <source>The typed character string already exists and it is the entity </source>
        <translation>La chaîne de caractères saisie existe déjà : c’est l’entité </translation>
    </message>
    <message>
        <source>The typed character string already exists as entity alias of </source>
        <translation>La chaîne de caractères saisie existe déjà comme alias d’entité de </translation>
    </message>
    <message>
        <source>The typed character string already exists as a variable name: </source>
        <translation>La chaîne de caractères saisie existe déjà comme nom de variable : </translation>
    </message>
    <message>
        <source>The typed character string already exists as variable alias of </source>
        <translation>La chaîne de caractères saisie existe déjà comme alias de variable de </translation>
    </message>
    <message>
        <source>The typed character string is empty</source>
        <translation>La chaîne de caractères saisie est vide</translation>
    </message>
    <message>
        <source>The typed character string is a Kelvora reserved word</source>
        <translation>La chaîne de caractères saisie est un mot réservé de Kelvora</translation>
    </message>
    <message>
        <source>The typed character string contains blanks</source>
        <translation>La chaîne de caractères saisie contient des espaces</translation>
    </message>
    <message>
        <source>The typed character string contains invalid characters, such as accents or special symbols</source>
        <translation>La chaîne de caractères saisie contient des caractères non valides, tels que des accents ou des symboles spéciaux</translation>
    </message>
    <message>
        <source>The variable could not be renamed, it is not a local variable</source>
        <translation>Impossible de renommer la variable : ce n’est pas une variable locale</translation>
    </message>
</context>
<context>
    <name>VarValueLabelDiccionaryModel</name>
    <message>
        <source>The category &quot;%1&quot; has no code</source>
        <translation>La modalité « %1 » n’a pas de code</translation>
    </message>
    <message>
        <source>The code %1 stands more than once in the table</source>
        <translation>Le code %1 figure plusieurs fois dans la table</translation>
    </message>
    <message>
        <source>Code</source>
        <translation>Code</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Libellé</translation>
    </message>
</context>
<context>
    <name>VariableDiccionaryModel</name>
    <message>
        <source>Type: %1</source>
        <translation>Type : %1</translation>
    </message>
    <message>
        <source>Alias: %1</source>
        <translation>Alias : %1</translation>
    </message>
    <message>
        <source>File not found: %1</source>
        <translation>Fichier introuvable : %1</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Alias</source>
        <translation>Alias</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Label</source>
        <translation>Libellé</translation>
    </message>
    <message>
        <source>Tag</source>
        <translation>Repère</translation>
    </message>
</context>
<context>
    <name>VariableInfoView</name>
    <message>
        <source>Name: </source>
        <translation>Nom : </translation>
    </message>
    <message>
        <source>Label: </source>
        <translation>Libellé : </translation>
    </message>
    <message>
        <source>Alias: </source>
        <translation>Alias : </translation>
    </message>
    <message>
        <source>Group: </source>
        <translation>Groupe : </translation>
    </message>
    <message>
        <source>Tag: </source>
        <translation>Repère : </translation>
    </message>
    <message>
        <source>Type: </source>
        <translation>Type : </translation>
    </message>
    <message>
        <source>Min: </source>
        <translation>Min. : </translation>
    </message>
    <message>
        <source>Max: </source>
        <translation>Max. : </translation>
    </message>
    <message>
        <source>NotApp: </source>
        <translation>Sans objet : </translation>
    </message>
    <message>
        <source>Missing: </source>
        <translation>Non déclaré : </translation>
    </message>
    <message>
        <source>Variable Properties</source>
        <translation>Propriétés de la variable</translation>
    </message>
    <message>
        <source>Variable Categories</source>
        <translation>Modalités de la variable</translation>
    </message>
    <message>
        <source>Properties Documentation</source>
        <translation>Documentation des propriétés</translation>
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
        <translation>Erreur %1 lors de l’envoi de l’événement</translation>
    </message>
    <message>
        <source>Variable Properties</source>
        <translation>Propriétés de la variable</translation>
    </message>
    <message>
        <source>Documentation</source>
        <translation>Documentation</translation>
    </message>
    <message>
        <source>Label:</source>
        <translation>Libellé :</translation>
    </message>
    <message>
        <source>Alias:</source>
        <translation>Alias :</translation>
    </message>
    <message>
        <source>Another name of the variable; Return stores it</source>
        <translation>Autre nom de la variable ; la touche Entrée l’enregistre</translation>
    </message>
    <message>
        <source>Group:</source>
        <translation>Groupe :</translation>
    </message>
    <message>
        <source>Variables of one group belong together; Return stores it</source>
        <translation>Les variables d’un même groupe vont ensemble ; la touche Entrée l’enregistre</translation>
    </message>
    <message>
        <source>Tag:</source>
        <translation>Repère :</translation>
    </message>
    <message>
        <source>A number of yours, 9999 at most</source>
        <translation>Un numéro de votre choix, 9999 au maximum</translation>
    </message>
    <message>
        <source>Hidden</source>
        <translation>Masquée</translation>
    </message>
    <message>
        <source>Marks the variable as hidden in lists</source>
        <translation>Marque la variable comme masquée dans les listes</translation>
    </message>
    <message>
        <source>General</source>
        <translation>Général</translation>
    </message>
    <message>
        <source>Variable Categories</source>
        <translation>Modalités de la variable</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Min</source>
        <translation>Min.</translation>
    </message>
    <message>
        <source>Max</source>
        <translation>Max.</translation>
    </message>
    <message>
        <source>No applicable</source>
        <translation>Sans objet</translation>
    </message>
    <message>
        <source>Missing value</source>
        <translation>Non déclaré</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>Nom du fichier</translation>
    </message>
    <message>
        <source>Found on Disk</source>
        <translation>Trouvé sur le disque</translation>
    </message>
    <message>
        <source>Technical Spec.</source>
        <translation>Spéc. techniques</translation>
    </message>
    <message>
        <source>Range</source>
        <translation>Intervalle</translation>
    </message>
    <message>
        <source>Kelvora native file format</source>
        <translation>Format de fichier natif Kelvora</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Save changes</source>
        <translation>Enregistrer les modifications</translation>
    </message>
</context>
<context>
    <name>VariablesContextMenu</name>
    <message>
        <source>Quick View</source>
        <translation>Aperçu rapide</translation>
    </message>
    <message>
        <source>Properties</source>
        <translation>Propriétés</translation>
    </message>
    <message>
        <source>Rename</source>
        <translation>Renommer</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Select All</source>
        <translation>Tout sélectionner</translation>
    </message>
    <message>
        <source>Frequency</source>
        <translation>Tri à plat</translation>
    </message>
    <message>
        <source>Statistics</source>
        <translation>Statistiques</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Statistics variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construction : menu contextuel Statistiques des variables &lt;/b&gt; </translation>
    </message>
    <message>
        <source>View</source>
        <translation>Visualiser</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: View variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construction : menu contextuel Visualiser des variables &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Mark as hidden</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Mark as hidden variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construction : menu contextuel Masquer des variables &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Unmark as hidden</source>
        <translation>Ne plus masquer</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Unmark as hidden variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construction : menu contextuel Ne plus masquer des variables &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Group Name</source>
        <translation>Nom du groupe</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group Frequency variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construction : menu contextuel Tri à plat du groupe de variables &lt;/b&gt; </translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group Statisitcs variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construction : menu contextuel Statistiques du groupe de variables &lt;/b&gt; </translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group View variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construction : menu contextuel Visualiser du groupe de variables &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Mark hidden</source>
        <translation>Masquer</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group Mark as hidden variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construction : menu contextuel Masquer du groupe de variables &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Unmark hidden</source>
        <translation>Ne plus masquer</translation>
    </message>
    <message>
        <source>&lt;b&gt;Contruction: Group unmark as hidden variable context menu &lt;/b&gt; </source>
        <translation>&lt;b&gt;En construction : menu contextuel Ne plus masquer du groupe de variables &lt;/b&gt; </translation>
    </message>
    <message>
        <source>Confirmation screen</source>
        <translation>Confirmation</translation>
    </message>
    <message>
        <source>Are you sure you want to delete the variable(s)?</source>
        <translation>Voulez-vous vraiment supprimer la ou les variables ?</translation>
    </message>
    <message>
        <source>The variable could not be deleted, it is not a local variable</source>
        <translation>Impossible de supprimer la variable : ce n’est pas une variable locale</translation>
    </message>
</context>
<context>
    <name>VariablesPane</name>
    <message>
        <source>%1 of %2</source>
        <translation>%1 sur %2</translation>
    </message>
    <message>
        <source>Filter...</source>
        <translation>Filtrer...</translation>
    </message>
    <message>
        <source>Enter a filter term, you can filter by name, alias, group, label or tag</source>
        <translation>Saisissez un terme pour filtrer par nom, alias, groupe, libellé ou repère</translation>
    </message>
    <message>
        <source>Filter of the variables</source>
        <translation>Filtre des variables</translation>
    </message>
    <message>
        <source>Variables shown</source>
        <translation>Variables affichées</translation>
    </message>
</context>
<context>
    <name>WaitingSpinnerWidget</name>
    <message>
        <source>Busy</source>
        <translation>Occupé</translation>
    </message>
</context>
<context>
    <name>WindowToolBar</name>
    <message>
        <source>Tabs</source>
        <translation>Onglets</translation>
    </message>
    <message>
        <source>Restore</source>
        <translation>Restaurer</translation>
    </message>
    <message>
        <source>Show the windows as tabs again</source>
        <translation>Afficher à nouveau les fenêtres sous forme d’onglets</translation>
    </message>
    <message>
        <source>Arrange</source>
        <translation>Disposition</translation>
    </message>
    <message>
        <source>Tile vertical</source>
        <translation>Mosaïque verticale</translation>
    </message>
    <message>
        <source>Place the windows side by side</source>
        <translation>Placer les fenêtres côte à côte</translation>
    </message>
    <message>
        <source>Tile horizontal</source>
        <translation>Mosaïque horizontale</translation>
    </message>
    <message>
        <source>Place the windows above one another</source>
        <translation>Placer les fenêtres l’une au-dessus de l’autre</translation>
    </message>
    <message>
        <source>Cascade</source>
        <translation>Cascade</translation>
    </message>
    <message>
        <source>Let the windows overlap</source>
        <translation>Superposer les fenêtres en cascade</translation>
    </message>
    <message>
        <source>Minimize All</source>
        <translation>Tout réduire</translation>
    </message>
    <message>
        <source>Minimize all windows</source>
        <translation>Réduire toutes les fenêtres</translation>
    </message>
    <message>
        <source>Arrange Icons</source>
        <translation>Aligner icônes</translation>
    </message>
    <message>
        <source>Line up the minimized windows at the bottom</source>
        <translation>Aligner en bas les fenêtres réduites</translation>
    </message>
    <message>
        <source>Results</source>
        <translation>Résultats</translation>
    </message>
    <message>
        <source>Show the tables made so far</source>
        <translation>Afficher les tableaux obtenus jusqu’ici</translation>
    </message>
</context>
<context>
    <name>WorkbookError</name>
    <message>
        <source>there is no room for the sheet %1</source>
        <translation>il n’y a pas de place pour la feuille %1</translation>
    </message>
    <message>
        <source>The workbook can&apos;t be written: %1.</source>
        <translation>Impossible d’écrire le classeur : %1.</translation>
    </message>
    <message>
        <source>it did not reach the disk as a whole; is there enough space?</source>
        <translation>il n’a pas été écrit en entier sur le disque ; y a-t-il assez d’espace ?</translation>
    </message>
    <message>
        <source>%1 needs %2 rows, more than a sheet of a workbook has. Export it as CSV.</source>
        <translation>%1 nécessite %2 lignes, plus que n’en contient une feuille de classeur. Exportez-le en CSV.</translation>
    </message>
    <message>
        <source>%1 needs %2 columns, more than a sheet of a workbook has. Export it as CSV.</source>
        <translation>%1 nécessite %2 colonnes, plus que n’en contient une feuille de classeur. Exportez-le en CSV.</translation>
    </message>
    <message>
        <source>The file that is there is no XLSX workbook. Choose another name, or replace the file.</source>
        <translation>Le fichier existant n’est pas un classeur XLSX. Choisissez un autre nom ou remplacez le fichier.</translation>
    </message>
    <message>
        <source>The workbook that is there is protected by a password or in an older format. Choose another name, or replace the file.</source>
        <translation>Le classeur existant est protégé par un mot de passe ou dans un format plus ancien. Choisissez un autre nom ou remplacez le fichier.</translation>
    </message>
    <message>
        <source>The workbook that is there is kept as Strict Open XML. Save it as a usual workbook first, or choose another name.</source>
        <translation>Le classeur existant est au format Strict Open XML. Enregistrez-le d’abord comme classeur ordinaire ou choisissez un autre nom.</translation>
    </message>
    <message>
        <source>The workbook that is there is signed; another sheet would break the signature. Choose another name.</source>
        <translation>Le classeur existant est signé ; une feuille supplémentaire invaliderait la signature. Choisissez un autre nom.</translation>
    </message>
    <message>
        <source>The workbook is open in another program. Close it there first. (If it is not, remove the file %1.)</source>
        <translation>Le classeur est ouvert dans un autre programme. Fermez-le d’abord dans ce programme. (S’il ne l’est pas, supprimez le fichier %1.)</translation>
    </message>
    <message>
        <source>The workbook that is there is damaged (%1). Choose another name, or replace the file.</source>
        <translation>Le classeur existant est endommagé (%1). Choisissez un autre nom ou remplacez le fichier.</translation>
    </message>
    <message>
        <source>The workbook that is there can&apos;t take more sheets (%1 is too large). Choose another name.</source>
        <translation>Le classeur existant ne peut pas recevoir d’autres feuilles (%1 est trop volumineux). Choisissez un autre nom.</translation>
    </message>
</context>
<context>
    <name>XmlDicxDictionary</name>
    <message>
        <source>Error by opening the dictionary file</source>
        <translation>Erreur à l’ouverture du fichier dictionnaire</translation>
    </message>
    <message>
        <source>Error opening dictionary [%1]</source>
        <translation>Erreur à l’ouverture du dictionnaire [%1]</translation>
    </message>
    <message>
        <source> [%1]
</source>
        <translation> [%1]
</translation>
    </message>
    <message>
        <source>File [%2] not found</source>
        <translation>Fichier [%2] introuvable</translation>
    </message>
    <message>
        <source>Do you want to located?</source>
        <translation>Voulez-vous le localiser ?</translation>
    </message>
    <message>
        <source>Confirm</source>
        <translation>Confirmation</translation>
    </message>
    <message>
        <source>The same answer for the rest</source>
        <translation>Même réponse pour les suivants</translation>
    </message>
    <message>
        <source>The files relocation for *.dicx files is not yet supported in KelX</source>
        <translation>La relocalisation des fichiers *.dicx n’est pas encore prise en charge dans KelX</translation>
    </message>
    <message>
        <source>Entity</source>
        <translation>Entité</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message numerus="yes">
        <source>(and %n more)</source>
        <translation>
            <numerusform>(et %n autre)</numerusform>
            <numerusform>(et %n autres)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>tt::Page</name>
    <message>
        <source>Scroll back</source>
        <translation>Défiler vers l’arrière</translation>
    </message>
    <message>
        <source>Scroll forward</source>
        <translation>Défiler vers l’avant</translation>
    </message>
</context>
<context>
    <name>tt::TabToolbar</name>
    <message>
        <source>Ribbon</source>
        <translation>Ruban</translation>
    </message>
    <message>
        <source>Show the ribbon</source>
        <translation>Afficher le ruban</translation>
    </message>
    <message>
        <source>Minimize the ribbon</source>
        <translation>Réduire le ruban</translation>
    </message>
</context>
</TS>
