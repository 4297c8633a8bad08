<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko">
<context>
    <name>Alerts</name>
    <message id="QTUnableToOpenFileError">
        <source>“%@” can’t be opened.</source>
        <translation>‘%@’을(를) 열 수 없습니다.</translation>
    </message>
    <message id="QTUnableToOpenFileDetails">
        <source>The file is missing, damaged, or of a kind that Lumaro doesn’t know (error %d).</source>
        <translation>파일이 없거나 손상되었거나 Lumaro에서 지원하지 않는 형식입니다(오류 %d).</translation>
    </message>
    <message id="QTUnableToPlayFileError">
        <source>“%@” may not play as it should.</source>
        <translation>‘%@’이(가) 제대로 재생되지 않을 수 있습니다.</translation>
    </message>
    <message id="QTUnableToPlayFileDetails">
        <source>Parts of the movie can’t be decoded (error %d). Choose Continue to try it anyway.</source>
        <translation>동영상의 일부를 디코딩할 수 없습니다(오류 %d). 그래도 재생하려면 ‘계속’을 선택하세요.</translation>
    </message>
    <message id="NoPlayableMoviesInListMessage">
        <source>There is nothing to play.</source>
        <translation>재생할 것이 없습니다.</translation>
    </message>
    <message id="NoPlayableMoviesInListDetails">
        <source>None of the files that were given is a movie that Lumaro can play. You can choose others.</source>
        <translation>지정한 파일 중에 Lumaro에서 재생할 수 있는 동영상이 없습니다. 다른 파일을 선택할 수 있습니다.</translation>
    </message>
    <message id="OpenErrorMissing">
        <source>The file doesn’t exist.</source>
        <translation>파일이 없습니다.</translation>
    </message>
    <message id="OpenErrorEmpty">
        <source>The file is empty.</source>
        <translation>파일이 비어 있습니다.</translation>
    </message>
    <message id="OpenErrorNotAFile">
        <source>It is a folder or a device, not a file.</source>
        <translation>파일이 아니라 폴더 또는 장치입니다.</translation>
    </message>
    <message id="OpenErrorPermission">
        <source>You aren’t allowed to read the file.</source>
        <translation>이 파일을 읽을 권한이 없습니다.</translation>
    </message>
    <message id="OpenErrorNotAMovie">
        <source>It isn’t a movie that Lumaro can play.</source>
        <translation>Lumaro에서 재생할 수 있는 동영상이 아닙니다.</translation>
    </message>
    <message id="OpenErrorTimeout">
        <source>No answer came in time.</source>
        <translation>제시간에 응답이 없었습니다.</translation>
    </message>
    <message id="OpenErrorLibraries">
        <source>The libraries that open movies are missing.</source>
        <translation>동영상을 여는 데 필요한 라이브러리가 없습니다.</translation>
    </message>
    <message id="OpenErrorScheme">
        <source>Lumaro doesn’t know addresses of this kind.</source>
        <translation>Lumaro에서 지원하지 않는 종류의 주소입니다.</translation>
    </message>
    <message id="OpenErrorUnknownHost">
        <source>There is no server of that name, or no connection to the network.</source>
        <translation>그 이름의 서버가 없거나 네트워크에 연결되어 있지 않습니다.</translation>
    </message>
    <message id="OpenErrorUnreachable">
        <source>The server can’t be reached.</source>
        <translation>서버에 연결할 수 없습니다.</translation>
    </message>
    <message id="OpenErrorRefused">
        <source>The server refused the connection.</source>
        <translation>서버가 연결을 거부했습니다.</translation>
    </message>
    <message id="OpenErrorConnection">
        <source>The connection to the server broke off.</source>
        <translation>서버와의 연결이 끊어졌습니다.</translation>
    </message>
    <message id="OpenErrorRanges">
        <source>The server sends files only from their beginning, and what is needed first stands at this movie’s end. Download it to play it.</source>
        <translation>서버가 파일을 처음부터만 보낼 수 있는데, 먼저 필요한 데이터가 이 동영상의 끝에 있습니다. 재생하려면 다운로드하세요.</translation>
    </message>
    <message id="OpenErrorLogin">
        <source>The server asks for a name and a password (401).</source>
        <translation>서버에서 사용자 이름과 암호를 요구합니다(401).</translation>
    </message>
    <message id="OpenErrorForbidden">
        <source>The server doesn’t allow it (403).</source>
        <translation>서버에서 허용하지 않습니다(403).</translation>
    </message>
    <message id="OpenErrorNotFound">
        <source>The server has no such file (404).</source>
        <translation>서버에 그 파일이 없습니다(404).</translation>
    </message>
    <message id="OpenErrorRejected">
        <source>The server rejected the request.</source>
        <translation>서버가 요청을 거부했습니다.</translation>
    </message>
    <message id="OpenErrorServer">
        <source>The server answered with an error of its own.</source>
        <translation>서버에서 오류가 발생했습니다.</translation>
    </message>
    <message id="OpenErrorNoMovies">
        <source>There is no movie in this folder.</source>
        <translation>이 폴더에 동영상이 없습니다.</translation>
    </message>
    <message id="OpenErrorNotAList">
        <source>The file is not a playlist.</source>
        <translation>파일이 재생목록이 아닙니다.</translation>
    </message>
    <message id="OpenErrorListEmpty">
        <source>The playlist names no movies.</source>
        <translation>재생목록에 동영상이 없습니다.</translation>
    </message>
    <message id="OpenErrorListTooLarge">
        <source>The playlist is larger than 32 MB.</source>
        <translation>재생목록이 32 MB보다 큽니다.</translation>
    </message>
    <message id="OpenErrorListTooLong">
        <source>The playlist is too long. Only its first 100,000 entries were opened.</source>
        <translation>재생목록이 너무 깁니다. 처음 100,000개 항목만 열었습니다.</translation>
    </message>
    <message id="OpenErrorListTooDeep">
        <source>Too many playlists name each other. This one was left out.</source>
        <translation>너무 많은 재생목록이 서로를 가리킵니다. 이 재생목록은 제외했습니다.</translation>
    </message>
    <message id="OpenErrorListDrives">
        <source>Entries on drives of Windows were left out (%@): %@.</source>
        <translation>Windows 드라이브에 있는 항목을 제외했습니다(%@): %@.</translation>
    </message>
    <message id="OpenErrorListLocal">
        <source>The playlist comes from a network. Entries that name files of this computer were left out (%@): %@.</source>
        <translation>네트워크에서 온 재생목록이므로 이 컴퓨터의 파일을 가리키는 항목을 제외했습니다(%@): %@.</translation>
    </message>
    <message id="OpenErrorListNothing">
        <source>Entries that name neither a file nor an address were left out (%@): %@.</source>
        <translation>파일도 주소도 아닌 항목을 제외했습니다(%@): %@.</translation>
    </message>
    <message id="OpenErrorFolders">
        <source>Folders that may not be read (%@): %@.</source>
        <translation>읽을 수 없는 폴더(%@): %@.</translation>
    </message>
    <message id="UnreadableFoldersMessage">
        <source>Not everything could be searched.</source>
        <translation>일부는 검색하지 못했습니다.</translation>
    </message>
    <message id="AndMoreMessage">
        <source>… and %@ more.</source>
        <translation>… 외 %@개</translation>
    </message>
    <message id="UnableToOpenLine">
        <source>“%@”: %@ (%@)</source>
        <translation>‘%@’: %@ (%@)</translation>
    </message>
    <message id="UnableToOpenFilesMessage">
        <source>%@ files can’t be opened.</source>
        <translation>파일 %@개를 열 수 없습니다.</translation>
    </message>
    <message id="UnableToPlayFilesMessage">
        <source>%@ movies may not play as they should.</source>
        <translation>동영상 %@개가 제대로 재생되지 않을 수 있습니다.</translation>
    </message>
    <message id="NoMoviesInFoldersDetails">
        <source>There is no movie that Lumaro can play in:</source>
        <translation>다음 위치에 Lumaro에서 재생할 수 있는 동영상이 없습니다:</translation>
    </message>
    <message id="Buffering: %d %%">
        <source>Buffering: %d %%</source>
        <translation>버퍼링 중: %d %%</translation>
    </message>
    <message id="Stalled: No Data from the Server">
        <source>Stalled: no data from the server</source>
        <translation>멈춤: 서버에서 데이터가 오지 않음</translation>
    </message>
    <message id="Loading: %@">
        <source>Loading: %@</source>
        <translation>불러오는 중: %@</translation>
    </message>
    <message id="ResumedAt">
        <source>Resumed at %@
%@: From the Beginning</source>
        <translation>%@부터 이어서 재생
%@: 처음부터 재생</translation>
    </message>
    <message id="Looking for Movies: %@">
        <source>Looking for movies: %@</source>
        <translation>동영상 찾는 중: %@</translation>
    </message>
    <message id="FilesFoundMessage" numerus="yes">
        <source>%@ file found…</source>
        <translation>
            <numerusform>파일 %@개를 찾음…</numerusform>
        </translation>
    </message>
    <message id="OK">
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message id="Cancel">
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message id="Continue">
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message id="Open...">
        <source>Open...</source>
        <translation>열기…</translation>
    </message>
    <message id="Open Recent">
        <source>Open Recent</source>
        <translation>최근에 연 동영상</translation>
    </message>
    <message id="ClearRecent">
        <source>Clear Menu and Forget Places</source>
        <translation>메뉴를 지우고 재생 위치 잊기</translation>
    </message>
    <message id="Open">
        <source>Open</source>
        <translation>열기</translation>
    </message>
    <message id="ConfigureCheckForNewVersionMessage">
        <source>Look for new versions?</source>
        <translation>새 버전을 확인할까요?</translation>
    </message>
    <message id="ConfigureCheckForNewVersionDetails">
        <source>Lumaro can look from time to time whether a newer version exists. Nothing about you or your movies is sent. You can change this in the preferences.</source>
        <translation>Lumaro가 새 버전이 있는지 가끔 확인할 수 있습니다. 사용자나 동영상에 관한 정보는 전송하지 않습니다. 이 설정은 환경설정에서 바꿀 수 있습니다.</translation>
    </message>
    <message id="CheckNewVersionFailedMessage">
        <source>Looking for a new version failed.</source>
        <translation>새 버전을 확인하지 못했습니다.</translation>
    </message>
    <message id="CheckNewVersionFailedDetails">
        <source>None of the sites could be reached. Check the connection to the internet, or try again later.</source>
        <translation>어느 사이트에도 연결할 수 없습니다. 인터넷 연결을 확인하거나 나중에 다시 시도하세요.</translation>
    </message>
    <message id="YouHaveLatestVersionMessage">
        <source>Lumaro is up to date.</source>
        <translation>Lumaro가 최신 상태입니다.</translation>
    </message>
    <message id="YouHaveLatestVersionDetails">
        <source>You have the latest version.</source>
        <translation>최신 버전을 사용하고 있습니다.</translation>
    </message>
    <message id="NewVersionAvailableMessage">
        <source>A newer version of Lumaro is available.</source>
        <translation>Lumaro 새 버전이 있습니다.</translation>
    </message>
    <message id="NewVersionAvailableDetails">
        <source>%@ version %@ can be downloaded now.</source>
        <translation>%@ 버전 %@을(를) 지금 다운로드할 수 있습니다.</translation>
    </message>
    <message id="Download Now...">
        <source>&amp;Download Now...</source>
        <translation>지금 다운로드(&amp;D)…</translation>
    </message>
    <message id="Skip Version">
        <source>&amp;Skip Version</source>
        <translation>이 버전 건너뛰기(&amp;S)</translation>
    </message>
    <message id="Later">
        <source>Later</source>
        <translation>나중에</translation>
    </message>
    <message id="AskDonationMessage">
        <source>Do you enjoy Lumaro?</source>
        <translation>Lumaro가 마음에 드시나요?</translation>
    </message>
    <message id="AskDonationDetails">
        <source>Lumaro is free. A donation helps to keep it alive.</source>
        <translation>Lumaro는 무료입니다. 후원은 개발을 이어 가는 데 도움이 됩니다.</translation>
    </message>
    <message id="Donate...">
        <source>Donate...</source>
        <translation>후원…</translation>
    </message>
</context>
<context>
    <name>Version check</name>
    <message id="Up to date">
        <source>Up to date</source>
        <translation>최신 상태</translation>
    </message>
    <message id="Newer %@ version %@ available">
        <source>Newer %@ version %@ available</source>
        <translation>새로운 %@ 버전 %@ 사용 가능</translation>
    </message>
    <message id="Failed to reach all mirror sites">
        <source>Failed to reach all mirror sites</source>
        <translation>어느 미러 사이트에도 연결할 수 없음</translation>
    </message>
    <message id="Release">
        <source>Release</source>
        <translation>정식</translation>
    </message>
    <message id="Beta">
        <source>Beta</source>
        <translation>베타</translation>
    </message>
    <message id="Checking now...">
        <source>Checking now...</source>
        <translation>확인 중…</translation>
    </message>
    <message id="Unknown">
        <source>Unknown</source>
        <translation>알 수 없음</translation>
    </message>
    <message id="Never">
        <source>Never</source>
        <translation>없음</translation>
    </message>
