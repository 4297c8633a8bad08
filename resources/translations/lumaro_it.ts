<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="it">
<context>
    <name>Alerts</name>
    <message id="QTUnableToOpenFileError">
        <source>“%@” can’t be opened.</source>
        <translation>Impossibile aprire «%@».</translation>
    </message>
    <message id="QTUnableToOpenFileDetails">
        <source>The file is missing, damaged, or of a kind that Lumaro doesn’t know (error %d).</source>
        <translation>Il file non esiste, è danneggiato o è di un tipo che Lumaro non conosce (errore %d).</translation>
    </message>
    <message id="QTUnableToPlayFileError">
        <source>“%@” may not play as it should.</source>
        <translation>«%@» potrebbe non essere riprodotto correttamente.</translation>
    </message>
    <message id="QTUnableToPlayFileDetails">
        <source>Parts of the movie can’t be decoded (error %d). Choose Continue to try it anyway.</source>
        <translation>Alcune parti del film non possono essere decodificate (errore %d). Scegliere «Continua» per provare comunque.</translation>
    </message>
    <message id="NoPlayableMoviesInListMessage">
        <source>There is nothing to play.</source>
        <translation>Non c’è nulla da riprodurre.</translation>
    </message>
    <message id="NoPlayableMoviesInListDetails">
        <source>None of the files that were given is a movie that Lumaro can play. You can choose others.</source>
        <translation>Nessuno dei file indicati è un film che Lumaro possa riprodurre. È possibile sceglierne altri.</translation>
    </message>
    <message id="OpenErrorMissing">
        <source>The file doesn’t exist.</source>
        <translation>Il file non esiste.</translation>
    </message>
    <message id="OpenErrorEmpty">
        <source>The file is empty.</source>
        <translation>Il file è vuoto.</translation>
    </message>
    <message id="OpenErrorNotAFile">
        <source>It is a folder or a device, not a file.</source>
        <translation>È una cartella o un dispositivo, non un file.</translation>
    </message>
    <message id="OpenErrorPermission">
        <source>You aren’t allowed to read the file.</source>
        <translation>Non si dispone del permesso di leggere il file.</translation>
    </message>
    <message id="OpenErrorNotAMovie">
        <source>It isn’t a movie that Lumaro can play.</source>
        <translation>Non è un film che Lumaro possa riprodurre.</translation>
    </message>
    <message id="OpenErrorTimeout">
        <source>No answer came in time.</source>
        <translation>Nessuna risposta è arrivata in tempo.</translation>
    </message>
    <message id="OpenErrorLibraries">
        <source>The libraries that open movies are missing.</source>
        <translation>Mancano le librerie che aprono i film.</translation>
    </message>
    <message id="OpenErrorScheme">
        <source>Lumaro doesn’t know addresses of this kind.</source>
        <translation>Lumaro non conosce indirizzi di questo tipo.</translation>
    </message>
    <message id="OpenErrorUnknownHost">
        <source>There is no server of that name, or no connection to the network.</source>
        <translation>Non c’è alcun server con questo nome o manca la connessione alla rete.</translation>
    </message>
    <message id="OpenErrorUnreachable">
        <source>The server can’t be reached.</source>
        <translation>Il server non è raggiungibile.</translation>
    </message>
    <message id="OpenErrorRefused">
        <source>The server refused the connection.</source>
        <translation>Il server ha rifiutato la connessione.</translation>
    </message>
    <message id="OpenErrorConnection">
        <source>The connection to the server broke off.</source>
        <translation>La connessione al server si è interrotta.</translation>
    </message>
    <message id="OpenErrorRanges">
        <source>The server sends files only from their beginning, and what is needed first stands at this movie’s end. Download it to play it.</source>
        <translation>Il server invia i file solo dall’inizio, e ciò che serve per primo si trova alla fine di questo film. Per riprodurlo occorre scaricarlo.</translation>
    </message>
    <message id="OpenErrorLogin">
        <source>The server asks for a name and a password (401).</source>
        <translation>Il server chiede un nome e una password (401).</translation>
    </message>
    <message id="OpenErrorForbidden">
        <source>The server doesn’t allow it (403).</source>
        <translation>Il server non lo consente (403).</translation>
    </message>
    <message id="OpenErrorNotFound">
        <source>The server has no such file (404).</source>
        <translation>Il server non ha questo file (404).</translation>
    </message>
    <message id="OpenErrorRejected">
        <source>The server rejected the request.</source>
        <translation>Il server ha respinto la richiesta.</translation>
    </message>
    <message id="OpenErrorServer">
        <source>The server answered with an error of its own.</source>
        <translation>Il server ha risposto con un proprio errore.</translation>
    </message>
    <message id="OpenErrorNoMovies">
        <source>There is no movie in this folder.</source>
        <translation>In questa cartella non c’è alcun film.</translation>
    </message>
    <message id="OpenErrorNotAList">
        <source>The file is not a playlist.</source>
        <translation>Il file non è una scaletta.</translation>
    </message>
    <message id="OpenErrorListEmpty">
        <source>The playlist names no movies.</source>
        <translation>La scaletta non contiene film.</translation>
    </message>
    <message id="OpenErrorListTooLarge">
        <source>The playlist is larger than 32 MB.</source>
        <translation>La scaletta supera i 32 MB.</translation>
    </message>
    <message id="OpenErrorListTooLong">
        <source>The playlist is too long. Only its first 100,000 entries were opened.</source>
        <translation>La scaletta è troppo lunga. Sono state aperte solo le prime 100.000 voci.</translation>
    </message>
    <message id="OpenErrorListTooDeep">
        <source>Too many playlists name each other. This one was left out.</source>
        <translation>Troppe scalette rimandano l’una all’altra. Questa è stata tralasciata.</translation>
    </message>
    <message id="OpenErrorListDrives">
        <source>Entries on drives of Windows were left out (%@): %@.</source>
        <translation>Le voci su unità di Windows sono state tralasciate (%@): %@.</translation>
    </message>
    <message id="OpenErrorListLocal">
        <source>The playlist comes from a network. Entries that name files of this computer were left out (%@): %@.</source>
        <translation>La scaletta proviene da una rete. Le voci che indicano file di questo computer sono state tralasciate (%@): %@.</translation>
    </message>
    <message id="OpenErrorListNothing">
        <source>Entries that name neither a file nor an address were left out (%@): %@.</source>
        <translation>Le voci che non indicano né un file né un indirizzo sono state tralasciate (%@): %@.</translation>
    </message>
    <message id="OpenErrorFolders">
        <source>Folders that may not be read (%@): %@.</source>
        <translation>Cartelle che non è permesso leggere (%@): %@.</translation>
    </message>
    <message id="UnreadableFoldersMessage">
        <source>Not everything could be searched.</source>
        <translation>Non è stato possibile cercare ovunque.</translation>
    </message>
    <message id="AndMoreMessage">
        <source>… and %@ more.</source>
        <translation>… e altri %@.</translation>
    </message>
    <message id="UnableToOpenLine">
        <source>“%@”: %@ (%@)</source>
        <translation>«%@»: %@ (%@)</translation>
    </message>
    <message id="UnableToOpenFilesMessage">
        <source>%@ files can’t be opened.</source>
        <translation>Impossibile aprire %@ file.</translation>
    </message>
    <message id="UnableToPlayFilesMessage">
        <source>%@ movies may not play as they should.</source>
        <translation>%@ film potrebbero non essere riprodotti correttamente.</translation>
    </message>
    <message id="NoMoviesInFoldersDetails">
        <source>There is no movie that Lumaro can play in:</source>
        <translation>Nessun film che Lumaro possa riprodurre in:</translation>
    </message>
    <message id="Buffering: %d %%">
        <source>Buffering: %d %%</source>
        <translation>Riempimento del buffer: %d%%</translation>
    </message>
    <message id="Stalled: No Data from the Server">
        <source>Stalled: no data from the server</source>
        <translation>In stallo: nessun dato dal server</translation>
    </message>
    <message id="Loading: %@">
        <source>Loading: %@</source>
        <translation>Caricamento: %@</translation>
    </message>
    <message id="ResumedAt">
        <source>Resumed at %@
%@: From the Beginning</source>
        <translation>Ripreso da %@
%@: dall’inizio</translation>
    </message>
    <message id="Looking for Movies: %@">
        <source>Looking for movies: %@</source>
        <translation>Ricerca di film: %@</translation>
    </message>
    <message id="FilesFoundMessage" numerus="yes">
        <source>%@ file found…</source>
        <translation>
            <numerusform>%@ file trovato…</numerusform>
            <numerusform>%@ file trovati…</numerusform>
        </translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Annulla</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>Continua</translation>
    </message>
    <message id="Open...">
        <source>Open...</source>
        <translation>Apri…</translation>
    </message>
    <message id="Open Recent">
        <source>Open Recent</source>
        <translation>Apri recenti</translation>
    </message>
    <message id="ClearRecent">
        <source>Clear Menu and Forget Places</source>
        <translation>Svuota il menu e dimentica le posizioni</translation>
    </message>
    <message id="Open">
        <source>Open</source>
        <translation>Apri</translation>
    </message>
    <message id="ConfigureCheckForNewVersionMessage">
        <source>Look for new versions?</source>
        <translation>Cercare nuove versioni?</translation>
    </message>
    <message id="ConfigureCheckForNewVersionDetails">
        <source>Lumaro can look from time to time whether a newer version exists. Nothing about you or your movies is sent. You can change this in the preferences.</source>
        <translation>Lumaro può controllare di tanto in tanto se esiste una versione più recente. Non viene inviato nulla sull’utente o sui suoi film. Si può cambiare nelle preferenze.</translation>
    </message>
    <message id="CheckNewVersionFailedMessage">
        <source>Looking for a new version failed.</source>
        <translation>La ricerca di una nuova versione non è riuscita.</translation>
    </message>
    <message id="CheckNewVersionFailedDetails">
        <source>None of the sites could be reached. Check the connection to the internet, or try again later.</source>
        <translation>Nessuno dei siti era raggiungibile. Controllare la connessione a Internet o riprovare più tardi.</translation>
    </message>
    <message id="YouHaveLatestVersionMessage">
        <source>Lumaro is up to date.</source>
        <translation>Lumaro è aggiornato.</translation>
    </message>
    <message id="YouHaveLatestVersionDetails">
        <source>You have the latest version.</source>
        <translation>La versione installata è l’ultima.</translation>
    </message>
    <message id="NewVersionAvailableMessage">
        <source>A newer version of Lumaro is available.</source>
        <translation>È disponibile una versione più recente di Lumaro.</translation>
    </message>
    <message id="NewVersionAvailableDetails">
        <source>%@ version %@ can be downloaded now.</source>
        <translation>La versione %@ %@ può essere scaricata ora.</translation>
    </message>
    <message id="Download Now...">
        <source>&amp;Download Now...</source>
        <translation>&amp;Scarica ora…</translation>
    </message>
    <message id="Skip Version">
        <source>&amp;Skip Version</source>
        <translation>&amp;Ignora questa versione</translation>
    </message>
    <message id="Later">
        <source>Later</source>
        <translation>Più tardi</translation>
    </message>
    <message id="AskDonationMessage">
        <source>Do you enjoy Lumaro?</source>
        <translation>Ti piace Lumaro?</translation>
    </message>
    <message id="AskDonationDetails">
        <source>Lumaro is free. A donation helps to keep it alive.</source>
        <translation>Lumaro è gratuito. Una donazione aiuta a mantenerlo vivo.</translation>
    </message>
    <message id="Donate...">
        <source>Donate...</source>
        <translation>Dona…</translation>
    </message>
</context>
<context>
    <name>Version check</name>
    <message id="Up to date">
        <source>Up to date</source>
        <translation>Aggiornato</translation>
    </message>
    <message id="Newer %@ version %@ available">
        <source>Newer %@ version %@ available</source>
        <translation>Nuova versione %@ %@ disponibile</translation>
    </message>
    <message id="Failed to reach all mirror sites">
        <source>Failed to reach all mirror sites</source>
        <translation>Nessun sito raggiungibile</translation>
    </message>
    <message id="Release">
        <source>Release</source>
        <translation>stabile</translation>
    </message>
    <message id="Beta">
        <source>Beta</source>
        <translation>beta</translation>
    </message>
    <message id="Checking now...">
        <source>Checking now...</source>
        <translation>Controllo in corso…</translation>
    </message>
    <message id="Unknown">
        <source>Unknown</source>
        <translation>Sconosciuto</translation>
    </message>
    <message id="Never">
        <source>Never</source>
        <translation>Mai</translation>
    </message>
