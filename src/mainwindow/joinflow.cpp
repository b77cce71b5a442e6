// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/joinflow.h"

#include "mainwindow/joincommand.h"
#include "mainwindow/mapcheck.h"
#include "mainwindow/slotwaiter.h"
#include "platform/desktop.h"
#include "query/records.h"
#include "userdata/favourites.h"
#include "userdata/playhistory.h"
#include "userdata/settingsstore.h"
#include "widgets/historycombobox.h"

#include <QDir>
#include <QFileInfo>

JoinFlow::Target JoinFlow::Target::of(const ServerRecord& server, const QString& plainName)
{
    Target target{
        server.endpointText(), server.isPassworded(), plainName, !SlotWait::hasFreeSlot(server), server.map, {}};
    for (qsizetype i = 0; i + 1 < server.tokens.size(); i += 2)
        if (server.tokens.at(i).compare(QLatin1String("fs_game"), Qt::CaseInsensitive) == 0)
            target.mod = server.tokens.at(i + 1);
    return target;
}

JoinFlow::JoinFlow(SettingsStore& settings, Desktop& desktop, QString favouritesPath, QString historyPath,
                   const HistoryComboBox& playerName, const HistoryComboBox& password, QWidget* window)
    : QObject(window)
    , m_settings(settings)
    , m_desktop(desktop)
    , m_favouritesPath(std::move(favouritesPath))
    , m_historyPath(std::move(historyPath))
    , m_playerName(playerName)
    , m_password(password)
    , m_window(window)
    , m_maps(new MapCheck(this))
{
}

void JoinFlow::joinByAddress()
{
    QString offered;
    for (;;) {
        const auto typed = m_desktop.inputText(
            m_window, tr("Join server by IP Address"),
            tr("Please enter the IP address/hostname and port of the server you wish to join"), offered);
        if (!typed || typed->trimmed().isEmpty())
            return;
        const QString address = typed->trimmed();
        if (isServerAddress(address)) {
            join(Target{address, false, address, false, {}, {}});
            return;
        }
        // Said, and offered again for correction: the game would only
        // fail to connect.
        m_desktop.message(m_window, Desktop::Icon::Warning, tr("Join server by IP Address"),
                          tr("\"%1\" is not a server address. Type a host name or an IP address, followed by a colon "
                             "and a port from 1 to 65535 when the port is not the game's.")
                              .arg(address),
                          QMessageBox::Ok);
        offered = address;
    }
}

QString JoinFlow::passwordFor(const Target& target) const
{
    if (!m_password.currentText().isEmpty())
        return m_password.currentText();
    // The join reads the favourites into a table of its own; a running
    // query's addresses stay as they are.
    if (const auto favourites = Favourites::readFile(m_favouritesPath)) {
        if (const auto favourite = Favourites::toAddressTable(*favourites).lastMatching(target.address))
            return favourite->password;
    }
    return QString();
}

QString JoinFlow::executable()
{
    QString path = m_settings.value(Keys::Path);
    if (!path.isEmpty())
        return path;
    path = m_desktop.chooseExecutable(m_window);
    if (!path.isEmpty())
        m_settings.set(Keys::Path, path);
    return path;
}

QString JoinFlow::mapState(const ServerRecord& server)
{
    const Target target = Target::of(server, QString());
    switch (m_maps->check(MapCheck::gameFoldersOf(m_settings.value(Keys::Path)), target.map, target.mod)) {
    case MapCheck::Verdict::Installed:
        return tr("installed");
    case MapCheck::Verdict::MissingMap:
    case MapCheck::Verdict::MissingMod:
        return tr("missing");
    default:
        return {};
    }
}

