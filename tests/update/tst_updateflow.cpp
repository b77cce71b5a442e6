// SPDX-License-Identifier: GPL-2.0-or-later
#include "httpresponder.h"
#include "peakmemory.h"
#include "scripteddesktop.h"
#include "update/downloader.h"
#include "update/frmdownload.h"
#include "update/frmupdate.h"
#include "update/updatecheck.h"
#include "update/updateflow.h"
#include "update/updateversion.h"
#include "userdata/settingsstore.h"

#include <QCheckBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QLabel>
#include <QPushButton>
#include <QSignalSpy>
#include <QTemporaryDir>
#include <QTest>

namespace {

const QString VersionPath = QStringLiteral("/downloads/vantageupdate.txt");
const QString InstallerPath = QStringLiteral("/downloads/Quake%204%20Vantage%20Setup.exe");

// A port nobody listens on.
quint16 closedPort()
{
    QTcpServer server;
    server.listen(QHostAddress::LocalHost, 0);
    return server.serverPort();
}

QByteArray installerBytes(int size)
{
    QByteArray bytes(size, '\0');
    for (int i = 0; i < size; ++i)
        bytes[i] = char(i * 7 % 251);
    return bytes;
}

} // namespace

Q_DECLARE_METATYPE(HttpResponder::Reply)

// The update as a user meets it: a window, a site on this machine, the
// dialogs answered by clicks and the desktop's boxes by script.
class TestUpdateFlow final : public QObject {
    Q_OBJECT

    std::unique_ptr<QTemporaryDir> m_dir;
    std::unique_ptr<SettingsStore> m_settings;
    std::unique_ptr<ScriptedDesktop> m_desktop;
    std::unique_ptr<QWidget> m_window;
    std::unique_ptr<HttpResponder> m_site;
    UpdateFlow* m_flow = nullptr;

    QString installer() const { return m_dir->filePath(QLatin1String(UpdateVersion::InstallerFileName)); }
    template <typename T> T* dialog(const char* name) const { return m_window->findChild<T*>(QLatin1String(name)); }
    template <typename T> T* control(QWidget* dialog, const char* name) const
    {
        T* found = dialog->findChild<T*>(QLatin1String(name));
        if (!found)
            qFatal("no control named %s", name);
        return found;
    }
    void click(QWidget* dialog, const char* name) const
    {
        QTest::mouseClick(control<QAbstractButton>(dialog, name), Qt::LeftButton);
    }
    void serve(const QByteArray& version, const QByteArray& installerBody, int installerDelayMs = 0, int pieceBytes = 0)
    {
        m_site->set(VersionPath, {200, version, "text/plain", 0});
        m_site->set(InstallerPath, {200, installerBody, "application/octet-stream", installerDelayMs, pieceBytes});
    }
    // The check and the download as the user goes through them, and what
    // the box then said; empty when no box came or something was started.
    QString downloadAndHear() const
    {
        m_desktop->messageAnswers.enqueue(QMessageBox::Ok);
        if (!m_flow->checkAtStart() || !acceptOffer() ||
            !QTest::qWaitFor([this] { return !m_desktop->messages.isEmpty(); }, 5000))
            return {};
        return m_desktop->starts.isEmpty() ? m_desktop->messages.first().text : QString();
    }
    // Waits for the offer, then says Yes.
    FrmDownload* acceptOffer() const
    {
        if (!QTest::qWaitFor([this] { return dialog<FrmUpdate>("frmUpdate") != nullptr; }, 6000))
            return nullptr;
        click(dialog<FrmUpdate>("frmUpdate"), "cmdYes");
        return dialog<FrmDownload>("frmDownload");
    }

private slots:
    void init()
    {
        m_dir = std::make_unique<QTemporaryDir>();
        m_settings = std::make_unique<SettingsStore>(m_dir->filePath(QStringLiteral("settings.ini")));
        m_desktop = std::make_unique<ScriptedDesktop>();
        m_window = std::make_unique<QWidget>();
        m_window->show();
        // The site speaks HTTPS with a certificate of the test authority,
        // which the flow is told to trust besides the system's.
        m_site = std::make_unique<HttpResponder>(HttpResponder::Tls::On);
        m_settings->set(Keys::UpdateSite, m_site->url(QString()).toString());
        m_flow = new UpdateFlow(*m_settings, *m_desktop, m_dir->path(), m_window.get());
        m_flow->addAuthorities(HttpResponder::testAuthority());
    }
    void cleanup()
    {
        m_window.reset();
        QCOMPARE(m_desktop->unexpectedCalls, 0);
    }

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