</context>
<context>
    <name>Feedback and on-screen display</name>
    <message id="Movie: Play">
        <source>Movie: Play</source>
        <translation>Riproduzione</translation>
    </message>
    <message id="Movie: Pause">
        <source>Movie: Pause</source>
        <translation>Pausa</translation>
    </message>
    <message id="Movie: Stop">
        <source>Movie: Stop</source>
        <translation>Stop</translation>
    </message>
    <message id="Movie: Beginning">
        <source>Movie: Beginning</source>
        <translation>Inizio</translation>
    </message>
    <message id="Movie: End">
        <source>Movie: End</source>
        <translation>Fine</translation>
    </message>
    <message id="Fast Forward x%d">
        <source>Fast Forward x%d</source>
        <translation>Avanti veloce ×%d</translation>
    </message>
    <message id="Fast Rewind x%d">
        <source>Fast Rewind x%d</source>
        <translation>Indietro veloce ×%d</translation>
    </message>
    <message id="Jump Forward %d s">
        <source>Jump Forward %d s</source>
        <translation>Salto avanti di %d s</translation>
    </message>
    <message id="Jump Backward %d s">
        <source>Jump Backward %d s</source>
        <translation>Salto indietro di %d s</translation>
    </message>
    <message id="Step Forward">
        <source>Step Forward</source>
        <translation>Fotogramma successivo</translation>
    </message>
    <message id="Step Backward">
        <source>Step Backward</source>
        <translation>Fotogramma precedente</translation>
    </message>
    <message id="Next: %@">
        <source>Next: %@</source>
        <translation>Successivo: %@</translation>
    </message>
    <message id="Previous: %@">
        <source>Previous: %@</source>
        <translation>Precedente: %@</translation>
    </message>
    <message id="Screen: Next">
        <source>Screen: Next</source>
        <translation>Schermo successivo</translation>
    </message>
    <message id="Screen: Previous">
        <source>Screen: Previous</source>
        <translation>Schermo precedente</translation>
    </message>
    <message id="Quit">
        <source>Quit</source>
        <translation>Esci</translation>
    </message>
    <message id="Sleep">
        <source>Sleep</source>
        <translation>Sospendi</translation>
    </message>
    <message id="Restart the Computer">
        <source>Restart the Computer</source>
        <translation>Riavvia il computer</translation>
    </message>
    <message id="Shut Down the Computer">
        <source>Shut Down the Computer</source>
        <translation>Spegni il computer</translation>
    </message>
    <message id="Log Out">
        <source>Log Out</source>
        <translation>Termina la sessione</translation>
    </message>
    <message id="Restart failed: %@">
        <source>Restart failed: %@</source>
        <translation>Il riavvio non è riuscito: %@</translation>
    </message>
    <message id="Shutting down failed: %@">
        <source>Shutting down failed: %@</source>
        <translation>Lo spegnimento non è riuscito: %@</translation>
    </message>
    <message id="Logging out failed: %@">
        <source>Logging out failed: %@</source>
        <translation>La chiusura della sessione non è riuscita: %@</translation>
    </message>
    <message id="KeyName Space">
        <source>Space</source>
        <translation>Spazio</translation>
    </message>
    <message id="KeyName Page Up">
        <source>Page Up</source>
        <translation>Pag su</translation>
    </message>
    <message id="KeyName Page Down">
        <source>Page Down</source>
        <translation>Pag giù</translation>
    </message>
    <message id="KeyName Home">
        <source>Home</source>
        <translation>Inizio</translation>
    </message>
    <message id="KeyName End">
        <source>End</source>
        <translation>Fine</translation>
    </message>
    <message id="KeyName Insert">
        <source>Insert</source>
        <translation>Ins</translation>
    </message>
    <message id="KeyName Delete">
        <source>Delete</source>
        <translation>Canc</translation>
    </message>
    <message id="KeyName Backspace">
        <source>Backspace</source>
        <translation>Backspace</translation>
    </message>
    <message id="KeyName Return">
        <source>Return</source>
        <translation>Invio</translation>
    </message>
    <message id="KeyName Ctrl+">
        <source>Ctrl+</source>
        <translation>Ctrl+</translation>
    </message>
    <message id="KeyName Shift+">
        <source>Shift+</source>
        <translation>Maiusc+</translation>
    </message>
    <message id="KeyName Media Play">
        <source>Media Play</source>
        <translation>Riproduci (multimediale)</translation>
    </message>
    <message id="KeyName Media Stop">
        <source>Media Stop</source>
        <translation>Stop (multimediale)</translation>
    </message>
    <message id="KeyName Media Next">
        <source>Media Next</source>
        <translation>Successivo (multimediale)</translation>
    </message>
    <message id="KeyName Media Previous">
        <source>Media Previous</source>
        <translation>Precedente (multimediale)</translation>
    </message>
    <message id="KeyName Media Volume Up">
        <source>Media Volume Up</source>
        <translation>Alza volume (multimediale)</translation>
    </message>
    <message id="KeyName Media Volume Down">
        <source>Media Volume Down</source>
        <translation>Abbassa volume (multimediale)</translation>
    </message>
    <message id="KeyName Media Mute">
        <source>Media Mute</source>
        <translation>Muto (multimediale)</translation>
    </message>
    <message id="Sleep failed: %@">
        <source>Sleep failed: %@</source>
        <translation>La sospensione non è riuscita: %@</translation>
    </message>
    <message id="Size: Half">
        <source>Size: Half</source>
        <translation>Dimensione: metà</translation>
    </message>
    <message id="Size: Normal">
        <source>Size: Normal</source>
        <translation>Dimensione: normale</translation>
    </message>
    <message id="Size: Double">
        <source>Size: Double</source>
        <translation>Dimensione: doppia</translation>
    </message>
    <message id="Size: Full">
        <source>Size: Full</source>
        <translation>Dimensione: massima</translation>
    </message>
    <message id="Size: Fit Width">
        <source>Size: Fit Width</source>
        <translation>Dimensione: larghezza dello schermo</translation>
    </message>
    <message id="Size: Fit Height">
        <source>Size: Fit Height</source>
        <translation>Dimensione: altezza dello schermo</translation>
    </message>
    <message id="Size: Bigger">
        <source>Size: Bigger</source>
        <translation>Dimensione: più grande</translation>
    </message>
    <message id="Size: Smaller">
        <source>Size: Smaller</source>
        <translation>Dimensione: più piccola</translation>
    </message>
    <message id="Controller: On">
        <source>Controller: On</source>
        <translation>Barra di controllo: visibile</translation>
    </message>
    <message id="Controller: Off">
        <source>Controller: Off</source>
        <translation>Barra di controllo: nascosta</translation>
    </message>
    <message id="Volume: %@">
        <source>Volume: %@</source>
        <translation>Volume: %@</translation>
    </message>
    <message id="Mute: %@">
        <source>Mute: %@</source>
        <translation>Muto: %@</translation>
    </message>
    <message id="Muted">
        <source>Muted</source>
        <translation>Muto</translation>
    </message>
    <message id="On">
        <source>On</source>
        <translation>Sì</translation>
    </message>
    <message id="Off">
        <source>Off</source>
        <translation>No</translation>
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
        <translation>Film: %@</translation>
    </message>
    <message id="Loop: %@">
        <source>Loop: %@</source>
        <translation>Ripetizione: %@</translation>
    </message>
    <message id="One">
        <source>One</source>
        <translation>Uno</translation>
    </message>
    <message id="All">
        <source>All</source>
        <translation>Tutti</translation>
    </message>
    <message id="None">
        <source>None</source>
        <translation>Nessuno</translation>
    </message>
    <message id="Subtitles: %@">
        <source>Subtitles: %@</source>
        <translation>Sottotitoli: %@</translation>
    </message>
    <message id="Repair: On">
        <source>Repair: On</source>
        <translation>Riparazione: sì</translation>
    </message>
    <message id="Repair: Off">
        <source>Repair: Off</source>
        <translation>Riparazione: no</translation>
    </message>
    <message id="SubtitleLinesLost" numerus="yes">
        <source>%d line of it can’t be read.</source>
        <translation>
            <numerusform>%d delle sue righe è illeggibile.</numerusform>
            <numerusform>%d delle sue righe sono illeggibili.</numerusform>
        </translation>
    </message>
    <message id="SubtitlePicturesLost" numerus="yes">
        <source>%d picture of it can’t be read.</source>
        <translation>
            <numerusform>%d delle sue immagini è illeggibile.</numerusform>
            <numerusform>%d delle sue immagini sono illeggibili.</numerusform>
        </translation>
    </message>
    <message id="SubtitleRepairMayHelp">
        <source>Repair (Subtitles menu) may help.</source>
        <translation>«Ripara» (menu Sottotitoli) può aiutare.</translation>
    </message>
    <message id="Style">
        <source>Style</source>
        <translation>Stile</translation>
    </message>
    <message id="Automatic">
        <source>Automatic</source>
        <translation>Automatico</translation>
    </message>
