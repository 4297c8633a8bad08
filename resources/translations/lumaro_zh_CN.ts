<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_CN">
<context>
    <name>Alerts</name>
    <message id="QTUnableToOpenFileError">
        <source>“%@” can’t be opened.</source>
        <translation>无法打开“%@”。</translation>
    </message>
    <message id="QTUnableToOpenFileDetails">
        <source>The file is missing, damaged, or of a kind that Lumaro doesn’t know (error %d).</source>
        <translation>文件不存在、已损坏，或者是 Lumaro 不支持的类型（错误 %d）。</translation>
    </message>
    <message id="QTUnableToPlayFileError">
        <source>“%@” may not play as it should.</source>
        <translation>“%@”可能无法正常播放。</translation>
    </message>
    <message id="QTUnableToPlayFileDetails">
        <source>Parts of the movie can’t be decoded (error %d). Choose Continue to try it anyway.</source>
        <translation>影片的某些部分无法解码（错误 %d）。选择“继续”可以仍然尝试播放。</translation>
    </message>
    <message id="NoPlayableMoviesInListMessage">
        <source>There is nothing to play.</source>
        <translation>没有可播放的内容。</translation>
    </message>
    <message id="NoPlayableMoviesInListDetails">
        <source>None of the files that were given is a movie that Lumaro can play. You can choose others.</source>
        <translation>给出的文件中没有 Lumaro 可以播放的影片。您可以选择其他文件。</translation>
    </message>
    <message id="OpenErrorMissing">
        <source>The file doesn’t exist.</source>
        <translation>文件不存在。</translation>
    </message>
    <message id="OpenErrorEmpty">
        <source>The file is empty.</source>
        <translation>文件是空的。</translation>
    </message>
    <message id="OpenErrorNotAFile">
        <source>It is a folder or a device, not a file.</source>
        <translation>这是文件夹或设备，不是文件。</translation>
    </message>
    <message id="OpenErrorPermission">
        <source>You aren’t allowed to read the file.</source>
        <translation>您没有读取此文件的权限。</translation>
    </message>
    <message id="OpenErrorNotAMovie">
        <source>It isn’t a movie that Lumaro can play.</source>
        <translation>这不是 Lumaro 可以播放的影片。</translation>
    </message>
    <message id="OpenErrorTimeout">
        <source>No answer came in time.</source>
        <translation>等待响应超时。</translation>
    </message>
    <message id="OpenErrorLibraries">
        <source>The libraries that open movies are missing.</source>
        <translation>缺少打开影片所需的库。</translation>
    </message>
    <message id="OpenErrorScheme">
        <source>Lumaro doesn’t know addresses of this kind.</source>
        <translation>Lumaro 不支持这种地址。</translation>
    </message>
    <message id="OpenErrorUnknownHost">
        <source>There is no server of that name, or no connection to the network.</source>
        <translation>没有该名称的服务器，或者没有连接网络。</translation>
    </message>
    <message id="OpenErrorUnreachable">
        <source>The server can’t be reached.</source>
        <translation>无法连接到服务器。</translation>
    </message>
    <message id="OpenErrorRefused">
        <source>The server refused the connection.</source>
        <translation>服务器拒绝了连接。</translation>
    </message>
    <message id="OpenErrorConnection">
        <source>The connection to the server broke off.</source>
        <translation>与服务器的连接已中断。</translation>
    </message>
    <message id="OpenErrorRanges">
        <source>The server sends files only from their beginning, and what is needed first stands at this movie’s end. Download it to play it.</source>
        <translation>服务器只能从头发送文件，而首先需要的数据位于此影片的末尾。请下载后播放。</translation>
    </message>
    <message id="OpenErrorLogin">
        <source>The server asks for a name and a password (401).</source>
        <translation>服务器要求提供用户名和密码 (401)。</translation>
    </message>
    <message id="OpenErrorForbidden">
        <source>The server doesn’t allow it (403).</source>
        <translation>服务器不允许访问 (403)。</translation>
    </message>
    <message id="OpenErrorNotFound">
        <source>The server has no such file (404).</source>
        <translation>服务器上没有此文件 (404)。</translation>
    </message>
    <message id="OpenErrorRejected">
        <source>The server rejected the request.</source>
        <translation>服务器拒绝了请求。</translation>
    </message>
    <message id="OpenErrorServer">
        <source>The server answered with an error of its own.</source>
        <translation>服务器自身发生了错误。</translation>
    </message>
    <message id="OpenErrorNoMovies">
        <source>There is no movie in this folder.</source>
        <translation>此文件夹中没有影片。</translation>
    </message>
    <message id="OpenErrorNotAList">
        <source>The file is not a playlist.</source>
        <translation>此文件不是播放列表。</translation>
    </message>
    <message id="OpenErrorListEmpty">
        <source>The playlist names no movies.</source>
        <translation>播放列表中没有影片。</translation>
    </message>
    <message id="OpenErrorListTooLarge">
        <source>The playlist is larger than 32 MB.</source>
        <translation>播放列表超过 32 MB。</translation>
    </message>
    <message id="OpenErrorListTooLong">
        <source>The playlist is too long. Only its first 100,000 entries were opened.</source>
        <translation>播放列表太长，只打开了前 100,000 个条目。</translation>
    </message>
    <message id="OpenErrorListTooDeep">
        <source>Too many playlists name each other. This one was left out.</source>
        <translation>互相引用的播放列表太多，已忽略此列表。</translation>
    </message>
    <message id="OpenErrorListDrives">
        <source>Entries on drives of Windows were left out (%@): %@.</source>
        <translation>已忽略位于 Windows 驱动器上的条目 (%@)：%@。</translation>
    </message>
    <message id="OpenErrorListLocal">
        <source>The playlist comes from a network. Entries that name files of this computer were left out (%@): %@.</source>
        <translation>播放列表来自网络，已忽略指向本机文件的条目 (%@)：%@。</translation>
    </message>
    <message id="OpenErrorListNothing">
        <source>Entries that name neither a file nor an address were left out (%@): %@.</source>
        <translation>已忽略既不是文件也不是地址的条目 (%@)：%@。</translation>
    </message>
    <message id="OpenErrorFolders">
        <source>Folders that may not be read (%@): %@.</source>
        <translation>不允许读取的文件夹 (%@)：%@。</translation>
    </message>
    <message id="UnreadableFoldersMessage">
        <source>Not everything could be searched.</source>
        <translation>有些位置未能搜索。</translation>
    </message>
    <message id="AndMoreMessage">
        <source>… and %@ more.</source>
        <translation>… 还有 %@ 个。</translation>
    </message>
    <message id="UnableToOpenLine">
        <source>“%@”: %@ (%@)</source>
        <translation>“%@”：%@ (%@)</translation>
    </message>
    <message id="UnableToOpenFilesMessage">
        <source>%@ files can’t be opened.</source>
        <translation>%@ 个文件无法打开。</translation>
    </message>
    <message id="UnableToPlayFilesMessage">
        <source>%@ movies may not play as they should.</source>
        <translation>%@ 部影片可能无法正常播放。</translation>
    </message>
    <message id="NoMoviesInFoldersDetails">
        <source>There is no movie that Lumaro can play in:</source>
        <translation>以下位置没有 Lumaro 可以播放的影片：</translation>
    </message>
    <message id="Buffering: %d %%">
        <source>Buffering: %d %%</source>
        <translation>正在缓冲：%d %%</translation>
    </message>
    <message id="Stalled: No Data from the Server">
        <source>Stalled: no data from the server</source>
        <translation>已停滞：服务器没有发来数据</translation>
    </message>
    <message id="Loading: %@">
        <source>Loading: %@</source>
        <translation>正在载入：%@</translation>
    </message>
    <message id="ResumedAt">
        <source>Resumed at %@
%@: From the Beginning</source>
        <translation>从 %@ 继续播放
%@：从头播放</translation>
    </message>
    <message id="Looking for Movies: %@">
        <source>Looking for movies: %@</source>
        <translation>正在查找影片：%@</translation>
    </message>
    <message id="FilesFoundMessage" numerus="yes">
        <source>%@ file found…</source>
        <translation>
            <numerusform>找到 %@ 个文件…</numerusform>
        </translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>确定</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>取消</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>继续</translation>
    </message>
    <message id="Open...">
        <source>Open...</source>
        <translation>打开…</translation>
    </message>
    <message id="Open Recent">
        <source>Open Recent</source>
        <translation>最近打开</translation>
    </message>
    <message id="ClearRecent">
        <source>Clear Menu and Forget Places</source>
        <translation>清空菜单并忘记播放位置</translation>
    </message>
    <message id="Open">
        <source>Open</source>
        <translation>打开</translation>
    </message>
    <message id="ConfigureCheckForNewVersionMessage">
        <source>Look for new versions?</source>
        <translation>要检查新版本吗？</translation>
    </message>
    <message id="ConfigureCheckForNewVersionDetails">
        <source>Lumaro can look from time to time whether a newer version exists. Nothing about you or your movies is sent. You can change this in the preferences.</source>
        <translation>Lumaro 可以不时检查是否有新版本。不会发送任何关于您或您的影片的信息。您可以在首选项中更改此设置。</translation>
    </message>
    <message id="CheckNewVersionFailedMessage">
        <source>Looking for a new version failed.</source>
        <translation>检查新版本失败。</translation>
    </message>
    <message id="CheckNewVersionFailedDetails">
        <source>None of the sites could be reached. Check the connection to the internet, or try again later.</source>
        <translation>无法连接到任何站点。请检查互联网连接，或稍后重试。</translation>
    </message>
    <message id="YouHaveLatestVersionMessage">
        <source>Lumaro is up to date.</source>
        <translation>Lumaro 已是最新。</translation>
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
        <translation>现在可以下载%@版本 %@。</translation>
    </message>
    <message id="Download Now...">
        <source>&amp;Download Now...</source>
        <translation>立即下载(&amp;D)…</translation>
    </message>
    <message id="Skip Version">
        <source>&amp;Skip Version</source>
        <translation>跳过此版本(&amp;S)</translation>
    </message>
    <message id="Later">
        <source>Later</source>
        <translation>以后</translation>
    </message>
    <message id="AskDonationMessage">
        <source>Do you enjoy Lumaro?</source>
        <translation>您喜欢 Lumaro 吗？</translation>
    </message>
    <message id="AskDonationDetails">
        <source>Lumaro is free. A donation helps to keep it alive.</source>
        <translation>Lumaro 是免费的。您的捐助能帮助它继续发展。</translation>
    </message>
    <message id="Donate...">
        <source>Donate...</source>
        <translation>捐助…</translation>
    </message>
