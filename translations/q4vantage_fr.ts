<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr">
<context>
    <name>AddressListEditor</name>
    <message>
        <source>Add...</source>
        <translation>Ajouter...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Modifier...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>AutoRefresh</name>
    <message>
        <source>%1 is playing on %2</source>
        <translation>%1 joue sur %2</translation>
    </message>
    <message>
        <source>%1 has %2 players</source>
        <translation>%1 a %2 joueurs</translation>
    </message>
    <message>
        <source>Quake 4 Vantage</source>
        <translation>Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Refreshed at %1
%2 of %3 servers answered</source>
        <translation>Actualisé à %1
%2 serveurs sur %3 ont répondu</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>et %n autre</numerusform>
            <numerusform>et %n autres</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CopyCommands</name>
    <message>
        <source>Copy Cell</source>
        <translation>Copier la cellule</translation>
    </message>
    <message>
        <source>Copy Column</source>
        <translation>Copier la colonne</translation>
    </message>
    <message>
        <source>Copy Row</source>
        <translation>Copier la ligne</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>Tout copier</translation>
    </message>
</context>
<context>
    <name>Countries</name>
    <message>
        <source>Countries: %1</source>
        <translation>Pays : %1</translation>
    </message>
    <message>
        <source>Countries: no location database is set, so no flags are shown.</source>
        <translation>Pays : aucune base de localisation n&apos;est choisie, les drapeaux ne sont donc pas affichés.</translation>
    </message>
    <message>
        <source>Countries: no flags are shown, as %1 (the package libloc-database installs one).</source>
        <translation>Pays : aucun drapeau n&apos;est affiché, car %1 (le paquet libloc-database en installe une).</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Select your Quake 4 Executable</source>
        <translation>Choisissez l&apos;exécutable de Quake 4</translation>
    </message>
    <message>
        <source>Quake 4 Executable (%1)</source>
        <translation>Exécutable de Quake 4 (%1)</translation>
    </message>
</context>
<context>
    <name>DialogBar</name>
    <message>
        <source>%1 is not listed now: &quot;Query Recently Played&quot; asks every server you played on.</source>
        <translation>%1 n&apos;est pas dans la liste pour l&apos;instant : « Rechercher Joués récemment » interroge chaque serveur sur lequel vous avez joué.</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtres</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Recently Played</source>
        <translation>Joués récemment</translation>
    </message>
    <message numerus="yes">
        <source>%n hidden by filters</source>
        <translation>
            <numerusform>%n masqué par les filtres</numerusform>
            <numerusform>%n masqués par les filtres</numerusform>
        </translation>
    </message>
    <message>
        <source>Servers that answered but do not pass the filters. &quot;Filters&quot; shows them.</source>
        <translation>Serveurs qui ont répondu mais ne passent pas les filtres. « Filtres » les montre.</translation>
    </message>
</context>
<context>
    <name>Downloader</name>
    <message>
        <source>The site sent an empty file.</source>
        <translation>Le site a envoyé un fichier vide.</translation>
    </message>
    <message>
        <source>%1 of %2 bytes arrived.</source>
        <translation>%1 octets sur %2 sont arrivés.</translation>
    </message>
    <message>
        <source>The installer is larger than %1 MB.</source>
        <translation>Le programme d&apos;installation dépasse %1 Mo.</translation>
    </message>
    <message>
        <source>The site sent more than the %1 bytes it announced.</source>
        <translation>Le site a envoyé plus que les %1 octets annoncés.</translation>
    </message>
</context>
<context>
    <name>EditableListDialog</name>
    <message>
        <source>Edit Cell</source>
        <translation>Modifier la cellule</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find</source>
        <translation>Chercher</translation>
    </message>
    <message>
        <source>Text Not Found</source>
        <translation>Texte Non trouvé</translation>
    </message>
    <message>
        <source>Next Friend</source>
        <translation>Ami suivant</translation>
    </message>
    <message>
        <source>Select the next listed friend</source>
        <translation>Sélectionner l&apos;ami suivant de la liste</translation>
    </message>
    <message>
        <source>No friends yet: right-click a player and choose &quot;Add To Friends&quot;.</source>
        <translation>Pas encore d&apos;amis : faites un clic droit sur un joueur et choisissez « Ajouter aux amis ».</translation>
    </message>
    <message>
        <source>None of your friends is listed.</source>
        <translation>Aucun de vos amis n&apos;est dans la liste.</translation>
    </message>
