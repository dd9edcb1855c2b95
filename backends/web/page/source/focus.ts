// The program may hide whatever has the focus, such as a button that leads to another screen. The focus would then be
// lost; instead it moves to the first place on the playfield that can be pressed, or to the playfield itself.
export class Focus {
    private last: Element | undefined;

    constructor(
        picture: HTMLElement,
        private readonly field: HTMLElement,
    ) {
        picture.addEventListener('focusin', ({ target }) => {
            if (target instanceof Element) this.last = target;
        });
    }

    /** Call this when the picture may have changed. */
    keep(): void {
        const { last } = this;
        if (!last || isShown(last) || document.querySelector('dialog[open]')) return;
        this.last = undefined;
        const { activeElement } = document;
        const isElsewhere = activeElement && activeElement !== document.body && activeElement !== last;
        if (isElsewhere) return;
        const spot = this.field.parentElement?.querySelector<HTMLElement>('.spots .spot');
        (spot ?? this.field).focus({ preventScroll: true });
    }
}

function isShown(node: Element): boolean {
    return node.isConnected && !node.matches(':disabled') && !node.closest('[hidden]');
}