</context>
<context>
    <name>Version check</name>
    <message id="Up to date">
        <source>Up to date</source>
        <translation>已是最新</translation>
    </message>
    <message id="Newer %@ version %@ available">
        <source>Newer %@ version %@ available</source>
        <translation>有新的%@版本 %@ 可用</translation>
    </message>
    <message id="Failed to reach all mirror sites">
        <source>Failed to reach all mirror sites</source>
        <translation>无法连接到任何镜像站点</translation>
    </message>
    <message id="Release">
        <source>Release</source>
        <translation>正式</translation>
    </message>
    <message id="Beta">
        <source>Beta</source>
        <translation>测试</translation>
    </message>
    <message id="Checking now...">
        <source>Checking now...</source>
        <translation>正在检查…</translation>
    </message>
    <message id="Unknown">
        <source>Unknown</source>
        <translation>未知</translation>
    </message>
    <message id="Never">
        <source>Never</source>
        <translation>从未</translation>
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
        <translation>暂停</translation>
    </message>
    <message id="Movie: Stop">
        <source>Movie: Stop</source>
        <translation>停止</translation>
    </message>
    <message id="Movie: Beginning">
        <source>Movie: Beginning</source>
        <translation>开头</translation>
    </message>
    <message id="Movie: End">
        <source>Movie: End</source>
        <translation>结尾</translation>
    </message>
    <message id="Fast Forward x%d">
        <source>Fast Forward x%d</source>
        <translation>快进 ×%d</translation>
    </message>
    <message id="Fast Rewind x%d">
        <source>Fast Rewind x%d</source>
        <translation>快退 ×%d</translation>
    </message>
    <message id="Jump Forward %d s">
        <source>Jump Forward %d s</source>
        <translation>前进 %d 秒</translation>
    </message>
    <message id="Jump Backward %d s">
        <source>Jump Backward %d s</source>
        <translation>后退 %d 秒</translation>
    </message>
    <message id="Step Forward">
        <source>Step Forward</source>
        <translation>下一帧</translation>
    </message>
    <message id="Step Backward">
        <source>Step Backward</source>
        <translation>上一帧</translation>
    </message>
    <message id="Next: %@">
        <source>Next: %@</source>
        <translation>下一个：%@</translation>
    </message>
    <message id="Previous: %@">
        <source>Previous: %@</source>
        <translation>上一个：%@</translation>
    </message>
    <message id="Screen: Next">
        <source>Screen: Next</source>
        <translation>下一个屏幕</translation>
    </message>
    <message id="Screen: Previous">
        <source>Screen: Previous</source>
        <translation>上一个屏幕</translation>
    </message>
    <message id="Quit">
        <source>Quit</source>
        <translation>退出</translation>
    </message>
    <message id="Sleep">
        <source>Sleep</source>
        <translation>睡眠</translation>
    </message>
    <message id="Restart the Computer">
        <source>Restart the Computer</source>
        <translation>重新启动计算机</translation>
    </message>
    <message id="Shut Down the Computer">
        <source>Shut Down the Computer</source>
        <translation>关闭计算机</translation>
    </message>
    <message id="Log Out">
        <source>Log Out</source>
        <translation>注销</translation>
    </message>
    <message id="Restart failed: %@">
        <source>Restart failed: %@</source>
        <translation>重新启动失败：%@</translation>
    </message>
    <message id="Shutting down failed: %@">
        <source>Shutting down failed: %@</source>
        <translation>关机失败：%@</translation>
    </message>
    <message id="Logging out failed: %@">
        <source>Logging out failed: %@</source>
        <translation>注销失败：%@</translation>
    </message>
    <message id="KeyName Space">
        <source>Space</source>
        <translation>空格</translation>
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
        <translation>媒体播放键</translation>
    </message>
    <message id="KeyName Media Stop">
        <source>Media Stop</source>
        <translation>媒体停止键</translation>
    </message>
    <message id="KeyName Media Next">
        <source>Media Next</source>
        <translation>媒体下一个键</translation>
    </message>
    <message id="KeyName Media Previous">
        <source>Media Previous</source>
        <translation>媒体上一个键</translation>
    </message>
    <message id="KeyName Media Volume Up">
        <source>Media Volume Up</source>
        <translation>媒体音量增大键</translation>
    </message>
    <message id="KeyName Media Volume Down">
        <source>Media Volume Down</source>
        <translation>媒体音量减小键</translation>
    </message>
    <message id="KeyName Media Mute">
        <source>Media Mute</source>
        <translation>媒体静音键</translation>
    </message>
    <message id="Sleep failed: %@">
        <source>Sleep failed: %@</source>
        <translation>睡眠失败：%@</translation>
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
        <translation>大小：两倍</translation>
    </message>
    <message id="Size: Full">
        <source>Size: Full</source>
        <translation>大小：全屏</translation>
    </message>
    <message id="Size: Fit Width">
        <source>Size: Fit Width</source>
        <translation>大小：适合宽度</translation>
    </message>
    <message id="Size: Fit Height">
        <source>Size: Fit Height</source>
        <translation>大小：适合高度</translation>
    </message>
    <message id="Size: Bigger">
        <source>Size: Bigger</source>
        <translation>大小：放大</translation>
    </message>
    <message id="Size: Smaller">
        <source>Size: Smaller</source>
        <translation>大小：缩小</translation>
    </message>
    <message id="Controller: On">
        <source>Controller: On</source>
        <translation>控制栏：开</translation>
    </message>
    <message id="Controller: Off">
        <source>Controller: Off</source>
        <translation>控制栏：关</translation>
    </message>
    <message id="Volume: %@">
        <source>Volume: %@</source>
        <translation>音量：%@</translation>
    </message>
    <message id="Mute: %@">
        <source>Mute: %@</source>
        <translation>静音：%@</translation>
    </message>
    <message id="Muted">
        <source>Muted</source>
        <translation>已静音</translation>
    </message>
    <message id="On">
        <source>On</source>
        <translation>开</translation>
    </message>
    <message id="Off">
        <source>Off</source>
        <translation>关</translation>
    </message>
    <message id="%d%%">
        <source>%d%%</source>
        <translation>%d%%</translation>
    </message>
    <message id="Time: %@/%@">
        <source>Time: %@/%@</source>
        <translation>时间：%@ / %@</translation>
    </message>
    <message id="Movie: %@">
        <source>Movie: %@</source>
        <translation>影片：%@</translation>
    </message>
    <message id="Loop: %@">
        <source>Loop: %@</source>
        <translation>循环：%@</translation>
    </message>
    <message id="One">
        <source>One</source>
        <translation>单个</translation>
    </message>
    <message id="All">
        <source>All</source>
        <translation>全部</translation>
    </message>
    <message id="None">
        <source>None</source>
        <translation>无</translation>
    </message>
    <message id="Subtitles: %@">
        <source>Subtitles: %@</source>
        <translation>字幕：%@</translation>
    </message>
    <message id="Repair: On">
        <source>Repair: On</source>
        <translation>修复：开</translation>
    </message>
    <message id="Repair: Off">
        <source>Repair: Off</source>
        <translation>修复：关</translation>
    </message>
    <message id="SubtitleLinesLost" numerus="yes">
        <source>%d line of it can’t be read.</source>
        <translation>
            <numerusform>其中 %d 行无法读取。</numerusform>
        </translation>
    </message>
    <message id="SubtitlePicturesLost" numerus="yes">
        <source>%d picture of it can’t be read.</source>
        <translation>
            <numerusform>其中 %d 张图像无法读取。</numerusform>
        </translation>
    </message>
    <message id="SubtitleRepairMayHelp">
        <source>Repair (Subtitles menu) may help.</source>
        <translation>“修复”（字幕菜单）也许有帮助。</translation>
    </message>
    <message id="Style">
        <source>Style</source>
        <translation>样式</translation>
    </message>
    <message id="Automatic">
        <source>Automatic</source>
        <translation>自动</translation>
    </message>