</context>
<context>
    <name>FriendsTab</name>
    <message>
        <source>Friends (names, or patterns such as *Bob*):</source>
        <translation>Amis (noms, ou motifs comme *Bob*) :</translation>
    </message>
    <message>
        <source>Friend</source>
        <translation>Ami</translation>
    </message>
    <message>
        <source>Name of a friend as the player list shows it, or a pattern such as *Hammer*:</source>
        <translation>Nom d&apos;un ami tel que la liste des joueurs l&apos;affiche, ou un motif comme *Hammer* :</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a control character. Type a name or a pattern.</source>
        <translation>« %1 » contient un caractère de contrôle. Saisissez un nom ou un motif.</translation>
    </message>
    <message>
        <source>Refresh the listed servers:</source>
        <translation>Actualiser les serveurs listés :</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Jamais</translation>
    </message>
    <message numerus="yes">
        <source>Every %n minutes</source>
        <translation>
            <numerusform>Toutes les %n minutes</numerusform>
            <numerusform>Toutes les %n minutes</numerusform>
        </translation>
    </message>
    <message>
        <source>Tell me when a friend starts playing</source>
        <translation>Me prévenir quand un ami commence à jouer</translation>
    </message>
    <message>
        <source>Tell me when a favourite server has</source>
        <translation>Me prévenir quand un serveur favori a</translation>
    </message>
    <message>
        <source>players or more</source>
        <translation>joueurs ou plus</translation>
    </message>
    <message>
        <source>Notifications come with the automatic refresh.</source>
        <translation>Les notifications accompagnent l&apos;actualisation automatique.</translation>
    </message>
    <message>
        <source>Offer to wait for a slot on a full server</source>
        <translation>Proposer d&apos;attendre une place sur un serveur plein</translation>
    </message>
    <message>
        <source>Every minute</source>
        <translation>Chaque minute</translation>
    </message>
</context>
<context>
    <name>FrmAbout</name>
    <message>
        <source>About Quake 4 Vantage</source>
        <translation>À propos de Quake 4 Vantage</translation>
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
        <translation>Un navigateur de serveurs pour Quake 4 : il trouve les serveurs et les joueurs, et rejoint une partie d&apos;un double clic.</translation>
    </message>
    <message>
        <source>Built with Qt %1, running on Qt %2.</source>
        <translation>Compilé avec Qt %1, fonctionne avec Qt %2.</translation>
    </message>
    <message>
        <source>Licence: %1</source>
        <translation>Licence : %1</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Page d&apos;accueil</translation>
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
        <translation>Erreur pendant le téléchargement</translation>
    </message>
    <message>
        <source>The installer could not be saved to %1 (%2).</source>
        <translation>Le programme d&apos;installation n&apos;a pas pu être enregistré dans %1 (%2).</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Downloading v%1
%2 of %3</source>
        <translation>Téléchargement de la v%1
%2 sur %3</translation>
    </message>
    <message>
        <source>Quake 4 Vantage Update</source>
        <translation>Mise à jour de Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Downloading Quake 4 Vantage v%1</source>
        <translation>Téléchargement de Quake 4 Vantage v%1</translation>
    </message>
    <message>
        <source>Connecting to download site...</source>
        <translation>Connexion au site de téléchargement...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message numerus="yes">
        <source>Downloading v%1
%n bytes</source>
        <translation>
            <numerusform>Téléchargement de la v%1
%n octet</numerusform>
            <numerusform>Téléchargement de la v%1
%n octets</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FrmFavourites</name>
    <message>
        <source>This favourites file is larger than the editor reads (%1 servers or %2 MB). It is shown in part and not saved, so that no server is lost.</source>
        <translation>Ce fichier de favoris dépasse ce que l&apos;éditeur lit (%1 serveurs ou %2 Mo). Il n&apos;est affiché qu&apos;en partie et n&apos;est pas enregistré, pour qu&apos;aucun serveur ne soit perdu.</translation>
    </message>
    <message>
        <source>The favourites could not be saved to %1. Your changes are still here.</source>
        <translation>Les favoris n&apos;ont pas pu être enregistrés dans %1. Vos modifications sont toujours là.</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoris</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>New Server</source>
        <translation>Nouveau serveur</translation>
    </message>
    <message numerus="yes">
        <source>%n servers added elsewhere since this list was opened are kept as well.</source>
        <translation>
            <numerusform>%n serveur ajouté ailleurs depuis l&apos;ouverture de cette liste est conservé aussi.</numerusform>
            <numerusform>%n serveurs ajoutés ailleurs depuis l&apos;ouverture de cette liste sont conservés aussi.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a server address. Type a host name or an IP address, followed by a colon and a port from 1 to 65535.</source>
        <translation>« %1 » n&apos;est pas une adresse de serveur. Saisissez un nom d&apos;hôte ou une adresse IP, suivi de deux-points et d&apos;un port de 1 à 65535.</translation>
    </message>
</context>
<context>
    <name>FrmFilters</name>
    <message>
        <source>Filters</source>
        <translation>Filtres</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Nouveau</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Built in filters:</source>
        <translation>Filtres intégrés :</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vides</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Pleins</translation>
    </message>
    <message>
        <source>Passworded</source>
        <translation>Avec mot de passe</translation>
    </message>
    <message>
        <source>Example 1: si_map                 mp/q4dm5</source>
        <translation>Exemple 1 : si_map                 mp/q4dm5</translation>
    </message>
    <message>
        <source>Example 2: sv_punkbuster     1</source>
        <translation>Exemple 2 : sv_punkbuster     1</translation>
    </message>
    <message>
        <source>The filters could not be saved to %1; this change lasts until the program ends.</source>
        <translation>Les filtres n&apos;ont pas pu être enregistrés dans %1 ; cette modification ne dure que jusqu&apos;à la fermeture du programme.</translation>
    </message>
    <message>
        <source>(ticked: listed)</source>
        <translation>(coché : affiché)</translation>
    </message>
    <message>
        <source>Ticked: servers without players are listed; unticked: they are hidden</source>
        <translation>Coché : les serveurs sans joueurs sont affichés ; décoché : ils sont masqués</translation>
    </message>
    <message>
        <source>Ticked: full servers are listed; unticked: they are hidden</source>
        <translation>Coché : les serveurs pleins sont affichés ; décoché : ils sont masqués</translation>
    </message>
    <message>
        <source>Ticked: servers with a password are listed; unticked: they are hidden</source>
        <translation>Coché : les serveurs avec mot de passe sont affichés ; décoché : ils sont masqués</translation>
    </message>
    <message>
        <source>The settings could not be saved; this change lasts until the program ends.</source>
        <translation>Les réglages n'ont pas pu être enregistrés ; ce changement dure jusqu'à la fin du programme.</translation>
    </message>
