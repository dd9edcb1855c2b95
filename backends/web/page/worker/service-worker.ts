// Answers the page's requests from the browser's caches, so that it starts offline. The files of a version are cached
// all or none, under their own folder name and cache. Other programs may live at the same address: caches are named
// after the page's folder, and nothing else is answered, matched or deleted.
import { build } from '../source/build';
import { cacheName, isOwnCache, lockName } from '../source/caches';

// This file runs beside the page, where the globals are different.
const worker = self as unknown as ServiceWorkerGlobalScope;
const scope = worker.registration.scope;
const page = './';

worker.addEventListener('install', (event) => event.waitUntil(keepVersion()));
worker.addEventListener('fetch', (event) => {
    if (event.request.method === 'GET' && isOurs(event.request)) event.respondWith(answer(event.request));
});
worker.addEventListener('message', (event) => {
    event.waitUntil(event.data === 'drop old versions' ? dropOldVersions() : takeOverIfAlone());
});

async function keepVersion(): Promise<void> {
    const cache = await caches.open(cacheName(scope, build.folder));
    await cache.addAll([page, ...build.files].map((file) => new Request(file, { cache: 'no-cache' })));
}

/** A version's cache lives as long as any page of that version, which holds a lock in its name. */
async function dropOldVersions(): Promise<void> {
    const { held = [] } = await navigator.locks.query();
    const isInUse = (cache: string) => held.some(({ name }) => name === lockName(cache));
    for (const cache of await ownCaches())
        if (cache !== cacheName(scope, build.folder) && cache !== cacheName(scope, build.music) && !isInUse(cache))
            await caches.delete(cache);
}

async function takeOverIfAlone(): Promise<void> {
    const pages = await worker.clients.matchAll({ includeUncontrolled: true, type: 'window' });
    if (pages.length === 1) await worker.skipWaiting();
}

async function ownCaches(): Promise<string[]> {
    return (await caches.keys()).filter((name) => isOwnCache(scope, name));
}

/** The page itself, by its two addresses, and the files in its folders. */
function isOurs(request: Request): boolean {
    const [address] = request.url.split(/[?#]/);
    if (!address?.startsWith(scope)) return false;
    const file = address.slice(scope.length);
    if (request.mode === 'navigate') return file === '' || file === 'index.html';
    // Long requests passing through here would keep a new version waiting, even after their page is gone.
    const isKeepingMusic = request.destination === '' && file.startsWith('music-');
    return !isKeepingMusic && /^(version-|music-|manifest\.webmanifest$|icons\/)/.test(file);
}

async function answer(request: Request): Promise<Response> {
    const kept = await keptAnswer(request);
    if (!kept) return fetch(request);
    const range = /^bytes=(\d+)-(\d*)$/.exec(request.headers.get('range') ?? '');
    return range ? partOf(kept, Number(range[1]), range[2] ?? '') : kept;
}

async function keptAnswer(request: Request): Promise<Response | undefined> {
    if (request.mode === 'navigate') return caches.match(page, { cacheName: cacheName(scope, build.folder) });
    for (const name of await ownCaches()) {
        const kept = await caches.match(request.url, { cacheName: name });
        if (kept) return kept;
    }
    return undefined;
}

/** Music players request parts of a file. */
async function partOf(kept: Response, first: number, last: string): Promise<Response> {
    const whole = await kept.blob();
    const end = last === '' ? whole.size : Math.min(Number(last) + 1, whole.size);
    const headers = new Headers(kept.headers);
    headers.set('Content-Range', `bytes ${first}-${end - 1}/${whole.size}`);
    headers.set('Content-Length', String(end - first));
    return new Response(whole.slice(first, end), { status: 206, headers });
}
