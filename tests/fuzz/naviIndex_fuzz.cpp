// SPDX-License-Identifier: Apache-2.0
// Noise as the index of the tours. Whatever the bytes: record 0 is the empty one, every other record comes from a line of its
// own that holds it, and its file was asked for; there are no more than a list takes, and no field is longer than one.

#include "aids/navigation.h"
#include "tests/fuzz/demand.h"

#include <algorithm>

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string text(data, data + size);
    std::size_t asked = 0;
    const std::vector<NaviRecord> index = readNaviIndex(text, [&asked](const std::string& name) {
        ++asked;
        return name.size() % 2 == 0;
    });
    demand(!index.empty() && index[0].title.empty() && !index[0].fileFound);
    demand(asked == index.size() - 1 && asked <= mostTours);
    std::size_t from = 0;
    for (std::size_t number = 1; number < index.size(); ++number) {
        const NaviRecord& record = index[number];
        const std::string line = record.fileName + "\t" + record.title + "\t" + record.remark;
        for (const std::string& field : {record.fileName, record.title, record.remark}) {
            from = text.find(field, from);
            demand(from != std::string::npos && field.size() <= 1000);
            from += field.size();
        }
        demand(!record.fileName.starts_with(';') && record.fileFound == (record.fileName.size() % 2 == 0));
        demand(line.find_first_of("\r\n") == std::string::npos);
        demand(std::count(line.begin(), line.end(), '\t') >= 2);
    }
    return 0;
}
