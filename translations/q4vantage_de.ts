<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="de">
<context>
    <name>AddressListEditor</name>
    <message>
        <source>Add...</source>
        <translation>Hinzufügen...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Bearbeiten...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>AutoRefresh</name>
    <message>
        <source>%1 is playing on %2</source>
        <translation>%1 spielt auf %2</translation>
    </message>
    <message>
        <source>%1 has %2 players</source>
        <translation>%1 hat %2 Spieler</translation>
    </message>
    <message>
        <source>Quake 4 Vantage</source>
        <translation>Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Refreshed at %1
%2 of %3 servers answered</source>
        <translation>Aktualisiert um %1
%2 von %3 Servern haben geantwortet</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>und %n weiterer</numerusform>
            <numerusform>und %n weitere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CopyCommands</name>
    <message>
        <source>Copy Cell</source>
        <translation>Zelle kopieren</translation>
    </message>
    <message>
        <source>Copy Column</source>
        <translation>Spalte kopieren</translation>
    </message>
    <message>
        <source>Copy Row</source>
        <translation>Zeile kopieren</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>Alles kopieren</translation>
    </message>
</context>
<context>
    <name>Countries</name>
    <message>
        <source>Countries: %1</source>
        <translation>Länder: %1</translation>
    </message>
    <message>
        <source>Countries: no location database is set, so no flags are shown.</source>
        <translation>Länder: keine Standortdatenbank eingestellt, daher werden keine Flaggen gezeigt.</translation>
    </message>
    <message>
        <source>Countries: no flags are shown, as %1 (the package libloc-database installs one).</source>
        <translation>Länder: es werden keine Flaggen gezeigt, da %1 (das Paket libloc-database installiert eine).</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Select your Quake 4 Executable</source>
        <translation>Wählen Sie Ihre Quake 4 Programmdatei</translation>
    </message>
    <message>
        <source>Quake 4 Executable (%1)</source>
        <translation>Quake 4 Programmdatei (%1)</translation>
    </message>
</context>
<context>
    <name>DialogBar</name>
    <message>
        <source>%1 is not listed now: &quot;Query Recently Played&quot; asks every server you played on.</source>
        <translation>%1 ist gerade nicht aufgelistet: „Zuletzt gespielte anfragen“ fragt jeden Server ab, auf dem Sie gespielt haben.</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Recently Played</source>
        <translation>Zuletzt gespielt</translation>
    </message>
    <message numerus="yes">
        <source>%n hidden by filters</source>
        <translation>
            <numerusform>%n von Filtern ausgeblendet</numerusform>
            <numerusform>%n von Filtern ausgeblendet</numerusform>
        </translation>
    </message>
    <message>
        <source>Servers that answered but do not pass the filters. &quot;Filters&quot; shows them.</source>
        <translation>Server, die geantwortet haben, aber die Filter nicht bestehen. „Filter“ zeigt sie.</translation>
    </message>
</context>
<context>
    <name>Downloader</name>
    <message>
        <source>The site sent an empty file.</source>
        <translation>Die Seite hat eine leere Datei gesendet.</translation>
    </message>
    <message>
        <source>%1 of %2 bytes arrived.</source>
        <translation>%1 von %2 Bytes sind angekommen.</translation>
    </message>
    <message>
        <source>The installer is larger than %1 MB.</source>
        <translation>Das Installationsprogramm ist größer als %1 MB.</translation>
    </message>
    <message>
        <source>The site sent more than the %1 bytes it announced.</source>
        <translation>Die Seite sandte mehr als die angekündigten %1 Bytes.</translation>
    </message>
</context>
<context>
    <name>EditableListDialog</name>
    <message>
        <source>Edit Cell</source>
        <translation>Zelle bearbeiten</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find</source>
        <translation>Suchen</translation>
    </message>
    <message>
        <source>Text Not Found</source>
        <translation>Text nicht gefunden</translation>
    </message>
    <message>
        <source>Next Friend</source>
        <translation>Nächster Freund</translation>
    </message>
    <message>
        <source>Select the next listed friend</source>
        <translation>Den nächsten aufgelisteten Freund auswählen</translation>
    </message>
    <message>
        <source>No friends yet: right-click a player and choose &quot;Add To Friends&quot;.</source>
        <translation>Noch keine Freunde: Klicken Sie mit der rechten Maustaste auf einen Spieler und wählen Sie „Zu Freunden hinzufügen“.</translation>
    </message>
    <message>
        <source>None of your friends is listed.</source>
        <translation>Keiner Ihrer Freunde ist in der Liste.</translation>
    </message>
</context>
<context>
    <name>FriendsTab</name>
    <message>
        <source>Friends (names, or patterns such as *Bob*):</source>
        <translation>Freunde (Namen oder Muster wie *Bob*):</translation>
    </message>
    <message>
        <source>Friend</source>
        <translation>Freund</translation>
    </message>
    <message>
        <source>Name of a friend as the player list shows it, or a pattern such as *Hammer*:</source>
        <translation>Name eines Freundes, wie ihn die Spielerliste zeigt, oder ein Muster wie *Hammer*:</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a control character. Type a name or a pattern.</source>
        <translation>„%1“ enthält ein Steuerzeichen. Geben Sie einen Namen oder ein Muster ein.</translation>
    </message>
    <message>
        <source>Refresh the listed servers:</source>
        <translation>Aufgelistete Server aktualisieren:</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nie</translation>
    </message>
    <message numerus="yes">
        <source>Every %n minutes</source>
        <translation>
            <numerusform>Alle %n Minuten</numerusform>
            <numerusform>Alle %n Minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>Tell me when a friend starts playing</source>
        <translation>Melden, wenn ein Freund zu spielen beginnt</translation>
    </message>
    <message>
        <source>Tell me when a favourite server has</source>
        <translation>Melden, wenn ein Favoriten-Server</translation>
    </message>
    <message>
        <source>players or more</source>
        <translation>oder mehr Spieler hat</translation>
    </message>
    <message>
        <source>Notifications come with the automatic refresh.</source>
        <translation>Benachrichtigungen kommen mit der automatischen Aktualisierung.</translation>
    </message>
    <message>
        <source>Offer to wait for a slot on a full server</source>
        <translation>Bei vollem Server Warten auf einen Platz anbieten</translation>
    </message>
    <message>
        <source>Every minute</source>
        <translation>Jede Minute</translation>
    </message>
