// SPDX-License-Identifier: GPL-2.0-or-later
#include "updatesite.h"

// The update offered, declined, switched off and cancelled.
class TestUpdateFlow final : public UpdateSiteTest {
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

    void aNewerVersionIsOfferedDownloadedAndStarted()
    {
        const QByteArray body = installerBytes(256 * 1024);
        serve("99.0.0\r\n", body, 0, 4 * 1024); // Qt reports progress at most every 100 ms
        QSignalSpy quit(m_flow, &UpdateFlow::quitRequested);
        QVERIFY(m_flow->checkAtStart());
        QTRY_VERIFY_WITH_TIMEOUT(dialog<FrmUpdate>("frmUpdate"), 6000);
        FrmUpdate* offer = dialog<FrmUpdate>("frmUpdate");
        QVERIFY(offer->isVisible());
        QCOMPARE(offer->windowTitle(), QStringLiteral("Quake 4 Vantage Update Available"));
        QCOMPARE(control<QLabel>(offer, "lblCVersion2")->text(), QStringLiteral(Q4V_VERSION));
        QCOMPARE(control<QLabel>(offer, "lblLVersion2")->text(), QStringLiteral("99.0.0"));
        QVERIFY(control<QCheckBox>(offer, "chkAskAgain")->isChecked());

        click(offer, "cmdYes");
        FrmDownload* download = dialog<FrmDownload>("frmDownload");
        QVERIFY(download);
        QCOMPARE(download->windowTitle(), QStringLiteral("Downloading Quake 4 Vantage v99.0.0"));
        QCOMPARE(control<QLabel>(download, "lblProgress")->text(), QStringLiteral("Connecting to download site..."));
        // What the label said after each piece arrived (this connection runs
        // after the dialog's own).
        QStringList shown;
        auto* label = control<QLabel>(download, "lblProgress");
        auto* downloader = download->findChild<Downloader*>();
        connect(downloader, &Downloader::progress, this, [&shown, label] { shown.append(label->text()); });
        QTRY_COMPARE_WITH_TIMEOUT(quit.count(), 1, 10000);
        QVERIFY2(shown.size() > 2, qPrintable(shown.join(QLatin1Char('|'))));
        QCOMPARE(shown.last(), QStringLiteral("Downloading v99.0.0\n%1 of %1").arg(body.size()));

        QCOMPARE(m_desktop->starts.size(), 1);
        QCOMPARE(m_desktop->starts.first().program, installer());
        QVERIFY(m_desktop->starts.first().arguments.isEmpty());
        QFile file(installer());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), body);
        QVERIFY(m_settings->value(Keys::AutoUpdate));
        QVERIFY(m_site->lastRequest().startsWith("GET " + InstallerPath.toLatin1() + " "));
    }

    void theVersionFileIsShownAsPlainText()
    {
        serve("99.<img src=x><b>bold</b>.0", "x");
        QVERIFY(m_flow->checkAtStart());
        QTRY_VERIFY_WITH_TIMEOUT(dialog<FrmUpdate>("frmUpdate"), 6000);
        auto* latest = control<QLabel>(dialog<FrmUpdate>("frmUpdate"), "lblLVersion2");
        QCOMPARE(latest->textFormat(), Qt::PlainText);
        QVERIFY(latest->text().contains(QStringLiteral("<b>bold</b>")));
        click(dialog<FrmUpdate>("frmUpdate"), "cmdNo");
    }

    void noUpdateShowsNothing_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("version");
        QTest::newRow("older") << 200 << QByteArray("0.0.1");
        QTest::newRow("same") << 200 << QByteArray(Q4V_VERSION);
        QTest::newRow("missing file") << 404 << QByteArray("99.0.0");
        QTest::newRow("too short") << 200 << QByteArray("9.");
    }
    void noUpdateShowsNothing()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, version);
        m_site->set(VersionPath, {status, version, "text/plain", 0});
        QSignalSpy checked(m_flow->findChild<UpdateCheck*>(), &UpdateCheck::checked);
        QVERIFY(m_flow->checkAtStart());
        QTRY_COMPARE_WITH_TIMEOUT(checked.count(), 1, 6000);
        QVERIFY(!checked.first().at(0).toBool());
        QTest::qWait(50);
        QVERIFY(!dialog<FrmUpdate>("frmUpdate"));
        QCOMPARE(m_site->requests(), 1);
    }

    void anUnreachableOrSlowSiteNeitherOffersNorBlocks()
    {
        auto* check = m_flow->findChild<UpdateCheck*>();
        QSignalSpy checked(check, &UpdateCheck::checked);
        m_settings->set(Keys::UpdateSite, QStringLiteral("http://127.0.0.1:%1").arg(closedPort()));
        QVERIFY(m_flow->checkAtStart());
        QTRY_COMPARE_WITH_TIMEOUT(checked.count(), 1, 3000);
        QVERIFY(!checked.first().at(0).toBool());

        m_settings->set(Keys::UpdateSite, m_site->url(QString()).toString());
        m_site->set(VersionPath, {200, "99.0.0", "text/plain", UpdateCheck::TimeoutMs + 3000});
        QElapsedTimer clock;
        qint64 longestGap = 0;
        QTimer ticker;
        connect(&ticker, &QTimer::timeout, this, [&] { longestGap = std::max(longestGap, clock.restart()); });
        QElapsedTimer total;
        total.start();
        QVERIFY(m_flow->checkAtStart());
        clock.start();
        ticker.start(10);
        QTRY_COMPARE_WITH_TIMEOUT(checked.count(), 2, UpdateCheck::TimeoutMs + 2000);
        QVERIFY(total.elapsed() >= UpdateCheck::TimeoutMs - 50);
        QVERIFY(!checked.last().at(0).toBool());
        QVERIFY2(longestGap < 300, qPrintable(QStringLiteral("the window stood still %1 ms").arg(longestGap)));
        QTest::qWait(50);
        QVERIFY(!dialog<FrmUpdate>("frmUpdate"));
    }

    void switchedOffOrWithoutASiteNothingIsAsked()
    {
        m_site->set(VersionPath, {200, "99.0.0", "text/plain", 0});
        m_settings->set(Keys::AutoUpdate, false);
        QVERIFY(!m_flow->checkAtStart());
        m_settings->set(Keys::AutoUpdate, true);
        m_settings->set(Keys::UpdateSite, QString());
        QVERIFY(!m_flow->checkAtStart());
        QTest::qWait(100);
        QCOMPARE(m_site->requests(), 0);
        QCOMPARE(QStringLiteral(Q4V_UPDATE_SITE), QString()); // our builds name no site
    }

    void noWithTheBoxClearedStopsFutureChecks()
    {
        serve("99.0.0", "x");
        QVERIFY(m_flow->checkAtStart());
        QTRY_VERIFY_WITH_TIMEOUT(dialog<FrmUpdate>("frmUpdate"), 6000);
        FrmUpdate* offer = dialog<FrmUpdate>("frmUpdate");
        control<QCheckBox>(offer, "chkAskAgain")->click();
        click(offer, "cmdNo");
        QVERIFY(!m_settings->value(Keys::AutoUpdate));
        QVERIFY(!dialog<FrmDownload>("frmDownload"));
        QVERIFY(!m_flow->checkAtStart());
        QCOMPARE(m_site->requests(), 1);
    }

    void aFailedDownloadSaysSoAndStartsNothing_data()
    {
        QTest::addColumn<int>("status");
        QTest::addColumn<QByteArray>("body");
        QTest::newRow("missing") << 404 << QByteArray("gone");
        QTest::newRow("empty") << 200 << QByteArray();
    }
    void aFailedDownloadSaysSoAndStartsNothing()
    {
        QFETCH(int, status);
        QFETCH(QByteArray, body);
        m_site->set(VersionPath, {200, "99.0.0", "text/plain", 0});
        m_site->set(InstallerPath, {status, body, "application/octet-stream", 0});
        m_desktop->messageAnswers.enqueue(QMessageBox::Ok);
        QSignalSpy quit(m_flow, &UpdateFlow::quitRequested);
        QVERIFY(m_flow->checkAtStart());
        QVERIFY(acceptOffer());
        QTRY_COMPARE_WITH_TIMEOUT(m_desktop->messages.size(), 1, 5000);
        const auto& box = m_desktop->messages.first();
        QCOMPARE(box.icon, Desktop::Icon::Critical);
        QCOMPARE(box.title, QStringLiteral("Quake 4 Vantage Update"));
        QVERIFY2(box.text.startsWith(QStringLiteral("Error During Download\n\n")), qPrintable(box.text));
        QTRY_VERIFY(!dialog<FrmDownload>("frmDownload"));
        QVERIFY(m_desktop->starts.isEmpty());
        QCOMPARE(quit.count(), 0);
        QVERIFY(!QFile::exists(installer()));
    }

    void cancelStopsTheDownload()
    {
        serve("99.0.0", installerBytes(1000), 3000);
        QVERIFY(m_flow->checkAtStart());
        FrmDownload* download = acceptOffer();
        QVERIFY(download);
        QTest::qWait(100);
        click(download, "cmdCancel");
        QTRY_VERIFY(!dialog<FrmDownload>("frmDownload"));
        QTest::qWait(3500);
        QVERIFY(m_desktop->starts.isEmpty());
        QVERIFY(!QFile::exists(installer()));
    }

    void anInstallerThatCannotStartLeavesTheProgramOpen()
    {
        serve("99.0.0", "MZ not for this system");
        m_desktop->startSucceeds = false;
        m_desktop->messageAnswers.enqueue(QMessageBox::Ok);
        QSignalSpy quit(m_flow, &UpdateFlow::quitRequested);
        QVERIFY(m_flow->checkAtStart());
        QVERIFY(acceptOffer());
        QTRY_COMPARE_WITH_TIMEOUT(m_desktop->messages.size(), 1, 5000);
        QVERIFY(m_desktop->messages.first().text.contains(QDir::toNativeSeparators(installer())));
        QVERIFY(m_desktop->messages.first().text.contains(QStringLiteral("cannot be started")));
        QCOMPARE(quit.count(), 0);
        QVERIFY(QFile::exists(installer()));
    }
};

QTEST_MAIN(TestUpdateFlow)
#include "tst_updateflow.moc"
