<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>Advisories</name>
    <message>
        <source>Security</source>
        <translation>Sicherheit</translation>
    </message>
    <message>
        <source>Bug fix</source>
        <translation>Fehlerbehebung</translation>
    </message>
    <message>
        <source>Enhancement</source>
        <translation>Verbesserung</translation>
    </message>
    <message>
        <source>New package</source>
        <translation>Neues Paket</translation>
    </message>
    <message>
        <source>Other</source>
        <translation>Sonstiges</translation>
    </message>
    <message>
        <source>Critical</source>
        <translation>Kritisch</translation>
    </message>
    <message>
        <source>Important</source>
        <translation>Wichtig</translation>
    </message>
    <message>
        <source>Moderate</source>
        <translation>Mittel</translation>
    </message>
    <message>
        <source>Low</source>
        <translation>Niedrig</translation>
    </message>
</context>
<context>
    <name>Advisories::Model</name>
    <message>
        <source>Open</source>
        <translation>Offen</translation>
    </message>
    <message>
        <source>Carried out</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>Whether a newer version of an installed package is advised</source>
        <translation>Ob zu einer neueren Version eines installierten Pakets geraten wird</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stand</translation>
    </message>
    <message>
        <source>What the advisory is about</source>
        <translation>Worum es in dem Hinweis geht</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>How grave it is, as the repository words it</source>
        <translation>Wie schwer es wiegt, in den Worten des Repositorys</translation>
    </message>
    <message>
        <source>Severity</source>
        <translation>Schwere</translation>
    </message>
    <message>
        <source>Name of the advisory</source>
        <translation>Name des Hinweises</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>When the advisory was issued</source>
        <translation>Wann der Hinweis herausgegeben wurde</translation>
    </message>
    <message>
        <source>Issued</source>
        <translation>Herausgegeben</translation>
    </message>
    <message>
        <source>How many versions of packages it names</source>
        <translation>Wie viele Versionen von Paketen er nennt</translation>
    </message>
    <message>
        <source>Packages</source>
        <translation>Pakete</translation>
    </message>
    <message>
        <source>What it says in short</source>
        <translation>Was er in Kürze sagt</translation>
    </message>
    <message>
        <source>Title</source>
        <translation>Titel</translation>
    </message>
    <message>
        <source>Known vulnerabilities that it is about</source>
        <translation>Bekannte Schwachstellen, um die es geht</translation>
    </message>
    <message>
        <source>CVEs</source>
        <translation>CVEs</translation>
    </message>
</context>
<context>
    <name>Advisories::PackagesModel</name>
    <message>
        <source>Open</source>
        <translation>Offen</translation>
    </message>
    <message>
        <source>Not installed</source>
        <translation>Nicht installiert</translation>
    </message>
    <message>
        <source>Carried out</source>
        <translation>Erledigt</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>Name des Pakets</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Version that the advisory names</source>
        <translation>Version, die der Hinweis nennt</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Version that is installed</source>
        <translation>Version, die installiert ist</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>Installiert</translation>
    </message>
    <message>
        <source>Architecture of the package</source>
        <translation>Architektur des Pakets</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Architektur</translation>
    </message>
    <message>
        <source>Whether what is installed is older</source>
        <translation>Ob das Installierte älter ist</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Stand</translation>
    </message>
</context>
<context>
    <name>Advisories::Reader</name>
    <message>
        <source>Unable to read the advisories</source>
        <translation>Die Hinweise können nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>Advisories::Window</name>
    <message>
        <source>Advisories</source>
        <translation>Hinweise</translation>
    </message>
    <message>
        <source>The metadata of the repositories in use tells of no advisories.</source>
        <translation>Die Metadaten der verwendeten Repositorys enthalten keine Hinweise.</translation>
    </message>
    <message>
        <source>No advisory is about an installed package.</source>
        <translation>Kein Hinweis betrifft ein installiertes Paket.</translation>
    </message>
    <message>
        <source>No advisory fits what is to be shown.</source>
        <translation>Kein Hinweis passt zu dem, was gezeigt werden soll.</translation>
    </message>
    <message>
        <source>Advisories about installed packages, the latest first</source>
        <translation>Hinweise zu installierten Paketen, der neueste zuerst</translation>
    </message>
    <message>
        <source>Open Security Advisories</source>
        <translation>Offene Sicherheitshinweise</translation>
    </message>
    <message>
        <source>Open Advisories</source>
        <translation>Offene Hinweise</translation>
    </message>
    <message>
        <source>All Advisories</source>
        <translation>Alle Hinweise</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Ansicht</translation>
    </message>
    <message>
        <source>Open is an advisory that names a newer version of an installed package</source>
        <translation>Offen ist ein Hinweis, der eine neuere Version eines installierten Pakets nennt</translation>
    </message>
    <message>
        <source>part of an identifier, a title or a CVE</source>
        <translation>Teil einer Kennung, eines Titels oder einer CVE</translation>
    </message>
    <message>
        <source>Shows only the advisories with this text in their identifier, title or CVEs</source>
        <translation>Zeigt nur die Hinweise mit diesem Text in Kennung, Titel oder CVEs</translation>
    </message>
    <message>
        <source>&amp;Find:</source>
        <translation>S&amp;uchen:</translation>
    </message>
    <message>
        <source>Advisory</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>The chosen advisory</source>
        <translation>Der gewählte Hinweis</translation>
    </message>
    <message>
        <source>Packages</source>
        <translation>Pakete</translation>
    </message>
    <message>
        <source>Packages that the chosen advisory names</source>
        <translation>Pakete, die der gewählte Hinweis nennt</translation>
    </message>
    <message>
        <source>&amp;Mark Its Updates</source>
        <translation>&amp;Aktualisierungen vormerken</translation>
    </message>
    <message>
        <source>Marks the packages of the chosen advisory for an update</source>
        <translation>Merkt die Pakete des gewählten Hinweises zur Aktualisierung vor</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Close the advisories</source>
        <translation>Die Hinweise schließen</translation>
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
        <translation>Anzeigen</translation>
    </message>
</context>
<context>
    <name>DetailsModel</name>
    <message>
        <source>What happens to the package</source>
        <translation>Was mit dem Paket geschieht</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>Name des Pakets</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Installed version, and the version that takes its place</source>
        <translation>Installierte Version und die Version, die an ihre Stelle tritt</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Architecture of the package</source>
        <translation>Architektur des Pakets</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Architektur</translation>
    </message>
    <message>
        <source>Where the package comes from</source>
        <translation>Woher das Paket kommt</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>Repository</translation>
    </message>
    <message>
        <source>What is downloaded; of a package that goes, what it takes on the disk</source>
        <translation>Was heruntergeladen wird; bei einem Paket, das entfernt wird, sein Platz auf der Platte</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Why the package is part of the transaction</source>
        <translation>Warum das Paket Teil der Transaktion ist</translation>
    </message>
    <message>
        <source>Why</source>
        <translation>Warum</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Downgrade</source>
        <translation>Herabstufen</translation>
    </message>
    <message>
        <source>Reinstall</source>
        <translation>Neu installieren</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Replace</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>marked</source>
        <translation>markiert</translation>
    </message>
    <message>
        <source>required by %1</source>
        <translation>benötigt von %1</translation>
    </message>
    <message>
        <source>recommended by %1</source>
        <translation>empfohlen von %1</translation>
    </message>
    <message>
        <source>goes together with %1</source>
        <translation>gehört zu %1</translation>
    </message>
    <message>
        <source>needs %1</source>
        <translation>braucht %1</translation>
    </message>
    <message>
        <source>replaced by %1</source>
        <translation>ersetzt durch %1</translation>
    </message>
    <message>
        <source>no longer needed</source>
        <translation>nicht mehr benötigt</translation>
    </message>
    <message>
        <source>to resolve dependencies</source>
        <translation>zum Auflösen von Abhängigkeiten</translation>
    </message>
    <message>
        <source>%1; replaces %2</source>
        <translation>%1; ersetzt %2</translation>
    </message>
    <message>
        <source>Removed without being marked: %1</source>
        <translation>Wird entfernt, ohne markiert zu sein: %1</translation>
    </message>
    <message>
        <source>Protected, and goes all the same: %1</source>
        <translation>Geschützt und wird dennoch entfernt: %1</translation>
    </message>
    <message>
        <source>The running kernel goes: %1</source>
        <translation>Der laufende Kernel wird entfernt: %1</translation>
    </message>
    <message>
        <source>Older than the installed version: %1</source>
        <translation>Älter als die installierte Version: %1</translation>
    </message>
    <message>
        <source>Signature not checked, by the configuration of the repository: %1</source>
        <translation>Signatur wird nach der Konfiguration des Repositorys nicht geprüft: %1</translation>
    </message>
    <message>
        <source>%1 and %2 more</source>
        <translation>%1 und %2 weitere</translation>
    </message>
    <message>
        <source>one version too many</source>
        <translation>eine Version zu viel</translation>
    </message>
</context>
<context>
    <name>DetailsPage</name>
    <message>
        <source>Totals</source>
        <translation>Summen</translation>
    </message>
    <message>
        <source>Warnings</source>
        <translation>Warnungen</translation>
    </message>
    <message>
        <source>What you may not expect of this transaction</source>
        <translation>Was Sie von dieser Transaktion vielleicht nicht erwarten</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message>
        <source>To download: %1</source>
        <translation>Herunterzuladen: %1</translation>
    </message>
    <message>
        <source>On the disk: no change</source>
        <translation>Auf der Platte: keine Änderung</translation>
    </message>
    <message>
        <source>On the disk: %1 more</source>
        <translation>Auf der Platte: %1 mehr</translation>
    </message>
    <message>
        <source>On the disk: %1 less</source>
        <translation>Auf der Platte: %1 weniger</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>The packages of the transaction, and why each is part of it</source>
        <translation>Die Pakete der Transaktion und warum jedes dazugehört</translation>
    </message>
    <message>
        <source>Load &amp;Changes</source>
        <translation>Änderungen &amp;laden</translation>
    </message>
    <message>
        <source>Reads the changelogs of the repositories, which may have to be downloaded</source>
        <translation>Liest die Änderungsprotokolle der Repositorys, die vielleicht heruntergeladen werden müssen</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>What has changed since the installed versions</source>
        <translation>Was sich seit den installierten Versionen geändert hat</translation>
    </message>
    <message>
        <source>The changelogs are being read…</source>
        <translation>Die Änderungsprotokolle werden gelesen …</translation>
    </message>
    <message>
        <source>The changelogs tell nothing new of %1.</source>
        <translation>Die Änderungsprotokolle melden nichts Neues über %1.</translation>
    </message>
    <message>
        <source>The changelogs tell nothing new.</source>
        <translation>Die Änderungsprotokolle melden nichts Neues.</translation>
    </message>
</context>
<context>
    <name>EmptyTableNote</name>
    <message>
        <source>There are no packages.</source>
        <translation>Es gibt keine Pakete.</translation>
    </message>
    <message>
        <source>Nothing matches %1 in %2.</source>
        <extracomment>%1 is an expression, %2 one of the choices beside it, such as &quot;View All&quot;</extracomment>
        <translation>Nichts in „%2“ passt zu %1.</translation>
    </message>
    <message>
        <source>There is nothing in %1.</source>
        <extracomment>%1 is one of the choices above the table, such as &quot;View Updatable&quot;</extracomment>
        <translation>In „%1“ ist nichts.</translation>
    </message>
    <message>
        <source>%1 match in %2</source>
        <extracomment>%1 is a number of rows, %2 is &quot;View All&quot;</extracomment>
        <translation>%1 passend in „%2“</translation>
    </message>
    <message>
        <source>%1 in %2</source>
        <translation>%1 in „%2“</translation>
    </message>
    <message>
        <source>%1 match among groups</source>
        <translation>%1 passend unter den Gruppen</translation>
    </message>
    <message>
        <source>%1 among groups</source>
        <translation>%1 unter den Gruppen</translation>
    </message>
    <message>
        <source>%1 match without case</source>
        <translation>%1 passend ohne Groß-/Kleinschreibung</translation>
    </message>
    <message>
        <source>Clear the expression</source>
        <translation>Den Ausdruck leeren</translation>
    </message>
    <message>
        <source>The metadata of the repositories in use tells of no advisories.</source>
        <translation>Die Metadaten der verwendeten Repositorys enthalten keine Hinweise.</translation>
    </message>
