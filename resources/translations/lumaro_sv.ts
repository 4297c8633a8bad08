<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="sv">
<context>
    <name>Alerts</name>
    <message id="QTUnableToOpenFileError">
        <source>“%@” can’t be opened.</source>
        <translation>”%@” kan inte öppnas.</translation>
    </message>
    <message id="QTUnableToOpenFileDetails">
        <source>The file is missing, damaged, or of a kind that Lumaro doesn’t know (error %d).</source>
        <translation>Filen saknas, är skadad eller av ett slag som Lumaro inte känner till (fel %d).</translation>
    </message>
    <message id="QTUnableToPlayFileError">
        <source>“%@” may not play as it should.</source>
        <translation>”%@” spelas kanske inte upp som den ska.</translation>
    </message>
    <message id="QTUnableToPlayFileDetails">
        <source>Parts of the movie can’t be decoded (error %d). Choose Continue to try it anyway.</source>
        <translation>Delar av filmen kan inte avkodas (fel %d). Välj ”Fortsätt” för att försöka ändå.</translation>
    </message>
    <message id="NoPlayableMoviesInListMessage">
        <source>There is nothing to play.</source>
        <translation>Det finns inget att spela upp.</translation>
    </message>
    <message id="NoPlayableMoviesInListDetails">
        <source>None of the files that were given is a movie that Lumaro can play. You can choose others.</source>
        <translation>Ingen av de angivna filerna är en film som Lumaro kan spela upp. Du kan välja andra.</translation>
    </message>
    <message id="OpenErrorMissing">
        <source>The file doesn’t exist.</source>
        <translation>Filen finns inte.</translation>
    </message>
    <message id="OpenErrorEmpty">
        <source>The file is empty.</source>
        <translation>Filen är tom.</translation>
    </message>
    <message id="OpenErrorNotAFile">
        <source>It is a folder or a device, not a file.</source>
        <translation>Det är en mapp eller en enhet, inte en fil.</translation>
    </message>
    <message id="OpenErrorPermission">
        <source>You aren’t allowed to read the file.</source>
        <translation>Du har inte behörighet att läsa filen.</translation>
    </message>
    <message id="OpenErrorNotAMovie">
        <source>It isn’t a movie that Lumaro can play.</source>
        <translation>Det är inte en film som Lumaro kan spela upp.</translation>
    </message>
    <message id="OpenErrorTimeout">
        <source>No answer came in time.</source>
        <translation>Inget svar kom i tid.</translation>
    </message>
    <message id="OpenErrorLibraries">
        <source>The libraries that open movies are missing.</source>
        <translation>Biblioteken som öppnar filmer saknas.</translation>
    </message>
    <message id="OpenErrorScheme">
        <source>Lumaro doesn’t know addresses of this kind.</source>
        <translation>Lumaro känner inte till adresser av det här slaget.</translation>
    </message>
    <message id="OpenErrorUnknownHost">
        <source>There is no server of that name, or no connection to the network.</source>
        <translation>Det finns ingen server med det namnet, eller ingen anslutning till nätverket.</translation>
    </message>
    <message id="OpenErrorUnreachable">
        <source>The server can’t be reached.</source>
        <translation>Servern kan inte nås.</translation>
    </message>
    <message id="OpenErrorRefused">
        <source>The server refused the connection.</source>
        <translation>Servern nekade anslutningen.</translation>
    </message>
    <message id="OpenErrorConnection">
        <source>The connection to the server broke off.</source>
        <translation>Anslutningen till servern bröts.</translation>
    </message>
    <message id="OpenErrorRanges">
        <source>The server sends files only from their beginning, and what is needed first stands at this movie’s end. Download it to play it.</source>
        <translation>Servern skickar filer bara från början, och det som behövs först finns i slutet av den här filmen. Hämta filmen för att spela upp den.</translation>
    </message>
    <message id="OpenErrorLogin">
        <source>The server asks for a name and a password (401).</source>
        <translation>Servern kräver namn och lösenord (401).</translation>
    </message>
    <message id="OpenErrorForbidden">
        <source>The server doesn’t allow it (403).</source>
        <translation>Servern tillåter det inte (403).</translation>
    </message>
    <message id="OpenErrorNotFound">
        <source>The server has no such file (404).</source>
        <translation>Filen finns inte på servern (404).</translation>
    </message>
    <message id="OpenErrorRejected">
        <source>The server rejected the request.</source>
        <translation>Servern avvisade begäran.</translation>
    </message>
    <message id="OpenErrorServer">
        <source>The server answered with an error of its own.</source>
        <translation>Servern svarade med ett eget fel.</translation>
    </message>
    <message id="OpenErrorNoMovies">
        <source>There is no movie in this folder.</source>
        <translation>Det finns ingen film i den här mappen.</translation>
    </message>
    <message id="OpenErrorNotAList">
        <source>The file is not a playlist.</source>
        <translation>Filen är ingen spellista.</translation>
    </message>
    <message id="OpenErrorListEmpty">
        <source>The playlist names no movies.</source>
        <translation>Spellistan innehåller inga filmer.</translation>
    </message>
    <message id="OpenErrorListTooLarge">
        <source>The playlist is larger than 32 MB.</source>
        <translation>Spellistan är större än 32 MB.</translation>
    </message>
    <message id="OpenErrorListTooLong">
        <source>The playlist is too long. Only its first 100,000 entries were opened.</source>
        <translation>Spellistan är för lång. Bara dess första 100 000 poster öppnades.</translation>
    </message>
    <message id="OpenErrorListTooDeep">
        <source>Too many playlists name each other. This one was left out.</source>
        <translation>För många spellistor hänvisar till varandra. Den här utelämnades.</translation>
    </message>
    <message id="OpenErrorListDrives">
        <source>Entries on drives of Windows were left out (%@): %@.</source>
        <translation>Poster på Windows-enheter utelämnades (%@): %@.</translation>
    </message>
    <message id="OpenErrorListLocal">
        <source>The playlist comes from a network. Entries that name files of this computer were left out (%@): %@.</source>
        <translation>Spellistan kommer från ett nätverk. Poster som anger filer på den här datorn utelämnades (%@): %@.</translation>
    </message>
    <message id="OpenErrorListNothing">
        <source>Entries that name neither a file nor an address were left out (%@): %@.</source>
        <translation>Poster som varken anger en fil eller en adress utelämnades (%@): %@.</translation>
    </message>
    <message id="OpenErrorFolders">
        <source>Folders that may not be read (%@): %@.</source>
        <translation>Mappar som inte får läsas (%@): %@.</translation>
    </message>
    <message id="UnreadableFoldersMessage">
        <source>Not everything could be searched.</source>
        <translation>Allt kunde inte genomsökas.</translation>
    </message>
    <message id="AndMoreMessage">
        <source>… and %@ more.</source>
        <translation>… och %@ till.</translation>
    </message>
    <message id="UnableToOpenLine">
        <source>“%@”: %@ (%@)</source>
        <translation>”%@”: %@ (%@)</translation>
    </message>
    <message id="UnableToOpenFilesMessage">
        <source>%@ files can’t be opened.</source>
        <translation>%@ filer kan inte öppnas.</translation>
    </message>
    <message id="UnableToPlayFilesMessage">
        <source>%@ movies may not play as they should.</source>
        <translation>%@ filmer spelas kanske inte upp som de ska.</translation>
    </message>
    <message id="NoMoviesInFoldersDetails">
        <source>There is no movie that Lumaro can play in:</source>
        <translation>Det finns ingen film som Lumaro kan spela upp i:</translation>
    </message>
    <message id="Buffering: %d %%">
        <source>Buffering: %d %%</source>
        <translation>Buffrar: %d %%</translation>
    </message>
    <message id="Stalled: No Data from the Server">
        <source>Stalled: no data from the server</source>
        <translation>Avbrott: inga data från servern</translation>
    </message>
    <message id="Loading: %@">
        <source>Loading: %@</source>
        <translation>Läser in: %@</translation>
    </message>
    <message id="ResumedAt">
        <source>Resumed at %@
%@: From the Beginning</source>
        <translation>Återupptagen vid %@
%@: från början</translation>
    </message>
    <message id="Looking for Movies: %@">
        <source>Looking for movies: %@</source>
        <translation>Söker filmer: %@</translation>
    </message>
    <message id="FilesFoundMessage" numerus="yes">
        <source>%@ file found…</source>
        <translation>
            <numerusform>%@ fil hittades…</numerusform>
            <numerusform>%@ filer hittades…</numerusform>
        </translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Avbryt</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>Fortsätt</translation>
    </message>
    <message id="Open...">
        <source>Open...</source>
        <translation>Öppna…</translation>
    </message>
    <message id="Open Recent">
        <source>Open Recent</source>
        <translation>Öppna senaste</translation>
    </message>
    <message id="ClearRecent">
        <source>Clear Menu and Forget Places</source>
        <translation>Töm menyn och glöm positionerna</translation>
    </message>
    <message id="Open">
        <source>Open</source>
        <translation>Öppna</translation>
    </message>
    <message id="ConfigureCheckForNewVersionMessage">
        <source>Look for new versions?</source>
        <translation>Sök efter nya versioner?</translation>
    </message>
    <message id="ConfigureCheckForNewVersionDetails">
        <source>Lumaro can look from time to time whether a newer version exists. Nothing about you or your movies is sent. You can change this in the preferences.</source>
        <translation>Lumaro kan då och då se efter om det finns en nyare version. Ingenting om dig eller dina filmer skickas. Du kan ändra detta i inställningarna.</translation>
    </message>
    <message id="CheckNewVersionFailedMessage">
        <source>Looking for a new version failed.</source>
        <translation>Sökningen efter en ny version misslyckades.</translation>
    </message>
    <message id="CheckNewVersionFailedDetails">
        <source>None of the sites could be reached. Check the connection to the internet, or try again later.</source>
        <translation>Ingen av webbplatserna kunde nås. Kontrollera internetanslutningen eller försök igen senare.</translation>
    </message>
    <message id="YouHaveLatestVersionMessage">
        <source>Lumaro is up to date.</source>
        <translation>Lumaro är uppdaterat.</translation>
    </message>
    <message id="YouHaveLatestVersionDetails">
        <source>You have the latest version.</source>
        <translation>Du har den senaste versionen.</translation>
    </message>
    <message id="NewVersionAvailableMessage">
        <source>A newer version of Lumaro is available.</source>
        <translation>En nyare version av Lumaro finns tillgänglig.</translation>
    </message>
    <message id="NewVersionAvailableDetails">
        <source>%@ version %@ can be downloaded now.</source>
        <translation>%@: version %@ kan hämtas nu.</translation>
    </message>
    <message id="Download Now...">
        <source>&amp;Download Now...</source>
        <translation>Hämta &amp;nu…</translation>
    </message>
    <message id="Skip Version">
        <source>&amp;Skip Version</source>
        <translation>&amp;Hoppa över den här versionen</translation>
    </message>
    <message id="Later">
        <source>Later</source>
        <translation>Senare</translation>
    </message>
    <message id="AskDonationMessage">
        <source>Do you enjoy Lumaro?</source>
        <translation>Tycker du om Lumaro?</translation>
    </message>
    <message id="AskDonationDetails">
        <source>Lumaro is free. A donation helps to keep it alive.</source>
        <translation>Lumaro är gratis. En gåva hjälper till att hålla det vid liv.</translation>
    </message>
    <message id="Donate...">
        <source>Donate...</source>
        <translation>Donera…</translation>
    </message>
</context>
<context>
    <name>Version check</name>
    <message id="Up to date">
        <source>Up to date</source>
        <translation>Uppdaterat</translation>
    </message>
    <message id="Newer %@ version %@ available">
        <source>Newer %@ version %@ available</source>
        <translation>Nyare version finns: %@ %@</translation>
    </message>
    <message id="Failed to reach all mirror sites">
        <source>Failed to reach all mirror sites</source>
        <translation>Ingen webbplats kunde nås</translation>
    </message>
    <message id="Release">
        <source>Release</source>
        <translation>Stabil</translation>
    </message>
    <message id="Beta">
        <source>Beta</source>
        <translation>Beta</translation>
    </message>
    <message id="Checking now...">
        <source>Checking now...</source>
        <translation>Söker…</translation>
    </message>
    <message id="Unknown">
        <source>Unknown</source>
        <translation>Okänt</translation>
    </message>
    <message id="Never">
        <source>Never</source>
        <translation>Aldrig</translation>
    </message>
