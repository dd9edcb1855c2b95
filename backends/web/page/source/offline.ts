// Keeps the page working without a network. A new version is put by as a whole while the old one is being played, and is
// used from the next start on at which nobody plays the old one any more.
import { build } from './build';

const takeOverLimit = 1000; // milliseconds

/** Whether a new version has just taken over, so that this page has to be loaded anew. */
export async function takeNewVersion(): Promise<boolean> {
    const workers = navigator.serviceWorker as ServiceWorkerContainer | undefined;
    const waiting = (await workers?.getRegistration().catch(() => undefined))?.waiting;
    if (!workers || !waiting) return false;
    return new Promise((resolve) => {
        workers.addEventListener('controllerchange', () => resolve(true));
        setTimeout(() => resolve(false), takeOverLimit);
        waiting.postMessage('take over');
    });
}

/** Everything for the next start, then the music, a track after the other. */
export async function keepForOffline(): Promise<void> {
    const workers = navigator.serviceWorker as ServiceWorkerContainer | undefined;
    if (!workers) return;
    await workers.register('service-worker.js', { updateViaCache: 'none' });
    await workers.ready;
    const cache = await caches.open(build.music);
    for (const track of build.tracks) {
        const address = `${build.music}/${track}`;
        if (!(await cache.match(address))) await cache.add(address);
    }
}
