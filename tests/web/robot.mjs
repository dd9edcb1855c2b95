// A robot plays in a real browser: presses, keys, dialogs, pauses, restarts, hidden tabs, stalls. Every recording of its games
// must be true for the native driver:
//   node tests/web/robot.mjs BROWSER [GAMES [SEED]]
import { spawnSync } from 'node:child_process';
import { cpSync, mkdirSync, rmSync, writeFileSync } from 'node:fs';
import { sleep, startBrowser } from './browsers.mjs';
import { Game } from './game.mjs';
import { serve } from '../../backends/web/page/serve.mjs';

const [, , name = 'chromium', games = '200', seed = String(Date.now() % 1e6)] = process.argv;
const folder = `build/web-tests/robot-${name}`;
const roundsPerPage = 400;

let state = Number(seed);
/** Uniform from 0 up to but not including 1. */
function random() {
    state = (state + 0x6d2b79f5) | 0;
    let bits = Math.imul(state ^ (state >>> 15), 1 | state);
    bits = (bits + Math.imul(bits ^ (bits >>> 7), 61 | bits)) ^ bits;
    return ((bits ^ (bits >>> 14)) >>> 0) / 2 ** 32;
}
const below = (count) => Math.floor(random() * count);
const oneOf = (list) => list[below(list.length)];

/** Takes note of every game that is kept, and lets the page be hidden. */
function prepare(startLevel, isFirst) {
    const { add } = IDBObjectStore.prototype;
    IDBObjectStore.prototype.add = function (game) {
        sessionStorage.played = JSON.stringify([...JSON.parse(sessionStorage.played ?? '[]'), game.recording]);
        return add.call(this, game);
    };
    Object.defineProperty(document, 'hidden', { get: () => globalThis.isAway === true });
    if (location.protocol === 'http:')
        localStorage.setItem('prismfall', `[General]\nPlayFirstTime=${isFirst}\nStartLevel=${startLevel}\n`);
}

/** Whether a game is on, where a beam may end, and the buttons of the window in front. */
function look(share) {
    const front = [...document.querySelectorAll('dialog[open]')].at(-1) ?? document.body;
    const wordsOf = (node) => node.querySelector('img')?.alt ?? node.ariaLabel ?? node.textContent;
    const others = /^(Exit|Full screen|Exit full screen|Open a file|Save as file|Copy link|Share this game|Delete)$/;
    const shown = [...front.querySelectorAll('button, label')].filter((node) => node.offsetParent && !node.disabled);
    const buttons = shown.filter((node) => !others.test(wordsOf(node)));
    const field = [...document.querySelectorAll('canvas')].at(-1);
    const pixels = new Uint32Array(field.getContext('2d').getImageData(0, 0, field.width, field.height).data.buffer);
    const column = Math.floor(share * field.width);
    const lowest = pixels.findLastIndex((pixel) => pixel >>> 24 > 0);
    const inColumn = pixels.findLastIndex((pixel, place) => pixel >>> 24 > 0 && place % field.width === column);
    const [left, top] = [field.style.left, field.style.top].map((place) => parseInt(place) || 0);
    return {
        ends: [lowest, inColumn]
            .filter((place) => place >= 0)
            .map((place) => [left + (place % field.width), top + Math.floor(place / field.width)]),
        isPlaying: front === document.body && buttons.some((node) => wordsOf(node) === 'Pause'),
        hasEnded: document.querySelector('.ended') !== null,
        isMenu: front === document.body && buttons.some((node) => wordsOf(node) === 'Arcade'),
        isDialog: front !== document.body,
        buttons: buttons
            .map((node) => {
                const { left, top, width, height } = node.getBoundingClientRect();
                return [wordsOf(node), left + width / 2, top + height / 2];
            })
            .filter(([, x, y]) => x < innerWidth && y > 0 && y < innerHeight),
    };
}