</context>
<context>
    <name>Execute</name>
    <message>
        <source>Help</source>
        <translation>Hilfe</translation>
    </message>
    <message>
        <source>fork() failed; errno = %1 (%2)</source>
        <translation>fork() fehlgeschlagen; errno = %1 (%2)</translation>
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
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Failed</source>
        <translation>Fehlgeschlagen</translation>
    </message>
    <message>
        <source>Running</source>
        <translation>Läuft</translation>
    </message>
    <message>
        <source>Cut off</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>Installiert</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Aktualisiert</translation>
    </message>
    <message>
        <source>Downgraded</source>
        <translation>Zurückgestuft</translation>
    </message>
    <message>
        <source>Reinstalled</source>
        <translation>Neu installiert</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Entfernt</translation>
    </message>
    <message>
        <source>Obsoleted</source>
        <translation>Ersetzt durch andere</translation>
    </message>
    <message>
        <source>Reason changed</source>
        <translation>Grund geändert</translation>
    </message>
    <message>
        <source>Replaced</source>
        <translation>Ersetzt</translation>
    </message>
    <message>
        <source>Changed</source>
        <translation>Geändert</translation>
    </message>
    <message>
        <source>user</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>dependency</source>
        <translation>Abhängigkeit</translation>
    </message>
    <message>
        <source>weak dependency</source>
        <translation>schwache Abhängigkeit</translation>
    </message>
    <message>
        <source>no longer needed</source>
        <translation>nicht mehr benötigt</translation>
    </message>
    <message>
        <source>another program</source>
        <translation>ein anderes Programm</translation>
    </message>
    <message>
        <source>Groups: %1</source>
        <translation>Gruppen: %1</translation>
    </message>
</context>
<context>
    <name>History::Model</name>
    <message>
        <source>Number of the transaction, as the package library counts</source>
        <translation>Nummer der Transaktion, wie die Paketbibliothek zählt</translation>
    </message>
    <message>
        <source>Number</source>
        <translation>Nummer</translation>
    </message>
    <message>
        <source>When the transaction began</source>
        <translation>Wann die Transaktion begann</translation>
    </message>
    <message>
        <source>Begin</source>
        <translation>Beginn</translation>
    </message>
    <message>
        <source>Who had logged in</source>
        <translation>Wer angemeldet war</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>What came of the transaction</source>
        <translation>Was aus der Transaktion wurde</translation>
    </message>
    <message>
        <source>Result</source>
        <translation>Ergebnis</translation>
    </message>
    <message>
        <source>What was done to how many packages and groups</source>
        <translation>Was mit wie vielen Paketen und Gruppen geschah</translation>
    </message>
    <message>
        <source>Changes</source>
        <translation>Änderungen</translation>
    </message>
    <message>
        <source>Command line of the program that did it</source>
        <translation>Befehlszeile des Programms, das es tat</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>What the user has noted</source>
        <translation>Was der Benutzer vermerkt hat</translation>
    </message>
    <message>
        <source>Comment</source>
        <translation>Kommentar</translation>
    </message>
</context>
<context>
    <name>History::PackagesModel</name>
    <message>
        <source>%1: failed</source>
        <translation>%1: fehlgeschlagen</translation>
    </message>
    <message>
        <source>Group %1</source>
        <translation>Gruppe %1</translation>
    </message>
    <message>
        <source>What was done to the package</source>
        <translation>Was mit dem Paket geschah</translation>
    </message>
    <message>
        <source>Change</source>
        <translation>Änderung</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>Name des Pakets</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Version before, and the version that took its place</source>
        <translation>Version davor, und die Version, die an ihre Stelle trat</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Architecture of the package</source>
        <translation>Architektur des Pakets</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Architektur</translation>
    </message>
    <message>
        <source>Where the package came from</source>
        <translation>Woher das Paket kam</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>Repository</translation>
    </message>
    <message>
        <source>Why the package was installed</source>
        <translation>Warum das Paket installiert war</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
</context>
<context>
    <name>History::Records</name>
    <message>
        <source>Unable to read the history of transactions</source>
        <translation>Der Verlauf der Transaktionen kann nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>History::Window</name>
    <message>
        <source>History</source>
        <translation>Verlauf</translation>
    </message>
    <message>
        <source>No transaction is known.</source>
        <translation>Es ist keine Transaktion bekannt.</translation>
    </message>
    <message>
        <source>No transaction fits the search.</source>
        <translation>Keine Transaktion passt zur Suche.</translation>
    </message>
    <message>
        <source>Transaction %1: %2</source>
        <translation>Transaktion %1: %2</translation>
    </message>
    <message>
        <source>Begun: %1</source>
        <translation>Begonnen: %1</translation>
    </message>
    <message>
        <source>From %1 to %2</source>
        <translation>Von %1 bis %2</translation>
    </message>
    <message>
        <source>User: %1</source>
        <translation>Benutzer: %1</translation>
    </message>
    <message>
        <source>Command: %1</source>
        <translation>Befehl: %1</translation>
    </message>
    <message>
        <source>Comment: %1</source>
        <translation>Kommentar: %1</translation>
    </message>
    <message>
        <source>The scripts of the packages wrote nothing.</source>
        <translation>Die Skripte der Pakete haben nichts ausgegeben.</translation>
    </message>
    <message>
        <source>The package library doesn&apos;t keep what scripts of packages write.</source>
        <translation>Die Paketbibliothek bewahrt nicht auf, was Skripte von Paketen ausgeben.</translation>
    </message>
    <message>
        <source>The helper script in use is too old for changes by the history</source>
        <translation>Das verwendete Hilfsskript ist zu alt für Änderungen nach dem Verlauf</translation>
    </message>
    <message>
        <source>Do the opposite of the chosen transaction</source>
        <translation>Das Gegenteil der gewählten Transaktion tun</translation>
    </message>
    <message>
        <source>Do the chosen transaction once more</source>
        <translation>Die gewählte Transaktion noch einmal ausführen</translation>
    </message>
    <message>
        <source>Undo all transactions behind the chosen one</source>
        <translation>Alle Transaktionen nach der gewählten rückgängig machen</translation>
    </message>
    <message>
        <source>Not all of it can be done:</source>
        <translation>Nicht alles davon ist möglich:</translation>
    </message>
    <message>
        <source>Go on with the rest? What exactly is done is shown before, and asked once more.</source>
        <translation>Mit dem Rest fortfahren? Was genau getan wird, wird vorher gezeigt und noch einmal gefragt.</translation>
    </message>
    <message>
        <source>Text (*.txt)</source>
        <translation>Text (*.txt)</translation>
    </message>
    <message>
        <source>JSON (*.json)</source>
        <translation>JSON (*.json)</translation>
    </message>
    <message>
        <source>Export</source>
        <translation>Exportieren</translation>
    </message>
    <message>
        <source>Unable to write %1: %2</source>
        <translation>%1 kann nicht geschrieben werden: %2</translation>
    </message>
    <message>
        <source>All transactions, the latest first</source>
        <translation>Alle Transaktionen, die letzte zuerst</translation>
    </message>
    <message>
        <source>part of a name, or a pattern such as kernel*</source>
        <translation>Teil eines Namens oder ein Muster wie kernel*</translation>
    </message>
    <message>
        <source>Shows only the transactions about packages whose name, version and
architecture hold this text or, with * or ?, match it</source>
        <translation>Zeigt nur die Transaktionen mit Paketen, deren Name, Version und
Architektur diesen Text enthalten oder, mit * oder ?, zu ihm passen</translation>
    </message>
    <message>
        <source>Pac&amp;kage:</source>
        <translation>Pa&amp;ket:</translation>
    </message>
    <message>
        <source>The chosen transaction</source>
        <translation>Die gewählte Transaktion</translation>
    </message>
    <message>
        <source>Packages</source>
        <translation>Pakete</translation>
    </message>
    <message>
        <source>What the chosen transaction did</source>
        <translation>Was die gewählte Transaktion tat</translation>
    </message>
    <message>
        <source>Script Output</source>
        <translation>Skriptausgabe</translation>
    </message>
    <message>
        <source>What scripts of the packages wrote during the transaction</source>
        <translation>Was Skripte der Pakete während der Transaktion ausgegeben haben</translation>
    </message>
    <message>
        <source>&amp;Packages</source>
        <translation>&amp;Pakete</translation>
    </message>
    <message>
        <source>&amp;Script Output</source>
        <translation>&amp;Skriptausgabe</translation>
    </message>
    <message>
        <source>&amp;Undo This</source>
        <translation>&amp;Rückgängig machen</translation>
    </message>
    <message>
        <source>&amp;Roll Back To Here</source>
        <translation>&amp;Bis hierher zurück</translation>
    </message>
    <message>
        <source>Re&amp;do</source>
        <translation>&amp;Wiederholen</translation>
    </message>
    <message>
        <source>&amp;This Transaction...</source>
        <translation>&amp;Diese Transaktion...</translation>
    </message>
    <message>
        <source>&amp;All Transactions...</source>
        <translation>&amp;Alle Transaktionen...</translation>
    </message>
    <message>
        <source>&amp;Export</source>
        <translation>&amp;Exportieren</translation>
    </message>
    <message>
        <source>Write transactions into a file, as text or JSON</source>
        <translation>Transaktionen als Text oder JSON in eine Datei schreiben</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>S&amp;chließen</translation>
    </message>
    <message>
        <source>Close the history</source>
        <translation>Den Verlauf schließen</translation>
    </message>
    <message>
        <source>Transaction</source>
        <translation>Transaktion</translation>
    </message>
</context>
<context>
    <name>KeyDialog</name>
    <message>
        <source>Import Key</source>
        <translation>Schlüssel importieren</translation>
    </message>
    <message>
        <source>Fetch Key</source>
        <translation>Schlüssel abrufen</translation>
    </message>
    <message>
        <source>Is this key to be trusted? Everything that it has signed is accepted from then on. Import it only if you know its fingerprint from elsewhere, such as its owner&apos;s pages.</source>
        <translation>Soll diesem Schlüssel vertraut werden? Alles, was mit ihm signiert ist, wird von da an angenommen. Importieren Sie ihn nur, wenn Sie seinen Fingerabdruck aus anderer Quelle kennen, etwa von den Seiten des Eigentümers.</translation>
    </message>
    <message>
        <source>A key that is missing is to be fetched from the address below. Nothing is trusted yet: you see the key before it is imported.</source>
        <translation>Ein fehlender Schlüssel soll von der unten stehenden Adresse abgerufen werden. Damit wird noch nichts vertraut: Sie sehen den Schlüssel, bevor er importiert wird.</translation>
    </message>
    <message>
        <source>User ID:</source>
        <translation>Benutzer-ID:</translation>
    </message>
    <message>
        <source>Fingerprint:</source>
        <translation>Fingerabdruck:</translation>
    </message>
    <message>
        <source>Key ID:</source>
        <translation>Schlüssel-ID:</translation>
    </message>
    <message>
        <source>%1 (short: %2)</source>
        <translation>%1 (kurz: %2)</translation>
    </message>
    <message>
        <source>Created:</source>
        <translation>Erstellt:</translation>
    </message>
    <message>
        <source>Expires:</source>
        <translation>Läuft ab:</translation>
    </message>
    <message>
        <source>never</source>
        <translation>nie</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>Adresse:</translation>
    </message>
    <message>
        <source>Transport:</source>
        <translation>Übertragung:</translation>
    </message>
    <message>
        <source>a file of this system</source>
        <translation>eine Datei dieses Systems</translation>
    </message>
    <message>
        <source>https: encrypted, from a server that has proved its name</source>
        <translation>https: verschlüsselt, von einem Server, der seinen Namen nachgewiesen hat</translation>
    </message>
    <message>
        <source>%1: not encrypted. Anybody on the way may have exchanged the key.</source>
        <translation>%1: nicht verschlüsselt. Wer auf dem Weg dazwischen ist, kann den Schlüssel ausgetauscht haben.</translation>
    </message>
    <message>
        <source>Repository:</source>
        <translation>Paketquelle:</translation>
    </message>
    <message>
        <source>Signed with it:</source>
        <translation>Damit signiert:</translation>
    </message>
    <message>
        <source>the metadata of the repository</source>
        <translation>die Metadaten der Paketquelle</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>https: encrypted, but any server may answer, since sslverify is switched off. Anybody on the way may have exchanged the key.</source>
        <translation>https: verschlüsselt, aber jeder Server kann antworten, da sslverify ausgeschaltet ist. Wer auf dem Weg dazwischen ist, kann den Schlüssel ausgetauscht haben.</translation>
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
        <translation>VEM - Protokoll</translation>
    </message>
    <message>
        <source>Log</source>
        <translation>Protokoll</translation>
    </message>
    <message>
        <source>Detail level</source>
        <translation>Detailstufe</translation>
    </message>
    <message>
        <source>Threshold beyond which more detailed log messages are omitted.
Higher levels show more detail.
The valid range is 0 .. %1.
The default is %2.
Higher levels contain debug information.
This corresponds to yum&apos;s debuglevel (-d) option.</source>
        <translation>Schwelle, über der ausführlichere Protokollmeldungen weggelassen werden.
