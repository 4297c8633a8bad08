<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ja">
<context>
    <name>Alerts</name>
    <message id="QTUnableToOpenFileError">
        <source>“%@” can’t be opened.</source>
        <translation>「%@」を開けません。</translation>
    </message>
    <message id="QTUnableToOpenFileDetails">
        <source>The file is missing, damaged, or of a kind that Lumaro doesn’t know (error %d).</source>
        <translation>ファイルが見つからないか、破損しているか、Lumaro が対応していない種類です (エラー %d)。</translation>
    </message>
    <message id="QTUnableToPlayFileError">
        <source>“%@” may not play as it should.</source>
        <translation>「%@」は正しく再生されない可能性があります。</translation>
    </message>
    <message id="QTUnableToPlayFileDetails">
        <source>Parts of the movie can’t be decoded (error %d). Choose Continue to try it anyway.</source>
        <translation>動画の一部をデコードできません (エラー %d)。それでも再生するには「続ける」を選んでください。</translation>
    </message>
    <message id="NoPlayableMoviesInListMessage">
        <source>There is nothing to play.</source>
        <translation>再生できるものがありません。</translation>
    </message>
    <message id="NoPlayableMoviesInListDetails">
        <source>None of the files that were given is a movie that Lumaro can play. You can choose others.</source>
        <translation>指定されたファイルの中に Lumaro で再生できる動画はありません。ほかのファイルを選べます。</translation>
    </message>
    <message id="OpenErrorMissing">
        <source>The file doesn’t exist.</source>
        <translation>ファイルがありません。</translation>
    </message>
    <message id="OpenErrorEmpty">
        <source>The file is empty.</source>
        <translation>ファイルが空です。</translation>
    </message>
    <message id="OpenErrorNotAFile">
        <source>It is a folder or a device, not a file.</source>
        <translation>ファイルではなく、フォルダーまたはデバイスです。</translation>
    </message>
    <message id="OpenErrorPermission">
        <source>You aren’t allowed to read the file.</source>
        <translation>ファイルを読み取る権限がありません。</translation>
    </message>
    <message id="OpenErrorNotAMovie">
        <source>It isn’t a movie that Lumaro can play.</source>
        <translation>Lumaro で再生できる動画ではありません。</translation>
    </message>
    <message id="OpenErrorTimeout">
        <source>No answer came in time.</source>
        <translation>時間内に応答がありませんでした。</translation>
    </message>
    <message id="OpenErrorLibraries">
        <source>The libraries that open movies are missing.</source>
        <translation>動画を開くためのライブラリがありません。</translation>
    </message>
    <message id="OpenErrorScheme">
        <source>Lumaro doesn’t know addresses of this kind.</source>
        <translation>この種類のアドレスには対応していません。</translation>
    </message>
    <message id="OpenErrorUnknownHost">
        <source>There is no server of that name, or no connection to the network.</source>
        <translation>その名前のサーバーがないか、ネットワークに接続されていません。</translation>
    </message>
    <message id="OpenErrorUnreachable">
        <source>The server can’t be reached.</source>
        <translation>サーバーに接続できません。</translation>
    </message>
    <message id="OpenErrorRefused">
        <source>The server refused the connection.</source>
        <translation>サーバーが接続を拒否しました。</translation>
    </message>
    <message id="OpenErrorConnection">
        <source>The connection to the server broke off.</source>
        <translation>サーバーとの接続が切れました。</translation>
    </message>
    <message id="OpenErrorRanges">
        <source>The server sends files only from their beginning, and what is needed first stands at this movie’s end. Download it to play it.</source>
        <translation>サーバーはファイルを先頭からしか送信できませんが、最初に必要な情報がこの動画の末尾にあります。再生するにはダウンロードしてください。</translation>
    </message>
    <message id="OpenErrorLogin">
        <source>The server asks for a name and a password (401).</source>
        <translation>サーバーがユーザー名とパスワードを要求しています (401)。</translation>
    </message>
    <message id="OpenErrorForbidden">
        <source>The server doesn’t allow it (403).</source>
        <translation>サーバーが許可していません (403)。</translation>
    </message>
    <message id="OpenErrorNotFound">
        <source>The server has no such file (404).</source>
        <translation>サーバーにそのファイルはありません (404)。</translation>
    </message>
    <message id="OpenErrorRejected">
        <source>The server rejected the request.</source>
        <translation>サーバーが要求を受け付けませんでした。</translation>
    </message>
    <message id="OpenErrorServer">
        <source>The server answered with an error of its own.</source>
        <translation>サーバー側でエラーが発生しました。</translation>
    </message>
    <message id="OpenErrorNoMovies">
        <source>There is no movie in this folder.</source>
        <translation>このフォルダーに動画はありません。</translation>
    </message>
    <message id="OpenErrorNotAList">
        <source>The file is not a playlist.</source>
        <translation>ファイルはプレイリストではありません。</translation>
    </message>
    <message id="OpenErrorListEmpty">
        <source>The playlist names no movies.</source>
        <translation>プレイリストに動画がありません。</translation>
    </message>
    <message id="OpenErrorListTooLarge">
        <source>The playlist is larger than 32 MB.</source>
        <translation>プレイリストが 32 MB を超えています。</translation>
    </message>
    <message id="OpenErrorListTooLong">
        <source>The playlist is too long. Only its first 100,000 entries were opened.</source>
        <translation>プレイリストが長すぎます。最初の 100,000 件だけを開きました。</translation>
    </message>
    <message id="OpenErrorListTooDeep">
        <source>Too many playlists name each other. This one was left out.</source>
        <translation>プレイリストの参照が多重になりすぎています。このプレイリストは除外しました。</translation>
    </message>
    <message id="OpenErrorListDrives">
        <source>Entries on drives of Windows were left out (%@): %@.</source>
        <translation>Windows のドライブにある項目は除外しました (%@): %@。</translation>
    </message>
    <message id="OpenErrorListLocal">
        <source>The playlist comes from a network. Entries that name files of this computer were left out (%@): %@.</source>
        <translation>ネットワーク上のプレイリストのため、このコンピューターのファイルを指す項目は除外しました (%@): %@。</translation>
    </message>
    <message id="OpenErrorListNothing">
        <source>Entries that name neither a file nor an address were left out (%@): %@.</source>
        <translation>ファイルでもアドレスでもない項目は除外しました (%@): %@。</translation>
    </message>
    <message id="OpenErrorFolders">
        <source>Folders that may not be read (%@): %@.</source>
        <translation>読み取りが許可されていないフォルダー (%@): %@。</translation>
    </message>
    <message id="UnreadableFoldersMessage">
        <source>Not everything could be searched.</source>
        <translation>一部を検索できませんでした。</translation>
    </message>
    <message id="AndMoreMessage">
        <source>… and %@ more.</source>
        <translation>… ほか %@ 件</translation>
    </message>
    <message id="UnableToOpenLine">
        <source>“%@”: %@ (%@)</source>
        <translation>「%@」: %@ (%@)</translation>
    </message>
    <message id="UnableToOpenFilesMessage">
        <source>%@ files can’t be opened.</source>
        <translation>%@ 個のファイルを開けません。</translation>
    </message>
    <message id="UnableToPlayFilesMessage">
        <source>%@ movies may not play as they should.</source>
        <translation>%@ 本の動画は正しく再生されない可能性があります。</translation>
    </message>
    <message id="NoMoviesInFoldersDetails">
        <source>There is no movie that Lumaro can play in:</source>
        <translation>Lumaro で再生できる動画がないフォルダー:</translation>
    </message>
    <message id="Buffering: %d %%">
        <source>Buffering: %d %%</source>
        <translation>バッファリング中: %d %%</translation>
    </message>
    <message id="Stalled: No Data from the Server">
        <source>Stalled: no data from the server</source>
        <translation>停滞中: サーバーからデータが届きません</translation>
    </message>
    <message id="Loading: %@">
        <source>Loading: %@</source>
        <translation>読み込み中: %@</translation>
    </message>
    <message id="ResumedAt">
        <source>Resumed at %@
%@: From the Beginning</source>
        <translation>%@ から再開しました
%@: 最初から再生</translation>
    </message>
    <message id="Looking for Movies: %@">
        <source>Looking for movies: %@</source>
        <translation>動画を検索中: %@</translation>
    </message>
    <message id="FilesFoundMessage" numerus="yes">
        <source>%@ file found…</source>
        <translation>
            <numerusform>%@ 個のファイルが見つかりました…</numerusform>
        </translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>キャンセル</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>続ける</translation>
    </message>
    <message id="Open...">
        <source>Open...</source>
        <translation>開く…</translation>
    </message>
    <message id="Open Recent">
        <source>Open Recent</source>
        <translation>最近開いた動画</translation>
    </message>
    <message id="ClearRecent">
        <source>Clear Menu and Forget Places</source>
        <translation>メニューを消去して再生位置を忘れる</translation>
    </message>
    <message id="Open">
        <source>Open</source>
        <translation>開く</translation>
    </message>
    <message id="ConfigureCheckForNewVersionMessage">
        <source>Look for new versions?</source>
        <translation>新しいバージョンを確認しますか?</translation>
    </message>
    <message id="ConfigureCheckForNewVersionDetails">
        <source>Lumaro can look from time to time whether a newer version exists. Nothing about you or your movies is sent. You can change this in the preferences.</source>
        <translation>Lumaro は新しいバージョンがあるかどうかをときどき確認できます。あなたや動画に関する情報は送信されません。この設定は環境設定で変更できます。</translation>
    </message>
    <message id="CheckNewVersionFailedMessage">
        <source>Looking for a new version failed.</source>
        <translation>新しいバージョンの確認に失敗しました。</translation>
    </message>
    <message id="CheckNewVersionFailedDetails">
        <source>None of the sites could be reached. Check the connection to the internet, or try again later.</source>
        <translation>どのサイトにも接続できませんでした。インターネット接続を確認するか、後でもう一度お試しください。</translation>
    </message>
    <message id="YouHaveLatestVersionMessage">
        <source>Lumaro is up to date.</source>
        <translation>Lumaro は最新です。</translation>
    </message>
    <message id="YouHaveLatestVersionDetails">
        <source>You have the latest version.</source>
        <translation>最新バージョンを使用しています。</translation>
    </message>
    <message id="NewVersionAvailableMessage">
        <source>A newer version of Lumaro is available.</source>
        <translation>Lumaro の新しいバージョンがあります。</translation>
    </message>
    <message id="NewVersionAvailableDetails">
        <source>%@ version %@ can be downloaded now.</source>
        <translation>%@バージョン %@ をダウンロードできます。</translation>
    </message>
    <message id="Download Now...">
        <source>&amp;Download Now...</source>
        <translation>今すぐダウンロード(&amp;D)…</translation>
    </message>
    <message id="Skip Version">
        <source>&amp;Skip Version</source>
        <translation>このバージョンをスキップ(&amp;S)</translation>
    </message>
    <message id="Later">
        <source>Later</source>
        <translation>後で</translation>
    </message>
    <message id="AskDonationMessage">
        <source>Do you enjoy Lumaro?</source>
        <translation>Lumaro はお役に立っていますか?</translation>
    </message>
    <message id="AskDonationDetails">
        <source>Lumaro is free. A donation helps to keep it alive.</source>
        <translation>Lumaro は無料です。寄付は開発を続ける助けになります。</translation>
    </message>
    <message id="Donate...">
        <source>Donate...</source>
        <translation>寄付する…</translation>
    </message>
</context>
<context>
    <name>Version check</name>
    <message id="Up to date">
        <source>Up to date</source>
        <translation>最新です</translation>
    </message>
    <message id="Newer %@ version %@ available">
        <source>Newer %@ version %@ available</source>
        <translation>新しい%@バージョン %@ があります</translation>
    </message>
    <message id="Failed to reach all mirror sites">
        <source>Failed to reach all mirror sites</source>
        <translation>どのミラーサイトにも接続できませんでした</translation>
    </message>
    <message id="Release">
        <source>Release</source>
        <translation>正式</translation>
    </message>
    <message id="Beta">
        <source>Beta</source>
        <translation>ベータ</translation>
    </message>
    <message id="Checking now...">
        <source>Checking now...</source>
        <translation>確認中…</translation>
    </message>
    <message id="Unknown">
        <source>Unknown</source>
        <translation>不明</translation>
    </message>
    <message id="Never">
        <source>Never</source>
        <translation>未確認</translation>
    </message>