</context>
<context>
    <name>FrmHistory</name>
    <message>
        <source>Recently Played</source>
        <translation>Joués récemment</translation>
    </message>
    <message>
        <source>No servers yet: every server you join from this program is listed here.</source>
        <translation>Aucun serveur pour l&apos;instant : chaque serveur que vous rejoignez depuis ce programme apparaît ici.</translation>
    </message>
    <message>
        <source>Query Recently Played</source>
        <translation>Rechercher Joués récemment</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>The list could not be saved to %1.</source>
        <translation>La liste n&apos;a pas pu être enregistrée dans %1.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
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
        <translation>À propos de Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Quitter</translation>
    </message>
    <message numerus="yes">
        <source>%n servers found</source>
        <translation>
            <numerusform>%n serveur trouvé</numerusform>
            <numerusform>%n serveurs trouvés</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n players found</source>
        <translation>
            <numerusform>%n joueur trouvé</numerusform>
            <numerusform>%n joueurs trouvés</numerusform>
        </translation>
    </message>
    <message>
        <source>Only servers on %1 are listed now; &quot;Filters&quot; takes the filter away.</source>
        <translation>Seuls les serveurs sur %1 sont listés ; « Filtres » retire le filtre.</translation>
    </message>
</context>
<context>
    <name>FrmOptions</name>
    <message>
        <source>Options</source>
        <translation>Options</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Réglages</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Thème</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Langue :</translation>
    </message>
    <message>
        <source>Query Speed:</source>
        <translation>Vitesse de recherche :</translation>
    </message>
    <message>
        <source>Dial Up (56k)</source>
        <translation>Modem (56k)</translation>
    </message>
    <message>
        <source>ISDN (64k)</source>
        <translation>RNIS (64k)</translation>
    </message>
    <message>
        <source>ISDN (128k)</source>
        <translation>RNIS (128k)</translation>
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
        <translation>Maximale</translation>
    </message>
    <message>
        <source>Automatically Check For Updates</source>
        <translation>Rechercher automatiquement les mises à jour</translation>
    </message>
    <message>
        <source>Close After Joining</source>
        <translation>Fermer après avoir rejoint</translation>
    </message>
    <message>
        <source>Refresh Server On Selection</source>
        <translation>Actualiser le serveur sélectionné</translation>
    </message>
    <message>
        <source>Port Range:</source>
        <translation>Plage de ports :</translation>
    </message>
    <message>
        <source>Note: Port Range is dependant on the query speed.</source>
        <translation>Remarque : la plage de ports dépend de la vitesse de recherche.</translation>
    </message>
    <message>
        <source>Use Proxy Server for updates</source>
        <translation>Utiliser un proxy pour les mises à jour</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Appliquer</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Par défaut</translation>
    </message>
    <message>
        <source>Are you sure you want to reset all settings to their default values?</source>
        <translation>Voulez-vous vraiment remettre tous les réglages à leurs valeurs par défaut ?</translation>
    </message>
    <message>
        <source>You must type a port number between %1 and %2! (Default: %3)</source>
        <translation>Vous devez saisir un numéro de port entre %1 et %2 ! (Par défaut : %3)</translation>
    </message>
    <message>
        <source>Servers</source>
        <translation>Serveurs</translation>
    </message>
    <message>
        <source>Friends</source>
        <translation>Amis</translation>
    </message>
    <message>
        <source>Keep passwords in the desktop&apos;s keyring</source>
        <translation>Garder les mots de passe dans le trousseau du bureau</translation>
    </message>
    <message>
        <source>Unticked, or on a desktop without a keyring, the passwords are kept in the settings file as plain text.</source>
        <translation>Décoché, ou sur un bureau sans trousseau, les mots de passe restent en clair dans le fichier de réglages.</translation>
    </message>
</context>
<context>
    <name>FrmUpdate</name>
    <message>
        <source>Quake 4 Vantage Update Available</source>
        <translation>Mise à jour de Quake 4 Vantage disponible</translation>
    </message>
    <message>
        <source>An update is now available for Quake 4 Vantage, would you like to download it now?</source>
        <translation>Une mise à jour de Quake 4 Vantage est disponible, voulez-vous la télécharger maintenant ?</translation>
    </message>
    <message>
        <source>Current Version:</source>
        <translation>Version actuelle :</translation>
    </message>
    <message>
        <source>Latest Version:</source>
        <translation>Dernière version :</translation>
    </message>
    <message>
        <source>Automatically check for updates in the future</source>
        <translation>Rechercher automatiquement les mises à jour à l&apos;avenir</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Oui</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Non</translation>
    </message>
