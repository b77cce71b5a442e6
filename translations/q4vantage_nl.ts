<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl">
<context>
    <name>AddressListEditor</name>
    <message>
        <source>Add...</source>
        <translation>Toevoegen...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Bewerken...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
</context>
<context>
    <name>AutoRefresh</name>
    <message>
        <source>%1 is playing on %2</source>
        <translation>%1 speelt op %2</translation>
    </message>
    <message>
        <source>%1 has %2 players</source>
        <translation>%1 heeft %2 spelers</translation>
    </message>
    <message>
        <source>Quake 4 Vantage</source>
        <translation>Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Refreshed at %1
%2 of %3 servers answered</source>
        <translation>Vernieuwd om %1
%2 van %3 servers antwoordden</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>en %n andere</numerusform>
            <numerusform>en %n andere</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CopyCommands</name>
    <message>
        <source>Copy Cell</source>
        <translation>Cel kopiëren</translation>
    </message>
    <message>
        <source>Copy Column</source>
        <translation>Kolom kopiëren</translation>
    </message>
    <message>
        <source>Copy Row</source>
        <translation>Rij kopiëren</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>Alles kopiëren</translation>
    </message>
</context>
<context>
    <name>Countries</name>
    <message>
        <source>Countries: %1</source>
        <translation>Landen: %1</translation>
    </message>
    <message>
        <source>Countries: no location database is set, so no flags are shown.</source>
        <translation>Landen: geen locatiedatabase ingesteld, dus geen vlaggen.</translation>
    </message>
    <message>
        <source>Countries: no flags are shown, as %1 (the package libloc-database installs one).</source>
        <translation>Landen: geen vlaggen, want %1 (het pakket libloc-database installeert er een).</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Select your Quake 4 Executable</source>
        <translation>Selecteer uw Quake 4-programma</translation>
    </message>
    <message>
        <source>Quake 4 Executable (%1)</source>
        <translation>Quake 4-programma (%1)</translation>
    </message>
</context>
<context>
    <name>DialogBar</name>
    <message>
        <source>%1 is not listed now: &quot;Query Recently Played&quot; asks every server you played on.</source>
        <translation>%1 staat nu niet in de lijst: &apos;Query Recent gespeeld&apos; vraagt elke server op waarop u hebt gespeeld.</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favorieten</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filters</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opties</translation>
    </message>
    <message>
        <source>Recently Played</source>
        <translation>Recent gespeeld</translation>
    </message>
    <message numerus="yes">
        <source>%n hidden by filters</source>
        <translation>
            <numerusform>%n verborgen door filters</numerusform>
            <numerusform>%n verborgen door filters</numerusform>
        </translation>
    </message>
    <message>
        <source>Servers that answered but do not pass the filters. &quot;Filters&quot; shows them.</source>
        <translation>Servers die antwoordden maar niet door de filters komen. &quot;Filters&quot; toont ze.</translation>
    </message>
</context>
<context>
    <name>Downloader</name>
    <message>
        <source>The site sent an empty file.</source>
        <translation>De site stuurde een leeg bestand.</translation>
    </message>
    <message>
        <source>%1 of %2 bytes arrived.</source>
        <translation>%1 van %2 bytes zijn aangekomen.</translation>
    </message>
    <message>
        <source>The installer is larger than %1 MB.</source>
        <translation>Het installatieprogramma is groter dan %1 MB.</translation>
    </message>
    <message>
        <source>The site sent more than the %1 bytes it announced.</source>
        <translation>De site stuurde meer dan de aangekondigde %1 bytes.</translation>
    </message>
</context>
<context>
    <name>EditableListDialog</name>
    <message>
        <source>Edit Cell</source>
        <translation>Cel bewerken</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nieuw</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find</source>
        <translation>Zoeken</translation>
    </message>
    <message>
        <source>Text Not Found</source>
        <translation>Text Niet Gevonden</translation>
    </message>
    <message>
        <source>Next Friend</source>
        <translation>Volgende vriend</translation>
    </message>
    <message>
        <source>Select the next listed friend</source>
        <translation>Selecteer de volgende vriend in de lijst</translation>
    </message>
    <message>
        <source>No friends yet: right-click a player and choose &quot;Add To Friends&quot;.</source>
        <translation>Nog geen vrienden: klik met de rechtermuisknop op een speler en kies &apos;Toevoegen aan vrienden&apos;.</translation>
    </message>
    <message>
        <source>None of your friends is listed.</source>
        <translation>Geen van uw vrienden staat in de lijst.</translation>
    </message>
