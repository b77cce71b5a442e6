<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>AddressListEditor</name>
    <message>
        <source>Add...</source>
        <translation>Aggiungi...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Modifica...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
</context>
<context>
    <name>AutoRefresh</name>
    <message>
        <source>%1 is playing on %2</source>
        <translation>%1 sta giocando su %2</translation>
    </message>
    <message>
        <source>%1 has %2 players</source>
        <translation>%1 ha %2 giocatori</translation>
    </message>
    <message>
        <source>Quake 4 Vantage</source>
        <translation>Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Refreshed at %1
%2 of %3 servers answered</source>
        <translation>Aggiornato alle %1
hanno risposto %2 server su %3</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>e %n altro</numerusform>
            <numerusform>e altri %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CopyCommands</name>
    <message>
        <source>Copy Cell</source>
        <translation>Copia cella</translation>
    </message>
    <message>
        <source>Copy Column</source>
        <translation>Copia colonna</translation>
    </message>
    <message>
        <source>Copy Row</source>
        <translation>Copia riga</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>Copia tutto</translation>
    </message>
</context>
<context>
    <name>Countries</name>
    <message>
        <source>Countries: %1</source>
        <translation>Paesi: %1</translation>
    </message>
    <message>
        <source>Countries: no location database is set, so no flags are shown.</source>
        <translation>Paesi: nessun database di localizzazione impostato, quindi nessuna bandiera.</translation>
    </message>
    <message>
        <source>Countries: no flags are shown, as %1 (the package libloc-database installs one).</source>
        <translation>Paesi: nessuna bandiera, perché %1 (il pacchetto libloc-database ne installa uno).</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Select your Quake 4 Executable</source>
        <translation>Seleziona l&apos;eseguibile di Quake 4</translation>
    </message>
    <message>
        <source>Quake 4 Executable (%1)</source>
        <translation>Eseguibile di Quake 4 (%1)</translation>
    </message>
</context>
<context>
    <name>DialogBar</name>
    <message>
        <source>%1 is not listed now: &quot;Query Recently Played&quot; asks every server you played on.</source>
        <translation>%1 non è in elenco ora: «Interroga Giocati di recente» interroga ogni server su cui hai giocato.</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Preferiti</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtri</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Recently Played</source>
        <translation>Giocati di recente</translation>
    </message>
    <message numerus="yes">
        <source>%n hidden by filters</source>
        <translation>
            <numerusform>%n nascosto dai filtri</numerusform>
            <numerusform>%n nascosti dai filtri</numerusform>
        </translation>
    </message>
    <message>
        <source>Servers that answered but do not pass the filters. &quot;Filters&quot; shows them.</source>
        <translation>Server che hanno risposto ma non superano i filtri. «Filtri» li mostra.</translation>
    </message>
</context>
<context>
    <name>Downloader</name>
    <message>
        <source>The site sent an empty file.</source>
        <translation>Il sito ha inviato un file vuoto.</translation>
    </message>
    <message>
        <source>%1 of %2 bytes arrived.</source>
        <translation>Sono arrivati %1 byte su %2.</translation>
    </message>
    <message>
        <source>The installer is larger than %1 MB.</source>
        <translation>Il programma di installazione supera %1 MB.</translation>
    </message>
    <message>
        <source>The site sent more than the %1 bytes it announced.</source>
        <translation>Il sito ha inviato più dei %1 byte annunciati.</translation>
    </message>
</context>
<context>
    <name>EditableListDialog</name>
    <message>
        <source>Edit Cell</source>
        <translation>Modifica cella</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find</source>
        <translation>Cerca</translation>
    </message>
    <message>
        <source>Text Not Found</source>
        <translation>Testo Non Cercato</translation>
    </message>
    <message>
        <source>Next Friend</source>
        <translation>Amico successivo</translation>
    </message>
    <message>
        <source>Select the next listed friend</source>
        <translation>Seleziona il prossimo amico in elenco</translation>
    </message>
    <message>
        <source>No friends yet: right-click a player and choose &quot;Add To Friends&quot;.</source>
        <translation>Ancora nessun amico: fai clic destro su un giocatore e scegli «Aggiungi agli amici».</translation>
    </message>
    <message>
        <source>None of your friends is listed.</source>
        <translation>Nessuno dei tuoi amici è in elenco.</translation>
    </message>
