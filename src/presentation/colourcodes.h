#pragma once

#include <QString>
#include <QStringView>

// Names arrive with "^" colour codes: a caret and one character whose low
// three bits pick one of eight colours. These turn a coded name into the
// plain text the lists show, sort, find and copy. The two rules differ on
// purpose: each is the twin of the label that draws that kind of name.
namespace ColourCodes {

// Player names and clans: a caret followed by any character but another
// caret is a code and both vanish; "^^" keeps the first caret as text; a
// caret at the very end stays.
QString StripColourCodes(QStringView text);

// Server names: carets are counted. One or two pending carets swallow the
// next character, three or more give back literal carets; pending carets
// at the end come back one more than there were. SOH (code 1) is dropped.
QString StripColourCodesCounted(QStringView text);

} // namespace ColourCodes
