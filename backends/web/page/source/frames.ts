// When the picture changes: at most once per frame of the browser, however often the program has worked since the last one. A
// hidden page has no frames; there the picture changes at once, so that nothing old is seen when the page is shown again.
export class Frames {
    private isAsked = false;

    /** A frame that cannot be presented is reported to `fail`. */
    constructor(
        private readonly present: () => void,
        private readonly fail: (error: unknown) => void,
    ) {}

    /** Asks for the next frame. */
    ask(): void {
        if (document.hidden) {
            this.tryPresent();
            return;
        }
        if (this.isAsked) return;
        this.isAsked = true;
        requestAnimationFrame(() => {
            this.isAsked = false;
            this.tryPresent();
        });
    }

    private tryPresent(): void {
        try {
            this.present();
        } catch (error) {
            this.fail(error);
        }
    }
}