</context>
<context>
    <name>FrmAbout</name>
    <message>
        <source>About Quake 4 Vantage</source>
        <translation>Über Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Quake 4 Vantage</source>
        <translation>Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Version %1</translation>
    </message>
    <message>
        <source>A server browser for Quake 4: finds servers and players, and joins a game with a double click.</source>
        <translation>Ein Server-Browser für Quake 4: findet Server und Spieler und tritt mit einem Doppelklick einem Spiel bei.</translation>
    </message>
    <message>
        <source>Built with Qt %1, running on Qt %2.</source>
        <translation>Erstellt mit Qt %1, läuft mit Qt %2.</translation>
    </message>
    <message>
        <source>Licence: %1</source>
        <translation>Lizenz: %1</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Homepage</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
</context>
<context>
    <name>FrmDownload</name>
    <message>
        <source>Error During Download</source>
        <translation>Fehler beim Herunterladen</translation>
    </message>
    <message>
        <source>The installer could not be saved to %1 (%2).</source>
        <translation>Das Installationsprogramm konnte nicht unter %1 gespeichert werden (%2).</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Downloading v%1
%2 of %3</source>
        <translation>Lade v%1 herunter
%2 von %3</translation>
    </message>
    <message>
        <source>Quake 4 Vantage Update</source>
        <translation>Quake 4 Vantage Aktualisierung</translation>
    </message>
    <message>
        <source>Downloading Quake 4 Vantage v%1</source>
        <translation>Quake 4 Vantage v%1 wird heruntergeladen</translation>
    </message>
    <message>
        <source>Connecting to download site...</source>
        <translation>Verbindung zur Download-Seite wird hergestellt...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message numerus="yes">
        <source>Downloading v%1
%n bytes</source>
        <translation>
            <numerusform>Lade v%1 herunter
%n Byte</numerusform>
            <numerusform>Lade v%1 herunter
%n Bytes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FrmFavourites</name>
    <message>
        <source>This favourites file is larger than the editor reads (%1 servers or %2 MB). It is shown in part and not saved, so that no server is lost.</source>
        <translation>Diese Favoritendatei ist größer, als der Editor liest (%1 Server oder %2 MB). Sie wird nur teilweise angezeigt und nicht gespeichert, damit kein Server verloren geht.</translation>
    </message>
    <message>
        <source>The favourites could not be saved to %1. Your changes are still here.</source>
        <translation>Die Favoriten konnten nicht in %1 gespeichert werden. Ihre Änderungen sind noch da.</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoriten</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>New Server</source>
        <translation>Neuer Server</translation>
    </message>
    <message numerus="yes">
        <source>%n servers added elsewhere since this list was opened are kept as well.</source>
        <translation>
            <numerusform>%n anderswo hinzugefügter Server seit dem Öffnen dieser Liste bleibt ebenfalls erhalten.</numerusform>
            <numerusform>%n anderswo hinzugefügte Server seit dem Öffnen dieser Liste bleiben ebenfalls erhalten.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a server address. Type a host name or an IP address, followed by a colon and a port from 1 to 65535.</source>
        <translation>„%1“ ist keine Serveradresse. Geben Sie einen Hostnamen oder eine IP-Adresse ein, gefolgt von einem Doppelpunkt und einem Port von 1 bis 65535.</translation>
    </message>
</context>
<context>
    <name>FrmFilters</name>
    <message>
        <source>Filters</source>
        <translation>Filter</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Neu</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Built in filters:</source>
        <translation>Eingebaute Filter:</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Leer</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Voll</translation>
    </message>
    <message>
        <source>Passworded</source>
        <translation>Mit Passwort</translation>
    </message>
    <message>
        <source>Example 1: si_map                 mp/q4dm5</source>
        <translation>Beispiel 1: si_map                 mp/q4dm5</translation>
    </message>
    <message>
        <source>Example 2: sv_punkbuster     1</source>
        <translation>Beispiel 2: sv_punkbuster     1</translation>
    </message>
    <message>
        <source>The filters could not be saved to %1; this change lasts until the program ends.</source>
        <translation>Die Filter konnten nicht in %1 gespeichert werden; diese Änderung gilt nur bis zum Programmende.</translation>
    </message>
    <message>
        <source>(ticked: listed)</source>
        <translation>(angehakt: angezeigt)</translation>
    </message>
    <message>
        <source>Ticked: servers without players are listed; unticked: they are hidden</source>
        <translation>Angehakt: Server ohne Spieler werden angezeigt; nicht angehakt: sie werden ausgeblendet</translation>
    </message>
    <message>
        <source>Ticked: full servers are listed; unticked: they are hidden</source>
        <translation>Angehakt: volle Server werden angezeigt; nicht angehakt: sie werden ausgeblendet</translation>
    </message>
    <message>
        <source>Ticked: servers with a password are listed; unticked: they are hidden</source>
        <translation>Angehakt: Server mit Passwort werden angezeigt; nicht angehakt: sie werden ausgeblendet</translation>
    </message>
    <message>
        <source>The settings could not be saved; this change lasts until the program ends.</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden; diese Änderung gilt, bis das Programm endet.</translation>
    </message>