</context>
<context>
    <name>Empty player</name>
    <message id="Press %@ to open a movie">
        <source>Press %@ to open a movie</source>
        <translation>Premere %@ per aprire un film</translation>
    </message>
    <message id="or drop files here. %@ shows all keys.">
        <source>or drop files here. %@ shows all keys.</source>
        <translation>o trascinare qui dei file. %@ mostra tutti i tasti.</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message id="File">
        <source>File</source>
        <translation>File</translation>
    </message>
    <message id="Movie">
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message id="Playback">
        <source>Playback</source>
        <translation>Riproduzione</translation>
    </message>
    <message id="Volume">
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message id="Playlist">
        <source>Playlist</source>
        <translation>Scaletta</translation>
    </message>
    <message id="Subtitles">
        <source>Subtitles</source>
        <translation>Sottotitoli</translation>
    </message>
    <message id="Window">
        <source>Window</source>
        <translation>Finestra</translation>
    </message>
    <message id="HelpIntroduction">
        <source>Type what you look for. Every command also stands in the menu: at the top edge of the screen, or under the right mouse button.</source>
        <translation>Digitare ciò che si cerca. Ogni comando si trova anche nel menu: sul bordo superiore dello schermo o con il tasto destro del mouse.</translation>
    </message>
    <message id="What do you want to do?">
        <source>What do you want to do?</source>
        <translation>Che cosa si desidera fare?</translation>
    </message>
    <message id="No command holds these words.">
        <source>No command holds these words.</source>
        <translation>Nessun comando contiene queste parole.</translation>
    </message>
    <message id="Watch and move through the movie">
        <source>Watch and move through the movie</source>
        <translation>Guardare il film e spostarsi al suo interno</translation>
    </message>
    <message id="Louder, softer, silent">
        <source>Louder, softer, silent</source>
        <translation>Più forte, più piano, silenzio</translation>
    </message>
    <message id="Read along">
        <source>Read along</source>
        <translation>Leggere i sottotitoli</translation>
    </message>
    <message id="See the picture larger, and what is playing">
        <source>See the picture larger, and what is playing</source>
        <translation>Vedere l’immagine più grande e ciò che viene riprodotto</translation>
    </message>
    <message id="Choose among the movies">
        <source>Choose among the movies</source>
        <translation>Scegliere tra i film</translation>
    </message>
    <message id="Move to another screen">
        <source>Move to another screen</source>
        <translation>Passare a un altro schermo</translation>
    </message>
    <message id="Open, set up and quit">
        <source>Open, set up and quit</source>
        <translation>Aprire, configurare e uscire</translation>
    </message>
    <message id="Find help">
        <source>Find help</source>
        <translation>Trovare aiuto</translation>
    </message>
    <message id="Help">
        <source>Help</source>
        <translation>Aiuto</translation>
    </message>
    <message id="Open URL...">
        <source>Open URL...</source>
        <translation>Apri URL…</translation>
    </message>
    <message id="Open URLs...">
        <source>Open URLs...</source>
        <translation>Apri più URL…</translation>
    </message>
    <message id="Save Playlist...">
        <source>Save Playlist...</source>
        <translation>Salva la scaletta…</translation>
    </message>
    <message id="Save Playlist">
        <source>Save Playlist</source>
        <translation>Salva la scaletta</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Salva</translation>
    </message>
    <message id="Playlist File">
        <source>Playlist</source>
        <translation>Scaletta</translation>
    </message>
    <message id="Save the playlist to a file">
        <source>Save the playlist to a file</source>
        <translation>Salva la scaletta in un file</translation>
    </message>
    <message id="SaveErrorMessage">
        <source>“%@” can’t be saved.</source>
        <translation>Impossibile salvare «%@».</translation>
    </message>
    <message id="SaveErrorPermission">
        <source>You don’t have the permission to write there.</source>
        <translation>Non si dispone del permesso di scrivere in questa posizione.</translation>
    </message>
    <message id="SaveErrorReadOnly">
        <source>The disk can’t be written to.</source>
        <translation>Impossibile scrivere sul disco.</translation>
    </message>
    <message id="SaveErrorFull">
        <source>The disk is full.</source>
        <translation>Il disco è pieno.</translation>
    </message>
    <message id="SaveErrorFolder">
        <source>The folder doesn’t exist.</source>
        <translation>La cartella non esiste.</translation>
    </message>
    <message id="SaveErrorIsFolder">
        <source>This is a folder.</source>
        <translation>È una cartella.</translation>
    </message>
    <message id="Preferences...">
        <source>Preferences...</source>
        <translation>Preferenze…</translation>
    </message>
    <message id="About Lumaro">
        <source>About Lumaro</source>
        <translation>Informazioni su Lumaro</translation>
    </message>
    <message id="Check for New Version...">
        <source>Check for New Version...</source>
        <translation>Cerca una nuova versione…</translation>
    </message>
    <message id="Half Size">
        <source>Half Size</source>
        <translation>Metà dimensione</translation>
    </message>
    <message id="Normal Size">
        <source>Normal Size</source>
        <translation>Dimensione normale</translation>
    </message>
    <message id="Double Size">
        <source>Double Size</source>
        <translation>Dimensione doppia</translation>
    </message>
    <message id="Full Size">
        <source>Full Size</source>
        <translation>Dimensione massima</translation>
    </message>
    <message id="Fit Screen">
        <source>Fit Screen</source>
        <translation>Adatta allo schermo</translation>
    </message>
    <message id="Fit Width">
        <source>Fit Width</source>
        <translation>Adatta alla larghezza</translation>
    </message>
    <message id="Fit Height">
        <source>Fit Height</source>
        <translation>Adatta all’altezza</translation>
    </message>
    <message id="Bigger">
        <source>Bigger</source>
        <translation>Più grande</translation>
    </message>
    <message id="Smaller">
        <source>Smaller</source>
        <translation>Più piccolo</translation>
    </message>
    <message id="Show Controller">
        <source>Show Controller</source>
        <translation>Mostra la barra di controllo</translation>
    </message>
    <message id="Bar over the Picture">
        <source>Bar over the Picture</source>
        <translation>Barra sull’immagine</translation>
    </message>
    <message id="Bar over the picture: off, always, when the pointer moves">
        <source>Bar over the picture: off, always, when the pointer moves</source>
        <translation>Barra sull’immagine: mai, sempre, quando il puntatore si muove</translation>
    </message>
    <message id="Bar over the Picture: Off">
        <source>Bar over the Picture: Off</source>
        <translation>Barra sull’immagine: mai</translation>
    </message>
    <message id="Bar over the Picture: Always">
        <source>Bar over the Picture: Always</source>
        <translation>Barra sull’immagine: sempre</translation>
    </message>
    <message id="Bar over the Picture: When the Pointer Moves">
        <source>Bar over the Picture: When the Pointer Moves</source>
        <translation>Barra sull’immagine: quando il puntatore si muove</translation>
    </message>
    <message id="Tracks...">
        <source>Tracks...</source>
        <translation>Tracce…</translation>
    </message>
    <message id="Sound and subtitles in one menu">
        <source>Sound and subtitles in one menu</source>
        <translation>Audio e sottotitoli in un solo menu</translation>
    </message>
    <message id="Audio">
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message id="Hide Controller">
        <source>Hide Controller</source>
        <translation>Nascondi la barra di controllo</translation>
    </message>
    <message id="Next Display">
        <source>Next Display</source>
        <translation>Indicazione successiva</translation>
    </message>
    <message id="Previous Display">
        <source>Previous Display</source>
        <translation>Indicazione precedente</translation>
    </message>
    <message id="Play">
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message id="Pause">
        <source>Pause</source>
        <translation>Pausa</translation>
    </message>
    <message id="Fast Forward">
        <source>Fast Forward</source>
        <translation>Avanti veloce</translation>
    </message>
    <message id="Rewind">
        <source>Rewind</source>
        <translation>Indietro veloce</translation>
    </message>
    <message id="Jump Forward">
        <source>Jump Forward</source>
        <translation>Salta avanti</translation>
    </message>
    <message id="Jump Backward">
        <source>Jump Backward</source>
        <translation>Salta indietro</translation>
    </message>
    <message id="Beginning">
        <source>Beginning</source>
        <translation>Inizio</translation>
    </message>
    <message id="End">
        <source>End</source>
        <translation>Fine</translation>
    </message>
    <message id="Next Movie">
        <source>Next Movie</source>
        <translation>Film successivo</translation>
    </message>
    <message id="Previous Movie">
        <source>Previous Movie</source>
        <translation>Film precedente</translation>
    </message>
    <message id="Looping Off">
        <source>Looping Off</source>
        <translation>Non ripetere</translation>
    </message>
    <message id="Loop Off">
        <source>Loop Off</source>
        <translation>Non ripetere</translation>
    </message>
    <message id="Loop One">
        <source>Loop One</source>
        <translation>Ripeti uno</translation>
    </message>
    <message id="Loop All">
        <source>Loop All</source>
        <translation>Ripeti tutti</translation>
    </message>
    <message id="Repair">
        <source>Repair</source>
        <translation>Ripara</translation>
    </message>
    <message id="Volume Up">
        <source>Volume Up</source>
        <translation>Alza il volume</translation>
    </message>
    <message id="Volume Down">
        <source>Volume Down</source>
        <translation>Abbassa il volume</translation>
    </message>
    <message id="Normal Volume">
        <source>Normal Volume</source>
        <translation>Volume normale</translation>
    </message>
    <message id="Silent">
        <source>Silent</source>
        <translation>Silenzio</translation>
    </message>
    <message id="Mute">
        <source>Mute</source>
        <translation>Muto</translation>
    </message>
    <message id="Next Screen">
        <source>Next Screen</source>
        <translation>Schermo successivo</translation>
    </message>
    <message id="Previous Screen">
        <source>Previous Screen</source>
        <translation>Schermo precedente</translation>
    </message>
    <message id="More...">
        <source>More…</source>
        <translation>Altro…</translation>
    </message>
    <message id="The whole list: search, move and remove movies">
        <source>The whole list: search, move and remove movies</source>
        <translation>La scaletta intera: cercare, spostare e rimuovere film</translation>
    </message>
    <message id="Playlist Panel">
        <source>Playlist</source>
        <translation>Scaletta</translation>
    </message>
    <message id="Filter">
        <source>Filter</source>
        <translation>Filtra</translation>
    </message>
    <message id="Play Movie">
        <source>Play</source>
        <translation>Riproduci</translation>
    </message>
    <message id="Move Up">
        <source>Move Up</source>
        <translation>Sposta su</translation>
    </message>
    <message id="Move Down">
        <source>Move Down</source>
        <translation>Sposta giù</translation>
    </message>
    <message id="Remove from List">
        <source>Remove</source>
        <translation>Rimuovi</translation>
    </message>
    <message id="PlaylistCountMessage">
        <source>%@ of %@ movies</source>
        <translation>%@ film su %@</translation>
    </message>
    <message id="Lumaro Help">
        <source>Lumaro Help</source>
        <translation>Aiuto di Lumaro</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="Open movies">
        <source>Open movies</source>
        <translation>Aprire film</translation>
    </message>
    <message id="Half, normal and double size">
        <source>Half, normal and double size</source>
        <translation>Dimensione dimezzata, normale e doppia</translation>
    </message>
    <message id="Fit to the screen, to its width, to its height">
        <source>Fit to the screen, to its width, to its height</source>
        <translation>Adattare allo schermo, alla sua larghezza, alla sua altezza</translation>
    </message>
    <message id="Bigger and smaller">
        <source>Bigger and smaller</source>
        <translation>Più grande e più piccolo</translation>
    </message>
    <message id="Controller bar">
        <source>Controller bar</source>
        <translation>Barra di controllo</translation>
    </message>
    <message id="On-screen display: time, movie, subtitles, looping, volume">
        <source>On-screen display: time, movie, subtitles, looping, volume</source>
        <translation>Indicazione sullo schermo: tempo, film, sottotitoli, ripetizione, volume</translation>
    </message>
    <message id="Play, pause, back to normal speed">
        <source>Play, pause, back to normal speed</source>
        <translation>Riproduzione, pausa, ritorno alla velocità normale</translation>
    </message>
    <message id="Forward and back: one frame while paused, faster and faster while playing">
        <source>Forward and back: one frame while paused, faster and faster while playing</source>
        <translation>Avanti e indietro: un fotogramma in pausa, sempre più veloce durante la riproduzione</translation>
    </message>
    <message id="Jump forward and back">
        <source>Jump forward and back</source>
        <translation>Saltare avanti e indietro</translation>
    </message>
    <message id="Beginning and end of the movie">
        <source>Beginning and end of the movie</source>
        <translation>Inizio e fine del film</translation>
    </message>
    <message id="Next and previous movie">
        <source>Next and previous movie</source>
        <translation>Film successivo e precedente</translation>
    </message>
    <message id="Double Click">
        <source>Double Click</source>
        <translation>Doppio clic</translation>
    </message>
    <message id="Middle Button">
        <source>Middle Button</source>
        <translation>Pulsante centrale</translation>
    </message>
    <message id="Back Button">
        <source>Back Button</source>
        <translation>Pulsante Indietro</translation>
    </message>
    <message id="Forward Button">
        <source>Forward Button</source>
        <translation>Pulsante Avanti</translation>
    </message>
    <message id="Wheel Up">
        <source>Wheel Up</source>
        <translation>Rotella su</translation>
    </message>
    <message id="Wheel Down">
        <source>Wheel Down</source>
        <translation>Rotella giù</translation>
    </message>
    <message id="Looping: off, one, all">
        <source>Looping: off, one, all</source>
        <translation>Ripetizione: no, uno, tutti</translation>
    </message>
    <message id="Louder and softer">
        <source>Louder and softer</source>
        <translation>Più forte e più piano</translation>
    </message>
    <message id="Next and previous subtitles">
        <source>Next and previous subtitles</source>
        <translation>Sottotitoli successivi e precedenti</translation>
    </message>
    <message id="Sound Earlier">
        <source>Sound Earlier</source>
        <translation>Anticipa l’audio</translation>
    </message>
    <message id="Sound Later">
        <source>Sound Later</source>
        <translation>Ritarda l’audio</translation>
    </message>
    <message id="Sound as in the File">
        <source>Sound as in the File</source>
        <translation>Audio come nel file</translation>
    </message>
    <message id="Sound earlier and later">
        <source>Sound earlier and later</source>
        <translation>Anticipare e ritardare l’audio</translation>
    </message>
    <message id="Sound at the times of the file">
        <source>Sound at the times of the file</source>
        <translation>Audio sincronizzato come nel file</translation>
    </message>
    <message id="Sound delay: %@">
        <source>Sound delay: %@</source>
        <translation>Ritardo dell’audio: %@</translation>
    </message>
    <message id="Add Subtitles...">
        <source>Add Subtitles...</source>
        <translation>Aggiungi sottotitoli…</translation>
    </message>
    <message id="Add Subtitles">
        <source>Add Subtitles</source>
        <translation>Aggiungi sottotitoli</translation>
    </message>
    <message id="Add a file of subtitles to the movie">
        <source>Add a file of subtitles to the movie</source>
        <translation>Aggiungere un file di sottotitoli al film</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Aggiungi</translation>
    </message>
    <message id="NoSubtitlesInFile">
        <source>“%@” holds no subtitles that can be read</source>
        <translation>«%@» non contiene sottotitoli leggibili</translation>
    </message>
    <message id="Add to the Movie as Subtitles">
        <source>Add to the Movie as Subtitles</source>
        <translation>Aggiungi al film come sottotitoli</translation>
    </message>
    <message id="Show Earlier">
        <source>Show Earlier</source>
        <translation>Anticipa</translation>
    </message>
    <message id="Show Later">
        <source>Show Later</source>
        <translation>Ritarda</translation>
    </message>
    <message id="As in the File">
        <source>As in the File</source>
        <translation>Come nel file</translation>
    </message>
    <message id="Show Subtitles Earlier">
        <source>Show Subtitles Earlier</source>
        <translation>Anticipa i sottotitoli</translation>
    </message>
    <message id="Show Subtitles Later">
        <source>Show Subtitles Later</source>
        <translation>Ritarda i sottotitoli</translation>
    </message>
    <message id="Subtitles at the Times of Their File">
        <source>Subtitles at the Times of Their File</source>
        <translation>Sottotitoli sincronizzati come nel loro file</translation>
    </message>
    <message id="Subtitles earlier and later">
        <source>Subtitles earlier and later</source>
        <translation>Anticipare e ritardare i sottotitoli</translation>
    </message>
    <message id="Subtitles at the times of their file">
        <source>Subtitles at the times of their file</source>
        <translation>Sottotitoli sincronizzati come nel loro file</translation>
    </message>
    <message id="First Line Is Spoken Now">
        <source>First Line Is Spoken Now</source>
        <translation>La prima battuta viene detta ora</translation>
    </message>
    <message id="Last Line Is Spoken Now">
        <source>Last Line Is Spoken Now</source>
        <translation>L’ultima battuta viene detta ora</translation>
    </message>
    <message id="In step by two lines: press one while the first line is spoken, the other while the last one is">
        <source>In step by two lines: press one while the first line is spoken, the other while the last one is</source>
        <translation>Sincronizzare con due battute: premere l’uno mentre viene detta la prima, l’altro mentre viene detta l’ultima</translation>
    </message>
    <message id="Larger Text">
        <source>Larger Text</source>
        <translation>Testo più grande</translation>
    </message>
    <message id="Smaller Text">
        <source>Smaller Text</source>
        <translation>Testo più piccolo</translation>
    </message>
    <message id="Larger Subtitles">
        <source>Larger Subtitles</source>
        <translation>Sottotitoli più grandi</translation>
    </message>
    <message id="Smaller Subtitles">
        <source>Smaller Subtitles</source>
        <translation>Sottotitoli più piccoli</translation>
    </message>
    <message id="Subtitles larger and smaller">
        <source>Subtitles larger and smaller</source>
        <translation>Sottotitoli più grandi e più piccoli</translation>
    </message>
    <message id="Higher">
        <source>Higher</source>
        <translation>Più in alto</translation>
    </message>
    <message id="Lower">
        <source>Lower</source>
        <translation>Più in basso</translation>
    </message>
    <message id="Higher Subtitles">
        <source>Higher Subtitles</source>
        <translation>Sottotitoli più in alto</translation>
    </message>
    <message id="Lower Subtitles">
        <source>Lower Subtitles</source>
        <translation>Sottotitoli più in basso</translation>
    </message>
    <message id="Subtitles higher and lower">
        <source>Subtitles higher and lower</source>
        <translation>Sottotitoli più in alto e più in basso</translation>
    </message>
    <message id="Subtitle delay: %@">
        <source>Subtitle delay: %@</source>
        <translation>Ritardo dei sottotitoli: %@</translation>
    </message>
    <message id="Subtitle size: %d">
        <source>Subtitle size: %d</source>
        <translation>Dimensione dei sottotitoli: %d</translation>
    </message>
    <message id="Subtitle height: %d">
        <source>Subtitle height: %d %</source>
        <translation>Altezza dei sottotitoli: %d%</translation>
    </message>
    <message id="SubtitleLinesTooFar">
        <source>The lines cannot be brought in step: they would be more than twice as fast or as slow</source>
        <translation>Le battute non possono essere sincronizzate: sarebbero oltre due volte più veloci o più lente</translation>
    </message>
    <message id="Repair damaged subtitles">
        <source>Repair damaged subtitles</source>
        <translation>Ripara i sottotitoli danneggiati</translation>
    </message>
    <message id="Next and previous screen">
        <source>Next and previous screen</source>
        <translation>Schermo successivo e precedente</translation>
    </message>
