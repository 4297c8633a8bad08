<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="en">
<context>
    <name>Alerts</name>
    <message id="QTUnableToOpenFileError">
        <source>“%@” can’t be opened.</source>
        <translation>“%@” can’t be opened.</translation>
    </message>
    <message id="QTUnableToOpenFileDetails">
        <source>The file is missing, damaged, or of a kind that Lumaro doesn’t know (error %d).</source>
        <translation>The file is missing, damaged, or of a kind that Lumaro doesn’t know (error %d).</translation>
    </message>
    <message id="QTUnableToPlayFileError">
        <source>“%@” may not play as it should.</source>
        <translation>“%@” may not play as it should.</translation>
    </message>
    <message id="QTUnableToPlayFileDetails">
        <source>Parts of the movie can’t be decoded (error %d). Choose Continue to try it anyway.</source>
        <translation>Parts of the movie can’t be decoded (error %d). Choose Continue to try it anyway.</translation>
    </message>
    <message id="NoPlayableMoviesInListMessage">
        <source>There is nothing to play.</source>
        <translation>There is nothing to play.</translation>
    </message>
    <message id="NoPlayableMoviesInListDetails">
        <source>None of the files that were given is a movie that Lumaro can play. You can choose others.</source>
        <translation>None of the files that were given is a movie that Lumaro can play. You can choose others.</translation>
    </message>
    <message id="OpenErrorMissing">
        <source>The file doesn’t exist.</source>
        <translation>The file doesn’t exist.</translation>
    </message>
    <message id="OpenErrorEmpty">
        <source>The file is empty.</source>
        <translation>The file is empty.</translation>
    </message>
    <message id="OpenErrorNotAFile">
        <source>It is a folder or a device, not a file.</source>
        <translation>It is a folder or a device, not a file.</translation>
    </message>
    <message id="OpenErrorPermission">
        <source>You aren’t allowed to read the file.</source>
        <translation>You aren’t allowed to read the file.</translation>
    </message>
    <message id="OpenErrorNotAMovie">
        <source>It isn’t a movie that Lumaro can play.</source>
        <translation>It isn’t a movie that Lumaro can play.</translation>
    </message>
    <message id="OpenErrorTimeout">
        <source>No answer came in time.</source>
        <translation>No answer came in time.</translation>
    </message>
    <message id="OpenErrorLibraries">
        <source>The libraries that open movies are missing.</source>
        <translation>The libraries that open movies are missing.</translation>
    </message>
    <message id="OpenErrorScheme">
        <source>Lumaro doesn’t know addresses of this kind.</source>
        <translation>Lumaro doesn’t know addresses of this kind.</translation>
    </message>
    <message id="OpenErrorUnknownHost">
        <source>There is no server of that name, or no connection to the network.</source>
        <translation>There is no server of that name, or no connection to the network.</translation>
    </message>
    <message id="OpenErrorUnreachable">
        <source>The server can’t be reached.</source>
        <translation>The server can’t be reached.</translation>
    </message>
    <message id="OpenErrorRefused">
        <source>The server refused the connection.</source>
        <translation>The server refused the connection.</translation>
    </message>
    <message id="OpenErrorConnection">
        <source>The connection to the server broke off.</source>
        <translation>The connection to the server broke off.</translation>
    </message>
    <message id="OpenErrorRanges">
        <source>The server sends files only from their beginning, and what is needed first stands at this movie’s end. Download it to play it.</source>
        <translation>The server sends files only from their beginning, and what is needed first stands at this movie’s end. Download it to play it.</translation>
    </message>
    <message id="OpenErrorLogin">
        <source>The server asks for a name and a password (401).</source>
        <translation>The server asks for a name and a password (401).</translation>
    </message>
    <message id="OpenErrorForbidden">
        <source>The server doesn’t allow it (403).</source>
        <translation>The server doesn’t allow it (403).</translation>
    </message>
    <message id="OpenErrorNotFound">
        <source>The server has no such file (404).</source>
        <translation>The server has no such file (404).</translation>
    </message>
    <message id="OpenErrorRejected">
        <source>The server rejected the request.</source>
        <translation>The server rejected the request.</translation>
    </message>
    <message id="OpenErrorServer">
        <source>The server answered with an error of its own.</source>
        <translation>The server answered with an error of its own.</translation>
    </message>
    <message id="OpenErrorNoMovies">
        <source>There is no movie in this folder.</source>
        <translation>There is no movie in this folder.</translation>
    </message>
    <message id="OpenErrorNotAList">
        <source>The file is not a playlist.</source>
        <translation>The file is not a playlist.</translation>
    </message>
    <message id="OpenErrorListEmpty">
        <source>The playlist names no movies.</source>
        <translation>The playlist names no movies.</translation>
    </message>
    <message id="OpenErrorListTooLarge">
        <source>The playlist is larger than 32 MB.</source>
        <translation>The playlist is larger than 32 MB.</translation>
    </message>
    <message id="OpenErrorListTooLong">
        <source>The playlist is too long. Only its first 100,000 entries were opened.</source>
        <translation>The playlist is too long. Only its first 100,000 entries were opened.</translation>
    </message>
    <message id="OpenErrorListTooDeep">
        <source>Too many playlists name each other. This one was left out.</source>
        <translation>Too many playlists name each other. This one was left out.</translation>
    </message>
    <message id="OpenErrorListDrives">
        <source>Entries on drives of Windows were left out (%@): %@.</source>
        <translation>Entries on drives of Windows were left out (%@): %@.</translation>
    </message>
    <message id="OpenErrorListLocal">
        <source>The playlist comes from a network. Entries that name files of this computer were left out (%@): %@.</source>
        <translation>The playlist comes from a network. Entries that name files of this computer were left out (%@): %@.</translation>
    </message>
    <message id="OpenErrorListNothing">
        <source>Entries that name neither a file nor an address were left out (%@): %@.</source>
        <translation>Entries that name neither a file nor an address were left out (%@): %@.</translation>
    </message>
    <message id="OpenErrorFolders">
        <source>Folders that may not be read (%@): %@.</source>
        <translation>Folders that may not be read (%@): %@.</translation>
    </message>
    <message id="UnreadableFoldersMessage">
        <source>Not everything could be searched.</source>
        <translation>Not everything could be searched.</translation>
    </message>
    <message id="AndMoreMessage">
        <source>… and %@ more.</source>
        <translation>… and %@ more.</translation>
    </message>
    <message id="UnableToOpenLine">
        <source>“%@”: %@ (%@)</source>
        <translation>“%@”: %@ (%@)</translation>
    </message>
    <message id="UnableToOpenFilesMessage">
        <source>%@ files can’t be opened.</source>
        <translation>%@ files can’t be opened.</translation>
    </message>
    <message id="UnableToPlayFilesMessage">
        <source>%@ movies may not play as they should.</source>
        <translation>%@ movies may not play as they should.</translation>
    </message>
    <message id="NoMoviesInFoldersDetails">
        <source>There is no movie that Lumaro can play in:</source>
        <translation>There is no movie that Lumaro can play in:</translation>
    </message>
    <message id="Buffering: %d %%">
        <source>Buffering: %d %%</source>
        <translation>Buffering: %d %%</translation>
    </message>
    <message id="Stalled: No Data from the Server">
        <source>Stalled: no data from the server</source>
        <translation>Stalled: no data from the server</translation>
    </message>
    <message id="Loading: %@">
        <source>Loading: %@</source>
        <translation>Loading: %@</translation>
    </message>
    <message id="ResumedAt">
        <source>Resumed at %@
%@: From the Beginning</source>
        <translation>Resumed at %@
%@: From the Beginning</translation>
    </message>
    <message id="Looking for Movies: %@">
        <source>Looking for movies: %@</source>
        <translation>Looking for movies: %@</translation>
    </message>
    <message id="FilesFoundMessage" numerus="yes">
        <source>%@ file found…</source>
        <translation>
            <numerusform>%@ file found…</numerusform>
            <numerusform>%@ files found…</numerusform>
        </translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>Cancel</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>Continue</translation>
    </message>
    <message id="Open...">
        <source>Open...</source>
        <translation>Open...</translation>
    </message>
    <message id="Open Recent">
        <source>Open Recent</source>
        <translation>Open Recent</translation>
    </message>
    <message id="ClearRecent">
        <source>Clear Menu and Forget Places</source>
        <translation>Clear Menu and Forget Places</translation>
    </message>
    <message id="Open">
        <source>Open</source>
        <translation>Open</translation>
    </message>
    <message id="ConfigureCheckForNewVersionMessage">
        <source>Look for new versions?</source>
        <translation>Look for new versions?</translation>
    </message>
    <message id="ConfigureCheckForNewVersionDetails">
        <source>Lumaro can look from time to time whether a newer version exists. Nothing about you or your movies is sent. You can change this in the preferences.</source>
        <translation>Lumaro can look from time to time whether a newer version exists. Nothing about you or your movies is sent. You can change this in the preferences.</translation>
    </message>
    <message id="CheckNewVersionFailedMessage">
        <source>Looking for a new version failed.</source>
        <translation>Looking for a new version failed.</translation>
    </message>
    <message id="CheckNewVersionFailedDetails">
        <source>None of the sites could be reached. Check the connection to the internet, or try again later.</source>
        <translation>None of the sites could be reached. Check the connection to the internet, or try again later.</translation>
    </message>
    <message id="YouHaveLatestVersionMessage">
        <source>Lumaro is up to date.</source>
        <translation>Lumaro is up to date.</translation>
    </message>
    <message id="YouHaveLatestVersionDetails">
        <source>You have the latest version.</source>
        <translation>You have the latest version.</translation>
    </message>
    <message id="NewVersionAvailableMessage">
        <source>A newer version of Lumaro is available.</source>
        <translation>A newer version of Lumaro is available.</translation>
    </message>
    <message id="NewVersionAvailableDetails">
        <source>%@ version %@ can be downloaded now.</source>
        <translation>%@ version %@ can be downloaded now.</translation>
    </message>
    <message id="Download Now...">
        <source>&amp;Download Now...</source>
        <translation>&amp;Download Now...</translation>
    </message>
    <message id="Skip Version">
        <source>&amp;Skip Version</source>
        <translation>&amp;Skip Version</translation>
    </message>
    <message id="Later">
        <source>Later</source>
        <translation>Later</translation>
    </message>
    <message id="AskDonationMessage">
        <source>Do you enjoy Lumaro?</source>
        <translation>Do you enjoy Lumaro?</translation>
    </message>
    <message id="AskDonationDetails">
        <source>Lumaro is free. A donation helps to keep it alive.</source>
        <translation>Lumaro is free. A donation helps to keep it alive.</translation>
    </message>
    <message id="Donate...">
        <source>Donate...</source>
        <translation>Donate...</translation>
    </message>
</context>
<context>
    <name>Version check</name>
    <message id="Up to date">
        <source>Up to date</source>
        <translation>Up to date</translation>
    </message>
    <message id="Newer %@ version %@ available">
        <source>Newer %@ version %@ available</source>
        <translation>Newer %@ version %@ available</translation>
    </message>
    <message id="Failed to reach all mirror sites">
        <source>Failed to reach all mirror sites</source>
        <translation>Failed to reach all mirror sites</translation>
    </message>
    <message id="Release">
        <source>Release</source>
        <translation>Release</translation>
    </message>
    <message id="Beta">
        <source>Beta</source>
        <translation>Beta</translation>
    </message>
    <message id="Checking now...">
        <source>Checking now...</source>
        <translation>Checking now...</translation>
    </message>
    <message id="Unknown">
        <source>Unknown</source>
        <translation>Unknown</translation>
    </message>
    <message id="Never">
        <source>Never</source>
        <translation>Never</translation>
    </message>