</context>
<context>
    <name>FrmHistory</name>
    <message>
        <source>Recently Played</source>
        <translation>Zuletzt gespielt</translation>
    </message>
    <message>
        <source>No servers yet: every server you join from this program is listed here.</source>
        <translation>Noch keine Server: Jeder Server, dem Sie mit diesem Programm beitreten, wird hier aufgeführt.</translation>
    </message>
    <message>
        <source>Query Recently Played</source>
        <translation>Zuletzt gespielte anfragen</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Schließen</translation>
    </message>
    <message>
        <source>The list could not be saved to %1.</source>
        <translation>Die Liste konnte nicht unter %1 gespeichert werden.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
</context>
<context>
    <name>FrmMain</name>
    <message>
        <source>Quake 4 Vantage</source>
        <translation>Quake 4 Vantage</translation>
    </message>
    <message>
        <source>About Quake 4 Vantage</source>
        <translation>Über Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Beenden</translation>
    </message>
    <message numerus="yes">
        <source>%n servers found</source>
        <translation>
            <numerusform>%n Server gefunden</numerusform>
            <numerusform>%n Server gefunden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n players found</source>
        <translation>
            <numerusform>%n Spieler gefunden</numerusform>
            <numerusform>%n Spieler gefunden</numerusform>
        </translation>
    </message>
    <message>
        <source>Only servers on %1 are listed now; &quot;Filters&quot; takes the filter away.</source>
        <translation>Nur Server mit %1 werden jetzt aufgeführt; unter „Filter“ lässt sich der Filter wieder entfernen.</translation>
    </message>
</context>
<context>
    <name>FrmOptions</name>
    <message>
        <source>Options</source>
        <translation>Optionen</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Einstellungen</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Farbschema</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Sprache:</translation>
    </message>
    <message>
        <source>Query Speed:</source>
        <translation>Anforderungs geschwindigkeit:</translation>
    </message>
    <message>
        <source>Dial Up (56k)</source>
        <translation>Modem (56k)</translation>
    </message>
    <message>
        <source>ISDN (64k)</source>
        <translation>ISDN (64k)</translation>
    </message>
    <message>
        <source>ISDN (128k)</source>
        <translation>ISDN (128k)</translation>
    </message>
    <message>
        <source>DSL (256k)</source>
        <translation>DSL (256k)</translation>
    </message>
    <message>
        <source>DSL (512k)</source>
        <translation>DSL (512k)</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximal</translation>
    </message>
    <message>
        <source>Automatically Check For Updates</source>
        <translation>Automatisch nach Updates suchen</translation>
    </message>
    <message>
        <source>Close After Joining</source>
        <translation>Nach dem Beitreten schließen</translation>
    </message>
    <message>
        <source>Refresh Server On Selection</source>
        <translation>Server bei Auswahl aktualisieren</translation>
    </message>
    <message>
        <source>Port Range:</source>
        <translation>Portbereich:</translation>
    </message>
    <message>
        <source>Note: Port Range is dependant on the query speed.</source>
        <translation>Hinweis: Der Portbereich hängt von der Anforderungsgeschwindigkeit ab.</translation>
    </message>
    <message>
        <source>Use Proxy Server for updates</source>
        <translation>Proxyserver für Updates verwenden</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Abbrechen</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Übernehmen</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Standardwerte</translation>
    </message>
    <message>
        <source>Are you sure you want to reset all settings to their default values?</source>
        <translation>Möchten Sie wirklich alle Einstellungen auf ihre Standardwerte zurücksetzen?</translation>
    </message>
    <message>
        <source>You must type a port number between %1 and %2! (Default: %3)</source>
        <translation>Sie müssen eine Portnummer zwischen %1 und %2 eingeben! (Standard: %3)</translation>
    </message>
    <message>
        <source>Servers</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Friends</source>
        <translation>Freunde</translation>
    </message>
    <message>
        <source>Keep passwords in the desktop&apos;s keyring</source>
        <translation>Passwörter im Schlüsselbund des Desktops aufbewahren</translation>
    </message>
    <message>
        <source>Unticked, or on a desktop without a keyring, the passwords are kept in the settings file as plain text.</source>
        <translation>Nicht angehakt, oder auf einem Desktop ohne Schlüsselbund, stehen die Passwörter im Klartext in der Einstellungsdatei.</translation>
    </message>
</context>
<context>
    <name>FrmUpdate</name>
    <message>
        <source>Quake 4 Vantage Update Available</source>
        <translation>Quake 4 Vantage Aktualisierung verfügbar</translation>
    </message>
    <message>
        <source>An update is now available for Quake 4 Vantage, would you like to download it now?</source>
        <translation>Eine Aktualisierung für Quake 4 Vantage ist verfügbar. Möchten Sie sie jetzt herunterladen?</translation>
    </message>
    <message>
        <source>Current Version:</source>
        <translation>Aktuelle Version:</translation>
    </message>
    <message>
        <source>Latest Version:</source>
        <translation>Neueste Version:</translation>
    </message>
    <message>
        <source>Automatically check for updates in the future</source>
        <translation>Künftig automatisch nach Aktualisierungen suchen</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nein</translation>
    </message>