</context>
<context>
    <name>FriendsTab</name>
    <message>
        <source>Friends (names, or patterns such as *Bob*):</source>
        <translation>Amici (nomi, o modelli come *Bob*):</translation>
    </message>
    <message>
        <source>Friend</source>
        <translation>Amico</translation>
    </message>
    <message>
        <source>Name of a friend as the player list shows it, or a pattern such as *Hammer*:</source>
        <translation>Nome di un amico come appare nell&apos;elenco dei giocatori, o un modello come *Hammer*:</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a control character. Type a name or a pattern.</source>
        <translation>«%1» contiene un carattere di controllo. Scrivi un nome o un modello.</translation>
    </message>
    <message>
        <source>Refresh the listed servers:</source>
        <translation>Aggiorna i server in elenco:</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Mai</translation>
    </message>
    <message numerus="yes">
        <source>Every %n minutes</source>
        <translation>
            <numerusform>Ogni %n minuti</numerusform>
            <numerusform>Ogni %n minuti</numerusform>
        </translation>
    </message>
    <message>
        <source>Tell me when a friend starts playing</source>
        <translation>Avvisami quando un amico inizia a giocare</translation>
    </message>
    <message>
        <source>Tell me when a favourite server has</source>
        <translation>Avvisami quando un server preferito ha</translation>
    </message>
    <message>
        <source>players or more</source>
        <translation>giocatori o più</translation>
    </message>
    <message>
        <source>Notifications come with the automatic refresh.</source>
        <translation>Le notifiche arrivano con l&apos;aggiornamento automatico.</translation>
    </message>
    <message>
        <source>Offer to wait for a slot on a full server</source>
        <translation>Offri di attendere un posto su un server pieno</translation>
    </message>
    <message>
        <source>Every minute</source>
        <translation>Ogni minuto</translation>
    </message>
</context>
<context>
    <name>FrmAbout</name>
    <message>
        <source>About Quake 4 Vantage</source>
        <translation>Informazioni su Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Quake 4 Vantage</source>
        <translation>Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versione %1</translation>
    </message>
    <message>
        <source>A server browser for Quake 4: finds servers and players, and joins a game with a double click.</source>
        <translation>Un browser di server per Quake 4: trova server e giocatori ed entra in una partita con un doppio clic.</translation>
    </message>
    <message>
        <source>Built with Qt %1, running on Qt %2.</source>
        <translation>Compilato con Qt %1, in esecuzione su Qt %2.</translation>
    </message>
    <message>
        <source>Licence: %1</source>
        <translation>Licenza: %1</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Sito web</translation>
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
        <translation>Errore durante lo scaricamento</translation>
    </message>
    <message>
        <source>The installer could not be saved to %1 (%2).</source>
        <translation>Non è stato possibile salvare il programma di installazione in %1 (%2).</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Completato</translation>
    </message>
    <message>
        <source>Downloading v%1
%2 of %3</source>
        <translation>Scaricamento v%1
%2 di %3</translation>
    </message>
    <message>
        <source>Quake 4 Vantage Update</source>
        <translation>Aggiornamento di Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Downloading Quake 4 Vantage v%1</source>
        <translation>Scaricamento di Quake 4 Vantage v%1</translation>
    </message>
    <message>
        <source>Connecting to download site...</source>
        <translation>Connessione al sito di download...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message numerus="yes">
        <source>Downloading v%1
%n bytes</source>
        <translation>
            <numerusform>Download della v%1
%n byte</numerusform>
            <numerusform>Download della v%1
%n byte</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FrmFavourites</name>
    <message>
        <source>This favourites file is larger than the editor reads (%1 servers or %2 MB). It is shown in part and not saved, so that no server is lost.</source>
        <translation>Questo file dei preferiti è più grande di quanto l&apos;editor legga (%1 server o %2 MB). Viene mostrato solo in parte e non viene salvato, così nessun server va perso.</translation>
    </message>
    <message>
        <source>The favourites could not be saved to %1. Your changes are still here.</source>
        <translation>Impossibile salvare i preferiti in %1. Le modifiche sono ancora qui.</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Preferiti</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>New Server</source>
        <translation>Nuovo server</translation>
    </message>
    <message numerus="yes">
        <source>%n servers added elsewhere since this list was opened are kept as well.</source>
        <translation>
            <numerusform>%n server aggiunto altrove dopo l&apos;apertura di questo elenco viene mantenuto.</numerusform>
            <numerusform>%n server aggiunti altrove dopo l&apos;apertura di questo elenco vengono mantenuti.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a server address. Type a host name or an IP address, followed by a colon and a port from 1 to 65535.</source>
        <translation>&quot;%1&quot; non è un indirizzo di server. Digitare un nome host o un indirizzo IP, seguito da due punti e da una porta da 1 a 65535.</translation>
    </message>
</context>
<context>
    <name>FrmFilters</name>
    <message>
        <source>Filters</source>
        <translation>Filtri</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nuovo</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Built in filters:</source>
        <translation>Filtri predefiniti:</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vuoti</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Pieni</translation>
    </message>
    <message>
        <source>Passworded</source>
        <translation>Con password</translation>
    </message>
    <message>
        <source>Example 1: si_map                 mp/q4dm5</source>
        <translation>Esempio 1: si_map                 mp/q4dm5</translation>
    </message>
    <message>
        <source>Example 2: sv_punkbuster     1</source>
        <translation>Esempio 2: sv_punkbuster     1</translation>
    </message>
    <message>
        <source>The filters could not be saved to %1; this change lasts until the program ends.</source>
        <translation>Impossibile salvare i filtri in %1; questa modifica vale solo fino alla chiusura del programma.</translation>
    </message>
    <message>
        <source>(ticked: listed)</source>
        <translation>(spuntato: elencato)</translation>
    </message>
    <message>
        <source>Ticked: servers without players are listed; unticked: they are hidden</source>
        <translation>Spuntato: i server senza giocatori sono elencati; non spuntato: sono nascosti</translation>
    </message>
    <message>
        <source>Ticked: full servers are listed; unticked: they are hidden</source>
        <translation>Spuntato: i server pieni sono elencati; non spuntato: sono nascosti</translation>
    </message>
    <message>
        <source>Ticked: servers with a password are listed; unticked: they are hidden</source>
        <translation>Spuntato: i server con password sono elencati; non spuntato: sono nascosti</translation>
    </message>
    <message>
        <source>The settings could not be saved; this change lasts until the program ends.</source>
        <translation>Non è stato possibile salvare le impostazioni; questa modifica vale fino alla chiusura del programma.</translation>
    </message>