</context>
<context>
    <name>FriendsTab</name>
    <message>
        <source>Friends (names, or patterns such as *Bob*):</source>
        <translation>Vrienden (namen, of patronen zoals *Bob*):</translation>
    </message>
    <message>
        <source>Friend</source>
        <translation>Vriend</translation>
    </message>
    <message>
        <source>Name of a friend as the player list shows it, or a pattern such as *Hammer*:</source>
        <translation>Naam van een vriend zoals de spelerslijst die toont, of een patroon zoals *Hammer*:</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a control character. Type a name or a pattern.</source>
        <translation>&apos;%1&apos; bevat een stuurteken. Typ een naam of een patroon.</translation>
    </message>
    <message>
        <source>Refresh the listed servers:</source>
        <translation>Getoonde servers vernieuwen:</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nooit</translation>
    </message>
    <message numerus="yes">
        <source>Every %n minutes</source>
        <translation>
            <numerusform>Elke %n minuten</numerusform>
            <numerusform>Elke %n minuten</numerusform>
        </translation>
    </message>
    <message>
        <source>Tell me when a friend starts playing</source>
        <translation>Melden wanneer een vriend begint te spelen</translation>
    </message>
    <message>
        <source>Tell me when a favourite server has</source>
        <translation>Melden wanneer een favoriete server</translation>
    </message>
    <message>
        <source>players or more</source>
        <translation>of meer spelers heeft</translation>
    </message>
    <message>
        <source>Notifications come with the automatic refresh.</source>
        <translation>Meldingen komen met het automatisch vernieuwen.</translation>
    </message>
    <message>
        <source>Offer to wait for a slot on a full server</source>
        <translation>Wachten op een plek aanbieden bij een volle server</translation>
    </message>
    <message>
        <source>Every minute</source>
        <translation>Elke minuut</translation>
    </message>
</context>
<context>
    <name>FrmAbout</name>
    <message>
        <source>About Quake 4 Vantage</source>
        <translation>Over Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Quake 4 Vantage</source>
        <translation>Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versie %1</translation>
    </message>
    <message>
        <source>A server browser for Quake 4: finds servers and players, and joins a game with a double click.</source>
        <translation>Een serverbrowser voor Quake 4: vindt servers en spelers en doet met een dubbelklik mee aan een spel.</translation>
    </message>
    <message>
        <source>Built with Qt %1, running on Qt %2.</source>
        <translation>Gebouwd met Qt %1, draait op Qt %2.</translation>
    </message>
    <message>
        <source>Licence: %1</source>
        <translation>Licentie: %1</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Website</translation>
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
        <translation>Fout tijdens het downloaden</translation>
    </message>
    <message>
        <source>The installer could not be saved to %1 (%2).</source>
        <translation>Het installatieprogramma kon niet worden opgeslagen in %1 (%2).</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Voltooid</translation>
    </message>
    <message>
        <source>Downloading v%1
%2 of %3</source>
        <translation>Downloaden v%1
%2 van %3</translation>
    </message>
    <message>
        <source>Quake 4 Vantage Update</source>
        <translation>Quake 4 Vantage update</translation>
    </message>
    <message>
        <source>Downloading Quake 4 Vantage v%1</source>
        <translation>Quake 4 Vantage v%1 downloaden</translation>
    </message>
    <message>
        <source>Connecting to download site...</source>
        <translation>Verbinden met de downloadsite...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message numerus="yes">
        <source>Downloading v%1
%n bytes</source>
        <translation>
            <numerusform>v%1 downloaden
%n byte</numerusform>
            <numerusform>v%1 downloaden
%n bytes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FrmFavourites</name>
    <message>
        <source>This favourites file is larger than the editor reads (%1 servers or %2 MB). It is shown in part and not saved, so that no server is lost.</source>
        <translation>Dit favorietenbestand is groter dan de editor leest (%1 servers of %2 MB). Het wordt maar gedeeltelijk getoond en niet opgeslagen, zodat er geen server verloren gaat.</translation>
    </message>
    <message>
        <source>The favourites could not be saved to %1. Your changes are still here.</source>
        <translation>De favorieten konden niet in %1 worden opgeslagen. Uw wijzigingen zijn er nog.</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favorieten</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nieuw</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>New Server</source>
        <translation>Nieuwe server</translation>
    </message>
    <message numerus="yes">
        <source>%n servers added elsewhere since this list was opened are kept as well.</source>
        <translation>
            <numerusform>%n server die elders is toegevoegd sinds deze lijst openging, blijft ook bewaard.</numerusform>
            <numerusform>%n servers die elders zijn toegevoegd sinds deze lijst openging, blijven ook bewaard.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a server address. Type a host name or an IP address, followed by a colon and a port from 1 to 65535.</source>
        <translation>&quot;%1&quot; is geen serveradres. Typ een hostnaam of een IP-adres, gevolgd door een dubbele punt en een poort van 1 tot 65535.</translation>
    </message>
