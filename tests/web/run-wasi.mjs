// Runs the driver's WebAssembly by node's own WASI, with the standard streams as they are.
import { readFileSync } from 'node:fs';
import { WASI } from 'node:wasi';

const wasi = new WASI({ version: 'preview1', returnOnExit: true });
const { instance } = await WebAssembly.instantiate(
    readFileSync('build/wasm/prismfall-headless.wasm'),
    wasi.getImportObject(),
);
process.exitCode = wasi.start(instance);