</context>
<context>
    <name>Feedback and on-screen display</name>
    <message id="Movie: Play">
        <source>Movie: Play</source>
        <translation>Movie: Play</translation>
    </message>
    <message id="Movie: Pause">
        <source>Movie: Pause</source>
        <translation>Movie: Pause</translation>
    </message>
    <message id="Movie: Stop">
        <source>Movie: Stop</source>
        <translation>Movie: Stop</translation>
    </message>
    <message id="Movie: Beginning">
        <source>Movie: Beginning</source>
        <translation>Movie: Beginning</translation>
    </message>
    <message id="Movie: End">
        <source>Movie: End</source>
        <translation>Movie: End</translation>
    </message>
    <message id="Fast Forward x%d">
        <source>Fast Forward x%d</source>
        <translation>Fast Forward x%d</translation>
    </message>
    <message id="Fast Rewind x%d">
        <source>Fast Rewind x%d</source>
        <translation>Fast Rewind x%d</translation>
    </message>
    <message id="Jump Forward %d s">
        <source>Jump Forward %d s</source>
        <translation>Jump Forward %d s</translation>
    </message>
    <message id="Jump Backward %d s">
        <source>Jump Backward %d s</source>
        <translation>Jump Backward %d s</translation>
    </message>
    <message id="Step Forward">
        <source>Step Forward</source>
        <translation>Step Forward</translation>
    </message>
    <message id="Step Backward">
        <source>Step Backward</source>
        <translation>Step Backward</translation>
    </message>
    <message id="Next: %@">
        <source>Next: %@</source>
        <translation>Next: %@</translation>
    </message>
    <message id="Previous: %@">
        <source>Previous: %@</source>
        <translation>Previous: %@</translation>
    </message>
    <message id="Screen: Next">
        <source>Screen: Next</source>
        <translation>Screen: Next</translation>
    </message>
    <message id="Screen: Previous">
        <source>Screen: Previous</source>
        <translation>Screen: Previous</translation>
    </message>
    <message id="Quit">
        <source>Quit</source>
        <translation>Quit</translation>
    </message>
    <message id="Sleep">
        <source>Sleep</source>
        <translation>Sleep</translation>
    </message>
    <message id="Restart the Computer">
        <source>Restart the Computer</source>
        <translation>Restart the Computer</translation>
    </message>
    <message id="Shut Down the Computer">
        <source>Shut Down the Computer</source>
        <translation>Shut Down the Computer</translation>
    </message>
    <message id="Log Out">
        <source>Log Out</source>
        <translation>Log Out</translation>
    </message>
    <message id="Restart failed: %@">
        <source>Restart failed: %@</source>
        <translation>Restart failed: %@</translation>
    </message>
    <message id="Shutting down failed: %@">
        <source>Shutting down failed: %@</source>
        <translation>Shutting down failed: %@</translation>
    </message>
    <message id="Logging out failed: %@">
        <source>Logging out failed: %@</source>
        <translation>Logging out failed: %@</translation>
    </message>
    <message id="KeyName Space">
        <source>Space</source>
        <translation>Space</translation>
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
        <translation>Return</translation>
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
        <translation>Media Play</translation>
    </message>
    <message id="KeyName Media Stop">
        <source>Media Stop</source>
        <translation>Media Stop</translation>
    </message>
    <message id="KeyName Media Next">
        <source>Media Next</source>
        <translation>Media Next</translation>
    </message>
    <message id="KeyName Media Previous">
        <source>Media Previous</source>
        <translation>Media Previous</translation>
    </message>
    <message id="KeyName Media Volume Up">
        <source>Media Volume Up</source>
        <translation>Media Volume Up</translation>
    </message>
    <message id="KeyName Media Volume Down">
        <source>Media Volume Down</source>
        <translation>Media Volume Down</translation>
    </message>
    <message id="KeyName Media Mute">
        <source>Media Mute</source>
        <translation>Media Mute</translation>
    </message>
    <message id="Sleep failed: %@">
        <source>Sleep failed: %@</source>
        <translation>Sleep failed: %@</translation>
    </message>
    <message id="Size: Half">
        <source>Size: Half</source>
        <translation>Size: Half</translation>
    </message>
    <message id="Size: Normal">
        <source>Size: Normal</source>
        <translation>Size: Normal</translation>
    </message>
    <message id="Size: Double">
        <source>Size: Double</source>
        <translation>Size: Double</translation>
    </message>
    <message id="Size: Full">
        <source>Size: Full</source>
        <translation>Size: Full</translation>
    </message>
    <message id="Size: Fit Width">
        <source>Size: Fit Width</source>
        <translation>Size: Fit Width</translation>
    </message>
    <message id="Size: Fit Height">
        <source>Size: Fit Height</source>
        <translation>Size: Fit Height</translation>
    </message>
    <message id="Size: Bigger">
        <source>Size: Bigger</source>
        <translation>Size: Bigger</translation>
    </message>
    <message id="Size: Smaller">
        <source>Size: Smaller</source>
        <translation>Size: Smaller</translation>
    </message>
    <message id="Controller: On">
        <source>Controller: On</source>
        <translation>Controller: On</translation>
    </message>
    <message id="Controller: Off">
        <source>Controller: Off</source>
        <translation>Controller: Off</translation>
    </message>
    <message id="Volume: %@">
        <source>Volume: %@</source>
        <translation>Volume: %@</translation>
    </message>
    <message id="Mute: %@">
        <source>Mute: %@</source>
        <translation>Mute: %@</translation>
    </message>
    <message id="Muted">
        <source>Muted</source>
        <translation>Muted</translation>
    </message>
    <message id="On">
        <source>On</source>
        <translation>On</translation>
    </message>
    <message id="Off">
        <source>Off</source>
        <translation>Off</translation>
    </message>
    <message id="%d%%">
        <source>%d%%</source>
        <translation>%d%%</translation>
    </message>
    <message id="Time: %@/%@">
        <source>Time: %@/%@</source>
        <translation>Time: %@/%@</translation>
    </message>
    <message id="Movie: %@">
        <source>Movie: %@</source>
        <translation>Movie: %@</translation>
    </message>
    <message id="Loop: %@">
        <source>Loop: %@</source>
        <translation>Loop: %@</translation>
    </message>
    <message id="One">
        <source>One</source>
        <translation>One</translation>
    </message>
    <message id="All">
        <source>All</source>
        <translation>All</translation>
    </message>
    <message id="None">
        <source>None</source>
        <translation>None</translation>
    </message>
    <message id="Subtitles: %@">
        <source>Subtitles: %@</source>
        <translation>Subtitles: %@</translation>
    </message>
    <message id="Repair: On">
        <source>Repair: On</source>
        <translation>Repair: On</translation>
    </message>
    <message id="Repair: Off">
        <source>Repair: Off</source>
        <translation>Repair: Off</translation>
    </message>
    <message id="SubtitleLinesLost" numerus="yes">
        <source>%d line of it can’t be read.</source>
        <translation>
            <numerusform>%d line of it can’t be read.</numerusform>
            <numerusform>%d lines of it can’t be read.</numerusform>
        </translation>
    </message>
    <message id="SubtitlePicturesLost" numerus="yes">
        <source>%d picture of it can’t be read.</source>
        <translation>
            <numerusform>%d picture of it can’t be read.</numerusform>
            <numerusform>%d pictures of it can’t be read.</numerusform>
        </translation>
    </message>
    <message id="SubtitleRepairMayHelp">
        <source>Repair (Subtitles menu) may help.</source>
        <translation>Repair (Subtitles menu) may help.</translation>
    </message>
    <message id="Style">
        <source>Style</source>
        <translation>Style</translation>
    </message>
    <message id="Automatic">
        <source>Automatic</source>
        <translation>Automatic</translation>
    </message>
