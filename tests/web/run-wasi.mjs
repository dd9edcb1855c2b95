// Runs the driver's WebAssembly with node's WASI, passing the standard streams through.
import { readFileSync } from 'node:fs';
import { WASI } from 'node:wasi';

const wasi = new WASI({ version: 'preview1', args: ['prismfall-headless'], returnOnExit: true });
const program = readFileSync('build/wasm/prismfall-headless.wasm');
const { instance } = await WebAssembly.instantiate(program, { wasi_snapshot_preview1: wasi.wasiImport });
process.exitCode = wasi.start(instance);
