// Recorded games in the page: kept, watched, and shared with strangers; the native driver is the judge. In Chromium, or in the
// browser named in BROWSER.
import assert from 'node:assert';
import { spawnSync } from 'node:child_process';
import { readFileSync, writeFileSync } from 'node:fs';
import { afterEach, beforeEach, test } from 'node:test';
import { deflateRawSync, inflateRawSync } from 'node:zlib';
import { buildSync } from 'esbuild';
import { sleep } from './browsers.mjs';
import { Game, startTests } from './game.mjs';

const PATIENCE = 3000; // milliseconds; a third of that at most on an idle machine

const { site, browser } = await startTests(process.env.BROWSER ?? 'chromium');
const recording = readFileSync('tests/recordings/07-arcade-score.prismfall', 'utf8');

export const linkTo = (text) => `#1.${deflateRawSync(text).toString('base64url')}`;

/** What the driver says of a recording. */
function verdict(text) {
    const file = 'build/web-tests/played.prismfall';
    writeFileSync(file, text);
    const { stdout } = spawnSync('build/release/prismfall-headless', ['verify', file]);
    return stdout
        .toString()
        .slice(file.length + 2)
        .trim();
}

let profile;
beforeEach(async () => (profile = await browser.newProfile()));
afterEach(() => profile.close());

async function openGame(hash = '') {
    const page = await browser.newPage(profile);
    await page.size(900, 760);
    await page.page.evaluateOnNewDocument(`
        if (location.protocol === 'http:')
            localStorage.prismfall ??= '[General]\\nPlayFirstTime=False\\nMusic=False\\nStartLevel=3\\n';
        globalThis.given = [];
        const { createObjectURL } = URL;
        URL.createObjectURL = (file) => {
            given.push(file.text());
            return createObjectURL(file);
        };
        Object.defineProperty(navigator, 'clipboard', { value: { writeText: async (text) => void given.push(text) } });`);
    return new Game(page).open(site.address + hash);
}

const notice = () => document.getElementById('notice').textContent;
const given = (game) => game.page.evaluate(() => Promise.all(globalThis.given));
const scoreAt = (game, words) =>
    game.until(words, (text) => document.getElementById('picture').innerText.includes(text), words);

test('a game that was played with the mouse is true, as a link and as a file', async () => {
    const game = await openGame();
    await game.click('Arcade');
    await game.untilMoved();
    // Right presses far below the beams: one that is run forward can reach the ground, and end the game too soon.
    for (let i = 0; i < 12; ++i)
        await (i % 3 ? game.press(60 + 50 * i, 60 + 5 * i) : game.press(60 + 50 * i, 500, 'right'));
    await game.untilWorthKeeping();
    await game.click('Games');
    await game.click('Close');
    await game.placeOf('Resume');
    await game.page.key('Escape');
    await game.click('Share this game');
    await game.until('the link', notice);
    await game.click('Games');
    await game.click('Save as file');
    const [link, file] = await given(game);
    const linked = inflateRawSync(Buffer.from(link.split('#1.')[1], 'base64url')).toString();
    assert.match(verdict(file), /^Arcade, \d+ points, level 3, 0:/);
    assert.equal(verdict(linked), verdict(file));
    assert.match(file, /press 1 .*press 2 .*minimise\n/s);
    await game.click('Watch');
    await game.click('Play on from here');
    await game.page.key('Enter');
    await game.placeOf('Extras');
    assert.equal(await game.page.evaluate(() => document.querySelector('.watching').hidden), true);
    assert.deepEqual(game.page.faults, []);
});

/** Makes a picture fail that changes before the program waits again, as most do. */
function failOutsideTimers() {
    const { setTimeout } = globalThis;
    let isInTimer = false;
    globalThis.setTimeout = (act, rest) =>
        setTimeout(() => {
            isInTimer = true;
            act();
            isInTimer = false;
        }, rest);
    CanvasRenderingContext2D.prototype.putImageData = () => {
        if (!isInTimer) throw new Error('planted');
    };
}