</context>
<context>
    <name>FrmFilters</name>
    <message>
        <source>Filters</source>
        <translation>Filters</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nieuw</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Built in filters:</source>
        <translation>Ingebouwde filters:</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Leeg</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Vol</translation>
    </message>
    <message>
        <source>Passworded</source>
        <translation>Met wachtwoord</translation>
    </message>
    <message>
        <source>Example 1: si_map                 mp/q4dm5</source>
        <translation>Voorbeeld 1: si_map                 mp/q4dm5</translation>
    </message>
    <message>
        <source>Example 2: sv_punkbuster     1</source>
        <translation>Voorbeeld 2: sv_punkbuster     1</translation>
    </message>
    <message>
        <source>The filters could not be saved to %1; this change lasts until the program ends.</source>
        <translation>De filters konden niet in %1 worden opgeslagen; deze wijziging geldt tot het programma stopt.</translation>
    </message>
    <message>
        <source>(ticked: listed)</source>
        <translation>(aangevinkt: getoond)</translation>
    </message>
    <message>
        <source>Ticked: servers without players are listed; unticked: they are hidden</source>
        <translation>Aangevinkt: servers zonder spelers worden getoond; niet aangevinkt: ze worden verborgen</translation>
    </message>
    <message>
        <source>Ticked: full servers are listed; unticked: they are hidden</source>
        <translation>Aangevinkt: volle servers worden getoond; niet aangevinkt: ze worden verborgen</translation>
    </message>
    <message>
        <source>Ticked: servers with a password are listed; unticked: they are hidden</source>
        <translation>Aangevinkt: servers met wachtwoord worden getoond; niet aangevinkt: ze worden verborgen</translation>
    </message>
    <message>
        <source>The settings could not be saved; this change lasts until the program ends.</source>
        <translation>De instellingen konden niet worden opgeslagen; deze wijziging geldt tot het programma stopt.</translation>
    </message>
</context>
<context>
    <name>FrmHistory</name>
    <message>
        <source>Recently Played</source>
        <translation>Recent gespeeld</translation>
    </message>
    <message>
        <source>No servers yet: every server you join from this program is listed here.</source>
        <translation>Nog geen servers: elke server waaraan u met dit programma deelneemt, staat hier.</translation>
    </message>
    <message>
        <source>Query Recently Played</source>
        <translation>Query Recent gespeeld</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Sluiten</translation>
    </message>
    <message>
        <source>The list could not be saved to %1.</source>
        <translation>De lijst kon niet worden opgeslagen in %1.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
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
        <translation>Over Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Afsluiten</translation>
    </message>
    <message numerus="yes">
        <source>%n servers found</source>
        <translation>
            <numerusform>%n server gevonden</numerusform>
            <numerusform>%n servers gevonden</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n players found</source>
        <translation>
            <numerusform>%n speler gevonden</numerusform>
            <numerusform>%n spelers gevonden</numerusform>
        </translation>
    </message>
    <message>
        <source>Only servers on %1 are listed now; &quot;Filters&quot; takes the filter away.</source>
        <translation>Alleen servers op %1 worden nu getoond; onder &quot;Filters&quot; haalt u het filter weg.</translation>
    </message>
</context>
<context>
    <name>FrmOptions</name>
    <message>
        <source>Options</source>
        <translation>Opties</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Instellingen</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thema</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Taal:</translation>
    </message>
    <message>
        <source>Query Speed:</source>
        <translation>Querysnelheid:</translation>
    </message>
    <message>
        <source>Dial Up (56k)</source>
        <translation>Inbelmodem (56k)</translation>
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
        <translation>ADSL (256k)</translation>
    </message>
    <message>
        <source>DSL (512k)</source>
        <translation>ADSL (512k)</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Maximaal</translation>
    </message>
    <message>
        <source>Automatically Check For Updates</source>
        <translation>Automatisch controleren op updates</translation>
    </message>
    <message>
        <source>Close After Joining</source>
        <translation>Sluiten na deelnemen</translation>
    </message>
    <message>
        <source>Refresh Server On Selection</source>
        <translation>Server vernieuwen bij selectie</translation>
    </message>
    <message>
        <source>Port Range:</source>
        <translation>Poortbereik:</translation>
    </message>
    <message>
        <source>Note: Port Range is dependant on the query speed.</source>
        <translation>Let op: het poortbereik hangt af van de querysnelheid.</translation>
    </message>
    <message>
        <source>Use Proxy Server for updates</source>
        <translation>Proxyserver gebruiken voor updates</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuleren</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Toepassen</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Standaardwaarden</translation>
    </message>
    <message>
        <source>Are you sure you want to reset all settings to their default values?</source>
        <translation>Weet u zeker dat u alle instellingen wilt terugzetten naar de standaardwaarden?</translation>
    </message>
    <message>
        <source>You must type a port number between %1 and %2! (Default: %3)</source>
        <translation>U moet een poortnummer tussen %1 en %2 invoeren! (Standaard: %3)</translation>
    </message>
    <message>
        <source>Servers</source>
        <translation>Servers</translation>
    </message>
    <message>
        <source>Friends</source>
        <translation>Vrienden</translation>
    </message>
    <message>
        <source>Keep passwords in the desktop&apos;s keyring</source>
        <translation>Wachtwoorden bewaren in de sleutelbos van het bureaublad</translation>
    </message>
    <message>
        <source>Unticked, or on a desktop without a keyring, the passwords are kept in the settings file as plain text.</source>
        <translation>Niet aangevinkt, of op een bureaublad zonder sleutelbos, staan de wachtwoorden leesbaar in het instellingenbestand.</translation>
    </message>
</context>
<context>
    <name>FrmUpdate</name>
    <message>
        <source>Quake 4 Vantage Update Available</source>
        <translation>Quake 4 Vantage update beschikbaar</translation>
    </message>
    <message>
        <source>An update is now available for Quake 4 Vantage, would you like to download it now?</source>
        <translation>Er is een update voor Quake 4 Vantage beschikbaar, wilt u deze nu downloaden?</translation>
    </message>
    <message>
        <source>Current Version:</source>
        <translation>Huidige versie:</translation>
    </message>
    <message>
        <source>Latest Version:</source>
        <translation>Nieuwste versie:</translation>
    </message>
    <message>
        <source>Automatically check for updates in the future</source>
        <translation>In de toekomst automatisch op updates controleren</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Ja</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Nee</translation>
    </message>
