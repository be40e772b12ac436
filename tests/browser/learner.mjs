// SPDX-License-Identifier: Apache-2.0
// A learner before the page: Debian's Chromium without a screen, driven by real events, and eyes for what it shows.
import { chromium } from "playwright-core";

// Software rendering, and nothing of what a browser does in the network for itself.
const options = [
    "--headless=new", "--no-sandbox", "--use-gl=angle", "--use-angle=swiftshader", "--enable-unsafe-swiftshader", "--no-first-run",
    "--disable-background-networking", "--disable-component-update", "--disable-sync", "--disable-quic",
];

export class Learner {
    static async come(pictures) {
        const learner = new Learner();
        learner.pictures = pictures;
        learner.browser = await chromium.launch({ executablePath: process.env.CHROMIUM ?? "/usr/bin/chromium", args: options });
        // Pictures are compared on a page of their own.
        learner.bench = await learner.browser.newPage();
        return learner;
    }

    // A new browser session, whose storage is empty, in a window of this size.
    async sitDown({ width = 1280, height = 1024, ratio = 1 } = {}) {
        await this.context?.close();
        this.context = await this.browser.newContext({ viewport: { width, height }, deviceScaleFactor: ratio });
        this.page = await this.context.newPage();
        this.said = [];
        this.page.on("console", (message) => this.said.push(`${message.type()}: ${message.text()}`));
        this.page.on("pageerror", (error) => this.said.push(`error: ${error.message}`));
    }

    // Milliseconds until every window of the start stands.
    async open(address) {
        const begin = performance.now();
        await this.page.goto(address);
        await this.awaitStarted();
        return performance.now() - begin;
    }
    awaitStarted() {
        return this.page.waitForFunction(() => performance.getEntriesByName("vrb-started").length > 0, null, { timeout: 60000 });
    }

    wait(milliseconds) { return this.page.waitForTimeout(milliseconds); }
    async click(x, y) { await this.page.mouse.click(x, y); await this.wait(300); }
    // As fast as a hand is.
    async doubleClick(x, y) { await this.page.mouse.dblclick(x, y, { delay: 50 }); await this.wait(600); }
    async key(...names) {
        for (const name of names) {
            await this.page.keyboard.press(name);
            await this.wait(200);
        }
    }
    async type(text) { await this.page.keyboard.type(text, { delay: 60 }); await this.wait(200); }

    // What is seen, by name kept among the pictures.
    async look(name) {
        const picture = await this.page.screenshot({ path: `${this.pictures}/${name}.png` });
        return `data:image/png;base64,${picture.toString("base64")}`;
    }

    // How many pixels in a thousand differ clearly in a part of two pictures, [left, top, width, height].
    differ(one, other, part) {
        return this.bench.evaluate(async ([urls, [left, top, width, height]]) => {
            const [a, b] = await Promise.all(urls.map(async (url) => {
                const picture = new Image();
                picture.src = url;
                await picture.decode();
                const canvas = new OffscreenCanvas(width, height);
                const painter = canvas.getContext("2d");
                painter.drawImage(picture, left, top, width, height, 0, 0, width, height);
                return painter.getImageData(0, 0, width, height).data;
            }));
            let count = 0;
            for (let at = 0; at < a.length; at += 4) {
                count += Math.abs(a[at] - b[at]) + Math.abs(a[at + 1] - b[at + 1]) + Math.abs(a[at + 2] - b[at + 2]) > 115 ? 1 : 0;
            }
            return Math.round(1000 * count / (width * height));
        }, [[one, other], part]);
    }

    // Pixels near to a colour in a part of a picture.
    count(picture, colour, part) {
        return this.bench.evaluate(async ([url, rgb, [left, top, width, height]]) => {
            const image = new Image();
            image.src = url;
            await image.decode();
            const painter = new OffscreenCanvas(width, height).getContext("2d");
            painter.drawImage(image, left, top, width, height, 0, 0, width, height);
            const data = painter.getImageData(0, 0, width, height).data;
            let count = 0;
            for (let at = 0; at < data.length; at += 4) {
                count += rgb.every((value, channel) => Math.abs(data[at + channel] - value) < 24) ? 1 : 0;
            }
            return count;
        }, [picture, colour, part]);
    }

    leave() { return this.browser.close(); }
}
