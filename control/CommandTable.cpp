// SPDX-License-Identifier: GPL-3.0-or-later
// The table of commands. A new command is one row here and one function of QVMovieController that the row names.
#include "control/Commands.h"
#include "control/QVMovieController.h"
#include "control/SoundCommandTable.h"
#include "control/SpeedSteps.h"
#include "control/SubtitleCommandTable.h"
#include "platform/desktop/Power.h"
#include "platform/window/Events.h"
#include "playback/MovieSizing.h"
#include "playlist/Arrangement.h"

#include <algorithm>
#include <array>

namespace fnkey = platform::functionKey;

namespace {

/// One that has a key, and no place in a menu of the table's.
constexpr Command byKey(const Operation& operation, std::string_view name, std::int32_t argument, const CommandKey& key,
                        Section section, std::string_view help, std::string_view title) {
    return {.name = name,
            .operation = operation,
            .argument = argument,
            .keys = {{key}},
            .section = section,
            .help = help,
            .title = title};
}

constexpr std::string_view colorsHelp = "Contrast, brightness, gamma, saturation, hue: less and more";
constexpr std::string_view speedHelp = "Slower and faster, the pitch kept; half and twice as fast";

} // namespace

/// The controller's friend: its operations are nobody else's to call.
struct CommandTable {
    using Self = QVMovieController;
    using enum KeyRepeat;
    using enum KeyTaker;

    static constexpr std::uint32_t none = 0;
    static constexpr std::uint32_t shift = platform::modifier::shift;
    static constexpr std::uint32_t control = platform::modifier::control;
    static constexpr std::uint32_t option = platform::modifier::option;
    static constexpr std::uint32_t command = platform::modifier::command;

    // Operations of several commands.
    static constexpr Operation openURL{"doOpenURL", &Self::doOpenURL};
    static constexpr Operation power{"power", &Self::power};
    static constexpr Operation changeSize{"changeSize", &Self::changeSize, &Self::validateSize, Feedback::no};
    static constexpr Operation toggleController{"toggleController", &Self::toggleController, nullptr, Feedback::no};
    static constexpr Operation cycleDisplays{"cycleDisplays", &Self::cycleDisplays};
    static constexpr Operation fastForwardRewind{"fastForwardRewind", &Self::fastForwardRewind, &Self::validateMotion};
    static constexpr Operation step{"step", &Self::step};
    static constexpr Operation jump{"jump", &Self::jump};
    static constexpr Operation beginningEnd{"beginningEnd", &Self::beginningEnd};
    static constexpr Operation playPrevNext{"playPrevNext", &Self::playPrevNext, &Self::validatePrevNext};
    static constexpr Operation changeLooping{"changeLooping", &Self::changeLooping, &Self::validateLooping};
    static constexpr Operation toggleLooping{"toggleLooping", &Self::toggleLooping};
    static constexpr Operation switchScreen{"switchScreen", &Self::switchScreen};

    static constexpr Operation changeSpeed{changeSpeedOperation, &Self::changeSpeed, &Self::validateSpeed};
    static constexpr Operation adjustPicture{adjustPictureOperation, &Self::adjustPicture, &Self::validateAdjusting};
    static constexpr Operation stepChapter{"stepChapter", &Self::stepChapter, &Self::validateChapter};

