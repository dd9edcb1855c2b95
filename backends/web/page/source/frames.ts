// When the picture changes: at most once per display frame, however often the program has worked since the last time.
// If a frame's time has passed, the picture changes at once, which shows a press soonest and gives the browser work
// only if something has changed. A hidden page has no frames; there, too, the picture changes at once, so that nothing
// outdated is seen when the page is shown again.
const frame = 1000 / 60 - 1; // milliseconds, a little less than on most displays

export class Frames {
    private asked = 0;
    private presented = -Infinity;

    /** If a frame cannot be presented, the error is passed to `fail`. */
    constructor(
        private readonly present: () => void,
        private readonly fail: (error: unknown) => void,
    ) {}

    /** Requests the next frame. */
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
