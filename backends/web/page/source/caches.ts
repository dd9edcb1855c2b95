// The names of this page's caches and locks. Several copies of the game, and other programs, may share an origin, so
// each name begins with the address of the page's folder.
const mark = 'prismfall';

export function cacheName(scope: string, folder: string): string {
    return `${mark} ${scope} ${folder}`;
}

export function isOwnCache(scope: string, name: string): boolean {
    return name.startsWith(`${mark} ${scope} `);
}

/** Held by every page that needs the cache. */
export function lockName(cache: string): string {
    return `${cache} in use`;
}
