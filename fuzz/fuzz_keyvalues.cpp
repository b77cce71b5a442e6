// SPDX-License-Identifier: GPL-2.0-or-later
// Steam's libraryfolders.vdf and app manifests as any user, tool or cut
// write may have left them: the reader refuses too deep or too large files
// whole, and what the finder takes from them stays a plain name or an
// absolute path.
#include "fuzzinput.h"
#include "game/installfinder.h"
#include "game/keyvalues.h"

#include <QDir>

namespace {

int depthOf(const QList<KeyValues::Pair>& pairs)
{
    int deepest = 0;
    for (const KeyValues::Pair& pair : pairs)
        deepest = std::max(deepest, 1 + depthOf(pair.pairs));
    return deepest;
}

} // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const auto pairs = KeyValues::parse(bytesOf(data, size));
    if (!pairs)
        return 0;
    FUZZ_CHECK(depthOf(*pairs) <= KeyValues::MaxDepth);
    for (const QString& library : InstallFinder::steamLibraries(*pairs))
        FUZZ_CHECK(QDir::isAbsolutePath(library));
    const QString dir = InstallFinder::installDir(*pairs);
    FUZZ_CHECK(!dir.contains(QLatin1Char('/')) && !dir.contains(QLatin1Char('\\')) && dir != QLatin1String("..") &&
               dir != QLatin1String("."));
    return 0;
}