</context>
<context>
    <name>Text encodings</name>
    <message id="Western (ASCII)">
        <source>Western (ASCII)</source>
        <translation>Occidentale (ASCII)</translation>
    </message>
    <message id="Western (ISO Latin 1)">
        <source>Western (ISO Latin 1)</source>
        <translation>Occidentale (ISO Latin 1)</translation>
    </message>
    <message id="Western (ISO Latin 9)">
        <source>Western (ISO Latin 9)</source>
        <translation>Occidentale (ISO Latin 9)</translation>
    </message>
    <message id="Western (Windows Latin 1)">
        <source>Western (Windows Latin 1)</source>
        <translation>Occidentale (Windows Latin 1)</translation>
    </message>
    <message id="Western (Mac OS Roman)">
        <source>Western (Mac OS Roman)</source>
        <translation>Occidentale (Mac OS Roman)</translation>
    </message>
    <message id="Western (DOS Latin 1)">
        <source>Western (DOS Latin 1)</source>
        <translation>Occidentale (DOS Latin 1)</translation>
    </message>
    <message id="Latin-US (DOS)">
        <source>Latin-US (DOS)</source>
        <translation>Latino-USA (DOS)</translation>
    </message>
    <message id="Central European (ISO Latin 2)">
        <source>Central European (ISO Latin 2)</source>
        <translation>Europa centrale (ISO Latin 2)</translation>
    </message>
    <message id="Central European (Windows Latin 2)">
        <source>Central European (Windows Latin 2)</source>
        <translation>Europa centrale (Windows Latin 2)</translation>
    </message>
    <message id="Central European (Mac OS)">
        <source>Central European (Mac OS)</source>
        <translation>Europa centrale (Mac OS)</translation>
    </message>
    <message id="Central European (DOS Latin 2)">
        <source>Central European (DOS Latin 2)</source>
        <translation>Europa centrale (DOS Latin 2)</translation>
    </message>
    <message id="Western (ISO Latin 3)">
        <source>Western (ISO Latin 3)</source>
        <translation>Occidentale (ISO Latin 3)</translation>
    </message>
    <message id="Central European (ISO Latin 4)">
        <source>Central European (ISO Latin 4)</source>
        <translation>Europa centrale (ISO Latin 4)</translation>
    </message>
    <message id="Nordic (ISO Latin 6)">
        <source>Nordic (ISO Latin 6)</source>
        <translation>Nordico (ISO Latin 6)</translation>
    </message>
    <message id="Icelandic (DOS)">
        <source>Icelandic (DOS)</source>
        <translation>Islandese (DOS)</translation>
    </message>
    <message id="Nordic (DOS)">
        <source>Nordic (DOS)</source>
        <translation>Nordico (DOS)</translation>
    </message>
    <message id="Baltic (ISO Latin 7)">
        <source>Baltic (ISO Latin 7)</source>
        <translation>Baltico (ISO Latin 7)</translation>
    </message>
    <message id="Baltic (Windows)">
        <source>Baltic (Windows)</source>
        <translation>Baltico (Windows)</translation>
    </message>
    <message id="Baltic (DOS)">
        <source>Baltic (DOS)</source>
        <translation>Baltico (DOS)</translation>
    </message>
    <message id="Celtic (ISO Latin 8)">
        <source>Celtic (ISO Latin 8)</source>
        <translation>Celtico (ISO Latin 8)</translation>
    </message>
    <message id="Cyrillic (ISO 8859-5)">
        <source>Cyrillic (ISO 8859-5)</source>
        <translation>Cirillico (ISO 8859-5)</translation>
    </message>
    <message id="Cyrillic (Windows)">
        <source>Cyrillic (Windows)</source>
        <translation>Cirillico (Windows)</translation>
    </message>
    <message id="Cyrillic (KOI8-R)">
        <source>Cyrillic (KOI8-R)</source>
        <translation>Cirillico (KOI8-R)</translation>
    </message>
    <message id="Ukrainian (KOI8-U)">
        <source>Ukrainian (KOI8-U)</source>
        <translation>Ucraino (KOI8-U)</translation>
    </message>
    <message id="Cyrillic (Mac OS)">
        <source>Cyrillic (Mac OS)</source>
        <translation>Cirillico (Mac OS)</translation>
    </message>
    <message id="Cyrillic (DOS)">
        <source>Cyrillic (DOS)</source>
        <translation>Cirillico (DOS)</translation>
    </message>
    <message id="Russian (DOS)">
        <source>Russian (DOS)</source>
        <translation>Russo (DOS)</translation>
    </message>
    <message id="Greek (ISO 8859-7)">
        <source>Greek (ISO 8859-7)</source>
        <translation>Greco (ISO 8859-7)</translation>
    </message>
    <message id="Greek (Windows)">
        <source>Greek (Windows)</source>
        <translation>Greco (Windows)</translation>
    </message>
    <message id="Greek (Mac OS)">
        <source>Greek (Mac OS)</source>
        <translation>Greco (Mac OS)</translation>
    </message>
    <message id="Greek (DOS)">
        <source>Greek (DOS)</source>
        <translation>Greco (DOS)</translation>
    </message>
    <message id="Greek (DOS Greek 2)">
        <source>Greek (DOS Greek 2)</source>
        <translation>Greco (DOS Greek 2)</translation>
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
        <translation>Ebraico (ISO 8859-8)</translation>
    </message>
    <message id="Hebrew (Windows)">
        <source>Hebrew (Windows)</source>
        <translation>Ebraico (Windows)</translation>
    </message>
    <message id="Hebrew (DOS)">
        <source>Hebrew (DOS)</source>
        <translation>Ebraico (DOS)</translation>
    </message>
    <message id="Arabic (ISO 8859-6)">
        <source>Arabic (ISO 8859-6)</source>
        <translation>Arabo (ISO 8859-6)</translation>
    </message>
    <message id="Arabic (Windows)">
        <source>Arabic (Windows)</source>
        <translation>Arabo (Windows)</translation>
    </message>
    <message id="Arabic (DOS)">
        <source>Arabic (DOS)</source>
        <translation>Arabo (DOS)</translation>
    </message>
    <message id="Portuguese (DOS)">
        <source>Portuguese (DOS)</source>
        <translation>Portoghese (DOS)</translation>
    </message>
    <message id="Canadian French (DOS)">
        <source>Canadian French (DOS)</source>
        <translation>Francese canadese (DOS)</translation>
    </message>
    <message id="Thai (ISO 8859-11)">
        <source>Thai (ISO 8859-11)</source>
        <translation>Thailandese (ISO 8859-11)</translation>
    </message>
    <message id="Thai (Windows, DOS)">
        <source>Thai (Windows, DOS)</source>
        <translation>Thailandese (Windows, DOS)</translation>
    </message>
    <message id="Vietnamese (Windows)">
        <source>Vietnamese (Windows)</source>
        <translation>Vietnamita (Windows)</translation>
    </message>
    <message id="Japanese (Shift JIS)">
        <source>Japanese (Shift JIS)</source>
        <translation>Giapponese (Shift JIS)</translation>
    </message>
    <message id="Japanese (Windows, DOS)">
        <source>Japanese (Windows, DOS)</source>
        <translation>Giapponese (Windows, DOS)</translation>
    </message>
    <message id="Japanese (EUC)">
        <source>Japanese (EUC)</source>
        <translation>Giapponese (EUC)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP)">
        <source>Japanese (ISO 2022-JP)</source>
        <translation>Giapponese (ISO 2022-JP)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-2)">
        <source>Japanese (ISO 2022-JP-2)</source>
        <translation>Giapponese (ISO 2022-JP-2)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-1)">
        <source>Japanese (ISO 2022-JP-1)</source>
        <translation>Giapponese (ISO 2022-JP-1)</translation>
    </message>
    <message id="Chinese (GB 18030)">
        <source>Chinese (GB 18030)</source>
        <translation>Cinese (GB 18030)</translation>
    </message>
    <message id="Simplified Chinese (GBK)">
        <source>Simplified Chinese (GBK)</source>
        <translation>Cinese semplificato (GBK)</translation>
    </message>
    <message id="Simplified Chinese (Windows, DOS)">
        <source>Simplified Chinese (Windows, DOS)</source>
        <translation>Cinese semplificato (Windows, DOS)</translation>
    </message>
    <message id="Simplified Chinese (GB 2312)">
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Cinese semplificato (GB 2312)</translation>
    </message>
    <message id="Simplified Chinese (HZ GB 2312)">
        <source>Simplified Chinese (HZ GB 2312)</source>
        <translation>Cinese semplificato (HZ GB 2312)</translation>
    </message>
    <message id="Chinese (ISO 2022-CN)">
        <source>Chinese (ISO 2022-CN)</source>
        <translation>Cinese (ISO 2022-CN)</translation>
    </message>
    <message id="Traditional Chinese (Big 5)">
        <source>Traditional Chinese (Big 5)</source>
        <translation>Cinese tradizionale (Big 5)</translation>
    </message>
    <message id="Traditional Chinese (Big 5 HKSCS)">
        <source>Traditional Chinese (Big 5 HKSCS)</source>
        <translation>Cinese tradizionale (Big 5 HKSCS)</translation>
    </message>
    <message id="Traditional Chinese (Windows, DOS)">
        <source>Traditional Chinese (Windows, DOS)</source>
        <translation>Cinese tradizionale (Windows, DOS)</translation>
    </message>
    <message id="Traditional Chinese (EUC)">
        <source>Traditional Chinese (EUC)</source>
        <translation>Cinese tradizionale (EUC)</translation>
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
        <translation>Testo</translation>
    </message>
    <message id="StyleTextColor">
        <source>&amp;Color:</source>
        <translation>Co&amp;lore:</translation>
    </message>
    <message id="StyleTextColorTip">
        <source>The color of the letters, and of the line around the panel</source>
        <translation>Il colore delle lettere e della linea intorno al riquadro</translation>
    </message>
    <message id="StyleTextFontName">
        <source>&amp;Font:</source>
        <translation>&amp;Carattere:</translation>
    </message>
    <message id="StyleTextFontNameTip">
        <source>The family of the letters</source>
        <translation>La famiglia delle lettere</translation>
    </message>
    <message id="StyleTextFontSize">
        <source>Si&amp;ze:</source>
        <translation>Di&amp;mensione:</translation>
    </message>
    <message id="StyleTextFontSizeTip">
        <source>In points of a screen 1080 points high; on a higher one, letters grow with it</source>
        <translation>In punti di uno schermo alto 1080 punti; su uno schermo più alto le lettere crescono in proporzione</translation>
    </message>
    <message id="StyleShadow">
        <source>Shadow</source>
        <translation>Ombra</translation>
    </message>
    <message id="StyleShadowOn">
        <source>Draw a &amp;shadow</source>
        <translation>Disegna un’om&amp;bra</translation>
    </message>
    <message id="StyleShadowOnTip">
        <source>A shadow keeps letters legible on any picture</source>
        <translation>Un’ombra mantiene le lettere leggibili su qualsiasi immagine</translation>
    </message>
    <message id="StyleShadowColor">
        <source>Co&amp;lor:</source>
        <translation>Colo&amp;re:</translation>
    </message>
    <message id="StyleShadowColorTip">
        <source>The color of the shadow, and how much shows through it</source>
        <translation>Il colore dell’ombra e quanto vi si vede attraverso</translation>
    </message>
    <message id="StyleShadowBlur">
        <source>&amp;Blur:</source>
        <translation>S&amp;focatura:</translation>
    </message>
    <message id="StyleShadowBlurTip">
        <source>How far the shadow’s edge is spread, in points</source>
        <translation>Quanto è sfumato il bordo dell’ombra, in punti</translation>
    </message>
    <message id="StyleShadowOffsetX">
        <source>To the &amp;right:</source>
        <translation>Verso des&amp;tra:</translation>
    </message>
    <message id="StyleShadowOffsetXTip">
        <source>How far the shadow falls to the right, in points; below 0, to the left</source>
        <translation>Quanto l’ombra cade verso destra, in punti; sotto 0, verso sinistra</translation>
    </message>
    <message id="StyleShadowOffsetY">
        <source>&amp;Upwards:</source>
        <translation>&amp;Verso l’alto:</translation>
    </message>
    <message id="StyleShadowOffsetYTip">
        <source>How far the shadow falls upwards, in points; below 0, downwards</source>
        <translation>Quanto l’ombra cade verso l’alto, in punti; sotto 0, verso il basso</translation>
    </message>
    <message id="StylePosition">
        <source>Position</source>
        <translation>Posizione</translation>
    </message>
    <message id="StyleAlignmentVertical">
        <source>&amp;Vertical:</source>
        <translation>Vert&amp;icale:</translation>
    </message>
    <message id="StyleAlignmentVerticalTip">
        <source>At what height it stands</source>
        <translation>A quale altezza si trova</translation>
    </message>
    <message id="StyleAlignmentHorizontal">
        <source>&amp;Horizontal:</source>
        <translation>Ori&amp;zzontale:</translation>
    </message>
    <message id="StyleAlignmentHorizontalTip">
        <source>At which side of the screen it stands</source>
        <translation>Su quale lato dello schermo si trova</translation>
    </message>
    <message id="StyleLeft">
        <source>Left</source>
        <translation>Sinistra</translation>
    </message>
    <message id="StyleCenter">
        <source>Center</source>
        <translation>Centro</translation>
    </message>
    <message id="StyleRight">
        <source>Right</source>
        <translation>Destra</translation>
    </message>
    <message id="StyleTop">
        <source>Top</source>
        <translation>In alto</translation>
    </message>
    <message id="StyleMiddle">
        <source>Middle</source>
        <translation>Al centro</translation>
    </message>
    <message id="StyleBottom">
        <source>Bottom</source>
        <translation>In basso</translation>
    </message>
    <message id="StyleAbovePictureEdge">
        <source>Inside the picture</source>
        <translation>Dentro l’immagine</translation>
    </message>
    <message id="StyleOnPictureEdge">
        <source>On the picture’s edge</source>
        <translation>Sul bordo dell’immagine</translation>
    </message>
    <message id="StyleBelowPicture">
        <source>Below the picture</source>
        <translation>Sotto l’immagine</translation>
    </message>
    <message id="StylePanel">
        <source>Panel</source>
        <translation>Riquadro</translation>
    </message>
    <message id="StyleBackground">
        <source>Background</source>
        <translation>Sfondo</translation>
    </message>
    <message id="StyleBackgroundTip">
        <source>The color around the picture</source>
        <translation>Il colore intorno all’immagine</translation>
    </message>
    <message id="StyleBackgroundOn">
        <source>Draw a &amp;panel</source>
        <translation>Disegna un ri&amp;quadro</translation>
    </message>
    <message id="StyleBackgroundOnTip">
        <source>A panel behind the text</source>
        <translation>Un riquadro dietro il testo</translation>
    </message>
    <message id="StyleBackgroundColor">
        <source>Col&amp;or:</source>
        <translation>Color&amp;e:</translation>
    </message>
    <message id="StyleBackgroundColorTip">
        <source>The color of the panel, and how much shows through it</source>
        <translation>Il colore del riquadro e quanto vi si vede attraverso</translation>
    </message>
    <message id="StyleBackgroundRounded">
        <source>Rou&amp;nd corners</source>
        <translation>&amp;Angoli arrotondati</translation>
    </message>
    <message id="StyleBackgroundRoundedTip">
        <source>Corners of the panel are rounded</source>
        <translation>Gli angoli del riquadro sono arrotondati</translation>
    </message>
    <message id="StyleBackgroundRadius">
        <source>R&amp;adius:</source>
        <translation>Ra&amp;ggio:</translation>
    </message>
    <message id="StyleBackgroundRadiusTip">
        <source>How far the corners are rounded, in points</source>
        <translation>Quanto sono arrotondati gli angoli, in punti</translation>
    </message>
    <message id="StyleFrameOn">
        <source>Draw a fra&amp;me</source>
        <translation>&amp;Disegna una cornice</translation>
    </message>
    <message id="StyleFrameOnTip">
        <source>A line around the panel, in the text’s color</source>
        <translation>Una linea intorno al riquadro, del colore del testo</translation>
    </message>
    <message id="StyleFrameWidth">
        <source>&amp;Width:</source>
        <translation>Larg&amp;hezza:</translation>
    </message>
    <message id="StyleFrameWidthTip">
        <source>How wide the line is, in points</source>
        <translation>Quanto è larga la linea, in punti</translation>
    </message>
    <message id="StyleFading">
        <source>Fading and opacity</source>
        <translation>Dissolvenza e opacità</translation>
    </message>
    <message id="StyleFadingIn">
        <source>Fade &amp;in:</source>
        <translation>Com&amp;parsa:</translation>
    </message>
    <message id="StyleFadingInTip">
        <source>How long a whole fade takes when it appears; 0 shows it at once</source>
        <translation>Quanto dura una dissolvenza completa alla comparsa; 0 mostra subito</translation>
    </message>
    <message id="StyleFadingOut">
        <source>Fad&amp;e out:</source>
        <translation>&amp;Scomparsa:</translation>
    </message>
    <message id="StyleFadingOutTip">
        <source>How long a whole fade takes when it goes; 0 hides it at once</source>
        <translation>Quanto dura una dissolvenza completa alla scomparsa; 0 nasconde subito</translation>
    </message>
    <message id="StyleFadingDelay">
        <source>S&amp;tay:</source>
        <translation>D&amp;urata:</translation>
    </message>
    <message id="StyleFadingDelayTip">
        <source>How long it stays between fading in and fading out</source>
        <translation>Per quanto tempo resta tra la comparsa e la scomparsa</translation>
    </message>
    <message id="StyleMinAlpha">
        <source>Opacity when hi&amp;dden:</source>
        <translation>Opacità &amp;nascosto:</translation>
    </message>
    <message id="StyleMinAlphaTip">
        <source>How much of it remains while it is hidden: 0 % is nothing</source>
        <translation>Quanto ne rimane mentre è nascosto: 0% è nulla</translation>
    </message>
    <message id="StyleMaxAlpha">
        <source>Opacit&amp;y when shown:</source>
        <translation>&amp;Opacità visibile:</translation>
    </message>
    <message id="StyleMaxAlphaTip">
        <source>How opaque it is while it is shown: below 100 % the picture shows through</source>
        <translation>Quanto è opaco mentre è visibile: sotto il 100% l’immagine traspare</translation>
    </message>
    <message id="StyleReset">
        <source>Reset to Defaults</source>
        <translation>Ripristina i valori predefiniti</translation>
    </message>
    <message id="StyleResetTip">
        <source>Takes this style back to what it was at first</source>
        <translation>Riporta questo stile com’era all’inizio</translation>
    </message>
    <message id="StyleResetUndo">
        <source>Undo Reset</source>
        <translation>Annulla il ripristino</translation>
    </message>
    <message id="StyleResetUndoTip">
        <source>Brings back what the style was before</source>
        <translation>Riporta lo stile com’era prima</translation>
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
        <translation>Esempio</translation>
    </message>
    <message id="StyleSampleTip">
        <source>What it looks like over the movie, or over a light and a dark picture</source>
        <translation>Che aspetto ha sul film, o su un’immagine chiara e una scura</translation>
    </message>
    <message id="StyleSampleSubtitle">
        <source>What an evening!</source>
        <translation>Che serata!</translation>
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
        <translation>Preferenze</translation>
    </message>
    <message id="&amp;Movie">
        <source>&amp;Movie</source>
        <translation>&amp;Film</translation>
    </message>
    <message id="Started Without a File">
        <source>Started Without a File</source>
        <translation>Avvio senza un file</translation>
    </message>
    <message id="Open &amp;nothing">
        <source>Open &amp;nothing</source>
        <translation>Non a&amp;prire nulla</translation>
    </message>
    <message id="Lumaro starts with an empty screen">
        <source>Lumaro starts with an empty screen</source>
        <translation>Lumaro inizia con lo schermo vuoto</translation>
    </message>
    <message id="Open the &amp;last playlist">
        <source>Open the &amp;last playlist</source>
        <translation>Apri l’&amp;ultima scaletta</translation>
    </message>
    <message id="The movies of the last time come back, at the place where they were left">
        <source>The movies of the last time come back, at the place where they were left</source>
        <translation>I film dell’ultima volta ritornano, nel punto in cui erano stati lasciati</translation>
    </message>
    <message id="Ask for &amp;files">
        <source>Ask for &amp;files</source>
        <translation>Chiedi &amp;quali file aprire</translation>
    </message>
    <message id="Lumaro begins with the panel that opens movies">
        <source>Lumaro begins with the panel that opens movies</source>
        <translation>Lumaro inizia con la finestra che apre i film</translation>
    </message>
    <message id="Picture">
        <source>Picture</source>
        <translation>Immagine</translation>
    </message>
    <message id="Si&amp;ze:">
        <source>Si&amp;ze:</source>
        <translation>&amp;Dimensione:</translation>
    </message>
    <message id="How large movies are shown, from now on and at the next start">
        <source>How large movies are shown, from now on and at the next start</source>
        <translation>A quale dimensione sono mostrati i film, da ora e al prossimo avvio</translation>
    </message>
    <message id="Custom Magnification">
        <source>Custom Magnification</source>
        <translation>Ingrandimento personalizzato</translation>
    </message>
    <message id="&amp;Window:">
        <source>&amp;Window:</source>
        <translation>Fi&amp;nestra:</translation>
    </message>
    <message id="Whether the movie stays above the windows of other programs while Lumaro has the keyboard">
        <source>Whether the movie stays above the windows of other programs while Lumaro has the keyboard</source>
        <translation>Se il film resta sopra le finestre degli altri programmi mentre Lumaro è attivo</translation>
    </message>
    <message id="Bar over the p&amp;icture:">
        <source>Bar over the p&amp;icture:</source>
        <translation>Barra sull’imma&amp;gine:</translation>
    </message>
    <message id="Where none stands below it: a larger bar that comes with the pointer, or stays">
        <source>Where none stands below it: a larger bar that comes with the pointer, or stays</source>
        <translation>Dove non ce n’è una sotto: una barra più grande che compare con il puntatore o rimane</translation>
    </message>
    <message id="Always">
        <source>Always</source>
        <translation>Sempre</translation>
    </message>
    <message id="When the pointer moves">
        <source>When the pointer moves</source>
        <translation>Quando il puntatore si muove</translation>
    </message>
    <message id="Among other windows">
        <source>Among other windows</source>
        <translation>Tra le altre finestre</translation>
    </message>
    <message id="Above other windows">
        <source>Above other windows</source>
        <translation>Sopra le altre finestre</translation>
    </message>
    <message id="Show the controller &amp;bar">
        <source>Show the controller &amp;bar</source>
        <translation>Mostra la &amp;barra di controllo</translation>
    </message>
    <message id="The bar with play, time and volume below the picture">
        <source>The bar with play, time and volume below the picture</source>
        <translation>La barra con riproduzione, tempo e volume sotto l’immagine</translation>
    </message>
    <message id="Set the screen’s bri&amp;ghtness:">
        <source>Set the screen’s bri&amp;ghtness:</source>
        <translation>Imposta la luminosità dello sc&amp;hermo:</translation>
    </message>
    <message id="As long as Lumaro runs; then the screen is as bright as before">
        <source>As long as Lumaro runs; then the screen is as bright as before</source>
        <translation>Finché Lumaro è aperto; poi lo schermo torna luminoso come prima</translation>
    </message>
    <message id="How bright the screen is while Lumaro runs">
        <source>How bright the screen is while Lumaro runs</source>
        <translation>Quanto è luminoso lo schermo mentre Lumaro è aperto</translation>
    </message>
    <message id="Brightness of the screen">
        <source>Brightness of the screen</source>
        <translation>Luminosità dello schermo</translation>
    </message>
    <message id="Pictur&amp;e">
        <source>Pictur&amp;e</source>
        <translation>I&amp;mmagine</translation>
    </message>
    <message id="Co&amp;ntrast:">
        <source>Co&amp;ntrast:</source>
        <translation>Co&amp;ntrasto:</translation>
    </message>
    <message id="&amp;Brightness:">
        <source>&amp;Brightness:</source>
        <translation>&amp;Luminosità:</translation>
    </message>
    <message id="&amp;Gamma:">
        <source>&amp;Gamma:</source>
        <translation>&amp;Gamma:</translation>
    </message>
    <message id="Sa&amp;turation:">
        <source>Sa&amp;turation:</source>
        <translation>S&amp;aturazione:</translation>
    </message>
    <message id="&amp;Hue:">
        <source>&amp;Hue:</source>
        <translation>T&amp;inta:</translation>
    </message>
    <message id="Every movie is shown with it, the one on the screen at once">
        <source>Every movie is shown with it, the one on the screen at once</source>
        <translation>Tutti i film vengono mostrati così, quello sullo schermo da subito</translation>
    </message>
    <message id="The brightness of this screen can’t be set">
        <source>The brightness of this screen can’t be set</source>
        <translation>La luminosità di questo schermo non può essere impostata</translation>
    </message>
    <message id="Playing">
        <source>Playing</source>
        <translation>Riproduzione</translation>
    </message>
    <message id="&amp;Jump by:">
        <source>&amp;Jump by:</source>
        <translation>S&amp;alto di:</translation>
    </message>
    <message id="How many seconds a jump goes forward or back">
        <source>How many seconds a jump goes forward or back</source>
        <translation>Di quanti secondi un salto va avanti o indietro</translation>
    </message>
    <message id="seconds">
        <source>seconds</source>
        <translation>secondi</translation>
    </message>
    <message id="&amp;Keep the volume for the next start">
        <source>&amp;Keep the volume for the next start</source>
        <translation>Mantieni il &amp;volume per il prossimo avvio</translation>
    </message>
    <message id="Lumaro begins as loud as it ended">
        <source>Lumaro begins as loud as it ended</source>
        <translation>Lumaro inizia con il volume che aveva alla chiusura</translation>
    </message>
    <message id="While Another Program Has the Keyboard">
        <source>While Another Program Has the Keyboard</source>
        <translation>Mentre è attivo un altro programma</translation>
    </message>
    <message id="Pa&amp;use the movie">
        <source>Pa&amp;use the movie</source>
        <translation>Metti &amp;in pausa il film</translation>
    </message>
    <message id="It goes on when you come back">
        <source>It goes on when you come back</source>
        <translation>Riprende quando si ritorna</translation>
    </message>
    <message id="&amp;Hide the window">
        <source>&amp;Hide the window</source>
        <translation>Nascondi &amp;la finestra</translation>
    </message>
    <message id="The window is minimized, and comes back with Lumaro">
        <source>The window is minimized, and comes back with Lumaro</source>
        <translation>La finestra viene ridotta a icona e ritorna con Lumaro</translation>
    </message>
    <message id="Go on where a mo&amp;vie was left">
        <source>Go on where a mo&amp;vie was left</source>
        <translation>Riprendi i film da dove &amp;erano stati lasciati</translation>
    </message>
    <message id="The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them">
        <source>The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them</source>
        <translation>Le posizioni e i sottotitoli degli ultimi mille film sono ricordati, e il menu «Apri recenti» li elenca</translation>
    </message>
    <message id="&amp;Playlist">
        <source>&amp;Playlist</source>
        <translation>S&amp;caletta</translation>
    </message>
    <message id="Order">
        <source>Order</source>
        <translation>Ordine</translation>
    </message>
    <message id="As adde&amp;d">
        <source>As adde&amp;d</source>
        <translation>Come a&amp;ggiunti</translation>
    </message>
    <message id="Movies play in the order in which they were given">
        <source>Movies play in the order in which they were given</source>
        <translation>I film sono riprodotti nell’ordine in cui sono stati dati</translation>
    </message>
    <message id="Shu&amp;ffled">
        <source>Shu&amp;ffled</source>
        <translation>Cas&amp;uale</translation>
    </message>
    <message id="Movies play in an order left to chance">
        <source>Movies play in an order left to chance</source>
        <translation>I film sono riprodotti in un ordine lasciato al caso</translation>
    </message>
    <message id="Sor&amp;ted">
        <source>Sor&amp;ted</source>
        <translation>Or&amp;dinata</translation>
    </message>
    <message id="Movies play by their names">
        <source>Movies play by their names</source>
        <translation>I film sono riprodotti secondo il nome</translation>
    </message>
    <message id="Compare &amp;numbers by value">
        <source>Compare &amp;numbers by value</source>
        <translation>Confronta i numeri secondo il &amp;valore</translation>
    </message>
    <message id="Part 2 comes before part 10">
        <source>Part 2 comes before part 10</source>
        <translation>La parte 2 viene prima della parte 10</translation>
    </message>
    <message id="By the &amp;whole path">
        <source>By the &amp;whole path</source>
        <translation>Secondo &amp;il percorso completo</translation>
    </message>
    <message id="Folders stay together">
        <source>Folders stay together</source>
        <translation>Le cartelle restano unite</translation>
    </message>
    <message id="By the f&amp;ile name only">
        <source>By the f&amp;ile name only</source>
        <translation>So&amp;lo secondo il nome del file</translation>
    </message>
    <message id="Whatever folders the movies lie in">
        <source>Whatever folders the movies lie in</source>
        <translation>In qualunque cartella si trovino i film</translation>
    </message>
    <message id="&amp;Looping:">
        <source>&amp;Looping:</source>
        <translation>Ri&amp;petizione:</translation>
    </message>
    <message id="What is repeated, from now on and in new playlists">
        <source>What is repeated, from now on and in new playlists</source>
        <translation>Che cosa viene ripetuto, da ora e nelle nuove scalette</translation>
    </message>
    <message id="&amp;Begin to play what is opened">
        <source>&amp;Begin to play what is opened</source>
        <translation>Riproduci ciò che viene &amp;aperto</translation>
    </message>
    <message id="Else movies are shown and wait">
        <source>Else movies are shown and wait</source>
        <translation>Altrimenti i film sono mostrati e attendono</translation>
    </message>
    <message id="&amp;Go on with the next movie">
        <source>&amp;Go on with the next movie</source>
        <translation>Co&amp;ntinua con il film successivo</translation>
    </message>
    <message id="When one ends, the next in the list plays">
        <source>When one ends, the next in the list plays</source>
        <translation>Quando uno finisce, viene riprodotto il successivo della scaletta</translation>
    </message>
    <message id="&amp;Quit at the end of the list">
        <source>&amp;Quit at the end of the list</source>
        <translation>&amp;Esci alla fine della scaletta</translation>
    </message>
    <message id="Unless it is repeated">
        <source>Unless it is repeated</source>
        <translation>A meno che non venga ripetuta</translation>
    </message>
    <message id="&amp;Subtitles">
        <source>&amp;Subtitles</source>
        <translation>So&amp;ttotitoli</translation>
    </message>
    <message id="Showing">
        <source>Showing</source>
        <translation>Visualizzazione</translation>
    </message>
    <message id="S&amp;how subtitles">
        <source>S&amp;how subtitles</source>
        <translation>Mostra &amp;i sottotitoli</translation>
    </message>
    <message id="Also for movies opened later">
        <source>Also for movies opened later</source>
        <translation>Anche per i film aperti in seguito</translation>
    </message>
    <message id="Draw mark&amp;up">
        <source>Draw mark&amp;up</source>
        <translation>Applica &amp;la formattazione</translation>
    </message>
    <message id="Italics, colors and places in subtitle files act; else they are left out">
        <source>Italics, colors and places in subtitle files act; else they are left out</source>
        <translation>Corsivi, colori e posizioni dei file di sottotitoli hanno effetto; altrimenti sono tralasciati</translation>
    </message>
    <message id="&amp;Find subtitle files beside movies">
        <source>&amp;Find subtitle files beside movies</source>
        <translation>Trova i file &amp;di sottotitoli accanto ai film</translation>
    </message>
    <message id="When a movie is opened">
        <source>When a movie is opened</source>
        <translation>All’apertura di un film</translation>
    </message>
    <message id="Files">
        <source>Files</source>
        <translation>File</translation>
    </message>
    <message id="E&amp;ncoding:">
        <source>E&amp;ncoding:</source>
        <translation>Codific&amp;a:</translation>
    </message>
    <message id="How the letters of subtitle files are stored; Automatic tells it by the file">
        <source>How the letters of subtitle files are stored; Automatic tells it by the file</source>
        <translation>Come sono memorizzate le lettere dei file di sottotitoli; «Automatico» lo riconosce dal file</translation>
    </message>
    <message id="Encoding of subtitle files">
        <source>Encoding of subtitle files</source>
        <translation>Codifica dei file di sottotitoli</translation>
    </message>
    <message id="Frame ra&amp;te:">
        <source>Frame ra&amp;te:</source>
        <translation>Foto&amp;grammi/s:</translation>
    </message>
    <message id="For subtitle files that count pictures instead of seconds">
        <source>For subtitle files that count pictures instead of seconds</source>
        <translation>Per i file di sottotitoli che contano fotogrammi invece di secondi</translation>
    </message>
    <message id="As the movie">
        <source>As the movie</source>
        <translation>Come il film</translation>
    </message>
    <message id="Repair &amp;damaged subtitle files">
        <source>Repair &amp;damaged subtitle files</source>
        <translation>Ripara i fil&amp;e di sottotitoli danneggiati</translation>
    </message>
    <message id="What is damaged is read as far as it can be">
        <source>What is damaged is read as far as it can be</source>
        <translation>Ciò che è danneggiato viene letto per quanto possibile</translation>
    </message>
    <message id="Preferred Languages">
        <source>Preferred Languages</source>
        <translation>Lingue preferite</translation>
    </message>
    <message id="Preferred languages">
        <source>Preferred languages</source>
        <translation>Lingue preferite</translation>
    </message>
    <message id="Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.">
        <source>Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.</source>
        <translation>I film iniziano con i sottotitoli nella prima disponibile tra queste lingue. All’inizio sono le lingue del sistema.</translation>
    </message>
    <message id="Add a language">
        <source>Add a language</source>
        <translation>Aggiungi una lingua</translation>
    </message>
    <message id="Adds a language to the list">
        <source>Adds a language to the list</source>
        <translation>Aggiunge una lingua all’elenco</translation>
    </message>
    <message id="Hi&amp;gher">
        <source>Hi&amp;gher</source>
        <translation>Sposta s&amp;u</translation>
    </message>
    <message id="Moves the language up the list">
        <source>Moves the language up the list</source>
        <translation>Sposta la lingua in alto nell’elenco</translation>
    </message>
    <message id="Lo&amp;wer">
        <source>Lo&amp;wer</source>
        <translation>S&amp;posta giù</translation>
    </message>
    <message id="Moves the language down the list">
        <source>Moves the language down the list</source>
        <translation>Sposta la lingua in basso nell’elenco</translation>
    </message>
    <message id="Remo&amp;ve">
        <source>Remo&amp;ve</source>
        <translation>Rimuo&amp;vi</translation>
    </message>
    <message id="Takes the language off the list">
        <source>Takes the language off the list</source>
        <translation>Toglie la lingua dall’elenco</translation>
    </message>
    <message id="&amp;Overlays">
        <source>&amp;Overlays</source>
        <translation>S&amp;ovrimpressioni</translation>
    </message>
    <message id="Smallest &amp;text size:">
        <source>Smallest &amp;text size:</source>
        <translation>&amp;Dimensione minima del testo:</translation>
    </message>
    <message id="No text over the movie is smaller">
        <source>No text over the movie is smaller</source>
        <translation>Nessun testo sul film è più piccolo</translation>
    </message>
    <message id="&amp;Distance from the edges:">
        <source>&amp;Distance from the edges:</source>
        <translation>Distanza dai &amp;bordi:</translation>
    </message>
    <message id="How far what is shown over the movie keeps from the edges of the window">
        <source>How far what is shown over the movie keeps from the edges of the window</source>
        <translation>Quanto ciò che è mostrato sul film resta lontano dai bordi della finestra</translation>
    </message>
    <message id="Show &amp;feedback">
        <source>Show &amp;feedback</source>
        <translation>Mostra &amp;i messaggi</translation>
    </message>
    <message id="Commands say what they did">
        <source>Commands say what they did</source>
        <translation>I comandi dicono che cosa hanno fatto</translation>
    </message>
    <message id="&amp;Keep the display for the next start">
        <source>&amp;Keep the display for the next start</source>
        <translation>Mantieni &amp;l’indicazione per il prossimo avvio</translation>
    </message>
    <message id="The on-screen display chosen last is shown again">
        <source>The on-screen display chosen last is shown again</source>
        <translation>L’ultima indicazione scelta sullo schermo viene mostrata di nuovo</translation>
    </message>
    <message id="How texts over the movie and the window look">
        <source>How texts over the movie and the window look</source>
        <translation>Che aspetto hanno i testi sul film e la finestra</translation>
    </message>
    <message id="Overlay styles">
        <source>Overlay styles</source>
        <translation>Stili delle sovrimpressioni</translation>
    </message>
    <message id="How subtitles look">
        <source>How subtitles look</source>
        <translation>Che aspetto hanno i sottotitoli</translation>
    </message>
    <message id="Subtitle styles">
        <source>Subtitle styles</source>
        <translation>Stili dei sottotitoli</translation>
    </message>
    <message id="&amp;Advanced">
        <source>&amp;Advanced</source>
        <translation>Avan&amp;zate</translation>
    </message>
    <message id="Pointer">
        <source>Pointer</source>
        <translation>Puntatore</translation>
    </message>
    <message id="&amp;Hide after:">
        <source>&amp;Hide after:</source>
        <translation>Nascondi &amp;dopo:</translation>
    </message>
    <message id="How long the pointer rests before it is hidden">
        <source>How long the pointer rests before it is hidden</source>
        <translation>Per quanto tempo il puntatore resta fermo prima di essere nascosto</translation>
    </message>
    <message id="New Versions">
        <source>New Versions</source>
        <translation>Nuove versioni</translation>
    </message>
    <message id="The packages of your system keep Lumaro up to date.">
        <source>The packages of your system keep Lumaro up to date.</source>
        <translation>I pacchetti del sistema mantengono Lumaro aggiornato.</translation>
    </message>
    <message id="Look for new &amp;versions">
        <source>Look for new &amp;versions</source>
        <translation>Cerca &amp;nuove versioni</translation>
    </message>
    <message id="When Lumaro starts, as often as is set below">
        <source>When Lumaro starts, as often as is set below</source>
        <translation>All’avvio di Lumaro, con la frequenza impostata sotto</translation>
    </message>
    <message id="Also for &amp;beta versions">
        <source>Also for &amp;beta versions</source>
        <translation>Anche &amp;versioni beta</translation>
    </message>
    <message id="Versions that are still being tried">
        <source>Versions that are still being tried</source>
        <translation>Versioni ancora in prova</translation>
    </message>
    <message id="Ho&amp;w often:">
        <source>Ho&amp;w often:</source>
        <translation>Fr&amp;equenza:</translation>
    </message>
    <message id="How much time passes between two checks">
        <source>How much time passes between two checks</source>
        <translation>Quanto tempo passa tra due controlli</translation>
    </message>
    <message id="At every start">
        <source>At every start</source>
        <translation>A ogni avvio</translation>
    </message>
    <message id="Daily">
        <source>Daily</source>
        <translation>Ogni giorno</translation>
    </message>
    <message id="Weekly">
        <source>Weekly</source>
        <translation>Ogni settimana</translation>
    </message>
    <message id="Every 30 days">
        <source>Every 30 days</source>
        <translation>Ogni 30 giorni</translation>
    </message>
    <message id="Last check:">
        <source>Last check:</source>
        <translation>Ultimo controllo:</translation>
    </message>
    <message id="Result:">
        <source>Result:</source>
        <translation>Risultato:</translation>
    </message>
    <message id="Check &amp;Now">
        <source>Check &amp;Now</source>
        <translation>Contro&amp;lla ora</translation>
    </message>
    <message id="Looks for a new version at once">
        <source>Looks for a new version at once</source>
        <translation>Cerca subito una nuova versione</translation>
    </message>
    <message id="Diagnosis">
        <source>Diagnosis</source>
        <translation>Diagnosi</translation>
    </message>
    <message id="Remote">
        <source>Remote</source>
        <translation>Telecomando</translation>
    </message>
    <message id="Act on in&amp;frared remotes">
        <source>Act on in&amp;frared remotes</source>
        <translation>Rispondi ai telecomandi a &amp;infrarossi</translation>
    </message>
    <message id="Their buttons are the player's alone while it runs">
        <source>Their buttons are the player's alone while it runs</source>
        <translation>I loro tasti sono solo del lettore finché è aperto</translation>
    </message>
    <message id="&amp;Log what happens">
        <source>&amp;Log what happens</source>
        <translation>Registra ciò che &amp;accade</translation>
    </message>
    <message id="Lines for whoever looks for an error, in the system log or the terminal">
        <source>Lines for whoever looks for an error, in the system log or the terminal</source>
        <translation>Righe per chi cerca un errore, nel registro di sistema o nel terminale</translation>
    </message>
    <message id="&amp;Reset Page">
        <source>&amp;Reset Page</source>
        <translation>&amp;Ripristina pagina</translation>
    </message>
    <message id="Takes the settings of this page back to what they were at first. Styles have a button of their own.">
        <source>Takes the settings of this page back to what they were at first. Styles have a button of their own.</source>
        <translation>Riporta le impostazioni di questa pagina com’erano all’inizio. Gli stili hanno un pulsante proprio.</translation>
    </message>
    <message id="Undo Reset">
        <source>Undo Reset</source>
        <translation>Annulla il ripristino</translation>
    </message>
    <message id="Brings the settings of this page back (Ctrl+Z)">
        <source>Brings the settings of this page back (Ctrl+Z)</source>
        <translation>Recupera le impostazioni di questa pagina (Ctrl+Z)</translation>
    </message>
    <message id="Find a setting">
        <source>Find a setting</source>
        <translation>Trova un’impostazione</translation>
    </message>
    <message id="Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.">
        <source>Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.</source>
        <translation>Trova un’impostazione dalle sue parole (Ctrl+F). Su e Giù passano alle altre, Invio all’impostazione stessa.</translation>
    </message>
    <message id="PreferencesFound">
        <source>%d of %d</source>
        <translation>%d di %d</translation>
    </message>
    <message id="Nothing found">
        <source>Nothing found</source>
        <translation>Nessun risultato</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Chiudi</translation>
    </message>
    <message id="More Encodings">
        <source>More Encodings</source>
        <translation>Altre codifiche</translation>
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
        <translation>Ricerca: %@</translation>
    </message>
    <message id="Type to search">
        <source>Type to search</source>
        <translation>Digitare per cercare</translation>
    </message>
    <message id="Change the preferences">
        <source>Change the preferences</source>
        <translation>Cambiare le preferenze</translation>
    </message>
    <message id="Feedback style">
        <source>Feedback</source>
        <translation>Messaggi</translation>
    </message>
    <message id="Text style">
        <source>Texts</source>
        <translation>Testi</translation>
    </message>
    <message id="Picture style">
        <source>Bitmaps</source>
        <translation>Immagini</translation>
    </message>
    <message id="On-screen display style">
        <source>On-Screen Display</source>
        <translation>Indicazione sullo schermo</translation>
    </message>
    <message id="Window style">
        <source>Window</source>
        <translation>Finestra</translation>
    </message>
    <message id="SettingsNotSavedMessage">
        <source>The preferences can’t be saved.</source>
        <translation>Impossibile salvare le preferenze.</translation>
    </message>
    <message id="SettingsNotSavedDetails">
        <source>What you change acts until Lumaro quits. The file “%@” can’t be written.</source>
        <translation>Le modifiche valgono fino alla chiusura di Lumaro. Impossibile scrivere il file «%@».</translation>
    </message>
    <message id="SettingsDamagedMessage">
        <source>The preferences are damaged.</source>
        <translation>Le preferenze sono danneggiate.</translation>
    </message>
    <message id="SettingsDamagedDetails">
        <source>Lumaro begins with new ones. The damaged file is kept as “%@”.</source>
        <translation>Lumaro inizia con preferenze nuove. Il file danneggiato è conservato come «%@».</translation>
    </message>
    <message id="SettingsUnreadableMessage">
        <source>The preferences can’t be read.</source>
        <translation>Impossibile leggere le preferenze.</translation>
    </message>
    <message id="SettingsUnreadableDetails">
        <source>The file “%@” stays as it is. What you change acts until Lumaro quits.</source>
        <translation>Il file «%@» resta com’è. Le modifiche valgono fino alla chiusura di Lumaro.</translation>
    </message>
    <message id="PlacesDamagedMessage">
        <source>The remembered places in movies are damaged; their file was put aside.</source>
        <translation>Le posizioni ricordate nei film sono danneggiate; il loro file è stato messo da parte.</translation>
    </message>
    <message id="PlacesUnreadableMessage">
        <source>The remembered places in movies can’t be read.</source>
        <translation>Impossibile leggere le posizioni ricordate nei film.</translation>
    </message>
    <message id="PlacesOfLaterVersionMessage">
        <source>A later version of Lumaro remembers places in movies here; this one can’t.</source>
        <translation>Una versione più recente di Lumaro ricorda qui le posizioni nei film; questa non può farlo.</translation>
    </message>
    <message id="Short&amp;cuts">
        <source>Short&amp;cuts</source>
        <translation>&amp;Scorciatoie</translation>
    </message>
    <message id="Searc&amp;h:">
        <source>Searc&amp;h:</source>
        <translation>C&amp;erca:</translation>
    </message>
    <message id="Words of a command, or its key">
        <source>Words of a command, or its key</source>
        <translation>Parole di un comando, o il suo tasto</translation>
    </message>
    <message id="The commands by menu; bold ones have keys of your own">
        <source>The commands by menu; bold ones have keys of your own</source>
        <translation>I comandi per menu; quelli in grassetto hanno tasti personalizzati</translation>
    </message>
    <message id="Commands and their keys">
        <source>Commands and their keys</source>
        <translation>Comandi e loro tasti</translation>
    </message>
    <message id="Command">
        <source>Command</source>
        <translation>Comando</translation>
    </message>
    <message id="Keys">
        <source>Keys</source>
        <translation>Tasti</translation>
    </message>
    <message id="&amp;Keys of the command:">
        <source>&amp;Keys of the command:</source>
        <translation>Tasti &amp;del comando:</translation>
    </message>
    <message id="The keys of the command that is marked">
        <source>The keys of the command that is marked</source>
        <translation>I tasti del comando selezionato</translation>
    </message>
    <message id="A&amp;dd Key...">
        <source>A&amp;dd Key...</source>
        <translation>Aggi&amp;ungi tasto…</translation>
    </message>
    <message id="Then press the key, with Ctrl, Alt, Shift or Super if you like">
        <source>Then press the key, with Ctrl, Alt, Shift or Super if you like</source>
        <translation>Poi premere il tasto, se si vuole con Ctrl, Alt, Maiusc o Super</translation>
    </message>
    <message id="Remo&amp;ve Key">
        <source>Remo&amp;ve Key</source>
        <translation>Rimuo&amp;vi tasto</translation>
    </message>
    <message id="The marked key means nothing any more">
        <source>The marked key means nothing any more</source>
        <translation>Il tasto selezionato non ha più alcun significato</translation>
    </message>
    <message id="Rese&amp;t Command">
        <source>Rese&amp;t</source>
        <translation>Ri&amp;pristina</translation>
    </message>
    <message id="The command gets back the keys that Lumaro came with">
        <source>The command gets back the keys that Lumaro came with</source>
        <translation>Il comando riottiene i tasti predefiniti di Lumaro</translation>
    </message>
    <message id="Reset A&amp;ll Keys">
        <source>Reset A&amp;ll</source>
        <translation>R&amp;ipristina tutti</translation>
    </message>
    <message id="Every command gets back the keys that Lumaro came with">
        <source>Every command gets back the keys that Lumaro came with</source>
        <translation>Tutti i comandi riottengono i tasti predefiniti di Lumaro</translation>
    </message>
    <message id="&amp;Undo Key Change">
        <source>&amp;Undo</source>
        <translation>A&amp;nnulla modifica</translation>
    </message>
    <message id="Takes back the last change of a key">
        <source>Takes back the last change of a key</source>
        <translation>Annulla l’ultima modifica di un tasto</translation>
    </message>
    <message id="Take &amp;It Over">
        <source>Take &amp;It Over</source>
        <translation>Riasse&amp;gna</translation>
    </message>
    <message id="The key means the marked command from now on">
        <source>The key means the marked command from now on</source>
        <translation>Il tasto vale d’ora in poi per il comando selezionato</translation>
    </message>
    <message id="Ca&amp;ncel Key">
        <source>Ca&amp;ncel</source>
        <translation>&amp;Annulla</translation>
    </message>
    <message id="The key keeps its meaning">
        <source>The key keeps its meaning</source>
        <translation>Il tasto mantiene il suo significato</translation>
    </message>
    <message id="Press a key for “%@”. Esc goes back.">
        <source>Press a key for “%@”. Esc goes back.</source>
        <translation>Premere un tasto per «%@». Esc annulla.</translation>
    </message>
    <message id="Lumaro does not know this key.">
        <source>Lumaro does not know this key.</source>
        <translation>Lumaro non conosce questo tasto.</translation>
    </message>
    <message id="Esc closes windows and ends Lumaro; that can’t be changed.">
        <source>Esc closes windows and ends Lumaro; that can’t be changed.</source>
        <translation>Esc chiude le finestre e termina Lumaro; non si può cambiare.</translation>
    </message>
    <message id="%@ belongs to the desktop.">
        <source>%@ belongs to the desktop.</source>
        <translation>%@ appartiene al desktop.</translation>
    </message>
    <message id="%@ means “%@” already.">
        <source>%@ means “%@” already.</source>
        <translation>%@ significa già «%@».</translation>
    </message>
    <message id="“%@” has as many keys as it can have; remove one first.">
        <source>“%@” has as many keys as it can have; remove one first.</source>
        <translation>«%@» ha il numero massimo di tasti; rimuoverne prima uno.</translation>
    </message>
    <message id="%@ means “%@” now.">
        <source>%@ means “%@” now.</source>
        <translation>%@ ora significa «%@».</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message id="Next Looping">
        <source>Next Looping</source>
        <translation>Ripetizione successiva</translation>
    </message>
    <message id="Previous Looping">
        <source>Previous Looping</source>
        <translation>Ripetizione precedente</translation>
    </message>
    <message id="Show Playlist">
        <source>Show Playlist</source>
        <translation>Mostra la scaletta</translation>
    </message>
    <message id="Next Subtitles">
        <source>Next Subtitles</source>
        <translation>Sottotitoli successivi</translation>
    </message>
    <message id="Previous Subtitles">
        <source>Previous Subtitles</source>
        <translation>Sottotitoli precedenti</translation>
    </message>
    <message id="No Subtitles">
        <source>No Subtitles</source>
        <translation>Nessun sottotitolo</translation>
    </message>
    <message id="Open a movie from the menu">
        <source>Open a movie from the menu</source>
        <translation>Aprire un film dal menu</translation>
    </message>
    <message id="or drop files here.">
        <source>or drop files here.</source>
        <translation>o trascinare qui dei file.</translation>
    </message>
    <message id="Keys of the command">
        <source>Keys of the command</source>
        <translation>Tasti del comando</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message id="Open pages of video sites with &amp;yt-dlp">
        <source>Open pages of video sites with &amp;yt-dlp</source>
        <translation>Apri le pagine dei siti video con &amp;yt-dlp</translation>
    </message>
    <message id="An address that is no movie is asked of the program yt-dlp, where it is installed">
        <source>An address that is no movie is asked of the program yt-dlp, where it is installed</source>
        <translation>Un indirizzo che non è un film viene chiesto al programma yt-dlp, se è installato</translation>
    </message>
    <message id="Open Movies">
        <source>Open Movies</source>
        <translation>Apri film</translation>
    </message>
    <message id="Open Folder">
        <source>Open Folder</source>
        <translation>Apri cartella</translation>
    </message>
    <message id="Open Folder...">
        <source>Open Folder...</source>
        <translation>Apri cartella…</translation>
    </message>
    <message id="Movies and Sound">
        <source>Movies and Sound</source>
        <translation>Film e musica</translation>
    </message>
    <message id="All Files">
        <source>All Files</source>
        <translation>Tutti i file</translation>
    </message>
    <message id="Add to Playlist">
        <source>Add to Playlist</source>
        <translation>Aggiungi alla scaletta</translation>
    </message>
    <message id="Open folders of movies">
        <source>Open folders of movies</source>
        <translation>Aprire cartelle di film</translation>
    </message>
    <message id="Open an address, several addresses">
        <source>Open an address, several addresses</source>
        <translation>Aprire un indirizzo, più indirizzi</translation>
    </message>
    <message id="Open URL">
        <source>Open URL</source>
        <translation>Apri URL</translation>
    </message>
    <message id="Open URLs">
        <source>Open URLs</source>
        <translation>Apri più URL</translation>
    </message>
    <message id="&amp;Address or path of a movie:">
        <source>&amp;Address or path of a movie:</source>
        <translation>&amp;Indirizzo o percorso di un film:</translation>
    </message>
    <message id="&amp;Addresses or paths of movies, one in each line:">
        <source>&amp;Addresses or paths of movies, one in each line:</source>
        <translation>&amp;Indirizzi o percorsi di film, uno per riga:</translation>
    </message>
    <message id="Address">
        <source>Address</source>
        <translation>Indirizzo</translation>
    </message>
    <message id="Addresses">
        <source>Addresses</source>
        <translation>Indirizzi</translation>
    </message>
    <message id="Add to &amp;Playlist">
        <source>Add to &amp;Playlist</source>
        <translation>&amp;Aggiungi alla scaletta</translation>
    </message>
    <message id="What plays now goes on; holding Alt does the same">
        <source>What plays now goes on; holding Alt does the same</source>
        <translation>Ciò che è in riproduzione continua; tenere premuto Alt fa lo stesso</translation>
    </message>
    <message id="Replace the Playlist">
        <source>Replace the Playlist</source>
        <translation>Sostituisci la scaletta</translation>
    </message>
    <message id="Add to the Playlist">
        <source>Add to the Playlist</source>
        <translation>Aggiungi alla scaletta</translation>
    </message>
    <message id="OpenErrorSubtitles">
        <source>It holds subtitles. They are shown by themselves when they lie beside their movie and begin with its name.</source>
        <translation>Contiene sottotitoli. Sono mostrati da soli quando si trovano accanto al loro film e iniziano con il suo nome.</translation>
    </message>
    <message id="OpenErrorNotAnAddress">
        <source>It is neither an address nor the path of a file.</source>
        <translation>Non è né un indirizzo né il percorso di un file.</translation>
    </message>
    <message id="Resumed at %@">
        <source>Resumed at %@</source>
        <translation>Ripreso da %@</translation>
    </message>
