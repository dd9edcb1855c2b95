// What a browser can do to a page: touch, small screens, tabs, hidden pages, no network, new versions, missing files and
// storage; and whether people who cannot see or do not use a mouse can play. In Chromium.
import assert from 'node:assert';
import { cpSync, readdirSync, readFileSync, renameSync, rmSync, writeFileSync } from 'node:fs';
import { afterEach, beforeEach, test } from 'node:test';
import { sleep } from './browsers.mjs';
import { Game, startTests } from './game.mjs';

let profile;
let missing = () => false;
const { site, browser } = await startTests('chromium', (path) => missing(path));

beforeEach(async () => {
    missing = () => false;
    profile = await browser.newProfile();
});
afterEach(() => profile.close());

const laterRun = "localStorage.setItem('prismfall', `[General]\\nPlayFirstTime=False\\n${SETTINGS}`)";

/** The page of a later run, with these settings and after this preparation. */
async function openGame({
    settings = 'Music=False\n[Scores]\nScore1=340\n',
    prepare = '',
    size = [900, 760],
    ...options
} = {}) {
    const page = await browser.newPage(profile);
    await page.size(...size, options);
    const stored = laterRun.replace('SETTINGS', JSON.stringify(settings));
    await page.page.evaluateOnNewDocument(`if (!sessionStorage.begun) ${stored}; sessionStorage.begun = 1; ${prepare}`);
    return new Game(page).open(site.address);
}

/** What has the focus, or whether that is named so. */
const focused = (words) => {
    const { ariaLabel, type, firstElementChild } = document.activeElement;
    const name = ariaLabel ?? firstElementChild?.alt ?? type;
    return words === undefined ? name : name === words;
};

async function tabTo(game, words) {
    for (let i = 0; i < 30; ++i) {
        if (await game.page.evaluate(focused, words)) return;
        await game.page.key('Tab');
    }
    assert.fail(`no way to ${words} by the keyboard`);
}

test('all buttons can be reached and pressed with keys, and options outlast the page', async () => {
    const game = await openGame({ settings: 'Music=False\n[SolvedPuzzles]\nPuzzle2=True\n' });
    await tabTo(game, 'Options');
    await game.page.key('Enter');
    await game.dialog('Options');
    await tabTo(game, 'radio');
    for (let i = 0; i < 6; ++i) await game.page.key('ArrowDown');
    await tabTo(game, 'checkbox');
    await game.page.key('Space');
    await tabTo(game, 'OK');
    await game.page.key('Enter');
    await game.noDialog();
    await game.page.page.reload();
    await game.click('Options');
    await game.dialog('Options');
    const checked = await game.page.evaluate(() =>
        [...document.querySelectorAll('input:checked')].map((input) => input.closest('label').textContent),
    );
    assert.deepEqual(checked, ['Level 7']);
    await game.click('OK');
    await game.noDialog();
    await tabTo(game, 'Puzzle');
    await game.page.key('Enter');
    await game.until('the focus on the first puzzle', focused, 'Puzzle 1, tutorial');
    await tabTo(game, 'Puzzle 2, solved');
    await game.page.key('Enter');
    await game.until('puzzle 2', () => /Puzzle 2/.test(document.getElementById('picture').textContent));
    await game.page.key('Escape');
    await tabTo(game, 'Puzzle 1, tutorial');
    await game.page.key('Enter');
    for (const words of ['Start', 'OK', 'The end of the red beam', 'OK', 'The end of the blue beam', 'OK']) {
        await game.placeOf(words);
        await tabTo(game, words);
        await game.page.key('Enter');
    }
});