</context>
<context>
    <name>FrmHistory</name>
    <message>
        <source>Recently Played</source>
        <translation>Giocati di recente</translation>
    </message>
    <message>
        <source>No servers yet: every server you join from this program is listed here.</source>
        <translation>Ancora nessun server: ogni server a cui ti unisci da questo programma compare qui.</translation>
    </message>
    <message>
        <source>Query Recently Played</source>
        <translation>Interroga Giocati di recente</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message>
        <source>The list could not be saved to %1.</source>
        <translation>Impossibile salvare l&apos;elenco in %1.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
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
        <translation>Informazioni su Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Esci</translation>
    </message>
    <message numerus="yes">
        <source>%n servers found</source>
        <translation>
            <numerusform>%n server trovato</numerusform>
            <numerusform>%n server trovati</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n players found</source>
        <translation>
            <numerusform>%n giocatore trovato</numerusform>
            <numerusform>%n giocatori trovati</numerusform>
        </translation>
    </message>
    <message>
        <source>Only servers on %1 are listed now; &quot;Filters&quot; takes the filter away.</source>
        <translation>Ora sono elencati solo i server su %1; in «Filtri» si toglie il filtro.</translation>
    </message>
</context>
<context>
    <name>FrmOptions</name>
    <message>
        <source>Options</source>
        <translation>Opzioni</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Impostazioni</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Lingua:</translation>
    </message>
    <message>
        <source>Query Speed:</source>
        <translation>Velocità di interrogazione:</translation>
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
        <translation>ADSL (256k)</translation>
    </message>
    <message>
        <source>DSL (512k)</source>
        <translation>ADSL (512k)</translation>
    </message>
    <message>
        <source>Maximum</source>
        <translation>Massima</translation>
    </message>
    <message>
        <source>Automatically Check For Updates</source>
        <translation>Controlla automaticamente gli aggiornamenti</translation>
    </message>
    <message>
        <source>Close After Joining</source>
        <translation>Chiudi dopo l&apos;ingresso</translation>
    </message>
    <message>
        <source>Refresh Server On Selection</source>
        <translation>Aggiorna il server selezionato</translation>
    </message>
    <message>
        <source>Port Range:</source>
        <translation>Intervallo di porte:</translation>
    </message>
    <message>
        <source>Note: Port Range is dependant on the query speed.</source>
        <translation>Nota: l&apos;intervallo di porte dipende dalla velocità di interrogazione.</translation>
    </message>
    <message>
        <source>Use Proxy Server for updates</source>
        <translation>Usa un server proxy per gli aggiornamenti</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Applica</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Predefiniti</translation>
    </message>
    <message>
        <source>Are you sure you want to reset all settings to their default values?</source>
        <translation>Vuoi davvero riportare tutte le impostazioni ai valori predefiniti?</translation>
    </message>
    <message>
        <source>You must type a port number between %1 and %2! (Default: %3)</source>
        <translation>Devi inserire un numero di porta tra %1 e %2! (Predefinito: %3)</translation>
    </message>
    <message>
        <source>Servers</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Friends</source>
        <translation>Amici</translation>
    </message>
    <message>
        <source>Keep passwords in the desktop&apos;s keyring</source>
        <translation>Conserva le password nel portachiavi del desktop</translation>
    </message>
    <message>
        <source>Unticked, or on a desktop without a keyring, the passwords are kept in the settings file as plain text.</source>
        <translation>Se non spuntato, o su un desktop senza portachiavi, le password restano in chiaro nel file delle impostazioni.</translation>
    </message>
</context>
<context>
    <name>FrmUpdate</name>
    <message>
        <source>Quake 4 Vantage Update Available</source>
        <translation>Aggiornamento di Quake 4 Vantage disponibile</translation>
    </message>
    <message>
        <source>An update is now available for Quake 4 Vantage, would you like to download it now?</source>
        <translation>È disponibile un aggiornamento di Quake 4 Vantage, vuoi scaricarlo ora?</translation>
    </message>
    <message>
        <source>Current Version:</source>
        <translation>Versione attuale:</translation>
    </message>
    <message>
        <source>Latest Version:</source>
        <translation>Ultima versione:</translation>
    </message>
    <message>
        <source>Automatically check for updates in the future</source>
        <translation>Controlla automaticamente gli aggiornamenti in futuro</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sì</translation>
    </message>
    <message>
        <source>No</source>
        <translation>No</translation>
    </message>