</context>
<context>
    <name>GameBox</name>
    <message>
        <source>Game:</source>
        <translation>Spiel:</translation>
    </message>
    <message>
        <source>Look Again</source>
        <translation>Erneut suchen</translation>
    </message>
    <message>
        <source>Looks for the game&apos;s installs on this machine again: Steam&apos;s libraries, the Linux release and Wine.</source>
        <translation>Sucht erneut nach Installationen des Spiels auf diesem Rechner: Steam-Bibliotheken, die Linux-Version und Wine.</translation>
    </message>
    <message>
        <source>Quake 4 Executable:</source>
        <translation>Quake 4 Programmdatei:</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Durchsuchen</translation>
    </message>
    <message>
        <source>A join runs:</source>
        <translation>Beitreten startet:</translation>
    </message>
    <message>
        <source>Looking for the game on this machine...</source>
        <translation>Spiel wird auf diesem Rechner gesucht...</translation>
    </message>
    <message>
        <source>None found</source>
        <translation>Keins gefunden</translation>
    </message>
    <message>
        <source>Ask at the first join</source>
        <translation>Beim ersten Beitreten fragen</translation>
    </message>
    <message>
        <source>Other program...</source>
        <translation>Anderes Programm...</translation>
    </message>
    <message>
        <source>No program chosen</source>
        <translation>Kein Programm gewählt</translation>
    </message>
    <message>
        <source>Started in %1</source>
        <translation>Gestartet in %1</translation>
    </message>
    <message>
        <source>Chosen at the first join</source>
        <translation>Wird beim ersten Beitreten gewählt</translation>
    </message>
</context>
<context>
    <name>GameChooser</name>
    <message>
        <source>The game&apos;s Windows build</source>
        <translation>Die Windows-Version des Spiels</translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself, and neither Steam with the game nor Wine is installed here.

Install the game in Steam (which runs it through Proton), or install Wine (Debian&apos;s package &quot;wine&quot;), or choose the Linux release&apos;s &quot;quake4&quot; instead.</source>
        <translation>%1 ist die Windows-Version des Spiels, die dieses System nicht selbst starten kann, und weder Steam mit dem Spiel noch Wine ist hier installiert.

Installieren Sie das Spiel in Steam (das es mit Proton ausführt) oder Wine (Debian-Paket &quot;wine&quot;), oder wählen Sie stattdessen &quot;quake4&quot; der Linux-Version.</translation>
    </message>
    <message>
        <source>Through Steam</source>
        <translation>Über Steam</translation>
    </message>
    <message>
        <source>Through Wine</source>
        <translation>Über Wine</translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself. Start it through Steam (%2) or through Wine?</source>
        <translation>%1 ist die Windows-Version des Spiels, die dieses System nicht selbst starten kann. Über Steam (%2) oder über Wine starten?</translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself. Start it through Steam (%2)?</source>
        <translation>%1 ist die Windows-Version des Spiels, die dieses System nicht selbst starten kann. Über Steam (%2) starten?</translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself. Start it through Wine?</source>
        <translation>%1 ist die Windows-Version des Spiels, die dieses System nicht selbst starten kann. Über Wine starten?</translation>
    </message>
    <message>
        <source>Which Quake 4?</source>
        <translation>Welches Quake 4?</translation>
    </message>
    <message>
        <source>Quake 4 is installed more than once here. Which one should a join start? You can change it later in Options.</source>
        <translation>Quake 4 ist hier mehrfach installiert. Welche Installation soll beim Beitreten starten? Sie können das später in den Optionen ändern.</translation>
    </message>
</context>
<context>
    <name>GameInstall</name>
    <message>
        <source>Steam: %1</source>
        <translation>Steam: %1</translation>
    </message>
    <message>
        <source>Steam (Flatpak): %1</source>
        <translation>Steam (Flatpak): %1</translation>
    </message>
    <message>
        <source>Linux release: %1</source>
        <translation>Linux-Version: %1</translation>
    </message>
    <message>
        <source>Wine: %1</source>
        <translation>Wine: %1</translation>
    </message>
</context>
<context>
    <name>JoinFlow</name>
    <message>
        <source>Join server by IP Address</source>
        <translation>Server über IP-Adresse beitreten</translation>
    </message>
    <message>
        <source>Please enter the IP address/hostname and port of the server you wish to join</source>
        <translation>Bitte geben Sie die IP-Adresse bzw. den Hostnamen und den Port des Servers ein, dem Sie beitreten möchten</translation>
    </message>
    <message>
        <source>Please enter the password for this server</source>
        <translation>Bitte geben Sie das Passwort für diesen Server ein</translation>
    </message>
    <message>
        <source>No Password Provided</source>
        <translation>Kein Passwort angegeben</translation>
    </message>
    <message>
        <source>Join Server Anyway?</source>
        <translation>Dem Server trotzdem beitreten?</translation>
    </message>
    <message>
        <source>Connecting to %1</source>
        <translation>Verbinde mit %1</translation>
    </message>
    <message>
        <source>The game could not be started: %1 does not exist.</source>
        <translation>Das Spiel konnte nicht gestartet werden: %1 existiert nicht.</translation>
    </message>
    <message>
        <source>The game could not be started: %1 is not a program.</source>
        <translation>Das Spiel konnte nicht gestartet werden: %1 ist kein Programm.</translation>
    </message>
    <message>
        <source>The game could not be started: %1.</source>
        <translation>Das Spiel konnte nicht gestartet werden: %1.</translation>
    </message>
    <message>
        <source>%1 is full.