test('a game outlives its page and its program, and is kept once', async () => {
    const game = await openGame();
    const play = async () => {
        await game.click('Arcade');
        await game.untilWorthKeeping();
    };
    const savedGames = async (count) => {
        await game.click('Games');
        const isFull = (number) => document.querySelectorAll('dialog li button').length === 4 * number;
        await game.until(`${count} games`, isFull, count);
        await game.click('Save as file');
        await game.click('Close');
        return verdict((await given(game)).at(-1));
    };
    await play();
    await game.page.page.reload();
    await game.placeOf('Arcade');
    assert.match(await savedGames(1), /^Arcade, \d+ points, level 3, 0:/);
    await play();
    await game.page.evaluate(failOutsideTimers);
    await game.until('the sentence', () => document.body.innerText.includes('stopped because of an error. If you'));
    assert.match(await savedGames(2), /^Arcade, \d+ points, level 3, 0:/);
    await game.page.page.reload();
    await play();
    await game.click('Games'); // which pauses the game, like a page that is hidden
    await game.click('Close');
    await game.page.key('Escape');
    await game.placeOf('Arcade');
    assert.match(await savedGames(3), /^Arcade, \d+ points, level 3, 0:/);
    await game.page.page.reload();
    await game.placeOf('Arcade');
    await savedGames(3);
});

test('a link is watched at any pace and moment, and nothing of the player’s changes', async () => {
    const game = await openGame(linkTo(recording));
    const before = await game.page.evaluate(() => localStorage.prismfall);
    await game.until('the game to go on', () => /0:0[1-9] of/.test(document.querySelector('output').textContent));
    await game.page.key('Tab'); // from the button to the slider
    await game.page.key('End');
    const points = /Arcade, (\d+) points, level (\d+)/.exec(verdict(recording));
    await scoreAt(game, points[1]);
    await scoreAt(game, points[2]);
    await game.until('the end', () => document.querySelector('.watching p').textContent === 'The game is over.');
    await game.page.key('Home');
    await game.until('the start', () => document.querySelector('output').textContent.startsWith('0:00'));
    await game.page.page.select('.watching select', '8');
    await game.until('a fast game', () => /0:[1-9]\d of/.test(document.querySelector('output').textContent));
    await game.click('Pause');
    await game.placeOf('Play');
    const still = await game.surface();
    await sleep(200);
    assert.equal(await game.surface(), still);
    await game.page.key('Escape');
    await game.placeOf('Arcade');
    await game.until('the address to be clean', () => location.hash === '');
    await game.click('Games');
    await game.until('an empty list', () => document.querySelector('dialog li')?.textContent.startsWith('No games'));
    assert.equal(await game.page.evaluate(() => localStorage.prismfall), before);
});

/** Notes what is to happen more than ten seconds from now. */
function noteLate() {
    const { setTimeout, clearTimeout } = globalThis;
    globalThis.late = new Map();
    globalThis.setTimeout = (act, rest) => {
        const timer = setTimeout(act, rest);
        if (rest > 10_000) globalThis.late.set(timer, act);
        return timer;
    };
    globalThis.clearTimeout = (timer) => {
        globalThis.late.delete(timer);
        clearTimeout(timer);
    };
}

