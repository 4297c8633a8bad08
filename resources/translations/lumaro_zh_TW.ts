<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_TW">
<context>
    <name>Alerts</name>
    <message id="QTUnableToOpenFileError">
        <source>“%@” can’t be opened.</source>
        <translation>無法開啟「%@」。</translation>
    </message>
    <message id="QTUnableToOpenFileDetails">
        <source>The file is missing, damaged, or of a kind that Lumaro doesn’t know (error %d).</source>
        <translation>檔案不存在、已損壞，或是 Lumaro 不支援的類型（錯誤 %d）。</translation>
    </message>
    <message id="QTUnableToPlayFileError">
        <source>“%@” may not play as it should.</source>
        <translation>「%@」可能無法正常播放。</translation>
    </message>
    <message id="QTUnableToPlayFileDetails">
        <source>Parts of the movie can’t be decoded (error %d). Choose Continue to try it anyway.</source>
        <translation>影片的某些部分無法解碼（錯誤 %d）。選擇「繼續」可以仍然嘗試播放。</translation>
    </message>
    <message id="NoPlayableMoviesInListMessage">
        <source>There is nothing to play.</source>
        <translation>沒有可以播放的內容。</translation>
    </message>
    <message id="NoPlayableMoviesInListDetails">
        <source>None of the files that were given is a movie that Lumaro can play. You can choose others.</source>
        <translation>指定的檔案中沒有 Lumaro 可以播放的影片。您可以選擇其他檔案。</translation>
    </message>
    <message id="OpenErrorMissing">
        <source>The file doesn’t exist.</source>
        <translation>檔案不存在。</translation>
    </message>
    <message id="OpenErrorEmpty">
        <source>The file is empty.</source>
        <translation>檔案是空的。</translation>
    </message>
    <message id="OpenErrorNotAFile">
        <source>It is a folder or a device, not a file.</source>
        <translation>這是資料夾或裝置，不是檔案。</translation>
    </message>
    <message id="OpenErrorPermission">
        <source>You aren’t allowed to read the file.</source>
        <translation>您沒有讀取這個檔案的權限。</translation>
    </message>
    <message id="OpenErrorNotAMovie">
        <source>It isn’t a movie that Lumaro can play.</source>
        <translation>這不是 Lumaro 可以播放的影片。</translation>
    </message>
    <message id="OpenErrorTimeout">
        <source>No answer came in time.</source>
        <translation>等候回應逾時。</translation>
    </message>
    <message id="OpenErrorLibraries">
        <source>The libraries that open movies are missing.</source>
        <translation>缺少開啟影片所需的函式庫。</translation>
    </message>
    <message id="OpenErrorScheme">
        <source>Lumaro doesn’t know addresses of this kind.</source>
        <translation>Lumaro 不支援這種位址。</translation>
    </message>
    <message id="OpenErrorUnknownHost">
        <source>There is no server of that name, or no connection to the network.</source>
        <translation>沒有這個名稱的伺服器，或是沒有網路連線。</translation>
    </message>
    <message id="OpenErrorUnreachable">
        <source>The server can’t be reached.</source>
        <translation>無法連線到伺服器。</translation>
    </message>
    <message id="OpenErrorRefused">
        <source>The server refused the connection.</source>
        <translation>伺服器拒絕連線。</translation>
    </message>
    <message id="OpenErrorConnection">
        <source>The connection to the server broke off.</source>
        <translation>與伺服器的連線已中斷。</translation>
    </message>
    <message id="OpenErrorRanges">
        <source>The server sends files only from their beginning, and what is needed first stands at this movie’s end. Download it to play it.</source>
        <translation>伺服器只能從頭傳送檔案，而最先需要的資料位於這部影片的結尾。請先下載再播放。</translation>
    </message>
    <message id="OpenErrorLogin">
        <source>The server asks for a name and a password (401).</source>
        <translation>伺服器要求使用者名稱與密碼 (401)。</translation>
    </message>
    <message id="OpenErrorForbidden">
        <source>The server doesn’t allow it (403).</source>
        <translation>伺服器不允許存取 (403)。</translation>
    </message>
    <message id="OpenErrorNotFound">
        <source>The server has no such file (404).</source>
        <translation>伺服器上沒有這個檔案 (404)。</translation>
    </message>
    <message id="OpenErrorRejected">
        <source>The server rejected the request.</source>
        <translation>伺服器拒絕了要求。</translation>
    </message>
    <message id="OpenErrorServer">
        <source>The server answered with an error of its own.</source>
        <translation>伺服器本身發生錯誤。</translation>
    </message>
    <message id="OpenErrorNoMovies">
        <source>There is no movie in this folder.</source>
        <translation>這個資料夾中沒有影片。</translation>
    </message>
    <message id="OpenErrorNotAList">
        <source>The file is not a playlist.</source>
        <translation>這個檔案不是播放清單。</translation>
    </message>
    <message id="OpenErrorListEmpty">
        <source>The playlist names no movies.</source>
        <translation>播放清單中沒有影片。</translation>
    </message>
    <message id="OpenErrorListTooLarge">
        <source>The playlist is larger than 32 MB.</source>
        <translation>播放清單超過 32 MB。</translation>
    </message>
    <message id="OpenErrorListTooLong">
        <source>The playlist is too long. Only its first 100,000 entries were opened.</source>
        <translation>播放清單太長，只開啟了前 100,000 個項目。</translation>
    </message>
    <message id="OpenErrorListTooDeep">
        <source>Too many playlists name each other. This one was left out.</source>
        <translation>互相參照的播放清單太多，已略過這一份。</translation>
    </message>
    <message id="OpenErrorListDrives">
        <source>Entries on drives of Windows were left out (%@): %@.</source>
        <translation>已略過位於 Windows 磁碟機上的項目 (%@)：%@。</translation>
    </message>
    <message id="OpenErrorListLocal">
        <source>The playlist comes from a network. Entries that name files of this computer were left out (%@): %@.</source>
        <translation>播放清單來自網路，已略過指向這部電腦檔案的項目 (%@)：%@。</translation>
    </message>
    <message id="OpenErrorListNothing">
        <source>Entries that name neither a file nor an address were left out (%@): %@.</source>
        <translation>已略過既不是檔案也不是位址的項目 (%@)：%@。</translation>
    </message>
    <message id="OpenErrorFolders">
        <source>Folders that may not be read (%@): %@.</source>
        <translation>不允許讀取的資料夾 (%@)：%@。</translation>
    </message>
    <message id="UnreadableFoldersMessage">
        <source>Not everything could be searched.</source>
        <translation>有些位置無法搜尋。</translation>
    </message>
    <message id="AndMoreMessage">
        <source>… and %@ more.</source>
        <translation>… 還有 %@ 個。</translation>
    </message>
    <message id="UnableToOpenLine">
        <source>“%@”: %@ (%@)</source>
        <translation>「%@」：%@ (%@)</translation>
    </message>
    <message id="UnableToOpenFilesMessage">
        <source>%@ files can’t be opened.</source>
        <translation>%@ 個檔案無法開啟。</translation>
    </message>
    <message id="UnableToPlayFilesMessage">
        <source>%@ movies may not play as they should.</source>
        <translation>%@ 部影片可能無法正常播放。</translation>
    </message>
    <message id="NoMoviesInFoldersDetails">
        <source>There is no movie that Lumaro can play in:</source>
        <translation>下列位置沒有 Lumaro 可以播放的影片：</translation>
    </message>
    <message id="Buffering: %d %%">
        <source>Buffering: %d %%</source>
        <translation>正在緩衝：%d %%</translation>
    </message>
    <message id="Stalled: No Data from the Server">
        <source>Stalled: no data from the server</source>
        <translation>已停滯：伺服器沒有傳來資料</translation>
    </message>
    <message id="Loading: %@">
        <source>Loading: %@</source>
        <translation>正在載入：%@</translation>
    </message>
    <message id="ResumedAt">
        <source>Resumed at %@
%@: From the Beginning</source>
        <translation>從 %@ 繼續播放
%@：從頭播放</translation>
    </message>
    <message id="Looking for Movies: %@">
        <source>Looking for movies: %@</source>
        <translation>正在尋找影片：%@</translation>
    </message>
    <message id="FilesFoundMessage" numerus="yes">
        <source>%@ file found…</source>
        <translation>
            <numerusform>找到 %@ 個檔案…</numerusform>
        </translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>確定</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>繼續</translation>
    </message>
    <message id="Open...">
        <source>Open...</source>
        <translation>開啟…</translation>
    </message>
    <message id="Open Recent">
        <source>Open Recent</source>
        <translation>最近開啟</translation>
    </message>
    <message id="ClearRecent">
        <source>Clear Menu and Forget Places</source>
        <translation>清除選單並忘記播放位置</translation>
    </message>
    <message id="Open">
        <source>Open</source>
        <translation>開啟</translation>
    </message>
    <message id="ConfigureCheckForNewVersionMessage">
        <source>Look for new versions?</source>
        <translation>要檢查新版本嗎？</translation>
    </message>
    <message id="ConfigureCheckForNewVersionDetails">
        <source>Lumaro can look from time to time whether a newer version exists. Nothing about you or your movies is sent. You can change this in the preferences.</source>
        <translation>Lumaro 可以不時檢查是否有新版本。不會傳送任何關於您或您的影片的資訊。您可以在偏好設定中變更。</translation>
    </message>
    <message id="CheckNewVersionFailedMessage">
        <source>Looking for a new version failed.</source>
        <translation>檢查新版本失敗。</translation>
    </message>
    <message id="CheckNewVersionFailedDetails">
        <source>None of the sites could be reached. Check the connection to the internet, or try again later.</source>
        <translation>無法連線到任何網站。請檢查網際網路連線，或稍後再試。</translation>
    </message>
    <message id="YouHaveLatestVersionMessage">
        <source>Lumaro is up to date.</source>
        <translation>Lumaro 已是最新版本。</translation>
    </message>
    <message id="YouHaveLatestVersionDetails">
        <source>You have the latest version.</source>
        <translation>您使用的是最新版本。</translation>
    </message>
    <message id="NewVersionAvailableMessage">
        <source>A newer version of Lumaro is available.</source>
        <translation>Lumaro 有新版本可用。</translation>
    </message>
    <message id="NewVersionAvailableDetails">
        <source>%@ version %@ can be downloaded now.</source>
        <translation>現在可以下載%@版本 %@。</translation>
    </message>
    <message id="Download Now...">
        <source>&amp;Download Now...</source>
        <translation>立即下載(&amp;D)…</translation>
    </message>
    <message id="Skip Version">
        <source>&amp;Skip Version</source>
        <translation>略過這個版本(&amp;S)</translation>
    </message>
    <message id="Later">
        <source>Later</source>
        <translation>稍後</translation>
    </message>
    <message id="AskDonationMessage">
        <source>Do you enjoy Lumaro?</source>
        <translation>您喜歡 Lumaro 嗎？</translation>
    </message>
    <message id="AskDonationDetails">
        <source>Lumaro is free. A donation helps to keep it alive.</source>
        <translation>Lumaro 是免費的。您的贊助能幫助它繼續發展。</translation>
    </message>
    <message id="Donate...">
        <source>Donate...</source>
        <translation>贊助…</translation>
    </message>
</context>
<context>
    <name>Version check</name>
    <message id="Up to date">
        <source>Up to date</source>
        <translation>已是最新版本</translation>
    </message>
    <message id="Newer %@ version %@ available">
        <source>Newer %@ version %@ available</source>
        <translation>有新的%@版本 %@ 可用</translation>
    </message>
    <message id="Failed to reach all mirror sites">
        <source>Failed to reach all mirror sites</source>
        <translation>無法連線到任何鏡像站</translation>
    </message>
    <message id="Release">
        <source>Release</source>
        <translation>正式</translation>
    </message>
    <message id="Beta">
        <source>Beta</source>
        <translation>測試</translation>
    </message>
    <message id="Checking now...">
        <source>Checking now...</source>
        <translation>正在檢查…</translation>
    </message>
    <message id="Unknown">
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message id="Never">
        <source>Never</source>
        <translation>從未</translation>
    </message>
