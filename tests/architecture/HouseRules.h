// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <map>
#include <string>
#include <vector>

// The rules that keep the house in order, checked on the text of its sources alone.
namespace house {

// Path from the project's root, with forward slashes, to the file's text.
using Sources = std::map<std::string, std::string>;

// The Qt module that a header named in angle brackets belongs to ("QPushButton" to "QtWidgets"), or "".
using ModuleOf = std::function<std::string(const std::string& header)>;

// What is wrong, one line each: "file:line: what was found (the rule)". In order of files and lines.
using Complaints = std::vector<std::string>;

// Quoted includes name a file from the project's root.
Complaints includesFromTheRoot(const Sources& sources);
// A room is a source with its header. No circle of rooms.
Complaints noCircleOfRooms(const Sources& sources);
// A folder includes only itself and folders on lower floors; the folders inside platform/ form no circle.
Complaints foldersStandOnLowerOnes(const Sources& sources);
// Each library is included only where it belongs.
Complaints librariesStayInTheirPlace(const Sources& sources, const ModuleOf& moduleOf);
// Above platform/ nobody reads a clock, starts a timer or sleeps: time comes in through the run loop.
Complaints timeComesInFromOutside(const Sources& sources);
// No file is longer than 600 lines.
Complaints filesStaySmall(const Sources& sources);

} // namespace house
