<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR">
<context>
    <name>Alerts</name>
    <message id="QTUnableToOpenFileError">
        <source>“%@” can’t be opened.</source>
        <translation>Não foi possível abrir “%@”.</translation>
    </message>
    <message id="QTUnableToOpenFileDetails">
        <source>The file is missing, damaged, or of a kind that Lumaro doesn’t know (error %d).</source>
        <translation>O arquivo não existe, está danificado ou é de um tipo que o Lumaro não conhece (erro %d).</translation>
    </message>
    <message id="QTUnableToPlayFileError">
        <source>“%@” may not play as it should.</source>
        <translation>“%@” pode não ser reproduzido corretamente.</translation>
    </message>
    <message id="QTUnableToPlayFileDetails">
        <source>Parts of the movie can’t be decoded (error %d). Choose Continue to try it anyway.</source>
        <translation>Partes do filme não podem ser decodificadas (erro %d). Escolha “Continuar” para tentar mesmo assim.</translation>
    </message>
    <message id="NoPlayableMoviesInListMessage">
        <source>There is nothing to play.</source>
        <translation>Não há nada para reproduzir.</translation>
    </message>
    <message id="NoPlayableMoviesInListDetails">
        <source>None of the files that were given is a movie that Lumaro can play. You can choose others.</source>
        <translation>Nenhum dos arquivos indicados é um filme que o Lumaro possa reproduzir. Você pode escolher outros.</translation>
    </message>
    <message id="OpenErrorMissing">
        <source>The file doesn’t exist.</source>
        <translation>O arquivo não existe.</translation>
    </message>
    <message id="OpenErrorEmpty">
        <source>The file is empty.</source>
        <translation>O arquivo está vazio.</translation>
    </message>
    <message id="OpenErrorNotAFile">
        <source>It is a folder or a device, not a file.</source>
        <translation>É uma pasta ou um dispositivo, não um arquivo.</translation>
    </message>
    <message id="OpenErrorPermission">
        <source>You aren’t allowed to read the file.</source>
        <translation>Você não tem permissão para ler o arquivo.</translation>
    </message>
    <message id="OpenErrorNotAMovie">
        <source>It isn’t a movie that Lumaro can play.</source>
        <translation>Não é um filme que o Lumaro possa reproduzir.</translation>
    </message>
    <message id="OpenErrorTimeout">
        <source>No answer came in time.</source>
        <translation>Nenhuma resposta chegou a tempo.</translation>
    </message>
    <message id="OpenErrorLibraries">
        <source>The libraries that open movies are missing.</source>
        <translation>Faltam as bibliotecas que abrem filmes.</translation>
    </message>
    <message id="OpenErrorScheme">
        <source>Lumaro doesn’t know addresses of this kind.</source>
        <translation>O Lumaro não conhece endereços deste tipo.</translation>
    </message>
    <message id="OpenErrorUnknownHost">
        <source>There is no server of that name, or no connection to the network.</source>
        <translation>Não há servidor com esse nome ou não há conexão com a rede.</translation>
    </message>
    <message id="OpenErrorUnreachable">
        <source>The server can’t be reached.</source>
        <translation>O servidor está inacessível.</translation>
    </message>
    <message id="OpenErrorRefused">
        <source>The server refused the connection.</source>
        <translation>O servidor recusou a conexão.</translation>
    </message>
    <message id="OpenErrorConnection">
        <source>The connection to the server broke off.</source>
        <translation>A conexão com o servidor foi interrompida.</translation>
    </message>
    <message id="OpenErrorRanges">
        <source>The server sends files only from their beginning, and what is needed first stands at this movie’s end. Download it to play it.</source>
        <translation>O servidor só envia arquivos a partir do início, e o que é necessário primeiro está no fim deste filme. Baixe-o para reproduzi-lo.</translation>
    </message>
    <message id="OpenErrorLogin">
        <source>The server asks for a name and a password (401).</source>
        <translation>O servidor pede um nome e uma senha (401).</translation>
    </message>
    <message id="OpenErrorForbidden">
        <source>The server doesn’t allow it (403).</source>
        <translation>O servidor não permite (403).</translation>
    </message>
    <message id="OpenErrorNotFound">
        <source>The server has no such file (404).</source>
        <translation>O servidor não tem esse arquivo (404).</translation>
    </message>
    <message id="OpenErrorRejected">
        <source>The server rejected the request.</source>
        <translation>O servidor rejeitou a solicitação.</translation>
    </message>
    <message id="OpenErrorServer">
        <source>The server answered with an error of its own.</source>
        <translation>O servidor respondeu com um erro próprio.</translation>
    </message>
    <message id="OpenErrorNoMovies">
        <source>There is no movie in this folder.</source>
        <translation>Não há nenhum filme nesta pasta.</translation>
    </message>
    <message id="OpenErrorNotAList">
        <source>The file is not a playlist.</source>
        <translation>O arquivo não é uma lista de reprodução.</translation>
    </message>
    <message id="OpenErrorListEmpty">
        <source>The playlist names no movies.</source>
        <translation>A lista de reprodução não contém filmes.</translation>
    </message>
    <message id="OpenErrorListTooLarge">
        <source>The playlist is larger than 32 MB.</source>
        <translation>A lista de reprodução tem mais de 32 MB.</translation>
    </message>
    <message id="OpenErrorListTooLong">
        <source>The playlist is too long. Only its first 100,000 entries were opened.</source>
        <translation>A lista de reprodução é longa demais. Só as suas primeiras 100.000 entradas foram abertas.</translation>
    </message>
    <message id="OpenErrorListTooDeep">
        <source>Too many playlists name each other. This one was left out.</source>
        <translation>Listas de reprodução demais remetem umas às outras. Esta foi omitida.</translation>
    </message>
    <message id="OpenErrorListDrives">
        <source>Entries on drives of Windows were left out (%@): %@.</source>
        <translation>Entradas em unidades do Windows foram omitidas (%@): %@.</translation>
    </message>
    <message id="OpenErrorListLocal">
        <source>The playlist comes from a network. Entries that name files of this computer were left out (%@): %@.</source>
        <translation>A lista de reprodução vem de uma rede. As entradas que indicam arquivos deste computador foram omitidas (%@): %@.</translation>
    </message>
    <message id="OpenErrorListNothing">
        <source>Entries that name neither a file nor an address were left out (%@): %@.</source>
        <translation>As entradas que não indicam nem um arquivo nem um endereço foram omitidas (%@): %@.</translation>
    </message>
    <message id="OpenErrorFolders">
        <source>Folders that may not be read (%@): %@.</source>
        <translation>Pastas cuja leitura não é permitida (%@): %@.</translation>
    </message>
    <message id="UnreadableFoldersMessage">
        <source>Not everything could be searched.</source>
        <translation>Não foi possível pesquisar tudo.</translation>
    </message>
    <message id="AndMoreMessage">
        <source>… and %@ more.</source>
        <translation>… e mais %@.</translation>
    </message>
    <message id="UnableToOpenLine">
        <source>“%@”: %@ (%@)</source>
        <translation>“%@”: %@ (%@)</translation>
    </message>
    <message id="UnableToOpenFilesMessage">
        <source>%@ files can’t be opened.</source>
        <translation>%@ arquivos não podem ser abertos.</translation>
    </message>
    <message id="UnableToPlayFilesMessage">
        <source>%@ movies may not play as they should.</source>
        <translation>%@ filmes podem não ser reproduzidos corretamente.</translation>
    </message>
    <message id="NoMoviesInFoldersDetails">
        <source>There is no movie that Lumaro can play in:</source>
        <translation>Não há nenhum filme que o Lumaro possa reproduzir em:</translation>
    </message>
    <message id="Buffering: %d %%">
        <source>Buffering: %d %%</source>
        <translation>Carregando o buffer: %d%%</translation>
    </message>
    <message id="Stalled: No Data from the Server">
        <source>Stalled: no data from the server</source>
        <translation>Parado: nenhum dado do servidor</translation>
    </message>
    <message id="Loading: %@">
        <source>Loading: %@</source>
        <translation>Carregando: %@</translation>
    </message>
    <message id="ResumedAt">
        <source>Resumed at %@
%@: From the Beginning</source>
        <translation>Retomado em %@
%@: desde o início</translation>
    </message>
    <message id="Looking for Movies: %@">
        <source>Looking for movies: %@</source>
        <translation>Procurando filmes: %@</translation>
    </message>
    <message id="FilesFoundMessage" numerus="yes">
        <source>%@ file found…</source>
        <translation>
            <numerusform>%@ arquivo encontrado…</numerusform>
            <numerusform>%@ arquivos encontrados…</numerusform>
        </translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Cancelar</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>Continuar</translation>
    </message>
    <message id="Open...">
        <source>Open...</source>
        <translation>Abrir…</translation>
    </message>
    <message id="Open Recent">
        <source>Open Recent</source>
        <translation>Abrir recente</translation>
    </message>
    <message id="ClearRecent">
        <source>Clear Menu and Forget Places</source>
        <translation>Limpar o menu e esquecer as posições</translation>
    </message>
    <message id="Open">
        <source>Open</source>
        <translation>Abrir</translation>
    </message>
    <message id="ConfigureCheckForNewVersionMessage">
        <source>Look for new versions?</source>
        <translation>Procurar novas versões?</translation>
    </message>
    <message id="ConfigureCheckForNewVersionDetails">
        <source>Lumaro can look from time to time whether a newer version exists. Nothing about you or your movies is sent. You can change this in the preferences.</source>
        <translation>O Lumaro pode verificar de vez em quando se existe uma versão mais nova. Nada sobre você ou seus filmes é enviado. Você pode mudar isso nas preferências.</translation>
    </message>
    <message id="CheckNewVersionFailedMessage">
        <source>Looking for a new version failed.</source>
        <translation>A procura por uma nova versão falhou.</translation>
    </message>
    <message id="CheckNewVersionFailedDetails">
        <source>None of the sites could be reached. Check the connection to the internet, or try again later.</source>
        <translation>Nenhum dos sites pôde ser acessado. Verifique a conexão com a internet ou tente novamente mais tarde.</translation>
    </message>
    <message id="YouHaveLatestVersionMessage">
        <source>Lumaro is up to date.</source>
        <translation>O Lumaro está atualizado.</translation>
    </message>
    <message id="YouHaveLatestVersionDetails">
        <source>You have the latest version.</source>
        <translation>Você tem a versão mais recente.</translation>
    </message>
    <message id="NewVersionAvailableMessage">
        <source>A newer version of Lumaro is available.</source>
        <translation>Uma versão mais nova do Lumaro está disponível.</translation>
    </message>
    <message id="NewVersionAvailableDetails">
        <source>%@ version %@ can be downloaded now.</source>
        <translation>A versão %@ %@ já pode ser baixada.</translation>
    </message>
    <message id="Download Now...">
        <source>&amp;Download Now...</source>
        <translation>&amp;Baixar agora…</translation>
    </message>
    <message id="Skip Version">
        <source>&amp;Skip Version</source>
        <translation>&amp;Pular esta versão</translation>
    </message>
    <message id="Later">
        <source>Later</source>
        <translation>Mais tarde</translation>
    </message>
    <message id="AskDonationMessage">
        <source>Do you enjoy Lumaro?</source>
        <translation>Você gosta do Lumaro?</translation>
    </message>
    <message id="AskDonationDetails">
        <source>Lumaro is free. A donation helps to keep it alive.</source>
        <translation>O Lumaro é gratuito. Uma doação ajuda a mantê-lo vivo.</translation>
    </message>
    <message id="Donate...">
        <source>Donate...</source>
        <translation>Doar…</translation>
    </message>
</context>
<context>
    <name>Version check</name>
    <message id="Up to date">
        <source>Up to date</source>
        <translation>Atualizado</translation>
    </message>
    <message id="Newer %@ version %@ available">
        <source>Newer %@ version %@ available</source>
        <translation>Nova versão %@ %@ disponível</translation>
    </message>
    <message id="Failed to reach all mirror sites">
        <source>Failed to reach all mirror sites</source>
        <translation>Nenhum site pôde ser acessado</translation>
    </message>
    <message id="Release">
        <source>Release</source>
        <translation>estável</translation>
    </message>
    <message id="Beta">
        <source>Beta</source>
        <translation>beta</translation>
    </message>
    <message id="Checking now...">
        <source>Checking now...</source>
        <translation>Verificando…</translation>
    </message>
    <message id="Unknown">
        <source>Unknown</source>
        <translation>Desconhecido</translation>
    </message>
    <message id="Never">
        <source>Never</source>
        <translation>Nunca</translation>
    </message>
