<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="es">
<context>
    <name>Colors</name>
    <message>
        <source>#fffacd</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>blue</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>red</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>#ffa9b8</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>darkorange</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>#8b5a2b</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>#ffbd94</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>green</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Execute</name>
    <message>
        <source>Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>fork() failed; errno = %1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Fonts</name>
    <message>
        <source>Helvetica</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Courier</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Log::Window</name>
    <message>
        <source>&lt;font color=&quot;%1&quot;&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;/font&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;font&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h2&gt;&lt;font color=&quot;%1&quot;&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;/font&gt;&lt;/h2&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VEM Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Detail level</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Threshold beyond which more detailed log messages are omitted.
Higher levels show more detail.
The valid range is 0 .. %1.
The default is %2.
Higher levels contain debug information.
This corresponds to yum&apos;s debuglevel (-d) option.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close the Log Window</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>MainWindow</name>
    <message>
        <source>Clean RPM package headers cached locally in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean RPM packages cached locally in %1
(useful for recovering disk space)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean XML metadata cached locally in %1
(useful along with Clean Pickled Data for
 forcing download of new available package lists)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean pickled data cached locally in %1
(useful along with Clean XML Metadata for
 forcing download of new available package lists)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean all data cached locally in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&lt;h3&gt;VEM %1&lt;/h3&gt;&lt;hr&gt;&lt;p&gt;VEM, Verified Estate Manager, is a graphical user interface which allows a user to make modifications to the installed rpm packages on a system.&lt;/p&gt;&lt;p&gt;Capabilities:&lt;p&gt;&lt;ul&gt;&lt;li&gt;Install new packages or update existing packages by downloading them from a yum package repository&lt;/li&gt;&lt;li&gt;Remove existing packages.&lt;/li&gt;&lt;li&gt;Configure sets of repositories from which to obtain new and updated packages.&lt;/li&gt;&lt;li&gt;Examine installed packages or packages available for installation or update&lt;/li&gt;&lt;li&gt;Install, update, or remove groups of packages&lt;/li&gt;&lt;li&gt;Install or update suites of packages&lt;/li&gt;&lt;/ul&gt;&lt;p&gt;Web page: &lt;a href=&quot;https://vem.example.org/&quot;&gt;https://vem.example.org/&lt;/a&gt;&lt;/p&gt;</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Regular expression to compare to all fields of a package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Regular expression filter matching textual fields visible in the table</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Perform the search for the regular expression specified to the left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply the filter specified to the left</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Specify the method for using a regular expression to select packages in the table:
	Filter uses the textual fields visible in the table, as if they were separated by spaces.
	Search uses all fields in packages, including list of Files, Change Log, Requires, etc.,
	independently.  It is considerably slower.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (Must load extra data.)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VEM - %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Program</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+Q</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Windows</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+L</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Repositories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Edit Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ctrl+E</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean Headers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean Packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean XML Metadata</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean Pickled Data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clean All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Help</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual (html)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>F1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manual (PDF)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;About</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter or Search</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Regular expression</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View Updatable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View Installable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View Removable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter for those packages which are eligible for updating,
for installing, or for removing; or show all packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>View</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Include Groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether or not filter should include package groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Describe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pop up a window with a detailed description of the currently selected package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resize the columns and window to optimal values</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Re&amp;fresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh the list of installed packages and packages available for update.
Use this to check for new updates in repositories, or if any packages were installed manually.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set &amp;Install/Update of Selected</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets the Action for all selected packages which are Not Installed to Install, and
sets the Action for all selected packages which are Installed but Out-of-date to Update.
Does not Apply Actions automatically.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Set &amp;Update of All Out-of-Date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sets the Action for all packages which are Installed but Out-of-date to Update.
Does not Apply Actions automatically.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Clear Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clears all specified Actions (Updates, Installs, and Removals)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Apply Actions</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applies the specified Actions (Updates, Installs, and Removals)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Item Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total Progress</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PackageTable::ActionContextMenu</name>
    <message>
        <source>&amp;Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;No Action</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Dialog</name>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VEM Package Description</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Instance::Area</name>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Details</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Files</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Show</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Change Log</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 (must load extra data)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 File List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %2 Change Log</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PackageTable::Describe::Instance::RepoDialog</name>
    <message>
        <source>VEM Repository Description</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse the first URL specified for the selected repository using an external web browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>URLs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirror list URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PackageTable::Model</name>
    <message>
        <source>Action</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Action to be performed on the package, if any: Update, Install, Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>State</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Indicates whether the package is Installed or not and, if installed, whether it is Up-to-date or not</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kind</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether the package is an ordinary package, a suite of packages, or a group of packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version and release of the package as version-release;