</context>
<context>
    <name>Feedback and on-screen display</name>
    <message id="Movie: Play">
        <source>Movie: Play</source>
        <translation>Spela</translation>
    </message>
    <message id="Movie: Pause">
        <source>Movie: Pause</source>
        <translation>Paus</translation>
    </message>
    <message id="Movie: Stop">
        <source>Movie: Stop</source>
        <translation>Stopp</translation>
    </message>
    <message id="Movie: Beginning">
        <source>Movie: Beginning</source>
        <translation>Början</translation>
    </message>
    <message id="Movie: End">
        <source>Movie: End</source>
        <translation>Slutet</translation>
    </message>
    <message id="Fast Forward x%d">
        <source>Fast Forward x%d</source>
        <translation>Snabbt framåt ×%d</translation>
    </message>
    <message id="Fast Rewind x%d">
        <source>Fast Rewind x%d</source>
        <translation>Snabbt bakåt ×%d</translation>
    </message>
    <message id="Jump Forward %d s">
        <source>Jump Forward %d s</source>
        <translation>%d s framåt</translation>
    </message>
    <message id="Jump Backward %d s">
        <source>Jump Backward %d s</source>
        <translation>%d s bakåt</translation>
    </message>
    <message id="Step Forward">
        <source>Step Forward</source>
        <translation>En bild framåt</translation>
    </message>
    <message id="Step Backward">
        <source>Step Backward</source>
        <translation>En bild bakåt</translation>
    </message>
    <message id="Next: %@">
        <source>Next: %@</source>
        <translation>Nästa: %@</translation>
    </message>
    <message id="Previous: %@">
        <source>Previous: %@</source>
        <translation>Föregående: %@</translation>
    </message>
    <message id="Screen: Next">
        <source>Screen: Next</source>
        <translation>Nästa skärm</translation>
    </message>
    <message id="Screen: Previous">
        <source>Screen: Previous</source>
        <translation>Föregående skärm</translation>
    </message>
    <message id="Quit">
        <source>Quit</source>
        <translation>Avsluta</translation>
    </message>
    <message id="Sleep">
        <source>Sleep</source>
        <translation>Vänteläge</translation>
    </message>
    <message id="Restart the Computer">
        <source>Restart the Computer</source>
        <translation>Starta om datorn</translation>
    </message>
    <message id="Shut Down the Computer">
        <source>Shut Down the Computer</source>
        <translation>Stäng av datorn</translation>
    </message>
    <message id="Log Out">
        <source>Log Out</source>
        <translation>Logga ut</translation>
    </message>
    <message id="Restart failed: %@">
        <source>Restart failed: %@</source>
        <translation>Omstarten misslyckades: %@</translation>
    </message>
    <message id="Shutting down failed: %@">
        <source>Shutting down failed: %@</source>
        <translation>Avstängningen misslyckades: %@</translation>
    </message>
    <message id="Logging out failed: %@">
        <source>Logging out failed: %@</source>
        <translation>Utloggningen misslyckades: %@</translation>
    </message>
    <message id="KeyName Space">
        <source>Space</source>
        <translation>Blanksteg</translation>
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
        <translation>Backsteg</translation>
    </message>
    <message id="KeyName Return">
        <source>Return</source>
        <translation>Retur</translation>
    </message>
    <message id="KeyName Ctrl+">
        <source>Ctrl+</source>
        <translation>Ctrl+</translation>
    </message>
    <message id="KeyName Shift+">
        <source>Shift+</source>
        <translation>Skift+</translation>
    </message>
    <message id="KeyName Media Play">
        <source>Media Play</source>
        <translation>Media: spela</translation>
    </message>
    <message id="KeyName Media Stop">
        <source>Media Stop</source>
        <translation>Media: stopp</translation>
    </message>
    <message id="KeyName Media Next">
        <source>Media Next</source>
        <translation>Media: nästa</translation>
    </message>
    <message id="KeyName Media Previous">
        <source>Media Previous</source>
        <translation>Media: föregående</translation>
    </message>
    <message id="KeyName Media Volume Up">
        <source>Media Volume Up</source>
        <translation>Media: höj volymen</translation>
    </message>
    <message id="KeyName Media Volume Down">
        <source>Media Volume Down</source>
        <translation>Media: sänk volymen</translation>
    </message>
    <message id="KeyName Media Mute">
        <source>Media Mute</source>
        <translation>Media: ljud av</translation>
    </message>
    <message id="Sleep failed: %@">
        <source>Sleep failed: %@</source>
        <translation>Vänteläget misslyckades: %@</translation>
    </message>
    <message id="Size: Half">
        <source>Size: Half</source>
        <translation>Storlek: halv</translation>
    </message>
    <message id="Size: Normal">
        <source>Size: Normal</source>
        <translation>Storlek: normal</translation>
    </message>
    <message id="Size: Double">
        <source>Size: Double</source>
        <translation>Storlek: dubbel</translation>
    </message>
    <message id="Size: Full">
        <source>Size: Full</source>
        <translation>Storlek: full</translation>
    </message>
    <message id="Size: Fit Width">
        <source>Size: Fit Width</source>
        <translation>Storlek: skärmens bredd</translation>
    </message>
    <message id="Size: Fit Height">
        <source>Size: Fit Height</source>
        <translation>Storlek: skärmens höjd</translation>
    </message>
    <message id="Size: Bigger">
        <source>Size: Bigger</source>
        <translation>Storlek: större</translation>
    </message>
    <message id="Size: Smaller">
        <source>Size: Smaller</source>
        <translation>Storlek: mindre</translation>
    </message>
    <message id="Controller: On">
        <source>Controller: On</source>
        <translation>Kontrollfält: på</translation>
    </message>
    <message id="Controller: Off">
        <source>Controller: Off</source>
        <translation>Kontrollfält: av</translation>
    </message>
    <message id="Volume: %@">
        <source>Volume: %@</source>
        <translation>Volym: %@</translation>
    </message>
    <message id="Mute: %@">
        <source>Mute: %@</source>
        <translation>Tyst: %@</translation>
    </message>
    <message id="Muted">
        <source>Muted</source>
        <translation>Tyst</translation>
    </message>
    <message id="On">
        <source>On</source>
        <translation>På</translation>
    </message>
    <message id="Off">
        <source>Off</source>
        <translation>Av</translation>
    </message>
    <message id="%d%%">
        <source>%d%%</source>
        <translation>%d %%</translation>
    </message>
    <message id="Time: %@/%@">
        <source>Time: %@/%@</source>
        <translation>Tid: %@ / %@</translation>
    </message>
    <message id="Movie: %@">
        <source>Movie: %@</source>
        <translation>Film: %@</translation>
    </message>
    <message id="Loop: %@">
        <source>Loop: %@</source>
        <translation>Upprepa: %@</translation>
    </message>
    <message id="One">
        <source>One</source>
        <translation>En</translation>
    </message>
    <message id="All">
        <source>All</source>
        <translation>Alla</translation>
    </message>
    <message id="None">
        <source>None</source>
        <translation>Inga</translation>
    </message>
    <message id="Subtitles: %@">
        <source>Subtitles: %@</source>
        <translation>Undertexter: %@</translation>
    </message>
    <message id="Repair: On">
        <source>Repair: On</source>
        <translation>Reparation: på</translation>
    </message>
    <message id="Repair: Off">
        <source>Repair: Off</source>
        <translation>Reparation: av</translation>
    </message>
    <message id="SubtitleLinesLost" numerus="yes">
        <source>%d line of it can’t be read.</source>
        <translation>
            <numerusform>%d rad i den kan inte läsas.</numerusform>
            <numerusform>%d rader i den kan inte läsas.</numerusform>
        </translation>
    </message>
    <message id="SubtitlePicturesLost" numerus="yes">
        <source>%d picture of it can’t be read.</source>
        <translation>
            <numerusform>%d bild i den kan inte läsas.</numerusform>
            <numerusform>%d bilder i den kan inte läsas.</numerusform>
        </translation>
    </message>
    <message id="SubtitleRepairMayHelp">
        <source>Repair (Subtitles menu) may help.</source>
        <translation>”Reparera” (menyn Undertexter) kan hjälpa.</translation>
    </message>
    <message id="Style">
        <source>Style</source>
        <translation>Stil</translation>
    </message>
    <message id="Automatic">
        <source>Automatic</source>
        <translation>Automatiskt</translation>
    </message>