    static constexpr Command rows[] = {
        {.name = "open",
         .operation = {"doOpen", &Self::doOpen},
         .keys = {{{u'o', control, consumed, KeyTaker::menu}}},
         .section = Section::file,
         .menu = {"Open..."},
         .help = "Open movies"},
        {.name = "open-folder",
         .operation = {"doOpenFolder", &Self::doOpenFolder},
         .keys = {{{u'o', control | shift, consumed, KeyTaker::menu}}},
         .section = Section::file,
         .menu = {"Open Folder..."},
         .help = "Open folders of movies"},
        // The argument is the panel's type.
        {.name = "open-url",
         .operation = openURL,
         .argument = 0,
         .keys = {{{u'u', control, consumed, KeyTaker::menu}}},
         .section = Section::file,
         .menu = {"Open URL..."},
         .help = "Open an address, several addresses"},
        {.name = "open-urls",
         .operation = openURL,
         .argument = 1,
         .keys = {{{u'u', control | shift, consumed, KeyTaker::menu}}},
         .section = Section::file,
         .menu = {"Open URLs..."},
         .help = "Open an address, several addresses"},
        // The argument is a position in its menu, which is filled when it opens.
        {.name = "open-recent",
         .operation = {openRecentOperation, &Self::openRecent},
         .section = Section::file,
         .menu = {.title = "Open Recent", .separator = Separator::after, .opens = MenuPlace::Opens::menu}},
        {.name = "clear-recent",
         .operation = {clearRecentOperation, &Self::clearRecent, &Self::validateClearRecent},
         .section = Section::file},
        {.name = "save-playlist",
         .operation = {"savePlaylist", &Self::savePlaylist, &Self::validateSavePlaylist},
         .keys = {{{u's', control, consumed, KeyTaker::menu}}},
         .section = Section::file,
         .menu = {"Save Playlist...", Separator::after},
         .help = "Save the playlist to a file"},
        {.name = "preferences",
         .operation = {"showPreferences", &Self::showPreferences},
         .keys = {{{u',', control, consumed, KeyTaker::menu}}},
         .section = Section::file,
         .menu = {"Preferences...", Separator::after},
         .help = "Change the preferences"},
        {.name = "quit",
         .action = action::quit,
         .operation = {"quit", &Self::quit},
         .confirmation = "Quit",
         .keys = {{{u'q', control, consumed, KeyTaker::menu}, {fnkey::escape, none, acts, window}}},
         .section = Section::file,
         .menu = {"Quit"},
         .help = "Quit"},
        {.name = "sleep",
         .action = action::sleep,
         .operation = {"sleep", &Self::sleep},
         .confirmation = "Sleep",
         .section = Section::file,
         .title = "Sleep"},
        // For whoever gives them keys. The argument is the platform::PowerCommand.
        {.name = "restart",
         .operation = power,
         .argument = static_cast<std::int32_t>(platform::PowerCommand::restart),
         .confirmation = "Restart the Computer",
         .section = Section::file,
         .title = "Restart the Computer"},
        {.name = "shut-down",
         .operation = power,
         .argument = static_cast<std::int32_t>(platform::PowerCommand::shutDown),
         .confirmation = "Shut Down the Computer",
         .section = Section::file,
         .title = "Shut Down the Computer"},
        {.name = "log-out",
         .operation = power,
         .argument = static_cast<std::int32_t>(platform::PowerCommand::logOut),
         .confirmation = "Log Out",
         .section = Section::file,
         .title = "Log Out"},

        {.name = "half-size",
         .operation = changeSize,
         .argument = movieSize::half,
         .confirmation = "Size: Half",
         .keys = {{{u'0', none, passedOn}}},
         .section = Section::movie,
         .menu = {"Half Size"},
         .help = "Half, normal and double size"},
        {.name = "normal-size",
         .operation = changeSize,
         .argument = movieSize::normal,
         .confirmation = "Size: Normal",
         .keys = {{{u'1', none, passedOn}}},
         .section = Section::movie,
         .menu = {"Normal Size"},
         .help = "Half, normal and double size"},
        {.name = "double-size",
         .operation = changeSize,
         .argument = movieSize::twice,
         .confirmation = "Size: Double",
         .keys = {{{u'2', none, passedOn}}},
         .section = Section::movie,
         .menu = {"Double Size"},
         .help = "Half, normal and double size"},
        {.name = "full-size",
         .operation = changeSize,
         .argument = movieSize::fitScreen,
         .confirmation = "Size: Full",
         .keys = {{{u'3', none, passedOn}, {u'f', none, passedOn}}},
         .section = Section::movie,
         .menu = {"Full Size"},
         .help = "Fit to the screen, to its width, to its height"},
        {.name = "fit-width",
         .operation = changeSize,
         .argument = movieSize::fitWidth,
         .confirmation = "Size: Fit Width",
         .keys = {{{u'4', none, passedOn}, {u'w', none, passedOn}}},
         .section = Section::movie,
         .menu = {"Fit Width"},
         .help = "Fit to the screen, to its width, to its height"},
        {.name = "fit-height",
         .operation = changeSize,
         .argument = movieSize::fitHeight,
         .confirmation = "Size: Fit Height",
         .keys = {{{u'5', none, passedOn}, {u'h', none, passedOn}}},
         .section = Section::movie,
         .menu = {"Fit Height", Separator::after},
         .help = "Fit to the screen, to its width, to its height"},
        {.name = "bigger",
         .operation = changeSize,
         .argument = movieSize::bigger,
         .confirmation = "Size: Bigger",
         .keys = {{{u'+'}, {u'=', none, acts, keyboardMap, motion::any, CommandKey::Shown::no}}},
         .section = Section::movie,
         .menu = {"Bigger"},
         .help = "Bigger and smaller"},
        {.name = "smaller",
         .operation = changeSize,
         .argument = movieSize::smaller,
         .confirmation = "Size: Smaller",
         .keys = {{{u'-'}}},
         .section = Section::movie,
         .menu = {"Smaller", Separator::after},
         .help = "Bigger and smaller"},
        {.name = "toggle-controller",
         .operation = toggleController,
         .keys = {{{u'c', none, consumed}}},
         .section = Section::movie,
         .menu = {"Show Controller"},
         .help = "Controller bar"},
        {.name = "next-display",
         .operation = cycleDisplays,
         .argument = 1,
         .keys = {{{u'd'}}},
         .section = Section::movie,
         .menu = {"Next Display"},
         .help = "On-screen display: time, movie, subtitles, looping, volume"},
        {.name = "previous-display",
         .operation = cycleDisplays,
         .argument = -1,
         .keys = {{{u'd', shift}}},
         .section = Section::movie,
         .menu = {"Previous Display", Separator::after},
         .help = "On-screen display: time, movie, subtitles, looping, volume"},

        // The arguments are positions among the aspects, and platform::Deinterlacing; the items are made as the menus
        // open.
        {.name = "aspect",
         .operation = {setAspectOperation, &Self::setAspect, &Self::validateAspect},
         .section = Section::movie,
         .menu = {.title = "Aspect", .opens = MenuPlace::Opens::menu}},
        byKey(Operation{"nextAspect", &Self::nextAspect}, "next-aspect", 0, {u'a', control, consumed}, Section::movie,
              "Aspect: automatic, 4:3, 16:9, 2.35:1", "Next Aspect"),
        {.name = "deinterlacing",
         .operation = {setDeinterlacingOperation, &Self::setDeinterlacing, &Self::validateDeinterlacing},
         .section = Section::movie,
         .menu = {.title = "Deinterlacing", .opens = MenuPlace::Opens::menu}},
        byKey(Operation{"nextDeinterlacing", &Self::nextDeinterlacing}, "next-deinterlacing", 0,
              {u'i', control, consumed}, Section::movie, "Deinterlacing: automatic, on, off", "Next Deinterlacing"),
        {.name = "colors",
         .operation = {"adjustMenu", &Self::adjustPicture},
         .section = Section::movie,
         .menu = {.title = "Picture Colors", .opens = MenuPlace::Opens::menu}},
        byKey(adjustPicture, "less-contrast", -1, {fnkey::f1 + 1}, Section::movie, colorsHelp, "Less Contrast"),
        byKey(adjustPicture, "more-contrast", 1, {fnkey::f1 + 2}, Section::movie, colorsHelp, "More Contrast"),
        byKey(adjustPicture, "darker", -2, {fnkey::f1 + 3}, Section::movie, colorsHelp, "Darker"),
        byKey(adjustPicture, "brighter", 2, {fnkey::f1 + 4}, Section::movie, colorsHelp, "Brighter"),
        byKey(adjustPicture, "less-gamma", -3, {fnkey::f1 + 5}, Section::movie, colorsHelp, "Less Gamma"),
        byKey(adjustPicture, "more-gamma", 3, {fnkey::f1 + 6}, Section::movie, colorsHelp, "More Gamma"),
        byKey(adjustPicture, "less-saturation", -4, {fnkey::f1 + 7}, Section::movie, colorsHelp, "Less Saturation"),
        byKey(adjustPicture, "more-saturation", 4, {fnkey::f1 + 8}, Section::movie, colorsHelp, "More Saturation"),
        byKey(adjustPicture, "less-hue", -5, {fnkey::f1 + 9}, Section::movie, colorsHelp, "Hue towards Red"),
        byKey(adjustPicture, "more-hue", 5, {fnkey::f1 + 10}, Section::movie, colorsHelp, "Hue towards Green"),
        byKey(adjustPicture, "original-colors", 0, {fnkey::backspace, control, consumed}, Section::movie,
              "The colors as the movie has them", "Original Colors"),
        {.name = "crop-bars",
         .operation = {"cropBars", &Self::cropBars, &Self::validateCropping},
         .keys = {{{u'b', control, consumed}}},
         .section = Section::movie,
         .menu = {"Crop Black Bars"},
         .help = "Cut black bars off"},
        {.name = "turn",
         .operation = {"turnPicture", &Self::turnPicture, &Self::validateHasMovie},
         .keys = {{{u't', none, consumed}}},
         .section = Section::movie,
         .menu = {"Turn by 90°"},
         .help = "Turn and mirror the picture"},
        {.name = "mirror",
         .operation = {"mirrorPicture", &Self::mirrorPicture, &Self::validateMirroring},
         .keys = {{{u't', shift, consumed}}},
         .section = Section::movie,
         .menu = {"Mirror", Separator::after},
         .help = "Turn and mirror the picture"},
        {.name = "save-still",
         .operation = {"saveStill", &Self::saveStill, &Self::validateHasMovie},
         .keys = {{{u's', control | shift, consumed}}},
         .section = Section::movie,
         .menu = {"Save Still"},
         .help = "Save the picture as a file"},

        // While the movie plays at its normal speed, or rests, the view itself plays and pauses by the space bar.
        {.name = "play-pause",
         .action = action::playPause,
         .operation = {"startStop", &Self::startStop, &Self::validateStartStop},
         .keys = {{{fnkey::space, none, acts, movieView, motion::stopped | motion::normal},
                   {fnkey::mediaPlay, none, consumed, keyboardMap, motion::any, CommandKey::Shown::no}}},
         .gesture = MouseGesture::doubleClick,
         .section = Section::playback,
         .menu = {"Play"},
         .help = "Play, pause, back to normal speed"},
        {.name = "stop",
         .operation = {"stop", &Self::stop},
         .confirmation = "Movie: Stop",
         .keys = {{{fnkey::mediaStop, none, consumed, keyboardMap, motion::any, CommandKey::Shown::no}}},
         .section = Section::playback,
         .help = "Play, pause, back to normal speed",
         .title = "Stop"},
        {.name = "normal-speed",
         .operation = {"normalSpeed", &Self::normalSpeed},
         .confirmation = "Movie: Play",
         .keys = {{{fnkey::space, none, consumed, keyboardMap, motion::fast, CommandKey::Shown::no}}},
         .section = Section::playback,
         .help = "Play, pause, back to normal speed",
         .keysOf = "play-pause"},
        // The arrows of a resting movie are the view's, too: it steps.
        {.name = "forward",
         .operation = fastForwardRewind,
         .argument = 1,
         .keys = {{{fnkey::right, none, paced, keyboardMap, motion::playing},
                   {fnkey::right, none, acts, movieView, motion::stopped}}},
         .section = Section::playback,
         .menu = {"Fast Forward"},
         .help = "Forward and back: one frame while paused, faster and faster while playing"},
        {.name = "rewind",
         .operation = fastForwardRewind,
         .argument = -1,
         .keys = {{{fnkey::left, none, paced, keyboardMap, motion::playing},
                   {fnkey::left, none, acts, movieView, motion::stopped}}},
         .section = Section::playback,
         .menu = {"Rewind", Separator::after},
         .help = "Forward and back: one frame while paused, faster and faster while playing"},
        // By code these begin fast motion of a resting movie, and step a playing one.
        {.name = "fast-rewind",
         .action = action::fastRewind,
         .operation = {"fastRewind", &Self::fastRewind},
         .section = Section::playback},
        {.name = "fast-forward",
         .action = action::fastForward,
         .operation = {"fastForward", &Self::fastForward},
         .section = Section::playback},
        {.name = "step-backward",
         .action = action::stepBackward,
         .operation = step,
         .argument = -1,
         .section = Section::playback,
         .title = "Step Backward"},
        {.name = "step-forward",
         .action = action::stepForward,
         .operation = step,
         .argument = 1,
         .section = Section::playback,
         .title = "Step Forward"},
        {.name = "jump-forward",
         .action = action::jumpForward,
         .operation = jump,
         .argument = 1,
         .keys = {{{fnkey::right, control}}},
         .section = Section::playback,
         .menu = {"Jump Forward"},
         .help = "Jump forward and back"},
        {.name = "jump-backward",
         .action = action::jumpBackward,
         .operation = jump,
         .argument = -1,
         .keys = {{{fnkey::left, control}}},
         .section = Section::playback,
         .menu = {"Jump Backward", Separator::after},
         .help = "Jump forward and back"},
        {.name = "beginning",
         .operation = beginningEnd,
         .argument = -1,
         .keys = {{{fnkey::left, option, consumed}}},
         .section = Section::playback,
         .menu = {"Beginning"},
         .help = "Beginning and end of the movie"},
        {.name = "end",
         .operation = beginningEnd,
         .argument = 1,
         .keys = {{{fnkey::right, option, consumed}}},
         .section = Section::playback,
         .menu = {"End", Separator::after},
         .help = "Beginning and end of the movie"},
        // The argument is a speed in hundredths; the items are made when the menu opens.
        {.name = "speed",
         .operation = {setSpeedOperation, &Self::changeSpeed, &Self::validateSpeed},
         .section = Section::playback,
         .menu = {.title = "Speed", .opens = MenuPlace::Opens::menu}},
        byKey(changeSpeed, "slower", speedStep::slower, {u'['}, Section::playback, speedHelp, "Slower"),
        byKey(changeSpeed, "faster", speedStep::faster, {u']'}, Section::playback, speedHelp, "Faster"),
        byKey(changeSpeed, "half-as-fast", speedStep::half, {u'{', none, consumed}, Section::playback, speedHelp,
              "Half as Fast"),
        byKey(changeSpeed, "twice-as-fast", speedStep::twice, {u'}', none, consumed}, Section::playback, speedHelp,
              "Twice as Fast"),
        byKey(changeSpeed, "original-speed", 100, {fnkey::backspace, none, consumed}, Section::playback,
              "As fast as the movie was made", "Original Speed"),
        // The argument is a position among the movie's chapters; the items are made when the menu opens.
        {.name = "chapters",
         .operation = {gotoChapterOperation, &Self::gotoChapter, &Self::validateChapter},
         .section = Section::playback,
         .menu = {.title = "Chapters", .opens = MenuPlace::Opens::menu}},
        {.name = "next-chapter",
         .operation = stepChapter,
         .argument = 1,
         .keys = {{{fnkey::pageDown, shift}}},
         .section = Section::playback,
         .menu = {"Next Chapter"},
         .help = "Next and previous chapter"},
        {.name = "previous-chapter",
         .operation = stepChapter,
         .argument = -1,
         .keys = {{{fnkey::pageUp, shift}}},
         .section = Section::playback,
         .menu = {"Previous Chapter", Separator::after},
         .help = "Next and previous chapter"},
        {.name = "go-to-time",
         .operation = {"goToTime", &Self::goToTime, &Self::validateHasMovie},
         .keys = {{{u'g', none, consumed}}},
         .section = Section::playback,
         .menu = {"Go to Time..."},
         .help = "Go to a time"},
        {.name = "repeat-section",
         .operation = {"repeatSection", &Self::repeatSection, &Self::validateRepeating},
         .keys = {{{u'l', control, consumed}}},
         .section = Section::playback,
         .menu = {"Repeat from Here", Separator::after},
         .help = "Repeat a section: its beginning, its end, no more",
         .title = "Repeat Section"},
        {.name = "next-movie",
         .operation = playPrevNext,
         .argument = 1,
         .keys = {{{fnkey::pageDown, none, consumed, KeyTaker::menu},
                   {fnkey::right, command, consumed},
                   {fnkey::mediaNext, none, consumed, keyboardMap, motion::any, CommandKey::Shown::no}}},
         .gesture = MouseGesture::forwardClick,
         .section = Section::playback,
         .menu = {"Next Movie"},
         .help = "Next and previous movie"},
        // A held key goes back through the list.
        {.name = "previous-movie",
         .operation = playPrevNext,
         .argument = -1,
         .keys = {{{fnkey::pageUp, none, consumed, KeyTaker::menu},
                   {fnkey::left, command},
                   {fnkey::mediaPrevious, none, consumed, keyboardMap, motion::any, CommandKey::Shown::no}}},
         .gesture = MouseGesture::backClick,
         .section = Section::playback,
         .menu = {"Previous Movie", Separator::after},
         .help = "Next and previous movie"},
        {.name = "looping-off",
         .operation = changeLooping,
         .argument = looping::off,
         .section = Section::playback,
         .menu = {"Looping Off", Separator::none, "next-looping"}},
        {.name = "loop-one",
         .operation = changeLooping,
         .argument = looping::one,
         .section = Section::playback,
         .menu = {"Loop One"}},
        {.name = "loop-all",
         .operation = changeLooping,
         .argument = looping::all,
         .section = Section::playback,
         .menu = {"Loop All"}},
        byKey(toggleLooping, "next-looping", 1, {u'l', none, consumed}, Section::playback, "Looping: off, one, all",
              "Next Looping"),
        byKey(toggleLooping, "previous-looping", -1, {u'l', shift, consumed}, Section::playback,
              "Looping: off, one, all", "Previous Looping"),
    };