</context>
<context>
    <name>Feedback and on-screen display</name>
    <message id="Movie: Play">
        <source>Movie: Play</source>
        <translation>播放</translation>
    </message>
    <message id="Movie: Pause">
        <source>Movie: Pause</source>
        <translation>暫停</translation>
    </message>
    <message id="Movie: Stop">
        <source>Movie: Stop</source>
        <translation>停止</translation>
    </message>
    <message id="Movie: Beginning">
        <source>Movie: Beginning</source>
        <translation>開頭</translation>
    </message>
    <message id="Movie: End">
        <source>Movie: End</source>
        <translation>結尾</translation>
    </message>
    <message id="Fast Forward x%d">
        <source>Fast Forward x%d</source>
        <translation>快轉 ×%d</translation>
    </message>
    <message id="Fast Rewind x%d">
        <source>Fast Rewind x%d</source>
        <translation>倒轉 ×%d</translation>
    </message>
    <message id="Jump Forward %d s">
        <source>Jump Forward %d s</source>
        <translation>前進 %d 秒</translation>
    </message>
    <message id="Jump Backward %d s">
        <source>Jump Backward %d s</source>
        <translation>後退 %d 秒</translation>
    </message>
    <message id="Step Forward">
        <source>Step Forward</source>
        <translation>下一格</translation>
    </message>
    <message id="Step Backward">
        <source>Step Backward</source>
        <translation>上一格</translation>
    </message>
    <message id="Next: %@">
        <source>Next: %@</source>
        <translation>下一個：%@</translation>
    </message>
    <message id="Previous: %@">
        <source>Previous: %@</source>
        <translation>上一個：%@</translation>
    </message>
    <message id="Screen: Next">
        <source>Screen: Next</source>
        <translation>下一個螢幕</translation>
    </message>
    <message id="Screen: Previous">
        <source>Screen: Previous</source>
        <translation>上一個螢幕</translation>
    </message>
    <message id="Quit">
        <source>Quit</source>
        <translation>結束</translation>
    </message>
    <message id="Sleep">
        <source>Sleep</source>
        <translation>睡眠</translation>
    </message>
    <message id="Restart the Computer">
        <source>Restart the Computer</source>
        <translation>重新啟動電腦</translation>
    </message>
    <message id="Shut Down the Computer">
        <source>Shut Down the Computer</source>
        <translation>將電腦關機</translation>
    </message>
    <message id="Log Out">
        <source>Log Out</source>
        <translation>登出</translation>
    </message>
    <message id="Restart failed: %@">
        <source>Restart failed: %@</source>
        <translation>重新啟動失敗：%@</translation>
    </message>
    <message id="Shutting down failed: %@">
        <source>Shutting down failed: %@</source>
        <translation>關機失敗：%@</translation>
    </message>
    <message id="Logging out failed: %@">
        <source>Logging out failed: %@</source>
        <translation>登出失敗：%@</translation>
    </message>
    <message id="KeyName Space">
        <source>Space</source>
        <translation>空白鍵</translation>
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
        <translation>媒體播放鍵</translation>
    </message>
    <message id="KeyName Media Stop">
        <source>Media Stop</source>
        <translation>媒體停止鍵</translation>
    </message>
    <message id="KeyName Media Next">
        <source>Media Next</source>
        <translation>媒體下一個鍵</translation>
    </message>
    <message id="KeyName Media Previous">
        <source>Media Previous</source>
        <translation>媒體上一個鍵</translation>
    </message>
    <message id="KeyName Media Volume Up">
        <source>Media Volume Up</source>
        <translation>媒體提高音量鍵</translation>
    </message>
    <message id="KeyName Media Volume Down">
        <source>Media Volume Down</source>
        <translation>媒體降低音量鍵</translation>
    </message>
    <message id="KeyName Media Mute">
        <source>Media Mute</source>
        <translation>媒體靜音鍵</translation>
    </message>
    <message id="Sleep failed: %@">
        <source>Sleep failed: %@</source>
        <translation>睡眠失敗：%@</translation>
    </message>
    <message id="Size: Half">
        <source>Size: Half</source>
        <translation>大小：一半</translation>
    </message>
    <message id="Size: Normal">
        <source>Size: Normal</source>
        <translation>大小：原始</translation>
    </message>
    <message id="Size: Double">
        <source>Size: Double</source>
        <translation>大小：兩倍</translation>
    </message>
    <message id="Size: Full">
        <source>Size: Full</source>
        <translation>大小：全螢幕</translation>
    </message>
    <message id="Size: Fit Width">
        <source>Size: Fit Width</source>
        <translation>大小：符合寬度</translation>
    </message>
    <message id="Size: Fit Height">
        <source>Size: Fit Height</source>
        <translation>大小：符合高度</translation>
    </message>
    <message id="Size: Bigger">
        <source>Size: Bigger</source>
        <translation>大小：放大</translation>
    </message>
    <message id="Size: Smaller">
        <source>Size: Smaller</source>
        <translation>大小：縮小</translation>
    </message>
    <message id="Controller: On">
        <source>Controller: On</source>
        <translation>控制列：開</translation>
    </message>
    <message id="Controller: Off">
        <source>Controller: Off</source>
        <translation>控制列：關</translation>
    </message>
    <message id="Volume: %@">
        <source>Volume: %@</source>
        <translation>音量：%@</translation>
    </message>
    <message id="Mute: %@">
        <source>Mute: %@</source>
        <translation>靜音：%@</translation>
    </message>
    <message id="Muted">
        <source>Muted</source>
        <translation>已靜音</translation>
    </message>
    <message id="On">
        <source>On</source>
        <translation>開</translation>
    </message>
    <message id="Off">
        <source>Off</source>
        <translation>關</translation>
    </message>
    <message id="%d%%">
        <source>%d%%</source>
        <translation>%d%%</translation>
    </message>
    <message id="Time: %@/%@">
        <source>Time: %@/%@</source>
        <translation>時間：%@ / %@</translation>
    </message>
    <message id="Movie: %@">
        <source>Movie: %@</source>
        <translation>影片：%@</translation>
    </message>
    <message id="Loop: %@">
        <source>Loop: %@</source>
        <translation>循環播放：%@</translation>
    </message>
    <message id="One">
        <source>One</source>
        <translation>單部</translation>
    </message>
    <message id="All">
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message id="None">
        <source>None</source>
        <translation>無</translation>
    </message>
    <message id="Subtitles: %@">
        <source>Subtitles: %@</source>
        <translation>字幕：%@</translation>
    </message>
    <message id="Repair: On">
        <source>Repair: On</source>
        <translation>修復：開</translation>
    </message>
    <message id="Repair: Off">
        <source>Repair: Off</source>
        <translation>修復：關</translation>
    </message>
    <message id="SubtitleLinesLost" numerus="yes">
        <source>%d line of it can’t be read.</source>
        <translation>
            <numerusform>其中 %d 行無法讀取。</numerusform>
        </translation>
    </message>
    <message id="SubtitlePicturesLost" numerus="yes">
        <source>%d picture of it can’t be read.</source>
        <translation>
            <numerusform>其中 %d 張圖片無法讀取。</numerusform>
        </translation>
    </message>
    <message id="SubtitleRepairMayHelp">
        <source>Repair (Subtitles menu) may help.</source>
        <translation>「修復」（字幕選單）或許有幫助。</translation>
    </message>
    <message id="Style">
        <source>Style</source>
        <translation>樣式</translation>
    </message>
    <message id="Automatic">
        <source>Automatic</source>
        <translation>自動</translation>
    </message>