</context>
<context>
    <name>Feedback and on-screen display</name>
    <message id="Movie: Play">
        <source>Movie: Play</source>
        <translation>再生</translation>
    </message>
    <message id="Movie: Pause">
        <source>Movie: Pause</source>
        <translation>一時停止</translation>
    </message>
    <message id="Movie: Stop">
        <source>Movie: Stop</source>
        <translation>停止</translation>
    </message>
    <message id="Movie: Beginning">
        <source>Movie: Beginning</source>
        <translation>先頭</translation>
    </message>
    <message id="Movie: End">
        <source>Movie: End</source>
        <translation>末尾</translation>
    </message>
    <message id="Fast Forward x%d">
        <source>Fast Forward x%d</source>
        <translation>早送り ×%d</translation>
    </message>
    <message id="Fast Rewind x%d">
        <source>Fast Rewind x%d</source>
        <translation>巻き戻し ×%d</translation>
    </message>
    <message id="Jump Forward %d s">
        <source>Jump Forward %d s</source>
        <translation>%d 秒進む</translation>
    </message>
    <message id="Jump Backward %d s">
        <source>Jump Backward %d s</source>
        <translation>%d 秒戻る</translation>
    </message>
    <message id="Step Forward">
        <source>Step Forward</source>
        <translation>コマ送り</translation>
    </message>
    <message id="Step Backward">
        <source>Step Backward</source>
        <translation>コマ戻し</translation>
    </message>
    <message id="Next: %@">
        <source>Next: %@</source>
        <translation>次: %@</translation>
    </message>
    <message id="Previous: %@">
        <source>Previous: %@</source>
        <translation>前: %@</translation>
    </message>
    <message id="Screen: Next">
        <source>Screen: Next</source>
        <translation>次の画面へ</translation>
    </message>
    <message id="Screen: Previous">
        <source>Screen: Previous</source>
        <translation>前の画面へ</translation>
    </message>
    <message id="Quit">
        <source>Quit</source>
        <translation>終了</translation>
    </message>
    <message id="Sleep">
        <source>Sleep</source>
        <translation>スリープ</translation>
    </message>
    <message id="Restart the Computer">
        <source>Restart the Computer</source>
        <translation>コンピューターを再起動</translation>
    </message>
    <message id="Shut Down the Computer">
        <source>Shut Down the Computer</source>
        <translation>コンピューターをシャットダウン</translation>
    </message>
    <message id="Log Out">
        <source>Log Out</source>
        <translation>ログアウト</translation>
    </message>
    <message id="Restart failed: %@">
        <source>Restart failed: %@</source>
        <translation>再起動に失敗しました: %@</translation>
    </message>
    <message id="Shutting down failed: %@">
        <source>Shutting down failed: %@</source>
        <translation>シャットダウンに失敗しました: %@</translation>
    </message>
    <message id="Logging out failed: %@">
        <source>Logging out failed: %@</source>
        <translation>ログアウトに失敗しました: %@</translation>
    </message>
    <message id="KeyName Space">
        <source>Space</source>
        <translation>スペース</translation>
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
        <translation>メディア 再生</translation>
    </message>
    <message id="KeyName Media Stop">
        <source>Media Stop</source>
        <translation>メディア 停止</translation>
    </message>
    <message id="KeyName Media Next">
        <source>Media Next</source>
        <translation>メディア 次へ</translation>
    </message>
    <message id="KeyName Media Previous">
        <source>Media Previous</source>
        <translation>メディア 前へ</translation>
    </message>
    <message id="KeyName Media Volume Up">
        <source>Media Volume Up</source>
        <translation>メディア 音量を上げる</translation>
    </message>
    <message id="KeyName Media Volume Down">
        <source>Media Volume Down</source>
        <translation>メディア 音量を下げる</translation>
    </message>
    <message id="KeyName Media Mute">
        <source>Media Mute</source>
        <translation>メディア ミュート</translation>
    </message>
    <message id="Sleep failed: %@">
        <source>Sleep failed: %@</source>
        <translation>スリープに失敗しました: %@</translation>
    </message>
    <message id="Size: Half">
        <source>Size: Half</source>
        <translation>サイズ: 半分</translation>
    </message>
    <message id="Size: Normal">
        <source>Size: Normal</source>
        <translation>サイズ: 標準</translation>
    </message>
    <message id="Size: Double">
        <source>Size: Double</source>
        <translation>サイズ: 2 倍</translation>
    </message>
    <message id="Size: Full">
        <source>Size: Full</source>
        <translation>サイズ: 全画面</translation>
    </message>
    <message id="Size: Fit Width">
        <source>Size: Fit Width</source>
        <translation>サイズ: 幅に合わせる</translation>
    </message>
    <message id="Size: Fit Height">
        <source>Size: Fit Height</source>
        <translation>サイズ: 高さに合わせる</translation>
    </message>
    <message id="Size: Bigger">
        <source>Size: Bigger</source>
        <translation>サイズ: 大きく</translation>
    </message>
    <message id="Size: Smaller">
        <source>Size: Smaller</source>
        <translation>サイズ: 小さく</translation>
    </message>
    <message id="Controller: On">
        <source>Controller: On</source>
        <translation>コントロールバー: オン</translation>
    </message>
    <message id="Controller: Off">
        <source>Controller: Off</source>
        <translation>コントロールバー: オフ</translation>
    </message>
    <message id="Volume: %@">
        <source>Volume: %@</source>
        <translation>音量: %@</translation>
    </message>
    <message id="Mute: %@">
        <source>Mute: %@</source>
        <translation>ミュート: %@</translation>
    </message>
    <message id="Muted">
        <source>Muted</source>
        <translation>ミュート中</translation>
    </message>
    <message id="On">
        <source>On</source>
        <translation>オン</translation>
    </message>
    <message id="Off">
        <source>Off</source>
        <translation>オフ</translation>
    </message>
    <message id="%d%%">
        <source>%d%%</source>
        <translation>%d%%</translation>
    </message>
    <message id="Time: %@/%@">
        <source>Time: %@/%@</source>
        <translation>時間: %@ / %@</translation>
    </message>
    <message id="Movie: %@">
        <source>Movie: %@</source>
        <translation>動画: %@</translation>
    </message>
    <message id="Loop: %@">
        <source>Loop: %@</source>
        <translation>リピート: %@</translation>
    </message>
    <message id="One">
        <source>One</source>
        <translation>1 本</translation>
    </message>
    <message id="All">
        <source>All</source>
        <translation>すべて</translation>
    </message>
    <message id="None">
        <source>None</source>
        <translation>なし</translation>
    </message>
    <message id="Subtitles: %@">
        <source>Subtitles: %@</source>
        <translation>字幕: %@</translation>
    </message>
    <message id="Repair: On">
        <source>Repair: On</source>
        <translation>修復: オン</translation>
    </message>
    <message id="Repair: Off">
        <source>Repair: Off</source>
        <translation>修復: オフ</translation>
    </message>
    <message id="SubtitleLinesLost" numerus="yes">
        <source>%d line of it can’t be read.</source>
        <translation>
            <numerusform>そのうち %d 行を読み取れません。</numerusform>
        </translation>
    </message>
    <message id="SubtitlePicturesLost" numerus="yes">
        <source>%d picture of it can’t be read.</source>
        <translation>
            <numerusform>そのうち %d 枚の画像を読み取れません。</numerusform>
        </translation>
    </message>
    <message id="SubtitleRepairMayHelp">
        <source>Repair (Subtitles menu) may help.</source>
        <translation>「修復」(字幕メニュー) で直る可能性があります。</translation>
    </message>
    <message id="Style">
        <source>Style</source>
        <translation>スタイル</translation>
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
        <translation>%@ を押して動画を開く</translation>
    </message>
    <message id="or drop files here. %@ shows all keys.">
        <source>or drop files here. %@ shows all keys.</source>
        <translation>またはここにファイルをドロップ。%@ でキーの一覧を表示します。</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message id="File">
        <source>File</source>
        <translation>ファイル</translation>
    </message>
    <message id="Movie">
        <source>Movie</source>
        <translation>動画</translation>
    </message>
    <message id="Playback">
        <source>Playback</source>
        <translation>再生</translation>
    </message>
    <message id="Volume">
        <source>Volume</source>
        <translation>音量</translation>
    </message>
    <message id="Playlist">
        <source>Playlist</source>
        <translation>プレイリスト</translation>
    </message>
    <message id="Subtitles">
        <source>Subtitles</source>
        <translation>字幕</translation>
    </message>
    <message id="Window">
        <source>Window</source>
        <translation>ウィンドウ</translation>
    </message>
    <message id="HelpIntroduction">
        <source>Type what you look for. Every command also stands in the menu: at the top edge of the screen, or under the right mouse button.</source>
        <translation>探している言葉を入力してください。どのコマンドも、画面上端のメニューか右クリックメニューにもあります。</translation>
    </message>
    <message id="What do you want to do?">
        <source>What do you want to do?</source>
        <translation>何をしますか?</translation>
    </message>
    <message id="No command holds these words.">
        <source>No command holds these words.</source>
        <translation>この言葉を含むコマンドはありません。</translation>
    </message>
    <message id="Watch and move through the movie">
        <source>Watch and move through the movie</source>
        <translation>動画を見る・移動する</translation>
    </message>
    <message id="Louder, softer, silent">
        <source>Louder, softer, silent</source>
        <translation>音量を上げる、下げる、消音</translation>
    </message>
    <message id="Read along">
        <source>Read along</source>
        <translation>字幕を読む</translation>
    </message>
    <message id="See the picture larger, and what is playing">
        <source>See the picture larger, and what is playing</source>
        <translation>画面を大きく、再生中の情報</translation>
    </message>
    <message id="Choose among the movies">
        <source>Choose among the movies</source>
        <translation>動画を選ぶ</translation>
    </message>
    <message id="Move to another screen">
        <source>Move to another screen</source>
        <translation>別の画面に移動する</translation>
    </message>
    <message id="Open, set up and quit">
        <source>Open, set up and quit</source>
        <translation>開く、設定する、終了する</translation>
    </message>
    <message id="Find help">
        <source>Find help</source>
        <translation>ヘルプを見る</translation>
    </message>
    <message id="Help">
        <source>Help</source>
        <translation>ヘルプ</translation>
    </message>
    <message id="Open URL...">
        <source>Open URL...</source>
        <translation>URL を開く…</translation>
    </message>
    <message id="Open URLs...">
        <source>Open URLs...</source>
        <translation>複数の URL を開く…</translation>
    </message>
    <message id="Save Playlist...">
        <source>Save Playlist...</source>
        <translation>プレイリストを保存…</translation>
    </message>
    <message id="Save Playlist">
        <source>Save Playlist</source>
        <translation>プレイリストを保存</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>保存</translation>
    </message>
    <message id="Playlist File">
        <source>Playlist</source>
        <translation>プレイリスト</translation>
    </message>
    <message id="Save the playlist to a file">
        <source>Save the playlist to a file</source>
        <translation>プレイリストをファイルに保存する</translation>
    </message>
    <message id="SaveErrorMessage">
        <source>“%@” can’t be saved.</source>
        <translation>「%@」を保存できません。</translation>
    </message>
    <message id="SaveErrorPermission">
        <source>You don’t have the permission to write there.</source>
        <translation>そこに書き込む権限がありません。</translation>
    </message>
    <message id="SaveErrorReadOnly">
        <source>The disk can’t be written to.</source>
        <translation>ディスクに書き込めません。</translation>
    </message>
    <message id="SaveErrorFull">
        <source>The disk is full.</source>
        <translation>ディスクがいっぱいです。</translation>
    </message>
    <message id="SaveErrorFolder">
        <source>The folder doesn’t exist.</source>
        <translation>フォルダーがありません。</translation>
    </message>
    <message id="SaveErrorIsFolder">
        <source>This is a folder.</source>
        <translation>これはフォルダーです。</translation>
    </message>
    <message id="Preferences...">
        <source>Preferences...</source>
        <translation>環境設定…</translation>
    </message>
    <message id="About Lumaro">
        <source>About Lumaro</source>
        <translation>Lumaro について</translation>
    </message>
    <message id="Check for New Version...">
        <source>Check for New Version...</source>
        <translation>新しいバージョンを確認…</translation>
    </message>
    <message id="Half Size">
        <source>Half Size</source>
        <translation>半分のサイズ</translation>
    </message>
    <message id="Normal Size">
        <source>Normal Size</source>
        <translation>標準サイズ</translation>
    </message>
    <message id="Double Size">
        <source>Double Size</source>
        <translation>2 倍のサイズ</translation>
    </message>
    <message id="Full Size">
        <source>Full Size</source>
        <translation>全画面</translation>
    </message>
    <message id="Fit Screen">
        <source>Fit Screen</source>
        <translation>画面に合わせる</translation>
    </message>
    <message id="Fit Width">
        <source>Fit Width</source>
        <translation>幅に合わせる</translation>
    </message>
    <message id="Fit Height">
        <source>Fit Height</source>
        <translation>高さに合わせる</translation>
    </message>
    <message id="Bigger">
        <source>Bigger</source>
        <translation>大きく</translation>
    </message>
    <message id="Smaller">
        <source>Smaller</source>
        <translation>小さく</translation>
    </message>
    <message id="Show Controller">
        <source>Show Controller</source>
        <translation>コントロールバーを表示</translation>
    </message>
    <message id="Bar over the Picture">
        <source>Bar over the Picture</source>
        <translation>映像上のバー</translation>
    </message>
    <message id="Bar over the picture: off, always, when the pointer moves">
        <source>Bar over the picture: off, always, when the pointer moves</source>
        <translation>映像上のバー: オフ、常に、ポインターを動かしたとき</translation>
    </message>
    <message id="Bar over the Picture: Off">
        <source>Bar over the Picture: Off</source>
        <translation>映像上のバー: オフ</translation>
    </message>
    <message id="Bar over the Picture: Always">
        <source>Bar over the Picture: Always</source>
        <translation>映像上のバー: 常に</translation>
    </message>
    <message id="Bar over the Picture: When the Pointer Moves">
        <source>Bar over the Picture: When the Pointer Moves</source>
        <translation>映像上のバー: ポインターを動かしたとき</translation>
    </message>
    <message id="Tracks...">
        <source>Tracks...</source>
        <translation>トラック…</translation>
    </message>
    <message id="Sound and subtitles in one menu">
        <source>Sound and subtitles in one menu</source>
        <translation>音声と字幕を 1 つのメニューに</translation>
    </message>
    <message id="Audio">
        <source>Audio</source>
        <translation>音声</translation>
    </message>
    <message id="Hide Controller">
        <source>Hide Controller</source>
        <translation>コントロールバーを隠す</translation>
    </message>
    <message id="Next Display">
        <source>Next Display</source>
        <translation>次の画面表示</translation>
    </message>
    <message id="Previous Display">
        <source>Previous Display</source>
        <translation>前の画面表示</translation>
    </message>
    <message id="Play">
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message id="Pause">
        <source>Pause</source>
        <translation>一時停止</translation>
    </message>
    <message id="Fast Forward">
        <source>Fast Forward</source>
        <translation>早送り</translation>
    </message>
    <message id="Rewind">
        <source>Rewind</source>
        <translation>巻き戻し</translation>
    </message>
    <message id="Jump Forward">
        <source>Jump Forward</source>
        <translation>前方にジャンプ</translation>
    </message>
    <message id="Jump Backward">
        <source>Jump Backward</source>
        <translation>後方にジャンプ</translation>
    </message>
    <message id="Beginning">
        <source>Beginning</source>
        <translation>先頭</translation>
    </message>
    <message id="End">
        <source>End</source>
        <translation>末尾</translation>
    </message>
    <message id="Next Movie">
        <source>Next Movie</source>
        <translation>次の動画</translation>
    </message>
    <message id="Previous Movie">
        <source>Previous Movie</source>
        <translation>前の動画</translation>
    </message>
    <message id="Looping Off">
        <source>Looping Off</source>
        <translation>リピートなし</translation>
    </message>
    <message id="Loop Off">
        <source>Loop Off</source>
        <translation>リピートなし</translation>
    </message>
    <message id="Loop One">
        <source>Loop One</source>
        <translation>1 本をリピート</translation>
    </message>
    <message id="Loop All">
        <source>Loop All</source>
        <translation>すべてリピート</translation>
    </message>
    <message id="Repair">
        <source>Repair</source>
        <translation>修復</translation>
    </message>
    <message id="Volume Up">
        <source>Volume Up</source>
        <translation>音量を上げる</translation>
    </message>
    <message id="Volume Down">
        <source>Volume Down</source>
        <translation>音量を下げる</translation>
    </message>
    <message id="Normal Volume">
        <source>Normal Volume</source>
        <translation>標準の音量</translation>
    </message>
    <message id="Silent">
        <source>Silent</source>
        <translation>無音</translation>
    </message>
    <message id="Mute">
        <source>Mute</source>
        <translation>ミュート</translation>
    </message>
    <message id="Next Screen">
        <source>Next Screen</source>
        <translation>次の画面</translation>
    </message>
    <message id="Previous Screen">
        <source>Previous Screen</source>
        <translation>前の画面</translation>
    </message>
    <message id="More...">
        <source>More…</source>
        <translation>その他…</translation>
    </message>
    <message id="The whole list: search, move and remove movies">
        <source>The whole list: search, move and remove movies</source>
        <translation>一覧全体: 動画の検索、移動、削除</translation>
    </message>
    <message id="Playlist Panel">
        <source>Playlist</source>
        <translation>プレイリスト</translation>
    </message>
    <message id="Filter">
        <source>Filter</source>
        <translation>絞り込み</translation>
    </message>
    <message id="Play Movie">
        <source>Play</source>
        <translation>再生</translation>
    </message>
    <message id="Move Up">
        <source>Move Up</source>
        <translation>上へ移動</translation>
    </message>
    <message id="Move Down">
        <source>Move Down</source>
        <translation>下へ移動</translation>
    </message>
    <message id="Remove from List">
        <source>Remove</source>
        <translation>削除</translation>
    </message>
    <message id="PlaylistCountMessage">
        <source>%@ of %@ movies</source>
        <translation>%@ / %@ 本の動画</translation>
    </message>
    <message id="Lumaro Help">
        <source>Lumaro Help</source>
        <translation>Lumaro ヘルプ</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="Open movies">
        <source>Open movies</source>
        <translation>動画を開く</translation>
    </message>
    <message id="Half, normal and double size">
        <source>Half, normal and double size</source>
        <translation>半分、標準、2 倍のサイズ</translation>
    </message>
    <message id="Fit to the screen, to its width, to its height">
        <source>Fit to the screen, to its width, to its height</source>
        <translation>画面、幅、高さに合わせる</translation>
    </message>
    <message id="Bigger and smaller">
        <source>Bigger and smaller</source>
        <translation>大きく、小さく</translation>
    </message>
    <message id="Controller bar">
        <source>Controller bar</source>
        <translation>コントロールバー</translation>
    </message>
    <message id="On-screen display: time, movie, subtitles, looping, volume">
        <source>On-screen display: time, movie, subtitles, looping, volume</source>
        <translation>画面表示: 時間、動画、字幕、リピート、音量</translation>
    </message>
    <message id="Play, pause, back to normal speed">
        <source>Play, pause, back to normal speed</source>
        <translation>再生、一時停止、標準速度に戻す</translation>
    </message>
    <message id="Forward and back: one frame while paused, faster and faster while playing">
        <source>Forward and back: one frame while paused, faster and faster while playing</source>
        <translation>前後に移動: 一時停止中は 1 コマずつ、再生中は次第に速く</translation>
    </message>
    <message id="Jump forward and back">
        <source>Jump forward and back</source>
        <translation>前方と後方にジャンプ</translation>
    </message>
    <message id="Beginning and end of the movie">
        <source>Beginning and end of the movie</source>
        <translation>動画の先頭と末尾</translation>
    </message>
    <message id="Next and previous movie">
        <source>Next and previous movie</source>
        <translation>次と前の動画</translation>
    </message>
    <message id="Double Click">
        <source>Double Click</source>
        <translation>ダブルクリック</translation>
    </message>
    <message id="Middle Button">
        <source>Middle Button</source>
        <translation>中ボタン</translation>
    </message>
    <message id="Back Button">
        <source>Back Button</source>
        <translation>戻るボタン</translation>
    </message>
    <message id="Forward Button">
        <source>Forward Button</source>
        <translation>進むボタン</translation>
    </message>
    <message id="Wheel Up">
        <source>Wheel Up</source>
        <translation>ホイール上</translation>
    </message>
    <message id="Wheel Down">
        <source>Wheel Down</source>
        <translation>ホイール下</translation>
    </message>
    <message id="Looping: off, one, all">
        <source>Looping: off, one, all</source>
        <translation>リピート: オフ、1 本、すべて</translation>
    </message>
    <message id="Louder and softer">
        <source>Louder and softer</source>
        <translation>音量を上げる、下げる</translation>
    </message>
    <message id="Next and previous subtitles">
        <source>Next and previous subtitles</source>
        <translation>次と前の字幕</translation>
    </message>
    <message id="Sound Earlier">
        <source>Sound Earlier</source>
        <translation>音声を早める</translation>
    </message>
    <message id="Sound Later">
        <source>Sound Later</source>
        <translation>音声を遅らせる</translation>
    </message>
    <message id="Sound as in the File">
        <source>Sound as in the File</source>
        <translation>音声をファイルどおりに</translation>
    </message>
    <message id="Sound earlier and later">
        <source>Sound earlier and later</source>
        <translation>音声を早める、遅らせる</translation>
    </message>
    <message id="Sound at the times of the file">
        <source>Sound at the times of the file</source>
        <translation>音声をファイルの時間に戻す</translation>
    </message>
    <message id="Sound delay: %@">
        <source>Sound delay: %@</source>
        <translation>音声の遅延: %@</translation>
    </message>
    <message id="Add Subtitles...">
        <source>Add Subtitles...</source>
        <translation>字幕を追加…</translation>
    </message>
    <message id="Add Subtitles">
        <source>Add Subtitles</source>
        <translation>字幕を追加</translation>
    </message>
    <message id="Add a file of subtitles to the movie">
        <source>Add a file of subtitles to the movie</source>
        <translation>字幕ファイルを動画に追加する</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>追加</translation>
    </message>
    <message id="NoSubtitlesInFile">
        <source>“%@” holds no subtitles that can be read</source>
        <translation>「%@」に読み取れる字幕がありません</translation>
    </message>
    <message id="Add to the Movie as Subtitles">
        <source>Add to the Movie as Subtitles</source>
        <translation>字幕として動画に追加</translation>
    </message>
    <message id="Show Earlier">
        <source>Show Earlier</source>
        <translation>早く表示</translation>
    </message>
    <message id="Show Later">
        <source>Show Later</source>
        <translation>遅く表示</translation>
    </message>
    <message id="As in the File">
        <source>As in the File</source>
        <translation>ファイルどおり</translation>
    </message>
    <message id="Show Subtitles Earlier">
        <source>Show Subtitles Earlier</source>
        <translation>字幕を早める</translation>
    </message>
    <message id="Show Subtitles Later">
        <source>Show Subtitles Later</source>
        <translation>字幕を遅らせる</translation>
    </message>
    <message id="Subtitles at the Times of Their File">
        <source>Subtitles at the Times of Their File</source>
        <translation>字幕をファイルの時間に戻す</translation>
    </message>
    <message id="Subtitles earlier and later">
        <source>Subtitles earlier and later</source>
        <translation>字幕を早める、遅らせる</translation>
    </message>
    <message id="Subtitles at the times of their file">
        <source>Subtitles at the times of their file</source>
        <translation>字幕をファイルの時間に戻す</translation>
    </message>
    <message id="First Line Is Spoken Now">
        <source>First Line Is Spoken Now</source>
        <translation>最初の行が今話された</translation>
    </message>
    <message id="Last Line Is Spoken Now">
        <source>Last Line Is Spoken Now</source>
        <translation>最後の行が今話された</translation>
    </message>
    <message id="In step by two lines: press one while the first line is spoken, the other while the last one is">
        <source>In step by two lines: press one while the first line is spoken, the other while the last one is</source>
        <translation>2 行で同期: 最初の行が話されているときに一方を、最後の行のときにもう一方を押します</translation>
    </message>
    <message id="Larger Text">
        <source>Larger Text</source>
        <translation>文字を大きく</translation>
    </message>
    <message id="Smaller Text">
        <source>Smaller Text</source>
        <translation>文字を小さく</translation>
    </message>
    <message id="Larger Subtitles">
        <source>Larger Subtitles</source>
        <translation>字幕を大きく</translation>
    </message>
    <message id="Smaller Subtitles">
        <source>Smaller Subtitles</source>
        <translation>字幕を小さく</translation>
    </message>
    <message id="Subtitles larger and smaller">
        <source>Subtitles larger and smaller</source>
        <translation>字幕を大きく、小さく</translation>
    </message>
    <message id="Higher">
        <source>Higher</source>
        <translation>上へ</translation>
    </message>
    <message id="Lower">
        <source>Lower</source>
        <translation>下へ</translation>
    </message>
    <message id="Higher Subtitles">
        <source>Higher Subtitles</source>
        <translation>字幕を上へ</translation>
    </message>
    <message id="Lower Subtitles">
        <source>Lower Subtitles</source>
        <translation>字幕を下へ</translation>
    </message>
    <message id="Subtitles higher and lower">
        <source>Subtitles higher and lower</source>
        <translation>字幕を上へ、下へ</translation>
    </message>
    <message id="Subtitle delay: %@">
        <source>Subtitle delay: %@</source>
        <translation>字幕の遅延: %@</translation>
    </message>
    <message id="Subtitle size: %d">
        <source>Subtitle size: %d</source>
        <translation>字幕のサイズ: %d</translation>
    </message>
    <message id="Subtitle height: %d">
        <source>Subtitle height: %d %</source>
        <translation>字幕の高さ: %d %</translation>
    </message>
    <message id="SubtitleLinesTooFar">
        <source>The lines cannot be brought in step: they would be more than twice as fast or as slow</source>
        <translation>同期できません: 行の速さが 2 倍より速いか、半分より遅くなります</translation>
    </message>
    <message id="Repair damaged subtitles">
        <source>Repair damaged subtitles</source>
        <translation>破損した字幕を修復する</translation>
    </message>
    <message id="Next and previous screen">
        <source>Next and previous screen</source>
        <translation>次と前の画面</translation>
    </message>