    // Behind those of sound.
    static constexpr Command rowsOfList[] = {
        // The argument is a position in the list; the items are made from it.
        {.name = "movie",
         .operation = {changeMovieOperation, &Self::changeMovie, &Self::validateMovie},
         .section = Section::playlist},
        // Its item follows those of the movies.
        {.name = "show-playlist",
         .operation = {showPlaylistOperation, &Self::showPlaylist},
         .keys = {{{u'p', none, consumed}}},
         .section = Section::playlist,
         .help = "The whole list: search, move and remove movies",
         .title = "Show Playlist"},
    };

    // Behind those of the subtitles.
    static constexpr Command rowsBehind[] = {
        {.name = "next-screen",
         .action = action::nextScreen,
         .operation = switchScreen,
         .argument = 1,
         .keys = {{{fnkey::tab, none, consumed}}},
         .section = Section::window,
         .menu = {"Next Screen"},
         .help = "Next and previous screen"},
        {.name = "previous-screen",
         .action = action::previousScreen,
         .operation = switchScreen,
         .argument = -1,
         .keys = {{{fnkey::tab, shift, consumed}}},
         .section = Section::window,
         .menu = {"Previous Screen"},
         .help = "Next and previous screen"},

        {.name = "help",
         .operation = {"showHelp", &Self::showHelp},
         .keys = {{{fnkey::f1, none, consumed, KeyTaker::menu}}},
         .section = Section::help,
         .menu = {"Lumaro Help"},
         .help = "Lumaro Help"},
        {.name = "donate",
         .operation = {"donate", &Self::donate, &Self::validateDonation},
         .section = Section::help,
         .menu = {"Donate..."}},
    };
};

namespace {

template <std::size_t... Counts>
constexpr auto joined(const Command (&... rows)[Counts]) {
    std::array<Command, (Counts + ...)> all{};
    auto end = all.begin();
    ((end = std::ranges::copy(rows, end).out), ...);
    return all;
}

constexpr auto allRows = joined(CommandTable::rows, SoundCommandTable::rows, CommandTable::rowsOfList,
                                SubtitleCommandTable::rows, CommandTable::rowsBehind);

} // namespace

std::span<const Command> commands() {
    return allRows;
}
