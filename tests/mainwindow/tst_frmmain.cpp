// SPDX-License-Identifier: GPL-2.0-or-later
#include "mainwindow/serverlistmodel.h"
#include "presentation/frmabout.h"
#include "presentation/frmoptions.h"
#include "testwindow.h"
#include "widgets/historycombobox.h"
#include "widgets/mnemonics.h"

#include <QAccessible>
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

namespace {

// The captions of the columns shown, in their own order.
QStringList headerCaptions(const QHeaderView* header)
{
    QStringList captions;
    for (int column = 0; column < header->count(); ++column) {
        if (!header->isSectionHidden(column))
            captions.append(header->model()->headerData(column, Qt::Horizontal).toString());
    }
    return captions;
}

} // namespace

namespace {

// Every text assistive technology reads from an interface and below it.
QStringList accessibleTexts(QAccessibleInterface* at, int depth = 0)
{
    QStringList texts;
    if (!at || depth > 4)
        return texts;
    for (QAccessible::Text kind : {QAccessible::Name, QAccessible::Value, QAccessible::Description})
        texts << at->text(kind);
    for (int i = 0; i < at->childCount(); ++i)
        texts << accessibleTexts(at->child(i), depth + 1);
    return texts;
}

} // namespace

class TestFrmMain final : public QObject {
    Q_OBJECT

    SettingsPerTest m_files;
    SettingsStore* m_settings = nullptr;

private slots:
    void init() { m_settings = &m_files.next(); }

    void firstStartShowsTheDesignTimeWindow()
    {
        TestWindow run(*m_settings);
        QVERIFY(run.show());
        QCOMPARE(run.window->objectName(), QStringLiteral("frmMain"));
        QCOMPARE(run.find<QTabBar>("tabSelect")->currentIndex(), int(FrmMain::ServersTab));
        QVERIFY(run.list("lstServerList")->isVisible());
        QVERIFY(run.list("lvwPlayers")->isVisible());
        QVERIFY(!run.list("lstPlayerList")->isVisible());
        QCOMPARE(run.window->size(), FrmMain::DesignSize);
        QVERIFY(!run.window->isMaximized());
        QCOMPARE(run.window->minimumSize(), FrmMain::MinimumSize);
        QVERIFY(run.window->layout()->minimumSize().width() <= FrmMain::MinimumSize.width());
        QVERIFY(run.window->layout()->minimumSize().height() <= FrmMain::MinimumSize.height());
        QCOMPARE(run.window->serverSort(), (ColumnLayout::SortState{0, 1}));
        QCOMPARE(run.window->playerSort(), (ColumnLayout::SortState{0, 1}));
        QVERIFY(!run.find<QPushButton>("cmdCancel")->isEnabled());
        // Screen readers name the boxes after their labels.
        QCOMPARE(run.find<QLabel>("lblPlayerName")->buddy(), run.find<HistoryComboBox>("cmbPlayerName"));
        QCOMPARE(run.find<QLabel>("lblPassword")->buddy(), run.find<HistoryComboBox>("cmbPassword"));
        for (const char* box : {"cmbFind", "cmbPlayerName", "cmbPassword"}) {
            QCOMPARE(run.find<HistoryComboBox>(box)->count(), 0);
            QCOMPARE(run.find<HistoryComboBox>(box)->currentText(), QString());
        }
        for (const char* name : {"lstServerList", "lstPlayerList", "lvwPlayers", "lvwServerInfo"}) {
            const QHeaderView* header = run.header(name);
            for (int position = 0; position < header->count(); ++position)
                QCOMPARE(header->logicalIndex(position), position);
        }
        QCOMPARE(run.find<QAction>("mPopSelServer")->isVisible(), false);
        // Without stored sizes both splitters keep usable panes.
        for (const char* name : {"rzrPSI", "rzrSPSI"}) {
            const QList<int> sizes = run.find<QSplitter>(name)->sizes();
            QVERIFY2(sizes.first() >= 60 && sizes.last() >= 60, name);
        }
        // The server list and the selected server's players show every
        // column without scrolling.
        QTRY_VERIFY(run.list("lstServerList")->header()->length() <= run.list("lstServerList")->viewport()->width());
        QTRY_VERIFY(run.list("lvwPlayers")->header()->length() <= run.list("lvwPlayers")->viewport()->width());
        QVERIFY(run.list("lvwServerInfo")->width() >= 250);
    }