</context>
<context>
    <name>GameBox</name>
    <message>
        <source>Game:</source>
        <translation>Jeu :</translation>
    </message>
    <message>
        <source>Look Again</source>
        <translation>Chercher à nouveau</translation>
    </message>
    <message>
        <source>Looks for the game&apos;s installs on this machine again: Steam&apos;s libraries, the Linux release and Wine.</source>
        <translation>Cherche à nouveau les installations du jeu sur cette machine : bibliothèques Steam, version Linux et Wine.</translation>
    </message>
    <message>
        <source>Quake 4 Executable:</source>
        <translation>Exécutable de Quake 4 :</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Parcourir</translation>
    </message>
    <message>
        <source>A join runs:</source>
        <translation>Rejoindre lance :</translation>
    </message>
    <message>
        <source>Looking for the game on this machine...</source>
        <translation>Recherche du jeu sur cette machine...</translation>
    </message>
    <message>
        <source>None found</source>
        <translation>Aucun trouvé</translation>
    </message>
    <message>
        <source>Ask at the first join</source>
        <translation>Demander au premier essai</translation>
    </message>
    <message>
        <source>Other program...</source>
        <translation>Autre programme...</translation>
    </message>
    <message>
        <source>No program chosen</source>
        <translation>Aucun programme choisi</translation>
    </message>
    <message>
        <source>Started in %1</source>
        <translation>Lancé dans %1</translation>
    </message>
    <message>
        <source>Chosen at the first join</source>
        <translation>Choisi au premier essai</translation>
    </message>
</context>
<context>
    <name>GameChooser</name>
    <message>
        <source>The game&apos;s Windows build</source>
        <translation>La version Windows du jeu</translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself, and neither Steam with the game nor Wine is installed here.

Install the game in Steam (which runs it through Proton), or install Wine (Debian&apos;s package &quot;wine&quot;), or choose the Linux release&apos;s &quot;quake4&quot; instead.</source>
        <translation>%1 est la version Windows du jeu, que ce système ne peut pas lancer seul, et ni Steam avec le jeu ni Wine ne sont installés ici.

Installez le jeu dans Steam (qui l&apos;exécute avec Proton), ou installez Wine (paquet Debian &quot;wine&quot;), ou choisissez plutôt &quot;quake4&quot; de la version Linux.</translation>
    </message>
    <message>
        <source>Through Steam</source>
        <translation>Avec Steam</translation>
    </message>
    <message>
        <source>Through Wine</source>
        <translation>Avec Wine</translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself. Start it through Steam (%2) or through Wine?</source>
        <translation>%1 est la version Windows du jeu, que ce système ne peut pas lancer seul. La lancer avec Steam (%2) ou avec Wine ?</translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself. Start it through Steam (%2)?</source>
        <translation>%1 est la version Windows du jeu, que ce système ne peut pas lancer seul. La lancer avec Steam (%2) ?</translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself. Start it through Wine?</source>
        <translation>%1 est la version Windows du jeu, que ce système ne peut pas lancer seul. La lancer avec Wine ?</translation>
    </message>
    <message>
        <source>Which Quake 4?</source>
        <translation>Quel Quake 4 ?</translation>
    </message>
    <message>
        <source>Quake 4 is installed more than once here. Which one should a join start? You can change it later in Options.</source>
        <translation>Quake 4 est installé plusieurs fois ici. Lequel lancer pour rejoindre ? Vous pourrez le changer plus tard dans les Options.</translation>
    </message>
</context>
<context>
    <name>GameInstall</name>
    <message>
        <source>Steam: %1</source>
        <translation>Steam : %1</translation>
    </message>
    <message>
        <source>Steam (Flatpak): %1</source>
        <translation>Steam (Flatpak) : %1</translation>
    </message>
    <message>
        <source>Linux release: %1</source>
        <translation>Version Linux : %1</translation>
    </message>
    <message>
        <source>Wine: %1</source>
        <translation>Wine : %1</translation>
    </message>
</context>
<context>
    <name>JoinFlow</name>
    <message>
        <source>Join server by IP Address</source>
        <translation>Rejoindre un serveur par son adresse IP</translation>
    </message>
    <message>
        <source>Please enter the IP address/hostname and port of the server you wish to join</source>
        <translation>Veuillez saisir l&apos;adresse IP ou le nom d&apos;hôte et le port du serveur que vous voulez rejoindre</translation>
    </message>
    <message>
        <source>Please enter the password for this server</source>
        <translation>Veuillez saisir le mot de passe de ce serveur</translation>
    </message>
    <message>
        <source>No Password Provided</source>
        <translation>Aucun mot de passe fourni</translation>
    </message>
    <message>
        <source>Join Server Anyway?</source>
        <translation>Rejoindre le serveur quand même ?</translation>
    </message>
    <message>
        <source>Connecting to %1</source>
        <translation>Connexion à %1</translation>
    </message>
    <message>
        <source>The game could not be started: %1 does not exist.</source>
        <translation>Le jeu n&apos;a pas pu être lancé : %1 n&apos;existe pas.</translation>
    </message>
    <message>
        <source>The game could not be started: %1 is not a program.</source>
        <translation>Le jeu n&apos;a pas pu être lancé : %1 n&apos;est pas un programme.</translation>
    </message>
    <message>
        <source>The game could not be started: %1.</source>
        <translation>Le jeu n&apos;a pas pu être lancé : %1.</translation>
    </message>
    <message>
        <source>%1 is full.
Wait for a free slot and join as soon as one opens?</source>
        <translation>%1 est plein.