</context>
<context>
    <name>Feedback and on-screen display</name>
    <message id="Movie: Play">
        <source>Movie: Play</source>
        <translation>재생</translation>
    </message>
    <message id="Movie: Pause">
        <source>Movie: Pause</source>
        <translation>일시정지</translation>
    </message>
    <message id="Movie: Stop">
        <source>Movie: Stop</source>
        <translation>정지</translation>
    </message>
    <message id="Movie: Beginning">
        <source>Movie: Beginning</source>
        <translation>처음</translation>
    </message>
    <message id="Movie: End">
        <source>Movie: End</source>
        <translation>끝</translation>
    </message>
    <message id="Fast Forward x%d">
        <source>Fast Forward x%d</source>
        <translation>빨리 감기 ×%d</translation>
    </message>
    <message id="Fast Rewind x%d">
        <source>Fast Rewind x%d</source>
        <translation>되감기 ×%d</translation>
    </message>
    <message id="Jump Forward %d s">
        <source>Jump Forward %d s</source>
        <translation>%d초 앞으로</translation>
    </message>
    <message id="Jump Backward %d s">
        <source>Jump Backward %d s</source>
        <translation>%d초 뒤로</translation>
    </message>
    <message id="Step Forward">
        <source>Step Forward</source>
        <translation>다음 프레임</translation>
    </message>
    <message id="Step Backward">
        <source>Step Backward</source>
        <translation>이전 프레임</translation>
    </message>
    <message id="Next: %@">
        <source>Next: %@</source>
        <translation>다음: %@</translation>
    </message>
    <message id="Previous: %@">
        <source>Previous: %@</source>
        <translation>이전: %@</translation>
    </message>
    <message id="Screen: Next">
        <source>Screen: Next</source>
        <translation>다음 화면</translation>
    </message>
    <message id="Screen: Previous">
        <source>Screen: Previous</source>
        <translation>이전 화면</translation>
    </message>
    <message id="Quit">
        <source>Quit</source>
        <translation>종료</translation>
    </message>
    <message id="Sleep">
        <source>Sleep</source>
        <translation>절전</translation>
    </message>
    <message id="Restart the Computer">
        <source>Restart the Computer</source>
        <translation>컴퓨터 다시 시작</translation>
    </message>
    <message id="Shut Down the Computer">
        <source>Shut Down the Computer</source>
        <translation>컴퓨터 끄기</translation>
    </message>
    <message id="Log Out">
        <source>Log Out</source>
        <translation>로그아웃</translation>
    </message>
    <message id="Restart failed: %@">
        <source>Restart failed: %@</source>
        <translation>다시 시작하지 못했습니다: %@</translation>
    </message>
    <message id="Shutting down failed: %@">
        <source>Shutting down failed: %@</source>
        <translation>컴퓨터를 끄지 못했습니다: %@</translation>
    </message>
    <message id="Logging out failed: %@">
        <source>Logging out failed: %@</source>
        <translation>로그아웃하지 못했습니다: %@</translation>
    </message>
    <message id="KeyName Space">
        <source>Space</source>
        <translation>스페이스</translation>
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
        <translation>미디어 재생</translation>
    </message>
    <message id="KeyName Media Stop">
        <source>Media Stop</source>
        <translation>미디어 정지</translation>
    </message>
    <message id="KeyName Media Next">
        <source>Media Next</source>
        <translation>미디어 다음</translation>
    </message>
    <message id="KeyName Media Previous">
        <source>Media Previous</source>
        <translation>미디어 이전</translation>
    </message>
    <message id="KeyName Media Volume Up">
        <source>Media Volume Up</source>
        <translation>미디어 볼륨 높이기</translation>
    </message>
    <message id="KeyName Media Volume Down">
        <source>Media Volume Down</source>
        <translation>미디어 볼륨 낮추기</translation>
    </message>
    <message id="KeyName Media Mute">
        <source>Media Mute</source>
        <translation>미디어 음소거</translation>
    </message>
    <message id="Sleep failed: %@">
        <source>Sleep failed: %@</source>
        <translation>절전 상태로 전환하지 못했습니다: %@</translation>
    </message>
    <message id="Size: Half">
        <source>Size: Half</source>
        <translation>크기: 절반</translation>
    </message>
    <message id="Size: Normal">
        <source>Size: Normal</source>
        <translation>크기: 보통</translation>
    </message>
    <message id="Size: Double">
        <source>Size: Double</source>
        <translation>크기: 두 배</translation>
    </message>
    <message id="Size: Full">
        <source>Size: Full</source>
        <translation>크기: 전체 화면</translation>
    </message>
    <message id="Size: Fit Width">
        <source>Size: Fit Width</source>
        <translation>크기: 너비에 맞춤</translation>
    </message>
    <message id="Size: Fit Height">
        <source>Size: Fit Height</source>
        <translation>크기: 높이에 맞춤</translation>
    </message>
    <message id="Size: Bigger">
        <source>Size: Bigger</source>
        <translation>크기: 크게</translation>
    </message>
    <message id="Size: Smaller">
        <source>Size: Smaller</source>
        <translation>크기: 작게</translation>
    </message>
    <message id="Controller: On">
        <source>Controller: On</source>
        <translation>컨트롤 바: 켬</translation>
    </message>
    <message id="Controller: Off">
        <source>Controller: Off</source>
        <translation>컨트롤 바: 끔</translation>
    </message>
    <message id="Volume: %@">
        <source>Volume: %@</source>
        <translation>음량: %@</translation>
    </message>
    <message id="Mute: %@">
        <source>Mute: %@</source>
        <translation>음소거: %@</translation>
    </message>
    <message id="Muted">
        <source>Muted</source>
        <translation>음소거됨</translation>
    </message>
    <message id="On">
        <source>On</source>
        <translation>켬</translation>
    </message>
    <message id="Off">
        <source>Off</source>
        <translation>끔</translation>
    </message>
    <message id="%d%%">
        <source>%d%%</source>
        <translation>%d%%</translation>
    </message>
    <message id="Time: %@/%@">
        <source>Time: %@/%@</source>
        <translation>시간: %@ / %@</translation>
    </message>
    <message id="Movie: %@">
        <source>Movie: %@</source>
        <translation>동영상: %@</translation>
    </message>
    <message id="Loop: %@">
        <source>Loop: %@</source>
        <translation>반복: %@</translation>
    </message>
    <message id="One">
        <source>One</source>
        <translation>한 편</translation>
    </message>
    <message id="All">
        <source>All</source>
        <translation>모두</translation>
    </message>
    <message id="None">
        <source>None</source>
        <translation>없음</translation>
    </message>
    <message id="Subtitles: %@">
        <source>Subtitles: %@</source>
        <translation>자막: %@</translation>
    </message>
    <message id="Repair: On">
        <source>Repair: On</source>
        <translation>복구: 켬</translation>
    </message>
    <message id="Repair: Off">
        <source>Repair: Off</source>
        <translation>복구: 끔</translation>
    </message>
    <message id="SubtitleLinesLost" numerus="yes">
        <source>%d line of it can’t be read.</source>
        <translation>
            <numerusform>그중 %d줄을 읽을 수 없습니다.</numerusform>
        </translation>
    </message>
    <message id="SubtitlePicturesLost" numerus="yes">
        <source>%d picture of it can’t be read.</source>
        <translation>
            <numerusform>그중 그림 %d개를 읽을 수 없습니다.</numerusform>
        </translation>
    </message>
    <message id="SubtitleRepairMayHelp">
        <source>Repair (Subtitles menu) may help.</source>
        <translation>‘복구’(자막 메뉴)가 도움이 될 수 있습니다.</translation>
    </message>
    <message id="Style">
        <source>Style</source>
        <translation>스타일</translation>
    </message>
    <message id="Automatic">
        <source>Automatic</source>
        <translation>자동</translation>
    </message>
</context>
<context>
    <name>Empty player</name>
    <message id="Press %@ to open a movie">
        <source>Press %@ to open a movie</source>
        <translation>%@ 키를 눌러 동영상 열기</translation>
    </message>
    <message id="or drop files here. %@ shows all keys.">
        <source>or drop files here. %@ shows all keys.</source>
        <translation>또는 파일을 여기에 놓으세요. %@ 키는 모든 키를 보여 줍니다.</translation>
    </message>
</context>
<context>
    <name>Menus</name>
    <message id="File">
        <source>File</source>
        <translation>파일</translation>
    </message>
    <message id="Movie">
        <source>Movie</source>
        <translation>동영상</translation>
    </message>
    <message id="Playback">
        <source>Playback</source>
        <translation>재생</translation>
    </message>
    <message id="Volume">
        <source>Volume</source>
        <translation>음량</translation>
    </message>
    <message id="Playlist">
        <source>Playlist</source>
        <translation>재생목록</translation>
    </message>
    <message id="Subtitles">
        <source>Subtitles</source>
        <translation>자막</translation>
    </message>
    <message id="Window">
        <source>Window</source>
        <translation>창</translation>
    </message>
    <message id="HelpIntroduction">
        <source>Type what you look for. Every command also stands in the menu: at the top edge of the screen, or under the right mouse button.</source>
        <translation>찾는 내용을 입력하세요. 모든 명령은 화면 위쪽의 메뉴나 마우스 오른쪽 버튼 메뉴에도 있습니다.</translation>
    </message>
    <message id="What do you want to do?">
        <source>What do you want to do?</source>
        <translation>무엇을 하시겠습니까?</translation>
    </message>
    <message id="No command holds these words.">
        <source>No command holds these words.</source>
        <translation>이 단어가 들어 있는 명령이 없습니다.</translation>
    </message>
    <message id="Watch and move through the movie">
        <source>Watch and move through the movie</source>
        <translation>동영상 보기와 이동</translation>
    </message>
    <message id="Louder, softer, silent">
        <source>Louder, softer, silent</source>
        <translation>소리 크게, 작게, 음소거</translation>
    </message>
    <message id="Read along">
        <source>Read along</source>
        <translation>자막 읽기</translation>
    </message>
    <message id="See the picture larger, and what is playing">
        <source>See the picture larger, and what is playing</source>
        <translation>화면을 크게 보기, 재생 정보 보기</translation>
    </message>
    <message id="Choose among the movies">
        <source>Choose among the movies</source>
        <translation>동영상 고르기</translation>
    </message>
    <message id="Move to another screen">
        <source>Move to another screen</source>
        <translation>다른 화면으로 이동</translation>
    </message>
    <message id="Open, set up and quit">
        <source>Open, set up and quit</source>
        <translation>열기, 설정, 종료</translation>
    </message>
    <message id="Find help">
        <source>Find help</source>
        <translation>도움말 찾기</translation>
    </message>
    <message id="Help">
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message id="Open URL...">
        <source>Open URL...</source>
        <translation>URL 열기…</translation>
    </message>
    <message id="Open URLs...">
        <source>Open URLs...</source>
        <translation>여러 URL 열기…</translation>
    </message>
    <message id="Save Playlist...">
        <source>Save Playlist...</source>
        <translation>재생목록 저장…</translation>
    </message>
    <message id="Save Playlist">
        <source>Save Playlist</source>
        <translation>재생목록 저장</translation>
    </message>
    <message id="Save">
        <source>Save</source>
        <translation>저장</translation>
    </message>
    <message id="Playlist File">
        <source>Playlist</source>
        <translation>재생목록</translation>
    </message>
    <message id="Save the playlist to a file">
        <source>Save the playlist to a file</source>
        <translation>재생목록을 파일로 저장</translation>
    </message>
    <message id="SaveErrorMessage">
        <source>“%@” can’t be saved.</source>
        <translation>‘%@’을(를) 저장할 수 없습니다.</translation>
    </message>
    <message id="SaveErrorPermission">
        <source>You don’t have the permission to write there.</source>
        <translation>그 위치에 쓸 권한이 없습니다.</translation>
    </message>
    <message id="SaveErrorReadOnly">
        <source>The disk can’t be written to.</source>
        <translation>디스크에 쓸 수 없습니다.</translation>
    </message>
    <message id="SaveErrorFull">
        <source>The disk is full.</source>
        <translation>디스크가 가득 찼습니다.</translation>
    </message>
    <message id="SaveErrorFolder">
        <source>The folder doesn’t exist.</source>
        <translation>폴더가 없습니다.</translation>
    </message>
    <message id="SaveErrorIsFolder">
        <source>This is a folder.</source>
        <translation>폴더입니다.</translation>
    </message>
    <message id="Preferences...">
        <source>Preferences...</source>
        <translation>환경설정…</translation>
    </message>
    <message id="About Lumaro">
        <source>About Lumaro</source>
        <translation>Lumaro 정보</translation>
    </message>
    <message id="Check for New Version...">
        <source>Check for New Version...</source>
        <translation>새 버전 확인…</translation>
    </message>
    <message id="Half Size">
        <source>Half Size</source>
        <translation>절반 크기</translation>
    </message>
    <message id="Normal Size">
        <source>Normal Size</source>
        <translation>보통 크기</translation>
    </message>
    <message id="Double Size">
        <source>Double Size</source>
        <translation>두 배 크기</translation>
    </message>
    <message id="Full Size">
        <source>Full Size</source>
        <translation>전체 화면</translation>
    </message>
    <message id="Fit Screen">
        <source>Fit Screen</source>
        <translation>화면에 맞춤</translation>
    </message>
    <message id="Fit Width">
        <source>Fit Width</source>
        <translation>너비에 맞춤</translation>
    </message>
    <message id="Fit Height">
        <source>Fit Height</source>
        <translation>높이에 맞춤</translation>
    </message>
    <message id="Bigger">
        <source>Bigger</source>
        <translation>크게</translation>
    </message>
    <message id="Smaller">
        <source>Smaller</source>
        <translation>작게</translation>
    </message>
    <message id="Show Controller">
        <source>Show Controller</source>
        <translation>컨트롤 바 보기</translation>
    </message>
    <message id="Bar over the Picture">
        <source>Bar over the Picture</source>
        <translation>화면 위의 바</translation>
    </message>
    <message id="Bar over the picture: off, always, when the pointer moves">
        <source>Bar over the picture: off, always, when the pointer moves</source>
        <translation>화면 위의 바: 끔, 항상, 포인터를 움직일 때</translation>
    </message>
    <message id="Bar over the Picture: Off">
        <source>Bar over the Picture: Off</source>
        <translation>화면 위의 바: 끔</translation>
    </message>
    <message id="Bar over the Picture: Always">
        <source>Bar over the Picture: Always</source>
        <translation>화면 위의 바: 항상</translation>
    </message>
    <message id="Bar over the Picture: When the Pointer Moves">
        <source>Bar over the Picture: When the Pointer Moves</source>
        <translation>화면 위의 바: 포인터를 움직일 때</translation>
    </message>
    <message id="Tracks...">
        <source>Tracks...</source>
        <translation>트랙…</translation>
    </message>
    <message id="Sound and subtitles in one menu">
        <source>Sound and subtitles in one menu</source>
        <translation>소리와 자막을 한 메뉴에서</translation>
    </message>
    <message id="Audio">
        <source>Audio</source>
        <translation>오디오</translation>
    </message>
    <message id="Hide Controller">
        <source>Hide Controller</source>
        <translation>컨트롤 바 숨기기</translation>
    </message>
    <message id="Next Display">
        <source>Next Display</source>
        <translation>다음 화면 표시</translation>
    </message>
    <message id="Previous Display">
        <source>Previous Display</source>
        <translation>이전 화면 표시</translation>
    </message>
    <message id="Play">
        <source>Play</source>
        <translation>재생</translation>
    </message>
    <message id="Pause">
        <source>Pause</source>
        <translation>일시정지</translation>
    </message>
    <message id="Fast Forward">
        <source>Fast Forward</source>
        <translation>빨리 감기</translation>
    </message>
    <message id="Rewind">
        <source>Rewind</source>
        <translation>되감기</translation>
    </message>
    <message id="Jump Forward">
        <source>Jump Forward</source>
        <translation>앞으로 건너뛰기</translation>
    </message>
    <message id="Jump Backward">
        <source>Jump Backward</source>
        <translation>뒤로 건너뛰기</translation>
    </message>
    <message id="Beginning">
        <source>Beginning</source>
        <translation>처음</translation>
    </message>
    <message id="End">
        <source>End</source>
        <translation>끝</translation>
    </message>
    <message id="Next Movie">
        <source>Next Movie</source>
        <translation>다음 동영상</translation>
    </message>
    <message id="Previous Movie">
        <source>Previous Movie</source>
        <translation>이전 동영상</translation>
    </message>
    <message id="Looping Off">
        <source>Looping Off</source>
        <translation>반복 안 함</translation>
    </message>
    <message id="Loop Off">
        <source>Loop Off</source>
        <translation>반복 안 함</translation>
    </message>
    <message id="Loop One">
        <source>Loop One</source>
        <translation>한 편 반복</translation>
    </message>
    <message id="Loop All">
        <source>Loop All</source>
        <translation>모두 반복</translation>
    </message>
    <message id="Repair">
        <source>Repair</source>
        <translation>복구</translation>
    </message>
    <message id="Volume Up">
        <source>Volume Up</source>
        <translation>음량 높이기</translation>
    </message>
    <message id="Volume Down">
        <source>Volume Down</source>
        <translation>음량 낮추기</translation>
    </message>
    <message id="Normal Volume">
        <source>Normal Volume</source>
        <translation>보통 음량</translation>
    </message>
    <message id="Silent">
        <source>Silent</source>
        <translation>무음</translation>
    </message>
    <message id="Mute">
        <source>Mute</source>
        <translation>음소거</translation>
    </message>
    <message id="Next Screen">
        <source>Next Screen</source>
        <translation>다음 화면</translation>
    </message>
    <message id="Previous Screen">
        <source>Previous Screen</source>
        <translation>이전 화면</translation>
    </message>
    <message id="More...">
        <source>More…</source>
        <translation>더 보기…</translation>
    </message>
    <message id="The whole list: search, move and remove movies">
        <source>The whole list: search, move and remove movies</source>
        <translation>전체 목록: 동영상 검색, 이동, 제거</translation>
    </message>
    <message id="Playlist Panel">
        <source>Playlist</source>
        <translation>재생목록</translation>
    </message>
    <message id="Filter">
        <source>Filter</source>
        <translation>필터</translation>
    </message>
    <message id="Play Movie">
        <source>Play</source>
        <translation>재생</translation>
    </message>
    <message id="Move Up">
        <source>Move Up</source>
        <translation>위로 이동</translation>
    </message>
    <message id="Move Down">
        <source>Move Down</source>
        <translation>아래로 이동</translation>
    </message>
    <message id="Remove from List">
        <source>Remove</source>
        <translation>제거</translation>
    </message>
    <message id="PlaylistCountMessage">
        <source>%@ of %@ movies</source>
        <translation>%@ / %@편의 동영상</translation>
    </message>
    <message id="Lumaro Help">
        <source>Lumaro Help</source>
        <translation>Lumaro 도움말</translation>
    </message>
