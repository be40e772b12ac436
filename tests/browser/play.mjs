// SPDX-License-Identifier: Apache-2.0
// What a learner does on the page. Called by `run` as: node play.mjs ADDRESS ADDRESS-OF-THE-ONE-IN-SHIFT-JIS PICTURES
import { readFileSync } from "node:fs";
import { Learner } from "./learner.mjs";

const [address, shiftJisAddress, pictures] = process.argv.slice(2);

// Places on a page of 1280 x 1024: points as [x, y], parts as [left, top, width, height].
const closeBox = [1268, 12];
const cable = [60, 128];
const cablePart = [0, 90, 64, 250];
const benchPart = [0, 90, 430, 710];
const scrValue = [525, 130];
const scrRow = [446, 120, 250, 18];
const stopMode = [473, 51];
const navigatorLabel = [1228, 45];
const ssrRow = [500, 138, 190, 18];
const hintPart = [640, 520, 480, 340];
const hintOverBench = [600, 480, 270, 290];
const settingsLabel = [700, 45];
const hintBox = [354, 376];
const saveButton = [410, 713];
const closeSettings = [1129, 713];
const signPart = [1262, 915, 17, 26];
const tourText = [530, 870, 725, 80];
const brandGreen = [0x1f, 0x73, 0x48];
const emptyDesk = [300, 900];
const panelGone = 6000;  // the start panel goes by itself

let plays = 0;
function scene(text) {
    console.log(`-- ${text}`);
    ++plays;
}
function expect(truth, what) {
    if (!truth) {
        throw new Error(what);
    }
}

const learner = await Learner.come(pictures);
const differ = (one, other, part) => learner.differ(one, other, part);
const silent = () => expect(learner.said.length === 0, `The console says: ${learner.said.join(" | ")}`);
const answers = {};

async function firstLook() {
    scene("opened, used by mouse and keyboard");
    const times = [];
    for (let run = 0; run < 3; ++run) {
        await learner.sitDown();
        times.push(await learner.open(address));
    }
    answers.start = times.sort((a, b) => a - b)[1];
    expect(answers.start < 4000, `It took ${answers.start} ms`);
    await learner.wait(panelGone);
    const started = await learner.look("web-1-started");

    await learner.click(...cable);
    await learner.wait(1000);
    const pulled = await learner.look("web-2-cable");
    expect(await differ(started, pulled, cablePart) > 20, "A pulled cable is to be seen");
    expect(await differ(started, pulled, hintOverBench) > 500, "The bench comes before the hint book when it is clicked");
    expect(await differ(started, pulled, [560, 90, 130, 15]) < 5, "The register window stays before the bench");
    await learner.click(...cable);

    await learner.page.mouse.move(scrValue[0] + 1, scrValue[1]);
    await learner.wait(300);
    const pointer = await learner.page.evaluate(() => document.querySelector("canvas").style.cursor);
    expect(pointer.startsWith("url("), `The pointer of a double click is a picture, not ${pointer}`);

    await learner.doubleClick(...scrValue);
    await learner.click(...emptyDesk);  // which the dialog blocks, and keeps the keyboard
    await learner.type("0002");
    await learner.key("Enter");
    await learner.wait(1500);
    const written = await learner.look("web-3-register");
    expect(await differ(started, written, scrRow) > 5, "The written register shows");
    // The keyboard is at the register window, on SCR: Return opens its dialog once more.
    await learner.key("Enter");
    await learner.type("0004");
    await learner.key("Enter");
    await learner.wait(1500);
    expect(await differ(started, await learner.look("web-4-register-by-keyboard"), scrRow) < 5, "SCR is as it was");
    silent();
}

async function runModes() {
    scene("keys that are the browser's own elsewhere, and a page that nobody sees");
    // SSR has four values: a single look may see the same one again.
    const moving = async () => {
        const before = await learner.look("web-5-mode");
        for (let look = 0; look < 8; ++look) {
            await learner.wait(110);
            if (await differ(before, await learner.look("web-5-mode"), ssrRow) > 0) {
                return true;
            }
        }
        return false;
    };
    expect(await moving(), "SSR moves in RUN");
    await learner.key("Shift+F5");
    expect(!await moving(), "Shift+F5 stops");
    await learner.key("F5");
    expect(await moving(), "F5 runs, and the page is not loaded anew");
    const tellVisible = (visible) => learner.page.evaluate((seen) => {
        for (const [name, value] of [["hidden", !seen], ["visibilityState", seen ? "visible" : "hidden"]]) {
            Object.defineProperty(document, name, { value, configurable: true });
        }
        document.dispatchEvent(new Event("visibilitychange"));
    }, visible);
    await tellVisible(false);
    expect(!await moving(), "A hidden page stands still");
    await tellVisible(true);
    expect(await moving(), "It goes on when it is seen again");
    silent();
}

