// The page's own controls beside the picture: the switch that makes fingers press the right button, the extras, and full
// screen.
import type { Input } from './input';
import type { Keys } from './keys';

// Milliseconds. A longer press holds the switch only until it is released, and so does one in which another finger presses.
const longestTap = 300;

export function connectControls(
    input: Input,
    keys: Keys,
    right: HTMLButtonElement,
    extras: HTMLButtonElement,
    full: HTMLButtonElement,
): void {
    extras.addEventListener('click', () => keys.openExtras());

    right.hidden = !matchMedia('(any-pointer: coarse)').matches;
    addEventListener('pointerdown', (event) => {
        if (event.pointerType === 'touch') right.hidden = false;
    });
    // By a key. Pointers are handled below.
    right.addEventListener('click', (event) => {
        if (event.detail === 0) set(!input.fingersPressRight);
    });

    // While a thumb holds the switch, the other hand's fingers press the right button.
    let before = false;
    let heldSince = 0;
    let touchesBefore = 0;
    const set = (isRight: boolean) => {
        input.fingersPressRight = isRight;
        right.setAttribute('aria-pressed', String(isRight));
    };
    right.addEventListener('pointerdown', () => {
        before = input.fingersPressRight;
        heldSince = performance.now();
        touchesBefore = input.touches;
        set(true);
    });
    for (const kind of ['pointerup', 'pointercancel'])
        right.addEventListener(kind, () => {
            const isTap = performance.now() - heldSince <= longestTap && input.touches === touchesBefore;
            set(isTap && kind === 'pointerup' ? !before : before);
        });

    full.hidden = !document.fullscreenEnabled;
    full.addEventListener('click', () => {
        const change = document.fullscreenElement
            ? document.exitFullscreen()
            : document.documentElement.requestFullscreen();
        change.catch(() => (full.hidden = true));
    });
    document.addEventListener('fullscreenchange', () => {
        full.setAttribute('aria-pressed', String(document.fullscreenElement !== null));
    });
}
