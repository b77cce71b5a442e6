// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/serverlistmodel.h"
#include "presentation/frmabout.h"
#include "presentation/frmoptions.h"
#include "testwindow.h"
#include "widgets/historycombobox.h"
#include "widgets/mnemonics.h"

#include <QAction>
#include <QApplication>
#include <QComboBox>
#include <QHeaderView>
#include <QLabel>
#include <QLayout>
#include <QLineEdit>
#include <QPushButton>
#include <QSplitter>
#include <QStyledItemDelegate>
#include <QTabBar>
#include <QTemporaryDir>
#include <QTest>

// What the window remembers between runs: its size and state, the tab,
// the splitters, every list's columns and sort.
class TestWindowState final : public QObject {
    Q_OBJECT

    SettingsPerTest m_files;
    SettingsStore* m_settings = nullptr;

private slots:
    void init() { m_settings = &m_files.next(); }

    void storedTabChoosesTheView_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("tab");
        QTest::newRow("0 is Players") << "0" << 0;
        QTest::newRow("1 is Servers") << "1" << 1;
        QTest::newRow("any other number is Servers") << "7" << 1;
        QTest::newRow("garbage reads 0") << "x" << 0;
    }

    void storedTabChoosesTheView()
    {
        QFETCH(QString, stored);
        QFETCH(int, tab);
        m_settings->save(Keys::Tab.key, stored);
        TestWindow run(*m_settings);
        QVERIFY(run.show());
        QCOMPARE(run.find<QTabBar>("tabSelect")->currentIndex(), tab);
        QCOMPARE(run.list("lstPlayerList")->isVisible(), tab == 0);
        QCOMPARE(run.find<QSplitter>("rzrPSI")->isVisible(), tab == 1);
        QCOMPARE(run.find<QAction>("mPopSelServer")->isVisible(), tab == 0);
    }

    void switchingViewsKeepsThePanesWhereTheyWere()
    {
        m_settings->save(Keys::Tab.key, QStringLiteral("1"));
        TestWindow run(*m_settings);
        QVERIFY(run.show());
        auto* tabs = run.find<QTabBar>("tabSelect");
        auto* rzrPSI = run.find<QSplitter>("rzrPSI");
        auto* rzrSPSI = run.find<QSplitter>("rzrSPSI");
        const QList<int> listAndPanes = rzrPSI->sizes();
        const QList<int> panes = rzrSPSI->sizes();
        // There and back, twice: nothing stored yet, so the sizes the user
        // saw are the ones to come back to.
        for (int round = 0; round < 2; ++round) {
            QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(FrmMain::PlayersTab).center());
            QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(FrmMain::ServersTab).center());
            QVERIFY(rzrSPSI->isVisible());
            QTRY_COMPARE(rzrPSI->sizes(), listAndPanes);
            QCOMPARE(rzrSPSI->sizes(), panes);
        }
        QVERIFY(!m_settings->contains(Keys::SplitterServerList.key));
    }

    void layoutSurvivesARestart()
    {
        {
            TestWindow run(*m_settings);
            QVERIFY(run.show());
            run.window->resize(640, 580);
            QHeaderView* servers = run.header("lstServerList");
            servers->moveSection(servers->visualIndex(7), 0); // address column first
            servers->resizeSection(7, 177);
            run.header("lstPlayerList")->moveSection(0, 3);
            run.header("lvwServerInfo")->resizeSection(1, 222);

            auto* rzrPSI = run.find<QSplitter>("rzrPSI");
            QSplitterHandle* handle = rzrPSI->handle(1);
            const QPoint middle = handle->rect().center();
            QTest::mousePress(handle, Qt::LeftButton, {}, middle);
            QTest::mouseMove(handle, middle + QPoint(0, 40));
            QTest::mouseRelease(handle, Qt::LeftButton, {}, middle + QPoint(0, 40));
            QVERIFY(m_settings->contains(Keys::SplitterServerList.key));
            QVERIFY(m_settings->contains(Keys::SplitterPanes.key));
            const int serverListHeight = rzrPSI->sizes().first();
            QCOMPARE(m_settings->getNumber(Keys::SplitterServerList.key, -1), serverListHeight);

            auto* name = run.find<HistoryComboBox>("cmbPlayerName");
            name->setEditText(QStringLiteral("^1Fragger"));
            name->remember(QStringLiteral("^1Fragger"));
            name->remember(QStringLiteral("Other"));
            run.find<HistoryComboBox>("cmbPassword")->setEditText(QStringLiteral("secret"));
            run.find<HistoryComboBox>("cmbFind")->remember(QStringLiteral("clan"));
            run.find<QTabBar>("tabSelect")->setCurrentIndex(FrmMain::PlayersTab);
            QTest::mouseClick(run.find<QPushButton>("cmdExit"), Qt::LeftButton);
            QVERIFY(!run.window->isVisible());
        }
        QCOMPARE(m_settings->get(Keys::WindowWidth.key), QStringLiteral("640"));
        QCOMPARE(m_settings->get(Keys::Maximized.key), QStringLiteral("False"));
        QCOMPARE(m_settings->get(Keys::Tab.key), QStringLiteral("0"));
        QCOMPARE(m_settings->get(u"SColumnOrder0"), QStringLiteral("7"));
        QCOMPARE(m_settings->get(u"SColumnWidth7"), QStringLiteral("177"));
        QCOMPARE(m_settings->get(u"SIColumnWidth1"), QStringLiteral("222"));
        QCOMPARE(m_settings->get(Keys::PlayerNameBox.key), QStringLiteral("^1Fragger\u0001Other\u0001"));

        m_settings->save(Keys::Tab.key, QStringLiteral("1"));
        QVERIFY(!m_settings->contains(u"SColumnOrder8")); // the country column, hidden
        m_settings->save(u"SColumnShown8", QStringLiteral("1"));
        TestWindow again(*m_settings);
        QVERIFY(again.show());
        QCOMPARE(again.window->size(), QSize(640, 580));
        QCOMPARE(again.header("lstServerList")->logicalIndex(0), 7);
        QCOMPARE(again.header("lstServerList")->sectionSize(7), 177);
        QVERIFY(!again.header("lstServerList")->isSectionHidden(8));
        QCOMPARE(again.header("lstPlayerList")->logicalIndex(3), 0);
        QCOMPARE(again.header("lvwServerInfo")->sectionSize(1), 222);
        QCOMPARE(again.find<QSplitter>("rzrPSI")->sizes().first(),
                 m_settings->getNumber(Keys::SplitterServerList.key, -1));
        auto* name = again.find<HistoryComboBox>("cmbPlayerName");
        QCOMPARE(name->currentText(), QStringLiteral("^1Fragger"));
        QCOMPARE(name->entries(), (QStringList{"^1Fragger", "Other"}));
        QCOMPARE(again.find<HistoryComboBox>("cmbPassword")->currentText(), QStringLiteral("secret"));
        QCOMPARE(again.find<HistoryComboBox>("cmbFind")->entries(), QStringList{"clan"});
    }

    void closingWritesEveryListsColumns()
    {
        {
            TestWindow run(*m_settings);
            QVERIFY(run.show());
            run.window->close();
        }
        const struct {
            const char16_t* prefix;
            int columns;
        } lists[] = {{u"S", 8}, {u"P", 11}, {u"SP", 5}, {u"SI", 2}};
        for (const auto& list : lists) {
            const QString prefix = QString::fromUtf16(list.prefix);
            for (int column = 0; column < list.columns; ++column) {
                QCOMPARE(m_settings->get(prefix + "ColumnOrder" + QString::number(column)), QString::number(column));
                QVERIFY(m_settings->getNumber(prefix + "ColumnWidth" + QString::number(column), 0) > 0);
            }
            QVERIFY(!m_settings->contains(prefix + "ColumnOrder" + QString::number(list.columns)));
        }
        // The sorts are written by column clicks only.
        QVERIFY(!m_settings->contains(u"SSortOrder"));
    }

    void restoredSortOnlySetsTheState()
    {
        m_settings->save(u"SSortKey", QStringLiteral("3"));
        m_settings->save(u"SSortOrder", QStringLiteral("0"));
        m_settings->save(u"PSortKey", QStringLiteral("7"));
        TestWindow run(*m_settings);
        QCOMPARE(run.window->serverSort(), (ColumnLayout::SortState{3, 0}));
        QCOMPARE(run.window->playerSort(), (ColumnLayout::SortState{7, 1}));
        QVERIFY(!run.header("lstServerList")->isSortIndicatorShown());
    }

    void maximizedWindowRestartsAtItsNormalSizeThenMaximizes()
    {
        m_settings->save(Keys::WindowWidth.key, QStringLiteral("620"));
        m_settings->save(Keys::WindowHeight.key, QStringLiteral("560"));
        m_settings->save(Keys::Maximized.key, QStringLiteral("True"));
        {
            TestWindow run(*m_settings);
            QVERIFY(run.show());
            QTRY_VERIFY(run.window->isMaximized());
            QCOMPARE(run.window->normalGeometry().size(), QSize(620, 560));
            run.window->close();
        }
        QCOMPARE(m_settings->get(Keys::Maximized.key), QStringLiteral("True"));
        QCOMPARE(m_settings->get(Keys::WindowWidth.key), QStringLiteral("620"));
        QCOMPARE(m_settings->get(Keys::WindowHeight.key), QStringLiteral("560"));
    }

    void resizingIsStoredButMinimizingIsNot()
    {
        TestWindow run(*m_settings);
        QVERIFY(run.show());
        run.window->resize(700, 600);
        QCOMPARE(m_settings->get(Keys::WindowWidth.key), QStringLiteral("700"));
        QCOMPARE(m_settings->get(Keys::WindowHeight.key), QStringLiteral("600"));
        run.window->showMinimized();
        QTRY_VERIFY(run.window->isMinimized());
        run.window->resize(520, 550);
        QCOMPARE(m_settings->get(Keys::WindowWidth.key), QStringLiteral("700"));
        QCOMPARE(m_settings->get(Keys::WindowHeight.key), QStringLiteral("600"));
    }

    void storedSizeBelowTheMinimumIsRaised()
    {
        m_settings->save(Keys::WindowWidth.key, QStringLiteral("junk"));
        m_settings->save(Keys::WindowHeight.key, QStringLiteral("100"));
        TestWindow run(*m_settings);
        QVERIFY(run.show());
        QCOMPARE(run.window->size(), FrmMain::MinimumSize);
    }
};

QTEST_MAIN(TestWindowState)
#include "tst_windowstate.moc"
