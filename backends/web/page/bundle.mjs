// Assembles the page from the built program, the sources beside this file and the assets:
//   node bundle.mjs BUILD_FOLDER_WITH_WASM OUTPUT_FOLDER FOLDER_FOR_MADE_PICTURES
// The files of a version go into a folder named after their contents, music into another one, so no browser ever mixes
// two versions or fetches the same music twice.
import { createHash } from 'node:crypto';
import { cpSync, mkdirSync, readdirSync, readFileSync, rmSync, writeFileSync } from 'node:fs';
import { dirname, join, relative } from 'node:path';
import { fileURLToPath } from 'node:url';
import { build } from 'esbuild';
import { makeIcons, makePictures } from './pictures.mjs';

const here = dirname(fileURLToPath(import.meta.url));
const root = join(here, '../../..');
const [programs, output, kept] = process.argv.slice(2);

/** All files in a folder, as paths relative to it. */
function filesIn(folder, from = folder) {
    return readdirSync(folder, { withFileTypes: true })
        .flatMap((entry) => {
            const path = join(folder, entry.name);
            return entry.isDirectory() ? filesIn(path, from) : [relative(from, path)];
        })
        .sort();
}

function hashOf(folders) {
    const hash = createHash('sha256');
    for (const folder of folders)
        for (const file of filesIn(folder)) hash.update(file).update(readFileSync(join(folder, file)));
    return hash.digest('hex').slice(0, 12);
}

function copy(from, to, ending) {
    mkdirSync(to, { recursive: true });
    for (const file of readdirSync(from)) if (file.endsWith(ending)) cpSync(join(from, file), join(to, file));
}

const bundling = { bundle: true, minify: true, target: 'es2022', logLevel: 'warning' };

async function script(entry, file, known) {
    await build({
        ...bundling,
        entryPoints: [join(here, 'source', entry)],
        outfile: join(output, file),
        define: { BUILD: JSON.stringify(known) },
        format: 'esm',
    });
}

/** The page, with its embedded script, whose hash goes into the page's policy. */
async function page(folder) {
    const entry = join(here, 'source/preload.ts');
    const { outputFiles } = await build({ ...bundling, entryPoints: [entry], write: false, format: 'iife' });
    const preload = outputFiles[0].text.trim();
    const hash = createHash('sha256').update(preload).digest('base64');
    const source = readFileSync(join(here, 'index.html'), 'utf8');
    return source
        .replaceAll('FOLDER', folder)
        .replace('PRELOAD_HASH', hash)
        .replace(/\s*PRELOAD;\s*/, () => preload);
}

rmSync(output, { recursive: true, force: true });
copy(join(root, 'assets/music'), join(output, 'music'), '.mp3');
const music = `music-${hashOf([join(output, 'music')])}`;
const staged = join(output, 'staged');
copy(programs, staged, '.wasm');
for (const size of ['1x', '2x'])
    await makePictures(join(root, 'assets/pictures', size), join(staged, 'pictures', size), size === '2x', kept);
copy(join(root, 'assets/sounds'), join(staged, 'sounds'), '.wav');
copy(here, staged, '.css');
const folder = `version-${hashOf([staged, join(here, 'source'), join(here, 'worker')])}`;
copy(join(root, 'packaging/icons'), join(output, 'icons'), '.png');
await makeIcons(join(root, 'packaging/icons'), join(output, 'icons'), kept);
copy(here, output, '.webmanifest');

writeFileSync(join(output, 'index.html'), await page(folder));
const tracks = readdirSync(join(output, 'music')).sort();
cpSync(join(output, 'music'), join(output, music), { recursive: true });
rmSync(join(output, 'music'), { recursive: true });
cpSync(staged, join(output, folder), { recursive: true });
rmSync(staged, { recursive: true });
const files = [...filesIn(join(output, folder)).map((file) => `${folder}/${file}`), `${folder}/page.js`];
const sounds = filesIn(join(root, 'assets/sounds'))
    .flatMap((file) => /^(\d+)\.wav$/.exec(file)?.[1] ?? [])
    .map(Number);
const known = {
    folder,
    music,
    tracks,
    sounds,
    files: [...files, 'manifest.webmanifest', 'icons/64.png', 'icons/256.webp'],
};
await script('main.ts', `${folder}/page.js`, known);
await script('../worker/service-worker.ts', 'service-worker.js', known);