If the Epoch is non-zero, includes it as epoch:version-release</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository from which the most recent version of the package is available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Architecture</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Architecture for which the package is applicable, or &quot;noarch&quot; for general-purpose packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Size of the package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Build Time</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Date and time at which the package was created</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Package is available to update an out-of-date version</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Package is available for installation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Package is installed and up-to-date</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Suite of packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group of packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ordinary package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available: %1
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installed: %1
</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PackageTable::OtherContextMenu</name>
    <message>
        <source>&amp;Describe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>PackageTable::View</name>
    <message>
        <source>Packages</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QProgressBar</name>
    <message>
        <source>%1 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RepoAuth::Dialog</name>
    <message>
        <source>VEM Authentication</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Some configured repositories require authentication</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>URLs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirror list URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Authentication name for a repository using the buffet authentication method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Authentication password for a repository using the buffet authentication method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Disable for Session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Skip All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply to All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply to All with this Host</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RepoBrowse</name>
    <message>
        <source>Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository configuration has no URL</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RepoEditor::Config</name>
    <message>
        <source>%1 %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Default</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(Yes)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(No)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Identifier specified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No URLs or Mirror list URL specified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File is not in any reposdir directory</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File lacks .repo suffix</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Buffet Authentication Name specified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Buffet Authentication Password specified</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unique identifier for the repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description of the repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>URLs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List of URLs to the repository.
If more than one is specified, they all should be identical mirrors,
and will provide redundancy if some URLs are unreachable.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mirror list URL</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>URL to a file containing a list of URLs to the repository.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Buffet Authentication</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Authentication name for a repository using the buffet authentication method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Authentication password for a repository using the buffet authentication method</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Any other yum options for this repository.  See yum.conf(5)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other Options:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether or not the repository is enabled for use</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether or not GPG key signatures of packages from the repository are checked to ensure authenticity</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check GPG Keys</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Configuration File (expert)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of the yum configuration file into which to place this repository configuration.
If left blank, defaults to the repository&apos;s identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>File</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A numeric sort key which determines the order of this repository configuration
in a configuration file which contains multiple configurations</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sort Position</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RepoEditor::ConfigDialog</name>
    <message>
        <source>VEM Repository Configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo changes to this repository configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo changes to this repository configuration and close the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, and close the window</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RepoEditor::ContextMenu</name>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RepoEditor::Dialog</name>
    <message>
        <source>VEM Repository Configuration Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse Repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse the first URL specified for the selected repository using an external web browser</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit the selected repository configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a new repository configuration from scratch</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Create a new repository configuration based on the selected repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove the selected repository configuration</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reset All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo changes to all repository configurations since the last Apply or opening of the dialog</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Undo changes to all repository configurations since the last Apply or opening of the dialog, and close the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, but do not close the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply changes to all repository configurations, and close the window</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A repository has no Identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two or more repositories have the Identifier, %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unapplied Configuration Changes</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RepoEditor::Model</name>
    <message>
        <source>Sess</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether or not the repository is used during this session.