</context>
<context>
    <name>Empty player</name>
    <message id="Press %@ to open a movie">
        <source>Press %@ to open a movie</source>
        <translation>Tryck på %@ för att öppna en film</translation>
    </message>
    <message id="or drop files here. %@ shows all keys.">
        <source>or drop files here. %@ shows all keys.</source>
        <translation>eller släpp filer här. %@ visar alla tangenter.</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message id="File">
        <source>File</source>
        <translation>Arkiv</translation>
    </message>
    <message id="Movie">
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message id="Playback">
        <source>Playback</source>
        <translation>Uppspelning</translation>
    </message>
    <message id="Volume">
        <source>Volume</source>
        <translation>Volym</translation>
    </message>
    <message id="Playlist">
        <source>Playlist</source>
        <translation>Spellista</translation>
    </message>
    <message id="Subtitles">
        <source>Subtitles</source>
        <translation>Undertexter</translation>
    </message>
    <message id="Window">
        <source>Window</source>
        <translation>Fönster</translation>
    </message>
    <message id="HelpIntroduction">
        <source>Type what you look for. Every command also stands in the menu: at the top edge of the screen, or under the right mouse button.</source>
        <translation>Skriv vad du letar efter. Varje kommando finns också i menyn: vid skärmens överkant eller under höger musknapp.</translation>
    </message>
    <message id="What do you want to do?">
        <source>What do you want to do?</source>
        <translation>Vad vill du göra?</translation>
    </message>
    <message id="No command holds these words.">
        <source>No command holds these words.</source>
        <translation>Inget kommando innehåller de orden.</translation>
    </message>
    <message id="Watch and move through the movie">
        <source>Watch and move through the movie</source>
        <translation>Titta och röra sig i filmen</translation>
    </message>
    <message id="Louder, softer, silent">
        <source>Louder, softer, silent</source>
        <translation>Högre, lägre, tyst</translation>
    </message>
    <message id="Read along">
        <source>Read along</source>
        <translation>Läsa med</translation>
    </message>
    <message id="See the picture larger, and what is playing">
        <source>See the picture larger, and what is playing</source>
        <translation>Se bilden större, och vad som spelas</translation>
    </message>
    <message id="Choose among the movies">
        <source>Choose among the movies</source>
        <translation>Välja bland filmerna</translation>
    </message>
    <message id="Move to another screen">
        <source>Move to another screen</source>
        <translation>Gå till en annan skärm</translation>
    </message>
    <message id="Open, set up and quit">
        <source>Open, set up and quit</source>
        <translation>Öppna, ställa in och avsluta</translation>
    </message>
    <message id="Find help">
        <source>Find help</source>
        <translation>Hitta hjälp</translation>
    </message>
    <message id="Help">
        <source>Help</source>
        <translation>Hjälp</translation>
    </message>
    <message id="Open URL...">
        <source>Open URL...</source>
        <translation>Öppna URL…</translation>
    </message>
    <message id="Open URLs...">
        <source>Open URLs...</source>
        <translation>Öppna flera URL:er…</translation>
    </message>
    <message id="Save Playlist...">
        <source>Save Playlist...</source>
        <translation>Spara spellistan…</translation>
    </message>
    <message id="Save Playlist">
        <source>Save Playlist</source>
        <translation>Spara spellistan</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Spara</translation>
    </message>
    <message id="Playlist File">
        <source>Playlist</source>
        <translation>Spellista</translation>
    </message>
    <message id="Save the playlist to a file">
        <source>Save the playlist to a file</source>
        <translation>Spara spellistan till en fil</translation>
    </message>
    <message id="SaveErrorMessage">
        <source>“%@” can’t be saved.</source>
        <translation>”%@” kan inte sparas.</translation>
    </message>
    <message id="SaveErrorPermission">
        <source>You don’t have the permission to write there.</source>
        <translation>Du har inte behörighet att skriva där.</translation>
    </message>
    <message id="SaveErrorReadOnly">
        <source>The disk can’t be written to.</source>
        <translation>Det går inte att skriva till disken.</translation>
    </message>
    <message id="SaveErrorFull">
        <source>The disk is full.</source>
        <translation>Disken är full.</translation>
    </message>
    <message id="SaveErrorFolder">
        <source>The folder doesn’t exist.</source>
        <translation>Mappen finns inte.</translation>
    </message>
    <message id="SaveErrorIsFolder">
        <source>This is a folder.</source>
        <translation>Det här är en mapp.</translation>
    </message>
    <message id="Preferences...">
        <source>Preferences...</source>
        <translation>Inställningar…</translation>
    </message>
    <message id="About Lumaro">
        <source>About Lumaro</source>
        <translation>Om Lumaro</translation>
    </message>
    <message id="Check for New Version...">
        <source>Check for New Version...</source>
        <translation>Sök efter ny version…</translation>
    </message>
    <message id="Half Size">
        <source>Half Size</source>
        <translation>Halv storlek</translation>
    </message>
    <message id="Normal Size">
        <source>Normal Size</source>
        <translation>Normal storlek</translation>
    </message>
    <message id="Double Size">
        <source>Double Size</source>
        <translation>Dubbel storlek</translation>
    </message>
    <message id="Full Size">
        <source>Full Size</source>
        <translation>Full storlek</translation>
    </message>
    <message id="Fit Screen">
        <source>Fit Screen</source>
        <translation>Anpassa till skärmen</translation>
    </message>
    <message id="Fit Width">
        <source>Fit Width</source>
        <translation>Anpassa till bredden</translation>
    </message>
    <message id="Fit Height">
        <source>Fit Height</source>
        <translation>Anpassa till höjden</translation>
    </message>
    <message id="Bigger">
        <source>Bigger</source>
        <translation>Större</translation>
    </message>
    <message id="Smaller">
        <source>Smaller</source>
        <translation>Mindre</translation>
    </message>
    <message id="Show Controller">
        <source>Show Controller</source>
        <translation>Visa kontrollfältet</translation>
    </message>
    <message id="Bar over the Picture">
        <source>Bar over the Picture</source>
        <translation>Fält över bilden</translation>
    </message>
    <message id="Bar over the picture: off, always, when the pointer moves">
        <source>Bar over the picture: off, always, when the pointer moves</source>
        <translation>Fält över bilden: av, alltid, när pekaren rör sig</translation>
    </message>
    <message id="Bar over the Picture: Off">
        <source>Bar over the Picture: Off</source>
        <translation>Fält över bilden: av</translation>
    </message>
    <message id="Bar over the Picture: Always">
        <source>Bar over the Picture: Always</source>
        <translation>Fält över bilden: alltid</translation>
    </message>
    <message id="Bar over the Picture: When the Pointer Moves">
        <source>Bar over the Picture: When the Pointer Moves</source>
        <translation>Fält över bilden: när pekaren rör sig</translation>
    </message>
    <message id="Tracks...">
        <source>Tracks...</source>
        <translation>Spår…</translation>
    </message>
    <message id="Sound and subtitles in one menu">
        <source>Sound and subtitles in one menu</source>
        <translation>Ljud och undertexter i en och samma meny</translation>
    </message>
    <message id="Audio">
        <source>Audio</source>
        <translation>Ljud</translation>
    </message>
    <message id="Hide Controller">
        <source>Hide Controller</source>
        <translation>Dölj kontrollfältet</translation>
    </message>
    <message id="Next Display">
        <source>Next Display</source>
        <translation>Nästa visning</translation>
    </message>
    <message id="Previous Display">
        <source>Previous Display</source>
        <translation>Föregående visning</translation>
    </message>
    <message id="Play">
        <source>Play</source>
        <translation>Spela</translation>
    </message>
    <message id="Pause">
        <source>Pause</source>
        <translation>Paus</translation>
    </message>
    <message id="Fast Forward">
        <source>Fast Forward</source>
        <translation>Snabbt framåt</translation>
    </message>
    <message id="Rewind">
        <source>Rewind</source>
        <translation>Snabbt bakåt</translation>
    </message>
    <message id="Jump Forward">
        <source>Jump Forward</source>
        <translation>Hoppa framåt</translation>
    </message>
    <message id="Jump Backward">
        <source>Jump Backward</source>
        <translation>Hoppa bakåt</translation>
    </message>
    <message id="Beginning">
        <source>Beginning</source>
        <translation>Början</translation>
    </message>
    <message id="End">
        <source>End</source>
        <translation>Slutet</translation>
    </message>
    <message id="Next Movie">
        <source>Next Movie</source>
        <translation>Nästa film</translation>
    </message>
    <message id="Previous Movie">
        <source>Previous Movie</source>
        <translation>Föregående film</translation>
    </message>
    <message id="Looping Off">
        <source>Looping Off</source>
        <translation>Upprepa inte</translation>
    </message>
    <message id="Loop Off">
        <source>Loop Off</source>
        <translation>Upprepa inte</translation>
    </message>
    <message id="Loop One">
        <source>Loop One</source>
        <translation>Upprepa en</translation>
    </message>
    <message id="Loop All">
        <source>Loop All</source>
        <translation>Upprepa alla</translation>
    </message>
    <message id="Repair">
        <source>Repair</source>
        <translation>Reparera</translation>
    </message>
    <message id="Volume Up">
        <source>Volume Up</source>
        <translation>Höj volymen</translation>
    </message>
    <message id="Volume Down">
        <source>Volume Down</source>
        <translation>Sänk volymen</translation>
    </message>
    <message id="Normal Volume">
        <source>Normal Volume</source>
        <translation>Normal volym</translation>
    </message>
    <message id="Silent">
        <source>Silent</source>
        <translation>Ljudlöst</translation>
    </message>
    <message id="Mute">
        <source>Mute</source>
        <translation>Tyst</translation>
    </message>
    <message id="Next Screen">
        <source>Next Screen</source>
        <translation>Nästa skärm</translation>
    </message>
    <message id="Previous Screen">
        <source>Previous Screen</source>
        <translation>Föregående skärm</translation>
    </message>
    <message id="More...">
        <source>More…</source>
        <translation>Mer…</translation>
    </message>
    <message id="The whole list: search, move and remove movies">
        <source>The whole list: search, move and remove movies</source>
        <translation>Hela listan: sök, flytta och ta bort filmer</translation>
    </message>
    <message id="Playlist Panel">
        <source>Playlist</source>
        <translation>Spellista</translation>
    </message>
    <message id="Filter">
        <source>Filter</source>
        <translation>Filtrera</translation>
    </message>
    <message id="Play Movie">
        <source>Play</source>
        <translation>Spela</translation>
    </message>
    <message id="Move Up">
        <source>Move Up</source>
        <translation>Flytta upp</translation>
    </message>
    <message id="Move Down">
        <source>Move Down</source>
        <translation>Flytta ner</translation>
    </message>
    <message id="Remove from List">
        <source>Remove</source>
        <translation>Ta bort</translation>
    </message>
    <message id="PlaylistCountMessage">
        <source>%@ of %@ movies</source>
        <translation>%@ av %@ filmer</translation>
    </message>
    <message id="Lumaro Help">
        <source>Lumaro Help</source>
        <translation>Hjälp om Lumaro</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="Open movies">
        <source>Open movies</source>
        <translation>Öppna filmer</translation>
    </message>
    <message id="Half, normal and double size">
        <source>Half, normal and double size</source>
        <translation>Halv, normal och dubbel storlek</translation>
    </message>
    <message id="Fit to the screen, to its width, to its height">
        <source>Fit to the screen, to its width, to its height</source>
        <translation>Anpassa till skärmen, dess bredd, dess höjd</translation>
    </message>
    <message id="Bigger and smaller">
        <source>Bigger and smaller</source>
        <translation>Större och mindre</translation>
    </message>
    <message id="Controller bar">
        <source>Controller bar</source>
        <translation>Kontrollfält</translation>
    </message>
    <message id="On-screen display: time, movie, subtitles, looping, volume">
        <source>On-screen display: time, movie, subtitles, looping, volume</source>
        <translation>Visning på skärmen: tid, film, undertexter, upprepning, volym</translation>
    </message>
    <message id="Play, pause, back to normal speed">
        <source>Play, pause, back to normal speed</source>
        <translation>Spela, pausa, tillbaka till normal hastighet</translation>
    </message>
    <message id="Forward and back: one frame while paused, faster and faster while playing">
        <source>Forward and back: one frame while paused, faster and faster while playing</source>
        <translation>Framåt och bakåt: en bild i taget vid paus, allt snabbare vid uppspelning</translation>
    </message>
    <message id="Jump forward and back">
        <source>Jump forward and back</source>
        <translation>Hoppa framåt och bakåt</translation>
    </message>
    <message id="Beginning and end of the movie">
        <source>Beginning and end of the movie</source>
        <translation>Filmens början och slut</translation>
    </message>
    <message id="Next and previous movie">
        <source>Next and previous movie</source>
        <translation>Nästa och föregående film</translation>
    </message>
    <message id="Double Click">
        <source>Double Click</source>
        <translation>Dubbelklick</translation>
    </message>
    <message id="Middle Button">
        <source>Middle Button</source>
        <translation>Mittknappen</translation>
    </message>
    <message id="Back Button">
        <source>Back Button</source>
        <translation>Bakåtknappen</translation>
    </message>
    <message id="Forward Button">
        <source>Forward Button</source>
        <translation>Framåtknappen</translation>
    </message>
    <message id="Wheel Up">
        <source>Wheel Up</source>
        <translation>Hjul upp</translation>
    </message>
    <message id="Wheel Down">
        <source>Wheel Down</source>
        <translation>Hjul ner</translation>
    </message>
    <message id="Looping: off, one, all">
        <source>Looping: off, one, all</source>
        <translation>Upprepning: av, en, alla</translation>
    </message>
    <message id="Louder and softer">
        <source>Louder and softer</source>
        <translation>Högre och lägre volym</translation>
    </message>
    <message id="Next and previous subtitles">
        <source>Next and previous subtitles</source>
        <translation>Nästa och föregående undertexter</translation>
    </message>
    <message id="Sound Earlier">
        <source>Sound Earlier</source>
        <translation>Ljud tidigare</translation>
    </message>
    <message id="Sound Later">
        <source>Sound Later</source>
        <translation>Ljud senare</translation>
    </message>
    <message id="Sound as in the File">
        <source>Sound as in the File</source>
        <translation>Ljud som i filen</translation>
    </message>
    <message id="Sound earlier and later">
        <source>Sound earlier and later</source>
        <translation>Ljud tidigare och senare</translation>
    </message>
    <message id="Sound at the times of the file">
        <source>Sound at the times of the file</source>
        <translation>Ljud vid filens tider</translation>
    </message>
    <message id="Sound delay: %@">
        <source>Sound delay: %@</source>
        <translation>Ljudfördröjning: %@</translation>
    </message>
    <message id="Add Subtitles...">
        <source>Add Subtitles...</source>
        <translation>Lägg till undertexter…</translation>
    </message>
    <message id="Add Subtitles">
        <source>Add Subtitles</source>
        <translation>Lägg till undertexter</translation>
    </message>
    <message id="Add a file of subtitles to the movie">
        <source>Add a file of subtitles to the movie</source>
        <translation>Lägg till en undertextfil till filmen</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Lägg till</translation>
    </message>
    <message id="NoSubtitlesInFile">
        <source>“%@” holds no subtitles that can be read</source>
        <translation>”%@” innehåller inga läsbara undertexter</translation>
    </message>
    <message id="Add to the Movie as Subtitles">
        <source>Add to the Movie as Subtitles</source>
        <translation>Lägg till som undertexter till filmen</translation>
    </message>
    <message id="Show Earlier">
        <source>Show Earlier</source>
        <translation>Visa tidigare</translation>
    </message>
    <message id="Show Later">
        <source>Show Later</source>
        <translation>Visa senare</translation>
    </message>
    <message id="As in the File">
        <source>As in the File</source>
        <translation>Som i filen</translation>
    </message>
    <message id="Show Subtitles Earlier">
        <source>Show Subtitles Earlier</source>
        <translation>Visa undertexter tidigare</translation>
    </message>
    <message id="Show Subtitles Later">
        <source>Show Subtitles Later</source>
        <translation>Visa undertexter senare</translation>
    </message>
    <message id="Subtitles at the Times of Their File">
        <source>Subtitles at the Times of Their File</source>
        <translation>Undertexter vid filens tider</translation>
    </message>
    <message id="Subtitles earlier and later">
        <source>Subtitles earlier and later</source>
        <translation>Undertexter tidigare och senare</translation>
    </message>
    <message id="Subtitles at the times of their file">
        <source>Subtitles at the times of their file</source>
        <translation>Undertexter vid filens tider</translation>
    </message>
    <message id="First Line Is Spoken Now">
        <source>First Line Is Spoken Now</source>
        <translation>Första repliken sägs nu</translation>
    </message>
    <message id="Last Line Is Spoken Now">
        <source>Last Line Is Spoken Now</source>
        <translation>Sista repliken sägs nu</translation>
    </message>
    <message id="In step by two lines: press one while the first line is spoken, the other while the last one is">
        <source>In step by two lines: press one while the first line is spoken, the other while the last one is</source>
        <translation>Synka med två repliker: tryck på den ena när första repliken sägs, på den andra när sista repliken sägs</translation>
    </message>
    <message id="Larger Text">
        <source>Larger Text</source>
        <translation>Större text</translation>
    </message>
    <message id="Smaller Text">
        <source>Smaller Text</source>
        <translation>Mindre text</translation>
    </message>
    <message id="Larger Subtitles">
        <source>Larger Subtitles</source>
        <translation>Större undertexter</translation>
    </message>
    <message id="Smaller Subtitles">
        <source>Smaller Subtitles</source>
        <translation>Mindre undertexter</translation>
    </message>
    <message id="Subtitles larger and smaller">
        <source>Subtitles larger and smaller</source>
        <translation>Undertexter större och mindre</translation>
    </message>
    <message id="Higher">
        <source>Higher</source>
        <translation>Högre upp</translation>
    </message>
    <message id="Lower">
        <source>Lower</source>
        <translation>Längre ner</translation>
    </message>
    <message id="Higher Subtitles">
        <source>Higher Subtitles</source>
        <translation>Undertexter högre upp</translation>
    </message>
    <message id="Lower Subtitles">
        <source>Lower Subtitles</source>
        <translation>Undertexter längre ner</translation>
    </message>
    <message id="Subtitles higher and lower">
        <source>Subtitles higher and lower</source>
        <translation>Undertexter högre upp och längre ner</translation>
    </message>
    <message id="Subtitle delay: %@">
        <source>Subtitle delay: %@</source>
        <translation>Undertextfördröjning: %@</translation>
    </message>
    <message id="Subtitle size: %d">
        <source>Subtitle size: %d</source>
        <translation>Undertextstorlek: %d</translation>
    </message>
    <message id="Subtitle height: %d">
        <source>Subtitle height: %d %</source>
        <translation>Undertexthöjd: %d %</translation>
    </message>
    <message id="SubtitleLinesTooFar">
        <source>The lines cannot be brought in step: they would be more than twice as fast or as slow</source>
        <translation>Replikerna kan inte synkas: de skulle bli mer än dubbelt så snabba eller långsamma</translation>
    </message>
    <message id="Repair damaged subtitles">
        <source>Repair damaged subtitles</source>
        <translation>Reparera skadade undertexter</translation>
    </message>
    <message id="Next and previous screen">
        <source>Next and previous screen</source>
        <translation>Nästa och föregående skärm</translation>
    </message>