</context>
<context>
    <name>GameBox</name>
    <message>
        <source>Game:</source>
        <translation>Spel:</translation>
    </message>
    <message>
        <source>Look Again</source>
        <translation>Opnieuw zoeken</translation>
    </message>
    <message>
        <source>Looks for the game&apos;s installs on this machine again: Steam&apos;s libraries, the Linux release and Wine.</source>
        <translation>Zoekt opnieuw naar installaties van het spel op deze computer: Steam-bibliotheken, de Linux-versie en Wine.</translation>
    </message>
    <message>
        <source>Quake 4 Executable:</source>
        <translation>Quake 4-programma:</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Bladeren</translation>
    </message>
    <message>
        <source>A join runs:</source>
        <translation>Deelnemen start:</translation>
    </message>
    <message>
        <source>Looking for the game on this machine...</source>
        <translation>Spel wordt op deze computer gezocht...</translation>
    </message>
    <message>
        <source>None found</source>
        <translation>Niets gevonden</translation>
    </message>
    <message>
        <source>Ask at the first join</source>
        <translation>Vragen bij eerste keer deelnemen</translation>
    </message>
    <message>
        <source>Other program...</source>
        <translation>Ander programma...</translation>
    </message>
    <message>
        <source>No program chosen</source>
        <translation>Geen programma gekozen</translation>
    </message>
    <message>
        <source>Started in %1</source>
        <translation>Gestart in %1</translation>
    </message>
    <message>
        <source>Chosen at the first join</source>
        <translation>Gekozen bij eerste keer deelnemen</translation>
    </message>
</context>
<context>
    <name>GameChooser</name>
    <message>
        <source>The game&apos;s Windows build</source>
        <translation>De Windows-versie van het spel</translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself, and neither Steam with the game nor Wine is installed here.

Install the game in Steam (which runs it through Proton), or install Wine (Debian&apos;s package &quot;wine&quot;), or choose the Linux release&apos;s &quot;quake4&quot; instead.</source>
        <translation>%1 is de Windows-versie van het spel, die dit systeem niet zelf kan starten, en Steam met het spel noch Wine is hier geïnstalleerd.

Installeer het spel in Steam (dat het via Proton draait), of installeer Wine (Debian-pakket &quot;wine&quot;), of kies in plaats daarvan &quot;quake4&quot; van de Linux-versie.</translation>
    </message>
    <message>
        <source>Through Steam</source>
        <translation>Via Steam</translation>
    </message>
    <message>
        <source>Through Wine</source>
        <translation>Via Wine</translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself. Start it through Steam (%2) or through Wine?</source>
        <translation>%1 is de Windows-versie van het spel, die dit systeem niet zelf kan starten. Starten via Steam (%2) of via Wine?</translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself. Start it through Steam (%2)?</source>
        <translation>%1 is de Windows-versie van het spel, die dit systeem niet zelf kan starten. Starten via Steam (%2)?</translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself. Start it through Wine?</source>
        <translation>%1 is de Windows-versie van het spel, die dit systeem niet zelf kan starten. Starten via Wine?</translation>
    </message>
    <message>
        <source>Which Quake 4?</source>
        <translation>Welke Quake 4?</translation>
    </message>
    <message>
        <source>Quake 4 is installed more than once here. Which one should a join start? You can change it later in Options.</source>
        <translation>Quake 4 is hier meer dan eens geïnstalleerd. Welke moet deelnemen starten? U kunt dit later wijzigen in Opties.</translation>
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
        <translation>Linux-versie: %1</translation>
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
        <translation>Deelnemen aan server via IP-adres</translation>
    </message>
    <message>
        <source>Please enter the IP address/hostname and port of the server you wish to join</source>
        <translation>Voer het IP-adres of de hostnaam en de poort in van de server waaraan u wilt deelnemen</translation>
    </message>
    <message>
        <source>Please enter the password for this server</source>
        <translation>Voer het wachtwoord voor deze server in</translation>
    </message>
    <message>
        <source>No Password Provided</source>
        <translation>Geen wachtwoord opgegeven</translation>
    </message>
    <message>
        <source>Join Server Anyway?</source>
        <translation>Toch deelnemen aan de server?</translation>
    </message>
    <message>
        <source>Connecting to %1</source>
        <translation>Verbinden met %1</translation>
    </message>
    <message>
        <source>The game could not be started: %1 does not exist.</source>
        <translation>Het spel kon niet worden gestart: %1 bestaat niet.</translation>
    </message>
    <message>
        <source>The game could not be started: %1 is not a program.</source>
        <translation>Het spel kon niet worden gestart: %1 is geen programma.</translation>
    </message>
    <message>
        <source>The game could not be started: %1.</source>
        <translation>Het spel kon niet worden gestart: %1.</translation>
    </message>
    <message>
        <source>%1 is full.