</context>
<context>
    <name>Help</name>
    <message id="Open movies">
        <source>Open movies</source>
        <translation>동영상 열기</translation>
    </message>
    <message id="Half, normal and double size">
        <source>Half, normal and double size</source>
        <translation>절반, 보통, 두 배 크기</translation>
    </message>
    <message id="Fit to the screen, to its width, to its height">
        <source>Fit to the screen, to its width, to its height</source>
        <translation>화면, 너비, 높이에 맞춤</translation>
    </message>
    <message id="Bigger and smaller">
        <source>Bigger and smaller</source>
        <translation>크게, 작게</translation>
    </message>
    <message id="Controller bar">
        <source>Controller bar</source>
        <translation>컨트롤 바</translation>
    </message>
    <message id="On-screen display: time, movie, subtitles, looping, volume">
        <source>On-screen display: time, movie, subtitles, looping, volume</source>
        <translation>화면 표시: 시간, 동영상, 자막, 반복, 음량</translation>
    </message>
    <message id="Play, pause, back to normal speed">
        <source>Play, pause, back to normal speed</source>
        <translation>재생, 일시정지, 보통 속도로</translation>
    </message>
    <message id="Forward and back: one frame while paused, faster and faster while playing">
        <source>Forward and back: one frame while paused, faster and faster while playing</source>
        <translation>앞뒤로: 일시정지 중에는 한 프레임씩, 재생 중에는 점점 빠르게</translation>
    </message>
    <message id="Jump forward and back">
        <source>Jump forward and back</source>
        <translation>앞뒤로 건너뛰기</translation>
    </message>
    <message id="Beginning and end of the movie">
        <source>Beginning and end of the movie</source>
        <translation>동영상의 처음과 끝</translation>
    </message>
    <message id="Next and previous movie">
        <source>Next and previous movie</source>
        <translation>다음, 이전 동영상</translation>
    </message>
    <message id="Double Click">
        <source>Double Click</source>
        <translation>두 번 클릭</translation>
    </message>
    <message id="Middle Button">
        <source>Middle Button</source>
        <translation>가운데 버튼</translation>
    </message>
    <message id="Back Button">
        <source>Back Button</source>
        <translation>뒤로 버튼</translation>
    </message>
    <message id="Forward Button">
        <source>Forward Button</source>
        <translation>앞으로 버튼</translation>
    </message>
    <message id="Wheel Up">
        <source>Wheel Up</source>
        <translation>휠 위로</translation>
    </message>
    <message id="Wheel Down">
        <source>Wheel Down</source>
        <translation>휠 아래로</translation>
    </message>
    <message id="Looping: off, one, all">
        <source>Looping: off, one, all</source>
        <translation>반복: 끔, 한 편, 모두</translation>
    </message>
    <message id="Louder and softer">
        <source>Louder and softer</source>
        <translation>소리 크게, 작게</translation>
    </message>
    <message id="Next and previous subtitles">
        <source>Next and previous subtitles</source>
        <translation>다음, 이전 자막</translation>
    </message>
    <message id="Sound Earlier">
        <source>Sound Earlier</source>
        <translation>소리 빠르게</translation>
    </message>
    <message id="Sound Later">
        <source>Sound Later</source>
        <translation>소리 느리게</translation>
    </message>
    <message id="Sound as in the File">
        <source>Sound as in the File</source>
        <translation>소리를 파일대로</translation>
    </message>
    <message id="Sound earlier and later">
        <source>Sound earlier and later</source>
        <translation>소리 빠르게, 느리게</translation>
    </message>
    <message id="Sound at the times of the file">
        <source>Sound at the times of the file</source>
        <translation>소리를 파일의 시간대로</translation>
    </message>
    <message id="Sound delay: %@">
        <source>Sound delay: %@</source>
        <translation>소리 지연: %@</translation>
    </message>
    <message id="Add Subtitles...">
        <source>Add Subtitles...</source>
        <translation>자막 추가…</translation>
    </message>
    <message id="Add Subtitles">
        <source>Add Subtitles</source>
        <translation>자막 추가</translation>
    </message>
    <message id="Add a file of subtitles to the movie">
        <source>Add a file of subtitles to the movie</source>
        <translation>동영상에 자막 파일 추가</translation>
    </message>
    <message id="Add">
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message id="NoSubtitlesInFile">
        <source>“%@” holds no subtitles that can be read</source>
        <translation>‘%@’에 읽을 수 있는 자막이 없습니다</translation>
    </message>
    <message id="Add to the Movie as Subtitles">
        <source>Add to the Movie as Subtitles</source>
        <translation>동영상에 자막으로 추가</translation>
    </message>
    <message id="Show Earlier">
        <source>Show Earlier</source>
        <translation>빠르게 표시</translation>
    </message>
    <message id="Show Later">
        <source>Show Later</source>
        <translation>느리게 표시</translation>
    </message>
    <message id="As in the File">
        <source>As in the File</source>
        <translation>파일대로</translation>
    </message>
    <message id="Show Subtitles Earlier">
        <source>Show Subtitles Earlier</source>
        <translation>자막 빠르게</translation>
    </message>
    <message id="Show Subtitles Later">
        <source>Show Subtitles Later</source>
        <translation>자막 느리게</translation>
    </message>
    <message id="Subtitles at the Times of Their File">
        <source>Subtitles at the Times of Their File</source>
        <translation>자막을 파일의 시간대로</translation>
    </message>
    <message id="Subtitles earlier and later">
        <source>Subtitles earlier and later</source>
        <translation>자막 빠르게, 느리게</translation>
    </message>
    <message id="Subtitles at the times of their file">
        <source>Subtitles at the times of their file</source>
        <translation>자막을 파일의 시간대로</translation>
    </message>
    <message id="First Line Is Spoken Now">
        <source>First Line Is Spoken Now</source>
        <translation>첫 줄이 지금 나옴</translation>
    </message>
    <message id="Last Line Is Spoken Now">
        <source>Last Line Is Spoken Now</source>
        <translation>마지막 줄이 지금 나옴</translation>
    </message>
    <message id="In step by two lines: press one while the first line is spoken, the other while the last one is">
        <source>In step by two lines: press one while the first line is spoken, the other while the last one is</source>
        <translation>두 줄로 맞추기: 첫 줄이 나올 때 한 키를, 마지막 줄이 나올 때 다른 키를 누르세요</translation>
    </message>
    <message id="Larger Text">
        <source>Larger Text</source>
        <translation>글자 크게</translation>
    </message>
    <message id="Smaller Text">
        <source>Smaller Text</source>
        <translation>글자 작게</translation>
    </message>
    <message id="Larger Subtitles">
        <source>Larger Subtitles</source>
        <translation>자막 크게</translation>
    </message>
    <message id="Smaller Subtitles">
        <source>Smaller Subtitles</source>
        <translation>자막 작게</translation>
    </message>
    <message id="Subtitles larger and smaller">
        <source>Subtitles larger and smaller</source>
        <translation>자막 크게, 작게</translation>
    </message>
    <message id="Higher">
        <source>Higher</source>
        <translation>위로</translation>
    </message>
    <message id="Lower">
        <source>Lower</source>
        <translation>아래로</translation>
    </message>
    <message id="Higher Subtitles">
        <source>Higher Subtitles</source>
        <translation>자막 위로</translation>
    </message>
    <message id="Lower Subtitles">
        <source>Lower Subtitles</source>
        <translation>자막 아래로</translation>
    </message>
    <message id="Subtitles higher and lower">
        <source>Subtitles higher and lower</source>
        <translation>자막 위로, 아래로</translation>
    </message>
    <message id="Subtitle delay: %@">
        <source>Subtitle delay: %@</source>
        <translation>자막 지연: %@</translation>
    </message>
    <message id="Subtitle size: %d">
        <source>Subtitle size: %d</source>
        <translation>자막 크기: %d</translation>
    </message>
    <message id="Subtitle height: %d">
        <source>Subtitle height: %d %</source>
        <translation>자막 높이: %d %</translation>
    </message>
    <message id="SubtitleLinesTooFar">
        <source>The lines cannot be brought in step: they would be more than twice as fast or as slow</source>
        <translation>맞출 수 없습니다: 줄이 두 배 넘게 빨라지거나 느려집니다</translation>
    </message>
    <message id="Repair damaged subtitles">
        <source>Repair damaged subtitles</source>
        <translation>손상된 자막 복구</translation>
    </message>
    <message id="Next and previous screen">
        <source>Next and previous screen</source>
        <translation>다음, 이전 화면</translation>
    </message>
