// Keys. The page's own keys keep their meaning: Tab goes through the controls, Enter and Space click the one that has
// the focus. While a game is being played, and whenever no control has the focus, keys go to the playfield.
import type { Input } from './input';
import { EventKind } from './records';
import type { Waiting } from './waiting';
import type { Windows } from './windows';

const mainWindow = 0;

// The numbers of the program's enum Key.
const arrows: Readonly<Record<string, number>> = { ArrowLeft: 37, ArrowUp: 38, ArrowRight: 39, ArrowDown: 40 };
const presses: Readonly<Record<string, number>> = { Enter: 13, ' ': 32 };
const tab = 9;
const f1 = 112;
const byPad = 1024; // added to the number of a key that a gamepad stands for
const anywhere: Readonly<Record<string, number>> = {
    PageUp: 33,
    PageDown: 34,
    F1: f1,
};

export class Keys {
    /** There is something to choose on the playfield. */
    canChoose = false;
    /** A game is being played. */
    areForField = false;

    constructor(
        private readonly windows: Windows,
        private readonly waiting: Waiting,
        private readonly input: Input,
        private readonly field: HTMLElement,
    ) {
        addEventListener('keydown', (event) => this.press(event));
    }

    openExtras(): void {
        this.waiting.send(EventKind.Key, mainWindow, f1);
    }

    private press(event: KeyboardEvent): void {
        if (event.ctrlKey || event.altKey || event.metaKey || document.querySelector('dialog.message[open]')) return;
        const dialog = this.windows.frontDialog();
        const code = event.key === 'Escape' ? 0 : dialog === undefined ? this.codeFor(event) : codeInDialog(event);
        if (code === undefined) return;
        event.preventDefault();
        if (event.repeat) return;
        if (code !== 0) this.waiting.send(EventKind.Key, dialog ?? mainWindow, event.isTrusted ? code : code + byPad);
        else if (dialog === undefined) this.input.escape();
        else this.waiting.send(EventKind.Close, dialog);
    }

    private codeFor({ key, shiftKey, isTrusted }: KeyboardEvent): number | undefined {
        const focus = document.activeElement;
        const isOnField = focus === this.field || focus === document.body || focus === null;
        const arrow = arrows[key];
        const isOnSpot = focus instanceof Element && focus.closest('.spots') !== null;
        if (arrow !== undefined && (this.areForField || ((isOnSpot || isOnField) && this.canChoose))) {
            // Otherwise the next press would click whatever had the focus.
            this.field.focus({ preventScroll: true });
            return arrow;
        }
        if (arrow !== undefined && !(focus instanceof HTMLInputElement || focus instanceof HTMLSelectElement)) {
            // A gamepad moves the focus itself.
            if (isTrusted) moveFocus(arrow === arrows['ArrowLeft'] || arrow === arrows['ArrowUp'] ? -1 : 1);
            return undefined;
        }
        if (focus instanceof HTMLSelectElement) return undefined;
        if (key === 'Tab') return this.areForField && focus === this.field && !shiftKey ? tab : undefined;
        return (isOnField ? presses[key] : undefined) ?? codeAnywhere(key);
    }
}

/** Moves the focus to the next control of the window in front, or to the previous one. */
export function moveFocus(step: number): void {
    const front = [...document.querySelectorAll('dialog[open]')].at(-1) ?? document.getElementById('picture');
    const controls = [...(front?.querySelectorAll<HTMLElement>('button, input') ?? [])].filter(
        (node) => node.offsetParent !== null && !node.matches(':disabled'),
    );
    const place = controls.findIndex((node) => node === document.activeElement);
    const next = place < 0 ? 0 : place + step + controls.length;
    controls[next % controls.length]?.focus();
}

/** Of the keys that the program takes wherever the focus is: it knows what letters and digits do. */
function codeAnywhere(key: string): number | undefined {
    return /^[a-z0-9]$/i.test(key) ? key.toUpperCase().charCodeAt(0) : anywhere[key];
}

/** Enter is the OK of a dialog, except where a button has the focus, or the dialog asks for a key. */
function codeInDialog({ key }: KeyboardEvent): number | undefined {
    if (document.querySelector('dialog input[name="Key to change"]:checked')) return presses[key] ?? codeAnywhere(key);
    return document.activeElement instanceof HTMLButtonElement ? undefined : key === 'Enter' ? presses[key] : undefined;
}
