<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt">
<context>
    <name>AddressListEditor</name>
    <message>
        <source>Add...</source>
        <translation>Adicionar...</translation>
    </message>
    <message>
        <source>Edit...</source>
        <translation>Editar...</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
</context>
<context>
    <name>AutoRefresh</name>
    <message>
        <source>%1 is playing on %2</source>
        <translation>%1 está a jogar em %2</translation>
    </message>
    <message>
        <source>%1 has %2 players</source>
        <translation>%1 tem %2 jogadores</translation>
    </message>
    <message>
        <source>Quake 4 Vantage</source>
        <translation>Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Refreshed at %1
%2 of %3 servers answered</source>
        <translation>Atualizado às %1
responderam %2 de %3 servidores</translation>
    </message>
    <message numerus="yes">
        <source>and %n more</source>
        <translation>
            <numerusform>e mais %n</numerusform>
            <numerusform>e mais %n</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>CopyCommands</name>
    <message>
        <source>Copy Cell</source>
        <translation>Copiar célula</translation>
    </message>
    <message>
        <source>Copy Column</source>
        <translation>Copiar coluna</translation>
    </message>
    <message>
        <source>Copy Row</source>
        <translation>Copiar linha</translation>
    </message>
    <message>
        <source>Copy All</source>
        <translation>Copiar tudo</translation>
    </message>
</context>
<context>
    <name>Countries</name>
    <message>
        <source>Countries: %1</source>
        <translation>Países: %1</translation>
    </message>
    <message>
        <source>Countries: no location database is set, so no flags are shown.</source>
        <translation>Países: nenhuma base de dados de localização definida, por isso não há bandeiras.</translation>
    </message>
    <message>
        <source>Countries: no flags are shown, as %1 (the package libloc-database installs one).</source>
        <translation>Países: não há bandeiras, porque %1 (o pacote libloc-database instala uma).</translation>
    </message>
</context>
<context>
    <name>Desktop</name>
    <message>
        <source>Select your Quake 4 Executable</source>
        <translation>Selecione o executável do Quake 4</translation>
    </message>
    <message>
        <source>Quake 4 Executable (%1)</source>
        <translation>Executável do Quake 4 (%1)</translation>
    </message>
</context>
<context>
    <name>DialogBar</name>
    <message>
        <source>%1 is not listed now: &quot;Query Recently Played&quot; asks every server you played on.</source>
        <translation>%1 não está listado agora: «Query Jogados recentemente» consulta cada servidor em que jogou.</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>Filters</source>
        <translation>Filtros</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Recently Played</source>
        <translation>Jogados recentemente</translation>
    </message>
    <message numerus="yes">
        <source>%n hidden by filters</source>
        <translation>
            <numerusform>%n oculto pelos filtros</numerusform>
            <numerusform>%n ocultos pelos filtros</numerusform>
        </translation>
    </message>
    <message>
        <source>Servers that answered but do not pass the filters. &quot;Filters&quot; shows them.</source>
        <translation>Servidores que responderam mas não passam nos filtros. «Filtros» mostra-os.</translation>
    </message>
</context>
<context>
    <name>Downloader</name>
    <message>
        <source>The site sent an empty file.</source>
        <translation>O site enviou um ficheiro vazio.</translation>
    </message>
    <message>
        <source>%1 of %2 bytes arrived.</source>
        <translation>Chegaram %1 de %2 bytes.</translation>
    </message>
    <message>
        <source>The installer is larger than %1 MB.</source>
        <translation>O instalador tem mais de %1 MB.</translation>
    </message>
    <message>
        <source>The site sent more than the %1 bytes it announced.</source>
        <translation>O site enviou mais do que os %1 bytes anunciados.</translation>
    </message>
</context>
<context>
    <name>EditableListDialog</name>
    <message>
        <source>Edit Cell</source>
        <translation>Editar célula</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Novo</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
</context>
<context>
    <name>FindBar</name>
    <message>
        <source>Find</source>
        <translation>Procurar</translation>
    </message>
    <message>
        <source>Text Not Found</source>
        <translation>Texto Não Encontrado</translation>
    </message>
    <message>
        <source>Next Friend</source>
        <translation>Próximo amigo</translation>
    </message>
    <message>
        <source>Select the next listed friend</source>
        <translation>Selecionar o próximo amigo da lista</translation>
    </message>
    <message>
        <source>No friends yet: right-click a player and choose &quot;Add To Friends&quot;.</source>
        <translation>Ainda sem amigos: clique com o botão direito num jogador e escolha «Adicionar aos amigos».</translation>
    </message>
    <message>
        <source>None of your friends is listed.</source>
        <translation>Nenhum dos seus amigos está na lista.</translation>
    </message>
