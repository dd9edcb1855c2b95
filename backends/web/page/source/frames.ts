// When the picture changes: at most as often as displays usually do, however often the program has worked since the last time.
// If that long has passed it changes at once, which shows a press soonest. The browser's own frames are not waited for: it would
// lay out the whole page for each. On a hidden page the picture changes at once too, so that nothing old is seen later.
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
        const rest = this.presented + frame - performance.now();
        if (document.hidden || rest <= 0) this.tryPresent();
        else if (this.asked === 0) this.asked = setTimeout(() => this.tryPresent(), rest);
    }

    private tryPresent(): void {
        clearTimeout(this.asked);
        this.asked = 0;
        this.presented = performance.now();
        try {
            this.present();
        } catch (error) {
            this.fail(error);
        }
    }
}