Wait for a free slot and join as soon as one opens?</source>
        <translation>%1 is vol.
Wachten op een vrije plek en deelnemen zodra er een vrijkomt?</translation>
    </message>
    <message>
        <source>The game started, but the list of recently played servers could not be saved.</source>
        <translation>Het spel is gestart, maar de lijst van recent gespeelde servers kon niet worden opgeslagen.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a server address. Type a host name or an IP address, followed by a colon and a port from 1 to 65535 when the port is not the game&apos;s.</source>
        <translation>&quot;%1&quot; is geen serveradres. Typ een hostnaam of een IP-adres, gevolgd door een dubbele punt en een poort van 1 tot 65535 als het niet de poort van het spel is.</translation>
    </message>
    <message>
        <source>Wait for a Slot</source>
        <translation>Wachten op een plek</translation>
    </message>
    <message>
        <source>Join Anyway</source>
        <translation>Toch deelnemen</translation>
    </message>
    <message>
        <source>Looking for %1 in the game&apos;s archives...</source>
        <translation>%1 zoeken in de archieven van het spel...</translation>
    </message>
    <message>
        <source>%1 is not installed. Join anyway?</source>
        <translation>%1 is niet geïnstalleerd. Toch deelnemen?</translation>
    </message>
    <message>
        <source>%1 is not installed (mod %2). Join anyway?</source>
        <translation>%1 is niet geïnstalleerd (mod %2). Toch deelnemen?</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>geïnstalleerd</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>ontbreekt</translation>
    </message>
    <message>
        <source>Looking for the game on this machine...</source>
        <translation>Spel wordt op deze computer gezocht...</translation>
    </message>
    <message>
        <source>Using the game found on this machine: %1. Options can choose another.</source>
        <translation>Het op deze computer gevonden spel wordt gebruikt: %1. In Opties kunt u een ander kiezen.</translation>
    </message>
</context>
<context>
    <name>JoinPanel</name>
    <message>
        <source>Player Name:</source>
        <translation>Spelersnaam:</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Deelnemen</translation>
    </message>
    <message>
        <source>Join IP</source>
        <translation>Via IP</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Naam:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Wachtwoord:</translation>
    </message>
    <message>
        <source>Stop Waiting</source>
        <translation>Stop met wachten</translation>
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
        <translation>Speler</translation>
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
        <translation>Variabele</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Waarde</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Kaart</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>Spelers</translation>
    </message>
    <message>
        <source>Pw</source>
        <translation>Ww</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Soort</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Spel</translation>
    </message>
    <message>
        <source>Server IP Address</source>
        <translation>IP-adres van de server</translation>
    </message>
    <message>
        <source>Svr Ping</source>
        <translation>Srv-ping</translation>
    </message>
    <message>
        <source>Mod</source>
        <translation>Mod</translation>
    </message>
    <message>
        <source>Server Name</source>
        <translation>Servernaam</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Wachtwoord</translation>
    </message>
    <message>
        <source>Last Played</source>
        <translation>Laatst gespeeld</translation>
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
        <translation>&amp;Toevoegen aan favorieten</translation>
    </message>
    <message>
        <source>&amp;Select Server</source>
        <translation>&amp;Server selecteren</translation>
    </message>
    <message>
        <source>The favourites file could not be written.</source>
        <translation>Het favorietenbestand kon niet worden geschreven.</translation>
    </message>
    <message>
        <source>Add To F&amp;riends</source>
        <translation>Toevoegen aan v&amp;rienden</translation>
    </message>
    <message>
        <source>%1 is one of your friends already.</source>
        <translation>%1 is al een van uw vrienden.</translation>
    </message>
    <message>
        <source>Your friends could not be saved.</source>
        <translation>Uw vrienden konden niet worden opgeslagen.</translation>
    </message>
    <message>
        <source>%1 was added to your friends.</source>
        <translation>%1 is toegevoegd aan uw vrienden.</translation>
    </message>
    <message>
        <source>&amp;Join</source>
        <translation>&amp;Deelnemen</translation>
    </message>
    <message>
        <source>R&amp;efresh</source>
        <translation>V&amp;ernieuwen</translation>
    </message>
    <message>
        <source>%1 was added to your favourites.</source>
        <translation>%1 is toegevoegd aan uw favorieten.</translation>
    </message>
    <message>
        <source>C&amp;olumns</source>
        <translation>K&amp;olommen</translation>
    </message>
    <message>
        <source>Filter By This &amp;Map</source>
        <translation>Filteren op deze &amp;kaart</translation>
    </message>
</context>
<context>
    <name>ListTabs</name>
    <message>
        <source>Players</source>
        <translation>Spelers</translation>
    </message>
    <message>
        <source>Servers</source>
        <translation>Servers</translation>
    </message>
    <message>
        <source>Hide empty</source>
        <translation>Lege verbergen</translation>
    </message>
    <message>
        <source>Servers without players are not listed (the filters&apos; &quot;Empty&quot; box)</source>
        <translation>Servers zonder spelers worden niet getoond (het vakje &quot;Leeg&quot; van de filters)</translation>
    </message>
    <message>
        <source>Hide full</source>
        <translation>Volle verbergen</translation>
    </message>
    <message>
        <source>Full servers are not listed (the filters&apos; &quot;Full&quot; box)</source>
        <translation>Volle servers worden niet getoond (het vakje &quot;Vol&quot; van de filters)</translation>
    </message>
    <message>
        <source>The settings could not be saved, so the list stays as it was.</source>
        <translation>De instellingen konden niet worden opgeslagen, dus de lijst blijft zoals hij was.</translation>
    </message>