const keys = [' ', ...'ArrowLeft ArrowRight ArrowUp ArrowDown Tab Enter p r m F1 F2 PageUp PageDown'.split(' ')];

const things = [
    [4, (game) => pressField(game, [20 + below(640), 20 + below(570)], oneOf(['left', 'right']))],
    [30, (game, { ends }) => pressField(game, oneOf(ends), 'left')],
    [20, (game, { ends }) => pressField(game, oneOf(ends), 'right')],
    [3, (game, { ends }) => pressField(game, oneOf(ends), 'left', 2)],
    [8, (game) => game.page.key(oneOf(keys))],
    [
        3,
        (game) =>
            setAway(game, true)
                .then(() => sleep(below(300)))
                .then(() => setAway(game, false)),
    ],
    [
        3,
        (game) =>
            game.page.evaluate((end) => {
                for (end += performance.now(); performance.now() < end;);
            }, below(600)),
    ],
    [4, (game, { buttons }) => pressButton(game, oneOf(buttons))],
    [2, (game, { isMenu }) => isMenu || game.page.key('Escape')], // there it would end the program
    [20, () => sleep(below(500))],
];
const wholeWeight = things.reduce((sum, [weight]) => sum + weight, 0);

async function pressField(game, place, button, times = 1) {
    if (!place) return;
    const [x, y] = await game.at(...place);
    for (let i = 0; i < times; ++i) await game.page.click(x, y, button);
}

function setAway(game, isAway) {
    return game.page.evaluate((is) => {
        globalThis.isAway = is;
        document.dispatchEvent(new Event('visibilitychange'));
    }, isAway);
}

async function pressButton(game, button) {
    if (button) await game.page.click(button[1], button[2]);
}

/** Whether the program goes on. */
async function act(game) {
    const seen = await game.page.evaluate(look, random());
    if (!seen.hasEnded) await actOn(game, seen);
    return !seen.hasEnded;
}

async function actOn(game, seen) {
    if (!seen.isPlaying && random() < 0.6) {
        if (seen.isDialog && random() < 0.3) return game.page.key('Escape');
        return pressButton(
            game,
            seen.buttons.find(([words]) => words === 'Arcade' && random() < 0.5) ?? oneOf(seen.buttons),
        );
    }
    let roll = below(wholeWeight);
    return things.find(([weight]) => (roll -= weight) < 0)[1](game, seen);
}

rmSync(folder, { recursive: true, force: true });
mkdirSync(folder, { recursive: true });
cpSync('build/web', `${folder}/web`, { recursive: true }); // may be built anew meanwhile
const site = await serve(`${folder}/web`);
const browser = await startBrowser(name);
const files = [];
const faults = [];
while (files.length < Number(games)) {
    const page = await browser.newPage();
    await page.size(900, 760);
    await page.page.evaluateOnNewDocument(prepare, oneOf([1, 5, 9, 20, 40]), random() < 0.2);
    const game = await new Game(page).open(site.address);
    for (let round = 0; round < roundsPerPage && (await act(game)); ++round);
    const played = await game.page.evaluate(() => JSON.parse(sessionStorage.played ?? '[]'));
    for (const recording of played) {
        files.push(`${folder}/${files.length}.prismfall`);
        writeFileSync(files.at(-1), recording);
    }
    faults.push(...page.faults);
    await page.close();
}
await browser.close();
site.server.closeAllConnections();
site.server.close();

const { stdout } = spawnSync('build/release/prismfall-headless', ['verify', ...files]);
const verdicts = stdout.toString().trim().split('\n');
const untrue = verdicts.filter((line) => !/: (Arcade|Puzzle \d+), .*, \d+:\d\d$/.test(line));
for (const line of [...untrue, ...faults]) console.log(line);
console.log(`${name}, seed ${seed}: ${files.length - untrue.length} of ${files.length} recordings are true`);
process.exitCode = untrue.length + faults.length > 0 ? 1 : 0;