</context>
<context>
    <name>Feedback and on-screen display</name>
    <message id="Movie: Play">
        <source>Movie: Play</source>
        <translation>Reproduzir</translation>
    </message>
    <message id="Movie: Pause">
        <source>Movie: Pause</source>
        <translation>Pausa</translation>
    </message>
    <message id="Movie: Stop">
        <source>Movie: Stop</source>
        <translation>Parar</translation>
    </message>
    <message id="Movie: Beginning">
        <source>Movie: Beginning</source>
        <translation>Início</translation>
    </message>
    <message id="Movie: End">
        <source>Movie: End</source>
        <translation>Fim</translation>
    </message>
    <message id="Fast Forward x%d">
        <source>Fast Forward x%d</source>
        <translation>Avanço rápido ×%d</translation>
    </message>
    <message id="Fast Rewind x%d">
        <source>Fast Rewind x%d</source>
        <translation>Retrocesso rápido ×%d</translation>
    </message>
    <message id="Jump Forward %d s">
        <source>Jump Forward %d s</source>
        <translation>Saltar %d s para a frente</translation>
    </message>
    <message id="Jump Backward %d s">
        <source>Jump Backward %d s</source>
        <translation>Saltar %d s para trás</translation>
    </message>
    <message id="Step Forward">
        <source>Step Forward</source>
        <translation>Próximo quadro</translation>
    </message>
    <message id="Step Backward">
        <source>Step Backward</source>
        <translation>Quadro anterior</translation>
    </message>
    <message id="Next: %@">
        <source>Next: %@</source>
        <translation>Próximo: %@</translation>
    </message>
    <message id="Previous: %@">
        <source>Previous: %@</source>
        <translation>Anterior: %@</translation>
    </message>
    <message id="Screen: Next">
        <source>Screen: Next</source>
        <translation>Próxima tela</translation>
    </message>
    <message id="Screen: Previous">
        <source>Screen: Previous</source>
        <translation>Tela anterior</translation>
    </message>
    <message id="Quit">
        <source>Quit</source>
        <translation>Sair</translation>
    </message>
    <message id="Sleep">
        <source>Sleep</source>
        <translation>Suspender</translation>
    </message>
    <message id="Restart the Computer">
        <source>Restart the Computer</source>
        <translation>Reiniciar o computador</translation>
    </message>
    <message id="Shut Down the Computer">
        <source>Shut Down the Computer</source>
        <translation>Desligar o computador</translation>
    </message>
    <message id="Log Out">
        <source>Log Out</source>
        <translation>Encerrar a sessão</translation>
    </message>
    <message id="Restart failed: %@">
        <source>Restart failed: %@</source>
        <translation>Falha ao reiniciar: %@</translation>
    </message>
    <message id="Shutting down failed: %@">
        <source>Shutting down failed: %@</source>
        <translation>Falha ao desligar: %@</translation>
    </message>
    <message id="Logging out failed: %@">
        <source>Logging out failed: %@</source>
        <translation>Falha ao encerrar a sessão: %@</translation>
    </message>
    <message id="KeyName Space">
        <source>Space</source>
        <translation>Espaço</translation>
    </message>
    <message id="KeyName Page Up">
        <source>Page Up</source>
        <translation>Page Up</translation>
    </message>
    <message id="KeyName Page Down">
        <source>Page Down</source>
        <translation>Page Down</translation>
    </message>
    <message id="KeyName Home">
        <source>Home</source>
        <translation>Home</translation>
    </message>
    <message id="KeyName End">
        <source>End</source>
        <translation>End</translation>
    </message>
    <message id="KeyName Insert">
        <source>Insert</source>
        <translation>Insert</translation>
    </message>
    <message id="KeyName Delete">
        <source>Delete</source>
        <translation>Delete</translation>
    </message>
    <message id="KeyName Backspace">
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message id="KeyName Return">
        <source>Return</source>
        <translation>Enter</translation>
    </message>
    <message id="KeyName Ctrl+">
        <source>Ctrl+</source>
        <translation>Ctrl+</translation>
    </message>
    <message id="KeyName Shift+">
        <source>Shift+</source>
        <translation>Shift+</translation>
    </message>
    <message id="KeyName Media Play">
        <source>Media Play</source>
        <translation>Reproduzir (mídia)</translation>
    </message>
    <message id="KeyName Media Stop">
        <source>Media Stop</source>
        <translation>Parar (mídia)</translation>
    </message>
    <message id="KeyName Media Next">
        <source>Media Next</source>
        <translation>Próximo (mídia)</translation>
    </message>
    <message id="KeyName Media Previous">
        <source>Media Previous</source>
        <translation>Anterior (mídia)</translation>
    </message>
    <message id="KeyName Media Volume Up">
        <source>Media Volume Up</source>
        <translation>Aumentar volume (mídia)</translation>
    </message>
    <message id="KeyName Media Volume Down">
        <source>Media Volume Down</source>
        <translation>Diminuir volume (mídia)</translation>
    </message>
    <message id="KeyName Media Mute">
        <source>Media Mute</source>
        <translation>Mudo (mídia)</translation>
    </message>
    <message id="Sleep failed: %@">
        <source>Sleep failed: %@</source>
        <translation>Falha ao suspender: %@</translation>
    </message>
    <message id="Size: Half">
        <source>Size: Half</source>
        <translation>Tamanho: metade</translation>
    </message>
    <message id="Size: Normal">
        <source>Size: Normal</source>
        <translation>Tamanho: normal</translation>
    </message>
    <message id="Size: Double">
        <source>Size: Double</source>
        <translation>Tamanho: dobro</translation>
    </message>
    <message id="Size: Full">
        <source>Size: Full</source>
        <translation>Tamanho: máximo</translation>
    </message>
    <message id="Size: Fit Width">
        <source>Size: Fit Width</source>
        <translation>Tamanho: largura da tela</translation>
    </message>
    <message id="Size: Fit Height">
        <source>Size: Fit Height</source>
        <translation>Tamanho: altura da tela</translation>
    </message>
    <message id="Size: Bigger">
        <source>Size: Bigger</source>
        <translation>Tamanho: maior</translation>
    </message>
    <message id="Size: Smaller">
        <source>Size: Smaller</source>
        <translation>Tamanho: menor</translation>
    </message>
    <message id="Controller: On">
        <source>Controller: On</source>
        <translation>Barra de controle: visível</translation>
    </message>
    <message id="Controller: Off">
        <source>Controller: Off</source>
        <translation>Barra de controle: oculta</translation>
    </message>
    <message id="Volume: %@">
        <source>Volume: %@</source>
        <translation>Volume: %@</translation>
    </message>
    <message id="Mute: %@">
        <source>Mute: %@</source>
        <translation>Mudo: %@</translation>
    </message>
    <message id="Muted">
        <source>Muted</source>
        <translation>Mudo</translation>
    </message>
    <message id="On">
        <source>On</source>
        <translation>Sim</translation>
    </message>
    <message id="Off">
        <source>Off</source>
        <translation>Não</translation>
    </message>
    <message id="%d%%">
        <source>%d%%</source>
        <translation>%d%%</translation>
    </message>
    <message id="Time: %@/%@">
        <source>Time: %@/%@</source>
        <translation>Tempo: %@ / %@</translation>
    </message>
    <message id="Movie: %@">
        <source>Movie: %@</source>
        <translation>Filme: %@</translation>
    </message>
    <message id="Loop: %@">
        <source>Loop: %@</source>
        <translation>Repetição: %@</translation>
    </message>
    <message id="One">
        <source>One</source>
        <translation>Um</translation>
    </message>
    <message id="All">
        <source>All</source>
        <translation>Todos</translation>
    </message>
    <message id="None">
        <source>None</source>
        <translation>Nenhum</translation>
    </message>
    <message id="Subtitles: %@">
        <source>Subtitles: %@</source>
        <translation>Legendas: %@</translation>
    </message>
    <message id="Repair: On">
        <source>Repair: On</source>
        <translation>Reparo: ligado</translation>
    </message>
    <message id="Repair: Off">
        <source>Repair: Off</source>
        <translation>Reparo: desligado</translation>
    </message>
    <message id="SubtitleLinesLost" numerus="yes">
        <source>%d line of it can’t be read.</source>
        <translation>
            <numerusform>%d linha não pode ser lida.</numerusform>
            <numerusform>%d linhas não podem ser lidas.</numerusform>
        </translation>
    </message>
    <message id="SubtitlePicturesLost" numerus="yes">
        <source>%d picture of it can’t be read.</source>
        <translation>
            <numerusform>%d imagem não pode ser lida.</numerusform>
            <numerusform>%d imagens não podem ser lidas.</numerusform>
        </translation>
    </message>
    <message id="SubtitleRepairMayHelp">
        <source>Repair (Subtitles menu) may help.</source>
        <translation>“Reparar” (menu Legendas) pode ajudar.</translation>
    </message>
    <message id="Style">
        <source>Style</source>
        <translation>Estilo</translation>
    </message>
    <message id="Automatic">
        <source>Automatic</source>
        <translation>Automático</translation>
    </message>