</context>
<context>
    <name>Text encodings</name>
    <message id="Western (ASCII)">
        <source>Western (ASCII)</source>
        <translation>서유럽어 (ASCII)</translation>
    </message>
    <message id="Western (ISO Latin 1)">
        <source>Western (ISO Latin 1)</source>
        <translation>서유럽어 (ISO Latin 1)</translation>
    </message>
    <message id="Western (ISO Latin 9)">
        <source>Western (ISO Latin 9)</source>
        <translation>서유럽어 (ISO Latin 9)</translation>
    </message>
    <message id="Western (Windows Latin 1)">
        <source>Western (Windows Latin 1)</source>
        <translation>서유럽어 (Windows Latin 1)</translation>
    </message>
    <message id="Western (Mac OS Roman)">
        <source>Western (Mac OS Roman)</source>
        <translation>서유럽어 (Mac OS Roman)</translation>
    </message>
    <message id="Western (DOS Latin 1)">
        <source>Western (DOS Latin 1)</source>
        <translation>서유럽어 (DOS Latin 1)</translation>
    </message>
    <message id="Latin-US (DOS)">
        <source>Latin-US (DOS)</source>
        <translation>라틴 문자-미국 (DOS)</translation>
    </message>
    <message id="Central European (ISO Latin 2)">
        <source>Central European (ISO Latin 2)</source>
        <translation>중앙 유럽어 (ISO Latin 2)</translation>
    </message>
    <message id="Central European (Windows Latin 2)">
        <source>Central European (Windows Latin 2)</source>
        <translation>중앙 유럽어 (Windows Latin 2)</translation>
    </message>
    <message id="Central European (Mac OS)">
        <source>Central European (Mac OS)</source>
        <translation>중앙 유럽어 (Mac OS)</translation>
    </message>
    <message id="Central European (DOS Latin 2)">
        <source>Central European (DOS Latin 2)</source>
        <translation>중앙 유럽어 (DOS Latin 2)</translation>
    </message>
    <message id="Western (ISO Latin 3)">
        <source>Western (ISO Latin 3)</source>
        <translation>서유럽어 (ISO Latin 3)</translation>
    </message>
    <message id="Central European (ISO Latin 4)">
        <source>Central European (ISO Latin 4)</source>
        <translation>중앙 유럽어 (ISO Latin 4)</translation>
    </message>
    <message id="Nordic (ISO Latin 6)">
        <source>Nordic (ISO Latin 6)</source>
        <translation>북유럽어 (ISO Latin 6)</translation>
    </message>
    <message id="Icelandic (DOS)">
        <source>Icelandic (DOS)</source>
        <translation>아이슬란드어 (DOS)</translation>
    </message>
    <message id="Nordic (DOS)">
        <source>Nordic (DOS)</source>
        <translation>북유럽어 (DOS)</translation>
    </message>
    <message id="Baltic (ISO Latin 7)">
        <source>Baltic (ISO Latin 7)</source>
        <translation>발트어 (ISO Latin 7)</translation>
    </message>
    <message id="Baltic (Windows)">
        <source>Baltic (Windows)</source>
        <translation>발트어 (Windows)</translation>
    </message>
    <message id="Baltic (DOS)">
        <source>Baltic (DOS)</source>
        <translation>발트어 (DOS)</translation>
    </message>
    <message id="Celtic (ISO Latin 8)">
        <source>Celtic (ISO Latin 8)</source>
        <translation>켈트어 (ISO Latin 8)</translation>
    </message>
    <message id="Cyrillic (ISO 8859-5)">
        <source>Cyrillic (ISO 8859-5)</source>
        <translation>키릴 문자 (ISO 8859-5)</translation>
    </message>
    <message id="Cyrillic (Windows)">
        <source>Cyrillic (Windows)</source>
        <translation>키릴 문자 (Windows)</translation>
    </message>
    <message id="Cyrillic (KOI8-R)">
        <source>Cyrillic (KOI8-R)</source>
        <translation>키릴 문자 (KOI8-R)</translation>
    </message>
    <message id="Ukrainian (KOI8-U)">
        <source>Ukrainian (KOI8-U)</source>
        <translation>우크라이나어 (KOI8-U)</translation>
    </message>
    <message id="Cyrillic (Mac OS)">
        <source>Cyrillic (Mac OS)</source>
        <translation>키릴 문자 (Mac OS)</translation>
    </message>
    <message id="Cyrillic (DOS)">
        <source>Cyrillic (DOS)</source>
        <translation>키릴 문자 (DOS)</translation>
    </message>
    <message id="Russian (DOS)">
        <source>Russian (DOS)</source>
        <translation>러시아어 (DOS)</translation>
    </message>
    <message id="Greek (ISO 8859-7)">
        <source>Greek (ISO 8859-7)</source>
        <translation>그리스어 (ISO 8859-7)</translation>
    </message>
    <message id="Greek (Windows)">
        <source>Greek (Windows)</source>
        <translation>그리스어 (Windows)</translation>
    </message>
    <message id="Greek (Mac OS)">
        <source>Greek (Mac OS)</source>
        <translation>그리스어 (Mac OS)</translation>
    </message>
    <message id="Greek (DOS)">
        <source>Greek (DOS)</source>
        <translation>그리스어 (DOS)</translation>
    </message>
    <message id="Greek (DOS Greek 2)">
        <source>Greek (DOS Greek 2)</source>
        <translation>그리스어 (DOS Greek 2)</translation>
    </message>
    <message id="Turkish (ISO Latin 5)">
        <source>Turkish (ISO Latin 5)</source>
        <translation>터키어 (ISO Latin 5)</translation>
    </message>
    <message id="Turkish (Windows Latin 5)">
        <source>Turkish (Windows Latin 5)</source>
        <translation>터키어 (Windows Latin 5)</translation>
    </message>
    <message id="Turkish (Mac OS)">
        <source>Turkish (Mac OS)</source>
        <translation>터키어 (Mac OS)</translation>
    </message>
    <message id="Turkish (DOS)">
        <source>Turkish (DOS)</source>
        <translation>터키어 (DOS)</translation>
    </message>
    <message id="Hebrew (ISO 8859-8)">
        <source>Hebrew (ISO 8859-8)</source>
        <translation>히브리어 (ISO 8859-8)</translation>
    </message>
    <message id="Hebrew (Windows)">
        <source>Hebrew (Windows)</source>
        <translation>히브리어 (Windows)</translation>
    </message>
    <message id="Hebrew (DOS)">
        <source>Hebrew (DOS)</source>
        <translation>히브리어 (DOS)</translation>
    </message>
    <message id="Arabic (ISO 8859-6)">
        <source>Arabic (ISO 8859-6)</source>
        <translation>아랍어 (ISO 8859-6)</translation>
    </message>
    <message id="Arabic (Windows)">
        <source>Arabic (Windows)</source>
        <translation>아랍어 (Windows)</translation>
    </message>
    <message id="Arabic (DOS)">
        <source>Arabic (DOS)</source>
        <translation>아랍어 (DOS)</translation>
    </message>
    <message id="Portuguese (DOS)">
        <source>Portuguese (DOS)</source>
        <translation>포르투갈어 (DOS)</translation>
    </message>
    <message id="Canadian French (DOS)">
        <source>Canadian French (DOS)</source>
        <translation>프랑스어 (캐나다) (DOS)</translation>
    </message>
    <message id="Thai (ISO 8859-11)">
        <source>Thai (ISO 8859-11)</source>
        <translation>태국어 (ISO 8859-11)</translation>
    </message>
    <message id="Thai (Windows, DOS)">
        <source>Thai (Windows, DOS)</source>
        <translation>태국어 (Windows, DOS)</translation>
    </message>
    <message id="Vietnamese (Windows)">
        <source>Vietnamese (Windows)</source>
        <translation>베트남어 (Windows)</translation>
    </message>
    <message id="Japanese (Shift JIS)">
        <source>Japanese (Shift JIS)</source>
        <translation>일본어 (Shift JIS)</translation>
    </message>
    <message id="Japanese (Windows, DOS)">
        <source>Japanese (Windows, DOS)</source>
        <translation>일본어 (Windows, DOS)</translation>
    </message>
    <message id="Japanese (EUC)">
        <source>Japanese (EUC)</source>
        <translation>일본어 (EUC)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP)">
        <source>Japanese (ISO 2022-JP)</source>
        <translation>일본어 (ISO 2022-JP)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-2)">
        <source>Japanese (ISO 2022-JP-2)</source>
        <translation>일본어 (ISO 2022-JP-2)</translation>
    </message>
    <message id="Japanese (ISO 2022-JP-1)">
        <source>Japanese (ISO 2022-JP-1)</source>
        <translation>일본어 (ISO 2022-JP-1)</translation>
    </message>
    <message id="Chinese (GB 18030)">
        <source>Chinese (GB 18030)</source>
        <translation>중국어 (GB 18030)</translation>
    </message>
    <message id="Simplified Chinese (GBK)">
        <source>Simplified Chinese (GBK)</source>
        <translation>중국어 간체 (GBK)</translation>
    </message>
    <message id="Simplified Chinese (Windows, DOS)">
        <source>Simplified Chinese (Windows, DOS)</source>
        <translation>중국어 간체 (Windows, DOS)</translation>
    </message>
    <message id="Simplified Chinese (GB 2312)">
        <source>Simplified Chinese (GB 2312)</source>
        <translation>중국어 간체 (GB 2312)</translation>
    </message>
    <message id="Simplified Chinese (HZ GB 2312)">
        <source>Simplified Chinese (HZ GB 2312)</source>
        <translation>중국어 간체 (HZ GB 2312)</translation>
    </message>
    <message id="Chinese (ISO 2022-CN)">
        <source>Chinese (ISO 2022-CN)</source>
        <translation>중국어 (ISO 2022-CN)</translation>
    </message>
    <message id="Traditional Chinese (Big 5)">
        <source>Traditional Chinese (Big 5)</source>
        <translation>중국어 번체 (Big 5)</translation>
    </message>
    <message id="Traditional Chinese (Big 5 HKSCS)">
        <source>Traditional Chinese (Big 5 HKSCS)</source>
        <translation>중국어 번체 (Big 5 HKSCS)</translation>
    </message>
    <message id="Traditional Chinese (Windows, DOS)">
        <source>Traditional Chinese (Windows, DOS)</source>
        <translation>중국어 번체 (Windows, DOS)</translation>
    </message>
    <message id="Traditional Chinese (EUC)">
        <source>Traditional Chinese (EUC)</source>
        <translation>중국어 번체 (EUC)</translation>
    </message>
    <message id="Korean (EUC)">
        <source>Korean (EUC)</source>
        <translation>한국어 (EUC)</translation>
    </message>
    <message id="Korean (Windows, DOS)">
        <source>Korean (Windows, DOS)</source>
        <translation>한국어 (Windows, DOS)</translation>
    </message>
    <message id="Korean (ISO 2022-KR)">
        <source>Korean (ISO 2022-KR)</source>
        <translation>한국어 (ISO 2022-KR)</translation>
    </message>
</context>
<context>
    <name>Overlay styles</name>
    <message id="StyleText">
        <source>Text</source>
        <translation>글자</translation>
    </message>
    <message id="StyleTextColor">
        <source>&amp;Color:</source>
        <translation>색(&amp;C):</translation>
    </message>
    <message id="StyleTextColorTip">
        <source>The color of the letters, and of the line around the panel</source>
        <translation>글자와 패널 둘레 선의 색</translation>
    </message>
    <message id="StyleTextFontName">
        <source>&amp;Font:</source>
        <translation>글꼴(&amp;F):</translation>
    </message>
    <message id="StyleTextFontNameTip">
        <source>The family of the letters</source>
        <translation>글자의 글꼴</translation>
    </message>
    <message id="StyleTextFontSize">
        <source>Si&amp;ze:</source>
        <translation>크기(&amp;Z):</translation>
    </message>
    <message id="StyleTextFontSizeTip">
        <source>In points of a screen 1080 points high; on a higher one, letters grow with it</source>
        <translation>높이가 1080포인트인 화면 기준의 포인트. 더 높은 화면에서는 글자도 커집니다</translation>
    </message>
    <message id="StyleShadow">
        <source>Shadow</source>
        <translation>그림자</translation>
    </message>
    <message id="StyleShadowOn">
        <source>Draw a &amp;shadow</source>
        <translation>그림자 그리기(&amp;S)</translation>
    </message>
    <message id="StyleShadowOnTip">
        <source>A shadow keeps letters legible on any picture</source>
        <translation>그림자가 있으면 어떤 화면에서도 글자를 읽기 쉽습니다</translation>
    </message>
    <message id="StyleShadowColor">
        <source>Co&amp;lor:</source>
        <translation>색(&amp;L):</translation>
    </message>
    <message id="StyleShadowColorTip">
        <source>The color of the shadow, and how much shows through it</source>
        <translation>그림자의 색과 비치는 정도</translation>
    </message>
    <message id="StyleShadowBlur">
        <source>&amp;Blur:</source>
        <translation>흐림(&amp;B):</translation>
    </message>
    <message id="StyleShadowBlurTip">
        <source>How far the shadow’s edge is spread, in points</source>
        <translation>그림자 가장자리가 퍼지는 정도(포인트)</translation>
    </message>
    <message id="StyleShadowOffsetX">
        <source>To the &amp;right:</source>
        <translation>오른쪽으로(&amp;R):</translation>
    </message>
    <message id="StyleShadowOffsetXTip">
        <source>How far the shadow falls to the right, in points; below 0, to the left</source>
        <translation>그림자가 오른쪽으로 옮겨지는 정도(포인트). 0보다 작으면 왼쪽</translation>
    </message>
    <message id="StyleShadowOffsetY">
        <source>&amp;Upwards:</source>
        <translation>위로(&amp;U):</translation>
    </message>
    <message id="StyleShadowOffsetYTip">
        <source>How far the shadow falls upwards, in points; below 0, downwards</source>
        <translation>그림자가 위로 옮겨지는 정도(포인트). 0보다 작으면 아래쪽</translation>
    </message>
    <message id="StylePosition">
        <source>Position</source>
        <translation>위치</translation>
    </message>
    <message id="StyleAlignmentVertical">
        <source>&amp;Vertical:</source>
        <translation>세로(&amp;V):</translation>
    </message>
    <message id="StyleAlignmentVerticalTip">
        <source>At what height it stands</source>
        <translation>표시되는 높이</translation>
    </message>
    <message id="StyleAlignmentHorizontal">
        <source>&amp;Horizontal:</source>
        <translation>가로(&amp;H):</translation>
    </message>
    <message id="StyleAlignmentHorizontalTip">
        <source>At which side of the screen it stands</source>
        <translation>화면의 어느 쪽에 표시되는지</translation>
    </message>
    <message id="StyleLeft">
        <source>Left</source>
        <translation>왼쪽</translation>
    </message>
    <message id="StyleCenter">
        <source>Center</source>
        <translation>가운데</translation>
    </message>
    <message id="StyleRight">
        <source>Right</source>
        <translation>오른쪽</translation>
    </message>
    <message id="StyleTop">
        <source>Top</source>
        <translation>위</translation>
    </message>
    <message id="StyleMiddle">
        <source>Middle</source>
        <translation>중간</translation>
    </message>
    <message id="StyleBottom">
        <source>Bottom</source>
        <translation>아래</translation>
    </message>
    <message id="StyleAbovePictureEdge">
        <source>Inside the picture</source>
        <translation>그림 안쪽</translation>
    </message>
    <message id="StyleOnPictureEdge">
        <source>On the picture’s edge</source>
        <translation>그림 가장자리</translation>
    </message>
    <message id="StyleBelowPicture">
        <source>Below the picture</source>
        <translation>그림 아래</translation>
    </message>
    <message id="StylePanel">
        <source>Panel</source>
        <translation>패널</translation>
    </message>
    <message id="StyleBackground">
        <source>Background</source>
        <translation>배경</translation>
    </message>
    <message id="StyleBackgroundTip">
        <source>The color around the picture</source>
        <translation>그림 둘레의 색</translation>
    </message>
    <message id="StyleBackgroundOn">
        <source>Draw a &amp;panel</source>
        <translation>패널 그리기(&amp;P)</translation>
    </message>
    <message id="StyleBackgroundOnTip">
        <source>A panel behind the text</source>
        <translation>글자 뒤의 패널</translation>
    </message>
    <message id="StyleBackgroundColor">
        <source>Col&amp;or:</source>
        <translation>색(&amp;O):</translation>
    </message>
    <message id="StyleBackgroundColorTip">
        <source>The color of the panel, and how much shows through it</source>
        <translation>패널의 색과 비치는 정도</translation>
    </message>
    <message id="StyleBackgroundRounded">
        <source>Rou&amp;nd corners</source>
        <translation>둥근 모서리(&amp;N)</translation>
    </message>
    <message id="StyleBackgroundRoundedTip">
        <source>Corners of the panel are rounded</source>
        <translation>패널의 모서리를 둥글게 합니다</translation>
    </message>
    <message id="StyleBackgroundRadius">
        <source>R&amp;adius:</source>
        <translation>반지름(&amp;A):</translation>
    </message>
    <message id="StyleBackgroundRadiusTip">
        <source>How far the corners are rounded, in points</source>
        <translation>모서리의 둥근 정도(포인트)</translation>
    </message>
    <message id="StyleFrameOn">
        <source>Draw a fra&amp;me</source>
        <translation>테두리 그리기(&amp;M)</translation>
    </message>
    <message id="StyleFrameOnTip">
        <source>A line around the panel, in the text’s color</source>
        <translation>글자와 같은 색으로 패널을 두르는 선</translation>
    </message>
    <message id="StyleFrameWidth">
        <source>&amp;Width:</source>
        <translation>두께(&amp;W):</translation>
    </message>
    <message id="StyleFrameWidthTip">
        <source>How wide the line is, in points</source>
        <translation>선의 두께(포인트)</translation>
    </message>
    <message id="StyleFading">
        <source>Fading and opacity</source>
        <translation>페이드와 불투명도</translation>
    </message>
    <message id="StyleFadingIn">
        <source>Fade &amp;in:</source>
        <translation>페이드 인(&amp;I):</translation>
    </message>
    <message id="StyleFadingInTip">
        <source>How long a whole fade takes when it appears; 0 shows it at once</source>
        <translation>나타날 때 전체 페이드 시간. 0이면 바로 나타납니다</translation>
    </message>
    <message id="StyleFadingOut">
        <source>Fad&amp;e out:</source>
        <translation>페이드 아웃(&amp;E):</translation>
    </message>
    <message id="StyleFadingOutTip">
        <source>How long a whole fade takes when it goes; 0 hides it at once</source>
        <translation>사라질 때 전체 페이드 시간. 0이면 바로 사라집니다</translation>
    </message>
    <message id="StyleFadingDelay">
        <source>S&amp;tay:</source>
        <translation>유지(&amp;T):</translation>
    </message>
    <message id="StyleFadingDelayTip">
        <source>How long it stays between fading in and fading out</source>
        <translation>페이드 인과 페이드 아웃 사이에 머무는 시간</translation>
    </message>
    <message id="StyleMinAlpha">
        <source>Opacity when hi&amp;dden:</source>
        <translation>숨겼을 때 불투명도(&amp;D):</translation>
    </message>
    <message id="StyleMinAlphaTip">
        <source>How much of it remains while it is hidden: 0 % is nothing</source>
        <translation>숨겨져 있을 때 남는 정도: 0 %이면 아무것도 보이지 않습니다</translation>
    </message>
    <message id="StyleMaxAlpha">
        <source>Opacit&amp;y when shown:</source>
        <translation>표시할 때 불투명도(&amp;Y):</translation>
    </message>
    <message id="StyleMaxAlphaTip">
        <source>How opaque it is while it is shown: below 100 % the picture shows through</source>
        <translation>표시될 때 불투명한 정도: 100 %보다 작으면 화면이 비칩니다</translation>
    </message>
    <message id="StyleReset">
        <source>Reset to Defaults</source>
        <translation>기본값으로 되돌리기</translation>
    </message>
    <message id="StyleResetTip">
        <source>Takes this style back to what it was at first</source>
        <translation>이 스타일을 처음 상태로 되돌립니다</translation>
    </message>
    <message id="StyleResetUndo">
        <source>Undo Reset</source>
        <translation>되돌리기 취소</translation>
    </message>
    <message id="StyleResetUndoTip">
        <source>Brings back what the style was before</source>
        <translation>되돌리기 전의 스타일로 돌아갑니다</translation>
    </message>
    <message id="StyleSeconds">
        <source>%@ s</source>
        <translation>%@초</translation>
    </message>
    <message id="StylePercent">
        <source>%@ %</source>
        <translation>%@ %</translation>
    </message>
    <message id="StyleSample">
        <source>Sample</source>
        <translation>예시</translation>
    </message>
    <message id="StyleSampleTip">
        <source>What it looks like over the movie, or over a light and a dark picture</source>
        <translation>동영상 위, 또는 밝은 화면과 어두운 화면 위에서 보이는 모습</translation>
    </message>
    <message id="StyleSampleSubtitle">
        <source>What an evening!</source>
        <translation>참 아름다운 저녁이네요!</translation>
    </message>
    <message id="StyleSampleFeedback">
        <source>Volume: 80 %</source>
        <translation>음량: 80 %</translation>
    </message>