</context>
<context>
    <name>Empty player</name>
    <message id="Press %@ to open a movie">
        <source>Press %@ to open a movie</source>
        <translation>按 %@ 開啟影片</translation>
    </message>
    <message id="or drop files here. %@ shows all keys.">
        <source>or drop files here. %@ shows all keys.</source>
        <translation>或將檔案拖放到這裡。按 %@ 顯示所有按鍵。</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message id="File">
        <source>File</source>
        <translation>檔案</translation>
    </message>
    <message id="Movie">
        <source>Movie</source>
        <translation>影片</translation>
    </message>
    <message id="Playback">
        <source>Playback</source>
        <translation>播放</translation>
    </message>
    <message id="Volume">
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message id="Playlist">
        <source>Playlist</source>
        <translation>播放清單</translation>
    </message>
    <message id="Subtitles">
        <source>Subtitles</source>
        <translation>字幕</translation>
    </message>
    <message id="Window">
        <source>Window</source>
        <translation>視窗</translation>
    </message>
    <message id="HelpIntroduction">
        <source>Type what you look for. Every command also stands in the menu: at the top edge of the screen, or under the right mouse button.</source>
        <translation>輸入您要找的內容。每個指令也都在選單中：螢幕頂端的選單，或滑鼠右鍵選單。</translation>
    </message>
    <message id="What do you want to do?">
        <source>What do you want to do?</source>
        <translation>您想做什麼？</translation>
    </message>
    <message id="No command holds these words.">
        <source>No command holds these words.</source>
        <translation>沒有包含這些字詞的指令。</translation>
    </message>
    <message id="Watch and move through the movie">
        <source>Watch and move through the movie</source>
        <translation>觀看影片並在其中移動</translation>
    </message>
    <message id="Louder, softer, silent">
        <source>Louder, softer, silent</source>
        <translation>提高、降低音量，靜音</translation>
    </message>
    <message id="Read along">
        <source>Read along</source>
        <translation>閱讀字幕</translation>
    </message>
    <message id="See the picture larger, and what is playing">
        <source>See the picture larger, and what is playing</source>
        <translation>放大畫面，查看正在播放的內容</translation>
    </message>
    <message id="Choose among the movies">
        <source>Choose among the movies</source>
        <translation>選擇影片</translation>
    </message>
    <message id="Move to another screen">
        <source>Move to another screen</source>
        <translation>移到另一個螢幕</translation>
    </message>
    <message id="Open, set up and quit">
        <source>Open, set up and quit</source>
        <translation>開啟、設定與結束</translation>
    </message>
    <message id="Find help">
        <source>Find help</source>
        <translation>取得說明</translation>
    </message>
    <message id="Help">
        <source>Help</source>
        <translation>說明</translation>
    </message>
    <message id="Open URL...">
        <source>Open URL...</source>
        <translation>開啟 URL…</translation>
    </message>
    <message id="Open URLs...">
        <source>Open URLs...</source>
        <translation>開啟多個 URL…</translation>
    </message>
    <message id="Save Playlist...">
        <source>Save Playlist...</source>
        <translation>儲存播放清單…</translation>
    </message>
    <message id="Save Playlist">
        <source>Save Playlist</source>
        <translation>儲存播放清單</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>儲存</translation>
    </message>
    <message id="Playlist File">
        <source>Playlist</source>
        <translation>播放清單</translation>
    </message>
    <message id="Save the playlist to a file">
        <source>Save the playlist to a file</source>
        <translation>將播放清單儲存為檔案</translation>
    </message>
    <message id="SaveErrorMessage">
        <source>“%@” can’t be saved.</source>
        <translation>無法儲存「%@」。</translation>
    </message>
    <message id="SaveErrorPermission">
        <source>You don’t have the permission to write there.</source>
        <translation>您沒有寫入該處的權限。</translation>
    </message>
    <message id="SaveErrorReadOnly">
        <source>The disk can’t be written to.</source>
        <translation>無法寫入磁碟。</translation>
    </message>
    <message id="SaveErrorFull">
        <source>The disk is full.</source>
        <translation>磁碟已滿。</translation>
    </message>
    <message id="SaveErrorFolder">
        <source>The folder doesn’t exist.</source>
        <translation>資料夾不存在。</translation>
    </message>
    <message id="SaveErrorIsFolder">
        <source>This is a folder.</source>
        <translation>這是資料夾。</translation>
    </message>
    <message id="Preferences...">
        <source>Preferences...</source>
        <translation>偏好設定…</translation>
    </message>
    <message id="About Lumaro">
        <source>About Lumaro</source>
        <translation>關於 Lumaro</translation>
    </message>
    <message id="Check for New Version...">
        <source>Check for New Version...</source>
        <translation>檢查新版本…</translation>
    </message>
    <message id="Half Size">
        <source>Half Size</source>
        <translation>一半大小</translation>
    </message>
    <message id="Normal Size">
        <source>Normal Size</source>
        <translation>原始大小</translation>
    </message>
    <message id="Double Size">
        <source>Double Size</source>
        <translation>兩倍大小</translation>
    </message>
    <message id="Full Size">
        <source>Full Size</source>
        <translation>全螢幕</translation>
    </message>
    <message id="Fit Screen">
        <source>Fit Screen</source>
        <translation>符合螢幕</translation>
    </message>
    <message id="Fit Width">
        <source>Fit Width</source>
        <translation>符合寬度</translation>
    </message>
    <message id="Fit Height">
        <source>Fit Height</source>
        <translation>符合高度</translation>
    </message>
    <message id="Bigger">
        <source>Bigger</source>
        <translation>放大</translation>
    </message>
    <message id="Smaller">
        <source>Smaller</source>
        <translation>縮小</translation>
    </message>
    <message id="Show Controller">
        <source>Show Controller</source>
        <translation>顯示控制列</translation>
    </message>
    <message id="Bar over the Picture">
        <source>Bar over the Picture</source>
        <translation>畫面上的控制列</translation>
    </message>
    <message id="Bar over the picture: off, always, when the pointer moves">
        <source>Bar over the picture: off, always, when the pointer moves</source>
        <translation>畫面上的控制列：關、一律、指標移動時</translation>
    </message>
    <message id="Bar over the Picture: Off">
        <source>Bar over the Picture: Off</source>
        <translation>畫面上的控制列：關</translation>
    </message>
    <message id="Bar over the Picture: Always">
        <source>Bar over the Picture: Always</source>
        <translation>畫面上的控制列：一律</translation>
    </message>
    <message id="Bar over the Picture: When the Pointer Moves">
        <source>Bar over the Picture: When the Pointer Moves</source>
        <translation>畫面上的控制列：指標移動時</translation>
    </message>
    <message id="Tracks...">
        <source>Tracks...</source>
        <translation>軌道…</translation>
    </message>
    <message id="Sound and subtitles in one menu">
        <source>Sound and subtitles in one menu</source>
        <translation>在一個選單中選擇音訊與字幕</translation>
    </message>
    <message id="Audio">
        <source>Audio</source>
        <translation>音訊</translation>
    </message>
    <message id="Hide Controller">
        <source>Hide Controller</source>
        <translation>隱藏控制列</translation>
    </message>
    <message id="Next Display">
        <source>Next Display</source>
        <translation>下一個螢幕顯示</translation>
    </message>
    <message id="Previous Display">
        <source>Previous Display</source>
        <translation>上一個螢幕顯示</translation>
    </message>
    <message id="Play">
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message id="Pause">
        <source>Pause</source>
        <translation>暫停</translation>
    </message>
    <message id="Fast Forward">
        <source>Fast Forward</source>
        <translation>快轉</translation>
    </message>
    <message id="Rewind">
        <source>Rewind</source>
        <translation>倒轉</translation>
    </message>
    <message id="Jump Forward">
        <source>Jump Forward</source>
        <translation>向前跳轉</translation>
    </message>
    <message id="Jump Backward">
        <source>Jump Backward</source>
        <translation>向後跳轉</translation>
    </message>
    <message id="Beginning">
        <source>Beginning</source>
        <translation>開頭</translation>
    </message>
    <message id="End">
        <source>End</source>
        <translation>結尾</translation>
    </message>
    <message id="Next Movie">
        <source>Next Movie</source>
        <translation>下一部影片</translation>
    </message>
    <message id="Previous Movie">
        <source>Previous Movie</source>
        <translation>上一部影片</translation>
    </message>
    <message id="Looping Off">
        <source>Looping Off</source>
        <translation>不循環播放</translation>
    </message>
    <message id="Loop Off">
        <source>Loop Off</source>
        <translation>不循環播放</translation>
    </message>
    <message id="Loop One">
        <source>Loop One</source>
        <translation>循環播放單部</translation>
    </message>
    <message id="Loop All">
        <source>Loop All</source>
        <translation>循環播放全部</translation>
    </message>
    <message id="Repair">
        <source>Repair</source>
        <translation>修復</translation>
    </message>
    <message id="Volume Up">
        <source>Volume Up</source>
        <translation>提高音量</translation>
    </message>
    <message id="Volume Down">
        <source>Volume Down</source>
        <translation>降低音量</translation>
    </message>
    <message id="Normal Volume">
        <source>Normal Volume</source>
        <translation>標準音量</translation>
    </message>
    <message id="Silent">
        <source>Silent</source>
        <translation>最小音量</translation>
    </message>
    <message id="Mute">
        <source>Mute</source>
        <translation>靜音</translation>
    </message>
    <message id="Next Screen">
        <source>Next Screen</source>
        <translation>下一個螢幕</translation>
    </message>
    <message id="Previous Screen">
        <source>Previous Screen</source>
        <translation>上一個螢幕</translation>
    </message>
    <message id="More...">
        <source>More…</source>
        <translation>更多…</translation>
    </message>
    <message id="The whole list: search, move and remove movies">
        <source>The whole list: search, move and remove movies</source>
        <translation>完整清單：搜尋、移動與移除影片</translation>
    </message>
    <message id="Playlist Panel">
        <source>Playlist</source>
        <translation>播放清單</translation>
    </message>
    <message id="Filter">
        <source>Filter</source>
        <translation>篩選</translation>
    </message>
    <message id="Play Movie">
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message id="Move Up">
        <source>Move Up</source>
        <translation>上移</translation>
    </message>
    <message id="Move Down">
        <source>Move Down</source>
        <translation>下移</translation>
    </message>
    <message id="Remove from List">
        <source>Remove</source>
        <translation>移除</translation>
    </message>
    <message id="PlaylistCountMessage">
        <source>%@ of %@ movies</source>
        <translation>%@ / %@ 部影片</translation>
    </message>
    <message id="Lumaro Help">
        <source>Lumaro Help</source>
        <translation>Lumaro 說明</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="Open movies">
        <source>Open movies</source>
        <translation>開啟影片</translation>
    </message>
    <message id="Half, normal and double size">
        <source>Half, normal and double size</source>
        <translation>一半、原始與兩倍大小</translation>
    </message>
    <message id="Fit to the screen, to its width, to its height">
        <source>Fit to the screen, to its width, to its height</source>
        <translation>符合螢幕、寬度或高度</translation>
    </message>
    <message id="Bigger and smaller">
        <source>Bigger and smaller</source>
        <translation>放大與縮小</translation>
    </message>
    <message id="Controller bar">
        <source>Controller bar</source>
        <translation>控制列</translation>
    </message>
    <message id="On-screen display: time, movie, subtitles, looping, volume">
        <source>On-screen display: time, movie, subtitles, looping, volume</source>
        <translation>螢幕顯示：時間、影片、字幕、循環播放、音量</translation>
    </message>
    <message id="Play, pause, back to normal speed">
        <source>Play, pause, back to normal speed</source>
        <translation>播放、暫停、恢復正常速度</translation>
    </message>
    <message id="Forward and back: one frame while paused, faster and faster while playing">
        <source>Forward and back: one frame while paused, faster and faster while playing</source>
        <translation>前進與後退：暫停時逐格，播放時越來越快</translation>
    </message>
    <message id="Jump forward and back">
        <source>Jump forward and back</source>
        <translation>向前與向後跳轉</translation>
    </message>
    <message id="Beginning and end of the movie">
        <source>Beginning and end of the movie</source>
        <translation>影片的開頭與結尾</translation>
    </message>
    <message id="Next and previous movie">
        <source>Next and previous movie</source>
        <translation>下一部與上一部影片</translation>
    </message>
    <message id="Double Click">
        <source>Double Click</source>
        <translation>按兩下</translation>
    </message>
    <message id="Middle Button">
        <source>Middle Button</source>
        <translation>滑鼠中鍵</translation>
    </message>
    <message id="Back Button">
        <source>Back Button</source>
        <translation>上一頁鍵</translation>
    </message>
    <message id="Forward Button">
        <source>Forward Button</source>
        <translation>下一頁鍵</translation>
    </message>
    <message id="Wheel Up">
        <source>Wheel Up</source>
        <translation>滾輪向上</translation>
    </message>
    <message id="Wheel Down">
        <source>Wheel Down</source>
        <translation>滾輪向下</translation>
    </message>
    <message id="Looping: off, one, all">
        <source>Looping: off, one, all</source>
        <translation>循環播放：關、單部、全部</translation>
    </message>
    <message id="Louder and softer">
        <source>Louder and softer</source>
        <translation>提高與降低音量</translation>
    </message>
    <message id="Next and previous subtitles">
        <source>Next and previous subtitles</source>
        <translation>下一個與上一個字幕</translation>
    </message>
    <message id="Sound Earlier">
        <source>Sound Earlier</source>
        <translation>音訊提前</translation>
    </message>
    <message id="Sound Later">
        <source>Sound Later</source>
        <translation>音訊延後</translation>
    </message>
    <message id="Sound as in the File">
        <source>Sound as in the File</source>
        <translation>音訊與檔案一致</translation>
    </message>
    <message id="Sound earlier and later">
        <source>Sound earlier and later</source>
        <translation>音訊提前與延後</translation>
    </message>
    <message id="Sound at the times of the file">
        <source>Sound at the times of the file</source>
        <translation>音訊恢復檔案中的時間</translation>
    </message>
    <message id="Sound delay: %@">
        <source>Sound delay: %@</source>
        <translation>音訊延遲：%@</translation>
    </message>
    <message id="Add Subtitles...">
        <source>Add Subtitles...</source>
        <translation>加入字幕…</translation>
    </message>
    <message id="Add Subtitles">
        <source>Add Subtitles</source>
        <translation>加入字幕</translation>
    </message>
    <message id="Add a file of subtitles to the movie">
        <source>Add a file of subtitles to the movie</source>
        <translation>為影片加入字幕檔</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>加入</translation>
    </message>
    <message id="NoSubtitlesInFile">
        <source>“%@” holds no subtitles that can be read</source>
        <translation>「%@」中沒有可讀取的字幕</translation>
    </message>
    <message id="Add to the Movie as Subtitles">
        <source>Add to the Movie as Subtitles</source>
        <translation>作為字幕加入影片</translation>
    </message>
    <message id="Show Earlier">
        <source>Show Earlier</source>
        <translation>提前顯示</translation>
    </message>
    <message id="Show Later">
        <source>Show Later</source>
        <translation>延後顯示</translation>
    </message>
    <message id="As in the File">
        <source>As in the File</source>
        <translation>與檔案一致</translation>
    </message>
    <message id="Show Subtitles Earlier">
        <source>Show Subtitles Earlier</source>
        <translation>字幕提前</translation>
    </message>
    <message id="Show Subtitles Later">
        <source>Show Subtitles Later</source>
        <translation>字幕延後</translation>
    </message>
    <message id="Subtitles at the Times of Their File">
        <source>Subtitles at the Times of Their File</source>
        <translation>字幕恢復檔案中的時間</translation>
    </message>
    <message id="Subtitles earlier and later">
        <source>Subtitles earlier and later</source>
        <translation>字幕提前與延後</translation>
    </message>
    <message id="Subtitles at the times of their file">
        <source>Subtitles at the times of their file</source>
        <translation>字幕恢復檔案中的時間</translation>
    </message>
    <message id="First Line Is Spoken Now">
        <source>First Line Is Spoken Now</source>
        <translation>正在說第一行</translation>
    </message>
    <message id="Last Line Is Spoken Now">
        <source>Last Line Is Spoken Now</source>
        <translation>正在說最後一行</translation>
    </message>
    <message id="In step by two lines: press one while the first line is spoken, the other while the last one is">
        <source>In step by two lines: press one while the first line is spoken, the other while the last one is</source>
        <translation>用兩行同步：說到第一行時按一個鍵，說到最後一行時按另一個鍵</translation>
    </message>
    <message id="Larger Text">
        <source>Larger Text</source>
        <translation>放大文字</translation>
    </message>
    <message id="Smaller Text">
        <source>Smaller Text</source>
        <translation>縮小文字</translation>
    </message>
    <message id="Larger Subtitles">
        <source>Larger Subtitles</source>
        <translation>放大字幕</translation>
    </message>
    <message id="Smaller Subtitles">
        <source>Smaller Subtitles</source>
        <translation>縮小字幕</translation>
    </message>
    <message id="Subtitles larger and smaller">
        <source>Subtitles larger and smaller</source>
        <translation>放大與縮小字幕</translation>
    </message>
    <message id="Higher">
        <source>Higher</source>
        <translation>升高</translation>
    </message>
    <message id="Lower">
        <source>Lower</source>
        <translation>降低</translation>
    </message>
    <message id="Higher Subtitles">
        <source>Higher Subtitles</source>
        <translation>升高字幕</translation>
    </message>
    <message id="Lower Subtitles">
        <source>Lower Subtitles</source>
        <translation>降低字幕</translation>
    </message>
    <message id="Subtitles higher and lower">
        <source>Subtitles higher and lower</source>
        <translation>升高與降低字幕</translation>
    </message>
    <message id="Subtitle delay: %@">
        <source>Subtitle delay: %@</source>
        <translation>字幕延遲：%@</translation>
    </message>
    <message id="Subtitle size: %d">
        <source>Subtitle size: %d</source>
        <translation>字幕大小：%d</translation>
    </message>
    <message id="Subtitle height: %d">
        <source>Subtitle height: %d %</source>
        <translation>字幕高度：%d %</translation>
    </message>
    <message id="SubtitleLinesTooFar">
        <source>The lines cannot be brought in step: they would be more than twice as fast or as slow</source>
        <translation>無法同步：各行的速度會快或慢一倍以上</translation>
    </message>
    <message id="Repair damaged subtitles">
        <source>Repair damaged subtitles</source>
        <translation>修復損壞的字幕</translation>
    </message>
    <message id="Next and previous screen">
        <source>Next and previous screen</source>
        <translation>下一個與上一個螢幕</translation>
    </message>
