// Answers the page's requests from what was put by, so that it starts without a network. The files of a version come all
// or none, and stand in a folder and a cache of their own.
import { build } from '../source/build';

// This file runs beside the page, where other things are global.
const worker = self as unknown as ServiceWorkerGlobalScope;
const page = './';

worker.addEventListener('install', (event) => event.waitUntil(putBy()));
worker.addEventListener('activate', (event) => event.waitUntil(dropOldVersions()));
worker.addEventListener('fetch', (event) => {
    if (event.request.method === 'GET' && !isPuttingMusicBy(event.request)) event.respondWith(answer(event.request));
});
worker.addEventListener('message', (event) => event.waitUntil(takeOverIfAlone()));

async function putBy(): Promise<void> {
    const cache = await caches.open(build.folder);
    await cache.addAll([page, ...build.files].map((file) => new Request(file, { cache: 'no-cache' })));
}

async function dropOldVersions(): Promise<void> {
    for (const name of await caches.keys())
        if (name !== build.folder && name !== build.music) await caches.delete(name);
}

async function takeOverIfAlone(): Promise<void> {
    const pages = await worker.clients.matchAll({ includeUncontrolled: true, type: 'window' });
    if (pages.length === 1) await worker.skipWaiting();
}

/** Long requests that pass through here would keep a new version waiting, also after their page has gone. */
function isPuttingMusicBy(request: Request): boolean {
    return request.destination === '' && request.url.includes(build.music);
}

async function answer(request: Request): Promise<Response> {
    const kept = request.mode === 'navigate' ? await caches.match(page) : await caches.match(request.url);
    if (!kept) return fetch(request);
    const range = /^bytes=(\d+)-(\d*)$/.exec(request.headers.get('range') ?? '');
    return range ? partOf(kept, Number(range[1]), range[2] ?? '') : kept;
}

/** Players of music ask for parts of a file. */
async function partOf(kept: Response, first: number, last: string): Promise<Response> {
    const whole = await kept.blob();
    const end = last === '' ? whole.size : Math.min(Number(last) + 1, whole.size);
    const headers = new Headers(kept.headers);
    headers.set('Content-Range', `bytes ${first}-${end - 1}/${whole.size}`);
    headers.set('Content-Length', String(end - first));
    return new Response(whole.slice(first, end), { status: 206, headers });
}