</context>
<context>
    <name>GameBox</name>
    <message>
        <source>Game:</source>
        <translation>Gioco:</translation>
    </message>
    <message>
        <source>Look Again</source>
        <translation>Cerca di nuovo</translation>
    </message>
    <message>
        <source>Looks for the game&apos;s installs on this machine again: Steam&apos;s libraries, the Linux release and Wine.</source>
        <translation>Cerca di nuovo le installazioni del gioco su questo computer: librerie di Steam, versione Linux e Wine.</translation>
    </message>
    <message>
        <source>Quake 4 Executable:</source>
        <translation>Eseguibile di Quake 4:</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Sfoglia</translation>
    </message>
    <message>
        <source>A join runs:</source>
        <translation>Entrare avvia:</translation>
    </message>
    <message>
        <source>Looking for the game on this machine...</source>
        <translation>Ricerca del gioco su questo computer...</translation>
    </message>
    <message>
        <source>None found</source>
        <translation>Nessuno trovato</translation>
    </message>
    <message>
        <source>Ask at the first join</source>
        <translation>Chiedi al primo ingresso</translation>
    </message>
    <message>
        <source>Other program...</source>
        <translation>Altro programma...</translation>
    </message>
    <message>
        <source>No program chosen</source>
        <translation>Nessun programma scelto</translation>
    </message>
    <message>
        <source>Started in %1</source>
        <translation>Avviato in %1</translation>
    </message>
    <message>
        <source>Chosen at the first join</source>
        <translation>Scelto al primo ingresso</translation>
    </message>
</context>
<context>
    <name>GameChooser</name>
    <message>
        <source>The game&apos;s Windows build</source>
        <translation>La versione Windows del gioco</translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself, and neither Steam with the game nor Wine is installed here.

Install the game in Steam (which runs it through Proton), or install Wine (Debian&apos;s package &quot;wine&quot;), or choose the Linux release&apos;s &quot;quake4&quot; instead.</source>
        <translation>%1 è la versione Windows del gioco, che questo sistema non può avviare da solo, e qui non sono installati né Steam con il gioco né Wine.

Installa il gioco in Steam (che lo esegue con Proton), oppure installa Wine (pacchetto Debian &quot;wine&quot;), oppure scegli &quot;quake4&quot; della versione Linux.</translation>
    </message>
    <message>
        <source>Through Steam</source>
        <translation>Con Steam</translation>
    </message>
    <message>
        <source>Through Wine</source>
        <translation>Con Wine</translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself. Start it through Steam (%2) or through Wine?</source>
        <translation>%1 è la versione Windows del gioco, che questo sistema non può avviare da solo. Avviarla con Steam (%2) o con Wine?</translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself. Start it through Steam (%2)?</source>
        <translation>%1 è la versione Windows del gioco, che questo sistema non può avviare da solo. Avviarla con Steam (%2)?</translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself. Start it through Wine?</source>
        <translation>%1 è la versione Windows del gioco, che questo sistema non può avviare da solo. Avviarla con Wine?</translation>
    </message>
    <message>
        <source>Which Quake 4?</source>
        <translation>Quale Quake 4?</translation>
    </message>
    <message>
        <source>Quake 4 is installed more than once here. Which one should a join start? You can change it later in Options.</source>
        <translation>Quake 4 è installato più volte qui. Quale avviare per entrare? Puoi cambiarlo più tardi nelle Opzioni.</translation>
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
        <translation>Versione Linux: %1</translation>
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
        <translation>Entra in un server tramite indirizzo IP</translation>
    </message>
    <message>
        <source>Please enter the IP address/hostname and port of the server you wish to join</source>
        <translation>Inserisci l&apos;indirizzo IP o il nome host e la porta del server in cui vuoi entrare</translation>
    </message>
    <message>
        <source>Please enter the password for this server</source>
        <translation>Inserisci la password di questo server</translation>
    </message>
    <message>
        <source>No Password Provided</source>
        <translation>Nessuna password inserita</translation>
    </message>
    <message>
        <source>Join Server Anyway?</source>
        <translation>Entrare comunque nel server?</translation>
    </message>
    <message>
        <source>Connecting to %1</source>
        <translation>Connessione a %1</translation>
    </message>
    <message>
        <source>The game could not be started: %1 does not exist.</source>
        <translation>Impossibile avviare il gioco: %1 non esiste.</translation>
    </message>
    <message>
        <source>The game could not be started: %1 is not a program.</source>
        <translation>Impossibile avviare il gioco: %1 non è un programma.</translation>
    </message>
    <message>
        <source>The game could not be started: %1.</source>
        <translation>Impossibile avviare il gioco: %1.</translation>
    </message>
    <message>
        <source>%1 is full.
Wait for a free slot and join as soon as one opens?</source>
        <translation>%1 è pieno.
