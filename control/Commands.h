// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include "context/CommandTarget.h"

#include <array>
#include <cstdint>
#include <span>
#include <string_view>

namespace platform {
struct MenuItem;
} // namespace platform

class QVMovieController;

/// What the movie does, as far as keys mean different things meanwhile. A bit each.
namespace motion {
inline constexpr std::uint8_t stopped = 1;
inline constexpr std::uint8_t normal = 2; // playing at rate 1.0
inline constexpr std::uint8_t fast = 4;   // playing at any other rate, backwards too
inline constexpr std::uint8_t playing = normal | fast;
inline constexpr std::uint8_t any = stopped | normal | fast;
} // namespace motion

/// What an automatic repeat of a held key does.
enum class KeyRepeat {
    acts,     // the same as a press
    consumed, // nothing
    passedOn, // nothing here: the view's own handling comes next
    paced,    // the same as a press, but at most once in KeyboardMap::pace seconds
    timed,    // nothing: the action repeats in its own interval until a key is released
};

/// Who acts on a key. Only the keyboard map's keys are looked up; the others are named here because menus and help show
/// them, and because no second command may take them.
enum class KeyTaker { keyboardMap, movieView, window, menu };

/// A key with the modifiers that are held with it, apart from what it means.
struct KeyChord {
    /// What the key types, in lower case, or one of platform::functionKey. 0: no key.
    char16_t character = 0;
    /// Masks of platform::modifier.
    std::uint32_t modifiers = 0;

    friend bool operator==(const KeyChord&, const KeyChord&) = default;
};

/// A key that a command answers to.
struct CommandKey {
    /// What the key types, in lower case, or one of platform::functionKey. 0: no key.
    char16_t character = 0;
    /// Masks of platform::modifier that must be held. Others do not matter, but of two commands with the same character
    /// the one comes first whose masks are the greater number: Command before Option before Control before Shift. A
    /// menu's shortcut wants exactly these.
    std::uint32_t modifiers = 0;
    KeyRepeat repeat = KeyRepeat::acts;
    KeyTaker taker = KeyTaker::keyboardMap;
    /// Bits of `motion`: when the key means this command.
    std::uint8_t during = motion::any;
    /// Another way to type the key before it, which need not be shown.
    enum class Shown : bool { no, yes } shown = Shown::yes;

    constexpr KeyChord chord() const { return {character, modifiers}; }
};

/// The menus of the bar, in their order, and the groups of the help.
enum class Section { file, movie, playback, volume, playlist, subtitles, window, help };
inline constexpr std::array sections{Section::file,     Section::movie,     Section::playback, Section::volume,
                                     Section::playlist, Section::subtitles, Section::window,   Section::help};
/// The key of a section's localized title.
std::string_view sectionTitle(Section section);

/// What commands do; several may differ only in their argument.
struct Operation {
    /// The action of menu items; their tag is the argument.
    std::string_view name = {};
    /// Carries it out. Null for a command that only keeps its key or code from others.
    void (QVMovieController::*perform)(std::int32_t argument, Feedback feedback) = nullptr;
    /// May change the item's state and title, and answers whether it is enabled. Null: always enabled.
    bool (QVMovieController::*validate)(platform::MenuItem& item) const = nullptr;
    /// Whether the command confirms when it is chosen in a menu, where the choice is seen. By key it always does.
    Feedback fromMenu = Feedback::yes;
};

enum class Separator { none, before, after };

/// An item of the section's menu. Items stand in the table's order.
struct MenuPlace {
    /// The key of the localized title; empty for no item.
    std::string_view title = {};
    Separator separator = Separator::none;
    /// The command whose key is shown beside the item, where it is another.
    std::string_view keyOf = {};
    /// Whether a menu of its own opens beside it.
    enum class Opens : bool { nothing, menu } opens = Opens::nothing;
};

inline constexpr std::int32_t noAction = -1;

/// So many keys a command may have; a key may fill two places, with another meaning while the movie rests.
inline constexpr std::size_t maximumKeys = 4;

/// One command of the player.
struct Command {
    /// An identifier, in lower case with hyphens.
    std::string_view name;
    /// The code of CommandTarget::performAction, or noAction.
    std::int32_t action = noAction;
    Operation operation = {};
    std::int32_t argument = 0;
    /// The key of the text posted after it, when it is to be confirmed. Empty where the operation words it, or posts
    /// none.
    std::string_view confirmation = {};
    /// The first one is shown in the menu, but one that the menu takes goes before.
    std::array<CommandKey, 2 * maximumKeys> keys = {};
    MouseGesture gesture = MouseGesture::none;
    Section section = Section::file;
    MenuPlace menu = {};
    /// The key of the localized text that says what its keys do. Commands of a section with the same text share a line.
    std::string_view help = {};
    /// The key of the localized title where keys are changed, if that of the menu's item is none, or says too little.
    std::string_view title = {};
    /// The command whose keys it has, too, while the movie moves as its own row says.
    std::string_view keysOf = {};
};

/// Every command, in the order of menus and help. A command is added as a row here and a function that the row names.
std::span<const Command> commands();

/// The key of the localized title under which its keys are changed; empty for none.
std::string_view keyTitleOf(const Command& command);
/// Whether its keys can be changed: it does something by itself, and has a title.
bool hasChangeableKeys(const Command& command);

/// Of the playlist menu's items, which are made as it opens.
inline constexpr const char* changeMovieOperation = "changeMovie";
inline constexpr const char* showPlaylistOperation = "showPlaylist";
/// Of the items of the movies that were seen last, and of the one below them.
inline constexpr const char* openRecentOperation = "openRecent";
inline constexpr const char* clearRecentOperation = "clearRecent";
/// Of the items of the menus of speeds and of chapters.
inline constexpr const char* setSpeedOperation = "setSpeed";
inline constexpr const char* changeSpeedOperation = "changeSpeed";
inline constexpr const char* gotoChapterOperation = "gotoChapter";
/// Of the items of the menus of aspects, of deinterlacing and of colours; `adjustMenu` opens the last.
inline constexpr const char* setAspectOperation = "setAspect";
inline constexpr const char* setDeinterlacingOperation = "setDeinterlacing";
inline constexpr const char* adjustPictureOperation = "adjustPicture";
/// Of the items of the menu of tracks of sound; their tags are the tracks' numbers.
inline constexpr const char* changeAudioOperation = "changeAudio";
/// Of the items of the menu of a stream's qualities; their tags are the tracks' numbers.
inline constexpr const char* changeQualityOperation = "changeQuality";
/// Of the items of the menu of second subtitles; their tags are positions among the movie's tracks.
inline constexpr const char* changeSecondOperation = "changeSecondSubtitles";
/// Of the subtitles menu's last item.
inline constexpr const char* toggleRepairOperation = "toggleRepair";

/// Null for codes, gestures and names that no command has.
const Command* commandWithAction(std::int32_t action);
const Command* commandWithGesture(MouseGesture gesture);
const Command* commandWithName(std::string_view name);
/// The command of a menu item by its action and tag. A tag that no row has (a position in a list) gets the first
/// command of the operation; null for unknown operations.
const Command* commandOfMenuItem(std::string_view action, std::int32_t tag);
