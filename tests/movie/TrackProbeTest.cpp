// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/movie/mpv/TrackProbe.h"

#include <gtest/gtest.h>
#include <mpv/client.h>

#include <deque>
#include <string>
#include <vector>

using platform::mergedTracks;
using platform::MovieTrack;
using platform::MovieTracks;
using platform::tracksOf;
using Kind = MovieTrack::Kind;
using Content = MovieTrack::Content;

namespace {

/// A list of maps as libmpv hands it out.
class NodeList {
public:
    void add(std::vector<std::pair<const char*, mpv_node>> members) {
        auto& keys = _keys.emplace_back();
        auto& values = _values.emplace_back();
        for (const auto& [name, value] : members) {
            keys.push_back(const_cast<char*>(name));
            values.push_back(value);
        }
        mpv_node map{};
        map.format = MPV_FORMAT_NODE_MAP;
        map.u.list = &_maps.emplace_back(mpv_node_list{static_cast<int>(values.size()), values.data(), keys.data()});
        _items.push_back(map);
    }
    mpv_node node() {
        _list = {static_cast<int>(_items.size()), _items.data(), nullptr};
        mpv_node node{};
        node.format = MPV_FORMAT_NODE_ARRAY;
        node.u.list = &_list;
        return node;
    }
    static mpv_node text(const char* text) {
        mpv_node node{};
        node.format = MPV_FORMAT_STRING;
        node.u.string = const_cast<char*>(text);
        return node;
    }
    static mpv_node number(int number) {
        mpv_node node{};
        node.format = MPV_FORMAT_INT64;
        node.u.int64 = number;
        return node;
    }
    static mpv_node flag(bool isSet) {
        mpv_node node{};
        node.format = MPV_FORMAT_FLAG;
        node.u.flag = isSet ? 1 : 0;
        return node;
    }

private:
    std::deque<std::vector<char*>> _keys;
    std::deque<std::vector<mpv_node>> _values;
    std::deque<mpv_node_list> _maps;
    std::vector<mpv_node> _items;
    mpv_node_list _list{};
};

} // namespace

TEST(TrackProbe, reads_what_the_player_tells_whatever_stands_there) {
    NodeList list;
    list.add({{"id", NodeList::number(1)},
              {"type", NodeList::text("audio")},
              {"lang", NodeList::text("und")},
              {"title", NodeList::text("  Two\n lines ")},
              {"codec", NodeList::text("ac3")},
              {"demux-channel-count", NodeList::number(6)},
              {"default", NodeList::flag(true)}});
    list.add({{"id", NodeList::number(3)},
              {"type", NodeList::text("sub")},
              {"lang", NodeList::text("ger")},
              {"codec", NodeList::text("hdmv_pgs_subtitle")},
              {"forced", NodeList::flag(true)},
              {"external", NodeList::flag(true)},
              {"title", NodeList::number(5)}});
    list.add({{"type", NodeList::text("sub")}, {"codec", NodeList::text("ass")}});
    list.add({{"type", NodeList::text("sub")}, {"codec", NodeList::text("")}});
    const MovieTracks found = tracksOf(list.node());
    ASSERT_EQ(found.size(), 4U);
    EXPECT_EQ(found[0], (MovieTrack{.kind = Kind::audio,
                                    .id = 1,
                                    .title = QStringLiteral("Two lines"),
                                    .codec = QStringLiteral("ac3"),
                                    .channels = 6,
                                    .isDefault = true}));
    EXPECT_EQ(found[1], (MovieTrack{.kind = Kind::subtitles,
                                    .id = 3,
                                    .language = QStringLiteral("ger"),
                                    .codec = QStringLiteral("hdmv_pgs_subtitle"),
                                    .isForced = true,
                                    .isExternal = true,
                                    .content = Content::bitmaps}));
    EXPECT_EQ(found[2].content, Content::styledText);
    EXPECT_EQ(found[3].content, Content::unknown);
    EXPECT_TRUE(tracksOf(NodeList::text("none")).empty());
}

TEST(TrackProbe, what_turns_up_late_is_added_and_files_of_their_own_come_and_go) {
    const MovieTrack known{.kind = Kind::audio, .id = 1, .title = QStringLiteral("as the file says")};
    const MovieTrack same{.kind = Kind::audio, .id = 1};
    const MovieTrack late{.kind = Kind::audio, .id = 2};
    const MovieTrack text{.kind = Kind::subtitles, .id = 1};
    const MovieTrack external{.kind = Kind::subtitles, .id = 2, .isExternal = true};
    EXPECT_EQ(mergedTracks({known}, {}), (MovieTracks{known})) << "not read yet";
    EXPECT_EQ(mergedTracks({known}, {same, late, text}), (MovieTracks{known, late, text}));
    EXPECT_EQ(mergedTracks({known, text}, {same, text, external}), (MovieTracks{known, text, external}));
    EXPECT_EQ(mergedTracks({known, text, external}, {same, text}), (MovieTracks{known, text}));
}
