// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QStringView>

// The build names the update site; a build that does not has none.
#ifndef Q4V_UPDATE_SITE
#define Q4V_UPDATE_SITE ""
#endif

// Every key of the "Settings" group with its type and the default a reader
// gets while the key was never written: one table, read and written only
// through SettingsStore::value() and set(). Per-column and per-list keys
// are built by SettingsCodec from the list prefixes at the end.
namespace Keys {

// Free text.
struct TextSetting {
    QStringView key;
    QStringView defaultValue = {};
};
// A decimal number, read leniently ("12abc" is 12, "abc" is 0).
struct NumberSetting {
    QStringView key;
    int defaultValue = 0;
};
// "1" on, anything else off.
struct FlagSetting {
    QStringView key;
    bool defaultValue = false;
};
// "True" or "False".
struct TruthSetting {
    QStringView key;
    bool defaultValue = false;
};
// Remembered combo-box entries, each ended by the code-1 character.
struct EntriesSetting {
    QStringView key;
};

inline constexpr TextSetting PlayerName{u"PlayerName"};
inline constexpr TextSetting Password{u"Password"};
inline constexpr NumberSetting Tab{u"Tab", 1};
inline constexpr TruthSetting Maximized{u"Maximized", false};
// These four default to what the window shows: read them with the current
// size as the fallback.
inline constexpr NumberSetting WindowHeight{u"WindowHeight"};
inline constexpr NumberSetting WindowWidth{u"WindowWidth"};
inline constexpr NumberSetting SplitterPanes{u"rzrSPSISize"};
inline constexpr NumberSetting SplitterServerList{u"rzrPSISize"};
inline constexpr EntriesSetting FindBox{u"FindBox"};
inline constexpr EntriesSetting PlayerNameBox{u"PlayerNameBox"};
inline constexpr EntriesSetting PasswordBox{u"PasswordBox"};
inline constexpr NumberSetting Language{u"Language", 0};
inline constexpr NumberSetting Speed{u"Speed", 5};
inline constexpr NumberSetting StartPort{u"StartPort", 9000};
inline constexpr FlagSetting RefreshServers{u"RefreshServers", true};
inline constexpr TextSetting Path{u"Path"};
// The install a join starts: "steam:FOLDER", "flatpak-steam:FOLDER",
// "linux:FOLDER", "wine:FOLDER", or "program" for the program in Path.
// Empty: none chosen yet (a Path set before is still the program).
inline constexpr TextSetting Game{u"Game"};
inline constexpr FlagSetting CloseAfterJoin{u"CloseAfterJoin", true};
inline constexpr FlagSetting IncludeEmpty{u"IncludeEmpty", true};
inline constexpr FlagSetting IncludeFull{u"IncludeFull", true};
inline constexpr FlagSetting IncludePassworded{u"IncludePassworded", true};
inline constexpr FlagSetting AutoUpdate{u"AutoUpdate", true};
inline constexpr FlagSetting Proxy{u"Proxy", false};
inline constexpr TextSetting ProxyAddress{u"ProxyAddress"};
// The base address the update check asks; the build chooses the default.
inline constexpr TextSetting UpdateSite{u"UpdateSite", u"" Q4V_UPDATE_SITE};
// One or more "host[:port]" separated by commas or blanks; empty: the game
// maker's master and the community master (MasterAddress::defaults()).
inline constexpr TextSetting MasterServer{u"MasterServer"};
// Published server lists: http or https addresses separated by blanks.
inline constexpr TextSetting ServerListUrls{u"ServerListUrls", u"https://quakehub.net/api/v1/servers/q4"};
// Servers that answered once are asked again by "Query Masters".
inline constexpr FlagSetting QueryKnownServers{u"QueryKnownServers", true};
// Where "Query LAN" sends: addresses separated by blanks; empty: the
// broadcast address of every local network.
inline constexpr TextSetting LanBroadcast{u"LanBroadcast"};
// The user's friends: names or wildcard patterns, as remembered entries.
inline constexpr EntriesSetting Friends{u"Friends"};
// Re-query the listed servers every this many minutes; 0: never.
inline constexpr NumberSetting AutoRefreshMinutes{u"AutoRefreshMinutes", 0};
// While refreshing automatically: a notification when a friend starts
// playing, and when a favourite server reaches this many players (0: never).
inline constexpr FlagSetting NotifyFriends{u"NotifyFriends", true};
inline constexpr NumberSetting NotifyPlayerCount{u"NotifyPlayerCount", 0};
// Joining a full server offers to wait for a free slot.
inline constexpr FlagSetting OfferSlotWait{u"OfferSlotWait", true};
// The join password and the remembered ones live in the desktop's keyring
// when it has one; off, or without one, in Password and PasswordBox.
inline constexpr FlagSetting PasswordsInKeyring{u"PasswordsInKeyring", true};
// The IP location database that places servers in their countries (empty:
// none); the default is where Debian's libloc-database puts it.
inline constexpr TextSetting CountryDatabase{u"CountryDatabase", u"/usr/share/libloc-location/location.db"};

// List prefixes: columns use the first, sorting the second (the selected
// server's player pane is the one list where they differ).
struct ListKeys {
    QStringView columns;
    QStringView sort;
};
inline constexpr ListKeys ServerList{QStringView{u"S"}, QStringView{u"S"}};
inline constexpr ListKeys PlayerList{QStringView{u"P"}, QStringView{u"P"}};
inline constexpr ListKeys ServerPlayers{QStringView{u"SP"}, QStringView{u"PL"}};
inline constexpr ListKeys ServerRules{QStringView{u"SI"}, QStringView{u"SI"}};
inline constexpr ListKeys Favourites{QStringView{u"F"}, QStringView{u"F"}};
inline constexpr ListKeys Filters{QStringView{u"Fi"}, QStringView{u"Fi"}};

} // namespace Keys