Höhere Stufen zeigen mehr Einzelheiten.
Der gültige Bereich ist 0 .. %1.
Die Vorgabe ist %2.
Höhere Stufen enthalten Informationen zur Fehlersuche.
Entspricht der Option debuglevel (-d) von yum.</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Close the Log Window</source>
        <translation>Das Protokollfenster schließen</translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Clean RPM package headers cached locally in %1</source>
        <translation>Lokal in %1 zwischengespeicherte Header von RPM-Paketen löschen</translation>
    </message>
    <message>
        <source>Clean RPM packages cached locally in %1
(useful for recovering disk space)</source>
        <translation>Lokal in %1 zwischengespeicherte RPM-Pakete löschen
(gibt Speicherplatz frei)</translation>
    </message>
    <message>
        <source>Clean XML metadata cached locally in %1
(useful along with Clean Pickled Data for
 forcing download of new available package lists)</source>
        <translation>Lokal in %1 zwischengespeicherte XML-Metadaten löschen
(zusammen mit „Pickle-Daten bereinigen“ nützlich, um das
 Herunterladen neuer Listen verfügbarer Pakete zu erzwingen)</translation>
    </message>
    <message>
        <source>Clean pickled data cached locally in %1
(useful along with Clean XML Metadata for
 forcing download of new available package lists)</source>
        <translation>Lokal in %1 zwischengespeicherte Pickle-Daten löschen
(zusammen mit „XML-Metadaten bereinigen“ nützlich, um das
 Herunterladen neuer Listen verfügbarer Pakete zu erzwingen)</translation>
    </message>
    <message>
        <source>Clean all data cached locally in %1</source>
        <translation>Alle lokal in %1 zwischengespeicherten Daten löschen</translation>
    </message>
    <message>
        <source>About</source>
        <translation>Über VEM</translation>
    </message>
    <message>
        <source>Search</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Filter</source>
        <translation>Filtern</translation>
    </message>
    <message>
        <source>Regular expression to compare to all fields of a package</source>
        <translation>Regulärer Ausdruck, mit dem alle Felder eines Pakets verglichen werden</translation>
    </message>
    <message>
        <source>Regular expression filter matching textual fields visible in the table</source>
        <translation>Regulärer Ausdruck, mit dem die in der Tabelle sichtbaren Textfelder gefiltert werden</translation>
    </message>
    <message>
        <source>Perform the search for the regular expression specified to the left</source>
        <translation>Nach dem links angegebenen regulären Ausdruck suchen</translation>
    </message>
    <message>
        <source>Apply the filter specified to the left</source>
        <translation>Den links angegebenen Filter anwenden</translation>
    </message>
    <message>
        <source>Specify the method for using a regular expression to select packages in the table:
	Filter uses the textual fields visible in the table, as if they were separated by spaces.
	Search uses all fields in packages, including list of Files, Change Log, Requires, etc.,
	independently.  It is considerably slower.</source>
        <translation>Legt fest, wie ein regulärer Ausdruck Pakete in der Tabelle auswählt:
	„Filtern“ nutzt die in der Tabelle sichtbaren Textfelder, als wären sie durch Leerzeichen getrennt.
	„Suchen“ nutzt alle Felder der Pakete, auch Dateiliste, Änderungsprotokoll, Abhängigkeiten usw.,
	jedes für sich. Das ist erheblich langsamer.</translation>
    </message>
    <message>
        <source>%1 (Must load extra data.)</source>
        <translation>%1 (Dazu müssen Zusatzdaten geladen werden.)</translation>
    </message>
    <message>
        <source>VEM - %1</source>
        <translation>VEM - %1</translation>
    </message>
    <message>
        <source>&amp;Program</source>
        <translation>&amp;Programm</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation>Ctrl+Q</translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation>&amp;Fenster</translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation>&amp;Protokoll</translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation>Ctrl+L</translation>
    </message>
    <message>
        <source>&amp;Repositories</source>
        <translation>Paket&amp;quellen</translation>
    </message>
    <message>
        <source>&amp;Edit Configuration</source>
        <translation>Konfiguration &amp;bearbeiten</translation>
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
        <translation>Header bereinigen</translation>
    </message>
    <message>
        <source>Clean Packages</source>
        <translation>Pakete bereinigen</translation>
    </message>
    <message>
        <source>Clean XML Metadata</source>
        <translation>XML-Metadaten bereinigen</translation>
    </message>
    <message>
        <source>Clean Pickled Data</source>
        <translation>Pickle-Daten bereinigen</translation>
    </message>
    <message>
        <source>Clean All</source>
        <translation>Alles bereinigen</translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation>&amp;Hilfe</translation>
    </message>
    <message>
        <source>Manual (html)</source>
        <translation>Handbuch (html)</translation>
    </message>
    <message>
        <source>F1</source>
        <translation>F1</translation>
    </message>
    <message>
        <source>Manual (PDF)</source>
        <translation>Handbuch (PDF)</translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation>Ü&amp;ber VEM</translation>
    </message>
    <message>
        <source>Filter or Search</source>
        <translation>Filtern oder suchen</translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation>Regulärer Ausdruck</translation>
    </message>
    <message>
        <source>View Updatable</source>
        <translation>Aktualisierbare anzeigen</translation>
    </message>
    <message>
        <source>View Installable</source>
        <translation>Installierbare anzeigen</translation>
    </message>
    <message>
        <source>View Removable</source>
        <translation>Entfernbare anzeigen</translation>
    </message>
    <message>
        <source>View All</source>
        <translation>Alle anzeigen</translation>
    </message>
    <message>
        <source>Filter for those packages which are eligible for updating,
for installing, or for removing; or show all packages</source>
        <translation>Nur Pakete anzeigen, die aktualisiert, installiert
oder entfernt werden können, oder alle Pakete anzeigen</translation>
    </message>
    <message>
        <source>View</source>
        <translation>Anzeige</translation>
    </message>
    <message>
        <source>Include Groups</source>
        <translation>Mit Gruppen</translation>
    </message>
    <message>
        <source>Whether or not filter should include package groups</source>
        <translation>Ob der Filter auch Paketgruppen einschließen soll</translation>
    </message>
    <message>
        <source>&amp;Describe</source>
        <translation>&amp;Beschreiben</translation>
    </message>
    <message>
        <source>Pop up a window with a detailed description of the currently selected package</source>
        <translation>Ein Fenster mit einer ausführlichen Beschreibung des ausgewählten Pakets öffnen</translation>
    </message>
    <message>
        <source>Re&amp;size</source>
        <translation>&amp;Größe anpassen</translation>
    </message>
    <message>
        <source>Resize the columns and window to optimal values</source>
        <translation>Spalten und Fenster auf die günstigste Größe bringen</translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation>Neu &amp;laden</translation>
    </message>
    <message>
        <source>Refresh the list of installed packages and packages available for update.
Use this to check for new updates in repositories, or if any packages were installed manually.</source>
        <translation>Die Liste der installierten und der aktualisierbaren Pakete neu laden.
Sinnvoll, um in den Paketquellen nach neuen Aktualisierungen zu suchen oder wenn Pakete von Hand installiert wurden.</translation>
    </message>
    <message>
        <source>Set &amp;Install/Update of Selected</source>
        <translation>Auswahl vormerken (&amp;Inst./Akt.)</translation>
    </message>
    <message>
        <source>Sets the Action for all selected packages which are Not Installed to Install, and
sets the Action for all selected packages which are Installed but Out-of-date to Update.
Does not Apply Actions automatically.</source>
        <translation>Setzt die Aktion aller ausgewählten Pakete, die nicht installiert sind, auf „Installieren“
und die aller ausgewählten Pakete, die installiert, aber veraltet sind, auf „Aktualisieren“.
Die Aktionen werden nicht automatisch angewendet.</translation>
    </message>
    <message>
        <source>Set &amp;Update of All Out-of-Date</source>
        <translation>Alle Akt&amp;ualisierungen vormerken</translation>
    </message>
    <message>
        <source>Sets the Action for all packages which are Installed but Out-of-date to Update.
Does not Apply Actions automatically.</source>
        <translation>Setzt die Aktion aller Pakete, die installiert, aber veraltet sind, auf „Aktualisieren“.
Die Aktionen werden nicht automatisch angewendet.</translation>
    </message>
    <message>
        <source>&amp;Clear Actions</source>
        <translation>Aktionen &amp;verwerfen</translation>
    </message>
    <message>
        <source>Clears all specified Actions (Updates, Installs, and Removals)</source>
        <translation>Verwirft alle vorgemerkten Aktionen (Aktualisieren, Installieren und Entfernen)</translation>
    </message>
    <message>
        <source>&amp;Apply Actions</source>
        <translation>Aktionen &amp;anwenden</translation>
    </message>
    <message>
        <source>Applies the specified Actions (Updates, Installs, and Removals)</source>
        <translation>Wendet die vorgemerkten Aktionen an (Aktualisieren, Installieren und Entfernen)</translation>
    </message>
    <message>
        <source>Item Progress</source>
        <translation>Fortschritt des Einzelschritts</translation>
    </message>
    <message>
        <source>Total Progress</source>
        <translation>Gesamtfortschritt</translation>
    </message>
    <message>
        <source>VEM</source>
        <translation>VEM</translation>
    </message>
    <message>
        <source>Unfinished Transaction</source>
        <translation>Unvollendete Transaktion</translation>
    </message>
    <message>
        <source>Shall the older versions be removed? What exactly is done is shown before, and asked once more.</source>
        <translation>Sollen die älteren Versionen entfernt werden? Vorher wird gezeigt, was genau geschieht, und noch einmal gefragt.</translation>
    </message>
    <message>
        <source>&amp;Remove Older Versions</source>
        <translation>Ältere Versionen &amp;entfernen</translation>
    </message>
    <message>
        <source>&amp;Leave Them</source>
        <translation>&amp;Belassen</translation>
    </message>
    <message>
        <source>Not everything that is configured could be used, so the table may not show what it should:</source>
        <translation>Nicht alles, was konfiguriert ist, ließ sich verwenden, daher zeigt die Tabelle womöglich nicht, was sie sollte:</translation>
    </message>
    <message>
        <source>Incomplete Table</source>
        <translation>Unvollständige Tabelle</translation>
    </message>
    <message>
        <source>&lt;h3&gt;VEM %1&lt;/h3&gt;&lt;hr&gt;&lt;p&gt;VEM, Verified Estate Manager, is a graphical user interface which allows a user to make modifications to the installed rpm packages on a system.&lt;/p&gt;&lt;p&gt;Capabilities:&lt;p&gt;&lt;ul&gt;&lt;li&gt;Install new packages or update existing packages by downloading them from a yum package repository&lt;/li&gt;&lt;li&gt;Remove existing packages.&lt;/li&gt;&lt;li&gt;Configure sets of repositories from which to obtain new and updated packages.&lt;/li&gt;&lt;li&gt;Examine installed packages or packages available for installation or update&lt;/li&gt;&lt;li&gt;Install, update, or remove groups of packages&lt;/li&gt;&lt;li&gt;Install or update suites of packages&lt;/li&gt;&lt;/ul&gt;</source>
        <translation>&lt;h3&gt;VEM %1&lt;/h3&gt;&lt;hr&gt;&lt;p&gt;VEM, der Verified Estate Manager, ist eine grafische Benutzeroberfläche, mit der sich die installierten rpm-Pakete eines Systems ändern lassen.&lt;/p&gt;&lt;p&gt;Funktionen:&lt;p&gt;&lt;ul&gt;&lt;li&gt;Neue Pakete installieren oder vorhandene aktualisieren; die Pakete werden aus einer yum-Paketquelle heruntergeladen&lt;/li&gt;&lt;li&gt;Vorhandene Pakete entfernen&lt;/li&gt;&lt;li&gt;Die Paketquellen konfigurieren, aus denen neue und aktualisierte Pakete bezogen werden&lt;/li&gt;&lt;li&gt;Installierte Pakete und solche, die installiert oder aktualisiert werden können, untersuchen&lt;/li&gt;&lt;li&gt;Paketgruppen installieren, aktualisieren oder entfernen&lt;/li&gt;&lt;li&gt;Paketsuiten installieren oder aktualisieren&lt;/li&gt;&lt;/ul&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Package library: %1&lt;/p&gt;</source>
        <translation>&lt;p&gt;Paketbibliothek: %1&lt;/p&gt;</translation>
    </message>
    <message>
        <source>&lt;p&gt;Web page: &lt;a href=&quot;https://vem.example.org/&quot;&gt;https://vem.example.org/&lt;/a&gt;&lt;/p&gt;</source>
        <translation>&lt;p&gt;Webseite: &lt;a href=&quot;https://vem.example.org/&quot;&gt;https://vem.example.org/&lt;/a&gt;&lt;/p&gt;</translation>
    </message>
    <message>
        <source>What the program remembers was damaged; it has been put aside as %1</source>
        <translation>Was sich das Programm merkt, war beschädigt; es ist beiseitegelegt als %1</translation>
    </message>
    <message>
        <source>Actions that are gone with their rows: %1</source>
        <translation>Aktionen, die mit ihren Zeilen weggefallen sind: %1</translation>
    </message>
    <message>
        <source>View Marked</source>
        <translation>Markierte anzeigen</translation>
    </message>
    <message>
        <source>&amp;Reset Window</source>
        <translation>Fenster &amp;zurücksetzen</translation>
    </message>
    <message>
        <source>S&amp;election</source>
        <translation>Aus&amp;wahl</translation>
    </message>
    <message>
        <source>&amp;Find</source>
        <translation>&amp;Finden</translation>
    </message>
    <message>
        <source>Packages are being installed, updated or removed.