test('links from strangers are refused in a sentence, soon, and never become markup', async () => {
    const markup = '<img/src=x/onerror=document.title=1>';
    const lines = recording.split('\n');
    const spoiled = lines.slice(0, 8).flatMap((line, number) =>
        line.split(' ').map((_, word, words) => {
            const changed = words.with(word, markup).join(' ');
            return [linkTo(lines.with(number, changed).join('\n')), `line ${number + 1}, `];
        }),
    );
    const cases = [
        ['#1.@@@', 'damaged'],
        ['#1.AAAA', 'damaged'],
        [linkTo(Buffer.alloc(100_000_000)), 'too long'],
        ['#2.AAAA', 'knows links of format 2'],
        [linkTo('recording 2\nprogram 9.9\n'), 'needs Prismfall 9.9 or later'],
        ...spoiled,
    ];
    const game = await openGame(cases[0][0]);
    for (const [hash, sentence] of cases) {
        const start = performance.now();
        await game.page.evaluate((link) => {
            document.getElementById('notice').textContent = '';
            location.hash = link;
        }, hash);
        const words = await game.until(sentence, notice);
        assert.ok(performance.now() - start < PATIENCE, `${sentence} takes too long`);
        assert.ok(words.includes(sentence), `${words}: ${sentence}`);
    }
    await game.page.evaluate(noteLate);
    const refused = async (hash, sentence) => {
        await game.page.evaluate((link) => (location.hash = link), hash);
        const isSaid = (words) => document.getElementById('notice').textContent.includes(words);
        await game.until(sentence, isSaid, sentence);
        return game.page.evaluate(() => [...globalThis.late.keys()]);
    };
    const [ending] = await refused(...cases[0]);
    const sentence = cases.at(-1)[1];
    assert.equal((await refused(...cases.at(-1))).length, 1);
    await game.page.evaluate((timer) => globalThis.late.get(timer)?.(), ending);
    assert.ok((await game.page.evaluate(notice)).includes(sentence), 'it went when the one before was to go');
    assert.equal(await game.page.evaluate(() => document.querySelector('[src=x]') ?? document.title), 'Prismfall v1.1');
    await game.click('Arcade');
    await game.untilMoved();
});

test('the last twenty games and those of the score table are kept, and full storage is no fault', async () => {
    const entryPoints = ['backends/web/page/source/keptGames.ts'];
    const built = buildSync({ entryPoints, bundle: true, format: 'iife', globalName: 'kept', write: false });
    const game = await openGame();
    await game.page.evaluate(`${built.outputFiles[0].text}; globalThis.kept = kept;`);
    const scores = await game.page.evaluate(async () => {
        const games = new globalThis.kept.KeptGames();
        const table = [
            { score: 30, level: 1 },
            { score: 30, level: 1 },
            { score: 10, level: 1 },
        ];
        const play = (score) => games.keep({ kind: score % 20 ? 0 : 1, score, level: 1, recording: '' }, table);
        for (const score of [30, 20, 30, 30, 10, 20, 10, 30]) await play(score);
        for (let i = 0; i < 20; ++i) await play(50);
        IDBObjectStore.prototype.add = () => {
            throw new DOMException('full', 'QuotaExceededError');
        };
        await play(70);
        return (await games.list()).map(({ score }) => score);
    });
    assert.deepEqual(scores, [...Array(20).fill(50), 30, 10, 30]);
});

test('a row of the score table shows its game', async () => {
    const game = await openGame();
    await game.page.evaluate((text) => {
        localStorage.prismfall = '[General]\nPlayFirstTime=False\n[Scores]\nScore1=40\nEndLevel1=3\n';
        const database = indexedDB.open('prismfall', 1);
        return new Promise((resolve) => {
            database.onsuccess = () => {
                const change = database.result.transaction('games', 'readwrite');
                change.objectStore('games').add({ kind: 0, score: 40, level: 3, recording: text });
                change.oncomplete = resolve;
            };
        });
    }, recording);
    await game.page.page.reload();
    await game.placeOf('Scores');
    await game.click('Games'); // and wait until the page knows the game
    await game.placeOf('Watch');
    await game.click('Close');
    await game.click('Scores');
    await game.dialog('Highscore');
    const row = () => {
        const { left, top, height } = document.querySelectorAll('dialog [role=rowheader]')[0].getBoundingClientRect();
        return [left + 5, top + height / 2];
    };
    await game.page.click(...(await game.page.evaluate(row)));
    await game.placeOf('Play on from here');
});
