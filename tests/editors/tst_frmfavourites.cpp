// SPDX-License-Identifier: GPL-2.0-or-later
#include "editors/frmfavourites.h"
#include "userdata/favourites.h"
#include "userdata/settingsstore.h"
#include "widgets/reportview.h"

#include <QAction>
#include <QApplication>
#include <QDir>
#include <QFile>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QTemporaryDir>
#include <QTest>

class TestFrmFavourites final : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<SettingsStore> m_settings;
    QString path() const { return m_dir->filePath(Favourites::FileName); }
    QByteArray file() const
    {
        QFile f(path());
        return f.open(QIODevice::ReadOnly) ? f.readAll() : QByteArray();
    }
    void write(const QByteArray& bytes) const
    {
        QFile f(path());
        QVERIFY(f.open(QIODevice::WriteOnly));
        f.write(bytes);
    }
    static QPushButton* button(const FrmFavourites& form, const char* name)
    {
        return form.findChild<QPushButton*>(QLatin1String(name));
    }

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_settings = std::make_unique<SettingsStore>(m_dir->filePath(QStringLiteral("settings.ini")));
    }

    void showsTheFileAsRead()
    {
        write("\x01\x01"
              "First\r\nhost\x01pw\x01Second\r\n1.2.3.4:28004\x01\x01Third\r\n");
        FrmFavourites form(*m_settings, m_dir->path());
        const QList<FavouritesModel::Row> expected{
            {"First", "", ""}, {"Second", "host:27960", "pw"}, {"Third", "1.2.3.4:28004", ""}};
        QCOMPARE(form.rows(), expected);
    }

    // Two windows of the program, or the server list's menu while the
    // editor is open: what was added elsewhere is not lost on OK.
    void aFavouriteAddedElsewhereMeanwhileIsKept()
    {
        write("1.2.3.4:1\x01\x01Old\r\n");
        FrmFavourites form(*m_settings, m_dir->path());
        form.show();
        write("1.2.3.4:1\x01\x01Old\r\n9.9.9.9:2\x01\x01Theirs\r\n");
        button(form, "cmdNew")->click();
        button(form, "cmdApply")->click();
        QCOMPARE(file(), QByteArray("1.2.3.4:1\x01\x01Old\r\n\x01\x01New Server\r\n9.9.9.9:2\x01\x01Theirs\r\n"));
        QCOMPARE(form.rows().size(), 3);
        QCOMPARE(form.findChild<QLabel*>(QStringLiteral("lblMessage"))->text(),
                 QStringLiteral("1 servers added elsewhere since this list was opened are kept as well."));
        // Removed here and nowhere else: it goes.
        ReportView* list = form.findChild<ReportView*>(QStringLiteral("lvwFavourites"));
        QTest::mouseClick(list->viewport(), Qt::LeftButton, {}, list->visualRect(list->model()->index(0, 0)).center());
        button(form, "cmdRemove")->click();
        QCOMPARE(form.rows().size(), 2);
        button(form, "cmdApply")->click();
        QCOMPARE(Favourites::readFile(path())->size(), 2);
    }

    void anAddressThatNamesNoServerIsRefused()
    {
        FrmFavourites form(*m_settings, m_dir->path());
        form.show();
        button(form, "cmdNew")->click();
        auto* box = form.findChild<QLineEdit*>(QStringLiteral("txtEdit"));
        form.editCell(0, FavouritesModel::Address);
        box->setText(QStringLiteral("not an address"));
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(form.rows().first().at(FavouritesModel::Address), QString());
        QVERIFY(form.findChild<QLabel*>(QStringLiteral("lblMessage"))
                    ->text()
                    .startsWith(QStringLiteral("\"not an address\" is not a server address.")));
        form.editCell(0, FavouritesModel::Address);
        box->setText(QStringLiteral(" q4.example.org:28004 "));
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(form.rows().first().at(FavouritesModel::Address), QStringLiteral("q4.example.org:28004"));
        QVERIFY(form.findChild<QLabel*>(QStringLiteral("lblMessage"))->text().isEmpty());
    }

    void editsReachTheFileOnlyOnApplyOrOk()
    {
        write("1.2.3.4:1\x01\x01Old\r\n");
        FrmFavourites form(*m_settings, m_dir->path());
        form.show();
        button(form, "cmdNew")->click();
        QCOMPARE(form.rows().last(), (FavouritesModel::Row{"New Server", "", ""}));
        form.editCell(1, FavouritesModel::Address);
        auto* box = form.findChild<QLineEdit*>(QStringLiteral("txtEdit"));
        box->setText(QStringLiteral("5.6.7.8"));
        QTest::keyClick(box, Qt::Key_Return);
        QCOMPARE(file(), QByteArray("1.2.3.4:1\x01\x01Old\r\n"));
        button(form, "cmdApply")->click();
        // Written as it stands: an address without port stays without one.
        QCOMPARE(file(), QByteArray("1.2.3.4:1\x01\x01Old\r\n5.6.7.8\x01\x01New Server\r\n"));

        ReportView* list = form.findChild<ReportView*>(QStringLiteral("lvwFavourites"));
        list->setCurrentIndex(list->model()->index(0, 0));
        button(form, "cmdRemove")->click();
        button(form, "cmdCancel")->click();
        QVERIFY(!form.isVisible());
        QCOMPARE(Favourites::readFile(path())->size(), 2);
    }

    void escapeInACellCancelsThatCellOnly()
    {
        FrmFavourites form(*m_settings, m_dir->path());
        form.show();
        QVERIFY(QTest::qWaitForWindowExposed(&form));
        button(form, "cmdNew")->click();
        auto* list = form.findChild<ReportView*>(QStringLiteral("lvwFavourites"));
        auto press = [](Qt::Key key) { QTest::keyClick(QApplication::focusWidget(), key); };
        // New starts the new row's first cell in edit.
        auto* box = form.findChild<QLineEdit*>(QStringLiteral("txtEdit"));
        QVERIFY(box->isVisible());
        QTRY_COMPARE(QApplication::focusWidget(), box);
        QTest::keyClicks(box, QStringLiteral("Mine"));
        // Escape leaves the cell as it was and the unapplied new row with it.
        press(Qt::Key_Escape);
        QVERIFY(form.isVisible());
        QVERIFY(!box->isVisible());
        QCOMPARE(QApplication::focusWidget(), list);
        QCOMPARE(form.rows(), (QList<FavouritesModel::Row>{{"New Server", "", ""}}));

        press(Qt::Key_Return);
        QTest::keyClicks(box, QStringLiteral("Mine"));
        press(Qt::Key_Return);
        QCOMPARE(form.rows(), (QList<FavouritesModel::Row>{{"Mine", "", ""}}));
        // On the list, Escape is the dialog's Cancel, as everywhere.
        press(Qt::Key_Escape);
        QVERIFY(!form.isVisible());
    }

    void okWithNoRowsLeavesAnEmptyFile()
    {
        write("1.2.3.4:1\x01\x01Only\r\n");
        FrmFavourites form(*m_settings, m_dir->path());
        form.show();
        ReportView* list = form.findChild<ReportView*>(QStringLiteral("lvwFavourites"));
        list->setCurrentIndex(list->model()->index(0, 0));
        button(form, "cmdRemove")->click();
        button(form, "cmdOK")->click();
        QVERIFY(!form.isVisible());
        QCOMPARE(file(), QByteArray());
        QVERIFY(!Favourites::readFile(path()));
    }

    void aFailedWriteIsToldAndKeepsTheRows()
    {
        // A folder where the file should be: no write can succeed.
        QVERIFY(QDir(m_dir->path()).mkdir(Favourites::FileName));
        FrmFavourites form(*m_settings, m_dir->path());
        form.show();
        auto* message = form.findChild<QLabel*>(QStringLiteral("lblMessage"));
        QVERIFY(!message->isVisible());
        button(form, "cmdNew")->click();
        button(form, "cmdApply")->click();
        QVERIFY(message->isVisible());
        QVERIFY2(message->text().contains(QDir::toNativeSeparators(path())), qPrintable(message->text()));
        button(form, "cmdOK")->click();
        QVERIFY2(form.isVisible(), "OK closes only when the rows were saved");
        QCOMPARE(form.rows().size(), 1);

        QVERIFY(QDir(m_dir->path()).rmdir(Favourites::FileName));
        button(form, "cmdApply")->click();
        QVERIFY(!message->isVisible());
        button(form, "cmdOK")->click();
        QVERIFY(!form.isVisible());
        QCOMPARE(file(), QByteArray("\x01\x01New Server\r\n"));
    }

    void aFileTooLargeToReadWholeIsNeverOverwritten()
    {
        QByteArray bytes;
        for (int i = 0; i <= Favourites::MaxFavourites; ++i)
            bytes += "h:" + QByteArray::number(i) + "\x01\x01n\r\n";
        write(bytes);
        FrmFavourites form(*m_settings, m_dir->path());
        form.show();
        QCOMPARE(form.rows().size(), Favourites::MaxFavourites);
        QVERIFY(form.findChild<QLabel*>(QStringLiteral("lblMessage"))->isVisible());
        button(form, "cmdOK")->click();
        QVERIFY(form.isVisible());
        QCOMPARE(file(), bytes);
    }

    void sortIsSavedAndRestored()
    {
        write("b:1\x01\x01"
              "Beta\r\na:2\x01\x01"
              "alpha\r\n");
        {
            FrmFavourites form(*m_settings, m_dir->path());
            emit form.findChild<ReportView*>(QStringLiteral("lvwFavourites"))->header()->sectionClicked(0);
            QCOMPARE(form.rows().first().at(0), QStringLiteral("alpha"));
            QCOMPARE(m_settings->get(u"FSortOrder"), QStringLiteral("0"));
            QCOMPARE(m_settings->get(u"FSortKey"), QStringLiteral("0"));
        }
        FrmFavourites again(*m_settings, m_dir->path());
        QCOMPARE(again.rows().first().at(0), QStringLiteral("alpha"));
    }
};

QTEST_MAIN(TestFrmFavourites)
#include "tst_frmfavourites.moc"
