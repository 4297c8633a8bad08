<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="cs">
<context>
    <name>Alerts</name>
    <message id="QTUnableToOpenFileError">
        <source>“%@” can’t be opened.</source>
        <translation>„%@“ nelze otevřít.</translation>
    </message>
    <message id="QTUnableToOpenFileDetails">
        <source>The file is missing, damaged, or of a kind that Lumaro doesn’t know (error %d).</source>
        <translation>Soubor chybí, je poškozený nebo je typu, který Lumaro nezná (chyba %d).</translation>
    </message>
    <message id="QTUnableToPlayFileError">
        <source>“%@” may not play as it should.</source>
        <translation>„%@“ se možná nepřehraje správně.</translation>
    </message>
    <message id="QTUnableToPlayFileDetails">
        <source>Parts of the movie can’t be decoded (error %d). Choose Continue to try it anyway.</source>
        <translation>Části filmu nelze dekódovat (chyba %d). Volbou „Pokračovat“ to přesto zkusíte.</translation>
    </message>
    <message id="NoPlayableMoviesInListMessage">
        <source>There is nothing to play.</source>
        <translation>Není co přehrávat.</translation>
    </message>
    <message id="NoPlayableMoviesInListDetails">
        <source>None of the files that were given is a movie that Lumaro can play. You can choose others.</source>
        <translation>Žádný ze zadaných souborů není film, který Lumaro umí přehrát. Můžete vybrat jiné.</translation>
    </message>
    <message id="OpenErrorMissing">
        <source>The file doesn’t exist.</source>
        <translation>Soubor neexistuje.</translation>
    </message>
    <message id="OpenErrorEmpty">
        <source>The file is empty.</source>
        <translation>Soubor je prázdný.</translation>
    </message>
    <message id="OpenErrorNotAFile">
        <source>It is a folder or a device, not a file.</source>
        <translation>Je to složka nebo zařízení, ne soubor.</translation>
    </message>
    <message id="OpenErrorPermission">
        <source>You aren’t allowed to read the file.</source>
        <translation>Nemáte oprávnění soubor číst.</translation>
    </message>
    <message id="OpenErrorNotAMovie">
        <source>It isn’t a movie that Lumaro can play.</source>
        <translation>Není to film, který Lumaro umí přehrát.</translation>
    </message>
    <message id="OpenErrorTimeout">
        <source>No answer came in time.</source>
        <translation>Odpověď nepřišla včas.</translation>
    </message>
    <message id="OpenErrorLibraries">
        <source>The libraries that open movies are missing.</source>
        <translation>Chybí knihovny, které otevírají filmy.</translation>
    </message>
    <message id="OpenErrorScheme">
        <source>Lumaro doesn’t know addresses of this kind.</source>
        <translation>Lumaro adresy tohoto druhu nezná.</translation>
    </message>
    <message id="OpenErrorUnknownHost">
        <source>There is no server of that name, or no connection to the network.</source>
        <translation>Server s tímto názvem neexistuje, nebo není připojení k síti.</translation>
    </message>
    <message id="OpenErrorUnreachable">
        <source>The server can’t be reached.</source>
        <translation>Server je nedostupný.</translation>
    </message>
    <message id="OpenErrorRefused">
        <source>The server refused the connection.</source>
        <translation>Server odmítl připojení.</translation>
    </message>
    <message id="OpenErrorConnection">
        <source>The connection to the server broke off.</source>
        <translation>Připojení k serveru se přerušilo.</translation>
    </message>
    <message id="OpenErrorRanges">
        <source>The server sends files only from their beginning, and what is needed first stands at this movie’s end. Download it to play it.</source>
        <translation>Server posílá soubory jen od začátku, a co je potřeba nejdříve, stojí na konci tohoto filmu. Abyste jej přehráli, stáhněte si jej.</translation>
    </message>
    <message id="OpenErrorLogin">
        <source>The server asks for a name and a password (401).</source>
        <translation>Server vyžaduje jméno a heslo (401).</translation>
    </message>
    <message id="OpenErrorForbidden">
        <source>The server doesn’t allow it (403).</source>
        <translation>Server to nedovoluje (403).</translation>
    </message>
    <message id="OpenErrorNotFound">
        <source>The server has no such file (404).</source>
        <translation>Takový soubor na serveru není (404).</translation>
    </message>
    <message id="OpenErrorRejected">
        <source>The server rejected the request.</source>
        <translation>Server požadavek zamítl.</translation>
    </message>
    <message id="OpenErrorServer">
        <source>The server answered with an error of its own.</source>
        <translation>Server odpověděl vlastní chybou.</translation>
    </message>
    <message id="OpenErrorNoMovies">
        <source>There is no movie in this folder.</source>
        <translation>V této složce není žádný film.</translation>
    </message>
    <message id="OpenErrorNotAList">
        <source>The file is not a playlist.</source>
        <translation>Soubor není playlist.</translation>
    </message>
    <message id="OpenErrorListEmpty">
        <source>The playlist names no movies.</source>
        <translation>Playlist neobsahuje žádné filmy.</translation>
    </message>
    <message id="OpenErrorListTooLarge">
        <source>The playlist is larger than 32 MB.</source>
        <translation>Playlist je větší než 32 MB.</translation>
    </message>
    <message id="OpenErrorListTooLong">
        <source>The playlist is too long. Only its first 100,000 entries were opened.</source>
        <translation>Playlist je příliš dlouhý. Bylo otevřeno jen prvních 100 000 položek.</translation>
    </message>
    <message id="OpenErrorListTooDeep">
        <source>Too many playlists name each other. This one was left out.</source>
        <translation>Příliš mnoho playlistů odkazuje na sebe navzájem. Tento byl vynechán.</translation>
    </message>
    <message id="OpenErrorListDrives">
        <source>Entries on drives of Windows were left out (%@): %@.</source>
        <translation>Položky na discích Windows byly vynechány (%@): %@.</translation>
    </message>
    <message id="OpenErrorListLocal">
        <source>The playlist comes from a network. Entries that name files of this computer were left out (%@): %@.</source>
        <translation>Playlist pochází ze sítě. Položky, které uvádějí soubory tohoto počítače, byly vynechány (%@): %@.</translation>
    </message>
    <message id="OpenErrorListNothing">
        <source>Entries that name neither a file nor an address were left out (%@): %@.</source>
        <translation>Položky, které neuvádějí soubor ani adresu, byly vynechány (%@): %@.</translation>
    </message>
    <message id="OpenErrorFolders">
        <source>Folders that may not be read (%@): %@.</source>
        <translation>Složky, které se nesmějí číst (%@): %@.</translation>
    </message>
    <message id="UnreadableFoldersMessage">
        <source>Not everything could be searched.</source>
        <translation>Nebylo možné prohledat vše.</translation>
    </message>
    <message id="AndMoreMessage">
        <source>… and %@ more.</source>
        <translation>… a ještě %@.</translation>
    </message>
    <message id="UnableToOpenLine">
        <source>“%@”: %@ (%@)</source>
        <translation>„%@“: %@ (%@)</translation>
    </message>
    <message id="UnableToOpenFilesMessage">
        <source>%@ files can’t be opened.</source>
        <translation>Soubory, které nelze otevřít: %@.</translation>
    </message>
    <message id="UnableToPlayFilesMessage">
        <source>%@ movies may not play as they should.</source>
        <translation>Filmy, které se možná nepřehrají správně: %@.</translation>
    </message>
    <message id="NoMoviesInFoldersDetails">
        <source>There is no movie that Lumaro can play in:</source>
        <translation>Žádný film, který Lumaro umí přehrát, není v:</translation>
    </message>
    <message id="Buffering: %d %%">
        <source>Buffering: %d %%</source>
        <translation>Ukládání do vyrovnávací paměti: %d %%</translation>
    </message>
    <message id="Stalled: No Data from the Server">
        <source>Stalled: no data from the server</source>
        <translation>Pozastaveno: ze serveru nejdou data</translation>
    </message>
    <message id="Loading: %@">
        <source>Loading: %@</source>
        <translation>Načítání: %@</translation>
    </message>
    <message id="ResumedAt">
        <source>Resumed at %@
%@: From the Beginning</source>
        <translation>Pokračuje od %@
%@: od začátku</translation>
    </message>
    <message id="Looking for Movies: %@">
        <source>Looking for movies: %@</source>
        <translation>Hledání filmů: %@</translation>
    </message>
    <message id="FilesFoundMessage" numerus="yes">
        <source>%@ file found…</source>
        <translation>
            <numerusform>Nalezen %@ soubor…</numerusform>
            <numerusform>Nalezeny %@ soubory…</numerusform>
            <numerusform>Nalezeno %@ souborů…</numerusform>
        </translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Zrušit</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>Pokračovat</translation>
    </message>
    <message id="Open...">
        <source>Open...</source>
        <translation>Otevřít…</translation>
    </message>
    <message id="Open Recent">
        <source>Open Recent</source>
        <translation>Otevřít nedávné</translation>
    </message>
    <message id="ClearRecent">
        <source>Clear Menu and Forget Places</source>
        <translation>Vymazat nabídku a zapomenout pozice</translation>
    </message>
    <message id="Open">
        <source>Open</source>
        <translation>Otevřít</translation>
    </message>
    <message id="ConfigureCheckForNewVersionMessage">
        <source>Look for new versions?</source>
        <translation>Hledat nové verze?</translation>
    </message>
    <message id="ConfigureCheckForNewVersionDetails">
        <source>Lumaro can look from time to time whether a newer version exists. Nothing about you or your movies is sent. You can change this in the preferences.</source>
        <translation>Lumaro může čas od času zjistit, zda existuje novější verze. O vás ani o vašich filmech se nic neodesílá. Můžete to změnit v předvolbách.</translation>
    </message>
    <message id="CheckNewVersionFailedMessage">
        <source>Looking for a new version failed.</source>
        <translation>Hledání nové verze se nezdařilo.</translation>
    </message>
    <message id="CheckNewVersionFailedDetails">
        <source>None of the sites could be reached. Check the connection to the internet, or try again later.</source>
        <translation>Žádný z webů nebyl dostupný. Zkontrolujte připojení k internetu, nebo to zkuste později.</translation>
    </message>
    <message id="YouHaveLatestVersionMessage">
        <source>Lumaro is up to date.</source>
        <translation>Lumaro je aktuální.</translation>
    </message>
    <message id="YouHaveLatestVersionDetails">
        <source>You have the latest version.</source>
        <translation>Máte nejnovější verzi.</translation>
    </message>
    <message id="NewVersionAvailableMessage">
        <source>A newer version of Lumaro is available.</source>
        <translation>Je dostupná novější verze Lumaro.</translation>
    </message>
    <message id="NewVersionAvailableDetails">
        <source>%@ version %@ can be downloaded now.</source>
        <translation>Nyní lze stáhnout verzi (%@): %@.</translation>
    </message>
    <message id="Download Now...">
        <source>&amp;Download Now...</source>
        <translation>&amp;Stáhnout nyní…</translation>
    </message>
    <message id="Skip Version">
        <source>&amp;Skip Version</source>
        <translation>&amp;Přeskočit tuto verzi</translation>
    </message>
    <message id="Later">
        <source>Later</source>
        <translation>Později</translation>
    </message>
    <message id="AskDonationMessage">
        <source>Do you enjoy Lumaro?</source>
        <translation>Líbí se vám Lumaro?</translation>
    </message>
    <message id="AskDonationDetails">
        <source>Lumaro is free. A donation helps to keep it alive.</source>
        <translation>Lumaro je zdarma. Dar pomáhá udržet jej při životě.</translation>
    </message>
    <message id="Donate...">
        <source>Donate...</source>
        <translation>Přispět…</translation>
    </message>
</context>
<context>
    <name>Version check</name>
    <message id="Up to date">
        <source>Up to date</source>
        <translation>Aktuální</translation>
    </message>
    <message id="Newer %@ version %@ available">
        <source>Newer %@ version %@ available</source>
        <translation>Dostupná novější verze (%@): %@</translation>
    </message>
    <message id="Failed to reach all mirror sites">
        <source>Failed to reach all mirror sites</source>
        <translation>Žádný web není dostupný</translation>
    </message>
    <message id="Release">
        <source>Release</source>
        <translation>stabilní</translation>
    </message>
    <message id="Beta">
        <source>Beta</source>
        <translation>beta</translation>
    </message>
    <message id="Checking now...">
        <source>Checking now...</source>
        <translation>Zjišťuje se…</translation>
    </message>
    <message id="Unknown">
        <source>Unknown</source>
        <translation>Neznámé</translation>
    </message>
    <message id="Never">
        <source>Never</source>
        <translation>Nikdy</translation>
    </message>
