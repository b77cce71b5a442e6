// SPDX-License-Identifier: GPL-2.0-or-later
#include "friendsfleet.h"

// Waiting for a free slot on a full server: the offer, the wait, its ends.
class TestFrmMainSlotWait final : public QObject {
    Q_OBJECT

private slots:
    // Full: the user waits, the server is asked every 5 s, a slot frees,
    // the game starts, and the server is in Recently Played.
    void aSlotFreesAndTheJoinRuns()
    {
        Listed w;
        w.desktop.messageAnswers.enqueue(QMessageBox::Yes);
        w.doubleClickServer(1);
        QCOMPARE(w.desktop.messages.last().text,
                 QStringLiteral("Full is full.\nWait for a free slot and join as soon as one opens?"));
        // The buttons say what they do.
        QCOMPARE(w.desktop.messages.last().buttonTexts,
                 (Desktop::ButtonTexts{{QMessageBox::Yes, "Wait for a Slot"}, {QMessageBox::No, "Join Anyway"}}));
        QVERIFY(w.window->slotWaiter().isWaiting());
        QVERIFY(w.button("cmdStopWaiting")->isVisible());
        QVERIFY(w.status().startsWith(QLatin1String("Full is full (2/2): waiting")));
        QVERIFY(w.desktop.starts.isEmpty());

        const int asked = w.fleet.servers().at(1).requests;
        w.desktop.manualClock.advance(SlotWait::IntervalMs);
        QVERIFY(QTest::qWaitFor([&] { return w.fleet.servers().at(1).requests == asked + 1; }, 3000));
        QTest::qWait(100); // its answer: still full
        QVERIFY(w.desktop.starts.isEmpty());

        w.fleet.setServer(1, rules("^2Full", 2), players({"One"}));
        w.desktop.manualClock.advance(SlotWait::IntervalMs);
        QVERIFY(QTest::qWaitFor([&] { return !w.desktop.starts.isEmpty(); }, 3000));
        QCOMPARE(w.desktop.starts.first().arguments.join(' '), QStringLiteral("+connect ") + w.address(1));
        QVERIFY(!w.window->slotWaiter().isWaiting());
        QVERIFY(!w.button("cmdStopWaiting")->isVisible());
        QCOMPARE(w.fleet.servers().at(1).requests, asked + 2); // one request a round, never more

        const PlayHistory::List history = PlayHistory::readFile(w.dataFile(QStringLiteral("history.dat")));
        QCOMPARE(history.size(), 1);
        QCOMPARE(history.first().endpointText(), w.address(1));
        QCOMPARE(history.first().name, QStringLiteral("Full"));
        QCOMPARE(history.first().joinedAt, w.desktop.manualClock.nowMs() / 1000);

        // Found again in Recently Played, and queried from there. An older
        // entry is of a server that no longer answers.
        PlayHistory::List older = history;
        older.append({"127.0.0.1", 9, "Gone", history.first().joinedAt - 60});
        QVERIFY(PlayHistory::writeFile(w.dataFile(QStringLiteral("history.dat")), older));
        QTest::mouseClick(w.button("cmdRecent"), Qt::LeftButton);
        auto* recent = w.window->findChild<FrmHistory*>(QStringLiteral("frmHistory"));
        QVERIFY(recent && recent->isVisible());
        auto* rows = recent->findChild<ReportView*>(QStringLiteral("lstHistory"));
        QCOMPARE(rows->model()->index(0, HistoryModel::Name).data().toString(), QStringLiteral("Full"));
        QCOMPARE(rows->model()->index(0, HistoryModel::Address).data().toString(), w.address(1));
        QTest::mouseClick(recent->findChild<QPushButton*>(QStringLiteral("cmdQueryHistory")), Qt::LeftButton);
        QVERIFY(QTest::qWaitFor([&] { return w.status() == QLatin1String("Done"); }, 5000));
        QCOMPARE(w.addressesShown(), QStringList{w.address(1)});

        // A double click on a listed server shows it in the Servers view;
        // Enter on one that is not listed says how to find it.
        w.clickTab(FrmMain::PlayersTab);
        const QPoint full = rows->visualRect(rows->model()->index(0, 0)).center();
        QTest::mouseClick(rows->viewport(), Qt::LeftButton, {}, full);
        QTest::mouseDClick(rows->viewport(), Qt::LeftButton, {}, full);
        QCOMPARE(w.window->findChild<QTabBar*>(QStringLiteral("tabSelect"))->currentIndex(), int(FrmMain::ServersTab));
        QCOMPARE(w.servers()->currentIndex().siblingAtColumn(ServerListModel::Address).data().toString(), w.address(1));
        rows->setFocus(Qt::TabFocusReason);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Down);
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QVERIFY(recent->isVisible());
        QCOMPARE(recent->findChild<QLabel*>(QStringLiteral("lblEmpty"))->text(),
                 QStringLiteral("Gone is not listed now: \"Query Recently Played\" asks every server you played on."));
    }

    void waitingEnds()
    {
        Listed w;
        // Stop Waiting.
        w.desktop.messageAnswers.enqueue(QMessageBox::Yes);
        w.doubleClickServer(1);
        QVERIFY(w.window->slotWaiter().isWaiting());
        QTest::mouseClick(w.button("cmdStopWaiting"), Qt::LeftButton);
        QVERIFY(!w.window->slotWaiter().isWaiting());
        QCOMPARE(w.status(), QStringLiteral("Stopped waiting for a free slot."));
        QCOMPARE(w.desktop.manualClock.activeAlarms(), 1); // the refresh's only

        // Joining another server.
        w.desktop.messageAnswers.enqueue(QMessageBox::Yes);
        w.doubleClickServer(1);
        QVERIFY(w.window->slotWaiter().isWaiting());
        w.doubleClickServer(0);
        QVERIFY(!w.window->slotWaiter().isWaiting());
        QCOMPARE(w.desktop.starts.size(), 1);
        QCOMPARE(w.desktop.starts.last().arguments.last(), w.address(0));

        // Half an hour of a silent server.
        w.fleet.setSilent(1, true);
        w.settings().set(Keys::AutoRefreshMinutes, 0);
        w.desktop.messageAnswers.enqueue(QMessageBox::Yes);
        w.doubleClickServer(1);
        w.desktop.manualClock.advance(SlotWait::MaxWaitMs - SlotWait::IntervalMs);
        QVERIFY(w.window->slotWaiter().isWaiting());
        w.desktop.manualClock.advance(SlotWait::IntervalMs);
        QVERIFY(!w.window->slotWaiter().isWaiting());
        QCOMPARE(w.status(), QStringLiteral("No slot came free on Full in 30 minutes: stopped waiting."));
        QCOMPARE(w.desktop.starts.size(), 1);

        // No: the documented join, at once. Cancel: nothing.
        w.desktop.messageAnswers.enqueue(QMessageBox::No);
        w.doubleClickServer(1);
        QCOMPARE(w.desktop.starts.size(), 2);
        w.desktop.messageAnswers.enqueue(QMessageBox::Cancel);
        w.doubleClickServer(1);
        QCOMPARE(w.desktop.starts.size(), 2);
        QVERIFY(!w.window->slotWaiter().isWaiting());

        // A query the user runs meanwhile answers for the awaited server.
        w.desktop.messageAnswers.enqueue(QMessageBox::Yes);
        w.doubleClickServer(1);
        QVERIFY(w.window->slotWaiter().isWaiting());
        w.fleet.setSilent(1, false);
        w.fleet.setServer(1, rules("^2Full", 2), players({"One"}));
        QVERIFY(w.queryMasters());
        QVERIFY(!w.window->slotWaiter().isWaiting());
        QCOMPARE(w.desktop.starts.size(), 3);
        QCOMPARE(w.desktop.starts.last().arguments.last(), w.address(1));
        w.fleet.setServer(1, rules("^2Full", 2), players({"One", "Two"}));
        QVERIFY(w.queryMasters());

        // Closing the program ends it too (the waiter goes with the window).
        w.desktop.messageAnswers.enqueue(QMessageBox::Yes);
        w.doubleClickServer(1);
        QVERIFY(w.window->slotWaiter().isWaiting());
        w.window.reset();
        QCOMPARE(w.desktop.manualClock.activeAlarms(), 0);
    }

    void theOfferCanBeTurnedOff()
    {
        Listed w([](SettingsStore& settings) { settings.set(Keys::OfferSlotWait, false); });
        w.doubleClickServer(1);
        QVERIFY(w.desktop.messages.isEmpty());
        QCOMPARE(w.desktop.starts.size(), 1);
        QCOMPARE(w.desktop.unexpectedCalls, 0);
    }
};

QTEST_MAIN(TestFrmMainSlotWait)
#include "tst_frmmain_slotwait.moc"
