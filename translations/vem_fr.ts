<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>Advisories</name>
    <message>
        <source>Security</source>
        <translation>Sécurité</translation>
    </message>
    <message>
        <source>Bug fix</source>
        <translation>Correction</translation>
    </message>
    <message>
        <source>Enhancement</source>
        <translation>Amélioration</translation>
    </message>
    <message>
        <source>New package</source>
        <translation>Nouveau paquet</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Autre</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Critique</translation>
    </message>
    <message>
        <source>Important</source>
        <translation>Importante</translation>
    </message>
    <message>
        <source>Moderate</source>
        <translation>Modérée</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Faible</translation>
    </message>
</context>
<context>
    <name>Advisories::Model</name>
    <message>
        <source>Open</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Carried out</source>
        <translation>Appliqué</translation>
    </message>
    <message>
        <source>Whether a newer version of an installed package is advised</source>
        <translation>Si une version plus récente d&apos;un paquet installé est conseillée</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>What the advisory is about</source>
        <translation>De quoi traite l&apos;avis</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>How grave it is, as the repository words it</source>
        <translation>Sa gravité, selon les mots du dépôt</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Gravité</translation>
    </message>
    <message>
        <source>Name of the advisory</source>
        <translation>Nom de l&apos;avis</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>When the advisory was issued</source>
        <translation>Quand l&apos;avis a été publié</translation>
    </message>
    <message>
        <source>Issued</source>
        <translation>Publié</translation>
    </message>
    <message>
        <source>How many versions of packages it names</source>
        <translation>Combien de versions de paquets il nomme</translation>
    </message>
    <message>
        <source>Packages</source>
        <translation>Paquets</translation>
    </message>
    <message>
        <source>What it says in short</source>
        <translation>Ce qu&apos;il dit en bref</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titre</translation>
    </message>
    <message>
        <source>Known vulnerabilities that it is about</source>
        <translation>Vulnérabilités connues dont il traite</translation>
    </message>
    <message>
        <source>CVEs</source>
        <translation>CVE</translation>
    </message>
</context>
<context>
    <name>Advisories::PackagesModel</name>
    <message>
        <source>Open</source>
        <translation>En attente</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Non installé</translation>
    </message>
    <message>
        <source>Carried out</source>
        <translation>Appliqué</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>Nom du paquet</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Version that the advisory names</source>
        <translation>Version que nomme l&apos;avis</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Version that is installed</source>
        <translation>Version installée</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>Installé</translation>
    </message>
    <message>
        <source>Architecture of the package</source>
        <translation>Architecture du paquet</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Architecture</translation>
    </message>
    <message>
        <source>Whether what is installed is older</source>
        <translation>Si ce qui est installé est plus ancien</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
</context>
<context>
    <name>Advisories::Reader</name>
    <message>
        <source>Unable to read the advisories</source>
        <translation>Impossible de lire les avis</translation>
    </message>
</context>
<context>
    <name>Advisories::Window</name>
    <message>
        <source>Advisories</source>
        <translation>Avis</translation>
    </message>
    <message>
        <source>The metadata of the repositories in use tells of no advisories.</source>
        <translation>Les métadonnées des dépôts utilisés ne contiennent pas d&apos;avis.</translation>
    </message>
    <message>
        <source>No advisory is about an installed package.</source>
        <translation>Aucun avis ne concerne un paquet installé.</translation>
    </message>
    <message>
        <source>No advisory fits what is to be shown.</source>
        <translation>Aucun avis ne correspond à ce qui doit être montré.</translation>
    </message>
    <message>
        <source>Advisories about installed packages, the latest first</source>
        <translation>Avis sur les paquets installés, le dernier d&apos;abord</translation>
    </message>
    <message>
        <source>Open Security Advisories</source>
        <translation>Avis de sécurité en attente</translation>
    </message>
    <message>
        <source>Open Advisories</source>
        <translation>Avis en attente</translation>
    </message>
    <message>
        <source>All Advisories</source>
        <translation>Tous les avis</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Open is an advisory that names a newer version of an installed package</source>
        <translation>Est en attente un avis qui nomme une version plus récente d&apos;un paquet installé</translation>
    </message>
    <message>
        <source>part of an identifier, a title or a CVE</source>
        <translation>partie d&apos;un identifiant, d&apos;un titre ou d&apos;une CVE</translation>
    </message>
    <message>
        <source>Shows only the advisories with this text in their identifier, title or CVEs</source>
        <translation>Montre seulement les avis dont l&apos;identifiant, le titre ou les CVE contiennent ce texte</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>Ch&amp;ercher :</translation>
    </message>
    <message>
        <source>Advisory</source>
        <translation>Avis</translation>
    </message>
    <message>
        <source>The chosen advisory</source>
        <translation>L&apos;avis choisi</translation>
    </message>
    <message>
        <source>Packages</source>
        <translation>Paquets</translation>
    </message>
    <message>
        <source>Packages that the chosen advisory names</source>
        <translation>Paquets que nomme l&apos;avis choisi</translation>
    </message>
    <message>
        <source>&amp;Mark Its Updates</source>
        <translation>Mar&amp;quer ses mises à jour</translation>
    </message>
    <message>
        <source>Marks the packages of the chosen advisory for an update</source>
        <translation>Marque les paquets de l&apos;avis choisi pour une mise à jour</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Fer&amp;mer</translation>
    </message>
    <message>
        <source>Close the advisories</source>
        <translation>Fermer les avis</translation>
    </message>
</context>
<context>
    <name>Colors</name>
    <message>
        <source>#fffacd</source>
        <translation>#fffacd</translation>
    </message>
    <message>
        <source>blue</source>
        <translation>blue</translation>
    </message>
    <message>
        <source>red</source>
        <translation>red</translation>
    </message>
    <message>
        <source>#ffa9b8</source>
        <translation>#ffa9b8</translation>
    </message>
    <message>
        <source>darkorange</source>
        <translation>darkorange</translation>
    </message>
    <message>
        <source>#8b5a2b</source>
        <translation>#8b5a2b</translation>
    </message>
    <message>
        <source>#ffbd94</source>
        <translation>#ffbd94</translation>
    </message>
    <message>
        <source>green</source>
        <translation>green</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
</context>
<context>
    <name>DetailsModel</name>
    <message>
        <source>What happens to the package</source>
        <translation>Ce qui arrive au paquet</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>Nom du paquet</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Installed version, and the version that takes its place</source>
        <translation>Version installée et version qui prend sa place</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Architecture of the package</source>
        <translation>Architecture du paquet</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Architecture</translation>
    </message>
    <message>
        <source>Where the package comes from</source>
        <translation>D’où vient le paquet</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>Dépôt</translation>
    </message>
    <message>
        <source>What is downloaded; of a package that goes, what it takes on the disk</source>
        <translation>Ce qui est téléchargé ; pour un paquet qui part, la place qu’il occupe sur le disque</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Why the package is part of the transaction</source>
        <translation>Pourquoi le paquet fait partie de la transaction</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>Raison</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Downgrade</source>
        <translation>Rétrograder</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>Réinstaller</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>marked</source>
        <translation>marqué</translation>
    </message>
    <message>
        <source>required by %1</source>
        <translation>requis par %1</translation>
    </message>
    <message>
        <source>recommended by %1</source>
        <translation>recommandé par %1</translation>
    </message>
    <message>
        <source>goes together with %1</source>
        <translation>va avec %1</translation>
    </message>
    <message>
        <source>needs %1</source>
        <translation>a besoin de %1</translation>
    </message>
    <message>
        <source>replaced by %1</source>
        <translation>remplacé par %1</translation>
    </message>
    <message>
        <source>no longer needed</source>
        <translation>n’est plus nécessaire</translation>
    </message>
    <message>
        <source>to resolve dependencies</source>
        <translation>pour résoudre les dépendances</translation>
    </message>
    <message>
        <source>%1; replaces %2</source>
        <translation>%1 ; remplace %2</translation>
    </message>
    <message>
        <source>Removed without being marked: %1</source>
        <translation>Supprimé sans être marqué : %1</translation>
    </message>
    <message>
        <source>Protected, and goes all the same: %1</source>
        <translation>Protégé, et part tout de même : %1</translation>
    </message>
    <message>
        <source>The running kernel goes: %1</source>
        <translation>Le noyau en cours d’exécution part : %1</translation>
    </message>
    <message>
        <source>Older than the installed version: %1</source>
        <translation>Plus ancien que la version installée : %1</translation>
    </message>
    <message>
        <source>Signature not checked, by the configuration of the repository: %1</source>
        <translation>Signature non vérifiée, selon la configuration du dépôt : %1</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 et %2 autres</translation>
    </message>
    <message>
        <source>one version too many</source>
        <translation>une version de trop</translation>
    </message>
</context>
<context>
    <name>DetailsPage</name>
    <message>
        <source>Totals</source>
        <translation>Totaux</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Avertissements</translation>
    </message>
    <message>
        <source>What you may not expect of this transaction</source>
        <translation>Ce que vous n’attendez peut-être pas de cette transaction</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message>
        <source>To download: %1</source>
        <translation>À télécharger : %1</translation>
    </message>
    <message>
        <source>On the disk: no change</source>
        <translation>Sur le disque : aucun changement</translation>
    </message>
    <message>
        <source>On the disk: %1 more</source>
        <translation>Sur le disque : %1 de plus</translation>
    </message>
    <message>
        <source>On the disk: %1 less</source>
        <translation>Sur le disque : %1 de moins</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>The packages of the transaction, and why each is part of it</source>
        <translation>Les paquets de la transaction et la raison de chacun</translation>
    </message>
    <message>
        <source>Load &amp;Changes</source>
        <translation>&amp;Charger les changements</translation>
    </message>
    <message>
        <source>Reads the changelogs of the repositories, which may have to be downloaded</source>
        <translation>Lit les journaux des changements des dépôts, qu’il faut peut-être télécharger</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Changements</translation>
    </message>
    <message>
        <source>What has changed since the installed versions</source>
        <translation>Ce qui a changé depuis les versions installées</translation>
    </message>
    <message>
        <source>The changelogs are being read…</source>
        <translation>Lecture des journaux des changements…</translation>
    </message>
    <message>
        <source>The changelogs tell nothing new of %1.</source>
        <translation>Les journaux des changements ne disent rien de nouveau de %1.</translation>
    </message>
    <message>
        <source>The changelogs tell nothing new.</source>
        <translation>Les journaux des changements ne disent rien de nouveau.</translation>
    </message>
</context>
<context>
    <name>EmptyTableNote</name>
    <message>
        <source>There are no packages.</source>
        <translation>Il n’y a aucun paquet.</translation>
    </message>
    <message>
        <source>Nothing matches %1 in %2.</source>
        <extracomment>%1 is an expression, %2 one of the choices beside it, such as &quot;View All&quot;</extracomment>
        <translation>Rien dans « %2 » ne correspond à %1.</translation>
    </message>
    <message>
        <source>There is nothing in %1.</source>
        <extracomment>%1 is one of the choices above the table, such as &quot;View Updatable&quot;</extracomment>
        <translation>Il n’y a rien dans « %1 ».</translation>
    </message>
    <message>
        <source>%1 match in %2</source>
        <extracomment>%1 is a number of rows, %2 is &quot;View All&quot;</extracomment>
        <translation>%1 correspondances dans « %2 »</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 dans « %2 »</translation>
    </message>
    <message>
        <source>%1 match among groups</source>
        <translation>%1 correspondances parmi les groupes</translation>
    </message>
    <message>
        <source>%1 among groups</source>
        <translation>%1 parmi les groupes</translation>
    </message>
    <message>
        <source>%1 match without case</source>
        <translation>%1 correspondances sans respecter la casse</translation>
    </message>
    <message>
        <source>Clear the expression</source>
        <translation>Effacer l&apos;expression</translation>
    </message>
    <message>
        <source>The metadata of the repositories in use tells of no advisories.</source>
        <translation>Les métadonnées des dépôts utilisés ne contiennent pas d&apos;avis.</translation>
    </message>
</context>
<context>
    <name>Execute</name>
    <message>
        <source>Help</source>
        <translation>Aide</translation>
    </message>
    <message>
        <source>fork() failed; errno = %1 (%2)</source>
        <translation>Échec de fork()&#xa0;; errno = %1 (%2)</translation>
    </message>