</context>
<context>
    <name>Empty player</name>
    <message id="Press %@ to open a movie">
        <source>Press %@ to open a movie</source>
        <translation>Pressione %@ para abrir um filme</translation>
    </message>
    <message id="or drop files here. %@ shows all keys.">
        <source>or drop files here. %@ shows all keys.</source>
        <translation>ou solte arquivos aqui. %@ mostra todas as teclas.</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message id="File">
        <source>File</source>
        <translation>Arquivo</translation>
    </message>
    <message id="Movie">
        <source>Movie</source>
        <translation>Filme</translation>
    </message>
    <message id="Playback">
        <source>Playback</source>
        <translation>Reprodução</translation>
    </message>
    <message id="Volume">
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message id="Playlist">
        <source>Playlist</source>
        <translation>Lista de reprodução</translation>
    </message>
    <message id="Subtitles">
        <source>Subtitles</source>
        <translation>Legendas</translation>
    </message>
    <message id="Window">
        <source>Window</source>
        <translation>Janela</translation>
    </message>
    <message id="HelpIntroduction">
        <source>Type what you look for. Every command also stands in the menu: at the top edge of the screen, or under the right mouse button.</source>
        <translation>Digite o que você procura. Todos os comandos também estão no menu: na borda superior da tela ou no botão direito do mouse.</translation>
    </message>
    <message id="What do you want to do?">
        <source>What do you want to do?</source>
        <translation>O que você quer fazer?</translation>
    </message>
    <message id="No command holds these words.">
        <source>No command holds these words.</source>
        <translation>Nenhum comando contém essas palavras.</translation>
    </message>
    <message id="Watch and move through the movie">
        <source>Watch and move through the movie</source>
        <translation>Assistir e mover-se pelo filme</translation>
    </message>
    <message id="Louder, softer, silent">
        <source>Louder, softer, silent</source>
        <translation>Mais alto, mais baixo, mudo</translation>
    </message>
    <message id="Read along">
        <source>Read along</source>
        <translation>Ler as legendas</translation>
    </message>
    <message id="See the picture larger, and what is playing">
        <source>See the picture larger, and what is playing</source>
        <translation>Ver a imagem maior e o que está sendo reproduzido</translation>
    </message>
    <message id="Choose among the movies">
        <source>Choose among the movies</source>
        <translation>Escolher entre os filmes</translation>
    </message>
    <message id="Move to another screen">
        <source>Move to another screen</source>
        <translation>Passar para outra tela</translation>
    </message>
    <message id="Open, set up and quit">
        <source>Open, set up and quit</source>
        <translation>Abrir, configurar e sair</translation>
    </message>
    <message id="Find help">
        <source>Find help</source>
        <translation>Encontrar ajuda</translation>
    </message>
    <message id="Help">
        <source>Help</source>
        <translation>Ajuda</translation>
    </message>
    <message id="Open URL...">
        <source>Open URL...</source>
        <translation>Abrir URL…</translation>
    </message>
    <message id="Open URLs...">
        <source>Open URLs...</source>
        <translation>Abrir várias URLs…</translation>
    </message>
    <message id="Save Playlist...">
        <source>Save Playlist...</source>
        <translation>Salvar lista de reprodução…</translation>
    </message>
    <message id="Save Playlist">
        <source>Save Playlist</source>
        <translation>Salvar lista de reprodução</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Salvar</translation>
    </message>
    <message id="Playlist File">
        <source>Playlist</source>
        <translation>Lista de reprodução</translation>
    </message>
    <message id="Save the playlist to a file">
        <source>Save the playlist to a file</source>
        <translation>Salvar a lista de reprodução em um arquivo</translation>
    </message>
    <message id="SaveErrorMessage">
        <source>“%@” can’t be saved.</source>
        <translation>Não foi possível salvar “%@”.</translation>
    </message>
    <message id="SaveErrorPermission">
        <source>You don’t have the permission to write there.</source>
        <translation>Você não tem permissão para gravar nesse local.</translation>
    </message>
    <message id="SaveErrorReadOnly">
        <source>The disk can’t be written to.</source>
        <translation>Não é possível gravar no disco.</translation>
    </message>
    <message id="SaveErrorFull">
        <source>The disk is full.</source>
        <translation>O disco está cheio.</translation>
    </message>
    <message id="SaveErrorFolder">
        <source>The folder doesn’t exist.</source>
        <translation>A pasta não existe.</translation>
    </message>
    <message id="SaveErrorIsFolder">
        <source>This is a folder.</source>
        <translation>É uma pasta.</translation>
    </message>
    <message id="Preferences...">
        <source>Preferences...</source>
        <translation>Preferências…</translation>
    </message>
    <message id="About Lumaro">
        <source>About Lumaro</source>
        <translation>Sobre o Lumaro</translation>
    </message>
    <message id="Check for New Version...">
        <source>Check for New Version...</source>
        <translation>Procurar nova versão…</translation>
    </message>
    <message id="Half Size">
        <source>Half Size</source>
        <translation>Metade do tamanho</translation>
    </message>
    <message id="Normal Size">
        <source>Normal Size</source>
        <translation>Tamanho normal</translation>
    </message>
    <message id="Double Size">
        <source>Double Size</source>
        <translation>Dobro do tamanho</translation>
    </message>
    <message id="Full Size">
        <source>Full Size</source>
        <translation>Tamanho máximo</translation>
    </message>
    <message id="Fit Screen">
        <source>Fit Screen</source>
        <translation>Ajustar à tela</translation>
    </message>
    <message id="Fit Width">
        <source>Fit Width</source>
        <translation>Ajustar à largura</translation>
    </message>
    <message id="Fit Height">
        <source>Fit Height</source>
        <translation>Ajustar à altura</translation>
    </message>
    <message id="Bigger">
        <source>Bigger</source>
        <translation>Maior</translation>
    </message>
    <message id="Smaller">
        <source>Smaller</source>
        <translation>Menor</translation>
    </message>
    <message id="Show Controller">
        <source>Show Controller</source>
        <translation>Mostrar barra de controle</translation>
    </message>
    <message id="Bar over the Picture">
        <source>Bar over the Picture</source>
        <translation>Barra sobre a imagem</translation>
    </message>
    <message id="Bar over the picture: off, always, when the pointer moves">
        <source>Bar over the picture: off, always, when the pointer moves</source>
        <translation>Barra sobre a imagem: nunca, sempre, quando o ponteiro se move</translation>
    </message>
    <message id="Bar over the Picture: Off">
        <source>Bar over the Picture: Off</source>
        <translation>Barra sobre a imagem: nunca</translation>
    </message>
    <message id="Bar over the Picture: Always">
        <source>Bar over the Picture: Always</source>
        <translation>Barra sobre a imagem: sempre</translation>
    </message>
    <message id="Bar over the Picture: When the Pointer Moves">
        <source>Bar over the Picture: When the Pointer Moves</source>
        <translation>Barra sobre a imagem: quando o ponteiro se move</translation>
    </message>
    <message id="Tracks...">
        <source>Tracks...</source>
        <translation>Faixas…</translation>
    </message>
    <message id="Sound and subtitles in one menu">
        <source>Sound and subtitles in one menu</source>
        <translation>Som e legendas em um só menu</translation>
    </message>
    <message id="Audio">
        <source>Audio</source>
        <translation>Áudio</translation>
    </message>
    <message id="Hide Controller">
        <source>Hide Controller</source>
        <translation>Ocultar barra de controle</translation>
    </message>
    <message id="Next Display">
        <source>Next Display</source>
        <translation>Próxima exibição</translation>
    </message>
    <message id="Previous Display">
        <source>Previous Display</source>
        <translation>Exibição anterior</translation>
    </message>
    <message id="Play">
        <source>Play</source>
        <translation>Reproduzir</translation>
    </message>
    <message id="Pause">
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message id="Fast Forward">
        <source>Fast Forward</source>
        <translation>Avanço rápido</translation>
    </message>
    <message id="Rewind">
        <source>Rewind</source>
        <translation>Retrocesso rápido</translation>
    </message>
    <message id="Jump Forward">
        <source>Jump Forward</source>
        <translation>Saltar para a frente</translation>
    </message>
    <message id="Jump Backward">
        <source>Jump Backward</source>
        <translation>Saltar para trás</translation>
    </message>
    <message id="Beginning">
        <source>Beginning</source>
        <translation>Início</translation>
    </message>
    <message id="End">
        <source>End</source>
        <translation>Fim</translation>
    </message>
    <message id="Next Movie">
        <source>Next Movie</source>
        <translation>Próximo filme</translation>
    </message>
    <message id="Previous Movie">
        <source>Previous Movie</source>
        <translation>Filme anterior</translation>
    </message>
    <message id="Looping Off">
        <source>Looping Off</source>
        <translation>Não repetir</translation>
    </message>
    <message id="Loop Off">
        <source>Loop Off</source>
        <translation>Não repetir</translation>
    </message>
    <message id="Loop One">
        <source>Loop One</source>
        <translation>Repetir um</translation>
    </message>
    <message id="Loop All">
        <source>Loop All</source>
        <translation>Repetir todos</translation>
    </message>
    <message id="Repair">
        <source>Repair</source>
        <translation>Reparar</translation>
    </message>
    <message id="Volume Up">
        <source>Volume Up</source>
        <translation>Aumentar volume</translation>
    </message>
    <message id="Volume Down">
        <source>Volume Down</source>
        <translation>Diminuir volume</translation>
    </message>
    <message id="Normal Volume">
        <source>Normal Volume</source>
        <translation>Volume normal</translation>
    </message>
    <message id="Silent">
        <source>Silent</source>
        <translation>Silêncio</translation>
    </message>
    <message id="Mute">
        <source>Mute</source>
        <translation>Mudo</translation>
    </message>
    <message id="Next Screen">
        <source>Next Screen</source>
        <translation>Próxima tela</translation>
    </message>
    <message id="Previous Screen">
        <source>Previous Screen</source>
        <translation>Tela anterior</translation>
    </message>
    <message id="More...">
        <source>More…</source>
        <translation>Mais…</translation>
    </message>
    <message id="The whole list: search, move and remove movies">
        <source>The whole list: search, move and remove movies</source>
        <translation>A lista inteira: pesquisar, mover e remover filmes</translation>
    </message>
    <message id="Playlist Panel">
        <source>Playlist</source>
        <translation>Lista de reprodução</translation>
    </message>
    <message id="Filter">
        <source>Filter</source>
        <translation>Filtrar</translation>
    </message>
    <message id="Play Movie">
        <source>Play</source>
        <translation>Reproduzir</translation>
    </message>
    <message id="Move Up">
        <source>Move Up</source>
        <translation>Mover para cima</translation>
    </message>
    <message id="Move Down">
        <source>Move Down</source>
        <translation>Mover para baixo</translation>
    </message>
    <message id="Remove from List">
        <source>Remove</source>
        <translation>Remover</translation>
    </message>
    <message id="PlaylistCountMessage">
        <source>%@ of %@ movies</source>
        <translation>%@ de %@ filmes</translation>
    </message>
    <message id="Lumaro Help">
        <source>Lumaro Help</source>
        <translation>Ajuda do Lumaro</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="Open movies">
        <source>Open movies</source>
        <translation>Abrir filmes</translation>
    </message>
    <message id="Half, normal and double size">
        <source>Half, normal and double size</source>
        <translation>Metade do tamanho, tamanho normal e dobro</translation>
    </message>
    <message id="Fit to the screen, to its width, to its height">
        <source>Fit to the screen, to its width, to its height</source>
        <translation>Ajustar à tela, à sua largura, à sua altura</translation>
    </message>
    <message id="Bigger and smaller">
        <source>Bigger and smaller</source>
        <translation>Maior e menor</translation>
    </message>
    <message id="Controller bar">
        <source>Controller bar</source>
        <translation>Barra de controle</translation>
    </message>
    <message id="On-screen display: time, movie, subtitles, looping, volume">
        <source>On-screen display: time, movie, subtitles, looping, volume</source>
        <translation>Exibição na tela: tempo, filme, legendas, repetição, volume</translation>
    </message>
    <message id="Play, pause, back to normal speed">
        <source>Play, pause, back to normal speed</source>
        <translation>Reproduzir, pausar, voltar à velocidade normal</translation>
    </message>
    <message id="Forward and back: one frame while paused, faster and faster while playing">
        <source>Forward and back: one frame while paused, faster and faster while playing</source>
        <translation>Para a frente e para trás: um quadro na pausa, cada vez mais rápido na reprodução</translation>
    </message>
    <message id="Jump forward and back">
        <source>Jump forward and back</source>
        <translation>Saltar para a frente e para trás</translation>
    </message>
    <message id="Beginning and end of the movie">
        <source>Beginning and end of the movie</source>
        <translation>Início e fim do filme</translation>
    </message>
    <message id="Next and previous movie">
        <source>Next and previous movie</source>
        <translation>Próximo filme e filme anterior</translation>
    </message>
    <message id="Double Click">
        <source>Double Click</source>
        <translation>Clique duplo</translation>
    </message>
    <message id="Middle Button">
        <source>Middle Button</source>
        <translation>Botão do meio</translation>
    </message>
    <message id="Back Button">
        <source>Back Button</source>
        <translation>Botão Voltar</translation>
    </message>
    <message id="Forward Button">
        <source>Forward Button</source>
        <translation>Botão Avançar</translation>
    </message>
    <message id="Wheel Up">
        <source>Wheel Up</source>
        <translation>Roda para cima</translation>
    </message>
    <message id="Wheel Down">
        <source>Wheel Down</source>
        <translation>Roda para baixo</translation>
    </message>
    <message id="Looping: off, one, all">
        <source>Looping: off, one, all</source>
        <translation>Repetição: não, um, todos</translation>
    </message>
    <message id="Louder and softer">
        <source>Louder and softer</source>
        <translation>Mais alto e mais baixo</translation>
    </message>
    <message id="Next and previous subtitles">
        <source>Next and previous subtitles</source>
        <translation>Próximas legendas e legendas anteriores</translation>
    </message>
    <message id="Sound Earlier">
        <source>Sound Earlier</source>
        <translation>Adiantar o som</translation>
    </message>
    <message id="Sound Later">
        <source>Sound Later</source>
        <translation>Atrasar o som</translation>
    </message>
    <message id="Sound as in the File">
        <source>Sound as in the File</source>
        <translation>Som como no arquivo</translation>
    </message>
    <message id="Sound earlier and later">
        <source>Sound earlier and later</source>
        <translation>Adiantar e atrasar o som</translation>
    </message>
    <message id="Sound at the times of the file">
        <source>Sound at the times of the file</source>
        <translation>Som sincronizado como no arquivo</translation>
    </message>
    <message id="Sound delay: %@">
        <source>Sound delay: %@</source>
        <translation>Atraso do som: %@</translation>
    </message>
    <message id="Add Subtitles...">
        <source>Add Subtitles...</source>
        <translation>Adicionar legendas…</translation>
    </message>
    <message id="Add Subtitles">
        <source>Add Subtitles</source>
        <translation>Adicionar legendas</translation>
    </message>
    <message id="Add a file of subtitles to the movie">
        <source>Add a file of subtitles to the movie</source>
        <translation>Adicionar um arquivo de legendas ao filme</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Adicionar</translation>
    </message>
    <message id="NoSubtitlesInFile">
        <source>“%@” holds no subtitles that can be read</source>
        <translation>“%@” não contém legendas legíveis</translation>
    </message>
    <message id="Add to the Movie as Subtitles">
        <source>Add to the Movie as Subtitles</source>
        <translation>Adicionar ao filme como legendas</translation>
    </message>
    <message id="Show Earlier">
        <source>Show Earlier</source>
        <translation>Adiantar</translation>
    </message>
    <message id="Show Later">
        <source>Show Later</source>
        <translation>Atrasar</translation>
    </message>
    <message id="As in the File">
        <source>As in the File</source>
        <translation>Como no arquivo</translation>
    </message>
    <message id="Show Subtitles Earlier">
        <source>Show Subtitles Earlier</source>
        <translation>Adiantar as legendas</translation>
    </message>
    <message id="Show Subtitles Later">
        <source>Show Subtitles Later</source>
        <translation>Atrasar as legendas</translation>
    </message>
    <message id="Subtitles at the Times of Their File">
        <source>Subtitles at the Times of Their File</source>
        <translation>Legendas sincronizadas como no arquivo</translation>
    </message>
    <message id="Subtitles earlier and later">
        <source>Subtitles earlier and later</source>
        <translation>Adiantar e atrasar as legendas</translation>
    </message>
    <message id="Subtitles at the times of their file">
        <source>Subtitles at the times of their file</source>
        <translation>Legendas sincronizadas como no arquivo</translation>
    </message>
    <message id="First Line Is Spoken Now">
        <source>First Line Is Spoken Now</source>
        <translation>A primeira fala é dita agora</translation>
    </message>
    <message id="Last Line Is Spoken Now">
        <source>Last Line Is Spoken Now</source>
        <translation>A última fala é dita agora</translation>
    </message>
    <message id="In step by two lines: press one while the first line is spoken, the other while the last one is">
        <source>In step by two lines: press one while the first line is spoken, the other while the last one is</source>
        <translation>Sincronizar por duas falas: pressione uma tecla durante a primeira fala e a outra durante a última</translation>
    </message>
    <message id="Larger Text">
        <source>Larger Text</source>
        <translation>Texto maior</translation>
    </message>
    <message id="Smaller Text">
        <source>Smaller Text</source>
        <translation>Texto menor</translation>
    </message>
    <message id="Larger Subtitles">
        <source>Larger Subtitles</source>
        <translation>Legendas maiores</translation>
    </message>
    <message id="Smaller Subtitles">
        <source>Smaller Subtitles</source>
        <translation>Legendas menores</translation>
    </message>
    <message id="Subtitles larger and smaller">
        <source>Subtitles larger and smaller</source>
        <translation>Legendas maiores e menores</translation>
    </message>
    <message id="Higher">
        <source>Higher</source>
        <translation>Mais para cima</translation>
    </message>
    <message id="Lower">
        <source>Lower</source>
        <translation>Mais para baixo</translation>
    </message>
    <message id="Higher Subtitles">
        <source>Higher Subtitles</source>
        <translation>Legendas mais para cima</translation>
    </message>
    <message id="Lower Subtitles">
        <source>Lower Subtitles</source>
        <translation>Legendas mais para baixo</translation>
    </message>
    <message id="Subtitles higher and lower">
        <source>Subtitles higher and lower</source>
        <translation>Legendas mais para cima e para baixo</translation>
    </message>
    <message id="Subtitle delay: %@">
        <source>Subtitle delay: %@</source>
        <translation>Atraso das legendas: %@</translation>
    </message>
    <message id="Subtitle size: %d">
        <source>Subtitle size: %d</source>
        <translation>Tamanho das legendas: %d</translation>
    </message>
    <message id="Subtitle height: %d">
        <source>Subtitle height: %d %</source>
        <translation>Altura das legendas: %d%</translation>
    </message>
    <message id="SubtitleLinesTooFar">
        <source>The lines cannot be brought in step: they would be more than twice as fast or as slow</source>
        <translation>As falas não podem ser sincronizadas: seriam mais de duas vezes mais rápidas ou mais lentas</translation>
    </message>
    <message id="Repair damaged subtitles">
        <source>Repair damaged subtitles</source>
        <translation>Reparar legendas danificadas</translation>
    </message>
    <message id="Next and previous screen">
        <source>Next and previous screen</source>
        <translation>Próxima tela e tela anterior</translation>
    </message>