</context>
<context>
    <name>Watching</name>
    <message id="Speed">
        <source>Speed</source>
        <translation>Velocità</translation>
    </message>
    <message id="Speed: %@">
        <source>Speed: %@</source>
        <translation>Velocità: %@</translation>
    </message>
    <message id="%@x">
        <source>%@x</source>
        <translation>%@×</translation>
    </message>
    <message id="Slower">
        <source>Slower</source>
        <translation>Più lento</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Più veloce</translation>
    </message>
    <message id="Half as Fast">
        <source>Half as Fast</source>
        <translation>Velocità dimezzata</translation>
    </message>
    <message id="Twice as Fast">
        <source>Twice as Fast</source>
        <translation>Velocità doppia</translation>
    </message>
    <message id="Original Speed">
        <source>Original Speed</source>
        <translation>Velocità originale</translation>
    </message>
    <message id="Slower and faster, the pitch kept; half and twice as fast">
        <source>Slower and faster, the pitch kept; half and twice as fast</source>
        <translation>Più lento e più veloce, a tonalità invariata; velocità dimezzata e doppia</translation>
    </message>
    <message id="As fast as the movie was made">
        <source>As fast as the movie was made</source>
        <translation>Alla velocità originale del film</translation>
    </message>
    <message id="Chapters">
        <source>Chapters</source>
        <translation>Capitoli</translation>
    </message>
    <message id="No Chapters">
        <source>No Chapters</source>
        <translation>Nessun capitolo</translation>
    </message>
    <message id="Chapter %d of %d">
        <source>Chapter %d of %d</source>
        <translation>Capitolo %d di %d</translation>
    </message>
    <message id="Chapter %d of %d: %@">
        <source>Chapter %d of %d: %@</source>
        <translation>Capitolo %d di %d: %@</translation>
    </message>
    <message id="Next Chapter">
        <source>Next Chapter</source>
        <translation>Capitolo successivo</translation>
    </message>
    <message id="Previous Chapter">
        <source>Previous Chapter</source>
        <translation>Capitolo precedente</translation>
    </message>
    <message id="Next and previous chapter">
        <source>Next and previous chapter</source>
        <translation>Capitolo successivo e precedente</translation>
    </message>
    <message id="Save Still">
        <source>Save Still</source>
        <translation>Salva istantanea</translation>
    </message>
    <message id="Save the picture as a file">
        <source>Save the picture as a file</source>
        <translation>Salvare l’immagine come file</translation>
    </message>
    <message id="Still: %@">
        <source>Still: %@</source>
        <translation>Istantanea: %@</translation>
    </message>
    <message id="No Picture to Save">
        <source>No Picture to Save</source>
        <translation>Nessuna immagine da salvare</translation>
    </message>
    <message id="Can’t save the still in %@">
        <source>Can’t save the still in %@</source>
        <translation>Impossibile salvare l’istantanea in %@</translation>
    </message>
    <message id="Go to Time">
        <source>Go to Time</source>
        <translation>Vai al tempo</translation>
    </message>
    <message id="Go to Time...">
        <source>Go to Time...</source>
        <translation>Vai al tempo…</translation>
    </message>
    <message id="Go to a time">
        <source>Go to a time</source>
        <translation>Andare a un tempo del film</translation>
    </message>
    <message id="Time in the movie:">
        <source>Time in the movie:</source>
        <translation>Tempo nel film:</translation>
    </message>
    <message id="Time in the movie, up to %@:">
        <source>Time in the movie, up to %@:</source>
        <translation>Tempo nel film, fino a %@:</translation>
    </message>
    <message id="Seconds, minutes or hours: 90, 1:30 or 1:23:45.6">
        <source>Seconds, minutes or hours: 90, 1:30 or 1:23:45.6</source>
        <translation>Secondi, minuti o ore: 90, 1:30 o 1:23:45,6</translation>
    </message>
    <message id="Time: %@">
        <source>Time: %@</source>
        <translation>Tempo: %@</translation>
    </message>
    <message id="Repeat Section">
        <source>Repeat Section</source>
        <translation>Ripeti sezione</translation>
    </message>
    <message id="Repeat from Here">
        <source>Repeat from Here</source>
        <translation>Ripeti da qui</translation>
    </message>
    <message id="Repeat until Here">
        <source>Repeat until Here</source>
        <translation>Ripeti fin qui</translation>
    </message>
    <message id="Repeat a section: its beginning, its end, no more">
        <source>Repeat a section: its beginning, its end, no more</source>
        <translation>Ripetere una sezione: il suo inizio, la sua fine, non più</translation>
    </message>
    <message id="Repeat: Off">
        <source>Repeat: Off</source>
        <translation>Sezione ripetuta: nessuna</translation>
    </message>
    <message id="Repeat from %@">
        <source>Repeat from %@</source>
        <translation>Ripetizione da %@</translation>
    </message>
    <message id="Repeat: %@ – %@">
        <source>Repeat: %@ – %@</source>
        <translation>Sezione ripetuta: %@ – %@</translation>
    </message>
    <message id="Aspect">
        <source>Aspect</source>
        <translation>Proporzioni</translation>
    </message>
    <message id="Next Aspect">
        <source>Next Aspect</source>
        <translation>Proporzioni successive</translation>
    </message>
    <message id="Aspect: automatic, 4:3, 16:9, 2.35:1">
        <source>Aspect: automatic, 4:3, 16:9, 2.35:1</source>
        <translation>Proporzioni: automatiche, 4:3, 16:9, 2,35:1</translation>
    </message>
    <message id="Aspect: %@">
        <source>Aspect: %@</source>
        <translation>Proporzioni: %@</translation>
    </message>
    <message id="2.35:1">
        <source>2.35:1</source>
        <translation>2,35:1</translation>
    </message>
    <message id="Deinterlacing">
        <source>Deinterlacing</source>
        <translation>Deinterlacciamento</translation>
    </message>
    <message id="Next Deinterlacing">
        <source>Next Deinterlacing</source>
        <translation>Deinterlacciamento successivo</translation>
    </message>
    <message id="Deinterlacing: automatic, on, off">
        <source>Deinterlacing: automatic, on, off</source>
        <translation>Deinterlacciamento: automatico, sì, no</translation>
    </message>
    <message id="Deinterlacing: %@">
        <source>Deinterlacing: %@</source>
        <translation>Deinterlacciamento: %@</translation>
    </message>
    <message id="Picture Colors">
        <source>Picture Colors</source>
        <translation>Colori dell’immagine</translation>
    </message>
    <message id="Less Contrast">
        <source>Less Contrast</source>
        <translation>Meno contrasto</translation>
    </message>
    <message id="More Contrast">
        <source>More Contrast</source>
        <translation>Più contrasto</translation>
    </message>
    <message id="Darker">
        <source>Darker</source>
        <translation>Più scuro</translation>
    </message>
    <message id="Brighter">
        <source>Brighter</source>
        <translation>Più chiaro</translation>
    </message>
    <message id="Less Gamma">
        <source>Less Gamma</source>
        <translation>Meno gamma</translation>
    </message>
    <message id="More Gamma">
        <source>More Gamma</source>
        <translation>Più gamma</translation>
    </message>
    <message id="Less Saturation">
        <source>Less Saturation</source>
        <translation>Meno saturazione</translation>
    </message>
    <message id="More Saturation">
        <source>More Saturation</source>
        <translation>Più saturazione</translation>
    </message>
    <message id="Hue towards Red">
        <source>Hue towards Red</source>
        <translation>Tinta verso il rosso</translation>
    </message>
    <message id="Hue towards Green">
        <source>Hue towards Green</source>
        <translation>Tinta verso il verde</translation>
    </message>
    <message id="Contrast, brightness, gamma, saturation, hue: less and more">
        <source>Contrast, brightness, gamma, saturation, hue: less and more</source>
        <translation>Contrasto, luminosità, gamma, saturazione, tinta: meno e più</translation>
    </message>
    <message id="The colors as the movie has them">
        <source>The colors as the movie has them</source>
        <translation>I colori così come li ha il film</translation>
    </message>
    <message id="Original Colors">
        <source>Original Colors</source>
        <translation>Colori originali</translation>
    </message>
    <message id="Contrast: %@">
        <source>Contrast: %@</source>
        <translation>Contrasto: %@</translation>
    </message>
    <message id="Brightness: %@">
        <source>Brightness: %@</source>
        <translation>Luminosità: %@</translation>
    </message>
    <message id="Gamma: %@">
        <source>Gamma: %@</source>
        <translation>Gamma: %@</translation>
    </message>
    <message id="Saturation: %@">
        <source>Saturation: %@</source>
        <translation>Saturazione: %@</translation>
    </message>
    <message id="Hue: %@">
        <source>Hue: %@</source>
        <translation>Tinta: %@</translation>
    </message>
    <message id="Crop Black Bars">
        <source>Crop Black Bars</source>
        <translation>Ritaglia le bande nere</translation>
    </message>
    <message id="Cut black bars off">
        <source>Cut black bars off</source>
        <translation>Ritagliare le bande nere</translation>
    </message>
    <message id="Crop: On">
        <source>Crop: On</source>
        <translation>Ritaglio: sì</translation>
    </message>
    <message id="Crop: Off">
        <source>Crop: Off</source>
        <translation>Ritaglio: no</translation>
    </message>
    <message id="No Black Bars">
        <source>No Black Bars</source>
        <translation>Nessuna banda nera</translation>
    </message>
    <message id="Turn by 90°">
        <source>Turn by 90°</source>
        <translation>Ruota di 90°</translation>
    </message>
    <message id="Turn and mirror the picture">
        <source>Turn and mirror the picture</source>
        <translation>Ruotare e riflettere l’immagine</translation>
    </message>
    <message id="Turned by %d°">
        <source>Turned by %d°</source>
        <translation>Immagine ruotata di %d°</translation>
    </message>
    <message id="Mirror">
        <source>Mirror</source>
        <translation>Rifletti</translation>
    </message>
    <message id="Mirror: On">
        <source>Mirror: On</source>
        <translation>Riflesso: sì</translation>
    </message>
    <message id="Mirror: Off">
        <source>Mirror: Off</source>
        <translation>Riflesso: no</translation>
    </message>
