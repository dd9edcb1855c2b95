// Keeps the page working without a network. A new version is put by as a whole while the old one is being played, and is
// used from the next start on at which nobody plays the old one any more.
import { build } from './build';

const takeOverLimit = 400; // milliseconds
const takeOverPause = 100;

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