</context>
<context>
    <name>Text encodings</name>
    <message id="Western (ASCII)">
        <source>Western (ASCII)</source>
        <translation>西歐語言 (ASCII)</translation>
    </message>
    <message id="Western (ISO Latin 1)">
        <source>Western (ISO Latin 1)</source>
        <translation>西歐語言 (ISO Latin 1)</translation>
    </message>
    <message id="Western (ISO Latin 9)">
        <source>Western (ISO Latin 9)</source>
        <translation>西歐語言 (ISO Latin 9)</translation>
    </message>
    <message id="Western (Windows Latin 1)">
        <source>Western (Windows Latin 1)</source>
        <translation>西歐語言 (Windows Latin 1)</translation>
    </message>
    <message id="Western (Mac OS Roman)">
        <source>Western (Mac OS Roman)</source>
        <translation>西歐語言 (Mac OS Roman)</translation>
    </message>
    <message id="Western (DOS Latin 1)">
        <source>Western (DOS Latin 1)</source>
        <translation>西歐語言 (DOS Latin 1)</translation>
    </message>
    <message id="Latin-US (DOS)">
        <source>Latin-US (DOS)</source>
        <translation>拉丁文-美國 (DOS)</translation>
    </message>
    <message id="Central European (ISO Latin 2)">
        <source>Central European (ISO Latin 2)</source>
        <translation>中歐語言 (ISO Latin 2)</translation>
    </message>
    <message id="Central European (Windows Latin 2)">
        <source>Central European (Windows Latin 2)</source>
        <translation>中歐語言 (Windows Latin 2)</translation>
    </message>
    <message id="Central European (Mac OS)">
        <source>Central European (Mac OS)</source>
        <translation>中歐語言 (Mac OS)</translation>
    </message>
    <message id="Central European (DOS Latin 2)">
        <source>Central European (DOS Latin 2)</source>
        <translation>中歐語言 (DOS Latin 2)</translation>
    </message>
    <message id="Western (ISO Latin 3)">
        <source>Western (ISO Latin 3)</source>
        <translation>西歐語言 (ISO Latin 3)</translation>
    </message>
    <message id="Central European (ISO Latin 4)">
        <source>Central European (ISO Latin 4)</source>
        <translation>中歐語言 (ISO Latin 4)</translation>
    </message>
    <message id="Nordic (ISO Latin 6)">
        <source>Nordic (ISO Latin 6)</source>
        <translation>北歐語言 (ISO Latin 6)</translation>
    </message>
    <message id="Icelandic (DOS)">
        <source>Icelandic (DOS)</source>
        <translation>冰島語 (DOS)</translation>
    </message>
    <message id="Nordic (DOS)">
        <source>Nordic (DOS)</source>
        <translation>北歐語言 (DOS)</translation>
    </message>
    <message id="Baltic (ISO Latin 7)">
        <source>Baltic (ISO Latin 7)</source>
        <translation>波羅的海語言 (ISO Latin 7)</translation>
    </message>
    <message id="Baltic (Windows)">
        <source>Baltic (Windows)</source>
        <translation>波羅的海語言 (Windows)</translation>
    </message>
    <message id="Baltic (DOS)">
        <source>Baltic (DOS)</source>
        <translation>波羅的海語言 (DOS)</translation>
    </message>
    <message id="Celtic (ISO Latin 8)">
        <source>Celtic (ISO Latin 8)</source>
        <translation>凱爾特語 (ISO Latin 8)</translation>
    </message>
    <message id="Cyrillic (ISO 8859-5)">
        <source>Cyrillic (ISO 8859-5)</source>
        <translation>西里爾文 (ISO 8859-5)</translation>
    </message>
    <message id="Cyrillic (Windows)">
        <source>Cyrillic (Windows)</source>
        <translation>西里爾文 (Windows)</translation>
    </message>
    <message id="Cyrillic (KOI8-R)">
        <source>Cyrillic (KOI8-R)</source>
        <translation>西里爾文 (KOI8-R)</translation>
    </message>
    <message id="Ukrainian (KOI8-U)">
        <source>Ukrainian (KOI8-U)</source>
        <translation>烏克蘭語 (KOI8-U)</translation>
    </message>
    <message id="Cyrillic (Mac OS)">
        <source>Cyrillic (Mac OS)</source>
        <translation>西里爾文 (Mac OS)</translation>
    </message>
    <message id="Cyrillic (DOS)">
        <source>Cyrillic (DOS)</source>
        <translation>西里爾文 (DOS)</translation>
    </message>
    <message id="Russian (DOS)">
        <source>Russian (DOS)</source>
        <translation>俄語 (DOS)</translation>
    </message>
    <message id="Greek (ISO 8859-7)">
        <source>Greek (ISO 8859-7)</source>
        <translation>希臘語 (ISO 8859-7)</translation>
    </message>
    <message id="Greek (Windows)">
        <source>Greek (Windows)</source>
        <translation>希臘語 (Windows)</translation>
    </message>
    <message id="Greek (Mac OS)">
        <source>Greek (Mac OS)</source>
        <translation>希臘語 (Mac OS)</translation>
    </message>
    <message id="Greek (DOS)">
        <source>Greek (DOS)</source>
        <translation>希臘語 (DOS)</translation>
    </message>
    <message id="Greek (DOS Greek 2)">
        <source>Greek (DOS Greek 2)</source>
        <translation>希臘語 (DOS Greek 2)</translation>
    </message>
    <message id="Turkish (ISO Latin 5)">
        <source>Turkish (ISO Latin 5)</source>
        <translation>土耳其語 (ISO Latin 5)</translation>
    </message>
    <message id="Turkish (Windows Latin 5)">
        <source>Turkish (Windows Latin 5)</source>
        <translation>土耳其語 (Windows Latin 5)</translation>
    </message>
    <message id="Turkish (Mac OS)">
        <source>Turkish (Mac OS)</source>
        <translation>土耳其語 (Mac OS)</translation>
    </message>
    <message id="Turkish (DOS)">
        <source>Turkish (DOS)</source>
        <translation>土耳其語 (DOS)</translation>
    </message>
    <message id="Hebrew (ISO 8859-8)">
        <source>Hebrew (ISO 8859-8)</source>
        <translation>希伯來語 (ISO 8859-8)</translation>
    </message>
    <message id="Hebrew (Windows)">
        <source>Hebrew (Windows)</source>
        <translation>希伯來語 (Windows)</translation>
    </message>
    <message id="Hebrew (DOS)">
        <source>Hebrew (DOS)</source>
        <translation>希伯來語 (DOS)</translation>
    </message>
    <message id="Arabic (ISO 8859-6)">
        <source>Arabic (ISO 8859-6)</source>
        <translation>阿拉伯語 (ISO 8859-6)</translation>
    </message>
    <message id="Arabic (Windows)">
        <source>Arabic (Windows)</source>
        <translation>阿拉伯語 (Windows)</translation>
    </message>
    <message id="Arabic (DOS)">
        <source>Arabic (DOS)</source>
        <translation>阿拉伯語 (DOS)</translation>
    </message>
    <message id="Portuguese (DOS)">
        <source>Portuguese (DOS)</source>
        <translation>葡萄牙語 (DOS)</translation>
    </message>
    <message id="Canadian French (DOS)">
        <source>Canadian French (DOS)</source>
        <translation>加拿大法語 (DOS)</translation>
    </message>
    <message id="Thai (ISO 8859-11)">
        <source>Thai (ISO 8859-11)</source>
        <translation>泰語 (ISO 8859-11)</translation>
    </message>
    <message id="Thai (Windows, DOS)">
        <source>Thai (Windows, DOS)</source>
        <translation>泰語 (Windows, DOS)</translation>
    </message>
    <message id="Vietnamese (Windows)">
        <source>Vietnamese (Windows)</source>
        <translation>越南語 (Windows)</translation>
    </message>
    <message id="Japanese (Shift JIS)">
        <source>Japanese (Shift JIS)</source>
        <translation>日語 (Shift JIS)</translation>
    </message>
    <message id="Japanese (Windows, DOS)">
        <source>Japanese (Windows, DOS)</source>
        <translation>日語 (Windows, DOS)</translation>
    </message>
    <message id="Japanese (EUC)">
        <source>Japanese (EUC)</source>
        <translation>日語 (EUC)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP)">
        <source>Japanese (ISO 2022-JP)</source>
        <translation>日語 (ISO 2022-JP)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-2)">
        <source>Japanese (ISO 2022-JP-2)</source>
        <translation>日語 (ISO 2022-JP-2)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-1)">
        <source>Japanese (ISO 2022-JP-1)</source>
        <translation>日語 (ISO 2022-JP-1)</translation>
    </message>
    <message id="Chinese (GB 18030)">
        <source>Chinese (GB 18030)</source>
        <translation>中文 (GB 18030)</translation>
    </message>
    <message id="Simplified Chinese (GBK)">
        <source>Simplified Chinese (GBK)</source>
        <translation>簡體中文 (GBK)</translation>
    </message>
    <message id="Simplified Chinese (Windows, DOS)">
        <source>Simplified Chinese (Windows, DOS)</source>
        <translation>簡體中文 (Windows, DOS)</translation>
    </message>
    <message id="Simplified Chinese (GB 2312)">
        <source>Simplified Chinese (GB 2312)</source>
        <translation>簡體中文 (GB 2312)</translation>
    </message>
    <message id="Simplified Chinese (HZ GB 2312)">
        <source>Simplified Chinese (HZ GB 2312)</source>
        <translation>簡體中文 (HZ GB 2312)</translation>
    </message>
    <message id="Chinese (ISO 2022-CN)">
        <source>Chinese (ISO 2022-CN)</source>
        <translation>中文 (ISO 2022-CN)</translation>
    </message>
    <message id="Traditional Chinese (Big 5)">
        <source>Traditional Chinese (Big 5)</source>
        <translation>繁體中文 (Big 5)</translation>
    </message>
    <message id="Traditional Chinese (Big 5 HKSCS)">
        <source>Traditional Chinese (Big 5 HKSCS)</source>
        <translation>繁體中文 (Big 5 HKSCS)</translation>
    </message>
    <message id="Traditional Chinese (Windows, DOS)">
        <source>Traditional Chinese (Windows, DOS)</source>
        <translation>繁體中文 (Windows, DOS)</translation>
    </message>
    <message id="Traditional Chinese (EUC)">
        <source>Traditional Chinese (EUC)</source>
        <translation>繁體中文 (EUC)</translation>
    </message>
    <message id="Korean (EUC)">
        <source>Korean (EUC)</source>
        <translation>韓語 (EUC)</translation>
    </message>
    <message id="Korean (Windows, DOS)">
        <source>Korean (Windows, DOS)</source>
        <translation>韓語 (Windows, DOS)</translation>
    </message>
    <message id="Korean (ISO 2022-KR)">
        <source>Korean (ISO 2022-KR)</source>
        <translation>韓語 (ISO 2022-KR)</translation>
    </message>