</context>
<context>
    <name>Feedback and on-screen display</name>
    <message id="Movie: Play">
        <source>Movie: Play</source>
        <translation>Přehrát</translation>
    </message>
    <message id="Movie: Pause">
        <source>Movie: Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message id="Movie: Stop">
        <source>Movie: Stop</source>
        <translation>Zastavit</translation>
    </message>
    <message id="Movie: Beginning">
        <source>Movie: Beginning</source>
        <translation>Začátek</translation>
    </message>
    <message id="Movie: End">
        <source>Movie: End</source>
        <translation>Konec</translation>
    </message>
    <message id="Fast Forward x%d">
        <source>Fast Forward x%d</source>
        <translation>Rychle vpřed ×%d</translation>
    </message>
    <message id="Fast Rewind x%d">
        <source>Fast Rewind x%d</source>
        <translation>Rychle vzad ×%d</translation>
    </message>
    <message id="Jump Forward %d s">
        <source>Jump Forward %d s</source>
        <translation>Skok o %d s vpřed</translation>
    </message>
    <message id="Jump Backward %d s">
        <source>Jump Backward %d s</source>
        <translation>Skok o %d s vzad</translation>
    </message>
    <message id="Step Forward">
        <source>Step Forward</source>
        <translation>Snímek vpřed</translation>
    </message>
    <message id="Step Backward">
        <source>Step Backward</source>
        <translation>Snímek vzad</translation>
    </message>
    <message id="Next: %@">
        <source>Next: %@</source>
        <translation>Další: %@</translation>
    </message>
    <message id="Previous: %@">
        <source>Previous: %@</source>
        <translation>Předchozí: %@</translation>
    </message>
    <message id="Screen: Next">
        <source>Screen: Next</source>
        <translation>Další obrazovka</translation>
    </message>
    <message id="Screen: Previous">
        <source>Screen: Previous</source>
        <translation>Předchozí obrazovka</translation>
    </message>
    <message id="Quit">
        <source>Quit</source>
        <translation>Ukončit</translation>
    </message>
    <message id="Sleep">
        <source>Sleep</source>
        <translation>Uspat</translation>
    </message>
    <message id="Restart the Computer">
        <source>Restart the Computer</source>
        <translation>Restartovat počítač</translation>
    </message>
    <message id="Shut Down the Computer">
        <source>Shut Down the Computer</source>
        <translation>Vypnout počítač</translation>
    </message>
    <message id="Log Out">
        <source>Log Out</source>
        <translation>Odhlásit se</translation>
    </message>
    <message id="Restart failed: %@">
        <source>Restart failed: %@</source>
        <translation>Restart se nezdařil: %@</translation>
    </message>
    <message id="Shutting down failed: %@">
        <source>Shutting down failed: %@</source>
        <translation>Vypnutí se nezdařilo: %@</translation>
    </message>
    <message id="Logging out failed: %@">
        <source>Logging out failed: %@</source>
        <translation>Odhlášení se nezdařilo: %@</translation>
    </message>
    <message id="KeyName Space">
        <source>Space</source>
        <translation>Mezerník</translation>
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
        <translation>Multimédia: přehrát</translation>
    </message>
    <message id="KeyName Media Stop">
        <source>Media Stop</source>
        <translation>Multimédia: zastavit</translation>
    </message>
    <message id="KeyName Media Next">
        <source>Media Next</source>
        <translation>Multimédia: další</translation>
    </message>
    <message id="KeyName Media Previous">
        <source>Media Previous</source>
        <translation>Multimédia: předchozí</translation>
    </message>
    <message id="KeyName Media Volume Up">
        <source>Media Volume Up</source>
        <translation>Multimédia: hlasitěji</translation>
    </message>
    <message id="KeyName Media Volume Down">
        <source>Media Volume Down</source>
        <translation>Multimédia: tišeji</translation>
    </message>
    <message id="KeyName Media Mute">
        <source>Media Mute</source>
        <translation>Multimédia: ztlumit</translation>
    </message>
    <message id="Sleep failed: %@">
        <source>Sleep failed: %@</source>
        <translation>Uspání se nezdařilo: %@</translation>
    </message>
    <message id="Size: Half">
        <source>Size: Half</source>
        <translation>Velikost: poloviční</translation>
    </message>
    <message id="Size: Normal">
        <source>Size: Normal</source>
        <translation>Velikost: normální</translation>
    </message>
    <message id="Size: Double">
        <source>Size: Double</source>
        <translation>Velikost: dvojnásobná</translation>
    </message>
    <message id="Size: Full">
        <source>Size: Full</source>
        <translation>Velikost: plná</translation>
    </message>
    <message id="Size: Fit Width">
        <source>Size: Fit Width</source>
        <translation>Velikost: šířka obrazovky</translation>
    </message>
    <message id="Size: Fit Height">
        <source>Size: Fit Height</source>
        <translation>Velikost: výška obrazovky</translation>
    </message>
    <message id="Size: Bigger">
        <source>Size: Bigger</source>
        <translation>Velikost: větší</translation>
    </message>
    <message id="Size: Smaller">
        <source>Size: Smaller</source>
        <translation>Velikost: menší</translation>
    </message>
    <message id="Controller: On">
        <source>Controller: On</source>
        <translation>Ovládací lišta: zapnuto</translation>
    </message>
    <message id="Controller: Off">
        <source>Controller: Off</source>
        <translation>Ovládací lišta: vypnuto</translation>
    </message>
    <message id="Volume: %@">
        <source>Volume: %@</source>
        <translation>Hlasitost: %@</translation>
    </message>
    <message id="Mute: %@">
        <source>Mute: %@</source>
        <translation>Ztlumení: %@</translation>
    </message>
    <message id="Muted">
        <source>Muted</source>
        <translation>Ztlumeno</translation>
    </message>
    <message id="On">
        <source>On</source>
        <translation>Zapnuto</translation>
    </message>
    <message id="Off">
        <source>Off</source>
        <translation>Vypnuto</translation>
    </message>
    <message id="%d%%">
        <source>%d%%</source>
        <translation>%d %%</translation>
    </message>
    <message id="Time: %@/%@">
        <source>Time: %@/%@</source>
        <translation>Čas: %@ / %@</translation>
    </message>
    <message id="Movie: %@">
        <source>Movie: %@</source>
        <translation>Film: %@</translation>
    </message>
    <message id="Loop: %@">
        <source>Loop: %@</source>
        <translation>Opakování: %@</translation>
    </message>
    <message id="One">
        <source>One</source>
        <translation>Jeden</translation>
    </message>
    <message id="All">
        <source>All</source>
        <translation>Vše</translation>
    </message>
    <message id="None">
        <source>None</source>
        <translation>Žádné</translation>
    </message>
    <message id="Subtitles: %@">
        <source>Subtitles: %@</source>
        <translation>Titulky: %@</translation>
    </message>
    <message id="Repair: On">
        <source>Repair: On</source>
        <translation>Oprava: zapnuto</translation>
    </message>
    <message id="Repair: Off">
        <source>Repair: Off</source>
        <translation>Oprava: vypnuto</translation>
    </message>
    <message id="SubtitleLinesLost" numerus="yes">
        <source>%d line of it can’t be read.</source>
        <translation>
            <numerusform>%d řádek v něm nelze přečíst.</numerusform>
            <numerusform>%d řádky v něm nelze přečíst.</numerusform>
            <numerusform>%d řádků v něm nelze přečíst.</numerusform>
        </translation>
    </message>
    <message id="SubtitlePicturesLost" numerus="yes">
        <source>%d picture of it can’t be read.</source>
        <translation>
            <numerusform>%d obrázek v něm nelze přečíst.</numerusform>
            <numerusform>%d obrázky v něm nelze přečíst.</numerusform>
            <numerusform>%d obrázků v něm nelze přečíst.</numerusform>
        </translation>
    </message>
    <message id="SubtitleRepairMayHelp">
        <source>Repair (Subtitles menu) may help.</source>
        <translation>Může pomoci „Opravit“ (nabídka Titulky).</translation>
    </message>
    <message id="Style">
        <source>Style</source>
        <translation>Styl</translation>
    </message>
    <message id="Automatic">
        <source>Automatic</source>
        <translation>Automaticky</translation>
    </message>