    // A larger window shows more servers: the extra height goes to the
    // server list, the extra width to its last column.
    void aLargerWindowGivesTheServerListTheRoom()
    {
        TestWindow run(*m_settings);
        QVERIFY(run.show());
        QTRY_VERIFY(run.list("lstServerList")->height() > run.list("lvwPlayers")->height());
        const int list = run.list("lstServerList")->height();
        const int panes = run.list("lvwPlayers")->height();
        const int lastColumn = run.list("lstServerList")->header()->sectionSize(ServerListModel::Address);
        run.window->resize(FrmMain::DesignSize + QSize(600, 400));
        QTRY_COMPARE(run.list("lstServerList")->height(), list + 400);
        QCOMPARE(run.list("lvwPlayers")->height(), panes);
        QVERIFY(run.list("lstServerList")->header()->sectionSize(ServerListModel::Address) >= lastColumn + 600);
    }

    void listsHaveTheirColumnsInOrder()
    {
        TestWindow run(*m_settings);
        QCOMPARE(headerCaptions(run.header("lstServerList")),
                 (QStringList{"Server", "Map", "Players", "Ping", "Pw", "Type", "Game", "Server IP Address"}));
        QCOMPARE(headerCaptions(run.header("lstPlayerList")),
                 (QStringList{"Player", "Clan", "Ping", "Rate", "Server", "Map", "Players", "Svr Ping", "Pw", "Mod",
                              "Game"}));
        QCOMPARE(headerCaptions(run.header("lvwPlayers")), (QStringList{"Num", "Player", "Clan", "Ping", "Rate"}));
        QCOMPARE(headerCaptions(run.header("lvwServerInfo")), (QStringList{"Variable", "Value"}));
        for (const char* name : {"lstServerList", "lstPlayerList", "lvwPlayers", "lvwServerInfo"}) {
            QVERIFY(run.header(name)->sectionsMovable());
            QCOMPARE(run.list(name)->selectionBehavior(), QAbstractItemView::SelectRows);
        }
    }

    void americanEnglishAtStart()
    {
        m_settings->save(Keys::Language.key, QStringLiteral("1"));
        TestWindow run(*m_settings);
        QCOMPARE(Mnemonics::plain(run.button("cmdFav")->text()), QStringLiteral("Query Favorites"));
        QCOMPARE(Mnemonics::plain(run.button("cmdOrganise")->text()), QStringLiteral("Favorites"));
        QCOMPARE(run.find<QAction>("mPopAdd")->text(), QStringLiteral("&Add To Favorites"));
        QCOMPARE(Mnemonics::plain(run.button("cmdGet")->text()), QStringLiteral("Query Masters"));
        QCOMPARE(Mnemonics::plain(run.button("cmdCancel")->text()), QStringLiteral("Cancel Query"));
        QCOMPARE(Mnemonics::plain(run.find<QTabBar>("tabSelect")->tabText(0)), QStringLiteral("Players"));
    }

    void unknownLanguageKeepsTheDesignTimeTexts()
    {
        m_settings->save(Keys::Language.key, QStringLiteral("7"));
        TestWindow run(*m_settings);
        QCOMPARE(Mnemonics::plain(run.button("cmdFav")->text()), QStringLiteral("Query Favourites"));
        QCOMPARE(Mnemonics::plain(run.button("cmdOrganise")->text()), QStringLiteral("Favourites"));
        QCOMPARE(Mnemonics::plain(run.find<QLabel>("lblPlayerName")->text()), QStringLiteral("Name:"));
    }