It overrides the persistent Enabled flag in the repository configuration.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Perm</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Whether or not the repository is configured to be enabled by default.
It can be overridden for a particular session.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Identifier</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unique identifier for the repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Description of the repository</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(new)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository is enabled for this session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository is not enabled for this session</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository is configured to be enabled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository is not configured to be enabled</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>RepoEditor::View</name>
    <message>
        <source>Repositories</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScrollableConfirmDialog</name>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ScrollableErrorDialog</name>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>TextDialog</name>
    <message>
        <source>Text</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>YumConfIO</name>
    <message>
        <source>; errno = %1 (%2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VEM Repository Editor Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Repository Editor</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to read yum configuration file %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to stat repository configuration file %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to read repository configuration file %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Malformed section name in line: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error reading repository configuration file %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A repository has no Identifier.  It will be removed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Two or more repositories have the same Identifier(s), %1.  Only one repository will be applied for each Identifier.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>  Proceed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to write repository configuration file %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to unlink repository configuration file %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>YumIO</name>
    <message>
        <source>Unable to release yum lock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to initialize</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available for update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Available for installation</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Suite of packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Group of packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ordinary package</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applying</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Checking Dependencies: Total Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error applying changes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Error applying changes: Exiting on Broken Pipe</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to add package %1 to removes list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to add package %1 to installs list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to find installed version for package update %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to add new package to pair for updated package %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to add old package to pair for updated package %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to add package %1 to updates list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Applying: OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Not Applying: Canceled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Running Transaction: Total Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleaning Headers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleaning Packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleaning Xml Metadata</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleaning Pickled Cache</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cleaning All</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initialization</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Initializing: Total Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to obtain yum lock</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>contents</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No repositories are configured.
Under the Repositories menu, Edit Configuration can be used to configure repositories.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No repositories are enabled.
Under the Repositories menu, Edit Configuration can be used to configure repositories.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading repositories</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collecting updatable packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to setup transaction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to collect updatable packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collecting installed and available packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to collect installed and available packages</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collecting groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to collect groups</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>unable to setup repository %1:
%2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: yumIO.collectAll.%1 not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: time not understood: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: package size not understood: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Eb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Gb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Kb</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>b</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: yum version not understood: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collecting File Lists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>file lists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading file lists: Total Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to collect file lists</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Collecting Miscellaneous data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>miscellaneous data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Loading miscellaneous data: Total Progress</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to collect miscellaneous data</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: execution of yumIO.%1 failed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: cannot find rpm.%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: cannot find package&apos;s prco.%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the package is optional</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Install</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ERROR</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but it was marked individually for %5.
How do you wish to proceed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but you resolved an earlier conflict by marking it for %5.
How do you wish to proceed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Package %1 is included in group %2 which was marked for %3,
so the package would be marked for %4,
but it also was part of group %5 and so was marked for %6.
How do you wish to proceed?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Manually resolving conflict: marking package %1 for %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For group %1, marking package %2 for %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For group %1, package %2 already was marked for %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>For group %1, not marking package %2 for %3, becuase %4</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: groupInfo.%1 not evaluable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: groupInfo.%1[%2] not evaluable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: group %1.%2 not evaluable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Total download size: %1
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: %1 not found
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transaction to be performed:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Performing the following to resolve dependencies:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other Transactions:
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Obsoleting</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>	%1: %2
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>	%1: %2 with %3
</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %3-%4 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 %3:%4-%5 (%2)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source> [%1]</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading repository %1 mirror list</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading repository %1 mirror list for %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading repository %1 repomd</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading repository %1 repomd for %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading repository %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading repository %1 for %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting repository %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Converting repository %1 for %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading repository %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Reading repository %1 for %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VEM Yum Error</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>VEM Yum Warning</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Resolve Dependencies</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: unexpected TSINFO: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: TSINFO mentions unknown package: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: TSINFO mentions intent to install or upgrade package that already seems up-to-date: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Finishing RPM rebuild from deltas</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading %1 header</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing to Run Transaction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Preparing to Test Transaction</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updating %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Installing %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Completing update for: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removing %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Transaction Test</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsCallback what=%1 not understood; ignoring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Internal error: YumIO::tsEvent action=%1 not understood; ignoring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dependency Removed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dependency Installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Updated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dependency Updated</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Obsoleted</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>YumIOCapturers</name>
    <message>
        <source>Unable to open pipe to capture rpm transaction output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to dup2 pipe to capture rpm transaction output</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unable to dup2 to restore stderr</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