</context>
<context>
    <name>Preferences</name>
    <message id="Preferences">
        <source>Preferences</source>
        <translation>환경설정</translation>
    </message>
    <message id="&amp;Movie">
        <source>&amp;Movie</source>
        <translation>동영상(&amp;M)</translation>
    </message>
    <message id="Started Without a File">
        <source>Started Without a File</source>
        <translation>파일 없이 시작했을 때</translation>
    </message>
    <message id="Open &amp;nothing">
        <source>Open &amp;nothing</source>
        <translation>아무것도 열지 않기(&amp;N)</translation>
    </message>
    <message id="Lumaro starts with an empty screen">
        <source>Lumaro starts with an empty screen</source>
        <translation>Lumaro가 빈 화면으로 시작합니다</translation>
    </message>
    <message id="Open the &amp;last playlist">
        <source>Open the &amp;last playlist</source>
        <translation>마지막 재생목록 열기(&amp;L)</translation>
    </message>
    <message id="The movies of the last time come back, at the place where they were left">
        <source>The movies of the last time come back, at the place where they were left</source>
        <translation>지난번 동영상이 마지막으로 보던 위치에서 다시 열립니다</translation>
    </message>
    <message id="Ask for &amp;files">
        <source>Ask for &amp;files</source>
        <translation>파일 묻기(&amp;F)</translation>
    </message>
    <message id="Lumaro begins with the panel that opens movies">
        <source>Lumaro begins with the panel that opens movies</source>
        <translation>Lumaro가 동영상을 여는 창과 함께 시작합니다</translation>
    </message>
    <message id="Picture">
        <source>Picture</source>
        <translation>화면</translation>
    </message>
    <message id="Si&amp;ze:">
        <source>Si&amp;ze:</source>
        <translation>크기(&amp;Z):</translation>
    </message>
    <message id="How large movies are shown, from now on and at the next start">
        <source>How large movies are shown, from now on and at the next start</source>
        <translation>동영상을 표시하는 크기. 지금부터 그리고 다음에 시작할 때 적용됩니다</translation>
    </message>
    <message id="Custom Magnification">
        <source>Custom Magnification</source>
        <translation>사용자 지정 배율</translation>
    </message>
    <message id="&amp;Window:">
        <source>&amp;Window:</source>
        <translation>창(&amp;W):</translation>
    </message>
    <message id="Whether the movie stays above the windows of other programs while Lumaro has the keyboard">
        <source>Whether the movie stays above the windows of other programs while Lumaro has the keyboard</source>
        <translation>Lumaro를 사용하는 동안 동영상을 다른 프로그램의 창 위에 둘지 여부</translation>
    </message>
    <message id="Bar over the p&amp;icture:">
        <source>Bar over the p&amp;icture:</source>
        <translation>화면 위의 바(&amp;I):</translation>
    </message>
    <message id="Where none stands below it: a larger bar that comes with the pointer, or stays">
        <source>Where none stands below it: a larger bar that comes with the pointer, or stays</source>
        <translation>아래에 바가 없을 때: 포인터와 함께 나타나거나 계속 머무는 더 큰 바</translation>
    </message>
    <message id="Always">
        <source>Always</source>
        <translation>항상</translation>
    </message>
    <message id="When the pointer moves">
        <source>When the pointer moves</source>
        <translation>포인터를 움직일 때</translation>
    </message>
    <message id="Among other windows">
        <source>Among other windows</source>
        <translation>다른 창들 사이에</translation>
    </message>
    <message id="Above other windows">
        <source>Above other windows</source>
        <translation>다른 창들 위에</translation>
    </message>
    <message id="Show the controller &amp;bar">
        <source>Show the controller &amp;bar</source>
        <translation>컨트롤 바 보기(&amp;B)</translation>
    </message>
    <message id="The bar with play, time and volume below the picture">
        <source>The bar with play, time and volume below the picture</source>
        <translation>화면 아래의 재생, 시간, 음량 바</translation>
    </message>
    <message id="Set the screen’s bri&amp;ghtness:">
        <source>Set the screen’s bri&amp;ghtness:</source>
        <translation>화면 밝기 설정(&amp;G):</translation>
    </message>
    <message id="As long as Lumaro runs; then the screen is as bright as before">
        <source>As long as Lumaro runs; then the screen is as bright as before</source>
        <translation>Lumaro가 실행되는 동안만 적용되며, 이후 원래 밝기로 돌아갑니다</translation>
    </message>
    <message id="How bright the screen is while Lumaro runs">
        <source>How bright the screen is while Lumaro runs</source>
        <translation>Lumaro가 실행되는 동안의 화면 밝기</translation>
    </message>
    <message id="Brightness of the screen">
        <source>Brightness of the screen</source>
        <translation>화면 밝기</translation>
    </message>
    <message id="Pictur&amp;e">
        <source>Pictur&amp;e</source>
        <translation>화면(&amp;X)</translation>
    </message>
    <message id="Co&amp;ntrast:">
        <source>Co&amp;ntrast:</source>
        <translation>대비(&amp;N):</translation>
    </message>
    <message id="&amp;Brightness:">
        <source>&amp;Brightness:</source>
        <translation>밝기(&amp;B):</translation>
    </message>
    <message id="&amp;Gamma:">
        <source>&amp;Gamma:</source>
        <translation>감마(&amp;G):</translation>
    </message>
    <message id="Sa&amp;turation:">
        <source>Sa&amp;turation:</source>
        <translation>채도(&amp;T):</translation>
    </message>
    <message id="&amp;Hue:">
        <source>&amp;Hue:</source>
        <translation>색조(&amp;H):</translation>
    </message>
    <message id="Every movie is shown with it, the one on the screen at once">
        <source>Every movie is shown with it, the one on the screen at once</source>
        <translation>모든 동영상에 적용되며, 화면에 있는 동영상에는 바로 적용됩니다</translation>
    </message>
    <message id="The brightness of this screen can’t be set">
        <source>The brightness of this screen can’t be set</source>
        <translation>이 화면의 밝기는 설정할 수 없습니다</translation>
    </message>
    <message id="Playing">
        <source>Playing</source>
        <translation>재생</translation>
    </message>
    <message id="&amp;Jump by:">
        <source>&amp;Jump by:</source>
        <translation>건너뛰기(&amp;J):</translation>
    </message>
    <message id="How many seconds a jump goes forward or back">
        <source>How many seconds a jump goes forward or back</source>
        <translation>한 번에 앞이나 뒤로 건너뛰는 초</translation>
    </message>
    <message id="seconds">
        <source>seconds</source>
        <translation>초</translation>
    </message>
    <message id="&amp;Keep the volume for the next start">
        <source>&amp;Keep the volume for the next start</source>
        <translation>다음에 시작할 때 음량 유지(&amp;K)</translation>
    </message>
    <message id="Lumaro begins as loud as it ended">
        <source>Lumaro begins as loud as it ended</source>
        <translation>Lumaro가 종료할 때의 음량으로 시작합니다</translation>
    </message>
    <message id="While Another Program Has the Keyboard">
        <source>While Another Program Has the Keyboard</source>
        <translation>다른 프로그램을 사용하는 동안</translation>
    </message>
    <message id="Pa&amp;use the movie">
        <source>Pa&amp;use the movie</source>
        <translation>동영상 일시정지(&amp;U)</translation>
    </message>
    <message id="It goes on when you come back">
        <source>It goes on when you come back</source>
        <translation>돌아오면 이어서 재생합니다</translation>
    </message>
    <message id="&amp;Hide the window">
        <source>&amp;Hide the window</source>
        <translation>창 숨기기(&amp;H)</translation>
    </message>
    <message id="The window is minimized, and comes back with Lumaro">
        <source>The window is minimized, and comes back with Lumaro</source>
        <translation>창이 최소화되고, Lumaro로 돌아오면 다시 나타납니다</translation>
    </message>
    <message id="Go on where a mo&amp;vie was left">
        <source>Go on where a mo&amp;vie was left</source>
        <translation>보던 위치에서 이어서 재생(&amp;V)</translation>
    </message>
    <message id="The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them">
        <source>The places and subtitles of the last thousand movies are remembered, and the menu Open Recent lists them</source>
        <translation>최근 동영상 천 편의 재생 위치와 자막을 기억하며, ‘최근에 연 동영상’ 메뉴에 표시합니다</translation>
    </message>
    <message id="&amp;Playlist">
        <source>&amp;Playlist</source>
        <translation>재생목록(&amp;P)</translation>
    </message>
    <message id="Order">
        <source>Order</source>
        <translation>순서</translation>
    </message>
    <message id="As adde&amp;d">
        <source>As adde&amp;d</source>
        <translation>추가한 순서(&amp;D)</translation>
    </message>
    <message id="Movies play in the order in which they were given">
        <source>Movies play in the order in which they were given</source>
        <translation>지정한 순서대로 동영상을 재생합니다</translation>
    </message>
    <message id="Shu&amp;ffled">
        <source>Shu&amp;ffled</source>
        <translation>무작위(&amp;F)</translation>
    </message>
    <message id="Movies play in an order left to chance">
        <source>Movies play in an order left to chance</source>
        <translation>무작위 순서로 동영상을 재생합니다</translation>
    </message>
    <message id="Sor&amp;ted">
        <source>Sor&amp;ted</source>
        <translation>정렬(&amp;T)</translation>
    </message>
    <message id="Movies play by their names">
        <source>Movies play by their names</source>
        <translation>이름순으로 동영상을 재생합니다</translation>
    </message>
    <message id="Compare &amp;numbers by value">
        <source>Compare &amp;numbers by value</source>
        <translation>숫자를 값으로 비교(&amp;N)</translation>
    </message>
    <message id="Part 2 comes before part 10">
        <source>Part 2 comes before part 10</source>
        <translation>2부가 10부보다 먼저 옵니다</translation>
    </message>
    <message id="By the &amp;whole path">
        <source>By the &amp;whole path</source>
        <translation>전체 경로 기준(&amp;W)</translation>
    </message>
    <message id="Folders stay together">
        <source>Folders stay together</source>
        <translation>같은 폴더의 동영상이 함께 있습니다</translation>
    </message>
    <message id="By the f&amp;ile name only">
        <source>By the f&amp;ile name only</source>
        <translation>파일 이름만 기준(&amp;I)</translation>
    </message>
    <message id="Whatever folders the movies lie in">
        <source>Whatever folders the movies lie in</source>
        <translation>동영상이 어느 폴더에 있든지</translation>
    </message>
    <message id="&amp;Looping:">
        <source>&amp;Looping:</source>
        <translation>반복(&amp;L):</translation>
    </message>
    <message id="What is repeated, from now on and in new playlists">
        <source>What is repeated, from now on and in new playlists</source>
        <translation>지금부터 그리고 새 재생목록에서 반복할 대상</translation>
    </message>
    <message id="&amp;Begin to play what is opened">
        <source>&amp;Begin to play what is opened</source>
        <translation>열면 바로 재생(&amp;B)</translation>
    </message>
    <message id="Else movies are shown and wait">
        <source>Else movies are shown and wait</source>
        <translation>끄면 동영상을 표시하고 기다립니다</translation>
    </message>
    <message id="&amp;Go on with the next movie">
        <source>&amp;Go on with the next movie</source>
        <translation>다음 동영상으로 계속(&amp;G)</translation>
    </message>
    <message id="When one ends, the next in the list plays">
        <source>When one ends, the next in the list plays</source>
        <translation>한 편이 끝나면 목록의 다음 동영상을 재생합니다</translation>
    </message>
    <message id="&amp;Quit at the end of the list">
        <source>&amp;Quit at the end of the list</source>
        <translation>목록이 끝나면 종료(&amp;Q)</translation>
    </message>
    <message id="Unless it is repeated">
        <source>Unless it is repeated</source>
        <translation>반복 중이 아닐 때만</translation>
    </message>
    <message id="&amp;Subtitles">
        <source>&amp;Subtitles</source>
        <translation>자막(&amp;S)</translation>
    </message>
    <message id="Showing">
        <source>Showing</source>
        <translation>표시</translation>
    </message>
    <message id="S&amp;how subtitles">
        <source>S&amp;how subtitles</source>
        <translation>자막 표시(&amp;H)</translation>
    </message>
    <message id="Also for movies opened later">
        <source>Also for movies opened later</source>
        <translation>나중에 여는 동영상에도 적용됩니다</translation>
    </message>
    <message id="Draw mark&amp;up">
        <source>Draw mark&amp;up</source>
        <translation>서식 적용(&amp;U)</translation>
    </message>
    <message id="Italics, colors and places in subtitle files act; else they are left out">
        <source>Italics, colors and places in subtitle files act; else they are left out</source>
        <translation>자막 파일의 기울임꼴, 색, 위치를 적용합니다. 끄면 무시합니다</translation>
    </message>
    <message id="&amp;Find subtitle files beside movies">
        <source>&amp;Find subtitle files beside movies</source>
        <translation>동영상 옆의 자막 파일 찾기(&amp;F)</translation>
    </message>
    <message id="When a movie is opened">
        <source>When a movie is opened</source>
        <translation>동영상을 열 때</translation>
    </message>
    <message id="Files">
        <source>Files</source>
        <translation>파일</translation>
    </message>
    <message id="E&amp;ncoding:">
        <source>E&amp;ncoding:</source>
        <translation>인코딩(&amp;E):</translation>
    </message>
    <message id="How the letters of subtitle files are stored; Automatic tells it by the file">
        <source>How the letters of subtitle files are stored; Automatic tells it by the file</source>
        <translation>자막 파일의 글자가 저장된 방식. ‘자동’은 파일을 보고 판단합니다</translation>
    </message>
    <message id="Encoding of subtitle files">
        <source>Encoding of subtitle files</source>
        <translation>자막 파일의 인코딩</translation>
    </message>
    <message id="Frame ra&amp;te:">
        <source>Frame ra&amp;te:</source>
        <translation>프레임 속도(&amp;T):</translation>
    </message>
    <message id="For subtitle files that count pictures instead of seconds">
        <source>For subtitle files that count pictures instead of seconds</source>
        <translation>초가 아니라 프레임으로 세는 자막 파일용</translation>
    </message>
    <message id="As the movie">
        <source>As the movie</source>
        <translation>동영상과 같게</translation>
    </message>
    <message id="Repair &amp;damaged subtitle files">
        <source>Repair &amp;damaged subtitle files</source>
        <translation>손상된 자막 파일 복구(&amp;D)</translation>
    </message>
    <message id="What is damaged is read as far as it can be">
        <source>What is damaged is read as far as it can be</source>
        <translation>손상된 내용을 가능한 만큼 읽습니다</translation>
    </message>
    <message id="Preferred Languages">
        <source>Preferred Languages</source>
        <translation>선호 언어</translation>
    </message>
    <message id="Preferred languages">
        <source>Preferred languages</source>
        <translation>선호 언어</translation>
    </message>
    <message id="Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.">
        <source>Movies begin with subtitles of the first of these that there are. At first these are the languages of your system.</source>
        <translation>동영상은 이 중 처음으로 있는 언어의 자막으로 시작합니다. 처음에는 시스템의 언어입니다.</translation>
    </message>
    <message id="Add a language">
        <source>Add a language</source>
        <translation>언어 추가</translation>
    </message>
    <message id="Adds a language to the list">
        <source>Adds a language to the list</source>
        <translation>목록에 언어를 추가합니다</translation>
    </message>
    <message id="Hi&amp;gher">
        <source>Hi&amp;gher</source>
        <translation>위로(&amp;G)</translation>
    </message>
    <message id="Moves the language up the list">
        <source>Moves the language up the list</source>
        <translation>목록에서 언어를 위로 옮깁니다</translation>
    </message>
    <message id="Lo&amp;wer">
        <source>Lo&amp;wer</source>
        <translation>아래로(&amp;W)</translation>
    </message>
    <message id="Moves the language down the list">
        <source>Moves the language down the list</source>
        <translation>목록에서 언어를 아래로 옮깁니다</translation>
    </message>
    <message id="Remo&amp;ve">
        <source>Remo&amp;ve</source>
        <translation>제거(&amp;V)</translation>
    </message>
    <message id="Takes the language off the list">
        <source>Takes the language off the list</source>
        <translation>목록에서 언어를 제거합니다</translation>
    </message>
    <message id="&amp;Overlays">
        <source>&amp;Overlays</source>
        <translation>오버레이(&amp;O)</translation>
    </message>
    <message id="Smallest &amp;text size:">
        <source>Smallest &amp;text size:</source>
        <translation>최소 글자 크기(&amp;T):</translation>
    </message>
    <message id="No text over the movie is smaller">
        <source>No text over the movie is smaller</source>
        <translation>동영상 위의 글자는 이보다 작아지지 않습니다</translation>
    </message>
    <message id="&amp;Distance from the edges:">
        <source>&amp;Distance from the edges:</source>
        <translation>가장자리와의 거리(&amp;D):</translation>
    </message>
    <message id="How far what is shown over the movie keeps from the edges of the window">
        <source>How far what is shown over the movie keeps from the edges of the window</source>
        <translation>동영상 위에 표시되는 것과 창 가장자리 사이의 거리</translation>
    </message>
    <message id="Show &amp;feedback">
        <source>Show &amp;feedback</source>
        <translation>피드백 표시(&amp;F)</translation>
    </message>
    <message id="Commands say what they did">
        <source>Commands say what they did</source>
        <translation>명령이 무엇을 했는지 알려 줍니다</translation>
    </message>
    <message id="&amp;Keep the display for the next start">
        <source>&amp;Keep the display for the next start</source>
        <translation>다음에 시작할 때 화면 표시 유지(&amp;K)</translation>
    </message>
    <message id="The on-screen display chosen last is shown again">
        <source>The on-screen display chosen last is shown again</source>
        <translation>마지막으로 선택한 화면 표시를 다시 표시합니다</translation>
    </message>
    <message id="How texts over the movie and the window look">
        <source>How texts over the movie and the window look</source>
        <translation>동영상 위의 글자와 창의 모양</translation>
    </message>
    <message id="Overlay styles">
        <source>Overlay styles</source>
        <translation>오버레이 스타일</translation>
    </message>
    <message id="How subtitles look">
        <source>How subtitles look</source>
        <translation>자막의 모양</translation>
    </message>
    <message id="Subtitle styles">
        <source>Subtitle styles</source>
        <translation>자막 스타일</translation>
    </message>
    <message id="&amp;Advanced">
        <source>&amp;Advanced</source>
        <translation>고급(&amp;A)</translation>
    </message>
    <message id="Pointer">
        <source>Pointer</source>
        <translation>포인터</translation>
    </message>
    <message id="&amp;Hide after:">
        <source>&amp;Hide after:</source>
        <translation>숨기기까지(&amp;H):</translation>
    </message>
    <message id="How long the pointer rests before it is hidden">
        <source>How long the pointer rests before it is hidden</source>
        <translation>포인터가 멈춘 뒤 숨겨질 때까지의 시간</translation>
    </message>
    <message id="New Versions">
        <source>New Versions</source>
        <translation>새 버전</translation>
    </message>
    <message id="The packages of your system keep Lumaro up to date.">
        <source>The packages of your system keep Lumaro up to date.</source>
        <translation>시스템의 패키지가 Lumaro를 최신 상태로 유지합니다.</translation>
    </message>
    <message id="Look for new &amp;versions">
        <source>Look for new &amp;versions</source>
        <translation>새 버전 확인(&amp;V)</translation>
    </message>
    <message id="When Lumaro starts, as often as is set below">
        <source>When Lumaro starts, as often as is set below</source>
        <translation>Lumaro를 시작할 때, 아래에서 정한 주기로</translation>
    </message>
    <message id="Also for &amp;beta versions">
        <source>Also for &amp;beta versions</source>
        <translation>베타 버전도 포함(&amp;B)</translation>
    </message>
    <message id="Versions that are still being tried">
        <source>Versions that are still being tried</source>
        <translation>아직 시험 중인 버전</translation>
    </message>
    <message id="Ho&amp;w often:">
        <source>Ho&amp;w often:</source>
        <translation>주기(&amp;W):</translation>
    </message>
    <message id="How much time passes between two checks">
        <source>How much time passes between two checks</source>
        <translation>확인과 확인 사이의 시간</translation>
    </message>
    <message id="At every start">
        <source>At every start</source>
        <translation>시작할 때마다</translation>
    </message>
    <message id="Daily">
        <source>Daily</source>
        <translation>매일</translation>
    </message>
    <message id="Weekly">
        <source>Weekly</source>
        <translation>매주</translation>
    </message>
    <message id="Every 30 days">
        <source>Every 30 days</source>
        <translation>30일마다</translation>
    </message>
    <message id="Last check:">
        <source>Last check:</source>
        <translation>마지막 확인:</translation>
    </message>
    <message id="Result:">
        <source>Result:</source>
        <translation>결과:</translation>
    </message>
    <message id="Check &amp;Now">
        <source>Check &amp;Now</source>
        <translation>지금 확인(&amp;N)</translation>
    </message>
    <message id="Looks for a new version at once">
        <source>Looks for a new version at once</source>
        <translation>새 버전을 바로 확인합니다</translation>
    </message>
    <message id="Diagnosis">
        <source>Diagnosis</source>
        <translation>진단</translation>
    </message>
    <message id="Remote">
        <source>Remote</source>
        <translation>리모컨</translation>
    </message>
    <message id="Act on in&amp;frared remotes">
        <source>Act on in&amp;frared remotes</source>
        <translation>적외선 리모컨에 반응(&amp;F)</translation>
    </message>
    <message id="Their buttons are the player's alone while it runs">
        <source>Their buttons are the player's alone while it runs</source>
        <translation>실행되는 동안 리모컨 버튼은 이 플레이어 전용입니다</translation>
    </message>
    <message id="&amp;Log what happens">
        <source>&amp;Log what happens</source>
        <translation>로그 기록(&amp;L)</translation>
    </message>
    <message id="Lines for whoever looks for an error, in the system log or the terminal">
        <source>Lines for whoever looks for an error, in the system log or the terminal</source>
        <translation>오류를 찾기 위한 기록. 시스템 로그나 터미널에 남깁니다</translation>
    </message>
    <message id="&amp;Reset Page">
        <source>&amp;Reset Page</source>
        <translation>페이지 초기화(&amp;R)</translation>
    </message>
    <message id="Takes the settings of this page back to what they were at first. Styles have a button of their own.">
        <source>Takes the settings of this page back to what they were at first. Styles have a button of their own.</source>
        <translation>이 페이지의 설정을 처음 상태로 되돌립니다. 스타일에는 별도의 버튼이 있습니다.</translation>
    </message>
    <message id="Undo Reset">
        <source>Undo Reset</source>
        <translation>초기화 취소</translation>
    </message>
    <message id="Brings the settings of this page back (Ctrl+Z)">
        <source>Brings the settings of this page back (Ctrl+Z)</source>
        <translation>이 페이지의 설정을 초기화 전으로 되돌립니다(Ctrl+Z)</translation>
    </message>
    <message id="Find a setting">
        <source>Find a setting</source>
        <translation>설정 찾기</translation>
    </message>
    <message id="Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.">
        <source>Finds a setting by its words (Ctrl+F). Up and Down go to the others, Return to the setting itself.</source>
        <translation>설정을 단어로 찾습니다(Ctrl+F). 위, 아래 화살표는 다른 결과로, Enter는 그 설정으로 이동합니다.</translation>
    </message>
    <message id="PreferencesFound">
        <source>%d of %d</source>
        <translation>%d / %d</translation>
    </message>
    <message id="Nothing found">
        <source>Nothing found</source>
        <translation>찾을 수 없음</translation>
    </message>
    <message id="Close">
        <source>Close</source>
        <translation>닫기</translation>
    </message>
    <message id="More Encodings">
        <source>More Encodings</source>
        <translation>기타 인코딩</translation>
    </message>
    <message id="%d sec.">
        <source>%d sec.</source>
        <translation>%d초</translation>
    </message>
    <message id="%d pt">
        <source>%d pt</source>
        <translation>%d pt</translation>
    </message>
    <message id="Search: %@">
        <source>Search: %@</source>
        <translation>검색: %@</translation>
    </message>
    <message id="Type to search">
        <source>Type to search</source>
        <translation>입력하여 검색</translation>
    </message>
    <message id="Change the preferences">
        <source>Change the preferences</source>
        <translation>환경설정 변경</translation>
    </message>
    <message id="Feedback style">
        <source>Feedback</source>
        <translation>피드백</translation>
    </message>
    <message id="Text style">
        <source>Texts</source>
        <translation>텍스트</translation>
    </message>
    <message id="Picture style">
        <source>Bitmaps</source>
        <translation>비트맵</translation>
    </message>
    <message id="On-screen display style">
        <source>On-Screen Display</source>
        <translation>화면 표시</translation>
    </message>
    <message id="Window style">
        <source>Window</source>
        <translation>창</translation>
    </message>
    <message id="SettingsNotSavedMessage">
        <source>The preferences can’t be saved.</source>
        <translation>환경설정을 저장할 수 없습니다.</translation>
    </message>
    <message id="SettingsNotSavedDetails">
        <source>What you change acts until Lumaro quits. The file “%@” can’t be written.</source>
        <translation>변경 내용은 Lumaro를 종료할 때까지 적용됩니다. 파일 ‘%@’에 쓸 수 없습니다.</translation>
    </message>
    <message id="SettingsDamagedMessage">
        <source>The preferences are damaged.</source>
        <translation>환경설정이 손상되었습니다.</translation>
    </message>
    <message id="SettingsDamagedDetails">
        <source>Lumaro begins with new ones. The damaged file is kept as “%@”.</source>
        <translation>Lumaro가 새 환경설정으로 시작합니다. 손상된 파일은 ‘%@’(으)로 보관됩니다.</translation>
    </message>
    <message id="SettingsUnreadableMessage">
        <source>The preferences can’t be read.</source>
        <translation>환경설정을 읽을 수 없습니다.</translation>
    </message>
    <message id="SettingsUnreadableDetails">
        <source>The file “%@” stays as it is. What you change acts until Lumaro quits.</source>
        <translation>파일 ‘%@’은(는) 그대로 유지됩니다. 변경 내용은 Lumaro를 종료할 때까지 적용됩니다.</translation>
    </message>
    <message id="PlacesDamagedMessage">
        <source>The remembered places in movies are damaged; their file was put aside.</source>
        <translation>기억한 재생 위치가 손상되어 그 파일을 따로 보관했습니다.</translation>
    </message>
    <message id="PlacesUnreadableMessage">
        <source>The remembered places in movies can’t be read.</source>
        <translation>기억한 재생 위치를 읽을 수 없습니다.</translation>
    </message>
    <message id="PlacesOfLaterVersionMessage">
        <source>A later version of Lumaro remembers places in movies here; this one can’t.</source>
        <translation>이 재생 위치는 Lumaro의 이후 버전이 기억한 것이어서 이 버전에서는 사용할 수 없습니다.</translation>
    </message>
    <message id="Short&amp;cuts">
        <source>Short&amp;cuts</source>
        <translation>단축키(&amp;C)</translation>
    </message>
    <message id="Searc&amp;h:">
        <source>Searc&amp;h:</source>
        <translation>검색(&amp;E):</translation>
    </message>
    <message id="Words of a command, or its key">
        <source>Words of a command, or its key</source>
        <translation>명령의 단어 또는 키</translation>
    </message>
    <message id="The commands by menu; bold ones have keys of your own">
        <source>The commands by menu; bold ones have keys of your own</source>
        <translation>메뉴별 명령. 굵은 글씨는 직접 정한 키가 있는 명령입니다</translation>
    </message>
    <message id="Commands and their keys">
        <source>Commands and their keys</source>
        <translation>명령과 키</translation>
    </message>
    <message id="Command">
        <source>Command</source>
        <translation>명령</translation>
    </message>
    <message id="Keys">
        <source>Keys</source>
        <translation>키</translation>
    </message>
    <message id="&amp;Keys of the command:">
        <source>&amp;Keys of the command:</source>
        <translation>명령의 키(&amp;K):</translation>
    </message>
    <message id="The keys of the command that is marked">
        <source>The keys of the command that is marked</source>
        <translation>선택한 명령의 키</translation>
    </message>
    <message id="A&amp;dd Key...">
        <source>A&amp;dd Key...</source>
        <translation>키 추가(&amp;D)…</translation>
    </message>
    <message id="Then press the key, with Ctrl, Alt, Shift or Super if you like">
        <source>Then press the key, with Ctrl, Alt, Shift or Super if you like</source>
        <translation>그런 다음 키를 누르세요. Ctrl, Alt, Shift, Super와 함께 눌러도 됩니다</translation>
    </message>
    <message id="Remo&amp;ve Key">
        <source>Remo&amp;ve Key</source>
        <translation>키 제거(&amp;V)</translation>
    </message>
    <message id="The marked key means nothing any more">
        <source>The marked key means nothing any more</source>
        <translation>선택한 키가 더 이상 아무 일도 하지 않습니다</translation>
    </message>
    <message id="Rese&amp;t Command">
        <source>Rese&amp;t</source>
        <translation>초기화(&amp;T)</translation>
    </message>
    <message id="The command gets back the keys that Lumaro came with">
        <source>The command gets back the keys that Lumaro came with</source>
        <translation>이 명령의 키를 Lumaro의 기본 키로 되돌립니다</translation>
    </message>
    <message id="Reset A&amp;ll Keys">
        <source>Reset A&amp;ll</source>
        <translation>모두 초기화(&amp;L)</translation>
    </message>
    <message id="Every command gets back the keys that Lumaro came with">
        <source>Every command gets back the keys that Lumaro came with</source>
        <translation>모든 명령의 키를 Lumaro의 기본 키로 되돌립니다</translation>
    </message>
    <message id="&amp;Undo Key Change">
        <source>&amp;Undo</source>
        <translation>실행 취소(&amp;U)</translation>
    </message>
    <message id="Takes back the last change of a key">
        <source>Takes back the last change of a key</source>
        <translation>마지막 키 변경을 취소합니다</translation>
    </message>
    <message id="Take &amp;It Over">
        <source>Take &amp;It Over</source>
        <translation>이 명령에 지정(&amp;I)</translation>
    </message>
    <message id="The key means the marked command from now on">
        <source>The key means the marked command from now on</source>
        <translation>이제부터 이 키는 선택한 명령에 쓰입니다</translation>
    </message>
    <message id="Ca&amp;ncel Key">
        <source>Ca&amp;ncel</source>
        <translation>취소(&amp;N)</translation>
    </message>
    <message id="The key keeps its meaning">
        <source>The key keeps its meaning</source>
        <translation>키의 쓰임이 그대로 유지됩니다</translation>
    </message>
    <message id="Press a key for “%@”. Esc goes back.">
        <source>Press a key for “%@”. Esc goes back.</source>
        <translation>‘%@’에 쓸 키를 누르세요. Esc를 누르면 돌아갑니다.</translation>
    </message>
    <message id="Lumaro does not know this key.">
        <source>Lumaro does not know this key.</source>
        <translation>Lumaro가 이 키를 알지 못합니다.</translation>
    </message>
    <message id="Esc closes windows and ends Lumaro; that can’t be changed.">
        <source>Esc closes windows and ends Lumaro; that can’t be changed.</source>
        <translation>Esc는 창을 닫고 Lumaro를 종료하는 키이며, 바꿀 수 없습니다.</translation>
    </message>
    <message id="%@ belongs to the desktop.">
        <source>%@ belongs to the desktop.</source>
        <translation>%@ 키는 데스크톱에서 사용합니다.</translation>
    </message>
    <message id="%@ means “%@” already.">
        <source>%@ means “%@” already.</source>
        <translation>%@ 키는 이미 ‘%@’에 지정되어 있습니다.</translation>
    </message>
    <message id="“%@” has as many keys as it can have; remove one first.">
        <source>“%@” has as many keys as it can have; remove one first.</source>
        <translation>‘%@’에는 더 이상 키를 지정할 수 없습니다. 먼저 하나를 제거하세요.</translation>
    </message>
    <message id="%@ means “%@” now.">
        <source>%@ means “%@” now.</source>
        <translation>%@ 키를 ‘%@’에 지정했습니다.</translation>
    </message>
    <message id="Stop">
        <source>Stop</source>
        <translation>정지</translation>
    </message>
    <message id="Next Looping">
        <source>Next Looping</source>
        <translation>다음 반복 방식</translation>
    </message>
    <message id="Previous Looping">
        <source>Previous Looping</source>
        <translation>이전 반복 방식</translation>
    </message>
    <message id="Show Playlist">
        <source>Show Playlist</source>
        <translation>재생목록 보기</translation>
    </message>
    <message id="Next Subtitles">
        <source>Next Subtitles</source>
        <translation>다음 자막</translation>
    </message>
    <message id="Previous Subtitles">
        <source>Previous Subtitles</source>
        <translation>이전 자막</translation>
    </message>
    <message id="No Subtitles">
        <source>No Subtitles</source>
        <translation>자막 없음</translation>
    </message>
    <message id="Open a movie from the menu">
        <source>Open a movie from the menu</source>
        <translation>메뉴에서 동영상 열기</translation>
    </message>
    <message id="or drop files here.">
        <source>or drop files here.</source>
        <translation>또는 파일을 여기에 놓으세요.</translation>
    </message>
    <message id="Keys of the command">
        <source>Keys of the command</source>
        <translation>명령의 키</translation>
    </message>