</context>
<context>
    <name>Text encodings</name>
    <message id="Western (ASCII)">
        <source>Western (ASCII)</source>
        <translation>Ocidental (ASCII)</translation>
    </message>
    <message id="Western (ISO Latin 1)">
        <source>Western (ISO Latin 1)</source>
        <translation>Ocidental (ISO Latin 1)</translation>
    </message>
    <message id="Western (ISO Latin 9)">
        <source>Western (ISO Latin 9)</source>
        <translation>Ocidental (ISO Latin 9)</translation>
    </message>
    <message id="Western (Windows Latin 1)">
        <source>Western (Windows Latin 1)</source>
        <translation>Ocidental (Windows Latin 1)</translation>
    </message>
    <message id="Western (Mac OS Roman)">
        <source>Western (Mac OS Roman)</source>
        <translation>Ocidental (Mac OS Roman)</translation>
    </message>
    <message id="Western (DOS Latin 1)">
        <source>Western (DOS Latin 1)</source>
        <translation>Ocidental (DOS Latin 1)</translation>
    </message>
    <message id="Latin-US (DOS)">
        <source>Latin-US (DOS)</source>
        <translation>Latim-EUA (DOS)</translation>
    </message>
    <message id="Central European (ISO Latin 2)">
        <source>Central European (ISO Latin 2)</source>
        <translation>Europa Central (ISO Latin 2)</translation>
    </message>
    <message id="Central European (Windows Latin 2)">
        <source>Central European (Windows Latin 2)</source>
        <translation>Europa Central (Windows Latin 2)</translation>
    </message>
    <message id="Central European (Mac OS)">
        <source>Central European (Mac OS)</source>
        <translation>Europa Central (Mac OS)</translation>
    </message>
    <message id="Central European (DOS Latin 2)">
        <source>Central European (DOS Latin 2)</source>
        <translation>Europa Central (DOS Latin 2)</translation>
    </message>
    <message id="Western (ISO Latin 3)">
        <source>Western (ISO Latin 3)</source>
        <translation>Ocidental (ISO Latin 3)</translation>
    </message>
    <message id="Central European (ISO Latin 4)">
        <source>Central European (ISO Latin 4)</source>
        <translation>Europa Central (ISO Latin 4)</translation>
    </message>
    <message id="Nordic (ISO Latin 6)">
        <source>Nordic (ISO Latin 6)</source>
        <translation>Nórdico (ISO Latin 6)</translation>
    </message>
    <message id="Icelandic (DOS)">
        <source>Icelandic (DOS)</source>
        <translation>Islandês (DOS)</translation>
    </message>
    <message id="Nordic (DOS)">
        <source>Nordic (DOS)</source>
        <translation>Nórdico (DOS)</translation>
    </message>
    <message id="Baltic (ISO Latin 7)">
        <source>Baltic (ISO Latin 7)</source>
        <translation>Báltico (ISO Latin 7)</translation>
    </message>
    <message id="Baltic (Windows)">
        <source>Baltic (Windows)</source>
        <translation>Báltico (Windows)</translation>
    </message>
    <message id="Baltic (DOS)">
        <source>Baltic (DOS)</source>
        <translation>Báltico (DOS)</translation>
    </message>
    <message id="Celtic (ISO Latin 8)">
        <source>Celtic (ISO Latin 8)</source>
        <translation>Celta (ISO Latin 8)</translation>
    </message>
    <message id="Cyrillic (ISO 8859-5)">
        <source>Cyrillic (ISO 8859-5)</source>
        <translation>Cirílico (ISO 8859-5)</translation>
    </message>
    <message id="Cyrillic (Windows)">
        <source>Cyrillic (Windows)</source>
        <translation>Cirílico (Windows)</translation>
    </message>
    <message id="Cyrillic (KOI8-R)">
        <source>Cyrillic (KOI8-R)</source>
        <translation>Cirílico (KOI8-R)</translation>
    </message>
    <message id="Ukrainian (KOI8-U)">
        <source>Ukrainian (KOI8-U)</source>
        <translation>Ucraniano (KOI8-U)</translation>
    </message>
    <message id="Cyrillic (Mac OS)">
        <source>Cyrillic (Mac OS)</source>
        <translation>Cirílico (Mac OS)</translation>
    </message>
    <message id="Cyrillic (DOS)">
        <source>Cyrillic (DOS)</source>
        <translation>Cirílico (DOS)</translation>
    </message>
    <message id="Russian (DOS)">
        <source>Russian (DOS)</source>
        <translation>Russo (DOS)</translation>
    </message>
    <message id="Greek (ISO 8859-7)">
        <source>Greek (ISO 8859-7)</source>
        <translation>Grego (ISO 8859-7)</translation>
    </message>
    <message id="Greek (Windows)">
        <source>Greek (Windows)</source>
        <translation>Grego (Windows)</translation>
    </message>
    <message id="Greek (Mac OS)">
        <source>Greek (Mac OS)</source>
        <translation>Grego (Mac OS)</translation>
    </message>
    <message id="Greek (DOS)">
        <source>Greek (DOS)</source>
        <translation>Grego (DOS)</translation>
    </message>
    <message id="Greek (DOS Greek 2)">
        <source>Greek (DOS Greek 2)</source>
        <translation>Grego (DOS Greek 2)</translation>
    </message>
    <message id="Turkish (ISO Latin 5)">
        <source>Turkish (ISO Latin 5)</source>
        <translation>Turco (ISO Latin 5)</translation>
    </message>
    <message id="Turkish (Windows Latin 5)">
        <source>Turkish (Windows Latin 5)</source>
        <translation>Turco (Windows Latin 5)</translation>
    </message>
    <message id="Turkish (Mac OS)">
        <source>Turkish (Mac OS)</source>
        <translation>Turco (Mac OS)</translation>
    </message>
    <message id="Turkish (DOS)">
        <source>Turkish (DOS)</source>
        <translation>Turco (DOS)</translation>
    </message>
    <message id="Hebrew (ISO 8859-8)">
        <source>Hebrew (ISO 8859-8)</source>
        <translation>Hebraico (ISO 8859-8)</translation>
    </message>
    <message id="Hebrew (Windows)">
        <source>Hebrew (Windows)</source>
        <translation>Hebraico (Windows)</translation>
    </message>
    <message id="Hebrew (DOS)">
        <source>Hebrew (DOS)</source>
        <translation>Hebraico (DOS)</translation>
    </message>
    <message id="Arabic (ISO 8859-6)">
        <source>Arabic (ISO 8859-6)</source>
        <translation>Árabe (ISO 8859-6)</translation>
    </message>
    <message id="Arabic (Windows)">
        <source>Arabic (Windows)</source>
        <translation>Árabe (Windows)</translation>
    </message>
    <message id="Arabic (DOS)">
        <source>Arabic (DOS)</source>
        <translation>Árabe (DOS)</translation>
    </message>
    <message id="Portuguese (DOS)">
        <source>Portuguese (DOS)</source>
        <translation>Português (DOS)</translation>
    </message>
    <message id="Canadian French (DOS)">
        <source>Canadian French (DOS)</source>
        <translation>Francês canadense (DOS)</translation>
    </message>
    <message id="Thai (ISO 8859-11)">
        <source>Thai (ISO 8859-11)</source>
        <translation>Tailandês (ISO 8859-11)</translation>
    </message>
    <message id="Thai (Windows, DOS)">
        <source>Thai (Windows, DOS)</source>
        <translation>Tailandês (Windows, DOS)</translation>
    </message>
    <message id="Vietnamese (Windows)">
        <source>Vietnamese (Windows)</source>
        <translation>Vietnamita (Windows)</translation>
    </message>
    <message id="Japanese (Shift JIS)">
        <source>Japanese (Shift JIS)</source>
        <translation>Japonês (Shift JIS)</translation>
    </message>
    <message id="Japanese (Windows, DOS)">
        <source>Japanese (Windows, DOS)</source>
        <translation>Japonês (Windows, DOS)</translation>
    </message>
    <message id="Japanese (EUC)">
        <source>Japanese (EUC)</source>
        <translation>Japonês (EUC)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP)">
        <source>Japanese (ISO 2022-JP)</source>
        <translation>Japonês (ISO 2022-JP)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-2)">
        <source>Japanese (ISO 2022-JP-2)</source>
        <translation>Japonês (ISO 2022-JP-2)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-1)">
        <source>Japanese (ISO 2022-JP-1)</source>
        <translation>Japonês (ISO 2022-JP-1)</translation>
    </message>
    <message id="Chinese (GB 18030)">
        <source>Chinese (GB 18030)</source>
        <translation>Chinês (GB 18030)</translation>
    </message>
    <message id="Simplified Chinese (GBK)">
        <source>Simplified Chinese (GBK)</source>
        <translation>Chinês simplificado (GBK)</translation>
    </message>
    <message id="Simplified Chinese (Windows, DOS)">
        <source>Simplified Chinese (Windows, DOS)</source>
        <translation>Chinês simplificado (Windows, DOS)</translation>
    </message>
    <message id="Simplified Chinese (GB 2312)">
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Chinês simplificado (GB 2312)</translation>
    </message>
    <message id="Simplified Chinese (HZ GB 2312)">
        <source>Simplified Chinese (HZ GB 2312)</source>
        <translation>Chinês simplificado (HZ GB 2312)</translation>
    </message>
    <message id="Chinese (ISO 2022-CN)">
        <source>Chinese (ISO 2022-CN)</source>
        <translation>Chinês (ISO 2022-CN)</translation>
    </message>
    <message id="Traditional Chinese (Big 5)">
        <source>Traditional Chinese (Big 5)</source>
        <translation>Chinês tradicional (Big 5)</translation>
    </message>
    <message id="Traditional Chinese (Big 5 HKSCS)">
        <source>Traditional Chinese (Big 5 HKSCS)</source>
        <translation>Chinês tradicional (Big 5 HKSCS)</translation>
    </message>
    <message id="Traditional Chinese (Windows, DOS)">
        <source>Traditional Chinese (Windows, DOS)</source>
        <translation>Chinês tradicional (Windows, DOS)</translation>
    </message>
    <message id="Traditional Chinese (EUC)">
        <source>Traditional Chinese (EUC)</source>
        <translation>Chinês tradicional (EUC)</translation>
    </message>
    <message id="Korean (EUC)">
        <source>Korean (EUC)</source>
        <translation>Coreano (EUC)</translation>
    </message>
    <message id="Korean (Windows, DOS)">
        <source>Korean (Windows, DOS)</source>
        <translation>Coreano (Windows, DOS)</translation>
    </message>
    <message id="Korean (ISO 2022-KR)">
        <source>Korean (ISO 2022-KR)</source>
        <translation>Coreano (ISO 2022-KR)</translation>
    </message>