</context>
<context>
    <name>Overlay styles</name>
    <message id="StyleText">
        <source>Text</source>
        <translation>文字</translation>
    </message>
    <message id="StyleTextColor">
        <source>&amp;Color:</source>
        <translation>色彩(&amp;C)：</translation>
    </message>
    <message id="StyleTextColorTip">
        <source>The color of the letters, and of the line around the panel</source>
        <translation>文字與面板邊線的色彩</translation>
    </message>
    <message id="StyleTextFontName">
        <source>&amp;Font:</source>
        <translation>字型(&amp;F)：</translation>
    </message>
    <message id="StyleTextFontNameTip">
        <source>The family of the letters</source>
        <translation>文字的字型</translation>
    </message>
    <message id="StyleTextFontSize">
        <source>Si&amp;ze:</source>
        <translation>大小(&amp;Z)：</translation>
    </message>
    <message id="StyleTextFontSizeTip">
        <source>In points of a screen 1080 points high; on a higher one, letters grow with it</source>
        <translation>以高 1080 點的螢幕為準的點數；在更高的螢幕上，文字會隨之放大</translation>
    </message>
    <message id="StyleShadow">
        <source>Shadow</source>
        <translation>陰影</translation>
    </message>
    <message id="StyleShadowOn">
        <source>Draw a &amp;shadow</source>
        <translation>繪製陰影(&amp;S)</translation>
    </message>
    <message id="StyleShadowOnTip">
        <source>A shadow keeps letters legible on any picture</source>
        <translation>陰影讓文字在任何畫面上都清晰可讀</translation>
    </message>
    <message id="StyleShadowColor">
        <source>Co&amp;lor:</source>
        <translation>色彩(&amp;L)：</translation>
    </message>
    <message id="StyleShadowColorTip">
        <source>The color of the shadow, and how much shows through it</source>
        <translation>陰影的色彩與透明程度</translation>
    </message>
    <message id="StyleShadowBlur">
        <source>&amp;Blur:</source>
        <translation>模糊(&amp;B)：</translation>
    </message>
    <message id="StyleShadowBlurTip">
        <source>How far the shadow’s edge is spread, in points</source>
        <translation>陰影邊緣擴散的範圍，以點為單位</translation>
    </message>
    <message id="StyleShadowOffsetX">
        <source>To the &amp;right:</source>
        <translation>向右(&amp;R)：</translation>
    </message>
    <message id="StyleShadowOffsetXTip">
        <source>How far the shadow falls to the right, in points; below 0, to the left</source>
        <translation>陰影向右偏移的距離，以點為單位；小於 0 則向左</translation>
    </message>
    <message id="StyleShadowOffsetY">
        <source>&amp;Upwards:</source>
        <translation>向上(&amp;U)：</translation>
    </message>
    <message id="StyleShadowOffsetYTip">
        <source>How far the shadow falls upwards, in points; below 0, downwards</source>
        <translation>陰影向上偏移的距離，以點為單位；小於 0 則向下</translation>
    </message>
    <message id="StylePosition">
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message id="StyleAlignmentVertical">
        <source>&amp;Vertical:</source>
        <translation>垂直(&amp;V)：</translation>
    </message>
    <message id="StyleAlignmentVerticalTip">
        <source>At what height it stands</source>
        <translation>顯示在什麼高度</translation>
    </message>
    <message id="StyleAlignmentHorizontal">
        <source>&amp;Horizontal:</source>
        <translation>水平(&amp;H)：</translation>
    </message>
    <message id="StyleAlignmentHorizontalTip">
        <source>At which side of the screen it stands</source>
        <translation>顯示在螢幕的哪一側</translation>
    </message>
    <message id="StyleLeft">
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message id="StyleCenter">
        <source>Center</source>
        <translation>置中</translation>
    </message>
    <message id="StyleRight">
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message id="StyleTop">
        <source>Top</source>
        <translation>頂端</translation>
    </message>
    <message id="StyleMiddle">
        <source>Middle</source>
        <translation>中間</translation>
    </message>
    <message id="StyleBottom">
        <source>Bottom</source>
        <translation>底端</translation>
    </message>
    <message id="StyleAbovePictureEdge">
        <source>Inside the picture</source>
        <translation>畫面內</translation>
    </message>
    <message id="StyleOnPictureEdge">
        <source>On the picture’s edge</source>
        <translation>畫面邊緣</translation>
    </message>
    <message id="StyleBelowPicture">
        <source>Below the picture</source>
        <translation>畫面下方</translation>
    </message>
    <message id="StylePanel">
        <source>Panel</source>
        <translation>面板</translation>
    </message>
    <message id="StyleBackground">
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message id="StyleBackgroundTip">
        <source>The color around the picture</source>
        <translation>畫面周圍的色彩</translation>
    </message>
    <message id="StyleBackgroundOn">
        <source>Draw a &amp;panel</source>
        <translation>繪製面板(&amp;P)</translation>
    </message>
    <message id="StyleBackgroundOnTip">
        <source>A panel behind the text</source>
        <translation>文字後方的面板</translation>
    </message>
    <message id="StyleBackgroundColor">
        <source>Col&amp;or:</source>
        <translation>色彩(&amp;O)：</translation>
    </message>
    <message id="StyleBackgroundColorTip">
        <source>The color of the panel, and how much shows through it</source>
        <translation>面板的色彩與透明程度</translation>
    </message>
    <message id="StyleBackgroundRounded">
        <source>Rou&amp;nd corners</source>
        <translation>圓角(&amp;N)</translation>
    </message>
    <message id="StyleBackgroundRoundedTip">
        <source>Corners of the panel are rounded</source>
        <translation>面板使用圓角</translation>
    </message>
    <message id="StyleBackgroundRadius">
        <source>R&amp;adius:</source>
        <translation>半徑(&amp;A)：</translation>
    </message>
    <message id="StyleBackgroundRadiusTip">
        <source>How far the corners are rounded, in points</source>
        <translation>圓角的大小，以點為單位</translation>
    </message>
    <message id="StyleFrameOn">
        <source>Draw a fra&amp;me</source>
        <translation>繪製外框(&amp;M)</translation>
    </message>
    <message id="StyleFrameOnTip">
        <source>A line around the panel, in the text’s color</source>
        <translation>面板周圍的線，色彩與文字相同</translation>
    </message>
    <message id="StyleFrameWidth">
        <source>&amp;Width:</source>
        <translation>寬度(&amp;W)：</translation>
    </message>
    <message id="StyleFrameWidthTip">
        <source>How wide the line is, in points</source>
        <translation>線的寬度，以點為單位</translation>
    </message>
    <message id="StyleFading">
        <source>Fading and opacity</source>
        <translation>淡入淡出與不透明度</translation>
    </message>
    <message id="StyleFadingIn">
        <source>Fade &amp;in:</source>
        <translation>淡入(&amp;I)：</translation>
    </message>
    <message id="StyleFadingInTip">
        <source>How long a whole fade takes when it appears; 0 shows it at once</source>
        <translation>出現時完整淡入的時間；0 表示立即顯示</translation>
    </message>
    <message id="StyleFadingOut">
        <source>Fad&amp;e out:</source>
        <translation>淡出(&amp;E)：</translation>
    </message>
    <message id="StyleFadingOutTip">
        <source>How long a whole fade takes when it goes; 0 hides it at once</source>
        <translation>消失時完整淡出的時間；0 表示立即隱藏</translation>
    </message>
    <message id="StyleFadingDelay">
        <source>S&amp;tay:</source>
        <translation>停留(&amp;T)：</translation>
    </message>
    <message id="StyleFadingDelayTip">
        <source>How long it stays between fading in and fading out</source>
        <translation>淡入與淡出之間停留的時間</translation>
    </message>
    <message id="StyleMinAlpha">
        <source>Opacity when hi&amp;dden:</source>
        <translation>隱藏時的不透明度(&amp;D)：</translation>
    </message>
    <message id="StyleMinAlphaTip">
        <source>How much of it remains while it is hidden: 0 % is nothing</source>
        <translation>隱藏時保留多少：0 % 表示完全看不見</translation>
    </message>
    <message id="StyleMaxAlpha">
        <source>Opacit&amp;y when shown:</source>
        <translation>顯示時的不透明度(&amp;Y)：</translation>
    </message>
    <message id="StyleMaxAlphaTip">
        <source>How opaque it is while it is shown: below 100 % the picture shows through</source>
        <translation>顯示時的不透明程度：低於 100 % 時可看到後方的畫面</translation>
    </message>
    <message id="StyleReset">
        <source>Reset to Defaults</source>
        <translation>恢復預設值</translation>
    </message>
    <message id="StyleResetTip">
        <source>Takes this style back to what it was at first</source>
        <translation>將這個樣式恢復為最初的樣子</translation>
    </message>
    <message id="StyleResetUndo">
        <source>Undo Reset</source>
        <translation>復原重設</translation>
    </message>
    <message id="StyleResetUndoTip">
        <source>Brings back what the style was before</source>
        <translation>恢復重設前的樣式</translation>
    </message>
    <message id="StyleSeconds">
        <source>%@ s</source>
        <translation>%@ 秒</translation>
    </message>
    <message id="StylePercent">
        <source>%@ %</source>
        <translation>%@ %</translation>
    </message>
    <message id="StyleSample">
        <source>Sample</source>
        <translation>範例</translation>
    </message>
    <message id="StyleSampleTip">
        <source>What it looks like over the movie, or over a light and a dark picture</source>
        <translation>在影片上，或在亮畫面與暗畫面上的效果</translation>
    </message>
    <message id="StyleSampleSubtitle">
        <source>What an evening!</source>
        <translation>多麼美好的夜晚！</translation>
    </message>
    <message id="StyleSampleFeedback">
        <source>Volume: 80 %</source>
        <translation>音量：80 %</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message id="Preferences">
        <source>Preferences</source>
        <translation>偏好設定</translation>
    </message>
    <message id="&amp;Movie">
        <source>&amp;Movie</source>
        <translation>影片(&amp;M)</translation>
    </message>
    <message id="Started Without a File">
        <source>Started Without a File</source>
        <translation>啟動時沒有檔案</translation>
    </message>
    <message id="Open &amp;nothing">
        <source>Open &amp;nothing</source>
        <translation>不開啟任何內容(&amp;N)</translation>
    </message>
    <message id="Lumaro starts with an empty screen">
        <source>Lumaro starts with an empty screen</source>
        <translation>Lumaro 以空白畫面啟動</translation>
    </message>
    <message id="Open the &amp;last playlist">
        <source>Open the &amp;last playlist</source>
        <translation>開啟上次的播放清單(&amp;L)</translation>
    </message>
    <message id="The movies of the last time come back, at the place where they were left">
        <source>The movies of the last time come back, at the place where they were left</source>
        <translation>重新開啟上次的影片，並回到離開時的位置</translation>
    </message>
    <message id="Ask for &amp;files">
        <source>Ask for &amp;files</source>
        <translation>詢問檔案(&amp;F)</translation>
    </message>
    <message id="Lumaro begins with the panel that opens movies">
        <source>Lumaro begins with the panel that opens movies</source>
        <translation>Lumaro 啟動時顯示開啟影片的面板</translation>
    </message>
    <message id="Picture">
        <source>Picture</source>
        <translation>畫面</translation>
    </message>
    <message id="Si&amp;ze:">
        <source>Si&amp;ze:</source>
        <translation>大小(&amp;Z)：</translation>
    </message>
    <message id="How large movies are shown, from now on and at the next start">
        <source>How large movies are shown, from now on and at the next start</source>
        <translation>影片的顯示大小，從現在起並在下次啟動時生效</translation>
    </message>
    <message id="Custom Magnification">
        <source>Custom Magnification</source>
        <translation>自訂縮放</translation>
    </message>
    <message id="&amp;Window:">
        <source>&amp;Window:</source>
        <translation>視窗(&amp;W)：</translation>
    </message>
    <message id="Whether the movie stays above the windows of other programs while Lumaro has the keyboard">
        <source>Whether the movie stays above the windows of other programs while Lumaro has the keyboard</source>
        <translation>Lumaro 擁有鍵盤焦點時，影片是否保持在其他程式的視窗之上</translation>
    </message>
    <message id="Bar over the p&amp;icture:">
        <source>Bar over the p&amp;icture:</source>
        <translation>畫面上的控制列(&amp;I)：</translation>
    </message>
    <message id="Where none stands below it: a larger bar that comes with the pointer, or stays">
        <source>Where none stands below it: a larger bar that comes with the pointer, or stays</source>
        <translation>畫面下方沒有控制列時：較大的控制列隨指標出現，或一直顯示</translation>
    </message>
    <message id="Always">
        <source>Always</source>
        <translation>一律</translation>
    </message>
    <message id="When the pointer moves">
        <source>When the pointer moves</source>
        <translation>指標移動時</translation>
    </message>
    <message id="Among other windows">
        <source>Among other windows</source>
        <translation>與其他視窗同層</translation>
    </message>
    <message id="Above other windows">
        <source>Above other windows</source>
        <translation>在其他視窗之上</translation>
    </message>
    <message id="Show the controller &amp;bar">
        <source>Show the controller &amp;bar</source>
        <translation>顯示控制列(&amp;B)</translation>
    </message>
    <message id="The bar with play, time and volume below the picture">
        <source>The bar with play, time and volume below the picture</source>
        <translation>畫面下方具有播放、時間與音量的控制列</translation>
    </message>
    <message id="Set the screen’s bri&amp;ghtness:">
        <source>Set the screen’s bri&amp;ghtness:</source>
        <translation>設定螢幕亮度(&amp;G)：</translation>
    </message>
    <message id="As long as Lumaro runs; then the screen is as bright as before">
        <source>As long as Lumaro runs; then the screen is as bright as before</source>
        <translation>僅在 Lumaro 執行期間；之後螢幕恢復原來的亮度</translation>
    </message>
    <message id="How bright the screen is while Lumaro runs">
        <source>How bright the screen is while Lumaro runs</source>
        <translation>Lumaro 執行期間的螢幕亮度</translation>
    </message>
    <message id="Brightness of the screen">
        <source>Brightness of the screen</source>
        <translation>螢幕亮度</translation>
    </message>
    <message id="Pictur&amp;e">
        <source>Pictur&amp;e</source>
        <translation>畫面(&amp;X)</translation>
    </message>
    <message id="Co&amp;ntrast:">
        <source>Co&amp;ntrast:</source>
        <translation>對比(&amp;N)：</translation>
    </message>
    <message id="&amp;Brightness:">
        <source>&amp;Brightness:</source>
        <translation>亮度(&amp;B)：</translation>
    </message>
    <message id="&amp;Gamma:">
        <source>&amp;Gamma:</source>
        <translation>Gamma(&amp;G)：</translation>
    </message>
    <message id="Sa&amp;turation:">
        <source>Sa&amp;turation:</source>
        <translation>飽和度(&amp;T)：</translation>
    </message>
    <message id="&amp;Hue:">
        <source>&amp;Hue:</source>
        <translation>色相(&amp;H)：</translation>
    </message>
    <message id="Every movie is shown with it, the one on the screen at once">
        <source>Every movie is shown with it, the one on the screen at once</source>
        <translation>所有影片都依此顯示，螢幕上的影片立即生效</translation>
    </message>
    <message id="The brightness of this screen can’t be set">
        <source>The brightness of this screen can’t be set</source>
        <translation>無法設定這個螢幕的亮度</translation>
    </message>
    <message id="Playing">
        <source>Playing</source>
        <translation>播放</translation>
    </message>
    <message id="&amp;Jump by:">
        <source>&amp;Jump by:</source>
        <translation>跳轉(&amp;J)：</translation>
    </message>
    <message id="How many seconds a jump goes forward or back">
        <source>How many seconds a jump goes forward or back</source>
        <translation>每次跳轉前進或後退的秒數</translation>
    </message>
    <message id="seconds">
        <source>seconds</source>
        <translation>秒</translation>
    </message>
    <message id="&amp;Keep the volume for the next start">
        <source>&amp;Keep the volume for the next start</source>
        <translation>下次啟動時保留音量(&amp;K)</translation>
    </message>
    <message id="Lumaro begins as loud as it ended">
        <source>Lumaro begins as loud as it ended</source>
        <translation>Lumaro 啟動時的音量與上次結束時相同</translation>
    </message>
    <message id="While Another Program Has the Keyboard">
        <source>While Another Program Has the Keyboard</source>
        <translation>當其他程式擁有鍵盤焦點時</translation>
    </message>
    <message id="Pa&amp;use the movie">
        <source>Pa&amp;use the movie</source>
        <translation>暫停影片(&amp;U)</translation>
    </message>
    <message id="It goes on when you come back">
        <source>It goes on when you come back</source>
        <translation>您回來後繼續播放</translation>
    </message>
    <message id="&amp;Hide the window">
        <source>&amp;Hide the window</source>
        <translation>隱藏視窗(&amp;H)</translation>
    </message>
    <message id="The window is minimized, and comes back with Lumaro">
        <source>The window is minimized, and comes back with Lumaro</source>
        <translation>視窗會最小化，並隨 Lumaro 一起恢復</translation>
    </message>
    <message id="Go on where a mo&amp;vie was left">
        <source>Go on where a mo&amp;vie was left</source>
        <translation>從上次離開的位置繼續播放(&amp;V)</translation>
    </message>
    <message id="The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them">
        <source>The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them</source>
        <translation>記住最近一千部影片的播放位置與字幕，並在「最近開啟」選單中列出</translation>
    </message>
    <message id="&amp;Playlist">
        <source>&amp;Playlist</source>
        <translation>播放清單(&amp;P)</translation>
    </message>
    <message id="Order">
        <source>Order</source>
        <translation>順序</translation>
    </message>
    <message id="As adde&amp;d">
        <source>As adde&amp;d</source>
        <translation>依加入順序(&amp;D)</translation>
    </message>
    <message id="Movies play in the order in which they were given">
        <source>Movies play in the order in which they were given</source>
        <translation>依指定的順序播放影片</translation>
    </message>
    <message id="Shu&amp;ffled">
        <source>Shu&amp;ffled</source>
        <translation>隨機(&amp;F)</translation>
    </message>
    <message id="Movies play in an order left to chance">
        <source>Movies play in an order left to chance</source>
        <translation>依隨機順序播放影片</translation>
    </message>
    <message id="Sor&amp;ted">
        <source>Sor&amp;ted</source>
        <translation>排序(&amp;T)</translation>
    </message>
    <message id="Movies play by their names">
        <source>Movies play by their names</source>
        <translation>依名稱播放影片</translation>
    </message>
    <message id="Compare &amp;numbers by value">
        <source>Compare &amp;numbers by value</source>
        <translation>依數值比較數字(&amp;N)</translation>
    </message>
    <message id="Part 2 comes before part 10">
        <source>Part 2 comes before part 10</source>
        <translation>第 2 部分排在第 10 部分之前</translation>
    </message>
    <message id="By the &amp;whole path">
        <source>By the &amp;whole path</source>
        <translation>依完整路徑(&amp;W)</translation>
    </message>
    <message id="Folders stay together">
        <source>Folders stay together</source>
        <translation>同一資料夾的影片排在一起</translation>
    </message>
    <message id="By the f&amp;ile name only">
        <source>By the f&amp;ile name only</source>
        <translation>僅依檔名(&amp;I)</translation>
    </message>
    <message id="Whatever folders the movies lie in">
        <source>Whatever folders the movies lie in</source>
        <translation>無論影片在哪個資料夾</translation>
    </message>
    <message id="&amp;Looping:">
        <source>&amp;Looping:</source>
        <translation>循環播放(&amp;L)：</translation>
    </message>
    <message id="What is repeated, from now on and in new playlists">
        <source>What is repeated, from now on and in new playlists</source>
        <translation>重複播放的內容，從現在起並用於新的播放清單</translation>
    </message>
    <message id="&amp;Begin to play what is opened">
        <source>&amp;Begin to play what is opened</source>
        <translation>開啟後立即播放(&amp;B)</translation>
    </message>
    <message id="Else movies are shown and wait">
        <source>Else movies are shown and wait</source>
        <translation>否則顯示影片並等候</translation>
    </message>
    <message id="&amp;Go on with the next movie">
        <source>&amp;Go on with the next movie</source>
        <translation>繼續播放下一部影片(&amp;G)</translation>
    </message>
    <message id="When one ends, the next in the list plays">
        <source>When one ends, the next in the list plays</source>
        <translation>一部影片結束後，播放清單中的下一部</translation>
    </message>
    <message id="&amp;Quit at the end of the list">
        <source>&amp;Quit at the end of the list</source>
        <translation>播完清單後結束(&amp;Q)</translation>
    </message>
    <message id="Unless it is repeated">
        <source>Unless it is repeated</source>
        <translation>除非正在循環播放</translation>
    </message>
    <message id="&amp;Subtitles">
        <source>&amp;Subtitles</source>
        <translation>字幕(&amp;S)</translation>
    </message>
    <message id="Showing">
        <source>Showing</source>
        <translation>顯示</translation>
    </message>
    <message id="S&amp;how subtitles">
        <source>S&amp;how subtitles</source>
        <translation>顯示字幕(&amp;H)</translation>
    </message>
    <message id="Also for movies opened later">
        <source>Also for movies opened later</source>
        <translation>之後開啟的影片也一樣</translation>
    </message>
    <message id="Draw mark&amp;up">
        <source>Draw mark&amp;up</source>
        <translation>套用標記(&amp;U)</translation>
    </message>
    <message id="Italics, colors and places in subtitle files act; else they are left out">
        <source>Italics, colors and places in subtitle files act; else they are left out</source>
        <translation>字幕檔中的斜體、色彩與位置會生效；否則會略過</translation>
    </message>
    <message id="&amp;Find subtitle files beside movies">
        <source>&amp;Find subtitle files beside movies</source>
        <translation>尋找影片旁邊的字幕檔(&amp;F)</translation>
    </message>
    <message id="When a movie is opened">
        <source>When a movie is opened</source>
        <translation>開啟影片時</translation>
    </message>
    <message id="Files">
        <source>Files</source>
        <translation>檔案</translation>
    </message>
    <message id="E&amp;ncoding:">
        <source>E&amp;ncoding:</source>
        <translation>編碼(&amp;E)：</translation>
    </message>
    <message id="How the letters of subtitle files are stored; Automatic tells it by the file">
        <source>How the letters of subtitle files are stored; Automatic tells it by the file</source>
        <translation>字幕檔中文字的儲存方式；「自動」會依檔案判斷</translation>
    </message>
    <message id="Encoding of subtitle files">
        <source>Encoding of subtitle files</source>
        <translation>字幕檔的編碼</translation>
    </message>
    <message id="Frame ra&amp;te:">
        <source>Frame ra&amp;te:</source>
        <translation>影格率(&amp;T)：</translation>
    </message>
    <message id="For subtitle files that count pictures instead of seconds">
        <source>For subtitle files that count pictures instead of seconds</source>
        <translation>用於以影格數而非秒數計時的字幕檔</translation>
    </message>
    <message id="As the movie">
        <source>As the movie</source>
        <translation>與影片相同</translation>
    </message>
    <message id="Repair &amp;damaged subtitle files">
        <source>Repair &amp;damaged subtitle files</source>
        <translation>修復損壞的字幕檔(&amp;D)</translation>
    </message>
    <message id="What is damaged is read as far as it can be">
        <source>What is damaged is read as far as it can be</source>
        <translation>盡可能讀取損壞的內容</translation>
    </message>
    <message id="Preferred Languages">
        <source>Preferred Languages</source>
        <translation>慣用語言</translation>
    </message>
    <message id="Preferred languages">
        <source>Preferred languages</source>
        <translation>慣用語言</translation>
    </message>
    <message id="Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.">
        <source>Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.</source>
        <translation>影片開始時使用其中第一種可用語言的字幕。最初是您的系統語言。</translation>
    </message>
    <message id="Add a language">
        <source>Add a language</source>
        <translation>加入語言</translation>
    </message>
    <message id="Adds a language to the list">
        <source>Adds a language to the list</source>
        <translation>將一種語言加入清單</translation>
    </message>
    <message id="Hi&amp;gher">
        <source>Hi&amp;gher</source>
        <translation>上移(&amp;G)</translation>
    </message>
    <message id="Moves the language up the list">
        <source>Moves the language up the list</source>
        <translation>在清單中上移這個語言</translation>
    </message>
    <message id="Lo&amp;wer">
        <source>Lo&amp;wer</source>
        <translation>下移(&amp;W)</translation>
    </message>
    <message id="Moves the language down the list">
        <source>Moves the language down the list</source>
        <translation>在清單中下移這個語言</translation>
    </message>
    <message id="Remo&amp;ve">
        <source>Remo&amp;ve</source>
        <translation>移除(&amp;V)</translation>
    </message>
    <message id="Takes the language off the list">
        <source>Takes the language off the list</source>
        <translation>從清單中移除這個語言</translation>
    </message>
    <message id="&amp;Overlays">
        <source>&amp;Overlays</source>
        <translation>疊加顯示(&amp;O)</translation>
    </message>
    <message id="Smallest &amp;text size:">
        <source>Smallest &amp;text size:</source>
        <translation>最小文字大小(&amp;T)：</translation>
    </message>
    <message id="No text over the movie is smaller">
        <source>No text over the movie is smaller</source>
        <translation>影片上的文字不會小於這個值</translation>
    </message>
    <message id="&amp;Distance from the edges:">
        <source>&amp;Distance from the edges:</source>
        <translation>與邊緣的距離(&amp;D)：</translation>
    </message>
    <message id="How far what is shown over the movie keeps from the edges of the window">
        <source>How far what is shown over the movie keeps from the edges of the window</source>
        <translation>影片上顯示的內容與視窗邊緣的距離</translation>
    </message>
    <message id="Show &amp;feedback">
        <source>Show &amp;feedback</source>
        <translation>顯示操作回饋(&amp;F)</translation>
    </message>
    <message id="Commands say what they did">
        <source>Commands say what they did</source>
        <translation>指令會顯示執行結果</translation>
    </message>
    <message id="&amp;Keep the display for the next start">
        <source>&amp;Keep the display for the next start</source>
        <translation>下次啟動時保留螢幕顯示(&amp;K)</translation>
    </message>
    <message id="The on-screen display chosen last is shown again">
        <source>The on-screen display chosen last is shown again</source>
        <translation>再次顯示上次選擇的螢幕顯示</translation>
    </message>
    <message id="How texts over the movie and the window look">
        <source>How texts over the movie and the window look</source>
        <translation>影片上的文字與視窗的外觀</translation>
    </message>
    <message id="Overlay styles">
        <source>Overlay styles</source>
        <translation>疊加顯示樣式</translation>
    </message>
    <message id="How subtitles look">
        <source>How subtitles look</source>
        <translation>字幕的外觀</translation>
    </message>
    <message id="Subtitle styles">
        <source>Subtitle styles</source>
        <translation>字幕樣式</translation>
    </message>
    <message id="&amp;Advanced">
        <source>&amp;Advanced</source>
        <translation>進階(&amp;A)</translation>
    </message>
    <message id="Pointer">
        <source>Pointer</source>
        <translation>指標</translation>
    </message>
    <message id="&amp;Hide after:">
        <source>&amp;Hide after:</source>
        <translation>隱藏前等候(&amp;H)：</translation>
    </message>
    <message id="How long the pointer rests before it is hidden">
        <source>How long the pointer rests before it is hidden</source>
        <translation>指標靜止多久後隱藏</translation>
    </message>
    <message id="New Versions">
        <source>New Versions</source>
        <translation>新版本</translation>
    </message>
    <message id="The packages of your system keep Lumaro up to date.">
        <source>The packages of your system keep Lumaro up to date.</source>
        <translation>系統的套件會讓 Lumaro 保持最新。</translation>
    </message>
    <message id="Look for new &amp;versions">
        <source>Look for new &amp;versions</source>
        <translation>檢查新版本(&amp;V)</translation>
    </message>
    <message id="When Lumaro starts, as often as is set below">
        <source>When Lumaro starts, as often as is set below</source>
        <translation>在 Lumaro 啟動時，依下方設定的頻率檢查</translation>
    </message>
    <message id="Also for &amp;beta versions">
        <source>Also for &amp;beta versions</source>
        <translation>包括測試版本(&amp;B)</translation>
    </message>
    <message id="Versions that are still being tried">
        <source>Versions that are still being tried</source>
        <translation>仍在測試中的版本</translation>
    </message>
    <message id="Ho&amp;w often:">
        <source>Ho&amp;w often:</source>
        <translation>頻率(&amp;W)：</translation>
    </message>
    <message id="How much time passes between two checks">
        <source>How much time passes between two checks</source>
        <translation>兩次檢查之間的間隔</translation>
    </message>
    <message id="At every start">
        <source>At every start</source>
        <translation>每次啟動時</translation>
    </message>
    <message id="Daily">
        <source>Daily</source>
        <translation>每天</translation>
    </message>
    <message id="Weekly">
        <source>Weekly</source>
        <translation>每週</translation>
    </message>
    <message id="Every 30 days">
        <source>Every 30 days</source>
        <translation>每 30 天</translation>
    </message>
    <message id="Last check:">
        <source>Last check:</source>
        <translation>上次檢查：</translation>
    </message>
    <message id="Result:">
        <source>Result:</source>
        <translation>結果：</translation>
    </message>
    <message id="Check &amp;Now">
        <source>Check &amp;Now</source>
        <translation>立即檢查(&amp;N)</translation>
    </message>
    <message id="Looks for a new version at once">
        <source>Looks for a new version at once</source>
        <translation>立即檢查是否有新版本</translation>
    </message>
    <message id="Diagnosis">
        <source>Diagnosis</source>
        <translation>診斷</translation>
    </message>
    <message id="Remote">
        <source>Remote</source>
        <translation>遙控器</translation>
    </message>
    <message id="Act on in&amp;frared remotes">
        <source>Act on in&amp;frared remotes</source>
        <translation>回應紅外線遙控器(&amp;F)</translation>
    </message>
    <message id="Their buttons are the player's alone while it runs">
        <source>Their buttons are the player's alone while it runs</source>
        <translation>播放器執行期間，遙控器按鍵僅供它使用</translation>
    </message>
    <message id="&amp;Log what happens">
        <source>&amp;Log what happens</source>
        <translation>記錄事件(&amp;L)</translation>
    </message>
    <message id="Lines for whoever looks for an error, in the system log or the terminal">
        <source>Lines for whoever looks for an error, in the system log or the terminal</source>
        <translation>供尋找錯誤使用的記錄，寫入系統記錄或終端機</translation>
    </message>
    <message id="&amp;Reset Page">
        <source>&amp;Reset Page</source>
        <translation>重設此頁(&amp;R)</translation>
    </message>
    <message id="Takes the settings of this page back to what they were at first. Styles have a button of their own.">
        <source>Takes the settings of this page back to what they were at first. Styles have a button of their own.</source>
        <translation>將此頁的設定恢復為最初的值。樣式有自己的按鈕。</translation>
    </message>
    <message id="Undo Reset">
        <source>Undo Reset</source>
        <translation>復原重設</translation>
    </message>
    <message id="Brings the settings of this page back (Ctrl+Z)">
        <source>Brings the settings of this page back (Ctrl+Z)</source>
        <translation>恢復此頁重設前的設定 (Ctrl+Z)</translation>
    </message>
    <message id="Find a setting">
        <source>Find a setting</source>
        <translation>尋找設定</translation>
    </message>
    <message id="Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.">
        <source>Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.</source>
        <translation>依文字尋找設定 (Ctrl+F)。上下方向鍵移到其他結果，Enter 鍵移到該設定。</translation>
    </message>
    <message id="PreferencesFound">
        <source>%d of %d</source>
        <translation>%d / %d</translation>
    </message>
    <message id="Nothing found">
        <source>Nothing found</source>
        <translation>找不到</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>關閉</translation>
    </message>
    <message id="More Encodings">
        <source>More Encodings</source>
        <translation>更多編碼</translation>
    </message>
    <message id="%d sec.">
        <source>%d sec.</source>
        <translation>%d 秒</translation>
    </message>
    <message id="%d pt">
        <source>%d pt</source>
        <translation>%d 點</translation>
    </message>
    <message id="Search: %@">
        <source>Search: %@</source>
        <translation>搜尋：%@</translation>
    </message>
    <message id="Type to search">
        <source>Type to search</source>
        <translation>輸入以搜尋</translation>
    </message>
    <message id="Change the preferences">
        <source>Change the preferences</source>
        <translation>變更偏好設定</translation>
    </message>
    <message id="Feedback style">
        <source>Feedback</source>
        <translation>操作回饋</translation>
    </message>
    <message id="Text style">
        <source>Texts</source>
        <translation>文字</translation>
    </message>
    <message id="Picture style">
        <source>Bitmaps</source>
        <translation>點陣圖</translation>
    </message>
    <message id="On-screen display style">
        <source>On-Screen Display</source>
        <translation>螢幕顯示</translation>
    </message>
    <message id="Window style">
        <source>Window</source>
        <translation>視窗</translation>
    </message>
    <message id="SettingsNotSavedMessage">
        <source>The preferences can’t be saved.</source>
        <translation>無法儲存偏好設定。</translation>
    </message>
    <message id="SettingsNotSavedDetails">
        <source>What you change acts until Lumaro quits. The file “%@” can’t be written.</source>
        <translation>您所做的變更在 Lumaro 結束前有效。無法寫入檔案「%@」。</translation>
    </message>
    <message id="SettingsDamagedMessage">
        <source>The preferences are damaged.</source>
        <translation>偏好設定已損壞。</translation>
    </message>
    <message id="SettingsDamagedDetails">
        <source>Lumaro begins with new ones. The damaged file is kept as “%@”.</source>
        <translation>Lumaro 將使用新的偏好設定。損壞的檔案已保留為「%@」。</translation>
    </message>
    <message id="SettingsUnreadableMessage">
        <source>The preferences can’t be read.</source>
        <translation>無法讀取偏好設定。</translation>
    </message>
    <message id="SettingsUnreadableDetails">
        <source>The file “%@” stays as it is. What you change acts until Lumaro quits.</source>
        <translation>檔案「%@」會保持原樣。您所做的變更在 Lumaro 結束前有效。</translation>
    </message>
    <message id="PlacesDamagedMessage">
        <source>The remembered places in movies are damaged; their file was put aside.</source>
        <translation>記住的播放位置已損壞；其檔案已移到一旁保留。</translation>
    </message>
    <message id="PlacesUnreadableMessage">
        <source>The remembered places in movies can’t be read.</source>
        <translation>無法讀取記住的播放位置。</translation>
    </message>
    <message id="PlacesOfLaterVersionMessage">
        <source>A later version of Lumaro remembers places in movies here; this one can’t.</source>
        <translation>這裡的播放位置由較新版本的 Lumaro 記錄；這個版本無法使用。</translation>
    </message>
    <message id="Short&amp;cuts">
        <source>Short&amp;cuts</source>
        <translation>快速鍵(&amp;C)</translation>
    </message>
    <message id="Searc&amp;h:">
        <source>Searc&amp;h:</source>
        <translation>搜尋(&amp;E)：</translation>
    </message>
    <message id="Words of a command, or its key">
        <source>Words of a command, or its key</source>
        <translation>指令中的字詞，或其按鍵</translation>
    </message>
    <message id="The commands by menu; bold ones have keys of your own">
        <source>The commands by menu; bold ones have keys of your own</source>
        <translation>依選單排列的指令；粗體表示使用您自己的按鍵</translation>
    </message>
    <message id="Commands and their keys">
        <source>Commands and their keys</source>
        <translation>指令及其按鍵</translation>
    </message>
    <message id="Command">
        <source>Command</source>
        <translation>指令</translation>
    </message>
    <message id="Keys">
        <source>Keys</source>
        <translation>按鍵</translation>
    </message>
    <message id="&amp;Keys of the command:">
        <source>&amp;Keys of the command:</source>
        <translation>指令的按鍵(&amp;K)：</translation>
    </message>
    <message id="The keys of the command that is marked">
        <source>The keys of the command that is marked</source>
        <translation>所選指令的按鍵</translation>
    </message>
    <message id="A&amp;dd Key...">
        <source>A&amp;dd Key...</source>
        <translation>加入按鍵(&amp;D)…</translation>
    </message>
    <message id="Then press the key, with Ctrl, Alt, Shift or Super if you like">
        <source>Then press the key, with Ctrl, Alt, Shift or Super if you like</source>
        <translation>然後按下按鍵，可同時按住 Ctrl、Alt、Shift 或 Super</translation>
    </message>
    <message id="Remo&amp;ve Key">
        <source>Remo&amp;ve Key</source>
        <translation>移除按鍵(&amp;V)</translation>
    </message>
    <message id="The marked key means nothing any more">
        <source>The marked key means nothing any more</source>
        <translation>所選按鍵不再有任何作用</translation>
    </message>
    <message id="Rese&amp;t Command">
        <source>Rese&amp;t</source>
        <translation>重設(&amp;T)</translation>
    </message>
    <message id="The command gets back the keys that Lumaro came with">
        <source>The command gets back the keys that Lumaro came with</source>
        <translation>將這個指令的按鍵恢復為 Lumaro 的預設按鍵</translation>
    </message>
    <message id="Reset A&amp;ll Keys">
        <source>Reset A&amp;ll</source>
        <translation>全部重設(&amp;L)</translation>
    </message>
    <message id="Every command gets back the keys that Lumaro came with">
        <source>Every command gets back the keys that Lumaro came with</source>
        <translation>將所有指令的按鍵恢復為 Lumaro 的預設按鍵</translation>
    </message>
    <message id="&amp;Undo Key Change">
        <source>&amp;Undo</source>
        <translation>復原(&amp;U)</translation>
    </message>
    <message id="Takes back the last change of a key">
        <source>Takes back the last change of a key</source>
        <translation>復原對按鍵的最後一次變更</translation>
    </message>
    <message id="Take &amp;It Over">
        <source>Take &amp;It Over</source>
        <translation>改用於此指令(&amp;I)</translation>
    </message>
    <message id="The key means the marked command from now on">
        <source>The key means the marked command from now on</source>
        <translation>從現在起，這個按鍵用於所選指令</translation>
    </message>
    <message id="Ca&amp;ncel Key">
        <source>Ca&amp;ncel</source>
        <translation>取消(&amp;N)</translation>
    </message>
    <message id="The key keeps its meaning">
        <source>The key keeps its meaning</source>
        <translation>這個按鍵保持原有用途</translation>
    </message>
    <message id="Press a key for “%@”. Esc goes back.">
        <source>Press a key for “%@”. Esc goes back.</source>
        <translation>請按下用於「%@」的按鍵。按 Esc 返回。</translation>
    </message>
    <message id="Lumaro does not know this key.">
        <source>Lumaro does not know this key.</source>
        <translation>Lumaro 不認得這個按鍵。</translation>
    </message>
    <message id="Esc closes windows and ends Lumaro; that can’t be changed.">
        <source>Esc closes windows and ends Lumaro; that can’t be changed.</source>
        <translation>Esc 用於關閉視窗與結束 Lumaro，無法變更。</translation>
    </message>
    <message id="%@ belongs to the desktop.">
        <source>%@ belongs to the desktop.</source>
        <translation>%@ 由桌面環境使用。</translation>
    </message>
    <message id="%@ means “%@” already.">
        <source>%@ means “%@” already.</source>
        <translation>%@ 已用於「%@」。</translation>
    </message>
    <message id="“%@” has as many keys as it can have; remove one first.">
        <source>“%@” has as many keys as it can have; remove one first.</source>
        <translation>「%@」的按鍵已達上限；請先移除一個。</translation>
    </message>
    <message id="%@ means “%@” now.">
        <source>%@ means “%@” now.</source>
        <translation>%@ 現在用於「%@」。</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message id="Next Looping">
        <source>Next Looping</source>
        <translation>下一個循環播放模式</translation>
    </message>
    <message id="Previous Looping">
        <source>Previous Looping</source>
        <translation>上一個循環播放模式</translation>
    </message>
    <message id="Show Playlist">
        <source>Show Playlist</source>
        <translation>顯示播放清單</translation>
    </message>
    <message id="Next Subtitles">
        <source>Next Subtitles</source>
        <translation>下一個字幕</translation>
    </message>
    <message id="Previous Subtitles">
        <source>Previous Subtitles</source>
        <translation>上一個字幕</translation>
    </message>
    <message id="No Subtitles">
        <source>No Subtitles</source>
        <translation>無字幕</translation>
    </message>
    <message id="Open a movie from the menu">
        <source>Open a movie from the menu</source>
        <translation>從選單開啟影片</translation>
    </message>
    <message id="or drop files here.">
        <source>or drop files here.</source>
        <translation>或將檔案拖放到這裡。</translation>
    </message>
    <message id="Keys of the command">
        <source>Keys of the command</source>
        <translation>指令的按鍵</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message id="Open pages of video sites with &amp;yt-dlp">
        <source>Open pages of video sites with &amp;yt-dlp</source>
        <translation>使用 yt-dlp 開啟影音網站的網頁(&amp;Y)</translation>
    </message>
    <message id="An address that is no movie is asked of the program yt-dlp, where it is installed">
        <source>An address that is no movie is asked of the program yt-dlp, where it is installed</source>
        <translation>對於不是影片的位址，會詢問已安裝的 yt-dlp 程式</translation>
    </message>
    <message id="Open Movies">
        <source>Open Movies</source>
        <translation>開啟影片</translation>
    </message>
    <message id="Open Folder">
        <source>Open Folder</source>
        <translation>開啟資料夾</translation>
    </message>
    <message id="Open Folder...">
        <source>Open Folder...</source>
        <translation>開啟資料夾…</translation>
    </message>
    <message id="Movies and Sound">
        <source>Movies and Sound</source>
        <translation>影片與音訊</translation>
    </message>
    <message id="All Files">
        <source>All Files</source>
        <translation>所有檔案</translation>
    </message>
    <message id="Add to Playlist">
        <source>Add to Playlist</source>
        <translation>加入播放清單</translation>
    </message>
    <message id="Open folders of movies">
        <source>Open folders of movies</source>
        <translation>開啟影片資料夾</translation>
    </message>
    <message id="Open an address, several addresses">
        <source>Open an address, several addresses</source>
        <translation>開啟一個或多個位址</translation>
    </message>
    <message id="Open URL">
        <source>Open URL</source>
        <translation>開啟 URL</translation>
    </message>
    <message id="Open URLs">
        <source>Open URLs</source>
        <translation>開啟多個 URL</translation>
    </message>
    <message id="&amp;Address or path of a movie:">
        <source>&amp;Address or path of a movie:</source>
        <translation>影片的位址或路徑(&amp;A)：</translation>
    </message>
    <message id="&amp;Addresses or paths of movies, one in each line:">
        <source>&amp;Addresses or paths of movies, one in each line:</source>
        <translation>影片的位址或路徑，每行一個(&amp;A)：</translation>
    </message>
    <message id="Address">
        <source>Address</source>
        <translation>位址</translation>
    </message>
    <message id="Addresses">
        <source>Addresses</source>
        <translation>位址</translation>
    </message>
    <message id="Add to &amp;Playlist">
        <source>Add to &amp;Playlist</source>
        <translation>加入播放清單(&amp;P)</translation>
    </message>
    <message id="What plays now goes on; holding Alt does the same">
        <source>What plays now goes on; holding Alt does the same</source>
        <translation>正在播放的內容會繼續；按住 Alt 效果相同</translation>
    </message>
    <message id="Replace the Playlist">
        <source>Replace the Playlist</source>
        <translation>取代播放清單</translation>
    </message>
    <message id="Add to the Playlist">
        <source>Add to the Playlist</source>
        <translation>加入播放清單</translation>
    </message>
    <message id="OpenErrorSubtitles">
        <source>It holds subtitles. They are shown by themselves when they lie beside their movie and begin with its name.</source>
        <translation>這是字幕檔。字幕與影片放在一起且以影片名稱開頭時，會自動顯示。</translation>
    </message>
    <message id="OpenErrorNotAnAddress">
        <source>It is neither an address nor the path of a file.</source>
        <translation>這既不是位址，也不是檔案路徑。</translation>
    </message>
    <message id="Resumed at %@">
        <source>Resumed at %@</source>
        <translation>從 %@ 繼續播放</translation>
    </message>