test('a puzzle is picked and played by keys, and Tab is the game’s only while it is played', async () => {
    const game = await openGame();
    const white = () => {
        const field = [...document.querySelectorAll('canvas')].at(-1);
        const { data } = field.getContext('2d').getImageData(0, 0, field.width, field.height);
        return new Uint32Array(data.buffer).filter((pixel) => pixel === 0xffffffff).length;
    };
    await tabTo(game, 'Puzzle');
    for (const key of ['Enter', 'ArrowRight', 'ArrowRight', 'ArrowDown', 'Enter']) {
        await game.page.key(key);
        await sleep(900); // a click sounds to its end
    }
    await game.until('puzzle 5', () => /Puzzle 5/.test(document.getElementById('picture').textContent));
    await game.page.key('r');
    await game.untilMoved();
    await game.page.key('ArrowLeft');
    for (let i = 0; i < 3; ++i) await game.page.key('Tab');
    assert.match(await game.page.evaluate(focused), /^Playfield/);
    await game.until('a ring', white);
    await game.page.key('p');
    await tabTo(game, 'Resume');
});

const cellsOfFirst = () =>
    [...document.querySelectorAll('[role=table] > [role=row]:nth-child(2) > *')].map(({ role, innerText }) => [
        role,
        innerText.trim(),
    ]);
const firstScore = [
    ['rowheader', '1'],
    ['cell', '340'],
    ['cell', '1'],
    ['cell', '1'],
];

test('screen readers meet no obstacle', async () => {
    const axe = readFileSync('node_modules/axe-core/axe.min.js', 'utf8');
    const game = await openGame();
    const check = async (where) => {
        await game.page.evaluate(axe);
        const { violations } = await game.page.evaluate(() => globalThis.axe.run());
        const obstacles = violations.map(({ id, nodes }) => `${id} ${nodes[0].html}`);
        assert.deepEqual(obstacles, [], where);
    };
    await check('menu');
    const dialogs = { About: 'About Prisfall v1.1', Scores: 'Highscore', Options: 'Options', Extras: 'Extras' };
    for (const [button, title] of Object.entries(dialogs)) {
        await game.click(button);
        await game.dialog(title);
        await check(title);
        if (title === 'Highscore') assert.deepEqual(await game.page.evaluate(cellsOfFirst), firstScore);
        await game.click('OK');
        await game.noDialog();
    }
    await game.click('Puzzle');
    await game.placeOf('Puzzle 9');
    await check('puzzle menu');
    await game.page.key('Escape');
    await tabTo(game, 'Arcade');
    await game.page.key('Enter');
    await game.untilMoved();
    assert.match(await game.page.evaluate(focused), /^Playfield/);
    await check('Arcade');
    assert.match(
        await game.page.evaluate(() => document.getElementById('voice').textContent),
        /Score 0.*High score 340/,
    );
    await game.untilWorthKeeping();
    await game.page.key('Escape');
    await game.click('Games');
    await game.placeOf('Watch');
    await check('Games');
    await game.click('Watch');
    await game.placeOf('Leave');
    await check('watching');
    assert.deepEqual(game.page.faults, []);
});

test('where the player’s own colours replace the page’s, marks are still seen', async () => {
    const game = await openGame();
    const { page } = game.page;
    const client = await page.createCDPSession();
    await client.send('Emulation.setEmulatedMedia', { features: [{ name: 'forced-colors', value: 'active' }] });
    await game.click('Options');
    await game.dialog('Options');
    const look = async (node) => Buffer.from(await node.screenshot()).toString('base64');
    for (const kind of ['radio', 'checkbox']) {
        const choice = await page.$(`[type=${kind}]:checked`);
        const marked = await look(choice);
        await choice.evaluate((node) => (node.checked = false));
        assert.notEqual(await look(choice), marked, kind);
    }
    const box = await page.$('.close');
    const shown = await look(box);
    await page.evaluate(() => {
        const without = new CSSStyleSheet();
        without.replaceSync('.close::before, .close::after { display: none; }');
        document.adoptedStyleSheets = [without];
    });
    assert.notEqual(await look(box), shown, 'the close mark');
});

