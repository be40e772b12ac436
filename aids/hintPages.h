// SPDX-License-Identifier: Apache-2.0
// The book of register hints: which pages there are, and which one belongs to what the learner is looking at.
//
//   list file    ; a comment
//                picture file <tab> caption of its tab
//
// Pages are numbered from 0 in the order of the file. Every line but a comment is a page, so that no slip in one line moves the
// pages behind it: without a tab its caption is empty, and on an empty line its picture too.
//
// A book has at most 99 pages, 33 rows of tabs: what follows in the list is left out. A field counts with its first 1000 bytes.

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

struct HintPage {
    std::string picture;
    std::string caption;
    bool operator==(const HintPage&) const = default;
};

inline constexpr std::size_t mostHintPages = 99;

// The page that explains the control word.
inline constexpr std::size_t controlWordPage = 6;

// `text` is the list file in UTF-8, with CR LF or LF.
std::vector<HintPage> readHintList(std::string_view text);

// The first page whose caption contains the name.
std::optional<std::size_t> pageFor(const std::vector<HintPage>& pages, std::string_view name);