</context>
<context>
    <name>Tracks</name>
    <message id="Audio Tracks">
        <source>Audio Tracks</source>
        <translation>Tracce audio</translation>
    </message>
    <message id="Audio: %@">
        <source>Audio: %@</source>
        <translation>Audio: %@</translation>
    </message>
    <message id="Next Audio Track">
        <source>Next Audio Track</source>
        <translation>Traccia audio successiva</translation>
    </message>
    <message id="Previous Audio Track">
        <source>Previous Audio Track</source>
        <translation>Traccia audio precedente</translation>
    </message>
    <message id="Next and previous audio track">
        <source>Next and previous audio track</source>
        <translation>Traccia audio successiva e precedente</translation>
    </message>
    <message id="Mono">
        <source>Mono</source>
        <translation>Mono</translation>
    </message>
    <message id="Stereo">
        <source>Stereo</source>
        <translation>Stereo</translation>
    </message>
    <message id="%d channels">
        <source>%d channels</source>
        <translation>%d canali</translation>
    </message>
    <message id="Track %d">
        <source>Track %d</source>
        <translation>Traccia %d</translation>
    </message>
    <message id="forced">
        <source>forced</source>
        <translation>forzati</translation>
    </message>
    <message id="Second Subtitles">
        <source>Second Subtitles</source>
        <translation>Secondi sottotitoli</translation>
    </message>
    <message id="Next Second Subtitles">
        <source>Next Second Subtitles</source>
        <translation>Secondi sottotitoli successivi</translation>
    </message>
    <message id="Second subtitles: %@">
        <source>Second subtitles: %@</source>
        <translation>Secondi sottotitoli: %@</translation>
    </message>
    <message id="Second subtitles at the top: next track, none">
        <source>Second subtitles at the top: next track, none</source>
        <translation>Secondi sottotitoli in alto: traccia successiva, nessuno</translation>
    </message>
    <message id="SecondSubtitlesRefused">
        <source>Only texts can be shown as second subtitles, and no track twice</source>
        <translation>Solo i testi possono essere mostrati come secondi sottotitoli, e nessuna traccia due volte</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>Qualità</translation>
    </message>
    <message id="Quality: %@">
        <source>Quality: %@</source>
        <translation>Qualità: %@</translation>
    </message>
    <message id="Next Quality">
        <source>Next Quality</source>
        <translation>Qualità successiva</translation>
    </message>
    <message id="Next quality of a stream">
        <source>Next quality of a stream</source>
        <translation>Qualità successiva di uno streaming</translation>
    </message>
    <message id="Only One Quality">
        <source>Only One Quality</source>
        <translation>Una sola qualità</translation>
    </message>
    <message id="Go to Live">
        <source>Go to Live</source>
        <translation>Vai alla diretta</translation>
    </message>
    <message id="Go to what is live now">
        <source>Go to what is live now</source>
        <translation>Vai a ciò che è in diretta</translation>
    </message>
    <message id="Not a Live Stream">
        <source>Not a Live Stream</source>
        <translation>Non è una diretta</translation>
    </message>
    <message id="Live">
        <source>Live</source>
        <translation>In diretta</translation>
    </message>
    <message id="Behind Live">
        <source>Behind Live</source>
        <translation>Ritardo sulla diretta</translation>
    </message>
    <message id="Reconnecting...">
        <source>Reconnecting...</source>
        <translation>Riconnessione…</translation>
    </message>
    <message id="Connection Lost">
        <source>Connection Lost</source>
        <translation>Connessione persa</translation>
    </message>