</context>
<context>
    <name>FriendsTab</name>
    <message>
        <source>Friends (names, or patterns such as *Bob*):</source>
        <translation>Amigos (nomes, ou padrões como *Bob*):</translation>
    </message>
    <message>
        <source>Friend</source>
        <translation>Amigo</translation>
    </message>
    <message>
        <source>Name of a friend as the player list shows it, or a pattern such as *Hammer*:</source>
        <translation>Nome de um amigo tal como a lista de jogadores o mostra, ou um padrão como *Hammer*:</translation>
    </message>
    <message>
        <source>&quot;%1&quot; holds a control character. Type a name or a pattern.</source>
        <translation>«%1» contém um carácter de controlo. Escreva um nome ou um padrão.</translation>
    </message>
    <message>
        <source>Refresh the listed servers:</source>
        <translation>Atualizar os servidores listados:</translation>
    </message>
    <message>
        <source>Never</source>
        <translation>Nunca</translation>
    </message>
    <message numerus="yes">
        <source>Every %n minutes</source>
        <translation>
            <numerusform>A cada %n minutos</numerusform>
            <numerusform>A cada %n minutos</numerusform>
        </translation>
    </message>
    <message>
        <source>Tell me when a friend starts playing</source>
        <translation>Avisar quando um amigo começa a jogar</translation>
    </message>
    <message>
        <source>Tell me when a favourite server has</source>
        <translation>Avisar quando um servidor favorito tem</translation>
    </message>
    <message>
        <source>players or more</source>
        <translation>jogadores ou mais</translation>
    </message>
    <message>
        <source>Notifications come with the automatic refresh.</source>
        <translation>As notificações vêm com a atualização automática.</translation>
    </message>
    <message>
        <source>Offer to wait for a slot on a full server</source>
        <translation>Oferecer espera por uma vaga num servidor cheio</translation>
    </message>
    <message>
        <source>Every minute</source>
        <translation>A cada minuto</translation>
    </message>
</context>
<context>
    <name>FrmAbout</name>
    <message>
        <source>About Quake 4 Vantage</source>
        <translation>Sobre o Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Quake 4 Vantage</source>
        <translation>Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Version %1</source>
        <translation>Versão %1</translation>
    </message>
    <message>
        <source>A server browser for Quake 4: finds servers and players, and joins a game with a double click.</source>
        <translation>Um navegador de servidores para Quake 4: encontra servidores e jogadores e entra num jogo com um duplo clique.</translation>
    </message>
    <message>
        <source>Built with Qt %1, running on Qt %2.</source>
        <translation>Compilado com Qt %1, a correr em Qt %2.</translation>
    </message>
    <message>
        <source>Licence: %1</source>
        <translation>Licença: %1</translation>
    </message>
    <message>
        <source>Home page</source>
        <translation>Página inicial</translation>
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
        <translation>Erro durante a transferência</translation>
    </message>
    <message>
        <source>The installer could not be saved to %1 (%2).</source>
        <translation>Não foi possível guardar o instalador em %1 (%2).</translation>
    </message>
    <message>
        <source>Complete</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Downloading v%1
%2 of %3</source>
        <translation>A transferir v%1
%2 de %3</translation>
    </message>
    <message>
        <source>Quake 4 Vantage Update</source>
        <translation>Atualização do Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Downloading Quake 4 Vantage v%1</source>
        <translation>A transferir o Quake 4 Vantage v%1</translation>
    </message>
    <message>
        <source>Connecting to download site...</source>
        <translation>A ligar ao site de transferência...</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message numerus="yes">
        <source>Downloading v%1
%n bytes</source>
        <translation>
            <numerusform>A transferir v%1
%n byte</numerusform>
            <numerusform>A transferir v%1
%n bytes</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>FrmFavourites</name>
    <message>
        <source>This favourites file is larger than the editor reads (%1 servers or %2 MB). It is shown in part and not saved, so that no server is lost.</source>
        <translation>Este ficheiro de favoritos é maior do que o editor lê (%1 servidores ou %2 MB). É mostrado só em parte e não é guardado, para que nenhum servidor se perca.</translation>
    </message>
    <message>
        <source>The favourites could not be saved to %1. Your changes are still here.</source>
        <translation>Não foi possível guardar os favoritos em %1. As suas alterações continuam aqui.</translation>
    </message>
    <message>
        <source>Favourites</source>
        <translation>Favoritos</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Novo</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>New Server</source>
        <translation>Novo servidor</translation>
    </message>
    <message numerus="yes">
        <source>%n servers added elsewhere since this list was opened are kept as well.</source>
        <translation>
            <numerusform>%n servidor adicionado noutro lado desde que esta lista foi aberta também é mantido.</numerusform>
            <numerusform>%n servidores adicionados noutro lado desde que esta lista foi aberta também são mantidos.</numerusform>
        </translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a server address. Type a host name or an IP address, followed by a colon and a port from 1 to 65535.</source>
        <translation>&quot;%1&quot; não é um endereço de servidor. Escreva um nome de anfitrião ou um endereço IP, seguido de dois pontos e de uma porta de 1 a 65535.</translation>
    </message>
</context>
<context>
    <name>FrmFilters</name>
    <message>
        <source>Filters</source>
        <translation>Filtros</translation>
    </message>
    <message>
        <source>New</source>
        <translation>Novo</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Built in filters:</source>
        <translation>Filtros incluídos:</translation>
    </message>
    <message>
        <source>Empty</source>
        <translation>Vazios</translation>
    </message>
    <message>
        <source>Full</source>
        <translation>Cheios</translation>
    </message>
    <message>
        <source>Passworded</source>
        <translation>Com senha</translation>
    </message>
    <message>
        <source>Example 1: si_map                 mp/q4dm5</source>
        <translation>Exemplo 1: si_map                 mp/q4dm5</translation>
    </message>
    <message>
        <source>Example 2: sv_punkbuster     1</source>
        <translation>Exemplo 2: sv_punkbuster     1</translation>
    </message>
    <message>
        <source>The filters could not be saved to %1; this change lasts until the program ends.</source>
        <translation>Não foi possível guardar os filtros em %1; esta alteração dura até o programa terminar.</translation>
    </message>
    <message>
        <source>(ticked: listed)</source>
        <translation>(marcado: listado)</translation>
    </message>
    <message>
        <source>Ticked: servers without players are listed; unticked: they are hidden</source>
        <translation>Marcado: os servidores sem jogadores são listados; desmarcado: são ocultados</translation>
    </message>
    <message>
        <source>Ticked: full servers are listed; unticked: they are hidden</source>
        <translation>Marcado: os servidores cheios são listados; desmarcado: são ocultados</translation>
    </message>
    <message>
        <source>Ticked: servers with a password are listed; unticked: they are hidden</source>
        <translation>Marcado: os servidores com palavra-passe são listados; desmarcado: são ocultados</translation>
    </message>
    <message>
        <source>The settings could not be saved; this change lasts until the program ends.</source>
        <translation>Não foi possível guardar as definições; esta alteração dura até o programa terminar.</translation>
    </message>
