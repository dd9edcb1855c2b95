// Playing by touch: what players are told, and what a finger presses, since it covers more than a pointer does.
import type { Notices } from './notices';

export const leftButton = 1;
export const rightButton = 2;

const reach = 22; // half the smallest size of a touch target, in the page's pixels
const lineLasts = 12_000; // milliseconds
const line = 'Tap the end of a beam to bend it. To run one forward, hold “Speed up” or tap with a second finger.';

// What the tutorial's pictures say about the mouse, in words for fingers.
const words: Readonly<Record<string, string>> = {
    PictTut2: 'Bend the red beam: tap its end.',
    PictTut4: 'Start the blue beam, which does not move: tap its end.',
    PictTut7: 'Make the red beam go faster: tap its end, which here counts as “Speed up” and a tap.',
};

// The player has touched the page, or has nothing else to play with.
let areUsed = matchMedia('(pointer: coarse)').matches;

/** What a picture of the tutorial asks of a finger; undefined if its own words fit. */
export function fingersWords(picture: string): string | undefined {
    return areUsed ? words[picture] : undefined;
}

/** Answers the first touch with a line that says how fingers play. */
export function answerFirstTouch(notices: Notices): void {
    const note = () => document.documentElement.classList.toggle('fingers', areUsed);
    note();
    const answer = (event: PointerEvent) => {
        if (event.pointerType !== 'touch') return;
        removeEventListener('pointerdown', answer);
        areUsed = true;
        note();
        notices.show('fingers', line, lineLasts);
    };
    addEventListener('pointerdown', answer);
}

export interface Touched {
    readonly clientX: number;
    readonly clientY: number;
    /** The mouse button that the finger acts as, if the touched element calls for one. */
    readonly button?: number;
}

/**
 * What a finger touches: the middle of the nearest control within reach, or else the place itself. A finger on the field never
 * touches a control beside it.
 */
export function touched(root: HTMLElement, { clientX, clientY }: PointerEvent): Touched {
    let nearest: Touched = { clientX, clientY };
    let least = reach;
    const field = root.querySelector('canvas + canvas')?.getBoundingClientRect();
    const isOnField = field !== undefined && clientX < field.right && clientY < field.bottom;
    for (const node of root.querySelectorAll<HTMLElement>('.spot, button.picture, .choice')) {
        if (node.offsetParent === null || node.matches(':disabled') || node.parentElement?.className === 'spots')
            continue;
        const { left, right, top, bottom } = node.getBoundingClientRect();
        const middle = { clientX: (left + right) / 2, clientY: (top + bottom) / 2 };
        if (isScrolledAway(middle.clientY, root)) continue;
        if (isOnField && (left > field.right || top > field.bottom)) continue;
        const isInReach = isWithin(clientX, left, right) && isWithin(clientY, top, bottom);
        const distance = Math.hypot(outside(clientX, left, right), outside(clientY, top, bottom));
        if (!isInReach || distance > least) continue;
        least = distance;
        nearest = { ...middle, button: node.className === 'spot' ? Number(node.dataset['button']) : leftButton };
    }
    return nearest;
}

function isScrolledAway(y: number, root: HTMLElement): boolean {
    const { top, bottom } = root.getBoundingClientRect();
    return root.matches('.long') && outside(y, top, bottom) > 0;
}

/** How far a place lies outside a range. */
function outside(place: number, from: number, to: number): number {
    return Math.max(from - place, place - to, 0);
}

/** Whether a place is in a range, or within a finger's reach of its middle. */
function isWithin(place: number, from: number, to: number): boolean {
    return outside(place, from, to) === 0 || Math.abs(place - (from + to) / 2) <= reach;
}