</context>
<context>
    <name>Empty player</name>
    <message id="Press %@ to open a movie">
        <source>Press %@ to open a movie</source>
        <translation>Stiskem %@ otevřete film</translation>
    </message>
    <message id="or drop files here. %@ shows all keys.">
        <source>or drop files here. %@ shows all keys.</source>
        <translation>nebo sem přetáhněte soubory. %@ zobrazí všechny klávesy.</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message id="File">
        <source>File</source>
        <translation>Soubor</translation>
    </message>
    <message id="Movie">
        <source>Movie</source>
        <translation>Film</translation>
    </message>
    <message id="Playback">
        <source>Playback</source>
        <translation>Přehrávání</translation>
    </message>
    <message id="Volume">
        <source>Volume</source>
        <translation>Hlasitost</translation>
    </message>
    <message id="Playlist">
        <source>Playlist</source>
        <translation>Playlist</translation>
    </message>
    <message id="Subtitles">
        <source>Subtitles</source>
        <translation>Titulky</translation>
    </message>
    <message id="Window">
        <source>Window</source>
        <translation>Okno</translation>
    </message>
    <message id="HelpIntroduction">
        <source>Type what you look for. Every command also stands in the menu: at the top edge of the screen, or under the right mouse button.</source>
        <translation>Napište, co hledáte. Každý příkaz je také v nabídce: u horního okraje obrazovky nebo pod pravým tlačítkem myši.</translation>
    </message>
    <message id="What do you want to do?">
        <source>What do you want to do?</source>
        <translation>Co chcete udělat?</translation>
    </message>
    <message id="No command holds these words.">
        <source>No command holds these words.</source>
        <translation>Žádný příkaz neobsahuje tato slova.</translation>
    </message>
    <message id="Watch and move through the movie">
        <source>Watch and move through the movie</source>
        <translation>Sledovat film a pohybovat se v něm</translation>
    </message>
    <message id="Louder, softer, silent">
        <source>Louder, softer, silent</source>
        <translation>Hlasitěji, tišeji, beze zvuku</translation>
    </message>
    <message id="Read along">
        <source>Read along</source>
        <translation>Číst titulky</translation>
    </message>
    <message id="See the picture larger, and what is playing">
        <source>See the picture larger, and what is playing</source>
        <translation>Vidět obraz větší a co se přehrává</translation>
    </message>
    <message id="Choose among the movies">
        <source>Choose among the movies</source>
        <translation>Vybírat mezi filmy</translation>
    </message>
    <message id="Move to another screen">
        <source>Move to another screen</source>
        <translation>Přejít na jinou obrazovku</translation>
    </message>
    <message id="Open, set up and quit">
        <source>Open, set up and quit</source>
        <translation>Otevřít, nastavit a ukončit</translation>
    </message>
    <message id="Find help">
        <source>Find help</source>
        <translation>Najít nápovědu</translation>
    </message>
    <message id="Help">
        <source>Help</source>
        <translation>Nápověda</translation>
    </message>
    <message id="Open URL...">
        <source>Open URL...</source>
        <translation>Otevřít URL…</translation>
    </message>
    <message id="Open URLs...">
        <source>Open URLs...</source>
        <translation>Otevřít více URL…</translation>
    </message>
    <message id="Save Playlist...">
        <source>Save Playlist...</source>
        <translation>Uložit playlist…</translation>
    </message>
    <message id="Save Playlist">
        <source>Save Playlist</source>
        <translation>Uložit playlist</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Uložit</translation>
    </message>
    <message id="Playlist File">
        <source>Playlist</source>
        <translation>Playlist</translation>
    </message>
    <message id="Save the playlist to a file">
        <source>Save the playlist to a file</source>
        <translation>Uložit playlist do souboru</translation>
    </message>
    <message id="SaveErrorMessage">
        <source>“%@” can’t be saved.</source>
        <translation>„%@“ nelze uložit.</translation>
    </message>
    <message id="SaveErrorPermission">
        <source>You don’t have the permission to write there.</source>
        <translation>Nemáte oprávnění tam zapisovat.</translation>
    </message>
    <message id="SaveErrorReadOnly">
        <source>The disk can’t be written to.</source>
        <translation>Na disk nelze zapisovat.</translation>
    </message>
    <message id="SaveErrorFull">
        <source>The disk is full.</source>
        <translation>Disk je plný.</translation>
    </message>
    <message id="SaveErrorFolder">
        <source>The folder doesn’t exist.</source>
        <translation>Složka neexistuje.</translation>
    </message>
    <message id="SaveErrorIsFolder">
        <source>This is a folder.</source>
        <translation>Toto je složka.</translation>
    </message>
    <message id="Preferences...">
        <source>Preferences...</source>
        <translation>Předvolby…</translation>
    </message>
    <message id="About Lumaro">
        <source>About Lumaro</source>
        <translation>O programu Lumaro</translation>
    </message>
    <message id="Check for New Version...">
        <source>Check for New Version...</source>
        <translation>Zjistit novou verzi…</translation>
    </message>
    <message id="Half Size">
        <source>Half Size</source>
        <translation>Poloviční velikost</translation>
    </message>
    <message id="Normal Size">
        <source>Normal Size</source>
        <translation>Normální velikost</translation>
    </message>
    <message id="Double Size">
        <source>Double Size</source>
        <translation>Dvojnásobná velikost</translation>
    </message>
    <message id="Full Size">
        <source>Full Size</source>
        <translation>Plná velikost</translation>
    </message>
    <message id="Fit Screen">
        <source>Fit Screen</source>
        <translation>Přizpůsobit obrazovce</translation>
    </message>
    <message id="Fit Width">
        <source>Fit Width</source>
        <translation>Přizpůsobit šířce</translation>
    </message>
    <message id="Fit Height">
        <source>Fit Height</source>
        <translation>Přizpůsobit výšce</translation>
    </message>
    <message id="Bigger">
        <source>Bigger</source>
        <translation>Větší</translation>
    </message>
    <message id="Smaller">
        <source>Smaller</source>
        <translation>Menší</translation>
    </message>
    <message id="Show Controller">
        <source>Show Controller</source>
        <translation>Zobrazit ovládací lištu</translation>
    </message>
    <message id="Bar over the Picture">
        <source>Bar over the Picture</source>
        <translation>Lišta přes obraz</translation>
    </message>
    <message id="Bar over the picture: off, always, when the pointer moves">
        <source>Bar over the picture: off, always, when the pointer moves</source>
        <translation>Lišta přes obraz: vypnuto, vždy, při pohybu ukazatele</translation>
    </message>
    <message id="Bar over the Picture: Off">
        <source>Bar over the Picture: Off</source>
        <translation>Lišta přes obraz: vypnuto</translation>
    </message>
    <message id="Bar over the Picture: Always">
        <source>Bar over the Picture: Always</source>
        <translation>Lišta přes obraz: vždy</translation>
    </message>
    <message id="Bar over the Picture: When the Pointer Moves">
        <source>Bar over the Picture: When the Pointer Moves</source>
        <translation>Lišta přes obraz: při pohybu ukazatele</translation>
    </message>
    <message id="Tracks...">
        <source>Tracks...</source>
        <translation>Stopy…</translation>
    </message>
    <message id="Sound and subtitles in one menu">
        <source>Sound and subtitles in one menu</source>
        <translation>Zvuk a titulky v jedné nabídce</translation>
    </message>
    <message id="Audio">
        <source>Audio</source>
        <translation>Zvuk</translation>
    </message>
    <message id="Hide Controller">
        <source>Hide Controller</source>
        <translation>Skrýt ovládací lištu</translation>
    </message>
    <message id="Next Display">
        <source>Next Display</source>
        <translation>Další zobrazení</translation>
    </message>
    <message id="Previous Display">
        <source>Previous Display</source>
        <translation>Předchozí zobrazení</translation>
    </message>
    <message id="Play">
        <source>Play</source>
        <translation>Přehrát</translation>
    </message>
    <message id="Pause">
        <source>Pause</source>
        <translation>Pozastavit</translation>
    </message>
    <message id="Fast Forward">
        <source>Fast Forward</source>
        <translation>Rychle vpřed</translation>
    </message>
    <message id="Rewind">
        <source>Rewind</source>
        <translation>Rychle vzad</translation>
    </message>
    <message id="Jump Forward">
        <source>Jump Forward</source>
        <translation>Skok vpřed</translation>
    </message>
    <message id="Jump Backward">
        <source>Jump Backward</source>
        <translation>Skok vzad</translation>
    </message>
    <message id="Beginning">
        <source>Beginning</source>
        <translation>Začátek</translation>
    </message>
    <message id="End">
        <source>End</source>
        <translation>Konec</translation>
    </message>
    <message id="Next Movie">
        <source>Next Movie</source>
        <translation>Další film</translation>
    </message>
    <message id="Previous Movie">
        <source>Previous Movie</source>
        <translation>Předchozí film</translation>
    </message>
    <message id="Looping Off">
        <source>Looping Off</source>
        <translation>Neopakovat</translation>
    </message>
    <message id="Loop Off">
        <source>Loop Off</source>
        <translation>Neopakovat</translation>
    </message>
    <message id="Loop One">
        <source>Loop One</source>
        <translation>Opakovat jeden</translation>
    </message>
    <message id="Loop All">
        <source>Loop All</source>
        <translation>Opakovat vše</translation>
    </message>
    <message id="Repair">
        <source>Repair</source>
        <translation>Opravit</translation>
    </message>
    <message id="Volume Up">
        <source>Volume Up</source>
        <translation>Hlasitěji</translation>
    </message>
    <message id="Volume Down">
        <source>Volume Down</source>
        <translation>Tišeji</translation>
    </message>
    <message id="Normal Volume">
        <source>Normal Volume</source>
        <translation>Normální hlasitost</translation>
    </message>
    <message id="Silent">
        <source>Silent</source>
        <translation>Beze zvuku</translation>
    </message>
    <message id="Mute">
        <source>Mute</source>
        <translation>Ztlumit</translation>
    </message>
    <message id="Next Screen">
        <source>Next Screen</source>
        <translation>Další obrazovka</translation>
    </message>
    <message id="Previous Screen">
        <source>Previous Screen</source>
        <translation>Předchozí obrazovka</translation>
    </message>
    <message id="More...">
        <source>More…</source>
        <translation>Více…</translation>
    </message>
    <message id="The whole list: search, move and remove movies">
        <source>The whole list: search, move and remove movies</source>
        <translation>Celý playlist: hledat, přesouvat a odebírat filmy</translation>
    </message>
    <message id="Playlist Panel">
        <source>Playlist</source>
        <translation>Playlist</translation>
    </message>
    <message id="Filter">
        <source>Filter</source>
        <translation>Filtrovat</translation>
    </message>
    <message id="Play Movie">
        <source>Play</source>
        <translation>Přehrát</translation>
    </message>
    <message id="Move Up">
        <source>Move Up</source>
        <translation>Posunout výš</translation>
    </message>
    <message id="Move Down">
        <source>Move Down</source>
        <translation>Posunout níž</translation>
    </message>
    <message id="Remove from List">
        <source>Remove</source>
        <translation>Odebrat</translation>
    </message>
    <message id="PlaylistCountMessage">
        <source>%@ of %@ movies</source>
        <translation>%@ z %@ filmů</translation>
    </message>
    <message id="Lumaro Help">
        <source>Lumaro Help</source>
        <translation>Nápověda Lumaro</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="Open movies">
        <source>Open movies</source>
        <translation>Otevřít filmy</translation>
    </message>
    <message id="Half, normal and double size">
        <source>Half, normal and double size</source>
        <translation>Poloviční, normální a dvojnásobná velikost</translation>
    </message>
    <message id="Fit to the screen, to its width, to its height">
        <source>Fit to the screen, to its width, to its height</source>
        <translation>Přizpůsobit obrazovce, její šířce, její výšce</translation>
    </message>
    <message id="Bigger and smaller">
        <source>Bigger and smaller</source>
        <translation>Větší a menší</translation>
    </message>
    <message id="Controller bar">
        <source>Controller bar</source>
        <translation>Ovládací lišta</translation>
    </message>
    <message id="On-screen display: time, movie, subtitles, looping, volume">
        <source>On-screen display: time, movie, subtitles, looping, volume</source>
        <translation>Zobrazení na obrazovce: čas, film, titulky, opakování, hlasitost</translation>
    </message>
    <message id="Play, pause, back to normal speed">
        <source>Play, pause, back to normal speed</source>
        <translation>Přehrát, pozastavit, zpět na normální rychlost</translation>
    </message>
    <message id="Forward and back: one frame while paused, faster and faster while playing">
        <source>Forward and back: one frame while paused, faster and faster while playing</source>
        <translation>Vpřed a vzad: po snímku při pozastavení, stále rychleji při přehrávání</translation>
    </message>
    <message id="Jump forward and back">
        <source>Jump forward and back</source>
        <translation>Skok vpřed a vzad</translation>
    </message>
    <message id="Beginning and end of the movie">
        <source>Beginning and end of the movie</source>
        <translation>Začátek a konec filmu</translation>
    </message>
    <message id="Next and previous movie">
        <source>Next and previous movie</source>
        <translation>Další a předchozí film</translation>
    </message>
    <message id="Double Click">
        <source>Double Click</source>
        <translation>Dvojité kliknutí</translation>
    </message>
    <message id="Middle Button">
        <source>Middle Button</source>
        <translation>Prostřední tlačítko</translation>
    </message>
    <message id="Back Button">
        <source>Back Button</source>
        <translation>Tlačítko Zpět</translation>
    </message>
    <message id="Forward Button">
        <source>Forward Button</source>
        <translation>Tlačítko Vpřed</translation>
    </message>
    <message id="Wheel Up">
        <source>Wheel Up</source>
        <translation>Kolečko nahoru</translation>
    </message>
    <message id="Wheel Down">
        <source>Wheel Down</source>
        <translation>Kolečko dolů</translation>
    </message>
    <message id="Looping: off, one, all">
        <source>Looping: off, one, all</source>
        <translation>Opakování: vypnuto, jeden, vše</translation>
    </message>
    <message id="Louder and softer">
        <source>Louder and softer</source>
        <translation>Hlasitěji a tišeji</translation>
    </message>
    <message id="Next and previous subtitles">
        <source>Next and previous subtitles</source>
        <translation>Další a předchozí titulky</translation>
    </message>
    <message id="Sound Earlier">
        <source>Sound Earlier</source>
        <translation>Zvuk dříve</translation>
    </message>
    <message id="Sound Later">
        <source>Sound Later</source>
        <translation>Zvuk později</translation>
    </message>
    <message id="Sound as in the File">
        <source>Sound as in the File</source>
        <translation>Zvuk jako v souboru</translation>
    </message>
    <message id="Sound earlier and later">
        <source>Sound earlier and later</source>
        <translation>Zvuk dříve a později</translation>
    </message>
    <message id="Sound at the times of the file">
        <source>Sound at the times of the file</source>
        <translation>Zvuk v časech ze souboru</translation>
    </message>
    <message id="Sound delay: %@">
        <source>Sound delay: %@</source>
        <translation>Zpoždění zvuku: %@</translation>
    </message>
    <message id="Add Subtitles...">
        <source>Add Subtitles...</source>
        <translation>Přidat titulky…</translation>
    </message>
    <message id="Add Subtitles">
        <source>Add Subtitles</source>
        <translation>Přidat titulky</translation>
    </message>
    <message id="Add a file of subtitles to the movie">
        <source>Add a file of subtitles to the movie</source>
        <translation>Přidat k filmu soubor s titulky</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Přidat</translation>
    </message>
    <message id="NoSubtitlesInFile">
        <source>“%@” holds no subtitles that can be read</source>
        <translation>„%@“ neobsahuje čitelné titulky</translation>
    </message>
    <message id="Add to the Movie as Subtitles">
        <source>Add to the Movie as Subtitles</source>
        <translation>Přidat k filmu jako titulky</translation>
    </message>
    <message id="Show Earlier">
        <source>Show Earlier</source>
        <translation>Zobrazit dříve</translation>
    </message>
    <message id="Show Later">
        <source>Show Later</source>
        <translation>Zobrazit později</translation>
    </message>
    <message id="As in the File">
        <source>As in the File</source>
        <translation>Jako v souboru</translation>
    </message>
    <message id="Show Subtitles Earlier">
        <source>Show Subtitles Earlier</source>
        <translation>Zobrazit titulky dříve</translation>
    </message>
    <message id="Show Subtitles Later">
        <source>Show Subtitles Later</source>
        <translation>Zobrazit titulky později</translation>
    </message>
    <message id="Subtitles at the Times of Their File">
        <source>Subtitles at the Times of Their File</source>
        <translation>Titulky v časech z jejich souboru</translation>
    </message>
    <message id="Subtitles earlier and later">
        <source>Subtitles earlier and later</source>
        <translation>Titulky dříve a později</translation>
    </message>
    <message id="Subtitles at the times of their file">
        <source>Subtitles at the times of their file</source>
        <translation>Titulky v časech z jejich souboru</translation>
    </message>
    <message id="First Line Is Spoken Now">
        <source>First Line Is Spoken Now</source>
        <translation>Teď zaznívá první replika</translation>
    </message>
    <message id="Last Line Is Spoken Now">
        <source>Last Line Is Spoken Now</source>
        <translation>Teď zaznívá poslední replika</translation>
    </message>
    <message id="In step by two lines: press one while the first line is spoken, the other while the last one is">
        <source>In step by two lines: press one while the first line is spoken, the other while the last one is</source>
        <translation>Sladit podle dvou replik: jednu klávesu stisknout při první replice, druhou při poslední</translation>
    </message>
    <message id="Larger Text">
        <source>Larger Text</source>
        <translation>Větší text</translation>
    </message>
    <message id="Smaller Text">
        <source>Smaller Text</source>
        <translation>Menší text</translation>
    </message>
    <message id="Larger Subtitles">
        <source>Larger Subtitles</source>
        <translation>Větší titulky</translation>
    </message>
    <message id="Smaller Subtitles">
        <source>Smaller Subtitles</source>
        <translation>Menší titulky</translation>
    </message>
    <message id="Subtitles larger and smaller">
        <source>Subtitles larger and smaller</source>
        <translation>Titulky větší a menší</translation>
    </message>
    <message id="Higher">
        <source>Higher</source>
        <translation>Výše</translation>
    </message>
    <message id="Lower">
        <source>Lower</source>
        <translation>Níže</translation>
    </message>
    <message id="Higher Subtitles">
        <source>Higher Subtitles</source>
        <translation>Titulky výše</translation>
    </message>
    <message id="Lower Subtitles">
        <source>Lower Subtitles</source>
        <translation>Titulky níže</translation>
    </message>
    <message id="Subtitles higher and lower">
        <source>Subtitles higher and lower</source>
        <translation>Titulky výše a níže</translation>
    </message>
    <message id="Subtitle delay: %@">
        <source>Subtitle delay: %@</source>
        <translation>Zpoždění titulků: %@</translation>
    </message>
    <message id="Subtitle size: %d">
        <source>Subtitle size: %d</source>
        <translation>Velikost titulků: %d</translation>
    </message>
    <message id="Subtitle height: %d">
        <source>Subtitle height: %d %</source>
        <translation>Výška titulků: %d %</translation>
    </message>
    <message id="SubtitleLinesTooFar">
        <source>The lines cannot be brought in step: they would be more than twice as fast or as slow</source>
        <translation>Repliky nelze sladit: byly by více než dvakrát rychlejší nebo pomalejší</translation>
    </message>
    <message id="Repair damaged subtitles">
        <source>Repair damaged subtitles</source>
        <translation>Opravit poškozené titulky</translation>
    </message>
    <message id="Next and previous screen">
        <source>Next and previous screen</source>
        <translation>Další a předchozí obrazovka</translation>
    </message>