</context>
<context>
    <name>Text encodings</name>
    <message id="Western (ASCII)">
        <source>Western (ASCII)</source>
        <translation>西ヨーロッパ言語 (ASCII)</translation>
    </message>
    <message id="Western (ISO Latin 1)">
        <source>Western (ISO Latin 1)</source>
        <translation>西ヨーロッパ言語 (ISO Latin 1)</translation>
    </message>
    <message id="Western (ISO Latin 9)">
        <source>Western (ISO Latin 9)</source>
        <translation>西ヨーロッパ言語 (ISO Latin 9)</translation>
    </message>
    <message id="Western (Windows Latin 1)">
        <source>Western (Windows Latin 1)</source>
        <translation>西ヨーロッパ言語 (Windows Latin 1)</translation>
    </message>
    <message id="Western (Mac OS Roman)">
        <source>Western (Mac OS Roman)</source>
        <translation>西ヨーロッパ言語 (Mac OS Roman)</translation>
    </message>
    <message id="Western (DOS Latin 1)">
        <source>Western (DOS Latin 1)</source>
        <translation>西ヨーロッパ言語 (DOS Latin 1)</translation>
    </message>
    <message id="Latin-US (DOS)">
        <source>Latin-US (DOS)</source>
        <translation>ラテン文字-US (DOS)</translation>
    </message>
    <message id="Central European (ISO Latin 2)">
        <source>Central European (ISO Latin 2)</source>
        <translation>中央ヨーロッパ言語 (ISO Latin 2)</translation>
    </message>
    <message id="Central European (Windows Latin 2)">
        <source>Central European (Windows Latin 2)</source>
        <translation>中央ヨーロッパ言語 (Windows Latin 2)</translation>
    </message>
    <message id="Central European (Mac OS)">
        <source>Central European (Mac OS)</source>
        <translation>中央ヨーロッパ言語 (Mac OS)</translation>
    </message>
    <message id="Central European (DOS Latin 2)">
        <source>Central European (DOS Latin 2)</source>
        <translation>中央ヨーロッパ言語 (DOS Latin 2)</translation>
    </message>
    <message id="Western (ISO Latin 3)">
        <source>Western (ISO Latin 3)</source>
        <translation>西ヨーロッパ言語 (ISO Latin 3)</translation>
    </message>
    <message id="Central European (ISO Latin 4)">
        <source>Central European (ISO Latin 4)</source>
        <translation>中央ヨーロッパ言語 (ISO Latin 4)</translation>
    </message>
    <message id="Nordic (ISO Latin 6)">
        <source>Nordic (ISO Latin 6)</source>
        <translation>北欧言語 (ISO Latin 6)</translation>
    </message>
    <message id="Icelandic (DOS)">
        <source>Icelandic (DOS)</source>
        <translation>アイスランド語 (DOS)</translation>
    </message>
    <message id="Nordic (DOS)">
        <source>Nordic (DOS)</source>
        <translation>北欧言語 (DOS)</translation>
    </message>
    <message id="Baltic (ISO Latin 7)">
        <source>Baltic (ISO Latin 7)</source>
        <translation>バルト言語 (ISO Latin 7)</translation>
    </message>
    <message id="Baltic (Windows)">
        <source>Baltic (Windows)</source>
        <translation>バルト言語 (Windows)</translation>
    </message>
    <message id="Baltic (DOS)">
        <source>Baltic (DOS)</source>
        <translation>バルト言語 (DOS)</translation>
    </message>
    <message id="Celtic (ISO Latin 8)">
        <source>Celtic (ISO Latin 8)</source>
        <translation>ケルト言語 (ISO Latin 8)</translation>
    </message>
    <message id="Cyrillic (ISO 8859-5)">
        <source>Cyrillic (ISO 8859-5)</source>
        <translation>キリル文字 (ISO 8859-5)</translation>
    </message>
    <message id="Cyrillic (Windows)">
        <source>Cyrillic (Windows)</source>
        <translation>キリル文字 (Windows)</translation>
    </message>
    <message id="Cyrillic (KOI8-R)">
        <source>Cyrillic (KOI8-R)</source>
        <translation>キリル文字 (KOI8-R)</translation>
    </message>
    <message id="Ukrainian (KOI8-U)">
        <source>Ukrainian (KOI8-U)</source>
        <translation>ウクライナ語 (KOI8-U)</translation>
    </message>
    <message id="Cyrillic (Mac OS)">
        <source>Cyrillic (Mac OS)</source>
        <translation>キリル文字 (Mac OS)</translation>
    </message>
    <message id="Cyrillic (DOS)">
        <source>Cyrillic (DOS)</source>
        <translation>キリル文字 (DOS)</translation>
    </message>
    <message id="Russian (DOS)">
        <source>Russian (DOS)</source>
        <translation>ロシア語 (DOS)</translation>
    </message>
    <message id="Greek (ISO 8859-7)">
        <source>Greek (ISO 8859-7)</source>
        <translation>ギリシャ語 (ISO 8859-7)</translation>
    </message>
    <message id="Greek (Windows)">
        <source>Greek (Windows)</source>
        <translation>ギリシャ語 (Windows)</translation>
    </message>
    <message id="Greek (Mac OS)">
        <source>Greek (Mac OS)</source>
        <translation>ギリシャ語 (Mac OS)</translation>
    </message>
    <message id="Greek (DOS)">
        <source>Greek (DOS)</source>
        <translation>ギリシャ語 (DOS)</translation>
    </message>
    <message id="Greek (DOS Greek 2)">
        <source>Greek (DOS Greek 2)</source>
        <translation>ギリシャ語 (DOS Greek 2)</translation>
    </message>
    <message id="Turkish (ISO Latin 5)">
        <source>Turkish (ISO Latin 5)</source>
        <translation>トルコ語 (ISO Latin 5)</translation>
    </message>
    <message id="Turkish (Windows Latin 5)">
        <source>Turkish (Windows Latin 5)</source>
        <translation>トルコ語 (Windows Latin 5)</translation>
    </message>
    <message id="Turkish (Mac OS)">
        <source>Turkish (Mac OS)</source>
        <translation>トルコ語 (Mac OS)</translation>
    </message>
    <message id="Turkish (DOS)">
        <source>Turkish (DOS)</source>
        <translation>トルコ語 (DOS)</translation>
    </message>
    <message id="Hebrew (ISO 8859-8)">
        <source>Hebrew (ISO 8859-8)</source>
        <translation>ヘブライ語 (ISO 8859-8)</translation>
    </message>
    <message id="Hebrew (Windows)">
        <source>Hebrew (Windows)</source>
        <translation>ヘブライ語 (Windows)</translation>
    </message>
    <message id="Hebrew (DOS)">
        <source>Hebrew (DOS)</source>
        <translation>ヘブライ語 (DOS)</translation>
    </message>
    <message id="Arabic (ISO 8859-6)">
        <source>Arabic (ISO 8859-6)</source>
        <translation>アラビア語 (ISO 8859-6)</translation>
    </message>
    <message id="Arabic (Windows)">
        <source>Arabic (Windows)</source>
        <translation>アラビア語 (Windows)</translation>
    </message>
    <message id="Arabic (DOS)">
        <source>Arabic (DOS)</source>
        <translation>アラビア語 (DOS)</translation>
    </message>
    <message id="Portuguese (DOS)">
        <source>Portuguese (DOS)</source>
        <translation>ポルトガル語 (DOS)</translation>
    </message>
    <message id="Canadian French (DOS)">
        <source>Canadian French (DOS)</source>
        <translation>フランス語 (カナダ) (DOS)</translation>
    </message>
    <message id="Thai (ISO 8859-11)">
        <source>Thai (ISO 8859-11)</source>
        <translation>タイ語 (ISO 8859-11)</translation>
    </message>
    <message id="Thai (Windows, DOS)">
        <source>Thai (Windows, DOS)</source>
        <translation>タイ語 (Windows, DOS)</translation>
    </message>
    <message id="Vietnamese (Windows)">
        <source>Vietnamese (Windows)</source>
        <translation>ベトナム語 (Windows)</translation>
    </message>
    <message id="Japanese (Shift JIS)">
        <source>Japanese (Shift JIS)</source>
        <translation>日本語 (Shift JIS)</translation>
    </message>
    <message id="Japanese (Windows, DOS)">
        <source>Japanese (Windows, DOS)</source>
        <translation>日本語 (Windows, DOS)</translation>
    </message>
    <message id="Japanese (EUC)">
        <source>Japanese (EUC)</source>
        <translation>日本語 (EUC)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP)">
        <source>Japanese (ISO 2022-JP)</source>
        <translation>日本語 (ISO 2022-JP)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-2)">
        <source>Japanese (ISO 2022-JP-2)</source>
        <translation>日本語 (ISO 2022-JP-2)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-1)">
        <source>Japanese (ISO 2022-JP-1)</source>
        <translation>日本語 (ISO 2022-JP-1)</translation>
    </message>
    <message id="Chinese (GB 18030)">
        <source>Chinese (GB 18030)</source>
        <translation>中国語 (GB 18030)</translation>
    </message>
    <message id="Simplified Chinese (GBK)">
        <source>Simplified Chinese (GBK)</source>
        <translation>簡体字中国語 (GBK)</translation>
    </message>
    <message id="Simplified Chinese (Windows, DOS)">
        <source>Simplified Chinese (Windows, DOS)</source>
        <translation>簡体字中国語 (Windows, DOS)</translation>
    </message>
    <message id="Simplified Chinese (GB 2312)">
        <source>Simplified Chinese (GB 2312)</source>
        <translation>簡体字中国語 (GB 2312)</translation>
    </message>
    <message id="Simplified Chinese (HZ GB 2312)">
        <source>Simplified Chinese (HZ GB 2312)</source>
        <translation>簡体字中国語 (HZ GB 2312)</translation>
    </message>
    <message id="Chinese (ISO 2022-CN)">
        <source>Chinese (ISO 2022-CN)</source>
        <translation>中国語 (ISO 2022-CN)</translation>
    </message>
    <message id="Traditional Chinese (Big 5)">
        <source>Traditional Chinese (Big 5)</source>
        <translation>繁体字中国語 (Big 5)</translation>
    </message>
    <message id="Traditional Chinese (Big 5 HKSCS)">
        <source>Traditional Chinese (Big 5 HKSCS)</source>
        <translation>繁体字中国語 (Big 5 HKSCS)</translation>
    </message>
    <message id="Traditional Chinese (Windows, DOS)">
        <source>Traditional Chinese (Windows, DOS)</source>
        <translation>繁体字中国語 (Windows, DOS)</translation>
    </message>
    <message id="Traditional Chinese (EUC)">
        <source>Traditional Chinese (EUC)</source>
        <translation>繁体字中国語 (EUC)</translation>
    </message>
    <message id="Korean (EUC)">
        <source>Korean (EUC)</source>
        <translation>韓国語 (EUC)</translation>
    </message>
    <message id="Korean (Windows, DOS)">
        <source>Korean (Windows, DOS)</source>
        <translation>韓国語 (Windows, DOS)</translation>
    </message>
    <message id="Korean (ISO 2022-KR)">
        <source>Korean (ISO 2022-KR)</source>
        <translation>韓国語 (ISO 2022-KR)</translation>
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
        <translation>色(&amp;C):</translation>
    </message>
    <message id="StyleTextColorTip">
        <source>The color of the letters, and of the line around the panel</source>
        <translation>文字と、パネルを囲む線の色</translation>
    </message>
    <message id="StyleTextFontName">
        <source>&amp;Font:</source>
        <translation>フォント(&amp;F):</translation>
    </message>
    <message id="StyleTextFontNameTip">
        <source>The family of the letters</source>
        <translation>文字の書体</translation>
    </message>
    <message id="StyleTextFontSize">
        <source>Si&amp;ze:</source>
        <translation>サイズ(&amp;Z):</translation>
    </message>
    <message id="StyleTextFontSizeTip">
        <source>In points of a screen 1080 points high; on a higher one, letters grow with it</source>
        <translation>高さ 1080 ポイントの画面でのポイント数。それより高い画面では文字も大きくなります</translation>
    </message>
    <message id="StyleShadow">
        <source>Shadow</source>
        <translation>影</translation>
    </message>
    <message id="StyleShadowOn">
        <source>Draw a &amp;shadow</source>
        <translation>影を描く(&amp;S)</translation>
    </message>
    <message id="StyleShadowOnTip">
        <source>A shadow keeps letters legible on any picture</source>
        <translation>影があると、どんな映像の上でも文字が読みやすくなります</translation>
    </message>
    <message id="StyleShadowColor">
        <source>Co&amp;lor:</source>
        <translation>色(&amp;L):</translation>
    </message>
    <message id="StyleShadowColorTip">
        <source>The color of the shadow, and how much shows through it</source>
        <translation>影の色と透け具合</translation>
    </message>
    <message id="StyleShadowBlur">
        <source>&amp;Blur:</source>
        <translation>ぼかし(&amp;B):</translation>
    </message>
    <message id="StyleShadowBlurTip">
        <source>How far the shadow’s edge is spread, in points</source>
        <translation>影の縁を広げる幅 (ポイント)</translation>
    </message>
    <message id="StyleShadowOffsetX">
        <source>To the &amp;right:</source>
        <translation>右へ(&amp;R):</translation>
    </message>
    <message id="StyleShadowOffsetXTip">
        <source>How far the shadow falls to the right, in points; below 0, to the left</source>
        <translation>影を右へずらす幅 (ポイント)。0 より小さいと左へ</translation>
    </message>
    <message id="StyleShadowOffsetY">
        <source>&amp;Upwards:</source>
        <translation>上へ(&amp;U):</translation>
    </message>
    <message id="StyleShadowOffsetYTip">
        <source>How far the shadow falls upwards, in points; below 0, downwards</source>
        <translation>影を上へずらす幅 (ポイント)。0 より小さいと下へ</translation>
    </message>
    <message id="StylePosition">
        <source>Position</source>
        <translation>位置</translation>
    </message>
    <message id="StyleAlignmentVertical">
        <source>&amp;Vertical:</source>
        <translation>縦(&amp;V):</translation>
    </message>
    <message id="StyleAlignmentVerticalTip">
        <source>At what height it stands</source>
        <translation>表示する高さ</translation>
    </message>
    <message id="StyleAlignmentHorizontal">
        <source>&amp;Horizontal:</source>
        <translation>横(&amp;H):</translation>
    </message>
    <message id="StyleAlignmentHorizontalTip">
        <source>At which side of the screen it stands</source>
        <translation>画面のどちら側に表示するか</translation>
    </message>
    <message id="StyleLeft">
        <source>Left</source>
        <translation>左</translation>
    </message>
    <message id="StyleCenter">
        <source>Center</source>
        <translation>中央</translation>
    </message>
    <message id="StyleRight">
        <source>Right</source>
        <translation>右</translation>
    </message>
    <message id="StyleTop">
        <source>Top</source>
        <translation>上</translation>
    </message>
    <message id="StyleMiddle">
        <source>Middle</source>
        <translation>中央</translation>
    </message>
    <message id="StyleBottom">
        <source>Bottom</source>
        <translation>下</translation>
    </message>
    <message id="StyleAbovePictureEdge">
        <source>Inside the picture</source>
        <translation>映像の内側</translation>
    </message>
    <message id="StyleOnPictureEdge">
        <source>On the picture’s edge</source>
        <translation>映像の端</translation>
    </message>
    <message id="StyleBelowPicture">
        <source>Below the picture</source>
        <translation>映像の下</translation>
    </message>
    <message id="StylePanel">
        <source>Panel</source>
        <translation>パネル</translation>
    </message>
    <message id="StyleBackground">
        <source>Background</source>
        <translation>背景</translation>
    </message>
    <message id="StyleBackgroundTip">
        <source>The color around the picture</source>
        <translation>映像の周囲の色</translation>
    </message>
    <message id="StyleBackgroundOn">
        <source>Draw a &amp;panel</source>
        <translation>パネルを描く(&amp;P)</translation>
    </message>
    <message id="StyleBackgroundOnTip">
        <source>A panel behind the text</source>
        <translation>文字の背後のパネル</translation>
    </message>
    <message id="StyleBackgroundColor">
        <source>Col&amp;or:</source>
        <translation>色(&amp;O):</translation>
    </message>
    <message id="StyleBackgroundColorTip">
        <source>The color of the panel, and how much shows through it</source>
        <translation>パネルの色と透け具合</translation>
    </message>
    <message id="StyleBackgroundRounded">
        <source>Rou&amp;nd corners</source>
        <translation>角を丸くする(&amp;N)</translation>
    </message>
    <message id="StyleBackgroundRoundedTip">
        <source>Corners of the panel are rounded</source>
        <translation>パネルの角を丸くします</translation>
    </message>
    <message id="StyleBackgroundRadius">
        <source>R&amp;adius:</source>
        <translation>半径(&amp;A):</translation>
    </message>
    <message id="StyleBackgroundRadiusTip">
        <source>How far the corners are rounded, in points</source>
        <translation>角の丸み (ポイント)</translation>
    </message>
    <message id="StyleFrameOn">
        <source>Draw a fra&amp;me</source>
        <translation>枠を描く(&amp;M)</translation>
    </message>
    <message id="StyleFrameOnTip">
        <source>A line around the panel, in the text’s color</source>
        <translation>パネルを囲む、文字と同じ色の線</translation>
    </message>
    <message id="StyleFrameWidth">
        <source>&amp;Width:</source>
        <translation>幅(&amp;W):</translation>
    </message>
    <message id="StyleFrameWidthTip">
        <source>How wide the line is, in points</source>
        <translation>線の太さ (ポイント)</translation>
    </message>
    <message id="StyleFading">
        <source>Fading and opacity</source>
        <translation>フェードと不透明度</translation>
    </message>
    <message id="StyleFadingIn">
        <source>Fade &amp;in:</source>
        <translation>フェードイン(&amp;I):</translation>
    </message>
    <message id="StyleFadingInTip">
        <source>How long a whole fade takes when it appears; 0 shows it at once</source>
        <translation>現れるときのフェードの長さ。0 ではすぐに現れます</translation>
    </message>
    <message id="StyleFadingOut">
        <source>Fad&amp;e out:</source>
        <translation>フェードアウト(&amp;E):</translation>
    </message>
    <message id="StyleFadingOutTip">
        <source>How long a whole fade takes when it goes; 0 hides it at once</source>
        <translation>消えるときのフェードの長さ。0 ではすぐに消えます</translation>
    </message>
    <message id="StyleFadingDelay">
        <source>S&amp;tay:</source>
        <translation>表示(&amp;T):</translation>
    </message>
    <message id="StyleFadingDelayTip">
        <source>How long it stays between fading in and fading out</source>
        <translation>フェードインからフェードアウトまで表示する長さ</translation>
    </message>
    <message id="StyleMinAlpha">
        <source>Opacity when hi&amp;dden:</source>
        <translation>非表示時の不透明度(&amp;D):</translation>
    </message>
    <message id="StyleMinAlphaTip">
        <source>How much of it remains while it is hidden: 0 % is nothing</source>
        <translation>隠れている間に残る濃さ。0 % では何も見えません</translation>
    </message>
    <message id="StyleMaxAlpha">
        <source>Opacit&amp;y when shown:</source>
        <translation>表示時の不透明度(&amp;Y):</translation>
    </message>
    <message id="StyleMaxAlphaTip">
        <source>How opaque it is while it is shown: below 100 % the picture shows through</source>
        <translation>表示中の不透明さ。100 % 未満では映像が透けて見えます</translation>
    </message>
    <message id="StyleReset">
        <source>Reset to Defaults</source>
        <translation>デフォルトに戻す</translation>
    </message>
    <message id="StyleResetTip">
        <source>Takes this style back to what it was at first</source>
        <translation>このスタイルを最初の状態に戻します</translation>
    </message>
    <message id="StyleResetUndo">
        <source>Undo Reset</source>
        <translation>リセットを取り消す</translation>
    </message>
    <message id="StyleResetUndoTip">
        <source>Brings back what the style was before</source>
        <translation>リセット前のスタイルに戻します</translation>
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
        <translation>サンプル</translation>
    </message>
    <message id="StyleSampleTip">
        <source>What it looks like over the movie, or over a light and a dark picture</source>
        <translation>動画の上、または明るい映像と暗い映像の上での見え方</translation>
    </message>
    <message id="StyleSampleSubtitle">
        <source>What an evening!</source>
        <translation>なんて素敵な夜!</translation>
    </message>
    <message id="StyleSampleFeedback">
        <source>Volume: 80 %</source>
        <translation>音量: 80 %</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message id="Preferences">
        <source>Preferences</source>
        <translation>環境設定</translation>
    </message>
    <message id="&amp;Movie">
        <source>&amp;Movie</source>
        <translation>動画(&amp;M)</translation>
    </message>
    <message id="Started Without a File">
        <source>Started Without a File</source>
        <translation>ファイルを指定せずに起動したとき</translation>
    </message>
    <message id="Open &amp;nothing">
        <source>Open &amp;nothing</source>
        <translation>何も開かない(&amp;N)</translation>
    </message>
    <message id="Lumaro starts with an empty screen">
        <source>Lumaro starts with an empty screen</source>
        <translation>Lumaro は何もない画面で起動します</translation>
    </message>
    <message id="Open the &amp;last playlist">
        <source>Open the &amp;last playlist</source>
        <translation>前回のプレイリストを開く(&amp;L)</translation>
    </message>
    <message id="The movies of the last time come back, at the place where they were left">
        <source>The movies of the last time come back, at the place where they were left</source>
        <translation>前回の動画が、最後に見ていた位置で開きます</translation>
    </message>
    <message id="Ask for &amp;files">
        <source>Ask for &amp;files</source>
        <translation>ファイルを選ぶ(&amp;F)</translation>
    </message>
    <message id="Lumaro begins with the panel that opens movies">
        <source>Lumaro begins with the panel that opens movies</source>
        <translation>Lumaro は動画を開くパネルを表示して起動します</translation>
    </message>
    <message id="Picture">
        <source>Picture</source>
        <translation>映像</translation>
    </message>
    <message id="Si&amp;ze:">
        <source>Si&amp;ze:</source>
        <translation>サイズ(&amp;Z):</translation>
    </message>
    <message id="How large movies are shown, from now on and at the next start">
        <source>How large movies are shown, from now on and at the next start</source>
        <translation>動画を表示する大きさ。今すぐと次回の起動時に有効です</translation>
    </message>
    <message id="Custom Magnification">
        <source>Custom Magnification</source>
        <translation>任意の倍率</translation>
    </message>
    <message id="&amp;Window:">
        <source>&amp;Window:</source>
        <translation>ウィンドウ(&amp;W):</translation>
    </message>
    <message id="Whether the movie stays above the windows of other programs while Lumaro has the keyboard">
        <source>Whether the movie stays above the windows of other programs while Lumaro has the keyboard</source>
        <translation>Lumaro がキーボードを使っている間、ほかのプログラムのウィンドウより手前に動画を表示するかどうか</translation>
    </message>
    <message id="Bar over the p&amp;icture:">
        <source>Bar over the p&amp;icture:</source>
        <translation>映像上のバー(&amp;I):</translation>
    </message>
    <message id="Where none stands below it: a larger bar that comes with the pointer, or stays">
        <source>Where none stands below it: a larger bar that comes with the pointer, or stays</source>
        <translation>下にバーがない場所では、ポインターとともに現れる、または常に表示される大きめのバーを使います</translation>
    </message>
    <message id="Always">
        <source>Always</source>
        <translation>常に</translation>
    </message>
    <message id="When the pointer moves">
        <source>When the pointer moves</source>
        <translation>ポインターを動かしたとき</translation>
    </message>
    <message id="Among other windows">
        <source>Among other windows</source>
        <translation>ほかのウィンドウと同じ</translation>
    </message>
    <message id="Above other windows">
        <source>Above other windows</source>
        <translation>ほかのウィンドウより手前</translation>
    </message>
    <message id="Show the controller &amp;bar">
        <source>Show the controller &amp;bar</source>
        <translation>コントロールバーを表示(&amp;B)</translation>
    </message>
    <message id="The bar with play, time and volume below the picture">
        <source>The bar with play, time and volume below the picture</source>
        <translation>映像の下の、再生、時間、音量のバー</translation>
    </message>
    <message id="Set the screen’s bri&amp;ghtness:">
        <source>Set the screen’s bri&amp;ghtness:</source>
        <translation>画面の明るさを設定(&amp;G):</translation>
    </message>
    <message id="As long as Lumaro runs; then the screen is as bright as before">
        <source>As long as Lumaro runs; then the screen is as bright as before</source>
        <translation>Lumaro の実行中だけ。終了すると元の明るさに戻ります</translation>
    </message>
    <message id="How bright the screen is while Lumaro runs">
        <source>How bright the screen is while Lumaro runs</source>
        <translation>Lumaro の実行中の画面の明るさ</translation>
    </message>
    <message id="Brightness of the screen">
        <source>Brightness of the screen</source>
        <translation>画面の明るさ</translation>
    </message>
    <message id="Pictur&amp;e">
        <source>Pictur&amp;e</source>
        <translation>映像(&amp;X)</translation>
    </message>
    <message id="Co&amp;ntrast:">
        <source>Co&amp;ntrast:</source>
        <translation>コントラスト(&amp;N):</translation>
    </message>
    <message id="&amp;Brightness:">
        <source>&amp;Brightness:</source>
        <translation>明るさ(&amp;B):</translation>
    </message>
    <message id="&amp;Gamma:">
        <source>&amp;Gamma:</source>
        <translation>ガンマ(&amp;G):</translation>
    </message>
    <message id="Sa&amp;turation:">
        <source>Sa&amp;turation:</source>
        <translation>彩度(&amp;T):</translation>
    </message>
    <message id="&amp;Hue:">
        <source>&amp;Hue:</source>
        <translation>色相(&amp;H):</translation>
    </message>
    <message id="Every movie is shown with it, the one on the screen at once">
        <source>Every movie is shown with it, the one on the screen at once</source>
        <translation>すべてのムービーに使われ、表示中のムービーにはすぐに反映されます</translation>
    </message>
    <message id="The brightness of this screen can’t be set">
        <source>The brightness of this screen can’t be set</source>
        <translation>この画面の明るさは設定できません</translation>
    </message>
    <message id="Playing">
        <source>Playing</source>
        <translation>再生</translation>
    </message>
    <message id="&amp;Jump by:">
        <source>&amp;Jump by:</source>
        <translation>ジャンプの幅(&amp;J):</translation>
    </message>
    <message id="How many seconds a jump goes forward or back">
        <source>How many seconds a jump goes forward or back</source>
        <translation>1 回のジャンプで前後に移動する秒数</translation>
    </message>
    <message id="seconds">
        <source>seconds</source>
        <translation>秒</translation>
    </message>
    <message id="&amp;Keep the volume for the next start">
        <source>&amp;Keep the volume for the next start</source>
        <translation>次回の起動時も音量を維持(&amp;K)</translation>
    </message>
    <message id="Lumaro begins as loud as it ended">
        <source>Lumaro begins as loud as it ended</source>
        <translation>Lumaro は終了したときの音量で起動します</translation>
    </message>
    <message id="While Another Program Has the Keyboard">
        <source>While Another Program Has the Keyboard</source>
        <translation>ほかのプログラムがキーボードを使っている間</translation>
    </message>
    <message id="Pa&amp;use the movie">
        <source>Pa&amp;use the movie</source>
        <translation>動画を一時停止(&amp;U)</translation>
    </message>
    <message id="It goes on when you come back">
        <source>It goes on when you come back</source>
        <translation>戻ってくると再生を続けます</translation>
    </message>
    <message id="&amp;Hide the window">
        <source>&amp;Hide the window</source>
        <translation>ウィンドウを隠す(&amp;H)</translation>
    </message>
    <message id="The window is minimized, and comes back with Lumaro">
        <source>The window is minimized, and comes back with Lumaro</source>
        <translation>ウィンドウは最小化され、Lumaro に戻ると再び表示されます</translation>
    </message>
    <message id="Go on where a mo&amp;vie was left">
        <source>Go on where a mo&amp;vie was left</source>
        <translation>前回の位置から再生(&amp;V)</translation>
    </message>
    <message id="The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them">
        <source>The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them</source>
        <translation>最近の動画 1000 本の再生位置と字幕を記憶し、「最近開いた動画」メニューに表示します</translation>
    </message>
    <message id="&amp;Playlist">
        <source>&amp;Playlist</source>
        <translation>プレイリスト(&amp;P)</translation>
    </message>
    <message id="Order">
        <source>Order</source>
        <translation>順序</translation>
    </message>
    <message id="As adde&amp;d">
        <source>As adde&amp;d</source>
        <translation>追加順(&amp;D)</translation>
    </message>
    <message id="Movies play in the order in which they were given">
        <source>Movies play in the order in which they were given</source>
        <translation>動画を指定された順に再生します</translation>
    </message>
    <message id="Shu&amp;ffled">
        <source>Shu&amp;ffled</source>
        <translation>シャッフル(&amp;F)</translation>
    </message>
    <message id="Movies play in an order left to chance">
        <source>Movies play in an order left to chance</source>
        <translation>動画を無作為な順に再生します</translation>
    </message>
    <message id="Sor&amp;ted">
        <source>Sor&amp;ted</source>
        <translation>並べ替え(&amp;T)</translation>
    </message>
    <message id="Movies play by their names">
        <source>Movies play by their names</source>
        <translation>動画を名前順に再生します</translation>
    </message>
    <message id="Compare &amp;numbers by value">
        <source>Compare &amp;numbers by value</source>
        <translation>数字を値で比較(&amp;N)</translation>
    </message>
    <message id="Part 2 comes before part 10">
        <source>Part 2 comes before part 10</source>
        <translation>パート 2 がパート 10 より前になります</translation>
    </message>
    <message id="By the &amp;whole path">
        <source>By the &amp;whole path</source>
        <translation>パス全体で比較(&amp;W)</translation>
    </message>
    <message id="Folders stay together">
        <source>Folders stay together</source>
        <translation>フォルダーごとにまとまります</translation>
    </message>
    <message id="By the f&amp;ile name only">
        <source>By the f&amp;ile name only</source>
        <translation>ファイル名だけで比較(&amp;I)</translation>
    </message>
    <message id="Whatever folders the movies lie in">
        <source>Whatever folders the movies lie in</source>
        <translation>動画がどのフォルダーにあっても</translation>
    </message>
    <message id="&amp;Looping:">
        <source>&amp;Looping:</source>
        <translation>リピート(&amp;L):</translation>
    </message>
    <message id="What is repeated, from now on and in new playlists">
        <source>What is repeated, from now on and in new playlists</source>
        <translation>今から、そして新しいプレイリストで繰り返すもの</translation>
    </message>
    <message id="&amp;Begin to play what is opened">
        <source>&amp;Begin to play what is opened</source>
        <translation>開いたものをすぐに再生(&amp;B)</translation>
    </message>
    <message id="Else movies are shown and wait">
        <source>Else movies are shown and wait</source>
        <translation>オフの場合、動画は表示されたまま待機します</translation>
    </message>
    <message id="&amp;Go on with the next movie">
        <source>&amp;Go on with the next movie</source>
        <translation>次の動画へ進む(&amp;G)</translation>
    </message>
    <message id="When one ends, the next in the list plays">
        <source>When one ends, the next in the list plays</source>
        <translation>1 本が終わると、一覧の次の動画を再生します</translation>
    </message>
    <message id="&amp;Quit at the end of the list">
        <source>&amp;Quit at the end of the list</source>
        <translation>一覧の最後で終了(&amp;Q)</translation>
    </message>
    <message id="Unless it is repeated">
        <source>Unless it is repeated</source>
        <translation>リピートしているときを除きます</translation>
    </message>
    <message id="&amp;Subtitles">
        <source>&amp;Subtitles</source>
        <translation>字幕(&amp;S)</translation>
    </message>
    <message id="Showing">
        <source>Showing</source>
        <translation>表示</translation>
    </message>
    <message id="S&amp;how subtitles">
        <source>S&amp;how subtitles</source>
        <translation>字幕を表示(&amp;H)</translation>
    </message>
    <message id="Also for movies opened later">
        <source>Also for movies opened later</source>
        <translation>後で開く動画にも適用します</translation>
    </message>
    <message id="Draw mark&amp;up">
        <source>Draw mark&amp;up</source>
        <translation>書式を反映(&amp;U)</translation>
    </message>
    <message id="Italics, colors and places in subtitle files act; else they are left out">
        <source>Italics, colors and places in subtitle files act; else they are left out</source>
        <translation>字幕ファイル内の斜体、色、位置を反映します。オフの場合は無視します</translation>
    </message>
    <message id="&amp;Find subtitle files beside movies">
        <source>&amp;Find subtitle files beside movies</source>
        <translation>動画と同じ場所の字幕ファイルを探す(&amp;F)</translation>
    </message>
    <message id="When a movie is opened">
        <source>When a movie is opened</source>
        <translation>動画を開くとき</translation>
    </message>
    <message id="Files">
        <source>Files</source>
        <translation>ファイル</translation>
    </message>
    <message id="E&amp;ncoding:">
        <source>E&amp;ncoding:</source>
        <translation>エンコーディング(&amp;E):</translation>
    </message>
    <message id="How the letters of subtitle files are stored; Automatic tells it by the file">
        <source>How the letters of subtitle files are stored; Automatic tells it by the file</source>
        <translation>字幕ファイルの文字の保存方式。「自動」ではファイルから判別します</translation>
    </message>
    <message id="Encoding of subtitle files">
        <source>Encoding of subtitle files</source>
        <translation>字幕ファイルのエンコーディング</translation>
    </message>
    <message id="Frame ra&amp;te:">
        <source>Frame ra&amp;te:</source>
        <translation>フレームレート(&amp;T):</translation>
    </message>
    <message id="For subtitle files that count pictures instead of seconds">
        <source>For subtitle files that count pictures instead of seconds</source>
        <translation>秒ではなくコマ数で数える字幕ファイルに使います</translation>
    </message>
    <message id="As the movie">
        <source>As the movie</source>
        <translation>動画と同じ</translation>
    </message>
    <message id="Repair &amp;damaged subtitle files">
        <source>Repair &amp;damaged subtitle files</source>
        <translation>破損した字幕ファイルを修復(&amp;D)</translation>
    </message>
    <message id="What is damaged is read as far as it can be">
        <source>What is damaged is read as far as it can be</source>
        <translation>破損したファイルも読める限り読み取ります</translation>
    </message>
    <message id="Preferred Languages">
        <source>Preferred Languages</source>
        <translation>優先する言語</translation>
    </message>
    <message id="Preferred languages">
        <source>Preferred languages</source>
        <translation>優先する言語</translation>
    </message>
    <message id="Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.">
        <source>Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.</source>
        <translation>この中で最初に見つかった言語の字幕で動画を始めます。初期状態ではシステムの言語です。</translation>
    </message>
    <message id="Add a language">
        <source>Add a language</source>
        <translation>言語を追加</translation>
    </message>
    <message id="Adds a language to the list">
        <source>Adds a language to the list</source>
        <translation>一覧に言語を追加します</translation>
    </message>
    <message id="Hi&amp;gher">
        <source>Hi&amp;gher</source>
        <translation>上へ(&amp;G)</translation>
    </message>
    <message id="Moves the language up the list">
        <source>Moves the language up the list</source>
        <translation>一覧で言語を上へ移動します</translation>
    </message>
    <message id="Lo&amp;wer">
        <source>Lo&amp;wer</source>
        <translation>下へ(&amp;W)</translation>
    </message>
    <message id="Moves the language down the list">
        <source>Moves the language down the list</source>
        <translation>一覧で言語を下へ移動します</translation>
    </message>
    <message id="Remo&amp;ve">
        <source>Remo&amp;ve</source>
        <translation>削除(&amp;V)</translation>
    </message>
    <message id="Takes the language off the list">
        <source>Takes the language off the list</source>
        <translation>一覧から言語を取り除きます</translation>
    </message>
    <message id="&amp;Overlays">
        <source>&amp;Overlays</source>
        <translation>オーバーレイ(&amp;O)</translation>
    </message>
    <message id="Smallest &amp;text size:">
        <source>Smallest &amp;text size:</source>
        <translation>文字の最小サイズ(&amp;T):</translation>
    </message>
    <message id="No text over the movie is smaller">
        <source>No text over the movie is smaller</source>
        <translation>動画上の文字はこれより小さくなりません</translation>
    </message>
    <message id="&amp;Distance from the edges:">
        <source>&amp;Distance from the edges:</source>
        <translation>端からの距離(&amp;D):</translation>
    </message>
    <message id="How far what is shown over the movie keeps from the edges of the window">
        <source>How far what is shown over the movie keeps from the edges of the window</source>
        <translation>動画上の表示がウィンドウの端から離れる距離</translation>
    </message>
    <message id="Show &amp;feedback">
        <source>Show &amp;feedback</source>
        <translation>フィードバックを表示(&amp;F)</translation>
    </message>
    <message id="Commands say what they did">
        <source>Commands say what they did</source>
        <translation>コマンドの結果を表示します</translation>
    </message>
    <message id="&amp;Keep the display for the next start">
        <source>&amp;Keep the display for the next start</source>
        <translation>次回の起動時も画面表示を維持(&amp;K)</translation>
    </message>
    <message id="The on-screen display chosen last is shown again">
        <source>The on-screen display chosen last is shown again</source>
        <translation>最後に選んだ画面表示を再び表示します</translation>
    </message>
    <message id="How texts over the movie and the window look">
        <source>How texts over the movie and the window look</source>
        <translation>動画上の文字とウィンドウの外観</translation>
    </message>
    <message id="Overlay styles">
        <source>Overlay styles</source>
        <translation>オーバーレイのスタイル</translation>
    </message>
    <message id="How subtitles look">
        <source>How subtitles look</source>
        <translation>字幕の外観</translation>
    </message>
    <message id="Subtitle styles">
        <source>Subtitle styles</source>
        <translation>字幕のスタイル</translation>
    </message>
    <message id="&amp;Advanced">
        <source>&amp;Advanced</source>
        <translation>詳細(&amp;A)</translation>
    </message>
    <message id="Pointer">
        <source>Pointer</source>
        <translation>ポインター</translation>
    </message>
    <message id="&amp;Hide after:">
        <source>&amp;Hide after:</source>
        <translation>隠すまでの時間(&amp;H):</translation>
    </message>
    <message id="How long the pointer rests before it is hidden">
        <source>How long the pointer rests before it is hidden</source>
        <translation>ポインターが止まってから隠れるまでの時間</translation>
    </message>
    <message id="New Versions">
        <source>New Versions</source>
        <translation>新しいバージョン</translation>
    </message>
    <message id="The packages of your system keep Lumaro up to date.">
        <source>The packages of your system keep Lumaro up to date.</source>
        <translation>Lumaro はシステムのパッケージによって最新に保たれます。</translation>
    </message>
    <message id="Look for new &amp;versions">
        <source>Look for new &amp;versions</source>
        <translation>新しいバージョンを確認(&amp;V)</translation>
    </message>
    <message id="When Lumaro starts, as often as is set below">
        <source>When Lumaro starts, as often as is set below</source>
        <translation>Lumaro の起動時に、下で設定した間隔で確認します</translation>
    </message>
    <message id="Also for &amp;beta versions">
        <source>Also for &amp;beta versions</source>
        <translation>ベータ版も含める(&amp;B)</translation>
    </message>
    <message id="Versions that are still being tried">
        <source>Versions that are still being tried</source>
        <translation>まだ試験中のバージョン</translation>
    </message>
    <message id="Ho&amp;w often:">
        <source>Ho&amp;w often:</source>
        <translation>間隔(&amp;W):</translation>
    </message>
    <message id="How much time passes between two checks">
        <source>How much time passes between two checks</source>
        <translation>確認から次の確認までの時間</translation>
    </message>
    <message id="At every start">
        <source>At every start</source>
        <translation>起動するたび</translation>
    </message>
    <message id="Daily">
        <source>Daily</source>
        <translation>毎日</translation>
    </message>
    <message id="Weekly">
        <source>Weekly</source>
        <translation>毎週</translation>
    </message>
    <message id="Every 30 days">
        <source>Every 30 days</source>
        <translation>30 日ごと</translation>
    </message>
    <message id="Last check:">
        <source>Last check:</source>
        <translation>前回の確認:</translation>
    </message>
    <message id="Result:">
        <source>Result:</source>
        <translation>結果:</translation>
    </message>
    <message id="Check &amp;Now">
        <source>Check &amp;Now</source>
        <translation>今すぐ確認(&amp;N)</translation>
    </message>
    <message id="Looks for a new version at once">
        <source>Looks for a new version at once</source>
        <translation>新しいバージョンをすぐに確認します</translation>
    </message>
    <message id="Diagnosis">
        <source>Diagnosis</source>
        <translation>診断</translation>
    </message>
    <message id="Remote">
        <source>Remote</source>
        <translation>リモコン</translation>
    </message>
    <message id="Act on in&amp;frared remotes">
        <source>Act on in&amp;frared remotes</source>
        <translation>赤外線リモコンに反応する(&amp;F)</translation>
    </message>
    <message id="Their buttons are the player's alone while it runs">
        <source>Their buttons are the player's alone while it runs</source>
        <translation>実行中、リモコンのボタンはこのプレーヤー専用になります</translation>
    </message>
    <message id="&amp;Log what happens">
        <source>&amp;Log what happens</source>
        <translation>ログを記録(&amp;L)</translation>
    </message>
    <message id="Lines for whoever looks for an error, in the system log or the terminal">
        <source>Lines for whoever looks for an error, in the system log or the terminal</source>
        <translation>エラーを調べるための記録。システムログまたは端末に出力します</translation>
    </message>
    <message id="&amp;Reset Page">
        <source>&amp;Reset Page</source>
        <translation>ページをリセット(&amp;R)</translation>
    </message>
    <message id="Takes the settings of this page back to what they were at first. Styles have a button of their own.">
        <source>Takes the settings of this page back to what they were at first. Styles have a button of their own.</source>
        <translation>このページの設定を最初の状態に戻します。スタイルには専用のボタンがあります。</translation>
    </message>
    <message id="Undo Reset">
        <source>Undo Reset</source>
        <translation>リセットを取り消す</translation>
    </message>
    <message id="Brings the settings of this page back (Ctrl+Z)">
        <source>Brings the settings of this page back (Ctrl+Z)</source>
        <translation>このページの設定をリセット前に戻します (Ctrl+Z)</translation>
    </message>
    <message id="Find a setting">
        <source>Find a setting</source>
        <translation>設定を検索</translation>
    </message>
    <message id="Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.">
        <source>Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.</source>
        <translation>設定を言葉で検索します (Ctrl+F)。↑ と ↓ でほかの結果へ、Enter でその設定へ移動します。</translation>
    </message>
    <message id="PreferencesFound">
        <source>%d of %d</source>
        <translation>%d / %d</translation>
    </message>
    <message id="Nothing found">
        <source>Nothing found</source>
        <translation>見つかりません</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>閉じる</translation>
    </message>
    <message id="More Encodings">
        <source>More Encodings</source>
        <translation>その他のエンコーディング</translation>
    </message>
    <message id="%d sec.">
        <source>%d sec.</source>
        <translation>%d 秒</translation>
    </message>
    <message id="%d pt">
        <source>%d pt</source>
        <translation>%d pt</translation>
    </message>
    <message id="Search: %@">
        <source>Search: %@</source>
        <translation>検索: %@</translation>
    </message>
    <message id="Type to search">
        <source>Type to search</source>
        <translation>入力して検索</translation>
    </message>
    <message id="Change the preferences">
        <source>Change the preferences</source>
        <translation>設定を変更する</translation>
    </message>
    <message id="Feedback style">
        <source>Feedback</source>
        <translation>フィードバック</translation>
    </message>
    <message id="Text style">
        <source>Texts</source>
        <translation>テキスト</translation>
    </message>
    <message id="Picture style">
        <source>Bitmaps</source>
        <translation>ビットマップ</translation>
    </message>
    <message id="On-screen display style">
        <source>On-Screen Display</source>
        <translation>画面表示</translation>
    </message>
    <message id="Window style">
        <source>Window</source>
        <translation>ウィンドウ</translation>
    </message>
    <message id="SettingsNotSavedMessage">
        <source>The preferences can’t be saved.</source>
        <translation>設定を保存できません。</translation>
    </message>
    <message id="SettingsNotSavedDetails">
        <source>What you change acts until Lumaro quits. The file “%@” can’t be written.</source>
        <translation>変更は Lumaro を終了するまで有効です。ファイル「%@」に書き込めません。</translation>
    </message>
    <message id="SettingsDamagedMessage">
        <source>The preferences are damaged.</source>
        <translation>設定が破損しています。</translation>
    </message>
    <message id="SettingsDamagedDetails">
        <source>Lumaro begins with new ones. The damaged file is kept as “%@”.</source>
        <translation>Lumaro は新しい設定で起動します。破損したファイルは「%@」として残ります。</translation>
    </message>
    <message id="SettingsUnreadableMessage">
        <source>The preferences can’t be read.</source>
        <translation>設定を読み取れません。</translation>
    </message>
    <message id="SettingsUnreadableDetails">
        <source>The file “%@” stays as it is. What you change acts until Lumaro quits.</source>
        <translation>ファイル「%@」はそのまま残ります。変更は Lumaro を終了するまで有効です。</translation>
    </message>
    <message id="PlacesDamagedMessage">
        <source>The remembered places in movies are damaged; their file was put aside.</source>
        <translation>記憶した再生位置が破損しているため、そのファイルを別に保管しました。</translation>
    </message>
    <message id="PlacesUnreadableMessage">
        <source>The remembered places in movies can’t be read.</source>
        <translation>記憶した再生位置を読み取れません。</translation>
    </message>
    <message id="PlacesOfLaterVersionMessage">
        <source>A later version of Lumaro remembers places in movies here; this one can’t.</source>
        <translation>ここの再生位置は Lumaro の新しいバージョンが記憶したもので、このバージョンでは使えません。</translation>
    </message>
    <message id="Short&amp;cuts">
        <source>Short&amp;cuts</source>
        <translation>ショートカット(&amp;C)</translation>
    </message>
    <message id="Searc&amp;h:">
        <source>Searc&amp;h:</source>
        <translation>検索(&amp;E):</translation>
    </message>
    <message id="Words of a command, or its key">
        <source>Words of a command, or its key</source>
        <translation>コマンドの言葉、またはキー</translation>
    </message>
    <message id="The commands by menu; bold ones have keys of your own">
        <source>The commands by menu; bold ones have keys of your own</source>
        <translation>メニューごとのコマンド。太字はキーを変更したものです</translation>
    </message>
    <message id="Commands and their keys">
        <source>Commands and their keys</source>
        <translation>コマンドとキー</translation>
    </message>
    <message id="Command">
        <source>Command</source>
        <translation>コマンド</translation>
    </message>
    <message id="Keys">
        <source>Keys</source>
        <translation>キー</translation>
    </message>
    <message id="&amp;Keys of the command:">
        <source>&amp;Keys of the command:</source>
        <translation>コマンドのキー(&amp;K):</translation>
    </message>
    <message id="The keys of the command that is marked">
        <source>The keys of the command that is marked</source>
        <translation>選択したコマンドのキー</translation>
    </message>
    <message id="A&amp;dd Key...">
        <source>A&amp;dd Key...</source>
        <translation>キーを追加(&amp;D)…</translation>
    </message>
    <message id="Then press the key, with Ctrl, Alt, Shift or Super if you like">
        <source>Then press the key, with Ctrl, Alt, Shift or Super if you like</source>
        <translation>続けてキーを押します。Ctrl、Alt、Shift、Super と組み合わせることもできます</translation>
    </message>
    <message id="Remo&amp;ve Key">
        <source>Remo&amp;ve Key</source>
        <translation>キーを削除(&amp;V)</translation>
    </message>
    <message id="The marked key means nothing any more">
        <source>The marked key means nothing any more</source>
        <translation>選択したキーの割り当てをなくします</translation>
    </message>
    <message id="Rese&amp;t Command">
        <source>Rese&amp;t</source>
        <translation>リセット(&amp;T)</translation>
    </message>
    <message id="The command gets back the keys that Lumaro came with">
        <source>The command gets back the keys that Lumaro came with</source>
        <translation>このコマンドのキーを Lumaro の初期状態に戻します</translation>
    </message>
    <message id="Reset A&amp;ll Keys">
        <source>Reset A&amp;ll</source>
        <translation>すべてリセット(&amp;L)</translation>
    </message>
    <message id="Every command gets back the keys that Lumaro came with">
        <source>Every command gets back the keys that Lumaro came with</source>
        <translation>すべてのコマンドのキーを Lumaro の初期状態に戻します</translation>
    </message>
    <message id="&amp;Undo Key Change">
        <source>&amp;Undo</source>
        <translation>元に戻す(&amp;U)</translation>
    </message>
    <message id="Takes back the last change of a key">
        <source>Takes back the last change of a key</source>
        <translation>キーの最後の変更を取り消します</translation>
    </message>
    <message id="Take &amp;It Over">
        <source>Take &amp;It Over</source>
        <translation>割り当てを変更(&amp;I)</translation>
    </message>
    <message id="The key means the marked command from now on">
        <source>The key means the marked command from now on</source>
        <translation>このキーは今後、選択したコマンドに使われます</translation>
    </message>
    <message id="Ca&amp;ncel Key">
        <source>Ca&amp;ncel</source>
        <translation>キャンセル(&amp;N)</translation>
    </message>
    <message id="The key keeps its meaning">
        <source>The key keeps its meaning</source>
        <translation>キーの割り当ては変わりません</translation>
    </message>
    <message id="Press a key for “%@”. Esc goes back.">
        <source>Press a key for “%@”. Esc goes back.</source>
        <translation>「%@」のキーを押してください。Esc で戻ります。</translation>
    </message>
    <message id="Lumaro does not know this key.">
        <source>Lumaro does not know this key.</source>
        <translation>Lumaro はこのキーに対応していません。</translation>
    </message>
    <message id="Esc closes windows and ends Lumaro; that can’t be changed.">
        <source>Esc closes windows and ends Lumaro; that can’t be changed.</source>
        <translation>Esc はウィンドウを閉じ、Lumaro を終了するキーです。変更できません。</translation>
    </message>
    <message id="%@ belongs to the desktop.">
        <source>%@ belongs to the desktop.</source>
        <translation>%@ はデスクトップが使用しています。</translation>
    </message>
    <message id="%@ means “%@” already.">
        <source>%@ means “%@” already.</source>
        <translation>%@ はすでに「%@」に割り当てられています。</translation>
    </message>
    <message id="“%@” has as many keys as it can have; remove one first.">
        <source>“%@” has as many keys as it can have; remove one first.</source>
        <translation>「%@」にはこれ以上キーを割り当てられません。先に 1 つ削除してください。</translation>
    </message>
    <message id="%@ means “%@” now.">
        <source>%@ means “%@” now.</source>
        <translation>%@ を「%@」に割り当てました。</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>停止</translation>
    </message>
    <message id="Next Looping">
        <source>Next Looping</source>
        <translation>次のリピート設定</translation>
    </message>
    <message id="Previous Looping">
        <source>Previous Looping</source>
        <translation>前のリピート設定</translation>
    </message>
    <message id="Show Playlist">
        <source>Show Playlist</source>
        <translation>プレイリストを表示</translation>
    </message>
    <message id="Next Subtitles">
        <source>Next Subtitles</source>
        <translation>次の字幕</translation>
    </message>
    <message id="Previous Subtitles">
        <source>Previous Subtitles</source>
        <translation>前の字幕</translation>
    </message>
    <message id="No Subtitles">
        <source>No Subtitles</source>
        <translation>字幕なし</translation>
    </message>
    <message id="Open a movie from the menu">
        <source>Open a movie from the menu</source>
        <translation>メニューから動画を開く</translation>
    </message>
    <message id="or drop files here.">
        <source>or drop files here.</source>
        <translation>またはここにファイルをドロップ。</translation>
    </message>
    <message id="Keys of the command">
        <source>Keys of the command</source>
        <translation>コマンドのキー</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message id="Open pages of video sites with &amp;yt-dlp">
        <source>Open pages of video sites with &amp;yt-dlp</source>
        <translation>動画サイトのページを yt-dlp で開く(&amp;Y)</translation>
    </message>
    <message id="An address that is no movie is asked of the program yt-dlp, where it is installed">
        <source>An address that is no movie is asked of the program yt-dlp, where it is installed</source>
        <translation>動画でないアドレスは、インストールされていればプログラム yt-dlp に問い合わせます</translation>
    </message>
    <message id="Open Movies">
        <source>Open Movies</source>
        <translation>動画を開く</translation>
    </message>
    <message id="Open Folder">
        <source>Open Folder</source>
        <translation>フォルダーを開く</translation>
    </message>
    <message id="Open Folder...">
        <source>Open Folder...</source>
        <translation>フォルダーを開く…</translation>
    </message>
    <message id="Movies and Sound">
        <source>Movies and Sound</source>
        <translation>動画と音声</translation>
    </message>
    <message id="All Files">
        <source>All Files</source>
        <translation>すべてのファイル</translation>
    </message>
    <message id="Add to Playlist">
        <source>Add to Playlist</source>
        <translation>プレイリストに追加</translation>
    </message>
    <message id="Open folders of movies">
        <source>Open folders of movies</source>
        <translation>動画のフォルダーを開く</translation>
    </message>
    <message id="Open an address, several addresses">
        <source>Open an address, several addresses</source>
        <translation>アドレスを開く (1 つまたは複数)</translation>
    </message>
    <message id="Open URL">
        <source>Open URL</source>
        <translation>URL を開く</translation>
    </message>
    <message id="Open URLs">
        <source>Open URLs</source>
        <translation>複数の URL を開く</translation>
    </message>
    <message id="&amp;Address or path of a movie:">
        <source>&amp;Address or path of a movie:</source>
        <translation>動画のアドレスまたはパス(&amp;A):</translation>
    </message>
    <message id="&amp;Addresses or paths of movies, one in each line:">
        <source>&amp;Addresses or paths of movies, one in each line:</source>
        <translation>動画のアドレスまたはパス (1 行に 1 つ)(&amp;A):</translation>
    </message>
    <message id="Address">
        <source>Address</source>
        <translation>アドレス</translation>
    </message>
    <message id="Addresses">
        <source>Addresses</source>
        <translation>アドレス</translation>
    </message>
    <message id="Add to &amp;Playlist">
        <source>Add to &amp;Playlist</source>
        <translation>プレイリストに追加(&amp;P)</translation>
    </message>
    <message id="What plays now goes on; holding Alt does the same">
        <source>What plays now goes on; holding Alt does the same</source>
        <translation>再生中の動画はそのまま続きます。Alt キーを押しながらでも同じです</translation>
    </message>
    <message id="Replace the Playlist">
        <source>Replace the Playlist</source>
        <translation>プレイリストを置き換える</translation>
    </message>
    <message id="Add to the Playlist">
        <source>Add to the Playlist</source>
        <translation>プレイリストに追加</translation>
    </message>
    <message id="OpenErrorSubtitles">
        <source>It holds subtitles. They are shown by themselves when they lie beside their movie and begin with its name.</source>
        <translation>これは字幕のファイルです。動画と同じ場所にあり、動画の名前で始まる字幕は自動で表示されます。</translation>
    </message>
    <message id="OpenErrorNotAnAddress">
        <source>It is neither an address nor the path of a file.</source>
        <translation>アドレスでもファイルのパスでもありません。</translation>
    </message>
    <message id="Resumed at %@">
        <source>Resumed at %@</source>
        <translation>%@ から再開しました</translation>
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
        <translation>速度: %@</translation>
    </message>
    <message id="%@x">
        <source>%@x</source>
        <translation>%@×</translation>
    </message>
    <message id="Slower">
        <source>Slower</source>
        <translation>遅く</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>速く</translation>
    </message>
    <message id="Half as Fast">
        <source>Half as Fast</source>
        <translation>半分の速度</translation>
    </message>
    <message id="Twice as Fast">
        <source>Twice as Fast</source>
        <translation>2 倍の速度</translation>
    </message>
    <message id="Original Speed">
        <source>Original Speed</source>
        <translation>元の速度</translation>
    </message>
    <message id="Slower and faster, the pitch kept; half and twice as fast">
        <source>Slower and faster, the pitch kept; half and twice as fast</source>
        <translation>音の高さを保って遅く、速く。半分、2 倍の速度</translation>
    </message>
    <message id="As fast as the movie was made">
        <source>As fast as the movie was made</source>
        <translation>動画本来の速度</translation>
    </message>
    <message id="Chapters">
        <source>Chapters</source>
        <translation>チャプター</translation>
    </message>
    <message id="No Chapters">
        <source>No Chapters</source>
        <translation>チャプターなし</translation>
    </message>
    <message id="Chapter %d of %d">
        <source>Chapter %d of %d</source>
        <translation>チャプター %d / %d</translation>
    </message>
    <message id="Chapter %d of %d: %@">
        <source>Chapter %d of %d: %@</source>
        <translation>チャプター %d / %d: %@</translation>
    </message>
    <message id="Next Chapter">
        <source>Next Chapter</source>
        <translation>次のチャプター</translation>
    </message>
    <message id="Previous Chapter">
        <source>Previous Chapter</source>
        <translation>前のチャプター</translation>
    </message>
    <message id="Next and previous chapter">
        <source>Next and previous chapter</source>
        <translation>次と前のチャプター</translation>
    </message>
    <message id="Save Still">
        <source>Save Still</source>
        <translation>静止画を保存</translation>
    </message>
    <message id="Save the picture as a file">
        <source>Save the picture as a file</source>
        <translation>映像をファイルに保存する</translation>
    </message>
    <message id="Still: %@">
        <source>Still: %@</source>
        <translation>静止画: %@</translation>
    </message>
    <message id="No Picture to Save">
        <source>No Picture to Save</source>
        <translation>保存できる映像がありません</translation>
    </message>
    <message id="Can’t save the still in %@">
        <source>Can’t save the still in %@</source>
        <translation>静止画を保存できません: %@</translation>
    </message>
    <message id="Go to Time">
        <source>Go to Time</source>
        <translation>時間へ移動</translation>
    </message>
    <message id="Go to Time...">
        <source>Go to Time...</source>
        <translation>時間へ移動…</translation>
    </message>
    <message id="Go to a time">
        <source>Go to a time</source>
        <translation>指定した時間へ移動する</translation>
    </message>
    <message id="Time in the movie:">
        <source>Time in the movie:</source>
        <translation>動画内の時間:</translation>
    </message>
    <message id="Time in the movie, up to %@:">
        <source>Time in the movie, up to %@:</source>
        <translation>動画内の時間 (%@ まで):</translation>
    </message>
    <message id="Seconds, minutes or hours: 90, 1:30 or 1:23:45.6">
        <source>Seconds, minutes or hours: 90, 1:30 or 1:23:45.6</source>
        <translation>秒、分、時: 90、1:30、1:23:45.6</translation>
    </message>
    <message id="Time: %@">
        <source>Time: %@</source>
        <translation>時間: %@</translation>
    </message>
    <message id="Repeat Section">
        <source>Repeat Section</source>
        <translation>区間リピート</translation>
    </message>
    <message id="Repeat from Here">
        <source>Repeat from Here</source>
        <translation>ここからリピート</translation>
    </message>
    <message id="Repeat until Here">
        <source>Repeat until Here</source>
        <translation>ここまでリピート</translation>
    </message>
    <message id="Repeat a section: its beginning, its end, no more">
        <source>Repeat a section: its beginning, its end, no more</source>
        <translation>区間リピート: 始点、終点、解除</translation>
    </message>
    <message id="Repeat: Off">
        <source>Repeat: Off</source>
        <translation>区間リピート: オフ</translation>
    </message>
    <message id="Repeat from %@">
        <source>Repeat from %@</source>
        <translation>%@ からリピート</translation>
    </message>
    <message id="Repeat: %@ – %@">
        <source>Repeat: %@ – %@</source>
        <translation>区間リピート: %@ – %@</translation>
    </message>
    <message id="Aspect">
        <source>Aspect</source>
        <translation>アスペクト比</translation>
    </message>
    <message id="Next Aspect">
        <source>Next Aspect</source>
        <translation>次のアスペクト比</translation>
    </message>
    <message id="Aspect: automatic, 4:3, 16:9, 2.35:1">
        <source>Aspect: automatic, 4:3, 16:9, 2.35:1</source>
        <translation>アスペクト比: 自動、4:3、16:9、2.35:1</translation>
    </message>
    <message id="Aspect: %@">
        <source>Aspect: %@</source>
        <translation>アスペクト比: %@</translation>
    </message>
    <message id="2.35:1">
        <source>2.35:1</source>
        <translation>2.35:1</translation>
    </message>
    <message id="Deinterlacing">
        <source>Deinterlacing</source>
        <translation>インターレース解除</translation>
    </message>
    <message id="Next Deinterlacing">
        <source>Next Deinterlacing</source>
        <translation>次のインターレース解除</translation>
    </message>
    <message id="Deinterlacing: automatic, on, off">
        <source>Deinterlacing: automatic, on, off</source>
        <translation>インターレース解除: 自動、オン、オフ</translation>
    </message>
    <message id="Deinterlacing: %@">
        <source>Deinterlacing: %@</source>
        <translation>インターレース解除: %@</translation>
    </message>
    <message id="Picture Colors">
        <source>Picture Colors</source>
        <translation>映像の色</translation>
    </message>
    <message id="Less Contrast">
        <source>Less Contrast</source>
        <translation>コントラストを下げる</translation>
    </message>
    <message id="More Contrast">
        <source>More Contrast</source>
        <translation>コントラストを上げる</translation>
    </message>
    <message id="Darker">
        <source>Darker</source>
        <translation>暗く</translation>
    </message>
    <message id="Brighter">
        <source>Brighter</source>
        <translation>明るく</translation>
    </message>
    <message id="Less Gamma">
        <source>Less Gamma</source>
        <translation>ガンマを下げる</translation>
    </message>
    <message id="More Gamma">
        <source>More Gamma</source>
        <translation>ガンマを上げる</translation>
    </message>
    <message id="Less Saturation">
        <source>Less Saturation</source>
        <translation>彩度を下げる</translation>
    </message>
    <message id="More Saturation">
        <source>More Saturation</source>
        <translation>彩度を上げる</translation>
    </message>
    <message id="Hue towards Red">
        <source>Hue towards Red</source>
        <translation>色相を赤寄りに</translation>
    </message>
    <message id="Hue towards Green">
        <source>Hue towards Green</source>
        <translation>色相を緑寄りに</translation>
    </message>
    <message id="Contrast, brightness, gamma, saturation, hue: less and more">
        <source>Contrast, brightness, gamma, saturation, hue: less and more</source>
        <translation>コントラスト、明るさ、ガンマ、彩度、色相を下げる、上げる</translation>
    </message>
    <message id="The colors as the movie has them">
        <source>The colors as the movie has them</source>
        <translation>動画本来の色</translation>
    </message>
    <message id="Original Colors">
        <source>Original Colors</source>
        <translation>元の色</translation>
    </message>
    <message id="Contrast: %@">
        <source>Contrast: %@</source>
        <translation>コントラスト: %@</translation>
    </message>
    <message id="Brightness: %@">
        <source>Brightness: %@</source>
        <translation>明るさ: %@</translation>
    </message>
    <message id="Gamma: %@">
        <source>Gamma: %@</source>
        <translation>ガンマ: %@</translation>
    </message>
    <message id="Saturation: %@">
        <source>Saturation: %@</source>
        <translation>彩度: %@</translation>
    </message>
    <message id="Hue: %@">
        <source>Hue: %@</source>
        <translation>色相: %@</translation>
    </message>
    <message id="Crop Black Bars">
        <source>Crop Black Bars</source>
        <translation>黒帯を切り取る</translation>
    </message>
    <message id="Cut black bars off">
        <source>Cut black bars off</source>
        <translation>黒帯を切り取る</translation>
    </message>
    <message id="Crop: On">
        <source>Crop: On</source>
        <translation>黒帯の切り取り: オン</translation>
    </message>
    <message id="Crop: Off">
        <source>Crop: Off</source>
        <translation>黒帯の切り取り: オフ</translation>
    </message>
    <message id="No Black Bars">
        <source>No Black Bars</source>
        <translation>黒帯はありません</translation>
    </message>
    <message id="Turn by 90°">
        <source>Turn by 90°</source>
        <translation>90°回転</translation>
    </message>
    <message id="Turn and mirror the picture">
        <source>Turn and mirror the picture</source>
        <translation>映像を回転、反転する</translation>
    </message>
    <message id="Turned by %d°">
        <source>Turned by %d°</source>
        <translation>%d°回転</translation>
    </message>
    <message id="Mirror">
        <source>Mirror</source>
        <translation>左右反転</translation>
    </message>
    <message id="Mirror: On">
        <source>Mirror: On</source>
        <translation>左右反転: オン</translation>
    </message>
    <message id="Mirror: Off">
        <source>Mirror: Off</source>
        <translation>左右反転: オフ</translation>
    </message>
