// Brings the program to life: the functions of backends/web/Imports.h, and the two ways to pause the program while the
// page keeps running. Browsers that can suspend WebAssembly run one build; for the others there is a second one, which
// unwinds its own stack and rewinds it.
import { build } from './build';
import type { Focus } from './focus';
import { Frames } from './frames';
import type { KeptGames } from './keptGames';
import type { Keys } from './keys';
import type { Music } from './music';
import type { Notices } from './notices';
import { canSuspend, programFile } from './programFile';
import {
    checkRecords,
    decodeText,
    readElement,
    readGame,
    readScores,
    readSpots,
    readWatching,
    readWindow,
    writeEvent,
} from './records';
import type { Settings } from './settings';
import type { Sounds } from './sound';
import type { Surface } from './surface';
import type { Waiting } from './waiting';
import type { Watching } from './watching';
import type { Windows } from './windows';

const calm = matchMedia('(prefers-reduced-motion: reduce)');

export interface Machine {
    readonly waiting: Waiting;
    readonly windows: Windows;
    readonly surface: Surface;
    readonly sounds: Sounds;
    readonly music: Music;
    readonly settings: Settings;
    readonly games: KeptGames;
    readonly watching: Watching;
    readonly notices: Notices;
    readonly keys: Keys;
    readonly focus: Focus;
    /** The program has ended. */
    readonly end: () => void;
}

interface Exports {
    readonly memory: WebAssembly.Memory;
    readonly _initialize: () => void;
    readonly run: () => void;
    readonly present: () => void;
    readonly keepGameSoFar: () => void;
    readonly recordSizes: () => number;
    readonly suspendedStack: () => number;
    readonly asyncify_start_unwind: (stack: number) => void;
    readonly asyncify_stop_unwind: () => void;
    readonly asyncify_start_rewind: (stack: number) => void;
    readonly asyncify_stop_rewind: () => void;
}

interface Suspension {
    Suspending: new (waiting: (until: number, forInput: number) => Promise<void>) => WebAssembly.ImportValue;
    promising: (run: () => void) => () => Promise<void>;
}

type Wait = (until: number, forInput: number) => Promise<void>;

export interface Program {
    /** Resolves when the program has ended. */
    run(machine: Machine): Promise<void>;
}

export async function loadProgram(): Promise<Program> {
    const module = await compile(`${build.folder}/${programFile()}`);
    return { run: (machine) => (canSuspend() ? runSuspending(module, machine) : runUnwinding(module, machine)) };
}

/** Browsers compile a file while it loads only if the server sends its type; not every server does. */
async function compile(address: string): Promise<WebAssembly.Module> {
    try {
        return await WebAssembly.compileStreaming(fetch(address));
    } catch {
        const answer = await fetch(address);
        return WebAssembly.compile(await answer.arrayBuffer());
    }
}

async function runSuspending(module: WebAssembly.Module, machine: Machine): Promise<void> {
    const { Suspending, promising } = WebAssembly as unknown as Suspension;
    const start = (wait: Wait) => new Suspending(wait);
    const program = await instantiate(module, machine, start);
    await promising(program.run)().catch((error: unknown) => fail(program, error));
}

/** Each wait unwinds all the way to this loop, which calls the program again when the wait is over. */
async function runUnwinding(module: WebAssembly.Module, machine: Machine): Promise<void> {
    let waited: Promise<void> | undefined;
    let stack = 0;
    let isRewinding = false;
    const program = await instantiate(module, machine, (wait) => (until: number, forInput: number) => {
        if (isRewinding) {
            program.asyncify_stop_rewind();
            isRewinding = false;
            return;
        }
        waited = wait(until, forInput);
        stack = program.suspendedStack();
        program.asyncify_start_unwind(stack);
    });
    try {
        for (;;) {
            program.run();
            if (!waited) return;
            program.asyncify_stop_unwind();
            await waited;
            waited = undefined;
            isRewinding = true;
            program.asyncify_start_rewind(stack);
        }
    } catch (error) {
        fail(program, error);
    }
}