</context>
<context>
    <name>Opening</name>
    <message id="Open pages of video sites with &amp;yt-dlp">
        <source>Open pages of video sites with &amp;yt-dlp</source>
        <translation>동영상 사이트의 페이지를 yt-dlp로 열기(&amp;Y)</translation>
    </message>
    <message id="An address that is no movie is asked of the program yt-dlp, where it is installed">
        <source>An address that is no movie is asked of the program yt-dlp, where it is installed</source>
        <translation>동영상이 아닌 주소는 yt-dlp 프로그램이 설치되어 있으면 그 프로그램에 묻습니다</translation>
    </message>
    <message id="Open Movies">
        <source>Open Movies</source>
        <translation>동영상 열기</translation>
    </message>
    <message id="Open Folder">
        <source>Open Folder</source>
        <translation>폴더 열기</translation>
    </message>
    <message id="Open Folder...">
        <source>Open Folder...</source>
        <translation>폴더 열기…</translation>
    </message>
    <message id="Movies and Sound">
        <source>Movies and Sound</source>
        <translation>동영상과 소리</translation>
    </message>
    <message id="All Files">
        <source>All Files</source>
        <translation>모든 파일</translation>
    </message>
    <message id="Add to Playlist">
        <source>Add to Playlist</source>
        <translation>재생목록에 추가</translation>
    </message>
    <message id="Open folders of movies">
        <source>Open folders of movies</source>
        <translation>동영상 폴더 열기</translation>
    </message>
    <message id="Open an address, several addresses">
        <source>Open an address, several addresses</source>
        <translation>주소 하나 또는 여러 개 열기</translation>
    </message>
    <message id="Open URL">
        <source>Open URL</source>
        <translation>URL 열기</translation>
    </message>
    <message id="Open URLs">
        <source>Open URLs</source>
        <translation>여러 URL 열기</translation>
    </message>
    <message id="&amp;Address or path of a movie:">
        <source>&amp;Address or path of a movie:</source>
        <translation>동영상의 주소 또는 경로(&amp;A):</translation>
    </message>
    <message id="&amp;Addresses or paths of movies, one in each line:">
        <source>&amp;Addresses or paths of movies, one in each line:</source>
        <translation>동영상의 주소 또는 경로, 한 줄에 하나씩(&amp;A):</translation>
    </message>
    <message id="Address">
        <source>Address</source>
        <translation>주소</translation>
    </message>
    <message id="Addresses">
        <source>Addresses</source>
        <translation>주소</translation>
    </message>
    <message id="Add to &amp;Playlist">
        <source>Add to &amp;Playlist</source>
        <translation>재생목록에 추가(&amp;P)</translation>
    </message>
    <message id="What plays now goes on; holding Alt does the same">
        <source>What plays now goes on; holding Alt does the same</source>
        <translation>지금 재생 중인 동영상은 계속됩니다. Alt를 누르고 있어도 같습니다</translation>
    </message>
    <message id="Replace the Playlist">
        <source>Replace the Playlist</source>
        <translation>재생목록 바꾸기</translation>
    </message>
    <message id="Add to the Playlist">
        <source>Add to the Playlist</source>
        <translation>재생목록에 추가</translation>
    </message>
    <message id="OpenErrorSubtitles">
        <source>It holds subtitles. They are shown by themselves when they lie beside their movie and begin with its name.</source>
        <translation>자막 파일입니다. 자막은 동영상과 같은 곳에 있고 동영상의 이름으로 시작하면 저절로 표시됩니다.</translation>
    </message>
    <message id="OpenErrorNotAnAddress">
        <source>It is neither an address nor the path of a file.</source>
        <translation>주소도 파일의 경로도 아닙니다.</translation>
    </message>
    <message id="Resumed at %@">
        <source>Resumed at %@</source>
        <translation>%@부터 이어서 재생</translation>
    </message>