</context>
<context>
    <name>Overlay styles</name>
    <message id="StyleText">
        <source>Text</source>
        <translation>Texto</translation>
    </message>
    <message id="StyleTextColor">
        <source>&amp;Color:</source>
        <translation>Co&amp;r:</translation>
    </message>
    <message id="StyleTextColorTip">
        <source>The color of the letters, and of the line around the panel</source>
        <translation>A cor das letras e da linha em volta do painel</translation>
    </message>
    <message id="StyleTextFontName">
        <source>&amp;Font:</source>
        <translation>&amp;Fonte:</translation>
    </message>
    <message id="StyleTextFontNameTip">
        <source>The family of the letters</source>
        <translation>A família das letras</translation>
    </message>
    <message id="StyleTextFontSize">
        <source>Si&amp;ze:</source>
        <translation>Taman&amp;ho:</translation>
    </message>
    <message id="StyleTextFontSizeTip">
        <source>In points of a screen 1080 points high; on a higher one, letters grow with it</source>
        <translation>Em pontos de uma tela com 1080 pontos de altura; em uma mais alta, as letras crescem com ela</translation>
    </message>
    <message id="StyleShadow">
        <source>Shadow</source>
        <translation>Sombra</translation>
    </message>
    <message id="StyleShadowOn">
        <source>Draw a &amp;shadow</source>
        <translation>Desenhar uma som&amp;bra</translation>
    </message>
    <message id="StyleShadowOnTip">
        <source>A shadow keeps letters legible on any picture</source>
        <translation>Uma sombra mantém as letras legíveis sobre qualquer imagem</translation>
    </message>
    <message id="StyleShadowColor">
        <source>Co&amp;lor:</source>
        <translation>C&amp;or:</translation>
    </message>
    <message id="StyleShadowColorTip">
        <source>The color of the shadow, and how much shows through it</source>
        <translation>A cor da sombra e quanto se vê através dela</translation>
    </message>
    <message id="StyleShadowBlur">
        <source>&amp;Blur:</source>
        <translation>Desfo&amp;que:</translation>
    </message>
    <message id="StyleShadowBlurTip">
        <source>How far the shadow’s edge is spread, in points</source>
        <translation>Quanto a borda da sombra se espalha, em pontos</translation>
    </message>
    <message id="StyleShadowOffsetX">
        <source>To the &amp;right:</source>
        <translation>Para a direi&amp;ta:</translation>
    </message>
    <message id="StyleShadowOffsetXTip">
        <source>How far the shadow falls to the right, in points; below 0, to the left</source>
        <translation>Quanto a sombra cai para a direita, em pontos; abaixo de 0, para a esquerda</translation>
    </message>
    <message id="StyleShadowOffsetY">
        <source>&amp;Upwards:</source>
        <translation>Para ci&amp;ma:</translation>
    </message>
    <message id="StyleShadowOffsetYTip">
        <source>How far the shadow falls upwards, in points; below 0, downwards</source>
        <translation>Quanto a sombra cai para cima, em pontos; abaixo de 0, para baixo</translation>
    </message>
    <message id="StylePosition">
        <source>Position</source>
        <translation>Posição</translation>
    </message>
    <message id="StyleAlignmentVertical">
        <source>&amp;Vertical:</source>
        <translation>V&amp;ertical:</translation>
    </message>
    <message id="StyleAlignmentVerticalTip">
        <source>At what height it stands</source>
        <translation>Em que altura fica</translation>
    </message>
    <message id="StyleAlignmentHorizontal">
        <source>&amp;Horizontal:</source>
        <translation>Hori&amp;zontal:</translation>
    </message>
    <message id="StyleAlignmentHorizontalTip">
        <source>At which side of the screen it stands</source>
        <translation>De que lado da tela fica</translation>
    </message>
    <message id="StyleLeft">
        <source>Left</source>
        <translation>Esquerda</translation>
    </message>
    <message id="StyleCenter">
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message id="StyleRight">
        <source>Right</source>
        <translation>Direita</translation>
    </message>
    <message id="StyleTop">
        <source>Top</source>
        <translation>No alto</translation>
    </message>
    <message id="StyleMiddle">
        <source>Middle</source>
        <translation>No meio</translation>
    </message>
    <message id="StyleBottom">
        <source>Bottom</source>
        <translation>Embaixo</translation>
    </message>
    <message id="StyleAbovePictureEdge">
        <source>Inside the picture</source>
        <translation>Dentro da imagem</translation>
    </message>
    <message id="StyleOnPictureEdge">
        <source>On the picture’s edge</source>
        <translation>Na borda da imagem</translation>
    </message>
    <message id="StyleBelowPicture">
        <source>Below the picture</source>
        <translation>Abaixo da imagem</translation>
    </message>
    <message id="StylePanel">
        <source>Panel</source>
        <translation>Painel</translation>
    </message>
    <message id="StyleBackground">
        <source>Background</source>
        <translation>Fundo</translation>
    </message>
    <message id="StyleBackgroundTip">
        <source>The color around the picture</source>
        <translation>A cor em volta da imagem</translation>
    </message>
    <message id="StyleBackgroundOn">
        <source>Draw a &amp;panel</source>
        <translation>Desenhar &amp;um painel</translation>
    </message>
    <message id="StyleBackgroundOnTip">
        <source>A panel behind the text</source>
        <translation>Um painel atrás do texto</translation>
    </message>
    <message id="StyleBackgroundColor">
        <source>Col&amp;or:</source>
        <translation>&amp;Cor:</translation>
    </message>
    <message id="StyleBackgroundColorTip">
        <source>The color of the panel, and how much shows through it</source>
        <translation>A cor do painel e quanto se vê através dele</translation>
    </message>
    <message id="StyleBackgroundRounded">
        <source>Rou&amp;nd corners</source>
        <translation>Ca&amp;ntos arredondados</translation>
    </message>
    <message id="StyleBackgroundRoundedTip">
        <source>Corners of the panel are rounded</source>
        <translation>Os cantos do painel são arredondados</translation>
    </message>
    <message id="StyleBackgroundRadius">
        <source>R&amp;adius:</source>
        <translation>Ra&amp;io:</translation>
    </message>
    <message id="StyleBackgroundRadiusTip">
        <source>How far the corners are rounded, in points</source>
        <translation>Quanto os cantos são arredondados, em pontos</translation>
    </message>
    <message id="StyleFrameOn">
        <source>Draw a fra&amp;me</source>
        <translation>Desenhar uma mo&amp;ldura</translation>
    </message>
    <message id="StyleFrameOnTip">
        <source>A line around the panel, in the text’s color</source>
        <translation>Uma linha em volta do painel, na cor do texto</translation>
    </message>
    <message id="StyleFrameWidth">
        <source>&amp;Width:</source>
        <translation>Lar&amp;gura:</translation>
    </message>
    <message id="StyleFrameWidthTip">
        <source>How wide the line is, in points</source>
        <translation>A largura da linha, em pontos</translation>
    </message>
    <message id="StyleFading">
        <source>Fading and opacity</source>
        <translation>Esmaecimento e opacidade</translation>
    </message>
    <message id="StyleFadingIn">
        <source>Fade &amp;in:</source>
        <translation>&amp;Aparecer:</translation>
    </message>
    <message id="StyleFadingInTip">
        <source>How long a whole fade takes when it appears; 0 shows it at once</source>
        <translation>Quanto dura um esmaecimento completo ao aparecer; 0 mostra na hora</translation>
    </message>
    <message id="StyleFadingOut">
        <source>Fad&amp;e out:</source>
        <translation>De&amp;saparecer:</translation>
    </message>
    <message id="StyleFadingOutTip">
        <source>How long a whole fade takes when it goes; 0 hides it at once</source>
        <translation>Quanto dura um esmaecimento completo ao desaparecer; 0 oculta na hora</translation>
    </message>
    <message id="StyleFadingDelay">
        <source>S&amp;tay:</source>
        <translation>&amp;Permanecer:</translation>
    </message>
    <message id="StyleFadingDelayTip">
        <source>How long it stays between fading in and fading out</source>
        <translation>Quanto tempo permanece entre aparecer e desaparecer</translation>
    </message>
    <message id="StyleMinAlpha">
        <source>Opacity when hi&amp;dden:</source>
        <translation>Opaci&amp;dade oculto:</translation>
    </message>
    <message id="StyleMinAlphaTip">
        <source>How much of it remains while it is hidden: 0 % is nothing</source>
        <translation>Quanto resta dele enquanto está oculto: 0% é nada</translation>
    </message>
    <message id="StyleMaxAlpha">
        <source>Opacit&amp;y when shown:</source>
        <translation>Opacidade &amp;visível:</translation>
    </message>
    <message id="StyleMaxAlphaTip">
        <source>How opaque it is while it is shown: below 100 % the picture shows through</source>
        <translation>Quanto ele é opaco enquanto é mostrado: abaixo de 100% a imagem transparece</translation>
    </message>
    <message id="StyleReset">
        <source>Reset to Defaults</source>
        <translation>Restaurar padrões</translation>
    </message>
    <message id="StyleResetTip">
        <source>Takes this style back to what it was at first</source>
        <translation>Devolve este estilo ao que era no início</translation>
    </message>
    <message id="StyleResetUndo">
        <source>Undo Reset</source>
        <translation>Desfazer restauração</translation>
    </message>
    <message id="StyleResetUndoTip">
        <source>Brings back what the style was before</source>
        <translation>Devolve o estilo ao que era antes</translation>
    </message>
    <message id="StyleSeconds">
        <source>%@ s</source>
        <translation>%@ s</translation>
    </message>
    <message id="StylePercent">
        <source>%@ %</source>
        <translation>%@%</translation>
    </message>
    <message id="StyleSample">
        <source>Sample</source>
        <translation>Amostra</translation>
    </message>
    <message id="StyleSampleTip">
        <source>What it looks like over the movie, or over a light and a dark picture</source>
        <translation>Como fica sobre o filme, ou sobre uma imagem clara e uma escura</translation>
    </message>
    <message id="StyleSampleSubtitle">
        <source>What an evening!</source>
        <translation>Que noite!</translation>
    </message>
    <message id="StyleSampleFeedback">
        <source>Volume: 80 %</source>
        <translation>Volume: 80%</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message id="Preferences">
        <source>Preferences</source>
        <translation>Preferências</translation>
    </message>
    <message id="&amp;Movie">
        <source>&amp;Movie</source>
        <translation>&amp;Filme</translation>
    </message>
    <message id="Started Without a File">
        <source>Started Without a File</source>
        <translation>Ao iniciar sem arquivo</translation>
    </message>
    <message id="Open &amp;nothing">
        <source>Open &amp;nothing</source>
        <translation>N&amp;ão abrir nada</translation>
    </message>
    <message id="Lumaro starts with an empty screen">
        <source>Lumaro starts with an empty screen</source>
        <translation>O Lumaro começa com a tela vazia</translation>
    </message>
    <message id="Open the &amp;last playlist">
        <source>Open the &amp;last playlist</source>
        <translation>A&amp;brir a última lista de reprodução</translation>
    </message>
    <message id="The movies of the last time come back, at the place where they were left">
        <source>The movies of the last time come back, at the place where they were left</source>
        <translation>Os filmes da última vez voltam, no ponto em que foram deixados</translation>
    </message>
    <message id="Ask for &amp;files">
        <source>Ask for &amp;files</source>
        <translation>Perguntar &amp;quais arquivos abrir</translation>
    </message>
    <message id="Lumaro begins with the panel that opens movies">
        <source>Lumaro begins with the panel that opens movies</source>
        <translation>O Lumaro começa com a janela que abre filmes</translation>
    </message>
    <message id="Picture">
        <source>Picture</source>
        <translation>Imagem</translation>
    </message>
    <message id="Si&amp;ze:">
        <source>Si&amp;ze:</source>
        <translation>Taman&amp;ho:</translation>
    </message>
    <message id="How large movies are shown, from now on and at the next start">
        <source>How large movies are shown, from now on and at the next start</source>
        <translation>Em que tamanho os filmes são mostrados, de agora em diante e no próximo início</translation>
    </message>
    <message id="Custom Magnification">
        <source>Custom Magnification</source>
        <translation>Ampliação personalizada</translation>
    </message>
    <message id="&amp;Window:">
        <source>&amp;Window:</source>
        <translation>&amp;Janela:</translation>
    </message>
    <message id="Whether the movie stays above the windows of other programs while Lumaro has the keyboard">
        <source>Whether the movie stays above the windows of other programs while Lumaro has the keyboard</source>
        <translation>Se o filme fica acima das janelas de outros programas enquanto o Lumaro está ativo</translation>
    </message>
    <message id="Bar over the p&amp;icture:">
        <source>Bar over the p&amp;icture:</source>
        <translation>Barra sobre a ima&amp;gem:</translation>
    </message>
    <message id="Where none stands below it: a larger bar that comes with the pointer, or stays">
        <source>Where none stands below it: a larger bar that comes with the pointer, or stays</source>
        <translation>Onde não há nenhuma embaixo: uma barra maior que vem com o ponteiro ou que fica</translation>
    </message>
    <message id="Always">
        <source>Always</source>
        <translation>Sempre</translation>
    </message>
    <message id="When the pointer moves">
        <source>When the pointer moves</source>
        <translation>Quando o ponteiro se move</translation>
    </message>
    <message id="Among other windows">
        <source>Among other windows</source>
        <translation>Entre as outras janelas</translation>
    </message>
    <message id="Above other windows">
        <source>Above other windows</source>
        <translation>Acima das outras janelas</translation>
    </message>
    <message id="Show the controller &amp;bar">
        <source>Show the controller &amp;bar</source>
        <translation>&amp;Mostrar a barra de controle</translation>
    </message>
    <message id="The bar with play, time and volume below the picture">
        <source>The bar with play, time and volume below the picture</source>
        <translation>A barra com reprodução, tempo e volume abaixo da imagem</translation>
    </message>
    <message id="Set the screen’s bri&amp;ghtness:">
        <source>Set the screen’s bri&amp;ghtness:</source>
        <translation>Defi&amp;nir o brilho da tela:</translation>
    </message>
    <message id="As long as Lumaro runs; then the screen is as bright as before">
        <source>As long as Lumaro runs; then the screen is as bright as before</source>
        <translation>Enquanto o Lumaro estiver aberto; depois a tela volta ao brilho de antes</translation>
    </message>
    <message id="How bright the screen is while Lumaro runs">
        <source>How bright the screen is while Lumaro runs</source>
        <translation>O brilho da tela enquanto o Lumaro está aberto</translation>
    </message>
    <message id="Brightness of the screen">
        <source>Brightness of the screen</source>
        <translation>Brilho da tela</translation>
    </message>
    <message id="Pictur&amp;e">
        <source>Pictur&amp;e</source>
        <translation>&amp;Imagem</translation>
    </message>
    <message id="Co&amp;ntrast:">
        <source>Co&amp;ntrast:</source>
        <translation>&amp;Contraste:</translation>
    </message>
    <message id="&amp;Brightness:">
        <source>&amp;Brightness:</source>
        <translation>&amp;Brilho:</translation>
    </message>
    <message id="&amp;Gamma:">
        <source>&amp;Gamma:</source>
        <translation>&amp;Gama:</translation>
    </message>
    <message id="Sa&amp;turation:">
        <source>Sa&amp;turation:</source>
        <translation>Sat&amp;uração:</translation>
    </message>
    <message id="&amp;Hue:">
        <source>&amp;Hue:</source>
        <translation>&amp;Matiz:</translation>
    </message>
    <message id="Every movie is shown with it, the one on the screen at once">
        <source>Every movie is shown with it, the one on the screen at once</source>
        <translation>Todos os filmes são exibidos assim; o que está na tela, na hora</translation>
    </message>
    <message id="The brightness of this screen can’t be set">
        <source>The brightness of this screen can’t be set</source>
        <translation>O brilho desta tela não pode ser ajustado</translation>
    </message>
    <message id="Playing">
        <source>Playing</source>
        <translation>Reprodução</translation>
    </message>
    <message id="&amp;Jump by:">
        <source>&amp;Jump by:</source>
        <translation>Salto d&amp;e:</translation>
    </message>
    <message id="How many seconds a jump goes forward or back">
        <source>How many seconds a jump goes forward or back</source>
        <translation>Quantos segundos um salto avança ou retrocede</translation>
    </message>
    <message id="seconds">
        <source>seconds</source>
        <translation>segundos</translation>
    </message>
    <message id="&amp;Keep the volume for the next start">
        <source>&amp;Keep the volume for the next start</source>
        <translation>Manter &amp;o volume para o próximo início</translation>
    </message>
    <message id="Lumaro begins as loud as it ended">
        <source>Lumaro begins as loud as it ended</source>
        <translation>O Lumaro começa com o volume com que terminou</translation>
    </message>
    <message id="While Another Program Has the Keyboard">
        <source>While Another Program Has the Keyboard</source>
        <translation>Enquanto outro programa está ativo</translation>
    </message>
    <message id="Pa&amp;use the movie">
        <source>Pa&amp;use the movie</source>
        <translation>Pa&amp;usar o filme</translation>
    </message>
    <message id="It goes on when you come back">
        <source>It goes on when you come back</source>
        <translation>Continua quando você voltar</translation>
    </message>
    <message id="&amp;Hide the window">
        <source>&amp;Hide the window</source>
        <translation>O&amp;cultar a janela</translation>
    </message>
    <message id="The window is minimized, and comes back with Lumaro">
        <source>The window is minimized, and comes back with Lumaro</source>
        <translation>A janela é minimizada e volta com o Lumaro</translation>
    </message>
    <message id="Go on where a mo&amp;vie was left">
        <source>Go on where a mo&amp;vie was left</source>
        <translation>Continuar os filmes de onde foram dei&amp;xados</translation>
    </message>
    <message id="The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them">
        <source>The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them</source>
        <translation>As posições e as legendas dos últimos mil filmes são lembradas, e o menu “Abrir recente” os lista</translation>
    </message>
    <message id="&amp;Playlist">
        <source>&amp;Playlist</source>
        <translation>Lista &amp;de reprodução</translation>
    </message>
    <message id="Order">
        <source>Order</source>
        <translation>Ordem</translation>
    </message>
    <message id="As adde&amp;d">
        <source>As adde&amp;d</source>
        <translation>Co&amp;mo adicionados</translation>
    </message>
    <message id="Movies play in the order in which they were given">
        <source>Movies play in the order in which they were given</source>
        <translation>Os filmes são reproduzidos na ordem em que foram dados</translation>
    </message>
    <message id="Shu&amp;ffled">
        <source>Shu&amp;ffled</source>
        <translation>Aleat&amp;ória</translation>
    </message>
    <message id="Movies play in an order left to chance">
        <source>Movies play in an order left to chance</source>
        <translation>Os filmes são reproduzidos em uma ordem deixada ao acaso</translation>
    </message>
    <message id="Sor&amp;ted">
        <source>Sor&amp;ted</source>
        <translation>&amp;Classificada</translation>
    </message>
    <message id="Movies play by their names">
        <source>Movies play by their names</source>
        <translation>Os filmes são reproduzidos pelo nome</translation>
    </message>
    <message id="Compare &amp;numbers by value">
        <source>Compare &amp;numbers by value</source>
        <translation>Comparar os números pelo &amp;valor</translation>
    </message>
    <message id="Part 2 comes before part 10">
        <source>Part 2 comes before part 10</source>
        <translation>A parte 2 vem antes da parte 10</translation>
    </message>
    <message id="By the &amp;whole path">
        <source>By the &amp;whole path</source>
        <translation>Pelo camin&amp;ho completo</translation>
    </message>
    <message id="Folders stay together">
        <source>Folders stay together</source>
        <translation>As pastas ficam juntas</translation>
    </message>
    <message id="By the f&amp;ile name only">
        <source>By the f&amp;ile name only</source>
        <translation>Somente &amp;pelo nome do arquivo</translation>
    </message>
    <message id="Whatever folders the movies lie in">
        <source>Whatever folders the movies lie in</source>
        <translation>Em quaisquer pastas que os filmes estejam</translation>
    </message>
    <message id="&amp;Looping:">
        <source>&amp;Looping:</source>
        <translation>R&amp;epetição:</translation>
    </message>
    <message id="What is repeated, from now on and in new playlists">
        <source>What is repeated, from now on and in new playlists</source>
        <translation>O que se repete, de agora em diante e nas novas listas de reprodução</translation>
    </message>
    <message id="&amp;Begin to play what is opened">
        <source>&amp;Begin to play what is opened</source>
        <translation>Reproduzir o &amp;que for aberto</translation>
    </message>
    <message id="Else movies are shown and wait">
        <source>Else movies are shown and wait</source>
        <translation>Senão os filmes são mostrados e esperam</translation>
    </message>
    <message id="&amp;Go on with the next movie">
        <source>&amp;Go on with the next movie</source>
        <translation>Continuar com &amp;o próximo filme</translation>
    </message>
    <message id="When one ends, the next in the list plays">
        <source>When one ends, the next in the list plays</source>
        <translation>Quando um termina, o próximo da lista é reproduzido</translation>
    </message>
    <message id="&amp;Quit at the end of the list">
        <source>&amp;Quit at the end of the list</source>
        <translation>Sair &amp;no fim da lista</translation>
    </message>
    <message id="Unless it is repeated">
        <source>Unless it is repeated</source>
        <translation>A menos que ela se repita</translation>
    </message>
    <message id="&amp;Subtitles">
        <source>&amp;Subtitles</source>
        <translation>&amp;Legendas</translation>
    </message>
    <message id="Showing">
        <source>Showing</source>
        <translation>Exibição</translation>
    </message>
    <message id="S&amp;how subtitles">
        <source>S&amp;how subtitles</source>
        <translation>&amp;Mostrar legendas</translation>
    </message>
    <message id="Also for movies opened later">
        <source>Also for movies opened later</source>
        <translation>Também nos filmes abertos depois</translation>
    </message>
    <message id="Draw mark&amp;up">
        <source>Draw mark&amp;up</source>
        <translation>Aplicar f&amp;ormatação</translation>
    </message>
    <message id="Italics, colors and places in subtitle files act; else they are left out">
        <source>Italics, colors and places in subtitle files act; else they are left out</source>
        <translation>Itálicos, cores e posições dos arquivos de legendas valem; senão são omitidos</translation>
    </message>
    <message id="&amp;Find subtitle files beside movies">
        <source>&amp;Find subtitle files beside movies</source>
        <translation>Proc&amp;urar arquivos de legendas ao lado dos filmes</translation>
    </message>
    <message id="When a movie is opened">
        <source>When a movie is opened</source>
        <translation>Quando um filme é aberto</translation>
    </message>
    <message id="Files">
        <source>Files</source>
        <translation>Arquivos</translation>
    </message>
    <message id="E&amp;ncoding:">
        <source>E&amp;ncoding:</source>
        <translation>Codifica&amp;ção:</translation>
    </message>
    <message id="How the letters of subtitle files are stored; Automatic tells it by the file">
        <source>How the letters of subtitle files are stored; Automatic tells it by the file</source>
        <translation>Como as letras dos arquivos de legendas estão gravadas; “Automático” reconhece pelo arquivo</translation>
    </message>
    <message id="Encoding of subtitle files">
        <source>Encoding of subtitle files</source>
        <translation>Codificação dos arquivos de legendas</translation>
    </message>
    <message id="Frame ra&amp;te:">
        <source>Frame ra&amp;te:</source>
        <translation>&amp;Quadros por segundo:</translation>
    </message>
    <message id="For subtitle files that count pictures instead of seconds">
        <source>For subtitle files that count pictures instead of seconds</source>
        <translation>Para arquivos de legendas que contam quadros em vez de segundos</translation>
    </message>
    <message id="As the movie">
        <source>As the movie</source>
        <translation>Como o filme</translation>
    </message>
    <message id="Repair &amp;damaged subtitle files">
        <source>Repair &amp;damaged subtitle files</source>
        <translation>Reparar arqui&amp;vos de legendas danificados</translation>
    </message>
    <message id="What is damaged is read as far as it can be">
        <source>What is damaged is read as far as it can be</source>
        <translation>O que está danificado é lido até onde for possível</translation>
    </message>
    <message id="Preferred Languages">
        <source>Preferred Languages</source>
        <translation>Idiomas preferidos</translation>
    </message>
    <message id="Preferred languages">
        <source>Preferred languages</source>
        <translation>Idiomas preferidos</translation>
    </message>
    <message id="Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.">
        <source>Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.</source>
        <translation>Os filmes começam com as legendas no primeiro destes idiomas que houver. No início, são os idiomas do seu sistema.</translation>
    </message>
    <message id="Add a language">
        <source>Add a language</source>
        <translation>Adicionar um idioma</translation>
    </message>
    <message id="Adds a language to the list">
        <source>Adds a language to the list</source>
        <translation>Adiciona um idioma à lista</translation>
    </message>
    <message id="Hi&amp;gher">
        <source>Hi&amp;gher</source>
        <translation>Mover para &amp;cima</translation>
    </message>
    <message id="Moves the language up the list">
        <source>Moves the language up the list</source>
        <translation>Move o idioma para cima na lista</translation>
    </message>
    <message id="Lo&amp;wer">
        <source>Lo&amp;wer</source>
        <translation>Mover &amp;para baixo</translation>
    </message>
    <message id="Moves the language down the list">
        <source>Moves the language down the list</source>
        <translation>Move o idioma para baixo na lista</translation>
    </message>
    <message id="Remo&amp;ve">
        <source>Remo&amp;ve</source>
        <translation>R&amp;emover</translation>
    </message>
    <message id="Takes the language off the list">
        <source>Takes the language off the list</source>
        <translation>Tira o idioma da lista</translation>
    </message>
    <message id="&amp;Overlays">
        <source>&amp;Overlays</source>
        <translation>&amp;Sobreposições</translation>
    </message>
    <message id="Smallest &amp;text size:">
        <source>Smallest &amp;text size:</source>
        <translation>Tama&amp;nho mínimo do texto:</translation>
    </message>
    <message id="No text over the movie is smaller">
        <source>No text over the movie is smaller</source>
        <translation>Nenhum texto sobre o filme é menor</translation>
    </message>
    <message id="&amp;Distance from the edges:">
        <source>&amp;Distance from the edges:</source>
        <translation>Distância das &amp;bordas:</translation>
    </message>
    <message id="How far what is shown over the movie keeps from the edges of the window">
        <source>How far what is shown over the movie keeps from the edges of the window</source>
        <translation>Quanto o que é mostrado sobre o filme se afasta das bordas da janela</translation>
    </message>
    <message id="Show &amp;feedback">
        <source>Show &amp;feedback</source>
        <translation>M&amp;ostrar mensagens</translation>
    </message>
    <message id="Commands say what they did">
        <source>Commands say what they did</source>
        <translation>Os comandos dizem o que fizeram</translation>
    </message>
    <message id="&amp;Keep the display for the next start">
        <source>&amp;Keep the display for the next start</source>
        <translation>&amp;Manter a exibição para o próximo início</translation>
    </message>
    <message id="The on-screen display chosen last is shown again">
        <source>The on-screen display chosen last is shown again</source>
        <translation>A última exibição na tela escolhida é mostrada de novo</translation>
    </message>
    <message id="How texts over the movie and the window look">
        <source>How texts over the movie and the window look</source>
        <translation>A aparência dos textos sobre o filme e da janela</translation>
    </message>
    <message id="Overlay styles">
        <source>Overlay styles</source>
        <translation>Estilos das sobreposições</translation>
    </message>
    <message id="How subtitles look">
        <source>How subtitles look</source>
        <translation>A aparência das legendas</translation>
    </message>
    <message id="Subtitle styles">
        <source>Subtitle styles</source>
        <translation>Estilos das legendas</translation>
    </message>
    <message id="&amp;Advanced">
        <source>&amp;Advanced</source>
        <translation>&amp;Avançado</translation>
    </message>
    <message id="Pointer">
        <source>Pointer</source>
        <translation>Ponteiro</translation>
    </message>
    <message id="&amp;Hide after:">
        <source>&amp;Hide after:</source>
        <translation>O&amp;cultar após:</translation>
    </message>
    <message id="How long the pointer rests before it is hidden">
        <source>How long the pointer rests before it is hidden</source>
        <translation>Quanto tempo o ponteiro fica parado antes de ser ocultado</translation>
    </message>
    <message id="New Versions">
        <source>New Versions</source>
        <translation>Novas versões</translation>
    </message>
    <message id="The packages of your system keep Lumaro up to date.">
        <source>The packages of your system keep Lumaro up to date.</source>
        <translation>Os pacotes do seu sistema mantêm o Lumaro atualizado.</translation>
    </message>
    <message id="Look for new &amp;versions">
        <source>Look for new &amp;versions</source>
        <translation>&amp;Procurar novas versões</translation>
    </message>
    <message id="When Lumaro starts, as often as is set below">
        <source>When Lumaro starts, as often as is set below</source>
        <translation>Quando o Lumaro inicia, com a frequência definida abaixo</translation>
    </message>
    <message id="Also for &amp;beta versions">
        <source>Also for &amp;beta versions</source>
        <translation>Também versões &amp;beta</translation>
    </message>
    <message id="Versions that are still being tried">
        <source>Versions that are still being tried</source>
        <translation>Versões que ainda estão sendo testadas</translation>
    </message>
    <message id="Ho&amp;w often:">
        <source>Ho&amp;w often:</source>
        <translation>Fr&amp;equência:</translation>
    </message>
    <message id="How much time passes between two checks">
        <source>How much time passes between two checks</source>
        <translation>Quanto tempo passa entre duas verificações</translation>
    </message>
    <message id="At every start">
        <source>At every start</source>
        <translation>A cada início</translation>
    </message>
    <message id="Daily">
        <source>Daily</source>
        <translation>Diariamente</translation>
    </message>
    <message id="Weekly">
        <source>Weekly</source>
        <translation>Semanalmente</translation>
    </message>
    <message id="Every 30 days">
        <source>Every 30 days</source>
        <translation>A cada 30 dias</translation>
    </message>
    <message id="Last check:">
        <source>Last check:</source>
        <translation>Última verificação:</translation>
    </message>
    <message id="Result:">
        <source>Result:</source>
        <translation>Resultado:</translation>
    </message>
    <message id="Check &amp;Now">
        <source>Check &amp;Now</source>
        <translation>&amp;Verificar agora</translation>
    </message>
    <message id="Looks for a new version at once">
        <source>Looks for a new version at once</source>
        <translation>Procura uma nova versão imediatamente</translation>
    </message>
    <message id="Diagnosis">
        <source>Diagnosis</source>
        <translation>Diagnóstico</translation>
    </message>
    <message id="Remote">
        <source>Remote</source>
        <translation>Controle remoto</translation>
    </message>
    <message id="Act on in&amp;frared remotes">
        <source>Act on in&amp;frared remotes</source>
        <translation>Respo&amp;nder a controles infravermelhos</translation>
    </message>
    <message id="Their buttons are the player's alone while it runs">
        <source>Their buttons are the player's alone while it runs</source>
        <translation>Os botões deles são só do reprodutor enquanto ele está aberto</translation>
    </message>
    <message id="&amp;Log what happens">
        <source>&amp;Log what happens</source>
        <translation>Registrar &amp;o que acontece</translation>
    </message>
    <message id="Lines for whoever looks for an error, in the system log or the terminal">
        <source>Lines for whoever looks for an error, in the system log or the terminal</source>
        <translation>Linhas para quem procura um erro, no registro do sistema ou no terminal</translation>
    </message>
    <message id="&amp;Reset Page">
        <source>&amp;Reset Page</source>
        <translation>&amp;Restaurar página</translation>
    </message>
    <message id="Takes the settings of this page back to what they were at first. Styles have a button of their own.">
        <source>Takes the settings of this page back to what they were at first. Styles have a button of their own.</source>
        <translation>Devolve as configurações desta página ao que eram no início. Os estilos têm um botão próprio.</translation>
    </message>
    <message id="Undo Reset">
        <source>Undo Reset</source>
        <translation>Desfazer restauração</translation>
    </message>
    <message id="Brings the settings of this page back (Ctrl+Z)">
        <source>Brings the settings of this page back (Ctrl+Z)</source>
        <translation>Traz de volta as configurações desta página (Ctrl+Z)</translation>
    </message>
    <message id="Find a setting">
        <source>Find a setting</source>
        <translation>Encontrar uma configuração</translation>
    </message>
    <message id="Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.">
        <source>Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.</source>
        <translation>Encontra uma configuração pelas palavras (Ctrl+F). As setas para cima e para baixo vão às outras, Enter vai à própria configuração.</translation>
    </message>
    <message id="PreferencesFound">
        <source>%d of %d</source>
        <translation>%d de %d</translation>
    </message>
    <message id="Nothing found">
        <source>Nothing found</source>
        <translation>Nada encontrado</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Fechar</translation>
    </message>
    <message id="More Encodings">
        <source>More Encodings</source>
        <translation>Mais codificações</translation>
    </message>
    <message id="%d sec.">
        <source>%d sec.</source>
        <translation>%d s</translation>
    </message>
    <message id="%d pt">
        <source>%d pt</source>
        <translation>%d pt</translation>
    </message>
    <message id="Search: %@">
        <source>Search: %@</source>
        <translation>Pesquisa: %@</translation>
    </message>
    <message id="Type to search">
        <source>Type to search</source>
        <translation>Digite para pesquisar</translation>
    </message>
    <message id="Change the preferences">
        <source>Change the preferences</source>
        <translation>Alterar as preferências</translation>
    </message>
    <message id="Feedback style">
        <source>Feedback</source>
        <translation>Mensagens</translation>
    </message>
    <message id="Text style">
        <source>Texts</source>
        <translation>Textos</translation>
    </message>
    <message id="Picture style">
        <source>Bitmaps</source>
        <translation>Imagens</translation>
    </message>
    <message id="On-screen display style">
        <source>On-Screen Display</source>
        <translation>Exibição na tela</translation>
    </message>
    <message id="Window style">
        <source>Window</source>
        <translation>Janela</translation>
    </message>
    <message id="SettingsNotSavedMessage">
        <source>The preferences can’t be saved.</source>
        <translation>Não foi possível salvar as preferências.</translation>
    </message>
    <message id="SettingsNotSavedDetails">
        <source>What you change acts until Lumaro quits. The file “%@” can’t be written.</source>
        <translation>O que você mudar vale até sair do Lumaro. O arquivo “%@” não pode ser gravado.</translation>
    </message>
    <message id="SettingsDamagedMessage">
        <source>The preferences are damaged.</source>
        <translation>As preferências estão danificadas.</translation>
    </message>
    <message id="SettingsDamagedDetails">
        <source>Lumaro begins with new ones. The damaged file is kept as “%@”.</source>
        <translation>O Lumaro começa com novas. O arquivo danificado é mantido como “%@”.</translation>
    </message>
    <message id="SettingsUnreadableMessage">
        <source>The preferences can’t be read.</source>
        <translation>Não foi possível ler as preferências.</translation>
    </message>
    <message id="SettingsUnreadableDetails">
        <source>The file “%@” stays as it is. What you change acts until Lumaro quits.</source>
        <translation>O arquivo “%@” fica como está. O que você mudar vale até sair do Lumaro.</translation>
    </message>
    <message id="PlacesDamagedMessage">
        <source>The remembered places in movies are damaged; their file was put aside.</source>
        <translation>As posições lembradas nos filmes estão danificadas; o arquivo delas foi posto de lado.</translation>
    </message>
    <message id="PlacesUnreadableMessage">
        <source>The remembered places in movies can’t be read.</source>
        <translation>Não foi possível ler as posições lembradas nos filmes.</translation>
    </message>
    <message id="PlacesOfLaterVersionMessage">
        <source>A later version of Lumaro remembers places in movies here; this one can’t.</source>
        <translation>Uma versão posterior do Lumaro lembra aqui as posições nos filmes; esta não consegue.</translation>
    </message>
    <message id="Short&amp;cuts">
        <source>Short&amp;cuts</source>
        <translation>A&amp;talhos</translation>
    </message>
    <message id="Searc&amp;h:">
        <source>Searc&amp;h:</source>
        <translation>&amp;Pesquisar:</translation>
    </message>
    <message id="Words of a command, or its key">
        <source>Words of a command, or its key</source>
        <translation>Palavras de um comando, ou sua tecla</translation>
    </message>
    <message id="The commands by menu; bold ones have keys of your own">
        <source>The commands by menu; bold ones have keys of your own</source>
        <translation>Os comandos por menu; os em negrito têm teclas que você definiu</translation>
    </message>
    <message id="Commands and their keys">
        <source>Commands and their keys</source>
        <translation>Comandos e suas teclas</translation>
    </message>
    <message id="Command">
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message id="Keys">
        <source>Keys</source>
        <translation>Teclas</translation>
    </message>
    <message id="&amp;Keys of the command:">
        <source>&amp;Keys of the command:</source>
        <translation>Teclas do co&amp;mando:</translation>
    </message>
    <message id="The keys of the command that is marked">
        <source>The keys of the command that is marked</source>
        <translation>As teclas do comando selecionado</translation>
    </message>
    <message id="A&amp;dd Key...">
        <source>A&amp;dd Key...</source>
        <translation>Adici&amp;onar tecla…</translation>
    </message>
    <message id="Then press the key, with Ctrl, Alt, Shift or Super if you like">
        <source>Then press the key, with Ctrl, Alt, Shift or Super if you like</source>
        <translation>Depois pressione a tecla, com Ctrl, Alt, Shift ou Super se quiser</translation>
    </message>
    <message id="Remo&amp;ve Key">
        <source>Remo&amp;ve Key</source>
        <translation>Remo&amp;ver tecla</translation>
    </message>
    <message id="The marked key means nothing any more">
        <source>The marked key means nothing any more</source>
        <translation>A tecla selecionada não significa mais nada</translation>
    </message>
    <message id="Rese&amp;t Command">
        <source>Rese&amp;t</source>
        <translation>Resta&amp;urar</translation>
    </message>
    <message id="The command gets back the keys that Lumaro came with">
        <source>The command gets back the keys that Lumaro came with</source>
        <translation>O comando recebe de volta as teclas padrão do Lumaro</translation>
    </message>
    <message id="Reset A&amp;ll Keys">
        <source>Reset A&amp;ll</source>
        <translation>R&amp;estaurar tudo</translation>
    </message>
    <message id="Every command gets back the keys that Lumaro came with">
        <source>Every command gets back the keys that Lumaro came with</source>
        <translation>Todos os comandos recebem de volta as teclas padrão do Lumaro</translation>
    </message>
    <message id="&amp;Undo Key Change">
        <source>&amp;Undo</source>
        <translation>Desfa&amp;zer</translation>
    </message>
    <message id="Takes back the last change of a key">
        <source>Takes back the last change of a key</source>
        <translation>Desfaz a última mudança de uma tecla</translation>
    </message>
    <message id="Take &amp;It Over">
        <source>Take &amp;It Over</source>
        <translation>Reatri&amp;buir</translation>
    </message>
    <message id="The key means the marked command from now on">
        <source>The key means the marked command from now on</source>
        <translation>A tecla passa a significar o comando selecionado</translation>
    </message>
    <message id="Ca&amp;ncel Key">
        <source>Ca&amp;ncel</source>
        <translation>&amp;Cancelar</translation>
    </message>
    <message id="The key keeps its meaning">
        <source>The key keeps its meaning</source>
        <translation>A tecla mantém o seu significado</translation>
    </message>
    <message id="Press a key for “%@”. Esc goes back.">
        <source>Press a key for “%@”. Esc goes back.</source>
        <translation>Pressione uma tecla para “%@”. Esc cancela.</translation>
    </message>
    <message id="Lumaro does not know this key.">
        <source>Lumaro does not know this key.</source>
        <translation>O Lumaro não conhece esta tecla.</translation>
    </message>
    <message id="Esc closes windows and ends Lumaro; that can’t be changed.">
        <source>Esc closes windows and ends Lumaro; that can’t be changed.</source>
        <translation>Esc fecha janelas e encerra o Lumaro; isso não pode ser mudado.</translation>
    </message>
    <message id="%@ belongs to the desktop.">
        <source>%@ belongs to the desktop.</source>
        <translation>%@ pertence à área de trabalho.</translation>
    </message>
    <message id="%@ means “%@” already.">
        <source>%@ means “%@” already.</source>
        <translation>%@ já significa “%@”.</translation>
    </message>
    <message id="“%@” has as many keys as it can have; remove one first.">
        <source>“%@” has as many keys as it can have; remove one first.</source>
        <translation>“%@” já tem o máximo de teclas; remova uma primeiro.</translation>
    </message>
    <message id="%@ means “%@” now.">
        <source>%@ means “%@” now.</source>
        <translation>%@ agora significa “%@”.</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>Parar</translation>
    </message>
    <message id="Next Looping">
        <source>Next Looping</source>
        <translation>Próxima repetição</translation>
    </message>
    <message id="Previous Looping">
        <source>Previous Looping</source>
        <translation>Repetição anterior</translation>
    </message>
    <message id="Show Playlist">
        <source>Show Playlist</source>
        <translation>Mostrar lista de reprodução</translation>
    </message>
    <message id="Next Subtitles">
        <source>Next Subtitles</source>
        <translation>Próximas legendas</translation>
    </message>
    <message id="Previous Subtitles">
        <source>Previous Subtitles</source>
        <translation>Legendas anteriores</translation>
    </message>
    <message id="No Subtitles">
        <source>No Subtitles</source>
        <translation>Sem legendas</translation>
    </message>
    <message id="Open a movie from the menu">
        <source>Open a movie from the menu</source>
        <translation>Abra um filme pelo menu</translation>
    </message>
    <message id="or drop files here.">
        <source>or drop files here.</source>
        <translation>ou solte arquivos aqui.</translation>
    </message>
    <message id="Keys of the command">
        <source>Keys of the command</source>
        <translation>Teclas do comando</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message id="Open pages of video sites with &amp;yt-dlp">
        <source>Open pages of video sites with &amp;yt-dlp</source>
        <translation>Abrir &amp;páginas de sites de vídeo com yt-dlp</translation>
    </message>
    <message id="An address that is no movie is asked of the program yt-dlp, where it is installed">
        <source>An address that is no movie is asked of the program yt-dlp, where it is installed</source>
        <translation>Um endereço que não é um filme é consultado no programa yt-dlp, se estiver instalado</translation>
    </message>
    <message id="Open Movies">
        <source>Open Movies</source>
        <translation>Abrir filmes</translation>
    </message>
    <message id="Open Folder">
        <source>Open Folder</source>
        <translation>Abrir pasta</translation>
    </message>
    <message id="Open Folder...">
        <source>Open Folder...</source>
        <translation>Abrir pasta…</translation>
    </message>
    <message id="Movies and Sound">
        <source>Movies and Sound</source>
        <translation>Filmes e música</translation>
    </message>
    <message id="All Files">
        <source>All Files</source>
        <translation>Todos os arquivos</translation>
    </message>
    <message id="Add to Playlist">
        <source>Add to Playlist</source>
        <translation>Adicionar à lista de reprodução</translation>
    </message>
    <message id="Open folders of movies">
        <source>Open folders of movies</source>
        <translation>Abrir pastas de filmes</translation>
    </message>
    <message id="Open an address, several addresses">
        <source>Open an address, several addresses</source>
        <translation>Abrir um endereço, vários endereços</translation>
    </message>
    <message id="Open URL">
        <source>Open URL</source>
        <translation>Abrir URL</translation>
    </message>
    <message id="Open URLs">
        <source>Open URLs</source>
        <translation>Abrir várias URLs</translation>
    </message>
    <message id="&amp;Address or path of a movie:">
        <source>&amp;Address or path of a movie:</source>
        <translation>&amp;Endereço ou caminho de um filme:</translation>
    </message>
    <message id="&amp;Addresses or paths of movies, one in each line:">
        <source>&amp;Addresses or paths of movies, one in each line:</source>
        <translation>&amp;Endereços ou caminhos de filmes, um em cada linha:</translation>
    </message>
    <message id="Address">
        <source>Address</source>
        <translation>Endereço</translation>
    </message>
    <message id="Addresses">
        <source>Addresses</source>
        <translation>Endereços</translation>
    </message>
    <message id="Add to &amp;Playlist">
        <source>Add to &amp;Playlist</source>
        <translation>&amp;Adicionar à lista de reprodução</translation>
    </message>
    <message id="What plays now goes on; holding Alt does the same">
        <source>What plays now goes on; holding Alt does the same</source>
        <translation>O que está em reprodução continua; manter Alt pressionada faz o mesmo</translation>
    </message>
    <message id="Replace the Playlist">
        <source>Replace the Playlist</source>
        <translation>Substituir a lista de reprodução</translation>
    </message>
    <message id="Add to the Playlist">
        <source>Add to the Playlist</source>
        <translation>Adicionar à lista de reprodução</translation>
    </message>
    <message id="OpenErrorSubtitles">
        <source>It holds subtitles. They are shown by themselves when they lie beside their movie and begin with its name.</source>
        <translation>Ele contém legendas. Elas são mostradas por si mesmas quando estão ao lado do filme e começam com o nome dele.</translation>
    </message>
    <message id="OpenErrorNotAnAddress">
        <source>It is neither an address nor the path of a file.</source>
        <translation>Não é nem um endereço nem o caminho de um arquivo.</translation>
    </message>
    <message id="Resumed at %@">
        <source>Resumed at %@</source>
        <translation>Retomado em %@</translation>
    </message>
