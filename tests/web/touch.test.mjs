// The page by fingers alone, on a phone held upright and across, and by a gamepad: node --test, with the name of a browser in
// BROWSER. With TOUCH=all everything is played in both ways.
import assert from 'node:assert';
import { readFileSync } from 'node:fs';
import { test } from 'node:test';
import { sleep } from './browsers.mjs';
import { Game, startTests } from './game.mjs';

const name = process.env.BROWSER ?? 'chromium';
const { site, browser } = await startTests(name);
const sizes = { upright: [390, 844], across: [844, 390] };
const stored = '[General]\nPlayFirstTime=False\nMusic=False\nSoundEffects=False\n';

/** The tick, what a finger does then, and which end of a beam it meets where. */
const solutions = JSON.parse(readFileSync('tests/support/solutions.json'));
const tickLength = 75; // milliseconds, on a machine that never stalls
const early = 2; // ticks
const late = 5000; // milliseconds; then it is met a little off its way

class Fingers extends Game {
    menuPage = 0;

    turn = async (way) => {
        this.way = way;
        await this.page.size(...sizes[way], { deviceScaleFactor: 2, hasTouch: true, isMobile: name === 'chromium' });
        await sleep(300); // the page is laid out anew
    };

    tap = async (words) => this.page.tap(...(await this.placeOf(words)));

    /** From the main menu. */
    async choose(puzzle) {
        await this.tap('Puzzle');
        for (; this.menuPage < Math.floor((puzzle - 1) / 9); ++this.menuPage) await this.tap('Next page');
        const cell = (puzzle - 1) % 9;
        await this.page.tap(...(await this.at(14 + 218 * ((cell % 3) + 0.5), 20 + 188 * (Math.floor(cell / 3) + 0.5))));
        await this.tap('Start');
    }

    /** Waits until the end of a beam comes by, and touches it. */
    async act(what, x, y) {
        const isPainted = ([left, top]) => {
            const field = document.querySelector('canvas + canvas');
            const [fromLeft, fromTop] = [left - parseInt(field.style.left), top - parseInt(field.style.top)];
            const { data } = field.getContext('2d').getImageData(fromLeft - 8, fromTop - 2, 16, 4);
            return data.some((part, i) => i % 4 < 3 && part > 0);
        };
        for (const end = Date.now() + late; Date.now() < end && !(await this.page.evaluate(isPainted, [x, y]));)
            await sleep(50);
        const place = await this.at(x, y);
        if (what === 'bend') return this.page.tap(...place);
        const thumb = await this.page.page.touchscreen.touchStart(...(await this.placeOf('Speed up')));
        await this.page.tap(...place);
        await thumb.end();
    }

    async solve(puzzle) {
        await this.choose(puzzle);
        let [last, then] = [0, Date.now()];
        for (const [, tick, what, x, y] of solutions[puzzle].matchAll(/(\d+) (\w+) (\d+),(\d+)/g)) {
            await sleep(then + (tick - last - early) * tickLength - Date.now());
            await this.act(what, +x, +y);
            [last, then] = [tick, Date.now()];
        }
        await this.untilSolved(`puzzle ${puzzle}`);
    }

    async untilSolved(what) {
        await this.dialog('Puzzle Result');
        const isSolved = () => !!document.querySelector('[alt="You Succeeded!"]')?.offsetParent;
        assert.ok(await this.page.evaluate(isSolved), what);
        await this.tap('Menu');
        await this.noDialog();
        await this.page.page.goBack().catch(() => undefined);
        await this.placeOf('Puzzle');
    }
}

async function begin(way, prepare = () => undefined) {
    const page = await browser.newPage();
    await page.page.evaluateOnNewDocument(prepare);
    const game = new Fingers(page);
    await page.page.evaluateOnNewDocument(`localStorage.setItem('prismfall', ${JSON.stringify(stored)})`);
    await game.turn(way);
    return game.open(site.address);
}

/** Buttons that are too small for a finger or reach out of the page, and whether the page can be scrolled. */
function misfits() {
    const found = document.scrollingElement.scrollHeight > innerHeight ? ['the page'] : [];
    for (const node of document.querySelectorAll('#picture > button.panel, footer button')) {
        const { left, right, top, bottom, width, height } = node.getBoundingClientRect();
        if (width === 0) continue;
        const isIn = left >= 0 && right <= innerWidth && top >= 0 && bottom <= innerHeight;
        if (!isIn || width < 44 || height < 44)
            found.push(`${node.innerText || node.firstElementChild.alt} ${width}x${height}`);
    }
    const field = document.querySelector('canvas + canvas').getBoundingClientRect();
    if (field.width < Math.min(0.9 * innerWidth, innerHeight)) found.push(`a field of ${field.width}`);
    return found;
}

