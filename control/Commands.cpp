// SPDX-License-Identifier: GPL-3.0-or-later
#include "control/Commands.h"

#include <algorithm>

namespace {

template <class Predicate>
const Command* firstCommand(Predicate predicate) {
    const auto found = std::ranges::find_if(commands(), predicate);
    return found == commands().end() ? nullptr : &*found;
}

} // namespace

std::string_view sectionTitle(Section section) {
    constexpr std::array<std::string_view, sections.size()> titles{"File",     "Movie",     "Playback", "Volume",
                                                                   "Playlist", "Subtitles", "Window",   "Help"};
    return titles[static_cast<std::size_t>(section)];
}

std::string_view keyTitleOf(const Command& command) {
    return command.title.empty() ? command.menu.title : command.title;
}

bool hasChangeableKeys(const Command& command) {
    return command.operation.perform && command.menu.opens == MenuPlace::Opens::nothing && !keyTitleOf(command).empty();
}

const Command* commandWithAction(std::int32_t action) {
    return action == noAction ? nullptr
                              : firstCommand([=](const Command& command) { return command.action == action; });
}

const Command* commandWithGesture(MouseGesture gesture) {
    return gesture == MouseGesture::none
               ? nullptr
               : firstCommand([=](const Command& command) { return command.gesture == gesture; });
}

const Command* commandWithName(std::string_view name) {
    return firstCommand([=](const Command& command) { return command.name == name; });
}

const Command* commandOfMenuItem(std::string_view action, std::int32_t tag) {
    if (action.empty())
        return nullptr;
    const auto isIt = [=](const Command& command) { return command.operation.name == action; };
    const Command* exact =
        firstCommand([=](const Command& command) { return isIt(command) && command.argument == tag; });
    return exact ? exact : firstCommand(isIt);
}