That goes on to its end, and the program ends behind it.</source>
        <translation>Pakete werden installiert, aktualisiert oder entfernt.
Das wird zu Ende geführt, und das Programm endet danach.</translation>
    </message>
    <message>
        <source>&amp;Open Package Files...</source>
        <translation>Paketdateien ö&amp;ffnen...</translation>
    </message>
    <message>
        <source>Ctrl+O</source>
        <translation>Ctrl+O</translation>
    </message>
    <message>
        <source>Shows packages of .rpm files and of https addresses in the table, marked for installation</source>
        <translation>Zeigt Pakete aus .rpm-Dateien und von https-Adressen in der Tabelle, zur Installation markiert</translation>
    </message>
    <message>
        <source>The package library in use can&apos;t open package files here</source>
        <translation>Die verwendete Paketbibliothek kann hier keine Paketdateien öffnen</translation>
    </message>
    <message>
        <source>The search was stopped: only what it had found by then is shown</source>
        <translation>Die Suche wurde angehalten: Gezeigt wird nur, was bis dahin gefunden war</translation>
    </message>
    <message>
        <source>An answer is waited for.</source>
        <translation>Es wird auf eine Antwort gewartet.</translation>
    </message>
    <message>
        <source>All actions have been applied.</source>
        <translation>Alle Aktionen sind angewandt.</translation>
    </message>
    <message>
        <source>Not all actions have been applied.</source>
        <translation>Nicht alle Aktionen sind angewandt worden.</translation>
    </message>
    <message>
        <source>Open Log With Each &amp;Apply</source>
        <translation>Protokoll bei jedem &amp;Anwenden öffnen</translation>
    </message>
    <message>
        <source>&amp;History</source>
        <translation>&amp;Verlauf</translation>
    </message>
    <message>
        <source>Ctrl+H</source>
        <translation>Ctrl+H</translation>
    </message>
    <message>
        <source>Shows what was installed, updated and removed, and takes it back</source>
        <translation>Zeigt, was installiert, aktualisiert und entfernt wurde, und macht es rückgängig</translation>
    </message>
    <message>
        <source>The helper script in use is too old to tell the history</source>
        <translation>Das verwendete Hilfsskript ist zu alt, um den Verlauf zu nennen</translation>
    </message>
    <message>
        <source>A&amp;dvisories</source>
        <translation>H&amp;inweise</translation>
    </message>
    <message>
        <source>Shows what the repositories advise about installed packages, security first of all</source>
        <translation>Zeigt, wozu die Repositorys bei installierten Paketen raten, vor allem zur Sicherheit</translation>
    </message>
    <message>
        <source>The helper script in use is too old to tell of advisories</source>
        <translation>Das verwendete Hilfsskript ist zu alt, um Hinweise zu nennen</translation>
    </message>
    <message>
        <source>Ctrl+D</source>
        <translation>Ctrl+D</translation>
    </message>
    <message>
        <source>View Security Updates</source>
        <translation>Sicherheitsupdates anzeigen</translation>
    </message>
    <message>
        <source>Set Update of &amp;Security Fixes</source>
        <translation>Sicherheits&amp;updates vormerken</translation>
    </message>
    <message>
        <source>Ctrl+Shift+U</source>
        <translation>Ctrl+Shift+U</translation>
    </message>
    <message>
        <source>Set Update of Security Fixes</source>
        <translation>Sicherheitsupdates vormerken</translation>
    </message>
    <message>
        <source>The metadata of the repositories in use tells of no advisories.</source>
        <translation>Die Metadaten der verwendeten Repositorys enthalten keine Hinweise.</translation>
    </message>
    <message>
        <source>Sets the Action for all packages which have a security update to Update.
Does not Apply Actions automatically.</source>
        <translation>Setzt die Aktion aller Pakete, für die es ein Sicherheitsupdate gibt, auf „Aktualisieren“.
Die Aktionen werden nicht automatisch angewendet.</translation>
    </message>
    <message>
        <source>Res&amp;tarts</source>
        <translation>Neus&amp;tarts</translation>
    </message>
    <message>
        <source>Shows what still works with files that have been replaced, and restarts services</source>
        <translation>Zeigt, was noch mit ersetzten Dateien arbeitet, und startet Dienste neu</translation>
    </message>
    <message>
        <source>The helper script in use is too old to tell what is to be restarted</source>
        <translation>Das verwendete Hilfsskript ist zu alt, um zu sagen, was neu zu starten ist</translation>
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
        <translation>Paketdateien öffnen</translation>
    </message>
    <message>
        <source>&amp;Files (.rpm) and addresses (https), one a line:</source>
        <translation>&amp;Dateien (.rpm) und Adressen (https), je eine pro Zeile:</translation>
    </message>
    <message>
        <source>Package files</source>
        <translation>Paketdateien</translation>
    </message>
    <message>
        <source>Paths of .rpm files and https addresses, one a line</source>
        <translation>Pfade von .rpm-Dateien und https-Adressen, je einer pro Zeile</translation>
    </message>
    <message>
        <source>&amp;Browse...</source>
        <translation>D&amp;urchsuchen...</translation>
    </message>
    <message>
        <source>Choose .rpm files of this machine</source>
        <translation>.rpm-Dateien dieses Rechners auswählen</translation>
    </message>
    <message>
        <source>&amp;Open</source>
        <translation>Ö&amp;ffnen</translation>
    </message>
    <message>
        <source>Show the packages in the table, marked for installation</source>
        <translation>Die Pakete in der Tabelle zeigen, zur Installation markiert</translation>
    </message>
    <message>
        <source>Package files (*.rpm);;All files (*)</source>
        <translation>Paketdateien (*.rpm);;Alle Dateien (*)</translation>
    </message>
    <message>
        <source>This is no readable .rpm file and no https address: %1</source>
        <translation>Das ist weder eine lesbare .rpm-Datei noch eine https-Adresse: %1</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
</context>
<context>
    <name>PackageTable::ActionContextMenu</name>
    <message>
        <source>&amp;Update</source>
        <translation>&amp;Aktualisieren</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>&amp;Installieren</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>&amp;Entfernen</translation>
    </message>
    <message>
        <source>&amp;No Action</source>
        <translation>&amp;Keine Aktion</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Dialog</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>VEM Package Description</source>
        <translation>VEM - Paketbeschreibung</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>Zurück</translation>
    </message>
    <message>
        <source>Go back to the package described before</source>
        <translation>Zurück zu dem Paket, das vorher beschrieben wurde</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Instance::Area</name>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>Paketquelle</translation>
    </message>
    <message>
        <source>Details</source>
        <translation>Details</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Show</source>
        <translation>Anzeigen</translation>
    </message>
    <message>
        <source>Change Log</source>
        <translation>Änderungsprotokoll</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
    <message>
        <source>%1 (must load extra data)</source>
        <translation>%1 (muss Zusatzdaten laden)</translation>
    </message>
    <message>
        <source>%1 %2 File List</source>
        <translation>Dateiliste von %1 %2</translation>
    </message>
    <message>
        <source>%1 %2 Change Log</source>
        <translation>Änderungsprotokoll von %1 %2</translation>
    </message>
    <message>
        <source>Required Groups</source>
        <translation>Erforderliche Gruppen</translation>
    </message>
    <message>
        <source>Default MetaPkgs</source>
        <translation>Standard-Metapakete</translation>
    </message>
    <message>
        <source>Optional MetaPkgs</source>
        <translation>Optionale Metapakete</translation>
    </message>
    <message>
        <source>Mandatory Packages</source>
        <translation>Obligatorische Pakete</translation>
    </message>
    <message>
        <source>Default Packages</source>
        <translation>Standardpakete</translation>
    </message>
    <message>
        <source>Optional Packages</source>
        <translation>Optionale Pakete</translation>
    </message>
    <message>
        <source>Conditional Packages</source>
        <translation>Bedingte Pakete</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Architektur</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Zusammenfassung</translation>
    </message>
    <message>
        <source>Description</source>
        <translation>Beschreibung</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Anbieter</translation>
    </message>
    <message>
        <source>Build Time</source>
        <translation>Erstellt am</translation>
    </message>
    <message>
        <source>Build Host</source>
        <translation>Erstellt auf</translation>
    </message>
    <message>
        <source>Install Time</source>
        <translation>Installiert am</translation>
    </message>
    <message>
        <source>Binary RPM</source>
        <translation>Binär-RPM</translation>
    </message>
    <message>
        <source>Source RPM</source>
        <translation>Quell-RPM</translation>
    </message>
    <message>
        <source>License</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>Packager</source>
        <translation>Paketierer</translation>
    </message>
    <message>
        <source>URL</source>
        <translation>URL</translation>
    </message>
    <message>
        <source>Relocations</source>
        <translation>Verschiebbare Pfade</translation>
    </message>
    <message>
        <source>Provides</source>
        <translation>Stellt bereit</translation>
    </message>
    <message>
        <source>Requires</source>
        <translation>Benötigt</translation>
    </message>
    <message>
        <source>Conflicts</source>
        <translation>Konflikte</translation>
    </message>
    <message>
        <source>Obsoletes</source>
        <translation>Ersetzt</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Instance::RepoDialog</name>
    <message>
        <source>VEM Repository Description</source>
        <translation>VEM - Beschreibung der Paketquelle</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>Im Browser öffnen</translation>
    </message>
    <message>
        <source>Browse the first URL specified for the selected repository using an external web browser</source>
        <translation>Die erste URL der ausgewählten Paketquelle in einem externen Webbrowser öffnen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URLs</translation>
    </message>
    <message>
        <source>Mirror list URL</source>
        <translation>URL der Spiegelliste</translation>
    </message>
    <message>
        <source>%1:</source>
        <translation>%1:</translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Instance::Section</name>
    <message>
        <source>Required By</source>
        <translation>Benötigt von</translation>
    </message>
    <message>
        <source>Which packages require this one</source>
        <translation>Welche Pakete dieses benötigen</translation>
    </message>
    <message>
        <source>Recommended By</source>
        <translation>Empfohlen von</translation>
    </message>
    <message>
        <source>Which packages recommend this one</source>
        <translation>Welche Pakete dieses empfehlen</translation>
    </message>
    <message>
        <source>Provides What It Requires</source>
        <translation>Stellt bereit, was es benötigt</translation>
    </message>
    <message>
        <source>Which packages have what this one requires</source>
        <translation>Welche Pakete haben, was dieses benötigt</translation>
    </message>
    <message>
        <source>Why Installed</source>
        <translation>Warum installiert</translation>
    </message>
    <message>
        <source>Who wanted this package, and which transaction installed it</source>
        <translation>Wer dieses Paket wollte und welche Transaktion es installiert hat</translation>
    </message>
    <message>
        <source>Advisories</source>
        <translation>Sicherheits- und Fehlerhinweise</translation>
    </message>
    <message>
        <source>Which advisories name this package, and whether it has what they advise</source>
        <translation>Welche Hinweise dieses Paket nennen und ob es hat, wozu sie raten</translation>
    </message>
    <message>
        <source>Other Versions</source>
        <translation>Andere Versionen</translation>
    </message>
    <message>
        <source>All versions that are installed or that a repository has</source>
        <translation>Alle Versionen, die installiert sind oder die ein Repository hat</translation>
    </message>
    <message>
        <source>Reading…</source>
        <translation>Wird gelesen …</translation>
    </message>
    <message>
        <source>None</source>
        <translation>Keine</translation>
    </message>
    <message>
        <source>These are the first %L1 of %L2.</source>
        <translation>Dies sind die ersten %L1 von %L2.</translation>
    </message>
    <message>
        <source>Show all</source>
        <translation>Alle anzeigen</translation>
    </message>
