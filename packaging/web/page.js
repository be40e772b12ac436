// SPDX-License-Identifier: Apache-2.0
// Brings the program up on its page: fetches its files, puts them where it looks for them, and starts it. `?tour=4` begins with
// that tour of the list.
"use strict";

// By name: how many bytes come over the wire, packed and plain.
const files = JSON.parse(document.getElementById("files").textContent);
const panel = document.getElementById("panel");
const text = document.getElementById("text");
const progress = document.getElementById("progress");
const again = document.getElementById("again");
const pictureScales = [1, 2, 3];
// Files lie packed beside the plain ones, and are unpacked here: that works with any server.
const unpacks = typeof DecompressionStream === "function";

function show(message, canBegin) {
    panel.hidden = false;
    text.textContent = message;
    progress.hidden = canBegin;
    again.hidden = !canBegin;
    if (canBegin) {
        again.focus();
    }
}

function fail(reason) {
    console.error(reason);
    show(`プログラムを読み込めませんでした。\nThe program could not be loaded.\n\n${reason}`, true);
}

function stop(reason) {
    console.error(reason);
    document.getElementById("bench").remove();
    show(`プログラムが異常終了しました。\nThe program has stopped unexpectedly.\n\n${reason}`, true);
}

again.addEventListener("click", () => location.reload());

function whatIsMissing() {
    if (typeof WebAssembly !== "object") {
        return "WebAssembly";
    }
    const canvas = document.createElement("canvas");
    return canvas.getContext("webgl") || canvas.getContext("webgl2") ? "" : "WebGL";
}

const counted = { done: 0, all: 0 };

function announce(names) {
    for (const name of names) {
        counted.all += unpacks ? files[name].packed : files[name].plain;
    }
}

// The whole file. A server that unpacks by itself what it takes for packed is understood as well.
async function fetchFile(name) {
    const url = unpacks ? `${name}.gz` : name;
    const response = await fetch(url);
    if (!response.ok) {
        throw new Error(`${url}: ${response.status}`);
    }
    const chunks = [];
    const reader = response.body.getReader();
    for (let part = await reader.read(); !part.done; part = await reader.read()) {
        chunks.push(part.value);
        counted.done += part.value.length;
        progress.value = Math.min(1, counted.done / counted.all);
    }
    const blob = new Blob(chunks);
    const start = new Uint8Array(await blob.slice(0, 2).arrayBuffer());
    const packed = start[0] === 0x1f && start[1] === 0x8b;
    return new Response(packed && unpacks ? blob.stream().pipeThrough(new DecompressionStream("gzip")) : blob.stream());
}

async function fetchBytes(name) {
    return new Uint8Array(await (await fetchFile(name)).arrayBuffer());
}

async function fetchModule() {
    const file = await fetchFile("vrb-ts.wasm");
    return WebAssembly.compileStreaming
        ? WebAssembly.compileStreaming(new Response(file.body, { headers: { "Content-Type": "application/wasm" } }))
        : WebAssembly.compile(await file.arrayBuffer());
}

async function fetchScript() {
    const script = document.createElement("script");
    script.src = URL.createObjectURL(new Blob([await (await fetchFile("vrb-ts.js")).arrayBuffer()], { type: "text/javascript" }));
    await new Promise((done, failed) => {
        script.onload = done;
        script.onerror = () => failed(new Error("vrb-ts.js"));
        document.head.append(script);
    });
    URL.revokeObjectURL(script.src);
}

// The files of a tar archive into the program's own file system.
function unpackArchive(fileSystem, bytes) {
    const block = 512;
    const field = (at, length) => new TextDecoder().decode(bytes.subarray(at, at + length)).replace(/\0.*$/s, "");
    for (let at = 0; at + block <= bytes.length && bytes[at] !== 0;) {
        const name = `/${field(at, 100).replace(/^\.?\//, "")}`;
        const size = parseInt(field(at + 124, 12), 8);
        if (field(at + 156, 1) === "5") {
            fileSystem.mkdirTree(name);
        } else {
            fileSystem.mkdirTree(name.replace(/\/[^/]*$/, "") || "/");
            fileSystem.writeFile(name, bytes.slice(at + block, at + block + size));
        }
        at += block + Math.ceil(size / block) * block;
    }
}

function takePictures(program, name, bytes) {
    const file = `/${name}`;
    program.FS.writeFile(file, bytes);
    program.ccall("takePictures", null, ["string"], [file]);
    program.FS.unlink(file);
}

function programArguments() {
    const tour = new URLSearchParams(location.search).get("tour");
    return tour === null ? [] : ["--tour", tour];
}

async function begin() {
    const missing = whatIsMissing();
    if (missing) {
        show(`このブラウザには ${missing} がありません。新しいブラウザでお試しください。\nThis browser has no ${missing}; please try a newer one.`, true);
        return;
    }
    const scale = Math.min(Math.max(Math.ceil(devicePixelRatio), pictureScales[0]), pictureScales.at(-1));
    announce(["vrb-ts.js", "vrb-ts.wasm", "start.tar", `pictures${scale}.rcc`]);
    const [wasm, archive, pictures] = await Promise.all(
        [fetchModule(), fetchBytes("start.tar"), fetchBytes(`pictures${scale}.rcc`), fetchScript()]);

    const fetched = new Set([`pictures${scale}.rcc`]);
    const bringPictures = (name) => {
        if (!fetched.has(name) && files[name]) {
            fetched.add(name);
            fetchBytes(name).then((bytes) => takePictures(program, name, bytes)).catch((reason) => console.warn(reason));
        }
    };
    let running = false;
    const program = await createQtAppInstance({
        qtContainerElements: [document.getElementById("bench")],
        instantiateWasm(imports, done) {
            WebAssembly.instantiate(wasm, imports).then((instance) => done(instance, wasm), fail);
            return {};
        },
        printErr: (line) => console.warn(line),
        onAbort: (reason) => (running ? stop : fail)(reason),
        vrbStarted() {
            panel.hidden = true;
            document.querySelector("#bench canvas").focus();
            // What is not needed for the first look.
            bringPictures(`charts${scale}.rcc`);
            if (devicePixelRatio > 1) {
                fetchBytes("books2.tar").then((bytes) => {
                    unpackArchive(program.FS, bytes);
                    program.ccall("picturesCame");
                }).catch((reason) => console.warn(reason));
            }
            performance.mark("vrb-started");
        },
        vrbEnded() {
            document.getElementById("bench").remove();
            show("終了しました。", true);
        },
        vrbWantPictures(drawing, wanted) {
            bringPictures(`${drawing === "ilsOsiro" ? "charts" : "pictures"}${wanted}.rcc`);
        },
    });
    unpackArchive(program.FS, archive);
    takePictures(program, `pictures${scale}.rcc`, pictures);
    panel.hidden = true;
    running = true;
    program.callMain(programArguments());
}

begin().catch(fail);
