// What the page offers beside the picture: the switch that makes fingers press the right button, the extras, and the full
// screen.
import type { Input } from './input';
import type { Keys } from './keys';

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
    right.addEventListener('click', () => {
        input.fingersPressRight = !input.fingersPressRight;
        right.setAttribute('aria-pressed', String(input.fingersPressRight));
    });

    full.hidden = !document.fullscreenEnabled;
    full.addEventListener('click', () => {
        const change = document.fullscreenElement
            ? document.exitFullscreen()
            : document.documentElement.requestFullscreen();
        change.catch(() => (full.hidden = true));
    });
    document.addEventListener('fullscreenchange', () => {
        full.textContent = document.fullscreenElement ? 'Exit full screen' : 'Full screen';
    });
}
