// Which build of the program this browser runs: a file in a version's folder.

/**
 * Whether the browser can suspend a program. `?build=asyncify` in the address makes any browser run the other build.
 */
export function canSuspend(): boolean {
    return 'Suspending' in WebAssembly && new URLSearchParams(location.search).get('build') !== 'asyncify';
}

export function programFile(): string {
    return canSuspend() ? 'prismfall.wasm' : 'prismfall-asyncify.wasm';
}