</context>
<context>
    <name>Text encodings</name>
    <message id="Western (ASCII)">
        <source>Western (ASCII)</source>
        <translation>Västeuropeisk (ASCII)</translation>
    </message>
    <message id="Western (ISO Latin 1)">
        <source>Western (ISO Latin 1)</source>
        <translation>Västeuropeisk (ISO Latin 1)</translation>
    </message>
    <message id="Western (ISO Latin 9)">
        <source>Western (ISO Latin 9)</source>
        <translation>Västeuropeisk (ISO Latin 9)</translation>
    </message>
    <message id="Western (Windows Latin 1)">
        <source>Western (Windows Latin 1)</source>
        <translation>Västeuropeisk (Windows Latin 1)</translation>
    </message>
    <message id="Western (Mac OS Roman)">
        <source>Western (Mac OS Roman)</source>
        <translation>Västeuropeisk (Mac OS Roman)</translation>
    </message>
    <message id="Western (DOS Latin 1)">
        <source>Western (DOS Latin 1)</source>
        <translation>Västeuropeisk (DOS Latin 1)</translation>
    </message>
    <message id="Latin-US (DOS)">
        <source>Latin-US (DOS)</source>
        <translation>Latin-USA (DOS)</translation>
    </message>
    <message id="Central European (ISO Latin 2)">
        <source>Central European (ISO Latin 2)</source>
        <translation>Centraleuropeisk (ISO Latin 2)</translation>
    </message>
    <message id="Central European (Windows Latin 2)">
        <source>Central European (Windows Latin 2)</source>
        <translation>Centraleuropeisk (Windows Latin 2)</translation>
    </message>
    <message id="Central European (Mac OS)">
        <source>Central European (Mac OS)</source>
        <translation>Centraleuropeisk (Mac OS)</translation>
    </message>
    <message id="Central European (DOS Latin 2)">
        <source>Central European (DOS Latin 2)</source>
        <translation>Centraleuropeisk (DOS Latin 2)</translation>
    </message>
    <message id="Western (ISO Latin 3)">
        <source>Western (ISO Latin 3)</source>
        <translation>Västeuropeisk (ISO Latin 3)</translation>
    </message>
    <message id="Central European (ISO Latin 4)">
        <source>Central European (ISO Latin 4)</source>
        <translation>Centraleuropeisk (ISO Latin 4)</translation>
    </message>
    <message id="Nordic (ISO Latin 6)">
        <source>Nordic (ISO Latin 6)</source>
        <translation>Nordisk (ISO Latin 6)</translation>
    </message>
    <message id="Icelandic (DOS)">
        <source>Icelandic (DOS)</source>
        <translation>Isländsk (DOS)</translation>
    </message>
    <message id="Nordic (DOS)">
        <source>Nordic (DOS)</source>
        <translation>Nordisk (DOS)</translation>
    </message>
    <message id="Baltic (ISO Latin 7)">
        <source>Baltic (ISO Latin 7)</source>
        <translation>Baltisk (ISO Latin 7)</translation>
    </message>
    <message id="Baltic (Windows)">
        <source>Baltic (Windows)</source>
        <translation>Baltisk (Windows)</translation>
    </message>
    <message id="Baltic (DOS)">
        <source>Baltic (DOS)</source>
        <translation>Baltisk (DOS)</translation>
    </message>
    <message id="Celtic (ISO Latin 8)">
        <source>Celtic (ISO Latin 8)</source>
        <translation>Keltisk (ISO Latin 8)</translation>
    </message>
    <message id="Cyrillic (ISO 8859-5)">
        <source>Cyrillic (ISO 8859-5)</source>
        <translation>Kyrillisk (ISO 8859-5)</translation>
    </message>
    <message id="Cyrillic (Windows)">
        <source>Cyrillic (Windows)</source>
        <translation>Kyrillisk (Windows)</translation>
    </message>
    <message id="Cyrillic (KOI8-R)">
        <source>Cyrillic (KOI8-R)</source>
        <translation>Kyrillisk (KOI8-R)</translation>
    </message>
    <message id="Ukrainian (KOI8-U)">
        <source>Ukrainian (KOI8-U)</source>
        <translation>Ukrainsk (KOI8-U)</translation>
    </message>
    <message id="Cyrillic (Mac OS)">
        <source>Cyrillic (Mac OS)</source>
        <translation>Kyrillisk (Mac OS)</translation>
    </message>
    <message id="Cyrillic (DOS)">
        <source>Cyrillic (DOS)</source>
        <translation>Kyrillisk (DOS)</translation>
    </message>
    <message id="Russian (DOS)">
        <source>Russian (DOS)</source>
        <translation>Rysk (DOS)</translation>
    </message>
    <message id="Greek (ISO 8859-7)">
        <source>Greek (ISO 8859-7)</source>
        <translation>Grekisk (ISO 8859-7)</translation>
    </message>
    <message id="Greek (Windows)">
        <source>Greek (Windows)</source>
        <translation>Grekisk (Windows)</translation>
    </message>
    <message id="Greek (Mac OS)">
        <source>Greek (Mac OS)</source>
        <translation>Grekisk (Mac OS)</translation>
    </message>
    <message id="Greek (DOS)">
        <source>Greek (DOS)</source>
        <translation>Grekisk (DOS)</translation>
    </message>
    <message id="Greek (DOS Greek 2)">
        <source>Greek (DOS Greek 2)</source>
        <translation>Grekisk (DOS Greek 2)</translation>
    </message>
    <message id="Turkish (ISO Latin 5)">
        <source>Turkish (ISO Latin 5)</source>
        <translation>Turkisk (ISO Latin 5)</translation>
    </message>
    <message id="Turkish (Windows Latin 5)">
        <source>Turkish (Windows Latin 5)</source>
        <translation>Turkisk (Windows Latin 5)</translation>
    </message>
    <message id="Turkish (Mac OS)">
        <source>Turkish (Mac OS)</source>
        <translation>Turkisk (Mac OS)</translation>
    </message>
    <message id="Turkish (DOS)">
        <source>Turkish (DOS)</source>
        <translation>Turkisk (DOS)</translation>
    </message>
    <message id="Hebrew (ISO 8859-8)">
        <source>Hebrew (ISO 8859-8)</source>
        <translation>Hebreisk (ISO 8859-8)</translation>
    </message>
    <message id="Hebrew (Windows)">
        <source>Hebrew (Windows)</source>
        <translation>Hebreisk (Windows)</translation>
    </message>
    <message id="Hebrew (DOS)">
        <source>Hebrew (DOS)</source>
        <translation>Hebreisk (DOS)</translation>
    </message>
    <message id="Arabic (ISO 8859-6)">
        <source>Arabic (ISO 8859-6)</source>
        <translation>Arabisk (ISO 8859-6)</translation>
    </message>
    <message id="Arabic (Windows)">
        <source>Arabic (Windows)</source>
        <translation>Arabisk (Windows)</translation>
    </message>
    <message id="Arabic (DOS)">
        <source>Arabic (DOS)</source>
        <translation>Arabisk (DOS)</translation>
    </message>
    <message id="Portuguese (DOS)">
        <source>Portuguese (DOS)</source>
        <translation>Portugisisk (DOS)</translation>
    </message>
    <message id="Canadian French (DOS)">
        <source>Canadian French (DOS)</source>
        <translation>Kanadensisk franska (DOS)</translation>
    </message>
    <message id="Thai (ISO 8859-11)">
        <source>Thai (ISO 8859-11)</source>
        <translation>Thailändsk (ISO 8859-11)</translation>
    </message>
    <message id="Thai (Windows, DOS)">
        <source>Thai (Windows, DOS)</source>
        <translation>Thailändsk (Windows, DOS)</translation>
    </message>
    <message id="Vietnamese (Windows)">
        <source>Vietnamese (Windows)</source>
        <translation>Vietnamesisk (Windows)</translation>
    </message>
    <message id="Japanese (Shift JIS)">
        <source>Japanese (Shift JIS)</source>
        <translation>Japansk (Shift JIS)</translation>
    </message>
    <message id="Japanese (Windows, DOS)">
        <source>Japanese (Windows, DOS)</source>
        <translation>Japansk (Windows, DOS)</translation>
    </message>
    <message id="Japanese (EUC)">
        <source>Japanese (EUC)</source>
        <translation>Japansk (EUC)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP)">
        <source>Japanese (ISO 2022-JP)</source>
        <translation>Japansk (ISO 2022-JP)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-2)">
        <source>Japanese (ISO 2022-JP-2)</source>
        <translation>Japansk (ISO 2022-JP-2)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-1)">
        <source>Japanese (ISO 2022-JP-1)</source>
        <translation>Japansk (ISO 2022-JP-1)</translation>
    </message>
    <message id="Chinese (GB 18030)">
        <source>Chinese (GB 18030)</source>
        <translation>Kinesisk (GB 18030)</translation>
    </message>
    <message id="Simplified Chinese (GBK)">
        <source>Simplified Chinese (GBK)</source>
        <translation>Förenklad kinesiska (GBK)</translation>
    </message>
    <message id="Simplified Chinese (Windows, DOS)">
        <source>Simplified Chinese (Windows, DOS)</source>
        <translation>Förenklad kinesiska (Windows, DOS)</translation>
    </message>
    <message id="Simplified Chinese (GB 2312)">
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Förenklad kinesiska (GB 2312)</translation>
    </message>
    <message id="Simplified Chinese (HZ GB 2312)">
        <source>Simplified Chinese (HZ GB 2312)</source>
        <translation>Förenklad kinesiska (HZ GB 2312)</translation>
    </message>
    <message id="Chinese (ISO 2022-CN)">
        <source>Chinese (ISO 2022-CN)</source>
        <translation>Kinesisk (ISO 2022-CN)</translation>
    </message>
    <message id="Traditional Chinese (Big 5)">
        <source>Traditional Chinese (Big 5)</source>
        <translation>Traditionell kinesiska (Big 5)</translation>
    </message>
    <message id="Traditional Chinese (Big 5 HKSCS)">
        <source>Traditional Chinese (Big 5 HKSCS)</source>
        <translation>Traditionell kinesiska (Big 5 HKSCS)</translation>
    </message>
    <message id="Traditional Chinese (Windows, DOS)">
        <source>Traditional Chinese (Windows, DOS)</source>
        <translation>Traditionell kinesiska (Windows, DOS)</translation>
    </message>
    <message id="Traditional Chinese (EUC)">
        <source>Traditional Chinese (EUC)</source>
        <translation>Traditionell kinesiska (EUC)</translation>
    </message>
    <message id="Korean (EUC)">
        <source>Korean (EUC)</source>
        <translation>Koreansk (EUC)</translation>
    </message>
    <message id="Korean (Windows, DOS)">
        <source>Korean (Windows, DOS)</source>
        <translation>Koreansk (Windows, DOS)</translation>
    </message>
    <message id="Korean (ISO 2022-KR)">
        <source>Korean (ISO 2022-KR)</source>
        <translation>Koreansk (ISO 2022-KR)</translation>
    </message>
