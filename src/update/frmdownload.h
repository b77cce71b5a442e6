#pragma once

#include <QDialog>
#include <QNetworkProxy>
#include <QStringList>
#include <QUrl>

class Desktop;
class Downloader;
class QLabel;
class QProgressBar;
class QPushButton;

// Downloads the installer with its progress in view. Accepted once the
// file is written; rejected on Cancel or after saying what went wrong.
class FrmDownload final : public QDialog {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(FrmDownload)

public:
    FrmDownload(Desktop& desktop, const QStringList& latest, QWidget* parent = nullptr);

    void begin(const QUrl& url, const QString& target, const QNetworkProxy& proxy);
    QString target() const { return m_target; }
    bool trusted() const { return m_trusted; }

protected:
    void changeEvent(QEvent* event) override;
    void reject() override;

private:
    void showProgress(qint64 received, qint64 total);
    void fail(const QString& text);
    void retranslateUi();

    Desktop& m_desktop;
    QString m_latest;
    QString m_target;
    bool m_trusted = false;
    Downloader* m_downloader = nullptr;
    QProgressBar* prgBar = nullptr;
    QLabel* lblProgress = nullptr;
    QPushButton* cmdCancel = nullptr;
    qint64 m_received = 0;
    qint64 m_total = 0;
};