</context>
<context>
    <name>Empty player</name>
    <message id="Press %@ to open a movie">
        <source>Press %@ to open a movie</source>
        <translation>按 %@ 打开影片</translation>
    </message>
    <message id="or drop files here. %@ shows all keys.">
        <source>or drop files here. %@ shows all keys.</source>
        <translation>或将文件拖放到此处。按 %@ 显示所有按键。</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message id="File">
        <source>File</source>
        <translation>文件</translation>
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
        <translation>播放列表</translation>
    </message>
    <message id="Subtitles">
        <source>Subtitles</source>
        <translation>字幕</translation>
    </message>
    <message id="Window">
        <source>Window</source>
        <translation>窗口</translation>
    </message>
    <message id="HelpIntroduction">
        <source>Type what you look for. Every command also stands in the menu: at the top edge of the screen, or under the right mouse button.</source>
        <translation>输入要查找的内容。每个命令也都在菜单中：屏幕顶部的菜单，或鼠标右键菜单。</translation>
    </message>
    <message id="What do you want to do?">
        <source>What do you want to do?</source>
        <translation>您想做什么？</translation>
    </message>
    <message id="No command holds these words.">
        <source>No command holds these words.</source>
        <translation>没有包含这些词的命令。</translation>
    </message>
    <message id="Watch and move through the movie">
        <source>Watch and move through the movie</source>
        <translation>观看影片并在其中移动</translation>
    </message>
    <message id="Louder, softer, silent">
        <source>Louder, softer, silent</source>
        <translation>增大、减小音量，静音</translation>
    </message>
    <message id="Read along">
        <source>Read along</source>
        <translation>阅读字幕</translation>
    </message>
    <message id="See the picture larger, and what is playing">
        <source>See the picture larger, and what is playing</source>
        <translation>放大画面，查看正在播放的内容</translation>
    </message>
    <message id="Choose among the movies">
        <source>Choose among the movies</source>
        <translation>选择影片</translation>
    </message>
    <message id="Move to another screen">
        <source>Move to another screen</source>
        <translation>移到另一个屏幕</translation>
    </message>
    <message id="Open, set up and quit">
        <source>Open, set up and quit</source>
        <translation>打开、设置和退出</translation>
    </message>
    <message id="Find help">
        <source>Find help</source>
        <translation>获取帮助</translation>
    </message>
    <message id="Help">
        <source>Help</source>
        <translation>帮助</translation>
    </message>
    <message id="Open URL...">
        <source>Open URL...</source>
        <translation>打开 URL…</translation>
    </message>
    <message id="Open URLs...">
        <source>Open URLs...</source>
        <translation>打开多个 URL…</translation>
    </message>
    <message id="Save Playlist...">
        <source>Save Playlist...</source>
        <translation>保存播放列表…</translation>
    </message>
    <message id="Save Playlist">
        <source>Save Playlist</source>
        <translation>保存播放列表</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="Playlist File">
        <source>Playlist</source>
        <translation>播放列表</translation>
    </message>
    <message id="Save the playlist to a file">
        <source>Save the playlist to a file</source>
        <translation>将播放列表保存到文件</translation>
    </message>
    <message id="SaveErrorMessage">
        <source>“%@” can’t be saved.</source>
        <translation>无法保存“%@”。</translation>
    </message>
    <message id="SaveErrorPermission">
        <source>You don’t have the permission to write there.</source>
        <translation>您没有在该位置写入的权限。</translation>
    </message>
    <message id="SaveErrorReadOnly">
        <source>The disk can’t be written to.</source>
        <translation>无法写入磁盘。</translation>
    </message>
    <message id="SaveErrorFull">
        <source>The disk is full.</source>
        <translation>磁盘已满。</translation>
    </message>
    <message id="SaveErrorFolder">
        <source>The folder doesn’t exist.</source>
        <translation>文件夹不存在。</translation>
    </message>
    <message id="SaveErrorIsFolder">
        <source>This is a folder.</source>
        <translation>这是一个文件夹。</translation>
    </message>
    <message id="Preferences...">
        <source>Preferences...</source>
        <translation>首选项…</translation>
    </message>
    <message id="About Lumaro">
        <source>About Lumaro</source>
        <translation>关于 Lumaro</translation>
    </message>
    <message id="Check for New Version...">
        <source>Check for New Version...</source>
        <translation>检查新版本…</translation>
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
        <translation>两倍大小</translation>
    </message>
    <message id="Full Size">
        <source>Full Size</source>
        <translation>全屏</translation>
    </message>
    <message id="Fit Screen">
        <source>Fit Screen</source>
        <translation>适合屏幕</translation>
    </message>
    <message id="Fit Width">
        <source>Fit Width</source>
        <translation>适合宽度</translation>
    </message>
    <message id="Fit Height">
        <source>Fit Height</source>
        <translation>适合高度</translation>
    </message>
    <message id="Bigger">
        <source>Bigger</source>
        <translation>放大</translation>
    </message>
    <message id="Smaller">
        <source>Smaller</source>
        <translation>缩小</translation>
    </message>
    <message id="Show Controller">
        <source>Show Controller</source>
        <translation>显示控制栏</translation>
    </message>
    <message id="Bar over the Picture">
        <source>Bar over the Picture</source>
        <translation>画面上的控制栏</translation>
    </message>
    <message id="Bar over the picture: off, always, when the pointer moves">
        <source>Bar over the picture: off, always, when the pointer moves</source>
        <translation>画面上的控制栏：关、始终、指针移动时</translation>
    </message>
    <message id="Bar over the Picture: Off">
        <source>Bar over the Picture: Off</source>
        <translation>画面上的控制栏：关</translation>
    </message>
    <message id="Bar over the Picture: Always">
        <source>Bar over the Picture: Always</source>
        <translation>画面上的控制栏：始终</translation>
    </message>
    <message id="Bar over the Picture: When the Pointer Moves">
        <source>Bar over the Picture: When the Pointer Moves</source>
        <translation>画面上的控制栏：指针移动时</translation>
    </message>
    <message id="Tracks...">
        <source>Tracks...</source>
        <translation>轨道…</translation>
    </message>
    <message id="Sound and subtitles in one menu">
        <source>Sound and subtitles in one menu</source>
        <translation>在一个菜单中选择音频和字幕</translation>
    </message>
    <message id="Audio">
        <source>Audio</source>
        <translation>音频</translation>
    </message>
    <message id="Hide Controller">
        <source>Hide Controller</source>
        <translation>隐藏控制栏</translation>
    </message>
    <message id="Next Display">
        <source>Next Display</source>
        <translation>下一个屏幕显示</translation>
    </message>
    <message id="Previous Display">
        <source>Previous Display</source>
        <translation>上一个屏幕显示</translation>
    </message>
    <message id="Play">
        <source>Play</source>
        <translation>播放</translation>
    </message>
    <message id="Pause">
        <source>Pause</source>
        <translation>暂停</translation>
    </message>
    <message id="Fast Forward">
        <source>Fast Forward</source>
        <translation>快进</translation>
    </message>
    <message id="Rewind">
        <source>Rewind</source>
        <translation>快退</translation>
    </message>
    <message id="Jump Forward">
        <source>Jump Forward</source>
        <translation>向前跳转</translation>
    </message>
    <message id="Jump Backward">
        <source>Jump Backward</source>
        <translation>向后跳转</translation>
    </message>
    <message id="Beginning">
        <source>Beginning</source>
        <translation>开头</translation>
    </message>
    <message id="End">
        <source>End</source>
        <translation>结尾</translation>
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
        <translation>不循环</translation>
    </message>
    <message id="Loop Off">
        <source>Loop Off</source>
        <translation>不循环</translation>
    </message>
    <message id="Loop One">
        <source>Loop One</source>
        <translation>单个循环</translation>
    </message>
    <message id="Loop All">
        <source>Loop All</source>
        <translation>全部循环</translation>
    </message>
    <message id="Repair">
        <source>Repair</source>
        <translation>修复</translation>
    </message>
    <message id="Volume Up">
        <source>Volume Up</source>
        <translation>增大音量</translation>
    </message>
    <message id="Volume Down">
        <source>Volume Down</source>
        <translation>减小音量</translation>
    </message>
    <message id="Normal Volume">
        <source>Normal Volume</source>
        <translation>标准音量</translation>
    </message>
    <message id="Silent">
        <source>Silent</source>
        <translation>最小音量</translation>
    </message>
    <message id="Mute">
        <source>Mute</source>
        <translation>静音</translation>
    </message>
    <message id="Next Screen">
        <source>Next Screen</source>
        <translation>下一个屏幕</translation>
    </message>
    <message id="Previous Screen">
        <source>Previous Screen</source>
        <translation>上一个屏幕</translation>
    </message>
    <message id="More...">
        <source>More…</source>
        <translation>更多…</translation>
    </message>
    <message id="The whole list: search, move and remove movies">
        <source>The whole list: search, move and remove movies</source>
        <translation>完整列表：搜索、移动和移除影片</translation>
    </message>
    <message id="Playlist Panel">
        <source>Playlist</source>
        <translation>播放列表</translation>
    </message>
    <message id="Filter">
        <source>Filter</source>
        <translation>筛选</translation>
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
        <translation>Lumaro 帮助</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="Open movies">
        <source>Open movies</source>
        <translation>打开影片</translation>
    </message>
    <message id="Half, normal and double size">
        <source>Half, normal and double size</source>
        <translation>一半、原始和两倍大小</translation>
    </message>
    <message id="Fit to the screen, to its width, to its height">
        <source>Fit to the screen, to its width, to its height</source>
        <translation>适合屏幕、宽度或高度</translation>
    </message>
    <message id="Bigger and smaller">
        <source>Bigger and smaller</source>
        <translation>放大和缩小</translation>
    </message>
    <message id="Controller bar">
        <source>Controller bar</source>
        <translation>控制栏</translation>
    </message>
    <message id="On-screen display: time, movie, subtitles, looping, volume">
        <source>On-screen display: time, movie, subtitles, looping, volume</source>
        <translation>屏幕显示：时间、影片、字幕、循环、音量</translation>
    </message>
    <message id="Play, pause, back to normal speed">
        <source>Play, pause, back to normal speed</source>
        <translation>播放、暂停、恢复正常速度</translation>
    </message>
    <message id="Forward and back: one frame while paused, faster and faster while playing">
        <source>Forward and back: one frame while paused, faster and faster while playing</source>
        <translation>前进和后退：暂停时逐帧，播放时越来越快</translation>
    </message>
    <message id="Jump forward and back">
        <source>Jump forward and back</source>
        <translation>向前和向后跳转</translation>
    </message>
    <message id="Beginning and end of the movie">
        <source>Beginning and end of the movie</source>
        <translation>影片的开头和结尾</translation>
    </message>
    <message id="Next and previous movie">
        <source>Next and previous movie</source>
        <translation>下一部和上一部影片</translation>
    </message>
    <message id="Double Click">
        <source>Double Click</source>
        <translation>双击</translation>
    </message>
    <message id="Middle Button">
        <source>Middle Button</source>
        <translation>中键</translation>
    </message>
    <message id="Back Button">
        <source>Back Button</source>
        <translation>后退键</translation>
    </message>
    <message id="Forward Button">
        <source>Forward Button</source>
        <translation>前进键</translation>
    </message>
    <message id="Wheel Up">
        <source>Wheel Up</source>
        <translation>滚轮向上</translation>
    </message>
    <message id="Wheel Down">
        <source>Wheel Down</source>
        <translation>滚轮向下</translation>
    </message>
    <message id="Looping: off, one, all">
        <source>Looping: off, one, all</source>
        <translation>循环：关、单个、全部</translation>
    </message>
    <message id="Louder and softer">
        <source>Louder and softer</source>
        <translation>增大和减小音量</translation>
    </message>
    <message id="Next and previous subtitles">
        <source>Next and previous subtitles</source>
        <translation>下一个和上一个字幕</translation>
    </message>
    <message id="Sound Earlier">
        <source>Sound Earlier</source>
        <translation>音频提前</translation>
    </message>
    <message id="Sound Later">
        <source>Sound Later</source>
        <translation>音频延后</translation>
    </message>
    <message id="Sound as in the File">
        <source>Sound as in the File</source>
        <translation>音频与文件一致</translation>
    </message>
    <message id="Sound earlier and later">
        <source>Sound earlier and later</source>
        <translation>音频提前和延后</translation>
    </message>
    <message id="Sound at the times of the file">
        <source>Sound at the times of the file</source>
        <translation>音频恢复文件中的时间</translation>
    </message>
    <message id="Sound delay: %@">
        <source>Sound delay: %@</source>
        <translation>音频延迟：%@</translation>
    </message>
    <message id="Add Subtitles...">
        <source>Add Subtitles...</source>
        <translation>添加字幕…</translation>
    </message>
    <message id="Add Subtitles">
        <source>Add Subtitles</source>
        <translation>添加字幕</translation>
    </message>
    <message id="Add a file of subtitles to the movie">
        <source>Add a file of subtitles to the movie</source>
        <translation>为影片添加字幕文件</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>添加</translation>
    </message>
    <message id="NoSubtitlesInFile">
        <source>“%@” holds no subtitles that can be read</source>
        <translation>“%@”中没有可读取的字幕</translation>
    </message>
    <message id="Add to the Movie as Subtitles">
        <source>Add to the Movie as Subtitles</source>
        <translation>作为字幕添加到影片</translation>
    </message>
    <message id="Show Earlier">
        <source>Show Earlier</source>
        <translation>提前显示</translation>
    </message>
    <message id="Show Later">
        <source>Show Later</source>
        <translation>延后显示</translation>
    </message>
    <message id="As in the File">
        <source>As in the File</source>
        <translation>与文件一致</translation>
    </message>
    <message id="Show Subtitles Earlier">
        <source>Show Subtitles Earlier</source>
        <translation>字幕提前</translation>
    </message>
    <message id="Show Subtitles Later">
        <source>Show Subtitles Later</source>
        <translation>字幕延后</translation>
    </message>
    <message id="Subtitles at the Times of Their File">
        <source>Subtitles at the Times of Their File</source>
        <translation>字幕恢复文件中的时间</translation>
    </message>
    <message id="Subtitles earlier and later">
        <source>Subtitles earlier and later</source>
        <translation>字幕提前和延后</translation>
    </message>
    <message id="Subtitles at the times of their file">
        <source>Subtitles at the times of their file</source>
        <translation>字幕恢复文件中的时间</translation>
    </message>
    <message id="First Line Is Spoken Now">
        <source>First Line Is Spoken Now</source>
        <translation>正在说第一行</translation>
    </message>
    <message id="Last Line Is Spoken Now">
        <source>Last Line Is Spoken Now</source>
        <translation>正在说最后一行</translation>
    </message>
    <message id="In step by two lines: press one while the first line is spoken, the other while the last one is">
        <source>In step by two lines: press one while the first line is spoken, the other while the last one is</source>
        <translation>用两行同步：说到第一行时按一个键，说到最后一行时按另一个键</translation>
    </message>
    <message id="Larger Text">
        <source>Larger Text</source>
        <translation>增大文字</translation>
    </message>
    <message id="Smaller Text">
        <source>Smaller Text</source>
        <translation>减小文字</translation>
    </message>
    <message id="Larger Subtitles">
        <source>Larger Subtitles</source>
        <translation>增大字幕</translation>
    </message>
    <message id="Smaller Subtitles">
        <source>Smaller Subtitles</source>
        <translation>减小字幕</translation>
    </message>
    <message id="Subtitles larger and smaller">
        <source>Subtitles larger and smaller</source>
        <translation>增大和减小字幕</translation>
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
        <translation>升高和降低字幕</translation>
    </message>
    <message id="Subtitle delay: %@">
        <source>Subtitle delay: %@</source>
        <translation>字幕延迟：%@</translation>
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
        <translation>无法同步：各行的速度会快或慢一倍以上</translation>
    </message>
    <message id="Repair damaged subtitles">
        <source>Repair damaged subtitles</source>
        <translation>修复损坏的字幕</translation>
    </message>
    <message id="Next and previous screen">
        <source>Next and previous screen</source>
        <translation>下一个和上一个屏幕</translation>
    </message>