</context>
<context>
    <name>Watching</name>
    <message id="Speed">
        <source>Speed</source>
        <translation>速度</translation>
    </message>
    <message id="Speed: %@">
        <source>Speed: %@</source>
        <translation>速度：%@</translation>
    </message>
    <message id="%@x">
        <source>%@x</source>
        <translation>%@×</translation>
    </message>
    <message id="Slower">
        <source>Slower</source>
        <translation>減慢</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>加快</translation>
    </message>
    <message id="Half as Fast">
        <source>Half as Fast</source>
        <translation>一半速度</translation>
    </message>
    <message id="Twice as Fast">
        <source>Twice as Fast</source>
        <translation>兩倍速度</translation>
    </message>
    <message id="Original Speed">
        <source>Original Speed</source>
        <translation>原始速度</translation>
    </message>
    <message id="Slower and faster, the pitch kept; half and twice as fast">
        <source>Slower and faster, the pitch kept; half and twice as fast</source>
        <translation>減慢與加快，音高不變；一半與兩倍速度</translation>
    </message>
    <message id="As fast as the movie was made">
        <source>As fast as the movie was made</source>
        <translation>影片原有的速度</translation>
    </message>
    <message id="Chapters">
        <source>Chapters</source>
        <translation>章節</translation>
    </message>
    <message id="No Chapters">
        <source>No Chapters</source>
        <translation>無章節</translation>
    </message>
    <message id="Chapter %d of %d">
        <source>Chapter %d of %d</source>
        <translation>第 %d 章，共 %d 章</translation>
    </message>
    <message id="Chapter %d of %d: %@">
        <source>Chapter %d of %d: %@</source>
        <translation>第 %d 章，共 %d 章：%@</translation>
    </message>
    <message id="Next Chapter">
        <source>Next Chapter</source>
        <translation>下一章</translation>
    </message>
    <message id="Previous Chapter">
        <source>Previous Chapter</source>
        <translation>上一章</translation>
    </message>
    <message id="Next and previous chapter">
        <source>Next and previous chapter</source>
        <translation>下一章與上一章</translation>
    </message>
    <message id="Save Still">
        <source>Save Still</source>
        <translation>儲存擷圖</translation>
    </message>
    <message id="Save the picture as a file">
        <source>Save the picture as a file</source>
        <translation>將畫面儲存為檔案</translation>
    </message>
    <message id="Still: %@">
        <source>Still: %@</source>
        <translation>擷圖：%@</translation>
    </message>
    <message id="No Picture to Save">
        <source>No Picture to Save</source>
        <translation>沒有可儲存的畫面</translation>
    </message>
    <message id="Can’t save the still in %@">
        <source>Can’t save the still in %@</source>
        <translation>無法將擷圖儲存到 %@</translation>
    </message>
    <message id="Go to Time">
        <source>Go to Time</source>
        <translation>跳到時間</translation>
    </message>
    <message id="Go to Time...">
        <source>Go to Time...</source>
        <translation>跳到時間…</translation>
    </message>
    <message id="Go to a time">
        <source>Go to a time</source>
        <translation>跳到指定時間</translation>
    </message>
    <message id="Time in the movie:">
        <source>Time in the movie:</source>
        <translation>影片中的時間：</translation>
    </message>
    <message id="Time in the movie, up to %@:">
        <source>Time in the movie, up to %@:</source>
        <translation>影片中的時間，最大 %@：</translation>
    </message>
    <message id="Seconds, minutes or hours: 90, 1:30 or 1:23:45.6">
        <source>Seconds, minutes or hours: 90, 1:30 or 1:23:45.6</source>
        <translation>秒、分或時：90、1:30 或 1:23:45.6</translation>
    </message>
    <message id="Time: %@">
        <source>Time: %@</source>
        <translation>時間：%@</translation>
    </message>
    <message id="Repeat Section">
        <source>Repeat Section</source>
        <translation>循環播放片段</translation>
    </message>
    <message id="Repeat from Here">
        <source>Repeat from Here</source>
        <translation>從這裡循環播放</translation>
    </message>
    <message id="Repeat until Here">
        <source>Repeat until Here</source>
        <translation>循環播放到這裡</translation>
    </message>
    <message id="Repeat a section: its beginning, its end, no more">
        <source>Repeat a section: its beginning, its end, no more</source>
        <translation>循環播放片段：起點、終點、取消</translation>
    </message>
    <message id="Repeat: Off">
        <source>Repeat: Off</source>
        <translation>循環播放片段：關</translation>
    </message>
    <message id="Repeat from %@">
        <source>Repeat from %@</source>
        <translation>從 %@ 循環播放</translation>
    </message>
    <message id="Repeat: %@ – %@">
        <source>Repeat: %@ – %@</source>
        <translation>循環播放片段：%@ – %@</translation>
    </message>
    <message id="Aspect">
        <source>Aspect</source>
        <translation>長寬比</translation>
    </message>
    <message id="Next Aspect">
        <source>Next Aspect</source>
        <translation>下一個長寬比</translation>
    </message>
    <message id="Aspect: automatic, 4:3, 16:9, 2.35:1">
        <source>Aspect: automatic, 4:3, 16:9, 2.35:1</source>
        <translation>長寬比：自動、4:3、16:9、2.35:1</translation>
    </message>
    <message id="Aspect: %@">
        <source>Aspect: %@</source>
        <translation>長寬比：%@</translation>
    </message>
    <message id="2.35:1">
        <source>2.35:1</source>
        <translation>2.35:1</translation>
    </message>
    <message id="Deinterlacing">
        <source>Deinterlacing</source>
        <translation>去交錯</translation>
    </message>
    <message id="Next Deinterlacing">
        <source>Next Deinterlacing</source>
        <translation>下一個去交錯模式</translation>
    </message>
    <message id="Deinterlacing: automatic, on, off">
        <source>Deinterlacing: automatic, on, off</source>
        <translation>去交錯：自動、開、關</translation>
    </message>
    <message id="Deinterlacing: %@">
        <source>Deinterlacing: %@</source>
        <translation>去交錯：%@</translation>
    </message>
    <message id="Picture Colors">
        <source>Picture Colors</source>
        <translation>畫面色彩</translation>
    </message>
    <message id="Less Contrast">
        <source>Less Contrast</source>
        <translation>降低對比</translation>
    </message>
    <message id="More Contrast">
        <source>More Contrast</source>
        <translation>提高對比</translation>
    </message>
    <message id="Darker">
        <source>Darker</source>
        <translation>變暗</translation>
    </message>
    <message id="Brighter">
        <source>Brighter</source>
        <translation>變亮</translation>
    </message>
    <message id="Less Gamma">
        <source>Less Gamma</source>
        <translation>降低 Gamma</translation>
    </message>
    <message id="More Gamma">
        <source>More Gamma</source>
        <translation>提高 Gamma</translation>
    </message>
    <message id="Less Saturation">
        <source>Less Saturation</source>
        <translation>降低飽和度</translation>
    </message>
    <message id="More Saturation">
        <source>More Saturation</source>
        <translation>提高飽和度</translation>
    </message>
    <message id="Hue towards Red">
        <source>Hue towards Red</source>
        <translation>色相偏紅</translation>
    </message>
    <message id="Hue towards Green">
        <source>Hue towards Green</source>
        <translation>色相偏綠</translation>
    </message>
    <message id="Contrast, brightness, gamma, saturation, hue: less and more">
        <source>Contrast, brightness, gamma, saturation, hue: less and more</source>
        <translation>對比、亮度、Gamma、飽和度、色相：降低與提高</translation>
    </message>
    <message id="The colors as the movie has them">
        <source>The colors as the movie has them</source>
        <translation>影片原有的色彩</translation>
    </message>
    <message id="Original Colors">
        <source>Original Colors</source>
        <translation>原始色彩</translation>
    </message>
    <message id="Contrast: %@">
        <source>Contrast: %@</source>
        <translation>對比：%@</translation>
    </message>
    <message id="Brightness: %@">
        <source>Brightness: %@</source>
        <translation>亮度：%@</translation>
    </message>
    <message id="Gamma: %@">
        <source>Gamma: %@</source>
        <translation>Gamma：%@</translation>
    </message>
    <message id="Saturation: %@">
        <source>Saturation: %@</source>
        <translation>飽和度：%@</translation>
    </message>
    <message id="Hue: %@">
        <source>Hue: %@</source>
        <translation>色相：%@</translation>
    </message>
    <message id="Crop Black Bars">
        <source>Crop Black Bars</source>
        <translation>裁切黑邊</translation>
    </message>
    <message id="Cut black bars off">
        <source>Cut black bars off</source>
        <translation>裁去黑邊</translation>
    </message>
    <message id="Crop: On">
        <source>Crop: On</source>
        <translation>裁切黑邊：開</translation>
    </message>
    <message id="Crop: Off">
        <source>Crop: Off</source>
        <translation>裁切黑邊：關</translation>
    </message>
    <message id="No Black Bars">
        <source>No Black Bars</source>
        <translation>沒有黑邊</translation>
    </message>
    <message id="Turn by 90°">
        <source>Turn by 90°</source>
        <translation>旋轉 90°</translation>
    </message>
    <message id="Turn and mirror the picture">
        <source>Turn and mirror the picture</source>
        <translation>旋轉與鏡像畫面</translation>
    </message>
    <message id="Turned by %d°">
        <source>Turned by %d°</source>
        <translation>已旋轉 %d°</translation>
    </message>
    <message id="Mirror">
        <source>Mirror</source>
        <translation>鏡像</translation>
    </message>
    <message id="Mirror: On">
        <source>Mirror: On</source>
        <translation>鏡像：開</translation>
    </message>
    <message id="Mirror: Off">
        <source>Mirror: Off</source>
        <translation>鏡像：關</translation>
    </message>