</context>
<context>
    <name>Fonts</name>
    <message>
        <source>Helvetica</source>
        <translation>Helvetica</translation>
    </message>
    <message>
        <source>Courier</source>
        <translation>Courier</translation>
    </message>
</context>
<context>
    <name>HProgressBar</name>
    <message>
        <source>%1, %2</source>
        <translation>%1, %2</translation>
    </message>
</context>
<context>
    <name>History</name>
    <message>
        <source>Done</source>
        <translation>Terminée</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Échouée</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>En cours</translation>
    </message>
    <message>
        <source>Cut off</source>
        <translation>Interrompue</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>Installé</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Mis à jour</translation>
    </message>
    <message>
        <source>Downgraded</source>
        <translation>Rétrogradé</translation>
    </message>
    <message>
        <source>Reinstalled</source>
        <translation>Réinstallé</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>Obsoleted</source>
        <translation>Rendu obsolète</translation>
    </message>
    <message>
        <source>Reason changed</source>
        <translation>Raison modifiée</translation>
    </message>
    <message>
        <source>Replaced</source>
        <translation>Remplacé</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Modifié</translation>
    </message>
    <message>
        <source>user</source>
        <translation>utilisateur</translation>
    </message>
    <message>
        <source>group</source>
        <translation>groupe</translation>
    </message>
    <message>
        <source>dependency</source>
        <translation>dépendance</translation>
    </message>
    <message>
        <source>weak dependency</source>
        <translation>dépendance faible</translation>
    </message>
    <message>
        <source>no longer needed</source>
        <translation>plus nécessaire</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>un autre programme</translation>
    </message>
    <message>
        <source>Groups: %1</source>
        <translation>Groupes : %1</translation>
    </message>
</context>
<context>
    <name>History::Model</name>
    <message>
        <source>Number of the transaction, as the package library counts</source>
        <translation>Numéro de la transaction selon la bibliothèque de paquets</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Numéro</translation>
    </message>
    <message>
        <source>When the transaction began</source>
        <translation>Quand la transaction a commencé</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Début</translation>
    </message>
    <message>
        <source>Who had logged in</source>
        <translation>Qui avait ouvert la session</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>What came of the transaction</source>
        <translation>Ce qu&apos;a donné la transaction</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Résultat</translation>
    </message>
    <message>
        <source>What was done to how many packages and groups</source>
        <translation>Ce qui a été fait de combien de paquets et de groupes</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Changements</translation>
    </message>
    <message>
        <source>Command line of the program that did it</source>
        <translation>Ligne de commande du programme qui l&apos;a fait</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>What the user has noted</source>
        <translation>Ce que l&apos;utilisateur a noté</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Commentaire</translation>
    </message>
</context>
<context>
    <name>History::PackagesModel</name>
    <message>
        <source>%1: failed</source>
        <translation>%1 : échec</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>Groupe %1</translation>
    </message>
    <message>
        <source>What was done to the package</source>
        <translation>Ce qui a été fait du paquet</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Changement</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>Nom du paquet</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Version before, and the version that took its place</source>
        <translation>Version d&apos;avant, et version qui a pris sa place</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Architecture of the package</source>
        <translation>Architecture du paquet</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Architecture</translation>
    </message>
    <message>
        <source>Where the package came from</source>
        <translation>D&apos;où venait le paquet</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>Dépôt</translation>
    </message>
    <message>
        <source>Why the package was installed</source>
        <translation>Pourquoi le paquet était installé</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Raison</translation>
    </message>
</context>
<context>
    <name>History::Records</name>
    <message>
        <source>Unable to read the history of transactions</source>
        <translation>Impossible de lire l&apos;historique des transactions</translation>
    </message>
</context>
<context>
    <name>History::Window</name>
    <message>
        <source>History</source>
        <translation>Historique</translation>
    </message>
    <message>
        <source>No transaction is known.</source>
        <translation>Aucune transaction n&apos;est connue.</translation>
    </message>
    <message>
        <source>No transaction fits the search.</source>
        <translation>Aucune transaction ne correspond à la recherche.</translation>
    </message>
    <message>
        <source>Transaction %1: %2</source>
        <translation>Transaction %1 : %2</translation>
    </message>
    <message>
        <source>Begun: %1</source>
        <translation>Commencée : %1</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>De %1 à %2</translation>
    </message>
    <message>
        <source>User: %1</source>
        <translation>Utilisateur : %1</translation>
    </message>
    <message>
        <source>Command: %1</source>
        <translation>Commande : %1</translation>
    </message>
    <message>
        <source>Comment: %1</source>
        <translation>Commentaire : %1</translation>
    </message>
    <message>
        <source>The scripts of the packages wrote nothing.</source>
        <translation>Les scripts des paquets n&apos;ont rien écrit.</translation>
    </message>
    <message>
        <source>The package library doesn&apos;t keep what scripts of packages write.</source>
        <translation>La bibliothèque de paquets ne garde pas ce qu&apos;écrivent les scripts des paquets.</translation>
    </message>
    <message>
        <source>The helper script in use is too old for changes by the history</source>
        <translation>Le script auxiliaire utilisé est trop ancien pour des changements selon l&apos;historique</translation>
    </message>
    <message>
        <source>Do the opposite of the chosen transaction</source>
        <translation>Faire le contraire de la transaction choisie</translation>
    </message>
    <message>
        <source>Do the chosen transaction once more</source>
        <translation>Refaire la transaction choisie</translation>
    </message>
    <message>
        <source>Undo all transactions behind the chosen one</source>
        <translation>Annuler toutes les transactions qui suivent celle choisie</translation>
    </message>
    <message>
        <source>Not all of it can be done:</source>
        <translation>Tout ne peut pas être fait :</translation>
    </message>
    <message>
        <source>Go on with the rest? What exactly is done is shown before, and asked once more.</source>
        <translation>Continuer avec le reste ? Ce qui est fait exactement est montré avant, et demandé encore une fois.</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Texte (*.txt)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exporter</translation>
    </message>
    <message>
        <source>Unable to write %1: %2</source>
        <translation>Impossible d&apos;écrire %1 : %2</translation>
    </message>
    <message>
        <source>All transactions, the latest first</source>
        <translation>Toutes les transactions, la dernière d&apos;abord</translation>
    </message>
    <message>
        <source>part of a name, or a pattern such as kernel*</source>
        <translation>partie d&apos;un nom, ou un motif comme kernel*</translation>
    </message>
    <message>
        <source>Shows only the transactions about packages whose name, version and
architecture hold this text or, with * or ?, match it</source>
        <translation>Montre seulement les transactions des paquets dont le nom, la version et
l&apos;architecture contiennent ce texte ou, avec * ou ?, y correspondent</translation>
    </message>
    <message>
        <source>Pac&amp;kage:</source>
        <translation>Pa&amp;quet :</translation>
    </message>
    <message>
        <source>The chosen transaction</source>
        <translation>La transaction choisie</translation>
    </message>
    <message>
        <source>Packages</source>
        <translation>Paquets</translation>
    </message>
    <message>
        <source>What the chosen transaction did</source>
        <translation>Ce qu&apos;a fait la transaction choisie</translation>
    </message>
    <message>
        <source>Script Output</source>
        <translation>Sortie des scripts</translation>
    </message>
    <message>
        <source>What scripts of the packages wrote during the transaction</source>
        <translation>Ce que les scripts des paquets ont écrit pendant la transaction</translation>
    </message>
    <message>
        <source>&amp;Packages</source>
        <translation>&amp;Paquets</translation>
    </message>
    <message>
        <source>&amp;Script Output</source>
        <translation>&amp;Sortie des scripts</translation>
    </message>
    <message>
        <source>&amp;Undo This</source>
        <translation>A&amp;nnuler celle-ci</translation>
    </message>
    <message>
        <source>&amp;Roll Back To Here</source>
        <translation>&amp;Revenir jusqu&apos;ici</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>Re&amp;faire</translation>
    </message>
    <message>
        <source>&amp;This Transaction...</source>
        <translation>&amp;Cette transaction...</translation>
    </message>
    <message>
        <source>&amp;All Transactions...</source>
        <translation>&amp;Toutes les transactions...</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exporter</translation>
    </message>
    <message>
        <source>Write transactions into a file, as text or JSON</source>
        <translation>Écrire des transactions dans un fichier, en texte ou JSON</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>Fer&amp;mer</translation>
    </message>
    <message>
        <source>Close the history</source>
        <translation>Fermer l&apos;historique</translation>
    </message>
    <message>
        <source>Transaction</source>
        <translation>Transaction</translation>
    </message>