</context>
<context>
    <name>Information</name>
    <message id="Information">
        <source>Information</source>
        <translation>Informazioni</translation>
    </message>
    <message id="Show or hide the information about the movie">
        <source>Show or hide the information about the movie</source>
        <translation>Mostrare o nascondere le informazioni sul film</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>Copia</translation>
    </message>
    <message id="No movie">
        <source>No movie</source>
        <translation>Nessun film</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Nome</translation>
    </message>
    <message id="Container">
        <source>Container</source>
        <translation>Contenitore</translation>
    </message>
    <message id="Duration">
        <source>Duration</source>
        <translation>Durata</translation>
    </message>
    <message id="File size">
        <source>File size</source>
        <translation>Dimensione del file</translation>
    </message>
    <message id="Bit rate">
        <source>Bit rate</source>
        <translation>Velocità in bit</translation>
    </message>
    <message id="Sound">
        <source>Sound</source>
        <translation>Audio</translation>
    </message>
    <message id="Tracks">
        <source>Tracks</source>
        <translation>Tracce</translation>
    </message>
    <message id="Frames">
        <source>Frames</source>
        <translation>Fotogrammi</translation>
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
        <translation>Decodificatore</translation>
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
        <translation>Dimensione</translation>
    </message>
    <message id="%@, displayed as %@">
        <source>%@, displayed as %@</source>
        <translation>%@, mostrato come %@</translation>
    </message>
    <message id="Frame rate">
        <source>Frame rate</source>
        <translation>Fotogrammi al secondo</translation>
    </message>
    <message id="%@ a second">
        <source>%@ a second</source>
        <translation>%@ al secondo</translation>
    </message>
    <message id="%@ a second, now %@">
        <source>%@ a second, now %@</source>
        <translation>%@ al secondo, ora %@</translation>
    </message>
    <message id="Dynamic range">
        <source>Dynamic range</source>
        <translation>Gamma dinamica</translation>
    </message>
    <message id="Standard">
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message id="Color">
        <source>Color</source>
        <translation>Colore</translation>
    </message>
    <message id="Channels">
        <source>Channels</source>
        <translation>Canali</translation>
    </message>
    <message id="Sample rate">
        <source>Sample rate</source>
        <translation>Frequenza di campionamento</translation>
    </message>
    <message id="Output">
        <source>Output</source>
        <translation>Uscita</translation>
    </message>
    <message id="%@ (playing)">
        <source>%@ (playing)</source>
        <translation>%@ (in riproduzione)</translation>
    </message>
    <message id="Subtitles shown">
        <source>Subtitles shown</source>
        <translation>Sottotitoli mostrati</translation>
    </message>
    <message id="Shown">
        <source>Shown</source>
        <translation>Mostrati</translation>
    </message>
    <message id="Late">
        <source>Late</source>
        <translation>In ritardo</translation>
    </message>
    <message id="Left out">
        <source>Left out</source>
        <translation>Tralasciati</translation>
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
        <translation>Riempimento</translation>
    </message>
</context>
</TS>