</context>
<context>
    <name>QueryBar</name>
    <message>
        <source>Cancel Query</source>
        <translation>Annuleer Query</translation>
    </message>
    <message>
        <source>Query Masters</source>
        <translation>Query Masters</translation>
    </message>
    <message>
        <source>Query Favourites</source>
        <translation>Query Favorieten</translation>
    </message>
    <message>
        <source>Query LAN</source>
        <translation>LAN doorzoeken</translation>
    </message>
    <message>
        <source>Find the servers of your local network</source>
        <translation>De servers van uw lokale netwerk vinden</translation>
    </message>
    <message>
        <source>Quake 4 Vantage</source>
        <translation>Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>Opties...</translation>
    </message>
</context>
<context>
    <name>QueryController</name>
    <message>
        <source>Done</source>
        <translation>Klaar</translation>
    </message>
    <message>
        <source>Master Servers Timed Out</source>
        <translation>Time-out bij de masterservers</translation>
    </message>
    <message>
        <source>The start port %1 is not valid. Choose another in the options.</source>
        <translation>De startpoort %1 is ongeldig. Kies een andere in de opties.</translation>
    </message>
    <message>
        <source>No favourites yet: right-click a server and choose &quot;Add To Favourites&quot;.</source>
        <translation>Nog geen favorieten: klik met de rechtermuisknop op een server en kies &apos;Toevoegen aan favorieten&apos;.</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Geannuleerd</translation>
    </message>
    <message>
        <source>Requesting Server List from
%1</source>
        <translation>Serverlijst opvragen bij
%1</translation>
    </message>
    <message>
        <source>Receiving Server List from
%1</source>
        <translation>Serverlijst ontvangen van
%1</translation>
    </message>
    <message>
        <source>Sorting IP Address Lists
%1</source>
        <translation>IP-adreslijsten sorteren
%1</translation>
    </message>
    <message>
        <source>No local network to search: no network interface can broadcast.</source>
        <translation>Geen lokaal netwerk om te doorzoeken: geen netwerkinterface kan broadcasten.</translation>
    </message>
    <message>
        <source>Searching the local network...</source>
        <translation>Lokaal netwerk wordt doorzocht...</translation>
    </message>
    <message>
        <source>No servers played yet: the servers you join are kept in &quot;Recently Played&quot;.</source>
        <translation>Nog geen servers gespeeld: de servers waaraan u deelneemt, staan onder &apos;Recent gespeeld&apos;.</translation>
    </message>
    <message>
        <source>No server answered on the local network; the list is as it was.</source>
        <translation>Geen server antwoordde op het lokale netwerk; de lijst blijft zoals ze was.</translation>
    </message>
</context>
<context>
    <name>QueryError</name>
    <message>
        <source>Local port %1 cannot be used (%2). Choose another start port in the options.</source>
        <translation>Lokale poort %1 kan niet worden gebruikt (%2). Kies een andere startpoort in de opties.</translation>
    </message>
    <message>
        <source>The master server listed more than %1 servers; the list was not used.</source>
        <translation>De masterserver gaf meer dan %1 servers; de lijst is niet gebruikt.</translation>
    </message>
    <message>
        <source>Master server %1 not found (%2).</source>
        <translation>Masterserver %1 niet gevonden (%2).</translation>
    </message>
    <message>
        <source>The master server address &quot;%1&quot; is not valid.</source>
        <translation>Het masterserveradres &apos;%1&apos; is ongeldig.</translation>
    </message>
</context>
<context>
    <name>ServerDetails</name>
    <message>
        <source>Players of the selected server</source>
        <translation>Spelers van de geselecteerde server</translation>
    </message>
    <message>
        <source>Rules of the selected server</source>
        <translation>Regels van de geselecteerde server</translation>
    </message>
    <message>
        <source>Add To F&amp;riends</source>
        <translation>Toevoegen aan v&amp;rienden</translation>
    </message>
    <message>
        <source>map on this machine</source>
        <translation>kaart op deze computer</translation>
    </message>
</context>
<context>
    <name>ServerListFetch</name>
    <message>
        <source>no reply within %1 seconds</source>
        <translation>geen antwoord binnen %1 seconden</translation>
    </message>
    <message>
        <source>the reply is larger than %1 MiB</source>
        <translation>het antwoord is groter dan %1 MiB</translation>
    </message>
</context>
<context>
    <name>ServerListModel</name>
    <message>
        <source>No answer to the last refresh; last seen at %1</source>
        <translation>Geen antwoord op de laatste vernieuwing; laatst gezien om %1</translation>
    </message>
    <message>
        <source>One of your favourites</source>
        <translation>Een van uw favorieten</translation>
    </message>
    <message>
        <source>Full: %1 of %2 players</source>
        <translation>Vol: %1 van %2 spelers</translation>
    </message>
