// SPDX-License-Identifier: GPL-2.0-or-later
#include "fleet.h"
#include "listedwindow.h"
#include "mainwindow/querycontroller.h"
#include "mainwindow/serverlistmodel.h"
#include "presentation/countries.h"
#include "simlocations.h"

#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QTemporaryDir>

namespace {

const quint16 StartPort = TestPorts::at(2000);

// Three servers on 127.0.0.1 (Germany by the test database) and two on
// 127.0.0.9 (the United States), each group with its own master.
struct Spread {
    RunningFleet germany{fleetOf(3, TestPorts::at(1))};
    RunningFleet states{[] {
        FleetOptions options = fleetOf(2, TestPorts::at(101));
        options.address = QHostAddress("127.0.0.9");
        return options;
    }()};
};

// Both fleets, each asked from its master, placed by the database.
struct Placed : Spread, TestWindow {
    explicit Placed(const QString& database)
        : TestWindow(TestPorts::at(1), StartPort, [&database](SettingsStore& settings) {
            settings.save(Keys::MasterServer.key,
                          QStringLiteral("127.0.0.1:%1 127.0.0.9:%2").arg(TestPorts::at(1)).arg(TestPorts::at(101)));
            settings.save(Keys::CountryDatabase.key, database);
        })
    {
    }
};

// A right click on the list's header (the menu event the desktop sends for
// it; QTest's clicks do not make one), then the menu's only entry ticked or
// unticked from the keyboard.
void toggleFromHeaderMenu(const ReportView* list)
{
    QWidget* header = list->header()->viewport();
    const QPoint at(20, 5);
    QContextMenuEvent click(QContextMenuEvent::Mouse, at, header->mapToGlobal(at));
    QApplication::sendEvent(header, &click);
    QTRY_VERIFY(qobject_cast<QMenu*>(QApplication::activePopupWidget()));
    QWidget* menu = QApplication::activePopupWidget();
    QCOMPARE(menu->objectName(), QStringLiteral("mPopupColumns"));
    QTest::keyClick(menu, Qt::Key_Down);
    QTest::keyClick(menu, Qt::Key_Return);
    QTRY_VERIFY(!QApplication::activePopupWidget());
}

void clickTitle(const ReportView* list, int column)
{
    QHeaderView* header = list->header();
    const QPoint at(header->sectionViewportPosition(column) + header->sectionSize(column) / 2, 5);
    QTest::mouseClick(header->viewport(), Qt::LeftButton, {}, at);
}

QStringList copiedRow(const TestWindow& w, int row)
{
    auto* list = w.find<ReportView>("lstServerList");
    const QPoint at = list->visualRect(list->model()->index(row, 0)).center();
    QTest::mousePress(list->viewport(), Qt::RightButton, {}, at);
    QTest::mouseRelease(list->viewport(), Qt::RightButton, {}, at);
    auto* menu = w.find<QMenu>("mPopupAlt");
    menu->findChild<QAction*>(QStringLiteral("mPopCopyRow"))->trigger();
    menu->hide();
    return QGuiApplication::clipboard()->text().split(QStringLiteral("     "));
}

} // namespace

class TestFrmMainCountries final : public QObject {
    Q_OBJECT

    QTemporaryDir m_dir;
    QString m_database = m_dir.filePath(QStringLiteral("loopback.db"));

private slots:
    void initTestCase() { QVERIFY(writeLoopbackCountries(m_database)); }

    // The flags and the country's name before each server, the country as
    // a rule to see and to filter by, and the About box naming the database.
    void serversAreShownInTheirCountries()
    {
        Placed w(m_database);
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
        QCOMPARE(tips.count(QStringLiteral("United States")), 2);

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
        for (const QString& address : w.column("lstServerList", ServerListModel::Address))
            QVERIFY(address.startsWith(QStringLiteral("127.0.0.9:")));

        QCOMPARE(w.window->queries().countries().status(),
                 QStringLiteral("Countries: ") + CountryDatabase::open(m_database).database->description());
    }

    // The "Country" column waits in the header's menu: shown, it sorts the
    // list by country and copied rows hold it; the choice is kept at once.
    void theCountryColumnIsShownFromTheHeader()
    {
        Placed w(m_database);
        QVERIFY(w.queryMasters(6000));
        QVERIFY(w.show());
        auto* servers = w.find<ReportView>("lstServerList");
        QHeaderView* header = servers->header();
        QVERIFY(header->isSectionHidden(ServerListModel::Country));
        QCOMPARE(copiedRow(w, 0).size(), 8);

        toggleFromHeaderMenu(servers);
        QVERIFY(!header->isSectionHidden(ServerListModel::Country));
        // Before the address, which takes the width left.
        QCOMPARE(header->visualIndex(ServerListModel::Country), header->visualIndex(ServerListModel::Address) - 1);
        QVERIFY(header->sectionSize(ServerListModel::Country) >= ServerListModel::Columns[8].designWidth);
        QCOMPARE(w.settings().get(u"SColumnShown8"), QStringLiteral("1"));

        QAbstractItemModel* list = servers->model();
        const auto countries = [&w] { return w.column("lstServerList", ServerListModel::Country); };
        clickTitle(servers, ServerListModel::Country);
        QCOMPARE(countries(), (QStringList{3, "Germany"} + QStringList{2, "United States"}));
        clickTitle(servers, ServerListModel::Country);
        QCOMPARE(countries().first(), QStringLiteral("United States"));
        QCOMPARE(w.settings().get(u"SSortKey"), QStringLiteral("8"));
        const QStringList cells = copiedRow(w, 0);
        QCOMPARE(cells.size(), 9);
        QCOMPARE(cells.at(7), QStringLiteral("United States"));
        QVERIFY(cells.last().startsWith(QStringLiteral("127.0.0.9:")));
        // The names follow the interface language.
        QVERIFY(w.language.apply(2)); // German
        QTRY_COMPARE(countries().first(), QStringLiteral("Vereinigte Staaten"));
        QCOMPARE(list->index(4, ServerListModel::Name).data(Qt::ToolTipRole).toString(), QStringLiteral("Deutschland"));
        QVERIFY(w.language.apply(0));

        toggleFromHeaderMenu(servers);
        QVERIFY(header->isSectionHidden(ServerListModel::Country));
        QCOMPARE(w.settings().get(u"SColumnShown8"), QStringLiteral("0"));
        QCOMPARE(copiedRow(w, 0).size(), 8);

        // The keyboard reaches the same entry through the list's menu:
        // Shift+F10 on a row, the submenu's letter, Enter.
        QTest::keyClick(w.focus(servers), Qt::Key_F10, Qt::ShiftModifier);
        QTRY_VERIFY(w.find<QMenu>("mPopupAlt")->isVisible());
        const QString columns = w.find<QMenu>("mPopColumns")->title();
        const QChar letter = columns.at(columns.indexOf(QLatin1Char('&')) + 1).toUpper();
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key(letter.unicode()));
        QTRY_COMPARE(QApplication::activePopupWidget()->objectName(), QStringLiteral("mPopColumns"));
        QTest::keyClick(QApplication::activePopupWidget(), Qt::Key_Return);
        QTRY_VERIFY(!header->isSectionHidden(ServerListModel::Country));
        QTRY_VERIFY(!QApplication::activePopupWidget());
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