Wait for a free slot and join as soon as one opens?</source>
        <translation>%1 ist voll.
Auf einen freien Platz warten und beitreten, sobald einer frei wird?</translation>
    </message>
    <message>
        <source>The game started, but the list of recently played servers could not be saved.</source>
        <translation>Das Spiel wurde gestartet, aber die Liste der zuletzt gespielten Server konnte nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a server address. Type a host name or an IP address, followed by a colon and a port from 1 to 65535 when the port is not the game&apos;s.</source>
        <translation>„%1“ ist keine Serveradresse. Geben Sie einen Hostnamen oder eine IP-Adresse ein, gefolgt von einem Doppelpunkt und einem Port von 1 bis 65535, wenn es nicht der Port des Spiels ist.</translation>
    </message>
    <message>
        <source>Wait for a Slot</source>
        <translation>Auf einen Platz warten</translation>
    </message>
    <message>
        <source>Join Anyway</source>
        <translation>Trotzdem beitreten</translation>
    </message>
    <message>
        <source>Looking for %1 in the game&apos;s archives...</source>
        <translation>Suche %1 in den Archiven des Spiels...</translation>
    </message>
    <message>
        <source>%1 is not installed. Join anyway?</source>
        <translation>%1 ist nicht installiert. Trotzdem beitreten?</translation>
    </message>
    <message>
        <source>%1 is not installed (mod %2). Join anyway?</source>
        <translation>%1 ist nicht installiert (Mod %2). Trotzdem beitreten?</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>installiert</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>fehlt</translation>
    </message>
    <message>
        <source>Looking for the game on this machine...</source>
        <translation>Spiel wird auf diesem Rechner gesucht...</translation>
    </message>
    <message>
        <source>Using the game found on this machine: %1. Options can choose another.</source>
        <translation>Das auf diesem Rechner gefundene Spiel wird verwendet: %1. In den Optionen lässt sich ein anderes wählen.</translation>
    </message>
</context>
<context>
    <name>JoinPanel</name>
    <message>
        <source>Player Name:</source>
        <translation>Spielername:</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Beitreten</translation>
    </message>
    <message>
        <source>Join IP</source>
        <translation>IP beitreten</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Name:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Passwort:</translation>
    </message>
    <message>
        <source>Stop Waiting</source>
        <translation>Warten beenden</translation>
    </message>
</context>
<context>
    <name>ListColumns</name>
    <message>
        <source>Num</source>
        <translation>Nr.</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>Clan</source>
        <translation>Clan</translation>
    </message>
    <message>
        <source>Ping</source>
        <translation>Ping</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Rate</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Wert</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Karte</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>Pw</source>
        <translation>PW</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Typ</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spiel</translation>
    </message>
    <message>
        <source>Server IP Address</source>
        <translation>Server-IP-Adresse</translation>
    </message>
    <message>
        <source>Svr Ping</source>
        <translation>Svr-Ping</translation>
    </message>
    <message>
        <source>Mod</source>
        <translation>Mod</translation>
    </message>
    <message>
        <source>Server Name</source>
        <translation>Servername</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Passwort</translation>
    </message>
    <message>
        <source>Last Played</source>
        <translation>Zuletzt gespielt</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Land</translation>
    </message>
</context>
<context>
    <name>ListMenu</name>
    <message>
        <source>&amp;Add To Favourites</source>
        <translation>Zu &amp;Favoriten hinzufügen</translation>
    </message>
    <message>
        <source>&amp;Select Server</source>
        <translation>&amp;Server auswählen</translation>
    </message>
    <message>
        <source>The favourites file could not be written.</source>
        <translation>Die Favoritendatei konnte nicht geschrieben werden.</translation>
    </message>
    <message>
        <source>Add To F&amp;riends</source>
        <translation>Zu F&amp;reunden hinzufügen</translation>
    </message>
    <message>
        <source>%1 is one of your friends already.</source>
        <translation>%1 ist bereits einer Ihrer Freunde.</translation>
    </message>
    <message>
        <source>Your friends could not be saved.</source>
        <translation>Ihre Freunde konnten nicht gespeichert werden.</translation>
    </message>
    <message>
        <source>%1 was added to your friends.</source>
        <translation>%1 wurde zu Ihren Freunden hinzugefügt.</translation>
    </message>
    <message>
        <source>&amp;Join</source>
        <translation>&amp;Beitreten</translation>
    </message>
    <message>
        <source>R&amp;efresh</source>
        <translation>A&amp;ktualisieren</translation>
    </message>
    <message>
        <source>%1 was added to your favourites.</source>
        <translation>%1 wurde zu Ihren Favoriten hinzugefügt.</translation>
    </message>
    <message>
        <source>C&amp;olumns</source>
        <translation>Spa&amp;lten</translation>
    </message>
    <message>
        <source>Filter By This &amp;Map</source>
        <translation>Nach dieser &amp;Karte filtern</translation>
    </message>