// How busy RUN keeps the page, and what it takes of memory.
async function load() {
    scene("measured in RUN");
    const session = await learner.context.newCDPSession(learner.page);
    await session.send("Performance.enable");
    const busy = async () => Object.fromEntries((await session.send("Performance.getMetrics")).metrics.map((m) => [m.name, m.value]));
    const seconds = 10;
    const before = await busy();
    await learner.wait(1000 * seconds);
    const after = await busy();
    answers.busy = (after.TaskDuration - before.TaskDuration) / (after.Timestamp - before.Timestamp);
    const system = await learner.browser.newBrowserCDPSession();
    const renderers = (await system.send("SystemInfo.getProcessInfo")).processInfo.filter((process) => process.type === "renderer");
    const sizes = renderers.map(({ id }) => Number(readFileSync(`/proc/${id}/smaps_rollup`, "utf8").match(/^Pss: +(\d+)/m)[1]));
    answers.memory = Math.max(...sizes) / 1024;
}

async function tour() {
    scene("the first pages of a tour, from the list");
    await learner.sitDown();
    await learner.open(address);
    await learner.wait(panelGone);
    await learner.doubleClick(...navigatorLabel);
    await learner.look("web-6-list");
    await learner.key("Enter");
    await learner.wait(1000);
    for (let page = 1; page < 5; ++page) {
        await learner.key("Enter");
    }
    const asked = await learner.look("web-7-asked");
    expect(await learner.count(asked, brandGreen, signPart) === 0, "What the page asks for has not been done");
    await learner.click(...stopMode);
    await learner.wait(1500);
    const done = await learner.look("web-8-done");
    expect(await learner.count(done, brandGreen, signPart) > 8, "STOP was clicked: the sign is a check mark");
    silent();
}

async function links() {
    scene("a teacher's link into a tour, and a tour in Shift JIS");
    const texts = [];
    for (const [name, from] of [["web-9-link", address], ["web-10-shift-jis", shiftJisAddress]]) {
        await learner.sitDown();
        await learner.open(`${from}?tour=1`);
        await learner.wait(panelGone);
        texts.push(await learner.look(name));
        silent();
    }
    expect(await learner.count(texts[0], [0, 0, 255], tourText) > 50, "The tour is open, with its blue words");
    expect(await differ(texts[0], texts[1], tourText) === 0, "The same text in both encodings");
    await learner.sitDown();
    await learner.open(`${address}?tour=99`);
    await learner.wait(panelGone);
    expect(await differ(texts[0], await learner.look("web-11-no-such-tour"), [810, 480, 440, 400]) > 100, "The list, for a tour that isn't there");
}

async function settings() {
    scene("settings saved, there after a reload; exit, and begun again");
    await learner.sitDown();
    await learner.open(address);
    await learner.wait(panelGone);
    const withHints = await learner.look("web-12-before");
    await learner.click(...settingsLabel);
    await learner.click(...hintBox);
    await learner.click(...saveButton);
    await learner.look("web-13-settings");
    await learner.click(...closeSettings);
    await learner.page.reload();
    await learner.awaitStarted();
    await learner.wait(panelGone);
    const without = await learner.look("web-14-reloaded");
    expect(await differ(withHints, without, hintPart) > 500, "The hint book no longer opens at the start");
    await learner.click(...closeBox);
    await learner.click(...emptyDesk);
    await learner.look("web-15-question");
    await learner.key("Enter");
    await learner.page.waitForSelector("#again:visible");
    await learner.look("web-16-end");
    await Promise.all([learner.page.waitForNavigation(), learner.key("Enter")]);
    await learner.awaitStarted();
    await learner.wait(panelGone);
    expect(await differ(without, await learner.look("web-17-again"), benchPart) < 5, "The bench stands there again");
    silent();
}

async function screens() {
    scene("a smaller page, sharp screens");
    for (const [name, width, height, ratio] of [["web-18-small", 1024, 700, 1], ["web-19-sharp", 1280, 1024, 2],
        ["web-20-between", 1366, 768, 1.5]]) {
        await learner.sitDown({ width, height, ratio });
        await learner.open(address);
        await learner.wait(panelGone);
        await learner.look(name);
        const canvas = await learner.page.evaluate(() => {
            const { width: w, height: h } = document.querySelector("canvas");
            return [w, h];
        });
        expect(canvas[0] === width * ratio && canvas[1] === height * ratio, `${name} is painted in ${canvas.join(" x ")}`);
        silent();
    }
}

async function troubles() {
    scene("no WebAssembly, and a file that doesn't come");
    const told = async () => {
        await learner.page.goto(address);
        await learner.page.waitForSelector("#again:visible");
        return learner.page.textContent("#text");
    };
    await learner.sitDown();
    await learner.page.addInitScript(() => { delete globalThis.WebAssembly; });
    expect((await told()).includes("WebAssembly"), "The page says what the browser lacks");
    await learner.sitDown();
    await learner.page.route("**/start.tar*", (route) => route.abort());
    expect((await told()).includes("読み込めませんでした"), "The page says that it could not be loaded");
    await learner.look("web-21-failed");
}

try {
    for (const play of [firstLook, runModes, load, tour, links, settings, screens, troubles]) {
        await play();
    }
    console.log(`Started in ${Math.round(answers.start)} ms; RUN keeps the page busy ${(100 * answers.busy).toFixed(2)} % of the time; its process takes ${Math.round(answers.memory)} MiB`);
    console.log(`${plays} passed, 0 failed`);
} catch (error) {
    await learner.look("failed");
    console.error(`${error.message}\nThe page is in ${pictures}/failed.png`);
    process.exitCode = 1;
} finally {
    await learner.leave();
}