</context>
<context>
    <name>Watching</name>
    <message id="Speed">
        <source>Speed</source>
        <translation>Velocidade</translation>
    </message>
    <message id="Speed: %@">
        <source>Speed: %@</source>
        <translation>Velocidade: %@</translation>
    </message>
    <message id="%@x">
        <source>%@x</source>
        <translation>%@×</translation>
    </message>
    <message id="Slower">
        <source>Slower</source>
        <translation>Mais devagar</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Mais rápido</translation>
    </message>
    <message id="Half as Fast">
        <source>Half as Fast</source>
        <translation>Metade da velocidade</translation>
    </message>
    <message id="Twice as Fast">
        <source>Twice as Fast</source>
        <translation>Dobro da velocidade</translation>
    </message>
    <message id="Original Speed">
        <source>Original Speed</source>
        <translation>Velocidade original</translation>
    </message>
    <message id="Slower and faster, the pitch kept; half and twice as fast">
        <source>Slower and faster, the pitch kept; half and twice as fast</source>
        <translation>Mais devagar e mais rápido, mantendo o tom; metade e dobro da velocidade</translation>
    </message>
    <message id="As fast as the movie was made">
        <source>As fast as the movie was made</source>
        <translation>Na velocidade original do filme</translation>
    </message>
    <message id="Chapters">
        <source>Chapters</source>
        <translation>Capítulos</translation>
    </message>
    <message id="No Chapters">
        <source>No Chapters</source>
        <translation>Sem capítulos</translation>
    </message>
    <message id="Chapter %d of %d">
        <source>Chapter %d of %d</source>
        <translation>Capítulo %d de %d</translation>
    </message>
    <message id="Chapter %d of %d: %@">
        <source>Chapter %d of %d: %@</source>
        <translation>Capítulo %d de %d: %@</translation>
    </message>
    <message id="Next Chapter">
        <source>Next Chapter</source>
        <translation>Próximo capítulo</translation>
    </message>
    <message id="Previous Chapter">
        <source>Previous Chapter</source>
        <translation>Capítulo anterior</translation>
    </message>
    <message id="Next and previous chapter">
        <source>Next and previous chapter</source>
        <translation>Próximo capítulo e capítulo anterior</translation>
    </message>
    <message id="Save Still">
        <source>Save Still</source>
        <translation>Salvar captura</translation>
    </message>
    <message id="Save the picture as a file">
        <source>Save the picture as a file</source>
        <translation>Salvar a imagem como arquivo</translation>
    </message>
    <message id="Still: %@">
        <source>Still: %@</source>
        <translation>Captura: %@</translation>
    </message>
    <message id="No Picture to Save">
        <source>No Picture to Save</source>
        <translation>Nenhuma imagem para salvar</translation>
    </message>
    <message id="Can’t save the still in %@">
        <source>Can’t save the still in %@</source>
        <translation>Não foi possível salvar a captura em %@</translation>
    </message>
    <message id="Go to Time">
        <source>Go to Time</source>
        <translation>Ir para o tempo</translation>
    </message>
    <message id="Go to Time...">
        <source>Go to Time...</source>
        <translation>Ir para o tempo…</translation>
    </message>
    <message id="Go to a time">
        <source>Go to a time</source>
        <translation>Ir para um tempo do filme</translation>
    </message>
    <message id="Time in the movie:">
        <source>Time in the movie:</source>
        <translation>Tempo no filme:</translation>
    </message>
    <message id="Time in the movie, up to %@:">
        <source>Time in the movie, up to %@:</source>
        <translation>Tempo no filme, até %@:</translation>
    </message>
    <message id="Seconds, minutes or hours: 90, 1:30 or 1:23:45.6">
        <source>Seconds, minutes or hours: 90, 1:30 or 1:23:45.6</source>
        <translation>Segundos, minutos ou horas: 90, 1:30 ou 1:23:45,6</translation>
    </message>
    <message id="Time: %@">
        <source>Time: %@</source>
        <translation>Tempo: %@</translation>
    </message>
    <message id="Repeat Section">
        <source>Repeat Section</source>
        <translation>Repetir trecho</translation>
    </message>
    <message id="Repeat from Here">
        <source>Repeat from Here</source>
        <translation>Repetir a partir daqui</translation>
    </message>
    <message id="Repeat until Here">
        <source>Repeat until Here</source>
        <translation>Repetir até aqui</translation>
    </message>
    <message id="Repeat a section: its beginning, its end, no more">
        <source>Repeat a section: its beginning, its end, no more</source>
        <translation>Repetir um trecho: o início, o fim, não mais</translation>
    </message>
    <message id="Repeat: Off">
        <source>Repeat: Off</source>
        <translation>Trecho repetido: nenhum</translation>
    </message>
    <message id="Repeat from %@">
        <source>Repeat from %@</source>
        <translation>Repetir a partir de %@</translation>
    </message>
    <message id="Repeat: %@ – %@">
        <source>Repeat: %@ – %@</source>
        <translation>Trecho repetido: %@ – %@</translation>
    </message>
    <message id="Aspect">
        <source>Aspect</source>
        <translation>Proporção</translation>
    </message>
    <message id="Next Aspect">
        <source>Next Aspect</source>
        <translation>Próxima proporção</translation>
    </message>
    <message id="Aspect: automatic, 4:3, 16:9, 2.35:1">
        <source>Aspect: automatic, 4:3, 16:9, 2.35:1</source>
        <translation>Proporção: automática, 4:3, 16:9, 2,35:1</translation>
    </message>
    <message id="Aspect: %@">
        <source>Aspect: %@</source>
        <translation>Proporção: %@</translation>
    </message>
    <message id="2.35:1">
        <source>2.35:1</source>
        <translation>2,35:1</translation>
    </message>
    <message id="Deinterlacing">
        <source>Deinterlacing</source>
        <translation>Desentrelaçamento</translation>
    </message>
    <message id="Next Deinterlacing">
        <source>Next Deinterlacing</source>
        <translation>Próximo desentrelaçamento</translation>
    </message>
    <message id="Deinterlacing: automatic, on, off">
        <source>Deinterlacing: automatic, on, off</source>
        <translation>Desentrelaçamento: automático, sim, não</translation>
    </message>
    <message id="Deinterlacing: %@">
        <source>Deinterlacing: %@</source>
        <translation>Desentrelaçamento: %@</translation>
    </message>
    <message id="Picture Colors">
        <source>Picture Colors</source>
        <translation>Cores da imagem</translation>
    </message>
    <message id="Less Contrast">
        <source>Less Contrast</source>
        <translation>Menos contraste</translation>
    </message>
    <message id="More Contrast">
        <source>More Contrast</source>
        <translation>Mais contraste</translation>
    </message>
    <message id="Darker">
        <source>Darker</source>
        <translation>Mais escuro</translation>
    </message>
    <message id="Brighter">
        <source>Brighter</source>
        <translation>Mais claro</translation>
    </message>
    <message id="Less Gamma">
        <source>Less Gamma</source>
        <translation>Menos gama</translation>
    </message>
    <message id="More Gamma">
        <source>More Gamma</source>
        <translation>Mais gama</translation>
    </message>
    <message id="Less Saturation">
        <source>Less Saturation</source>
        <translation>Menos saturação</translation>
    </message>
    <message id="More Saturation">
        <source>More Saturation</source>
        <translation>Mais saturação</translation>
    </message>
    <message id="Hue towards Red">
        <source>Hue towards Red</source>
        <translation>Matiz em direção ao vermelho</translation>
    </message>
    <message id="Hue towards Green">
        <source>Hue towards Green</source>
        <translation>Matiz em direção ao verde</translation>
    </message>
    <message id="Contrast, brightness, gamma, saturation, hue: less and more">
        <source>Contrast, brightness, gamma, saturation, hue: less and more</source>
        <translation>Contraste, brilho, gama, saturação, matiz: menos e mais</translation>
    </message>
    <message id="The colors as the movie has them">
        <source>The colors as the movie has them</source>
        <translation>As cores como o filme as tem</translation>
    </message>
    <message id="Original Colors">
        <source>Original Colors</source>
        <translation>Cores originais</translation>
    </message>
    <message id="Contrast: %@">
        <source>Contrast: %@</source>
        <translation>Contraste: %@</translation>
    </message>
    <message id="Brightness: %@">
        <source>Brightness: %@</source>
        <translation>Brilho: %@</translation>
    </message>
    <message id="Gamma: %@">
        <source>Gamma: %@</source>
        <translation>Gama: %@</translation>
    </message>
    <message id="Saturation: %@">
        <source>Saturation: %@</source>
        <translation>Saturação: %@</translation>
    </message>
    <message id="Hue: %@">
        <source>Hue: %@</source>
        <translation>Matiz: %@</translation>
    </message>
    <message id="Crop Black Bars">
        <source>Crop Black Bars</source>
        <translation>Cortar as barras pretas</translation>
    </message>
    <message id="Cut black bars off">
        <source>Cut black bars off</source>
        <translation>Cortar as barras pretas</translation>
    </message>
    <message id="Crop: On">
        <source>Crop: On</source>
        <translation>Corte: ligado</translation>
    </message>
    <message id="Crop: Off">
        <source>Crop: Off</source>
        <translation>Corte: desligado</translation>
    </message>
    <message id="No Black Bars">
        <source>No Black Bars</source>
        <translation>Sem barras pretas</translation>
    </message>
    <message id="Turn by 90°">
        <source>Turn by 90°</source>
        <translation>Girar 90°</translation>
    </message>
    <message id="Turn and mirror the picture">
        <source>Turn and mirror the picture</source>
        <translation>Girar e espelhar a imagem</translation>
    </message>
    <message id="Turned by %d°">
        <source>Turned by %d°</source>
        <translation>Imagem girada em %d°</translation>
    </message>
    <message id="Mirror">
        <source>Mirror</source>
        <translation>Espelhar</translation>
    </message>
    <message id="Mirror: On">
        <source>Mirror: On</source>
        <translation>Espelho: ligado</translation>
    </message>
    <message id="Mirror: Off">
        <source>Mirror: Off</source>
        <translation>Espelho: desligado</translation>
    </message>