    void optionsChangeTheLanguageOfTheWindowAndAreSaved()
    {
        TestWindow run(*m_settings, m_files.folder());
        QVERIFY(run.show());
        QTest::mouseClick(run.button("cmdOptions"), Qt::LeftButton);
        auto* options = run.window->findChild<FrmOptions*>(QStringLiteral("frmOptions"));
        QVERIFY(options);
        QTRY_VERIFY(options->isVisible());
        auto* language = options->findChild<QComboBox*>(QStringLiteral("cmbLanguage"));
        language->setFocus(Qt::MouseFocusReason);
        QTest::keyClick(language, Qt::Key_Down);
        QTRY_COMPARE(Mnemonics::plain(run.button("cmdFav")->text()), QStringLiteral("Query Favorites"));
        QTest::mouseClick(options->findChild<QPushButton*>(QStringLiteral("cmdOK")), Qt::LeftButton);
        QCOMPARE(m_settings->get(Keys::Language.key), QStringLiteral("1"));
        QTRY_VERIFY(!run.window->findChild<FrmOptions*>(QStringLiteral("frmOptions")));
        run.language.apply(0);
    }

    void aboutLabelOpensTheAboutBox()
    {
        TestWindow run(*m_settings);
        QVERIFY(run.show());
        QTest::mouseClick(run.find<QLabel>("lblAbout"), Qt::LeftButton);
        auto* about = run.window->findChild<FrmAbout*>(QStringLiteral("frmAbout"));
        QVERIFY(about);
        QTRY_VERIFY(about->isVisible());
        QCOMPARE(about->findChild<QLabel*>(QStringLiteral("lblVersion"))->text(),
                 QStringLiteral("Version " Q4V_VERSION));
        QVERIFY(about->findChild<QLabel*>(QStringLiteral("lblQt"))->text().contains(QString::fromLatin1(qVersion())));
        QTest::mouseClick(about->findChild<QPushButton*>(QStringLiteral("cmdOK")), Qt::LeftButton);
        QTRY_VERIFY(!run.window->findChild<FrmAbout*>(QStringLiteral("frmAbout")));
        QCOMPARE(run.desktop.unexpectedCalls, 0);

        // F1 opens it too, also while the title is hidden by a query.
        run.find<QLabel>("lblAbout")->hide();
        run.focus(run.find<QWidget>("lstServerList"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_F1);
        QTRY_VERIFY(run.window->findChild<FrmAbout*>(QStringLiteral("frmAbout")));
    }

    void theHomePageOpensInTheBrowser()
    {
        ScriptedDesktop desktop;
        FrmAbout about(desktop, QUrl(QStringLiteral("https://example.org/q4vantage")), QStringLiteral("GPL-3.0"));
        about.show();
        QVERIFY(QTest::qWaitForWindowExposed(&about));
        auto* link = about.findChild<QLabel*>(QStringLiteral("lblHomePage"));
        QVERIFY(link->isVisible());
        QTest::mouseClick(link, Qt::LeftButton, {}, QPoint(8, link->height() / 2));
        QCOMPARE(desktop.openedUrls, QList<QUrl>{QUrl("https://example.org/q4vantage")});
        QCOMPARE(about.findChild<QLabel*>(QStringLiteral("lblLicence"))->text(), QStringLiteral("Licence: GPL-3.0"));
        FrmAbout plain(desktop, QUrl());
        QVERIFY(plain.findChild<QLabel*>(QStringLiteral("lblHomePage"))->isHidden());
        QVERIFY(plain.findChild<QLabel*>(QStringLiteral("lblLicence"))->isHidden());
    }

    // Keys go where a user's keys go: to the widget with the focus, which
    // for an editable combo box is the box, not its line edit.
    // The window opens with "Query Masters" focused; Tab then walks the
    // window from top to bottom, and every stop shows that it has the
    // focus, an empty list too.
    void theKeyboardStartsAtTheQueryAndWalksTheWindow()
    {
        TestWindow run(*m_settings);
        QVERIFY(run.show());
        QApplication::setActiveWindow(run.window.get());
        QTRY_COMPARE(QApplication::focusWidget(), run.button("cmdGet"));
        QStringList chain;
        for (int i = 0; i < 24; ++i) {
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
            chain.append(QApplication::focusWidget()->objectName());
        }
        const QStringList walk{"cmdFav",        "cmdLan",     "cmdExit",       "cmdOrganise",   "cmdFilters",
                               "cmdOptions",    "cmdRecent",  "tabSelect",     "chkHideEmpty",  "chkHideFull",
                               "lstServerList", "lvwPlayers", "lvwServerInfo", "cmbPlayerName", "cmbPassword",
                               "cmdJoin",       "cmdJoinIP",  "cmbFind",       "cmdFind",       "cmdFindFriend",
                               "cmdGet"};
        QCOMPARE(chain.mid(0, walk.size()), walk);

        auto* list = run.find<ReportView>("lstServerList");
        QCOMPARE(list->model()->rowCount(), 0);
        run.focus(run.button("cmdGet"));
        const QImage unfocused = list->grab().toImage();
        run.focus(list);
        QVERIFY2(list->grab().toImage() != unfocused, "an empty list shows no focus");
    }

    void enterInTheBoxesRemembersAndDeleteForgets()
    {
        {
            TestWindow run(*m_settings);
            QVERIFY(run.show());
            auto* name = run.find<HistoryComboBox>("cmbPlayerName");
            auto* password = run.find<HistoryComboBox>("cmbPassword");
            QCOMPARE(run.focus(name), name);
            run.type(name, QStringLiteral("Fragger"), Qt::Key_Return);
            run.type(password, QStringLiteral("pw1"), Qt::Key_Return);
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Enter);
            run.type(password, QStringLiteral("2"), Qt::Key_Return);
            QCOMPARE(name->entries(), QStringList{"Fragger"});
            QCOMPARE(password->entries(), (QStringList{"pw1", "pw12"}));
            // The list of remembered passwords shows dots, as the box does,
            // and assistive technology hears the box's name and dots: never
            // a password (Qt's own interface reads the typed text as the name).
            QCOMPARE(password->view()->model()->index(1, 0).data().toString(), QString(4, QChar(0x25CF)));
            QAccessibleInterface* box = QAccessible::queryAccessibleInterface(password);
            QCOMPARE(box->text(QAccessible::Name), QStringLiteral("Password:"));
            QCOMPARE(box->text(QAccessible::Value), QString(4, QChar(0x25CF)));
            const QStringList heard =
                accessibleTexts(box) + accessibleTexts(QAccessible::queryAccessibleInterface(password->view()));
            QVERIFY(!heard.isEmpty());
            for (const QString& text : heard)
                QVERIFY2(!text.contains(QStringLiteral("pw1")), qPrintable(text));

            // Picked from the list and not edited: Delete forgets it.
            password->setCurrentIndex(0);
            emit password->activated(0);
            QTest::keyClick(run.focus(password), Qt::Key_Delete);
            QCOMPARE(password->entries(), QStringList{"pw12"});
            // Edited since: Backspace only edits the text.
            run.type(password, QStringLiteral("x"));
            QTest::keyClick(QApplication::focusWidget(), Qt::Key_Backspace);
            QCOMPARE(password->entries(), QStringList{"pw12"});
            run.window->close();
        }
        QCOMPARE(m_settings->get(Keys::PlayerNameBox.key), QStringLiteral("Fragger\u0001"));
        QCOMPARE(m_settings->get(Keys::PasswordBox.key), QStringLiteral("pw12\u0001"));
    }
};

QTEST_MAIN(TestFrmMain)
#include "tst_frmmain.moc"