bool JoinFlow::mapSettled(const Target& target)
{
    // No game folder yet (asked for at the start): nothing to check, nothing asked.
    switch (m_maps->check(MapCheck::gameFoldersOf(m_settings.value(Keys::Path)), target.map, target.mod)) {
    case MapCheck::Verdict::NotChecked:
    case MapCheck::Verdict::Installed:
        return true;
    case MapCheck::Verdict::Pending:
        // Read once per folder, off the window's thread; the join goes on
        // when it has been.
        emit status(tr("Looking for %1 in the game's archives...").arg(target.map), StatusTone::Querying);
        connect(
            m_maps, &MapCheck::indexed, this, [this, target] { join(target); }, Qt::SingleShotConnection);
        return false;
    case MapCheck::Verdict::MissingMap:
    case MapCheck::Verdict::MissingMod:
        break;
    }
    const QString question = GameFiles::modFolder(target.mod).isEmpty()
                                 ? tr("%1 is not installed. Join anyway?").arg(target.map)
                                 : tr("%1 is not installed (mod %2). Join anyway?").arg(target.map, target.mod);
    return m_desktop.message(m_window, Desktop::Icon::Question, target.serverName, question,
                             QMessageBox::Yes | QMessageBox::No) == QMessageBox::Yes;
}

void JoinFlow::join(const Target& target)
{
    if (!mapSettled(target))
        return;
    emit joining();
    QString password = passwordFor(target);
    if (target.passworded && password.isEmpty()) {
        password = m_desktop
                       .inputText(m_window, target.serverName, tr("Please enter the password for this server"), {},
                                  Desktop::Echo::Secret)
                       .value_or(QString());
        if (password.isEmpty() &&
            m_desktop.message(m_window, Desktop::Icon::Question, tr("No Password Provided"), tr("Join Server Anyway?"),
                              QMessageBox::Yes | QMessageBox::No) != QMessageBox::Yes)
            return;
    }
    if (target.full && m_settings.value(Keys::OfferSlotWait)) {
        const auto answer = m_desktop.message(
            m_window, Desktop::Icon::Question, target.serverName,
            tr("%1 is full.\nWait for a free slot and join as soon as one opens?").arg(target.serverName),
            QMessageBox::Yes | QMessageBox::No | QMessageBox::Cancel,
            {{QMessageBox::Yes, tr("Wait for a Slot")}, {QMessageBox::No, tr("Join Anyway")}});
        if (answer == QMessageBox::Yes) {
            // Asked now, not when the slot opens minutes later.
            if (!executable().isEmpty())
                emit waitRequested(target, password);
            return;
        }
        if (answer != QMessageBox::No)
            return;
    }
    start(target, password);
}

void JoinFlow::start(const Target& target, const QString& password)
{
    const QString program = executable();
    if (program.isEmpty())
        return;
    const JoinCommand command = JoinCommand::make(program, m_playerName.currentText(), target.address, password);
    // The address only: the status line never shows the password.
    emit status(tr("Connecting to %1").arg(target.address), StatusTone::Done);
    if (!m_desktop.startDetached(command.program, command.arguments, command.workingFolder)) {
        const QFileInfo file(program);
        const QString why = !file.exists()         ? tr("The game could not be started: %1 does not exist.")
                            : !file.isExecutable() ? tr("The game could not be started: %1 is not a program.")
                                                   : tr("The game could not be started: %1.");
        emit status(why.arg(QDir::toNativeSeparators(program)), StatusTone::Failed);
        return;
    }
    record(target);
    emit joined(target.address);
    if (m_settings.value(Keys::CloseAfterJoin))
        emit closeRequested();
}

void JoinFlow::record(const Target& target)
{
    const auto endpoint = parseEndpoint(target.address);
    if (!endpoint)
        return;
    const PlayHistory::Entry entry{endpoint->address, endpoint->port, target.serverName,
                                   m_desktop.clock().nowMs() / 1000};
    if (!PlayHistory::writeFile(m_historyPath, PlayHistory::record(PlayHistory::readFile(m_historyPath), entry)))
        emit status(tr("The game started, but the list of recently played servers could not be saved."),
                    StatusTone::Failed);
}