</context>
<context>
    <name>ServerMemory</name>
    <message>
        <source>The servers that answered could not be remembered in %1.</source>
        <translation>De servers die antwoordden konden niet worden onthouden in %1.</translation>
    </message>
</context>
<context>
    <name>ServerRulesModel</name>
    <message>
        <source>True</source>
        <translation>Waar</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Onwaar</translation>
    </message>
</context>
<context>
    <name>ServerSelection</name>
    <message>
        <source>Server Name:</source>
        <translation>Servernaam:</translation>
    </message>
</context>
<context>
    <name>ServerSources</name>
    <message>
        <source>did not answer</source>
        <translation>heeft niet geantwoord</translation>
    </message>
    <message>
        <source>known servers</source>
        <translation>bekende servers</translation>
    </message>
</context>
<context>
    <name>ServersTab</name>
    <message>
        <source>Master servers, all asked at once:</source>
        <translation>Masterservers, allemaal tegelijk gevraagd:</translation>
    </message>
    <message>
        <source>Master Server</source>
        <translation>Masterserver</translation>
    </message>
    <message>
        <source>Host name or address of a master server, with :port when it is not %1:</source>
        <translation>Hostnaam of adres van een masterserver, met :poort als die niet %1 is:</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a master server address. Type a host name or an IP address, followed by a colon and a port from 1 to 65535 when the port is not %2.</source>
        <translation>&quot;%1&quot; is geen adres van een masterserver. Typ een hostnaam of een IP-adres, gevolgd door een dubbele punt en een poort van 1 tot 65535 als de poort niet %2 is.</translation>
    </message>
    <message>
        <source>Server lists on the web, fetched alongside:</source>
        <translation>Serverlijsten op het web, tegelijk opgehaald:</translation>
    </message>
    <message>
        <source>Server List</source>
        <translation>Serverlijst</translation>
    </message>
    <message>
        <source>Web address of a server list (JSON or one host:port per line):</source>
        <translation>Webadres van een serverlijst (JSON of één host:poort per regel):</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a web address. Type an address that begins with http:// or https://.</source>
        <translation>&quot;%1&quot; is geen webadres. Typ een adres dat begint met http:// of https://.</translation>
    </message>
    <message>
        <source>Remember servers that answered and query them again</source>
        <translation>Servers onthouden die antwoordden en ze opnieuw bevragen</translation>
    </message>
    <message>
        <source>Forget known servers</source>
        <translation>Bekende servers vergeten</translation>
    </message>
    <message numerus="yes">
        <source>Forget the %n servers that answered before? Query Masters asks them again only when a master or a server list names them.</source>
        <translation>
            <numerusform>De %n server vergeten die eerder antwoordde? Query Masters vraagt hem alleen opnieuw als een master of een serverlijst hem noemt.</numerusform>
            <numerusform>De %n servers vergeten die eerder antwoordden? Query Masters vraagt ze alleen opnieuw als een master of een serverlijst ze noemt.</numerusform>
        </translation>
    </message>
    <message>
        <source>The known servers could not be removed from %1.</source>
        <translation>De bekende servers konden niet uit %1 worden verwijderd.</translation>
    </message>
    <message>
        <source>No servers known yet.</source>
        <translation>Nog geen servers bekend.</translation>
    </message>
    <message numerus="yes">
        <source>%n servers known.</source>
        <translation>
            <numerusform>%n server bekend.</numerusform>
            <numerusform>%n servers bekend.</numerusform>
        </translation>
    </message>
    <message>
        <source>At most %1 master servers are asked. Remove one before adding another.</source>
        <translation>Er worden hoogstens %1 masterservers gevraagd. Verwijder er een voordat u een andere toevoegt.</translation>
    </message>
    <message>
        <source>At most %1 server lists are fetched. Remove one before adding another.</source>
        <translation>Er worden hoogstens %1 serverlijsten opgehaald. Verwijder er een voordat u een andere toevoegt.</translation>
    </message>
</context>
<context>
    <name>SlotWaiter</name>
    <message>
        <source>No slot came free on %1 in 30 minutes: stopped waiting.</source>
        <translation>Er kwam in 30 minuten geen plek vrij op %1: wachten gestopt.</translation>
    </message>
    <message>
        <source>%1 is full (%2): waiting for a free slot...</source>
        <translation>%1 is vol (%2): wachten op een vrije plek...</translation>
    </message>
    <message>
        <source>Stopped waiting for a free slot.</source>
        <translation>Wachten op een vrije plek gestopt.</translation>
    </message>