Attendre une place libre et rejoindre dès qu&apos;une place se libère ?</translation>
    </message>
    <message>
        <source>The game started, but the list of recently played servers could not be saved.</source>
        <translation>Le jeu a démarré, mais la liste des serveurs joués récemment n&apos;a pas pu être enregistrée.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a server address. Type a host name or an IP address, followed by a colon and a port from 1 to 65535 when the port is not the game&apos;s.</source>
        <translation>« %1 » n&apos;est pas une adresse de serveur. Saisissez un nom d&apos;hôte ou une adresse IP, suivi de deux-points et d&apos;un port de 1 à 65535 si ce n&apos;est pas celui du jeu.</translation>
    </message>
    <message>
        <source>Wait for a Slot</source>
        <translation>Attendre une place</translation>
    </message>
    <message>
        <source>Join Anyway</source>
        <translation>Rejoindre quand même</translation>
    </message>
    <message>
        <source>Looking for %1 in the game&apos;s archives...</source>
        <translation>Recherche de %1 dans les archives du jeu...</translation>
    </message>
    <message>
        <source>%1 is not installed. Join anyway?</source>
        <translation>%1 n&apos;est pas installée. Rejoindre quand même ?</translation>
    </message>
    <message>
        <source>%1 is not installed (mod %2). Join anyway?</source>
        <translation>%1 n&apos;est pas installée (mod %2). Rejoindre quand même ?</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>installée</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>absente</translation>
    </message>
    <message>
        <source>Looking for the game on this machine...</source>
        <translation>Recherche du jeu sur cette machine...</translation>
    </message>
    <message>
        <source>Using the game found on this machine: %1. Options can choose another.</source>
        <translation>Utilisation du jeu trouvé sur cette machine : %1. Les Options permettent d&apos;en choisir un autre.</translation>
    </message>
</context>
<context>
    <name>JoinPanel</name>
    <message>
        <source>Player Name:</source>
        <translation>Nom du joueur :</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Rejoindre</translation>
    </message>
    <message>
        <source>Join IP</source>
        <translation>Rejoindre l&apos;IP</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nom :</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Mot de passe :</translation>
    </message>
    <message>
        <source>Stop Waiting</source>
        <translation>Arrêter d&apos;attendre</translation>
    </message>
</context>
<context>
    <name>ListColumns</name>
    <message>
        <source>Num</source>
        <translation>N°</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Joueur</translation>
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
        <translation>Débit</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variable</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valeur</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Serveur</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Carte</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>Joueurs</translation>
    </message>
    <message>
        <source>Pw</source>
        <translation>MdP</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Type</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Jeu</translation>
    </message>
    <message>
        <source>Server IP Address</source>
        <translation>Adresse IP du serveur</translation>
    </message>
    <message>
        <source>Svr Ping</source>
        <translation>Ping serv.</translation>
    </message>
    <message>
        <source>Mod</source>
        <translation>Mod</translation>
    </message>
    <message>
        <source>Server Name</source>
        <translation>Nom du serveur</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Mot de passe</translation>
    </message>
    <message>
        <source>Last Played</source>
        <translation>Dernière partie</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>Pays</translation>
    </message>
</context>
<context>
    <name>ListMenu</name>
    <message>
        <source>&amp;Add To Favourites</source>
        <translation>&amp;Ajouter aux favoris</translation>
    </message>
    <message>
        <source>&amp;Select Server</source>
        <translation>&amp;Sélectionner le serveur</translation>
    </message>
    <message>
        <source>The favourites file could not be written.</source>
        <translation>Le fichier des favoris n&apos;a pas pu être écrit.</translation>
    </message>
    <message>
        <source>Add To F&amp;riends</source>
        <translation>Ajouter aux &amp;amis</translation>
    </message>
    <message>
        <source>%1 is one of your friends already.</source>
        <translation>%1 fait déjà partie de vos amis.</translation>
    </message>
    <message>
        <source>Your friends could not be saved.</source>
        <translation>Vos amis n&apos;ont pas pu être enregistrés.</translation>
    </message>
    <message>
        <source>%1 was added to your friends.</source>
        <translation>%1 a été ajouté à vos amis.</translation>
    </message>
    <message>
        <source>&amp;Join</source>
        <translation>Re&amp;joindre</translation>
    </message>
    <message>
        <source>R&amp;efresh</source>
        <translation>Act&amp;ualiser</translation>
    </message>
    <message>
        <source>%1 was added to your favourites.</source>
        <translation>%1 a été ajouté à vos favoris.</translation>
    </message>
    <message>
        <source>C&amp;olumns</source>
        <translation>C&amp;olonnes</translation>
    </message>
    <message>
        <source>Filter By This &amp;Map</source>
        <translation>Filtrer par cette &amp;carte</translation>
    </message>
</context>
<context>
    <name>ListTabs</name>
    <message>
        <source>Players</source>
        <translation>Joueurs</translation>
    </message>
    <message>
        <source>Servers</source>
        <translation>Serveurs</translation>
    </message>
    <message>
        <source>Hide empty</source>
        <translation>Masquer les vides</translation>
    </message>
    <message>
        <source>Servers without players are not listed (the filters&apos; &quot;Empty&quot; box)</source>
        <translation>Les serveurs sans joueurs ne sont pas listés (la case « Vides » des filtres)</translation>
    </message>
    <message>
        <source>Hide full</source>
        <translation>Masquer les pleins</translation>
    </message>
    <message>
        <source>Full servers are not listed (the filters&apos; &quot;Full&quot; box)</source>
        <translation>Les serveurs pleins ne sont pas listés (la case « Pleins » des filtres)</translation>
    </message>
    <message>
        <source>The settings could not be saved, so the list stays as it was.</source>
        <translation>Les réglages n'ont pas pu être enregistrés : la liste reste telle qu'elle était.</translation>
    </message>
