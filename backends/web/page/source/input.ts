// Mouse, fingers and keys as events of the game. The program finds out which element a press is on; the page's own
// elements matter only where a key or a screen reader clicks them.
import { EventKind } from './records';
import type { Waiting } from './waiting';

const leftButton = 1;
const rightButton = 2;
const escapeCode = 27;
const mainWindow = 0;

interface Held {
    readonly window: number;
    readonly root: HTMLElement;
}

export class Input {
    /** Whether a finger acts as the right button. */
    fingersPressRight = false;
    private readonly fingers = new Map<number, Held & { readonly button: number }>();
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
     * A second finger is the right button, as is every finger while the switch says so, and one on a spot that asks for
     * it; buttons want the left one.
     */
    private touchStart(event: PointerEvent, held: Held): void {
        if (event.pointerType !== 'touch') return;
        event.preventDefault();
        this.pressSeen = true;
        const isOnButton = event.target instanceof Element && event.target.closest('button:not(.spot), label') !== null;
        const isRight =
            !isOnButton && (this.fingersPressRight || this.fingers.size > 0 || asksForRight(event, held.root));
        const button = isRight ? rightButton : leftButton;
        this.fingers.set(event.pointerId, { ...held, button });
        this.send(EventKind.Press, held, button, event);
    }

    private touchEnd(event: PointerEvent, isLost: boolean): void {
        const finger = this.fingers.get(event.pointerId);
        if (!finger) return;
        this.fingers.delete(event.pointerId);
        if (isLost) this.waiting.send(EventKind.Release, finger.window, finger.button, -1, -1);
        else this.send(EventKind.Release, finger, finger.button, event);
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
        const moved = root.classList.contains('upright') ? panelPlace(event.clientX, event.clientY) : undefined;
        if (moved) {
            this.waiting.send(kind, window, number, ...moved);
            return;
        }
        const box = root.getBoundingClientRect();
        const scale = box.width / root.offsetWidth;
        this.waiting.send(kind, window, number, (event.clientX - box.left) / scale, (event.clientY - box.top) / scale);
    }
}

/** On an upright page the panel lies elsewhere than the program has it: a press on it is one on the middle of its element. */
function panelPlace(x: number, y: number): [number, number] | undefined {
    const node = document.elementFromPoint(x, y)?.closest<HTMLElement>('.upright > .panel');
    if (!node) return undefined;
    const { left, top, width, height } = node.style;
    return [parseFloat(left) + parseFloat(width) / 2, parseFloat(top) + parseFloat(height) / 2];
}

/** Whether a finger is on a spot of the tutorial that has to be pressed with the right button. */
function asksForRight({ clientX, clientY }: PointerEvent, root: HTMLElement): boolean {
    return [...root.querySelectorAll<HTMLElement>('.spot')].some((spot) => {
        const { left, top, right, bottom } = spot.getBoundingClientRect();
        const isOn = clientX >= left && clientX < right && clientY >= top && clientY < bottom;
        return isOn && Number(spot.dataset['button']) === rightButton;
    });
}