</context>
<context>
    <name>Tracks</name>
    <message id="Audio Tracks">
        <source>Audio Tracks</source>
        <translation>音声トラック</translation>
    </message>
    <message id="Audio: %@">
        <source>Audio: %@</source>
        <translation>音声: %@</translation>
    </message>
    <message id="Next Audio Track">
        <source>Next Audio Track</source>
        <translation>次の音声トラック</translation>
    </message>
    <message id="Previous Audio Track">
        <source>Previous Audio Track</source>
        <translation>前の音声トラック</translation>
    </message>
    <message id="Next and previous audio track">
        <source>Next and previous audio track</source>
        <translation>次と前の音声トラック</translation>
    </message>
    <message id="Mono">
        <source>Mono</source>
        <translation>モノラル</translation>
    </message>
    <message id="Stereo">
        <source>Stereo</source>
        <translation>ステレオ</translation>
    </message>
    <message id="%d channels">
        <source>%d channels</source>
        <translation>%d チャンネル</translation>
    </message>
    <message id="Track %d">
        <source>Track %d</source>
        <translation>トラック %d</translation>
    </message>
    <message id="forced">
        <source>forced</source>
        <translation>強制</translation>
    </message>
    <message id="Second Subtitles">
        <source>Second Subtitles</source>
        <translation>第 2 字幕</translation>
    </message>
    <message id="Next Second Subtitles">
        <source>Next Second Subtitles</source>
        <translation>次の第 2 字幕</translation>
    </message>
    <message id="Second subtitles: %@">
        <source>Second subtitles: %@</source>
        <translation>第 2 字幕: %@</translation>
    </message>
    <message id="Second subtitles at the top: next track, none">
        <source>Second subtitles at the top: next track, none</source>
        <translation>上部の第 2 字幕: 次のトラック、なし</translation>
    </message>
    <message id="SecondSubtitlesRefused">
        <source>Only texts can be shown as second subtitles, and no track twice</source>
        <translation>第 2 字幕に表示できるのはテキストだけで、同じトラックは 2 度使えません</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>画質</translation>
    </message>
    <message id="Quality: %@">
        <source>Quality: %@</source>
        <translation>画質: %@</translation>
    </message>
    <message id="Next Quality">
        <source>Next Quality</source>
        <translation>次の画質</translation>
    </message>
    <message id="Next quality of a stream">
        <source>Next quality of a stream</source>
        <translation>ストリームの次の画質</translation>
    </message>
    <message id="Only One Quality">
        <source>Only One Quality</source>
        <translation>画質は1つだけです</translation>
    </message>
    <message id="Go to Live">
        <source>Go to Live</source>
        <translation>ライブへ移動</translation>
    </message>
    <message id="Go to what is live now">
        <source>Go to what is live now</source>
        <translation>現在のライブ位置へ移動</translation>
    </message>
    <message id="Not a Live Stream">
        <source>Not a Live Stream</source>
        <translation>ライブ配信ではありません</translation>
    </message>
    <message id="Live">
        <source>Live</source>
        <translation>ライブ</translation>
    </message>
    <message id="Behind Live">
        <source>Behind Live</source>
        <translation>ライブからの遅れ</translation>
    </message>
    <message id="Reconnecting...">
        <source>Reconnecting...</source>
        <translation>再接続中…</translation>
    </message>
    <message id="Connection Lost">
        <source>Connection Lost</source>
        <translation>接続が切れました</translation>
    </message>
