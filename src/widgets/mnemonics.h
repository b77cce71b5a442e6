// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <QSet>
#include <QString>

class QWidget;

// Alt+letter for every captioned control of a window, in every language:
// the translations carry no '&', so the letters are chosen here, after
// each retranslation, as a desktop does for programs that name none.
namespace Mnemonics {

// The caption without its mnemonic marks ("&&" stays a literal '&').
QString plain(const QString& caption);
// The caption with a '&' before its first letter or digit that is not
// taken yet (a word's first letter preferred), which is then taken; the
// plain caption when every letter is taken.
QString mark(const QString& caption, QSet<QChar>& taken);
// Marks the buttons, check boxes, tabs and labels with a buddy of window
// (not of the windows it owns), in the order they were made.
void assign(QWidget* window);

} // namespace Mnemonics
