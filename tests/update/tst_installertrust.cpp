// SPDX-License-Identifier: GPL-2.0-or-later
#include "updatesite.h"

// What a broken or hostile site sends: no installer is started that did not
// arrive whole and encrypted all the way, and memory stays bounded.
class TestInstallerTrust final : public UpdateSiteTest {
    Q_OBJECT

private slots:
    void init() { setUp(); }
    void cleanup() { tearDown(); }

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
        QCOMPARE(QDir(m_dir->path()).entryList({"*.exe*"}, QDir::Files | QDir::Hidden), QStringList());
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

    // "Error During Download" is open when the download window beneath is
    // closed (its Cancel pressed, as assistive tools do) and deleted: the
    // box belongs to the main window and outlives it (signal 11 before).
    void theErrorOutlivesTheDownloadWindow()
    {
        HttpResponder::Reply cut;
        cut.raw = true;
        cut.body = "HTTP/1.1 200 OK\r\nContent-Length: 100\r\nConnection: close\r\n\r\n" + QByteArray(30, 'x');
        m_site->set(VersionPath, {200, "99.0.0", "text/plain", 0});
        m_site->set(InstallerPath, cut);
        QWidget* boxParent = nullptr;
        m_desktop->whileMessageOpen = [&boxParent](QWidget* parent) {
            boxParent = parent;
            auto* download = QApplication::activeModalWidget()
                                 ? qobject_cast<FrmDownload*>(QApplication::activeModalWidget())
                                 : nullptr;
            for (QWidget* window : QApplication::topLevelWidgets())
                if (auto* found = qobject_cast<FrmDownload*>(window))
                    download = found;
            QVERIFY(download);
            QTest::mouseClick(download->findChild<QPushButton*>(QStringLiteral("cmdCancel")), Qt::LeftButton);
            QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
        };
        QVERIFY(downloadAndHear().startsWith(QStringLiteral("Error During Download")));
        QCOMPARE(boxParent, m_window.get());
        QTRY_VERIFY(!dialog<FrmDownload>("frmDownload"));
        QVERIFY(m_desktop->starts.isEmpty());
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

QTEST_MAIN(TestInstallerTrust)
#include "tst_installertrust.moc"
