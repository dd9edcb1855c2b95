// Makes the page's picture files from the original ones. At single size they keep every pixel; at double size the few
// large ones are compressed with losses that nobody sees. Files made earlier are kept and reused.
import { execFile } from 'node:child_process';
import { createHash } from 'node:crypto';
import { copyFileSync, existsSync, mkdirSync, readdirSync, readFileSync, renameSync, statSync } from 'node:fs';
import { availableParallelism } from 'node:os';
import { basename, join } from 'node:path';
import { promisify } from 'node:util';

const run = promisify(execFile);
const lossless = ['-lossless', '-z', '7'];
const nearly = ['-q', '88', '-m', '6', '-sharp_yuv'];
const small = ['-q', '75', '-m', '6', '-sharp_yuv']; // icons, which are shown smaller than they are
const largest = 50_000; // bytes, lossless

const sizeOf = (file) => statSync(file).size;

/** The file of a picture in that encoding, from the folder of files made earlier. */
async function encode(picture, options, kept) {
    const hash = createHash('sha256').update(options.join(' ')).update(readFileSync(picture)).digest('hex');
    const made = join(kept, `${hash.slice(0, 20)}.webp`);
    if (existsSync(made)) return made;
    await run('cwebp', ['-quiet', ...options, picture, '-o', `${made}.part`]);
    renameSync(`${made}.part`, made);
    return made;
}

async function smallest(picture, isDouble, kept) {
    const exact = await encode(picture, lossless, kept);
    if (isDouble && sizeOf(exact) > largest) return encode(picture, nearly, kept);
    return sizeOf(exact) < sizeOf(picture) ? exact : picture;
}

/** Fills the folder `to` with the pictures of `from`, as WebP where that is smaller. */
export async function makePictures(from, to, isDouble, kept) {
    mkdirSync(to, { recursive: true });
    mkdirSync(kept, { recursive: true });
    const pictures = readdirSync(from).filter((file) => file.endsWith('.png'));
    const makeOthers = async () => {
        for (let file = pictures.pop(); file; file = pictures.pop()) {
            const made = await smallest(join(from, file), isDouble, kept);
            const ending = made.endsWith('.webp') ? '.webp' : '.png';
            copyFileSync(made, join(to, basename(file, '.png') + ending));
        }
    };
    await Promise.all(Array.from({ length: availableParallelism() }, makeOthers));
}

/** The icons as WebP, for an installed page. */
export async function makeIcons(from, to, kept) {
    mkdirSync(to, { recursive: true });
    const icons = readdirSync(from).filter((file) => file.endsWith('.png'));
    const make = async (file) =>
        copyFileSync(await encode(join(from, file), small, kept), join(to, basename(file, '.png') + '.webp'));
    await Promise.all(icons.map(make));
}