Attendere un posto libero ed entrare appena se ne libera uno?</translation>
    </message>
    <message>
        <source>The game started, but the list of recently played servers could not be saved.</source>
        <translation>Il gioco è partito, ma non è stato possibile salvare l&apos;elenco dei server giocati di recente.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a server address. Type a host name or an IP address, followed by a colon and a port from 1 to 65535 when the port is not the game&apos;s.</source>
        <translation>&quot;%1&quot; non è un indirizzo di server. Digitare un nome host o un indirizzo IP, seguito da due punti e da una porta da 1 a 65535 se non è quella del gioco.</translation>
    </message>
    <message>
        <source>Wait for a Slot</source>
        <translation>Attendi un posto</translation>
    </message>
    <message>
        <source>Join Anyway</source>
        <translation>Entra comunque</translation>
    </message>
    <message>
        <source>Looking for %1 in the game&apos;s archives...</source>
        <translation>Ricerca di %1 negli archivi del gioco...</translation>
    </message>
    <message>
        <source>%1 is not installed. Join anyway?</source>
        <translation>%1 non è installata. Entrare comunque?</translation>
    </message>
    <message>
        <source>%1 is not installed (mod %2). Join anyway?</source>
        <translation>%1 non è installata (mod %2). Entrare comunque?</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>installata</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>mancante</translation>
    </message>
    <message>
        <source>Looking for the game on this machine...</source>
        <translation>Ricerca del gioco su questo computer...</translation>
    </message>
    <message>
        <source>Using the game found on this machine: %1. Options can choose another.</source>
        <translation>Uso del gioco trovato su questo computer: %1. Nelle Opzioni se ne può scegliere un altro.</translation>
    </message>
</context>
<context>
    <name>JoinPanel</name>
    <message>
        <source>Player Name:</source>
        <translation>Nome giocatore:</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Entra</translation>
    </message>
    <message>
        <source>Join IP</source>
        <translation>Entra per IP</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Password:</translation>
    </message>
    <message>
        <source>Stop Waiting</source>
        <translation>Smetti di attendere</translation>
    </message>
</context>
<context>
    <name>ListColumns</name>
    <message>
        <source>Num</source>
        <translation>N.</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Giocatore</translation>
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
        <translation>Banda</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variabile</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valore</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mappa</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>Giocatori</translation>
    </message>
    <message>
        <source>Pw</source>
        <translation>Pw</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Gioco</translation>
    </message>
    <message>
        <source>Server IP Address</source>
        <translation>Indirizzo IP del server</translation>
    </message>
    <message>
        <source>Svr Ping</source>
        <translation>Ping srv</translation>
    </message>
    <message>
        <source>Mod</source>
        <translation>Mod</translation>
    </message>
    <message>
        <source>Server Name</source>
        <translation>Nome del server</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Password</translation>
    </message>
    <message>
        <source>Last Played</source>
        <translation>Ultima partita</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Paese</translation>
    </message>
</context>
<context>
    <name>ListMenu</name>
    <message>
        <source>&amp;Add To Favourites</source>
        <translation>&amp;Aggiungi ai preferiti</translation>
    </message>
    <message>
        <source>&amp;Select Server</source>
        <translation>&amp;Seleziona server</translation>
    </message>
    <message>
        <source>The favourites file could not be written.</source>
        <translation>Impossibile scrivere il file dei preferiti.</translation>
    </message>
    <message>
        <source>Add To F&amp;riends</source>
        <translation>Aggiungi agli &amp;amici</translation>
    </message>
    <message>
        <source>%1 is one of your friends already.</source>
        <translation>%1 è già tra i tuoi amici.</translation>
    </message>
    <message>
        <source>Your friends could not be saved.</source>
        <translation>Impossibile salvare i tuoi amici.</translation>
    </message>
    <message>
        <source>%1 was added to your friends.</source>
        <translation>%1 è stato aggiunto ai tuoi amici.</translation>
    </message>
    <message>
        <source>&amp;Join</source>
        <translation>&amp;Entra</translation>
    </message>
    <message>
        <source>R&amp;efresh</source>
        <translation>A&amp;ggiorna</translation>
    </message>
    <message>
        <source>%1 was added to your favourites.</source>
        <translation>%1 è stato aggiunto ai tuoi preferiti.</translation>
    </message>
    <message>
        <source>C&amp;olumns</source>
        <translation>C&amp;olonne</translation>
    </message>
    <message>
        <source>Filter By This &amp;Map</source>
        <translation>Filtra per questa &amp;mappa</translation>
    </message>
</context>
<context>
    <name>ListTabs</name>
    <message>
        <source>Players</source>
        <translation>Giocatori</translation>
    </message>
    <message>
        <source>Servers</source>
        <translation>Server</translation>
    </message>
    <message>
        <source>Hide empty</source>
        <translation>Nascondi vuoti</translation>
    </message>
    <message>
        <source>Servers without players are not listed (the filters&apos; &quot;Empty&quot; box)</source>
        <translation>I server senza giocatori non sono elencati (la casella «Vuoti» dei filtri)</translation>
    </message>
    <message>
        <source>Hide full</source>
        <translation>Nascondi pieni</translation>
    </message>
    <message>
        <source>Full servers are not listed (the filters&apos; &quot;Full&quot; box)</source>
        <translation>I server pieni non sono elencati (la casella «Pieni» dei filtri)</translation>
    </message>
    <message>
        <source>The settings could not be saved, so the list stays as it was.</source>
        <translation>Non è stato possibile salvare le impostazioni, quindi l'elenco resta com'era.</translation>
    </message>
