// Serves build/web on this machine only, for trying out the page and for its tests:
//   node serve.mjs [FOLDER [open]]
// prints the address, opens it in a browser if asked to and if there is one, and runs until it is stopped.
import { spawn } from 'node:child_process';
import { createReadStream, existsSync, readFileSync, statSync } from 'node:fs';
import { createServer } from 'node:http';
import { dirname, extname, join, normalize } from 'node:path';
import { argv } from 'node:process';
import { fileURLToPath } from 'node:url';

const types = {
    '.html': 'text/html; charset=utf-8',
    '.js': 'text/javascript; charset=utf-8',
    '.css': 'text/css; charset=utf-8',
    '.wasm': 'application/wasm',
    '.png': 'image/png',
    '.webp': 'image/webp',
    '.wav': 'audio/wav',
    '.mp3': 'audio/mpeg',
    '.webmanifest': 'application/manifest+json',
};

const root = join(dirname(fileURLToPath(import.meta.url)), '../../..');

/** What every server should send, taken from the configuration for one. */
const configuration = readFileSync(join(root, 'packaging/web/nginx.conf'), 'utf8');
const listed = [...configuration.matchAll(/add_header (\S+) "(.*)" always;/g)];
const headersForAll = Object.fromEntries(listed.map(([, name, value]) => [name, value]));

/**
 * A server on a free port for a folder, which may change meanwhile. `refuses` says which paths are answered with an
 * error.
 */
export async function serve(folder, refuses = () => false) {
    const site = { folder };
    site.server = createServer((request, response) => {
        const path = normalize(decodeURIComponent(new URL(request.url, 'http://x').pathname));
        const file = join(site.folder, path.endsWith('/') ? `${path}index.html` : path);
        if (!existsSync(file) || !statSync(file).isFile() || refuses(path)) {
            response.writeHead(404).end();
            return;
        }
        const size = statSync(file).size;
        const range = /^bytes=(\d+)-(\d*)$/.exec(request.headers.range ?? '');
        const first = range ? Number(range[1]) : 0;
        const last = range && range[2] !== '' ? Math.min(Number(range[2]), size - 1) : size - 1;
        const headers = {
            ...headersForAll,
            'Content-Type': types[extname(file)] ?? 'application/octet-stream',
            'Content-Length': last - first + 1,
            'Accept-Ranges': 'bytes',
            'Cache-Control': 'no-cache',
        };
        if (range) headers['Content-Range'] = `bytes ${first}-${last}/${size}`;
        response.writeHead(range ? 206 : 200, headers);
        createReadStream(file, { start: first, end: last }).pipe(response);
    });
    await new Promise((resolve) => site.server.listen(0, '127.0.0.1', resolve));
    site.address = `http://127.0.0.1:${site.server.address().port}/`;
    return site;
}

/** Opens the address with the first of the programs that exists, if any. */
function openBrowser(address, [program, ...others] = ['xdg-open', 'x-www-browser']) {
    if (program) spawn(program, [address], { stdio: 'ignore' }).on('error', () => openBrowser(address, others));
}

if (argv[1] === fileURLToPath(import.meta.url)) {
    const { address } = await serve(argv[2] ?? join(root, 'build/web'));
    console.log(`Prismfall is at ${address} (Ctrl+C ends it)`);
    if (argv[3] === 'open') openBrowser(address);
}