</context>
<context>
    <name>Text encodings</name>
    <message id="Western (ASCII)">
        <source>Western (ASCII)</source>
        <translation>Západní (ASCII)</translation>
    </message>
    <message id="Western (ISO Latin 1)">
        <source>Western (ISO Latin 1)</source>
        <translation>Západní (ISO Latin 1)</translation>
    </message>
    <message id="Western (ISO Latin 9)">
        <source>Western (ISO Latin 9)</source>
        <translation>Západní (ISO Latin 9)</translation>
    </message>
    <message id="Western (Windows Latin 1)">
        <source>Western (Windows Latin 1)</source>
        <translation>Západní (Windows Latin 1)</translation>
    </message>
    <message id="Western (Mac OS Roman)">
        <source>Western (Mac OS Roman)</source>
        <translation>Západní (Mac OS Roman)</translation>
    </message>
    <message id="Western (DOS Latin 1)">
        <source>Western (DOS Latin 1)</source>
        <translation>Západní (DOS Latin 1)</translation>
    </message>
    <message id="Latin-US (DOS)">
        <source>Latin-US (DOS)</source>
        <translation>Latinka-USA (DOS)</translation>
    </message>
    <message id="Central European (ISO Latin 2)">
        <source>Central European (ISO Latin 2)</source>
        <translation>Středoevropské (ISO Latin 2)</translation>
    </message>
    <message id="Central European (Windows Latin 2)">
        <source>Central European (Windows Latin 2)</source>
        <translation>Středoevropské (Windows Latin 2)</translation>
    </message>
    <message id="Central European (Mac OS)">
        <source>Central European (Mac OS)</source>
        <translation>Středoevropské (Mac OS)</translation>
    </message>
    <message id="Central European (DOS Latin 2)">
        <source>Central European (DOS Latin 2)</source>
        <translation>Středoevropské (DOS Latin 2)</translation>
    </message>
    <message id="Western (ISO Latin 3)">
        <source>Western (ISO Latin 3)</source>
        <translation>Západní (ISO Latin 3)</translation>
    </message>
    <message id="Central European (ISO Latin 4)">
        <source>Central European (ISO Latin 4)</source>
        <translation>Středoevropské (ISO Latin 4)</translation>
    </message>
    <message id="Nordic (ISO Latin 6)">
        <source>Nordic (ISO Latin 6)</source>
        <translation>Severské (ISO Latin 6)</translation>
    </message>
    <message id="Icelandic (DOS)">
        <source>Icelandic (DOS)</source>
        <translation>Islandské (DOS)</translation>
    </message>
    <message id="Nordic (DOS)">
        <source>Nordic (DOS)</source>
        <translation>Severské (DOS)</translation>
    </message>
    <message id="Baltic (ISO Latin 7)">
        <source>Baltic (ISO Latin 7)</source>
        <translation>Pobaltské (ISO Latin 7)</translation>
    </message>
    <message id="Baltic (Windows)">
        <source>Baltic (Windows)</source>
        <translation>Pobaltské (Windows)</translation>
    </message>
    <message id="Baltic (DOS)">
        <source>Baltic (DOS)</source>
        <translation>Pobaltské (DOS)</translation>
    </message>
    <message id="Celtic (ISO Latin 8)">
        <source>Celtic (ISO Latin 8)</source>
        <translation>Keltské (ISO Latin 8)</translation>
    </message>
    <message id="Cyrillic (ISO 8859-5)">
        <source>Cyrillic (ISO 8859-5)</source>
        <translation>Cyrilice (ISO 8859-5)</translation>
    </message>
    <message id="Cyrillic (Windows)">
        <source>Cyrillic (Windows)</source>
        <translation>Cyrilice (Windows)</translation>
    </message>
    <message id="Cyrillic (KOI8-R)">
        <source>Cyrillic (KOI8-R)</source>
        <translation>Cyrilice (KOI8-R)</translation>
    </message>
    <message id="Ukrainian (KOI8-U)">
        <source>Ukrainian (KOI8-U)</source>
        <translation>Ukrajinské (KOI8-U)</translation>
    </message>
    <message id="Cyrillic (Mac OS)">
        <source>Cyrillic (Mac OS)</source>
        <translation>Cyrilice (Mac OS)</translation>
    </message>
    <message id="Cyrillic (DOS)">
        <source>Cyrillic (DOS)</source>
        <translation>Cyrilice (DOS)</translation>
    </message>
    <message id="Russian (DOS)">
        <source>Russian (DOS)</source>
        <translation>Ruské (DOS)</translation>
    </message>
    <message id="Greek (ISO 8859-7)">
        <source>Greek (ISO 8859-7)</source>
        <translation>Řecké (ISO 8859-7)</translation>
    </message>
    <message id="Greek (Windows)">
        <source>Greek (Windows)</source>
        <translation>Řecké (Windows)</translation>
    </message>
    <message id="Greek (Mac OS)">
        <source>Greek (Mac OS)</source>
        <translation>Řecké (Mac OS)</translation>
    </message>
    <message id="Greek (DOS)">
        <source>Greek (DOS)</source>
        <translation>Řecké (DOS)</translation>
    </message>
    <message id="Greek (DOS Greek 2)">
        <source>Greek (DOS Greek 2)</source>
        <translation>Řecké (DOS Greek 2)</translation>
    </message>
    <message id="Turkish (ISO Latin 5)">
        <source>Turkish (ISO Latin 5)</source>
        <translation>Turecké (ISO Latin 5)</translation>
    </message>
    <message id="Turkish (Windows Latin 5)">
        <source>Turkish (Windows Latin 5)</source>
        <translation>Turecké (Windows Latin 5)</translation>
    </message>
    <message id="Turkish (Mac OS)">
        <source>Turkish (Mac OS)</source>
        <translation>Turecké (Mac OS)</translation>
    </message>
    <message id="Turkish (DOS)">
        <source>Turkish (DOS)</source>
        <translation>Turecké (DOS)</translation>
    </message>
    <message id="Hebrew (ISO 8859-8)">
        <source>Hebrew (ISO 8859-8)</source>
        <translation>Hebrejské (ISO 8859-8)</translation>
    </message>
    <message id="Hebrew (Windows)">
        <source>Hebrew (Windows)</source>
        <translation>Hebrejské (Windows)</translation>
    </message>
    <message id="Hebrew (DOS)">
        <source>Hebrew (DOS)</source>
        <translation>Hebrejské (DOS)</translation>
    </message>
    <message id="Arabic (ISO 8859-6)">
        <source>Arabic (ISO 8859-6)</source>
        <translation>Arabské (ISO 8859-6)</translation>
    </message>
    <message id="Arabic (Windows)">
        <source>Arabic (Windows)</source>
        <translation>Arabské (Windows)</translation>
    </message>
    <message id="Arabic (DOS)">
        <source>Arabic (DOS)</source>
        <translation>Arabské (DOS)</translation>
    </message>
    <message id="Portuguese (DOS)">
        <source>Portuguese (DOS)</source>
        <translation>Portugalské (DOS)</translation>
    </message>
    <message id="Canadian French (DOS)">
        <source>Canadian French (DOS)</source>
        <translation>Kanadské francouzské (DOS)</translation>
    </message>
    <message id="Thai (ISO 8859-11)">
        <source>Thai (ISO 8859-11)</source>
        <translation>Thajské (ISO 8859-11)</translation>
    </message>
    <message id="Thai (Windows, DOS)">
        <source>Thai (Windows, DOS)</source>
        <translation>Thajské (Windows, DOS)</translation>
    </message>
    <message id="Vietnamese (Windows)">
        <source>Vietnamese (Windows)</source>
        <translation>Vietnamské (Windows)</translation>
    </message>
    <message id="Japanese (Shift JIS)">
        <source>Japanese (Shift JIS)</source>
        <translation>Japonské (Shift JIS)</translation>
    </message>
    <message id="Japanese (Windows, DOS)">
        <source>Japanese (Windows, DOS)</source>
        <translation>Japonské (Windows, DOS)</translation>
    </message>
    <message id="Japanese (EUC)">
        <source>Japanese (EUC)</source>
        <translation>Japonské (EUC)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP)">
        <source>Japanese (ISO 2022-JP)</source>
        <translation>Japonské (ISO 2022-JP)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-2)">
        <source>Japanese (ISO 2022-JP-2)</source>
        <translation>Japonské (ISO 2022-JP-2)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-1)">
        <source>Japanese (ISO 2022-JP-1)</source>
        <translation>Japonské (ISO 2022-JP-1)</translation>
    </message>
    <message id="Chinese (GB 18030)">
        <source>Chinese (GB 18030)</source>
        <translation>Čínské (GB 18030)</translation>
    </message>
    <message id="Simplified Chinese (GBK)">
        <source>Simplified Chinese (GBK)</source>
        <translation>Čínské zjednodušené (GBK)</translation>
    </message>
    <message id="Simplified Chinese (Windows, DOS)">
        <source>Simplified Chinese (Windows, DOS)</source>
        <translation>Čínské zjednodušené (Windows, DOS)</translation>
    </message>
    <message id="Simplified Chinese (GB 2312)">
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Čínské zjednodušené (GB 2312)</translation>
    </message>
    <message id="Simplified Chinese (HZ GB 2312)">
        <source>Simplified Chinese (HZ GB 2312)</source>
        <translation>Čínské zjednodušené (HZ GB 2312)</translation>
    </message>
    <message id="Chinese (ISO 2022-CN)">
        <source>Chinese (ISO 2022-CN)</source>
        <translation>Čínské (ISO 2022-CN)</translation>
    </message>
    <message id="Traditional Chinese (Big 5)">
        <source>Traditional Chinese (Big 5)</source>
        <translation>Čínské tradiční (Big 5)</translation>
    </message>
    <message id="Traditional Chinese (Big 5 HKSCS)">
        <source>Traditional Chinese (Big 5 HKSCS)</source>
        <translation>Čínské tradiční (Big 5 HKSCS)</translation>
    </message>
    <message id="Traditional Chinese (Windows, DOS)">
        <source>Traditional Chinese (Windows, DOS)</source>
        <translation>Čínské tradiční (Windows, DOS)</translation>
    </message>
    <message id="Traditional Chinese (EUC)">
        <source>Traditional Chinese (EUC)</source>
        <translation>Čínské tradiční (EUC)</translation>
    </message>
    <message id="Korean (EUC)">
        <source>Korean (EUC)</source>
        <translation>Korejské (EUC)</translation>
    </message>
    <message id="Korean (Windows, DOS)">
        <source>Korean (Windows, DOS)</source>
        <translation>Korejské (Windows, DOS)</translation>
    </message>
    <message id="Korean (ISO 2022-KR)">
        <source>Korean (ISO 2022-KR)</source>
        <translation>Korejské (ISO 2022-KR)</translation>
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
        <translation>Barva te&amp;xtu:</translation>
    </message>
    <message id="StyleTextColorTip">
        <source>The color of the letters, and of the line around the panel</source>
        <translation>Barva písmen a čáry kolem panelu</translation>
    </message>
    <message id="StyleTextFontName">
        <source>&amp;Font:</source>
        <translation>&amp;Písmo:</translation>
    </message>
    <message id="StyleTextFontNameTip">
        <source>The family of the letters</source>
        <translation>Rodina písma</translation>
    </message>
    <message id="StyleTextFontSize">
        <source>Si&amp;ze:</source>
        <translation>Velikos&amp;t:</translation>
    </message>
    <message id="StyleTextFontSizeTip">
        <source>In points of a screen 1080 points high; on a higher one, letters grow with it</source>
        <translation>V bodech obrazovky vysoké 1080 bodů; na vyšší písmena rostou s ní</translation>
    </message>
    <message id="StyleShadow">
        <source>Shadow</source>
        <translation>Stín</translation>
    </message>
    <message id="StyleShadowOn">
        <source>Draw a &amp;shadow</source>
        <translation>Kr&amp;eslit stín</translation>
    </message>
    <message id="StyleShadowOnTip">
        <source>A shadow keeps letters legible on any picture</source>
        <translation>Díky stínu jsou písmena čitelná na každém obrazu</translation>
    </message>
    <message id="StyleShadowColor">
        <source>Co&amp;lor:</source>
        <translation>Barva stí&amp;nu:</translation>
    </message>
    <message id="StyleShadowColorTip">
        <source>The color of the shadow, and how much shows through it</source>
        <translation>Barva stínu a kolik jím prosvítá</translation>
    </message>
    <message id="StyleShadowBlur">
        <source>&amp;Blur:</source>
        <translation>Ro&amp;zostření:</translation>
    </message>
    <message id="StyleShadowBlurTip">
        <source>How far the shadow’s edge is spread, in points</source>
        <translation>Jak široce je okraj stínu rozostřen, v bodech</translation>
    </message>
    <message id="StyleShadowOffsetX">
        <source>To the &amp;right:</source>
        <translation>Pos&amp;un vpravo:</translation>
    </message>
    <message id="StyleShadowOffsetXTip">
        <source>How far the shadow falls to the right, in points; below 0, to the left</source>
        <translation>Jak daleko padá stín vpravo, v bodech; pod 0 vlevo</translation>
    </message>
    <message id="StyleShadowOffsetY">
        <source>&amp;Upwards:</source>
        <translation>Posun na&amp;horu:</translation>
    </message>
    <message id="StyleShadowOffsetYTip">
        <source>How far the shadow falls upwards, in points; below 0, downwards</source>
        <translation>Jak daleko padá stín nahoru, v bodech; pod 0 dolů</translation>
    </message>
    <message id="StylePosition">
        <source>Position</source>
        <translation>Umístění</translation>
    </message>
    <message id="StyleAlignmentVertical">
        <source>&amp;Vertical:</source>
        <translation>S&amp;visle:</translation>
    </message>
    <message id="StyleAlignmentVerticalTip">
        <source>At what height it stands</source>
        <translation>V jaké výšce stojí</translation>
    </message>
    <message id="StyleAlignmentHorizontal">
        <source>&amp;Horizontal:</source>
        <translation>V&amp;odorovně:</translation>
    </message>
    <message id="StyleAlignmentHorizontalTip">
        <source>At which side of the screen it stands</source>
        <translation>Na které straně obrazovky stojí</translation>
    </message>
    <message id="StyleLeft">
        <source>Left</source>
        <translation>Vlevo</translation>
    </message>
    <message id="StyleCenter">
        <source>Center</source>
        <translation>Uprostřed</translation>
    </message>
    <message id="StyleRight">
        <source>Right</source>
        <translation>Vpravo</translation>
    </message>
    <message id="StyleTop">
        <source>Top</source>
        <translation>Nahoře</translation>
    </message>
    <message id="StyleMiddle">
        <source>Middle</source>
        <translation>Uprostřed</translation>
    </message>
    <message id="StyleBottom">
        <source>Bottom</source>
        <translation>Dole</translation>
    </message>
    <message id="StyleAbovePictureEdge">
        <source>Inside the picture</source>
        <translation>Uvnitř obrazu</translation>
    </message>
    <message id="StyleOnPictureEdge">
        <source>On the picture’s edge</source>
        <translation>Na okraji obrazu</translation>
    </message>
    <message id="StyleBelowPicture">
        <source>Below the picture</source>
        <translation>Pod obrazem</translation>
    </message>
    <message id="StylePanel">
        <source>Panel</source>
        <translation>Panel</translation>
    </message>
    <message id="StyleBackground">
        <source>Background</source>
        <translation>Pozadí</translation>
    </message>
    <message id="StyleBackgroundTip">
        <source>The color around the picture</source>
        <translation>Barva kolem obrazu</translation>
    </message>
    <message id="StyleBackgroundOn">
        <source>Draw a &amp;panel</source>
        <translation>K&amp;reslit panel</translation>
    </message>
    <message id="StyleBackgroundOnTip">
        <source>A panel behind the text</source>
        <translation>Panel za textem</translation>
    </message>
    <message id="StyleBackgroundColor">
        <source>Col&amp;or:</source>
        <translation>&amp;Barva panelu:</translation>
    </message>
    <message id="StyleBackgroundColorTip">
        <source>The color of the panel, and how much shows through it</source>
        <translation>Barva panelu a kolik jím prosvítá</translation>
    </message>
    <message id="StyleBackgroundRounded">
        <source>Rou&amp;nd corners</source>
        <translation>Zaoblené roh&amp;y</translation>
    </message>
    <message id="StyleBackgroundRoundedTip">
        <source>Corners of the panel are rounded</source>
        <translation>Rohy panelu jsou zaoblené</translation>
    </message>
    <message id="StyleBackgroundRadius">
        <source>R&amp;adius:</source>
        <translation>Po&amp;loměr:</translation>
    </message>
    <message id="StyleBackgroundRadiusTip">
        <source>How far the corners are rounded, in points</source>
        <translation>Jak moc jsou rohy zaoblené, v bodech</translation>
    </message>
    <message id="StyleFrameOn">
        <source>Draw a fra&amp;me</source>
        <translation>Kresl&amp;it rámeček</translation>
    </message>
    <message id="StyleFrameOnTip">
        <source>A line around the panel, in the text’s color</source>
        <translation>Čára kolem panelu v barvě textu</translation>
    </message>
    <message id="StyleFrameWidth">
        <source>&amp;Width:</source>
        <translation>Šířk&amp;a čáry:</translation>
    </message>
    <message id="StyleFrameWidthTip">
        <source>How wide the line is, in points</source>
        <translation>Jak široká je čára, v bodech</translation>
    </message>
    <message id="StyleFading">
        <source>Fading and opacity</source>
        <translation>Prolínání a krytí</translation>
    </message>
    <message id="StyleFadingIn">
        <source>Fade &amp;in:</source>
        <translation>Ob&amp;jevení:</translation>
    </message>
    <message id="StyleFadingInTip">
        <source>How long a whole fade takes when it appears; 0 shows it at once</source>
        <translation>Jak dlouho trvá celé prolnutí při objevení; 0 zobrazí ihned</translation>
    </message>
    <message id="StyleFadingOut">
        <source>Fad&amp;e out:</source>
        <translation>&amp;Mizení:</translation>
    </message>
    <message id="StyleFadingOutTip">
        <source>How long a whole fade takes when it goes; 0 hides it at once</source>
        <translation>Jak dlouho trvá celé prolnutí při zmizení; 0 skryje ihned</translation>
    </message>
    <message id="StyleFadingDelay">
        <source>S&amp;tay:</source>
        <translation>&amp;Doba:</translation>
    </message>
    <message id="StyleFadingDelayTip">
        <source>How long it stays between fading in and fading out</source>
        <translation>Jak dlouho zůstává mezi objevením a zmizením</translation>
    </message>
    <message id="StyleMinAlpha">
        <source>Opacity when hi&amp;dden:</source>
        <translation>Krytí &amp;skrytého:</translation>
    </message>
    <message id="StyleMinAlphaTip">
        <source>How much of it remains while it is hidden: 0 % is nothing</source>
        <translation>Kolik z něj zbývá, když je skrytý: 0 % není nic</translation>
    </message>
    <message id="StyleMaxAlpha">
        <source>Opacit&amp;y when shown:</source>
        <translation>&amp;Krytí zobrazeného:</translation>
    </message>
    <message id="StyleMaxAlphaTip">
        <source>How opaque it is while it is shown: below 100 % the picture shows through</source>
        <translation>Jak moc kryje, když je viditelný: pod 100 % prosvítá obraz</translation>
    </message>
    <message id="StyleReset">
        <source>Reset to Defaults</source>
        <translation>Obnovit výchozí</translation>
    </message>
    <message id="StyleResetTip">
        <source>Takes this style back to what it was at first</source>
        <translation>Vrátí tento styl do původní podoby</translation>
    </message>
    <message id="StyleResetUndo">
        <source>Undo Reset</source>
        <translation>Zrušit obnovení</translation>
    </message>
    <message id="StyleResetUndoTip">
        <source>Brings back what the style was before</source>
        <translation>Vrátí styl do podoby, jakou měl předtím</translation>
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
        <translation>Ukázka</translation>
    </message>
    <message id="StyleSampleTip">
        <source>What it looks like over the movie, or over a light and a dark picture</source>
        <translation>Jak to vypadá přes film, nebo přes světlý a tmavý obraz</translation>
    </message>
    <message id="StyleSampleSubtitle">
        <source>What an evening!</source>
        <translation>To je ale večer!</translation>
    </message>
    <message id="StyleSampleFeedback">
        <source>Volume: 80 %</source>
        <translation>Hlasitost: 80 %</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message id="Preferences">
        <source>Preferences</source>
        <translation>Předvolby</translation>
    </message>
    <message id="&amp;Movie">
        <source>&amp;Movie</source>
        <translation>&amp;Film</translation>
    </message>
    <message id="Started Without a File">
        <source>Started Without a File</source>
        <translation>Spuštění bez souboru</translation>
    </message>
    <message id="Open &amp;nothing">
        <source>Open &amp;nothing</source>
        <translation>Ni&amp;c neotevírat</translation>
    </message>
    <message id="Lumaro starts with an empty screen">
        <source>Lumaro starts with an empty screen</source>
        <translation>Lumaro začne s prázdnou obrazovkou</translation>
    </message>
    <message id="Open the &amp;last playlist">
        <source>Open the &amp;last playlist</source>
        <translation>Otevřít poslední pla&amp;ylist</translation>
    </message>
    <message id="The movies of the last time come back, at the place where they were left">
        <source>The movies of the last time come back, at the place where they were left</source>
        <translation>Filmy z minula se vrátí na místo, kde jste skončili</translation>
    </message>
    <message id="Ask for &amp;files">
        <source>Ask for &amp;files</source>
        <translation>Zeptat se na so&amp;ubory</translation>
    </message>
    <message id="Lumaro begins with the panel that opens movies">
        <source>Lumaro begins with the panel that opens movies</source>
        <translation>Lumaro začne oknem, které otevírá filmy</translation>
    </message>
    <message id="Picture">
        <source>Picture</source>
        <translation>Obraz</translation>
    </message>
    <message id="Si&amp;ze:">
        <source>Si&amp;ze:</source>
        <translation>Vel&amp;ikost:</translation>
    </message>
    <message id="How large movies are shown, from now on and at the next start">
        <source>How large movies are shown, from now on and at the next start</source>
        <translation>Jak velké se filmy zobrazují, odteď a při příštím spuštění</translation>
    </message>
    <message id="Custom Magnification">
        <source>Custom Magnification</source>
        <translation>Vlastní zvětšení</translation>
    </message>
    <message id="&amp;Window:">
        <source>&amp;Window:</source>
        <translation>Ok&amp;no:</translation>
    </message>
    <message id="Whether the movie stays above the windows of other programs while Lumaro has the keyboard">
        <source>Whether the movie stays above the windows of other programs while Lumaro has the keyboard</source>
        <translation>Zda film zůstává nad okny jiných programů, když je aktivní Lumaro</translation>
    </message>
    <message id="Bar over the p&amp;icture:">
        <source>Bar over the p&amp;icture:</source>
        <translation>Li&amp;šta přes obraz:</translation>
    </message>
    <message id="Where none stands below it: a larger bar that comes with the pointer, or stays">
        <source>Where none stands below it: a larger bar that comes with the pointer, or stays</source>
        <translation>Kde pod ním žádná není: větší lišta, která přichází s ukazatelem, nebo zůstává</translation>
    </message>
    <message id="Always">
        <source>Always</source>
        <translation>Vždy</translation>
    </message>
    <message id="When the pointer moves">
        <source>When the pointer moves</source>
        <translation>Při pohybu ukazatele</translation>
    </message>
    <message id="Among other windows">
        <source>Among other windows</source>
        <translation>Mezi ostatními okny</translation>
    </message>
    <message id="Above other windows">
        <source>Above other windows</source>
        <translation>Nad ostatními okny</translation>
    </message>
    <message id="Show the controller &amp;bar">
        <source>Show the controller &amp;bar</source>
        <translation>Zobrazit ovládací &amp;lištu</translation>
    </message>
    <message id="The bar with play, time and volume below the picture">
        <source>The bar with play, time and volume below the picture</source>
        <translation>Lišta s přehráváním, časem a hlasitostí pod obrazem</translation>
    </message>
    <message id="Set the screen’s bri&amp;ghtness:">
        <source>Set the screen’s bri&amp;ghtness:</source>
        <translation>Nastavit &amp;jas obrazovky:</translation>
    </message>
    <message id="As long as Lumaro runs; then the screen is as bright as before">
        <source>As long as Lumaro runs; then the screen is as bright as before</source>
        <translation>Dokud Lumaro běží; potom je obrazovka stejně jasná jako dříve</translation>
    </message>
    <message id="How bright the screen is while Lumaro runs">
        <source>How bright the screen is while Lumaro runs</source>
        <translation>Jak jasná je obrazovka, když Lumaro běží</translation>
    </message>
    <message id="Brightness of the screen">
        <source>Brightness of the screen</source>
        <translation>Jas obrazovky</translation>
    </message>
    <message id="Pictur&amp;e">
        <source>Pictur&amp;e</source>
        <translation>O&amp;braz</translation>
    </message>
    <message id="Co&amp;ntrast:">
        <source>Co&amp;ntrast:</source>
        <translation>&amp;Kontrast:</translation>
    </message>
    <message id="&amp;Brightness:">
        <source>&amp;Brightness:</source>
        <translation>&amp;Jas:</translation>
    </message>
    <message id="&amp;Gamma:">
        <source>&amp;Gamma:</source>
        <translation>&amp;Gama:</translation>
    </message>
    <message id="Sa&amp;turation:">
        <source>Sa&amp;turation:</source>
        <translation>&amp;Sytost:</translation>
    </message>
    <message id="&amp;Hue:">
        <source>&amp;Hue:</source>
        <translation>O&amp;dstín:</translation>
    </message>
    <message id="Every movie is shown with it, the one on the screen at once">
        <source>Every movie is shown with it, the one on the screen at once</source>
        <translation>Takto se zobrazuje každý film, ten na obrazovce ihned</translation>
    </message>
    <message id="The brightness of this screen can’t be set">
        <source>The brightness of this screen can’t be set</source>
        <translation>Jas této obrazovky nelze nastavit</translation>
    </message>
    <message id="Playing">
        <source>Playing</source>
        <translation>Přehrávání</translation>
    </message>
    <message id="&amp;Jump by:">
        <source>&amp;Jump by:</source>
        <translation>&amp;Délka skoku:</translation>
    </message>
    <message id="How many seconds a jump goes forward or back">
        <source>How many seconds a jump goes forward or back</source>
        <translation>O kolik sekund jde skok vpřed nebo vzad</translation>
    </message>
    <message id="seconds">
        <source>seconds</source>
        <translation>s</translation>
    </message>
    <message id="&amp;Keep the volume for the next start">
        <source>&amp;Keep the volume for the next start</source>
        <translation>Zachovat &amp;hlasitost pro příští spuštění</translation>
    </message>
    <message id="Lumaro begins as loud as it ended">
        <source>Lumaro begins as loud as it ended</source>
        <translation>Lumaro začne tak hlasitě, jak skončilo</translation>
    </message>
    <message id="While Another Program Has the Keyboard">
        <source>While Another Program Has the Keyboard</source>
        <translation>Když je aktivní jiný program</translation>
    </message>
    <message id="Pa&amp;use the movie">
        <source>Pa&amp;use the movie</source>
        <translation>Pozasta&amp;vit film</translation>
    </message>
    <message id="It goes on when you come back">
        <source>It goes on when you come back</source>
        <translation>Pokračuje, až se vrátíte</translation>
    </message>
    <message id="&amp;Hide the window">
        <source>&amp;Hide the window</source>
        <translation>Sk&amp;rýt okno</translation>
    </message>
    <message id="The window is minimized, and comes back with Lumaro">
        <source>The window is minimized, and comes back with Lumaro</source>
        <translation>Okno se minimalizuje a vrátí se s Lumarem</translation>
    </message>
    <message id="Go on where a mo&amp;vie was left">
        <source>Go on where a mo&amp;vie was left</source>
        <translation>Pokračovat ve filmech tam, &amp;kde jste skončili</translation>
    </message>
    <message id="The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them">
        <source>The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them</source>
        <translation>Pozice a titulky posledních tisíce filmů se pamatují a nabídka „Otevřít nedávné“ je uvádí</translation>
    </message>
    <message id="&amp;Playlist">
        <source>&amp;Playlist</source>
        <translation>Pl&amp;aylist</translation>
    </message>
    <message id="Order">
        <source>Order</source>
        <translation>Pořadí</translation>
    </message>
    <message id="As adde&amp;d">
        <source>As adde&amp;d</source>
        <translation>Pod&amp;le přidání</translation>
    </message>
    <message id="Movies play in the order in which they were given">
        <source>Movies play in the order in which they were given</source>
        <translation>Filmy se přehrávají v pořadí, v jakém byly zadány</translation>
    </message>
    <message id="Shu&amp;ffled">
        <source>Shu&amp;ffled</source>
        <translation>Ná&amp;hodné</translation>
    </message>
    <message id="Movies play in an order left to chance">
        <source>Movies play in an order left to chance</source>
        <translation>Filmy se přehrávají v náhodném pořadí</translation>
    </message>
    <message id="Sor&amp;ted">
        <source>Sor&amp;ted</source>
        <translation>&amp;Seřazené</translation>
    </message>
    <message id="Movies play by their names">
        <source>Movies play by their names</source>
        <translation>Filmy se přehrávají podle názvů</translation>
    </message>
    <message id="Compare &amp;numbers by value">
        <source>Compare &amp;numbers by value</source>
        <translation>Po&amp;rovnávat čísla podle hodnoty</translation>
    </message>
    <message id="Part 2 comes before part 10">
        <source>Part 2 comes before part 10</source>
        <translation>Část 2 je před částí 10</translation>
    </message>
    <message id="By the &amp;whole path">
        <source>By the &amp;whole path</source>
        <translation>Po&amp;dle celé cesty</translation>
    </message>
    <message id="Folders stay together">
        <source>Folders stay together</source>
        <translation>Složky zůstávají pohromadě</translation>
    </message>
    <message id="By the f&amp;ile name only">
        <source>By the f&amp;ile name only</source>
        <translation>&amp;Jen podle názvu souboru</translation>
    </message>
    <message id="Whatever folders the movies lie in">
        <source>Whatever folders the movies lie in</source>
        <translation>Ať jsou filmy v jakýchkoli složkách</translation>
    </message>
    <message id="&amp;Looping:">
        <source>&amp;Looping:</source>
        <translation>Opako&amp;vání:</translation>
    </message>
    <message id="What is repeated, from now on and in new playlists">
        <source>What is repeated, from now on and in new playlists</source>
        <translation>Co se opakuje, odteď a v nových playlistech</translation>
    </message>
    <message id="&amp;Begin to play what is opened">
        <source>&amp;Begin to play what is opened</source>
        <translation>Přehrávat, &amp;co se otevře</translation>
    </message>
    <message id="Else movies are shown and wait">
        <source>Else movies are shown and wait</source>
        <translation>Jinak se filmy zobrazí a čekají</translation>
    </message>
    <message id="&amp;Go on with the next movie">
        <source>&amp;Go on with the next movie</source>
        <translation>Po&amp;kračovat dalším filmem</translation>
    </message>
    <message id="When one ends, the next in the list plays">
        <source>When one ends, the next in the list plays</source>
        <translation>Když jeden skončí, přehraje se další v playlistu</translation>
    </message>
    <message id="&amp;Quit at the end of the list">
        <source>&amp;Quit at the end of the list</source>
        <translation>&amp;Na konci playlistu ukončit</translation>
    </message>
    <message id="Unless it is repeated">
        <source>Unless it is repeated</source>
        <translation>Pokud se neopakuje</translation>
    </message>
    <message id="&amp;Subtitles">
        <source>&amp;Subtitles</source>
        <translation>&amp;Titulky</translation>
    </message>
    <message id="Showing">
        <source>Showing</source>
        <translation>Zobrazení</translation>
    </message>
    <message id="S&amp;how subtitles">
        <source>S&amp;how subtitles</source>
        <translation>Zobrazovat t&amp;itulky</translation>
    </message>
    <message id="Also for movies opened later">
        <source>Also for movies opened later</source>
        <translation>I u filmů otevřených později</translation>
    </message>
    <message id="Draw mark&amp;up">
        <source>Draw mark&amp;up</source>
        <translation>Po&amp;užít formátování</translation>
    </message>
    <message id="Italics, colors and places in subtitle files act; else they are left out">
        <source>Italics, colors and places in subtitle files act; else they are left out</source>
        <translation>Kurzíva, barvy a umístění ze souborů titulků platí; jinak se vynechají</translation>
    </message>
    <message id="&amp;Find subtitle files beside movies">
        <source>&amp;Find subtitle files beside movies</source>
        <translation>&amp;Hledat soubory titulků vedle filmů</translation>
    </message>
    <message id="When a movie is opened">
        <source>When a movie is opened</source>
        <translation>Při otevření filmu</translation>
    </message>
    <message id="Files">
        <source>Files</source>
        <translation>Soubory</translation>
    </message>
    <message id="E&amp;ncoding:">
        <source>E&amp;ncoding:</source>
        <translation>&amp;Kódování:</translation>
    </message>
    <message id="How the letters of subtitle files are stored; Automatic tells it by the file">
        <source>How the letters of subtitle files are stored; Automatic tells it by the file</source>
        <translation>Jak jsou písmena v souborech titulků uložena; „Automaticky“ to pozná podle souboru</translation>
    </message>
    <message id="Encoding of subtitle files">
        <source>Encoding of subtitle files</source>
        <translation>Kódování souborů titulků</translation>
    </message>
    <message id="Frame ra&amp;te:">
        <source>Frame ra&amp;te:</source>
        <translation>&amp;Snímků za sekundu:</translation>
    </message>
    <message id="For subtitle files that count pictures instead of seconds">
        <source>For subtitle files that count pictures instead of seconds</source>
        <translation>Pro soubory titulků, které počítají snímky místo sekund</translation>
    </message>
    <message id="As the movie">
        <source>As the movie</source>
        <translation>Jako film</translation>
    </message>
    <message id="Repair &amp;damaged subtitle files">
        <source>Repair &amp;damaged subtitle files</source>
        <translation>Op&amp;ravovat poškozené soubory titulků</translation>
    </message>
    <message id="What is damaged is read as far as it can be">
        <source>What is damaged is read as far as it can be</source>
        <translation>Co je poškozené, se přečte, pokud to jde</translation>
    </message>
    <message id="Preferred Languages">
        <source>Preferred Languages</source>
        <translation>Upřednostňované jazyky</translation>
    </message>
    <message id="Preferred languages">
        <source>Preferred languages</source>
        <translation>Upřednostňované jazyky</translation>
    </message>
    <message id="Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.">
        <source>Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.</source>
        <translation>Filmy začínají s titulky v prvním z těchto jazyků, který je k dispozici. Zpočátku jsou to jazyky vašeho systému.</translation>
    </message>
    <message id="Add a language">
        <source>Add a language</source>
        <translation>Přidat jazyk</translation>
    </message>
    <message id="Adds a language to the list">
        <source>Adds a language to the list</source>
        <translation>Přidá jazyk do seznamu</translation>
    </message>
    <message id="Hi&amp;gher">
        <source>Hi&amp;gher</source>
        <translation>&amp;Výše</translation>
    </message>
    <message id="Moves the language up the list">
        <source>Moves the language up the list</source>
        <translation>Posune jazyk v seznamu výše</translation>
    </message>
    <message id="Lo&amp;wer">
        <source>Lo&amp;wer</source>
        <translation>&amp;Níže</translation>
    </message>
    <message id="Moves the language down the list">
        <source>Moves the language down the list</source>
        <translation>Posune jazyk v seznamu níže</translation>
    </message>
    <message id="Remo&amp;ve">
        <source>Remo&amp;ve</source>
        <translation>O&amp;debrat</translation>
    </message>
    <message id="Takes the language off the list">
        <source>Takes the language off the list</source>
        <translation>Odebere jazyk ze seznamu</translation>
    </message>
    <message id="&amp;Overlays">
        <source>&amp;Overlays</source>
        <translation>Př&amp;ekryvy</translation>
    </message>
    <message id="Smallest &amp;text size:">
        <source>Smallest &amp;text size:</source>
        <translation>&amp;Nejmenší text:</translation>
    </message>
    <message id="No text over the movie is smaller">
        <source>No text over the movie is smaller</source>
        <translation>Žádný text přes film není menší</translation>
    </message>
    <message id="&amp;Distance from the edges:">
        <source>&amp;Distance from the edges:</source>
        <translation>&amp;Vzdálenost od okrajů:</translation>
    </message>
    <message id="How far what is shown over the movie keeps from the edges of the window">
        <source>How far what is shown over the movie keeps from the edges of the window</source>
        <translation>Jak daleko od okrajů okna zůstává to, co se zobrazuje přes film</translation>
    </message>
    <message id="Show &amp;feedback">
        <source>Show &amp;feedback</source>
        <translation>Zobrazovat &amp;hlášení</translation>
    </message>
    <message id="Commands say what they did">
        <source>Commands say what they did</source>
        <translation>Příkazy řeknou, co udělaly</translation>
    </message>
    <message id="&amp;Keep the display for the next start">
        <source>&amp;Keep the display for the next start</source>
        <translation>Zachovat zobrazení pro příští &amp;spuštění</translation>
    </message>
    <message id="The on-screen display chosen last is shown again">
        <source>The on-screen display chosen last is shown again</source>
        <translation>Naposledy zvolené zobrazení na obrazovce se ukáže znovu</translation>
    </message>
    <message id="How texts over the movie and the window look">
        <source>How texts over the movie and the window look</source>
        <translation>Jak vypadají texty přes film a okno</translation>
    </message>
    <message id="Overlay styles">
        <source>Overlay styles</source>
        <translation>Styly překryvů</translation>
    </message>
    <message id="How subtitles look">
        <source>How subtitles look</source>
        <translation>Jak vypadají titulky</translation>
    </message>
    <message id="Subtitle styles">
        <source>Subtitle styles</source>
        <translation>Styly titulků</translation>
    </message>
    <message id="&amp;Advanced">
        <source>&amp;Advanced</source>
        <translation>&amp;Pokročilé</translation>
    </message>
    <message id="Pointer">
        <source>Pointer</source>
        <translation>Ukazatel</translation>
    </message>
    <message id="&amp;Hide after:">
        <source>&amp;Hide after:</source>
        <translation>&amp;Skrýt po:</translation>
    </message>
    <message id="How long the pointer rests before it is hidden">
        <source>How long the pointer rests before it is hidden</source>
        <translation>Jak dlouho ukazatel stojí, než se skryje</translation>
    </message>
    <message id="New Versions">
        <source>New Versions</source>
        <translation>Nové verze</translation>
    </message>
    <message id="The packages of your system keep Lumaro up to date.">
        <source>The packages of your system keep Lumaro up to date.</source>
        <translation>Lumaro udržují aktuální balíčky vašeho systému.</translation>
    </message>
    <message id="Look for new &amp;versions">
        <source>Look for new &amp;versions</source>
        <translation>&amp;Hledat nové verze</translation>
    </message>
    <message id="When Lumaro starts, as often as is set below">
        <source>When Lumaro starts, as often as is set below</source>
        <translation>Při spuštění Lumara, tak často, jak je nastaveno níže</translation>
    </message>
    <message id="Also for &amp;beta versions">
        <source>Also for &amp;beta versions</source>
        <translation>Ta&amp;ké betaverze</translation>
    </message>
    <message id="Versions that are still being tried">
        <source>Versions that are still being tried</source>
        <translation>Verze, které se ještě zkoušejí</translation>
    </message>
    <message id="Ho&amp;w often:">
        <source>Ho&amp;w often:</source>
        <translation>&amp;Jak často:</translation>
    </message>
    <message id="How much time passes between two checks">
        <source>How much time passes between two checks</source>
        <translation>Kolik času uplyne mezi dvěma kontrolami</translation>
    </message>
    <message id="At every start">
        <source>At every start</source>
        <translation>Při každém spuštění</translation>
    </message>
    <message id="Daily">
        <source>Daily</source>
        <translation>Denně</translation>
    </message>
    <message id="Weekly">
        <source>Weekly</source>
        <translation>Týdně</translation>
    </message>
    <message id="Every 30 days">
        <source>Every 30 days</source>
        <translation>Každých 30 dní</translation>
    </message>
    <message id="Last check:">
        <source>Last check:</source>
        <translation>Poslední kontrola:</translation>
    </message>
    <message id="Result:">
        <source>Result:</source>
        <translation>Výsledek:</translation>
    </message>
    <message id="Check &amp;Now">
        <source>Check &amp;Now</source>
        <translation>Zkontrolovat &amp;nyní</translation>
    </message>
    <message id="Looks for a new version at once">
        <source>Looks for a new version at once</source>
        <translation>Ihned hledá novou verzi</translation>
    </message>
    <message id="Diagnosis">
        <source>Diagnosis</source>
        <translation>Diagnostika</translation>
    </message>
    <message id="Remote">
        <source>Remote</source>
        <translation>Dálkové ovládání</translation>
    </message>
    <message id="Act on in&amp;frared remotes">
        <source>Act on in&amp;frared remotes</source>
        <translation>&amp;Reagovat na infračervené ovladače</translation>
    </message>
    <message id="Their buttons are the player's alone while it runs">
        <source>Their buttons are the player's alone while it runs</source>
        <translation>Dokud přehrávač běží, patří jejich tlačítka jen jemu</translation>
    </message>
    <message id="&amp;Log what happens">
        <source>&amp;Log what happens</source>
        <translation>Zaznamenávat &amp;události</translation>
    </message>
    <message id="Lines for whoever looks for an error, in the system log or the terminal">
        <source>Lines for whoever looks for an error, in the system log or the terminal</source>
        <translation>Řádky pro toho, kdo hledá chybu, v systémovém záznamu nebo terminálu</translation>
    </message>
    <message id="&amp;Reset Page">
        <source>&amp;Reset Page</source>
        <translation>&amp;Obnovit stránku</translation>
    </message>
    <message id="Takes the settings of this page back to what they were at first. Styles have a button of their own.">
        <source>Takes the settings of this page back to what they were at first. Styles have a button of their own.</source>
        <translation>Vrátí nastavení této stránky do původního stavu. Styly mají vlastní tlačítko.</translation>
    </message>
    <message id="Undo Reset">
        <source>Undo Reset</source>
        <translation>Zrušit obnovení</translation>
    </message>
    <message id="Brings the settings of this page back (Ctrl+Z)">
        <source>Brings the settings of this page back (Ctrl+Z)</source>
        <translation>Vrátí zpět nastavení této stránky (Ctrl+Z)</translation>
    </message>
    <message id="Find a setting">
        <source>Find a setting</source>
        <translation>Najít nastavení</translation>
    </message>
    <message id="Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.">
        <source>Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.</source>
        <translation>Najde nastavení podle slov (Ctrl+F). Šipky nahoru a dolů vedou k dalším, Enter k samotnému nastavení.</translation>
    </message>
    <message id="PreferencesFound">
        <source>%d of %d</source>
        <translation>%d z %d</translation>
    </message>
    <message id="Nothing found">
        <source>Nothing found</source>
        <translation>Nic nenalezeno</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Zavřít</translation>
    </message>
    <message id="More Encodings">
        <source>More Encodings</source>
        <translation>Další kódování</translation>
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
        <translation>Hledání: %@</translation>
    </message>
    <message id="Type to search">
        <source>Type to search</source>
        <translation>Pište, co hledáte</translation>
    </message>
    <message id="Change the preferences">
        <source>Change the preferences</source>
        <translation>Změnit předvolby</translation>
    </message>
    <message id="Feedback style">
        <source>Feedback</source>
        <translation>Hlášení</translation>
    </message>
    <message id="Text style">
        <source>Texts</source>
        <translation>Texty</translation>
    </message>
    <message id="Picture style">
        <source>Bitmaps</source>
        <translation>Obrázky</translation>
    </message>
    <message id="On-screen display style">
        <source>On-Screen Display</source>
        <translation>Zobrazení na obrazovce</translation>
    </message>
    <message id="Window style">
        <source>Window</source>
        <translation>Okno</translation>
    </message>
    <message id="SettingsNotSavedMessage">
        <source>The preferences can’t be saved.</source>
        <translation>Předvolby nelze uložit.</translation>
    </message>
    <message id="SettingsNotSavedDetails">
        <source>What you change acts until Lumaro quits. The file “%@” can’t be written.</source>
        <translation>Co změníte, platí do ukončení Lumara. Soubor „%@“ nelze zapsat.</translation>
    </message>
    <message id="SettingsDamagedMessage">
        <source>The preferences are damaged.</source>
        <translation>Předvolby jsou poškozené.</translation>
    </message>
    <message id="SettingsDamagedDetails">
        <source>Lumaro begins with new ones. The damaged file is kept as “%@”.</source>
        <translation>Lumaro začne s novými. Poškozený soubor zůstává jako „%@“.</translation>
    </message>
    <message id="SettingsUnreadableMessage">
        <source>The preferences can’t be read.</source>
        <translation>Předvolby nelze přečíst.</translation>
    </message>
    <message id="SettingsUnreadableDetails">
        <source>The file “%@” stays as it is. What you change acts until Lumaro quits.</source>
        <translation>Soubor „%@“ zůstává, jak je. Co změníte, platí do ukončení Lumara.</translation>
    </message>
    <message id="PlacesDamagedMessage">
        <source>The remembered places in movies are damaged; their file was put aside.</source>
        <translation>Zapamatované pozice ve filmech jsou poškozené; jejich soubor byl odložen stranou.</translation>
    </message>
    <message id="PlacesUnreadableMessage">
        <source>The remembered places in movies can’t be read.</source>
        <translation>Zapamatované pozice ve filmech nelze přečíst.</translation>
    </message>
    <message id="PlacesOfLaterVersionMessage">
        <source>A later version of Lumaro remembers places in movies here; this one can’t.</source>
        <translation>Pozice ve filmech si zde pamatuje novější verze Lumara; tato nemůže.</translation>
    </message>
    <message id="Short&amp;cuts">
        <source>Short&amp;cuts</source>
        <translation>&amp;Zkratky</translation>
    </message>
    <message id="Searc&amp;h:">
        <source>Searc&amp;h:</source>
        <translation>&amp;Hledat:</translation>
    </message>
    <message id="Words of a command, or its key">
        <source>Words of a command, or its key</source>
        <translation>Slova z příkazu nebo jeho klávesa</translation>
    </message>
    <message id="The commands by menu; bold ones have keys of your own">
        <source>The commands by menu; bold ones have keys of your own</source>
        <translation>Příkazy podle nabídek; tučné mají vaše vlastní klávesy</translation>
    </message>
    <message id="Commands and their keys">
        <source>Commands and their keys</source>
        <translation>Příkazy a jejich klávesy</translation>
    </message>
    <message id="Command">
        <source>Command</source>
        <translation>Příkaz</translation>
    </message>
    <message id="Keys">
        <source>Keys</source>
        <translation>Klávesy</translation>
    </message>
    <message id="&amp;Keys of the command:">
        <source>&amp;Keys of the command:</source>
        <translation>&amp;Klávesy příkazu:</translation>
    </message>
    <message id="The keys of the command that is marked">
        <source>The keys of the command that is marked</source>
        <translation>Klávesy označeného příkazu</translation>
    </message>
    <message id="A&amp;dd Key...">
        <source>A&amp;dd Key...</source>
        <translation>Přidat kláve&amp;su…</translation>
    </message>
    <message id="Then press the key, with Ctrl, Alt, Shift or Super if you like">
        <source>Then press the key, with Ctrl, Alt, Shift or Super if you like</source>
        <translation>Potom stiskněte klávesu, případně s Ctrl, Alt, Shift nebo Super</translation>
    </message>
    <message id="Remo&amp;ve Key">
        <source>Remo&amp;ve Key</source>
        <translation>O&amp;debrat klávesu</translation>
    </message>
    <message id="The marked key means nothing any more">
        <source>The marked key means nothing any more</source>
        <translation>Označená klávesa už nic neznamená</translation>
    </message>
    <message id="Rese&amp;t Command">
        <source>Rese&amp;t</source>
        <translation>Ob&amp;novit</translation>
    </message>
    <message id="The command gets back the keys that Lumaro came with">
        <source>The command gets back the keys that Lumaro came with</source>
        <translation>Příkaz dostane zpět klávesy, které mělo Lumaro původně</translation>
    </message>
    <message id="Reset A&amp;ll Keys">
        <source>Reset A&amp;ll</source>
        <translation>Obnovit v&amp;še</translation>
    </message>
    <message id="Every command gets back the keys that Lumaro came with">
        <source>Every command gets back the keys that Lumaro came with</source>
        <translation>Všechny příkazy dostanou zpět klávesy, které mělo Lumaro původně</translation>
    </message>
    <message id="&amp;Undo Key Change">
        <source>&amp;Undo</source>
        <translation>Vrát&amp;it zpět</translation>
    </message>
    <message id="Takes back the last change of a key">
        <source>Takes back the last change of a key</source>
        <translation>Vezme zpět poslední změnu klávesy</translation>
    </message>
    <message id="Take &amp;It Over">
        <source>Take &amp;It Over</source>
        <translation>Pře&amp;vzít</translation>
    </message>
    <message id="The key means the marked command from now on">
        <source>The key means the marked command from now on</source>
        <translation>Klávesa odteď znamená označený příkaz</translation>
    </message>
    <message id="Ca&amp;ncel Key">
        <source>Ca&amp;ncel</source>
        <translation>Z&amp;rušit</translation>
    </message>
    <message id="The key keeps its meaning">
        <source>The key keeps its meaning</source>
        <translation>Klávesa si ponechá svůj význam</translation>
    </message>
    <message id="Press a key for “%@”. Esc goes back.">
        <source>Press a key for “%@”. Esc goes back.</source>
        <translation>Stiskněte klávesu pro „%@“. Esc zruší.</translation>
    </message>
    <message id="Lumaro does not know this key.">
        <source>Lumaro does not know this key.</source>
        <translation>Lumaro tuto klávesu nezná.</translation>
    </message>
    <message id="Esc closes windows and ends Lumaro; that can’t be changed.">
        <source>Esc closes windows and ends Lumaro; that can’t be changed.</source>
        <translation>Esc zavírá okna a ukončuje Lumaro; to nelze změnit.</translation>
    </message>
    <message id="%@ belongs to the desktop.">
        <source>%@ belongs to the desktop.</source>
        <translation>%@ patří pracovní ploše.</translation>
    </message>
    <message id="%@ means “%@” already.">
        <source>%@ means “%@” already.</source>
        <translation>%@ už znamená „%@“.</translation>
    </message>
    <message id="“%@” has as many keys as it can have; remove one first.">
        <source>“%@” has as many keys as it can have; remove one first.</source>
        <translation>„%@“ má tolik kláves, kolik může mít; nejdříve jednu odeberte.</translation>
    </message>
    <message id="%@ means “%@” now.">
        <source>%@ means “%@” now.</source>
        <translation>%@ nyní znamená „%@“.</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>Zastavit</translation>
    </message>
    <message id="Next Looping">
        <source>Next Looping</source>
        <translation>Další opakování</translation>
    </message>
    <message id="Previous Looping">
        <source>Previous Looping</source>
        <translation>Předchozí opakování</translation>
    </message>
    <message id="Show Playlist">
        <source>Show Playlist</source>
        <translation>Zobrazit playlist</translation>
    </message>
    <message id="Next Subtitles">
        <source>Next Subtitles</source>
        <translation>Další titulky</translation>
    </message>
    <message id="Previous Subtitles">
        <source>Previous Subtitles</source>
        <translation>Předchozí titulky</translation>
    </message>
    <message id="No Subtitles">
        <source>No Subtitles</source>
        <translation>Bez titulků</translation>
    </message>
    <message id="Open a movie from the menu">
        <source>Open a movie from the menu</source>
        <translation>Otevřete film z nabídky</translation>
    </message>
    <message id="or drop files here.">
        <source>or drop files here.</source>
        <translation>nebo sem přetáhněte soubory.</translation>
    </message>
    <message id="Keys of the command">
        <source>Keys of the command</source>
        <translation>Klávesy příkazu</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message id="Open pages of video sites with &amp;yt-dlp">
        <source>Open pages of video sites with &amp;yt-dlp</source>
        <translation>Otevírat &amp;stránky videoportálů pomocí yt-dlp</translation>
    </message>
    <message id="An address that is no movie is asked of the program yt-dlp, where it is installed">
        <source>An address that is no movie is asked of the program yt-dlp, where it is installed</source>
        <translation>Na adresu, která není filmem, se ptá programu yt-dlp, pokud je nainstalovaný</translation>
    </message>
    <message id="Open Movies">
        <source>Open Movies</source>
        <translation>Otevřít filmy</translation>
    </message>
    <message id="Open Folder">
        <source>Open Folder</source>
        <translation>Otevřít složku</translation>
    </message>
    <message id="Open Folder...">
        <source>Open Folder...</source>
        <translation>Otevřít složku…</translation>
    </message>
    <message id="Movies and Sound">
        <source>Movies and Sound</source>
        <translation>Filmy a hudba</translation>
    </message>
    <message id="All Files">
        <source>All Files</source>
        <translation>Všechny soubory</translation>
    </message>
    <message id="Add to Playlist">
        <source>Add to Playlist</source>
        <translation>Přidat do playlistu</translation>
    </message>
    <message id="Open folders of movies">
        <source>Open folders of movies</source>
        <translation>Otevřít složky s filmy</translation>
    </message>
    <message id="Open an address, several addresses">
        <source>Open an address, several addresses</source>
        <translation>Otevřít adresu, více adres</translation>
    </message>
    <message id="Open URL">
        <source>Open URL</source>
        <translation>Otevřít URL</translation>
    </message>
    <message id="Open URLs">
        <source>Open URLs</source>
        <translation>Otevřít více URL</translation>
    </message>
    <message id="&amp;Address or path of a movie:">
        <source>&amp;Address or path of a movie:</source>
        <translation>&amp;Adresa nebo cesta filmu:</translation>
    </message>
    <message id="&amp;Addresses or paths of movies, one in each line:">
        <source>&amp;Addresses or paths of movies, one in each line:</source>
        <translation>&amp;Adresy nebo cesty filmů, na každém řádku jedna:</translation>
    </message>
    <message id="Address">
        <source>Address</source>
        <translation>Adresa</translation>
    </message>
    <message id="Addresses">
        <source>Addresses</source>
        <translation>Adresy</translation>
    </message>
    <message id="Add to &amp;Playlist">
        <source>Add to &amp;Playlist</source>
        <translation>&amp;Přidat do playlistu</translation>
    </message>
    <message id="What plays now goes on; holding Alt does the same">
        <source>What plays now goes on; holding Alt does the same</source>
        <translation>Co se přehrává, pokračuje; totéž udělá podržení klávesy Alt</translation>
    </message>
    <message id="Replace the Playlist">
        <source>Replace the Playlist</source>
        <translation>Nahradit playlist</translation>
    </message>
    <message id="Add to the Playlist">
        <source>Add to the Playlist</source>
        <translation>Přidat do playlistu</translation>
    </message>
    <message id="OpenErrorSubtitles">
        <source>It holds subtitles. They are shown by themselves when they lie beside their movie and begin with its name.</source>
        <translation>Obsahuje titulky. Zobrazí se samy, když leží vedle svého filmu a začínají jeho názvem.</translation>
    </message>
    <message id="OpenErrorNotAnAddress">
        <source>It is neither an address nor the path of a file.</source>
        <translation>Není to adresa ani cesta k souboru.</translation>
    </message>
    <message id="Resumed at %@">
        <source>Resumed at %@</source>
        <translation>Pokračuje od %@</translation>
    </message>
