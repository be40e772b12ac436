// SPDX-License-Identifier: Apache-2.0
// The scripts catch what a browser throws: nothing here can.
#include "platform/browser.h"

#include <QResource>
#include <QString>

#include <emscripten.h>
#include <emscripten/html5.h>
#include <emscripten/val.h>
#include <utility>

namespace {

// One key for each file. The value holds a byte in each character, so that any bytes come back.
constexpr const char* keyStart = "vrb-ts:";

std::string keyOf(const std::filesystem::path& path) {
    return keyStart + path.string();
}

std::function<void(bool)>& visibleTeller() {
    static std::function<void(bool)> tell;
    return tell;
}

std::function<void()>& picturesTeller() {
    static std::function<void()> tell;
    return tell;
}

EM_BOOL visibilityChanged(int /*type*/, const EmscriptenVisibilityChangeEvent* event, void* /*data*/) {
    if (visibleTeller()) {
        visibleTeller()(!event->hidden);
    }
    return EM_FALSE;
}

}  // namespace

// clang-format off
EM_JS(int, keptLength, (const char* key), {
    try {
        const text = localStorage.getItem(UTF8ToString(key));
        return text === null ? -1 : text.length;
    } catch (error) {
        return -1;
    }
});

EM_JS(void, copyKept, (const char* key, char* to, int length), {
    const text = localStorage.getItem(UTF8ToString(key));
    for (let at = 0; at < length; ++at) {
        HEAPU8[to + at] = text.charCodeAt(at);
    }
});

EM_JS(int, keep, (const char* key, const char* bytes, int length), {
    let text = "";
    for (let at = 0; at < length; ++at) {
        text += String.fromCharCode(HEAPU8[bytes + at]);
    }
    try {
        localStorage.setItem(UTF8ToString(key), text);
        return 0;
    } catch (error) {
        return error.name === "QuotaExceededError" ? 1 : 2;
    }
});

// A sound before the first gesture would only be refused, with a line in the console.
EM_JS(void, prepareSound, (const char* bytes, int length), {
    const file = HEAPU8.slice(bytes, bytes + length).buffer;
    let context, wave, playing;
    const ready = () => {
        if (!navigator.userActivation || !navigator.userActivation.hasBeenActive || !window.AudioContext) {
            return false;
        }
        context = context || new AudioContext();
        context.resume();
        return true;
    };
    const play = (source) => {
        if (playing) {
            playing.stop();
        }
        playing = source;
        source.connect(context.destination);
        source.start();
    };
    Module.vrbPlayWave = async () => {
        if (ready()) {
            wave = wave || await context.decodeAudioData(file);
            const source = context.createBufferSource();
            source.buffer = wave;
            play(source);
        }
    };
    Module.vrbPlayTone = () => {
        if (ready()) {
            const tone = context.createOscillator();
            tone.frequency.value = 800;
            play(tone);
            tone.stop(context.currentTime + 0.12);
        }
    };
});

EM_JS(void, askForPictures, (const char* drawing, int scale), {
    if (Module.vrbWantPictures) {
        Module.vrbWantPictures(UTF8ToString(drawing), scale);
    }
});

EM_JS(void, callPage, (const char* name), {
    const function_ = Module[UTF8ToString(name)];
    if (function_) {
        function_();
    }
});
// clang-format on

// The page calls these: when it has put a file of drawings into the program's folder, and when others have come to those that lie
// there as they are.
extern "C" EMSCRIPTEN_KEEPALIVE void picturesCame() {
    if (picturesTeller()) {
        picturesTeller()();
    }
}

extern "C" EMSCRIPTEN_KEEPALIVE void takePictures(const char* file) {
    if (QResource::registerResource(QString::fromUtf8(file))) {
        picturesCame();
    }
}

namespace page {

std::optional<std::string> keptFile(const std::filesystem::path& path) {
    const std::string key = keyOf(path);
    const int length = keptLength(key.c_str());
    if (length < 0) {
        return std::nullopt;
    }
    std::string bytes(static_cast<std::size_t>(length), '\0');
    copyKept(key.c_str(), bytes.data(), length);
    return bytes;
}

std::error_code keepFile(const std::filesystem::path& path, const std::string& bytes) {
    switch (keep(keyOf(path).c_str(), bytes.data(), static_cast<int>(bytes.size()))) {
        case 0: return {};
        case 1: return std::make_error_code(std::errc::no_space_on_device);
        default: return std::make_error_code(std::errc::permission_denied);
    }
}

QString decoded(const std::string& bytes, const char* encoding) {
    const emscripten::val decoder = emscripten::val::global("TextDecoder").new_(std::string(encoding));
    const emscripten::val view(emscripten::typed_memory_view(bytes.size(), reinterpret_cast<const unsigned char*>(bytes.data())));
    return QString::fromStdString(decoder.call<std::string>("decode", view));
}

void follow(std::function<void(bool visible)> tell) {
    visibleTeller() = std::move(tell);
    emscripten_set_visibilitychange_callback(nullptr, EM_FALSE, &visibilityChanged);
    EmscriptenVisibilityChangeEvent now{};
    if (emscripten_get_visibility_status(&now) == EMSCRIPTEN_RESULT_SUCCESS) {
        visibilityChanged(0, &now, nullptr);
    }
}

void wantPictures(const QString& drawing, int scale) {
    askForPictures(drawing.toUtf8().constData(), scale);
}

void followPictures(std::function<void()> tell) {
    picturesTeller() = std::move(tell);
}

void takeWave(const std::string& bytes) {
    prepareSound(bytes.data(), static_cast<int>(bytes.size()));
}

void playWave() {
    callPage("vrbPlayWave");
}

void playTone() {
    callPage("vrbPlayTone");
}

void tellStarted() {
    callPage("vrbStarted");
}

void tellEnded() {
    callPage("vrbEnded");
}

}  // namespace page
