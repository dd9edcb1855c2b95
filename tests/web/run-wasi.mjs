// Runs the driver's WebAssembly by node's own WASI, with the standard streams as they are.
import { readFileSync } from 'node:fs';
import { WASI } from 'node:wasi';

const wasi = new WASI({ version: 'preview1', returnOnExit: true });
const program = readFileSync('build/wasm/prismfall-headless.wasm');
const { instance } = await WebAssembly.instantiate(program, { wasi_snapshot_preview1: wasi.wasiImport });
process.exitCode = wasi.start(instance);