</context>
<context>
    <name>Empty player</name>
    <message id="Press %@ to open a movie">
        <source>Press %@ to open a movie</source>
        <translation>Press %@ to open a movie</translation>
    </message>
    <message id="or drop files here. %@ shows all keys.">
        <source>or drop files here. %@ shows all keys.</source>
        <translation>or drop files here. %@ shows all keys.</translation>
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
        <translation>Movie</translation>
    </message>
    <message id="Playback">
        <source>Playback</source>
        <translation>Playback</translation>
    </message>
    <message id="Volume">
        <source>Volume</source>
        <translation>Volume</translation>
    </message>
    <message id="Playlist">
        <source>Playlist</source>
        <translation>Playlist</translation>
    </message>
    <message id="Subtitles">
        <source>Subtitles</source>
        <translation>Subtitles</translation>
    </message>
    <message id="Window">
        <source>Window</source>
        <translation>Window</translation>
    </message>
    <message id="HelpIntroduction">
        <source>Type what you look for. Every command also stands in the menu: at the top edge of the screen, or under the right mouse button.</source>
        <translation>Type what you look for. Every command also stands in the menu: at the top edge of the screen, or under the right mouse button.</translation>
    </message>
    <message id="What do you want to do?">
        <source>What do you want to do?</source>
        <translation>What do you want to do?</translation>
    </message>
    <message id="No command holds these words.">
        <source>No command holds these words.</source>
        <translation>No command holds these words.</translation>
    </message>
    <message id="Watch and move through the movie">
        <source>Watch and move through the movie</source>
        <translation>Watch and move through the movie</translation>
    </message>
    <message id="Louder, softer, silent">
        <source>Louder, softer, silent</source>
        <translation>Louder, softer, silent</translation>
    </message>
    <message id="Read along">
        <source>Read along</source>
        <translation>Read along</translation>
    </message>
    <message id="See the picture larger, and what is playing">
        <source>See the picture larger, and what is playing</source>
        <translation>See the picture larger, and what is playing</translation>
    </message>
    <message id="Choose among the movies">
        <source>Choose among the movies</source>
        <translation>Choose among the movies</translation>
    </message>
    <message id="Move to another screen">
        <source>Move to another screen</source>
        <translation>Move to another screen</translation>
    </message>
    <message id="Open, set up and quit">
        <source>Open, set up and quit</source>
        <translation>Open, set up and quit</translation>
    </message>
    <message id="Find help">
        <source>Find help</source>
        <translation>Find help</translation>
    </message>
    <message id="Help">
        <source>Help</source>
        <translation>Help</translation>
    </message>
    <message id="Open URL...">
        <source>Open URL...</source>
        <translation>Open URL...</translation>
    </message>
    <message id="Open URLs...">
        <source>Open URLs...</source>
        <translation>Open URLs...</translation>
    </message>
    <message id="Save Playlist...">
        <source>Save Playlist...</source>
        <translation>Save Playlist...</translation>
    </message>
    <message id="Save Playlist">
        <source>Save Playlist</source>
        <translation>Save Playlist</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>Save</translation>
    </message>
    <message id="Playlist File">
        <source>Playlist</source>
        <translation>Playlist</translation>
    </message>
    <message id="Save the playlist to a file">
        <source>Save the playlist to a file</source>
        <translation>Save the playlist to a file</translation>
    </message>
    <message id="SaveErrorMessage">
        <source>“%@” can’t be saved.</source>
        <translation>“%@” can’t be saved.</translation>
    </message>
    <message id="SaveErrorPermission">
        <source>You don’t have the permission to write there.</source>
        <translation>You don’t have the permission to write there.</translation>
    </message>
    <message id="SaveErrorReadOnly">
        <source>The disk can’t be written to.</source>
        <translation>The disk can’t be written to.</translation>
    </message>
    <message id="SaveErrorFull">
        <source>The disk is full.</source>
        <translation>The disk is full.</translation>
    </message>
    <message id="SaveErrorFolder">
        <source>The folder doesn’t exist.</source>
        <translation>The folder doesn’t exist.</translation>
    </message>
    <message id="SaveErrorIsFolder">
        <source>This is a folder.</source>
        <translation>This is a folder.</translation>
    </message>
    <message id="Preferences...">
        <source>Preferences...</source>
        <translation>Preferences...</translation>
    </message>
    <message id="About Lumaro">
        <source>About Lumaro</source>
        <translation>About Lumaro</translation>
    </message>
    <message id="Check for New Version...">
        <source>Check for New Version...</source>
        <translation>Check for New Version...</translation>
    </message>
    <message id="Half Size">
        <source>Half Size</source>
        <translation>Half Size</translation>
    </message>
    <message id="Normal Size">
        <source>Normal Size</source>
        <translation>Normal Size</translation>
    </message>
    <message id="Double Size">
        <source>Double Size</source>
        <translation>Double Size</translation>
    </message>
    <message id="Full Size">
        <source>Full Size</source>
        <translation>Full Size</translation>
    </message>
    <message id="Fit Screen">
        <source>Fit Screen</source>
        <translation>Fit Screen</translation>
    </message>
    <message id="Fit Width">
        <source>Fit Width</source>
        <translation>Fit Width</translation>
    </message>
    <message id="Fit Height">
        <source>Fit Height</source>
        <translation>Fit Height</translation>
    </message>
    <message id="Bigger">
        <source>Bigger</source>
        <translation>Bigger</translation>
    </message>
    <message id="Smaller">
        <source>Smaller</source>
        <translation>Smaller</translation>
    </message>
    <message id="Show Controller">
        <source>Show Controller</source>
        <translation>Show Controller</translation>
    </message>
    <message id="Bar over the Picture">
        <source>Bar over the Picture</source>
        <translation>Bar over the Picture</translation>
    </message>
    <message id="Bar over the picture: off, always, when the pointer moves">
        <source>Bar over the picture: off, always, when the pointer moves</source>
        <translation>Bar over the picture: off, always, when the pointer moves</translation>
    </message>
    <message id="Bar over the Picture: Off">
        <source>Bar over the Picture: Off</source>
        <translation>Bar over the Picture: Off</translation>
    </message>
    <message id="Bar over the Picture: Always">
        <source>Bar over the Picture: Always</source>
        <translation>Bar over the Picture: Always</translation>
    </message>
    <message id="Bar over the Picture: When the Pointer Moves">
        <source>Bar over the Picture: When the Pointer Moves</source>
        <translation>Bar over the Picture: When the Pointer Moves</translation>
    </message>
    <message id="Tracks...">
        <source>Tracks...</source>
        <translation>Tracks...</translation>
    </message>
    <message id="Sound and subtitles in one menu">
        <source>Sound and subtitles in one menu</source>
        <translation>Sound and subtitles in one menu</translation>
    </message>
    <message id="Audio">
        <source>Audio</source>
        <translation>Audio</translation>
    </message>
    <message id="Hide Controller">
        <source>Hide Controller</source>
        <translation>Hide Controller</translation>
    </message>
    <message id="Next Display">
        <source>Next Display</source>
        <translation>Next Display</translation>
    </message>
    <message id="Previous Display">
        <source>Previous Display</source>
        <translation>Previous Display</translation>
    </message>
    <message id="Play">
        <source>Play</source>
        <translation>Play</translation>
    </message>
    <message id="Pause">
        <source>Pause</source>
        <translation>Pause</translation>
    </message>
    <message id="Fast Forward">
        <source>Fast Forward</source>
        <translation>Fast Forward</translation>
    </message>
    <message id="Rewind">
        <source>Rewind</source>
        <translation>Rewind</translation>
    </message>
    <message id="Jump Forward">
        <source>Jump Forward</source>
        <translation>Jump Forward</translation>
    </message>
    <message id="Jump Backward">
        <source>Jump Backward</source>
        <translation>Jump Backward</translation>
    </message>
    <message id="Beginning">
        <source>Beginning</source>
        <translation>Beginning</translation>
    </message>
    <message id="End">
        <source>End</source>
        <translation>End</translation>
    </message>
    <message id="Next Movie">
        <source>Next Movie</source>
        <translation>Next Movie</translation>
    </message>
    <message id="Previous Movie">
        <source>Previous Movie</source>
        <translation>Previous Movie</translation>
    </message>
    <message id="Looping Off">
        <source>Looping Off</source>
        <translation>Looping Off</translation>
    </message>
    <message id="Loop Off">
        <source>Loop Off</source>
        <translation>Loop Off</translation>
    </message>
    <message id="Loop One">
        <source>Loop One</source>
        <translation>Loop One</translation>
    </message>
    <message id="Loop All">
        <source>Loop All</source>
        <translation>Loop All</translation>
    </message>
    <message id="Repair">
        <source>Repair</source>
        <translation>Repair</translation>
    </message>
    <message id="Volume Up">
        <source>Volume Up</source>
        <translation>Volume Up</translation>
    </message>
    <message id="Volume Down">
        <source>Volume Down</source>
        <translation>Volume Down</translation>
    </message>
    <message id="Normal Volume">
        <source>Normal Volume</source>
        <translation>Normal Volume</translation>
    </message>
    <message id="Silent">
        <source>Silent</source>
        <translation>Silent</translation>
    </message>
    <message id="Mute">
        <source>Mute</source>
        <translation>Mute</translation>
    </message>
    <message id="Next Screen">
        <source>Next Screen</source>
        <translation>Next Screen</translation>
    </message>
    <message id="Previous Screen">
        <source>Previous Screen</source>
        <translation>Previous Screen</translation>
    </message>
    <message id="More...">
        <source>More…</source>
        <translation>More…</translation>
    </message>
    <message id="The whole list: search, move and remove movies">
        <source>The whole list: search, move and remove movies</source>
        <translation>The whole list: search, move and remove movies</translation>
    </message>
    <message id="Playlist Panel">
        <source>Playlist</source>
        <translation>Playlist</translation>
    </message>
    <message id="Filter">
        <source>Filter</source>
        <translation>Filter</translation>
    </message>
    <message id="Play Movie">
        <source>Play</source>
        <translation>Play</translation>
    </message>
    <message id="Move Up">
        <source>Move Up</source>
        <translation>Move Up</translation>
    </message>
    <message id="Move Down">
        <source>Move Down</source>
        <translation>Move Down</translation>
    </message>
    <message id="Remove from List">
        <source>Remove</source>
        <translation>Remove</translation>
    </message>
    <message id="PlaylistCountMessage">
        <source>%@ of %@ movies</source>
        <translation>%@ of %@ movies</translation>
    </message>
    <message id="Lumaro Help">
        <source>Lumaro Help</source>
        <translation>Lumaro Help</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="Open movies">
        <source>Open movies</source>
        <translation>Open movies</translation>
    </message>
    <message id="Half, normal and double size">
        <source>Half, normal and double size</source>
        <translation>Half, normal and double size</translation>
    </message>
    <message id="Fit to the screen, to its width, to its height">
        <source>Fit to the screen, to its width, to its height</source>
        <translation>Fit to the screen, to its width, to its height</translation>
    </message>
    <message id="Bigger and smaller">
        <source>Bigger and smaller</source>
        <translation>Bigger and smaller</translation>
    </message>
    <message id="Controller bar">
        <source>Controller bar</source>
        <translation>Controller bar</translation>
    </message>
    <message id="On-screen display: time, movie, subtitles, looping, volume">
        <source>On-screen display: time, movie, subtitles, looping, volume</source>
        <translation>On-screen display: time, movie, subtitles, looping, volume</translation>
    </message>
    <message id="Play, pause, back to normal speed">
        <source>Play, pause, back to normal speed</source>
        <translation>Play, pause, back to normal speed</translation>
    </message>
    <message id="Forward and back: one frame while paused, faster and faster while playing">
        <source>Forward and back: one frame while paused, faster and faster while playing</source>
        <translation>Forward and back: one frame while paused, faster and faster while playing</translation>
    </message>
    <message id="Jump forward and back">
        <source>Jump forward and back</source>
        <translation>Jump forward and back</translation>
    </message>
    <message id="Beginning and end of the movie">
        <source>Beginning and end of the movie</source>
        <translation>Beginning and end of the movie</translation>
    </message>
    <message id="Next and previous movie">
        <source>Next and previous movie</source>
        <translation>Next and previous movie</translation>
    </message>
    <message id="Double Click">
        <source>Double Click</source>
        <translation>Double Click</translation>
    </message>
    <message id="Middle Button">
        <source>Middle Button</source>
        <translation>Middle Button</translation>
    </message>
    <message id="Back Button">
        <source>Back Button</source>
        <translation>Back Button</translation>
    </message>
    <message id="Forward Button">
        <source>Forward Button</source>
        <translation>Forward Button</translation>
    </message>
    <message id="Wheel Up">
        <source>Wheel Up</source>
        <translation>Wheel Up</translation>
    </message>
    <message id="Wheel Down">
        <source>Wheel Down</source>
        <translation>Wheel Down</translation>
    </message>
    <message id="Looping: off, one, all">
        <source>Looping: off, one, all</source>
        <translation>Looping: off, one, all</translation>
    </message>
    <message id="Louder and softer">
        <source>Louder and softer</source>
        <translation>Louder and softer</translation>
    </message>
    <message id="Next and previous subtitles">
        <source>Next and previous subtitles</source>
        <translation>Next and previous subtitles</translation>
    </message>
    <message id="Sound Earlier">
        <source>Sound Earlier</source>
        <translation>Sound Earlier</translation>
    </message>
    <message id="Sound Later">
        <source>Sound Later</source>
        <translation>Sound Later</translation>
    </message>
    <message id="Sound as in the File">
        <source>Sound as in the File</source>
        <translation>Sound as in the File</translation>
    </message>
    <message id="Sound earlier and later">
        <source>Sound earlier and later</source>
        <translation>Sound earlier and later</translation>
    </message>
    <message id="Sound at the times of the file">
        <source>Sound at the times of the file</source>
        <translation>Sound at the times of the file</translation>
    </message>
    <message id="Sound delay: %@">
        <source>Sound delay: %@</source>
        <translation>Sound delay: %@</translation>
    </message>
    <message id="Add Subtitles...">
        <source>Add Subtitles...</source>
        <translation>Add Subtitles...</translation>
    </message>
    <message id="Add Subtitles">
        <source>Add Subtitles</source>
        <translation>Add Subtitles</translation>
    </message>
    <message id="Add a file of subtitles to the movie">
        <source>Add a file of subtitles to the movie</source>
        <translation>Add a file of subtitles to the movie</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>Add</translation>
    </message>
    <message id="NoSubtitlesInFile">
        <source>“%@” holds no subtitles that can be read</source>
        <translation>“%@” holds no subtitles that can be read</translation>
    </message>
    <message id="Add to the Movie as Subtitles">
        <source>Add to the Movie as Subtitles</source>
        <translation>Add to the Movie as Subtitles</translation>
    </message>
    <message id="Show Earlier">
        <source>Show Earlier</source>
        <translation>Show Earlier</translation>
    </message>
    <message id="Show Later">
        <source>Show Later</source>
        <translation>Show Later</translation>
    </message>
    <message id="As in the File">
        <source>As in the File</source>
        <translation>As in the File</translation>
    </message>
    <message id="Show Subtitles Earlier">
        <source>Show Subtitles Earlier</source>
        <translation>Show Subtitles Earlier</translation>
    </message>
    <message id="Show Subtitles Later">
        <source>Show Subtitles Later</source>
        <translation>Show Subtitles Later</translation>
    </message>
    <message id="Subtitles at the Times of Their File">
        <source>Subtitles at the Times of Their File</source>
        <translation>Subtitles at the Times of Their File</translation>
    </message>
    <message id="Subtitles earlier and later">
        <source>Subtitles earlier and later</source>
        <translation>Subtitles earlier and later</translation>
    </message>
    <message id="Subtitles at the times of their file">
        <source>Subtitles at the times of their file</source>
        <translation>Subtitles at the times of their file</translation>
    </message>
    <message id="First Line Is Spoken Now">
        <source>First Line Is Spoken Now</source>
        <translation>First Line Is Spoken Now</translation>
    </message>
    <message id="Last Line Is Spoken Now">
        <source>Last Line Is Spoken Now</source>
        <translation>Last Line Is Spoken Now</translation>
    </message>
    <message id="In step by two lines: press one while the first line is spoken, the other while the last one is">
        <source>In step by two lines: press one while the first line is spoken, the other while the last one is</source>
        <translation>In step by two lines: press one while the first line is spoken, the other while the last one is</translation>
    </message>
    <message id="Larger Text">
        <source>Larger Text</source>
        <translation>Larger Text</translation>
    </message>
    <message id="Smaller Text">
        <source>Smaller Text</source>
        <translation>Smaller Text</translation>
    </message>
    <message id="Larger Subtitles">
        <source>Larger Subtitles</source>
        <translation>Larger Subtitles</translation>
    </message>
    <message id="Smaller Subtitles">
        <source>Smaller Subtitles</source>
        <translation>Smaller Subtitles</translation>
    </message>
    <message id="Subtitles larger and smaller">
        <source>Subtitles larger and smaller</source>
        <translation>Subtitles larger and smaller</translation>
    </message>
    <message id="Higher">
        <source>Higher</source>
        <translation>Higher</translation>
    </message>
    <message id="Lower">
        <source>Lower</source>
        <translation>Lower</translation>
    </message>
    <message id="Higher Subtitles">
        <source>Higher Subtitles</source>
        <translation>Higher Subtitles</translation>
    </message>
    <message id="Lower Subtitles">
        <source>Lower Subtitles</source>
        <translation>Lower Subtitles</translation>
    </message>
    <message id="Subtitles higher and lower">
        <source>Subtitles higher and lower</source>
        <translation>Subtitles higher and lower</translation>
    </message>
    <message id="Subtitle delay: %@">
        <source>Subtitle delay: %@</source>
        <translation>Subtitle delay: %@</translation>
    </message>
    <message id="Subtitle size: %d">
        <source>Subtitle size: %d</source>
        <translation>Subtitle size: %d</translation>
    </message>
    <message id="Subtitle height: %d">
        <source>Subtitle height: %d %</source>
        <translation>Subtitle height: %d %</translation>
    </message>
    <message id="SubtitleLinesTooFar">
        <source>The lines cannot be brought in step: they would be more than twice as fast or as slow</source>
        <translation>The lines cannot be brought in step: they would be more than twice as fast or as slow</translation>
    </message>
    <message id="Repair damaged subtitles">
        <source>Repair damaged subtitles</source>
        <translation>Repair damaged subtitles</translation>
    </message>
    <message id="Next and previous screen">
        <source>Next and previous screen</source>
        <translation>Next and previous screen</translation>
    </message>