test('fingers on a phone press both buttons', async () => {
    const game = await openGame({ size: [390, 780], deviceScaleFactor: 3, hasTouch: true, isMobile: true });
    const touch = game.page.page.touchscreen;
    const tap = async (words) => game.page.tap(...(await game.placeOf(words)));
    await tap('Puzzle');
    for (let i = 0; i < 4; ++i) await tap('Next page');
    const panel = () =>
        [...document.querySelectorAll('#picture > button')].map((node) => node.getBoundingClientRect().toJSON());
    for (const { top, width, height } of (await game.page.evaluate(panel)).filter((box) => box.width > 0))
        assert.ok(top >= 390 * (602 / 684) && Math.min(width, height) >= 44, 'a button for fingers, below the field');
    await game.page.tap(...(await game.at(120, 120)));
    await tap('Start');
    await game.page.size(780, 390, { deviceScaleFactor: 3, hasTouch: true, isMobile: true });
    await game.page.size(390, 780, { deviceScaleFactor: 3, hasTouch: true, isMobile: true });
    await tap('Speed up');
    await game.page.tap(...(await game.at(334, 340)));
    await game.dialog('Puzzle Result');
    await tap('Try again');
    await game.noDialog();
    await tap('Speed up');
    await tap('Start');
    const resting = await touch.touchStart(...(await game.at(60, 560)));
    const second = await touch.touchStart(...(await game.at(334, 340)));
    await second.end();
    await resting.end();
    await game.dialog('Puzzle Result');
    const fits = () =>
        [...document.querySelectorAll('dialog, #picture')].every((node) => {
            const { left, right, top, bottom } = node.getBoundingClientRect();
            return left >= 0 && top >= 0 && right <= innerWidth && bottom <= innerHeight;
        });
    assert.ok(await game.page.evaluate(fits));
});

test('a hidden page pauses, and two tabs do not overwrite each other', async () => {
    const first = await openGame({ settings: 'Music=False\n[SolvedPuzzles]\nPuzzle9=True\n' });
    const second = await openGame({ settings: 'Music=False\n[SolvedPuzzles]\nPuzzle9=True\n' });
    await second.click('Options');
    await second.click('Effects');
    await second.click('OK');
    await first.page.page.bringToFront();
    await first.click('Options');
    await first.click('Level 3');
    await first.click('OK');
    await first.click('Arcade');
    await first.untilMoved();
    await second.page.page.bringToFront();
    await first.until('the pause', () => document.querySelector('[alt=Resume]') !== null);
    assert.equal(await first.stored('StartLevel'), '3');
    await first.page.page.bringToFront();
    await sleep(500);
    const kept = { StartLevel: '3', SoundEffects: 'False', Puzzle9: 'True', Puzzle45: 'False' };
    for (const [key, value] of Object.entries(kept)) assert.equal(await first.stored(key), value, key);
});

test('missing files and storage are reported in a sentence, and the game goes on', async () => {
    missing = (path) => /mp3$|PuzzleUp|wav$/.test(path);
    const notice = (game, words) =>
        game.until(words, (text) => document.getElementById('notice').textContent.includes(text), words);
    const game = await openGame({
        settings: '',
        prepare: 'Storage.prototype.setItem = () => { throw new Error("full"); }',
    });
    await game.click('Puzzle');
    await game.press(345, 300);
    await game.click('Start');
    await notice(game, 'music');
    await game.untilMoved();
    await game.click('Options');
    await game.click('Music');
    await game.until('the line to go', () => !document.getElementById('notice').textContent.includes('music'));
    await game.click('OK');
    await game.noDialog();
    await game.page.key('Escape');
    await game.page.key('Escape');
    await game.click('Exit');
    await notice(game, 'does not let the game save');
    await game.click('Play again');
    await sleep(1000);
    await game.click('Arcade');

    for (const [prepare, sentence] of [
        ['delete globalThis.WebAssembly', 'lacks WebAssembly'],
        ['delete globalThis.ResizeObserver', 'cannot run in this browser'],
        ['', 'could not be loaded'],
    ]) {
        missing = (path) => path.endsWith('.wasm');
        const page = await browser.newPage(profile);
        await page.page.evaluateOnNewDocument(prepare);
        await page.go(site.address);
        await new Game(page).until(sentence, (text) => document.body.textContent.includes(text), sentence);
    }
});