</context>
<context>
    <name>QueryBar</name>
    <message>
        <source>Cancel Query</source>
        <translation>Annulla Interrogazione</translation>
    </message>
    <message>
        <source>Query Masters</source>
        <translation>Interroga Server</translation>
    </message>
    <message>
        <source>Query Favourites</source>
        <translation>Interroga Favoriti</translation>
    </message>
    <message>
        <source>Query LAN</source>
        <translation>Interroga LAN</translation>
    </message>
    <message>
        <source>Find the servers of your local network</source>
        <translation>Trova i server della tua rete locale</translation>
    </message>
    <message>
        <source>Quake 4 Vantage</source>
        <translation>Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>Opzioni...</translation>
    </message>
</context>
<context>
    <name>QueryController</name>
    <message>
        <source>Done</source>
        <translation>Completato</translation>
    </message>
    <message>
        <source>Master Servers Timed Out</source>
        <translation>Tempo scaduto per i master server</translation>
    </message>
    <message>
        <source>The start port %1 is not valid. Choose another in the options.</source>
        <translation>La porta iniziale %1 non è valida. Scegline un&apos;altra nelle opzioni.</translation>
    </message>
    <message>
        <source>No favourites yet: right-click a server and choose &quot;Add To Favourites&quot;.</source>
        <translation>Ancora nessun preferito: fai clic destro su un server e scegli «Aggiungi ai preferiti».</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annulllato</translation>
    </message>
    <message>
        <source>Requesting Server List from
%1</source>
        <translation>Richiesta dell&apos;elenco dei server a
%1</translation>
    </message>
    <message>
        <source>Receiving Server List from
%1</source>
        <translation>Ricezione dell&apos;elenco dei server da
%1</translation>
    </message>
    <message>
        <source>Sorting IP Address Lists
%1</source>
        <translation>Ordinamento degli elenchi di indirizzi IP
%1</translation>
    </message>
    <message>
        <source>No local network to search: no network interface can broadcast.</source>
        <translation>Nessuna rete locale da cercare: nessuna interfaccia di rete può trasmettere in broadcast.</translation>
    </message>
    <message>
        <source>Searching the local network...</source>
        <translation>Ricerca nella rete locale...</translation>
    </message>
    <message>
        <source>No servers played yet: the servers you join are kept in &quot;Recently Played&quot;.</source>
        <translation>Nessun server giocato finora: i server a cui ti unisci restano in «Giocati di recente».</translation>
    </message>
    <message>
        <source>No server answered on the local network; the list is as it was.</source>
        <translation>Nessun server ha risposto nella rete locale; l&apos;elenco resta com&apos;era.</translation>
    </message>
</context>
<context>
    <name>QueryError</name>
    <message>
        <source>Local port %1 cannot be used (%2). Choose another start port in the options.</source>
        <translation>La porta locale %1 non può essere usata (%2). Scegli un&apos;altra porta iniziale nelle opzioni.</translation>
    </message>
    <message>
        <source>The master server listed more than %1 servers; the list was not used.</source>
        <translation>Il master server ha elencato più di %1 server; l&apos;elenco non è stato usato.</translation>
    </message>
    <message>
        <source>Master server %1 not found (%2).</source>
        <translation>Master server %1 non trovato (%2).</translation>
    </message>
    <message>
        <source>The master server address &quot;%1&quot; is not valid.</source>
        <translation>L&apos;indirizzo del master server «%1» non è valido.</translation>
    </message>
</context>
<context>
    <name>ServerDetails</name>
    <message>
        <source>Players of the selected server</source>
        <translation>Giocatori del server selezionato</translation>
    </message>
    <message>
        <source>Rules of the selected server</source>
        <translation>Regole del server selezionato</translation>
    </message>
    <message>
        <source>Add To F&amp;riends</source>
        <translation>Aggiungi agli &amp;amici</translation>
    </message>
    <message>
        <source>map on this machine</source>
        <translation>mappa su questo computer</translation>
    </message>
</context>
<context>
    <name>ServerListFetch</name>
    <message>
        <source>no reply within %1 seconds</source>
        <translation>nessuna risposta entro %1 secondi</translation>
    </message>
    <message>
        <source>the reply is larger than %1 MiB</source>
        <translation>la risposta supera %1 MiB</translation>
    </message>
</context>
<context>
    <name>ServerListModel</name>
    <message>
        <source>No answer to the last refresh; last seen at %1</source>
        <translation>Nessuna risposta all&apos;ultimo aggiornamento; visto l&apos;ultima volta alle %1</translation>
    </message>
    <message>
        <source>One of your favourites</source>
        <translation>Uno dei tuoi preferiti</translation>
    </message>
    <message>
        <source>Full: %1 of %2 players</source>
        <translation>Pieno: %1 giocatori su %2</translation>
    </message>