</context>
<context>
    <name>Text encodings</name>
    <message id="Western (ASCII)">
        <source>Western (ASCII)</source>
        <translation>Western (ASCII)</translation>
    </message>
    <message id="Western (ISO Latin 1)">
        <source>Western (ISO Latin 1)</source>
        <translation>Western (ISO Latin 1)</translation>
    </message>
    <message id="Western (ISO Latin 9)">
        <source>Western (ISO Latin 9)</source>
        <translation>Western (ISO Latin 9)</translation>
    </message>
    <message id="Western (Windows Latin 1)">
        <source>Western (Windows Latin 1)</source>
        <translation>Western (Windows Latin 1)</translation>
    </message>
    <message id="Western (Mac OS Roman)">
        <source>Western (Mac OS Roman)</source>
        <translation>Western (Mac OS Roman)</translation>
    </message>
    <message id="Western (DOS Latin 1)">
        <source>Western (DOS Latin 1)</source>
        <translation>Western (DOS Latin 1)</translation>
    </message>
    <message id="Latin-US (DOS)">
        <source>Latin-US (DOS)</source>
        <translation>Latin-US (DOS)</translation>
    </message>
    <message id="Central European (ISO Latin 2)">
        <source>Central European (ISO Latin 2)</source>
        <translation>Central European (ISO Latin 2)</translation>
    </message>
    <message id="Central European (Windows Latin 2)">
        <source>Central European (Windows Latin 2)</source>
        <translation>Central European (Windows Latin 2)</translation>
    </message>
    <message id="Central European (Mac OS)">
        <source>Central European (Mac OS)</source>
        <translation>Central European (Mac OS)</translation>
    </message>
    <message id="Central European (DOS Latin 2)">
        <source>Central European (DOS Latin 2)</source>
        <translation>Central European (DOS Latin 2)</translation>
    </message>
    <message id="Western (ISO Latin 3)">
        <source>Western (ISO Latin 3)</source>
        <translation>Western (ISO Latin 3)</translation>
    </message>
    <message id="Central European (ISO Latin 4)">
        <source>Central European (ISO Latin 4)</source>
        <translation>Central European (ISO Latin 4)</translation>
    </message>
    <message id="Nordic (ISO Latin 6)">
        <source>Nordic (ISO Latin 6)</source>
        <translation>Nordic (ISO Latin 6)</translation>
    </message>
    <message id="Icelandic (DOS)">
        <source>Icelandic (DOS)</source>
        <translation>Icelandic (DOS)</translation>
    </message>
    <message id="Nordic (DOS)">
        <source>Nordic (DOS)</source>
        <translation>Nordic (DOS)</translation>
    </message>
    <message id="Baltic (ISO Latin 7)">
        <source>Baltic (ISO Latin 7)</source>
        <translation>Baltic (ISO Latin 7)</translation>
    </message>
    <message id="Baltic (Windows)">
        <source>Baltic (Windows)</source>
        <translation>Baltic (Windows)</translation>
    </message>
    <message id="Baltic (DOS)">
        <source>Baltic (DOS)</source>
        <translation>Baltic (DOS)</translation>
    </message>
    <message id="Celtic (ISO Latin 8)">
        <source>Celtic (ISO Latin 8)</source>
        <translation>Celtic (ISO Latin 8)</translation>
    </message>
    <message id="Cyrillic (ISO 8859-5)">
        <source>Cyrillic (ISO 8859-5)</source>
        <translation>Cyrillic (ISO 8859-5)</translation>
    </message>
    <message id="Cyrillic (Windows)">
        <source>Cyrillic (Windows)</source>
        <translation>Cyrillic (Windows)</translation>
    </message>
    <message id="Cyrillic (KOI8-R)">
        <source>Cyrillic (KOI8-R)</source>
        <translation>Cyrillic (KOI8-R)</translation>
    </message>
    <message id="Ukrainian (KOI8-U)">
        <source>Ukrainian (KOI8-U)</source>
        <translation>Ukrainian (KOI8-U)</translation>
    </message>
    <message id="Cyrillic (Mac OS)">
        <source>Cyrillic (Mac OS)</source>
        <translation>Cyrillic (Mac OS)</translation>
    </message>
    <message id="Cyrillic (DOS)">
        <source>Cyrillic (DOS)</source>
        <translation>Cyrillic (DOS)</translation>
    </message>
    <message id="Russian (DOS)">
        <source>Russian (DOS)</source>
        <translation>Russian (DOS)</translation>
    </message>
    <message id="Greek (ISO 8859-7)">
        <source>Greek (ISO 8859-7)</source>
        <translation>Greek (ISO 8859-7)</translation>
    </message>
    <message id="Greek (Windows)">
        <source>Greek (Windows)</source>
        <translation>Greek (Windows)</translation>
    </message>
    <message id="Greek (Mac OS)">
        <source>Greek (Mac OS)</source>
        <translation>Greek (Mac OS)</translation>
    </message>
    <message id="Greek (DOS)">
        <source>Greek (DOS)</source>
        <translation>Greek (DOS)</translation>
    </message>
    <message id="Greek (DOS Greek 2)">
        <source>Greek (DOS Greek 2)</source>
        <translation>Greek (DOS Greek 2)</translation>
    </message>
    <message id="Turkish (ISO Latin 5)">
        <source>Turkish (ISO Latin 5)</source>
        <translation>Turkish (ISO Latin 5)</translation>
    </message>
    <message id="Turkish (Windows Latin 5)">
        <source>Turkish (Windows Latin 5)</source>
        <translation>Turkish (Windows Latin 5)</translation>
    </message>
    <message id="Turkish (Mac OS)">
        <source>Turkish (Mac OS)</source>
        <translation>Turkish (Mac OS)</translation>
    </message>
    <message id="Turkish (DOS)">
        <source>Turkish (DOS)</source>
        <translation>Turkish (DOS)</translation>
    </message>
    <message id="Hebrew (ISO 8859-8)">
        <source>Hebrew (ISO 8859-8)</source>
        <translation>Hebrew (ISO 8859-8)</translation>
    </message>
    <message id="Hebrew (Windows)">
        <source>Hebrew (Windows)</source>
        <translation>Hebrew (Windows)</translation>
    </message>
    <message id="Hebrew (DOS)">
        <source>Hebrew (DOS)</source>
        <translation>Hebrew (DOS)</translation>
    </message>
    <message id="Arabic (ISO 8859-6)">
        <source>Arabic (ISO 8859-6)</source>
        <translation>Arabic (ISO 8859-6)</translation>
    </message>
    <message id="Arabic (Windows)">
        <source>Arabic (Windows)</source>
        <translation>Arabic (Windows)</translation>
    </message>
    <message id="Arabic (DOS)">
        <source>Arabic (DOS)</source>
        <translation>Arabic (DOS)</translation>
    </message>
    <message id="Portuguese (DOS)">
        <source>Portuguese (DOS)</source>
        <translation>Portuguese (DOS)</translation>
    </message>
    <message id="Canadian French (DOS)">
        <source>Canadian French (DOS)</source>
        <translation>Canadian French (DOS)</translation>
    </message>
    <message id="Thai (ISO 8859-11)">
        <source>Thai (ISO 8859-11)</source>
        <translation>Thai (ISO 8859-11)</translation>
    </message>
    <message id="Thai (Windows, DOS)">
        <source>Thai (Windows, DOS)</source>
        <translation>Thai (Windows, DOS)</translation>
    </message>
    <message id="Vietnamese (Windows)">
        <source>Vietnamese (Windows)</source>
        <translation>Vietnamese (Windows)</translation>
    </message>
    <message id="Japanese (Shift JIS)">
        <source>Japanese (Shift JIS)</source>
        <translation>Japanese (Shift JIS)</translation>
    </message>
    <message id="Japanese (Windows, DOS)">
        <source>Japanese (Windows, DOS)</source>
        <translation>Japanese (Windows, DOS)</translation>
    </message>
    <message id="Japanese (EUC)">
        <source>Japanese (EUC)</source>
        <translation>Japanese (EUC)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP)">
        <source>Japanese (ISO 2022-JP)</source>
        <translation>Japanese (ISO 2022-JP)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-2)">
        <source>Japanese (ISO 2022-JP-2)</source>
        <translation>Japanese (ISO 2022-JP-2)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-1)">
        <source>Japanese (ISO 2022-JP-1)</source>
        <translation>Japanese (ISO 2022-JP-1)</translation>
    </message>
    <message id="Chinese (GB 18030)">
        <source>Chinese (GB 18030)</source>
        <translation>Chinese (GB 18030)</translation>
    </message>
    <message id="Simplified Chinese (GBK)">
        <source>Simplified Chinese (GBK)</source>
        <translation>Simplified Chinese (GBK)</translation>
    </message>
    <message id="Simplified Chinese (Windows, DOS)">
        <source>Simplified Chinese (Windows, DOS)</source>
        <translation>Simplified Chinese (Windows, DOS)</translation>
    </message>
    <message id="Simplified Chinese (GB 2312)">
        <source>Simplified Chinese (GB 2312)</source>
        <translation>Simplified Chinese (GB 2312)</translation>
    </message>
    <message id="Simplified Chinese (HZ GB 2312)">
        <source>Simplified Chinese (HZ GB 2312)</source>
        <translation>Simplified Chinese (HZ GB 2312)</translation>
    </message>
    <message id="Chinese (ISO 2022-CN)">
        <source>Chinese (ISO 2022-CN)</source>
        <translation>Chinese (ISO 2022-CN)</translation>
    </message>
    <message id="Traditional Chinese (Big 5)">
        <source>Traditional Chinese (Big 5)</source>
        <translation>Traditional Chinese (Big 5)</translation>
    </message>
    <message id="Traditional Chinese (Big 5 HKSCS)">
        <source>Traditional Chinese (Big 5 HKSCS)</source>
        <translation>Traditional Chinese (Big 5 HKSCS)</translation>
    </message>
    <message id="Traditional Chinese (Windows, DOS)">
        <source>Traditional Chinese (Windows, DOS)</source>
        <translation>Traditional Chinese (Windows, DOS)</translation>
    </message>
    <message id="Traditional Chinese (EUC)">
        <source>Traditional Chinese (EUC)</source>
        <translation>Traditional Chinese (EUC)</translation>
    </message>
    <message id="Korean (EUC)">
        <source>Korean (EUC)</source>
        <translation>Korean (EUC)</translation>
    </message>
    <message id="Korean (Windows, DOS)">
        <source>Korean (Windows, DOS)</source>
        <translation>Korean (Windows, DOS)</translation>
    </message>
    <message id="Korean (ISO 2022-KR)">
        <source>Korean (ISO 2022-KR)</source>
        <translation>Korean (ISO 2022-KR)</translation>
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
        <translation>&amp;Color:</translation>
    </message>
    <message id="StyleTextColorTip">
        <source>The color of the letters, and of the line around the panel</source>
        <translation>The color of the letters, and of the line around the panel</translation>
    </message>
    <message id="StyleTextFontName">
        <source>&amp;Font:</source>
        <translation>&amp;Font:</translation>
    </message>
    <message id="StyleTextFontNameTip">
        <source>The family of the letters</source>
        <translation>The family of the letters</translation>
    </message>
    <message id="StyleTextFontSize">
        <source>Si&amp;ze:</source>
        <translation>Si&amp;ze:</translation>
    </message>
    <message id="StyleTextFontSizeTip">
        <source>In points of a screen 1080 points high; on a higher one, letters grow with it</source>
        <translation>In points of a screen 1080 points high; on a higher one, letters grow with it</translation>
    </message>
    <message id="StyleShadow">
        <source>Shadow</source>
        <translation>Shadow</translation>
    </message>
    <message id="StyleShadowOn">
        <source>Draw a &amp;shadow</source>
        <translation>Draw a &amp;shadow</translation>
    </message>
    <message id="StyleShadowOnTip">
        <source>A shadow keeps letters legible on any picture</source>
        <translation>A shadow keeps letters legible on any picture</translation>
    </message>
    <message id="StyleShadowColor">
        <source>Co&amp;lor:</source>
        <translation>Co&amp;lor:</translation>
    </message>
    <message id="StyleShadowColorTip">
        <source>The color of the shadow, and how much shows through it</source>
        <translation>The color of the shadow, and how much shows through it</translation>
    </message>
    <message id="StyleShadowBlur">
        <source>&amp;Blur:</source>
        <translation>&amp;Blur:</translation>
    </message>
    <message id="StyleShadowBlurTip">
        <source>How far the shadow’s edge is spread, in points</source>
        <translation>How far the shadow’s edge is spread, in points</translation>
    </message>
    <message id="StyleShadowOffsetX">
        <source>To the &amp;right:</source>
        <translation>To the &amp;right:</translation>
    </message>
    <message id="StyleShadowOffsetXTip">
        <source>How far the shadow falls to the right, in points; below 0, to the left</source>
        <translation>How far the shadow falls to the right, in points; below 0, to the left</translation>
    </message>
    <message id="StyleShadowOffsetY">
        <source>&amp;Upwards:</source>
        <translation>&amp;Upwards:</translation>
    </message>
    <message id="StyleShadowOffsetYTip">
        <source>How far the shadow falls upwards, in points; below 0, downwards</source>
        <translation>How far the shadow falls upwards, in points; below 0, downwards</translation>
    </message>
    <message id="StylePosition">
        <source>Position</source>
        <translation>Position</translation>
    </message>
    <message id="StyleAlignmentVertical">
        <source>&amp;Vertical:</source>
        <translation>&amp;Vertical:</translation>
    </message>
    <message id="StyleAlignmentVerticalTip">
        <source>At what height it stands</source>
        <translation>At what height it stands</translation>
    </message>
    <message id="StyleAlignmentHorizontal">
        <source>&amp;Horizontal:</source>
        <translation>&amp;Horizontal:</translation>
    </message>
    <message id="StyleAlignmentHorizontalTip">
        <source>At which side of the screen it stands</source>
        <translation>At which side of the screen it stands</translation>
    </message>
    <message id="StyleLeft">
        <source>Left</source>
        <translation>Left</translation>
    </message>
    <message id="StyleCenter">
        <source>Center</source>
        <translation>Center</translation>
    </message>
    <message id="StyleRight">
        <source>Right</source>
        <translation>Right</translation>
    </message>
    <message id="StyleTop">
        <source>Top</source>
        <translation>Top</translation>
    </message>
    <message id="StyleMiddle">
        <source>Middle</source>
        <translation>Middle</translation>
    </message>
    <message id="StyleBottom">
        <source>Bottom</source>
        <translation>Bottom</translation>
    </message>
    <message id="StyleAbovePictureEdge">
        <source>Inside the picture</source>
        <translation>Inside the picture</translation>
    </message>
    <message id="StyleOnPictureEdge">
        <source>On the picture’s edge</source>
        <translation>On the picture’s edge</translation>
    </message>
    <message id="StyleBelowPicture">
        <source>Below the picture</source>
        <translation>Below the picture</translation>
    </message>
    <message id="StylePanel">
        <source>Panel</source>
        <translation>Panel</translation>
    </message>
    <message id="StyleBackground">
        <source>Background</source>
        <translation>Background</translation>
    </message>
    <message id="StyleBackgroundTip">
        <source>The color around the picture</source>
        <translation>The color around the picture</translation>
    </message>
    <message id="StyleBackgroundOn">
        <source>Draw a &amp;panel</source>
        <translation>Draw a &amp;panel</translation>
    </message>
    <message id="StyleBackgroundOnTip">
        <source>A panel behind the text</source>
        <translation>A panel behind the text</translation>
    </message>
    <message id="StyleBackgroundColor">
        <source>Col&amp;or:</source>
        <translation>Col&amp;or:</translation>
    </message>
    <message id="StyleBackgroundColorTip">
        <source>The color of the panel, and how much shows through it</source>
        <translation>The color of the panel, and how much shows through it</translation>
    </message>
    <message id="StyleBackgroundRounded">
        <source>Rou&amp;nd corners</source>
        <translation>Rou&amp;nd corners</translation>
    </message>
    <message id="StyleBackgroundRoundedTip">
        <source>Corners of the panel are rounded</source>
        <translation>Corners of the panel are rounded</translation>
    </message>
    <message id="StyleBackgroundRadius">
        <source>R&amp;adius:</source>
        <translation>R&amp;adius:</translation>
    </message>
    <message id="StyleBackgroundRadiusTip">
        <source>How far the corners are rounded, in points</source>
        <translation>How far the corners are rounded, in points</translation>
    </message>
    <message id="StyleFrameOn">
        <source>Draw a fra&amp;me</source>
        <translation>Draw a fra&amp;me</translation>
    </message>
    <message id="StyleFrameOnTip">
        <source>A line around the panel, in the text’s color</source>
        <translation>A line around the panel, in the text’s color</translation>
    </message>
    <message id="StyleFrameWidth">
        <source>&amp;Width:</source>
        <translation>&amp;Width:</translation>
    </message>
    <message id="StyleFrameWidthTip">
        <source>How wide the line is, in points</source>
        <translation>How wide the line is, in points</translation>
    </message>
    <message id="StyleFading">
        <source>Fading and opacity</source>
        <translation>Fading and opacity</translation>
    </message>
    <message id="StyleFadingIn">
        <source>Fade &amp;in:</source>
        <translation>Fade &amp;in:</translation>
    </message>
    <message id="StyleFadingInTip">
        <source>How long a whole fade takes when it appears; 0 shows it at once</source>
        <translation>How long a whole fade takes when it appears; 0 shows it at once</translation>
    </message>
    <message id="StyleFadingOut">
        <source>Fad&amp;e out:</source>
        <translation>Fad&amp;e out:</translation>
    </message>
    <message id="StyleFadingOutTip">
        <source>How long a whole fade takes when it goes; 0 hides it at once</source>
        <translation>How long a whole fade takes when it goes; 0 hides it at once</translation>
    </message>
    <message id="StyleFadingDelay">
        <source>S&amp;tay:</source>
        <translation>S&amp;tay:</translation>
    </message>
    <message id="StyleFadingDelayTip">
        <source>How long it stays between fading in and fading out</source>
        <translation>How long it stays between fading in and fading out</translation>
    </message>
    <message id="StyleMinAlpha">
        <source>Opacity when hi&amp;dden:</source>
        <translation>Opacity when hi&amp;dden:</translation>
    </message>
    <message id="StyleMinAlphaTip">
        <source>How much of it remains while it is hidden: 0 % is nothing</source>
        <translation>How much of it remains while it is hidden: 0 % is nothing</translation>
    </message>
    <message id="StyleMaxAlpha">
        <source>Opacit&amp;y when shown:</source>
        <translation>Opacit&amp;y when shown:</translation>
    </message>
    <message id="StyleMaxAlphaTip">
        <source>How opaque it is while it is shown: below 100 % the picture shows through</source>
        <translation>How opaque it is while it is shown: below 100 % the picture shows through</translation>
    </message>
    <message id="StyleReset">
        <source>Reset to Defaults</source>
        <translation>Reset to Defaults</translation>
    </message>
    <message id="StyleResetTip">
        <source>Takes this style back to what it was at first</source>
        <translation>Takes this style back to what it was at first</translation>
    </message>
    <message id="StyleResetUndo">
        <source>Undo Reset</source>
        <translation>Undo Reset</translation>
    </message>
    <message id="StyleResetUndoTip">
        <source>Brings back what the style was before</source>
        <translation>Brings back what the style was before</translation>
    </message>
    <message id="StyleSeconds">
        <source>%@ s</source>
        <translation>%@ s</translation>
    </message>
    <message id="StylePercent">
        <source>%@ %</source>
        <translation>%@ %</translation>
    </message>
    <message id="StyleSample">
        <source>Sample</source>
        <translation>Sample</translation>
    </message>
    <message id="StyleSampleTip">
        <source>What it looks like over the movie, or over a light and a dark picture</source>
        <translation>What it looks like over the movie, or over a light and a dark picture</translation>
    </message>
    <message id="StyleSampleSubtitle">
        <source>What an evening!</source>
        <translation>What an evening!</translation>
    </message>
    <message id="StyleSampleFeedback">
        <source>Volume: 80 %</source>
        <translation>Volume: 80 %</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message id="Preferences">
        <source>Preferences</source>
        <translation>Preferences</translation>
    </message>
    <message id="&amp;Movie">
        <source>&amp;Movie</source>
        <translation>&amp;Movie</translation>
    </message>
    <message id="Started Without a File">
        <source>Started Without a File</source>
        <translation>Started Without a File</translation>
    </message>
    <message id="Open &amp;nothing">
        <source>Open &amp;nothing</source>
        <translation>Open &amp;nothing</translation>
    </message>
    <message id="Lumaro starts with an empty screen">
        <source>Lumaro starts with an empty screen</source>
        <translation>Lumaro starts with an empty screen</translation>
    </message>
    <message id="Open the &amp;last playlist">
        <source>Open the &amp;last playlist</source>
        <translation>Open the &amp;last playlist</translation>
    </message>
    <message id="The movies of the last time come back, at the place where they were left">
        <source>The movies of the last time come back, at the place where they were left</source>
        <translation>The movies of the last time come back, at the place where they were left</translation>
    </message>
    <message id="Ask for &amp;files">
        <source>Ask for &amp;files</source>
        <translation>Ask for &amp;files</translation>
    </message>
    <message id="Lumaro begins with the panel that opens movies">
        <source>Lumaro begins with the panel that opens movies</source>
        <translation>Lumaro begins with the panel that opens movies</translation>
    </message>
    <message id="Picture">
        <source>Picture</source>
        <translation>Picture</translation>
    </message>
    <message id="Si&amp;ze:">
        <source>Si&amp;ze:</source>
        <translation>Si&amp;ze:</translation>
    </message>
    <message id="How large movies are shown, from now on and at the next start">
        <source>How large movies are shown, from now on and at the next start</source>
        <translation>How large movies are shown, from now on and at the next start</translation>
    </message>
    <message id="Custom Magnification">
        <source>Custom Magnification</source>
        <translation>Custom Magnification</translation>
    </message>
    <message id="&amp;Window:">
        <source>&amp;Window:</source>
        <translation>&amp;Window:</translation>
    </message>
    <message id="Whether the movie stays above the windows of other programs while Lumaro has the keyboard">
        <source>Whether the movie stays above the windows of other programs while Lumaro has the keyboard</source>
        <translation>Whether the movie stays above the windows of other programs while Lumaro has the keyboard</translation>
    </message>
    <message id="Bar over the p&amp;icture:">
        <source>Bar over the p&amp;icture:</source>
        <translation>Bar over the p&amp;icture:</translation>
    </message>
    <message id="Where none stands below it: a larger bar that comes with the pointer, or stays">
        <source>Where none stands below it: a larger bar that comes with the pointer, or stays</source>
        <translation>Where none stands below it: a larger bar that comes with the pointer, or stays</translation>
    </message>
    <message id="Always">
        <source>Always</source>
        <translation>Always</translation>
    </message>
    <message id="When the pointer moves">
        <source>When the pointer moves</source>
        <translation>When the pointer moves</translation>
    </message>
    <message id="Among other windows">
        <source>Among other windows</source>
        <translation>Among other windows</translation>
    </message>
    <message id="Above other windows">
        <source>Above other windows</source>
        <translation>Above other windows</translation>
    </message>
    <message id="Show the controller &amp;bar">
        <source>Show the controller &amp;bar</source>
        <translation>Show the controller &amp;bar</translation>
    </message>
    <message id="The bar with play, time and volume below the picture">
        <source>The bar with play, time and volume below the picture</source>
        <translation>The bar with play, time and volume below the picture</translation>
    </message>
    <message id="Set the screen’s bri&amp;ghtness:">
        <source>Set the screen’s bri&amp;ghtness:</source>
        <translation>Set the screen’s bri&amp;ghtness:</translation>
    </message>
    <message id="As long as Lumaro runs; then the screen is as bright as before">
        <source>As long as Lumaro runs; then the screen is as bright as before</source>
        <translation>As long as Lumaro runs; then the screen is as bright as before</translation>
    </message>
    <message id="How bright the screen is while Lumaro runs">
        <source>How bright the screen is while Lumaro runs</source>
        <translation>How bright the screen is while Lumaro runs</translation>
    </message>
    <message id="Brightness of the screen">
        <source>Brightness of the screen</source>
        <translation>Brightness of the screen</translation>
    </message>
    <message id="Pictur&amp;e">
        <source>Pictur&amp;e</source>
        <translation>Pictur&amp;e</translation>
    </message>
    <message id="Co&amp;ntrast:">
        <source>Co&amp;ntrast:</source>
        <translation>Co&amp;ntrast:</translation>
    </message>
    <message id="&amp;Brightness:">
        <source>&amp;Brightness:</source>
        <translation>&amp;Brightness:</translation>
    </message>
    <message id="&amp;Gamma:">
        <source>&amp;Gamma:</source>
        <translation>&amp;Gamma:</translation>
    </message>
    <message id="Sa&amp;turation:">
        <source>Sa&amp;turation:</source>
        <translation>Sa&amp;turation:</translation>
    </message>
    <message id="&amp;Hue:">
        <source>&amp;Hue:</source>
        <translation>&amp;Hue:</translation>
    </message>
    <message id="Every movie is shown with it, the one on the screen at once">
        <source>Every movie is shown with it, the one on the screen at once</source>
        <translation>Every movie is shown with it, the one on the screen at once</translation>
    </message>
    <message id="The brightness of this screen can’t be set">
        <source>The brightness of this screen can’t be set</source>
        <translation>The brightness of this screen can’t be set</translation>
    </message>
    <message id="Playing">
        <source>Playing</source>
        <translation>Playing</translation>
    </message>
    <message id="&amp;Jump by:">
        <source>&amp;Jump by:</source>
        <translation>&amp;Jump by:</translation>
    </message>
    <message id="How many seconds a jump goes forward or back">
        <source>How many seconds a jump goes forward or back</source>
        <translation>How many seconds a jump goes forward or back</translation>
    </message>
    <message id="seconds">
        <source>seconds</source>
        <translation>seconds</translation>
    </message>
    <message id="&amp;Keep the volume for the next start">
        <source>&amp;Keep the volume for the next start</source>
        <translation>&amp;Keep the volume for the next start</translation>
    </message>
    <message id="Lumaro begins as loud as it ended">
        <source>Lumaro begins as loud as it ended</source>
        <translation>Lumaro begins as loud as it ended</translation>
    </message>
    <message id="While Another Program Has the Keyboard">
        <source>While Another Program Has the Keyboard</source>
        <translation>While Another Program Has the Keyboard</translation>
    </message>
    <message id="Pa&amp;use the movie">
        <source>Pa&amp;use the movie</source>
        <translation>Pa&amp;use the movie</translation>
    </message>
    <message id="It goes on when you come back">
        <source>It goes on when you come back</source>
        <translation>It goes on when you come back</translation>
    </message>
    <message id="&amp;Hide the window">
        <source>&amp;Hide the window</source>
        <translation>&amp;Hide the window</translation>
    </message>
    <message id="The window is minimized, and comes back with Lumaro">
        <source>The window is minimized, and comes back with Lumaro</source>
        <translation>The window is minimized, and comes back with Lumaro</translation>
    </message>
    <message id="Go on where a mo&amp;vie was left">
        <source>Go on where a mo&amp;vie was left</source>
        <translation>Go on where a mo&amp;vie was left</translation>
    </message>
    <message id="The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them">
        <source>The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them</source>
        <translation>The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them</translation>
    </message>
    <message id="&amp;Playlist">
        <source>&amp;Playlist</source>
        <translation>&amp;Playlist</translation>
    </message>
    <message id="Order">
        <source>Order</source>
        <translation>Order</translation>
    </message>
    <message id="As adde&amp;d">
        <source>As adde&amp;d</source>
        <translation>As adde&amp;d</translation>
    </message>
    <message id="Movies play in the order in which they were given">
        <source>Movies play in the order in which they were given</source>
        <translation>Movies play in the order in which they were given</translation>
    </message>
    <message id="Shu&amp;ffled">
        <source>Shu&amp;ffled</source>
        <translation>Shu&amp;ffled</translation>
    </message>
    <message id="Movies play in an order left to chance">
        <source>Movies play in an order left to chance</source>
        <translation>Movies play in an order left to chance</translation>
    </message>
    <message id="Sor&amp;ted">
        <source>Sor&amp;ted</source>
        <translation>Sor&amp;ted</translation>
    </message>
    <message id="Movies play by their names">
        <source>Movies play by their names</source>
        <translation>Movies play by their names</translation>
    </message>
    <message id="Compare &amp;numbers by value">
        <source>Compare &amp;numbers by value</source>
        <translation>Compare &amp;numbers by value</translation>
    </message>
    <message id="Part 2 comes before part 10">
        <source>Part 2 comes before part 10</source>
        <translation>Part 2 comes before part 10</translation>
    </message>
    <message id="By the &amp;whole path">
        <source>By the &amp;whole path</source>
        <translation>By the &amp;whole path</translation>
    </message>
    <message id="Folders stay together">
        <source>Folders stay together</source>
        <translation>Folders stay together</translation>
    </message>
    <message id="By the f&amp;ile name only">
        <source>By the f&amp;ile name only</source>
        <translation>By the f&amp;ile name only</translation>
    </message>
    <message id="Whatever folders the movies lie in">
        <source>Whatever folders the movies lie in</source>
        <translation>Whatever folders the movies lie in</translation>
    </message>
    <message id="&amp;Looping:">
        <source>&amp;Looping:</source>
        <translation>&amp;Looping:</translation>
    </message>
    <message id="What is repeated, from now on and in new playlists">
        <source>What is repeated, from now on and in new playlists</source>
        <translation>What is repeated, from now on and in new playlists</translation>
    </message>
    <message id="&amp;Begin to play what is opened">
        <source>&amp;Begin to play what is opened</source>
        <translation>&amp;Begin to play what is opened</translation>
    </message>
    <message id="Else movies are shown and wait">
        <source>Else movies are shown and wait</source>
        <translation>Else movies are shown and wait</translation>
    </message>
    <message id="&amp;Go on with the next movie">
        <source>&amp;Go on with the next movie</source>
        <translation>&amp;Go on with the next movie</translation>
    </message>
    <message id="When one ends, the next in the list plays">
        <source>When one ends, the next in the list plays</source>
        <translation>When one ends, the next in the list plays</translation>
    </message>
    <message id="&amp;Quit at the end of the list">
        <source>&amp;Quit at the end of the list</source>
        <translation>&amp;Quit at the end of the list</translation>
    </message>
    <message id="Unless it is repeated">
        <source>Unless it is repeated</source>
        <translation>Unless it is repeated</translation>
    </message>
    <message id="&amp;Subtitles">
        <source>&amp;Subtitles</source>
        <translation>&amp;Subtitles</translation>
    </message>
    <message id="Showing">
        <source>Showing</source>
        <translation>Showing</translation>
    </message>
    <message id="S&amp;how subtitles">
        <source>S&amp;how subtitles</source>
        <translation>S&amp;how subtitles</translation>
    </message>
    <message id="Also for movies opened later">
        <source>Also for movies opened later</source>
        <translation>Also for movies opened later</translation>
    </message>
    <message id="Draw mark&amp;up">
        <source>Draw mark&amp;up</source>
        <translation>Draw mark&amp;up</translation>
    </message>
    <message id="Italics, colors and places in subtitle files act; else they are left out">
        <source>Italics, colors and places in subtitle files act; else they are left out</source>
        <translation>Italics, colors and places in subtitle files act; else they are left out</translation>
    </message>
    <message id="&amp;Find subtitle files beside movies">
        <source>&amp;Find subtitle files beside movies</source>
        <translation>&amp;Find subtitle files beside movies</translation>
    </message>
    <message id="When a movie is opened">
        <source>When a movie is opened</source>
        <translation>When a movie is opened</translation>
    </message>
    <message id="Files">
        <source>Files</source>
        <translation>Files</translation>
    </message>
    <message id="E&amp;ncoding:">
        <source>E&amp;ncoding:</source>
        <translation>E&amp;ncoding:</translation>
    </message>
    <message id="How the letters of subtitle files are stored; Automatic tells it by the file">
        <source>How the letters of subtitle files are stored; Automatic tells it by the file</source>
        <translation>How the letters of subtitle files are stored; Automatic tells it by the file</translation>
    </message>
    <message id="Encoding of subtitle files">
        <source>Encoding of subtitle files</source>
        <translation>Encoding of subtitle files</translation>
    </message>
    <message id="Frame ra&amp;te:">
        <source>Frame ra&amp;te:</source>
        <translation>Frame ra&amp;te:</translation>
    </message>
    <message id="For subtitle files that count pictures instead of seconds">
        <source>For subtitle files that count pictures instead of seconds</source>
        <translation>For subtitle files that count pictures instead of seconds</translation>
    </message>
    <message id="As the movie">
        <source>As the movie</source>
        <translation>As the movie</translation>
    </message>
    <message id="Repair &amp;damaged subtitle files">
        <source>Repair &amp;damaged subtitle files</source>
        <translation>Repair &amp;damaged subtitle files</translation>
    </message>
    <message id="What is damaged is read as far as it can be">
        <source>What is damaged is read as far as it can be</source>
        <translation>What is damaged is read as far as it can be</translation>
    </message>
    <message id="Preferred Languages">
        <source>Preferred Languages</source>
        <translation>Preferred Languages</translation>
    </message>
    <message id="Preferred languages">
        <source>Preferred languages</source>
        <translation>Preferred languages</translation>
    </message>
    <message id="Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.">
        <source>Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.</source>
        <translation>Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.</translation>
    </message>
    <message id="Add a language">
        <source>Add a language</source>
        <translation>Add a language</translation>
    </message>
    <message id="Adds a language to the list">
        <source>Adds a language to the list</source>
        <translation>Adds a language to the list</translation>
    </message>
    <message id="Hi&amp;gher">
        <source>Hi&amp;gher</source>
        <translation>Hi&amp;gher</translation>
    </message>
    <message id="Moves the language up the list">
        <source>Moves the language up the list</source>
        <translation>Moves the language up the list</translation>
    </message>
    <message id="Lo&amp;wer">
        <source>Lo&amp;wer</source>
        <translation>Lo&amp;wer</translation>
    </message>
    <message id="Moves the language down the list">
        <source>Moves the language down the list</source>
        <translation>Moves the language down the list</translation>
    </message>
    <message id="Remo&amp;ve">
        <source>Remo&amp;ve</source>
        <translation>Remo&amp;ve</translation>
    </message>
    <message id="Takes the language off the list">
        <source>Takes the language off the list</source>
        <translation>Takes the language off the list</translation>
    </message>
    <message id="&amp;Overlays">
        <source>&amp;Overlays</source>
        <translation>&amp;Overlays</translation>
    </message>
    <message id="Smallest &amp;text size:">
        <source>Smallest &amp;text size:</source>
        <translation>Smallest &amp;text size:</translation>
    </message>
    <message id="No text over the movie is smaller">
        <source>No text over the movie is smaller</source>
        <translation>No text over the movie is smaller</translation>
    </message>
    <message id="&amp;Distance from the edges:">
        <source>&amp;Distance from the edges:</source>
        <translation>&amp;Distance from the edges:</translation>
    </message>
    <message id="How far what is shown over the movie keeps from the edges of the window">
        <source>How far what is shown over the movie keeps from the edges of the window</source>
        <translation>How far what is shown over the movie keeps from the edges of the window</translation>
    </message>
    <message id="Show &amp;feedback">
        <source>Show &amp;feedback</source>
        <translation>Show &amp;feedback</translation>
    </message>
    <message id="Commands say what they did">
        <source>Commands say what they did</source>
        <translation>Commands say what they did</translation>
    </message>
    <message id="&amp;Keep the display for the next start">
        <source>&amp;Keep the display for the next start</source>
        <translation>&amp;Keep the display for the next start</translation>
    </message>
    <message id="The on-screen display chosen last is shown again">
        <source>The on-screen display chosen last is shown again</source>
        <translation>The on-screen display chosen last is shown again</translation>
    </message>
    <message id="How texts over the movie and the window look">
        <source>How texts over the movie and the window look</source>
        <translation>How texts over the movie and the window look</translation>
    </message>
    <message id="Overlay styles">
        <source>Overlay styles</source>
        <translation>Overlay styles</translation>
    </message>
    <message id="How subtitles look">
        <source>How subtitles look</source>
        <translation>How subtitles look</translation>
    </message>
    <message id="Subtitle styles">
        <source>Subtitle styles</source>
        <translation>Subtitle styles</translation>
    </message>
    <message id="&amp;Advanced">
        <source>&amp;Advanced</source>
        <translation>&amp;Advanced</translation>
    </message>
    <message id="Pointer">
        <source>Pointer</source>
        <translation>Pointer</translation>
    </message>
    <message id="&amp;Hide after:">
        <source>&amp;Hide after:</source>
        <translation>&amp;Hide after:</translation>
    </message>
    <message id="How long the pointer rests before it is hidden">
        <source>How long the pointer rests before it is hidden</source>
        <translation>How long the pointer rests before it is hidden</translation>
    </message>
    <message id="New Versions">
        <source>New Versions</source>
        <translation>New Versions</translation>
    </message>
    <message id="The packages of your system keep Lumaro up to date.">
        <source>The packages of your system keep Lumaro up to date.</source>
        <translation>The packages of your system keep Lumaro up to date.</translation>
    </message>
    <message id="Look for new &amp;versions">
        <source>Look for new &amp;versions</source>
        <translation>Look for new &amp;versions</translation>
    </message>
    <message id="When Lumaro starts, as often as is set below">
        <source>When Lumaro starts, as often as is set below</source>
        <translation>When Lumaro starts, as often as is set below</translation>
    </message>
    <message id="Also for &amp;beta versions">
        <source>Also for &amp;beta versions</source>
        <translation>Also for &amp;beta versions</translation>
    </message>
    <message id="Versions that are still being tried">
        <source>Versions that are still being tried</source>
        <translation>Versions that are still being tried</translation>
    </message>
    <message id="Ho&amp;w often:">
        <source>Ho&amp;w often:</source>
        <translation>Ho&amp;w often:</translation>
    </message>
    <message id="How much time passes between two checks">
        <source>How much time passes between two checks</source>
        <translation>How much time passes between two checks</translation>
    </message>
    <message id="At every start">
        <source>At every start</source>
        <translation>At every start</translation>
    </message>
    <message id="Daily">
        <source>Daily</source>
        <translation>Daily</translation>
    </message>
    <message id="Weekly">
        <source>Weekly</source>
        <translation>Weekly</translation>
    </message>
    <message id="Every 30 days">
        <source>Every 30 days</source>
        <translation>Every 30 days</translation>
    </message>
    <message id="Last check:">
        <source>Last check:</source>
        <translation>Last check:</translation>
    </message>
    <message id="Result:">
        <source>Result:</source>
        <translation>Result:</translation>
    </message>
    <message id="Check &amp;Now">
        <source>Check &amp;Now</source>
        <translation>Check &amp;Now</translation>
    </message>
    <message id="Looks for a new version at once">
        <source>Looks for a new version at once</source>
        <translation>Looks for a new version at once</translation>
    </message>
    <message id="Diagnosis">
        <source>Diagnosis</source>
        <translation>Diagnosis</translation>
    </message>
    <message id="Remote">
        <source>Remote</source>
        <translation>Remote</translation>
    </message>
    <message id="Act on in&amp;frared remotes">
        <source>Act on in&amp;frared remotes</source>
        <translation>Act on in&amp;frared remotes</translation>
    </message>
    <message id="Their buttons are the player's alone while it runs">
        <source>Their buttons are the player's alone while it runs</source>
        <translation>Their buttons are the player's alone while it runs</translation>
    </message>
    <message id="&amp;Log what happens">
        <source>&amp;Log what happens</source>
        <translation>&amp;Log what happens</translation>
    </message>
    <message id="Lines for whoever looks for an error, in the system log or the terminal">
        <source>Lines for whoever looks for an error, in the system log or the terminal</source>
        <translation>Lines for whoever looks for an error, in the system log or the terminal</translation>
    </message>
    <message id="&amp;Reset Page">
        <source>&amp;Reset Page</source>
        <translation>&amp;Reset Page</translation>
    </message>
    <message id="Takes the settings of this page back to what they were at first. Styles have a button of their own.">
        <source>Takes the settings of this page back to what they were at first. Styles have a button of their own.</source>
        <translation>Takes the settings of this page back to what they were at first. Styles have a button of their own.</translation>
    </message>
    <message id="Undo Reset">
        <source>Undo Reset</source>
        <translation>Undo Reset</translation>
    </message>
    <message id="Brings the settings of this page back (Ctrl+Z)">
        <source>Brings the settings of this page back (Ctrl+Z)</source>
        <translation>Brings the settings of this page back (Ctrl+Z)</translation>
    </message>
    <message id="Find a setting">
        <source>Find a setting</source>
        <translation>Find a setting</translation>
    </message>
    <message id="Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.">
        <source>Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.</source>
        <translation>Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.</translation>
    </message>
    <message id="PreferencesFound">
        <source>%d of %d</source>
        <translation>%d of %d</translation>
    </message>
    <message id="Nothing found">
        <source>Nothing found</source>
        <translation>Nothing found</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>Close</translation>
    </message>
    <message id="More Encodings">
        <source>More Encodings</source>
        <translation>More Encodings</translation>
    </message>
    <message id="%d sec.">
        <source>%d sec.</source>
        <translation>%d sec.</translation>
    </message>
    <message id="%d pt">
        <source>%d pt</source>
        <translation>%d pt</translation>
    </message>
    <message id="Search: %@">
        <source>Search: %@</source>
        <translation>Search: %@</translation>
    </message>
    <message id="Type to search">
        <source>Type to search</source>
        <translation>Type to search</translation>
    </message>
    <message id="Change the preferences">
        <source>Change the preferences</source>
        <translation>Change the preferences</translation>
    </message>
    <message id="Feedback style">
        <source>Feedback</source>
        <translation>Feedback</translation>
    </message>
    <message id="Text style">
        <source>Texts</source>
        <translation>Texts</translation>
    </message>
    <message id="Picture style">
        <source>Bitmaps</source>
        <translation>Bitmaps</translation>
    </message>
    <message id="On-screen display style">
        <source>On-Screen Display</source>
        <translation>On-Screen Display</translation>
    </message>
    <message id="Window style">
        <source>Window</source>
        <translation>Window</translation>
    </message>
    <message id="SettingsNotSavedMessage">
        <source>The preferences can’t be saved.</source>
        <translation>The preferences can’t be saved.</translation>
    </message>
    <message id="SettingsNotSavedDetails">
        <source>What you change acts until Lumaro quits. The file “%@” can’t be written.</source>
        <translation>What you change acts until Lumaro quits. The file “%@” can’t be written.</translation>
    </message>
    <message id="SettingsDamagedMessage">
        <source>The preferences are damaged.</source>
        <translation>The preferences are damaged.</translation>
    </message>
    <message id="SettingsDamagedDetails">
        <source>Lumaro begins with new ones. The damaged file is kept as “%@”.</source>
        <translation>Lumaro begins with new ones. The damaged file is kept as “%@”.</translation>
    </message>
    <message id="SettingsUnreadableMessage">
        <source>The preferences can’t be read.</source>
        <translation>The preferences can’t be read.</translation>
    </message>
    <message id="SettingsUnreadableDetails">
        <source>The file “%@” stays as it is. What you change acts until Lumaro quits.</source>
        <translation>The file “%@” stays as it is. What you change acts until Lumaro quits.</translation>
    </message>
    <message id="PlacesDamagedMessage">
        <source>The remembered places in movies are damaged; their file was put aside.</source>
        <translation>The remembered places in movies are damaged; their file was put aside.</translation>
    </message>
    <message id="PlacesUnreadableMessage">
        <source>The remembered places in movies can’t be read.</source>
        <translation>The remembered places in movies can’t be read.</translation>
    </message>
    <message id="PlacesOfLaterVersionMessage">
        <source>A later version of Lumaro remembers places in movies here; this one can’t.</source>
        <translation>A later version of Lumaro remembers places in movies here; this one can’t.</translation>
    </message>
    <message id="Short&amp;cuts">
        <source>Short&amp;cuts</source>
        <translation>Short&amp;cuts</translation>
    </message>
    <message id="Searc&amp;h:">
        <source>Searc&amp;h:</source>
        <translation>Searc&amp;h:</translation>
    </message>
    <message id="Words of a command, or its key">
        <source>Words of a command, or its key</source>
        <translation>Words of a command, or its key</translation>
    </message>
    <message id="The commands by menu; bold ones have keys of your own">
        <source>The commands by menu; bold ones have keys of your own</source>
        <translation>The commands by menu; bold ones have keys of your own</translation>
    </message>
    <message id="Commands and their keys">
        <source>Commands and their keys</source>
        <translation>Commands and their keys</translation>
    </message>
    <message id="Command">
        <source>Command</source>
        <translation>Command</translation>
    </message>
    <message id="Keys">
        <source>Keys</source>
        <translation>Keys</translation>
    </message>
    <message id="&amp;Keys of the command:">
        <source>&amp;Keys of the command:</source>
        <translation>&amp;Keys of the command:</translation>
    </message>
    <message id="The keys of the command that is marked">
        <source>The keys of the command that is marked</source>
        <translation>The keys of the command that is marked</translation>
    </message>
    <message id="A&amp;dd Key...">
        <source>A&amp;dd Key...</source>
        <translation>A&amp;dd Key...</translation>
    </message>
    <message id="Then press the key, with Ctrl, Alt, Shift or Super if you like">
        <source>Then press the key, with Ctrl, Alt, Shift or Super if you like</source>
        <translation>Then press the key, with Ctrl, Alt, Shift or Super if you like</translation>
    </message>
    <message id="Remo&amp;ve Key">
        <source>Remo&amp;ve Key</source>
        <translation>Remo&amp;ve Key</translation>
    </message>
    <message id="The marked key means nothing any more">
        <source>The marked key means nothing any more</source>
        <translation>The marked key means nothing any more</translation>
    </message>
    <message id="Rese&amp;t Command">
        <source>Rese&amp;t</source>
        <translation>Rese&amp;t</translation>
    </message>
    <message id="The command gets back the keys that Lumaro came with">
        <source>The command gets back the keys that Lumaro came with</source>
        <translation>The command gets back the keys that Lumaro came with</translation>
    </message>
    <message id="Reset A&amp;ll Keys">
        <source>Reset A&amp;ll</source>
        <translation>Reset A&amp;ll</translation>
    </message>
    <message id="Every command gets back the keys that Lumaro came with">
        <source>Every command gets back the keys that Lumaro came with</source>
        <translation>Every command gets back the keys that Lumaro came with</translation>
    </message>
    <message id="&amp;Undo Key Change">
        <source>&amp;Undo</source>
        <translation>&amp;Undo</translation>
    </message>
    <message id="Takes back the last change of a key">
        <source>Takes back the last change of a key</source>
        <translation>Takes back the last change of a key</translation>
    </message>
    <message id="Take &amp;It Over">
        <source>Take &amp;It Over</source>
        <translation>Take &amp;It Over</translation>
    </message>
    <message id="The key means the marked command from now on">
        <source>The key means the marked command from now on</source>
        <translation>The key means the marked command from now on</translation>
    </message>
    <message id="Ca&amp;ncel Key">
        <source>Ca&amp;ncel</source>
        <translation>Ca&amp;ncel</translation>
    </message>
    <message id="The key keeps its meaning">
        <source>The key keeps its meaning</source>
        <translation>The key keeps its meaning</translation>
    </message>
    <message id="Press a key for “%@”. Esc goes back.">
        <source>Press a key for “%@”. Esc goes back.</source>
        <translation>Press a key for “%@”. Esc goes back.</translation>
    </message>
    <message id="Lumaro does not know this key.">
        <source>Lumaro does not know this key.</source>
        <translation>Lumaro does not know this key.</translation>
    </message>
    <message id="Esc closes windows and ends Lumaro; that can’t be changed.">
        <source>Esc closes windows and ends Lumaro; that can’t be changed.</source>
        <translation>Esc closes windows and ends Lumaro; that can’t be changed.</translation>
    </message>
    <message id="%@ belongs to the desktop.">
        <source>%@ belongs to the desktop.</source>
        <translation>%@ belongs to the desktop.</translation>
    </message>
    <message id="%@ means “%@” already.">
        <source>%@ means “%@” already.</source>
        <translation>%@ means “%@” already.</translation>
    </message>
    <message id="“%@” has as many keys as it can have; remove one first.">
        <source>“%@” has as many keys as it can have; remove one first.</source>
        <translation>“%@” has as many keys as it can have; remove one first.</translation>
    </message>
    <message id="%@ means “%@” now.">
        <source>%@ means “%@” now.</source>
        <translation>%@ means “%@” now.</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>Stop</translation>
    </message>
    <message id="Next Looping">
        <source>Next Looping</source>
        <translation>Next Looping</translation>
    </message>
    <message id="Previous Looping">
        <source>Previous Looping</source>
        <translation>Previous Looping</translation>
    </message>
    <message id="Show Playlist">
        <source>Show Playlist</source>
        <translation>Show Playlist</translation>
    </message>
    <message id="Next Subtitles">
        <source>Next Subtitles</source>
        <translation>Next Subtitles</translation>
    </message>
    <message id="Previous Subtitles">
        <source>Previous Subtitles</source>
        <translation>Previous Subtitles</translation>
    </message>
    <message id="No Subtitles">
        <source>No Subtitles</source>
        <translation>No Subtitles</translation>
    </message>
    <message id="Open a movie from the menu">
        <source>Open a movie from the menu</source>
        <translation>Open a movie from the menu</translation>
    </message>
    <message id="or drop files here.">
        <source>or drop files here.</source>
        <translation>or drop files here.</translation>
    </message>
    <message id="Keys of the command">
        <source>Keys of the command</source>
        <translation>Keys of the command</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message id="Open pages of video sites with &amp;yt-dlp">
        <source>Open pages of video sites with &amp;yt-dlp</source>
        <translation>Open pages of video sites with &amp;yt-dlp</translation>
    </message>
    <message id="An address that is no movie is asked of the program yt-dlp, where it is installed">
        <source>An address that is no movie is asked of the program yt-dlp, where it is installed</source>
        <translation>An address that is no movie is asked of the program yt-dlp, where it is installed</translation>
    </message>
    <message id="Open Movies">
        <source>Open Movies</source>
        <translation>Open Movies</translation>
    </message>
    <message id="Open Folder">
        <source>Open Folder</source>
        <translation>Open Folder</translation>
    </message>
    <message id="Open Folder...">
        <source>Open Folder...</source>
        <translation>Open Folder...</translation>
    </message>
    <message id="Movies and Sound">
        <source>Movies and Sound</source>
        <translation>Movies and Sound</translation>
    </message>
    <message id="All Files">
        <source>All Files</source>
        <translation>All Files</translation>
    </message>
    <message id="Add to Playlist">
        <source>Add to Playlist</source>
        <translation>Add to Playlist</translation>
    </message>
    <message id="Open folders of movies">
        <source>Open folders of movies</source>
        <translation>Open folders of movies</translation>
    </message>
    <message id="Open an address, several addresses">
        <source>Open an address, several addresses</source>
        <translation>Open an address, several addresses</translation>
    </message>
    <message id="Open URL">
        <source>Open URL</source>
        <translation>Open URL</translation>
    </message>
    <message id="Open URLs">
        <source>Open URLs</source>
        <translation>Open URLs</translation>
    </message>
    <message id="&amp;Address or path of a movie:">
        <source>&amp;Address or path of a movie:</source>
        <translation>&amp;Address or path of a movie:</translation>
    </message>
    <message id="&amp;Addresses or paths of movies, one in each line:">
        <source>&amp;Addresses or paths of movies, one in each line:</source>
        <translation>&amp;Addresses or paths of movies, one in each line:</translation>
    </message>
    <message id="Address">
        <source>Address</source>
        <translation>Address</translation>
    </message>
    <message id="Addresses">
        <source>Addresses</source>
        <translation>Addresses</translation>
    </message>
    <message id="Add to &amp;Playlist">
        <source>Add to &amp;Playlist</source>
        <translation>Add to &amp;Playlist</translation>
    </message>
    <message id="What plays now goes on; holding Alt does the same">
        <source>What plays now goes on; holding Alt does the same</source>
        <translation>What plays now goes on; holding Alt does the same</translation>
    </message>
    <message id="Replace the Playlist">
        <source>Replace the Playlist</source>
        <translation>Replace the Playlist</translation>
    </message>
    <message id="Add to the Playlist">
        <source>Add to the Playlist</source>
        <translation>Add to the Playlist</translation>
    </message>
    <message id="OpenErrorSubtitles">
        <source>It holds subtitles. They are shown by themselves when they lie beside their movie and begin with its name.</source>
        <translation>It holds subtitles. They are shown by themselves when they lie beside their movie and begin with its name.</translation>
    </message>
    <message id="OpenErrorNotAnAddress">
        <source>It is neither an address nor the path of a file.</source>
        <translation>It is neither an address nor the path of a file.</translation>
    </message>
    <message id="Resumed at %@">
        <source>Resumed at %@</source>
        <translation>Resumed at %@</translation>
    </message>
