// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/alerts.h"
#include "mainwindow/slotwaiter.h"
#include "platform/desktop.h"
#include "query/records.h"

#include <QTest>

using Alerts::Sighting;

namespace {

ServerRecord server(int players, int maxPlayers)
{
    ServerRecord record;
    record.playerCount = qint16(players);
    record.maxPlayers = qint16(maxPlayers);
    return record;
}

} // namespace

class TestAlerts final : public QObject {
    Q_OBJECT

private slots:
    void arrivals_data()
    {
        QTest::addColumn<QList<Sighting>>("before");
        QTest::addColumn<QList<Sighting>>("after");
        QTest::addColumn<QList<Sighting>>("arrived");

        const Sighting bobA{"Bob", "10.0.0.1:28004", "Alpha"};
        const Sighting bobB{"Bob", "10.0.0.2:28004", "Beta"};
        const Sighting amyA{"Amy", "10.0.0.1:28004", "Alpha"};
        QTest::newRow("nobody") << QList<Sighting>{} << QList<Sighting>{} << QList<Sighting>{};
        QTest::newRow("a friend appears") << QList<Sighting>{} << QList<Sighting>{bobA} << QList<Sighting>{bobA};
        QTest::newRow("still there") << QList<Sighting>{bobA} << QList<Sighting>{bobA} << QList<Sighting>{};
        QTest::newRow("moved to another server")
            << QList<Sighting>{bobA} << QList<Sighting>{bobB} << QList<Sighting>{bobB};
        QTest::newRow("left") << QList<Sighting>{bobA, amyA} << QList<Sighting>{amyA} << QList<Sighting>{};
        QTest::newRow("one of two new, once")
            << QList<Sighting>{bobA} << QList<Sighting>{bobA, amyA, amyA} << QList<Sighting>{amyA};
    }
    void arrivals()
    {
        QFETCH(QList<Sighting>, before);
        QFETCH(QList<Sighting>, after);
        QFETCH(QList<Sighting>, arrived);
        QCOMPARE(Alerts::arrivals(before, after), arrived);
    }

    void reached_data()
    {
        QTest::addColumn<int>("before");
        QTest::addColumn<int>("after");
        QTest::addColumn<int>("threshold");
        QTest::addColumn<bool>("told");

        QTest::newRow("crosses") << 5 << 8 << 8 << true;
        QTest::newRow("jumps past") << 2 << 12 << 8 << true;
        QTest::newRow("was there already") << 8 << 9 << 8 << false;
        QTest::newRow("below") << 5 << 7 << 8 << false;
        QTest::newRow("empties") << 9 << 3 << 8 << false;
        QTest::newRow("off") << 0 << 20 << 0 << false;
        QTest::newRow("not listed before") << -1 << 10 << 8 << false;
    }
    void reached()
    {
        QFETCH(int, before);
        QFETCH(int, after);
        QFETCH(int, threshold);
        QFETCH(bool, told);
        const QString address = QStringLiteral("10.0.0.1:28004");
        Alerts::Counts old;
        if (before >= 0)
            old.insert(address, {"Alpha", before});
        const Alerts::Counts now{{address, {"Alpha", after}}};
        QCOMPARE(Alerts::reached(old, now, threshold), told ? QList<QString>{address} : QList<QString>{});
    }

    void newsFitsItsPlace()
    {
        const QStringList five{"a", "b", "c", "d", "e"};
        QCOMPARE(Alerts::firstLines(five, 5).lines, five);
        QCOMPARE(Alerts::firstLines(five, 5).more, 0);
        QCOMPARE(Alerts::firstLines(five, 4).lines, (QStringList{"a", "b", "c"}));
        QCOMPARE(Alerts::firstLines(five, 4).more, 2);
        QCOMPARE(Alerts::firstLines(five, 2).lines, QStringList{"a"});
        QCOMPARE(Alerts::firstLines(five, 2).more, 4);
        QCOMPARE(Alerts::firstLines({"a", "b"}, 2).more, 0);
        QCOMPARE(Alerts::firstLines(five, 1).lines, QStringList{"a"}); // no room for "more"
        QCOMPARE(Alerts::firstLines(five, 1).more, 4);
    }