</context>
<context>
    <name>FrmHistory</name>
    <message>
        <source>Recently Played</source>
        <translation>Jogados recentemente</translation>
    </message>
    <message>
        <source>No servers yet: every server you join from this program is listed here.</source>
        <translation>Ainda sem servidores: cada servidor em que entrar a partir deste programa aparece aqui.</translation>
    </message>
    <message>
        <source>Query Recently Played</source>
        <translation>Query Jogados recentemente</translation>
    </message>
    <message>
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message>
        <source>The list could not be saved to %1.</source>
        <translation>Não foi possível guardar a lista em %1.</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
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
        <translation>Sobre o Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>Sair</translation>
    </message>
    <message numerus="yes">
        <source>%n servers found</source>
        <translation>
            <numerusform>%n servidor encontrado</numerusform>
            <numerusform>%n servidores encontrados</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n players found</source>
        <translation>
            <numerusform>%n jogador encontrado</numerusform>
            <numerusform>%n jogadores encontrados</numerusform>
        </translation>
    </message>
    <message>
        <source>Only servers on %1 are listed now; &quot;Filters&quot; takes the filter away.</source>
        <translation>Só os servidores em %1 são listados agora; em «Filtros» retira-se o filtro.</translation>
    </message>
</context>
<context>
    <name>FrmOptions</name>
    <message>
        <source>Options</source>
        <translation>Opções</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>Definições</translation>
    </message>
    <message>
        <source>Theme</source>
        <translation>Tema</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>Idioma:</translation>
    </message>
    <message>
        <source>Query Speed:</source>
        <translation>Velocidade de consulta:</translation>
    </message>
    <message>
        <source>Dial Up (56k)</source>
        <translation>Modem (56k)</translation>
    </message>
    <message>
        <source>ISDN (64k)</source>
        <translation>RDIS (64k)</translation>
    </message>
    <message>
        <source>ISDN (128k)</source>
        <translation>RDIS (128k)</translation>
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
        <translation>Máxima</translation>
    </message>
    <message>
        <source>Automatically Check For Updates</source>
        <translation>Procurar atualizações automaticamente</translation>
    </message>
    <message>
        <source>Close After Joining</source>
        <translation>Fechar depois de entrar</translation>
    </message>
    <message>
        <source>Refresh Server On Selection</source>
        <translation>Atualizar o servidor ao selecionar</translation>
    </message>
    <message>
        <source>Port Range:</source>
        <translation>Intervalo de portas:</translation>
    </message>
    <message>
        <source>Note: Port Range is dependant on the query speed.</source>
        <translation>Nota: o intervalo de portas depende da velocidade de consulta.</translation>
    </message>
    <message>
        <source>Use Proxy Server for updates</source>
        <translation>Usar servidor proxy para atualizações</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>Aplicar</translation>
    </message>
    <message>
        <source>Defaults</source>
        <translation>Predefinições</translation>
    </message>
    <message>
        <source>Are you sure you want to reset all settings to their default values?</source>
        <translation>Tem a certeza de que quer repor todas as definições nos valores predefinidos?</translation>
    </message>
    <message>
        <source>You must type a port number between %1 and %2! (Default: %3)</source>
        <translation>Tem de escrever um número de porta entre %1 e %2! (Predefinição: %3)</translation>
    </message>
    <message>
        <source>Servers</source>
        <translation>Servidores</translation>
    </message>
    <message>
        <source>Friends</source>
        <translation>Amigos</translation>
    </message>
    <message>
        <source>Keep passwords in the desktop&apos;s keyring</source>
        <translation>Guardar as palavras-passe no porta-chaves do ambiente de trabalho</translation>
    </message>
    <message>
        <source>Unticked, or on a desktop without a keyring, the passwords are kept in the settings file as plain text.</source>
        <translation>Desmarcado, ou num ambiente de trabalho sem porta-chaves, as palavras-passe ficam em texto simples no ficheiro de definições.</translation>
    </message>
</context>
<context>
    <name>FrmUpdate</name>
    <message>
        <source>Quake 4 Vantage Update Available</source>
        <translation>Atualização do Quake 4 Vantage disponível</translation>
    </message>
    <message>
        <source>An update is now available for Quake 4 Vantage, would you like to download it now?</source>
        <translation>Está disponível uma atualização do Quake 4 Vantage, quer transferi-la agora?</translation>
    </message>
    <message>
        <source>Current Version:</source>
        <translation>Versão atual:</translation>
    </message>
    <message>
        <source>Latest Version:</source>
        <translation>Versão mais recente:</translation>
    </message>
    <message>
        <source>Automatically check for updates in the future</source>
        <translation>Procurar atualizações automaticamente no futuro</translation>
    </message>
    <message>
        <source>Yes</source>
        <translation>Sim</translation>
    </message>
    <message>
        <source>No</source>
        <translation>Não</translation>
    </message>