/** A program that has failed still knows the game, whose recording tells what led to it. */
function fail(program: Exports, error: unknown): never {
    try {
        program.keepGameSoFar();
    } catch (another) {
        console.error(another);
    }
    throw error;
}

async function instantiate(
    module: WebAssembly.Module,
    machine: Machine,
    suspending: (wait: Wait) => WebAssembly.ImportValue,
): Promise<Exports> {
    const { waiting, windows, surface, sounds, music, settings, games, watching, notices, keys, focus, end } = machine;
    const text = (address: number, length: number) => decodeText(memory.buffer, address, length);
    const frames = new Frames(
        () => {
            program.present();
            focus.keep();
        },
        () => waiting.lastPress,
        (error) => waiting.fail(error),
    );
    const wait = suspending((until, forInput) => {
        frames.ask();
        return waiting.wait(until, forInput !== 0);
    });
    const page = {
        wait,
        now: () => performance.now(),
        takeEvent: (address: number) => {
            const event = waiting.take();
            if (event) writeEvent(memory, address, event);
            return event ? 1 : 0;
        },
        isHidden: () => (waiting.isHidden ? 1 : 0),
        random: () => Math.random(),
        openWindow: (window: number, record: number) => windows.open(window, readWindow(memory, record)),
        closeWindow: (window: number) => windows.close(window),
        showElement: (window: number, element: number, record: number) =>
            windows.show(window, element, readElement(memory, record)),
        showPixels: (pixels: number, left: number, top: number, width: number, height: number) =>
            surface.show(new Uint8ClampedArray(memory.buffer, pixels, 4 * width * height), left, top, width),
        showSpots: (spots: number, count: number) => windows.showSpots(readSpots(memory, spots, count)),
        giveKeys: (canChoose: number, toField: number) => {
            keys.canChoose = canChoose !== 0;
            keys.areForField = toField !== 0;
        },
        isCalm: () => (calm.matches ? 1 : 0),
        showPaused: (isPaused: number) => notices.show('pause', isPaused === 0 ? '' : 'Paused'),
        showNotice: (address: number, length: number) => notices.show('saving', text(address, length)),
        endProgram: () => end(),
        openSettings: () => settings.open(),
        readSettings: (address: number) => settings.copyTo(new Uint8Array(memory.buffer, address)),
        writeSettings: (address: number, length: number) => (settings.write(text(address, length)) ? 1 : 0),
        keepGame: (game: number, table: number, rows: number) =>
            void games.keep(readGame(memory, game), readScores(memory, table, rows)),
        keepUnfinished: (game: number) => games.keepUnfinished(readGame(memory, game)),
        openRecording: () => watching.open(),
        readRecording: (address: number) => watching.copyTo(new Uint8Array(memory.buffer, address)),
        refuseRecording: (line: number, address: number, length: number) =>
            watching.refuse(line, text(address, length)),
        watchScore: (score: number, level: number) => {
            if (!games.isKept(score, level)) return 0;
            void games.find(score, level).then((game) => game && watching.begin(game.recording));
            return 1;
        },
        showWatching: (record: number) => watching.show(readWatching(memory, record)),
        playSound: (id: number) => sounds.play(id),
        setEffectsVolume: (share: number) => (sounds.volume = share),
        openMusic: (address: number, length: number) => music.open(text(address, length)),
        closeMusic: () => music.close(),
        setMusicVolume: (share: number) => music.setVolume(share),
        playMusicLooping: () => music.playLooping(),
        resumeMusic: () => music.resume(),
        pauseMusic: () => music.pause(),
        stopMusic: () => music.stop(),
    };
    // The C library could write to files, but there are none.
    const badFile = () => 8;
    const files = { fd_close: badFile, fd_seek: badFile, fd_write: badFile };
    const instance = await WebAssembly.instantiate(module, { page, wasi_snapshot_preview1: files });
    const program = instance.exports as unknown as Exports;
    const memory = program.memory;
    program._initialize();
    checkRecords(memory, program.recordSizes());
    return program;
}