</context>
<context>
    <name>Tracks</name>
    <message id="Audio Tracks">
        <source>Audio Tracks</source>
        <translation>Faixas de áudio</translation>
    </message>
    <message id="Audio: %@">
        <source>Audio: %@</source>
        <translation>Áudio: %@</translation>
    </message>
    <message id="Next Audio Track">
        <source>Next Audio Track</source>
        <translation>Próxima faixa de áudio</translation>
    </message>
    <message id="Previous Audio Track">
        <source>Previous Audio Track</source>
        <translation>Faixa de áudio anterior</translation>
    </message>
    <message id="Next and previous audio track">
        <source>Next and previous audio track</source>
        <translation>Próxima faixa de áudio e faixa anterior</translation>
    </message>
    <message id="Mono">
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message id="Stereo">
        <source>Stereo</source>
        <translation>Estéreo</translation>
    </message>
    <message id="%d channels">
        <source>%d channels</source>
        <translation>%d canais</translation>
    </message>
    <message id="Track %d">
        <source>Track %d</source>
        <translation>Faixa %d</translation>
    </message>
    <message id="forced">
        <source>forced</source>
        <translation>forçadas</translation>
    </message>
    <message id="Second Subtitles">
        <source>Second Subtitles</source>
        <translation>Segundas legendas</translation>
    </message>
    <message id="Next Second Subtitles">
        <source>Next Second Subtitles</source>
        <translation>Próximas segundas legendas</translation>
    </message>
    <message id="Second subtitles: %@">
        <source>Second subtitles: %@</source>
        <translation>Segundas legendas: %@</translation>
    </message>
    <message id="Second subtitles at the top: next track, none">
        <source>Second subtitles at the top: next track, none</source>
        <translation>Segundas legendas no alto: próxima faixa, nenhuma</translation>
    </message>
    <message id="SecondSubtitlesRefused">
        <source>Only texts can be shown as second subtitles, and no track twice</source>
        <translation>Somente textos podem ser mostrados como segundas legendas, e nenhuma faixa duas vezes</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>Qualidade</translation>
    </message>
    <message id="Quality: %@">
        <source>Quality: %@</source>
        <translation>Qualidade: %@</translation>
    </message>
    <message id="Next Quality">
        <source>Next Quality</source>
        <translation>Próxima qualidade</translation>
    </message>
    <message id="Next quality of a stream">
        <source>Next quality of a stream</source>
        <translation>Próxima qualidade de um stream</translation>
    </message>
    <message id="Only One Quality">
        <source>Only One Quality</source>
        <translation>Só uma qualidade</translation>
    </message>
    <message id="Go to Live">
        <source>Go to Live</source>
        <translation>Ir para o ao vivo</translation>
    </message>
    <message id="Go to what is live now">
        <source>Go to what is live now</source>
        <translation>Ir para o que está ao vivo</translation>
    </message>
    <message id="Not a Live Stream">
        <source>Not a Live Stream</source>
        <translation>Não é um stream ao vivo</translation>
    </message>
    <message id="Live">
        <source>Live</source>
        <translation>Ao vivo</translation>
    </message>
    <message id="Behind Live">
        <source>Behind Live</source>
        <translation>Atraso do ao vivo</translation>
    </message>
    <message id="Reconnecting...">
        <source>Reconnecting...</source>
        <translation>Reconectando…</translation>
    </message>
    <message id="Connection Lost">
        <source>Connection Lost</source>
        <translation>Conexão perdida</translation>
    </message>