</context>
<context>
    <name>Overlay styles</name>
    <message id="StyleText">
        <source>Text</source>
        <translation>Text</translation>
    </message>
    <message id="StyleTextColor">
        <source>&amp;Color:</source>
        <translation>Fä&amp;rg:</translation>
    </message>
    <message id="StyleTextColorTip">
        <source>The color of the letters, and of the line around the panel</source>
        <translation>Färgen på bokstäverna och på linjen runt panelen</translation>
    </message>
    <message id="StyleTextFontName">
        <source>&amp;Font:</source>
        <translation>T&amp;ypsnitt:</translation>
    </message>
    <message id="StyleTextFontNameTip">
        <source>The family of the letters</source>
        <translation>Bokstävernas typsnittsfamilj</translation>
    </message>
    <message id="StyleTextFontSize">
        <source>Si&amp;ze:</source>
        <translation>&amp;Storlek:</translation>
    </message>
    <message id="StyleTextFontSizeTip">
        <source>In points of a screen 1080 points high; on a higher one, letters grow with it</source>
        <translation>I punkter på en skärm som är 1080 punkter hög; på en högre skärm växer bokstäverna med den</translation>
    </message>
    <message id="StyleShadow">
        <source>Shadow</source>
        <translation>Skugga</translation>
    </message>
    <message id="StyleShadowOn">
        <source>Draw a &amp;shadow</source>
        <translation>Rita &amp;en skugga</translation>
    </message>
    <message id="StyleShadowOnTip">
        <source>A shadow keeps letters legible on any picture</source>
        <translation>En skugga gör bokstäver läsbara på alla bilder</translation>
    </message>
    <message id="StyleShadowColor">
        <source>Co&amp;lor:</source>
        <translation>Fär&amp;g:</translation>
    </message>
    <message id="StyleShadowColorTip">
        <source>The color of the shadow, and how much shows through it</source>
        <translation>Skuggans färg, och hur mycket som syns igenom den</translation>
    </message>
    <message id="StyleShadowBlur">
        <source>&amp;Blur:</source>
        <translation>Os&amp;kärpa:</translation>
    </message>
    <message id="StyleShadowBlurTip">
        <source>How far the shadow’s edge is spread, in points</source>
        <translation>Hur brett skuggans kant tonar ut, i punkter</translation>
    </message>
    <message id="StyleShadowOffsetX">
        <source>To the &amp;right:</source>
        <translation>Åt &amp;höger:</translation>
    </message>
    <message id="StyleShadowOffsetXTip">
        <source>How far the shadow falls to the right, in points; below 0, to the left</source>
        <translation>Hur långt skuggan faller åt höger, i punkter; under 0 åt vänster</translation>
    </message>
    <message id="StyleShadowOffsetY">
        <source>&amp;Upwards:</source>
        <translation>&amp;Uppåt:</translation>
    </message>
    <message id="StyleShadowOffsetYTip">
        <source>How far the shadow falls upwards, in points; below 0, downwards</source>
        <translation>Hur långt skuggan faller uppåt, i punkter; under 0 nedåt</translation>
    </message>
    <message id="StylePosition">
        <source>Position</source>
        <translation>Placering</translation>
    </message>
    <message id="StyleAlignmentVertical">
        <source>&amp;Vertical:</source>
        <translation>&amp;Lodrätt:</translation>
    </message>
    <message id="StyleAlignmentVerticalTip">
        <source>At what height it stands</source>
        <translation>På vilken höjd den står</translation>
    </message>
    <message id="StyleAlignmentHorizontal">
        <source>&amp;Horizontal:</source>
        <translation>&amp;Vågrätt:</translation>
    </message>
    <message id="StyleAlignmentHorizontalTip">
        <source>At which side of the screen it stands</source>
        <translation>På vilken sida av skärmen den står</translation>
    </message>
    <message id="StyleLeft">
        <source>Left</source>
        <translation>Vänster</translation>
    </message>
    <message id="StyleCenter">
        <source>Center</source>
        <translation>Mitten</translation>
    </message>
    <message id="StyleRight">
        <source>Right</source>
        <translation>Höger</translation>
    </message>
    <message id="StyleTop">
        <source>Top</source>
        <translation>Överst</translation>
    </message>
    <message id="StyleMiddle">
        <source>Middle</source>
        <translation>Mitten</translation>
    </message>
    <message id="StyleBottom">
        <source>Bottom</source>
        <translation>Nederst</translation>
    </message>
    <message id="StyleAbovePictureEdge">
        <source>Inside the picture</source>
        <translation>Inuti bilden</translation>
    </message>
    <message id="StyleOnPictureEdge">
        <source>On the picture’s edge</source>
        <translation>På bildens kant</translation>
    </message>
    <message id="StyleBelowPicture">
        <source>Below the picture</source>
        <translation>Under bilden</translation>
    </message>
    <message id="StylePanel">
        <source>Panel</source>
        <translation>Panel</translation>
    </message>
    <message id="StyleBackground">
        <source>Background</source>
        <translation>Bakgrund</translation>
    </message>
    <message id="StyleBackgroundTip">
        <source>The color around the picture</source>
        <translation>Färgen runt bilden</translation>
    </message>
    <message id="StyleBackgroundOn">
        <source>Draw a &amp;panel</source>
        <translation>Rita en &amp;panel</translation>
    </message>
    <message id="StyleBackgroundOnTip">
        <source>A panel behind the text</source>
        <translation>En panel bakom texten</translation>
    </message>
    <message id="StyleBackgroundColor">
        <source>Col&amp;or:</source>
        <translation>&amp;Färg:</translation>
    </message>
    <message id="StyleBackgroundColorTip">
        <source>The color of the panel, and how much shows through it</source>
        <translation>Panelens färg, och hur mycket som syns igenom den</translation>
    </message>
    <message id="StyleBackgroundRounded">
        <source>Rou&amp;nd corners</source>
        <translation>Run&amp;dade hörn</translation>
    </message>
    <message id="StyleBackgroundRoundedTip">
        <source>Corners of the panel are rounded</source>
        <translation>Panelens hörn är rundade</translation>
    </message>
    <message id="StyleBackgroundRadius">
        <source>R&amp;adius:</source>
        <translation>Rad&amp;ie:</translation>
    </message>
    <message id="StyleBackgroundRadiusTip">
        <source>How far the corners are rounded, in points</source>
        <translation>Hur mycket hörnen är rundade, i punkter</translation>
    </message>
    <message id="StyleFrameOn">
        <source>Draw a fra&amp;me</source>
        <translation>Rita en ra&amp;m</translation>
    </message>
    <message id="StyleFrameOnTip">
        <source>A line around the panel, in the text’s color</source>
        <translation>En linje runt panelen, i textens färg</translation>
    </message>
    <message id="StyleFrameWidth">
        <source>&amp;Width:</source>
        <translation>&amp;Bredd:</translation>
    </message>
    <message id="StyleFrameWidthTip">
        <source>How wide the line is, in points</source>
        <translation>Hur bred linjen är, i punkter</translation>
    </message>
    <message id="StyleFading">
        <source>Fading and opacity</source>
        <translation>Toning och opacitet</translation>
    </message>
    <message id="StyleFadingIn">
        <source>Fade &amp;in:</source>
        <translation>&amp;Tona in:</translation>
    </message>
    <message id="StyleFadingInTip">
        <source>How long a whole fade takes when it appears; 0 shows it at once</source>
        <translation>Hur lång tid en hel intoning tar; 0 visar direkt</translation>
    </message>
    <message id="StyleFadingOut">
        <source>Fad&amp;e out:</source>
        <translation>To&amp;na ut:</translation>
    </message>
    <message id="StyleFadingOutTip">
        <source>How long a whole fade takes when it goes; 0 hides it at once</source>
        <translation>Hur lång tid en hel uttoning tar; 0 döljer direkt</translation>
    </message>
    <message id="StyleFadingDelay">
        <source>S&amp;tay:</source>
        <translation>St&amp;anna:</translation>
    </message>
    <message id="StyleFadingDelayTip">
        <source>How long it stays between fading in and fading out</source>
        <translation>Hur länge den stannar mellan intoning och uttoning</translation>
    </message>
    <message id="StyleMinAlpha">
        <source>Opacity when hi&amp;dden:</source>
        <translation>Opa&amp;citet dold:</translation>
    </message>
    <message id="StyleMinAlphaTip">
        <source>How much of it remains while it is hidden: 0 % is nothing</source>
        <translation>Hur mycket som är kvar när den är dold: 0 % är ingenting</translation>
    </message>
    <message id="StyleMaxAlpha">
        <source>Opacit&amp;y when shown:</source>
        <translation>&amp;Opacitet visad:</translation>
    </message>
    <message id="StyleMaxAlphaTip">
        <source>How opaque it is while it is shown: below 100 % the picture shows through</source>
        <translation>Hur täckande den är när den visas: under 100 % syns bilden igenom</translation>
    </message>
    <message id="StyleReset">
        <source>Reset to Defaults</source>
        <translation>Återställ till standard</translation>
    </message>
    <message id="StyleResetTip">
        <source>Takes this style back to what it was at first</source>
        <translation>Återställer stilen till hur den var från början</translation>
    </message>
    <message id="StyleResetUndo">
        <source>Undo Reset</source>
        <translation>Ångra återställning</translation>
    </message>
    <message id="StyleResetUndoTip">
        <source>Brings back what the style was before</source>
        <translation>Tar tillbaka hur stilen var innan</translation>
    </message>
    <message id="StyleSeconds">
        <source>%@ s</source>
        <translation>%@ s</translation>
    </message>
    <message id="StylePercent">
        <source>%@ %</source>
        <translation>%@ %</translation>
    </message>
    <message id="StyleSample">
        <source>Sample</source>
        <translation>Exempel</translation>
    </message>
    <message id="StyleSampleTip">
        <source>What it looks like over the movie, or over a light and a dark picture</source>
        <translation>Hur det ser ut över filmen, eller över en ljus och en mörk bild</translation>
    </message>
    <message id="StyleSampleSubtitle">
        <source>What an evening!</source>
        <translation>Vilken kväll!</translation>
    </message>
    <message id="StyleSampleFeedback">
        <source>Volume: 80 %</source>
        <translation>Volym: 80 %</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message id="Preferences">
        <source>Preferences</source>
        <translation>Inställningar</translation>
    </message>
    <message id="&amp;Movie">
        <source>&amp;Movie</source>
        <translation>&amp;Film</translation>
    </message>
    <message id="Started Without a File">
        <source>Started Without a File</source>
        <translation>Start utan fil</translation>
    </message>
    <message id="Open &amp;nothing">
        <source>Open &amp;nothing</source>
        <translation>&amp;Öppna inget</translation>
    </message>
    <message id="Lumaro starts with an empty screen">
        <source>Lumaro starts with an empty screen</source>
        <translation>Lumaro börjar med tom skärm</translation>
    </message>
    <message id="Open the &amp;last playlist">
        <source>Open the &amp;last playlist</source>
        <translation>Öppna &amp;den senaste spellistan</translation>
    </message>
    <message id="The movies of the last time come back, at the place where they were left">
        <source>The movies of the last time come back, at the place where they were left</source>
        <translation>Filmerna från förra gången kommer tillbaka, där de lämnades</translation>
    </message>
    <message id="Ask for &amp;files">
        <source>Ask for &amp;files</source>
        <translation>Frå&amp;ga efter filer</translation>
    </message>
    <message id="Lumaro begins with the panel that opens movies">
        <source>Lumaro begins with the panel that opens movies</source>
        <translation>Lumaro börjar med fönstret som öppnar filmer</translation>
    </message>
    <message id="Picture">
        <source>Picture</source>
        <translation>Bild</translation>
    </message>
    <message id="Si&amp;ze:">
        <source>Si&amp;ze:</source>
        <translation>S&amp;torlek:</translation>
    </message>
    <message id="How large movies are shown, from now on and at the next start">
        <source>How large movies are shown, from now on and at the next start</source>
        <translation>Hur stora filmer visas, från och med nu och vid nästa start</translation>
    </message>
    <message id="Custom Magnification">
        <source>Custom Magnification</source>
        <translation>Anpassad förstoring</translation>
    </message>
    <message id="&amp;Window:">
        <source>&amp;Window:</source>
        <translation>Fönste&amp;r:</translation>
    </message>
    <message id="Whether the movie stays above the windows of other programs while Lumaro has the keyboard">
        <source>Whether the movie stays above the windows of other programs while Lumaro has the keyboard</source>
        <translation>Om filmen ligger över andra programs fönster när Lumaro är aktivt</translation>
    </message>
    <message id="Bar over the p&amp;icture:">
        <source>Bar over the p&amp;icture:</source>
        <translation>Fält över &amp;bilden:</translation>
    </message>
    <message id="Where none stands below it: a larger bar that comes with the pointer, or stays">
        <source>Where none stands below it: a larger bar that comes with the pointer, or stays</source>
        <translation>Där inget står under den: ett större fält som kommer med pekaren, eller stannar</translation>
    </message>
    <message id="Always">
        <source>Always</source>
        <translation>Alltid</translation>
    </message>
    <message id="When the pointer moves">
        <source>When the pointer moves</source>
        <translation>När pekaren rör sig</translation>
    </message>
    <message id="Among other windows">
        <source>Among other windows</source>
        <translation>Bland andra fönster</translation>
    </message>
    <message id="Above other windows">
        <source>Above other windows</source>
        <translation>Över andra fönster</translation>
    </message>
    <message id="Show the controller &amp;bar">
        <source>Show the controller &amp;bar</source>
        <translation>Visa k&amp;ontrollfältet</translation>
    </message>
    <message id="The bar with play, time and volume below the picture">
        <source>The bar with play, time and volume below the picture</source>
        <translation>Fältet med uppspelning, tid och volym under bilden</translation>
    </message>
    <message id="Set the screen’s bri&amp;ghtness:">
        <source>Set the screen’s bri&amp;ghtness:</source>
        <translation>Ställ in skärmens ljusst&amp;yrka:</translation>
    </message>
    <message id="As long as Lumaro runs; then the screen is as bright as before">
        <source>As long as Lumaro runs; then the screen is as bright as before</source>
        <translation>Så länge Lumaro körs; sedan är skärmen lika ljus som förut</translation>
    </message>
    <message id="How bright the screen is while Lumaro runs">
        <source>How bright the screen is while Lumaro runs</source>
        <translation>Hur ljus skärmen är medan Lumaro körs</translation>
    </message>
    <message id="Brightness of the screen">
        <source>Brightness of the screen</source>
        <translation>Skärmens ljusstyrka</translation>
    </message>
    <message id="Pictur&amp;e">
        <source>Pictur&amp;e</source>
        <translation>B&amp;ild</translation>
    </message>
    <message id="Co&amp;ntrast:">
        <source>Co&amp;ntrast:</source>
        <translation>K&amp;ontrast:</translation>
    </message>
    <message id="&amp;Brightness:">
        <source>&amp;Brightness:</source>
        <translation>&amp;Ljusstyrka:</translation>
    </message>
    <message id="&amp;Gamma:">
        <source>&amp;Gamma:</source>
        <translation>&amp;Gamma:</translation>
    </message>
    <message id="Sa&amp;turation:">
        <source>Sa&amp;turation:</source>
        <translation>&amp;Mättnad:</translation>
    </message>
    <message id="&amp;Hue:">
        <source>&amp;Hue:</source>
        <translation>&amp;Nyans:</translation>
    </message>
    <message id="Every movie is shown with it, the one on the screen at once">
        <source>Every movie is shown with it, the one on the screen at once</source>
        <translation>Alla filmer visas så, den på skärmen genast</translation>
    </message>
    <message id="The brightness of this screen can’t be set">
        <source>The brightness of this screen can’t be set</source>
        <translation>Den här skärmens ljusstyrka kan inte ställas in</translation>
    </message>
    <message id="Playing">
        <source>Playing</source>
        <translation>Uppspelning</translation>
    </message>
    <message id="&amp;Jump by:">
        <source>&amp;Jump by:</source>
        <translation>&amp;Hoppa:</translation>
    </message>
    <message id="How many seconds a jump goes forward or back">
        <source>How many seconds a jump goes forward or back</source>
        <translation>Hur många sekunder ett hopp går framåt eller bakåt</translation>
    </message>
    <message id="seconds">
        <source>seconds</source>
        <translation>sekunder</translation>
    </message>
    <message id="&amp;Keep the volume for the next start">
        <source>&amp;Keep the volume for the next start</source>
        <translation>Behåll volymen till &amp;nästa start</translation>
    </message>
    <message id="Lumaro begins as loud as it ended">
        <source>Lumaro begins as loud as it ended</source>
        <translation>Lumaro börjar lika högt som det slutade</translation>
    </message>
    <message id="While Another Program Has the Keyboard">
        <source>While Another Program Has the Keyboard</source>
        <translation>Medan ett annat program är aktivt</translation>
    </message>
    <message id="Pa&amp;use the movie">
        <source>Pa&amp;use the movie</source>
        <translation>Pausa film&amp;en</translation>
    </message>
    <message id="It goes on when you come back">
        <source>It goes on when you come back</source>
        <translation>Den fortsätter när du kommer tillbaka</translation>
    </message>
    <message id="&amp;Hide the window">
        <source>&amp;Hide the window</source>
        <translation>Döl&amp;j fönstret</translation>
    </message>
    <message id="The window is minimized, and comes back with Lumaro">
        <source>The window is minimized, and comes back with Lumaro</source>
        <translation>Fönstret minimeras och kommer tillbaka med Lumaro</translation>
    </message>
    <message id="Go on where a mo&amp;vie was left">
        <source>Go on where a mo&amp;vie was left</source>
        <translation>Fortsätt där filmen &amp;lämnades</translation>
    </message>
    <message id="The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them">
        <source>The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them</source>
        <translation>Positioner och undertexter för de senaste tusen filmerna sparas, och menyn ”Öppna senaste” listar dem</translation>
    </message>
    <message id="&amp;Playlist">
        <source>&amp;Playlist</source>
        <translation>S&amp;pellista</translation>
    </message>
    <message id="Order">
        <source>Order</source>
        <translation>Ordning</translation>
    </message>
    <message id="As adde&amp;d">
        <source>As adde&amp;d</source>
        <translation>Som &amp;tillagda</translation>
    </message>
    <message id="Movies play in the order in which they were given">
        <source>Movies play in the order in which they were given</source>
        <translation>Filmer spelas i den ordning de angavs</translation>
    </message>
    <message id="Shu&amp;ffled">
        <source>Shu&amp;ffled</source>
        <translation>&amp;Blandat</translation>
    </message>
    <message id="Movies play in an order left to chance">
        <source>Movies play in an order left to chance</source>
        <translation>Filmer spelas i slumpmässig ordning</translation>
    </message>
    <message id="Sor&amp;ted">
        <source>Sor&amp;ted</source>
        <translation>S&amp;orterat</translation>
    </message>
    <message id="Movies play by their names">
        <source>Movies play by their names</source>
        <translation>Filmer spelas efter namn</translation>
    </message>
    <message id="Compare &amp;numbers by value">
        <source>Compare &amp;numbers by value</source>
        <translation>&amp;Jämför tal efter värde</translation>
    </message>
    <message id="Part 2 comes before part 10">
        <source>Part 2 comes before part 10</source>
        <translation>Del 2 kommer före del 10</translation>
    </message>
    <message id="By the &amp;whole path">
        <source>By the &amp;whole path</source>
        <translation>Efter &amp;hela sökvägen</translation>
    </message>
    <message id="Folders stay together">
        <source>Folders stay together</source>
        <translation>Mappar hålls samman</translation>
    </message>
    <message id="By the f&amp;ile name only">
        <source>By the f&amp;ile name only</source>
        <translation>Bara &amp;efter filnamnet</translation>
    </message>
    <message id="Whatever folders the movies lie in">
        <source>Whatever folders the movies lie in</source>
        <translation>Oavsett vilka mappar filmerna ligger i</translation>
    </message>
    <message id="&amp;Looping:">
        <source>&amp;Looping:</source>
        <translation>Upp&amp;repning:</translation>
    </message>
    <message id="What is repeated, from now on and in new playlists">
        <source>What is repeated, from now on and in new playlists</source>
        <translation>Vad som upprepas, från och med nu och i nya spellistor</translation>
    </message>
    <message id="&amp;Begin to play what is opened">
        <source>&amp;Begin to play what is opened</source>
        <translation>Spela &amp;det som öppnas</translation>
    </message>
    <message id="Else movies are shown and wait">
        <source>Else movies are shown and wait</source>
        <translation>Annars visas filmer och väntar</translation>
    </message>
    <message id="&amp;Go on with the next movie">
        <source>&amp;Go on with the next movie</source>
        <translation>&amp;Gå vidare till nästa film</translation>
    </message>
    <message id="When one ends, the next in the list plays">
        <source>When one ends, the next in the list plays</source>
        <translation>När en slutar spelas nästa i listan</translation>
    </message>
    <message id="&amp;Quit at the end of the list">
        <source>&amp;Quit at the end of the list</source>
        <translation>Avsluta &amp;när listan är slut</translation>
    </message>
    <message id="Unless it is repeated">
        <source>Unless it is repeated</source>
        <translation>Om den inte upprepas</translation>
    </message>
    <message id="&amp;Subtitles">
        <source>&amp;Subtitles</source>
        <translation>&amp;Undertexter</translation>
    </message>
    <message id="Showing">
        <source>Showing</source>
        <translation>Visning</translation>
    </message>
    <message id="S&amp;how subtitles">
        <source>S&amp;how subtitles</source>
        <translation>Visa und&amp;ertexter</translation>
    </message>
    <message id="Also for movies opened later">
        <source>Also for movies opened later</source>
        <translation>Även för filmer som öppnas senare</translation>
    </message>
    <message id="Draw mark&amp;up">
        <source>Draw mark&amp;up</source>
        <translation>Använd f&amp;ormatering</translation>
    </message>
    <message id="Italics, colors and places in subtitle files act; else they are left out">
        <source>Italics, colors and places in subtitle files act; else they are left out</source>
        <translation>Kursiv stil, färger och placeringar i undertextfiler gäller; annars utelämnas de</translation>
    </message>
    <message id="&amp;Find subtitle files beside movies">
        <source>&amp;Find subtitle files beside movies</source>
        <translation>Sök undertextfiler &amp;bredvid filmer</translation>
    </message>
    <message id="When a movie is opened">
        <source>When a movie is opened</source>
        <translation>När en film öppnas</translation>
    </message>
    <message id="Files">
        <source>Files</source>
        <translation>Filer</translation>
    </message>
    <message id="E&amp;ncoding:">
        <source>E&amp;ncoding:</source>
        <translation>Kodnin&amp;g:</translation>
    </message>
    <message id="How the letters of subtitle files are stored; Automatic tells it by the file">
        <source>How the letters of subtitle files are stored; Automatic tells it by the file</source>
        <translation>Hur bokstäverna i undertextfiler är lagrade; ”Automatiskt” avgör det efter filen</translation>
    </message>
    <message id="Encoding of subtitle files">
        <source>Encoding of subtitle files</source>
        <translation>Kodning av undertextfiler</translation>
    </message>
    <message id="Frame ra&amp;te:">
        <source>Frame ra&amp;te:</source>
        <translation>Bil&amp;der per sekund:</translation>
    </message>
    <message id="For subtitle files that count pictures instead of seconds">
        <source>For subtitle files that count pictures instead of seconds</source>
        <translation>För undertextfiler som räknar bilder i stället för sekunder</translation>
    </message>
    <message id="As the movie">
        <source>As the movie</source>
        <translation>Som filmen</translation>
    </message>
    <message id="Repair &amp;damaged subtitle files">
        <source>Repair &amp;damaged subtitle files</source>
        <translation>&amp;Reparera skadade undertextfiler</translation>
    </message>
    <message id="What is damaged is read as far as it can be">
        <source>What is damaged is read as far as it can be</source>
        <translation>Det som är skadat läses så långt det går</translation>
    </message>
    <message id="Preferred Languages">
        <source>Preferred Languages</source>
        <translation>Föredragna språk</translation>
    </message>
    <message id="Preferred languages">
        <source>Preferred languages</source>
        <translation>Föredragna språk</translation>
    </message>
    <message id="Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.">
        <source>Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.</source>
        <translation>Filmer börjar med undertexter på det första av dessa språk som finns. Från början är det systemets språk.</translation>
    </message>
    <message id="Add a language">
        <source>Add a language</source>
        <translation>Lägg till ett språk</translation>
    </message>
    <message id="Adds a language to the list">
        <source>Adds a language to the list</source>
        <translation>Lägger till ett språk i listan</translation>
    </message>
    <message id="Hi&amp;gher">
        <source>Hi&amp;gher</source>
        <translation>Fl&amp;ytta upp</translation>
    </message>
    <message id="Moves the language up the list">
        <source>Moves the language up the list</source>
        <translation>Flyttar språket uppåt i listan</translation>
    </message>
    <message id="Lo&amp;wer">
        <source>Lo&amp;wer</source>
        <translation>Flytta &amp;ner</translation>
    </message>
    <message id="Moves the language down the list">
        <source>Moves the language down the list</source>
        <translation>Flyttar språket nedåt i listan</translation>
    </message>
    <message id="Remo&amp;ve">
        <source>Remo&amp;ve</source>
        <translation>&amp;Ta bort</translation>
    </message>
    <message id="Takes the language off the list">
        <source>Takes the language off the list</source>
        <translation>Tar bort språket från listan</translation>
    </message>
    <message id="&amp;Overlays">
        <source>&amp;Overlays</source>
        <translation>Ö&amp;verlägg</translation>
    </message>
    <message id="Smallest &amp;text size:">
        <source>Smallest &amp;text size:</source>
        <translation>Minsta &amp;textstorlek:</translation>
    </message>
    <message id="No text over the movie is smaller">
        <source>No text over the movie is smaller</source>
        <translation>Ingen text över filmen är mindre</translation>
    </message>
    <message id="&amp;Distance from the edges:">
        <source>&amp;Distance from the edges:</source>
        <translation>Avstå&amp;nd från kanterna:</translation>
    </message>
    <message id="How far what is shown over the movie keeps from the edges of the window">
        <source>How far what is shown over the movie keeps from the edges of the window</source>
        <translation>Hur långt från fönstrets kanter det som visas över filmen håller sig</translation>
    </message>
    <message id="Show &amp;feedback">
        <source>Show &amp;feedback</source>
        <translation>Visa &amp;meddelanden</translation>
    </message>
    <message id="Commands say what they did">
        <source>Commands say what they did</source>
        <translation>Kommandon säger vad de gjorde</translation>
    </message>
    <message id="&amp;Keep the display for the next start">
        <source>&amp;Keep the display for the next start</source>
        <translation>&amp;Behåll visningen till nästa start</translation>
    </message>
    <message id="The on-screen display chosen last is shown again">
        <source>The on-screen display chosen last is shown again</source>
        <translation>Den senast valda visningen på skärmen visas igen</translation>
    </message>
    <message id="How texts over the movie and the window look">
        <source>How texts over the movie and the window look</source>
        <translation>Hur texter över filmen och fönstret ser ut</translation>
    </message>
    <message id="Overlay styles">
        <source>Overlay styles</source>
        <translation>Stilar för överlägg</translation>
    </message>
    <message id="How subtitles look">
        <source>How subtitles look</source>
        <translation>Hur undertexter ser ut</translation>
    </message>
    <message id="Subtitle styles">
        <source>Subtitle styles</source>
        <translation>Stilar för undertexter</translation>
    </message>
    <message id="&amp;Advanced">
        <source>&amp;Advanced</source>
        <translation>&amp;Avancerat</translation>
    </message>
    <message id="Pointer">
        <source>Pointer</source>
        <translation>Pekare</translation>
    </message>
    <message id="&amp;Hide after:">
        <source>&amp;Hide after:</source>
        <translation>&amp;Dölj efter:</translation>
    </message>
    <message id="How long the pointer rests before it is hidden">
        <source>How long the pointer rests before it is hidden</source>
        <translation>Hur länge pekaren vilar innan den döljs</translation>
    </message>
    <message id="New Versions">
        <source>New Versions</source>
        <translation>Nya versioner</translation>
    </message>
    <message id="The packages of your system keep Lumaro up to date.">
        <source>The packages of your system keep Lumaro up to date.</source>
        <translation>Systemets paket håller Lumaro uppdaterat.</translation>
    </message>
    <message id="Look for new &amp;versions">
        <source>Look for new &amp;versions</source>
        <translation>Sök &amp;efter nya versioner</translation>
    </message>
    <message id="When Lumaro starts, as often as is set below">
        <source>When Lumaro starts, as often as is set below</source>
        <translation>När Lumaro startar, så ofta som anges nedan</translation>
    </message>
    <message id="Also for &amp;beta versions">
        <source>Also for &amp;beta versions</source>
        <translation>Även &amp;betaversioner</translation>
    </message>
    <message id="Versions that are still being tried">
        <source>Versions that are still being tried</source>
        <translation>Versioner som fortfarande provas ut</translation>
    </message>
    <message id="Ho&amp;w often:">
        <source>Ho&amp;w often:</source>
        <translation>&amp;Hur ofta:</translation>
    </message>
    <message id="How much time passes between two checks">
        <source>How much time passes between two checks</source>
        <translation>Hur lång tid det går mellan två sökningar</translation>
    </message>
    <message id="At every start">
        <source>At every start</source>
        <translation>Vid varje start</translation>
    </message>
    <message id="Daily">
        <source>Daily</source>
        <translation>Varje dag</translation>
    </message>
    <message id="Weekly">
        <source>Weekly</source>
        <translation>Varje vecka</translation>
    </message>
    <message id="Every 30 days">
        <source>Every 30 days</source>
        <translation>Var 30:e dag</translation>
    </message>
    <message id="Last check:">
        <source>Last check:</source>
        <translation>Senaste sökning:</translation>
    </message>
    <message id="Result:">
        <source>Result:</source>
        <translation>Resultat:</translation>
    </message>
    <message id="Check &amp;Now">
        <source>Check &amp;Now</source>
        <translation>Sök &amp;nu</translation>
    </message>
    <message id="Looks for a new version at once">
        <source>Looks for a new version at once</source>
        <translation>Söker genast efter en ny version</translation>
    </message>
    <message id="Diagnosis">
        <source>Diagnosis</source>
        <translation>Felsökning</translation>
    </message>
    <message id="Remote">
        <source>Remote</source>
        <translation>Fjärrkontroll</translation>
    </message>
    <message id="Act on in&amp;frared remotes">
        <source>Act on in&amp;frared remotes</source>
        <translation>L&amp;yssna på infraröda fjärrkontroller</translation>
    </message>
    <message id="Their buttons are the player's alone while it runs">
        <source>Their buttons are the player's alone while it runs</source>
        <translation>Deras knappar är spelarens ensak så länge den körs</translation>
    </message>
    <message id="&amp;Log what happens">
        <source>&amp;Log what happens</source>
        <translation>&amp;Logga vad som händer</translation>
    </message>
    <message id="Lines for whoever looks for an error, in the system log or the terminal">
        <source>Lines for whoever looks for an error, in the system log or the terminal</source>
        <translation>Rader för den som letar efter ett fel, i systemloggen eller terminalen</translation>
    </message>
    <message id="&amp;Reset Page">
        <source>&amp;Reset Page</source>
        <translation>Återställ &amp;sidan</translation>
    </message>
    <message id="Takes the settings of this page back to what they were at first. Styles have a button of their own.">
        <source>Takes the settings of this page back to what they were at first. Styles have a button of their own.</source>
        <translation>Återställer sidans inställningar till hur de var från början. Stilar har en egen knapp.</translation>
    </message>
    <message id="Undo Reset">
        <source>Undo Reset</source>
        <translation>Ångra återställning</translation>
    </message>
    <message id="Brings the settings of this page back (Ctrl+Z)">
        <source>Brings the settings of this page back (Ctrl+Z)</source>
        <translation>Tar tillbaka sidans inställningar (Ctrl+Z)</translation>
    </message>
    <message id="Find a setting">
        <source>Find a setting</source>
        <translation>Sök en inställning</translation>
    </message>
    <message id="Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.">
        <source>Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.</source>
        <translation>Söker en inställning efter dess ord (Ctrl+F). Upp och Ner går till de andra, Retur till själva inställningen.</translation>
    </message>
    <message id="PreferencesFound">
        <source>%d of %d</source>
        <translation>%d av %d</translation>
    </message>
    <message id="Nothing found">
        <source>Nothing found</source>
        <translation>Inget hittades</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Stäng</translation>
    </message>
    <message id="More Encodings">
        <source>More Encodings</source>
        <translation>Fler kodningar</translation>
    </message>
    <message id="%d sec.">
        <source>%d sec.</source>
        <translation>%d s</translation>
    </message>
    <message id="%d pt">
        <source>%d pt</source>
        <translation>%d pt</translation>
    </message>
    <message id="Search: %@">
        <source>Search: %@</source>
        <translation>Sök: %@</translation>
    </message>
    <message id="Type to search">
        <source>Type to search</source>
        <translation>Skriv för att söka</translation>
    </message>
    <message id="Change the preferences">
        <source>Change the preferences</source>
        <translation>Ändra inställningarna</translation>
    </message>
    <message id="Feedback style">
        <source>Feedback</source>
        <translation>Meddelanden</translation>
    </message>
    <message id="Text style">
        <source>Texts</source>
        <translation>Texter</translation>
    </message>
    <message id="Picture style">
        <source>Bitmaps</source>
        <translation>Bilder</translation>
    </message>
    <message id="On-screen display style">
        <source>On-Screen Display</source>
        <translation>Visning på skärmen</translation>
    </message>
    <message id="Window style">
        <source>Window</source>
        <translation>Fönster</translation>
    </message>
    <message id="SettingsNotSavedMessage">
        <source>The preferences can’t be saved.</source>
        <translation>Inställningarna kan inte sparas.</translation>
    </message>
    <message id="SettingsNotSavedDetails">
        <source>What you change acts until Lumaro quits. The file “%@” can’t be written.</source>
        <translation>Det du ändrar gäller tills Lumaro avslutas. Filen ”%@” kan inte skrivas.</translation>
    </message>
    <message id="SettingsDamagedMessage">
        <source>The preferences are damaged.</source>
        <translation>Inställningarna är skadade.</translation>
    </message>
    <message id="SettingsDamagedDetails">
        <source>Lumaro begins with new ones. The damaged file is kept as “%@”.</source>
        <translation>Lumaro börjar med nya. Den skadade filen finns kvar som ”%@”.</translation>
    </message>
    <message id="SettingsUnreadableMessage">
        <source>The preferences can’t be read.</source>
        <translation>Inställningarna kan inte läsas.</translation>
    </message>
    <message id="SettingsUnreadableDetails">
        <source>The file “%@” stays as it is. What you change acts until Lumaro quits.</source>
        <translation>Filen ”%@” lämnas som den är. Det du ändrar gäller tills Lumaro avslutas.</translation>
    </message>
    <message id="PlacesDamagedMessage">
        <source>The remembered places in movies are damaged; their file was put aside.</source>
        <translation>De sparade positionerna i filmer är skadade; deras fil har lagts åt sidan.</translation>
    </message>
    <message id="PlacesUnreadableMessage">
        <source>The remembered places in movies can’t be read.</source>
        <translation>De sparade positionerna i filmer kan inte läsas.</translation>
    </message>
    <message id="PlacesOfLaterVersionMessage">
        <source>A later version of Lumaro remembers places in movies here; this one can’t.</source>
        <translation>En senare version av Lumaro sparar positioner i filmer här; den här kan det inte.</translation>
    </message>
    <message id="Short&amp;cuts">
        <source>Short&amp;cuts</source>
        <translation>&amp;Kortkommandon</translation>
    </message>
    <message id="Searc&amp;h:">
        <source>Searc&amp;h:</source>
        <translation>Sök efte&amp;r:</translation>
    </message>
    <message id="Words of a command, or its key">
        <source>Words of a command, or its key</source>
        <translation>Ord ur ett kommando, eller dess tangent</translation>
    </message>
    <message id="The commands by menu; bold ones have keys of your own">
        <source>The commands by menu; bold ones have keys of your own</source>
        <translation>Kommandona efter meny; de i fetstil har tangenter som du valt själv</translation>
    </message>
    <message id="Commands and their keys">
        <source>Commands and their keys</source>
        <translation>Kommandon och deras tangenter</translation>
    </message>
    <message id="Command">
        <source>Command</source>
        <translation>Kommando</translation>
    </message>
    <message id="Keys">
        <source>Keys</source>
        <translation>Tangenter</translation>
    </message>
    <message id="&amp;Keys of the command:">
        <source>&amp;Keys of the command:</source>
        <translation>Ko&amp;mmandots tangenter:</translation>
    </message>
    <message id="The keys of the command that is marked">
        <source>The keys of the command that is marked</source>
        <translation>Det markerade kommandots tangenter</translation>
    </message>
    <message id="A&amp;dd Key...">
        <source>A&amp;dd Key...</source>
        <translation>Lä&amp;gg till tangent…</translation>
    </message>
    <message id="Then press the key, with Ctrl, Alt, Shift or Super if you like">
        <source>Then press the key, with Ctrl, Alt, Shift or Super if you like</source>
        <translation>Tryck sedan på tangenten, med Ctrl, Alt, Skift eller Super om du vill</translation>
    </message>
    <message id="Remo&amp;ve Key">
        <source>Remo&amp;ve Key</source>
        <translation>Ta b&amp;ort tangent</translation>
    </message>
    <message id="The marked key means nothing any more">
        <source>The marked key means nothing any more</source>
        <translation>Den markerade tangenten betyder ingenting längre</translation>
    </message>
    <message id="Rese&amp;t Command">
        <source>Rese&amp;t</source>
        <translation>Återstä&amp;ll</translation>
    </message>
    <message id="The command gets back the keys that Lumaro came with">
        <source>The command gets back the keys that Lumaro came with</source>
        <translation>Kommandot får tillbaka de tangenter som Lumaro levererades med</translation>
    </message>
    <message id="Reset A&amp;ll Keys">
        <source>Reset A&amp;ll</source>
        <translation>Åt&amp;erställ alla</translation>
    </message>
    <message id="Every command gets back the keys that Lumaro came with">
        <source>Every command gets back the keys that Lumaro came with</source>
        <translation>Alla kommandon får tillbaka de tangenter som Lumaro levererades med</translation>
    </message>
    <message id="&amp;Undo Key Change">
        <source>&amp;Undo</source>
        <translation>Å&amp;ngra</translation>
    </message>
    <message id="Takes back the last change of a key">
        <source>Takes back the last change of a key</source>
        <translation>Ångrar den senaste ändringen av en tangent</translation>
    </message>
    <message id="Take &amp;It Over">
        <source>Take &amp;It Over</source>
        <translation>&amp;Ta över</translation>
    </message>
    <message id="The key means the marked command from now on">
        <source>The key means the marked command from now on</source>
        <translation>Tangenten betyder det markerade kommandot från och med nu</translation>
    </message>
    <message id="Ca&amp;ncel Key">
        <source>Ca&amp;ncel</source>
        <translation>Av&amp;bryt</translation>
    </message>
    <message id="The key keeps its meaning">
        <source>The key keeps its meaning</source>
        <translation>Tangenten behåller sin betydelse</translation>
    </message>
    <message id="Press a key for “%@”. Esc goes back.">
        <source>Press a key for “%@”. Esc goes back.</source>
        <translation>Tryck på en tangent för ”%@”. Esc avbryter.</translation>
    </message>
    <message id="Lumaro does not know this key.">
        <source>Lumaro does not know this key.</source>
        <translation>Lumaro känner inte till den här tangenten.</translation>
    </message>
    <message id="Esc closes windows and ends Lumaro; that can’t be changed.">
        <source>Esc closes windows and ends Lumaro; that can’t be changed.</source>
        <translation>Esc stänger fönster och avslutar Lumaro; det går inte att ändra.</translation>
    </message>
    <message id="%@ belongs to the desktop.">
        <source>%@ belongs to the desktop.</source>
        <translation>%@ tillhör skrivbordet.</translation>
    </message>
    <message id="%@ means “%@” already.">
        <source>%@ means “%@” already.</source>
        <translation>%@ betyder redan ”%@”.</translation>
    </message>
    <message id="“%@” has as many keys as it can have; remove one first.">
        <source>“%@” has as many keys as it can have; remove one first.</source>
        <translation>”%@” har så många tangenter som det går; ta bort en först.</translation>
    </message>
    <message id="%@ means “%@” now.">
        <source>%@ means “%@” now.</source>
        <translation>%@ betyder nu ”%@”.</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>Stopp</translation>
    </message>
    <message id="Next Looping">
        <source>Next Looping</source>
        <translation>Nästa upprepning</translation>
    </message>
    <message id="Previous Looping">
        <source>Previous Looping</source>
        <translation>Föregående upprepning</translation>
    </message>
    <message id="Show Playlist">
        <source>Show Playlist</source>
        <translation>Visa spellistan</translation>
    </message>
    <message id="Next Subtitles">
        <source>Next Subtitles</source>
        <translation>Nästa undertexter</translation>
    </message>
    <message id="Previous Subtitles">
        <source>Previous Subtitles</source>
        <translation>Föregående undertexter</translation>
    </message>
    <message id="No Subtitles">
        <source>No Subtitles</source>
        <translation>Inga undertexter</translation>
    </message>
    <message id="Open a movie from the menu">
        <source>Open a movie from the menu</source>
        <translation>Öppna en film från menyn</translation>
    </message>
    <message id="or drop files here.">
        <source>or drop files here.</source>
        <translation>eller släpp filer här.</translation>
    </message>
    <message id="Keys of the command">
        <source>Keys of the command</source>
        <translation>Kommandots tangenter</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message id="Open pages of video sites with &amp;yt-dlp">
        <source>Open pages of video sites with &amp;yt-dlp</source>
        <translation>Öppna videosajters sidor &amp;med yt-dlp</translation>
    </message>
    <message id="An address that is no movie is asked of the program yt-dlp, where it is installed">
        <source>An address that is no movie is asked of the program yt-dlp, where it is installed</source>
        <translation>En adress som inte är en film ges till programmet yt-dlp, om det är installerat</translation>
    </message>
    <message id="Open Movies">
        <source>Open Movies</source>
        <translation>Öppna filmer</translation>
    </message>
    <message id="Open Folder">
        <source>Open Folder</source>
        <translation>Öppna mapp</translation>
    </message>
    <message id="Open Folder...">
        <source>Open Folder...</source>
        <translation>Öppna mapp…</translation>
    </message>
    <message id="Movies and Sound">
        <source>Movies and Sound</source>
        <translation>Filmer och musik</translation>
    </message>
    <message id="All Files">
        <source>All Files</source>
        <translation>Alla filer</translation>
    </message>
    <message id="Add to Playlist">
        <source>Add to Playlist</source>
        <translation>Lägg till i spellistan</translation>
    </message>
    <message id="Open folders of movies">
        <source>Open folders of movies</source>
        <translation>Öppna mappar med filmer</translation>
    </message>
    <message id="Open an address, several addresses">
        <source>Open an address, several addresses</source>
        <translation>Öppna en adress, flera adresser</translation>
    </message>
    <message id="Open URL">
        <source>Open URL</source>
        <translation>Öppna URL</translation>
    </message>
    <message id="Open URLs">
        <source>Open URLs</source>
        <translation>Öppna flera URL:er</translation>
    </message>
    <message id="&amp;Address or path of a movie:">
        <source>&amp;Address or path of a movie:</source>
        <translation>&amp;Adress eller sökväg till en film:</translation>
    </message>
    <message id="&amp;Addresses or paths of movies, one in each line:">
        <source>&amp;Addresses or paths of movies, one in each line:</source>
        <translation>&amp;Adresser eller sökvägar till filmer, en per rad:</translation>
    </message>
    <message id="Address">
        <source>Address</source>
        <translation>Adress</translation>
    </message>
    <message id="Addresses">
        <source>Addresses</source>
        <translation>Adresser</translation>
    </message>
    <message id="Add to &amp;Playlist">
        <source>Add to &amp;Playlist</source>
        <translation>&amp;Lägg till i spellistan</translation>
    </message>
    <message id="What plays now goes on; holding Alt does the same">
        <source>What plays now goes on; holding Alt does the same</source>
        <translation>Det som spelas fortsätter; att hålla ner Alt gör detsamma</translation>
    </message>
    <message id="Replace the Playlist">
        <source>Replace the Playlist</source>
        <translation>Ersätt spellistan</translation>
    </message>
    <message id="Add to the Playlist">
        <source>Add to the Playlist</source>
        <translation>Lägg till i spellistan</translation>
    </message>
    <message id="OpenErrorSubtitles">
        <source>It holds subtitles. They are shown by themselves when they lie beside their movie and begin with its name.</source>
        <translation>Den innehåller undertexter. De visas av sig själva när de ligger bredvid sin film och börjar med dess namn.</translation>
    </message>
    <message id="OpenErrorNotAnAddress">
        <source>It is neither an address nor the path of a file.</source>
        <translation>Det är varken en adress eller sökvägen till en fil.</translation>
    </message>
    <message id="Resumed at %@">
        <source>Resumed at %@</source>
        <translation>Återupptagen vid %@</translation>
    </message>
