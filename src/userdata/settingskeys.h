#pragma once

#include <QStringView>

// The keys of the "Settings" group, in one place, with the defaults their
// readers pass. Per-column and per-list keys are built by SettingsCodec.
namespace Keys {

inline constexpr QStringView PlayerName{u"PlayerName"};
inline constexpr QStringView Password{u"Password"};
inline constexpr QStringView Tab{u"Tab"};
inline constexpr QStringView Maximized{u"Maximized"};
inline constexpr QStringView WindowHeight{u"WindowHeight"};
inline constexpr QStringView WindowWidth{u"WindowWidth"};
inline constexpr QStringView SplitterPanes{u"rzrSPSISize"};
inline constexpr QStringView SplitterServerList{u"rzrPSISize"};
inline constexpr QStringView FindBox{u"FindBox"};
inline constexpr QStringView PlayerNameBox{u"PlayerNameBox"};
inline constexpr QStringView PasswordBox{u"PasswordBox"};
inline constexpr QStringView Language{u"Language"};
inline constexpr QStringView Speed{u"Speed"};
inline constexpr QStringView StartPort{u"StartPort"};
inline constexpr QStringView RefreshServers{u"RefreshServers"};
inline constexpr QStringView Path{u"Path"};
inline constexpr QStringView CloseAfterJoin{u"CloseAfterJoin"};
inline constexpr QStringView AutoUpdate{u"AutoUpdate"};
inline constexpr QStringView Proxy{u"Proxy"};
inline constexpr QStringView ProxyAddress{u"ProxyAddress"};
inline constexpr QStringView ColourPickerOption{u"ColourPickerOption"};
inline constexpr QStringView ScrollType{u"prbScrollType"};
inline constexpr QStringView IncludeEmpty{u"IncludeEmpty"};
inline constexpr QStringView IncludeFull{u"IncludeFull"};
inline constexpr QStringView IncludePassworded{u"IncludePassworded"};
inline constexpr QStringView MasterServer{u"MasterServer"};

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

namespace Defaults {
inline constexpr int Tab = 1;
inline constexpr int Language = 0;
inline constexpr int Speed = 5;
inline constexpr int StartPort = 9000;
inline constexpr bool RefreshServers = true;
inline constexpr bool CloseAfterJoin = true;
inline constexpr bool AutoUpdate = true;
inline constexpr bool Proxy = false;
inline constexpr bool IncludeFilterFlag = true;
inline constexpr int ScrollType = 1;
} // namespace Defaults

} // namespace Keys