</context>
<context>
    <name>Watching</name>
    <message id="Speed">
        <source>Speed</source>
        <translation>Rychlost</translation>
    </message>
    <message id="Speed: %@">
        <source>Speed: %@</source>
        <translation>Rychlost: %@</translation>
    </message>
    <message id="%@x">
        <source>%@x</source>
        <translation>%@×</translation>
    </message>
    <message id="Slower">
        <source>Slower</source>
        <translation>Pomaleji</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Rychleji</translation>
    </message>
    <message id="Half as Fast">
        <source>Half as Fast</source>
        <translation>Poloviční rychlost</translation>
    </message>
    <message id="Twice as Fast">
        <source>Twice as Fast</source>
        <translation>Dvojnásobná rychlost</translation>
    </message>
    <message id="Original Speed">
        <source>Original Speed</source>
        <translation>Původní rychlost</translation>
    </message>
    <message id="Slower and faster, the pitch kept; half and twice as fast">
        <source>Slower and faster, the pitch kept; half and twice as fast</source>
        <translation>Pomaleji a rychleji se zachovanou výškou tónu; poloviční a dvojnásobná rychlost</translation>
    </message>
    <message id="As fast as the movie was made">
        <source>As fast as the movie was made</source>
        <translation>Původní rychlostí filmu</translation>
    </message>
    <message id="Chapters">
        <source>Chapters</source>
        <translation>Kapitoly</translation>
    </message>
    <message id="No Chapters">
        <source>No Chapters</source>
        <translation>Žádné kapitoly</translation>
    </message>
    <message id="Chapter %d of %d">
        <source>Chapter %d of %d</source>
        <translation>Kapitola %d z %d</translation>
    </message>
    <message id="Chapter %d of %d: %@">
        <source>Chapter %d of %d: %@</source>
        <translation>Kapitola %d z %d: %@</translation>
    </message>
    <message id="Next Chapter">
        <source>Next Chapter</source>
        <translation>Další kapitola</translation>
    </message>
    <message id="Previous Chapter">
        <source>Previous Chapter</source>
        <translation>Předchozí kapitola</translation>
    </message>
    <message id="Next and previous chapter">
        <source>Next and previous chapter</source>
        <translation>Další a předchozí kapitola</translation>
    </message>
    <message id="Save Still">
        <source>Save Still</source>
        <translation>Uložit snímek</translation>
    </message>
    <message id="Save the picture as a file">
        <source>Save the picture as a file</source>
        <translation>Uložit obraz jako soubor</translation>
    </message>
    <message id="Still: %@">
        <source>Still: %@</source>
        <translation>Snímek: %@</translation>
    </message>
    <message id="No Picture to Save">
        <source>No Picture to Save</source>
        <translation>Žádný obraz k uložení</translation>
    </message>
    <message id="Can’t save the still in %@">
        <source>Can’t save the still in %@</source>
        <translation>Snímek nelze uložit do %@</translation>
    </message>
    <message id="Go to Time">
        <source>Go to Time</source>
        <translation>Přejít na čas</translation>
    </message>
    <message id="Go to Time...">
        <source>Go to Time...</source>
        <translation>Přejít na čas…</translation>
    </message>
    <message id="Go to a time">
        <source>Go to a time</source>
        <translation>Přejít na daný čas</translation>
    </message>
    <message id="Time in the movie:">
        <source>Time in the movie:</source>
        <translation>Čas ve filmu:</translation>
    </message>
    <message id="Time in the movie, up to %@:">
        <source>Time in the movie, up to %@:</source>
        <translation>Čas ve filmu, do %@:</translation>
    </message>
    <message id="Seconds, minutes or hours: 90, 1:30 or 1:23:45.6">
        <source>Seconds, minutes or hours: 90, 1:30 or 1:23:45.6</source>
        <translation>Sekundy, minuty nebo hodiny: 90, 1:30 nebo 1:23:45,6</translation>
    </message>
    <message id="Time: %@">
        <source>Time: %@</source>
        <translation>Čas: %@</translation>
    </message>
    <message id="Repeat Section">
        <source>Repeat Section</source>
        <translation>Opakovat úsek</translation>
    </message>
    <message id="Repeat from Here">
        <source>Repeat from Here</source>
        <translation>Opakovat odtud</translation>
    </message>
    <message id="Repeat until Here">
        <source>Repeat until Here</source>
        <translation>Opakovat až sem</translation>
    </message>
    <message id="Repeat a section: its beginning, its end, no more">
        <source>Repeat a section: its beginning, its end, no more</source>
        <translation>Opakovat úsek: jeho začátek, jeho konec, už ne</translation>
    </message>
    <message id="Repeat: Off">
        <source>Repeat: Off</source>
        <translation>Opakování úseku: vypnuto</translation>
    </message>
    <message id="Repeat from %@">
        <source>Repeat from %@</source>
        <translation>Opakování od %@</translation>
    </message>
    <message id="Repeat: %@ – %@">
        <source>Repeat: %@ – %@</source>
        <translation>Opakování úseku: %@ – %@</translation>
    </message>
    <message id="Aspect">
        <source>Aspect</source>
        <translation>Poměr stran</translation>
    </message>
    <message id="Next Aspect">
        <source>Next Aspect</source>
        <translation>Další poměr stran</translation>
    </message>
    <message id="Aspect: automatic, 4:3, 16:9, 2.35:1">
        <source>Aspect: automatic, 4:3, 16:9, 2.35:1</source>
        <translation>Poměr stran: automaticky, 4:3, 16:9, 2,35:1</translation>
    </message>
    <message id="Aspect: %@">
        <source>Aspect: %@</source>
        <translation>Poměr stran: %@</translation>
    </message>
    <message id="2.35:1">
        <source>2.35:1</source>
        <translation>2,35:1</translation>
    </message>
    <message id="Deinterlacing">
        <source>Deinterlacing</source>
        <translation>Odstranění prokládání</translation>
    </message>
    <message id="Next Deinterlacing">
        <source>Next Deinterlacing</source>
        <translation>Další odstranění prokládání</translation>
    </message>
    <message id="Deinterlacing: automatic, on, off">
        <source>Deinterlacing: automatic, on, off</source>
        <translation>Odstranění prokládání: automaticky, zapnuto, vypnuto</translation>
    </message>
    <message id="Deinterlacing: %@">
        <source>Deinterlacing: %@</source>
        <translation>Odstranění prokládání: %@</translation>
    </message>
    <message id="Picture Colors">
        <source>Picture Colors</source>
        <translation>Barvy obrazu</translation>
    </message>
    <message id="Less Contrast">
        <source>Less Contrast</source>
        <translation>Menší kontrast</translation>
    </message>
    <message id="More Contrast">
        <source>More Contrast</source>
        <translation>Větší kontrast</translation>
    </message>
    <message id="Darker">
        <source>Darker</source>
        <translation>Tmavší</translation>
    </message>
    <message id="Brighter">
        <source>Brighter</source>
        <translation>Světlejší</translation>
    </message>
    <message id="Less Gamma">
        <source>Less Gamma</source>
        <translation>Menší gama</translation>
    </message>
    <message id="More Gamma">
        <source>More Gamma</source>
        <translation>Větší gama</translation>
    </message>
    <message id="Less Saturation">
        <source>Less Saturation</source>
        <translation>Menší sytost</translation>
    </message>
    <message id="More Saturation">
        <source>More Saturation</source>
        <translation>Větší sytost</translation>
    </message>
    <message id="Hue towards Red">
        <source>Hue towards Red</source>
        <translation>Odstín k červené</translation>
    </message>
    <message id="Hue towards Green">
        <source>Hue towards Green</source>
        <translation>Odstín k zelené</translation>
    </message>
    <message id="Contrast, brightness, gamma, saturation, hue: less and more">
        <source>Contrast, brightness, gamma, saturation, hue: less and more</source>
        <translation>Kontrast, jas, gama, sytost, odstín: méně a více</translation>
    </message>
    <message id="The colors as the movie has them">
        <source>The colors as the movie has them</source>
        <translation>Barvy tak, jak je film má</translation>
    </message>
    <message id="Original Colors">
        <source>Original Colors</source>
        <translation>Původní barvy</translation>
    </message>
    <message id="Contrast: %@">
        <source>Contrast: %@</source>
        <translation>Kontrast: %@</translation>
    </message>
    <message id="Brightness: %@">
        <source>Brightness: %@</source>
        <translation>Jas: %@</translation>
    </message>
    <message id="Gamma: %@">
        <source>Gamma: %@</source>
        <translation>Gama: %@</translation>
    </message>
    <message id="Saturation: %@">
        <source>Saturation: %@</source>
        <translation>Sytost: %@</translation>
    </message>
    <message id="Hue: %@">
        <source>Hue: %@</source>
        <translation>Odstín: %@</translation>
    </message>
    <message id="Crop Black Bars">
        <source>Crop Black Bars</source>
        <translation>Oříznout černé pruhy</translation>
    </message>
    <message id="Cut black bars off">
        <source>Cut black bars off</source>
        <translation>Oříznout černé pruhy</translation>
    </message>
    <message id="Crop: On">
        <source>Crop: On</source>
        <translation>Oříznutí: zapnuto</translation>
    </message>
    <message id="Crop: Off">
        <source>Crop: Off</source>
        <translation>Oříznutí: vypnuto</translation>
    </message>
    <message id="No Black Bars">
        <source>No Black Bars</source>
        <translation>Žádné černé pruhy</translation>
    </message>
    <message id="Turn by 90°">
        <source>Turn by 90°</source>
        <translation>Otočit o 90°</translation>
    </message>
    <message id="Turn and mirror the picture">
        <source>Turn and mirror the picture</source>
        <translation>Otočit a zrcadlit obraz</translation>
    </message>
    <message id="Turned by %d°">
        <source>Turned by %d°</source>
        <translation>Otočeno o %d°</translation>
    </message>
    <message id="Mirror">
        <source>Mirror</source>
        <translation>Zrcadlit</translation>
    </message>
    <message id="Mirror: On">
        <source>Mirror: On</source>
        <translation>Zrcadlení: zapnuto</translation>
    </message>
    <message id="Mirror: Off">
        <source>Mirror: Off</source>
        <translation>Zrcadlení: vypnuto</translation>
    </message>