</context>
<context>
    <name>Watching</name>
    <message id="Speed">
        <source>Speed</source>
        <translation>Hastighet</translation>
    </message>
    <message id="Speed: %@">
        <source>Speed: %@</source>
        <translation>Hastighet: %@</translation>
    </message>
    <message id="%@x">
        <source>%@x</source>
        <translation>%@×</translation>
    </message>
    <message id="Slower">
        <source>Slower</source>
        <translation>Långsammare</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Snabbare</translation>
    </message>
    <message id="Half as Fast">
        <source>Half as Fast</source>
        <translation>Halva hastigheten</translation>
    </message>
    <message id="Twice as Fast">
        <source>Twice as Fast</source>
        <translation>Dubbla hastigheten</translation>
    </message>
    <message id="Original Speed">
        <source>Original Speed</source>
        <translation>Ursprunglig hastighet</translation>
    </message>
    <message id="Slower and faster, the pitch kept; half and twice as fast">
        <source>Slower and faster, the pitch kept; half and twice as fast</source>
        <translation>Långsammare och snabbare med samma tonhöjd; halva och dubbla hastigheten</translation>
    </message>
    <message id="As fast as the movie was made">
        <source>As fast as the movie was made</source>
        <translation>I filmens ursprungliga hastighet</translation>
    </message>
    <message id="Chapters">
        <source>Chapters</source>
        <translation>Kapitel</translation>
    </message>
    <message id="No Chapters">
        <source>No Chapters</source>
        <translation>Inga kapitel</translation>
    </message>
    <message id="Chapter %d of %d">
        <source>Chapter %d of %d</source>
        <translation>Kapitel %d av %d</translation>
    </message>
    <message id="Chapter %d of %d: %@">
        <source>Chapter %d of %d: %@</source>
        <translation>Kapitel %d av %d: %@</translation>
    </message>
    <message id="Next Chapter">
        <source>Next Chapter</source>
        <translation>Nästa kapitel</translation>
    </message>
    <message id="Previous Chapter">
        <source>Previous Chapter</source>
        <translation>Föregående kapitel</translation>
    </message>
    <message id="Next and previous chapter">
        <source>Next and previous chapter</source>
        <translation>Nästa och föregående kapitel</translation>
    </message>
    <message id="Save Still">
        <source>Save Still</source>
        <translation>Spara stillbild</translation>
    </message>
    <message id="Save the picture as a file">
        <source>Save the picture as a file</source>
        <translation>Spara bilden som en fil</translation>
    </message>
    <message id="Still: %@">
        <source>Still: %@</source>
        <translation>Stillbild: %@</translation>
    </message>
    <message id="No Picture to Save">
        <source>No Picture to Save</source>
        <translation>Ingen bild att spara</translation>
    </message>
    <message id="Can’t save the still in %@">
        <source>Can’t save the still in %@</source>
        <translation>Stillbilden kan inte sparas i %@</translation>
    </message>
    <message id="Go to Time">
        <source>Go to Time</source>
        <translation>Gå till tid</translation>
    </message>
    <message id="Go to Time...">
        <source>Go to Time...</source>
        <translation>Gå till tid…</translation>
    </message>
    <message id="Go to a time">
        <source>Go to a time</source>
        <translation>Gå till en tid</translation>
    </message>
    <message id="Time in the movie:">
        <source>Time in the movie:</source>
        <translation>Tid i filmen:</translation>
    </message>
    <message id="Time in the movie, up to %@:">
        <source>Time in the movie, up to %@:</source>
        <translation>Tid i filmen, upp till %@:</translation>
    </message>
    <message id="Seconds, minutes or hours: 90, 1:30 or 1:23:45.6">
        <source>Seconds, minutes or hours: 90, 1:30 or 1:23:45.6</source>
        <translation>Sekunder, minuter eller timmar: 90, 1:30 eller 1:23:45,6</translation>
    </message>
    <message id="Time: %@">
        <source>Time: %@</source>
        <translation>Tid: %@</translation>
    </message>
    <message id="Repeat Section">
        <source>Repeat Section</source>
        <translation>Upprepa avsnitt</translation>
    </message>
    <message id="Repeat from Here">
        <source>Repeat from Here</source>
        <translation>Upprepa härifrån</translation>
    </message>
    <message id="Repeat until Here">
        <source>Repeat until Here</source>
        <translation>Upprepa hit</translation>
    </message>
    <message id="Repeat a section: its beginning, its end, no more">
        <source>Repeat a section: its beginning, its end, no more</source>
        <translation>Upprepa ett avsnitt: dess början, dess slut, inte längre</translation>
    </message>
    <message id="Repeat: Off">
        <source>Repeat: Off</source>
        <translation>Upprepa avsnitt: av</translation>
    </message>
    <message id="Repeat from %@">
        <source>Repeat from %@</source>
        <translation>Upprepa från %@</translation>
    </message>
    <message id="Repeat: %@ – %@">
        <source>Repeat: %@ – %@</source>
        <translation>Upprepa avsnitt: %@ – %@</translation>
    </message>
    <message id="Aspect">
        <source>Aspect</source>
        <translation>Bildformat</translation>
    </message>
    <message id="Next Aspect">
        <source>Next Aspect</source>
        <translation>Nästa bildformat</translation>
    </message>
    <message id="Aspect: automatic, 4:3, 16:9, 2.35:1">
        <source>Aspect: automatic, 4:3, 16:9, 2.35:1</source>
        <translation>Bildformat: automatiskt, 4:3, 16:9, 2,35:1</translation>
    </message>
    <message id="Aspect: %@">
        <source>Aspect: %@</source>
        <translation>Bildformat: %@</translation>
    </message>
    <message id="2.35:1">
        <source>2.35:1</source>
        <translation>2,35:1</translation>
    </message>
    <message id="Deinterlacing">
        <source>Deinterlacing</source>
        <translation>Avflätning</translation>
    </message>
    <message id="Next Deinterlacing">
        <source>Next Deinterlacing</source>
        <translation>Nästa avflätning</translation>
    </message>
    <message id="Deinterlacing: automatic, on, off">
        <source>Deinterlacing: automatic, on, off</source>
        <translation>Avflätning: automatiskt, på, av</translation>
    </message>
    <message id="Deinterlacing: %@">
        <source>Deinterlacing: %@</source>
        <translation>Avflätning: %@</translation>
    </message>
    <message id="Picture Colors">
        <source>Picture Colors</source>
        <translation>Bildens färger</translation>
    </message>
    <message id="Less Contrast">
        <source>Less Contrast</source>
        <translation>Mindre kontrast</translation>
    </message>
    <message id="More Contrast">
        <source>More Contrast</source>
        <translation>Mer kontrast</translation>
    </message>
    <message id="Darker">
        <source>Darker</source>
        <translation>Mörkare</translation>
    </message>
    <message id="Brighter">
        <source>Brighter</source>
        <translation>Ljusare</translation>
    </message>
    <message id="Less Gamma">
        <source>Less Gamma</source>
        <translation>Mindre gamma</translation>
    </message>
    <message id="More Gamma">
        <source>More Gamma</source>
        <translation>Mer gamma</translation>
    </message>
    <message id="Less Saturation">
        <source>Less Saturation</source>
        <translation>Mindre mättnad</translation>
    </message>
    <message id="More Saturation">
        <source>More Saturation</source>
        <translation>Mer mättnad</translation>
    </message>
    <message id="Hue towards Red">
        <source>Hue towards Red</source>
        <translation>Nyans mot rött</translation>
    </message>
    <message id="Hue towards Green">
        <source>Hue towards Green</source>
        <translation>Nyans mot grönt</translation>
    </message>
    <message id="Contrast, brightness, gamma, saturation, hue: less and more">
        <source>Contrast, brightness, gamma, saturation, hue: less and more</source>
        <translation>Kontrast, ljusstyrka, gamma, mättnad, nyans: mindre och mer</translation>
    </message>
    <message id="The colors as the movie has them">
        <source>The colors as the movie has them</source>
        <translation>Färgerna så som filmen har dem</translation>
    </message>
    <message id="Original Colors">
        <source>Original Colors</source>
        <translation>Ursprungliga färger</translation>
    </message>
    <message id="Contrast: %@">
        <source>Contrast: %@</source>
        <translation>Kontrast: %@</translation>
    </message>
    <message id="Brightness: %@">
        <source>Brightness: %@</source>
        <translation>Ljusstyrka: %@</translation>
    </message>
    <message id="Gamma: %@">
        <source>Gamma: %@</source>
        <translation>Gamma: %@</translation>
    </message>
    <message id="Saturation: %@">
        <source>Saturation: %@</source>
        <translation>Mättnad: %@</translation>
    </message>
    <message id="Hue: %@">
        <source>Hue: %@</source>
        <translation>Nyans: %@</translation>
    </message>
    <message id="Crop Black Bars">
        <source>Crop Black Bars</source>
        <translation>Beskär svarta kanter</translation>
    </message>
    <message id="Cut black bars off">
        <source>Cut black bars off</source>
        <translation>Beskär svarta kanter</translation>
    </message>
    <message id="Crop: On">
        <source>Crop: On</source>
        <translation>Beskärning: på</translation>
    </message>
    <message id="Crop: Off">
        <source>Crop: Off</source>
        <translation>Beskärning: av</translation>
    </message>
    <message id="No Black Bars">
        <source>No Black Bars</source>
        <translation>Inga svarta kanter</translation>
    </message>
    <message id="Turn by 90°">
        <source>Turn by 90°</source>
        <translation>Vrid 90°</translation>
    </message>
    <message id="Turn and mirror the picture">
        <source>Turn and mirror the picture</source>
        <translation>Vrid och spegelvänd bilden</translation>
    </message>
    <message id="Turned by %d°">
        <source>Turned by %d°</source>
        <translation>Vriden %d°</translation>
    </message>
    <message id="Mirror">
        <source>Mirror</source>
        <translation>Spegelvänd</translation>
    </message>
    <message id="Mirror: On">
        <source>Mirror: On</source>
        <translation>Spegelvänd: på</translation>
    </message>
    <message id="Mirror: Off">
        <source>Mirror: Off</source>
        <translation>Spegelvänd: av</translation>
    </message>
