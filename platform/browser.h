// SPDX-License-Identifier: Apache-2.0
// The page that the program runs in when it was built for a browser. The functions are there in such a build alone: whoever calls
// them does so behind `if constexpr (inBrowser)`.

#pragma once

#include <QtGlobal>

#include <cstddef>
#include <filesystem>
#include <functional>
#include <optional>
#include <string>
#include <system_error>

#ifdef Q_OS_WASM
inline constexpr bool inBrowser = true;
#else
inline constexpr bool inBrowser = false;
#endif

class QString;

namespace page {

// A file that the learner has saved. The browser keeps it for the place that the page comes from, beyond a reload, and hands it
// out whole; nothing where it has none, or gives no storage to a page.
std::optional<std::string> keptFile(const std::filesystem::path& path);
// Whole or not at all, for all pages from the same place. Errors: no_space_on_device, and permission_denied where the browser
// gives no storage.
std::error_code keepFile(const std::filesystem::path& path, const std::string& bytes);

// Text in one of the browser's encodings, by its name there. What is not of it comes as replacement characters.
QString decoded(const std::string& bytes, const char* encoding);

// Whether the page can be seen: `tell` hears it now and whenever that changes. Another tab in front hides it.
void follow(std::function<void(bool visible)> tell);
// A page begins with the pictures of one scale. Others are fetched when a drawing is first wanted in its scale: `tell` is called
// when they have come.
void wantPictures(const QString& drawing, int scale);
void followPictures(std::function<void()> tell);

// A wave file's bytes, to be played by playWave from their start. A page is silent until its user has clicked or pressed a key.
void takeWave(const std::string& bytes);
void playWave();
// The short tone that a desktop has for a gesture that leads nowhere.
void playTone();

// The program is up: the page takes its progress bar away. The program has ended: it offers to begin again.
void tellStarted();
void tellEnded();

}  // namespace page