</context>
<context>
    <name>Tracks</name>
    <message id="Audio Tracks">
        <source>Audio Tracks</source>
        <translation>Zvukové stopy</translation>
    </message>
    <message id="Audio: %@">
        <source>Audio: %@</source>
        <translation>Zvuk: %@</translation>
    </message>
    <message id="Next Audio Track">
        <source>Next Audio Track</source>
        <translation>Další zvuková stopa</translation>
    </message>
    <message id="Previous Audio Track">
        <source>Previous Audio Track</source>
        <translation>Předchozí zvuková stopa</translation>
    </message>
    <message id="Next and previous audio track">
        <source>Next and previous audio track</source>
        <translation>Další a předchozí zvuková stopa</translation>
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
        <translation>kanály: %d</translation>
    </message>
    <message id="Track %d">
        <source>Track %d</source>
        <translation>Stopa %d</translation>
    </message>
    <message id="forced">
        <source>forced</source>
        <translation>vynucené</translation>
    </message>
    <message id="Second Subtitles">
        <source>Second Subtitles</source>
        <translation>Druhé titulky</translation>
    </message>
    <message id="Next Second Subtitles">
        <source>Next Second Subtitles</source>
        <translation>Další druhé titulky</translation>
    </message>
    <message id="Second subtitles: %@">
        <source>Second subtitles: %@</source>
        <translation>Druhé titulky: %@</translation>
    </message>
    <message id="Second subtitles at the top: next track, none">
        <source>Second subtitles at the top: next track, none</source>
        <translation>Druhé titulky nahoře: další stopa, žádné</translation>
    </message>
    <message id="SecondSubtitlesRefused">
        <source>Only texts can be shown as second subtitles, and no track twice</source>
        <translation>Jako druhé titulky lze zobrazit jen texty, a žádnou stopu dvakrát</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>Kvalita</translation>
    </message>
    <message id="Quality: %@">
        <source>Quality: %@</source>
        <translation>Kvalita: %@</translation>
    </message>
    <message id="Next Quality">
        <source>Next Quality</source>
        <translation>Další kvalita</translation>
    </message>
    <message id="Next quality of a stream">
        <source>Next quality of a stream</source>
        <translation>Další kvalita přenosu</translation>
    </message>
    <message id="Only One Quality">
        <source>Only One Quality</source>
        <translation>Jen jedna kvalita</translation>
    </message>
    <message id="Go to Live">
        <source>Go to Live</source>
        <translation>Přejít na živé vysílání</translation>
    </message>
    <message id="Go to what is live now">
        <source>Go to what is live now</source>
        <translation>Přejít na to, co je právě živě</translation>
    </message>
    <message id="Not a Live Stream">
        <source>Not a Live Stream</source>
        <translation>Není to živé vysílání</translation>
    </message>
    <message id="Live">
        <source>Live</source>
        <translation>Živě</translation>
    </message>
    <message id="Behind Live">
        <source>Behind Live</source>
        <translation>Zpoždění za živým vysíláním</translation>
    </message>
    <message id="Reconnecting...">
        <source>Reconnecting...</source>
        <translation>Obnovování spojení…</translation>
    </message>
    <message id="Connection Lost">
        <source>Connection Lost</source>
        <translation>Spojení ztraceno</translation>
    </message>
