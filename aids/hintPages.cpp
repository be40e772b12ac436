// SPDX-License-Identifier: Apache-2.0
#include "aids/hintPages.h"

#include "aids/textLines.h"

#include <algorithm>

std::vector<HintPage> readHintList(std::string_view text) {
    std::vector<HintPage> pages;
    forEachLine(text, [&pages](std::string_view line) {
        if (!line.starts_with(';')) {
            const auto tab = line.find('\t');
            const std::string_view rest = tab == std::string_view::npos ? std::string_view() : line.substr(tab + 1);
            pages.push_back({std::string(beginning(line.substr(0, tab), longestField)),
                             std::string(beginning(rest.substr(0, rest.find('\t')), longestField))});
        }
        return pages.size() < mostHintPages;
    });
    return pages;
}

std::optional<std::size_t> pageFor(const std::vector<HintPage>& pages, std::string_view name) {
    const auto found = std::find_if(pages.begin(), pages.end(),
                                    [name](const HintPage& page) { return page.caption.find(name) != std::string::npos; });
    if (found == pages.end()) {
        return std::nullopt;
    }
    return static_cast<std::size_t>(found - pages.begin());
}
