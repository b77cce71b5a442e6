// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include "manualclock.h"
#include "platform/desktop.h"

#include <QHash>
#include <QList>
#include <QQueue>

#include <optional>

// A keyring in memory: answers on the next turn of the event loop, as the
// real one does; unavailable, it answers Unavailable to everything.
class MemorySecrets final : public SecretStore {
public:
    bool available = true;
    QHash<QString, QString> values;
    int writes = 0;

    void read(const QString& key, QObject* context,
              std::function<void(Answer answer, const QString& value)> done) override;
    void write(const QString& key, const QString& value, QObject* context, std::function<void(bool ok)> done) override;
};

// Answers modal boxes and file dialogs from a script the test writes in
// advance, and records every call, so a test can check what the user was
// asked and what would have been started. A call with no scripted answer
// is recorded as unexpected and answered with "cancel".
class ScriptedDesktop final : public Desktop {
public:
    struct Message {
        Icon icon;
        QString title;
        QString text;
        QMessageBox::StandardButtons buttons;
        ButtonTexts buttonTexts;
    };
    struct Input {
        QString title;
        QString prompt;
        QString initialText;
        Echo echo = Echo::Normal;
    };
    struct FileRequest {
        QString title;
        QString folder;
        QString filter;
    };
    struct Notification {
        QString title;
        QString text;
        std::function<void()> clicked;
    };
    struct Start {
        QString program;
        QStringList arguments;
        QString workingFolder;
        QStringList environment;
    };
    struct Choice {
        QString title;
        QString prompt;
        QStringList items;
    };

    QQueue<QMessageBox::StandardButton> messageAnswers;
    // Runs while a message box is open, as a user (or assistive tool)
    // acting on other windows meanwhile; its parent is given.
    std::function<void(QWidget* parent)> whileMessageOpen;
    QQueue<std::optional<QString>> inputAnswers;
    QQueue<QString> fileAnswers;
    QQueue<std::optional<int>> choiceAnswers;
    // Nothing of the game unless a test lays it out: never this machine's.
    GamePlaces places;
    QQueue<std::optional<QColor>> colourAnswers;
    bool startSucceeds = true;

    QList<Message> messages;
    QList<Input> inputs;
    QList<FileRequest> fileRequests;
    QList<Choice> choices;
    QList<QColor> colourRequests;
    QList<QUrl> openedUrls;
    QList<Start> starts;
    QList<Notification> notifications;
    bool notifying = false;
    bool notificationsShown = true; // false: a desktop without a tray
    ManualClock manualClock;
    MemorySecrets keyring;
    int unexpectedCalls = 0;

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
    GamePlaces gamePlaces() const override { return places; }
    Clock& clock() override { return manualClock; }
    SecretStore& secrets() override { return keyring; }
    void setNotifying(bool on) override { notifying = on; }
    bool notify(const QString& title, const QString& text, std::function<void()> clicked) override;
};