</context>
<context>
    <name>Watching</name>
    <message id="Speed">
        <source>Speed</source>
        <translation>Speed</translation>
    </message>
    <message id="Speed: %@">
        <source>Speed: %@</source>
        <translation>Speed: %@</translation>
    </message>
    <message id="%@x">
        <source>%@x</source>
        <translation>%@x</translation>
    </message>
    <message id="Slower">
        <source>Slower</source>
        <translation>Slower</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>Faster</translation>
    </message>
    <message id="Half as Fast">
        <source>Half as Fast</source>
        <translation>Half as Fast</translation>
    </message>
    <message id="Twice as Fast">
        <source>Twice as Fast</source>
        <translation>Twice as Fast</translation>
    </message>
    <message id="Original Speed">
        <source>Original Speed</source>
        <translation>Original Speed</translation>
    </message>
    <message id="Slower and faster, the pitch kept; half and twice as fast">
        <source>Slower and faster, the pitch kept; half and twice as fast</source>
        <translation>Slower and faster, the pitch kept; half and twice as fast</translation>
    </message>
    <message id="As fast as the movie was made">
        <source>As fast as the movie was made</source>
        <translation>As fast as the movie was made</translation>
    </message>
    <message id="Chapters">
        <source>Chapters</source>
        <translation>Chapters</translation>
    </message>
    <message id="No Chapters">
        <source>No Chapters</source>
        <translation>No Chapters</translation>
    </message>
    <message id="Chapter %d of %d">
        <source>Chapter %d of %d</source>
        <translation>Chapter %d of %d</translation>
    </message>
    <message id="Chapter %d of %d: %@">
        <source>Chapter %d of %d: %@</source>
        <translation>Chapter %d of %d: %@</translation>
    </message>
    <message id="Next Chapter">
        <source>Next Chapter</source>
        <translation>Next Chapter</translation>
    </message>
    <message id="Previous Chapter">
        <source>Previous Chapter</source>
        <translation>Previous Chapter</translation>
    </message>
    <message id="Next and previous chapter">
        <source>Next and previous chapter</source>
        <translation>Next and previous chapter</translation>
    </message>
    <message id="Save Still">
        <source>Save Still</source>
        <translation>Save Still</translation>
    </message>
    <message id="Save the picture as a file">
        <source>Save the picture as a file</source>
        <translation>Save the picture as a file</translation>
    </message>
    <message id="Still: %@">
        <source>Still: %@</source>
        <translation>Still: %@</translation>
    </message>
    <message id="No Picture to Save">
        <source>No Picture to Save</source>
        <translation>No Picture to Save</translation>
    </message>
    <message id="Can’t save the still in %@">
        <source>Can’t save the still in %@</source>
        <translation>Can’t save the still in %@</translation>
    </message>
    <message id="Go to Time">
        <source>Go to Time</source>
        <translation>Go to Time</translation>
    </message>
    <message id="Go to Time...">
        <source>Go to Time...</source>
        <translation>Go to Time...</translation>
    </message>
    <message id="Go to a time">
        <source>Go to a time</source>
        <translation>Go to a time</translation>
    </message>
    <message id="Time in the movie:">
        <source>Time in the movie:</source>
        <translation>Time in the movie:</translation>
    </message>
    <message id="Time in the movie, up to %@:">
        <source>Time in the movie, up to %@:</source>
        <translation>Time in the movie, up to %@:</translation>
    </message>
    <message id="Seconds, minutes or hours: 90, 1:30 or 1:23:45.6">
        <source>Seconds, minutes or hours: 90, 1:30 or 1:23:45.6</source>
        <translation>Seconds, minutes or hours: 90, 1:30 or 1:23:45.6</translation>
    </message>
    <message id="Time: %@">
        <source>Time: %@</source>
        <translation>Time: %@</translation>
    </message>
    <message id="Repeat Section">
        <source>Repeat Section</source>
        <translation>Repeat Section</translation>
    </message>
    <message id="Repeat from Here">
        <source>Repeat from Here</source>
        <translation>Repeat from Here</translation>
    </message>
    <message id="Repeat until Here">
        <source>Repeat until Here</source>
        <translation>Repeat until Here</translation>
    </message>
    <message id="Repeat a section: its beginning, its end, no more">
        <source>Repeat a section: its beginning, its end, no more</source>
        <translation>Repeat a section: its beginning, its end, no more</translation>
    </message>
    <message id="Repeat: Off">
        <source>Repeat: Off</source>
        <translation>Repeat: Off</translation>
    </message>
    <message id="Repeat from %@">
        <source>Repeat from %@</source>
        <translation>Repeat from %@</translation>
    </message>
    <message id="Repeat: %@ – %@">
        <source>Repeat: %@ – %@</source>
        <translation>Repeat: %@ – %@</translation>
    </message>
    <message id="Aspect">
        <source>Aspect</source>
        <translation>Aspect</translation>
    </message>
    <message id="Next Aspect">
        <source>Next Aspect</source>
        <translation>Next Aspect</translation>
    </message>
    <message id="Aspect: automatic, 4:3, 16:9, 2.35:1">
        <source>Aspect: automatic, 4:3, 16:9, 2.35:1</source>
        <translation>Aspect: automatic, 4:3, 16:9, 2.35:1</translation>
    </message>
    <message id="Aspect: %@">
        <source>Aspect: %@</source>
        <translation>Aspect: %@</translation>
    </message>
    <message id="2.35:1">
        <source>2.35:1</source>
        <translation>2.35:1</translation>
    </message>
    <message id="Deinterlacing">
        <source>Deinterlacing</source>
        <translation>Deinterlacing</translation>
    </message>
    <message id="Next Deinterlacing">
        <source>Next Deinterlacing</source>
        <translation>Next Deinterlacing</translation>
    </message>
    <message id="Deinterlacing: automatic, on, off">
        <source>Deinterlacing: automatic, on, off</source>
        <translation>Deinterlacing: automatic, on, off</translation>
    </message>
    <message id="Deinterlacing: %@">
        <source>Deinterlacing: %@</source>
        <translation>Deinterlacing: %@</translation>
    </message>
    <message id="Picture Colors">
        <source>Picture Colors</source>
        <translation>Picture Colors</translation>
    </message>
    <message id="Less Contrast">
        <source>Less Contrast</source>
        <translation>Less Contrast</translation>
    </message>
    <message id="More Contrast">
        <source>More Contrast</source>
        <translation>More Contrast</translation>
    </message>
    <message id="Darker">
        <source>Darker</source>
        <translation>Darker</translation>
    </message>
    <message id="Brighter">
        <source>Brighter</source>
        <translation>Brighter</translation>
    </message>
    <message id="Less Gamma">
        <source>Less Gamma</source>
        <translation>Less Gamma</translation>
    </message>
    <message id="More Gamma">
        <source>More Gamma</source>
        <translation>More Gamma</translation>
    </message>
    <message id="Less Saturation">
        <source>Less Saturation</source>
        <translation>Less Saturation</translation>
    </message>
    <message id="More Saturation">
        <source>More Saturation</source>
        <translation>More Saturation</translation>
    </message>
    <message id="Hue towards Red">
        <source>Hue towards Red</source>
        <translation>Hue towards Red</translation>
    </message>
    <message id="Hue towards Green">
        <source>Hue towards Green</source>
        <translation>Hue towards Green</translation>
    </message>
    <message id="Contrast, brightness, gamma, saturation, hue: less and more">
        <source>Contrast, brightness, gamma, saturation, hue: less and more</source>
        <translation>Contrast, brightness, gamma, saturation, hue: less and more</translation>
    </message>
    <message id="The colors as the movie has them">
        <source>The colors as the movie has them</source>
        <translation>The colors as the movie has them</translation>
    </message>
    <message id="Original Colors">
        <source>Original Colors</source>
        <translation>Original Colors</translation>
    </message>
    <message id="Contrast: %@">
        <source>Contrast: %@</source>
        <translation>Contrast: %@</translation>
    </message>
    <message id="Brightness: %@">
        <source>Brightness: %@</source>
        <translation>Brightness: %@</translation>
    </message>
    <message id="Gamma: %@">
        <source>Gamma: %@</source>
        <translation>Gamma: %@</translation>
    </message>
    <message id="Saturation: %@">
        <source>Saturation: %@</source>
        <translation>Saturation: %@</translation>
    </message>
    <message id="Hue: %@">
        <source>Hue: %@</source>
        <translation>Hue: %@</translation>
    </message>
    <message id="Crop Black Bars">
        <source>Crop Black Bars</source>
        <translation>Crop Black Bars</translation>
    </message>
    <message id="Cut black bars off">
        <source>Cut black bars off</source>
        <translation>Cut black bars off</translation>
    </message>
    <message id="Crop: On">
        <source>Crop: On</source>
        <translation>Crop: On</translation>
    </message>
    <message id="Crop: Off">
        <source>Crop: Off</source>
        <translation>Crop: Off</translation>
    </message>
    <message id="No Black Bars">
        <source>No Black Bars</source>
        <translation>No Black Bars</translation>
    </message>
    <message id="Turn by 90°">
        <source>Turn by 90°</source>
        <translation>Turn by 90°</translation>
    </message>
    <message id="Turn and mirror the picture">
        <source>Turn and mirror the picture</source>
        <translation>Turn and mirror the picture</translation>
    </message>
    <message id="Turned by %d°">
        <source>Turned by %d°</source>
        <translation>Turned by %d°</translation>
    </message>
    <message id="Mirror">
        <source>Mirror</source>
        <translation>Mirror</translation>
    </message>
    <message id="Mirror: On">
        <source>Mirror: On</source>
        <translation>Mirror: On</translation>
    </message>
    <message id="Mirror: Off">
        <source>Mirror: Off</source>
        <translation>Mirror: Off</translation>
    </message>