</context>
<context>
    <name>PackageTable::ExpressionEdit</name>
    <message>
        <source>Match Case</source>
        <translation>Groß-/Kleinschreibung beachten</translation>
    </message>
    <message>
        <source>Clear</source>
        <translation>Leeren</translation>
    </message>
    <message>
        <source>Clear the expression</source>
        <translation>Den Ausdruck leeren</translation>
    </message>
    <message>
        <source>Ctrl+M</source>
        <translation>Ctrl+M</translation>
    </message>
    <message>
        <source>Whether capital and small letters differ (%1)</source>
        <translation>Ob sich Groß- und Kleinbuchstaben unterscheiden (%1)</translation>
    </message>
    <message>
        <source>%1, at letter %2 of the expression: %3</source>
        <extracomment>%1 is what the system&apos;s library says is wrong, %2 the number of the letter, from 1, %3 the letter</extracomment>
        <translation>%1, bei Zeichen %2 des Ausdrucks: %3</translation>
    </message>
    <message>
        <source>Not Valid</source>
        <translation>Nicht gültig</translation>
    </message>
</context>
<context>
    <name>PackageTable::Header</name>
    <message>
        <source>&amp;Columns</source>
        <translation>&amp;Spalten</translation>
    </message>
</context>
<context>
    <name>PackageTable::Model</name>
    <message>
        <source>Action</source>
        <translation>Aktion</translation>
    </message>
    <message>
        <source>Action to be performed on the package, if any: Update, Install, Remove</source>
        <translation>Aktion, die am Paket ausgeführt werden soll, falls vorgemerkt: Aktualisieren, Installieren, Entfernen</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Status</translation>
    </message>
    <message>
        <source>Indicates whether the package is Installed or not and, if installed, whether it is Up-to-date or not</source>
        <translation>Zeigt an, ob das Paket installiert ist und, wenn ja, ob es aktuell ist</translation>
    </message>
    <message>
        <source>Kind</source>
        <translation>Art</translation>
    </message>
    <message>
        <source>Whether the package is an ordinary package, a suite of packages, or a group of packages</source>
        <translation>Ob es sich um ein gewöhnliches Paket, eine Paketsuite oder eine Paketgruppe handelt</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation>Name des Pakets</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>Version</translation>
    </message>
    <message>
        <source>Version and release of the package as version-release;
If the Epoch is non-zero, includes it as epoch:version-release</source>
        <translation>Version und Release des Pakets in der Form Version-Release;
ist die Epoche nicht null, in der Form Epoche:Version-Release</translation>
    </message>
    <message>
        <source>Repository</source>
        <translation>Paketquelle</translation>
    </message>
    <message>
        <source>Repository from which the most recent version of the package is available</source>
        <translation>Paketquelle, aus der die neueste Version des Pakets verfügbar ist</translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation>Architektur</translation>
    </message>
    <message>
        <source>Architecture for which the package is applicable, or &quot;noarch&quot; for general-purpose packages</source>
        <translation>Architektur, für die das Paket bestimmt ist, oder „noarch“ bei architekturunabhängigen Paketen</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>Größe</translation>
    </message>
    <message>
        <source>Size of the package</source>
        <translation>Größe des Pakets</translation>
    </message>
    <message>
        <source>Build Time</source>
        <translation>Erstellt am</translation>
    </message>
    <message>
        <source>Date and time at which the package was created</source>
        <translation>Datum und Uhrzeit der Erstellung des Pakets</translation>
    </message>
    <message>
        <source>Update package</source>
        <translation>Paket aktualisieren</translation>
    </message>
    <message>
        <source>Install package</source>
        <translation>Paket installieren</translation>
    </message>
    <message>
        <source>Remove package</source>
        <translation>Paket entfernen</translation>
    </message>
    <message>
        <source>Package is available to update an out-of-date version</source>
        <translation>Das Paket ist als Aktualisierung einer veralteten Version verfügbar</translation>
    </message>
    <message>
        <source>Package is available for installation</source>
        <translation>Das Paket ist zur Installation verfügbar</translation>
    </message>
    <message>
        <source>Package is installed and up-to-date</source>
        <translation>Das Paket ist installiert und aktuell</translation>
    </message>
    <message>
        <source>Suite of packages</source>
        <translation>Paketsuite</translation>
    </message>
    <message>
        <source>Group of packages</source>
        <translation>Paketgruppe</translation>
    </message>
    <message>
        <source>Ordinary package</source>
        <translation>Gewöhnliches Paket</translation>
    </message>
    <message>
        <source>Available: %1
</source>
        <translation>Verfügbar: %1
</translation>
    </message>
    <message>
        <source>Installed: %1
</source>
        <translation>Installiert: %1
</translation>
    </message>
    <message>
        <source>
Installed in more than one version: %1</source>
        <translation>
In mehr als einer Version installiert: %1</translation>
    </message>
    <message>
        <source>Package is available to replace %1</source>
        <translation>Das Paket ist als Ersatz für %1 verfügbar</translation>
    </message>
    <message>
        <source>Replaces: %1
</source>
        <translation>Ersetzt: %1
</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Kurzbeschreibung</translation>
    </message>
    <message>
        <source>What the package is, in one line</source>
        <translation>Was das Paket ist, in einer Zeile</translation>
    </message>
    <message>
        <source>Installed Version</source>
        <translation>Installierte Version</translation>
    </message>
    <message>
        <source>Version and release that is installed, if any</source>
        <translation>Version und Release, die installiert sind, falls das Paket installiert ist</translation>
    </message>
    <message>
        <source>Installed Size</source>
        <translation>Größe installiert</translation>
    </message>
    <message>
        <source>What the package takes on the disk</source>
        <translation>Was das Paket auf der Platte belegt</translation>
    </message>
    <message>
        <source>Group</source>
        <translation>Gruppe</translation>
    </message>
    <message>
        <source>Kind of software, as the package states it</source>
        <translation>Art der Software, wie das Paket sie angibt</translation>
    </message>
    <message>
        <source>Licence</source>
        <translation>Lizenz</translation>
    </message>
    <message>
        <source>Terms under which the package may be used and passed on</source>
        <translation>Bedingungen, unter denen das Paket benutzt und weitergegeben werden darf</translation>
    </message>
    <message>
        <source>Vendor</source>
        <translation>Anbieter</translation>
    </message>
    <message>
        <source>Who has published the package</source>
        <translation>Wer das Paket veröffentlicht hat</translation>
    </message>
    <message>
        <source>Reason</source>
        <translation>Grund</translation>
    </message>
    <message>
        <source>Why the package is installed: asked for by the user, by a group, or as a dependency</source>
        <translation>Warum das Paket installiert ist: vom Benutzer gewünscht, durch eine Gruppe oder als Abhängigkeit</translation>
    </message>
    <message>
        <source>Advisory</source>
        <translation>Hinweis</translation>
    </message>
    <message>
        <source>Advisories that the update carries out, and how grave the gravest one is</source>
        <translation>Hinweise, die die Aktualisierung umsetzt, und wie schwer der schwerste wiegt</translation>
    </message>
</context>
<context>
    <name>PackageTable::OtherContextMenu</name>
    <message>
        <source>&amp;Describe</source>
        <translation>&amp;Beschreiben</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>Im Browser öffnen</translation>
    </message>
</context>
<context>
    <name>PackageTable::SelectionActions</name>
    <message>
        <source>Install/Update of Selected: %1</source>
        <extracomment>%1 is a number of packages</extracomment>
        <translation>Ausgewählte installieren/aktualisieren: %1</translation>
    </message>
    <message>
        <source>Remove Selected: %1</source>
        <translation>Ausgewählte entfernen: %1</translation>
    </message>
    <message>
        <source>No Action for Selected: %1</source>
        <translation>Keine Aktion für Ausgewählte: %1</translation>
    </message>
    <message>
        <source>&amp;Describe</source>
        <translation>&amp;Beschreiben</translation>
    </message>
    <message>
        <source>Select &amp;All</source>
        <translation>&amp;Alles auswählen</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>Im Browser öffnen</translation>
    </message>
</context>
<context>
    <name>PackageTable::View</name>
    <message>
        <source>Packages</source>
        <translation>Pakete</translation>
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
        <translation>Was über andere Pakete gesagt wird, kann nicht gelesen werden</translation>
    </message>
</context>
<context>
    <name>RepoAuth::Dialog</name>
    <message>
        <source>VEM Authentication</source>
        <translation>VEM - Anmeldung</translation>
    </message>
    <message>
        <source>Some configured repositories require authentication</source>
        <translation>Einige konfigurierte Paketquellen erfordern eine Anmeldung</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URLs</translation>
    </message>
    <message>
        <source>Mirror list URL</source>
        <translation>URL der Spiegelliste</translation>
    </message>
    <message>
        <source>Authentication name for a repository using the buffet authentication method</source>
        <translation>Anmeldename für eine Paketquelle, die das Buffet-Anmeldeverfahren verwendet</translation>
    </message>
    <message>
        <source>Authentication password for a repository using the buffet authentication method</source>
        <translation>Anmeldepasswort für eine Paketquelle, die das Buffet-Anmeldeverfahren verwendet</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Quit</source>
        <translation>Beenden</translation>
    </message>
    <message>
        <source>Disable for Session</source>
        <translation>Für Sitzung deaktivieren</translation>
    </message>
    <message>
        <source>Skip All</source>
        <translation>Alle überspringen</translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation>Auf alle anwenden</translation>
    </message>
    <message>
        <source>Apply to All with this Host</source>
        <translation>Auf alle mit diesem Host anwenden</translation>
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
        <translation>Fehler</translation>
    </message>
    <message>
        <source>Repository configuration has no URL</source>
        <translation>Die Konfiguration der Paketquelle enthält keine URL</translation>
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
        <translation>Vorgabe</translation>
    </message>
    <message>
        <source>(Yes)</source>
        <translation>(Ja)</translation>
    </message>
    <message>
        <source>(No)</source>
        <translation>(Nein)</translation>
    </message>
    <message>
        <source>No Identifier specified</source>
        <translation>Keine Kennung angegeben</translation>
    </message>
    <message>
        <source>No URLs or Mirror list URL specified</source>
        <translation>Weder URLs noch URL der Spiegelliste angegeben</translation>
    </message>
    <message>
        <source>File is not in any reposdir directory</source>
        <translation>Die Datei liegt in keinem reposdir-Verzeichnis</translation>
    </message>
    <message>
        <source>File lacks .repo suffix</source>
        <translation>Der Datei fehlt die Endung .repo</translation>
    </message>
    <message>
        <source>No Buffet Authentication Name specified</source>
        <translation>Kein Buffet-Anmeldename angegeben</translation>
    </message>
    <message>
        <source>No Buffet Authentication Password specified</source>
        <translation>Kein Buffet-Anmeldepasswort angegeben</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Unique identifier for the repository</source>
        <translation>Eindeutige Kennung der Paketquelle</translation>
    </message>
    <message>
        <source>Description of the repository</source>
        <translation>Beschreibung der Paketquelle</translation>
    </message>
    <message>
        <source>URLs</source>
        <translation>URLs</translation>
    </message>
    <message>
        <source>List of URLs to the repository.
If more than one is specified, they all should be identical mirrors,
and will provide redundancy if some URLs are unreachable.</source>
        <translation>Liste der URLs der Paketquelle.
Mehrere URLs müssen auf identische Spiegelserver verweisen;
sie bieten Ersatz, wenn einzelne URLs nicht erreichbar sind.</translation>
    </message>
    <message>
        <source>Mirror list URL</source>
        <translation>URL der Spiegelliste</translation>
    </message>
    <message>
        <source>URL to a file containing a list of URLs to the repository.</source>
        <translation>URL einer Datei mit einer Liste von URLs der Paketquelle.</translation>
    </message>
    <message>
        <source>Buffet Authentication</source>
        <translation>Buffet-Anmeldung</translation>
    </message>
    <message>
        <source>Authentication name for a repository using the buffet authentication method</source>
        <translation>Anmeldename für eine Paketquelle, die das Buffet-Anmeldeverfahren verwendet</translation>
    </message>
    <message>
        <source>Authentication password for a repository using the buffet authentication method</source>
        <translation>Anmeldepasswort für eine Paketquelle, die das Buffet-Anmeldeverfahren verwendet</translation>
    </message>
    <message>
        <source>Repository Options</source>
        <translation>Optionen der Paketquelle</translation>
    </message>
    <message>
        <source>Any other yum options for this repository.  See yum.conf(5)</source>
        <translation>Alle weiteren yum-Optionen für diese Paketquelle, siehe yum.conf(5)</translation>
    </message>
    <message>
        <source>Other Options:</source>
        <translation>Weitere Optionen:</translation>
    </message>
    <message>
        <source>Whether or not the repository is enabled for use</source>
        <translation>Ob die Paketquelle für die Benutzung aktiviert ist</translation>
    </message>
    <message>
        <source>Whether or not GPG key signatures of packages from the repository are checked to ensure authenticity</source>
        <translation>Ob die GPG-Signaturen von Paketen aus der Paketquelle geprüft werden, um deren Echtheit sicherzustellen</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>Aktiviert</translation>
    </message>
    <message>
        <source>Check GPG Keys</source>
        <translation>GPG-Schlüssel prüfen</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>Configuration File (expert)</source>
        <translation>Konfigurationsdatei (für Experten)</translation>
    </message>
    <message>
        <source>Name of the yum configuration file into which to place this repository configuration.