</context>
<context>
    <name>KeyDialog</name>
    <message>
        <source>Import Key</source>
        <translation>Importer la clé</translation>
    </message>
    <message>
        <source>Fetch Key</source>
        <translation>Récupérer la clé</translation>
    </message>
    <message>
        <source>Is this key to be trusted? Everything that it has signed is accepted from then on. Import it only if you know its fingerprint from elsewhere, such as its owner&apos;s pages.</source>
        <translation>Faut-il se fier à cette clé&#xa0;? Tout ce qu’elle a signé sera accepté dès lors. Ne l’importez que si vous connaissez son empreinte par une autre voie, comme les pages de son propriétaire.</translation>
    </message>
    <message>
        <source>A key that is missing is to be fetched from the address below. Nothing is trusted yet: you see the key before it is imported.</source>
        <translation>Une clé manquante doit être récupérée à l’adresse ci-dessous. Rien n’est encore approuvé&#xa0;: vous verrez la clé avant qu’elle soit importée.</translation>
    </message>
    <message>
        <source>User ID:</source>
        <translation>ID d’utilisateur&#xa0;:</translation>
    </message>
    <message>
        <source>Fingerprint:</source>
        <translation>Empreinte&#xa0;:</translation>
    </message>
    <message>
        <source>Key ID:</source>
        <translation>ID de clé&#xa0;:</translation>
    </message>
    <message>
        <source>%1 (short: %2)</source>
        <translation>%1 (court&#xa0;: %2)</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>Créée&#xa0;:</translation>
    </message>
    <message>
        <source>Expires:</source>
        <translation>Expire&#xa0;:</translation>
    </message>
    <message>
        <source>never</source>
        <translation>jamais</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse&#xa0;:</translation>
    </message>
    <message>
        <source>Transport:</source>
        <translation>Transport&#xa0;:</translation>
    </message>
    <message>
        <source>a file of this system</source>
        <translation>un fichier de ce système</translation>
    </message>
    <message>
        <source>https: encrypted, from a server that has proved its name</source>
        <translation>https&#xa0;: chiffré, depuis un serveur qui a prouvé son nom</translation>
    </message>
    <message>
        <source>%1: not encrypted. Anybody on the way may have exchanged the key.</source>
        <translation>%1&#xa0;: non chiffré. Quiconque se trouve sur le trajet peut avoir remplacé la clé.</translation>
    </message>
    <message>
        <source>Repository:</source>
        <translation>Dépôt&#xa0;:</translation>
    </message>
    <message>
        <source>Signed with it:</source>
        <translation>Signé avec elle&#xa0;:</translation>
    </message>
    <message>
        <source>the metadata of the repository</source>
        <translation>les métadonnées du dépôt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>https: encrypted, but any server may answer, since sslverify is switched off. Anybody on the way may have exchanged the key.</source>
        <translation>https : chiffré, mais n’importe quel serveur peut répondre, puisque sslverify est désactivé. Quiconque se trouve sur le chemin peut avoir échangé la clé.</translation>
    </message>
</context>
<context>
    <name>Log::Window</name>
    <message>
        <source>&lt;font color=&quot;%1&quot;&gt;</source>
        <translation>&lt;font color=&quot;%1&quot;&gt;</translation>
    </message>
    <message>
        <source>&lt;/font&gt;</source>
        <translation>&lt;/font&gt;</translation>
    </message>
    <message>
        <source>&lt;font&gt;</source>
        <translation>&lt;font&gt;</translation>
    </message>
    <message>
        <source>&lt;h2&gt;&lt;font color=&quot;%1&quot;&gt;</source>
        <translation>&lt;h2&gt;&lt;font color=&quot;%1&quot;&gt;</translation>
    </message>
    <message>
        <source>&lt;/font&gt;&lt;/h2&gt;</source>
        <translation>&lt;/font&gt;&lt;/h2&gt;</translation>
    </message>
    <message>
        <source>VEM Log</source>
        <translation>VEM - Journal</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Journal</translation>
    </message>
    <message>
        <source>Detail level</source>
        <translation>Niveau de détail</translation>
    </message>
    <message>
        <source>Threshold beyond which more detailed log messages are omitted.
Higher levels show more detail.
The valid range is 0 .. %1.
The default is %2.
Higher levels contain debug information.
This corresponds to yum&apos;s debuglevel (-d) option.</source>
        <translation>Seuil au-delà duquel les messages plus détaillés du journal sont omis.
Plus le niveau est élevé, plus le journal est détaillé.
L’intervalle autorisé est 0 .. %1.
La valeur par défaut est %2.
Les niveaux élevés contiennent des informations de débogage.
Correspond à l’option debuglevel (-d) de yum.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Close the Log Window</source>
        <translation>Fermer la fenêtre du journal</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Clean RPM package headers cached locally in %1</source>
        <translation>Nettoyer les en-têtes de paquets RPM du cache local dans %1</translation>
    </message>
    <message>
        <source>Clean RPM packages cached locally in %1
(useful for recovering disk space)</source>
        <translation>Nettoyer les paquets RPM du cache local dans %1
(utile pour récupérer de l’espace disque)</translation>
    </message>
    <message>
        <source>Clean XML metadata cached locally in %1
(useful along with Clean Pickled Data for
 forcing download of new available package lists)</source>
        <translation>Nettoyer les métadonnées XML du cache local dans %1
(utile avec «&#xa0;Nettoyer les données sérialisées&#xa0;» pour
 forcer le téléchargement des nouvelles listes de paquets disponibles)</translation>
    </message>
    <message>
        <source>Clean pickled data cached locally in %1
(useful along with Clean XML Metadata for
 forcing download of new available package lists)</source>
        <translation>Nettoyer les données sérialisées (pickle) du cache local dans %1
(utile avec «&#xa0;Nettoyer les métadonnées XML&#xa0;» pour
 forcer le téléchargement des nouvelles listes de paquets disponibles)</translation>
    </message>
    <message>
        <source>Clean all data cached locally in %1</source>
        <translation>Nettoyer toutes les données du cache local dans %1</translation>
    </message>
    <message>
        <source>About</source>
        <translation>À propos</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Rechercher</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtrer</translation>
    </message>
    <message>
        <source>Regular expression to compare to all fields of a package</source>
        <translation>Expression rationnelle à comparer à tous les champs de chaque paquet</translation>
    </message>
    <message>
        <source>Regular expression filter matching textual fields visible in the table</source>
        <translation>Expression rationnelle qui filtre d’après les champs de texte visibles dans le tableau</translation>
    </message>
    <message>
        <source>Perform the search for the regular expression specified to the left</source>
        <translation>Rechercher l’expression rationnelle indiquée à gauche</translation>
    </message>
    <message>
        <source>Apply the filter specified to the left</source>
        <translation>Appliquer le filtre indiqué à gauche</translation>
    </message>
    <message>
        <source>Specify the method for using a regular expression to select packages in the table:
	Filter uses the textual fields visible in the table, as if they were separated by spaces.
	Search uses all fields in packages, including list of Files, Change Log, Requires, etc.,
	independently.  It is considerably slower.</source>
        <translation>Méthode par laquelle une expression rationnelle sélectionne les paquets du tableau&#xa0;:
	Filtrer utilise les champs de texte visibles dans le tableau, comme s’ils étaient séparés par des espaces.
	Rechercher utilise tous les champs des paquets, y compris la liste des fichiers, le journal des
	modifications, les dépendances, etc., chacun séparément. C’est nettement plus lent.</translation>
    </message>
    <message>
        <source>%1 (Must load extra data.)</source>
        <translation>%1 (Des données supplémentaires doivent être chargées.)</translation>
    </message>
    <message>
        <source>VEM - %1</source>
        <translation>VEM - %1</translation>
    </message>
    <message>
        <source>&amp;Program</source>
        <translation>&amp;Programme</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>&amp;Fenêtres</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>&amp;Journal</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>&amp;Repositories</source>
        <translation>&amp;Dépôts</translation>
    </message>
    <message>
        <source>&amp;Edit Configuration</source>
        <translation>&amp;Modifier la configuration</translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation>Ctrl+E</translation>
    </message>
    <message>
        <source>&amp;Cache</source>
        <translation>&amp;Cache</translation>
    </message>
    <message>
        <source>Clean Headers</source>
        <translation>Nettoyer les en-têtes</translation>
    </message>
    <message>
        <source>Clean Packages</source>
        <translation>Nettoyer les paquets</translation>
    </message>
    <message>
        <source>Clean XML Metadata</source>
        <translation>Nettoyer les métadonnées XML</translation>
    </message>
    <message>
        <source>Clean Pickled Data</source>
        <translation>Nettoyer les données sérialisées</translation>
    </message>
    <message>
        <source>Clean All</source>
        <translation>Tout nettoyer</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>Aid&amp;e</translation>
    </message>
    <message>
        <source>Manual (html)</source>
        <translation>Manuel (html)</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>Manual (PDF)</source>
        <translation>Manuel (PDF)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>À &amp;propos</translation>
    </message>
    <message>
        <source>Filter or Search</source>
        <translation>Filtrer ou rechercher</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Expression rationnelle</translation>
    </message>
    <message>
        <source>View Updatable</source>
        <translation>Voir les mises à jour</translation>
    </message>
    <message>
        <source>View Installable</source>
        <translation>Voir les installables</translation>
    </message>
    <message>
        <source>View Removable</source>
        <translation>Voir les supprimables</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>Voir tout</translation>
    </message>
    <message>
        <source>Filter for those packages which are eligible for updating,
for installing, or for removing; or show all packages</source>
        <translation>N’afficher que les paquets qui peuvent être mis à jour,
installés ou supprimés, ou afficher tous les paquets</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Affichage</translation>
    </message>
    <message>
        <source>Include Groups</source>
        <translation>Inclure les groupes</translation>
    </message>
    <message>
        <source>Whether or not filter should include package groups</source>
        <translation>Indique si le filtre doit inclure les groupes de paquets</translation>
    </message>
    <message>
        <source>&amp;Describe</source>
        <translation>Déc&amp;rire</translation>
    </message>
    <message>
        <source>Pop up a window with a detailed description of the currently selected package</source>
        <translation>Ouvrir une fenêtre avec la description détaillée du paquet sélectionné</translation>
    </message>
    <message>
        <source>Re&amp;size</source>
        <translation>A&amp;juster</translation>
    </message>
    <message>
        <source>Resize the columns and window to optimal values</source>
        <translation>Ajuster les colonnes et la fenêtre à leur taille optimale</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Actua&amp;liser</translation>
    </message>
    <message>
        <source>Refresh the list of installed packages and packages available for update.
Use this to check for new updates in repositories, or if any packages were installed manually.</source>
        <translation>Actualiser la liste des paquets installés et des paquets disponibles pour la mise à jour.
À utiliser pour rechercher de nouvelles mises à jour dans les dépôts ou si des paquets ont été installés manuellement.</translation>
    </message>
    <message>
        <source>Set &amp;Install/Update of Selected</source>
        <translation>Marquer la &amp;sélection (installer/MàJ)</translation>
    </message>
    <message>
        <source>Sets the Action for all selected packages which are Not Installed to Install, and
sets the Action for all selected packages which are Installed but Out-of-date to Update.
Does not Apply Actions automatically.</source>
        <translation>Affecte l’action «&#xa0;Installer&#xa0;» à tous les paquets sélectionnés qui ne sont pas installés
et l’action «&#xa0;Mettre à jour&#xa0;» à tous ceux qui sont installés mais périmés.
N’applique pas automatiquement les actions.</translation>
    </message>
    <message>
        <source>Set &amp;Update of All Out-of-Date</source>
        <translation>Marquer toutes les &amp;mises à jour</translation>
    </message>
    <message>
        <source>Sets the Action for all packages which are Installed but Out-of-date to Update.
Does not Apply Actions automatically.</source>
        <translation>Affecte l’action «&#xa0;Mettre à jour&#xa0;» à tous les paquets installés mais périmés.
N’applique pas automatiquement les actions.</translation>
    </message>
    <message>
        <source>&amp;Clear Actions</source>
        <translation>Effacer les acti&amp;ons</translation>
    </message>
    <message>
        <source>Clears all specified Actions (Updates, Installs, and Removals)</source>
        <translation>Efface toutes les actions indiquées (mises à jour, installations et suppressions)</translation>
    </message>
    <message>
        <source>&amp;Apply Actions</source>
        <translation>&amp;Appliquer les actions</translation>
    </message>
    <message>
        <source>Applies the specified Actions (Updates, Installs, and Removals)</source>
        <translation>Applique les actions indiquées (mises à jour, installations et suppressions)</translation>
    </message>
    <message>
        <source>Item Progress</source>
        <translation>Progression de l’élément</translation>
    </message>
    <message>
        <source>Total Progress</source>
        <translation>Progression totale</translation>
    </message>
    <message>
        <source>VEM</source>
        <translation>VEM</translation>
    </message>
    <message>
        <source>Unfinished Transaction</source>
        <translation>Transaction inachevée</translation>
    </message>
    <message>
        <source>Shall the older versions be removed? What exactly is done is shown before, and asked once more.</source>
        <translation>Faut-il supprimer les anciennes versions&#xa0;? Ce qui sera fait est d’abord montré en détail, et une nouvelle confirmation est demandée.</translation>
    </message>
    <message>
        <source>&amp;Remove Older Versions</source>
        <translation>&amp;Supprimer les anciennes versions</translation>
    </message>
    <message>
        <source>&amp;Leave Them</source>
        <translation>&amp;Les conserver</translation>
    </message>
    <message>
        <source>Not everything that is configured could be used, so the table may not show what it should:</source>
        <translation>Tout ce qui est configuré n’a pas pu être utilisé ; il se peut donc que le tableau ne montre pas ce qu’il devrait :</translation>
    </message>
    <message>
        <source>Incomplete Table</source>
        <translation>Tableau incomplet</translation>
    </message>
    <message>
        <source>&lt;h3&gt;VEM %1&lt;/h3&gt;&lt;hr&gt;&lt;p&gt;VEM, Verified Estate Manager, is a graphical user interface which allows a user to make modifications to the installed rpm packages on a system.&lt;/p&gt;&lt;p&gt;Capabilities:&lt;p&gt;&lt;ul&gt;&lt;li&gt;Install new packages or update existing packages by downloading them from a yum package repository&lt;/li&gt;&lt;li&gt;Remove existing packages.&lt;/li&gt;&lt;li&gt;Configure sets of repositories from which to obtain new and updated packages.&lt;/li&gt;&lt;li&gt;Examine installed packages or packages available for installation or update&lt;/li&gt;&lt;li&gt;Install, update, or remove groups of packages&lt;/li&gt;&lt;li&gt;Install or update suites of packages&lt;/li&gt;&lt;/ul&gt;</source>
        <translation>&lt;h3&gt;VEM %1&lt;/h3&gt;&lt;hr&gt;&lt;p&gt;VEM, Verified Estate Manager, est une interface graphique qui permet de modifier les paquets rpm installés sur un système.&lt;/p&gt;&lt;p&gt;Fonctionnalités&#xa0;:&lt;p&gt;&lt;ul&gt;&lt;li&gt;Installer de nouveaux paquets ou mettre à jour les paquets existants en les téléchargeant depuis un dépôt de paquets yum&lt;/li&gt;&lt;li&gt;Supprimer des paquets existants&lt;/li&gt;&lt;li&gt;Configurer les dépôts qui fournissent les nouveaux paquets et les mises à jour&lt;/li&gt;&lt;li&gt;Examiner les paquets installés ou ceux qui peuvent être installés ou mis à jour&lt;/li&gt;&lt;li&gt;Installer, mettre à jour ou supprimer des groupes de paquets&lt;/li&gt;&lt;li&gt;Installer ou mettre à jour des suites de paquets&lt;/li&gt;&lt;/ul&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Package library: %1&lt;/p&gt;</source>
        <translation>&lt;p&gt;Bibliothèque de paquets&#xa0;: %1&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Web page: &lt;a href=&quot;https://vem.example.org/&quot;&gt;https://vem.example.org/&lt;/a&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;Page web&#xa0;: &lt;a href=&quot;https://vem.example.org/&quot;&gt;https://vem.example.org/&lt;/a&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>What the program remembers was damaged; it has been put aside as %1</source>
        <translation>Ce que le programme retient était endommagé ; il a été mis de côté sous %1</translation>
    </message>
    <message>
        <source>Actions that are gone with their rows: %1</source>
        <translation>Actions disparues avec leurs lignes : %1</translation>
    </message>
    <message>
        <source>View Marked</source>
        <translation>Voir marqués</translation>
    </message>
    <message>
        <source>&amp;Reset Window</source>
        <translation>&amp;Réinitialiser la fenêtre</translation>
    </message>
    <message>
        <source>S&amp;election</source>
        <translation>Sélect&amp;ion</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>Rec&amp;hercher</translation>
    </message>
    <message>
        <source>Packages are being installed, updated or removed.
That goes on to its end, and the program ends behind it.</source>
        <translation>Des paquets sont en cours d&apos;installation, de mise à jour ou de suppression.
Cela ira à son terme, et le programme se terminera ensuite.</translation>
    </message>
    <message>
        <source>&amp;Open Package Files...</source>
        <translation>&amp;Ouvrir des fichiers de paquets...</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Shows packages of .rpm files and of https addresses in the table, marked for installation</source>
        <translation>Affiche dans la table les paquets de fichiers .rpm et d&apos;adresses https, marqués pour l&apos;installation</translation>
    </message>
    <message>
        <source>The package library in use can&apos;t open package files here</source>
        <translation>La bibliothèque de paquets utilisée ne peut pas ouvrir ici de fichiers de paquets</translation>
    </message>
    <message>
        <source>The search was stopped: only what it had found by then is shown</source>
        <translation>La recherche a été arrêtée : seul ce qu&apos;elle avait trouvé jusque-là est affiché</translation>
    </message>
    <message>
        <source>An answer is waited for.</source>
        <translation>Une réponse est attendue.</translation>
    </message>
    <message>
        <source>All actions have been applied.</source>
        <translation>Toutes les actions ont été appliquées.</translation>
    </message>
    <message>
        <source>Not all actions have been applied.</source>
        <translation>Toutes les actions n’ont pas été appliquées.</translation>
    </message>
    <message>
        <source>Open Log With Each &amp;Apply</source>
        <translation>Ouvrir le journal à chaque &amp;application</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Historique</translation>
    </message>
    <message>
        <source>Ctrl+H</source>
        <translation>Ctrl+H</translation>
    </message>
    <message>
        <source>Shows what was installed, updated and removed, and takes it back</source>
        <translation>Montre ce qui a été installé, mis à jour et supprimé, et l&apos;annule</translation>
    </message>
    <message>
        <source>The helper script in use is too old to tell the history</source>
        <translation>Le script auxiliaire utilisé est trop ancien pour donner l&apos;historique</translation>
    </message>
    <message>
        <source>A&amp;dvisories</source>
        <translation>A&amp;vis</translation>
    </message>
    <message>
        <source>Shows what the repositories advise about installed packages, security first of all</source>
        <translation>Montre ce que les dépôts conseillent pour les paquets installés, avant tout en sécurité</translation>
    </message>
    <message>
        <source>The helper script in use is too old to tell of advisories</source>
        <translation>Le script auxiliaire utilisé est trop ancien pour donner des avis</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>View Security Updates</source>
        <translation>Voir mises à jour de sécurité</translation>
    </message>
    <message>
        <source>Set Update of &amp;Security Fixes</source>
        <translation>Marquer les mises à jour de &amp;sécurité</translation>
    </message>
    <message>
        <source>Ctrl+Shift+U</source>
        <translation>Ctrl+Shift+U</translation>
    </message>
    <message>
        <source>Set Update of Security Fixes</source>
        <translation>Marquer les mises à jour de sécurité</translation>
    </message>
    <message>
        <source>The metadata of the repositories in use tells of no advisories.</source>
        <translation>Les métadonnées des dépôts utilisés ne contiennent pas d&apos;avis.</translation>
    </message>
    <message>
        <source>Sets the Action for all packages which have a security update to Update.
Does not Apply Actions automatically.</source>
        <translation>Affecte l’action «&#xa0;Mettre à jour&#xa0;» à tous les paquets qui ont une mise à jour de sécurité.
N’applique pas automatiquement les actions.</translation>
    </message>
    <message>
        <source>Res&amp;tarts</source>
        <translation>Redé&amp;marrages</translation>
    </message>
    <message>
        <source>Shows what still works with files that have been replaced, and restarts services</source>
        <translation>Montre ce qui travaille encore avec des fichiers remplacés, et redémarre des services</translation>
    </message>
    <message>
        <source>The helper script in use is too old to tell what is to be restarted</source>
        <translation>Le script auxiliaire utilisé est trop ancien pour dire ce qui est à redémarrer</translation>
    </message>
    <message>
        <source>Ctrl+Shift+R</source>
        <translation>Ctrl+Shift+R</translation>
    </message>
</context>
<context>
    <name>PackageFilesDialog</name>
    <message>
        <source>Open Package Files</source>
        <translation>Ouvrir des fichiers de paquets</translation>
    </message>
    <message>
        <source>&amp;Files (.rpm) and addresses (https), one a line:</source>
        <translation>&amp;Fichiers (.rpm) et adresses (https), un par ligne :</translation>
    </message>
    <message>
        <source>Package files</source>
        <translation>Fichiers de paquets</translation>
    </message>
    <message>
        <source>Paths of .rpm files and https addresses, one a line</source>
        <translation>Chemins de fichiers .rpm et adresses https, un par ligne</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>&amp;Parcourir...</translation>
    </message>
    <message>
        <source>Choose .rpm files of this machine</source>
        <translation>Choisir des fichiers .rpm de cette machine</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>&amp;Ouvrir</translation>
    </message>
    <message>
        <source>Show the packages in the table, marked for installation</source>
        <translation>Afficher les paquets dans la table, marqués pour l&apos;installation</translation>
    </message>
    <message>
        <source>Package files (*.rpm);;All files (*)</source>
        <translation>Fichiers de paquets (*.rpm);;Tous les fichiers (*)</translation>
    </message>
    <message>
        <source>This is no readable .rpm file and no https address: %1</source>
        <translation>Ce n&apos;est ni un fichier .rpm lisible ni une adresse https : %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
</context>
<context>
    <name>PackageTable::ActionContextMenu</name>
    <message>
        <source>&amp;Update</source>
        <translation>&amp;Mettre à jour</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installer</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Supprimer</translation>
    </message>
    <message>
        <source>&amp;No Action</source>
        <translation>&amp;Aucune action</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Dialog</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>VEM Package Description</source>
        <translation>VEM - Description du paquet</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Go back to the package described before</source>
        <translation>Revenir au paquet décrit auparavant</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Instance::Area</name>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>Dépôt</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Détails</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Afficher</translation>
    </message>
    <message>
        <source>Change Log</source>
        <translation>Journal des modifications</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1&#xa0;:</translation>
    </message>
    <message>
        <source>%1 (must load extra data)</source>
        <translation>%1 (données supplémentaires à charger)</translation>
    </message>
    <message>
        <source>%1 %2 File List</source>
        <translation>Liste des fichiers de %1 %2</translation>
    </message>
    <message>
        <source>%1 %2 Change Log</source>
        <translation>Journal des modifications de %1 %2</translation>
    </message>
    <message>
        <source>Required Groups</source>
        <translation>Groupes requis</translation>
    </message>
    <message>
        <source>Default MetaPkgs</source>
        <translation>Métapaquets par défaut</translation>
    </message>
    <message>
        <source>Optional MetaPkgs</source>
        <translation>Métapaquets optionnels</translation>
    </message>
    <message>
        <source>Mandatory Packages</source>
        <translation>Paquets obligatoires</translation>
    </message>
    <message>
        <source>Default Packages</source>
        <translation>Paquets par défaut</translation>
    </message>
    <message>
        <source>Optional Packages</source>
        <translation>Paquets optionnels</translation>
    </message>
    <message>
        <source>Conditional Packages</source>
        <translation>Paquets conditionnels</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Architecture</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Description</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Fournisseur</translation>
    </message>
    <message>
        <source>Build Time</source>
        <translation>Date de compilation</translation>
    </message>
    <message>
        <source>Build Host</source>
        <translation>Hôte de compilation</translation>
    </message>
    <message>
        <source>Install Time</source>
        <translation>Date d’installation</translation>
    </message>
    <message>
        <source>Binary RPM</source>
        <translation>RPM binaire</translation>
    </message>
    <message>
        <source>Source RPM</source>
        <translation>RPM source</translation>
    </message>
    <message>
        <source>License</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>Packager</source>
        <translation>Empaqueteur</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Relocations</source>
        <translation>Relocalisations</translation>
    </message>
    <message>
        <source>Provides</source>
        <translation>Fournit</translation>
    </message>
    <message>
        <source>Requires</source>
        <translation>Requiert</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>Conflits</translation>
    </message>
    <message>
        <source>Obsoletes</source>
        <translation>Rend obsolète</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Instance::RepoDialog</name>
    <message>
        <source>VEM Repository Description</source>
        <translation>VEM - Description du dépôt</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>Parcourir le dépôt</translation>
    </message>
    <message>
        <source>Browse the first URL specified for the selected repository using an external web browser</source>
        <translation>Ouvrir dans un navigateur web externe la première URL indiquée pour le dépôt sélectionné</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Mirror list URL</source>
        <translation>URL de la liste de miroirs</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1&#xa0;:</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Instance::Section</name>
    <message>
        <source>Required By</source>
        <translation>Requis par</translation>
    </message>
    <message>
        <source>Which packages require this one</source>
        <translation>Quels paquets requièrent celui-ci</translation>
    </message>
    <message>
        <source>Recommended By</source>
        <translation>Recommandé par</translation>
    </message>
    <message>
        <source>Which packages recommend this one</source>
        <translation>Quels paquets recommandent celui-ci</translation>
    </message>
    <message>
        <source>Provides What It Requires</source>
        <translation>Fournit ce qu&apos;il requiert</translation>
    </message>
    <message>
        <source>Which packages have what this one requires</source>
        <translation>Quels paquets ont ce que celui-ci requiert</translation>
    </message>
    <message>
        <source>Why Installed</source>
        <translation>Pourquoi installé</translation>
    </message>
    <message>
        <source>Who wanted this package, and which transaction installed it</source>
        <translation>Qui a voulu ce paquet, et quelle transaction l&apos;a installé</translation>
    </message>
    <message>
        <source>Advisories</source>
        <translation>Avis</translation>
    </message>
    <message>
        <source>Which advisories name this package, and whether it has what they advise</source>
        <translation>Quels avis nomment ce paquet, et s&apos;il a ce qu&apos;ils conseillent</translation>
    </message>
    <message>
        <source>Other Versions</source>
        <translation>Autres versions</translation>
    </message>
    <message>
        <source>All versions that are installed or that a repository has</source>
        <translation>Toutes les versions installées ou qu&apos;un dépôt possède</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Lecture…</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Aucun</translation>
    </message>
    <message>
        <source>These are the first %L1 of %L2.</source>
        <translation>Voici les %L1 premiers sur %L2.</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Tout afficher</translation>
    </message>
</context>
<context>
    <name>PackageTable::ExpressionEdit</name>
    <message>
        <source>Match Case</source>
        <translation>Respecter la casse</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Effacer</translation>
    </message>
    <message>
        <source>Clear the expression</source>
        <translation>Effacer l&apos;expression</translation>
    </message>
    <message>
        <source>Ctrl+M</source>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>Whether capital and small letters differ (%1)</source>
        <translation>Si majuscules et minuscules diffèrent (%1)</translation>
    </message>
    <message>
        <source>%1, at letter %2 of the expression: %3</source>
        <extracomment>%1 is what the system&apos;s library says is wrong, %2 the number of the letter, from 1, %3 the letter</extracomment>
        <translation>%1, au caractère %2 de l&apos;expression : %3</translation>
    </message>
    <message>
        <source>Not Valid</source>
        <translation>Non valide</translation>
    </message>
</context>
<context>
    <name>PackageTable::Header</name>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Colonnes</translation>
    </message>
</context>
<context>
    <name>PackageTable::Model</name>
    <message>
        <source>Action</source>
        <translation>Action</translation>
    </message>
    <message>
        <source>Action to be performed on the package, if any: Update, Install, Remove</source>
        <translation>Action à effectuer sur le paquet, le cas échéant&#xa0;: mettre à jour, installer, supprimer</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
    <message>
        <source>Indicates whether the package is Installed or not and, if installed, whether it is Up-to-date or not</source>
        <translation>Indique si le paquet est installé ou non et, s’il l’est, s’il est à jour ou non</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Whether the package is an ordinary package, a suite of packages, or a group of packages</source>
        <translation>Indique s’il s’agit d’un paquet ordinaire, d’une suite de paquets ou d’un groupe de paquets</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>Nom du paquet</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Version and release of the package as version-release;
If the Epoch is non-zero, includes it as epoch:version-release</source>
        <translation>Version et publication du paquet sous la forme version-publication&#xa0;;
si l’époque n’est pas nulle, sous la forme époque:version-publication</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>Dépôt</translation>
    </message>
    <message>
        <source>Repository from which the most recent version of the package is available</source>
        <translation>Dépôt où la version la plus récente du paquet est disponible</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Architecture</translation>
    </message>
    <message>
        <source>Architecture for which the package is applicable, or &quot;noarch&quot; for general-purpose packages</source>
        <translation>Architecture à laquelle le paquet est destiné, ou «&#xa0;noarch&#xa0;» s’il convient à toutes</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Taille</translation>
    </message>
    <message>
        <source>Size of the package</source>
        <translation>Taille du paquet</translation>
    </message>
    <message>
        <source>Build Time</source>
        <translation>Date de compilation</translation>
    </message>
    <message>
        <source>Date and time at which the package was created</source>
        <translation>Date et heure de création du paquet</translation>
    </message>
    <message>
        <source>Update package</source>
        <translation>Mettre à jour le paquet</translation>
    </message>
    <message>
        <source>Install package</source>
        <translation>Installer le paquet</translation>
    </message>
    <message>
        <source>Remove package</source>
        <translation>Supprimer le paquet</translation>
    </message>
    <message>
        <source>Package is available to update an out-of-date version</source>
        <translation>Le paquet est disponible pour mettre à jour une version périmée</translation>
    </message>
    <message>
        <source>Package is available for installation</source>
        <translation>Le paquet est disponible pour l’installation</translation>
    </message>
    <message>
        <source>Package is installed and up-to-date</source>
        <translation>Le paquet est installé et à jour</translation>
    </message>
    <message>
        <source>Suite of packages</source>
        <translation>Suite de paquets</translation>
    </message>
    <message>
        <source>Group of packages</source>
        <translation>Groupe de paquets</translation>
    </message>
    <message>
        <source>Ordinary package</source>
        <translation>Paquet ordinaire</translation>
    </message>
    <message>
        <source>Available: %1
</source>
        <translation>Disponible&#xa0;: %1
</translation>
    </message>
    <message>
        <source>Installed: %1
</source>
        <translation>Installé&#xa0;: %1
</translation>
    </message>
    <message>
        <source>
Installed in more than one version: %1</source>
        <translation>
Installé en plusieurs versions&#xa0;: %1</translation>
    </message>
    <message>
        <source>Package is available to replace %1</source>
        <translation>Le paquet est disponible pour remplacer %1</translation>
    </message>
    <message>
        <source>Replaces: %1
</source>
        <translation>Remplace&#xa0;: %1
</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>What the package is, in one line</source>
        <translation>Ce qu&apos;est le paquet, en une ligne</translation>
    </message>
    <message>
        <source>Installed Version</source>
        <translation>Version installée</translation>
    </message>
    <message>
        <source>Version and release that is installed, if any</source>
        <translation>Version et révision installées, le cas échéant</translation>
    </message>
    <message>
        <source>Installed Size</source>
        <translation>Taille installée</translation>
    </message>
    <message>
        <source>What the package takes on the disk</source>
        <translation>Ce que le paquet occupe sur le disque</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Groupe</translation>
    </message>
    <message>
        <source>Kind of software, as the package states it</source>
        <translation>Type de logiciel, tel que le paquet l&apos;indique</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Licence</translation>
    </message>
    <message>
        <source>Terms under which the package may be used and passed on</source>
        <translation>Conditions d&apos;utilisation et de diffusion du paquet</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Fournisseur</translation>
    </message>
    <message>
        <source>Who has published the package</source>
        <translation>Qui a publié le paquet</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Raison</translation>
    </message>
    <message>
        <source>Why the package is installed: asked for by the user, by a group, or as a dependency</source>
        <translation>Pourquoi le paquet est installé : à la demande de l&apos;utilisateur, par un groupe ou comme dépendance</translation>
    </message>
    <message>
        <source>Advisory</source>
        <translation>Avis</translation>
    </message>
    <message>
        <source>Advisories that the update carries out, and how grave the gravest one is</source>
        <translation>Avis que la mise à jour applique, et la gravité du plus grave</translation>
    </message>
</context>
<context>
    <name>PackageTable::OtherContextMenu</name>
    <message>
        <source>&amp;Describe</source>
        <translation>Déc&amp;rire</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>Parcourir le dépôt</translation>
    </message>
</context>
<context>
    <name>PackageTable::SelectionActions</name>
    <message>
        <source>Install/Update of Selected: %1</source>
        <extracomment>%1 is a number of packages</extracomment>
        <translation>Installer/mettre à jour la sélection : %1</translation>
    </message>
    <message>
        <source>Remove Selected: %1</source>
        <translation>Supprimer la sélection : %1</translation>
    </message>
    <message>
        <source>No Action for Selected: %1</source>
        <translation>Aucune action pour la sélection : %1</translation>
    </message>
    <message>
        <source>&amp;Describe</source>
        <translation>Déc&amp;rire</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Tout sélectionner</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>Parcourir le dépôt</translation>
    </message>
</context>
<context>
    <name>PackageTable::View</name>
    <message>
        <source>Packages</source>
        <translation>Paquets</translation>
    </message>
</context>
<context>
    <name>QProgressBar</name>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
</context>
<context>
    <name>Relations</name>
    <message>
        <source>Unable to read what is told of other packages</source>
        <translation>Impossible de lire ce qui est dit d&apos;autres paquets</translation>
    </message>
</context>
<context>
    <name>RepoAuth::Dialog</name>
    <message>
        <source>VEM Authentication</source>
        <translation>VEM - Authentification</translation>
    </message>
    <message>
        <source>Some configured repositories require authentication</source>
        <translation>Certains dépôts configurés nécessitent une authentification</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Mirror list URL</source>
        <translation>URL de la liste de miroirs</translation>
    </message>
    <message>
        <source>Authentication name for a repository using the buffet authentication method</source>
        <translation>Nom d’authentification pour un dépôt qui utilise la méthode d’authentification Buffet</translation>
    </message>
    <message>
        <source>Authentication password for a repository using the buffet authentication method</source>
        <translation>Mot de passe d’authentification pour un dépôt qui utilise la méthode d’authentification Buffet</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Quitter</translation>
    </message>
    <message>
        <source>Disable for Session</source>
        <translation>Désactiver pour la session</translation>
    </message>
    <message>
        <source>Skip All</source>
        <translation>Tout ignorer</translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation>Appliquer à tous</translation>
    </message>
    <message>
        <source>Apply to All with this Host</source>
        <translation>Appliquer à tous ceux de cet hôte</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>RepoBrowse</name>
    <message>
        <source>Error</source>
        <translation>Erreur</translation>
    </message>
    <message>
        <source>Repository configuration has no URL</source>
        <translation>La configuration du dépôt ne contient aucune URL</translation>
    </message>
</context>
<context>
    <name>RepoEditor::Config</name>
    <message>
        <source>%1 %2</source>
        <translation>%1 %2</translation>
    </message>
    <message>
        <source>Default</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>(Yes)</source>
        <translation>(Oui)</translation>
    </message>
    <message>
        <source>(No)</source>
        <translation>(Non)</translation>
    </message>
    <message>
        <source>No Identifier specified</source>
        <translation>Aucun identifiant indiqué</translation>
    </message>
    <message>
        <source>No URLs or Mirror list URL specified</source>
        <translation>Aucune URL ni URL de liste de miroirs indiquée</translation>
    </message>
    <message>
        <source>File is not in any reposdir directory</source>
        <translation>Le fichier n’est dans aucun répertoire de reposdir</translation>
    </message>
    <message>
        <source>File lacks .repo suffix</source>
        <translation>Le fichier n’a pas le suffixe .repo</translation>
    </message>
    <message>
        <source>No Buffet Authentication Name specified</source>
        <translation>Aucun nom d’authentification Buffet indiqué</translation>
    </message>
    <message>
        <source>No Buffet Authentication Password specified</source>
        <translation>Aucun mot de passe d’authentification Buffet indiqué</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Unique identifier for the repository</source>
        <translation>Identifiant unique du dépôt</translation>
    </message>
    <message>
        <source>Description of the repository</source>
        <translation>Description du dépôt</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>List of URLs to the repository.
If more than one is specified, they all should be identical mirrors,
and will provide redundancy if some URLs are unreachable.</source>
        <translation>Liste des URL du dépôt.
Si plusieurs sont indiquées, elles doivent toutes être des miroirs identiques&#xa0;;
elles assurent la redondance si certaines sont inaccessibles.</translation>
    </message>
    <message>
        <source>Mirror list URL</source>
        <translation>URL de la liste de miroirs</translation>
    </message>
    <message>
        <source>URL to a file containing a list of URLs to the repository.</source>
        <translation>URL d’un fichier contenant une liste d’URL du dépôt.</translation>
    </message>
    <message>
        <source>Buffet Authentication</source>
        <translation>Authentification Buffet</translation>
    </message>
    <message>
        <source>Authentication name for a repository using the buffet authentication method</source>
        <translation>Nom d’authentification pour un dépôt qui utilise la méthode d’authentification Buffet</translation>
    </message>
    <message>
        <source>Authentication password for a repository using the buffet authentication method</source>
        <translation>Mot de passe d’authentification pour un dépôt qui utilise la méthode d’authentification Buffet</translation>
    </message>
    <message>
        <source>Repository Options</source>
        <translation>Options du dépôt</translation>
    </message>
    <message>
        <source>Any other yum options for this repository.  See yum.conf(5)</source>
        <translation>Toute autre option de yum pour ce dépôt. Voir yum.conf(5)</translation>
    </message>
    <message>
        <source>Other Options:</source>
        <translation>Autres options&#xa0;:</translation>
    </message>
    <message>
        <source>Whether or not the repository is enabled for use</source>
        <translation>Indique si le dépôt est activé et peut être utilisé</translation>
    </message>
    <message>
        <source>Whether or not GPG key signatures of packages from the repository are checked to ensure authenticity</source>
        <translation>Indique si les signatures GPG des paquets du dépôt sont vérifiées pour garantir leur authenticité</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Activé</translation>
    </message>
    <message>
        <source>Check GPG Keys</source>
        <translation>Vérifier les clés GPG</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>Configuration File (expert)</source>
        <translation>Fichier de configuration (expert)</translation>
    </message>
    <message>
        <source>Name of the yum configuration file into which to place this repository configuration.
If left blank, defaults to the repository&apos;s identifier</source>
        <translation>Nom du fichier de configuration de yum où enregistrer la configuration de ce dépôt.
Si ce champ est vide, l’identifiant du dépôt est utilisé</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>A numeric sort key which determines the order of this repository configuration
in a configuration file which contains multiple configurations</source>
        <translation>Clé de tri numérique qui détermine la place de la configuration de ce dépôt
dans un fichier de configuration qui en contient plusieurs</translation>
    </message>
    <message>
        <source>Sort Position</source>
        <translation>Position de tri</translation>
    </message>
    <message>
        <source>Line %1 of Other Options would begin another section</source>
        <translation>La ligne %1 des autres options commencerait une autre section</translation>
    </message>
    <message>
        <source>Line %1 of Other Options is indented but continues no option</source>
        <translation>La ligne %1 des autres options est en retrait, mais ne prolonge aucune option</translation>
    </message>
    <message>
        <source>Line %1 of Other Options is no option: it lacks &quot;=&quot;</source>
        <translation>La ligne %1 des autres options n’est pas une option : il lui manque « = »</translation>
    </message>
</context>
<context>
    <name>RepoEditor::ConfigDialog</name>
    <message>
        <source>VEM Repository Configuration</source>
        <translation>VEM - Configuration du dépôt</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Réinitialiser</translation>
    </message>
    <message>
        <source>Undo changes to this repository configuration</source>
        <translation>Annuler les modifications de la configuration de ce dépôt</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Undo changes to this repository configuration and close the window</source>
        <translation>Annuler les modifications de la configuration de ce dépôt et fermer la fenêtre</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, and close the window</source>
        <translation>Appliquer les modifications de toutes les configurations de dépôts et fermer la fenêtre</translation>
    </message>
</context>
<context>
    <name>RepoEditor::ContextMenu</name>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>Parcourir le dépôt</translation>
    </message>
</context>
<context>
    <name>RepoEditor::Dialog</name>
    <message>
        <source>VEM Repository Configuration Editor</source>
        <translation>VEM - Éditeur de configuration des dépôts</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>Parcourir le dépôt</translation>
    </message>
    <message>
        <source>Browse the first URL specified for the selected repository using an external web browser</source>
        <translation>Ouvrir dans un navigateur web externe la première URL indiquée pour le dépôt sélectionné</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Modifier</translation>
    </message>
    <message>
        <source>Edit the selected repository configuration</source>
        <translation>Modifier la configuration du dépôt sélectionné</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Ajouter</translation>
    </message>
    <message>
        <source>Create a new repository configuration from scratch</source>
        <translation>Créer de toutes pièces une configuration de dépôt</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Copier</translation>
    </message>
    <message>
        <source>Create a new repository configuration based on the selected repository</source>
        <translation>Créer une configuration de dépôt à partir du dépôt sélectionné</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Remove the selected repository configuration</source>
        <translation>Supprimer la configuration du dépôt sélectionné</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Tout réinitialiser</translation>
    </message>
    <message>
        <source>Undo changes to all repository configurations since the last Apply or opening of the dialog</source>
        <translation>Annuler les modifications de toutes les configurations de dépôts depuis la dernière application ou l’ouverture de la boîte de dialogue</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Undo changes to all repository configurations since the last Apply or opening of the dialog, and close the window</source>
        <translation>Annuler les modifications de toutes les configurations de dépôts depuis la dernière application ou l’ouverture de la boîte de dialogue, et fermer la fenêtre</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, but do not close the window</source>
        <translation>Appliquer les modifications de toutes les configurations de dépôts sans fermer la fenêtre</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, and close the window</source>
        <translation>Appliquer les modifications de toutes les configurations de dépôts et fermer la fenêtre</translation>
    </message>
    <message>
        <source>A repository has no Identifier</source>
        <translation>Un dépôt n’a pas d’identifiant</translation>
    </message>
    <message>
        <source>Two or more repositories have the Identifier, %1</source>
        <translation>Plusieurs dépôts ont l’identifiant %1</translation>
    </message>
    <message>
        <source>Unapplied Configuration Changes</source>
        <translation>Modifications de configuration non appliquées</translation>
    </message>
</context>
<context>
    <name>RepoEditor::Model</name>
    <message>
        <source>Sess</source>
        <translation>Sess.</translation>
    </message>
    <message>
        <source>Whether or not the repository is used during this session.
It overrides the persistent Enabled flag in the repository configuration.</source>
        <translation>Indique si le dépôt est utilisé pendant cette session.
Prévaut sur l’option permanente «&#xa0;Activé&#xa0;» de la configuration du dépôt.</translation>
    </message>
    <message>
        <source>Perm</source>
        <translation>Perm.</translation>
    </message>
    <message>
        <source>Whether or not the repository is configured to be enabled by default.
It can be overridden for a particular session.</source>
        <translation>Indique si le dépôt est configuré pour être activé par défaut.
Peut être modifié pour une session donnée.</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Identifiant</translation>
    </message>
    <message>
        <source>Unique identifier for the repository</source>
        <translation>Identifiant unique du dépôt</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Nom</translation>
    </message>
    <message>
        <source>Description of the repository</source>
        <translation>Description du dépôt</translation>
    </message>
    <message>
        <source>(new)</source>
        <translation>(nouveau)</translation>
    </message>
    <message>
        <source>Repository is enabled for this session</source>
        <translation>Le dépôt est activé pour cette session</translation>
    </message>
    <message>
        <source>Repository is not enabled for this session</source>
        <translation>Le dépôt n’est pas activé pour cette session</translation>
    </message>
    <message>
        <source>Repository is configured to be enabled</source>
        <translation>Le dépôt est configuré pour être activé</translation>
    </message>
    <message>
        <source>Repository is not configured to be enabled</source>
        <translation>Le dépôt n’est pas configuré pour être activé</translation>
    </message>
</context>
<context>
    <name>RepoEditor::View</name>
    <message>
        <source>Repositories</source>
        <translation>Dépôts</translation>
    </message>
</context>
<context>
    <name>Restarts::FilesModel</name>
    <message>
        <source>Removed</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>Replaced</source>
        <translation>Remplacé</translation>
    </message>
    <message>
        <source>Path of the file</source>
        <translation>Chemin du fichier</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Fichier</translation>
    </message>
    <message>
        <source>Package that the file belongs to now</source>
        <translation>Paquet auquel le fichier appartient maintenant</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Paquet</translation>
    </message>
    <message>
        <source>Whether the file that the process uses is there in another version, or gone</source>
        <translation>Si le fichier que le processus utilise est là dans une autre version, ou disparu</translation>
    </message>
    <message>
        <source>State</source>
        <translation>État</translation>
    </message>
</context>
<context>
    <name>Restarts::Model</name>
    <message>
        <source>Unit of systemd that the process belongs to</source>
        <translation>Unité de systemd à laquelle le processus appartient</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Service</translation>
    </message>
    <message>
        <source>Command that runs</source>
        <translation>Commande qui tourne</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Commande</translation>
    </message>
    <message>
        <source>Number of the process</source>
        <translation>Numéro du processus</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Processus</translation>
    </message>
    <message>
        <source>Whose process it is</source>
        <translation>À qui est le processus</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Utilisateur</translation>
    </message>
    <message>
        <source>When the process began</source>
        <translation>Quand le processus a commencé</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Démarré</translation>
    </message>
    <message>
        <source>How many files it uses that have been replaced</source>
        <translation>Combien de fichiers remplacés il utilise</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
</context>
<context>
    <name>Restarts::Reader</name>
    <message>
        <source>Unable to find out what is to be restarted</source>
        <translation>Impossible de savoir ce qui est à redémarrer</translation>
    </message>
    <message>
        <source>Unable to restart services</source>
        <translation>Impossible de redémarrer des services</translation>
    </message>
</context>
<context>
    <name>Restarts::Window</name>
    <message>
        <source>Restarts</source>
        <translation>Redémarrages</translation>
    </message>
    <message>
        <source>The system is to be started anew. Since its start on %1 have been installed:</source>
        <translation>Le système est à redémarrer. Depuis son démarrage le %1 ont été installés :</translation>
    </message>
    <message>
        <source>The system need not be started anew.</source>
        <translation>Le système n’a pas besoin d’être redémarré.</translation>
    </message>
    <message>
        <source>No process uses files that have been replaced.</source>
        <translation>Aucun processus n’utilise de fichiers remplacés.</translation>
    </message>
    <message>
        <source>Processes of which nothing could be told for lack of rights: %1</source>
        <translation>Processus dont rien n’a pu être su, faute de droits : %1</translation>
    </message>
    <message>
        <source>The helper script in use is too old to restart services</source>
        <translation>Le script auxiliaire utilisé est trop ancien pour redémarrer des services</translation>
    </message>
    <message>
        <source>Restarts the services of these processes, as far as they can be restarted</source>
        <translation>Redémarre les services de ces processus, autant que possible</translation>
    </message>
    <message>
        <source>These services are restarted, one after the other:</source>
        <translation>Ces services sont redémarrés, l’un après l’autre :</translation>
    </message>
    <message>
        <source>What they do is interrupted for that time.</source>
        <translation>Ce qu’ils font est interrompu pendant ce temps.</translation>
    </message>
    <message>
        <source>Restart Services</source>
        <translation>Redémarrer des services</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>Conseil</translation>
    </message>
    <message>
        <source>Whether the system is to be started anew</source>
        <translation>Si le système est à redémarrer</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Processus</translation>
    </message>
    <message>
        <source>Processes that use files which have been replaced</source>
        <translation>Processus qui utilisent des fichiers remplacés</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Fichiers</translation>
    </message>
    <message>
        <source>Replaced files that the chosen process uses</source>
        <translation>Fichiers remplacés que le processus choisi utilise</translation>
    </message>
    <message>
        <source>&amp;Restart These Services</source>
        <translation>&amp;Redémarrer ces services</translation>
    </message>
    <message>
        <source>&amp;Look Again</source>
        <translation>Re&amp;garder encore</translation>
    </message>
    <message>
        <source>Find out anew what is to be restarted</source>
        <translation>Chercher à nouveau ce qui est à redémarrer</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Fermer</translation>
    </message>
    <message>
        <source>Close the restarts</source>
        <translation>Fermer les redémarrages</translation>
    </message>
</context>
<context>
    <name>ScrollableConfirmDialog</name>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Détails</translation>
    </message>
    <message>
        <source>&amp;Transaction</source>
        <translation>&amp;Transaction</translation>
    </message>
</context>
<context>
    <name>ScrollableErrorDialog</name>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>%1 of %2 shown</source>
        <translation>%1 sur %2 affichés</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation>%1 sélectionnés</translation>
    </message>
    <message>
        <source>1 install</source>
        <translation>1 installation</translation>
    </message>
    <message>
        <source>%1 installs</source>
        <translation>%1 installations</translation>
    </message>
    <message>
        <source>1 update</source>
        <translation>1 mise à jour</translation>
    </message>
    <message>
        <source>%1 updates</source>
        <translation>%1 mises à jour</translation>
    </message>
    <message>
        <source>1 removal</source>
        <translation>1 suppression</translation>
    </message>
    <message>
        <source>%1 removals</source>
        <translation>%1 suppressions</translation>
    </message>
    <message>
        <source>%1 marked: %2</source>
        <extracomment>%1 is a number, %2 something like &quot;2 installs, 1 removal&quot;</extracomment>
        <translation>%1 marqués : %2</translation>
    </message>
    <message>
        <source>%1; %2 to download</source>
        <extracomment>%1 is the sentence about marks, %2 a size</extracomment>
        <translation>%1 ; %2 à télécharger</translation>
    </message>
    <message>
        <source>Looking only</source>
        <translation>Consultation seule</translation>
    </message>
    <message>
        <source>Incomplete Table</source>
        <translation>Tableau incomplet</translation>
    </message>
    <message>
        <source>%1, %2 more on the disk</source>
        <extracomment>%1 is the sentence about marks, %2 a size</extracomment>
        <translation>%1, %2 de plus sur le disque</translation>
    </message>
    <message>
        <source>%1, %2 less on the disk</source>
        <translation>%1, %2 de moins sur le disque</translation>
    </message>
    <message>
        <source>Repositories read just now</source>
        <translation>Dépôts lus à l&apos;instant</translation>
    </message>
    <message>
        <source>Repositories read 1 minute ago</source>
        <translation>Dépôts lus il y a 1 minute</translation>
    </message>
    <message>
        <source>Repositories read %1 minutes ago</source>
        <translation>Dépôts lus il y a %1 minutes</translation>
    </message>
    <message>
        <source>Repositories read 1 hour ago</source>
        <translation>Dépôts lus il y a 1 heure</translation>
    </message>
    <message>
        <source>Repositories read %1 hours ago</source>
        <translation>Dépôts lus il y a %1 heures</translation>
    </message>
    <message>
        <source>Repositories read 1 day ago</source>
        <translation>Dépôts lus il y a 1 jour</translation>
    </message>
    <message>
        <source>Repositories read %1 days ago</source>
        <translation>Dépôts lus il y a %1 jours</translation>
    </message>
</context>
<context>
    <name>StopButton</name>
    <message>
        <source>Stop</source>
        <translation>Arrêter</translation>
    </message>
    <message>
        <source>Nothing is going on that could be stopped</source>
        <translation>Rien n&apos;est en cours qui puisse être arrêté</translation>
    </message>
    <message>
        <source>Stops what is going on; nothing has been changed yet (Escape)</source>
        <translation>Arrête ce qui est en cours ; rien n&apos;a encore été modifié (Échap)</translation>
    </message>
    <message>
        <source>It is being stopped</source>
        <translation>Arrêt en cours</translation>
    </message>
    <message>
        <source>Packages are being changed: what has begun comes to its end</source>
        <translation>Des paquets sont en cours de modification : ce qui a commencé ira à son terme</translation>
    </message>
</context>
<context>
    <name>TextDialog</name>
    <message>
        <source>Text</source>
        <translation>Texte</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
</context>
<context>
    <name>YumConfIO</name>
    <message>
        <source>; errno = %1 (%2).</source>
        <translation>; errno = %1 (%2).</translation>
    </message>
    <message>
        <source>VEM Repository Editor Error</source>
        <translation>VEM - Erreur de l’éditeur de dépôts</translation>
    </message>
    <message>
        <source>Repository Editor</source>
        <translation>Éditeur de dépôts</translation>
    </message>
    <message>
        <source>Unable to read yum configuration file %1</source>
        <translation>Impossible de lire le fichier de configuration de yum %1</translation>
    </message>
    <message>
        <source>Unable to stat repository configuration file %1</source>
        <translation>Impossible d’examiner (stat) le fichier de configuration de dépôts %1</translation>
    </message>
    <message>
        <source>Unable to read repository configuration file %1</source>
        <translation>Impossible de lire le fichier de configuration de dépôts %1</translation>
    </message>
    <message>
        <source>Malformed section name in line: %1</source>
        <translation>Nom de section mal formé à la ligne&#xa0;: %1</translation>
    </message>
    <message>
        <source>Error reading repository configuration file %1</source>
        <translation>Erreur lors de la lecture du fichier de configuration de dépôts %1</translation>
    </message>
    <message>
        <source>A repository has no Identifier.  It will be removed.</source>
        <translation>Un dépôt n’a pas d’identifiant. Il sera supprimé.</translation>
    </message>
    <message>
        <source>Two or more repositories have the same Identifier(s), %1.  Only one repository will be applied for each Identifier.</source>
        <translation>Plusieurs dépôts ont le même identifiant&#xa0;: %1. Un seul dépôt sera appliqué pour chaque identifiant.</translation>
    </message>
    <message>
        <source>  Proceed?</source>
        <translation>  Continuer&#xa0;?</translation>
    </message>
    <message>
        <source>Unable to write repository configuration file %1</source>
        <translation>Impossible d’écrire le fichier de configuration de dépôts %1</translation>
    </message>
    <message>
        <source>Unable to unlink repository configuration file %1</source>
        <translation>Impossible de supprimer (unlink) le fichier de configuration de dépôts %1</translation>
    </message>
    <message>
        <source>subscription-manager generates these files and will write them anew, without the changes made here: %1.  Its own command, &quot;subscription-manager repo-override&quot;, makes lasting ones.</source>
        <translation>subscription-manager génère ces fichiers et les réécrira sans les modifications faites ici&#xa0;: %1. Sa propre commande, «&#xa0;subscription-manager repo-override&#xa0;», en fait de durables.</translation>
    </message>
    <message>
        <source>%1 is not a regular file.  It is neither read nor changed.</source>
        <translation>%1 n’est pas un fichier ordinaire. Il n’est ni lu ni modifié.</translation>
    </message>
    <message>
        <source>The file %1 has not been read, or not to its end.  Nothing is written, so that nothing in it is lost.</source>
        <translation>Le fichier %1 n’a pas été lu, ou pas jusqu’au bout. Rien n’est écrit, afin que rien n’en soit perdu.</translation>
    </message>
    <message>
        <source>
The file is %1.</source>
        <translation>
Le fichier est %1.</translation>
    </message>
</context>
<context>
    <name>YumIO</name>
    <message>
        <source>Unable to release yum lock</source>
        <translation>Impossible de libérer le verrou de yum</translation>
    </message>
    <message>
        <source>Unable to initialize</source>
        <translation>Impossible d’effectuer l’initialisation</translation>
    </message>
    <message>
        <source>Available for update</source>
        <translation>Disponible pour la mise à jour</translation>
    </message>
    <message>
        <source>Available for installation</source>
        <translation>Disponible pour l’installation</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>Installé</translation>
    </message>
    <message>
        <source>Suite of packages</source>
        <translation>Suite de paquets</translation>
    </message>
    <message>
        <source>Group of packages</source>
        <translation>Groupe de paquets</translation>
    </message>
    <message>
        <source>Ordinary package</source>
        <translation>Paquet ordinaire</translation>
    </message>
    <message>
        <source>Applying</source>
        <translation>Application</translation>
    </message>
    <message>
        <source>Checking Dependencies: Total Progress</source>
        <translation>Vérification des dépendances&#xa0;: progression totale</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Préparation</translation>
    </message>
    <message>
        <source>Error applying changes</source>
        <translation>Erreur lors de l’application des modifications</translation>
    </message>
    <message>
        <source>Error applying changes: Exiting on Broken Pipe</source>
        <translation>Erreur lors de l’application des modifications&#xa0;: arrêt, tube rompu</translation>
    </message>
    <message>
        <source>Unable to add package %1 to removes list</source>
        <translation>Impossible d’ajouter le paquet %1 à la liste des suppressions</translation>
    </message>
    <message>
        <source>Unable to add package %1 to installs list</source>
        <translation>Impossible d’ajouter le paquet %1 à la liste des installations</translation>
    </message>
    <message>
        <source>Unable to find installed version for package update %1</source>
        <translation>Impossible de trouver la version installée pour la mise à jour du paquet %1</translation>
    </message>
    <message>
        <source>Unable to add new package to pair for updated package %1</source>
        <translation>Impossible d’ajouter le nouveau paquet à la paire du paquet mis à jour %1</translation>
    </message>
    <message>
        <source>Unable to add old package to pair for updated package %1</source>
        <translation>Impossible d’ajouter l’ancien paquet à la paire du paquet mis à jour %1</translation>
    </message>
    <message>
        <source>Unable to add package %1 to updates list</source>
        <translation>Impossible d’ajouter le paquet %1 à la liste des mises à jour</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Applying: OK</source>
        <translation>Application&#xa0;: confirmée</translation>
    </message>
    <message>
        <source>Not Applying: Canceled</source>
        <translation>Application&#xa0;: annulée</translation>
    </message>
    <message>
        <source>Running Transaction: Total Progress</source>
        <translation>Exécution de la transaction&#xa0;: progression totale</translation>
    </message>
    <message>
        <source>Cleaning Headers</source>
        <translation>Nettoyage des en-têtes</translation>
    </message>
    <message>
        <source>Cleaning Packages</source>
        <translation>Nettoyage des paquets</translation>
    </message>
    <message>
        <source>Cleaning Xml Metadata</source>
        <translation>Nettoyage des métadonnées XML</translation>
    </message>
    <message>
        <source>Cleaning Pickled Cache</source>
        <translation>Nettoyage des données sérialisées</translation>
    </message>
    <message>
        <source>Cleaning All</source>
        <translation>Nettoyage complet</translation>
    </message>
    <message>
        <source>Initialization</source>
        <translation>Initialisation</translation>
    </message>
    <message>
        <source>Initializing: Total Progress</source>
        <translation>Initialisation&#xa0;: progression totale</translation>
    </message>
    <message>
        <source>Unable to obtain yum lock</source>
        <translation>Impossible d’obtenir le verrou de yum</translation>
    </message>
    <message>
        <source>contents</source>
        <translation>contenu</translation>
    </message>
    <message>
        <source>No repositories are configured.
Under the Repositories menu, Edit Configuration can be used to configure repositories.</source>
        <translation>Aucun dépôt n’est configuré.
Dans le menu «&#xa0;Dépôts&#xa0;», utilisez «&#xa0;Modifier la configuration&#xa0;» pour configurer des dépôts.</translation>
    </message>
    <message>
        <source>No repositories are enabled.
Under the Repositories menu, Edit Configuration can be used to configure repositories.</source>
        <translation>Aucun dépôt n’est activé.
Dans le menu «&#xa0;Dépôts&#xa0;», utilisez «&#xa0;Modifier la configuration&#xa0;» pour configurer des dépôts.</translation>
    </message>
    <message>
        <source>Reading repositories</source>
        <translation>Lecture des dépôts</translation>
    </message>
    <message>
        <source>Collecting updatable packages</source>
        <translation>Collecte des paquets pouvant être mis à jour</translation>
    </message>
    <message>
        <source>Unable to setup transaction</source>
        <translation>Impossible de préparer la transaction</translation>
    </message>
    <message>
        <source>Unable to collect updatable packages</source>
        <translation>Impossible de collecter les paquets pouvant être mis à jour</translation>
    </message>
    <message>
        <source>Collecting installed and available packages</source>
        <translation>Collecte des paquets installés et disponibles</translation>
    </message>
    <message>
        <source>Unable to collect installed and available packages</source>
        <translation>Impossible de collecter les paquets installés et disponibles</translation>
    </message>
    <message>
        <source>Collecting groups</source>
        <translation>Collecte des groupes</translation>
    </message>
    <message>
        <source>Unable to collect groups</source>
        <translation>Impossible de collecter les groupes</translation>
    </message>
    <message>
        <source>unable to setup repository %1:
%2</source>
        <translation>impossible de préparer le dépôt %1&#xa0;:
%2</translation>
    </message>
    <message>
        <source>Internal error: yumIO.collectAll.%1 not found</source>
        <translation>Erreur interne&#xa0;: yumIO.collectAll.%1 introuvable</translation>
    </message>
    <message>
        <source>Internal error: time not understood: %1</source>
        <translation>Erreur interne&#xa0;: date non reconnue&#xa0;: %1</translation>
    </message>
    <message>
        <source>Internal error: package size not understood: %1</source>
        <translation>Erreur interne&#xa0;: taille de paquet non reconnue&#xa0;: %1</translation>
    </message>
    <message>
        <source>Eb</source>
        <translation>Eb</translation>
    </message>
    <message>
        <source>Pb</source>
        <translation>Pb</translation>
    </message>
    <message>
        <source>Tb</source>
        <translation>Tb</translation>
    </message>
    <message>
        <source>Gb</source>
        <translation>Gb</translation>
    </message>
    <message>
        <source>Mb</source>
        <translation>Mb</translation>
    </message>
    <message>
        <source>Kb</source>
        <translation>Kb</translation>
    </message>
    <message>
        <source>b</source>
        <translation>b</translation>
    </message>
    <message>
        <source>Internal error: yum version not understood: %1</source>
        <translation>Erreur interne&#xa0;: version de yum non reconnue&#xa0;: %1</translation>
    </message>
    <message>
        <source>Collecting File Lists</source>
        <translation>Collecte des listes de fichiers</translation>
    </message>
    <message>
        <source>file lists</source>
        <translation>listes de fichiers</translation>
    </message>
    <message>
        <source>Loading file lists: Total Progress</source>
        <translation>Chargement des listes de fichiers&#xa0;: progression totale</translation>
    </message>
    <message>
        <source>Unable to collect file lists</source>
        <translation>Impossible de collecter les listes de fichiers</translation>
    </message>
    <message>
        <source>Collecting Miscellaneous data</source>
        <translation>Collecte des données diverses</translation>
    </message>
    <message>
        <source>miscellaneous data</source>
        <translation>données diverses</translation>
    </message>
    <message>
        <source>Loading miscellaneous data: Total Progress</source>
        <translation>Chargement des données diverses&#xa0;: progression totale</translation>
    </message>
    <message>
        <source>Unable to collect miscellaneous data</source>
        <translation>Impossible de collecter les données diverses</translation>
    </message>
    <message>
        <source>Internal error: execution of yumIO.%1 failed</source>
        <translation>Erreur interne&#xa0;: échec de l’exécution de yumIO.%1</translation>
    </message>
    <message>
        <source>Internal error: cannot find rpm.%1</source>
        <translation>Erreur interne&#xa0;: rpm.%1 introuvable</translation>
    </message>
    <message>
        <source>Internal error: cannot find package&apos;s prco.%1</source>
        <translation>Erreur interne&#xa0;: prco.%1 du paquet introuvable</translation>
    </message>
    <message>
        <source>the package is optional</source>
        <translation>le paquet est optionnel</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Mettre à jour</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installer</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>ERREUR</translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but it was marked individually for %5.
How do you wish to proceed?</source>
        <translation>Le paquet %1 fait partie du groupe %2, marqué «&#xa0;%3&#xa0;»&#xa0;;
il devrait donc être marqué «&#xa0;%4&#xa0;»,
mais il a été marqué individuellement «&#xa0;%5&#xa0;».
Comment voulez-vous procéder&#xa0;?</translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but you resolved an earlier conflict by marking it for %5.
How do you wish to proceed?</source>
        <translation>Le paquet %1 fait partie du groupe %2, marqué «&#xa0;%3&#xa0;»&#xa0;;
il devrait donc être marqué «&#xa0;%4&#xa0;»,
mais vous avez résolu un conflit précédent en le marquant «&#xa0;%5&#xa0;».
Comment voulez-vous procéder&#xa0;?</translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but it also was part of group %5 and so was marked for %6.
How do you wish to proceed?</source>
        <translation>Le paquet %1 fait partie du groupe %2, marqué «&#xa0;%3&#xa0;»&#xa0;;
il devrait donc être marqué «&#xa0;%4&#xa0;»,
mais il fait aussi partie du groupe %5 et a donc été marqué «&#xa0;%6&#xa0;».
Comment voulez-vous procéder&#xa0;?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Manually resolving conflict: marking package %1 for %3</source>
        <translation>Résolution manuelle du conflit&#xa0;: le paquet %1 est marqué «&#xa0;%3&#xa0;»</translation>
    </message>
    <message>
        <source>For group %1, marking package %2 for %3</source>
        <translation>Groupe %1&#xa0;: le paquet %2 est marqué «&#xa0;%3&#xa0;»</translation>
    </message>
    <message>
        <source>For group %1, package %2 already was marked for %3</source>
        <translation>Groupe %1&#xa0;: le paquet %2 était déjà marqué «&#xa0;%3&#xa0;»</translation>
    </message>
    <message>
        <source>For group %1, not marking package %2 for %3, becuase %4</source>
        <translation>Groupe %1&#xa0;: le paquet %2 n’est pas marqué «&#xa0;%3&#xa0;», car %4</translation>
    </message>
    <message>
        <source>Internal error: groupInfo.%1 not evaluable</source>
        <translation>Erreur interne&#xa0;: impossible d’évaluer groupInfo.%1</translation>
    </message>
    <message>
        <source>Internal error: groupInfo.%1[%2] not evaluable</source>
        <translation>Erreur interne&#xa0;: impossible d’évaluer groupInfo.%1[%2]</translation>
    </message>
    <message>
        <source>Internal error: group %1.%2 not evaluable</source>
        <translation>Erreur interne&#xa0;: impossible d’évaluer le groupe %1.%2</translation>
    </message>
    <message>
        <source>Total download size: %1
</source>
        <translation>Taille totale du téléchargement&#xa0;: %1
</translation>
    </message>
    <message>
        <source>Internal error: %1 not found
</source>
        <translation>Erreur interne&#xa0;: %1 introuvable
</translation>
    </message>
    <message>
        <source>Transaction to be performed:
</source>
        <translation>Transaction à effectuer&#xa0;:
</translation>
    </message>
    <message>
        <source>Performing the following to resolve dependencies:
</source>
        <translation>Opérations nécessaires pour résoudre les dépendances&#xa0;:
</translation>
    </message>
    <message>
        <source>Other Transactions:
</source>
        <translation>Autres transactions&#xa0;:
</translation>
    </message>
    <message>
        <source>Obsoleting</source>
        <translation>Remplacer</translation>
    </message>
    <message>
        <source>	%1: %2
</source>
        <translation>	%1&#xa0;: %2
</translation>
    </message>
    <message>
        <source>	%1: %2 with %3
</source>
        <translation>	%1&#xa0;: %2 par %3
</translation>
    </message>
    <message>
        <source>%1 %3-%4 (%2)</source>
        <translation>%1 %3-%4 (%2)</translation>
    </message>
    <message>
        <source>%1 %3:%4-%5 (%2)</source>
        <translation>%1 %3:%4-%5 (%2)</translation>
    </message>
    <message>
        <source> [%1]</source>
        <translation> [%1]</translation>
    </message>
    <message>
        <source>Downloading repository %1 mirror list</source>
        <translation>Téléchargement de la liste de miroirs&#xa0;: %1 du dépôt</translation>
    </message>
    <message>
        <source>Downloading repository %1 mirror list for %2</source>
        <translation>Téléchargement de la liste de miroirs&#xa0;: %1 du dépôt %2</translation>
    </message>
    <message>
        <source>Downloading repository %1 repomd</source>
        <translation>Téléchargement de repomd&#xa0;: %1 du dépôt</translation>
    </message>
    <message>
        <source>Downloading repository %1 repomd for %2</source>
        <translation>Téléchargement de repomd&#xa0;: %1 du dépôt %2</translation>
    </message>
    <message>
        <source>Downloading repository %1</source>
        <translation>Téléchargement&#xa0;: %1 du dépôt</translation>
    </message>
    <message>
        <source>Downloading repository %1 for %2</source>
        <translation>Téléchargement&#xa0;: %1 du dépôt %2</translation>
    </message>
    <message>
        <source>Converting repository %1</source>
        <translation>Conversion&#xa0;: %1 du dépôt</translation>
    </message>
    <message>
        <source>Converting repository %1 for %2</source>
        <translation>Conversion&#xa0;: %1 du dépôt %2</translation>
    </message>
    <message>
        <source>Reading repository %1</source>
        <translation>Lecture&#xa0;: %1 du dépôt</translation>
    </message>
    <message>
        <source>Reading repository %1 for %2</source>
        <translation>Lecture&#xa0;: %1 du dépôt %2</translation>
    </message>
    <message>
        <source>VEM Yum Error</source>
        <translation>VEM - Erreur de yum</translation>
    </message>
    <message>
        <source>VEM Yum Warning</source>
        <translation>VEM - Avertissement de yum</translation>
    </message>
    <message>
        <source>Resolve Dependencies</source>
        <translation>Résolution des dépendances</translation>
    </message>
    <message>
        <source>Internal error: unexpected TSINFO: %1</source>
        <translation>Erreur interne&#xa0;: TSINFO inattendu&#xa0;: %1</translation>
    </message>
    <message>
        <source>Internal error: TSINFO mentions unknown package: %1</source>
        <translation>Erreur interne&#xa0;: TSINFO mentionne un paquet inconnu&#xa0;: %1</translation>
    </message>
    <message>
        <source>Internal error: TSINFO mentions intent to install or upgrade package that already seems up-to-date: %1</source>
        <translation>Erreur interne&#xa0;: TSINFO annonce l’installation ou la mise à jour d’un paquet qui semble déjà à jour&#xa0;: %1</translation>
    </message>
    <message>
        <source>Finishing RPM rebuild from deltas</source>
        <translation>Fin de la reconstruction des RPM à partir des deltas</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>Téléchargement de %1</translation>
    </message>
    <message>
        <source>Downloading %1 header</source>
        <translation>Téléchargement de l’en-tête de %1</translation>
    </message>
    <message>
        <source>Preparing to Run Transaction</source>
        <translation>Préparation de l’exécution de la transaction</translation>
    </message>
    <message>
        <source>Preparing to Test Transaction</source>
        <translation>Préparation du test de la transaction</translation>
    </message>
    <message>
        <source>Updating %1</source>
        <translation>Mise à jour de %1</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>Installation de %1</translation>
    </message>
    <message>
        <source>Completing update for: %1</source>
        <translation>Finalisation de la mise à jour de&#xa0;: %1</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>Suppression de %1</translation>
    </message>
    <message>
        <source>Transaction Test</source>
        <translation>Test de la transaction</translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsCallback what=%1 not understood; ignoring</source>
        <translation>Erreur interne&#xa0;: YumIO::tsCallback what=%1 non reconnu&#xa0;; ignoré</translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsEvent action=%1 not understood; ignoring</source>
        <translation>Erreur interne&#xa0;: YumIO::tsEvent action=%1 non reconnu&#xa0;; ignoré</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Supprimé</translation>
    </message>
    <message>
        <source>Dependency Removed</source>
        <translation>Dépendance supprimée</translation>
    </message>
    <message>
        <source>Dependency Installed</source>
        <translation>Dépendance installée</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Mis à jour</translation>
    </message>
    <message>
        <source>Dependency Updated</source>
        <translation>Dépendance mise à jour</translation>
    </message>
    <message>
        <source>Obsoleted</source>
        <translation>Remplacé</translation>
    </message>
    <message>
        <source>VEM Looking Only</source>
        <translation>VEM - Consultation seule</translation>
    </message>
    <message>
        <source>&amp;Look</source>
        <translation>&amp;Consulter</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Quitter</translation>
    </message>
    <message>
        <source>Loading build hosts: Total Progress</source>
        <translation>Chargement des hôtes de compilation&#xa0;: progression totale</translation>
    </message>
    <message>
        <source>The transaction goes on; the program ends when it has come to its end.</source>
        <translation>La transaction continue&#xa0;; le programme se terminera lorsqu’elle sera achevée.</translation>
    </message>
    <message>
        <source>Unable to see whether a transaction was cut off</source>
        <translation>Impossible de déterminer si une transaction a été interrompue</translation>
    </message>
    <message>
        <source>Key %1: OK</source>
        <translation>Clé %1&#xa0;: confirmée</translation>
    </message>
    <message>
        <source>Key %1: Canceled</source>
        <translation>Clé %1&#xa0;: annulée</translation>
    </message>
    <message>
        <source>Enabling module streams:
</source>
        <translation>Activation de flux de modules :
</translation>
    </message>
    <message>
        <source>	%1
</source>
        <translation>	%1
</translation>
    </message>
    <message>
        <source>Unable to read what a column shows</source>
        <translation>Impossible de lire ce qu&apos;une colonne affiche</translation>
    </message>
    <message>
        <source>Unable to read the changes</source>
        <translation>Impossible de lire les changements</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Arrêté</translation>
    </message>
    <message>
        <source>Reading what was fetched before</source>
        <translation>Lecture de ce qui a été récupéré auparavant</translation>
    </message>
    <message>
        <source>%1 s</source>
        <translation>%1 s</translation>
    </message>
    <message>
        <source>%1 min</source>
        <translation>%1 min</translation>
    </message>
    <message>
        <source>%1 h %2 min</source>
        <translation>%1 h %2 min</translation>
    </message>
    <message>
        <source>%1/s</source>
        <translation>%1/s</translation>
    </message>
    <message>
        <source>%1, %2 left</source>
        <translation>%1, reste %2</translation>
    </message>
    <message>
        <source>script of %1</source>
        <translation>script de %1</translation>
    </message>
    <message>
        <source>Unable to open package files</source>
        <translation>Impossible d&apos;ouvrir les fichiers de paquets</translation>
    </message>
    <message>
        <source>These package files can&apos;t be used:</source>
        <translation>Ces fichiers de paquets ne peuvent pas être utilisés :</translation>
    </message>
</context>
<context>
    <name>YumIOCapturers</name>
    <message>
        <source>Unable to open pipe to capture rpm transaction output</source>
        <translation>Impossible d’ouvrir le tube pour capturer la sortie de la transaction rpm</translation>
    </message>
    <message>
        <source>Unable to dup2 pipe to capture rpm transaction output</source>
        <translation>Impossible de dupliquer (dup2) le tube pour capturer la sortie de la transaction rpm</translation>
    </message>
    <message>
        <source>Unable to dup2 to restore stderr</source>
        <translation>Impossible de rétablir stderr avec dup2</translation>
    </message>
</context>
</TS>
