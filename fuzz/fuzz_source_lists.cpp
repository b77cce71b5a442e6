// SPDX-License-Identifier: GPL-2.0-or-later
// The settings' master servers and server list addresses, as a hand-edited
// file may hold them: each source is asked once, never more than the cap,
// and what the options write back reads the same again.
#include "fuzzinput.h"
#include "query/masteraddress.h"
#include "query/serverlistreader.h"

#include <QSet>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QString text = QString::fromUtf8(bytesOf(data, size));

    const MasterList masters = parseMasterList(text);
    FUZZ_CHECK(!masters.masters.isEmpty() || !masters.refused.isEmpty());
    FUZZ_CHECK(masters.masters.size() <= MasterList::Max);
    FUZZ_CHECK(masters.leftOut == 0 || masters.masters.size() == MasterList::Max);
    QSet<QString> hosts;
    for (const MasterAddress& master : masters.masters) {
        FUZZ_CHECK(master.port >= 1 && !master.host.isEmpty());
        hosts.insert(masterAddressText({master.host.toLower(), master.port}));
    }
    FUZZ_CHECK(hosts.size() == masters.masters.size());
    if (masters.refused.isEmpty()) {
        const MasterList again = parseMasterList(masterListText(masters.masters));
        FUZZ_CHECK(again.masters == masters.masters && again.refused.isEmpty());
    }

    const ServerListReader::UrlList lists = ServerListReader::parseUrls(text);
    FUZZ_CHECK(lists.urls.size() <= ServerListReader::UrlList::Max);
    FUZZ_CHECK(lists.leftOut == 0 || lists.urls.size() == ServerListReader::UrlList::Max);
    FUZZ_CHECK(QSet<QUrl>(lists.urls.cbegin(), lists.urls.cend()).size() == lists.urls.size());
    const ServerListReader::UrlList again = ServerListReader::parseUrls(ServerListReader::urlsText(lists.urls));
    FUZZ_CHECK(again.urls == lists.urls && again.refused.isEmpty());
    return 0;
}