</context>
<context>
    <name>GameBox</name>
    <message>
        <source>Game:</source>
        <translation>Jogo:</translation>
    </message>
    <message>
        <source>Look Again</source>
        <translation>Procurar de novo</translation>
    </message>
    <message>
        <source>Looks for the game&apos;s installs on this machine again: Steam&apos;s libraries, the Linux release and Wine.</source>
        <translation>Procura de novo as instalações do jogo neste computador: bibliotecas do Steam, versão Linux e Wine.</translation>
    </message>
    <message>
        <source>Quake 4 Executable:</source>
        <translation>Executável do Quake 4:</translation>
    </message>
    <message>
        <source>Browse</source>
        <translation>Procurar...</translation>
    </message>
    <message>
        <source>A join runs:</source>
        <translation>Entrar executa:</translation>
    </message>
    <message>
        <source>Looking for the game on this machine...</source>
        <translation>Procurando o jogo neste computador...</translation>
    </message>
    <message>
        <source>None found</source>
        <translation>Nenhum encontrado</translation>
    </message>
    <message>
        <source>Ask at the first join</source>
        <translation>Perguntar ao entrar pela primeira vez</translation>
    </message>
    <message>
        <source>Other program...</source>
        <translation>Outro programa...</translation>
    </message>
    <message>
        <source>No program chosen</source>
        <translation>Nenhum programa escolhido</translation>
    </message>
    <message>
        <source>Started in %1</source>
        <translation>Iniciado em %1</translation>
    </message>
    <message>
        <source>Chosen at the first join</source>
        <translation>Escolhido ao entrar pela primeira vez</translation>
    </message>
</context>
<context>
    <name>GameChooser</name>
    <message>
        <source>The game&apos;s Windows build</source>
        <translation>A versão Windows do jogo</translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself, and neither Steam with the game nor Wine is installed here.

Install the game in Steam (which runs it through Proton), or install Wine (Debian&apos;s package &quot;wine&quot;), or choose the Linux release&apos;s &quot;quake4&quot; instead.</source>
        <translation>%1 é a versão Windows do jogo, que este sistema não consegue iniciar sozinho, e nem o Steam com o jogo nem o Wine estão instalados aqui.

Instale o jogo no Steam (que o executa com o Proton), ou instale o Wine (pacote Debian &quot;wine&quot;), ou escolha o &quot;quake4&quot; da versão Linux.</translation>
    </message>
    <message>
        <source>Through Steam</source>
        <translation>Pelo Steam</translation>
    </message>
    <message>
        <source>Through Wine</source>
        <translation>Pelo Wine</translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself. Start it through Steam (%2) or through Wine?</source>
        <translation>%1 é a versão Windows do jogo, que este sistema não consegue iniciar sozinho. Iniciá-la pelo Steam (%2) ou pelo Wine?</translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself. Start it through Steam (%2)?</source>
        <translation>%1 é a versão Windows do jogo, que este sistema não consegue iniciar sozinho. Iniciá-la pelo Steam (%2)?</translation>
    </message>
    <message>
        <source>%1 is the game&apos;s Windows build, which this system cannot start by itself. Start it through Wine?</source>
        <translation>%1 é a versão Windows do jogo, que este sistema não consegue iniciar sozinho. Iniciá-la pelo Wine?</translation>
    </message>
    <message>
        <source>Which Quake 4?</source>
        <translation>Qual Quake 4?</translation>
    </message>
    <message>
        <source>Quake 4 is installed more than once here. Which one should a join start? You can change it later in Options.</source>
        <translation>O Quake 4 está instalado mais de uma vez aqui. Qual deve ser iniciado ao entrar? Pode mudar isto depois nas Opções.</translation>
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
        <translation>Versão Linux: %1</translation>
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
        <translation>Entrar num servidor pelo endereço IP</translation>
    </message>
    <message>
        <source>Please enter the IP address/hostname and port of the server you wish to join</source>
        <translation>Introduza o endereço IP ou nome do anfitrião e a porta do servidor em que quer entrar</translation>
    </message>
    <message>
        <source>Please enter the password for this server</source>
        <translation>Introduza a senha deste servidor</translation>
    </message>
    <message>
        <source>No Password Provided</source>
        <translation>Nenhuma senha indicada</translation>
    </message>
    <message>
        <source>Join Server Anyway?</source>
        <translation>Entrar no servidor mesmo assim?</translation>
    </message>
    <message>
        <source>Connecting to %1</source>
        <translation>A ligar a %1</translation>
    </message>
    <message>
        <source>The game could not be started: %1 does not exist.</source>
        <translation>Não foi possível iniciar o jogo: %1 não existe.</translation>
    </message>
    <message>
        <source>The game could not be started: %1 is not a program.</source>
        <translation>Não foi possível iniciar o jogo: %1 não é um programa.</translation>
    </message>
    <message>
        <source>The game could not be started: %1.</source>
        <translation>Não foi possível iniciar o jogo: %1.</translation>
    </message>
    <message>
        <source>%1 is full.
Wait for a free slot and join as soon as one opens?</source>
        <translation>%1 está cheio.
