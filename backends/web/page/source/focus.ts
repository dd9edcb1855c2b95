// What has the keyboard's focus may be hidden by the program, as a button is by the screen that it leads to. The focus would
// be nowhere then; it goes to what can be pressed on the playfield, or to the playfield itself.
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

    /** To be called when the picture may have changed. */
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
