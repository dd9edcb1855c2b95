// Browsers let a page play sound only after the player's first press, so whatever plays sound is told of presses.
export function onPress(act: () => void): void {
    for (const kind of ['pointerup', 'mousedown', 'keydown', 'touchend'])
        document.addEventListener(kind, act, { capture: true, passive: true });
}