Esperar por uma vaga e entrar assim que uma abrir?</translation>
    </message>
    <message>
        <source>The game started, but the list of recently played servers could not be saved.</source>
        <translation>O jogo arrancou, mas não foi possível guardar a lista de servidores jogados recentemente.</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a server address. Type a host name or an IP address, followed by a colon and a port from 1 to 65535 when the port is not the game&apos;s.</source>
        <translation>&quot;%1&quot; não é um endereço de servidor. Escreva um nome de anfitrião ou um endereço IP, seguido de dois pontos e de uma porta de 1 a 65535 quando não for a do jogo.</translation>
    </message>
    <message>
        <source>Wait for a Slot</source>
        <translation>Esperar por um lugar</translation>
    </message>
    <message>
        <source>Join Anyway</source>
        <translation>Entrar mesmo assim</translation>
    </message>
    <message>
        <source>Looking for %1 in the game&apos;s archives...</source>
        <translation>A procurar %1 nos arquivos do jogo...</translation>
    </message>
    <message>
        <source>%1 is not installed. Join anyway?</source>
        <translation>%1 não está instalado. Entrar mesmo assim?</translation>
    </message>
    <message>
        <source>%1 is not installed (mod %2). Join anyway?</source>
        <translation>%1 não está instalado (mod %2). Entrar mesmo assim?</translation>
    </message>
    <message>
        <source>installed</source>
        <translation>instalado</translation>
    </message>
    <message>
        <source>missing</source>
        <translation>em falta</translation>
    </message>
    <message>
        <source>Looking for the game on this machine...</source>
        <translation>Procurando o jogo neste computador...</translation>
    </message>
    <message>
        <source>Using the game found on this machine: %1. Options can choose another.</source>
        <translation>Usando o jogo encontrado neste computador: %1. Nas Opções pode escolher outro.</translation>
    </message>
</context>
<context>
    <name>JoinPanel</name>
    <message>
        <source>Player Name:</source>
        <translation>Nome do jogador:</translation>
    </message>
    <message>
        <source>Join</source>
        <translation>Entrar</translation>
    </message>
    <message>
        <source>Join IP</source>
        <translation>Entrar por IP</translation>
    </message>
    <message>
        <source>Name:</source>
        <translation>Nome:</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>Senha:</translation>
    </message>
    <message>
        <source>Stop Waiting</source>
        <translation>Parar de esperar</translation>
    </message>
</context>
<context>
    <name>ListColumns</name>
    <message>
        <source>Num</source>
        <translation>N.º</translation>
    </message>
    <message>
        <source>Player</source>
        <translation>Jogador</translation>
    </message>
    <message>
        <source>Clan</source>
        <translation>Clã</translation>
    </message>
    <message>
        <source>Ping</source>
        <translation>Ping</translation>
    </message>
    <message>
        <source>Rate</source>
        <translation>Taxa</translation>
    </message>
    <message>
        <source>Variable</source>
        <translation>Variável</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>Valor</translation>
    </message>
    <message>
        <source>Server</source>
        <translation>Servidor</translation>
    </message>
    <message>
        <source>Map</source>
        <translation>Mapa</translation>
    </message>
    <message>
        <source>Players</source>
        <translation>Jogadores</translation>
    </message>
    <message>
        <source>Pw</source>
        <translation>Sen</translation>
    </message>
    <message>
        <source>Type</source>
        <translation>Tipo</translation>
    </message>
    <message>
        <source>Game</source>
        <translation>Jogo</translation>
    </message>
    <message>
        <source>Server IP Address</source>
        <translation>Endereço IP do servidor</translation>
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
        <translation>Nome do servidor</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>Senha</translation>
    </message>
    <message>
        <source>Last Played</source>
        <translation>Última vez</translation>
    </message>
    <message>
        <source>Country</source>
        <translation>País</translation>
    </message>
</context>
<context>
    <name>ListMenu</name>
    <message>
        <source>&amp;Add To Favourites</source>
        <translation>&amp;Adicionar aos favoritos</translation>
    </message>
    <message>
        <source>&amp;Select Server</source>
        <translation>&amp;Selecionar servidor</translation>
    </message>
    <message>
        <source>The favourites file could not be written.</source>
        <translation>Não foi possível escrever o ficheiro de favoritos.</translation>
    </message>
    <message>
        <source>Add To F&amp;riends</source>
        <translation>Adicionar aos a&amp;migos</translation>
    </message>
    <message>
        <source>%1 is one of your friends already.</source>
        <translation>%1 já é um dos seus amigos.</translation>
    </message>
    <message>
        <source>Your friends could not be saved.</source>
        <translation>Não foi possível guardar os seus amigos.</translation>
    </message>
    <message>
        <source>%1 was added to your friends.</source>
        <translation>%1 foi adicionado aos seus amigos.</translation>
    </message>
    <message>
        <source>&amp;Join</source>
        <translation>&amp;Entrar</translation>
    </message>
    <message>
        <source>R&amp;efresh</source>
        <translation>Actuali&amp;zar</translation>
    </message>
    <message>
        <source>%1 was added to your favourites.</source>
        <translation>%1 foi adicionado aos seus favoritos.</translation>
    </message>
    <message>
        <source>C&amp;olumns</source>
        <translation>C&amp;olunas</translation>
    </message>
    <message>
        <source>Filter By This &amp;Map</source>
        <translation>Filtrar por este &amp;mapa</translation>
    </message>
