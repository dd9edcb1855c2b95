// Browsers let a page sound from the player's first press on. What wants to sound asks to be told of presses.
export function onPress(act: () => void): void {
    for (const kind of ['pointerup', 'mousedown', 'keydown', 'touchend'])
        document.addEventListener(kind, act, { capture: true, passive: true });
}
