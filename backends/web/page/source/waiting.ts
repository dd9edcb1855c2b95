// The one place where the program stands still: until a moment, an event, or the page's being hidden or shown.
import { EventKind, type PageEvent } from './records';

// Browsers make nested timers wait four milliseconds at least.
const shortestTimer = 4;

export class Waiting {
    private readonly queue: PageEvent[] = [];
    private readonly channel = new MessageChannel();
    private turnAsked = false;
    private gone = false;
    private forInput = false;
    private until = 0;
    private timer = 0;
    private goOn: (() => void) | undefined;

    constructor() {
        this.channel.port1.onmessage = () => this.turn();
        document.addEventListener('visibilitychange', () => this.noteVisibility(false));
        addEventListener('pagehide', () => this.noteVisibility(true));
        addEventListener('pageshow', () => this.noteVisibility(false));
    }

    get isHidden(): boolean {
        return this.gone || document.hidden;
    }

    send(kind: EventKind, window: number, number = 0, x = 0, y = 0): void {
        // Of the pointer's moves the last one counts.
        if (kind === EventKind.Move && this.queue.at(-1)?.kind === EventKind.Move) this.queue.pop();
        this.queue.push({ kind, window, number, x, y, time: performance.now() });
        if (this.forInput) this.end();
    }

    take(): PageEvent | undefined {
        return this.queue.shift();
    }

    wait(until: number, forInput: boolean): Promise<void> {
        this.until = until;
        this.forInput = forInput;
        return new Promise((resolve) => {
            this.goOn = resolve;
            const rest = until - performance.now();
            if (rest < shortestTimer || (forInput && this.queue.length > 0)) {
                this.askForTurn();
            } else {
                this.timer = setTimeout(() => this.end(), Math.ceil(rest));
            }
        });
    }

    private turn(): void {
        this.turnAsked = false;
        if (!this.goOn || this.timer !== 0) return;
        const isOver = performance.now() >= this.until || (this.forInput && this.queue.length > 0);
        if (isOver) this.end();
        else this.askForTurn();
    }

    private askForTurn(): void {
        if (!this.turnAsked) this.channel.port2.postMessage(null);
        this.turnAsked = true;
    }

    private end(): void {
        clearTimeout(this.timer);
        this.timer = 0;
        const goOn = this.goOn;
        this.goOn = undefined;
        goOn?.();
    }

    private noteVisibility(gone: boolean): void {
        this.gone = gone;
        this.end();
    }
}
