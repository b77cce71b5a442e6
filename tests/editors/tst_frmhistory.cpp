// SPDX-License-Identifier: GPL-2.0-or-later
#include "editors/frmhistory.h"
#include "userdata/settingsstore.h"
#include "widgets/reportview.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QMenu>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

// Recently Played over a history of three servers, newest first.
struct Recent {
    QTemporaryDir dir;
    SettingsStore settings{dir.filePath("settings.ini")};
    std::unique_ptr<FrmHistory> form;

    explicit Recent(const PlayHistory::List& entries = {{"10.0.0.2", 28004, "beta", 300},
                                                        {"10.0.0.3", 28004, "Alpha", 200},
                                                        {"10.0.0.1", 28004, "gamma", 100}})
    {
        if (!entries.isEmpty() && !PlayHistory::writeFile(PlayHistory::filePath(dir.path()), entries))
            qFatal("cannot write the history");
        form = std::make_unique<FrmHistory>(settings, dir.path());
        form->show();
        if (!QTest::qWaitForWindowExposed(form.get()))
            qFatal("the window did not show");
    }
    ReportView* list() const { return form->findChild<ReportView*>(QStringLiteral("lstHistory")); }
    QPushButton* button(const char* name) const { return form->findChild<QPushButton*>(QLatin1String(name)); }
    QStringList names() const
    {
        QStringList names;
        for (int row = 0; row < list()->model()->rowCount(); ++row)
            names.append(list()->model()->index(row, HistoryModel::Name).data().toString());
        return names;
    }
    void clickHeader(int column) const
    {
        QHeaderView* header = list()->header();
        QTest::mouseClick(header->viewport(), Qt::LeftButton, {},
                          QPoint(header->sectionViewportPosition(column) + 5, header->height() / 2));
    }
    void clickRow(int row, Qt::MouseButton button = Qt::LeftButton) const
    {
        const QPoint at = list()->visualRect(list()->model()->index(row, 0)).center();
        QTest::mousePress(list()->viewport(), button, {}, at);
        QTest::mouseRelease(list()->viewport(), button, {}, at);
    }
};

} // namespace

class TestFrmHistory final : public QObject {
    Q_OBJECT

private slots:
    void listsNewestFirstAndSortsByAHeaderClick()
    {
        Recent r;
        QCOMPARE(r.names(), (QStringList{"beta", "Alpha", "gamma"}));
        r.clickHeader(HistoryModel::Name);
        QCOMPARE(r.names(), (QStringList{"Alpha", "beta", "gamma"})); // case does not count
        r.clickHeader(HistoryModel::Name);
        QCOMPARE(r.names(), (QStringList{"gamma", "beta", "Alpha"}));
        r.clickHeader(HistoryModel::Played);
        r.clickHeader(HistoryModel::Played);
        QCOMPARE(r.names().first(), QStringLiteral("beta")); // by time, not by the text of the date
        QVERIFY(!r.form->findChild<QLabel*>(QStringLiteral("lblEmpty"))->isVisible());
    }

    void copiesAndQueriesAndRemoves()
    {
        Recent r;
        QSignalSpy query(r.form.get(), &FrmHistory::queryRequested);
        QTest::mouseClick(r.button("cmdQueryHistory"), Qt::LeftButton);
        QCOMPARE(query.size(), 1);

        QVERIFY(!r.button("cmdRemove")->isEnabled());
        r.clickRow(1, Qt::RightButton);
        auto* menu = r.form->findChild<QMenu*>();
        QTRY_VERIFY(menu->isVisible());
        menu->findChild<QAction*>(QStringLiteral("mPopCopyCell"))->trigger();
        menu->hide();
        QCOMPARE(QApplication::clipboard()->text(), QStringLiteral("Alpha"));

        r.clickRow(1);
        QVERIFY(r.button("cmdRemove")->isEnabled());
        QTest::mouseClick(r.button("cmdRemove"), Qt::LeftButton);
        QCOMPARE(r.names(), (QStringList{"beta", "gamma"}));
        QCOMPARE(PlayHistory::readFile(PlayHistory::filePath(r.dir.path())).size(), 2);
        QVERIFY(r.form->message().isEmpty());
    }

    void aRemoveThatCannotBeSavedIsSaid()
    {
        Recent r;
        r.clickRow(0);
        // A folder where the file should be stops the save, for root too.
        const QString path = PlayHistory::filePath(r.dir.path());
        QVERIFY(QFile::remove(path));
        QVERIFY(QDir(r.dir.path()).mkdir(QStringLiteral("history.dat")));
        QTest::mouseClick(r.button("cmdRemove"), Qt::LeftButton);
        QVERIFY(r.form->message().startsWith(QStringLiteral("The list could not be saved to ")));
        auto* label = r.form->findChild<QLabel*>(QStringLiteral("lblEmpty"));
        QVERIFY(label->isVisible());
        QCOMPARE(label->text(), r.form->message());
    }

    void anEmptyHistorySaysWhatFillsIt()
    {
        Recent r(PlayHistory::List{});
        auto* label = r.form->findChild<QLabel*>(QStringLiteral("lblEmpty"));
        QVERIFY(label->isVisible());
        QVERIFY(label->text().startsWith(QStringLiteral("No servers yet")));
        QVERIFY(!r.button("cmdQueryHistory")->isEnabled());
        QVERIFY(!r.button("cmdRemove")->isEnabled());
    }
};

QTEST_MAIN(TestFrmHistory)
#include "tst_frmhistory.moc"