</context>
<context>
    <name>Watching</name>
    <message id="Speed">
        <source>Speed</source>
        <translation>속도</translation>
    </message>
    <message id="Speed: %@">
        <source>Speed: %@</source>
        <translation>속도: %@</translation>
    </message>
    <message id="%@x">
        <source>%@x</source>
        <translation>%@×</translation>
    </message>
    <message id="Slower">
        <source>Slower</source>
        <translation>느리게</translation>
    </message>
    <message id="Faster">
        <source>Faster</source>
        <translation>빠르게</translation>
    </message>
    <message id="Half as Fast">
        <source>Half as Fast</source>
        <translation>절반 속도</translation>
    </message>
    <message id="Twice as Fast">
        <source>Twice as Fast</source>
        <translation>두 배 속도</translation>
    </message>
    <message id="Original Speed">
        <source>Original Speed</source>
        <translation>원래 속도</translation>
    </message>
    <message id="Slower and faster, the pitch kept; half and twice as fast">
        <source>Slower and faster, the pitch kept; half and twice as fast</source>
        <translation>음높이를 유지하며 느리게, 빠르게. 절반 속도, 두 배 속도</translation>
    </message>
    <message id="As fast as the movie was made">
        <source>As fast as the movie was made</source>
        <translation>동영상의 원래 속도</translation>
    </message>
    <message id="Chapters">
        <source>Chapters</source>
        <translation>챕터</translation>
    </message>
    <message id="No Chapters">
        <source>No Chapters</source>
        <translation>챕터 없음</translation>
    </message>
    <message id="Chapter %d of %d">
        <source>Chapter %d of %d</source>
        <translation>챕터 %d / %d</translation>
    </message>
    <message id="Chapter %d of %d: %@">
        <source>Chapter %d of %d: %@</source>
        <translation>챕터 %d / %d: %@</translation>
    </message>
    <message id="Next Chapter">
        <source>Next Chapter</source>
        <translation>다음 챕터</translation>
    </message>
    <message id="Previous Chapter">
        <source>Previous Chapter</source>
        <translation>이전 챕터</translation>
    </message>
    <message id="Next and previous chapter">
        <source>Next and previous chapter</source>
        <translation>다음, 이전 챕터</translation>
    </message>
    <message id="Save Still">
        <source>Save Still</source>
        <translation>스틸 사진 저장</translation>
    </message>
    <message id="Save the picture as a file">
        <source>Save the picture as a file</source>
        <translation>화면을 파일로 저장</translation>
    </message>
    <message id="Still: %@">
        <source>Still: %@</source>
        <translation>스틸 사진: %@</translation>
    </message>
    <message id="No Picture to Save">
        <source>No Picture to Save</source>
        <translation>저장할 화면 없음</translation>
    </message>
    <message id="Can’t save the still in %@">
        <source>Can’t save the still in %@</source>
        <translation>스틸 사진을 저장할 수 없음: %@</translation>
    </message>
    <message id="Go to Time">
        <source>Go to Time</source>
        <translation>시간으로 이동</translation>
    </message>
    <message id="Go to Time...">
        <source>Go to Time...</source>
        <translation>시간으로 이동…</translation>
    </message>
    <message id="Go to a time">
        <source>Go to a time</source>
        <translation>지정한 시간으로 이동</translation>
    </message>
    <message id="Time in the movie:">
        <source>Time in the movie:</source>
        <translation>동영상의 시간:</translation>
    </message>
    <message id="Time in the movie, up to %@:">
        <source>Time in the movie, up to %@:</source>
        <translation>동영상의 시간(최대 %@):</translation>
    </message>
    <message id="Seconds, minutes or hours: 90, 1:30 or 1:23:45.6">
        <source>Seconds, minutes or hours: 90, 1:30 or 1:23:45.6</source>
        <translation>초, 분, 시: 90, 1:30 또는 1:23:45.6</translation>
    </message>
    <message id="Time: %@">
        <source>Time: %@</source>
        <translation>시간: %@</translation>
    </message>
    <message id="Repeat Section">
        <source>Repeat Section</source>
        <translation>구간 반복</translation>
    </message>
    <message id="Repeat from Here">
        <source>Repeat from Here</source>
        <translation>여기부터 반복</translation>
    </message>
    <message id="Repeat until Here">
        <source>Repeat until Here</source>
        <translation>여기까지 반복</translation>
    </message>
    <message id="Repeat a section: its beginning, its end, no more">
        <source>Repeat a section: its beginning, its end, no more</source>
        <translation>구간 반복: 시작, 끝, 해제</translation>
    </message>
    <message id="Repeat: Off">
        <source>Repeat: Off</source>
        <translation>구간 반복: 끔</translation>
    </message>
    <message id="Repeat from %@">
        <source>Repeat from %@</source>
        <translation>%@부터 반복</translation>
    </message>
    <message id="Repeat: %@ – %@">
        <source>Repeat: %@ – %@</source>
        <translation>구간 반복: %@ – %@</translation>
    </message>
    <message id="Aspect">
        <source>Aspect</source>
        <translation>화면 비율</translation>
    </message>
    <message id="Next Aspect">
        <source>Next Aspect</source>
        <translation>다음 화면 비율</translation>
    </message>
    <message id="Aspect: automatic, 4:3, 16:9, 2.35:1">
        <source>Aspect: automatic, 4:3, 16:9, 2.35:1</source>
        <translation>화면 비율: 자동, 4:3, 16:9, 2.35:1</translation>
    </message>
    <message id="Aspect: %@">
        <source>Aspect: %@</source>
        <translation>화면 비율: %@</translation>
    </message>
    <message id="2.35:1">
        <source>2.35:1</source>
        <translation>2.35:1</translation>
    </message>
    <message id="Deinterlacing">
        <source>Deinterlacing</source>
        <translation>디인터레이스</translation>
    </message>
    <message id="Next Deinterlacing">
        <source>Next Deinterlacing</source>
        <translation>다음 디인터레이스</translation>
    </message>
    <message id="Deinterlacing: automatic, on, off">
        <source>Deinterlacing: automatic, on, off</source>
        <translation>디인터레이스: 자동, 켬, 끔</translation>
    </message>
    <message id="Deinterlacing: %@">
        <source>Deinterlacing: %@</source>
        <translation>디인터레이스: %@</translation>
    </message>
    <message id="Picture Colors">
        <source>Picture Colors</source>
        <translation>화면 색</translation>
    </message>
    <message id="Less Contrast">
        <source>Less Contrast</source>
        <translation>대비 낮추기</translation>
    </message>
    <message id="More Contrast">
        <source>More Contrast</source>
        <translation>대비 높이기</translation>
    </message>
    <message id="Darker">
        <source>Darker</source>
        <translation>어둡게</translation>
    </message>
    <message id="Brighter">
        <source>Brighter</source>
        <translation>밝게</translation>
    </message>
    <message id="Less Gamma">
        <source>Less Gamma</source>
        <translation>감마 낮추기</translation>
    </message>
    <message id="More Gamma">
        <source>More Gamma</source>
        <translation>감마 높이기</translation>
    </message>
    <message id="Less Saturation">
        <source>Less Saturation</source>
        <translation>채도 낮추기</translation>
    </message>
    <message id="More Saturation">
        <source>More Saturation</source>
        <translation>채도 높이기</translation>
    </message>
    <message id="Hue towards Red">
        <source>Hue towards Red</source>
        <translation>색조를 빨강 쪽으로</translation>
    </message>
    <message id="Hue towards Green">
        <source>Hue towards Green</source>
        <translation>색조를 초록 쪽으로</translation>
    </message>
    <message id="Contrast, brightness, gamma, saturation, hue: less and more">
        <source>Contrast, brightness, gamma, saturation, hue: less and more</source>
        <translation>대비, 밝기, 감마, 채도, 색조 낮추기와 높이기</translation>
    </message>
    <message id="The colors as the movie has them">
        <source>The colors as the movie has them</source>
        <translation>동영상의 원래 색</translation>
    </message>
    <message id="Original Colors">
        <source>Original Colors</source>
        <translation>원래 색</translation>
    </message>
    <message id="Contrast: %@">
        <source>Contrast: %@</source>
        <translation>대비: %@</translation>
    </message>
    <message id="Brightness: %@">
        <source>Brightness: %@</source>
        <translation>밝기: %@</translation>
    </message>
    <message id="Gamma: %@">
        <source>Gamma: %@</source>
        <translation>감마: %@</translation>
    </message>
    <message id="Saturation: %@">
        <source>Saturation: %@</source>
        <translation>채도: %@</translation>
    </message>
    <message id="Hue: %@">
        <source>Hue: %@</source>
        <translation>색조: %@</translation>
    </message>
    <message id="Crop Black Bars">
        <source>Crop Black Bars</source>
        <translation>검은 띠 자르기</translation>
    </message>
    <message id="Cut black bars off">
        <source>Cut black bars off</source>
        <translation>검은 띠 자르기</translation>
    </message>
    <message id="Crop: On">
        <source>Crop: On</source>
        <translation>검은 띠 자르기: 켬</translation>
    </message>
    <message id="Crop: Off">
        <source>Crop: Off</source>
        <translation>검은 띠 자르기: 끔</translation>
    </message>
    <message id="No Black Bars">
        <source>No Black Bars</source>
        <translation>검은 띠 없음</translation>
    </message>
    <message id="Turn by 90°">
        <source>Turn by 90°</source>
        <translation>90° 회전</translation>
    </message>
    <message id="Turn and mirror the picture">
        <source>Turn and mirror the picture</source>
        <translation>화면 회전과 좌우 반전</translation>
    </message>
    <message id="Turned by %d°">
        <source>Turned by %d°</source>
        <translation>%d° 회전됨</translation>
    </message>
    <message id="Mirror">
        <source>Mirror</source>
        <translation>좌우 반전</translation>
    </message>
    <message id="Mirror: On">
        <source>Mirror: On</source>
        <translation>좌우 반전: 켬</translation>
    </message>
    <message id="Mirror: Off">
        <source>Mirror: Off</source>
        <translation>좌우 반전: 끔</translation>
    </message>