</context>
<context>
    <name>ListTabs</name>
    <message>
        <source>Players</source>
        <translation>Spieler</translation>
    </message>
    <message>
        <source>Servers</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Hide empty</source>
        <translation>Leere ausblenden</translation>
    </message>
    <message>
        <source>Servers without players are not listed (the filters&apos; &quot;Empty&quot; box)</source>
        <translation>Server ohne Spieler werden nicht aufgeführt (das Feld „Leer“ der Filter)</translation>
    </message>
    <message>
        <source>Hide full</source>
        <translation>Volle ausblenden</translation>
    </message>
    <message>
        <source>Full servers are not listed (the filters&apos; &quot;Full&quot; box)</source>
        <translation>Volle Server werden nicht aufgeführt (das Feld „Voll“ der Filter)</translation>
    </message>
    <message>
        <source>The settings could not be saved, so the list stays as it was.</source>
        <translation>Die Einstellungen konnten nicht gespeichert werden, daher bleibt die Liste, wie sie war.</translation>
    </message>
</context>
<context>
    <name>QueryBar</name>
    <message>
        <source>Cancel Query</source>
        <translation>Anfrage abbrechen</translation>
    </message>
    <message>
        <source>Query Masters</source>
        <translation>Master anfragen</translation>
    </message>
    <message>
        <source>Query Favourites</source>
        <translation>Favoriten anfragen</translation>
    </message>
    <message>
        <source>Query LAN</source>
        <translation>LAN anfragen</translation>
    </message>
    <message>
        <source>Find the servers of your local network</source>
        <translation>Die Server Ihres lokalen Netzwerks finden</translation>
    </message>
    <message>
        <source>Quake 4 Vantage</source>
        <translation>Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>Optionen...</translation>
    </message>
</context>
<context>
    <name>QueryController</name>
    <message>
        <source>Done</source>
        <translation>Fertig</translation>
    </message>
    <message>
        <source>Master Servers Timed Out</source>
        <translation>Zeitüberschreitung bei den Master-Servern</translation>
    </message>
    <message>
        <source>The start port %1 is not valid. Choose another in the options.</source>
        <translation>Der Startport %1 ist ungültig. Wählen Sie in den Optionen einen anderen.</translation>
    </message>
    <message>
        <source>No favourites yet: right-click a server and choose &quot;Add To Favourites&quot;.</source>
        <translation>Noch keine Favoriten: Klicken Sie mit der rechten Maustaste auf einen Server und wählen Sie „Zu Favoriten hinzufügen“.</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Abgebrochen</translation>
    </message>
    <message>
        <source>Requesting Server List from
%1</source>
        <translation>Fordere Serverliste an von
%1</translation>
    </message>
    <message>
        <source>Receiving Server List from
%1</source>
        <translation>Empfange Serverliste von
%1</translation>
    </message>
    <message>
        <source>Sorting IP Address Lists
%1</source>
        <translation>Sortiere IP-Adresslisten
%1</translation>
    </message>
    <message>
        <source>No local network to search: no network interface can broadcast.</source>
        <translation>Kein lokales Netzwerk zum Durchsuchen: keine Netzwerkschnittstelle kann senden (Broadcast).</translation>
    </message>
    <message>
        <source>Searching the local network...</source>
        <translation>Lokales Netzwerk wird durchsucht...</translation>
    </message>
    <message>
        <source>No servers played yet: the servers you join are kept in &quot;Recently Played&quot;.</source>
        <translation>Noch keine Server gespielt: Die Server, denen Sie beitreten, stehen unter „Zuletzt gespielt“.</translation>
    </message>
    <message>
        <source>No server answered on the local network; the list is as it was.</source>
        <translation>Im lokalen Netzwerk hat kein Server geantwortet; die Liste bleibt, wie sie war.</translation>
    </message>
</context>
<context>
    <name>QueryError</name>
    <message>
        <source>Local port %1 cannot be used (%2). Choose another start port in the options.</source>
        <translation>Der lokale Port %1 kann nicht verwendet werden (%2). Wählen Sie in den Optionen einen anderen Startport.</translation>
    </message>
    <message>
        <source>The master server listed more than %1 servers; the list was not used.</source>
        <translation>Der Master-Server hat mehr als %1 Server gemeldet; die Liste wurde nicht verwendet.</translation>
    </message>
    <message>
        <source>Master server %1 not found (%2).</source>
        <translation>Master-Server %1 nicht gefunden (%2).</translation>
    </message>
    <message>
        <source>The master server address &quot;%1&quot; is not valid.</source>
        <translation>Die Master-Server-Adresse „%1“ ist ungültig.</translation>
    </message>
</context>
<context>
    <name>ServerDetails</name>
    <message>
        <source>Players of the selected server</source>
        <translation>Spieler des ausgewählten Servers</translation>
    </message>
    <message>
        <source>Rules of the selected server</source>
        <translation>Regeln des ausgewählten Servers</translation>
    </message>
    <message>
        <source>Add To F&amp;riends</source>
        <translation>Zu F&amp;reunden hinzufügen</translation>
    </message>
    <message>
        <source>map on this machine</source>
        <translation>Karte auf diesem Rechner</translation>
    </message>
</context>
<context>
    <name>ServerListFetch</name>
    <message>
        <source>no reply within %1 seconds</source>
        <translation>keine Antwort innerhalb von %1 Sekunden</translation>
    </message>
    <message>
        <source>the reply is larger than %1 MiB</source>
        <translation>die Antwort ist größer als %1 MiB</translation>
    </message>
</context>
<context>
    <name>ServerListModel</name>
    <message>
        <source>No answer to the last refresh; last seen at %1</source>
        <translation>Keine Antwort auf die letzte Aktualisierung; zuletzt gesehen um %1</translation>
    </message>
    <message>
        <source>One of your favourites</source>
        <translation>Einer Ihrer Favoriten</translation>
    </message>
    <message>
        <source>Full: %1 of %2 players</source>
        <translation>Voll: %1 von %2 Spielern</translation>
    </message>