</context>
<context>
    <name>Tracks</name>
    <message id="Audio Tracks">
        <source>Audio Tracks</source>
        <translation>音軌</translation>
    </message>
    <message id="Audio: %@">
        <source>Audio: %@</source>
        <translation>音訊：%@</translation>
    </message>
    <message id="Next Audio Track">
        <source>Next Audio Track</source>
        <translation>下一個音軌</translation>
    </message>
    <message id="Previous Audio Track">
        <source>Previous Audio Track</source>
        <translation>上一個音軌</translation>
    </message>
    <message id="Next and previous audio track">
        <source>Next and previous audio track</source>
        <translation>下一個與上一個音軌</translation>
    </message>
    <message id="Mono">
        <source>Mono</source>
        <translation>單聲道</translation>
    </message>
    <message id="Stereo">
        <source>Stereo</source>
        <translation>立體聲</translation>
    </message>
    <message id="%d channels">
        <source>%d channels</source>
        <translation>%d 聲道</translation>
    </message>
    <message id="Track %d">
        <source>Track %d</source>
        <translation>軌道 %d</translation>
    </message>
    <message id="forced">
        <source>forced</source>
        <translation>強制</translation>
    </message>
    <message id="Second Subtitles">
        <source>Second Subtitles</source>
        <translation>第二字幕</translation>
    </message>
    <message id="Next Second Subtitles">
        <source>Next Second Subtitles</source>
        <translation>下一個第二字幕</translation>
    </message>
    <message id="Second subtitles: %@">
        <source>Second subtitles: %@</source>
        <translation>第二字幕：%@</translation>
    </message>
    <message id="Second subtitles at the top: next track, none">
        <source>Second subtitles at the top: next track, none</source>
        <translation>頂端的第二字幕：下一個軌道、無</translation>
    </message>
    <message id="SecondSubtitlesRefused">
        <source>Only texts can be shown as second subtitles, and no track twice</source>
        <translation>只有文字字幕可以作為第二字幕，且同一軌道不能顯示兩次</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>畫質</translation>
    </message>
    <message id="Quality: %@">
        <source>Quality: %@</source>
        <translation>畫質：%@</translation>
    </message>
    <message id="Next Quality">
        <source>Next Quality</source>
        <translation>下一種畫質</translation>
    </message>
    <message id="Next quality of a stream">
        <source>Next quality of a stream</source>
        <translation>串流的下一種畫質</translation>
    </message>
    <message id="Only One Quality">
        <source>Only One Quality</source>
        <translation>只有一種畫質</translation>
    </message>
    <message id="Go to Live">
        <source>Go to Live</source>
        <translation>跳到直播</translation>
    </message>
    <message id="Go to what is live now">
        <source>Go to what is live now</source>
        <translation>跳到目前直播的位置</translation>
    </message>
    <message id="Not a Live Stream">
        <source>Not a Live Stream</source>
        <translation>不是直播</translation>
    </message>
    <message id="Live">
        <source>Live</source>
        <translation>直播</translation>
    </message>
    <message id="Behind Live">
        <source>Behind Live</source>
        <translation>落後於直播</translation>
    </message>
    <message id="Reconnecting...">
        <source>Reconnecting...</source>
        <translation>正在重新連線…</translation>
    </message>
    <message id="Connection Lost">
        <source>Connection Lost</source>
        <translation>連線已中斷</translation>
    </message>