const ways = process.env.TOUCH === 'all' ? ['upright', 'across'] : [undefined];
for (const only of ways) {
    test(`the tutorial, with its words for fingers, ${only ?? 'in both ways'}`, async () => {
        const game = await begin(only ?? 'upright');
        await game.choose(1);
        const notice = () => document.getElementById('notice').textContent;
        assert.match(await game.page.evaluate(notice), /Tap the end .*Speed up/);
        const spots = 'OK|The end of the red beam|OK|The end of the blue beam|OK|OK|The end of the red beam|OK';
        const said = [];
        for (const [place, spot] of spots.split('|').entries()) {
            const [x, y] = await game.placeOf(spot);
            said.push(await game.page.evaluate(notice));
            assert.deepEqual(await game.page.evaluate(misfits), []);
            await game.page.tap(x + 9, y + 9); // a finger is no pointer
            if (place === 3 && !only) await game.turn('across');
        }
        assert.match(said.join('\n'), /red beam: tap.*\n.*\n.*blue beam.*tap(.*\n)+.*faster: tap/);
        await game.untilSolved('the tutorial');
        await game.page.close();
    });

    test(`puzzles, ${only ?? 'in both ways'}`, async () => {
        const game = await begin(only ?? 'across');
        for (const puzzle of only ? Object.keys(solutions) : [4, 12, 16]) {
            await game.solve(puzzle);
            assert.deepEqual(await game.page.evaluate(misfits), []);
            if (!only) await game.turn(game.way === 'across' ? 'upright' : 'across');
        }
        await game.page.close();
    });
}

test('the extras are large enough for fingers, which scroll them, and take a new key', async () => {
    const scrollTo = (words) => {
        const isMeant = (node) => [node.textContent, node.firstElementChild?.alt].includes(words);
        [...document.querySelectorAll('.long [data-element]')].find(isMeant).scrollIntoView({ block: 'center' });
    };
    const marked = () =>
        [...document.querySelectorAll('.choice:has(:checked)')].map((node) => node.textContent).join(', ');
    const smallest = () =>
        Math.min(...[...document.querySelectorAll('.choice')].map((node) => node.getBoundingClientRect().height));
    for (const way of ['upright', 'across']) {
        const game = await begin(way);
        await game.page.tap(...(await game.at(300, 400))); // the first touch can make the page's buttons larger
        await sleep(600);
        await game.tap('Extras');
        await game.placeOf('OK');
        assert.ok((await game.page.evaluate(smallest)) >= 30, way);
        for (const words of ['A pattern for each colour', 'R', 'x', '25 %', 'OK']) {
            await sleep(600); // no double click
            if (words === 'x') await game.page.key(words);
            else {
                await game.page.evaluate(scrollTo, words);
                await game.tap(words);
            }
        }
        await game.noDialog();
        await sleep(600);
        assert.equal(
            await game.page.evaluate(() => document.querySelector('dialog')),
            null,
            'nothing below was clicked',
        );
        await game.tap('Extras');
        await game.placeOf('X');
        assert.equal(await game.page.evaluate(marked), 'A pattern for each colour, 100 %, 25 %, 100 %');
        await game.page.close();
    }
});

/** A gamepad that this test makes up, with buttons by their numbers in the standard layout. */
const madeUpPad = () => {
    const buttons = Array.from({ length: 17 }, () => ({ pressed: false }));
    navigator.getGamepads = () => [{ mapping: 'standard', buttons, axes: [0, 0, 0, 0] }];
    globalThis.hold = (button, pressed) => (buttons[button].pressed = pressed);
};

test('a gamepad picks a puzzle, pauses and resumes it', { skip: name !== 'chromium' }, async () => {
    const game = await begin('across', madeUpPad);
    await game.page.evaluate(() => globalThis.dispatchEvent(new globalThis.Event('gamepadconnected')));
    const press = async (button) => {
        for (const pressed of [true, false]) {
            await game.page.evaluate((number, is) => globalThis.hold(number, is), button, pressed);
            await sleep(150);
        }
    };
    const [a, y, start, down, right] = [0, 3, 9, 13, 15];
    await press(right);
    await press(a);
    await game.placeOf('Next page');
    for (const button of [right, right, down, a]) await press(button);
    await game.until('puzzle 5', () => /Puzzle 5/.test(document.getElementById('picture').textContent));
    await press(y);
    await game.untilMoved();
    await press(start);
    await game.until('the pause', () => document.getElementById('notice').textContent === 'Paused');
    await press(start);
    await game.untilSolved('puzzle 5');
    await game.page.close();
});