</context>
<context>
    <name>Tracks</name>
    <message id="Audio Tracks">
        <source>Audio Tracks</source>
        <translation>Ljudspår</translation>
    </message>
    <message id="Audio: %@">
        <source>Audio: %@</source>
        <translation>Ljud: %@</translation>
    </message>
    <message id="Next Audio Track">
        <source>Next Audio Track</source>
        <translation>Nästa ljudspår</translation>
    </message>
    <message id="Previous Audio Track">
        <source>Previous Audio Track</source>
        <translation>Föregående ljudspår</translation>
    </message>
    <message id="Next and previous audio track">
        <source>Next and previous audio track</source>
        <translation>Nästa och föregående ljudspår</translation>
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
        <translation>%d kanaler</translation>
    </message>
    <message id="Track %d">
        <source>Track %d</source>
        <translation>Spår %d</translation>
    </message>
    <message id="forced">
        <source>forced</source>
        <translation>tvingade</translation>
    </message>
    <message id="Second Subtitles">
        <source>Second Subtitles</source>
        <translation>Sekundära undertexter</translation>
    </message>
    <message id="Next Second Subtitles">
        <source>Next Second Subtitles</source>
        <translation>Nästa sekundära undertexter</translation>
    </message>
    <message id="Second subtitles: %@">
        <source>Second subtitles: %@</source>
        <translation>Sekundära undertexter: %@</translation>
    </message>
    <message id="Second subtitles at the top: next track, none">
        <source>Second subtitles at the top: next track, none</source>
        <translation>Sekundära undertexter överst: nästa spår, inga</translation>
    </message>
    <message id="SecondSubtitlesRefused">
        <source>Only texts can be shown as second subtitles, and no track twice</source>
        <translation>Bara texter kan visas som sekundära undertexter, och inget spår två gånger</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>Kvalitet</translation>
    </message>
    <message id="Quality: %@">
        <source>Quality: %@</source>
        <translation>Kvalitet: %@</translation>
    </message>
    <message id="Next Quality">
        <source>Next Quality</source>
        <translation>Nästa kvalitet</translation>
    </message>
    <message id="Next quality of a stream">
        <source>Next quality of a stream</source>
        <translation>Nästa kvalitet för en ström</translation>
    </message>
    <message id="Only One Quality">
        <source>Only One Quality</source>
        <translation>Bara en kvalitet</translation>
    </message>
    <message id="Go to Live">
        <source>Go to Live</source>
        <translation>Gå till direktsändningen</translation>
    </message>
    <message id="Go to what is live now">
        <source>Go to what is live now</source>
        <translation>Gå till det som sänds nu</translation>
    </message>
    <message id="Not a Live Stream">
        <source>Not a Live Stream</source>
        <translation>Ingen direktsändning</translation>
    </message>
    <message id="Live">
        <source>Live</source>
        <translation>Direkt</translation>
    </message>
    <message id="Behind Live">
        <source>Behind Live</source>
        <translation>Efter direktsändningen</translation>
    </message>
    <message id="Reconnecting...">
        <source>Reconnecting...</source>
        <translation>Återansluter…</translation>
    </message>
    <message id="Connection Lost">
        <source>Connection Lost</source>
        <translation>Anslutningen förlorad</translation>
    </message>