If left blank, defaults to the repository&apos;s identifier</source>
        <translation>Name der yum-Konfigurationsdatei, in der die Konfiguration dieser Paketquelle abgelegt wird.
Bleibt das Feld leer, wird die Kennung der Paketquelle verwendet</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>A numeric sort key which determines the order of this repository configuration
in a configuration file which contains multiple configurations</source>
        <translation>Numerischer Sortierschlüssel, der die Reihenfolge der Konfiguration dieser Paketquelle
in einer Konfigurationsdatei mit mehreren Konfigurationen bestimmt</translation>
    </message>
    <message>
        <source>Sort Position</source>
        <translation>Sortierposition</translation>
    </message>
    <message>
        <source>Line %1 of Other Options would begin another section</source>
        <translation>Zeile %1 der weiteren Optionen würde einen anderen Abschnitt beginnen</translation>
    </message>
    <message>
        <source>Line %1 of Other Options is indented but continues no option</source>
        <translation>Zeile %1 der weiteren Optionen ist eingerückt, setzt aber keine Option fort</translation>
    </message>
    <message>
        <source>Line %1 of Other Options is no option: it lacks &quot;=&quot;</source>
        <translation>Zeile %1 der weiteren Optionen ist keine Option: ihr fehlt „=“</translation>
    </message>
</context>
<context>
    <name>RepoEditor::ConfigDialog</name>
    <message>
        <source>VEM Repository Configuration</source>
        <translation>VEM - Konfiguration der Paketquelle</translation>
    </message>
    <message>
        <source>Reset</source>
        <translation>Zurücksetzen</translation>
    </message>
    <message>
        <source>Undo changes to this repository configuration</source>
        <translation>Änderungen an der Konfiguration dieser Paketquelle verwerfen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Undo changes to this repository configuration and close the window</source>
        <translation>Änderungen an der Konfiguration dieser Paketquelle verwerfen und das Fenster schließen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, and close the window</source>
        <translation>Änderungen an allen Paketquellen-Konfigurationen anwenden und das Fenster schließen</translation>
    </message>
</context>
<context>
    <name>RepoEditor::ContextMenu</name>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>Im Browser öffnen</translation>
    </message>
</context>
<context>
    <name>RepoEditor::Dialog</name>
    <message>
        <source>VEM Repository Configuration Editor</source>
        <translation>VEM - Paketquellen-Editor</translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation>Im Browser öffnen</translation>
    </message>
    <message>
        <source>Browse the first URL specified for the selected repository using an external web browser</source>
        <translation>Die erste URL der ausgewählten Paketquelle in einem externen Webbrowser öffnen</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>Bearbeiten</translation>
    </message>
    <message>
        <source>Edit the selected repository configuration</source>
        <translation>Die Konfiguration der ausgewählten Paketquelle bearbeiten</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>Hinzufügen</translation>
    </message>
    <message>
        <source>Create a new repository configuration from scratch</source>
        <translation>Eine neue, leere Paketquellen-Konfiguration anlegen</translation>
    </message>
    <message>
        <source>Copy</source>
        <translation>Kopieren</translation>
    </message>
    <message>
        <source>Create a new repository configuration based on the selected repository</source>
        <translation>Eine neue Paketquellen-Konfiguration auf Grundlage der ausgewählten Paketquelle anlegen</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Remove the selected repository configuration</source>
        <translation>Die Konfiguration der ausgewählten Paketquelle entfernen</translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation>Alle zurücksetzen</translation>
    </message>
    <message>
        <source>Undo changes to all repository configurations since the last Apply or opening of the dialog</source>
        <translation>Änderungen an allen Paketquellen-Konfigurationen seit dem letzten Anwenden oder dem Öffnen des Dialogs verwerfen</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Undo changes to all repository configurations since the last Apply or opening of the dialog, and close the window</source>
        <translation>Änderungen an allen Paketquellen-Konfigurationen seit dem letzten Anwenden oder dem Öffnen des Dialogs verwerfen und das Fenster schließen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, but do not close the window</source>
        <translation>Änderungen an allen Paketquellen-Konfigurationen anwenden, ohne das Fenster zu schließen</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, and close the window</source>
        <translation>Änderungen an allen Paketquellen-Konfigurationen anwenden und das Fenster schließen</translation>
    </message>
    <message>
        <source>A repository has no Identifier</source>
        <translation>Eine Paketquelle hat keine Kennung</translation>
    </message>
    <message>
        <source>Two or more repositories have the Identifier, %1</source>
        <translation>Mehrere Paketquellen haben die Kennung %1</translation>
    </message>
    <message>
        <source>Unapplied Configuration Changes</source>
        <translation>Nicht angewendete Konfigurationsänderungen</translation>
    </message>
</context>
<context>
    <name>RepoEditor::Model</name>
    <message>
        <source>Sess</source>
        <translation>Sitz.</translation>
    </message>
    <message>
        <source>Whether or not the repository is used during this session.
It overrides the persistent Enabled flag in the repository configuration.</source>
        <translation>Ob die Paketquelle in dieser Sitzung verwendet wird.
Hat Vorrang vor der dauerhaften Einstellung „Aktiviert“ in der Konfiguration der Paketquelle.</translation>
    </message>
    <message>
        <source>Perm</source>
        <translation>Perm.</translation>
    </message>
    <message>
        <source>Whether or not the repository is configured to be enabled by default.
It can be overridden for a particular session.</source>
        <translation>Ob die Paketquelle laut Konfiguration standardmäßig (permanent) aktiviert ist.
Lässt sich für eine einzelne Sitzung übersteuern.</translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation>Kennung</translation>
    </message>
    <message>
        <source>Unique identifier for the repository</source>
        <translation>Eindeutige Kennung der Paketquelle</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message>
        <source>Description of the repository</source>
        <translation>Beschreibung der Paketquelle</translation>
    </message>
    <message>
        <source>(new)</source>
        <translation>(neu)</translation>
    </message>
    <message>
        <source>Repository is enabled for this session</source>
        <translation>Die Paketquelle ist für diese Sitzung aktiviert</translation>
    </message>
    <message>
        <source>Repository is not enabled for this session</source>
        <translation>Die Paketquelle ist für diese Sitzung nicht aktiviert</translation>
    </message>
    <message>
        <source>Repository is configured to be enabled</source>
        <translation>Die Paketquelle ist laut Konfiguration aktiviert</translation>
    </message>
    <message>
        <source>Repository is not configured to be enabled</source>
        <translation>Die Paketquelle ist laut Konfiguration nicht aktiviert</translation>
    </message>
</context>
<context>
    <name>RepoEditor::View</name>
    <message>
        <source>Repositories</source>
        <translation>Paketquellen</translation>
    </message>
</context>
<context>
    <name>Restarts::FilesModel</name>
    <message>
        <source>Removed</source>
        <translation>Entfernt</translation>
    </message>
    <message>
        <source>Replaced</source>
        <translation>Ersetzt</translation>
    </message>
    <message>
        <source>Path of the file</source>
        <translation>Pfad der Datei</translation>
    </message>
    <message>
        <source>File</source>
        <translation>Datei</translation>
    </message>
    <message>
        <source>Package that the file belongs to now</source>
        <translation>Paket, zu dem die Datei jetzt gehört</translation>
    </message>
    <message>
        <source>Package</source>
        <translation>Paket</translation>
    </message>
    <message>
        <source>Whether the file that the process uses is there in another version, or gone</source>
        <translation>Ob die Datei, die der Prozess verwendet, in einer anderen Fassung da ist oder fehlt</translation>
    </message>
    <message>
        <source>State</source>
        <translation>Zustand</translation>
    </message>
</context>
<context>
    <name>Restarts::Model</name>
    <message>
        <source>Unit of systemd that the process belongs to</source>
        <translation>Einheit von systemd, zu der der Prozess gehört</translation>
    </message>
    <message>
        <source>Service</source>
        <translation>Dienst</translation>
    </message>
    <message>
        <source>Command that runs</source>
        <translation>Befehl, der läuft</translation>
    </message>
    <message>
        <source>Command</source>
        <translation>Befehl</translation>
    </message>
    <message>
        <source>Number of the process</source>
        <translation>Nummer des Prozesses</translation>
    </message>
    <message>
        <source>Process</source>
        <translation>Prozess</translation>
    </message>
    <message>
        <source>Whose process it is</source>
        <translation>Wessen Prozess es ist</translation>
    </message>
    <message>
        <source>User</source>
        <translation>Benutzer</translation>
    </message>
    <message>
        <source>When the process began</source>
        <translation>Wann der Prozess begann</translation>
    </message>
    <message>
        <source>Started</source>
        <translation>Gestartet</translation>
    </message>
    <message>
        <source>How many files it uses that have been replaced</source>
        <translation>Wie viele ersetzte Dateien er verwendet</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
</context>
<context>
    <name>Restarts::Reader</name>
    <message>
        <source>Unable to find out what is to be restarted</source>
        <translation>Es kann nicht ermittelt werden, was neu zu starten ist</translation>
    </message>
    <message>
        <source>Unable to restart services</source>
        <translation>Dienste können nicht neu gestartet werden</translation>
    </message>
</context>
<context>
    <name>Restarts::Window</name>
    <message>
        <source>Restarts</source>
        <translation>Neustarts</translation>
    </message>
    <message>
        <source>The system is to be started anew. Since its start on %1 have been installed:</source>
        <translation>Das System sollte neu gestartet werden. Seit seinem Start am %1 wurden installiert:</translation>
    </message>
    <message>
        <source>The system need not be started anew.</source>
        <translation>Das System muss nicht neu gestartet werden.</translation>
    </message>
    <message>
        <source>No process uses files that have been replaced.</source>
        <translation>Kein Prozess verwendet ersetzte Dateien.</translation>
    </message>
    <message>
        <source>Processes of which nothing could be told for lack of rights: %1</source>
        <translation>Prozesse, über die mangels Rechten nichts zu erfahren war: %1</translation>
    </message>
    <message>
        <source>The helper script in use is too old to restart services</source>
        <translation>Das verwendete Hilfsskript ist zu alt, um Dienste neu zu starten</translation>
    </message>
    <message>
        <source>Restarts the services of these processes, as far as they can be restarted</source>
        <translation>Startet die Dienste dieser Prozesse neu, soweit das möglich ist</translation>
    </message>
    <message>
        <source>These services are restarted, one after the other:</source>
        <translation>Diese Dienste werden nacheinander neu gestartet:</translation>
    </message>
    <message>
        <source>What they do is interrupted for that time.</source>
        <translation>Was sie tun, ist solange unterbrochen.</translation>
    </message>
    <message>
        <source>Restart Services</source>
        <translation>Dienste neu starten</translation>
    </message>
    <message>
        <source>Advice</source>
        <translation>Rat</translation>
    </message>
    <message>
        <source>Whether the system is to be started anew</source>
        <translation>Ob das System neu gestartet werden sollte</translation>
    </message>
    <message>
        <source>Processes</source>
        <translation>Prozesse</translation>
    </message>
    <message>
        <source>Processes that use files which have been replaced</source>
        <translation>Prozesse, die ersetzte Dateien verwenden</translation>
    </message>
    <message>
        <source>Files</source>
        <translation>Dateien</translation>
    </message>
    <message>
        <source>Replaced files that the chosen process uses</source>
        <translation>Ersetzte Dateien, die der gewählte Prozess verwendet</translation>
    </message>
    <message>
        <source>&amp;Restart These Services</source>
        <translation>Diese Dienste &amp;neu starten</translation>
    </message>
    <message>
        <source>&amp;Look Again</source>
        <translation>N&amp;ochmals nachsehen</translation>
    </message>
    <message>
        <source>Find out anew what is to be restarted</source>
        <translation>Neu ermitteln, was neu zu starten ist</translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation>&amp;Schließen</translation>
    </message>
    <message>
        <source>Close the restarts</source>
        <translation>Die Neustarts schließen</translation>
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
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>&amp;Details</source>
        <translation>&amp;Details</translation>
    </message>
    <message>
        <source>&amp;Transaction</source>
        <translation>&amp;Transaktion</translation>
    </message>
</context>
<context>
    <name>ScrollableErrorDialog</name>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