</context>
<context>
    <name>ListTabs</name>
    <message>
        <source>Players</source>
        <translation>Jogadores</translation>
    </message>
    <message>
        <source>Servers</source>
        <translation>Servidores</translation>
    </message>
    <message>
        <source>Hide empty</source>
        <translation>Ocultar vazios</translation>
    </message>
    <message>
        <source>Servers without players are not listed (the filters&apos; &quot;Empty&quot; box)</source>
        <translation>Os servidores sem jogadores não são listados (a caixa «Vazios» dos filtros)</translation>
    </message>
    <message>
        <source>Hide full</source>
        <translation>Ocultar cheios</translation>
    </message>
    <message>
        <source>Full servers are not listed (the filters&apos; &quot;Full&quot; box)</source>
        <translation>Os servidores cheios não são listados (a caixa «Cheios» dos filtros)</translation>
    </message>
    <message>
        <source>The settings could not be saved, so the list stays as it was.</source>
        <translation>Não foi possível guardar as definições, por isso a lista fica como estava.</translation>
    </message>
</context>
<context>
    <name>QueryBar</name>
    <message>
        <source>Cancel Query</source>
        <translation>Cancelar Query</translation>
    </message>
    <message>
        <source>Query Masters</source>
        <translation>Query Masters</translation>
    </message>
    <message>
        <source>Query Favourites</source>
        <translation>Query Favoritos</translation>
    </message>
    <message>
        <source>Query LAN</source>
        <translation>Procurar na LAN</translation>
    </message>
    <message>
        <source>Find the servers of your local network</source>
        <translation>Encontrar os servidores da sua rede local</translation>
    </message>
    <message>
        <source>Quake 4 Vantage</source>
        <translation>Quake 4 Vantage</translation>
    </message>
    <message>
        <source>Options...</source>
        <translation>Opções...</translation>
    </message>
</context>
<context>
    <name>QueryController</name>
    <message>
        <source>Done</source>
        <translation>Concluído</translation>
    </message>
    <message>
        <source>Master Servers Timed Out</source>
        <translation>Tempo esgotado nos servidores mestre</translation>
    </message>
    <message>
        <source>The start port %1 is not valid. Choose another in the options.</source>
        <translation>A porta inicial %1 não é válida. Escolha outra nas opções.</translation>
    </message>
    <message>
        <source>No favourites yet: right-click a server and choose &quot;Add To Favourites&quot;.</source>
        <translation>Ainda sem favoritos: clique com o botão direito num servidor e escolha «Adicionar aos favoritos».</translation>
    </message>
    <message>
        <source>Cancelled</source>
        <translation>Cancelado</translation>
    </message>
    <message>
        <source>Requesting Server List from
%1</source>
        <translation>A pedir a lista de servidores a
%1</translation>
    </message>
    <message>
        <source>Receiving Server List from
%1</source>
        <translation>A receber a lista de servidores de
%1</translation>
    </message>
    <message>
        <source>Sorting IP Address Lists
%1</source>
        <translation>A ordenar as listas de endereços IP
%1</translation>
    </message>
    <message>
        <source>No local network to search: no network interface can broadcast.</source>
        <translation>Nenhuma rede local para procurar: nenhuma interface de rede pode fazer broadcast.</translation>
    </message>
    <message>
        <source>Searching the local network...</source>
        <translation>A procurar na rede local...</translation>
    </message>
    <message>
        <source>No servers played yet: the servers you join are kept in &quot;Recently Played&quot;.</source>
        <translation>Ainda não jogou em nenhum servidor: os servidores em que entra ficam em «Jogados recentemente».</translation>
    </message>
    <message>
        <source>No server answered on the local network; the list is as it was.</source>
        <translation>Nenhum servidor respondeu na rede local; a lista fica como estava.</translation>
    </message>
</context>
<context>
    <name>QueryError</name>
    <message>
        <source>Local port %1 cannot be used (%2). Choose another start port in the options.</source>
        <translation>A porta local %1 não pode ser usada (%2). Escolha outra porta inicial nas opções.</translation>
    </message>
    <message>
        <source>The master server listed more than %1 servers; the list was not used.</source>
        <translation>O servidor mestre listou mais de %1 servidores; a lista não foi usada.</translation>
    </message>
    <message>
        <source>Master server %1 not found (%2).</source>
        <translation>Servidor mestre %1 não encontrado (%2).</translation>
    </message>
    <message>
        <source>The master server address &quot;%1&quot; is not valid.</source>
        <translation>O endereço do servidor mestre «%1» não é válido.</translation>
    </message>
</context>
<context>
    <name>ServerDetails</name>
    <message>
        <source>Players of the selected server</source>
        <translation>Jogadores do servidor selecionado</translation>
    </message>
    <message>
        <source>Rules of the selected server</source>
        <translation>Regras do servidor selecionado</translation>
    </message>
    <message>
        <source>Add To F&amp;riends</source>
        <translation>Adicionar aos a&amp;migos</translation>
    </message>
    <message>
        <source>map on this machine</source>
        <translation>mapa neste computador</translation>
    </message>
</context>
<context>
    <name>ServerListFetch</name>
    <message>
        <source>no reply within %1 seconds</source>
        <translation>sem resposta em %1 segundos</translation>
    </message>
    <message>
        <source>the reply is larger than %1 MiB</source>
        <translation>a resposta é maior que %1 MiB</translation>
    </message>
</context>
<context>
    <name>ServerListModel</name>
    <message>
        <source>No answer to the last refresh; last seen at %1</source>
        <translation>Sem resposta à última atualização; visto pela última vez às %1</translation>
    </message>
    <message>
        <source>One of your favourites</source>
        <translation>Um dos seus favoritos</translation>
    </message>
    <message>
        <source>Full: %1 of %2 players</source>
        <translation>Cheio: %1 de %2 jogadores</translation>
    </message>