</context>
<context>
    <name>SourceStatus</name>
    <message>
        <source>%1: no answer yet</source>
        <translation>%1: nog geen antwoord</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
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
            <numerusform>(%n regel overgeslagen)</numerusform>
            <numerusform>(%n regels overgeslagen)</numerusform>
        </translation>
    </message>
    <message>
        <source>(list cut at %1)</source>
        <translation>(lijst afgekapt op %1)</translation>
    </message>
    <message>
        <source>Querying %1 Servers...</source>
        <translation>%1 servers worden bevraagd...</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>Wachten op %1</translation>
    </message>
    <message>
        <source>No list from %1</source>
        <translation>Geen lijst van %1</translation>
    </message>
    <message>
        <source>Master Servers Timed Out</source>
        <translation>Time-out bij de masterservers</translation>
    </message>
    <message>
        <source>Check the network connection, or add a master server or a server list that works in Options, on the &quot;Servers&quot; tab.</source>
        <translation>Controleer de netwerkverbinding, of voeg in Opties, op het tabblad &quot;Servers&quot;, een masterserver of een serverlijst toe die werkt.</translation>
    </message>
    <message>
        <source>%1 not found</source>
        <translation>%1 niet gevonden</translation>
    </message>
    <message>
        <source>%1 did not answer</source>
        <translation>%1 antwoordde niet</translation>
    </message>
    <message>
        <source>Options, &quot;Servers&quot; tab, adds sources</source>
        <translation>Opties, tabblad &quot;Servers&quot;, voegt bronnen toe</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 en nog %n</numerusform>
            <numerusform>%1 en nog %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more master servers left out: at most %1 are asked.</source>
        <translation>
            <numerusform>Nog %n masterserver weggelaten: er worden hoogstens %1 gevraagd.</numerusform>
            <numerusform>Nog %n masterservers weggelaten: er worden hoogstens %1 gevraagd.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more server lists left out: at most %1 are fetched.</source>
        <translation>
            <numerusform>Nog %n serverlijst weggelaten: er worden hoogstens %1 opgehaald.</numerusform>
            <numerusform>Nog %n serverlijsten weggelaten: er worden hoogstens %1 opgehaald.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>... and %n more (the status line&apos;s tooltip lists them all)</source>
        <translation>
            <numerusform>... en nog %n (de tooltip van de statusregel noemt ze allemaal)</numerusform>
            <numerusform>... en nog %n (de tooltip van de statusregel noemt ze allemaal)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThemeFile</name>
    <message>
        <source>Dark</source>
        <translation>Donker</translation>
    </message>
    <message>
        <source>Desktop Colours</source>
        <translation>Kleuren van het bureaublad</translation>
    </message>
</context>
<context>
    <name>ThemeTab</name>
    <message>
        <source>Form Back Colour</source>
        <translation>Achtergrond van vensters</translation>
    </message>
    <message>
        <source>List Back Colour</source>
        <translation>Achtergrond van lijsten</translation>
    </message>
    <message>
        <source>List Text Colour</source>
        <translation>Tekst van lijsten</translation>
    </message>
    <message>
        <source>Text Box Back Colour</source>
        <translation>Achtergrond van tekstvakken</translation>
    </message>
    <message>
        <source>Text Box Text Colour</source>
        <translation>Tekst van tekstvakken</translation>
    </message>
    <message>
        <source>Progress Bar Back Colour</source>
        <translation>Achtergrond van voortgangsbalk</translation>
    </message>
    <message>
        <source>Progress Bar Bar Colour</source>
        <translation>Kleur van voortgangsbalk</translation>
    </message>
    <message>
        <source>Progress Bar Type:</source>
        <translation>Soort voortgangsbalk:</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Normaal</translation>
    </message>
    <message>
        <source>Segmented</source>
        <translation>Gesegmenteerd</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Vloeiend</translation>
    </message>
    <message>
        <source>Tab Style:</source>
        <translation>Tabstijl:</translation>
    </message>
    <message>
        <source>Small Tabs</source>
        <translation>Kleine tabs</translation>
    </message>
    <message>
        <source>Large Tabs</source>
        <translation>Grote tabs</translation>
    </message>
    <message>
        <source>Saved Themes:</source>
        <translation>Opgeslagen thema&apos;s:</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Opslaan</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Verwijderen</translation>
    </message>
    <message>
        <source>Save Theme</source>
        <translation>Thema opslaan</translation>
    </message>
    <message>
        <source>Please enter a name for this theme</source>
        <translation>Voer een naam in voor dit thema</translation>
    </message>
    <message>
        <source>The themes could not be saved to %1; the other settings are not affected.</source>
        <translation>De thema&apos;s konden niet in %1 worden opgeslagen; de andere instellingen blijven ongewijzigd.</translation>
    </message>
</context>
<context>
    <name>UpdateFlow</name>
    <message>
        <source>Quake 4 Vantage Update</source>
        <translation>Quake 4 Vantage update</translation>
    </message>
    <message>
        <source>The installer came without encryption (plain HTTP), so it will not be started. It was saved to %1.</source>
        <translation>Het installatieprogramma kwam zonder versleuteling (gewoon HTTP) en wordt daarom niet gestart. Het is opgeslagen in %1.</translation>
    </message>
    <message>
        <source>The installer was saved to %1, but it cannot be started on this system.</source>
        <translation>Het installatieprogramma is opgeslagen in %1, maar kan op dit systeem niet worden gestart.</translation>
    </message>
    <message>
        <source>The site did not say how large the installer is, so whether all of it arrived cannot be checked, and it will not be started. It was saved to %1.</source>
        <translation>De site gaf de grootte van het installatieprogramma niet op; of alles aankwam valt niet na te gaan, dus het wordt niet gestart. Het is opgeslagen in %1.</translation>
    </message>
</context>
</TS>
