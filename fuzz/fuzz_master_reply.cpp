// SPDX-License-Identifier: GPL-2.0-or-later
// A master's reply: the input is cut into datagrams of at most 1,396
// bytes as a socket would deliver them, gathered, cut into records and
// turned into the address table.
#include "fuzzinput.h"
#include "query/masterprotocol.h"

#include <cstdio>

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size)
{
    const QByteArray input = bytesOf(data, size);
    QByteArray gathered;
    qsizetype recordBytes = 0;
    int datagrams = 0;
    for (qsizetype at = 0; at < input.size(); at += 1396) {
        const QByteArray datagram = input.mid(at, 1396);
        gathered += datagram;
        recordBytes += MasterProtocol::removeAll(datagram, MasterProtocol::replyHeader()).size();
        ++datagrams;
        MasterProtocol::isLastDatagram(datagram);
        if (MasterProtocol::surelyTooLong(recordBytes, datagrams, gathered.size())) {
            // Refused early only when the whole would be refused too.
            FUZZ_CHECK(!MasterProtocol::cutRecords(gathered + input.mid(at + 1396)));
            return 0;
        }
    }
    const auto records = MasterProtocol::cutRecords(gathered);
    if (!records)
        return 0;
    for (qsizetype i = 0; i + 1 < records->size(); ++i)
        FUZZ_CHECK(records->at(i).size() == 6);
    AddressTable table;
    MasterProtocol::appendAddresses(*records, table);
    FUZZ_CHECK(table.count() <= records->size());
    return 0;
}
