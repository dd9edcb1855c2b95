// The page in three browsers, played with a real mouse: node --test, with the name of a browser in BROWSER.
import assert from 'node:assert';
import { spawnSync } from 'node:child_process';
import { test } from 'node:test';
import { sleep } from './browsers.mjs';
import { Game, hashOf, startTests } from './game.mjs';

const { site, browser } = await startTests(process.env.BROWSER ?? 'chromium');
const page = await browser.newPage();
await page.size(900, 760);
const game = await new Game(page).open(site.address);

/** What the native game paints when it runs a script, as a hash of the surface. */
function painted(script) {
    const lines = `setting General PlayFirstTime False\nload\npaint on\n${script}\n`;
    const { stdout } = spawnSync('build/release/prismfall-headless', { input: lines });
    return hashOf(spawnSync('build/web-tests/paint', { input: stdout, maxBuffer: 1e7 }).stdout);
}

const shows = (words) => game.until(words, (text) => !!document.querySelector(`[alt="${text}"]`)?.offsetParent, words);

test('a first run shows the manual and leads through the tutorial', async () => {
    await game.dialog('About Prisfall v1.1');
    await page.key('Escape');
    await game.noDialog();
    await game.click('Start');
    await shows('In puzzle mode the goal is to clear all beams before they reach the ground');
    const still = await game.surface();
    await sleep(300);
    assert.equal(await game.surface(), still, 'the game waits for the player');
    const spoken = await page.evaluate(() => document.getElementById('voice').textContent);
    assert.match(spoken, /In puzzle mode the goal/);
    await game.press(325 + 160, 54 + 92);
    await shows('Bend the red beam by clicking on the end');
    await page.key('Escape');
});

test('the canvas shows what the native game paints', async () => {
    await shows('Beginner');
    await game.untilPainted(painted('click CommandPuzzle'));
    await game.press(345, 300);
    await game.until('puzzle 5', () => /Puzzle 5/.test(document.getElementById('picture').textContent));
    await page.move(...(await game.at(740, 180)));
    await game.untilPainted(painted('puzzle 5'));
    await page.key('Escape');
});

test('the program solves a lost puzzle to its end', async () => {
    for (let i = 0; i < 3; ++i) await game.click('Next page');
    await game.press(560, 120);
    await game.until('puzzle 30', () => /Puzzle 30/.test(document.getElementById('picture').textContent));
    await game.click('Start');
    await game.dialog('Puzzle Result');
    await shows('Puzzle Failed...');
    await game.click('Show solution');
    await game.noDialog();
    await game.dialog('Puzzle Result');
    await shows('You Succeeded!');
    await game.click('Menu');
    await game.noDialog();
    await page.key('Escape');
});
