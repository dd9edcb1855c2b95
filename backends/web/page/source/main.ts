// Starts the game: loads the program and the pictures of the main menu, shows the progress if that takes a while, runs the
// program, and then fetches what can wait.
import { connectControls } from './controls';
import { answerFirstTouch } from './fingers';
import { Focus } from './focus';
import { Input } from './input';
import { Games } from './games';
import { gameHeight, gameWidth, Layout } from './layout';
import { KeptGames } from './keptGames';
import { Keys } from './keys';
import { Music } from './music';
import { Notices } from './notices';
import { connectBack } from './back';
import { holdVersion, keepForOffline, takeNewVersion } from './offline';
import { connectPads } from './pads';
import { Pictures } from './pictures';
import { loadProgram } from './program';
import { Settings } from './settings';
import { Sounds } from './sound';
import { Surface } from './surface';
import { Waiting } from './waiting';
import { Watching } from './watching';
import { Windows } from './windows';

function find<Node extends HTMLElement>(id: string, type: new () => Node): Node {
    const node = document.getElementById(id);
    if (!(node instanceof type)) throw new Error(`The page lacks ${id}.`);
    return node;
}

async function start(): Promise<void> {
    const loading = find('loading', HTMLElement);
    const progress = find('progress', HTMLProgressElement);
    const notices = new Notices(find('notice', HTMLElement), find('voice', HTMLElement));
    if (!('WebAssembly' in globalThis)) {
        loading.textContent = 'Prismfall cannot run in this browser, which lacks WebAssembly.';
        return;
    }
    holdVersion();

    const layout = new Layout(find('room', HTMLElement));
    const pictures = new Pictures(layout);
    const report = () => (progress.value += 1);
    const newVersion = takeNewVersion();
    const program = loadProgram();
    try {
        await Promise.all([pictures.loadFirst(report), program.then(report)]);
    } catch {
        loading.textContent = 'Prismfall could not be loaded. Check your connection and reload the page.';
        return;
    }
    if (await newVersion) {
        location.reload();
        return;
    }
    loading.remove();

    const waiting = new Waiting();
    const input = new Input(waiting);
    const surface = new Surface(gameWidth, gameHeight);
    const windows = new Windows(layout, pictures, surface, notices, waiting, input, find('picture', HTMLElement));
    const sounds = new Sounds(notices);
    const music = new Music(notices);
    const focus = new Focus(find('picture', HTMLElement), surface.node);
    const keys = new Keys(windows, waiting, input, surface.node);
    const back = connectBack(windows, waiting, input);
    const button = (id: string) => find(id, HTMLButtonElement);
    const games = new KeptGames();
    const watching = new Watching(waiting, notices, find('footer', HTMLElement));
    const kept = new Games({ games, watching, notices, waiting, keys, list: button('games'), last: button('share') });
    const end = (sentence?: string) => {
        kept.noteEnd();
        music.close();
        sounds.stop();
        windows.end(sentence);
        back.noteEnd();
    };
    const settings = new Settings();
    const machine = { waiting, windows, surface, sounds, music, settings, games, watching, notices, keys, focus, end };
    connectControls(input, keys, button('right'), button('extras'), button('full'));
    connectPads(() => keys.areForField);
    answerFirstTouch(notices);
    await kept.watchLink();
    const run = (await program).run(machine);
    void fetchTheRest(pictures, sounds, music);
    await run.catch(async (error: unknown) => {
        console.error(error);
        const isKept = await games.takeUnfinished();
        const request = ' If you report it, please include the recording of your game, the newest one under Games.';
        end('Prismfall has stopped because of an error.' + (isKept ? request : ''));
    });
}

async function fetchTheRest(pictures: Pictures, sounds: Sounds, music: Music): Promise<void> {
    await sounds.load();
    await pictures.loadOthers();
    await keepForOffline(music.played).catch(() => undefined);
}

start().catch((error: unknown) => {
    console.error(error);
    const loading = document.getElementById('loading');
    if (loading) loading.textContent = 'Prismfall cannot run in this browser. A newer browser may help.';
});
