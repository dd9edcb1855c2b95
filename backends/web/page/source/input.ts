// Mouse, fingers and keys as events of the game. The program finds out which element a press is on; the page's own
// elements matter only where a key or a screen reader clicks them.
import { leftButton, rightButton, touched, type Touched } from './fingers';
import { middleOf, placeInLong } from './longDialog';
import { EventKind } from './records';
import type { Waiting } from './waiting';

const byFinger = 16; // added to a button's number
const steady = 22; // how far a finger may move and still press what it touched, in the page's pixels
const escapeCode = 27;
const mainWindow = 0;

interface Held {
    readonly window: number;
    readonly root: HTMLElement;
}

interface Finger extends Held {
    readonly button: number;
    readonly began: PointerEvent;
    readonly touched: Touched;
}

export class Input {
    /** Whether a finger acts as the right button. */
    fingersPressRight = false;
    /** How often fingers have pressed so far. */
    touches = 0;
    private readonly fingers = new Map<number, Finger>();
    private readonly held = new Map<number, Held>();
    private pressSeen = false;

    constructor(private readonly waiting: Waiting) {
        addEventListener('mouseup', (event) => this.release(event));
        addEventListener('pointerup', (event) => this.touchEnd(event, false));
        addEventListener('pointercancel', (event) => this.touchEnd(event, true));
    }

    attach(root: HTMLElement, window: number): void {
        const held = { window, root };
        root.addEventListener('mousedown', (event) => this.press(event, held));
        root.addEventListener('mousemove', (event) => this.send(EventKind.Move, held, 0, event));
        root.addEventListener('pointerdown', (event) => this.touchStart(event, held));
        // No click: a dialog may have closed by then, and what lay below it would get the click.
        root.addEventListener('touchend', (event) => event.cancelable && event.preventDefault());
        root.addEventListener('contextmenu', (event) => event.preventDefault());
        root.addEventListener('click', (event) => this.click(event, held));
    }

    private press(event: MouseEvent, held: Held): void {
        this.pressSeen = true;
        this.held.set(event.button, held);
        this.send(EventKind.Press, held, event.button === 0 ? leftButton : rightButton, event);
    }

    private release(event: MouseEvent): void {
        const held = this.held.get(event.button);
        this.held.delete(event.button);
        if (held) this.send(EventKind.Release, held, event.button === 0 ? leftButton : rightButton, event);
    }

    /**
     * A second finger is the right button, and so is every finger while the switch is on, unless the touched element calls
     * for a button itself.
     */
    private touchStart(event: PointerEvent, held: Held): void {
        if (event.pointerType !== 'touch') return;
        event.preventDefault();
        this.pressSeen = true;
        this.touches += 1;
        const place = touched(held.root, event);
        const isRight = this.fingersPressRight || this.fingers.size > 0;
        const button = place.button ?? (isRight ? rightButton : leftButton);
        this.fingers.set(event.pointerId, { ...held, button, began: event, touched: place });
        this.send(EventKind.Press, held, button + byFinger, place);
    }

    private touchEnd(event: PointerEvent, isLost: boolean): void {
        const finger = this.fingers.get(event.pointerId);
        if (!finger) return;
        this.fingers.delete(event.pointerId);
        const { began, button, window } = finger;
        const way = Math.hypot(event.clientX - began.clientX, event.clientY - began.clientY);
        if (isLost) this.waiting.send(EventKind.Release, window, button, -1, -1);
        else this.send(EventKind.Release, finger, button, way <= steady ? finger.touched : event);
    }

    /** Clicks caused by a press have already been handled; the program alone says what is marked. */
    private click(event: MouseEvent, held: Held): void {
        const target = event.target instanceof HTMLElement ? event.target : undefined;
        const element = target?.closest<HTMLElement>('[data-element]');
        if (element instanceof HTMLLabelElement) event.preventDefault();
        const isOfPress = event.detail > 0 && this.pressSeen;
        this.pressSeen = false;
        if (!target || isOfPress) return;
        if (target.className === 'spot') {
            this.pressMiddle(target, held);
            return;
        }
        if (!element) return;
        const place = Number(element.dataset['element']);
        setTimeout(() => this.waiting.send(EventKind.Activate, held.window, place));
    }

    private pressMiddle(spot: HTMLElement, held: Held): void {
        const { left, top, width, height } = spot.getBoundingClientRect();
        const middle = { clientX: left + width / 2, clientY: top + height / 2 };
        for (const kind of [EventKind.Press, EventKind.Release])
            this.send(kind, held, Number(spot.dataset['button']), middle);
    }

    escape(): void {
        this.waiting.send(EventKind.Key, mainWindow, escapeCode);
    }

    private send(
        kind: EventKind,
        { window, root }: Held,
        number: number,
        event: Pick<MouseEvent, 'clientX' | 'clientY'>,
    ): void {
        const { clientX, clientY } = event;
        const moved = root.matches('.apart')
            ? panelPlace(clientX, clientY)
            : root.matches('.long')
              ? placeInLong(clientX, clientY)
              : undefined;
        if (moved) {
            this.waiting.send(kind, window, number, ...moved);
            return;
        }
        const box = root.getBoundingClientRect();
        const scale = box.width / root.offsetWidth;
        this.waiting.send(kind, window, number, (clientX - box.left) / scale, (clientY - box.top) / scale);
    }
}

/** Where the page has moved the panel, a press on an element in it counts as one on the middle of that element. */
function panelPlace(x: number, y: number): [number, number] | undefined {
    const node = document.elementFromPoint(x, y)?.closest<HTMLElement>('.apart > .panel');
    return node ? middleOf(node) : undefined;
}