test('going back is Esc, closes a dialog, and leaves from the main menu with the music silent', async () => {
    const prepare =
        'HTMLMediaElement.prototype.play = function () { globalThis.player = this; return Promise.resolve(); };';
    const game = await openGame({ settings: 'Music=True\n', prepare });
    await game.click('Puzzle');
    await game.press(345, 300);
    await game.until('music', () => globalThis.player?.src.includes('mp3'));
    await game.click('Options');
    await game.dialog('Options');
    const back = () => game.page.page.goBack().catch(() => undefined);
    await back();
    await game.noDialog();
    await sleep(500);
    await back();
    await game.placeOf('Next page');
    await sleep(500);
    await back();
    await game.placeOf('Puzzle');
    await sleep(500);
    await game.page.key('Escape');
    await game.until('the end', () => document.querySelector('.ended') && !globalThis.player.hasAttribute('src'));
    await game.click('Play again');
    await sleep(1000);
    await game.placeOf('Arcade');
    await sleep(500);
    await back();
    for (let i = 0; i < 600 && game.page.page.url() !== 'about:blank'; ++i) await sleep(100);
    assert.equal(game.page.page.url(), 'about:blank', 'the page is left');
});

test('a finger is the right button where the tutorial asks for it', async () => {
    const game = await openGame({ size: [390, 780], deviceScaleFactor: 3, hasTouch: true, isMobile: true });
    const tap = async (words) => game.page.tap(...(await game.placeOf(words)));
    await tap('Puzzle');
    await game.page.tap(...(await game.at(120, 120)));
    await tap('Start');
    const spots = 'OK|The end of the red beam|OK|The end of the blue beam|OK|OK|The end of the red beam|OK';
    for (const spot of spots.split('|')) await tap(spot);
    await game.until(
        'the last picture to go',
        () => ![...document.querySelectorAll('.spot')].some((n) => n.offsetParent),
    );
});

/** The same page under another version's name. */
function makeNewVersion(folder) {
    rmSync(folder, { recursive: true, force: true });
    cpSync('build/web', folder, { recursive: true });
    const old = readdirSync(folder).find((file) => file.startsWith('version-'));
    renameSync(`${folder}/${old}`, `${folder}/version-new`);
    for (const file of ['index.html', 'service-worker.js', 'version-new/page.js'])
        writeFileSync(`${folder}/${file}`, readFileSync(`${folder}/${file}`, 'utf8').replaceAll(old, 'version-new'));
}

test('it starts offline, and a new version is installed as a whole at a start', async () => {
    const game = await openGame();
    const { page } = game.page;
    const worker = async (is) => !!(await navigator.serviceWorker.getRegistration())?.[is];
    await game.until('the page to be kept', worker, 'active');
    const caches = () => page.evaluate(() => caches.keys());
    await page.evaluate(async () => (await caches.open('of another program')).add('icons/64.png'));
    assert.deepEqual(
        (await caches()).filter((name) => name.includes('music')),
        [],
        'music is off',
    );
    missing = () => true;
    await page.reload();
    await game.click('Arcade');
    await game.untilMoved();
    const other = await browser.newPage(profile);
    await other.go(`${site.address}blog/`);
    assert.equal(await other.evaluate(() => document.getElementById('picture')), null, 'other pages are left alone');
    await other.page.close();

    makeNewVersion('build/web-tests/new');
    site.folder = 'build/web-tests/new';
    missing = () => false;
    await page.reload();
    await game.until('the new version', worker, 'waiting');
    const used = () => [...new Set(document.documentElement.outerHTML.match(/version-\w+/g))];
    assert.deepEqual(
        (await game.page.evaluate(used)).map((name) => name === 'version-new'),
        [false],
    );
    await page.close();
    await sleep(1000);
    const next = await openGame();
    await next.click('Arcade');
    assert.deepEqual(await next.page.evaluate(used), ['version-new']);
    await next.until('the old version to be dropped', async () => {
        const versions = (await caches.keys()).filter((name) => name.includes(' version-'));
        return versions.length === 1 && versions[0].endsWith(' version-new');
    });
    assert.ok((await next.page.evaluate(() => caches.keys())).includes('of another program'));
});