</context>
<context>
    <name>QueryBar</name>
    <message>
        <source>Cancel Query</source>
        <translation>Annuler la recherche</translation>
    </message>
    <message>
        <source>Query Masters</source>
        <translation>Recherche Principales</translation>
    </message>
    <message>
        <source>Query Favourites</source>
        <translation>Rechercher Favoris</translation>
    </message>
    <message>
        <source>Query LAN</source>
        <translation>Rechercher LAN</translation>
    </message>
    <message>
        <source>Find the servers of your local network</source>
        <translation>Trouver les serveurs de votre réseau local</translation>
    </message>
    <message>
        <source>Quake 4 Vantage</source>
        <translation>Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>Options...</translation>
    </message>
</context>
<context>
    <name>QueryController</name>
    <message>
        <source>Done</source>
        <translation>Terminé</translation>
    </message>
    <message>
        <source>Master Servers Timed Out</source>
        <translation>Délai dépassé pour les serveurs principaux</translation>
    </message>
    <message>
        <source>The start port %1 is not valid. Choose another in the options.</source>
        <translation>Le port de départ %1 n&apos;est pas valable. Choisissez-en un autre dans les options.</translation>
    </message>
    <message>
        <source>No favourites yet: right-click a server and choose &quot;Add To Favourites&quot;.</source>
        <translation>Pas encore de favoris : faites un clic droit sur un serveur et choisissez « Ajouter aux favoris ».</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Requesting Server List from
%1</source>
        <translation>Demande de la liste des serveurs à
%1</translation>
    </message>
    <message>
        <source>Receiving Server List from
%1</source>
        <translation>Réception de la liste des serveurs de
%1</translation>
    </message>
    <message>
        <source>Sorting IP Address Lists
%1</source>
        <translation>Tri des listes d&apos;adresses IP
%1</translation>
    </message>
    <message>
        <source>No local network to search: no network interface can broadcast.</source>
        <translation>Aucun réseau local à parcourir : aucune interface réseau ne peut diffuser.</translation>
    </message>
    <message>
        <source>Searching the local network...</source>
        <translation>Recherche sur le réseau local...</translation>
    </message>
    <message>
        <source>No servers played yet: the servers you join are kept in &quot;Recently Played&quot;.</source>
        <translation>Aucun serveur joué pour l&apos;instant : les serveurs que vous rejoignez sont gardés dans « Joués récemment ».</translation>
    </message>
    <message>
        <source>No server answered on the local network; the list is as it was.</source>
        <translation>Aucun serveur n&apos;a répondu sur le réseau local ; la liste reste telle quelle.</translation>
    </message>
</context>
<context>
    <name>QueryError</name>
    <message>
        <source>Local port %1 cannot be used (%2). Choose another start port in the options.</source>
        <translation>Le port local %1 ne peut pas être utilisé (%2). Choisissez un autre port de départ dans les options.</translation>
    </message>
    <message>
        <source>The master server listed more than %1 servers; the list was not used.</source>
        <translation>Le serveur principal a listé plus de %1 serveurs ; la liste n&apos;a pas été utilisée.</translation>
    </message>
    <message>
        <source>Master server %1 not found (%2).</source>
        <translation>Serveur principal %1 introuvable (%2).</translation>
    </message>
    <message>
        <source>The master server address &quot;%1&quot; is not valid.</source>
        <translation>L&apos;adresse du serveur principal « %1 » n&apos;est pas valable.</translation>
    </message>
</context>
<context>
    <name>ServerDetails</name>
    <message>
        <source>Players of the selected server</source>
        <translation>Joueurs du serveur sélectionné</translation>
    </message>
    <message>
        <source>Rules of the selected server</source>
        <translation>Règles du serveur sélectionné</translation>
    </message>
    <message>
        <source>Add To F&amp;riends</source>
        <translation>Ajouter aux &amp;amis</translation>
    </message>
    <message>
        <source>map on this machine</source>
        <translation>carte sur cette machine</translation>
    </message>
</context>
<context>
    <name>ServerListFetch</name>
    <message>
        <source>no reply within %1 seconds</source>
        <translation>aucune réponse en %1 secondes</translation>
    </message>
    <message>
        <source>the reply is larger than %1 MiB</source>
        <translation>la réponse dépasse %1 Mio</translation>
    </message>
</context>
<context>
    <name>ServerListModel</name>
    <message>
        <source>No answer to the last refresh; last seen at %1</source>
        <translation>Aucune réponse à la dernière actualisation ; vu pour la dernière fois à %1</translation>
    </message>
    <message>
        <source>One of your favourites</source>
        <translation>Un de vos favoris</translation>
    </message>
    <message>
        <source>Full: %1 of %2 players</source>
        <translation>Plein : %1 joueurs sur %2</translation>
    </message>