</context>
<context>
    <name>Text encodings</name>
    <message id="Western (ASCII)">
        <source>Western (ASCII)</source>
        <translation>西欧语言 (ASCII)</translation>
    </message>
    <message id="Western (ISO Latin 1)">
        <source>Western (ISO Latin 1)</source>
        <translation>西欧语言 (ISO Latin 1)</translation>
    </message>
    <message id="Western (ISO Latin 9)">
        <source>Western (ISO Latin 9)</source>
        <translation>西欧语言 (ISO Latin 9)</translation>
    </message>
    <message id="Western (Windows Latin 1)">
        <source>Western (Windows Latin 1)</source>
        <translation>西欧语言 (Windows Latin 1)</translation>
    </message>
    <message id="Western (Mac OS Roman)">
        <source>Western (Mac OS Roman)</source>
        <translation>西欧语言 (Mac OS Roman)</translation>
    </message>
    <message id="Western (DOS Latin 1)">
        <source>Western (DOS Latin 1)</source>
        <translation>西欧语言 (DOS Latin 1)</translation>
    </message>
    <message id="Latin-US (DOS)">
        <source>Latin-US (DOS)</source>
        <translation>拉丁文-美国 (DOS)</translation>
    </message>
    <message id="Central European (ISO Latin 2)">
        <source>Central European (ISO Latin 2)</source>
        <translation>中欧语言 (ISO Latin 2)</translation>
    </message>
    <message id="Central European (Windows Latin 2)">
        <source>Central European (Windows Latin 2)</source>
        <translation>中欧语言 (Windows Latin 2)</translation>
    </message>
    <message id="Central European (Mac OS)">
        <source>Central European (Mac OS)</source>
        <translation>中欧语言 (Mac OS)</translation>
    </message>
    <message id="Central European (DOS Latin 2)">
        <source>Central European (DOS Latin 2)</source>
        <translation>中欧语言 (DOS Latin 2)</translation>
    </message>
    <message id="Western (ISO Latin 3)">
        <source>Western (ISO Latin 3)</source>
        <translation>西欧语言 (ISO Latin 3)</translation>
    </message>
    <message id="Central European (ISO Latin 4)">
        <source>Central European (ISO Latin 4)</source>
        <translation>中欧语言 (ISO Latin 4)</translation>
    </message>
    <message id="Nordic (ISO Latin 6)">
        <source>Nordic (ISO Latin 6)</source>
        <translation>北欧语言 (ISO Latin 6)</translation>
    </message>
    <message id="Icelandic (DOS)">
        <source>Icelandic (DOS)</source>
        <translation>冰岛语 (DOS)</translation>
    </message>
    <message id="Nordic (DOS)">
        <source>Nordic (DOS)</source>
        <translation>北欧语言 (DOS)</translation>
    </message>
    <message id="Baltic (ISO Latin 7)">
        <source>Baltic (ISO Latin 7)</source>
        <translation>波罗的海语言 (ISO Latin 7)</translation>
    </message>
    <message id="Baltic (Windows)">
        <source>Baltic (Windows)</source>
        <translation>波罗的海语言 (Windows)</translation>
    </message>
    <message id="Baltic (DOS)">
        <source>Baltic (DOS)</source>
        <translation>波罗的海语言 (DOS)</translation>
    </message>
    <message id="Celtic (ISO Latin 8)">
        <source>Celtic (ISO Latin 8)</source>
        <translation>凯尔特语 (ISO Latin 8)</translation>
    </message>
    <message id="Cyrillic (ISO 8859-5)">
        <source>Cyrillic (ISO 8859-5)</source>
        <translation>西里尔文 (ISO 8859-5)</translation>
    </message>
    <message id="Cyrillic (Windows)">
        <source>Cyrillic (Windows)</source>
        <translation>西里尔文 (Windows)</translation>
    </message>
    <message id="Cyrillic (KOI8-R)">
        <source>Cyrillic (KOI8-R)</source>
        <translation>西里尔文 (KOI8-R)</translation>
    </message>
    <message id="Ukrainian (KOI8-U)">
        <source>Ukrainian (KOI8-U)</source>
        <translation>乌克兰语 (KOI8-U)</translation>
    </message>
    <message id="Cyrillic (Mac OS)">
        <source>Cyrillic (Mac OS)</source>
        <translation>西里尔文 (Mac OS)</translation>
    </message>
    <message id="Cyrillic (DOS)">
        <source>Cyrillic (DOS)</source>
        <translation>西里尔文 (DOS)</translation>
    </message>
    <message id="Russian (DOS)">
        <source>Russian (DOS)</source>
        <translation>俄语 (DOS)</translation>
    </message>
    <message id="Greek (ISO 8859-7)">
        <source>Greek (ISO 8859-7)</source>
        <translation>希腊语 (ISO 8859-7)</translation>
    </message>
    <message id="Greek (Windows)">
        <source>Greek (Windows)</source>
        <translation>希腊语 (Windows)</translation>
    </message>
    <message id="Greek (Mac OS)">
        <source>Greek (Mac OS)</source>
        <translation>希腊语 (Mac OS)</translation>
    </message>
    <message id="Greek (DOS)">
        <source>Greek (DOS)</source>
        <translation>希腊语 (DOS)</translation>
    </message>
    <message id="Greek (DOS Greek 2)">
        <source>Greek (DOS Greek 2)</source>
        <translation>希腊语 (DOS Greek 2)</translation>
    </message>
    <message id="Turkish (ISO Latin 5)">
        <source>Turkish (ISO Latin 5)</source>
        <translation>土耳其语 (ISO Latin 5)</translation>
    </message>
    <message id="Turkish (Windows Latin 5)">
        <source>Turkish (Windows Latin 5)</source>
        <translation>土耳其语 (Windows Latin 5)</translation>
    </message>
    <message id="Turkish (Mac OS)">
        <source>Turkish (Mac OS)</source>
        <translation>土耳其语 (Mac OS)</translation>
    </message>
    <message id="Turkish (DOS)">
        <source>Turkish (DOS)</source>
        <translation>土耳其语 (DOS)</translation>
    </message>
    <message id="Hebrew (ISO 8859-8)">
        <source>Hebrew (ISO 8859-8)</source>
        <translation>希伯来语 (ISO 8859-8)</translation>
    </message>
    <message id="Hebrew (Windows)">
        <source>Hebrew (Windows)</source>
        <translation>希伯来语 (Windows)</translation>
    </message>
    <message id="Hebrew (DOS)">
        <source>Hebrew (DOS)</source>
        <translation>希伯来语 (DOS)</translation>
    </message>
    <message id="Arabic (ISO 8859-6)">
        <source>Arabic (ISO 8859-6)</source>
        <translation>阿拉伯语 (ISO 8859-6)</translation>
    </message>
    <message id="Arabic (Windows)">
        <source>Arabic (Windows)</source>
        <translation>阿拉伯语 (Windows)</translation>
    </message>
    <message id="Arabic (DOS)">
        <source>Arabic (DOS)</source>
        <translation>阿拉伯语 (DOS)</translation>
    </message>
    <message id="Portuguese (DOS)">
        <source>Portuguese (DOS)</source>
        <translation>葡萄牙语 (DOS)</translation>
    </message>
    <message id="Canadian French (DOS)">
        <source>Canadian French (DOS)</source>
        <translation>加拿大法语 (DOS)</translation>
    </message>
    <message id="Thai (ISO 8859-11)">
        <source>Thai (ISO 8859-11)</source>
        <translation>泰语 (ISO 8859-11)</translation>
    </message>
    <message id="Thai (Windows, DOS)">
        <source>Thai (Windows, DOS)</source>
        <translation>泰语 (Windows, DOS)</translation>
    </message>
    <message id="Vietnamese (Windows)">
        <source>Vietnamese (Windows)</source>
        <translation>越南语 (Windows)</translation>
    </message>
    <message id="Japanese (Shift JIS)">
        <source>Japanese (Shift JIS)</source>
        <translation>日语 (Shift JIS)</translation>
    </message>
    <message id="Japanese (Windows, DOS)">
        <source>Japanese (Windows, DOS)</source>
        <translation>日语 (Windows, DOS)</translation>
    </message>
    <message id="Japanese (EUC)">
        <source>Japanese (EUC)</source>
        <translation>日语 (EUC)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP)">
        <source>Japanese (ISO 2022-JP)</source>
        <translation>日语 (ISO 2022-JP)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-2)">
        <source>Japanese (ISO 2022-JP-2)</source>
        <translation>日语 (ISO 2022-JP-2)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-1)">
        <source>Japanese (ISO 2022-JP-1)</source>
        <translation>日语 (ISO 2022-JP-1)</translation>
    </message>
    <message id="Chinese (GB 18030)">
        <source>Chinese (GB 18030)</source>
        <translation>中文 (GB 18030)</translation>
    </message>
    <message id="Simplified Chinese (GBK)">
        <source>Simplified Chinese (GBK)</source>
        <translation>简体中文 (GBK)</translation>
    </message>
    <message id="Simplified Chinese (Windows, DOS)">
        <source>Simplified Chinese (Windows, DOS)</source>
        <translation>简体中文 (Windows, DOS)</translation>
    </message>
    <message id="Simplified Chinese (GB 2312)">
        <source>Simplified Chinese (GB 2312)</source>
        <translation>简体中文 (GB 2312)</translation>
    </message>
    <message id="Simplified Chinese (HZ GB 2312)">
        <source>Simplified Chinese (HZ GB 2312)</source>
        <translation>简体中文 (HZ GB 2312)</translation>
    </message>
    <message id="Chinese (ISO 2022-CN)">
        <source>Chinese (ISO 2022-CN)</source>
        <translation>中文 (ISO 2022-CN)</translation>
    </message>
    <message id="Traditional Chinese (Big 5)">
        <source>Traditional Chinese (Big 5)</source>
        <translation>繁体中文 (Big 5)</translation>
    </message>
    <message id="Traditional Chinese (Big 5 HKSCS)">
        <source>Traditional Chinese (Big 5 HKSCS)</source>
        <translation>繁体中文 (Big 5 HKSCS)</translation>
    </message>
    <message id="Traditional Chinese (Windows, DOS)">
        <source>Traditional Chinese (Windows, DOS)</source>
        <translation>繁体中文 (Windows, DOS)</translation>
    </message>
    <message id="Traditional Chinese (EUC)">
        <source>Traditional Chinese (EUC)</source>
        <translation>繁体中文 (EUC)</translation>
    </message>
    <message id="Korean (EUC)">
        <source>Korean (EUC)</source>
        <translation>韩语 (EUC)</translation>
    </message>
    <message id="Korean (Windows, DOS)">
        <source>Korean (Windows, DOS)</source>
        <translation>韩语 (Windows, DOS)</translation>
    </message>
    <message id="Korean (ISO 2022-KR)">
        <source>Korean (ISO 2022-KR)</source>
        <translation>韩语 (ISO 2022-KR)</translation>
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
        <translation>颜色(&amp;C)：</translation>
    </message>
    <message id="StyleTextColorTip">
        <source>The color of the letters, and of the line around the panel</source>
        <translation>文字以及面板边线的颜色</translation>
    </message>
    <message id="StyleTextFontName">
        <source>&amp;Font:</source>
        <translation>字体(&amp;F)：</translation>
    </message>
    <message id="StyleTextFontNameTip">
        <source>The family of the letters</source>
        <translation>文字的字体</translation>
    </message>
    <message id="StyleTextFontSize">
        <source>Si&amp;ze:</source>
        <translation>大小(&amp;Z)：</translation>
    </message>
    <message id="StyleTextFontSizeTip">
        <source>In points of a screen 1080 points high; on a higher one, letters grow with it</source>
        <translation>以高 1080 点的屏幕为准的点数；在更高的屏幕上，文字会随之增大</translation>
    </message>
    <message id="StyleShadow">
        <source>Shadow</source>
        <translation>阴影</translation>
    </message>
    <message id="StyleShadowOn">
        <source>Draw a &amp;shadow</source>
        <translation>绘制阴影(&amp;S)</translation>
    </message>
    <message id="StyleShadowOnTip">
        <source>A shadow keeps letters legible on any picture</source>
        <translation>阴影使文字在任何画面上都清晰可读</translation>
    </message>
    <message id="StyleShadowColor">
        <source>Co&amp;lor:</source>
        <translation>颜色(&amp;L)：</translation>
    </message>
    <message id="StyleShadowColorTip">
        <source>The color of the shadow, and how much shows through it</source>
        <translation>阴影的颜色和透明程度</translation>
    </message>
    <message id="StyleShadowBlur">
        <source>&amp;Blur:</source>
        <translation>模糊(&amp;B)：</translation>
    </message>
    <message id="StyleShadowBlurTip">
        <source>How far the shadow’s edge is spread, in points</source>
        <translation>阴影边缘扩散的范围，以点为单位</translation>
    </message>
    <message id="StyleShadowOffsetX">
        <source>To the &amp;right:</source>
        <translation>向右(&amp;R)：</translation>
    </message>
    <message id="StyleShadowOffsetXTip">
        <source>How far the shadow falls to the right, in points; below 0, to the left</source>
        <translation>阴影向右偏移的距离，以点为单位；小于 0 则向左</translation>
    </message>
    <message id="StyleShadowOffsetY">
        <source>&amp;Upwards:</source>
        <translation>向上(&amp;U)：</translation>
    </message>
    <message id="StyleShadowOffsetYTip">
        <source>How far the shadow falls upwards, in points; below 0, downwards</source>
        <translation>阴影向上偏移的距离，以点为单位；小于 0 则向下</translation>
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
        <translation>显示在什么高度</translation>
    </message>
    <message id="StyleAlignmentHorizontal">
        <source>&amp;Horizontal:</source>
        <translation>水平(&amp;H)：</translation>
    </message>
    <message id="StyleAlignmentHorizontalTip">
        <source>At which side of the screen it stands</source>
        <translation>显示在屏幕的哪一侧</translation>
    </message>
    <message id="StyleLeft">
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message id="StyleCenter">
        <source>Center</source>
        <translation>居中</translation>
    </message>
    <message id="StyleRight">
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message id="StyleTop">
        <source>Top</source>
        <translation>顶部</translation>
    </message>
    <message id="StyleMiddle">
        <source>Middle</source>
        <translation>中间</translation>
    </message>
    <message id="StyleBottom">
        <source>Bottom</source>
        <translation>底部</translation>
    </message>
    <message id="StyleAbovePictureEdge">
        <source>Inside the picture</source>
        <translation>画面内</translation>
    </message>
    <message id="StyleOnPictureEdge">
        <source>On the picture’s edge</source>
        <translation>画面边缘</translation>
    </message>
    <message id="StyleBelowPicture">
        <source>Below the picture</source>
        <translation>画面下方</translation>
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
        <translation>画面周围的颜色</translation>
    </message>
    <message id="StyleBackgroundOn">
        <source>Draw a &amp;panel</source>
        <translation>绘制面板(&amp;P)</translation>
    </message>
    <message id="StyleBackgroundOnTip">
        <source>A panel behind the text</source>
        <translation>文字后面的面板</translation>
    </message>
    <message id="StyleBackgroundColor">
        <source>Col&amp;or:</source>
        <translation>颜色(&amp;O)：</translation>
    </message>
    <message id="StyleBackgroundColorTip">
        <source>The color of the panel, and how much shows through it</source>
        <translation>面板的颜色和透明程度</translation>
    </message>
    <message id="StyleBackgroundRounded">
        <source>Rou&amp;nd corners</source>
        <translation>圆角(&amp;N)</translation>
    </message>
    <message id="StyleBackgroundRoundedTip">
        <source>Corners of the panel are rounded</source>
        <translation>面板使用圆角</translation>
    </message>
    <message id="StyleBackgroundRadius">
        <source>R&amp;adius:</source>
        <translation>半径(&amp;A)：</translation>
    </message>
    <message id="StyleBackgroundRadiusTip">
        <source>How far the corners are rounded, in points</source>
        <translation>圆角的大小，以点为单位</translation>
    </message>
    <message id="StyleFrameOn">
        <source>Draw a fra&amp;me</source>
        <translation>绘制边框(&amp;M)</translation>
    </message>
    <message id="StyleFrameOnTip">
        <source>A line around the panel, in the text’s color</source>
        <translation>面板周围的线，颜色与文字相同</translation>
    </message>
    <message id="StyleFrameWidth">
        <source>&amp;Width:</source>
        <translation>宽度(&amp;W)：</translation>
    </message>
    <message id="StyleFrameWidthTip">
        <source>How wide the line is, in points</source>
        <translation>线的宽度，以点为单位</translation>
    </message>
    <message id="StyleFading">
        <source>Fading and opacity</source>
        <translation>淡入淡出和不透明度</translation>
    </message>
    <message id="StyleFadingIn">
        <source>Fade &amp;in:</source>
        <translation>淡入(&amp;I)：</translation>
    </message>
    <message id="StyleFadingInTip">
        <source>How long a whole fade takes when it appears; 0 shows it at once</source>
        <translation>出现时完整淡入的时长；0 表示立即显示</translation>
    </message>
    <message id="StyleFadingOut">
        <source>Fad&amp;e out:</source>
        <translation>淡出(&amp;E)：</translation>
    </message>
    <message id="StyleFadingOutTip">
        <source>How long a whole fade takes when it goes; 0 hides it at once</source>
        <translation>消失时完整淡出的时长；0 表示立即隐藏</translation>
    </message>
    <message id="StyleFadingDelay">
        <source>S&amp;tay:</source>
        <translation>停留(&amp;T)：</translation>
    </message>
    <message id="StyleFadingDelayTip">
        <source>How long it stays between fading in and fading out</source>
        <translation>淡入和淡出之间停留的时长</translation>
    </message>
    <message id="StyleMinAlpha">
        <source>Opacity when hi&amp;dden:</source>
        <translation>隐藏时的不透明度(&amp;D)：</translation>
    </message>
    <message id="StyleMinAlphaTip">
        <source>How much of it remains while it is hidden: 0 % is nothing</source>
        <translation>隐藏时保留多少：0 % 表示完全不可见</translation>
    </message>
    <message id="StyleMaxAlpha">
        <source>Opacit&amp;y when shown:</source>
        <translation>显示时的不透明度(&amp;Y)：</translation>
    </message>
    <message id="StyleMaxAlphaTip">
        <source>How opaque it is while it is shown: below 100 % the picture shows through</source>
        <translation>显示时的不透明程度：低于 100 % 时能看到后面的画面</translation>
    </message>
    <message id="StyleReset">
        <source>Reset to Defaults</source>
        <translation>恢复默认值</translation>
    </message>
    <message id="StyleResetTip">
        <source>Takes this style back to what it was at first</source>
        <translation>将此样式恢复为最初的样子</translation>
    </message>
    <message id="StyleResetUndo">
        <source>Undo Reset</source>
        <translation>撤销重置</translation>
    </message>
    <message id="StyleResetUndoTip">
        <source>Brings back what the style was before</source>
        <translation>恢复重置前的样式</translation>
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
        <translation>示例</translation>
    </message>
    <message id="StyleSampleTip">
        <source>What it looks like over the movie, or over a light and a dark picture</source>
        <translation>在影片上，或在亮画面和暗画面上的效果</translation>
    </message>
    <message id="StyleSampleSubtitle">
        <source>What an evening!</source>
        <translation>多么美好的夜晚！</translation>
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
        <translation>首选项</translation>
    </message>
    <message id="&amp;Movie">
        <source>&amp;Movie</source>
        <translation>影片(&amp;M)</translation>
    </message>
    <message id="Started Without a File">
        <source>Started Without a File</source>
        <translation>启动时没有文件</translation>
    </message>
    <message id="Open &amp;nothing">
        <source>Open &amp;nothing</source>
        <translation>不打开任何内容(&amp;N)</translation>
    </message>
    <message id="Lumaro starts with an empty screen">
        <source>Lumaro starts with an empty screen</source>
        <translation>Lumaro 以空白屏幕启动</translation>
    </message>
    <message id="Open the &amp;last playlist">
        <source>Open the &amp;last playlist</source>
        <translation>打开上次的播放列表(&amp;L)</translation>
    </message>
    <message id="The movies of the last time come back, at the place where they were left">
        <source>The movies of the last time come back, at the place where they were left</source>
        <translation>重新打开上次的影片，并回到离开时的位置</translation>
    </message>
    <message id="Ask for &amp;files">
        <source>Ask for &amp;files</source>
        <translation>询问文件(&amp;F)</translation>
    </message>
    <message id="Lumaro begins with the panel that opens movies">
        <source>Lumaro begins with the panel that opens movies</source>
        <translation>Lumaro 启动时显示打开影片的面板</translation>
    </message>
    <message id="Picture">
        <source>Picture</source>
        <translation>画面</translation>
    </message>
    <message id="Si&amp;ze:">
        <source>Si&amp;ze:</source>
        <translation>大小(&amp;Z)：</translation>
    </message>
    <message id="How large movies are shown, from now on and at the next start">
        <source>How large movies are shown, from now on and at the next start</source>
        <translation>影片的显示大小，从现在起并在下次启动时生效</translation>
    </message>
    <message id="Custom Magnification">
        <source>Custom Magnification</source>
        <translation>自定义缩放</translation>
    </message>
    <message id="&amp;Window:">
        <source>&amp;Window:</source>
        <translation>窗口(&amp;W)：</translation>
    </message>
    <message id="Whether the movie stays above the windows of other programs while Lumaro has the keyboard">
        <source>Whether the movie stays above the windows of other programs while Lumaro has the keyboard</source>
        <translation>Lumaro 拥有键盘焦点时，影片是否保持在其他程序的窗口之上</translation>
    </message>
    <message id="Bar over the p&amp;icture:">
        <source>Bar over the p&amp;icture:</source>
        <translation>画面上的控制栏(&amp;I)：</translation>
    </message>
    <message id="Where none stands below it: a larger bar that comes with the pointer, or stays">
        <source>Where none stands below it: a larger bar that comes with the pointer, or stays</source>
        <translation>画面下方没有控制栏时：较大的控制栏随指针出现，或一直显示</translation>
    </message>
    <message id="Always">
        <source>Always</source>
        <translation>始终</translation>
    </message>
    <message id="When the pointer moves">
        <source>When the pointer moves</source>
        <translation>指针移动时</translation>
    </message>
    <message id="Among other windows">
        <source>Among other windows</source>
        <translation>与其他窗口同层</translation>
    </message>
    <message id="Above other windows">
        <source>Above other windows</source>
        <translation>在其他窗口之上</translation>
    </message>
    <message id="Show the controller &amp;bar">
        <source>Show the controller &amp;bar</source>
        <translation>显示控制栏(&amp;B)</translation>
    </message>
    <message id="The bar with play, time and volume below the picture">
        <source>The bar with play, time and volume below the picture</source>
        <translation>画面下方带有播放、时间和音量的控制栏</translation>
    </message>
    <message id="Set the screen’s bri&amp;ghtness:">
        <source>Set the screen’s bri&amp;ghtness:</source>
        <translation>设置屏幕亮度(&amp;G)：</translation>
    </message>
    <message id="As long as Lumaro runs; then the screen is as bright as before">
        <source>As long as Lumaro runs; then the screen is as bright as before</source>
        <translation>仅在 Lumaro 运行期间；之后屏幕恢复原来的亮度</translation>
    </message>
    <message id="How bright the screen is while Lumaro runs">
        <source>How bright the screen is while Lumaro runs</source>
        <translation>Lumaro 运行期间的屏幕亮度</translation>
    </message>
    <message id="Brightness of the screen">
        <source>Brightness of the screen</source>
        <translation>屏幕亮度</translation>
    </message>
    <message id="Pictur&amp;e">
        <source>Pictur&amp;e</source>
        <translation>画面(&amp;X)</translation>
    </message>
    <message id="Co&amp;ntrast:">
        <source>Co&amp;ntrast:</source>
        <translation>对比度(&amp;N)：</translation>
    </message>
    <message id="&amp;Brightness:">
        <source>&amp;Brightness:</source>
        <translation>亮度(&amp;B)：</translation>
    </message>
    <message id="&amp;Gamma:">
        <source>&amp;Gamma:</source>
        <translation>伽马(&amp;G)：</translation>
    </message>
    <message id="Sa&amp;turation:">
        <source>Sa&amp;turation:</source>
        <translation>饱和度(&amp;T)：</translation>
    </message>
    <message id="&amp;Hue:">
        <source>&amp;Hue:</source>
        <translation>色相(&amp;H)：</translation>
    </message>
    <message id="Every movie is shown with it, the one on the screen at once">
        <source>Every movie is shown with it, the one on the screen at once</source>
        <translation>所有影片都按此显示，屏幕上的影片立即生效</translation>
    </message>
    <message id="The brightness of this screen can’t be set">
        <source>The brightness of this screen can’t be set</source>
        <translation>无法设置此屏幕的亮度</translation>
    </message>
    <message id="Playing">
        <source>Playing</source>
        <translation>播放</translation>
    </message>
    <message id="&amp;Jump by:">
        <source>&amp;Jump by:</source>
        <translation>跳转(&amp;J)：</translation>
    </message>
    <message id="How many seconds a jump goes forward or back">
        <source>How many seconds a jump goes forward or back</source>
        <translation>每次跳转前进或后退的秒数</translation>
    </message>
    <message id="seconds">
        <source>seconds</source>
        <translation>秒</translation>
    </message>
    <message id="&amp;Keep the volume for the next start">
        <source>&amp;Keep the volume for the next start</source>
        <translation>下次启动时保留音量(&amp;K)</translation>
    </message>
    <message id="Lumaro begins as loud as it ended">
        <source>Lumaro begins as loud as it ended</source>
        <translation>Lumaro 启动时的音量与上次退出时相同</translation>
    </message>
    <message id="While Another Program Has the Keyboard">
        <source>While Another Program Has the Keyboard</source>
        <translation>当其他程序拥有键盘焦点时</translation>
    </message>
    <message id="Pa&amp;use the movie">
        <source>Pa&amp;use the movie</source>
        <translation>暂停影片(&amp;U)</translation>
    </message>
    <message id="It goes on when you come back">
        <source>It goes on when you come back</source>
        <translation>您回来后继续播放</translation>
    </message>
    <message id="&amp;Hide the window">
        <source>&amp;Hide the window</source>
        <translation>隐藏窗口(&amp;H)</translation>
    </message>
    <message id="The window is minimized, and comes back with Lumaro">
        <source>The window is minimized, and comes back with Lumaro</source>
        <translation>窗口会最小化，并随 Lumaro 一起恢复</translation>
    </message>
    <message id="Go on where a mo&amp;vie was left">
        <source>Go on where a mo&amp;vie was left</source>
        <translation>从上次离开的位置继续播放(&amp;V)</translation>
    </message>
    <message id="The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them">
        <source>The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them</source>
        <translation>记住最近一千部影片的播放位置和字幕，并在“最近打开”菜单中列出</translation>
    </message>
    <message id="&amp;Playlist">
        <source>&amp;Playlist</source>
        <translation>播放列表(&amp;P)</translation>
    </message>
    <message id="Order">
        <source>Order</source>
        <translation>顺序</translation>
    </message>
    <message id="As adde&amp;d">
        <source>As adde&amp;d</source>
        <translation>按添加顺序(&amp;D)</translation>
    </message>
    <message id="Movies play in the order in which they were given">
        <source>Movies play in the order in which they were given</source>
        <translation>按给出的顺序播放影片</translation>
    </message>
    <message id="Shu&amp;ffled">
        <source>Shu&amp;ffled</source>
        <translation>随机(&amp;F)</translation>
    </message>
    <message id="Movies play in an order left to chance">
        <source>Movies play in an order left to chance</source>
        <translation>按随机顺序播放影片</translation>
    </message>
    <message id="Sor&amp;ted">
        <source>Sor&amp;ted</source>
        <translation>排序(&amp;T)</translation>
    </message>
    <message id="Movies play by their names">
        <source>Movies play by their names</source>
        <translation>按名称播放影片</translation>
    </message>
    <message id="Compare &amp;numbers by value">
        <source>Compare &amp;numbers by value</source>
        <translation>按数值比较数字(&amp;N)</translation>
    </message>
    <message id="Part 2 comes before part 10">
        <source>Part 2 comes before part 10</source>
        <translation>第 2 部分排在第 10 部分之前</translation>
    </message>
    <message id="By the &amp;whole path">
        <source>By the &amp;whole path</source>
        <translation>按完整路径(&amp;W)</translation>
    </message>
    <message id="Folders stay together">
        <source>Folders stay together</source>
        <translation>同一文件夹的影片排在一起</translation>
    </message>
    <message id="By the f&amp;ile name only">
        <source>By the f&amp;ile name only</source>
        <translation>仅按文件名(&amp;I)</translation>
    </message>
    <message id="Whatever folders the movies lie in">
        <source>Whatever folders the movies lie in</source>
        <translation>无论影片在哪个文件夹中</translation>
    </message>
    <message id="&amp;Looping:">
        <source>&amp;Looping:</source>
        <translation>循环(&amp;L)：</translation>
    </message>
    <message id="What is repeated, from now on and in new playlists">
        <source>What is repeated, from now on and in new playlists</source>
        <translation>重复播放的内容，从现在起并用于新的播放列表</translation>
    </message>
    <message id="&amp;Begin to play what is opened">
        <source>&amp;Begin to play what is opened</source>
        <translation>打开后立即播放(&amp;B)</translation>
    </message>
    <message id="Else movies are shown and wait">
        <source>Else movies are shown and wait</source>
        <translation>否则显示影片并等待</translation>
    </message>
    <message id="&amp;Go on with the next movie">
        <source>&amp;Go on with the next movie</source>
        <translation>继续播放下一部影片(&amp;G)</translation>
    </message>
    <message id="When one ends, the next in the list plays">
        <source>When one ends, the next in the list plays</source>
        <translation>一部影片结束后，播放列表中的下一部</translation>
    </message>
    <message id="&amp;Quit at the end of the list">
        <source>&amp;Quit at the end of the list</source>
        <translation>播完列表后退出(&amp;Q)</translation>
    </message>
    <message id="Unless it is repeated">
        <source>Unless it is repeated</source>
        <translation>除非正在循环</translation>
    </message>
    <message id="&amp;Subtitles">
        <source>&amp;Subtitles</source>
        <translation>字幕(&amp;S)</translation>
    </message>
    <message id="Showing">
        <source>Showing</source>
        <translation>显示</translation>
    </message>
    <message id="S&amp;how subtitles">
        <source>S&amp;how subtitles</source>
        <translation>显示字幕(&amp;H)</translation>
    </message>
    <message id="Also for movies opened later">
        <source>Also for movies opened later</source>
        <translation>以后打开的影片也一样</translation>
    </message>
    <message id="Draw mark&amp;up">
        <source>Draw mark&amp;up</source>
        <translation>应用标记(&amp;U)</translation>
    </message>
    <message id="Italics, colors and places in subtitle files act; else they are left out">
        <source>Italics, colors and places in subtitle files act; else they are left out</source>
        <translation>字幕文件中的斜体、颜色和位置会生效；否则将被忽略</translation>
    </message>
    <message id="&amp;Find subtitle files beside movies">
        <source>&amp;Find subtitle files beside movies</source>
        <translation>查找影片旁边的字幕文件(&amp;F)</translation>
    </message>
    <message id="When a movie is opened">
        <source>When a movie is opened</source>
        <translation>打开影片时</translation>
    </message>
    <message id="Files">
        <source>Files</source>
        <translation>文件</translation>
    </message>
    <message id="E&amp;ncoding:">
        <source>E&amp;ncoding:</source>
        <translation>编码(&amp;E)：</translation>
    </message>
    <message id="How the letters of subtitle files are stored; Automatic tells it by the file">
        <source>How the letters of subtitle files are stored; Automatic tells it by the file</source>
        <translation>字幕文件中文字的存储方式；“自动”会根据文件判断</translation>
    </message>
    <message id="Encoding of subtitle files">
        <source>Encoding of subtitle files</source>
        <translation>字幕文件的编码</translation>
    </message>
    <message id="Frame ra&amp;te:">
        <source>Frame ra&amp;te:</source>
        <translation>帧率(&amp;T)：</translation>
    </message>
    <message id="For subtitle files that count pictures instead of seconds">
        <source>For subtitle files that count pictures instead of seconds</source>
        <translation>用于以帧数而不是秒数计时的字幕文件</translation>
    </message>
    <message id="As the movie">
        <source>As the movie</source>
        <translation>与影片相同</translation>
    </message>
    <message id="Repair &amp;damaged subtitle files">
        <source>Repair &amp;damaged subtitle files</source>
        <translation>修复损坏的字幕文件(&amp;D)</translation>
    </message>
    <message id="What is damaged is read as far as it can be">
        <source>What is damaged is read as far as it can be</source>
        <translation>尽可能读取损坏的内容</translation>
    </message>
    <message id="Preferred Languages">
        <source>Preferred Languages</source>
        <translation>首选语言</translation>
    </message>
    <message id="Preferred languages">
        <source>Preferred languages</source>
        <translation>首选语言</translation>
    </message>
    <message id="Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.">
        <source>Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.</source>
        <translation>影片开始时使用其中第一种可用语言的字幕。最初是您的系统语言。</translation>
    </message>
    <message id="Add a language">
        <source>Add a language</source>
        <translation>添加语言</translation>
    </message>
    <message id="Adds a language to the list">
        <source>Adds a language to the list</source>
        <translation>将一种语言添加到列表</translation>
    </message>
    <message id="Hi&amp;gher">
        <source>Hi&amp;gher</source>
        <translation>上移(&amp;G)</translation>
    </message>
    <message id="Moves the language up the list">
        <source>Moves the language up the list</source>
        <translation>在列表中上移此语言</translation>
    </message>
    <message id="Lo&amp;wer">
        <source>Lo&amp;wer</source>
        <translation>下移(&amp;W)</translation>
    </message>
    <message id="Moves the language down the list">
        <source>Moves the language down the list</source>
        <translation>在列表中下移此语言</translation>
    </message>
    <message id="Remo&amp;ve">
        <source>Remo&amp;ve</source>
        <translation>移除(&amp;V)</translation>
    </message>
    <message id="Takes the language off the list">
        <source>Takes the language off the list</source>
        <translation>从列表中移除此语言</translation>
    </message>
    <message id="&amp;Overlays">
        <source>&amp;Overlays</source>
        <translation>叠加显示(&amp;O)</translation>
    </message>
    <message id="Smallest &amp;text size:">
        <source>Smallest &amp;text size:</source>
        <translation>最小文字大小(&amp;T)：</translation>
    </message>
    <message id="No text over the movie is smaller">
        <source>No text over the movie is smaller</source>
        <translation>影片上的文字不会小于此值</translation>
    </message>
    <message id="&amp;Distance from the edges:">
        <source>&amp;Distance from the edges:</source>
        <translation>与边缘的距离(&amp;D)：</translation>
    </message>
    <message id="How far what is shown over the movie keeps from the edges of the window">
        <source>How far what is shown over the movie keeps from the edges of the window</source>
        <translation>影片上显示的内容与窗口边缘的距离</translation>
    </message>
    <message id="Show &amp;feedback">
        <source>Show &amp;feedback</source>
        <translation>显示操作反馈(&amp;F)</translation>
    </message>
    <message id="Commands say what they did">
        <source>Commands say what they did</source>
        <translation>命令会显示执行结果</translation>
    </message>
    <message id="&amp;Keep the display for the next start">
        <source>&amp;Keep the display for the next start</source>
        <translation>下次启动时保留屏幕显示(&amp;K)</translation>
    </message>
    <message id="The on-screen display chosen last is shown again">
        <source>The on-screen display chosen last is shown again</source>
        <translation>再次显示上次选择的屏幕显示</translation>
    </message>
    <message id="How texts over the movie and the window look">
        <source>How texts over the movie and the window look</source>
        <translation>影片上的文字和窗口的外观</translation>
    </message>
    <message id="Overlay styles">
        <source>Overlay styles</source>
        <translation>叠加显示样式</translation>
    </message>
    <message id="How subtitles look">
        <source>How subtitles look</source>
        <translation>字幕的外观</translation>
    </message>
    <message id="Subtitle styles">
        <source>Subtitle styles</source>
        <translation>字幕样式</translation>
    </message>
    <message id="&amp;Advanced">
        <source>&amp;Advanced</source>
        <translation>高级(&amp;A)</translation>
    </message>
    <message id="Pointer">
        <source>Pointer</source>
        <translation>指针</translation>
    </message>
    <message id="&amp;Hide after:">
        <source>&amp;Hide after:</source>
        <translation>隐藏等待时间(&amp;H)：</translation>
    </message>
    <message id="How long the pointer rests before it is hidden">
        <source>How long the pointer rests before it is hidden</source>
        <translation>指针静止多久后隐藏</translation>
    </message>
    <message id="New Versions">
        <source>New Versions</source>
        <translation>新版本</translation>
    </message>
    <message id="The packages of your system keep Lumaro up to date.">
        <source>The packages of your system keep Lumaro up to date.</source>
        <translation>系统的软件包会使 Lumaro 保持最新。</translation>
    </message>
    <message id="Look for new &amp;versions">
        <source>Look for new &amp;versions</source>
        <translation>检查新版本(&amp;V)</translation>
    </message>
    <message id="When Lumaro starts, as often as is set below">
        <source>When Lumaro starts, as often as is set below</source>
        <translation>在 Lumaro 启动时，按下方设置的频率检查</translation>
    </message>
    <message id="Also for &amp;beta versions">
        <source>Also for &amp;beta versions</source>
        <translation>包括测试版本(&amp;B)</translation>
    </message>
    <message id="Versions that are still being tried">
        <source>Versions that are still being tried</source>
        <translation>仍在测试中的版本</translation>
    </message>
    <message id="Ho&amp;w often:">
        <source>Ho&amp;w often:</source>
        <translation>频率(&amp;W)：</translation>
    </message>
    <message id="How much time passes between two checks">
        <source>How much time passes between two checks</source>
        <translation>两次检查之间的间隔</translation>
    </message>
    <message id="At every start">
        <source>At every start</source>
        <translation>每次启动时</translation>
    </message>
    <message id="Daily">
        <source>Daily</source>
        <translation>每天</translation>
    </message>
    <message id="Weekly">
        <source>Weekly</source>
        <translation>每周</translation>
    </message>
    <message id="Every 30 days">
        <source>Every 30 days</source>
        <translation>每 30 天</translation>
    </message>
    <message id="Last check:">
        <source>Last check:</source>
        <translation>上次检查：</translation>
    </message>
    <message id="Result:">
        <source>Result:</source>
        <translation>结果：</translation>
    </message>
    <message id="Check &amp;Now">
        <source>Check &amp;Now</source>
        <translation>立即检查(&amp;N)</translation>
    </message>
    <message id="Looks for a new version at once">
        <source>Looks for a new version at once</source>
        <translation>立即检查是否有新版本</translation>
    </message>
    <message id="Diagnosis">
        <source>Diagnosis</source>
        <translation>诊断</translation>
    </message>
    <message id="Remote">
        <source>Remote</source>
        <translation>遥控器</translation>
    </message>
    <message id="Act on in&amp;frared remotes">
        <source>Act on in&amp;frared remotes</source>
        <translation>响应红外遥控器(&amp;F)</translation>
    </message>
    <message id="Their buttons are the player's alone while it runs">
        <source>Their buttons are the player's alone while it runs</source>
        <translation>播放器运行期间，遥控器按键仅供它使用</translation>
    </message>
    <message id="&amp;Log what happens">
        <source>&amp;Log what happens</source>
        <translation>记录日志(&amp;L)</translation>
    </message>
    <message id="Lines for whoever looks for an error, in the system log or the terminal">
        <source>Lines for whoever looks for an error, in the system log or the terminal</source>
        <translation>供查找错误使用的记录，写入系统日志或终端</translation>
    </message>
    <message id="&amp;Reset Page">
        <source>&amp;Reset Page</source>
        <translation>重置此页(&amp;R)</translation>
    </message>
    <message id="Takes the settings of this page back to what they were at first. Styles have a button of their own.">
        <source>Takes the settings of this page back to what they were at first. Styles have a button of their own.</source>
        <translation>将此页的设置恢复为最初的值。样式有单独的按钮。</translation>
    </message>
    <message id="Undo Reset">
        <source>Undo Reset</source>
        <translation>撤销重置</translation>
    </message>
    <message id="Brings the settings of this page back (Ctrl+Z)">
        <source>Brings the settings of this page back (Ctrl+Z)</source>
        <translation>恢复此页重置前的设置 (Ctrl+Z)</translation>
    </message>
    <message id="Find a setting">
        <source>Find a setting</source>
        <translation>查找设置</translation>
    </message>
    <message id="Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.">
        <source>Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.</source>
        <translation>按文字查找设置 (Ctrl+F)。上下方向键转到其他结果，Enter 键转到该设置。</translation>
    </message>
    <message id="PreferencesFound">
        <source>%d of %d</source>
        <translation>%d / %d</translation>
    </message>
    <message id="Nothing found">
        <source>Nothing found</source>
        <translation>未找到</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>关闭</translation>
    </message>
    <message id="More Encodings">
        <source>More Encodings</source>
        <translation>更多编码</translation>
    </message>
    <message id="%d sec.">
        <source>%d sec.</source>
        <translation>%d 秒</translation>
    </message>
    <message id="%d pt">
        <source>%d pt</source>
        <translation>%d 点</translation>
    </message>
    <message id="Search: %@">
        <source>Search: %@</source>
        <translation>搜索：%@</translation>
    </message>
    <message id="Type to search">
        <source>Type to search</source>
        <translation>输入以搜索</translation>
    </message>
    <message id="Change the preferences">
        <source>Change the preferences</source>
        <translation>更改首选项</translation>
    </message>
    <message id="Feedback style">
        <source>Feedback</source>
        <translation>操作反馈</translation>
    </message>
    <message id="Text style">
        <source>Texts</source>
        <translation>文本</translation>
    </message>
    <message id="Picture style">
        <source>Bitmaps</source>
        <translation>位图</translation>
    </message>
    <message id="On-screen display style">
        <source>On-Screen Display</source>
        <translation>屏幕显示</translation>
    </message>
    <message id="Window style">
        <source>Window</source>
        <translation>窗口</translation>
    </message>
    <message id="SettingsNotSavedMessage">
        <source>The preferences can’t be saved.</source>
        <translation>无法保存首选项。</translation>
    </message>
    <message id="SettingsNotSavedDetails">
        <source>What you change acts until Lumaro quits. The file “%@” can’t be written.</source>
        <translation>您所做的更改在 Lumaro 退出前有效。无法写入文件“%@”。</translation>
    </message>
    <message id="SettingsDamagedMessage">
        <source>The preferences are damaged.</source>
        <translation>首选项已损坏。</translation>
    </message>
    <message id="SettingsDamagedDetails">
        <source>Lumaro begins with new ones. The damaged file is kept as “%@”.</source>
        <translation>Lumaro 将使用新的首选项。损坏的文件已保留为“%@”。</translation>
    </message>
    <message id="SettingsUnreadableMessage">
        <source>The preferences can’t be read.</source>
        <translation>无法读取首选项。</translation>
    </message>
    <message id="SettingsUnreadableDetails">
        <source>The file “%@” stays as it is. What you change acts until Lumaro quits.</source>
        <translation>文件“%@”将保持不变。您所做的更改在 Lumaro 退出前有效。</translation>
    </message>
    <message id="PlacesDamagedMessage">
        <source>The remembered places in movies are damaged; their file was put aside.</source>
        <translation>记住的播放位置已损坏；其文件已移到一旁保留。</translation>
    </message>
    <message id="PlacesUnreadableMessage">
        <source>The remembered places in movies can’t be read.</source>
        <translation>无法读取记住的播放位置。</translation>
    </message>
    <message id="PlacesOfLaterVersionMessage">
        <source>A later version of Lumaro remembers places in movies here; this one can’t.</source>
        <translation>这里的播放位置由更新版本的 Lumaro 记录；此版本无法使用。</translation>
    </message>
    <message id="Short&amp;cuts">
        <source>Short&amp;cuts</source>
        <translation>快捷键(&amp;C)</translation>
    </message>
    <message id="Searc&amp;h:">
        <source>Searc&amp;h:</source>
        <translation>搜索(&amp;E)：</translation>
    </message>
    <message id="Words of a command, or its key">
        <source>Words of a command, or its key</source>
        <translation>命令中的文字，或其按键</translation>
    </message>
    <message id="The commands by menu; bold ones have keys of your own">
        <source>The commands by menu; bold ones have keys of your own</source>
        <translation>按菜单排列的命令；粗体表示使用您自己的按键</translation>
    </message>
    <message id="Commands and their keys">
        <source>Commands and their keys</source>
        <translation>命令及其按键</translation>
    </message>
    <message id="Command">
        <source>Command</source>
        <translation>命令</translation>
    </message>
    <message id="Keys">
        <source>Keys</source>
        <translation>按键</translation>
    </message>
    <message id="&amp;Keys of the command:">
        <source>&amp;Keys of the command:</source>
        <translation>命令的按键(&amp;K)：</translation>
    </message>
    <message id="The keys of the command that is marked">
        <source>The keys of the command that is marked</source>
        <translation>所选命令的按键</translation>
    </message>
    <message id="A&amp;dd Key...">
        <source>A&amp;dd Key...</source>
        <translation>添加按键(&amp;D)…</translation>
    </message>
    <message id="Then press the key, with Ctrl, Alt, Shift or Super if you like">
        <source>Then press the key, with Ctrl, Alt, Shift or Super if you like</source>
        <translation>然后按下按键，可同时按住 Ctrl、Alt、Shift 或 Super</translation>
    </message>
    <message id="Remo&amp;ve Key">
        <source>Remo&amp;ve Key</source>
        <translation>移除按键(&amp;V)</translation>
    </message>
    <message id="The marked key means nothing any more">
        <source>The marked key means nothing any more</source>
        <translation>所选按键不再有任何作用</translation>
    </message>
    <message id="Rese&amp;t Command">
        <source>Rese&amp;t</source>
        <translation>重置(&amp;T)</translation>
    </message>
    <message id="The command gets back the keys that Lumaro came with">
        <source>The command gets back the keys that Lumaro came with</source>
        <translation>将此命令的按键恢复为 Lumaro 的默认按键</translation>
    </message>
    <message id="Reset A&amp;ll Keys">
        <source>Reset A&amp;ll</source>
        <translation>全部重置(&amp;L)</translation>
    </message>
    <message id="Every command gets back the keys that Lumaro came with">
        <source>Every command gets back the keys that Lumaro came with</source>
        <translation>将所有命令的按键恢复为 Lumaro 的默认按键</translation>
    </message>
    <message id="&amp;Undo Key Change">
        <source>&amp;Undo</source>
        <translation>撤销(&amp;U)</translation>
    </message>
    <message id="Takes back the last change of a key">
        <source>Takes back the last change of a key</source>
        <translation>撤销对按键的最后一次更改</translation>
    </message>
    <message id="Take &amp;It Over">
        <source>Take &amp;It Over</source>
        <translation>改为此命令(&amp;I)</translation>
    </message>
    <message id="The key means the marked command from now on">
        <source>The key means the marked command from now on</source>
        <translation>从现在起，此按键用于所选命令</translation>
    </message>
    <message id="Ca&amp;ncel Key">
        <source>Ca&amp;ncel</source>
        <translation>取消(&amp;N)</translation>
    </message>
    <message id="The key keeps its meaning">
        <source>The key keeps its meaning</source>
        <translation>此按键保持原有用途</translation>
    </message>
    <message id="Press a key for “%@”. Esc goes back.">
        <source>Press a key for “%@”. Esc goes back.</source>
        <translation>请按下用于“%@”的按键。按 Esc 返回。</translation>
    </message>
    <message id="Lumaro does not know this key.">
        <source>Lumaro does not know this key.</source>
        <translation>Lumaro 不认识这个按键。</translation>
    </message>
    <message id="Esc closes windows and ends Lumaro; that can’t be changed.">
        <source>Esc closes windows and ends Lumaro; that can’t be changed.</source>
        <translation>Esc 用于关闭窗口和退出 Lumaro，无法更改。</translation>
    </message>
    <message id="%@ belongs to the desktop.">
        <source>%@ belongs to the desktop.</source>
        <translation>%@ 由桌面环境使用。</translation>
    </message>
    <message id="%@ means “%@” already.">
        <source>%@ means “%@” already.</source>
        <translation>%@ 已用于“%@”。</translation>
    </message>
    <message id="“%@” has as many keys as it can have; remove one first.">
        <source>“%@” has as many keys as it can have; remove one first.</source>
        <translation>“%@”的按键已达上限；请先移除一个。</translation>
    </message>
    <message id="%@ means “%@” now.">
        <source>%@ means “%@” now.</source>
        <translation>%@ 现在用于“%@”。</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message id="Next Looping">
        <source>Next Looping</source>
        <translation>下一个循环模式</translation>
    </message>
    <message id="Previous Looping">
        <source>Previous Looping</source>
        <translation>上一个循环模式</translation>
    </message>
    <message id="Show Playlist">
        <source>Show Playlist</source>
        <translation>显示播放列表</translation>
    </message>
    <message id="Next Subtitles">
        <source>Next Subtitles</source>
        <translation>下一个字幕</translation>
    </message>
    <message id="Previous Subtitles">
        <source>Previous Subtitles</source>
        <translation>上一个字幕</translation>
    </message>
    <message id="No Subtitles">
        <source>No Subtitles</source>
        <translation>无字幕</translation>
    </message>
    <message id="Open a movie from the menu">
        <source>Open a movie from the menu</source>
        <translation>从菜单打开影片</translation>
    </message>
    <message id="or drop files here.">
        <source>or drop files here.</source>
        <translation>或将文件拖放到此处。</translation>
    </message>
    <message id="Keys of the command">
        <source>Keys of the command</source>
        <translation>命令的按键</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message id="Open pages of video sites with &amp;yt-dlp">
        <source>Open pages of video sites with &amp;yt-dlp</source>
        <translation>使用 yt-dlp 打开视频网站的页面(&amp;Y)</translation>
    </message>
    <message id="An address that is no movie is asked of the program yt-dlp, where it is installed">
        <source>An address that is no movie is asked of the program yt-dlp, where it is installed</source>
        <translation>对于不是影片的地址，会询问已安装的 yt-dlp 程序</translation>
    </message>
    <message id="Open Movies">
        <source>Open Movies</source>
        <translation>打开影片</translation>
    </message>
    <message id="Open Folder">
        <source>Open Folder</source>
        <translation>打开文件夹</translation>
    </message>
    <message id="Open Folder...">
        <source>Open Folder...</source>
        <translation>打开文件夹…</translation>
    </message>
    <message id="Movies and Sound">
        <source>Movies and Sound</source>
        <translation>影片和音频</translation>
    </message>
    <message id="All Files">
        <source>All Files</source>
        <translation>所有文件</translation>
    </message>
    <message id="Add to Playlist">
        <source>Add to Playlist</source>
        <translation>添加到播放列表</translation>
    </message>
    <message id="Open folders of movies">
        <source>Open folders of movies</source>
        <translation>打开影片文件夹</translation>
    </message>
    <message id="Open an address, several addresses">
        <source>Open an address, several addresses</source>
        <translation>打开一个或多个地址</translation>
    </message>
    <message id="Open URL">
        <source>Open URL</source>
        <translation>打开 URL</translation>
    </message>
    <message id="Open URLs">
        <source>Open URLs</source>
        <translation>打开多个 URL</translation>
    </message>
    <message id="&amp;Address or path of a movie:">
        <source>&amp;Address or path of a movie:</source>
        <translation>影片的地址或路径(&amp;A)：</translation>
    </message>
    <message id="&amp;Addresses or paths of movies, one in each line:">
        <source>&amp;Addresses or paths of movies, one in each line:</source>
        <translation>影片的地址或路径，每行一个(&amp;A)：</translation>
    </message>
    <message id="Address">
        <source>Address</source>
        <translation>地址</translation>
    </message>
    <message id="Addresses">
        <source>Addresses</source>
        <translation>地址</translation>
    </message>
    <message id="Add to &amp;Playlist">
        <source>Add to &amp;Playlist</source>
        <translation>添加到播放列表(&amp;P)</translation>
    </message>
    <message id="What plays now goes on; holding Alt does the same">
        <source>What plays now goes on; holding Alt does the same</source>
        <translation>正在播放的内容会继续；按住 Alt 效果相同</translation>
    </message>
    <message id="Replace the Playlist">
        <source>Replace the Playlist</source>
        <translation>替换播放列表</translation>
    </message>
    <message id="Add to the Playlist">
        <source>Add to the Playlist</source>
        <translation>添加到播放列表</translation>
    </message>
    <message id="OpenErrorSubtitles">
        <source>It holds subtitles. They are shown by themselves when they lie beside their movie and begin with its name.</source>
        <translation>这是字幕文件。字幕与影片放在一起并且以影片名称开头时，会自动显示。</translation>
    </message>
    <message id="OpenErrorNotAnAddress">
        <source>It is neither an address nor the path of a file.</source>
        <translation>这既不是地址，也不是文件路径。</translation>
    </message>
    <message id="Resumed at %@">
        <source>Resumed at %@</source>
        <translation>从 %@ 继续播放</translation>
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
        <translation>减慢</translation>
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
        <translation>两倍速度</translation>
    </message>
    <message id="Original Speed">
        <source>Original Speed</source>
        <translation>原始速度</translation>
    </message>
    <message id="Slower and faster, the pitch kept; half and twice as fast">
        <source>Slower and faster, the pitch kept; half and twice as fast</source>
        <translation>减慢和加快，音调不变；一半和两倍速度</translation>
    </message>
    <message id="As fast as the movie was made">
        <source>As fast as the movie was made</source>
        <translation>影片原有的速度</translation>
    </message>
    <message id="Chapters">
        <source>Chapters</source>
        <translation>章节</translation>
    </message>
    <message id="No Chapters">
        <source>No Chapters</source>
        <translation>无章节</translation>
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
        <translation>下一章和上一章</translation>
    </message>
    <message id="Save Still">
        <source>Save Still</source>
        <translation>保存截图</translation>
    </message>
    <message id="Save the picture as a file">
        <source>Save the picture as a file</source>
        <translation>将画面保存为文件</translation>
    </message>
    <message id="Still: %@">
        <source>Still: %@</source>
        <translation>截图：%@</translation>
    </message>
    <message id="No Picture to Save">
        <source>No Picture to Save</source>
        <translation>没有可保存的画面</translation>
    </message>
    <message id="Can’t save the still in %@">
        <source>Can’t save the still in %@</source>
        <translation>无法将截图保存到 %@</translation>
    </message>
    <message id="Go to Time">
        <source>Go to Time</source>
        <translation>跳转到时间</translation>
    </message>
    <message id="Go to Time...">
        <source>Go to Time...</source>
        <translation>跳转到时间…</translation>
    </message>
    <message id="Go to a time">
        <source>Go to a time</source>
        <translation>跳转到指定时间</translation>
    </message>
    <message id="Time in the movie:">
        <source>Time in the movie:</source>
        <translation>影片中的时间：</translation>
    </message>
    <message id="Time in the movie, up to %@:">
        <source>Time in the movie, up to %@:</source>
        <translation>影片中的时间，最大 %@：</translation>
    </message>
    <message id="Seconds, minutes or hours: 90, 1:30 or 1:23:45.6">
        <source>Seconds, minutes or hours: 90, 1:30 or 1:23:45.6</source>
        <translation>秒、分或时：90、1:30 或 1:23:45.6</translation>
    </message>
    <message id="Time: %@">
        <source>Time: %@</source>
        <translation>时间：%@</translation>
    </message>
    <message id="Repeat Section">
        <source>Repeat Section</source>
        <translation>循环片段</translation>
    </message>
    <message id="Repeat from Here">
        <source>Repeat from Here</source>
        <translation>从此处循环</translation>
    </message>
    <message id="Repeat until Here">
        <source>Repeat until Here</source>
        <translation>循环到此处</translation>
    </message>
    <message id="Repeat a section: its beginning, its end, no more">
        <source>Repeat a section: its beginning, its end, no more</source>
        <translation>循环片段：起点、终点、取消</translation>
    </message>
    <message id="Repeat: Off">
        <source>Repeat: Off</source>
        <translation>循环片段：关</translation>
    </message>
    <message id="Repeat from %@">
        <source>Repeat from %@</source>
        <translation>从 %@ 循环</translation>
    </message>
    <message id="Repeat: %@ – %@">
        <source>Repeat: %@ – %@</source>
        <translation>循环片段：%@ – %@</translation>
    </message>
    <message id="Aspect">
        <source>Aspect</source>
        <translation>宽高比</translation>
    </message>
    <message id="Next Aspect">
        <source>Next Aspect</source>
        <translation>下一个宽高比</translation>
    </message>
    <message id="Aspect: automatic, 4:3, 16:9, 2.35:1">
        <source>Aspect: automatic, 4:3, 16:9, 2.35:1</source>
        <translation>宽高比：自动、4:3、16:9、2.35:1</translation>
    </message>
    <message id="Aspect: %@">
        <source>Aspect: %@</source>
        <translation>宽高比：%@</translation>
    </message>
    <message id="2.35:1">
        <source>2.35:1</source>
        <translation>2.35:1</translation>
    </message>
    <message id="Deinterlacing">
        <source>Deinterlacing</source>
        <translation>去隔行</translation>
    </message>
    <message id="Next Deinterlacing">
        <source>Next Deinterlacing</source>
        <translation>下一个去隔行模式</translation>
    </message>
    <message id="Deinterlacing: automatic, on, off">
        <source>Deinterlacing: automatic, on, off</source>
        <translation>去隔行：自动、开、关</translation>
    </message>
    <message id="Deinterlacing: %@">
        <source>Deinterlacing: %@</source>
        <translation>去隔行：%@</translation>
    </message>
    <message id="Picture Colors">
        <source>Picture Colors</source>
        <translation>画面颜色</translation>
    </message>
    <message id="Less Contrast">
        <source>Less Contrast</source>
        <translation>降低对比度</translation>
    </message>
    <message id="More Contrast">
        <source>More Contrast</source>
        <translation>提高对比度</translation>
    </message>
    <message id="Darker">
        <source>Darker</source>
        <translation>变暗</translation>
    </message>
    <message id="Brighter">
        <source>Brighter</source>
        <translation>变亮</translation>
    </message>
    <message id="Less Gamma">
        <source>Less Gamma</source>
        <translation>降低伽马</translation>
    </message>
    <message id="More Gamma">
        <source>More Gamma</source>
        <translation>提高伽马</translation>
    </message>
    <message id="Less Saturation">
        <source>Less Saturation</source>
        <translation>降低饱和度</translation>
    </message>
    <message id="More Saturation">
        <source>More Saturation</source>
        <translation>提高饱和度</translation>
    </message>
    <message id="Hue towards Red">
        <source>Hue towards Red</source>
        <translation>色相偏红</translation>
    </message>
    <message id="Hue towards Green">
        <source>Hue towards Green</source>
        <translation>色相偏绿</translation>
    </message>
    <message id="Contrast, brightness, gamma, saturation, hue: less and more">
        <source>Contrast, brightness, gamma, saturation, hue: less and more</source>
        <translation>对比度、亮度、伽马、饱和度、色相：降低和提高</translation>
    </message>
    <message id="The colors as the movie has them">
        <source>The colors as the movie has them</source>
        <translation>影片原有的颜色</translation>
    </message>
    <message id="Original Colors">
        <source>Original Colors</source>
        <translation>原始颜色</translation>
    </message>
    <message id="Contrast: %@">
        <source>Contrast: %@</source>
        <translation>对比度：%@</translation>
    </message>
    <message id="Brightness: %@">
        <source>Brightness: %@</source>
        <translation>亮度：%@</translation>
    </message>
    <message id="Gamma: %@">
        <source>Gamma: %@</source>
        <translation>伽马：%@</translation>
    </message>
    <message id="Saturation: %@">
        <source>Saturation: %@</source>
        <translation>饱和度：%@</translation>
    </message>
    <message id="Hue: %@">
        <source>Hue: %@</source>
        <translation>色相：%@</translation>
    </message>
    <message id="Crop Black Bars">
        <source>Crop Black Bars</source>
        <translation>裁剪黑边</translation>
    </message>
    <message id="Cut black bars off">
        <source>Cut black bars off</source>
        <translation>裁去黑边</translation>
    </message>
    <message id="Crop: On">
        <source>Crop: On</source>
        <translation>裁剪黑边：开</translation>
    </message>
    <message id="Crop: Off">
        <source>Crop: Off</source>
        <translation>裁剪黑边：关</translation>
    </message>
    <message id="No Black Bars">
        <source>No Black Bars</source>
        <translation>没有黑边</translation>
    </message>
    <message id="Turn by 90°">
        <source>Turn by 90°</source>
        <translation>旋转 90°</translation>
    </message>
    <message id="Turn and mirror the picture">
        <source>Turn and mirror the picture</source>
        <translation>旋转和镜像画面</translation>
    </message>
    <message id="Turned by %d°">
        <source>Turned by %d°</source>
        <translation>已旋转 %d°</translation>
    </message>
    <message id="Mirror">
        <source>Mirror</source>
        <translation>镜像</translation>
    </message>
    <message id="Mirror: On">
        <source>Mirror: On</source>
        <translation>镜像：开</translation>
    </message>
    <message id="Mirror: Off">
        <source>Mirror: Off</source>
        <translation>镜像：关</translation>
    </message>