</context>
<context>
    <name>Information</name>
    <message id="Information">
        <source>Information</source>
        <translation>情報</translation>
    </message>
    <message id="Show or hide the information about the movie">
        <source>Show or hide the information about the movie</source>
        <translation>動画の情報を表示、隠す</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>コピー</translation>
    </message>
    <message id="No movie">
        <source>No movie</source>
        <translation>動画なし</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>名前</translation>
    </message>
    <message id="Container">
        <source>Container</source>
        <translation>コンテナ</translation>
    </message>
    <message id="Duration">
        <source>Duration</source>
        <translation>長さ</translation>
    </message>
    <message id="File size">
        <source>File size</source>
        <translation>ファイルサイズ</translation>
    </message>
    <message id="Bit rate">
        <source>Bit rate</source>
        <translation>ビットレート</translation>
    </message>
    <message id="Sound">
        <source>Sound</source>
        <translation>音声</translation>
    </message>
    <message id="Tracks">
        <source>Tracks</source>
        <translation>トラック</translation>
    </message>
    <message id="Frames">
        <source>Frames</source>
        <translation>フレーム</translation>
    </message>
    <message id="Buffer">
        <source>Buffer</source>
        <translation>バッファ</translation>
    </message>
    <message id="Codec">
        <source>Codec</source>
        <translation>コーデック</translation>
    </message>
    <message id="Decoder">
        <source>Decoder</source>
        <translation>デコーダー</translation>
    </message>
    <message id="Software">
        <source>Software</source>
        <translation>ソフトウェア</translation>
    </message>
    <message id="Hardware (%@)">
        <source>Hardware (%@)</source>
        <translation>ハードウェア (%@)</translation>
    </message>
    <message id="Size">
        <source>Size</source>
        <translation>サイズ</translation>
    </message>
    <message id="%@, displayed as %@">
        <source>%@, displayed as %@</source>
        <translation>%@、表示 %@</translation>
    </message>
    <message id="Frame rate">
        <source>Frame rate</source>
        <translation>フレームレート</translation>
    </message>
    <message id="%@ a second">
        <source>%@ a second</source>
        <translation>毎秒 %@</translation>
    </message>
    <message id="%@ a second, now %@">
        <source>%@ a second, now %@</source>
        <translation>毎秒 %@、現在 %@</translation>
    </message>
    <message id="Dynamic range">
        <source>Dynamic range</source>
        <translation>ダイナミックレンジ</translation>
    </message>
    <message id="Standard">
        <source>Standard</source>
        <translation>標準</translation>
    </message>
    <message id="Color">
        <source>Color</source>
        <translation>色</translation>
    </message>
    <message id="Channels">
        <source>Channels</source>
        <translation>チャンネル</translation>
    </message>
    <message id="Sample rate">
        <source>Sample rate</source>
        <translation>サンプルレート</translation>
    </message>
    <message id="Output">
        <source>Output</source>
        <translation>出力</translation>
    </message>
    <message id="%@ (playing)">
        <source>%@ (playing)</source>
        <translation>%@ (再生中)</translation>
    </message>
    <message id="Subtitles shown">
        <source>Subtitles shown</source>
        <translation>表示した字幕</translation>
    </message>
    <message id="Shown">
        <source>Shown</source>
        <translation>表示</translation>
    </message>
    <message id="Late">
        <source>Late</source>
        <translation>遅延</translation>
    </message>
    <message id="Left out">
        <source>Left out</source>
        <translation>省略</translation>
    </message>
    <message id="Ready">
        <source>Ready</source>
        <translation>準備済み</translation>
    </message>
    <message id="%@ s">
        <source>%@ s</source>
        <translation>%@ 秒</translation>
    </message>
    <message id="Filling">
        <source>Filling</source>
        <translation>読み込み速度</translation>
    </message>
</context>
</TS>