</context>
<context>
    <name>Tracks</name>
    <message id="Audio Tracks">
        <source>Audio Tracks</source>
        <translation>Audio Tracks</translation>
    </message>
    <message id="Audio: %@">
        <source>Audio: %@</source>
        <translation>Audio: %@</translation>
    </message>
    <message id="Next Audio Track">
        <source>Next Audio Track</source>
        <translation>Next Audio Track</translation>
    </message>
    <message id="Previous Audio Track">
        <source>Previous Audio Track</source>
        <translation>Previous Audio Track</translation>
    </message>
    <message id="Next and previous audio track">
        <source>Next and previous audio track</source>
        <translation>Next and previous audio track</translation>
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
        <translation>%d channels</translation>
    </message>
    <message id="Track %d">
        <source>Track %d</source>
        <translation>Track %d</translation>
    </message>
    <message id="forced">
        <source>forced</source>
        <translation>forced</translation>
    </message>
    <message id="Second Subtitles">
        <source>Second Subtitles</source>
        <translation>Second Subtitles</translation>
    </message>
    <message id="Next Second Subtitles">
        <source>Next Second Subtitles</source>
        <translation>Next Second Subtitles</translation>
    </message>
    <message id="Second subtitles: %@">
        <source>Second subtitles: %@</source>
        <translation>Second subtitles: %@</translation>
    </message>
    <message id="Second subtitles at the top: next track, none">
        <source>Second subtitles at the top: next track, none</source>
        <translation>Second subtitles at the top: next track, none</translation>
    </message>
    <message id="SecondSubtitlesRefused">
        <source>Only texts can be shown as second subtitles, and no track twice</source>
        <translation>Only texts can be shown as second subtitles, and no track twice</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>Quality</translation>
    </message>
    <message id="Quality: %@">
        <source>Quality: %@</source>
        <translation>Quality: %@</translation>
    </message>
    <message id="Next Quality">
        <source>Next Quality</source>
        <translation>Next Quality</translation>
    </message>
    <message id="Next quality of a stream">
        <source>Next quality of a stream</source>
        <translation>Next quality of a stream</translation>
    </message>
    <message id="Only One Quality">
        <source>Only One Quality</source>
        <translation>Only One Quality</translation>
    </message>
    <message id="Go to Live">
        <source>Go to Live</source>
        <translation>Go to Live</translation>
    </message>
    <message id="Go to what is live now">
        <source>Go to what is live now</source>
        <translation>Go to what is live now</translation>
    </message>
    <message id="Not a Live Stream">
        <source>Not a Live Stream</source>
        <translation>Not a Live Stream</translation>
    </message>
    <message id="Live">
        <source>Live</source>
        <translation>Live</translation>
    </message>
    <message id="Behind Live">
        <source>Behind Live</source>
        <translation>Behind Live</translation>
    </message>
    <message id="Reconnecting...">
        <source>Reconnecting...</source>
        <translation>Reconnecting...</translation>
    </message>
    <message id="Connection Lost">
        <source>Connection Lost</source>
        <translation>Connection Lost</translation>
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
        <translation>Show or hide the information about the movie</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>Copy</translation>
    </message>
    <message id="No movie">
        <source>No movie</source>
        <translation>No movie</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>Name</translation>
    </message>
    <message id="Container">
        <source>Container</source>
        <translation>Container</translation>
    </message>
    <message id="Duration">
        <source>Duration</source>
        <translation>Duration</translation>
    </message>
    <message id="File size">
        <source>File size</source>
        <translation>File size</translation>
    </message>
    <message id="Bit rate">
        <source>Bit rate</source>
        <translation>Bit rate</translation>
    </message>
    <message id="Sound">
        <source>Sound</source>
        <translation>Sound</translation>
    </message>
    <message id="Tracks">
        <source>Tracks</source>
        <translation>Tracks</translation>
    </message>
    <message id="Frames">
        <source>Frames</source>
        <translation>Frames</translation>
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
        <translation>Decoder</translation>
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
        <translation>Size</translation>
    </message>
    <message id="%@, displayed as %@">
        <source>%@, displayed as %@</source>
        <translation>%@, displayed as %@</translation>
    </message>
    <message id="Frame rate">
        <source>Frame rate</source>
        <translation>Frame rate</translation>
    </message>
    <message id="%@ a second">
        <source>%@ a second</source>
        <translation>%@ a second</translation>
    </message>
    <message id="%@ a second, now %@">
        <source>%@ a second, now %@</source>
        <translation>%@ a second, now %@</translation>
    </message>
    <message id="Dynamic range">
        <source>Dynamic range</source>
        <translation>Dynamic range</translation>
    </message>
    <message id="Standard">
        <source>Standard</source>
        <translation>Standard</translation>
    </message>
    <message id="Color">
        <source>Color</source>
        <translation>Color</translation>
    </message>
    <message id="Channels">
        <source>Channels</source>
        <translation>Channels</translation>
    </message>
    <message id="Sample rate">
        <source>Sample rate</source>
        <translation>Sample rate</translation>
    </message>
    <message id="Output">
        <source>Output</source>
        <translation>Output</translation>
    </message>
    <message id="%@ (playing)">
        <source>%@ (playing)</source>
        <translation>%@ (playing)</translation>
    </message>
    <message id="Subtitles shown">
        <source>Subtitles shown</source>
        <translation>Subtitles shown</translation>
    </message>
    <message id="Shown">
        <source>Shown</source>
        <translation>Shown</translation>
    </message>
    <message id="Late">
        <source>Late</source>
        <translation>Late</translation>
    </message>
    <message id="Left out">
        <source>Left out</source>
        <translation>Left out</translation>
    </message>
    <message id="Ready">
        <source>Ready</source>
        <translation>Ready</translation>
    </message>
    <message id="%@ s">
        <source>%@ s</source>
        <translation>%@ s</translation>
    </message>
    <message id="Filling">
        <source>Filling</source>
        <translation>Filling</translation>
    </message>
</context>
</TS>