</context>
<context>
    <name>ServerMemory</name>
    <message>
        <source>The servers that answered could not be remembered in %1.</source>
        <translation>Os servidores que responderam não puderam ser memorizados em %1.</translation>
    </message>
</context>
<context>
    <name>ServerRulesModel</name>
    <message>
        <source>True</source>
        <translation>Verdadeiro</translation>
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
        <translation>Nome do servidor:</translation>
    </message>
</context>
<context>
    <name>ServerSources</name>
    <message>
        <source>did not answer</source>
        <translation>não respondeu</translation>
    </message>
    <message>
        <source>known servers</source>
        <translation>servidores conhecidos</translation>
    </message>
</context>
<context>
    <name>ServersTab</name>
    <message>
        <source>Master servers, all asked at once:</source>
        <translation>Servidores mestre, consultados todos ao mesmo tempo:</translation>
    </message>
    <message>
        <source>Master Server</source>
        <translation>Servidor mestre</translation>
    </message>
    <message>
        <source>Host name or address of a master server, with :port when it is not %1:</source>
        <translation>Nome ou endereço de um servidor mestre, com :porta quando não for %1:</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a master server address. Type a host name or an IP address, followed by a colon and a port from 1 to 65535 when the port is not %2.</source>
        <translation>&quot;%1&quot; não é um endereço de servidor mestre. Escreva um nome ou endereço IP, seguido de dois pontos e de uma porta de 1 a 65535 quando a porta não for %2.</translation>
    </message>
    <message>
        <source>Server lists on the web, fetched alongside:</source>
        <translation>Listas de servidores na web, obtidas ao mesmo tempo:</translation>
    </message>
    <message>
        <source>Server List</source>
        <translation>Lista de servidores</translation>
    </message>
    <message>
        <source>Web address of a server list (JSON or one host:port per line):</source>
        <translation>Endereço web de uma lista de servidores (JSON ou um host:porta por linha):</translation>
    </message>
    <message>
        <source>&quot;%1&quot; is not a web address. Type an address that begins with http:// or https://.</source>
        <translation>&quot;%1&quot; não é um endereço web. Escreva um endereço que comece por http:// ou https://.</translation>
    </message>
    <message>
        <source>Remember servers that answered and query them again</source>
        <translation>Lembrar os servidores que responderam e consultá-los de novo</translation>
    </message>
    <message>
        <source>Forget known servers</source>
        <translation>Esquecer servidores conhecidos</translation>
    </message>
    <message numerus="yes">
        <source>Forget the %n servers that answered before? Query Masters asks them again only when a master or a server list names them.</source>
        <translation>
            <numerusform>Esquecer o %n servidor que respondeu antes? Query Masters só o consulta de novo quando um mestre ou uma lista o indicar.</numerusform>
            <numerusform>Esquecer os %n servidores que responderam antes? Query Masters só os consulta de novo quando um mestre ou uma lista os indicar.</numerusform>
        </translation>
    </message>
    <message>
        <source>The known servers could not be removed from %1.</source>
        <translation>Não foi possível remover os servidores conhecidos de %1.</translation>
    </message>
    <message>
        <source>No servers known yet.</source>
        <translation>Ainda nenhum servidor conhecido.</translation>
    </message>
    <message numerus="yes">
        <source>%n servers known.</source>
        <translation>
            <numerusform>%n servidor conhecido.</numerusform>
            <numerusform>%n servidores conhecidos.</numerusform>
        </translation>
    </message>
    <message>
        <source>At most %1 master servers are asked. Remove one before adding another.</source>
        <translation>São consultados no máximo %1 servidores mestre. Remova um antes de adicionar outro.</translation>
    </message>
    <message>
        <source>At most %1 server lists are fetched. Remove one before adding another.</source>
        <translation>São obtidas no máximo %1 listas de servidores. Remova uma antes de adicionar outra.</translation>
    </message>
</context>
<context>
    <name>SlotWaiter</name>
    <message>
        <source>No slot came free on %1 in 30 minutes: stopped waiting.</source>
        <translation>Nenhuma vaga abriu em %1 em 30 minutos: deixou de esperar.</translation>
    </message>
    <message>
        <source>%1 is full (%2): waiting for a free slot...</source>
        <translation>%1 está cheio (%2): à espera de uma vaga...</translation>
    </message>
    <message>
        <source>Stopped waiting for a free slot.</source>
        <translation>Deixou de esperar por uma vaga.</translation>
    </message>
