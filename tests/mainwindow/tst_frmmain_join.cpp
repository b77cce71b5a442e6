// SPDX-License-Identifier: GPL-2.0-or-later
#include "fleet.h"
#include "mainwindow/serverlistmodel.h"
#include "testports.h"
#include "testwindow.h"
#include "widgets/statusline.h"
#include "zipfiles.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QComboBox>
#include <QContextMenuEvent>
#include <QCursor>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

namespace {

const quint16 StartPort = TestPorts::at(2000);
const quint16 MasterPort = TestPorts::at(1);

// A window that has queried a small fleet; server 0 needs a password.
struct Joined : RunningFleet, TestWindow {
    Joined()
        : RunningFleet(fleetOf(6, MasterPort))
        , TestWindow(MasterPort, StartPort, [](SettingsStore& settings) {
            settings.save(Keys::RefreshServers.key, QStringLiteral("0"));
            settings.save(Keys::CloseAfterJoin.key, QStringLiteral("0"));
            settings.save(Keys::Path.key, QStringLiteral("/opt/quake4/quake4.x86"));
        })
    {
        fleet.setServer(0, {{"si_name", "^1Locked"}, {"si_usepass", "1"}, {"si_maxplayers", "8"}}, {});
        fleet.setServer(1, {{"si_name", "^2Open"}, {"si_usepass", "0"}, {"si_maxplayers", "8"}}, {});
        fleet.setServer(2, {{"si_name", "^3Modded"}, {"si_map", "mp/q4dm9"}, {"fs_game", "q4max"}}, {});
        fleet.setServer(3, {{"si_name", "^4Base"}, {"si_map", "mp/q4dm1"}, {"si_maxplayers", "8"}}, {});
        if (!queryMasters())
            qFatal("the query did not finish");
    }
    // The editors have entries of the same names: take the list menu's own.
    QAction* listAction(const char* name) const
    {
        return find<QMenu>("mPopupAlt")->findChild<QAction*>(QLatin1String(name));
    }
    ReportView* servers() const { return list("lstServerList"); }
    QString address(quint16 serverIndex) const
    {
        return QStringLiteral("127.0.0.1:%1").arg(MasterPort + 1 + serverIndex);
    }
    QPoint rowOf(quint16 serverIndex) const
    {
        for (int row = 0; row < servers()->model()->rowCount(); ++row) {
            if (servers()->model()->index(row, ServerListModel::Address).data().toString() == address(serverIndex))
                return servers()->visualRect(servers()->model()->index(row, 0)).center();
        }
        qFatal("row not listed");
    }
    void click(Qt::MouseButton button, QPoint at) const
    {
        QTest::mousePress(servers()->viewport(), button, {}, at);
        QTest::mouseRelease(servers()->viewport(), button, {}, at);
        if (auto* menu = find<QMenu>("mPopupAlt"))
            menu->hide();
    }
    void doubleClick(quint16 serverIndex) const
    {
        click(Qt::LeftButton, rowOf(serverIndex));
        QTest::mouseDClick(servers()->viewport(), Qt::LeftButton, {}, rowOf(serverIndex));
    }
};

} // namespace