</context>
<context>
    <name>StatusLine</name>
    <message>
        <source>%1 of %2 shown</source>
        <translation>%1 von %2 gezeigt</translation>
    </message>
    <message>
        <source>%1 selected</source>
        <translation>%1 ausgewählt</translation>
    </message>
    <message>
        <source>1 install</source>
        <translation>1 Installation</translation>
    </message>
    <message>
        <source>%1 installs</source>
        <translation>%1 Installationen</translation>
    </message>
    <message>
        <source>1 update</source>
        <translation>1 Aktualisierung</translation>
    </message>
    <message>
        <source>%1 updates</source>
        <translation>%1 Aktualisierungen</translation>
    </message>
    <message>
        <source>1 removal</source>
        <translation>1 Entfernung</translation>
    </message>
    <message>
        <source>%1 removals</source>
        <translation>%1 Entfernungen</translation>
    </message>
    <message>
        <source>%1 marked: %2</source>
        <extracomment>%1 is a number, %2 something like &quot;2 installs, 1 removal&quot;</extracomment>
        <translation>%1 markiert: %2</translation>
    </message>
    <message>
        <source>%1; %2 to download</source>
        <extracomment>%1 is the sentence about marks, %2 a size</extracomment>
        <translation>%1; %2 herunterzuladen</translation>
    </message>
    <message>
        <source>Looking only</source>
        <translation>Nur ansehen</translation>
    </message>
    <message>
        <source>Incomplete Table</source>
        <translation>Unvollständige Tabelle</translation>
    </message>
    <message>
        <source>%1, %2 more on the disk</source>
        <extracomment>%1 is the sentence about marks, %2 a size</extracomment>
        <translation>%1, %2 mehr auf der Platte</translation>
    </message>
    <message>
        <source>%1, %2 less on the disk</source>
        <translation>%1, %2 weniger auf der Platte</translation>
    </message>
    <message>
        <source>Repositories read just now</source>
        <translation>Paketquellen soeben gelesen</translation>
    </message>
    <message>
        <source>Repositories read 1 minute ago</source>
        <translation>Paketquellen vor 1 Minute gelesen</translation>
    </message>
    <message>
        <source>Repositories read %1 minutes ago</source>
        <translation>Paketquellen vor %1 Minuten gelesen</translation>
    </message>
    <message>
        <source>Repositories read 1 hour ago</source>
        <translation>Paketquellen vor 1 Stunde gelesen</translation>
    </message>
    <message>
        <source>Repositories read %1 hours ago</source>
        <translation>Paketquellen vor %1 Stunden gelesen</translation>
    </message>
    <message>
        <source>Repositories read 1 day ago</source>
        <translation>Paketquellen vor 1 Tag gelesen</translation>
    </message>
    <message>
        <source>Repositories read %1 days ago</source>
        <translation>Paketquellen vor %1 Tagen gelesen</translation>
    </message>
</context>
<context>
    <name>StopButton</name>
    <message>
        <source>Stop</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Nothing is going on that could be stopped</source>
        <translation>Es läuft nichts, was abgebrochen werden könnte</translation>
    </message>
    <message>
        <source>Stops what is going on; nothing has been changed yet (Escape)</source>
        <translation>Bricht ab, was gerade läuft; noch wurde nichts geändert (Escape)</translation>
    </message>
    <message>
        <source>It is being stopped</source>
        <translation>Es wird abgebrochen</translation>
    </message>
    <message>
        <source>Packages are being changed: what has begun comes to its end</source>
        <translation>Pakete werden geändert: Was begonnen hat, wird zu Ende geführt</translation>
    </message>
</context>
<context>
    <name>TextDialog</name>
    <message>
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
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
        <translation>VEM - Fehler im Paketquellen-Editor</translation>
    </message>
    <message>
        <source>Repository Editor</source>
        <translation>Paketquellen-Editor</translation>
    </message>
    <message>
        <source>Unable to read yum configuration file %1</source>
        <translation>Die yum-Konfigurationsdatei %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Unable to stat repository configuration file %1</source>
        <translation>Der Zustand der Paketquellen-Konfigurationsdatei %1 kann nicht abgefragt werden (stat)</translation>
    </message>
    <message>
        <source>Unable to read repository configuration file %1</source>
        <translation>Die Paketquellen-Konfigurationsdatei %1 kann nicht gelesen werden</translation>
    </message>
    <message>
        <source>Malformed section name in line: %1</source>
        <translation>Fehlerhafter Abschnittsname in Zeile: %1</translation>
    </message>
    <message>
        <source>Error reading repository configuration file %1</source>
        <translation>Fehler beim Lesen der Paketquellen-Konfigurationsdatei %1</translation>
    </message>
    <message>
        <source>A repository has no Identifier.  It will be removed.</source>
        <translation>Eine Paketquelle hat keine Kennung. Sie wird entfernt.</translation>
    </message>
    <message>
        <source>Two or more repositories have the same Identifier(s), %1.  Only one repository will be applied for each Identifier.</source>
        <translation>Mehrere Paketquellen haben dieselbe Kennung: %1. Für jede Kennung wird nur eine Paketquelle übernommen.</translation>
    </message>
    <message>
        <source>  Proceed?</source>
        <translation>  Fortfahren?</translation>
    </message>
    <message>
        <source>Unable to write repository configuration file %1</source>
        <translation>Die Paketquellen-Konfigurationsdatei %1 kann nicht geschrieben werden</translation>
    </message>
    <message>
        <source>Unable to unlink repository configuration file %1</source>
        <translation>Die Paketquellen-Konfigurationsdatei %1 kann nicht gelöscht werden</translation>
    </message>
    <message>
        <source>subscription-manager generates these files and will write them anew, without the changes made here: %1.  Its own command, &quot;subscription-manager repo-override&quot;, makes lasting ones.</source>
        <translation>subscription-manager erzeugt diese Dateien und schreibt sie neu, ohne die hier gemachten Änderungen: %1. Bleibende Änderungen macht sein eigener Befehl „subscription-manager repo-override“.</translation>
    </message>
    <message>
        <source>%1 is not a regular file.  It is neither read nor changed.</source>
        <translation>%1 ist keine gewöhnliche Datei. Sie wird weder gelesen noch geändert.</translation>
    </message>
    <message>
        <source>The file %1 has not been read, or not to its end.  Nothing is written, so that nothing in it is lost.</source>
        <translation>Die Datei %1 wurde nicht oder nicht bis zum Ende gelesen. Es wird nichts geschrieben, damit nichts aus ihr verloren geht.</translation>
    </message>
    <message>
        <source>
The file is %1.</source>
        <translation>
Die Datei ist %1.</translation>
    </message>
</context>
<context>
    <name>YumIO</name>
    <message>
        <source>Unable to release yum lock</source>
        <translation>Die yum-Sperre kann nicht freigegeben werden</translation>
    </message>
    <message>
        <source>Unable to initialize</source>
        <translation>Die Initialisierung ist fehlgeschlagen</translation>
    </message>
    <message>
        <source>Available for update</source>
        <translation>Zur Aktualisierung verfügbar</translation>
    </message>
    <message>
        <source>Available for installation</source>
        <translation>Zur Installation verfügbar</translation>
    </message>
    <message>
        <source>Installed</source>
        <translation>Installiert</translation>
    </message>
    <message>
        <source>Suite of packages</source>
        <translation>Paketsuite</translation>
    </message>
    <message>
        <source>Group of packages</source>
        <translation>Paketgruppe</translation>
    </message>
    <message>
        <source>Ordinary package</source>
        <translation>Gewöhnliches Paket</translation>
    </message>
    <message>
        <source>Applying</source>
        <translation>Aktionen werden angewendet</translation>
    </message>
    <message>
        <source>Checking Dependencies: Total Progress</source>
        <translation>Abhängigkeiten werden geprüft: Gesamtfortschritt</translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation>Vorbereitung</translation>
    </message>
    <message>
        <source>Error applying changes</source>
        <translation>Fehler beim Anwenden der Änderungen</translation>
    </message>
    <message>
        <source>Error applying changes: Exiting on Broken Pipe</source>
        <translation>Fehler beim Anwenden der Änderungen: Abbruch wegen unterbrochener Pipe</translation>
    </message>
    <message>
        <source>Unable to add package %1 to removes list</source>
        <translation>Das Paket %1 kann nicht in die Liste der zu entfernenden Pakete aufgenommen werden</translation>
    </message>
    <message>
        <source>Unable to add package %1 to installs list</source>
        <translation>Das Paket %1 kann nicht in die Liste der zu installierenden Pakete aufgenommen werden</translation>
    </message>
    <message>
        <source>Unable to find installed version for package update %1</source>
        <translation>Die installierte Version zur Paketaktualisierung %1 wurde nicht gefunden</translation>
    </message>
    <message>
        <source>Unable to add new package to pair for updated package %1</source>
        <translation>Das neue Paket kann nicht in das Paar für das aktualisierte Paket %1 aufgenommen werden</translation>
    </message>
    <message>
        <source>Unable to add old package to pair for updated package %1</source>
        <translation>Das alte Paket kann nicht in das Paar für das aktualisierte Paket %1 aufgenommen werden</translation>
    </message>
    <message>
        <source>Unable to add package %1 to updates list</source>
        <translation>Das Paket %1 kann nicht in die Liste der zu aktualisierenden Pakete aufgenommen werden</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Anwenden</translation>
    </message>
    <message>
        <source>Applying: OK</source>
        <translation>Anwenden: bestätigt</translation>
    </message>
    <message>
        <source>Not Applying: Canceled</source>
        <translation>Nicht angewendet: abgebrochen</translation>
    </message>
    <message>
        <source>Running Transaction: Total Progress</source>
        <translation>Transaktion wird ausgeführt: Gesamtfortschritt</translation>
    </message>
    <message>
        <source>Cleaning Headers</source>
        <translation>Header werden bereinigt</translation>
    </message>
    <message>
        <source>Cleaning Packages</source>
        <translation>Pakete werden bereinigt</translation>
    </message>
    <message>
        <source>Cleaning Xml Metadata</source>
        <translation>XML-Metadaten werden bereinigt</translation>
    </message>
    <message>
        <source>Cleaning Pickled Cache</source>
        <translation>Pickle-Daten werden bereinigt</translation>
    </message>
    <message>
        <source>Cleaning All</source>
        <translation>Alles wird bereinigt</translation>
    </message>
    <message>
        <source>Initialization</source>
        <translation>Initialisierung</translation>
    </message>
    <message>
        <source>Initializing: Total Progress</source>
        <translation>Initialisierung: Gesamtfortschritt</translation>
    </message>
    <message>
        <source>Unable to obtain yum lock</source>
        <translation>Die yum-Sperre ist nicht zu erhalten</translation>
    </message>
    <message>
        <source>contents</source>
        <translation>Inhalte</translation>
    </message>
    <message>
        <source>No repositories are configured.
Under the Repositories menu, Edit Configuration can be used to configure repositories.</source>
        <translation>Es sind keine Paketquellen konfiguriert.
Paketquellen lassen sich im Menü „Paketquellen“ unter „Konfiguration bearbeiten“ einrichten.</translation>
    </message>
    <message>
        <source>No repositories are enabled.
Under the Repositories menu, Edit Configuration can be used to configure repositories.</source>
        <translation>Es sind keine Paketquellen aktiviert.
Paketquellen lassen sich im Menü „Paketquellen“ unter „Konfiguration bearbeiten“ einrichten.</translation>
    </message>
    <message>
        <source>Reading repositories</source>
        <translation>Paketquellen werden gelesen</translation>
    </message>
    <message>
        <source>Collecting updatable packages</source>
        <translation>Aktualisierbare Pakete werden ermittelt</translation>
    </message>
    <message>
        <source>Unable to setup transaction</source>
        <translation>Die Transaktion kann nicht vorbereitet werden</translation>
    </message>
    <message>
        <source>Unable to collect updatable packages</source>
        <translation>Die aktualisierbaren Pakete können nicht ermittelt werden</translation>
    </message>
    <message>
        <source>Collecting installed and available packages</source>
        <translation>Installierte und verfügbare Pakete werden ermittelt</translation>
    </message>
    <message>
        <source>Unable to collect installed and available packages</source>
        <translation>Die installierten und verfügbaren Pakete können nicht ermittelt werden</translation>
    </message>
    <message>
        <source>Collecting groups</source>
        <translation>Gruppen werden ermittelt</translation>
    </message>
    <message>
        <source>Unable to collect groups</source>
        <translation>Die Gruppen können nicht ermittelt werden</translation>
    </message>
    <message>
        <source>unable to setup repository %1:
%2</source>
        <translation>Die Paketquelle %1 kann nicht eingerichtet werden:
