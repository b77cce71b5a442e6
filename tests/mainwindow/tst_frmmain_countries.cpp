// SPDX-License-Identifier: GPL-2.0-or-later
#include "fleet.h"
#include "listedwindow.h"
#include "mainwindow/querycontroller.h"
#include "mainwindow/serverlistmodel.h"
#include "presentation/countries.h"
#include "simlocations.h"

#include <QApplication>
#include <QLabel>
#include <QTemporaryDir>

namespace {

const quint16 StartPort = TestPorts::at(2000);

// Three servers on 127.0.0.1 (Germany by the test database) and two on
// 127.0.0.9 (the United States), each group with its own master.
struct Spread {
    RunningFleet germany{fleetOf(3, TestPorts::at(1))};
    RunningFleet states{[] {
        FleetOptions options = fleetOf(2, TestPorts::at(101));
        options.address = QHostAddress(QStringLiteral("127.0.0.9"));
        return options;
    }()};
};

} // namespace

class TestFrmMainCountries final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;

private slots:
    // The flags and the country's name before each server, the country as
    // a rule to see and to filter by, and the About box naming the database.
    void serversAreShownInTheirCountries()
    {
        const QString database = m_dir.filePath(QStringLiteral("loopback.db"));
        QVERIFY(writeLoopbackCountries(database));
        Spread fleets;
        TestWindow w(TestPorts::at(1), StartPort, [&database](SettingsStore& settings) {
            settings.save(Keys::MasterServer.key,
                          QStringLiteral("127.0.0.1:%1 127.0.0.9:%2").arg(TestPorts::at(1)).arg(TestPorts::at(101)));
            settings.save(Keys::CountryDatabase.key, database);
        });
        QVERIFY(w.queryMasters(6000));
        QAbstractItemModel* list = w.visible("lstServerList");
        QCOMPARE(list->rowCount(), 5);
        QStringList tips;
        for (int row = 0; row < 5; ++row) {
            const QModelIndex name = list->index(row, ServerListModel::Name);
            QVERIFY(!name.data(Qt::DecorationRole).value<QIcon>().isNull());
            QVERIFY(list->index(row, ServerListModel::Map).data(Qt::DecorationRole).isNull());
            tips.append(name.data(Qt::ToolTipRole).toString());
        }
        QCOMPARE(tips.count(QStringLiteral("Germany")), 3);
        QCOMPARE(tips.count(QStringLiteral("United States of America")), 2);

        // The rules pane shows it after the protocol; a filter tests it.
        auto* servers = w.find<ReportView>("lstServerList");
        QTest::mouseClick(servers->viewport(), Qt::LeftButton, {}, servers->visualRect(list->index(0, 0)).center());
        // The selected server's name has its flag too.
        auto* flag = w.find<QLabel>("lblSFlag");
        QVERIFY(flag->isVisible());
        QCOMPARE(flag->toolTip(), tips.at(0));
        auto* rules = w.find<ReportView>("lvwServerInfo")->model();
        QCOMPARE(rules->index(1, 0).data().toString(), QStringLiteral("country"));
        QVERIFY(rules->index(1, 1).data().toString() == QLatin1String("DE") ||
                rules->index(1, 1).data().toString() == QLatin1String("US"));
        QTest::mouseClick(w.button("cmdFilters"), Qt::LeftButton);
        addFilter(w, QStringLiteral("country"), QStringLiteral("us"));
        QCOMPARE(list->rowCount(), 2);
        for (int row = 0; row < 2; ++row)
            QVERIFY(w.cell("lstServerList", row, ServerListModel::Address).startsWith(QStringLiteral("127.0.0.9:")));

        QCOMPARE(w.window->queries().countries().status(),
                 QStringLiteral("Countries: ") + CountryDatabase::open(database).database->description());
    }

    // Without a database nothing is placed and nothing is asked: no flag,
    // no rule, and the About box says why.
    void withoutADatabaseTheListIsAsBefore()
    {
        Spread fleets;
        const QString missing = m_dir.filePath(QStringLiteral("missing.db"));
        TestWindow w(TestPorts::at(1), StartPort,
                     [&missing](SettingsStore& settings) { settings.save(Keys::CountryDatabase.key, missing); });
        QVERIFY(w.queryMasters(6000));
        QAbstractItemModel* list = w.visible("lstServerList");
        QCOMPARE(list->rowCount(), 3);
        QVERIFY(list->index(0, ServerListModel::Name).data(Qt::DecorationRole).isNull());
        auto* servers = w.find<ReportView>("lstServerList");
        QTest::mouseClick(servers->viewport(), Qt::LeftButton, {}, servers->visualRect(list->index(0, 0)).center());
        QVERIFY(!w.find<QLabel>("lblSFlag")->isVisibleTo(w.window.get()));
        QVERIFY(w.desktop.messages.isEmpty());
        QVERIFY(w.window->queries().countries().status().contains(missing + QStringLiteral(" does not exist")));

        QVERIFY(w.show());
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
        QTRY_VERIFY(w.window->findChild<QLabel*>(QStringLiteral("lblNotes")));
        auto* notes = w.window->findChild<QLabel*>(QStringLiteral("lblNotes"));
        QCOMPARE(notes->text(), w.window->queries().countries().status());
    }

    // Without the flag package the country's code stands in for its flag.
    void withoutFlagsTheCodeStandsIn()
    {
        const Countries countries(m_dir.filePath(QStringLiteral("no-flags")));
        const QIcon drawn = countries.flag(QStringLiteral("DE"));
        QVERIFY(!drawn.isNull());
        QCOMPARE(drawn.availableSizes().value(0), QSize(16, 11));
        QVERIFY(countries.flag(QString()).isNull());
        if (QFile::exists(Countries::DebianFlags + QStringLiteral("/de.png")))
            QVERIFY(Countries().flag(QStringLiteral("DE")).pixmap(16, 11).toImage() != drawn.pixmap(16, 11).toImage());
    }
};

QTEST_MAIN(TestFrmMainCountries)
#include "tst_frmmain_countries.moc"