class TestFrmMainJoin final : public QObject {
    Q_OBJECT

private slots:
    // With the game's folder known, a server whose map or mod the game
    // lacks is asked about before the game starts; one it has is not. The
    // folder is read once, off the window's thread.
    void aMissingMapIsAskedAboutFirst()
    {
        Joined j;
        QTemporaryDir game;
        QVERIFY(QDir(game.path()).mkpath(QStringLiteral("q4base")));
        QVERIFY(writeZip(game.filePath(QStringLiteral("q4base/pak001.pk4")), {"maps/mp/q4dm1.map"}));
        j.settings().save(Keys::Path.key, game.filePath(QStringLiteral("quake4.x86")));
        j.doubleClick(3);
        QTRY_COMPARE(j.desktop.starts.size(), 1);
        QVERIFY(j.desktop.messages.isEmpty());
        // The selected server's rules say so, last.
        const auto lastRule = [&j] {
            QAbstractItemModel* rules = j.find<ReportView>("lvwServerInfo")->model();
            const int last = rules->rowCount() - 1;
            return rules->index(last, 0).data().toString() + QLatin1Char('=') + rules->index(last, 1).data().toString();
        };
        QTRY_COMPARE(lastRule(), QStringLiteral("map on this machine=installed"));

        j.desktop.messageAnswers.enqueue(QMessageBox::No);
        j.doubleClick(2);
        QCOMPARE(j.desktop.messages.size(), 1);
        QCOMPARE(j.desktop.messages.first().text,
                 QStringLiteral("mp/q4dm9 is not installed (mod q4max). Join anyway?"));
        QCOMPARE(j.desktop.messages.first().title, QStringLiteral("Modded"));
        QCOMPARE(j.desktop.starts.size(), 1);
        j.desktop.messageAnswers.enqueue(QMessageBox::Yes);
        j.doubleClick(2);
        QCOMPARE(j.desktop.starts.size(), 2);
        QCOMPARE(j.desktop.starts.last().arguments.last(), j.address(2));
        QCOMPARE(lastRule(), QStringLiteral("map on this machine=missing"));
    }

    void doubleClickStartsTheGame()
    {
        Joined j;
        j.find<QComboBox>("cmbPlayerName")->setEditText(QStringLiteral("^1Me \"quoted\""));
        j.doubleClick(1);
        QCOMPARE(j.desktop.starts.size(), 1);
        const auto& start = j.desktop.starts.first();
        QCOMPARE(start.program, QStringLiteral("/opt/quake4/quake4.x86"));
        QCOMPARE(start.workingFolder, QStringLiteral("/opt/quake4"));
        QCOMPARE(start.arguments, (QStringList{"+set", "ui_name", "^1Me \"quoted\"", "+connect", j.address(1)}));
        QCOMPARE(j.find<QLabel>("lblStatus")->text(), QStringLiteral("Connecting to ") + j.address(1));
        QVERIFY2(j.window->isVisible(), "CloseAfterJoin 0 keeps the program open");

        // A game that does not start keeps the program open and says why.
        j.settings().save(Keys::CloseAfterJoin.key, QStringLiteral("1"));
        j.desktop.startSucceeds = false;
        j.doubleClick(1);
        QCOMPARE(j.desktop.starts.size(), 2);
        QVERIFY(j.window->isVisible());
        QCOMPARE(j.status(), QStringLiteral("The game could not be started: /opt/quake4/quake4.x86 does not exist."));
        QCOMPARE(j.statusColour(), StatusLine::colour(StatusTone::Failed));

        j.desktop.startSucceeds = true;
        j.doubleClick(1);
        QCOMPARE(j.desktop.starts.size(), 3);
        QVERIFY(!j.window->isVisible());
    }

    void aDoubleClickAfterARightPressDoesNotJoin()
    {
        Joined j;
        j.click(Qt::RightButton, j.rowOf(1));
        QTest::mouseDClick(j.servers()->viewport(), Qt::LeftButton, {}, j.rowOf(1));
        QVERIFY(j.desktop.starts.isEmpty());
        // The Join button works after a right click all the same.
        j.find<QPushButton>("cmdJoin")->click();
        QCOMPARE(j.desktop.starts.size(), 1);
    }

    void theKeyboardAloneSelectsOpensTheMenuAndJoins()
    {
        Joined j;
        QVERIFY(j.show());
        j.servers()->setFocus(Qt::TabFocusReason);
        auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
            QWidget* focus = QApplication::focusWidget();
            QVERIFY(focus);
            QTest::keyClick(focus, key, modifiers);
        };
        // Nothing selected yet: Enter does nothing.
        press(Qt::Key_Return);
        QVERIFY(j.desktop.starts.isEmpty());

        // Arrow keys select (a row without a password, so nothing is asked).
        press(Qt::Key_Home);
        auto addressShown = [&j] {
            return j.servers()->currentIndex().siblingAtColumn(ServerListModel::Address).data().toString();
        };
        if (addressShown() == j.address(0))
            press(Qt::Key_Down);
        const QModelIndex first = j.servers()->currentIndex();
        QCOMPARE(j.servers()->selectedRow(), first.row());
        const QString address = addressShown();
        QVERIFY(address != j.address(0));