</context>
<context>
    <name>Information</name>
    <message id="Information">
        <source>Information</source>
        <translation>Information</translation>
    </message>
    <message id="Show or hide the information about the movie">
        <source>Show or hide the information about the movie</source>
        <translation>Visa eller dölj informationen om filmen</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>Kopiera</translation>
    </message>
    <message id="No movie">
        <source>No movie</source>
        <translation>Ingen film</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Namn</translation>
    </message>
    <message id="Container">
        <source>Container</source>
        <translation>Behållare</translation>
    </message>
    <message id="Duration">
        <source>Duration</source>
        <translation>Längd</translation>
    </message>
    <message id="File size">
        <source>File size</source>
        <translation>Filstorlek</translation>
    </message>
    <message id="Bit rate">
        <source>Bit rate</source>
        <translation>Bithastighet</translation>
    </message>
    <message id="Sound">
        <source>Sound</source>
        <translation>Ljud</translation>
    </message>
    <message id="Tracks">
        <source>Tracks</source>
        <translation>Spår</translation>
    </message>
    <message id="Frames">
        <source>Frames</source>
        <translation>Bildrutor</translation>
    </message>
    <message id="Buffer">
        <source>Buffer</source>
        <translation>Buffert</translation>
    </message>
    <message id="Codec">
        <source>Codec</source>
        <translation>Kodek</translation>
    </message>
    <message id="Decoder">
        <source>Decoder</source>
        <translation>Avkodare</translation>
    </message>
    <message id="Software">
        <source>Software</source>
        <translation>Programvara</translation>
    </message>
    <message id="Hardware (%@)">
        <source>Hardware (%@)</source>
        <translation>Hårdvara (%@)</translation>
    </message>
    <message id="Size">
        <source>Size</source>
        <translation>Storlek</translation>
    </message>
    <message id="%@, displayed as %@">
        <source>%@, displayed as %@</source>
        <translation>%@, visas som %@</translation>
    </message>
    <message id="Frame rate">
        <source>Frame rate</source>
        <translation>Bildfrekvens</translation>
    </message>
    <message id="%@ a second">
        <source>%@ a second</source>
        <translation>%@ per sekund</translation>
    </message>
    <message id="%@ a second, now %@">
        <source>%@ a second, now %@</source>
        <translation>%@ per sekund, nu %@</translation>
    </message>
    <message id="Dynamic range">
        <source>Dynamic range</source>
        <translation>Dynamiskt omfång</translation>
    </message>
    <message id="Standard">
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message id="Color">
        <source>Color</source>
        <translation>Färg</translation>
    </message>
    <message id="Channels">
        <source>Channels</source>
        <translation>Kanaler</translation>
    </message>
    <message id="Sample rate">
        <source>Sample rate</source>
        <translation>Samplingsfrekvens</translation>
    </message>
    <message id="Output">
        <source>Output</source>
        <translation>Utmatning</translation>
    </message>
    <message id="%@ (playing)">
        <source>%@ (playing)</source>
        <translation>%@ (spelas)</translation>
    </message>
    <message id="Subtitles shown">
        <source>Subtitles shown</source>
        <translation>Visade undertexter</translation>
    </message>
    <message id="Shown">
        <source>Shown</source>
        <translation>Visade</translation>
    </message>
    <message id="Late">
        <source>Late</source>
        <translation>Försenade</translation>
    </message>
    <message id="Left out">
        <source>Left out</source>
        <translation>Utelämnade</translation>
    </message>
    <message id="Ready">
        <source>Ready</source>
        <translation>Klart</translation>
    </message>
    <message id="%@ s">
        <source>%@ s</source>
        <translation>%@ s</translation>
    </message>
    <message id="Filling">
        <source>Filling</source>
        <translation>Fylls</translation>
    </message>
</context>
</TS>
