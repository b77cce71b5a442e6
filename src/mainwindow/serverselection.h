// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QWidget>

#include <functional>

class Countries;
class JoinFlow;
class MulticolorLabel;
class QLabel;
class ServerDetails;
class ServerLists;
struct ServerRecord;

// What is selected and shown of it: the server's name in colour, its
// players and rules in the panes, and the selected player's name. The
// panes follow a new answer of the selected server.
class ServerSelection final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(ServerSelection)

public:
    using ShowPlayerName = std::function<void(const QString& name)>;

    ServerSelection(const ServerLists& lists, ServerDetails& details, ShowPlayerName showPlayerName,
                    QWidget* parent = nullptr);

    QLabel* serverNameCaption() const { return lblSName; }
    MulticolorLabel* serverName() const { return mclSName; }
    // The store index of the selected server, or -1.
    int server() const { return m_server; }

    void showServer(int server);
    void showPlayer(int server, int player);
    // The server answered again.
    void refreshed(int server);
    // The rules pane tells whether the game has the server's map, and
    // tells again once the game's folders have been read.
    void followMapCheck(JoinFlow& flow);
    // A flag before the name, the country's name in its tooltip.
    void setCountries(const Countries* countries) { m_countries = countries; }
    // The labels only; the panes keep the selected server.
    void clearNames();
    // The lists were emptied: the names and the panes go too.
    void clear();
    void ShowServerName(const QString& name);
    // "Server Name:" in the interface's language.
    void retranslate();

private:
    void showFlag(const ServerRecord* server);
    const Countries* m_countries = nullptr;
    const ServerLists& m_lists;
    ServerDetails& m_details;
    ShowPlayerName m_showPlayerName;
    QLabel* lblSName = nullptr;
    MulticolorLabel* mclSName = nullptr;
    QLabel* lblSFlag = nullptr;
    int m_server = -1;
};