</context>
<context>
    <name>Information</name>
    <message id="Information">
        <source>Information</source>
        <translation>Informações</translation>
    </message>
    <message id="Show or hide the information about the movie">
        <source>Show or hide the information about the movie</source>
        <translation>Mostrar ou ocultar as informações sobre o filme</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>Copiar</translation>
    </message>
    <message id="No movie">
        <source>No movie</source>
        <translation>Nenhum filme</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message id="Container">
        <source>Container</source>
        <translation>Contêiner</translation>
    </message>
    <message id="Duration">
        <source>Duration</source>
        <translation>Duração</translation>
    </message>
    <message id="File size">
        <source>File size</source>
        <translation>Tamanho do arquivo</translation>
    </message>
    <message id="Bit rate">
        <source>Bit rate</source>
        <translation>Taxa de bits</translation>
    </message>
    <message id="Sound">
        <source>Sound</source>
        <translation>Som</translation>
    </message>
    <message id="Tracks">
        <source>Tracks</source>
        <translation>Faixas</translation>
    </message>
    <message id="Frames">
        <source>Frames</source>
        <translation>Quadros</translation>
    </message>
    <message id="Buffer">
        <source>Buffer</source>
        <translation>Buffer</translation>
    </message>
    <message id="Codec">
        <source>Codec</source>
        <translation>Codec</translation>
    </message>
    <message id="Decoder">
        <source>Decoder</source>
        <translation>Decodificador</translation>
    </message>
    <message id="Software">
        <source>Software</source>
        <translation>Software</translation>
    </message>
    <message id="Hardware (%@)">
        <source>Hardware (%@)</source>
        <translation>Hardware (%@)</translation>
    </message>
    <message id="Size">
        <source>Size</source>
        <translation>Tamanho</translation>
    </message>
    <message id="%@, displayed as %@">
        <source>%@, displayed as %@</source>
        <translation>%@, mostrado como %@</translation>
    </message>
    <message id="Frame rate">
        <source>Frame rate</source>
        <translation>Taxa de quadros</translation>
    </message>
    <message id="%@ a second">
        <source>%@ a second</source>
        <translation>%@ por segundo</translation>
    </message>
    <message id="%@ a second, now %@">
        <source>%@ a second, now %@</source>
        <translation>%@ por segundo, agora %@</translation>
    </message>
    <message id="Dynamic range">
        <source>Dynamic range</source>
        <translation>Faixa dinâmica</translation>
    </message>
    <message id="Standard">
        <source>Standard</source>
        <translation>Padrão</translation>
    </message>
    <message id="Color">
        <source>Color</source>
        <translation>Cor</translation>
    </message>
    <message id="Channels">
        <source>Channels</source>
        <translation>Canais</translation>
    </message>
    <message id="Sample rate">
        <source>Sample rate</source>
        <translation>Taxa de amostragem</translation>
    </message>
    <message id="Output">
        <source>Output</source>
        <translation>Saída</translation>
    </message>
    <message id="%@ (playing)">
        <source>%@ (playing)</source>
        <translation>%@ (em reprodução)</translation>
    </message>
    <message id="Subtitles shown">
        <source>Subtitles shown</source>
        <translation>Legendas mostradas</translation>
    </message>
    <message id="Shown">
        <source>Shown</source>
        <translation>Mostrados</translation>
    </message>
    <message id="Late">
        <source>Late</source>
        <translation>Atrasados</translation>
    </message>
    <message id="Left out">
        <source>Left out</source>
        <translation>Omitidos</translation>
    </message>
    <message id="Ready">
        <source>Ready</source>
        <translation>Pronto</translation>
    </message>
    <message id="%@ s">
        <source>%@ s</source>
        <translation>%@ s</translation>
    </message>
    <message id="Filling">
        <source>Filling</source>
        <translation>Enchendo</translation>
    </message>
</context>
</TS>
