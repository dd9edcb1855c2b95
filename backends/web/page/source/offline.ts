// Keeps the page working without a network. A new version is cached as a whole while the old one is being played, and is
// used from the next start on at which nobody plays the old one any more.
import { build } from './build';
import { cacheName, lockName } from './caches';
import { serviceWorkerAddress } from './trusted';

const takeOverLimit = 400; // milliseconds
const takeOverPause = 100;
const dropPause = 10_000; // longer than a page of an old version needs from its first byte to its lock

interface Connection {
    readonly saveData?: boolean;
    readonly type?: string;
}

const scope = new URL('./', location.href).href;

/** Whether a new version has just taken over, so that this page has to be loaded anew. */
export async function takeNewVersion(): Promise<boolean> {
    const workers = navigator.serviceWorker as ServiceWorkerContainer | undefined;
    const waiting = (await workers?.getRegistration().catch(() => undefined))?.waiting;
    if (!workers || !waiting) return false;
    return new Promise((resolve) => {
        // The page before this one may take a moment to go.
        const ask = () => waiting.postMessage('take over');
        const asking = setInterval(ask, takeOverPause);
        const end = (hasTakenOver: boolean) => {
            clearInterval(asking);
            resolve(hasTakenOver);
        };
        workers.addEventListener('controllerchange', () => end(true));
        setTimeout(() => end(false), takeOverLimit);
        ask();
    });
}

/** Until this page is closed, no other version deletes the files that it was made of. */
export function holdVersion(): void {
    const locks = navigator.locks as LockManager | undefined;
    const name = lockName(cacheName(scope, build.folder));
    // Where the browser refuses locks, it keeps no caches either.
    locks?.request(name, { mode: 'shared' }, () => new Promise(() => undefined)).catch(() => undefined);
}

/** Keeps everything for the next start, and, once music has been played here, the tracks one after the other. */
export async function keepForOffline(musicPlayed: Promise<void>): Promise<void> {
    const workers = navigator.serviceWorker as ServiceWorkerContainer | undefined;
    if (!workers) return;
    await workers.register(serviceWorkerAddress(), { updateViaCache: 'none' });
    const { active } = await workers.ready;
    setTimeout(() => active?.postMessage('drop old versions'), dropPause);
    await musicPlayed;
    if (!isMetered()) await keepMusic();
}

async function keepMusic(): Promise<void> {
    const cache = await caches.open(cacheName(scope, build.music));
    for (const track of build.tracks) {
        const address = `${build.music}/${track}`;
        if (!(await cache.match(address))) await cache.add(address);
    }
}

/** Whether the player pays for data, as far as the browser says. */
function isMetered(): boolean {
    const { connection } = navigator as { connection?: Connection };
    return connection?.saveData === true || connection?.type === 'cellular';
}
