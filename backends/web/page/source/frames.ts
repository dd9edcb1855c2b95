// When the picture changes: at most once per frame of a display, however often the program has worked since the last time. If
// that time is over the picture changes at once, which shows a press soonest and makes the browser work only if something
// has changed. A hidden page has no frames; there the picture changes at once too, so that nothing old is seen when the page
// is shown again.
const frame = 1000 / 60 - 1; // milliseconds, a little less than what displays usually take

export class Frames {
    private asked = 0;
    private presented = -Infinity;

    /** A frame that cannot be presented is reported to `fail`. */
    constructor(
        private readonly present: () => void,
        private readonly fail: (error: unknown) => void,
    ) {}

    /** Asks for the next frame. */
    ask(): void {
        if (document.hidden || performance.now() - this.presented >= frame) this.tryPresent();
        else if (this.asked === 0) this.asked = requestAnimationFrame(() => this.tryPresent());
    }

    private tryPresent(): void {
        cancelAnimationFrame(this.asked);
        this.asked = 0;
        this.presented = performance.now();
        try {
            this.present();
        } catch (error) {
            this.fail(error);
        }
    }
}