    // Names come from any server: news quotes them on one short line, and
    // a notification server that reads markup gets none from them.
    void hostileNamesReachTheNewsAsText_data()
    {
        QTest::addColumn<QString>("name");
        QTest::addColumn<QString>("shown");
        QTest::addColumn<QString>("markup");
        QTest::newRow("plain") << "Frag Arena"
                               << "Frag Arena"
                               << "Frag Arena";
        QTest::newRow("markup") << "<a href=\"https://evil.example\">Click</a>"
                                << "<a href=\"https://evil.example\">Click</a>"
                                << "&lt;a href=&quot;https://evil.example&quot;&gt;Click&lt;/a&gt;";
        QTest::newRow("lines") << "one\ntwo\r\u2028three"
                               << "one two  three"
                               << "one two  three";
        QTest::newRow("long") << QString(120000, QLatin1Char('x')) << QString(45, QLatin1Char('x')) + "..."
                              << QString(45, QLatin1Char('x')) + "...";
        QTest::newRow("exactly the limit")
            << QString(Alerts::MaxNameLength, QLatin1Char('y')) << QString(Alerts::MaxNameLength, QLatin1Char('y'))
            << QString(Alerts::MaxNameLength, QLatin1Char('y'));
    }
    void hostileNamesReachTheNewsAsText()
    {
        QFETCH(QString, name);
        QFETCH(QString, shown);
        QFETCH(QString, markup);
        QCOMPARE(Alerts::shortName(name), shown);
        QCOMPARE(Desktop::notificationMarkup(Alerts::shortName(name)), markup);
        QVERIFY(Desktop::notificationMarkup(QString(5000, QLatin1Char('<'))).size() <=
                Desktop::MaxNotificationLength * 4);
    }

    void whenWaitingEnds_data()
    {
        QTest::addColumn<qint64>("waitedMs");
        QTest::addColumn<int>("players"); // -1: no answer this round
        QTest::addColumn<int>("maxPlayers");
        QTest::addColumn<int>("step");

        constexpr int Keep = int(SlotWait::Step::KeepWaiting);
        constexpr int Join = int(SlotWait::Step::Join);
        constexpr int GiveUp = int(SlotWait::Step::GiveUp);
        const qint64 limit = SlotWait::MaxWaitMs;
        QTest::newRow("still full") << qint64(5000) << 16 << 16 << Keep;
        QTest::newRow("a slot frees") << qint64(5000) << 15 << 16 << Join;
        QTest::newRow("silent, in time") << qint64(60000) << -1 << 0 << Keep;
        QTest::newRow("more than full (bots)") << qint64(5000) << 18 << 16 << Keep;
        QTest::newRow("no maximum reported") << qint64(5000) << 4 << 0 << Join;
        QTest::newRow("full at the limit") << limit << 16 << 16 << GiveUp;
        QTest::newRow("silent at the limit") << limit << -1 << 0 << GiveUp;
        QTest::newRow("just before the limit") << limit - 1 << 16 << 16 << Keep;
        QTest::newRow("a slot on the last round") << limit + 10 << 15 << 16 << Join;
    }
    void whenWaitingEnds()
    {
        QFETCH(qint64, waitedMs);
        QFETCH(int, players);
        QFETCH(int, maxPlayers);
        QFETCH(int, step);
        const ServerRecord answer = server(players, maxPlayers);
        QCOMPARE(int(SlotWait::next(1000, 1000 + waitedMs, players < 0 ? nullptr : &answer)), step);
    }
};

QTEST_APPLESS_MAIN(TestAlerts)
#include "tst_alerts.moc"