</context>
<context>
    <name>ServerMemory</name>
    <message>
        <source>The servers that answered could not be remembered in %1.</source>
        <translation>Die Server, die geantwortet haben, konnten nicht in %1 gespeichert werden.</translation>
    </message>
</context>
<context>
    <name>ServerRulesModel</name>
    <message>
        <source>True</source>
        <translation>Wahr</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Falsch</translation>
    </message>
</context>
<context>
    <name>ServerSelection</name>
    <message>
        <source>Server Name:</source>
        <translation>Servername:</translation>
    </message>
</context>
<context>
    <name>ServerSources</name>
    <message>
        <source>did not answer</source>
        <translation>hat nicht geantwortet</translation>
    </message>
    <message>
        <source>known servers</source>
        <translation>bekannte Server</translation>
    </message>
</context>
<context>
    <name>ServersTab</name>
    <message>
        <source>Master servers, all asked at once:</source>
        <translation>Master-Server, alle gleichzeitig angefragt:</translation>
    </message>
    <message>
        <source>Master Server</source>
        <translation>Master-Server</translation>
    </message>
    <message>
        <source>Host name or address of a master server, with :port when it is not %1:</source>
        <translation>Hostname oder Adresse eines Master-Servers, mit :Port, wenn dieser nicht %1 ist:</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a master server address. Type a host name or an IP address, followed by a colon and a port from 1 to 65535 when the port is not %2.</source>
        <translation>„%1“ ist keine Master-Server-Adresse. Geben Sie einen Hostnamen oder eine IP-Adresse ein, gefolgt von einem Doppelpunkt und einem Port von 1 bis 65535, wenn der Port nicht %2 ist.</translation>
    </message>
    <message>
        <source>Server lists on the web, fetched alongside:</source>
        <translation>Serverlisten im Web, gleichzeitig abgerufen:</translation>
    </message>
    <message>
        <source>Server List</source>
        <translation>Serverliste</translation>
    </message>
    <message>
        <source>Web address of a server list (JSON or one host:port per line):</source>
        <translation>Webadresse einer Serverliste (JSON oder ein Host:Port pro Zeile):</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a web address. Type an address that begins with http:// or https://.</source>
        <translation>„%1“ ist keine Webadresse. Geben Sie eine Adresse ein, die mit http:// oder https:// beginnt.</translation>
    </message>
    <message>
        <source>Remember servers that answered and query them again</source>
        <translation>Server merken, die geantwortet haben, und erneut anfragen</translation>
    </message>
    <message>
        <source>Forget known servers</source>
        <translation>Bekannte Server vergessen</translation>
    </message>
    <message numerus="yes">
        <source>Forget the %n servers that answered before? Query Masters asks them again only when a master or a server list names them.</source>
        <translation>
            <numerusform>Den %n Server vergessen, der früher geantwortet hat? Die Master-Anfrage fragt ihn nur wieder an, wenn ein Master oder eine Serverliste ihn nennt.</numerusform>
            <numerusform>Die %n Server vergessen, die früher geantwortet haben? Die Master-Anfrage fragt sie nur wieder an, wenn ein Master oder eine Serverliste sie nennt.</numerusform>
        </translation>
    </message>
    <message>
        <source>The known servers could not be removed from %1.</source>
        <translation>Die bekannten Server konnten nicht aus %1 entfernt werden.</translation>
    </message>
    <message>
        <source>No servers known yet.</source>
        <translation>Noch keine Server bekannt.</translation>
    </message>
    <message numerus="yes">
        <source>%n servers known.</source>
        <translation>
            <numerusform>%n Server bekannt.</numerusform>
            <numerusform>%n Server bekannt.</numerusform>
        </translation>
    </message>
    <message>
        <source>At most %1 master servers are asked. Remove one before adding another.</source>
        <translation>Es werden höchstens %1 Master-Server gefragt. Entfernen Sie einen, bevor Sie einen weiteren hinzufügen.</translation>
    </message>
    <message>
        <source>At most %1 server lists are fetched. Remove one before adding another.</source>
        <translation>Es werden höchstens %1 Serverlisten abgerufen. Entfernen Sie eine, bevor Sie eine weitere hinzufügen.</translation>
    </message>
</context>
<context>
    <name>SlotWaiter</name>
    <message>
        <source>No slot came free on %1 in 30 minutes: stopped waiting.</source>
        <translation>Auf %1 wurde in 30 Minuten kein Platz frei: Warten beendet.</translation>
    </message>
    <message>
        <source>%1 is full (%2): waiting for a free slot...</source>
        <translation>%1 ist voll (%2): warte auf einen freien Platz...</translation>
    </message>
    <message>
        <source>Stopped waiting for a free slot.</source>
        <translation>Warten auf einen freien Platz beendet.</translation>
    </message>