%2</translation>
    </message>
    <message>
        <source>Internal error: yumIO.collectAll.%1 not found</source>
        <translation>Interner Fehler: yumIO.collectAll.%1 nicht gefunden</translation>
    </message>
    <message>
        <source>Internal error: time not understood: %1</source>
        <translation>Interner Fehler: unverständliche Zeitangabe: %1</translation>
    </message>
    <message>
        <source>Internal error: package size not understood: %1</source>
        <translation>Interner Fehler: unverständliche Paketgröße: %1</translation>
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
        <translation>Interner Fehler: unverständliche yum-Version: %1</translation>
    </message>
    <message>
        <source>Collecting File Lists</source>
        <translation>Dateilisten werden ermittelt</translation>
    </message>
    <message>
        <source>file lists</source>
        <translation>Dateilisten</translation>
    </message>
    <message>
        <source>Loading file lists: Total Progress</source>
        <translation>Dateilisten werden geladen: Gesamtfortschritt</translation>
    </message>
    <message>
        <source>Unable to collect file lists</source>
        <translation>Die Dateilisten können nicht ermittelt werden</translation>
    </message>
    <message>
        <source>Collecting Miscellaneous data</source>
        <translation>Sonstige Daten werden ermittelt</translation>
    </message>
    <message>
        <source>miscellaneous data</source>
        <translation>sonstige Daten</translation>
    </message>
    <message>
        <source>Loading miscellaneous data: Total Progress</source>
        <translation>Sonstige Daten werden geladen: Gesamtfortschritt</translation>
    </message>
    <message>
        <source>Unable to collect miscellaneous data</source>
        <translation>Die sonstigen Daten können nicht ermittelt werden</translation>
    </message>
    <message>
        <source>Internal error: execution of yumIO.%1 failed</source>
        <translation>Interner Fehler: Ausführung von yumIO.%1 fehlgeschlagen</translation>
    </message>
    <message>
        <source>Internal error: cannot find rpm.%1</source>
        <translation>Interner Fehler: rpm.%1 nicht gefunden</translation>
    </message>
    <message>
        <source>Internal error: cannot find package&apos;s prco.%1</source>
        <translation>Interner Fehler: prco.%1 des Pakets nicht gefunden</translation>
    </message>
    <message>
        <source>the package is optional</source>
        <translation>das Paket optional ist</translation>
    </message>
    <message>
        <source>Update</source>
        <translation>Aktualisieren</translation>
    </message>
    <message>
        <source>Install</source>
        <translation>Installieren</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation>FEHLER</translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but it was marked individually for %5.
How do you wish to proceed?</source>
        <translation>Das Paket %1 gehört zur Gruppe %2, die für „%3“ vorgemerkt wurde,
daher würde es für „%4“ vorgemerkt,
wurde aber einzeln für „%5“ vorgemerkt.
Wie soll fortgefahren werden?</translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but you resolved an earlier conflict by marking it for %5.
How do you wish to proceed?</source>
        <translation>Das Paket %1 gehört zur Gruppe %2, die für „%3“ vorgemerkt wurde,
daher würde es für „%4“ vorgemerkt,
ein früherer Konflikt wurde aber gelöst, indem es für „%5“ vorgemerkt wurde.
Wie soll fortgefahren werden?</translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but it also was part of group %5 and so was marked for %6.
How do you wish to proceed?</source>
        <translation>Das Paket %1 gehört zur Gruppe %2, die für „%3“ vorgemerkt wurde,
daher würde es für „%4“ vorgemerkt,
es gehört aber auch zur Gruppe %5 und wurde deshalb für „%6“ vorgemerkt.
Wie soll fortgefahren werden?</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Manually resolving conflict: marking package %1 for %3</source>
        <translation>Konflikt von Hand gelöst: Paket %1 wird für „%3“ vorgemerkt</translation>
    </message>
    <message>
        <source>For group %1, marking package %2 for %3</source>
        <translation>Gruppe %1: Paket %2 wird für „%3“ vorgemerkt</translation>
    </message>
    <message>
        <source>For group %1, package %2 already was marked for %3</source>
        <translation>Gruppe %1: Paket %2 war bereits für „%3“ vorgemerkt</translation>
    </message>
    <message>
        <source>For group %1, not marking package %2 for %3, becuase %4</source>
        <translation>Gruppe %1: Paket %2 wird nicht für „%3“ vorgemerkt, weil %4</translation>
    </message>
    <message>
        <source>Internal error: groupInfo.%1 not evaluable</source>
        <translation>Interner Fehler: groupInfo.%1 ist nicht auswertbar</translation>
    </message>
    <message>
        <source>Internal error: groupInfo.%1[%2] not evaluable</source>
        <translation>Interner Fehler: groupInfo.%1[%2] ist nicht auswertbar</translation>
    </message>
    <message>
        <source>Internal error: group %1.%2 not evaluable</source>
        <translation>Interner Fehler: Gruppe %1.%2 ist nicht auswertbar</translation>
    </message>
    <message>
        <source>Total download size: %1
</source>
        <translation>Gesamtgröße der Downloads: %1
</translation>
    </message>
    <message>
        <source>Internal error: %1 not found
</source>
        <translation>Interner Fehler: %1 nicht gefunden
</translation>
    </message>
    <message>
        <source>Transaction to be performed:
</source>
        <translation>Auszuführende Transaktion:
</translation>
    </message>
    <message>
        <source>Performing the following to resolve dependencies:
</source>
        <translation>Zur Auflösung von Abhängigkeiten außerdem nötig:
</translation>
    </message>
    <message>
        <source>Other Transactions:
</source>
        <translation>Weitere Transaktionen:
</translation>
    </message>
    <message>
        <source>Obsoleting</source>
        <translation>Ersetzen</translation>
    </message>
    <message>
        <source>	%1: %2
</source>
        <translation>	%1: %2
</translation>
    </message>
    <message>
        <source>	%1: %2 with %3
</source>
        <translation>	%1: %2 durch %3
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
        <translation>Spiegelliste herunterladen: %1 der Paketquelle</translation>
    </message>
    <message>
        <source>Downloading repository %1 mirror list for %2</source>
        <translation>Spiegelliste herunterladen: %1 der Paketquelle %2</translation>
    </message>
    <message>
        <source>Downloading repository %1 repomd</source>
        <translation>repomd herunterladen: %1 der Paketquelle</translation>
    </message>
    <message>
        <source>Downloading repository %1 repomd for %2</source>
        <translation>repomd herunterladen: %1 der Paketquelle %2</translation>
    </message>
    <message>
        <source>Downloading repository %1</source>
        <translation>Herunterladen: %1 der Paketquelle</translation>
    </message>
    <message>
        <source>Downloading repository %1 for %2</source>
        <translation>Herunterladen: %1 der Paketquelle %2</translation>
    </message>
    <message>
        <source>Converting repository %1</source>
        <translation>Umwandeln: %1 der Paketquelle</translation>
    </message>
    <message>
        <source>Converting repository %1 for %2</source>
        <translation>Umwandeln: %1 der Paketquelle %2</translation>
    </message>
    <message>
        <source>Reading repository %1</source>
        <translation>Lesen: %1 der Paketquelle</translation>
    </message>
    <message>
        <source>Reading repository %1 for %2</source>
        <translation>Lesen: %1 der Paketquelle %2</translation>
    </message>
    <message>
        <source>VEM Yum Error</source>
        <translation>VEM - Yum-Fehler</translation>
    </message>
    <message>
        <source>VEM Yum Warning</source>
        <translation>VEM - Yum-Warnung</translation>
    </message>
    <message>
        <source>Resolve Dependencies</source>
        <translation>Abhängigkeiten auflösen</translation>
    </message>
    <message>
        <source>Internal error: unexpected TSINFO: %1</source>
        <translation>Interner Fehler: unerwartetes TSINFO: %1</translation>
    </message>
    <message>
        <source>Internal error: TSINFO mentions unknown package: %1</source>
        <translation>Interner Fehler: TSINFO nennt ein unbekanntes Paket: %1</translation>
    </message>
    <message>
        <source>Internal error: TSINFO mentions intent to install or upgrade package that already seems up-to-date: %1</source>
        <translation>Interner Fehler: TSINFO will ein Paket installieren oder aktualisieren, das bereits aktuell zu sein scheint: %1</translation>
    </message>
    <message>
        <source>Finishing RPM rebuild from deltas</source>
        <translation>Wiederherstellung der RPMs aus Deltas wird abgeschlossen</translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation>%1 wird heruntergeladen</translation>
    </message>
    <message>
        <source>Downloading %1 header</source>
        <translation>Header von %1 wird heruntergeladen</translation>
    </message>
    <message>
        <source>Preparing to Run Transaction</source>
        <translation>Ausführung der Transaktion wird vorbereitet</translation>
    </message>
    <message>
        <source>Preparing to Test Transaction</source>
        <translation>Test der Transaktion wird vorbereitet</translation>
    </message>
    <message>
        <source>Updating %1</source>
        <translation>%1 wird aktualisiert</translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation>%1 wird installiert</translation>
    </message>
    <message>
        <source>Completing update for: %1</source>
        <translation>Aktualisierung wird abgeschlossen: %1</translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation>%1 wird entfernt</translation>
    </message>
    <message>
        <source>Transaction Test</source>
        <translation>Test der Transaktion</translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsCallback what=%1 not understood; ignoring</source>
        <translation>Interner Fehler: YumIO::tsCallback what=%1 unverständlich; wird ignoriert</translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsEvent action=%1 not understood; ignoring</source>
        <translation>Interner Fehler: YumIO::tsEvent action=%1 unverständlich; wird ignoriert</translation>
    </message>
    <message>
        <source>Removed</source>
        <translation>Entfernt</translation>
    </message>
    <message>
        <source>Dependency Removed</source>
        <translation>Abhängigkeit entfernt</translation>
    </message>
    <message>
        <source>Dependency Installed</source>
        <translation>Abhängigkeit installiert</translation>
    </message>
    <message>
        <source>Updated</source>
        <translation>Aktualisiert</translation>
    </message>
    <message>
        <source>Dependency Updated</source>
        <translation>Abhängigkeit aktualisiert</translation>
    </message>
    <message>
        <source>Obsoleted</source>
        <translation>Ersetzt</translation>
    </message>
    <message>
        <source>VEM Looking Only</source>
        <translation>VEM - Nur ansehen</translation>
    </message>
    <message>
        <source>&amp;Look</source>
        <translation>&amp;Ansehen</translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation>&amp;Beenden</translation>
    </message>
    <message>
        <source>Loading build hosts: Total Progress</source>
        <translation>Rechner, auf denen Pakete erstellt wurden, werden geladen: Gesamtfortschritt</translation>
    </message>
    <message>
        <source>The transaction goes on; the program ends when it has come to its end.</source>
        <translation>Die Transaktion läuft weiter; das Programm endet, sobald sie abgeschlossen ist.</translation>
    </message>
    <message>
        <source>Unable to see whether a transaction was cut off</source>
        <translation>Es kann nicht festgestellt werden, ob eine Transaktion abgebrochen wurde</translation>
    </message>
    <message>
        <source>Key %1: OK</source>
        <translation>Schlüssel %1: bestätigt</translation>
    </message>
    <message>
        <source>Key %1: Canceled</source>
        <translation>Schlüssel %1: abgebrochen</translation>
    </message>
    <message>
        <source>Enabling module streams:
</source>
        <translation>Modul-Streams werden eingeschaltet:
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
        <translation>Was eine Spalte zeigt, lässt sich nicht lesen</translation>
    </message>
    <message>
        <source>Unable to read the changes</source>
        <translation>Änderungen können nicht gelesen werden</translation>
    </message>
    <message>
        <source>Stopped</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Reading what was fetched before</source>
        <translation>Lesen, was früher geholt wurde</translation>
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
        <translation>%1, noch %2</translation>
    </message>
    <message>
        <source>script of %1</source>
        <translation>Skript von %1</translation>
    </message>
    <message>
        <source>Unable to open package files</source>
        <translation>Paketdateien können nicht geöffnet werden</translation>
    </message>
    <message>
        <source>These package files can&apos;t be used:</source>
        <translation>Diese Paketdateien können nicht verwendet werden:</translation>
    </message>
</context>
<context>
    <name>YumIOCapturers</name>
    <message>
        <source>Unable to open pipe to capture rpm transaction output</source>
        <translation>Die Pipe zum Erfassen der Ausgabe der rpm-Transaktion kann nicht geöffnet werden</translation>
    </message>
    <message>
        <source>Unable to dup2 pipe to capture rpm transaction output</source>
        <translation>Die Pipe zum Erfassen der Ausgabe der rpm-Transaktion kann nicht umgeleitet werden (dup2)</translation>
    </message>
    <message>
        <source>Unable to dup2 to restore stderr</source>
        <translation>stderr kann nicht wiederhergestellt werden (dup2)</translation>
    </message>
</context>
</TS>