</context>
<context>
    <name>ServerMemory</name>
    <message>
        <source>The servers that answered could not be remembered in %1.</source>
        <translation>I server che hanno risposto non sono stati memorizzati in %1.</translation>
    </message>
</context>
<context>
    <name>ServerRulesModel</name>
    <message>
        <source>True</source>
        <translation>Vero</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Falso</translation>
    </message>
</context>
<context>
    <name>ServerSelection</name>
    <message>
        <source>Server Name:</source>
        <translation>Nome del server:</translation>
    </message>
</context>
<context>
    <name>ServerSources</name>
    <message>
        <source>did not answer</source>
        <translation>non ha risposto</translation>
    </message>
    <message>
        <source>known servers</source>
        <translation>server conosciuti</translation>
    </message>
</context>
<context>
    <name>ServersTab</name>
    <message>
        <source>Master servers, all asked at once:</source>
        <translation>Server master, interrogati tutti insieme:</translation>
    </message>
    <message>
        <source>Master Server</source>
        <translation>Server master</translation>
    </message>
    <message>
        <source>Host name or address of a master server, with :port when it is not %1:</source>
        <translation>Nome host o indirizzo di un server master, con :porta se non è %1:</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a master server address. Type a host name or an IP address, followed by a colon and a port from 1 to 65535 when the port is not %2.</source>
        <translation>&quot;%1&quot; non è un indirizzo di server master. Digita un nome host o un indirizzo IP, seguito da due punti e da una porta da 1 a 65535 se la porta non è %2.</translation>
    </message>
    <message>
        <source>Server lists on the web, fetched alongside:</source>
        <translation>Liste di server sul web, scaricate insieme:</translation>
    </message>
    <message>
        <source>Server List</source>
        <translation>Lista di server</translation>
    </message>
    <message>
        <source>Web address of a server list (JSON or one host:port per line):</source>
        <translation>Indirizzo web di una lista di server (JSON o un host:porta per riga):</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a web address. Type an address that begins with http:// or https://.</source>
        <translation>&quot;%1&quot; non è un indirizzo web. Digita un indirizzo che inizia con http:// o https://.</translation>
    </message>
    <message>
        <source>Remember servers that answered and query them again</source>
        <translation>Ricorda i server che hanno risposto e interrogali di nuovo</translation>
    </message>
    <message>
        <source>Forget known servers</source>
        <translation>Dimentica i server conosciuti</translation>
    </message>
    <message numerus="yes">
        <source>Forget the %n servers that answered before? Query Masters asks them again only when a master or a server list names them.</source>
        <translation>
            <numerusform>Dimenticare il server che ha risposto in passato? L&apos;interrogazione lo chiederà di nuovo solo se un master o una lista lo nomina.</numerusform>
            <numerusform>Dimenticare i %n server che hanno risposto in passato? L&apos;interrogazione li chiederà di nuovo solo se un master o una lista li nomina.</numerusform>
        </translation>
    </message>
    <message>
        <source>The known servers could not be removed from %1.</source>
        <translation>Non è stato possibile rimuovere i server conosciuti da %1.</translation>
    </message>
    <message>
        <source>No servers known yet.</source>
        <translation>Nessun server ancora conosciuto.</translation>
    </message>
    <message numerus="yes">
        <source>%n servers known.</source>
        <translation>
            <numerusform>%n server conosciuto.</numerusform>
            <numerusform>%n server conosciuti.</numerusform>
        </translation>
    </message>
    <message>
        <source>At most %1 master servers are asked. Remove one before adding another.</source>
        <translation>Si interrogano al massimo %1 master server. Rimuovine uno prima di aggiungerne un altro.</translation>
    </message>
    <message>
        <source>At most %1 server lists are fetched. Remove one before adding another.</source>
        <translation>Si scaricano al massimo %1 elenchi di server. Rimuovine uno prima di aggiungerne un altro.</translation>
    </message>
</context>
<context>
    <name>SlotWaiter</name>
    <message>
        <source>No slot came free on %1 in 30 minutes: stopped waiting.</source>
        <translation>Nessun posto si è liberato su %1 in 30 minuti: attesa interrotta.</translation>
    </message>
    <message>
        <source>%1 is full (%2): waiting for a free slot...</source>
        <translation>%1 è pieno (%2): in attesa di un posto libero...</translation>
    </message>
    <message>
        <source>Stopped waiting for a free slot.</source>
        <translation>Attesa di un posto libero interrotta.</translation>
    </message>
