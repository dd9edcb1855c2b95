// The driver compiled to WebAssembly, compared with the native one byte for byte: every story, every puzzle's solution for both
// starting values of the growth toggle, and every recording.
import assert from 'node:assert';
import { spawnSync } from 'node:child_process';
import { readdirSync, readFileSync } from 'node:fs';
import { test } from 'node:test';
import { build } from 'esbuild';

const native = (input, words = []) =>
    spawnSync('build/release/prismfall-headless', words, { input, maxBuffer: 2 ** 28 });
const wasm = (input, words = []) =>
    spawnSync(process.execPath, ['--no-warnings', 'tests/web/run-wasi.mjs', ...words], { input, maxBuffer: 2 ** 28 });

test('stories in WebAssembly', () => {
    const stories = readdirSync('tests/stories').filter((file) => file.endsWith('.script'));
    assert.ok(stories.length > 10);
    for (const story of stories) {
        const script = readFileSync(`tests/stories/${story}`);
        const [expected, run] = [native(script), wasm(script)];
        assert.equal(run.stdout.toString(), expected.stdout.toString(), story);
        assert.equal(run.stderr.toString(), expected.stderr.toString(), story);
        assert.equal(run.status, expected.status, story);
    }
});

test('solutions in WebAssembly', () => {
    const lines = ['setting General PlayFirstTime False', 'load', 'paint on'];
    for (const toggle of [0, 1])
        for (let puzzle = 1; puzzle <= 45; ++puzzle)
            lines.push(`set GrowthToggle ${toggle}`, `solution ${puzzle}`, 'run 90000', 'dump');
    const script = lines.join('\n');
    const [expected, run] = [native(script), wasm(script)].map(({ stdout }) => stdout.toString());
    assert.equal(expected.match(/dialog VPuzzleResult solved/g).length, 90);
    assert.ok(run === expected, 'the two print the same');
});

test('recordings in WebAssembly', () => {
    const words = ['verify', ...readdirSync('tests/recordings').map((file) => `tests/recordings/${file}`)];
    const [expected, run] = [native('', words), wasm('', words)];
    assert.equal(expected.status, 0);
    assert.equal(run.stdout.toString(), expected.stdout.toString());
});

async function importRecords() {
    const built = await build({ entryPoints: ['backends/web/page/source/records.ts'], format: 'esm', write: false });
    const source = Buffer.from(built.outputFiles[0].contents).toString('base64');
    return import(`data:text/javascript;base64,${source}`);
}

test('the program and the page agree on their records, or the page stops', async () => {
    const { checkRecords } = await importRecords();
    const module = new WebAssembly.Module(readFileSync('build/wasm/programs/prismfall.wasm'));
    const imports = {};
    for (const { module: from, name } of WebAssembly.Module.imports(module))
        imports[from] = { ...imports[from], [name]: () => 0 };
    const { exports: program } = new WebAssembly.Instance(module, imports);
    const sizes = program.recordSizes();
    checkRecords(program.memory, sizes);
    new Int32Array(program.memory.buffer, sizes)[1] += 4; // a field more than the page knows
    assert.throws(() => checkRecords(program.memory, sizes), /does not fit this page \(element/);
});

test('fields and kinds come in the same order in the program and the page', async () => {
    const { Kind, EventKind, WatchCommand, ...read } = await importRecords();
    const { readWindow, readElement, readGame, readWatching, writeEvent } = read;
    const headers = ['backends/web/Imports.h', 'platform/Element.h'].map((file) => readFileSync(file, 'utf8')).join('');
    const listed = (type) => headers.match(new RegExp(`${type} [^;]*?{\n(.*?)\n}`, 's'))[1];
    const fields = (type) =>
        [...listed(`struct ${type}`).matchAll(/^ +(\S+) (\w+)(?: =|;|\[|{)/gm)].map((field) => field[2]);
    const kinds = (type) => [...listed(`enum class ${type}`).matchAll(/^ +(\w+),/gm)].map((kind) => kind[1]);
    const names = (kind) => Object.values(kind).filter((value) => typeof value === 'string');
    assert.deepEqual(names(Kind), kinds('ElementKind'));
    assert.deepEqual(names(EventKind), kinds('EventKind'));
    assert.deepEqual(names(WatchCommand), kinds('WatchCommand'));

    const memory = new WebAssembly.Memory({ initial: 1 });
    const firstSpot = listed('struct ElementRecord').match(/^ +(?!SpotRecord)\w/gm).length + 5; // five texts take two places
    new Float32Array(memory.buffer)[firstSpot + fields('SpotRecord').indexOf('width')] = 1;
    const element = readElement(memory, 0);
    assert.deepEqual(Object.keys(readWindow(memory, 0)), fields('WindowRecord'));
    assert.deepEqual(Object.keys(element), fields('ElementRecord'));
    assert.deepEqual(Object.keys(readGame(memory, 0)), fields('GameRecord'));
    assert.deepEqual(Object.keys(readWatching(memory, 0)), fields('WatchRecord'));
    assert.deepEqual(Object.keys(element.spots[0]), fields('SpotRecord'));

    const event = Object.fromEntries(fields('Event').map((name, place) => [name, place + 1]));
    writeEvent(memory, 0, event);
    const view = new DataView(memory.buffer);
    const written = [view.getFloat64(0, true), ...[8, 12, 16].map((at) => view.getInt32(at, true))];
    assert.deepEqual([...written, view.getFloat32(20, true), view.getFloat32(24, true)], [1, 2, 3, 4, 5, 6]);
});

test('all configurations of servers send the same headers', () => {
    const headers = (file, pattern) =>
        [...readFileSync(`packaging/web/${file}`, 'utf8').matchAll(pattern)].map(([, name, value]) => [name, value]);
    const ofNginx = headers('nginx.conf', /add_header (\S+) "(.*)" always;/g);
    assert.ok(ofNginx.length > 2);
    assert.deepEqual(headers('apache.conf', /Header always set (\S+) "(.*)"/g), ofNginx);
});
