// SPDX-License-Identifier: Apache-2.0
// Noise as the list of the hint pages. Whatever the bytes: they are at most as many as a book has, a page has a picture and a
// caption of one bounded field each, and is found by its whole caption, or an earlier page that contains it.

#include "aids/hintPages.h"
#include "tests/fuzz/demand.h"

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::vector<HintPage> pages = readHintList(std::string(data, data + size));
    demand(pages.size() <= mostHintPages);
    for (std::size_t page = 0; page < pages.size(); ++page) {
        demand((pages[page].picture + pages[page].caption).find_first_of("\t\r\n") == std::string::npos);
        demand(pages[page].picture.size() <= 1000 && pages[page].caption.size() <= 1000);
        demand(!pages[page].picture.starts_with(';'));
        const auto found = pageFor(pages, pages[page].caption);
        demand(found && *found <= page && pages[*found].caption.find(pages[page].caption) != std::string::npos);
    }
    return 0;
}
