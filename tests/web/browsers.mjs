// Real browsers with one interface: Chromium and Firefox through puppeteer, WebKit through its own driver. Places are page pixels.
import { spawn } from 'node:child_process';
import { writeFileSync } from 'node:fs';
import { createServer } from 'node:net';
import puppeteer from 'puppeteer-core';

export const sleep = (milliseconds) => new Promise((resolve) => setTimeout(resolve, milliseconds));

const programs = {
    chromium: {
        executablePath: '/usr/bin/chromium',
        args: ['--no-sandbox', '--autoplay-policy=user-gesture-required'],
    },
    firefox: { browser: 'firefox', executablePath: '/usr/bin/firefox-esr' },
};

/** A browser with an empty profile. */
export async function startBrowser(name) {
    if (name === 'webkit') return new WebKit().start();
    // A worker with a debugger attached is never idle, so a new one cannot take over from it.
    const targetFilter = (target) => target.type() !== 'service_worker';
    const browser = await puppeteer.launch({
        headless: true,
        protocolTimeout: 180_000,
        targetFilter,
        ...programs[name],
    });
    return {
        name,
        newPage: async (context = browser) => new PuppeteerPage(await context.newPage()),
        newProfile: () => browser.createBrowserContext(),
        close: () => browser.close(),
    };
}

class PuppeteerPage {
    constructor(page) {
        this.page = page;
        this.faults = [];
        page.on('pageerror', (error) => this.faults.push(error.message));
        page.on('console', (line) => line.type() === 'error' && this.faults.push(line.text()));
    }
    go = (address) => this.page.goto(address, { timeout: 120_000 });
    size = (width, height, options = {}) => this.page.setViewport({ width, height, ...options });
    evaluate = (code, ...values) => this.page.evaluate(code, ...values);
    move = (x, y) => this.page.mouse.move(x, y);
    click = (x, y, button = 'left') => this.page.mouse.click(x, y, { button });
    tap = (x, y) => this.page.touchscreen.tap(x, y);
    key = (key) => this.page.keyboard.press(key);
    picture = (path) => this.page.screenshot({ path });
    close = () => this.page.close();
}

const webkitKeys = { Escape: '\uE00C', Enter: '\uE007', Tab: '\uE004' };
const miniBrowser = '/usr/lib/x86_64-linux-gnu/webkit2gtk-4.1/MiniBrowser';

async function freePort() {
    const server = createServer();
    await new Promise((resolve) => server.listen(0, '127.0.0.1', resolve));
    const { port } = server.address();
    await new Promise((resolve) => server.close(resolve));
    return port;
}

class WebKit {
    name = 'webkit';
    faults = [];

    async start() {
        const port = await freePort();
        this.driver = spawn('WebKitWebDriver', [`--port=${port}`], { stdio: 'ignore' });
        this.root = `http://127.0.0.1:${port}`;
        const options = { binary: miniBrowser, args: ['--automation'] };
        for (let tries = 0; !this.session; ++tries) {
            await sleep(100);
            const answer = this.send('POST', '/session', {
                capabilities: { alwaysMatch: { 'webkitgtk:browserOptions': options } },
            });
            this.session = (await (tries < 50 ? answer.catch(() => undefined) : answer))?.sessionId;
        }
        this.root += `/session/${this.session}`;
        return this;
    }

    async send(method, path, body) {
        const request = body ? { method, body: JSON.stringify(body) } : { method };
        const { value } = await (await fetch(this.root + path, request)).json();
        if (value?.error) throw new Error(`${value.error}: ${value.message}`);
        return value;
    }

    newPage = async () => this;
    go = (url) => this.send('POST', '/url', { url });
    size = (width, height) => this.send('POST', '/window/rect', { x: 0, y: 0, width, height });
    evaluate = (code, ...values) =>
        this.send('POST', '/execute/async', {
            script: `const done = arguments[arguments.length - 1]; Promise.resolve((${code})(...arguments)).then(done);`,
            args: values,
        });
    act = (type, actions) => this.send('POST', '/actions', { actions: [{ type, id: type, actions }] });
    move = (x, y) => this.act('pointer', [{ type: 'pointerMove', x: Math.round(x), y: Math.round(y) }]);
    click = (x, y, button = 'left') =>
        this.act('pointer', [
            { type: 'pointerMove', x: Math.round(x), y: Math.round(y) },
            { type: 'pointerDown', button: button === 'left' ? 0 : 2 },
            { type: 'pointerUp', button: button === 'left' ? 0 : 2 },
        ]);
    key = (key) =>
        this.act('key', [
            { type: 'keyDown', value: webkitKeys[key] },
            { type: 'keyUp', value: webkitKeys[key] },
        ]);
    picture = async (path) => writeFileSync(path, Buffer.from(await this.send('GET', '/screenshot'), 'base64'));

    async close() {
        await this.send('DELETE', '').catch(() => undefined);
        this.driver.kill();
    }
}