</context>
<context>
    <name>Tracks</name>
    <message id="Audio Tracks">
        <source>Audio Tracks</source>
        <translation>오디오 트랙</translation>
    </message>
    <message id="Audio: %@">
        <source>Audio: %@</source>
        <translation>오디오: %@</translation>
    </message>
    <message id="Next Audio Track">
        <source>Next Audio Track</source>
        <translation>다음 오디오 트랙</translation>
    </message>
    <message id="Previous Audio Track">
        <source>Previous Audio Track</source>
        <translation>이전 오디오 트랙</translation>
    </message>
    <message id="Next and previous audio track">
        <source>Next and previous audio track</source>
        <translation>다음, 이전 오디오 트랙</translation>
    </message>
    <message id="Mono">
        <source>Mono</source>
        <translation>모노</translation>
    </message>
    <message id="Stereo">
        <source>Stereo</source>
        <translation>스테레오</translation>
    </message>
    <message id="%d channels">
        <source>%d channels</source>
        <translation>%d채널</translation>
    </message>
    <message id="Track %d">
        <source>Track %d</source>
        <translation>트랙 %d</translation>
    </message>
    <message id="forced">
        <source>forced</source>
        <translation>강제</translation>
    </message>
    <message id="Second Subtitles">
        <source>Second Subtitles</source>
        <translation>두 번째 자막</translation>
    </message>
    <message id="Next Second Subtitles">
        <source>Next Second Subtitles</source>
        <translation>다음 두 번째 자막</translation>
    </message>
    <message id="Second subtitles: %@">
        <source>Second subtitles: %@</source>
        <translation>두 번째 자막: %@</translation>
    </message>
    <message id="Second subtitles at the top: next track, none">
        <source>Second subtitles at the top: next track, none</source>
        <translation>위쪽의 두 번째 자막: 다음 트랙, 없음</translation>
    </message>
    <message id="SecondSubtitlesRefused">
        <source>Only texts can be shown as second subtitles, and no track twice</source>
        <translation>두 번째 자막으로는 텍스트만 표시할 수 있고, 같은 트랙을 두 번 표시할 수 없습니다</translation>
    </message>
    <message id="Quality">
        <source>Quality</source>
        <translation>화질</translation>
    </message>
    <message id="Quality: %@">
        <source>Quality: %@</source>
        <translation>화질: %@</translation>
    </message>
    <message id="Next Quality">
        <source>Next Quality</source>
        <translation>다음 화질</translation>
    </message>
    <message id="Next quality of a stream">
        <source>Next quality of a stream</source>
        <translation>스트림의 다음 화질</translation>
    </message>
    <message id="Only One Quality">
        <source>Only One Quality</source>
        <translation>화질이 하나뿐입니다</translation>
    </message>
    <message id="Go to Live">
        <source>Go to Live</source>
        <translation>실시간으로 이동</translation>
    </message>
    <message id="Go to what is live now">
        <source>Go to what is live now</source>
        <translation>지금 실시간인 곳으로 이동</translation>
    </message>
    <message id="Not a Live Stream">
        <source>Not a Live Stream</source>
        <translation>실시간 방송이 아닙니다</translation>
    </message>
    <message id="Live">
        <source>Live</source>
        <translation>실시간</translation>
    </message>
    <message id="Behind Live">
        <source>Behind Live</source>
        <translation>실시간보다 늦음</translation>
    </message>
    <message id="Reconnecting...">
        <source>Reconnecting...</source>
        <translation>다시 연결하는 중…</translation>
    </message>
    <message id="Connection Lost">
        <source>Connection Lost</source>
        <translation>연결이 끊어짐</translation>
    </message>
</context>
<context>
    <name>Information</name>
    <message id="Information">
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message id="Show or hide the information about the movie">
        <source>Show or hide the information about the movie</source>
        <translation>동영상 정보 표시 또는 숨기기</translation>
    </message>
    <message id="Copy">
        <source>Copy</source>
        <translation>복사</translation>
    </message>
    <message id="No movie">
        <source>No movie</source>
        <translation>동영상 없음</translation>
    </message>
    <message id="Name">
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message id="Container">
        <source>Container</source>
        <translation>컨테이너</translation>
    </message>
    <message id="Duration">
        <source>Duration</source>
        <translation>길이</translation>
    </message>
    <message id="File size">
        <source>File size</source>
        <translation>파일 크기</translation>
    </message>
    <message id="Bit rate">
        <source>Bit rate</source>
        <translation>비트 전송률</translation>
    </message>
    <message id="Sound">
        <source>Sound</source>
        <translation>소리</translation>
    </message>
    <message id="Tracks">
        <source>Tracks</source>
        <translation>트랙</translation>
    </message>
    <message id="Frames">
        <source>Frames</source>
        <translation>프레임</translation>
    </message>
    <message id="Buffer">
        <source>Buffer</source>
        <translation>버퍼</translation>
    </message>
    <message id="Codec">
        <source>Codec</source>
        <translation>코덱</translation>
    </message>
    <message id="Decoder">
        <source>Decoder</source>
        <translation>디코더</translation>
    </message>
    <message id="Software">
        <source>Software</source>
        <translation>소프트웨어</translation>
    </message>
    <message id="Hardware (%@)">
        <source>Hardware (%@)</source>
        <translation>하드웨어(%@)</translation>
    </message>
    <message id="Size">
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message id="%@, displayed as %@">
        <source>%@, displayed as %@</source>
        <translation>%@, 표시 크기 %@</translation>
    </message>
    <message id="Frame rate">
        <source>Frame rate</source>
        <translation>프레임 속도</translation>
    </message>
    <message id="%@ a second">
        <source>%@ a second</source>
        <translation>초당 %@</translation>
    </message>
    <message id="%@ a second, now %@">
        <source>%@ a second, now %@</source>
        <translation>초당 %@, 현재 %@</translation>
    </message>
    <message id="Dynamic range">
        <source>Dynamic range</source>
        <translation>다이내믹 레인지</translation>
    </message>
    <message id="Standard">
        <source>Standard</source>
        <translation>표준</translation>
    </message>
    <message id="Color">
        <source>Color</source>
        <translation>색</translation>
    </message>
    <message id="Channels">
        <source>Channels</source>
        <translation>채널</translation>
    </message>
    <message id="Sample rate">
        <source>Sample rate</source>
        <translation>샘플 속도</translation>
    </message>
    <message id="Output">
        <source>Output</source>
        <translation>출력</translation>
    </message>
    <message id="%@ (playing)">
        <source>%@ (playing)</source>
        <translation>%@ (재생 중)</translation>
    </message>
    <message id="Subtitles shown">
        <source>Subtitles shown</source>
        <translation>표시한 자막</translation>
    </message>
    <message id="Shown">
        <source>Shown</source>
        <translation>표시됨</translation>
    </message>
    <message id="Late">
        <source>Late</source>
        <translation>늦음</translation>
    </message>
    <message id="Left out">
        <source>Left out</source>
        <translation>건너뜀</translation>
    </message>
    <message id="Ready">
        <source>Ready</source>
        <translation>준비됨</translation>
    </message>
    <message id="%@ s">
        <source>%@ s</source>
        <translation>%@초</translation>
    </message>
    <message id="Filling">
        <source>Filling</source>
        <translation>채우는 속도</translation>
    </message>
</context>
</TS>