</context>
<context>
    <name>Information</name>
    <message id="Information">
        <source>Information</source>
        <translation>Informace</translation>
    </message>
    <message id="Show or hide the information about the movie">
        <source>Show or hide the information about the movie</source>
        <translation>Zobrazit nebo skrýt informace o filmu</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>Kopírovat</translation>
    </message>
    <message id="No movie">
        <source>No movie</source>
        <translation>Žádný film</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Název</translation>
    </message>
    <message id="Container">
        <source>Container</source>
        <translation>Kontejner</translation>
    </message>
    <message id="Duration">
        <source>Duration</source>
        <translation>Délka</translation>
    </message>
    <message id="File size">
        <source>File size</source>
        <translation>Velikost souboru</translation>
    </message>
    <message id="Bit rate">
        <source>Bit rate</source>
        <translation>Datový tok</translation>
    </message>
    <message id="Sound">
        <source>Sound</source>
        <translation>Zvuk</translation>
    </message>
    <message id="Tracks">
        <source>Tracks</source>
        <translation>Stopy</translation>
    </message>
    <message id="Frames">
        <source>Frames</source>
        <translation>Snímky</translation>
    </message>
    <message id="Buffer">
        <source>Buffer</source>
        <translation>Vyrovnávací paměť</translation>
    </message>
    <message id="Codec">
        <source>Codec</source>
        <translation>Kodek</translation>
    </message>
    <message id="Decoder">
        <source>Decoder</source>
        <translation>Dekodér</translation>
    </message>
    <message id="Software">
        <source>Software</source>
        <translation>Softwarový</translation>
    </message>
    <message id="Hardware (%@)">
        <source>Hardware (%@)</source>
        <translation>Hardwarový (%@)</translation>
    </message>
    <message id="Size">
        <source>Size</source>
        <translation>Velikost</translation>
    </message>
    <message id="%@, displayed as %@">
        <source>%@, displayed as %@</source>
        <translation>%@, zobrazeno jako %@</translation>
    </message>
    <message id="Frame rate">
        <source>Frame rate</source>
        <translation>Snímková frekvence</translation>
    </message>
    <message id="%@ a second">
        <source>%@ a second</source>
        <translation>%@ za sekundu</translation>
    </message>
    <message id="%@ a second, now %@">
        <source>%@ a second, now %@</source>
        <translation>%@ za sekundu, nyní %@</translation>
    </message>
    <message id="Dynamic range">
        <source>Dynamic range</source>
        <translation>Dynamický rozsah</translation>
    </message>
    <message id="Standard">
        <source>Standard</source>
        <translation>Standardní</translation>
    </message>
    <message id="Color">
        <source>Color</source>
        <translation>Barva</translation>
    </message>
    <message id="Channels">
        <source>Channels</source>
        <translation>Kanály</translation>
    </message>
    <message id="Sample rate">
        <source>Sample rate</source>
        <translation>Vzorkovací frekvence</translation>
    </message>
    <message id="Output">
        <source>Output</source>
        <translation>Výstup</translation>
    </message>
    <message id="%@ (playing)">
        <source>%@ (playing)</source>
        <translation>%@ (přehrává se)</translation>
    </message>
    <message id="Subtitles shown">
        <source>Subtitles shown</source>
        <translation>Zobrazené titulky</translation>
    </message>
    <message id="Shown">
        <source>Shown</source>
        <translation>Zobrazené</translation>
    </message>
    <message id="Late">
        <source>Late</source>
        <translation>Opožděné</translation>
    </message>
    <message id="Left out">
        <source>Left out</source>
        <translation>Vynechané</translation>
    </message>
    <message id="Ready">
        <source>Ready</source>
        <translation>Připraveno</translation>
    </message>
    <message id="%@ s">
        <source>%@ s</source>
        <translation>%@ s</translation>
    </message>
    <message id="Filling">
        <source>Filling</source>
        <translation>Plní se</translation>
    </message>
</context>
</TS>
