// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "platform/clock.h"
#include "platform/gameplaces.h"
#include "platform/secretstore.h"

#include <QColor>
#include <QCoreApplication>
#include <QMap>
#include <QMessageBox>
#include <QString>
#include <QStringList>
#include <QUrl>

#include <functional>
#include <memory>
#include <optional>

class QSystemTrayIcon;
class QWidget;

// Everything that would block a test or leave the program: modal boxes,
// the file dialog and starting another process. Windows get one of these
// instead of calling the Qt statics, so tests can answer for the user.
class Desktop {
    Q_DECLARE_TR_FUNCTIONS(Desktop)

public:
    enum class Icon { None, Information, Warning, Critical, Question };

    virtual ~Desktop() = default;

    // What the executable file dialog lists: the game's Windows binary is
    // an .exe, its Linux binaries have no extension.
    static QString executablePattern();
    // The file dialog that asks for the game's executable (the options'
    // Browse, a join without one), opened in folder (the home folder when
    // empty); an empty text when the user cancelled.
    QString chooseExecutable(QWidget* parent, const QString& folder = {});

    // Plain text as a notification server reads it: the freedesktop servers
    // take the body as markup, so a name like "<a href=...>" would be a
    // link; escaped, and at most MaxNotificationLength characters.
    static constexpr qsizetype MaxNotificationLength = 1000;
    static QString notificationMarkup(const QString& plain);

    // Closes every other visible window of the program (editors, dialogs)
    // when the main window closes, so each writes what it holds.
    static void closeOtherWindows(const QWidget* main);

    // Words for buttons that do more than "Yes" or "No" can say.
    using ButtonTexts = QMap<QMessageBox::StandardButton, QString>;
    // What the one-line input box shows of what is typed.
    enum class Echo { Normal, Secret };

    // A modal message box; returns the button the user pressed, or
    // QMessageBox::NoButton when the box was closed some other way.
    virtual QMessageBox::StandardButton message(QWidget* parent, Icon icon, const QString& title, const QString& text,
                                                QMessageBox::StandardButtons buttons,
                                                const ButtonTexts& buttonTexts = {}) = 0;

    // A modal one-line input box; nothing when the user cancelled. A
    // secret (a password) is shown as dots.
    virtual std::optional<QString> inputText(QWidget* parent, const QString& title, const QString& prompt,
                                             const QString& initialText = {}, Echo echo = Echo::Normal) = 0;

    // A modal file-open dialog; an empty text when the user cancelled.
    virtual QString openFileName(QWidget* parent, const QString& title, const QString& folder,
                                 const QString& filter) = 0;

    // A modal box with a list to pick one entry of; its index, or nothing
    // when the user cancelled.
    virtual std::optional<int> chooseItem(QWidget* parent, const QString& title, const QString& prompt,
                                          const QStringList& items) = 0;

    // The colour picker, opened with a colour; nothing when the user
    // cancelled.
    virtual std::optional<QColor> pickColour(QWidget* parent, const QColor& start) = 0;

    // Opens a web page in the user's browser.
    virtual bool openUrl(const QUrl& url) = 0;

    // Starts a program that outlives this one. The arguments are passed as
    // they are, never through a shell; environment holds "NAME=value"
    // entries added to this program's own.
    virtual bool startDetached(const QString& program, const QStringList& arguments, const QString& workingFolder,
                               const QStringList& environment) = 0;

    // Where this machine may hold the game.
    virtual GamePlaces gamePlaces() const = 0;

    // The time and the slow timers (minutes, not the query's milliseconds).
    virtual Clock& clock() = 0;
    // The desktop's keyring.
    virtual SecretStore& secrets() = 0;

    // The tray icon is there only while the user wants notifications.
    virtual void setNotifying(bool on) = 0;
    // A desktop notification; clicked runs when the user clicks it (the
    // latest notification's, as the tray keeps only one). False when this
    // desktop cannot show notifications.
    virtual bool notify(const QString& title, const QString& text, std::function<void()> clicked) = 0;
};

// The real desktop: Qt's dialogs and QProcess.
class QtDesktop final : public Desktop {
public:
    QMessageBox::StandardButton message(QWidget* parent, Icon icon, const QString& title, const QString& text,
                                        QMessageBox::StandardButtons buttons,
                                        const ButtonTexts& buttonTexts = {}) override;
    std::optional<QString> inputText(QWidget* parent, const QString& title, const QString& prompt,
                                     const QString& initialText = {}, Echo echo = Echo::Normal) override;
    QString openFileName(QWidget* parent, const QString& title, const QString& folder, const QString& filter) override;
    std::optional<int> chooseItem(QWidget* parent, const QString& title, const QString& prompt,
                                  const QStringList& items) override;
    std::optional<QColor> pickColour(QWidget* parent, const QColor& start) override;
    bool openUrl(const QUrl& url) override;
    bool startDetached(const QString& program, const QStringList& arguments, const QString& workingFolder,
                       const QStringList& environment) override;
    GamePlaces gamePlaces() const override { return GamePlaces::ofThisMachine(); }
    Clock& clock() override { return m_clock; }
    SecretStore& secrets() override { return m_secrets; }
    void setNotifying(bool on) override;
    bool notify(const QString& title, const QString& text, std::function<void()> clicked) override;

    QtDesktop();
    ~QtDesktop() override;
    QtDesktop(const QtDesktop&) = delete;
    QtDesktop& operator=(const QtDesktop&) = delete;

private:
    SystemClock m_clock;
    KeyringSecretStore m_secrets;
    std::unique_ptr<QSystemTrayIcon> m_tray;
    std::function<void()> m_clicked;
};
