// When the picture changes: about as often as displays do, however often the program has worked since the last time. If that
// long has passed it changes at once, and for a moment after a press it always does, which shows the press soonest. The
// browser's own frames are not waited for: it would lay out the whole page for each. On a hidden page the picture changes at
// once too, so that nothing old is seen later.
const frame = 14; // milliseconds, somewhat less than displays take
const grace = 5; // for the program's next turn, which often comes just in time

export class Frames {
    private asked = 0;
    private presented = -Infinity;

    /** If a frame cannot be presented, the error is passed to `fail`. */
    constructor(
        private readonly present: () => void,
        private readonly lastPress: () => number,
        private readonly fail: (error: unknown) => void,
    ) {}

    /** Requests the next frame. */
    ask(): void {
        const now = performance.now();
        const rest = this.presented + frame - now;
        if (document.hidden || rest <= 0 || now - this.lastPress() < frame) this.tryPresent();
        else if (this.asked === 0) this.asked = setTimeout(() => this.tryPresent(), rest + grace);
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
