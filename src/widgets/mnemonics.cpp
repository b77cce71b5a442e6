// SPDX-License-Identifier: GPL-2.0-or-later
#include "widgets/mnemonics.h"

#include <QAbstractButton>
#include <QHash>
#include <QLabel>
#include <QStackedWidget>
#include <QTabBar>

#include <algorithm>
#include <functional>

namespace Mnemonics {

QString plain(const QString& caption)
{
    QString text;
    text.reserve(caption.size());
    for (qsizetype i = 0; i < caption.size(); ++i) {
        if (caption.at(i) == QLatin1Char('&') && i + 1 < caption.size()) {
            ++i; // "&x" is x, "&&" is '&'
        }
        text.append(caption.at(i));
    }
    return text;
}

QString mark(const QString& caption, QSet<QChar>& taken)
{
    const QString text = plain(caption);
    const auto usable = [&](qsizetype i) {
        const QChar c = text.at(i);
        return c.isLetterOrNumber() && c != QLatin1Char('&') && !taken.contains(c.toLower());
    };
    qsizetype chosen = -1;
    for (qsizetype i = 0; i < text.size() && chosen < 0; ++i) {
        const bool wordStart = i == 0 || !text.at(i - 1).isLetterOrNumber();
        if (wordStart && usable(i))
            chosen = i;
    }
    for (qsizetype i = 0; i < text.size() && chosen < 0; ++i) {
        if (usable(i))
            chosen = i;
    }
    QString marked = text;
    marked.replace(QLatin1Char('&'), QStringLiteral("&&"));
    if (chosen < 0)
        return marked;
    taken.insert(text.at(chosen).toLower());
    // Each '&' before the chosen letter became two.
    const qsizetype at = chosen + text.left(chosen).count(QLatin1Char('&'));
    marked.insert(at, QLatin1Char('&'));
    return marked;
}

namespace {

// The page of a tab widget or stack the control sits on, or none: controls
// on different pages are never shown together and may share a letter.
const QWidget* pageOf(const QWidget* control, const QWidget* window)
{
    for (const QWidget* w = control; w && w != window; w = w->parentWidget())
        if (qobject_cast<const QStackedWidget*>(w->parentWidget()))
            return w;
    return nullptr;
}

// One caption to mark: a button's, a buddy label's or a tab's.
struct Caption {
    QString text;
    std::function<void(const QString&)> set;
};

void collect(QWidget* control, QList<Caption>& captions)
{
    if (auto* button = qobject_cast<QAbstractButton*>(control)) {
        // A button without a caption (a colour swatch, a tool icon) has no letter.
        if (!plain(button->text()).trimmed().isEmpty())
            captions.append({button->text(), [button](const QString& text) { button->setText(text); }});
    } else if (auto* label = qobject_cast<QLabel*>(control)) {
        if (label->buddy() && !label->text().isEmpty() && label->textFormat() != Qt::RichText)
            captions.append({label->text(), [label](const QString& text) { label->setText(text); }});
    } else if (auto* tabs = qobject_cast<QTabBar*>(control)) {
        for (int i = 0; i < tabs->count(); ++i)
            captions.append({tabs->tabText(i), [tabs, i](const QString& text) { tabs->setTabText(i, text); }});
    }
}

int letterChoices(const QString& caption)
{
    QSet<QChar> letters;
    for (const QChar c : plain(caption))
        if (c.isLetterOrNumber())
            letters.insert(c.toLower());
    return int(letters.size());
}

// The captions with the fewest letters choose first, so that a short one
// ("Join IP") is not left without a letter by the long ones.
void markAll(QList<Caption>& captions, QSet<QChar>& taken)
{
    std::stable_sort(captions.begin(), captions.end(),
                     [](const Caption& a, const Caption& b) { return letterChoices(a.text) < letterChoices(b.text); });
    for (const Caption& caption : std::as_const(captions))
        caption.set(mark(caption.text, taken));
}

} // namespace

void assign(QWidget* window)
{
    // What is always shown chooses first; each page then chooses among the
    // letters left.
    QList<Caption> common;
    QHash<const QWidget*, QList<Caption>> pages;
    for (QWidget* control : window->findChildren<QWidget*>()) {
        if (control->window() != window)
            continue;
        const QWidget* page = pageOf(control, window);
        collect(control, page ? pages[page] : common);
    }
    QSet<QChar> taken;
    markAll(common, taken);
    for (QList<Caption>& captions : pages) {
        QSet<QChar> left = taken;
        markAll(captions, left);
    }
}

} // namespace Mnemonics
