// Gamepads, as keys: stick and cross are the arrows, the buttons press, pause and turn pages. Browsers report a gamepad
// when its first button is pressed, and have to be asked what is pressed after that.
import { moveFocus } from './keys';

// Where a stick, which moves from 0 to 1, counts as held in a direction, and where as released again.
const heldFrom = 0.6;
const releasedBelow = 0.3;

// By their numbers in the browser's standard layout.
const buttons: Readonly<Record<number, string>> = {
    0: ' ',
    1: 'Enter',
    3: 'r',
    4: 'PageUp',
    5: 'PageDown',
    8: 'Escape',
    9: 'p',
    12: 'ArrowUp',
    13: 'ArrowDown',
    14: 'ArrowLeft',
    15: 'ArrowRight',
};

const steps: Readonly<Record<string, number>> = { ArrowLeft: -1, ArrowUp: -1, ArrowRight: 1, ArrowDown: 1 };

// Some browsers keep looking for gamepads as long as a page listens for them, which costs as much as a slow game does.
// During a game without a gamepad, the page listens for one second in ten.
const second = 1000; // milliseconds
const restInGame = 10; // seconds

let isWatching = false;
let pressed = new Set<string>();
let stick = '';

export function connectPads(isInGame: () => boolean): void {
    let seconds = 0;
    const lookOut = () => {
        const rests = isInGame() && !isWatching && seconds++ % restInGame !== 0;
        if (rests) removeEventListener('gamepadconnected', startWatching);
        else addEventListener('gamepadconnected', startWatching);
    };
    lookOut();
    setInterval(lookOut, second);
}

function startWatching(): void {
    if (!isWatching) requestAnimationFrame(watch);
    isWatching = true;
}

function watch(): void {
    const pads = navigator.getGamepads().filter((pad) => pad?.mapping === 'standard');
    isWatching = pads.length > 0;
    const now = new Set<string>();
    for (const pad of pads) for (const key of keysOf(pad)) now.add(key);
    for (const key of now) if (!pressed.has(key)) press(key);
    pressed = now;
    if (isWatching) requestAnimationFrame(watch);
}

function* keysOf(pad: Gamepad | null): Generator<string> {
    if (!pad) return;
    for (const [number, key] of Object.entries(buttons)) if (pad.buttons[Number(number)]?.pressed) yield key;
    stick = stickOf(pad.axes[0] ?? 0, pad.axes[1] ?? 0);
    if (stick) yield stick;
}

/** A stick that has become an arrow stays one until it is released. */
function stickOf(x: number, y: number): string {
    const along = stick.endsWith('t') ? x : y;
    if (stick && Math.abs(along) >= releasedBelow) return stick;
    if (Math.abs(x) >= heldFrom) return x < 0 ? 'ArrowLeft' : 'ArrowRight';
    if (Math.abs(y) >= heldFrom) return y < 0 ? 'ArrowUp' : 'ArrowDown';
    return '';
}

/** What a key would do; where the browser itself would act on a real key, we do. */
function press(key: string): void {
    const focus = document.activeElement ?? document.body;
    const event = new KeyboardEvent('keydown', { key, bubbles: true, cancelable: true });
    if (!focus.dispatchEvent(event)) return;
    const step = steps[key];
    if (step !== undefined) moveFocus(step);
    else if ((key === ' ' || key === 'Enter') && focus instanceof HTMLElement) focus.click();
}