</context>
<context>
    <name>SourceStatus</name>
    <message>
        <source>%1: no answer yet</source>
        <translation>%1: nessuna risposta finora</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n servers</source>
        <translation>
            <numerusform>%1: %n server</numerusform>
            <numerusform>%1: %n server</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>(%n entries skipped)</source>
        <translation>
            <numerusform>(%n voce saltata)</numerusform>
            <numerusform>(%n voci saltate)</numerusform>
        </translation>
    </message>
    <message>
        <source>(list cut at %1)</source>
        <translation>(lista tagliata a %1)</translation>
    </message>
    <message>
        <source>Querying %1 Servers...</source>
        <translation>Interrogazione di %1 server...</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>In attesa di %1</translation>
    </message>
    <message>
        <source>No list from %1</source>
        <translation>Nessuna lista da %1</translation>
    </message>
    <message>
        <source>Master Servers Timed Out</source>
        <translation>Tempo scaduto per i master server</translation>
    </message>
    <message>
        <source>Check the network connection, or add a master server or a server list that works in Options, on the &quot;Servers&quot; tab.</source>
        <translation>Controllare la connessione di rete, oppure aggiungere un master server o un elenco di server funzionante nelle Opzioni, scheda &quot;Server&quot;.</translation>
    </message>
    <message>
        <source>%1 not found</source>
        <translation>%1 non trovato</translation>
    </message>
    <message>
        <source>%1 did not answer</source>
        <translation>%1 non ha risposto</translation>
    </message>
    <message>
        <source>Options, &quot;Servers&quot; tab, adds sources</source>
        <translation>Opzioni, scheda &quot;Server&quot;, aggiunge fonti</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 e altri %n</numerusform>
            <numerusform>%1 e altri %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more master servers left out: at most %1 are asked.</source>
        <translation>
            <numerusform>Un altro master server tralasciato: se ne interrogano al massimo %1.</numerusform>
            <numerusform>Altri %n master server tralasciati: se ne interrogano al massimo %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more server lists left out: at most %1 are fetched.</source>
        <translation>
            <numerusform>Un altro elenco di server tralasciato: se ne scaricano al massimo %1.</numerusform>
            <numerusform>Altri %n elenchi di server tralasciati: se ne scaricano al massimo %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>... and %n more (the status line&apos;s tooltip lists them all)</source>
        <translation>
            <numerusform>... e un altro (il suggerimento della riga di stato li elenca tutti)</numerusform>
            <numerusform>... e altri %n (il suggerimento della riga di stato li elenca tutti)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThemeFile</name>
    <message>
        <source>Dark</source>
        <translation>Scuro</translation>
    </message>
    <message>
        <source>Desktop Colours</source>
        <translation>Colori del desktop</translation>
    </message>
</context>
<context>
    <name>ThemeTab</name>
    <message>
        <source>Form Back Colour</source>
        <translation>Sfondo delle finestre</translation>
    </message>
    <message>
        <source>List Back Colour</source>
        <translation>Sfondo degli elenchi</translation>
    </message>
    <message>
        <source>List Text Colour</source>
        <translation>Testo degli elenchi</translation>
    </message>
    <message>
        <source>Text Box Back Colour</source>
        <translation>Sfondo delle caselle di testo</translation>
    </message>
    <message>
        <source>Text Box Text Colour</source>
        <translation>Testo delle caselle di testo</translation>
    </message>
    <message>
        <source>Progress Bar Back Colour</source>
        <translation>Sfondo della barra di avanzamento</translation>
    </message>
    <message>
        <source>Progress Bar Bar Colour</source>
        <translation>Colore della barra di avanzamento</translation>
    </message>
    <message>
        <source>Progress Bar Type:</source>
        <translation>Tipo di barra di avanzamento:</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Normale</translation>
    </message>
    <message>
        <source>Segmented</source>
        <translation>A segmenti</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Continua</translation>
    </message>
    <message>
        <source>Tab Style:</source>
        <translation>Stile delle schede:</translation>
    </message>
    <message>
        <source>Small Tabs</source>
        <translation>Schede piccole</translation>
    </message>
    <message>
        <source>Large Tabs</source>
        <translation>Schede grandi</translation>
    </message>
    <message>
        <source>Saved Themes:</source>
        <translation>Temi salvati:</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message>
        <source>Save Theme</source>
        <translation>Salva tema</translation>
    </message>
    <message>
        <source>Please enter a name for this theme</source>
        <translation>Inserisci un nome per questo tema</translation>
    </message>
    <message>
        <source>The themes could not be saved to %1; the other settings are not affected.</source>
        <translation>Impossibile salvare i temi in %1; le altre impostazioni non ne risentono.</translation>
    </message>
</context>
<context>
    <name>UpdateFlow</name>
    <message>
        <source>Quake 4 Vantage Update</source>
        <translation>Aggiornamento di Quake 4 Vantage</translation>
    </message>
    <message>
        <source>The installer came without encryption (plain HTTP), so it will not be started. It was saved to %1.</source>
        <translation>Il programma di installazione è arrivato senza cifratura (HTTP semplice), quindi non verrà avviato. È stato salvato in %1.</translation>
    </message>
    <message>
        <source>The installer was saved to %1, but it cannot be started on this system.</source>
        <translation>Il programma di installazione è stato salvato in %1, ma non può essere avviato su questo sistema.</translation>
    </message>
    <message>
        <source>The site did not say how large the installer is, so whether all of it arrived cannot be checked, and it will not be started. It was saved to %1.</source>
        <translation>Il sito non ha indicato la dimensione del programma di installazione: non si può verificare che sia arrivato per intero, quindi non verrà avviato. È stato salvato in %1.</translation>
    </message>
</context>
</TS>