</context>
<context>
    <name>SourceStatus</name>
    <message>
        <source>%1: no answer yet</source>
        <translation>%1: ainda sem resposta</translation>
    </message>
    <message>
        <source>%1: %2</source>
        <translation>%1: %2</translation>
    </message>
    <message numerus="yes">
        <source>%1: %n servers</source>
        <translation>
            <numerusform>%1: %n servidor</numerusform>
            <numerusform>%1: %n servidores</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>(%n entries skipped)</source>
        <translation>
            <numerusform>(%n entrada ignorada)</numerusform>
            <numerusform>(%n entradas ignoradas)</numerusform>
        </translation>
    </message>
    <message>
        <source>(list cut at %1)</source>
        <translation>(lista cortada em %1)</translation>
    </message>
    <message>
        <source>Querying %1 Servers...</source>
        <translation>A consultar %1 servidores...</translation>
    </message>
    <message>
        <source>Waiting for %1</source>
        <translation>À espera de %1</translation>
    </message>
    <message>
        <source>No list from %1</source>
        <translation>Nenhuma lista de %1</translation>
    </message>
    <message>
        <source>Master Servers Timed Out</source>
        <translation>Tempo esgotado nos servidores mestre</translation>
    </message>
    <message>
        <source>Check the network connection, or add a master server or a server list that works in Options, on the &quot;Servers&quot; tab.</source>
        <translation>Verifique a ligação à rede, ou adicione um servidor mestre ou uma lista de servidores que funcione nas Opções, no separador &quot;Servidores&quot;.</translation>
    </message>
    <message>
        <source>%1 not found</source>
        <translation>%1 não encontrado</translation>
    </message>
    <message>
        <source>%1 did not answer</source>
        <translation>%1 não respondeu</translation>
    </message>
    <message>
        <source>Options, &quot;Servers&quot; tab, adds sources</source>
        <translation>Opções, separador «Servidores», acrescenta fontes</translation>
    </message>
    <message numerus="yes">
        <source>%1 and %n more</source>
        <translation>
            <numerusform>%1 e mais %n</numerusform>
            <numerusform>%1 e mais %n</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more master servers left out: at most %1 are asked.</source>
        <translation>
            <numerusform>Mais %n servidor mestre deixado de fora: são consultados no máximo %1.</numerusform>
            <numerusform>Mais %n servidores mestre deixados de fora: são consultados no máximo %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>%n more server lists left out: at most %1 are fetched.</source>
        <translation>
            <numerusform>Mais %n lista de servidores deixada de fora: são obtidas no máximo %1.</numerusform>
            <numerusform>Mais %n listas de servidores deixadas de fora: são obtidas no máximo %1.</numerusform>
        </translation>
    </message>
    <message numerus="yes">
        <source>... and %n more (the status line&apos;s tooltip lists them all)</source>
        <translation>
            <numerusform>... e mais %n (a dica da linha de estado lista todos)</numerusform>
            <numerusform>... e mais %n (a dica da linha de estado lista todos)</numerusform>
        </translation>
    </message>
</context>
<context>
    <name>ThemeFile</name>
    <message>
        <source>Dark</source>
        <translation>Escuro</translation>
    </message>
    <message>
        <source>Desktop Colours</source>
        <translation>Cores do ambiente de trabalho</translation>
    </message>
</context>
<context>
    <name>ThemeTab</name>
    <message>
        <source>Form Back Colour</source>
        <translation>Fundo das janelas</translation>
    </message>
    <message>
        <source>List Back Colour</source>
        <translation>Fundo das listas</translation>
    </message>
    <message>
        <source>List Text Colour</source>
        <translation>Texto das listas</translation>
    </message>
    <message>
        <source>Text Box Back Colour</source>
        <translation>Fundo das caixas de texto</translation>
    </message>
    <message>
        <source>Text Box Text Colour</source>
        <translation>Texto das caixas de texto</translation>
    </message>
    <message>
        <source>Progress Bar Back Colour</source>
        <translation>Fundo da barra de progresso</translation>
    </message>
    <message>
        <source>Progress Bar Bar Colour</source>
        <translation>Cor da barra de progresso</translation>
    </message>
    <message>
        <source>Progress Bar Type:</source>
        <translation>Tipo de barra de progresso:</translation>
    </message>
    <message>
        <source>Standard</source>
        <translation>Normal</translation>
    </message>
    <message>
        <source>Segmented</source>
        <translation>Segmentada</translation>
    </message>
    <message>
        <source>Smooth</source>
        <translation>Contínua</translation>
    </message>
    <message>
        <source>Tab Style:</source>
        <translation>Estilo dos separadores:</translation>
    </message>
    <message>
        <source>Small Tabs</source>
        <translation>Separadores pequenos</translation>
    </message>
    <message>
        <source>Large Tabs</source>
        <translation>Separadores grandes</translation>
    </message>
    <message>
        <source>Saved Themes:</source>
        <translation>Temas guardados:</translation>
    </message>
    <message>
        <source>Save</source>
        <translation>Guardar</translation>
    </message>
    <message>
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message>
        <source>Save Theme</source>
        <translation>Guardar tema</translation>
    </message>
    <message>
        <source>Please enter a name for this theme</source>
        <translation>Introduza um nome para este tema</translation>
    </message>
    <message>
        <source>The themes could not be saved to %1; the other settings are not affected.</source>
        <translation>Não foi possível guardar os temas em %1; as outras definições não são afetadas.</translation>
    </message>
</context>
<context>
    <name>UpdateFlow</name>
    <message>
        <source>Quake 4 Vantage Update</source>
        <translation>Atualização do Quake 4 Vantage</translation>
    </message>
    <message>
        <source>The installer came without encryption (plain HTTP), so it will not be started. It was saved to %1.</source>
        <translation>O instalador chegou sem encriptação (HTTP simples), por isso não será iniciado. Foi guardado em %1.</translation>
    </message>
    <message>
        <source>The installer was saved to %1, but it cannot be started on this system.</source>
        <translation>O instalador foi guardado em %1, mas não pode ser iniciado neste sistema.</translation>
    </message>
    <message>
        <source>The site did not say how large the installer is, so whether all of it arrived cannot be checked, and it will not be started. It was saved to %1.</source>
        <translation>O site não indicou o tamanho do instalador; não é possível verificar se chegou completo, por isso não será iniciado. Foi guardado em %1.</translation>
    </message>
</context>
</TS>