</context>
<context>
    <name>Tracks</name>
    <message id="Audio Tracks">
        <source>Audio Tracks</source>
        <translation>音轨</translation>
    </message>
    <message id="Audio: %@">
        <source>Audio: %@</source>
        <translation>音频：%@</translation>
    </message>
    <message id="Next Audio Track">
        <source>Next Audio Track</source>
        <translation>下一个音轨</translation>
    </message>
    <message id="Previous Audio Track">
        <source>Previous Audio Track</source>
        <translation>上一个音轨</translation>
    </message>
    <message id="Next and previous audio track">
        <source>Next and previous audio track</source>
        <translation>下一个和上一个音轨</translation>
    </message>
    <message id="Mono">
        <source>Mono</source>
        <translation>单声道</translation>
    </message>
    <message id="Stereo">
        <source>Stereo</source>
        <translation>立体声</translation>
    </message>
    <message id="%d channels">
        <source>%d channels</source>
        <translation>%d 声道</translation>
    </message>
    <message id="Track %d">
        <source>Track %d</source>
        <translation>轨道 %d</translation>
    </message>
    <message id="forced">
        <source>forced</source>
        <translation>强制</translation>
    </message>
    <message id="Second Subtitles">
        <source>Second Subtitles</source>
        <translation>第二字幕</translation>
    </message>
    <message id="Next Second Subtitles">
        <source>Next Second Subtitles</source>
        <translation>下一个第二字幕</translation>
    </message>
    <message id="Second subtitles: %@">
        <source>Second subtitles: %@</source>
        <translation>第二字幕：%@</translation>
    </message>
    <message id="Second subtitles at the top: next track, none">
        <source>Second subtitles at the top: next track, none</source>
        <translation>顶部的第二字幕：下一个轨道、无</translation>
    </message>
    <message id="SecondSubtitlesRefused">
        <source>Only texts can be shown as second subtitles, and no track twice</source>
        <translation>只有文本字幕可以作为第二字幕，且同一轨道不能显示两次</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>画质</translation>
    </message>
    <message id="Quality: %@">
        <source>Quality: %@</source>
        <translation>画质：%@</translation>
    </message>
    <message id="Next Quality">
        <source>Next Quality</source>
        <translation>下一种画质</translation>
    </message>
    <message id="Next quality of a stream">
        <source>Next quality of a stream</source>
        <translation>流的下一种画质</translation>
    </message>
    <message id="Only One Quality">
        <source>Only One Quality</source>
        <translation>只有一种画质</translation>
    </message>
    <message id="Go to Live">
        <source>Go to Live</source>
        <translation>跳转到直播</translation>
    </message>
    <message id="Go to what is live now">
        <source>Go to what is live now</source>
        <translation>跳转到当前直播的位置</translation>
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
        <translation>落后于直播</translation>
    </message>
    <message id="Reconnecting...">
        <source>Reconnecting...</source>
        <translation>正在重新连接…</translation>
    </message>
    <message id="Connection Lost">
        <source>Connection Lost</source>
        <translation>连接已断开</translation>
    </message>