</context>
<context>
    <name>ServerMemory</name>
    <message>
        <source>The servers that answered could not be remembered in %1.</source>
        <translation>Les serveurs qui ont répondu n&apos;ont pas pu être enregistrés dans %1.</translation>
    </message>
</context>
<context>
    <name>ServerRulesModel</name>
    <message>
        <source>True</source>
        <translation>Vrai</translation>
    </message>
    <message>
        <source>False</source>
        <translation>Faux</translation>
    </message>
</context>
<context>
    <name>ServerSelection</name>
    <message>
        <source>Server Name:</source>
        <translation>Nom du serveur :</translation>
    </message>
</context>
<context>
    <name>ServerSources</name>
    <message>
        <source>did not answer</source>
        <translation>n&apos;a pas répondu</translation>
    </message>
    <message>
        <source>known servers</source>
        <translation>serveurs connus</translation>
    </message>
</context>
<context>
    <name>ServersTab</name>
    <message>
        <source>Master servers, all asked at once:</source>
        <translation>Serveurs maîtres, tous interrogés ensemble :</translation>
    </message>
    <message>
        <source>Master Server</source>
        <translation>Serveur maître</translation>
    </message>
    <message>
        <source>Host name or address of a master server, with :port when it is not %1:</source>
        <translation>Nom d&apos;hôte ou adresse d&apos;un serveur maître, avec :port s&apos;il n&apos;est pas %1 :</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a master server address. Type a host name or an IP address, followed by a colon and a port from 1 to 65535 when the port is not %2.</source>
        <translation>« %1 » n&apos;est pas une adresse de serveur maître. Tapez un nom d&apos;hôte ou une adresse IP, suivi de deux-points et d&apos;un port de 1 à 65535 si le port n&apos;est pas %2.</translation>
    </message>
    <message>
        <source>Server lists on the web, fetched alongside:</source>
        <translation>Listes de serveurs sur le web, chargées en même temps :</translation>
    </message>
    <message>
        <source>Server List</source>
        <translation>Liste de serveurs</translation>
    </message>
    <message>
        <source>Web address of a server list (JSON or one host:port per line):</source>
        <translation>Adresse web d&apos;une liste de serveurs (JSON ou un hôte:port par ligne) :</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a web address. Type an address that begins with http:// or https://.</source>
        <translation>« %1 » n&apos;est pas une adresse web. Tapez une adresse qui commence par http:// ou https://.</translation>
    </message>
    <message>
        <source>Remember servers that answered and query them again</source>
        <translation>Retenir les serveurs qui ont répondu et les interroger à nouveau</translation>
    </message>
    <message>
        <source>Forget known servers</source>
        <translation>Oublier les serveurs connus</translation>
    </message>
    <message numerus="yes">
        <source>Forget the %n servers that answered before? Query Masters asks them again only when a master or a server list names them.</source>
        <translation>
            <numerusform>Oublier le serveur qui a répondu auparavant ? La recherche ne l&apos;interrogera à nouveau que si un serveur maître ou une liste le nomme.</numerusform>
            <numerusform>Oublier les %n serveurs qui ont répondu auparavant ? La recherche ne les interrogera à nouveau que si un serveur maître ou une liste les nomme.</numerusform>
        </translation>
    </message>
    <message>
        <source>The known servers could not be removed from %1.</source>
        <translation>Les serveurs connus n&apos;ont pas pu être supprimés de %1.</translation>
    </message>
    <message>
        <source>No servers known yet.</source>
        <translation>Aucun serveur connu pour le moment.</translation>
    </message>
    <message numerus="yes">
        <source>%n servers known.</source>
        <translation>
            <numerusform>%n serveur connu.</numerusform>
            <numerusform>%n serveurs connus.</numerusform>
        </translation>
    </message>
    <message>
        <source>At most %1 master servers are asked. Remove one before adding another.</source>
        <translation>Au plus %1 serveurs principaux sont interrogés. Retirez-en un avant d&apos;en ajouter un autre.</translation>
    </message>
    <message>
        <source>At most %1 server lists are fetched. Remove one before adding another.</source>
        <translation>Au plus %1 listes de serveurs sont téléchargées. Retirez-en une avant d&apos;en ajouter une autre.</translation>
    </message>
</context>
<context>
    <name>SlotWaiter</name>
    <message>
        <source>No slot came free on %1 in 30 minutes: stopped waiting.</source>
        <translation>Aucune place ne s&apos;est libérée sur %1 en 30 minutes : attente arrêtée.</translation>
    </message>
    <message>
        <source>%1 is full (%2): waiting for a free slot...</source>
        <translation>%1 est plein (%2) : attente d&apos;une place libre...</translation>
    </message>
    <message>
        <source>Stopped waiting for a free slot.</source>
        <translation>Attente d&apos;une place libre arrêtée.</translation>
    </message>