        // Shift+F10 and the menu key open the list's menu on that row, not
        // at the pointer. The desktop turns the menu key into a keyboard
        // context menu event for the focus widget; the offscreen platform
        // does not, so that event is sent as the desktop would send it.
        auto* menu = j.find<QMenu>("mPopupAlt");
        const QRect row = j.servers()->visualRect(first);
        const QPoint below = j.servers()->viewport()->mapToGlobal(QPoint(row.left(), row.bottom()));
        press(Qt::Key_F10, Qt::ShiftModifier);
        QTRY_VERIFY(menu->isVisible());
        QCOMPARE(menu->pos(), below);
        menu->hide();
        QContextMenuEvent menuKey(QContextMenuEvent::Keyboard, QPoint(0, 0), QCursor::pos());
        QApplication::sendEvent(QApplication::focusWidget(), &menuKey);
        QTRY_VERIFY(menu->isVisible());
        QCOMPARE(menu->pos(), below);
        menu->hide();

        // Enter joins like a double click; Ctrl+Enter is not Enter.
        press(Qt::Key_Return, Qt::ControlModifier);
        QVERIFY(j.desktop.starts.isEmpty());
        press(Qt::Key_Return);
        QCOMPARE(j.desktop.starts.size(), 1);
        QCOMPARE(j.desktop.starts.first().arguments.last(), address);
        // The keypad's Enter too, although it carries a modifier of its own.
        press(Qt::Key_Enter, Qt::KeypadModifier);
        QCOMPARE(j.desktop.starts.size(), 2);
    }

    void passwordFromTheFavouritesOrTheUser()
    {
        Joined j;
        QFile favourites(j.dataFile(QStringLiteral("favourites.dat")));
        QVERIFY(favourites.open(QIODevice::WriteOnly));
        favourites.write(QStringLiteral("%1\x01old\x01Locked\r\n%1\x01"
                                        "fav\x01Locked\r\n")
                             .arg(j.address(0))
                             .toLatin1());
        favourites.close();
        j.doubleClick(0);
        QVERIFY2(j.desktop.inputs.isEmpty(), "a stored password needs no prompt");
        QCOMPARE(j.desktop.starts.last().arguments.mid(2), (QStringList{"+set", "password", "fav"}));

        QVERIFY(favourites.remove());
        j.desktop.inputAnswers.enqueue(std::nullopt); // cancelled: an empty answer
        j.desktop.messageAnswers.enqueue(QMessageBox::No);
        j.doubleClick(0);
        QCOMPARE(j.desktop.inputs.last().title, QStringLiteral("Locked"));
        QCOMPARE(j.desktop.inputs.last().prompt, QStringLiteral("Please enter the password for this server"));
        QCOMPARE(j.desktop.inputs.last().echo, Desktop::Echo::Secret);
        QCOMPARE(j.desktop.messages.last().text, QStringLiteral("Join Server Anyway?"));
        QCOMPARE(j.desktop.messages.last().title, QStringLiteral("No Password Provided"));
        QCOMPARE(j.desktop.starts.size(), 1);

        j.desktop.inputAnswers.enqueue(QStringLiteral("typed"));
        j.doubleClick(0);
        QCOMPARE(j.desktop.starts.last().arguments.last(), QStringLiteral("typed"));
        QVERIFY(!j.find<QLabel>("lblStatus")->text().contains(QStringLiteral("typed")));
        QCOMPARE(j.desktop.unexpectedCalls, 0);
    }

    // Nothing installed where the game is looked for: the documented file
    // dialog, once, opened in the home folder.
    void theExecutableIsAskedForOnce()
    {
        Joined j;
        j.settings().save(Keys::Path.key, QString());
        j.desktop.fileAnswers.enqueue(QString()); // cancelled
        j.doubleClick(1);
        QTRY_COMPARE(j.desktop.fileRequests.size(), 1);
        QVERIFY(j.desktop.starts.isEmpty());
        QCOMPARE(j.desktop.fileRequests.last().title, QStringLiteral("Select your Quake 4 Executable"));
        QCOMPARE(j.desktop.fileRequests.last().filter, QStringLiteral("Quake 4 Executable (*)"));
        QCOMPARE(j.desktop.fileRequests.last().folder, QDir::homePath());
        j.desktop.fileAnswers.enqueue(QStringLiteral("/games/q4/quake4"));
        j.doubleClick(1);
        QCOMPARE(j.settings().get(Keys::Path.key), QStringLiteral("/games/q4/quake4"));
        QCOMPARE(j.desktop.starts.last().workingFolder, QStringLiteral("/games/q4"));
        j.doubleClick(1);
        QCOMPARE(j.desktop.fileRequests.size(), 2);
        QCOMPARE(j.desktop.starts.size(), 2);
    }

    void joinByTypedAddress()
    {
        Joined j;
        j.desktop.inputAnswers.enqueue(QString());
        j.find<QPushButton>("cmdJoinIP")->click();
        QVERIFY(j.desktop.starts.isEmpty());
        QCOMPARE(j.desktop.inputs.last().title, QStringLiteral("Join server by IP Address"));
        j.desktop.inputAnswers.enqueue(QStringLiteral("q4.example.org:28004"));
        j.find<QPushButton>("cmdJoinIP")->click();
        QCOMPARE(j.desktop.starts.last().arguments, (QStringList{"+connect", "q4.example.org:28004"}));

        // Not an address: said, offered again as typed, and nothing starts.
        const auto starts = j.desktop.starts.size();
        j.desktop.inputAnswers.enqueue(QStringLiteral("foo bar"));
        j.desktop.messageAnswers.enqueue(QMessageBox::Ok);
        j.desktop.inputAnswers.enqueue(std::nullopt);
        j.find<QPushButton>("cmdJoinIP")->click();
        QVERIFY(j.desktop.messages.last().text.startsWith(QStringLiteral("\"foo bar\" is not a server address.")));
        QCOMPARE(j.desktop.inputs.last().initialText, QStringLiteral("foo bar"));
        QCOMPARE(j.desktop.starts.size(), starts);
    }

    void copyCommandsAndAddToFavourites()
    {
        Joined j;
        QHeaderView* header = j.servers()->header();
        header->moveSection(header->visualIndex(ServerListModel::Address), 0);
        const QPoint at = j.rowOf(1);
        j.click(Qt::RightButton, at); // saves the column order, notes the column
        j.listAction("mPopCopyRow")->trigger();
        const QStringList cells = QGuiApplication::clipboard()->text().split(QStringLiteral("     "));
        QCOMPARE(cells.first(), j.address(1));
        QCOMPARE(cells.at(1), QStringLiteral("Open"));
        j.listAction("mPopCopyCell")->trigger();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("Open"));
        j.listAction("mPopCopyColumn")->trigger();
        QCOMPARE(QGuiApplication::clipboard()->text().split(QStringLiteral("\r\n")).size(), 6);

        j.listAction("mPopAdd")->trigger();
        QCOMPARE(j.status(), QStringLiteral("Open was added to your favourites."));
        j.listAction("mPopAdd")->trigger();
        QFile favourites(j.dataFile(QStringLiteral("favourites.dat")));
        QVERIFY(favourites.open(QIODevice::ReadOnly));
        const QByteArray line = j.address(1).toLatin1() + "\x01\x01Open\r\n";
        QCOMPARE(favourites.readAll(), line + line);
        favourites.close();

        // A favourites file that cannot be written is said so, in red.
        QVERIFY(favourites.remove());
        QVERIFY(QDir(j.dataFile(QString())).mkdir(QStringLiteral("favourites.dat")));
        j.listAction("mPopAdd")->trigger();
        QCOMPARE(j.status(), QStringLiteral("The favourites file could not be written."));
        QCOMPARE(j.statusColour(), StatusLine::colour(StatusTone::Failed));

        // Join from the menu joins the row's server, as a double click does.
        const int starts = int(j.desktop.starts.size());
        j.listAction("mPopJoin")->trigger();
        QCOMPARE(j.desktop.starts.size(), starts + 1);
        QCOMPARE(j.desktop.starts.last().arguments.last(), j.address(1));
    }
};

QTEST_MAIN(TestFrmMainJoin)
#include "tst_frmmain_join.moc"
