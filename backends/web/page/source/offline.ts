// Keeps the page working offline. A new version is cached as a whole while the old one is being played. It is used from
// the next start at which nobody is playing the old one.
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

/** Whether a new version has just taken over, so that this page must be reloaded. */
export async function takeNewVersion(): Promise<boolean> {
    const workers = navigator.serviceWorker as ServiceWorkerContainer | undefined;
    const waiting = (await workers?.getRegistration().catch(() => undefined))?.waiting;
    if (!workers || !waiting) return false;
    return new Promise((resolve) => {
        // The previous page may take a moment to go away.
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

/** Until this page is closed, no other version deletes its files. */
export function holdVersion(): void {
    const locks = navigator.locks as LockManager | undefined;
    const name = lockName(cacheName(scope, build.folder));
    // Where the browser refuses locks, it has no caches either.
    locks?.request(name, { mode: 'shared' }, () => new Promise(() => undefined)).catch(() => undefined);
}

/** Caches everything for the next start, and, once music has been played here, the tracks one after the other. */
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

/** Whether the player pays for data, as far as the browser knows. */
function isMetered(): boolean {
    const { connection } = navigator as { connection?: Connection };
    return connection?.saveData === true || connection?.type === 'cellular';
}
