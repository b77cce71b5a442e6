// SPDX-License-Identifier: GPL-2.0-or-later
#include "editors/frmfilters.h"
#include "userdata/filters.h"
#include "userdata/settingsstore.h"
#include "widgets/reportview.h"

#include <QAction>
#include <QApplication>
#include <QCheckBox>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QGuiApplication>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

QByteArray fileBytes(const QString& path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestFrmFilters final : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<SettingsStore> m_settings;
    QString filtersPath() const { return m_dir->filePath(Filters::FileName); }

    void edit(FrmFilters& form, int row, int column, const QString& text)
    {
        ReportView* list = form.findChild<ReportView*>(QStringLiteral("lstFilters"));
        const QRect cell = list->visualRect(list->model()->index(row, column));
        QTest::mousePress(list->viewport(), Qt::LeftButton, {}, cell.center());
        QTest::mouseRelease(list->viewport(), Qt::LeftButton, {}, cell.center());
        QTest::mouseDClick(list->viewport(), Qt::LeftButton, {}, cell.center());
        auto* box = form.findChild<QLineEdit*>(QStringLiteral("txtEdit"));
        QVERIFY(box->isVisible());
        box->selectAll();
        QTest::keyClicks(box, text);
        QTest::keyClick(box, Qt::Key_Return);
        QVERIFY(!box->isVisible());
    }

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_settings = std::make_unique<SettingsStore>(m_dir->filePath(QStringLiteral("settings.ini")));
    }

    void loadsOnlyTheFirstSavedFilter()
    {
        QVERIFY(Filters::writeFile(filtersPath(), {{"si_map", "mp/q4dm*"}, {"si_usepass", "0"}, {"gamename", "q4max"}}));
        FrmFilters form(*m_settings, m_dir->path());
        QCOMPARE(form.filters(), (QList<Filters::VariableFilter>{{"si_map", "mp/q4dm*"}}));
    }

    void editingCommitsAliasesValuesAndSavesAtOnce()
    {
        FrmFilters form(*m_settings, m_dir->path());
        QSignalSpy changed(&form, &FrmFilters::filtersChanged);
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        QTest::mouseClick(form.findChild<QPushButton*>(QStringLiteral("cmdNew")), Qt::LeftButton);
        QCOMPARE(form.filters().last(), (Filters::VariableFilter{Filters::NewFilter, QString()}));
        QVERIFY2(!QFile::exists(filtersPath()), "a new row is not saved by itself");
        QCOMPARE(changed.count(), 0);

        edit(form, 0, 0, QStringLiteral("Password"));
        QCOMPARE(form.filters().at(0).variable, QStringLiteral("si_usepass"));
        QCOMPARE(fileBytes(filtersPath()), QByteArray("si_usepass\x01\r\n"));
        edit(form, 0, 1, QStringLiteral("no thanks"));
        QCOMPARE(form.filters().at(0).value, QStringLiteral("0"));
        QCOMPARE(fileBytes(filtersPath()), QByteArray("si_usepass\x01"
                                                      "0\r\n"));
        QCOMPARE(changed.count(), 2);

        QTest::mouseClick(form.findChild<QPushButton*>(QStringLiteral("cmdRemove")), Qt::LeftButton);
        QCOMPARE(form.filters().size(), 0);
        QCOMPARE(fileBytes(filtersPath()), QByteArray());
        QCOMPARE(changed.count(), 3);
    }

    // New starts the row in edit mode; Tab moves from the variable to the
    // value as in a table, each cell committed as it is left.
    void aNewRowIsEditedLikeATable()
    {
        FrmFilters form(*m_settings, m_dir->path());
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        QTest::mouseClick(form.findChild<QPushButton*>(QStringLiteral("cmdNew")), Qt::LeftButton);
        auto* box = form.findChild<QLineEdit*>(QStringLiteral("txtEdit"));
        QTRY_COMPARE(QApplication::focusWidget(), box);
        QCOMPARE(box->text(), Filters::NewFilter);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("map"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Tab);
        QCOMPARE(form.filters().at(0).variable, QStringLiteral("si_map"));
        QCOMPARE(QApplication::focusWidget(), box);
        QTest::keyClicks(QApplication::focusWidget(), QStringLiteral("mp/q4dm*"));
        QTest::keyClick(QApplication::focusWidget(), Qt::Key_Return);
        QCOMPARE(form.filters().at(0), (Filters::VariableFilter{"si_map", "mp/q4dm*"}));
        QCOMPARE(fileBytes(filtersPath()), QByteArray("si_map\x01mp/q4dm*\r\n"));
    }

    void theKeyboardEditsACellAndTheMenuKeyOpensTheMenu()
    {
        QVERIFY(Filters::writeFile(filtersPath(), {{"si_map", "mp/q4dm*"}}));
        FrmFilters form(*m_settings, m_dir->path());
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        auto* list = form.findChild<ReportView*>(QStringLiteral("lstFilters"));
        list->setFocus(Qt::TabFocusReason);
        auto press = [](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
            QTest::keyClick(QApplication::focusWidget(), key, modifiers);
        };
        press(Qt::Key_Home);
        press(Qt::Key_Right); // the value column
        press(Qt::Key_Return);
        auto* box = form.findChild<QLineEdit*>(QStringLiteral("txtEdit"));
        QVERIFY(box->isVisible());
        QCOMPARE(QApplication::focusWidget(), box);
        QTest::keyClick(box, Qt::Key_A, Qt::ControlModifier);
        QTest::keyClicks(box, QStringLiteral("mp/q4ctf*"));
        // The editor's Enter commits; it must not reach the list and open
        // the editor again.
        press(Qt::Key_Return);
        QVERIFY(!box->isVisible());
        QCOMPARE(form.filters(), (QList<Filters::VariableFilter>{{"si_map", "mp/q4ctf*"}}));

        list->setFocus(Qt::TabFocusReason);
        press(Qt::Key_F10, Qt::ShiftModifier);
        auto* menu = form.findChild<QMenu*>();
        QTRY_VERIFY(menu->isVisible());
        menu->hide();
        // "Edit Cell" from a menu opened by keys edits the current cell.
        menu->findChild<QAction*>(QStringLiteral("mPopEditCell"))->trigger();
        QVERIFY(box->isVisible());
        QCOMPARE(box->text(), QStringLiteral("mp/q4ctf*"));
    }

    void aFailedSaveIsToldButTheListsStillFollow()
    {
        QVERIFY(QDir(m_dir->path()).mkdir(Filters::FileName));
        FrmFilters form(*m_settings, m_dir->path());
        QSignalSpy changed(&form, &FrmFilters::filtersChanged);
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        QTest::mouseClick(form.findChild<QPushButton*>(QStringLiteral("cmdNew")), Qt::LeftButton);
        edit(form, 0, 0, QStringLiteral("si_map"));
        auto* message = form.findChild<QLabel*>(QStringLiteral("lblMessage"));
        QVERIFY(message->isVisible());
        QVERIFY2(message->text().contains(QDir::toNativeSeparators(filtersPath())), qPrintable(message->text()));
        QCOMPARE(changed.count(), 1);
    }

    void builtInBoxesAreStoredAtOnce()
    {
        m_settings->save(Keys::IncludeFull.key, QStringLiteral("0"));
        FrmFilters form(*m_settings, m_dir->path());
        QVERIFY(!form.builtIn().includeFull);
        QVERIFY(form.builtIn().includeEmpty);
        QSignalSpy changed(&form, &FrmFilters::filtersChanged);
        form.show();
        QTest::mouseClick(form.findChild<QCheckBox*>(QStringLiteral("chkIncludeEmpty")), Qt::LeftButton);
        QCOMPARE(m_settings->get(Keys::IncludeEmpty.key), QStringLiteral("0"));
        QVERIFY(!form.builtIn().includeEmpty);
        QCOMPARE(changed.count(), 1);
    }

    void sortingTogglesAndIsSaved()
    {
        QVERIFY(Filters::writeFile(filtersPath(), {{"b", "1"}}));
        FrmFilters form(*m_settings, m_dir->path());
        QTest::mouseClick(form.findChild<QPushButton*>(QStringLiteral("cmdNew")), Qt::LeftButton);
        QHeaderView* header = form.findChild<ReportView*>(QStringLiteral("lstFilters"))->header();
        emit header->sectionClicked(0);
        QCOMPARE(form.filters().first().variable, Filters::NewFilter); // "<" sorts before "b"
        QCOMPARE(m_settings->get(u"FiSortOrder"), QStringLiteral("0"));
        emit header->sectionClicked(0);
        QCOMPARE(form.filters().first().variable, QStringLiteral("b"));
        QCOMPARE(m_settings->get(u"FiSortOrder"), QStringLiteral("1"));
        QCOMPARE(m_settings->get(u"FiSortKey"), QStringLiteral("0"));
    }

    void copyColumnComesOutOnOneLine()
    {
        QVERIFY(Filters::writeFile(filtersPath(), {{"si_map", "mp/q4dm*"}}));
        FrmFilters form(*m_settings, m_dir->path());
        form.show();
        QTest::mouseClick(form.findChild<QPushButton*>(QStringLiteral("cmdNew")), Qt::LeftButton);
        ReportView* list = form.findChild<ReportView*>(QStringLiteral("lstFilters"));
        const QPoint value = list->visualRect(list->model()->index(0, 1)).center();
        QTest::mousePress(list->viewport(), Qt::RightButton, {}, value);
        QTest::mouseRelease(list->viewport(), Qt::RightButton, {}, value);
        auto* menu = form.findChild<QMenu*>();
        QVERIFY(menu->isVisible());
        menu->hide();
        menu->findChild<QAction*>(QStringLiteral("mPopCopyColumn"))->trigger();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("mp/q4dm*     "));
        menu->findChild<QAction*>(QStringLiteral("mPopCopyRow"))->trigger();
        QCOMPARE(QGuiApplication::clipboard()->text(), QStringLiteral("si_map     mp/q4dm*"));
    }

    void draggedColumnsAreSavedThenPlacedByTheFavouritesKeys()
    {
        m_settings->save(u"FColumnOrder0", QStringLiteral("1"));
        m_settings->save(u"FColumnOrder1", QStringLiteral("0"));
        FrmFilters form(*m_settings, m_dir->path());
        QHeaderView* header = form.findChild<ReportView*>(QStringLiteral("lstFilters"))->header();
        header->moveSection(0, 1);
        QCOMPARE(m_settings->get(u"FiColumnOrder0"), QStringLiteral("1"));
        QCOMPARE(header->logicalIndex(0), 1);
        m_settings->save(u"FColumnOrder0", QStringLiteral("0"));
        m_settings->save(u"FColumnOrder1", QStringLiteral("1"));
        header->moveSection(0, 1);
        QCOMPARE(m_settings->get(u"FiColumnOrder0"), QStringLiteral("0"));
        QCOMPARE(header->logicalIndex(0), 0);
    }
};

QTEST_MAIN(TestFrmFilters)
#include "tst_frmfilters.moc"
