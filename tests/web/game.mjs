// What a player sees and does: buttons by their labels, places in game pixels, all with a real mouse.
import assert from 'node:assert';
import { createHash } from 'node:crypto';
import { after } from 'node:test';
import { serve } from '../../backends/web/page/serve.mjs';
import { sleep, startBrowser } from './browsers.mjs';

const PATIENCE = 180_000; // ms; a solution is played in a third of that on an idle machine

/** A browser, and the page served to it until the tests are over, except for the paths given as missing. */
export async function startTests(name, isMissing) {
    const [site, browser] = await Promise.all([serve('build/web', isMissing), startBrowser(name)]);
    after(async () => {
        await browser.close();
        site.server.closeAllConnections();
        site.server.close();
    });
    return { site, browser };
}

export class Game {
    constructor(page) {
        this.page = page;
    }

    async open(address) {
        await this.page.go(address);
        await this.until('the first picture', () => document.querySelector('#picture img') !== null);
        return this;
    }

    /** Waits until an expression evaluated in the page gives something true, and returns that. */
    async until(what, question, ...values) {
        for (const end = Date.now() + PATIENCE; Date.now() < end; await sleep(50)) {
            const answer = await this.page.evaluate(question, ...values);
            if (answer) return answer;
        }
        assert.fail(`waited in vain for ${what}; ${await this.state()}`);
    }

    /** What may explain why a test fails. */
    async state() {
        const find = () => ({ hidden: document.hidden, focus: document.hasFocus(), text: document.body.innerText });
        return JSON.stringify({ ...(await this.page.evaluate(find)), faults: this.page.faults });
    }

    /** The middle of a button or of a check box or radio button in the front window. */
    placeOf(words) {
        const find = (text) => {
            const front = [...document.querySelectorAll('dialog[open]')].at(-1) ?? document;
            const shown = [...front.querySelectorAll('button, label')].filter((node) => node.offsetParent !== null);
            const wordsOf = (node) => node.querySelector('img')?.alt ?? node.ariaLabel ?? node.textContent;
            const named = shown.find((node) => wordsOf(node) === text);
            const box = named?.getBoundingClientRect();
            return box && [box.left + box.width / 2, box.top + box.height / 2];
        };
        return this.until(`“${words}”`, find, words);
    }

    click = async (words) => this.page.click(...(await this.placeOf(words)));

    /** Converts a place in the main window to a place on the page. */
    async at(x, y) {
        const find = () => {
            const picture = document.getElementById('picture');
            const { left, top, width } = picture.getBoundingClientRect();
            return [left, top, width / picture.offsetWidth];
        };
        const [left, top, scale] = await this.page.evaluate(find);
        return [left + x * scale, top + y * scale];
    }

    press = async (x, y, button) => this.page.click(...(await this.at(x, y)), button);

    dialog = (title) =>
        this.until(
            `the dialog ${title}`,
            (text) => document.querySelector('dialog[open] h2')?.textContent === text,
            title,
        );

    noDialog = () => this.until('the dialog to go', () => document.querySelector('dialog') === null);

    /** The painted layer on black, as a hash of its pixels: red, green, blue and opacity, row by row. */
    async surface() {
        const read = async () => {
            const [below, above] = document.querySelectorAll('canvas');
            const { width, height } = below;
            const context = Object.assign(document.createElement('canvas'), { width, height }).getContext('2d');
            context.fillRect(0, 0, width, height);
            context.drawImage(below, 0, 0);
            context.drawImage(above, parseInt(above.style.left), parseInt(above.style.top));
            const { data } = context.getImageData(0, 0, width, height);
            const digest = new Uint8Array(await crypto.subtle.digest('SHA-256', data));
            return [...digest].map((byte) => byte.toString(16).padStart(2, '0')).join('');
        };
        return this.page.evaluate(read);
    }

    async untilPainted(hash) {
        for (const end = Date.now() + PATIENCE; Date.now() < end; await sleep(50))
            if ((await this.surface()) === hash) return;
        assert.equal(await this.surface(), hash);
    }

    async untilMoved() {
        const before = await this.surface();
        for (const end = Date.now() + PATIENCE; Date.now() < end; await sleep(50))
            if ((await this.surface()) !== before) return;
        assert.fail(`nothing moves; ${await this.state()}`);
    }

    /**
     * Waits until an Arcade game has lasted for more than a second of its own time, which a busy machine stretches; a game that
     * is left sooner is not kept. Up to level 3, beams grow every 48 ms or less often, so that 30 new pictures are enough.
     */
    async untilWorthKeeping() {
        for (let pictures = 0; pictures < 30; ++pictures) await this.untilMoved();
    }

    stored = (key) =>
        this.page.evaluate(
            (name) => new RegExp(`^${name}=(.*)$`, 'm').exec(localStorage.getItem('prismfall') ?? '')?.[1],
            key,
        );
}

export const hashOf = (bytes) => createHash('sha256').update(bytes).digest('hex');