</context>
<context>
    <name>Information</name>
    <message id="Information">
        <source>Information</source>
        <translation>信息</translation>
    </message>
    <message id="Show or hide the information about the movie">
        <source>Show or hide the information about the movie</source>
        <translation>显示或隐藏影片信息</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>复制</translation>
    </message>
    <message id="No movie">
        <source>No movie</source>
        <translation>没有影片</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>名称</translation>
    </message>
    <message id="Container">
        <source>Container</source>
        <translation>容器</translation>
    </message>
    <message id="Duration">
        <source>Duration</source>
        <translation>时长</translation>
    </message>
    <message id="File size">
        <source>File size</source>
        <translation>文件大小</translation>
    </message>
    <message id="Bit rate">
        <source>Bit rate</source>
        <translation>比特率</translation>
    </message>
    <message id="Sound">
        <source>Sound</source>
        <translation>音频</translation>
    </message>
    <message id="Tracks">
        <source>Tracks</source>
        <translation>轨道</translation>
    </message>
    <message id="Frames">
        <source>Frames</source>
        <translation>帧</translation>
    </message>
    <message id="Buffer">
        <source>Buffer</source>
        <translation>缓冲</translation>
    </message>
    <message id="Codec">
        <source>Codec</source>
        <translation>编解码器</translation>
    </message>
    <message id="Decoder">
        <source>Decoder</source>
        <translation>解码器</translation>
    </message>
    <message id="Software">
        <source>Software</source>
        <translation>软件</translation>
    </message>
    <message id="Hardware (%@)">
        <source>Hardware (%@)</source>
        <translation>硬件 (%@)</translation>
    </message>
    <message id="Size">
        <source>Size</source>
        <translation>大小</translation>
    </message>
    <message id="%@, displayed as %@">
        <source>%@, displayed as %@</source>
        <translation>%@，显示为 %@</translation>
    </message>
    <message id="Frame rate">
        <source>Frame rate</source>
        <translation>帧率</translation>
    </message>
    <message id="%@ a second">
        <source>%@ a second</source>
        <translation>每秒 %@</translation>
    </message>
    <message id="%@ a second, now %@">
        <source>%@ a second, now %@</source>
        <translation>每秒 %@，当前 %@</translation>
    </message>
    <message id="Dynamic range">
        <source>Dynamic range</source>
        <translation>动态范围</translation>
    </message>
    <message id="Standard">
        <source>Standard</source>
        <translation>标准</translation>
    </message>
    <message id="Color">
        <source>Color</source>
        <translation>颜色</translation>
    </message>
    <message id="Channels">
        <source>Channels</source>
        <translation>声道</translation>
    </message>
    <message id="Sample rate">
        <source>Sample rate</source>
        <translation>采样率</translation>
    </message>
    <message id="Output">
        <source>Output</source>
        <translation>输出</translation>
    </message>
    <message id="%@ (playing)">
        <source>%@ (playing)</source>
        <translation>%@（正在播放）</translation>
    </message>
    <message id="Subtitles shown">
        <source>Subtitles shown</source>
        <translation>显示的字幕</translation>
    </message>
    <message id="Shown">
        <source>Shown</source>
        <translation>已显示</translation>
    </message>
    <message id="Late">
        <source>Late</source>
        <translation>延迟</translation>
    </message>
    <message id="Left out">
        <source>Left out</source>
        <translation>丢弃</translation>
    </message>
    <message id="Ready">
        <source>Ready</source>
        <translation>就绪</translation>
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