</context>
<context>
    <name>SourceStatus</name>
    <message>
        <source>%1: no answer yet</source>
        <translation>%1: noch keine Antwort</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n servers</source>
        <translation>
            <numerusform>%1: %n Server</numerusform>
            <numerusform>%1: %n Server</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>(%n entries skipped)</source>
        <translation>
            <numerusform>(%n Eintrag übersprungen)</numerusform>
            <numerusform>(%n Einträge übersprungen)</numerusform>
        </translation>
    </message>
    <message>
        <source>(list cut at %1)</source>
        <translation>(Liste nach %1 abgeschnitten)</translation>
    </message>
    <message>
        <source>Querying %1 Servers...</source>
        <translation>Frage %1 Server ab...</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>Warte auf %1</translation>
    </message>
    <message>
        <source>No list from %1</source>
        <translation>Keine Liste von %1</translation>
    </message>
    <message>
        <source>Master Servers Timed Out</source>
        <translation>Zeitüberschreitung bei den Master-Servern</translation>
    </message>
    <message>
        <source>Check the network connection, or add a master server or a server list that works in Options, on the &quot;Servers&quot; tab.</source>
        <translation>Prüfen Sie die Netzwerkverbindung, oder fügen Sie in den Optionen auf der Registerkarte „Server“ einen funktionierenden Master-Server oder eine Serverliste hinzu.</translation>
    </message>
    <message>
        <source>%1 not found</source>
        <translation>%1 nicht gefunden</translation>
    </message>
    <message>
        <source>%1 did not answer</source>
        <translation>%1 hat nicht geantwortet</translation>
    </message>
    <message>
        <source>Options, &quot;Servers&quot; tab, adds sources</source>
        <translation>Optionen, Reiter „Server“, nimmt Quellen auf</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 und %n weitere</numerusform>
            <numerusform>%1 und %n weitere</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more master servers left out: at most %1 are asked.</source>
        <translation>
            <numerusform>%n weiterer Master-Server ausgelassen: höchstens %1 werden gefragt.</numerusform>
            <numerusform>%n weitere Master-Server ausgelassen: höchstens %1 werden gefragt.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more server lists left out: at most %1 are fetched.</source>
        <translation>
            <numerusform>%n weitere Serverliste ausgelassen: höchstens %1 werden abgerufen.</numerusform>
            <numerusform>%n weitere Serverlisten ausgelassen: höchstens %1 werden abgerufen.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>... and %n more (the status line&apos;s tooltip lists them all)</source>
        <translation>
            <numerusform>... und %n weitere (der Tooltip der Statuszeile nennt alle)</numerusform>
            <numerusform>... und %n weitere (der Tooltip der Statuszeile nennt alle)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThemeFile</name>
    <message>
        <source>Dark</source>
        <translation>Dunkel</translation>
    </message>
    <message>
        <source>Desktop Colours</source>
        <translation>Farben des Desktops</translation>
    </message>
</context>
<context>
    <name>ThemeTab</name>
    <message>
        <source>Form Back Colour</source>
        <translation>Fensterhintergrund</translation>
    </message>
    <message>
        <source>List Back Colour</source>
        <translation>Listenhintergrund</translation>
    </message>
    <message>
        <source>List Text Colour</source>
        <translation>Listentext</translation>
    </message>
    <message>
        <source>Text Box Back Colour</source>
        <translation>Eingabefeld-Hintergrund</translation>
    </message>
    <message>
        <source>Text Box Text Colour</source>
        <translation>Eingabefeld-Text</translation>
    </message>
    <message>
        <source>Progress Bar Back Colour</source>
        <translation>Fortschrittsbalken-Hintergrund</translation>
    </message>
    <message>
        <source>Progress Bar Bar Colour</source>
        <translation>Fortschrittsbalken-Farbe</translation>
    </message>
    <message>
        <source>Progress Bar Type:</source>
        <translation>Fortschrittsbalken-Art:</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message>
        <source>Segmented</source>
        <translation>Segmentiert</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Glatt</translation>
    </message>
    <message>
        <source>Tab Style:</source>
        <translation>Registerkarten:</translation>
    </message>
    <message>
        <source>Small Tabs</source>
        <translation>Kleine Registerkarten</translation>
    </message>
    <message>
        <source>Large Tabs</source>
        <translation>Große Registerkarten</translation>
    </message>
    <message>
        <source>Saved Themes:</source>
        <translation>Gespeicherte Farbschemata:</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Speichern</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Entfernen</translation>
    </message>
    <message>
        <source>Save Theme</source>
        <translation>Farbschema speichern</translation>
    </message>
    <message>
        <source>Please enter a name for this theme</source>
        <translation>Bitte geben Sie einen Namen für dieses Farbschema ein</translation>
    </message>
    <message>
        <source>The themes could not be saved to %1; the other settings are not affected.</source>
        <translation>Die Farbschemata konnten nicht in %1 gespeichert werden; die übrigen Einstellungen sind davon nicht betroffen.</translation>
    </message>
</context>
<context>
    <name>UpdateFlow</name>
    <message>
        <source>Quake 4 Vantage Update</source>
        <translation>Quake 4 Vantage Aktualisierung</translation>
    </message>
    <message>
        <source>The installer came without encryption (plain HTTP), so it will not be started. It was saved to %1.</source>
        <translation>Das Installationsprogramm kam unverschlüsselt (einfaches HTTP) und wird daher nicht gestartet. Es wurde unter %1 gespeichert.</translation>
    </message>
    <message>
        <source>The installer was saved to %1, but it cannot be started on this system.</source>
        <translation>Das Installationsprogramm wurde unter %1 gespeichert, kann auf diesem System aber nicht gestartet werden.</translation>
    </message>
    <message>
        <source>The site did not say how large the installer is, so whether all of it arrived cannot be checked, and it will not be started. It was saved to %1.</source>
        <translation>Die Seite gab die Größe des Installationsprogramms nicht an; ob es vollständig ankam, lässt sich nicht prüfen, daher wird es nicht gestartet. Es wurde unter %1 gespeichert.</translation>
    </message>
</context>
</TS>