</context>
<context>
    <name>Information</name>
    <message id="Information">
        <source>Information</source>
        <translation>資訊</translation>
    </message>
    <message id="Show or hide the information about the movie">
        <source>Show or hide the information about the movie</source>
        <translation>顯示或隱藏影片資訊</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>複製</translation>
    </message>
    <message id="No movie">
        <source>No movie</source>
        <translation>沒有影片</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>名稱</translation>
    </message>
    <message id="Container">
        <source>Container</source>
        <translation>容器</translation>
    </message>
    <message id="Duration">
        <source>Duration</source>
        <translation>長度</translation>
    </message>
    <message id="File size">
        <source>File size</source>
        <translation>檔案大小</translation>
    </message>
    <message id="Bit rate">
        <source>Bit rate</source>
        <translation>位元率</translation>
    </message>
    <message id="Sound">
        <source>Sound</source>
        <translation>音訊</translation>
    </message>
    <message id="Tracks">
        <source>Tracks</source>
        <translation>軌道</translation>
    </message>
    <message id="Frames">
        <source>Frames</source>
        <translation>影格</translation>
    </message>
    <message id="Buffer">
        <source>Buffer</source>
        <translation>緩衝</translation>
    </message>
    <message id="Codec">
        <source>Codec</source>
        <translation>編解碼器</translation>
    </message>
    <message id="Decoder">
        <source>Decoder</source>
        <translation>解碼器</translation>
    </message>
    <message id="Software">
        <source>Software</source>
        <translation>軟體</translation>
    </message>
    <message id="Hardware (%@)">
        <source>Hardware (%@)</source>
        <translation>硬體 (%@)</translation>
    </message>
    <message id="Size">
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message id="%@, displayed as %@">
        <source>%@, displayed as %@</source>
        <translation>%@，顯示為 %@</translation>
    </message>
    <message id="Frame rate">
        <source>Frame rate</source>
        <translation>影格率</translation>
    </message>
    <message id="%@ a second">
        <source>%@ a second</source>
        <translation>每秒 %@</translation>
    </message>
    <message id="%@ a second, now %@">
        <source>%@ a second, now %@</source>
        <translation>每秒 %@，目前 %@</translation>
    </message>
    <message id="Dynamic range">
        <source>Dynamic range</source>
        <translation>動態範圍</translation>
    </message>
    <message id="Standard">
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message id="Color">
        <source>Color</source>
        <translation>色彩</translation>
    </message>
    <message id="Channels">
        <source>Channels</source>
        <translation>聲道</translation>
    </message>
    <message id="Sample rate">
        <source>Sample rate</source>
        <translation>取樣率</translation>
    </message>
    <message id="Output">
        <source>Output</source>
        <translation>輸出</translation>
    </message>
    <message id="%@ (playing)">
        <source>%@ (playing)</source>
        <translation>%@（正在播放）</translation>
    </message>
    <message id="Subtitles shown">
        <source>Subtitles shown</source>
        <translation>顯示的字幕</translation>
    </message>
    <message id="Shown">
        <source>Shown</source>
        <translation>已顯示</translation>
    </message>
    <message id="Late">
        <source>Late</source>
        <translation>延遲</translation>
    </message>
    <message id="Left out">
        <source>Left out</source>
        <translation>捨棄</translation>
    </message>
    <message id="Ready">
        <source>Ready</source>
        <translation>就緒</translation>
    </message>
    <message id="%@ s">
        <source>%@ s</source>
        <translation>%@ 秒</translation>
    </message>
    <message id="Filling">
        <source>Filling</source>
        <translation>填充速度</translation>
    </message>
</context>
</TS>