    void aNewInstallerReplacesTheOldOneWhole()
    {
        {
            QFile old(installer());
            QVERIFY(old.open(QIODevice::WriteOnly));
            old.write("0123456789");
        }
        serve("99.0.0", "abc");
        QVERIFY(m_flow->checkAtStart());
        QVERIFY(acceptOffer());
        QTRY_COMPARE_WITH_TIMEOUT(m_desktop->starts.size(), 1, 5000);
        QFile file(installer());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), QByteArray("abc"));
    }

    // What a broken or hostile site sends: nothing is started, the old file
    // stays as it was unless a whole new one arrived, and the box says why.
    void aBadInstallerIsNeverStarted_data()
    {
        QTest::addColumn<HttpResponder::Reply>("reply");
        QTest::addColumn<QString>("said");
        QTest::addColumn<QByteArray>("left");
        HttpResponder::Reply cut;
        cut.raw = true;
        cut.body = "HTTP/1.1 200 OK\r\nContent-Length: 100\r\nConnection: close\r\n\r\n" + QByteArray(30, 'x');
        QTest::newRow("cut short") << cut << "Error During Download\n\n" << QByteArray("old installer");
        HttpResponder::Reply unsized;
        unsized.noLength = true;
        unsized.body = QByteArray(30, 'y');
        QTest::newRow("no length") << unsized << "The site did not say how large" << QByteArray(30, 'y');
        HttpResponder::Reply huge;
        huge.raw = true;
        huge.body = "HTTP/1.1 200 OK\r\nContent-Length: 3000000000\r\nConnection: close\r\n\r\nMZ";
        QTest::newRow("too large") << huge << "Error During Download\n\nThe installer is larger than 256 MB."
                                   << QByteArray("old installer");
    }
    void aBadInstallerIsNeverStarted()
    {
        QFETCH(HttpResponder::Reply, reply);
        QFETCH(QString, said);
        QFETCH(QByteArray, left);
        {
            QFile old(installer());
            QVERIFY(old.open(QIODevice::WriteOnly));
            old.write("old installer");
        }
        m_site->set(VersionPath, {200, "99.0.0", "text/plain", 0});
        m_site->set(InstallerPath, reply);
        const QString heard = downloadAndHear();
        QVERIFY2(heard.startsWith(said), qPrintable(heard));
        QFile file(installer());
        QVERIFY(file.open(QIODevice::ReadOnly));
        QCOMPARE(file.readAll(), left);
    }

    // An endless installer is refused at the limit, written to disk as it
    // came, never held in memory.
    void anEndlessInstallerStopsAtTheLimitWithoutFillingMemory()
    {
        HttpResponder::Reply endless;
        endless.raw = true;
        endless.body = "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n";
        endless.again = QByteArray(1024 * 1024, 'z');
        endless.repeat = 1000; // 1000 MB, more than the limit
        // Over plain HTTP: the test's own TLS server would buffer in this
        // process what the program does not.
        HttpResponder plain;
        m_settings->set(Keys::UpdateSite, plain.url(QString()).toString());
        plain.set(VersionPath, {200, "99.0.0", "text/plain", 0});
        plain.set(InstallerPath, endless);
        m_desktop->messageAnswers.enqueue(QMessageBox::Ok);
        const qint64 before = peakMemoryMb(true);
        QVERIFY(m_flow->checkAtStart());
        FrmDownload* download = acceptOffer();
        QVERIFY(download);
        auto* label = control<QLabel>(download, "lblProgress");
        QStringList shown;
        connect(download->findChild<Downloader*>(), &Downloader::progress, this,
                [&shown, label] { shown.append(label->text()); });
        QTRY_COMPARE_WITH_TIMEOUT(m_desktop->messages.size(), 1, 60000);
        QCOMPARE(m_desktop->messages.first().text,
                 QStringLiteral("Error During Download\n\nThe installer is larger than 256 MB."));
        const qint64 peak = peakMemoryMb(false);
        qInfo("endless installer: refused at the limit, peak %lld MB (%lld MB before)", peak, before);
        if (PeakMemoryIsMeaningful)
            QVERIFY2(peak - before < 64, qPrintable(QStringLiteral("peak %1 MB, %2 MB before").arg(peak).arg(before)));
        QVERIFY(!shown.isEmpty());
        // No total is known: a count, never "of 0".
        QVERIFY2(shown.last().endsWith(QStringLiteral(" bytes")) && !shown.last().contains(QStringLiteral(" of ")),
                 qPrintable(shown.last()));
        QVERIFY(m_desktop->starts.isEmpty());
        QVERIFY(!QFile::exists(installer()));
        QCOMPARE(QDir(m_dir->path()).entryList({QStringLiteral("*.exe*")}, QDir::Files | QDir::Hidden), QStringList());
    }

    void anEndlessVersionFileIsNoUpdate()
    {
        HttpResponder::Reply endless;
        endless.raw = true;
        endless.body = "HTTP/1.1 200 OK\r\nConnection: close\r\n\r\n99.0.0";
        endless.again = QByteArray(64 * 1024, '0');
        endless.repeat = 100000;
        m_site->set(VersionPath, endless);
        QSignalSpy checked(m_flow->findChild<UpdateCheck*>(), &UpdateCheck::checked);
        QElapsedTimer clock;
        clock.start();
        QVERIFY(m_flow->checkAtStart());
        QTRY_COMPARE_WITH_TIMEOUT(checked.count(), 1, 6000);
        QVERIFY(!checked.first().at(0).toBool());
        QVERIFY2(clock.elapsed() < 2000, qPrintable(QString::number(clock.elapsed())));
        QVERIFY(!dialog<FrmUpdate>("frmUpdate"));
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

    void plainHttpFromElsewhereIsNeverStarted()
    {
        // The site is somewhere else, reached through the proxy of the
        // options (a plain responder plays the proxy): both transfers go
        // through it, and an installer fetched without encryption is not run.
        HttpResponder proxy;
        m_settings->set(Keys::UpdateSite, QStringLiteral("http://updates.invalid/q4v"));
        m_settings->set(Keys::Proxy, true);
        m_settings->set(Keys::ProxyAddress, QStringLiteral("127.0.0.1:%1").arg(proxy.url(QString()).port()));
        proxy.set(QStringLiteral("http://updates.invalid/q4v") + VersionPath, {200, "99.0.0", "text/plain", 0});
        proxy.set(QStringLiteral("http://updates.invalid/q4v") + InstallerPath, {200, "installer", "x", 0});
        QVERIFY(downloadAndHear().startsWith(QStringLiteral("The installer came without encryption")));
        QCOMPARE(proxy.requests(), 2);
        QVERIFY(QFile::exists(installer()));
    }

    // The site on plain HTTP, even on this machine, sends the installer on
    // to an HTTPS address: the way was not encrypted all along.
    void aRedirectFromPlainHttpIsNeverStarted()
    {
        HttpResponder plain;
        m_settings->set(Keys::UpdateSite, plain.url(QString()).toString());
        plain.set(VersionPath, {200, "99.0.0", "text/plain", 0});
        HttpResponder::Reply moved{302, "", "text/plain", 0};
        moved.headers = "Location: " + m_site->url(QStringLiteral("/evil.exe")).toEncoded() + "\r\n";
        plain.set(InstallerPath, moved);
        m_site->set(QStringLiteral("/evil.exe"), {200, "attacker's installer", "x", 0});
        QVERIFY(downloadAndHear().startsWith(QStringLiteral("The installer came without encryption")));
        QCOMPARE(m_site->requests(), 1);
    }

    // From HTTPS, a redirect to plain HTTP is not even followed.
    void aRedirectToPlainHttpIsNotFollowed()
    {
        HttpResponder plain;
        plain.set(QStringLiteral("/evil.exe"), {200, "attacker's installer", "x", 0});
        m_site->set(VersionPath, {200, "99.0.0", "text/plain", 0});
        HttpResponder::Reply moved{302, "", "text/plain", 0};
        moved.headers = "Location: " + plain.url(QStringLiteral("/evil.exe")).toEncoded() + "\r\n";
        m_site->set(InstallerPath, moved);
        QVERIFY(downloadAndHear().startsWith(QStringLiteral("Error During Download")));
        QCOMPARE(plain.requests(), 0);
    }

    void onlyAWayAllOverHttpsStarts()
    {
        using InstallerTrust::Verdict;
        const QUrl secure(QStringLiteral("https://updates.example/x"));
        QCOMPARE(InstallerTrust::of({secure, secure}, true), Verdict::Start);
        QCOMPARE(InstallerTrust::of({secure, secure}, false), Verdict::LengthUnknown);
        for (const char* plain : {"http://updates.example/x", "http://localhost:8080/x", "http://127.0.0.2/x"}) {
            QCOMPARE(InstallerTrust::of({QUrl(QLatin1String(plain)), secure}, true), Verdict::PlainHttp);
            QCOMPARE(InstallerTrust::of({secure, QUrl(QLatin1String(plain))}, true), Verdict::PlainHttp);
        }
        QCOMPARE(InstallerTrust::of({}, true), Verdict::PlainHttp);
    }
};

QTEST_MAIN(TestUpdateFlow)
#include "tst_updateflow.moc"
