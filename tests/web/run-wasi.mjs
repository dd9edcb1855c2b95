// Runs the driver's WebAssembly with node's WASI, passing its arguments, the standard streams and the current folder through.
import { readFileSync } from 'node:fs';
import { WASI } from 'node:wasi';

const args = ['prismfall-headless', ...process.argv.slice(2)];
const wasi = new WASI({ version: 'preview1', args, preopens: { '.': '.' }, returnOnExit: true });
const program = readFileSync('build/wasm/prismfall-headless.wasm');
const { instance } = await WebAssembly.instantiate(program, { wasi_snapshot_preview1: wasi.wasiImport });
process.exitCode = wasi.start(instance);
