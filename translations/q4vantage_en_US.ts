<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en_US" sourcelanguage="en_GB">
<context>
    <name>AddressListEditor</name>
    <message>
        <source>Add...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>AutoRefresh</name>
    <message>
        <source>%1 is playing on %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 has %2 players</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quake 4 Vantage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refreshed at %1
%2 of %3 servers answered</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CopyCommands</name>
    <message>
        <source>Copy Cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Column</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy Row</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Countries</name>
    <message>
        <source>Countries: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Countries: no location database is set, so no flags are shown.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Countries: no flags are shown, as %1 (the package libloc-database installs one).</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Select your Quake 4 Executable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quake 4 Executable (%1)</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>DialogBar</name>
    <message>
        <source>%1 is not listed now: &quot;Query Recently Played&quot; asks every server you played on.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favorites</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Recently Played</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n hidden by filters</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Servers that answered but do not pass the filters. &quot;Filters&quot; shows them.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>Downloader</name>
    <message>
        <source>The site sent an empty file.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 of %2 bytes arrived.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The installer is larger than %1 MB.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The site sent more than the %1 bytes it announced.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>EditableListDialog</name>
    <message>
        <source>Edit Cell</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Not Found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Next Friend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Select the next listed friend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No friends yet: right-click a player and choose &quot;Add To Friends&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None of your friends is listed.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FriendsTab</name>
    <message>
        <source>Friends (names, or patterns such as *Bob*):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Friend</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name of a friend as the player list shows it, or a pattern such as *Hammer*:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a control character. Type a name or a pattern.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh the listed servers:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Never</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Every %n minutes</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Tell me when a friend starts playing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tell me when a favourite server has</source>
        <translation>Tell me when a favorite server has</translation>
    </message>
    <message>
        <source>players or more</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Notifications come with the automatic refresh.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Offer to wait for a slot on a full server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Every minute</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FrmAbout</name>
    <message>
        <source>About Quake 4 Vantage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quake 4 Vantage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A server browser for Quake 4: finds servers and players, and joins a game with a double click.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Built with Qt %1, running on Qt %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Licence: %1</source>
        <translation>License: %1</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FrmDownload</name>
    <message>
        <source>Error During Download</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The installer could not be saved to %1 (%2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Complete</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading v%1
%2 of %3</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quake 4 Vantage Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Downloading Quake 4 Vantage v%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connecting to download site...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Downloading v%1
%n bytes</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FrmFavourites</name>
    <message>
        <source>This favourites file is larger than the editor reads (%1 servers or %2 MB). It is shown in part and not saved, so that no server is lost.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The favourites could not be saved to %1. Your changes are still here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favorites</translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n servers added elsewhere since this list was opened are kept as well.</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a server address. Type a host name or an IP address, followed by a colon and a port from 1 to 65535.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FrmFilters</name>
    <message>
        <source>Filters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>New</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Built in filters:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Passworded</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Example 1: si_map                 mp/q4dm5</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Example 2: sv_punkbuster     1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The filters could not be saved to %1; this change lasts until the program ends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>(ticked: listed)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ticked: servers without players are listed; unticked: they are hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ticked: full servers are listed; unticked: they are hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ticked: servers with a password are listed; unticked: they are hidden</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings could not be saved; this change lasts until the program ends.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FrmHistory</name>
    <message>
        <source>Recently Played</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No servers yet: every server you join from this program is listed here.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Query Recently Played</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The list could not be saved to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FrmMain</name>
    <message>
        <source>Quake 4 Vantage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>About Quake 4 Vantage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Exit</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n servers found</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n players found</source>
        <translation type="unfinished">
            <numerusform></numerusform>
            <numerusform></numerusform>
        </translation>
    </message>
    <message>
        <source>Only servers on %1 are listed now; &quot;Filters&quot; takes the filter away.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FrmOptions</name>
    <message>
        <source>Options</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Settings</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Theme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Language:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Query Speed:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Dial Up (56k)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ISDN (64k)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>ISDN (128k)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DSL (256k)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>DSL (512k)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatically Check For Updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Close After Joining</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Refresh Server On Selection</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Port Range:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Note: Port Range is dependant on the query speed.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Use Proxy Server for updates</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>OK</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Apply</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Are you sure you want to reset all settings to their default values?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>You must type a port number between %1 and %2! (Default: %3)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Servers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Friends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Keep passwords in the desktop&apos;s keyring</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Unticked, or on a desktop without a keyring, the passwords are kept in the settings file as plain text.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>FrmUpdate</name>
    <message>
        <source>Quake 4 Vantage Update Available</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>An update is now available for Quake 4 Vantage, would you like to download it now?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Current Version:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Latest Version:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Automatically check for updates in the future</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Yes</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GameBox</name>
    <message>
        <source>Game:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Look Again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looks for the game&apos;s installs on this machine again: Steam&apos;s libraries, the Linux release and Wine.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quake 4 Executable:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Browse</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>A join runs:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for the game on this machine...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>None found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ask at the first join</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Other program...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No program chosen</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Started in %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Chosen at the first join</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GameChooser</name>
    <message>
        <source>The game&apos;s Windows build</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself, and neither Steam with the game nor Wine is installed here.

Install the game in Steam (which runs it through Proton), or install Wine (Debian&apos;s package &quot;wine&quot;), or choose the Linux release&apos;s &quot;quake4&quot; instead.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Through Steam</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Through Wine</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself. Start it through Steam (%2) or through Wine?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself. Start it through Steam (%2)?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself. Start it through Wine?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Which Quake 4?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quake 4 is installed more than once here. Which one should a join start? You can change it later in Options.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>GameInstall</name>
    <message>
        <source>Steam: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Steam (Flatpak): %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Linux release: %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wine: %1</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JoinFlow</name>
    <message>
        <source>Join server by IP Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the IP address/hostname and port of the server you wish to join</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter the password for this server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No Password Provided</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join Server Anyway?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Connecting to %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The game could not be started: %1 does not exist.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The game could not be started: %1 is not a program.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The game could not be started: %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is full.
Wait for a free slot and join as soon as one opens?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The game started, but the list of recently played servers could not be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a server address. Type a host name or an IP address, followed by a colon and a port from 1 to 65535 when the port is not the game&apos;s.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Wait for a Slot</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join Anyway</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for %1 in the game&apos;s archives...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not installed. Join anyway?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is not installed (mod %2). Join anyway?</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>installed</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>missing</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Looking for the game on this machine...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Using the game found on this machine: %1. Options can choose another.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>JoinPanel</name>
    <message>
        <source>Player Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Join IP</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Name:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stop Waiting</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListColumns</name>
    <message>
        <source>Num</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Player</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Clan</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Ping</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rate</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Variable</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Value</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Map</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Players</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Pw</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Type</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Game</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server IP Address</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Svr Ping</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Mod</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server Name</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Password</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Last Played</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Country</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListMenu</name>
    <message>
        <source>&amp;Add To Favourites</source>
        <translation>&amp;Add To Favorites</translation>
    </message>
    <message>
        <source>The favourites file could not be written.</source>
        <translation>The favorites file could not be written.</translation>
    </message>
    <message>
        <source>&amp;Select Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add To F&amp;riends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is one of your friends already.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Your friends could not be saved.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was added to your friends.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&amp;Join</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>R&amp;efresh</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 was added to your favourites.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>C&amp;olumns</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Filter By This &amp;Map</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ListTabs</name>
    <message>
        <source>Players</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Servers</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide empty</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Servers without players are not listed (the filters&apos; &quot;Empty&quot; box)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Hide full</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full servers are not listed (the filters&apos; &quot;Full&quot; box)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The settings could not be saved, so the list stays as it was.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QueryBar</name>
    <message>
        <source>Query Favourites</source>
        <translation>Query Favorites</translation>
    </message>
    <message>
        <source>Cancel Query</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Query Masters</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Query LAN</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Find the servers of your local network</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Quake 4 Vantage</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options...</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QueryController</name>
    <message>
        <source>No favourites yet: right-click a server and choose &quot;Add To Favourites&quot;.</source>
        <translation>No favorites yet: right-click a server and choose &quot;Add To Favorites&quot;.</translation>
    </message>
    <message>
        <source>Done</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Master Servers Timed Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The start port %1 is not valid. Choose another in the options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Requesting Server List from
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Receiving Server List from
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Sorting IP Address Lists
%1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No local network to search: no network interface can broadcast.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Searching the local network...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No servers played yet: the servers you join are kept in &quot;Recently Played&quot;.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No server answered on the local network; the list is as it was.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>QueryError</name>
    <message>
        <source>Local port %1 cannot be used (%2). Choose another start port in the options.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The master server listed more than %1 servers; the list was not used.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Master server %1 not found (%2).</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The master server address &quot;%1&quot; is not valid.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ServerDetails</name>
    <message>
        <source>Players of the selected server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Rules of the selected server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Add To F&amp;riends</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>map on this machine</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ServerListFetch</name>
    <message>
        <source>no reply within %1 seconds</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>the reply is larger than %1 MiB</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ServerListModel</name>
    <message>
        <source>No answer to the last refresh; last seen at %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>One of your favourites</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Full: %1 of %2 players</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ServerMemory</name>
    <message>
        <source>The servers that answered could not be remembered in %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ServerRulesModel</name>
    <message>
        <source>True</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>False</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ServerSelection</name>
    <message>
        <source>Server Name:</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ServerSources</name>
    <message>
        <source>did not answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>known servers</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ServersTab</name>
    <message>
        <source>Master servers, all asked at once:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Master Server</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Host name or address of a master server, with :port when it is not %1:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a master server address. Type a host name or an IP address, followed by a colon and a port from 1 to 65535 when the port is not %2.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server lists on the web, fetched alongside:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Server List</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Web address of a server list (JSON or one host:port per line):</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a web address. Type an address that begins with http:// or https://.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remember servers that answered and query them again</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Forget known servers</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>Forget the %n servers that answered before? Query Masters asks them again only when a master or a server list names them.</source>
        <translation>
            <numerusform>Forget the server that answered before? Query Masters asks it again only when a master or a server list names it.</numerusform>
            <numerusform>Forget the %n servers that answered before? Query Masters asks them again only when a master or a server list names them.</numerusform>
        </translation>
    </message>
    <message>
        <source>The known servers could not be removed from %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No servers known yet.</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%n servers known.</source>
        <translation>
            <numerusform>%n server known.</numerusform>
            <numerusform>%n servers known.</numerusform>
        </translation>
    </message>
    <message>
        <source>At most %1 master servers are asked. Remove one before adding another.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>At most %1 server lists are fetched. Remove one before adding another.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SlotWaiter</name>
    <message>
        <source>No slot came free on %1 in 30 minutes: stopped waiting.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 is full (%2): waiting for a free slot...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Stopped waiting for a free slot.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>SourceStatus</name>
    <message>
        <source>%1: no answer yet</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1: %n servers</source>
        <translation>
            <numerusform>%1: %n server</numerusform>
            <numerusform>%1: %n servers</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>(%n entries skipped)</source>
        <translation>
            <numerusform>(%n entry skipped)</numerusform>
            <numerusform>(%n entries skipped)</numerusform>
        </translation>
    </message>
    <message>
        <source>(list cut at %1)</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Querying %1 Servers...</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>No list from %1</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Master Servers Timed Out</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Check the network connection, or add a master server or a server list that works in Options, on the &quot;Servers&quot; tab.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 not found</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>%1 did not answer</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Options, &quot;Servers&quot; tab, adds sources</source>
        <translation type="unfinished"></translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 and %n more</numerusform>
            <numerusform>%1 and %n more</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more master servers left out: at most %1 are asked.</source>
        <translation>
            <numerusform>%n more master server left out: at most %1 are asked.</numerusform>
            <numerusform>%n more master servers left out: at most %1 are asked.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more server lists left out: at most %1 are fetched.</source>
        <translation>
            <numerusform>%n more server list left out: at most %1 are fetched.</numerusform>
            <numerusform>%n more server lists left out: at most %1 are fetched.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>... and %n more (the status line&apos;s tooltip lists them all)</source>
        <translation>
            <numerusform>... and %n more (the status line&apos;s tooltip lists them all)</numerusform>
            <numerusform>... and %n more (the status line&apos;s tooltip lists them all)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThemeFile</name>
    <message>
        <source>Dark</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Desktop Colours</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>ThemeTab</name>
    <message>
        <source>Form Back Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List Back Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>List Text Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Box Back Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Text Box Text Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress Bar Back Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress Bar Bar Colour</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Progress Bar Type:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Standard</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Segmented</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Tab Style:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Small Tabs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Large Tabs</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Saved Themes:</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Remove</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Save Theme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>Please enter a name for this theme</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The themes could not be saved to %1; the other settings are not affected.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
<context>
    <name>UpdateFlow</name>
    <message>
        <source>Quake 4 Vantage Update</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The installer came without encryption (plain HTTP), so it will not be started. It was saved to %1.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The installer was saved to %1, but it cannot be started on this system.</source>
        <translation type="unfinished"></translation>
    </message>
    <message>
        <source>The site did not say how large the installer is, so whether all of it arrived cannot be checked, and it will not be started. It was saved to %1.</source>
        <translation type="unfinished"></translation>
    </message>
</context>
</TS>
