// SPDX-License-Identifier: GPL-2.0-or-later
#include "scripteddesktop.h"

#include <QTimer>

QMessageBox::StandardButton ScriptedDesktop::message(QWidget* parent, Icon icon, const QString& title,
                                                     const QString& text, QMessageBox::StandardButtons buttons,
                                                     const ButtonTexts& buttonTexts)
{
    messages.append({icon, title, text, buttons, buttonTexts});
    if (whileMessageOpen)
        std::exchange(whileMessageOpen, {})(parent);
    if (messageAnswers.isEmpty()) {
        ++unexpectedCalls;
        return QMessageBox::Cancel;
    }
    return messageAnswers.dequeue();
}

std::optional<QString> ScriptedDesktop::inputText(QWidget*, const QString& title, const QString& prompt,
                                                  const QString& initialText, Echo echo)
{
    inputs.append({title, prompt, initialText, echo});
    if (inputAnswers.isEmpty()) {
        ++unexpectedCalls;
        return std::nullopt;
    }
    return inputAnswers.dequeue();
}

QString ScriptedDesktop::openFileName(QWidget*, const QString& title, const QString& folder, const QString& filter)
{
    fileRequests.append({title, folder, filter});
    if (fileAnswers.isEmpty()) {
        ++unexpectedCalls;
        return {};
    }
    return fileAnswers.dequeue();
}

std::optional<int> ScriptedDesktop::chooseItem(QWidget*, const QString& title, const QString& prompt,
                                               const QStringList& items)
{
    choices.append({title, prompt, items});
    if (choiceAnswers.isEmpty()) {
        ++unexpectedCalls;
        return std::nullopt;
    }
    return choiceAnswers.dequeue();
}

std::optional<QColor> ScriptedDesktop::pickColour(QWidget*, const QColor& start)
{
    colourRequests.append(start);
    if (colourAnswers.isEmpty()) {
        ++unexpectedCalls;
        return std::nullopt;
    }
    return colourAnswers.dequeue();
}

bool ScriptedDesktop::openUrl(const QUrl& url)
{
    openedUrls.append(url);
    return true;
}

bool ScriptedDesktop::startDetached(const QString& program, const QStringList& arguments, const QString& workingFolder,
                                    const QStringList& environment)
{
    starts.append({program, arguments, workingFolder, environment});
    return startSucceeds;
}

bool ScriptedDesktop::notify(const QString& title, const QString& text, std::function<void()> clicked)
{
    if (!notifying)
        ++unexpectedCalls;
    notifications.append({title, text, std::move(clicked)});
    return notificationsShown;
}

void MemorySecrets::read(const QString& key, QObject* context,
                         std::function<void(Answer answer, const QString& value)> done)
{
    const Answer answer = !available ? Answer::Unavailable : values.contains(key) ? Answer::Found : Answer::Missing;
    QTimer::singleShot(0, context,
                       [done = std::move(done), answer, value = values.value(key)] { done(answer, value); });
}

void MemorySecrets::write(const QString& key, const QString& value, QObject* context, std::function<void(bool ok)> done)
{
    if (available) {
        values.insert(key, value);
        ++writes;
    }
    QTimer::singleShot(0, context, [done = std::move(done), ok = available] { done(ok); });
}