</context>
<context>
    <name>SourceStatus</name>
    <message>
        <source>%1: no answer yet</source>
        <translation>%1 : pas encore de réponse</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1 : %2</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n servers</source>
        <translation>
            <numerusform>%1 : %n serveur</numerusform>
            <numerusform>%1 : %n serveurs</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>(%n entries skipped)</source>
        <translation>
            <numerusform>(%n entrée ignorée)</numerusform>
            <numerusform>(%n entrées ignorées)</numerusform>
        </translation>
    </message>
    <message>
        <source>(list cut at %1)</source>
        <translation>(liste coupée à %1)</translation>
    </message>
    <message>
        <source>Querying %1 Servers...</source>
        <translation>Recherche sur %1 serveurs...</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>En attente de %1</translation>
    </message>
    <message>
        <source>No list from %1</source>
        <translation>Aucune liste de %1</translation>
    </message>
    <message>
        <source>Master Servers Timed Out</source>
        <translation>Délai dépassé pour les serveurs principaux</translation>
    </message>
    <message>
        <source>Check the network connection, or add a master server or a server list that works in Options, on the &quot;Servers&quot; tab.</source>
        <translation>Vérifiez la connexion réseau, ou ajoutez un serveur maître ou une liste de serveurs qui fonctionne dans les Options, onglet « Serveurs ».</translation>
    </message>
    <message>
        <source>%1 not found</source>
        <translation>%1 introuvable</translation>
    </message>
    <message>
        <source>%1 did not answer</source>
        <translation>%1 n&apos;a pas répondu</translation>
    </message>
    <message>
        <source>Options, &quot;Servers&quot; tab, adds sources</source>
        <translation>Options, onglet « Serveurs », ajoute des sources</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 et %n autre</numerusform>
            <numerusform>%1 et %n autres</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more master servers left out: at most %1 are asked.</source>
        <translation>
            <numerusform>%n autre serveur principal laissé de côté : au plus %1 sont interrogés.</numerusform>
            <numerusform>%n autres serveurs principaux laissés de côté : au plus %1 sont interrogés.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more server lists left out: at most %1 are fetched.</source>
        <translation>
            <numerusform>%n autre liste de serveurs laissée de côté : au plus %1 sont téléchargées.</numerusform>
            <numerusform>%n autres listes de serveurs laissées de côté : au plus %1 sont téléchargées.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>... and %n more (the status line&apos;s tooltip lists them all)</source>
        <translation>
            <numerusform>... et %n autre (l&apos;infobulle de la ligne d&apos;état les cite tous)</numerusform>
            <numerusform>... et %n autres (l&apos;infobulle de la ligne d&apos;état les cite tous)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThemeFile</name>
    <message>
        <source>Dark</source>
        <translation>Sombre</translation>
    </message>
    <message>
        <source>Desktop Colours</source>
        <translation>Couleurs du bureau</translation>
    </message>
</context>
<context>
    <name>ThemeTab</name>
    <message>
        <source>Form Back Colour</source>
        <translation>Fond des fenêtres</translation>
    </message>
    <message>
        <source>List Back Colour</source>
        <translation>Fond des listes</translation>
    </message>
    <message>
        <source>List Text Colour</source>
        <translation>Texte des listes</translation>
    </message>
    <message>
        <source>Text Box Back Colour</source>
        <translation>Fond des zones de texte</translation>
    </message>
    <message>
        <source>Text Box Text Colour</source>
        <translation>Texte des zones de texte</translation>
    </message>
    <message>
        <source>Progress Bar Back Colour</source>
        <translation>Fond de la barre de progression</translation>
    </message>
    <message>
        <source>Progress Bar Bar Colour</source>
        <translation>Couleur de la barre de progression</translation>
    </message>
    <message>
        <source>Progress Bar Type:</source>
        <translation>Type de barre de progression :</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Classique</translation>
    </message>
    <message>
        <source>Segmented</source>
        <translation>Segmentée</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Continue</translation>
    </message>
    <message>
        <source>Tab Style:</source>
        <translation>Style des onglets :</translation>
    </message>
    <message>
        <source>Small Tabs</source>
        <translation>Petits onglets</translation>
    </message>
    <message>
        <source>Large Tabs</source>
        <translation>Grands onglets</translation>
    </message>
    <message>
        <source>Saved Themes:</source>
        <translation>Thèmes enregistrés :</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Enregistrer</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Save Theme</source>
        <translation>Enregistrer le thème</translation>
    </message>
    <message>
        <source>Please enter a name for this theme</source>
        <translation>Veuillez saisir un nom pour ce thème</translation>
    </message>
    <message>
        <source>The themes could not be saved to %1; the other settings are not affected.</source>
        <translation>Les thèmes n&apos;ont pas pu être enregistrés dans %1 ; les autres réglages ne sont pas concernés.</translation>
    </message>
</context>
<context>
    <name>UpdateFlow</name>
    <message>
        <source>Quake 4 Vantage Update</source>
        <translation>Mise à jour de Quake 4 Vantage</translation>
    </message>
    <message>
        <source>The installer came without encryption (plain HTTP), so it will not be started. It was saved to %1.</source>
        <translation>Le programme d&apos;installation est arrivé sans chiffrement (HTTP simple), il ne sera donc pas lancé. Il a été enregistré dans %1.</translation>
    </message>
    <message>
        <source>The installer was saved to %1, but it cannot be started on this system.</source>
        <translation>Le programme d&apos;installation a été enregistré dans %1, mais il ne peut pas être lancé sur ce système.</translation>
    </message>
    <message>
        <source>The site did not say how large the installer is, so whether all of it arrived cannot be checked, and it will not be started. It was saved to %1.</source>
        <translation>Le site n&apos;a pas indiqué la taille du programme d&apos;installation : impossible de vérifier qu&apos;il est arrivé en entier, il ne sera donc pas lancé. Il a été enregistré dans %1.</translation>
    </message>
</context>
</TS>
