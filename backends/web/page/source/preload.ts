// Embedded in the page: starts fetching the program while the main script is still loading. It takes a script to find
// out which build this browser runs.
import { programFile } from './programFile';

const folder = document.currentScript?.dataset['folder'];
if (folder && 'WebAssembly' in globalThis) {
    const link = document.createElement('link');
    link.rel = 'preload';
    link.as = 'fetch';
    link.type = 'application/wasm';
    link.crossOrigin = 'anonymous'; // or the later fetch would not find it
    link.href = `${folder}/${programFile()}`;
    document.head.append(link);
}
