// The one place where the program pauses: until a given time, an event, or the page being hidden or shown.
import { EventKind, type PageEvent, WatchCommand } from './records';

// Browsers delay a timer set by another timer by at least four milliseconds, but not one set by a message.
const shortestNestedTimer = 4;

interface Pause {
    readonly resolve: () => void;
    readonly reject: (error: unknown) => void;
}

export class Waiting {
    /** When the player last did something other than move the pointer, on the page's clock. */
    lastPress = -Infinity;
    private readonly queue: PageEvent[] = [];
    private readonly channel = new MessageChannel();
    private gone = false;
    private covered = false;
    private forInput = false;
    private until = 0;
    private timer = 0;
    private isTurnAsked = false;
    private pause: Pause | undefined;
    private failure: { readonly error: unknown } | undefined;

    constructor() {
        this.channel.port1.onmessage = () => this.turn();
        document.addEventListener('visibilitychange', () => this.noteVisibility(false));
        addEventListener('pagehide', () => this.noteVisibility(true));
        addEventListener('pageshow', () => this.noteVisibility(false));
    }

    get isHidden(): boolean {
        return this.gone || this.covered || document.hidden;
    }

    /** Something of the page's own lies over a game that is being played, which pauses as if the page were hidden. */
    cover(isCovered: boolean): void {
        if (isCovered === this.covered) return;
        this.covered = isCovered;
        this.end();
    }

    send(kind: EventKind, window: number, number = 0, x = 0, y = 0): void {
        // Of several moves in a row, of the pointer or in a game that is watched, only the last counts.
        const last = this.queue.at(-1);
        const isMove =
            kind === EventKind.Move || (kind === EventKind.Watch && (number as WatchCommand) === WatchCommand.GoTo);
        if (isMove && last?.kind === kind && last.number === number) this.queue.pop();
        const time = performance.now();
        if (kind !== EventKind.Move) this.lastPress = time;
        this.queue.push({ kind, window, number, x, y, time });
        if (this.forInput) this.end();
    }

    take(): PageEvent | undefined {
        return this.queue.shift();
    }

    wait(until: number, forInput: boolean): Promise<void> {
        this.until = until;
        this.forInput = forInput;
        return new Promise((resolve, reject) => {
            this.pause = { resolve, reject };
            if (this.failure) this.fail(this.failure.error);
            else if (this.isOver() || this.rest() < shortestNestedTimer) this.askForTurn();
            else this.setTimer();
        });
    }

    /** Makes the program's current wait fail, or its next one if it is working. */
    fail(error: unknown): void {
        this.failure = { error };
        this.endPause()?.reject(error);
    }

    private rest(): number {
        return this.until - performance.now();
    }

    private isOver(): boolean {
        return this.rest() <= 0 || (this.forInput && this.queue.length > 0);
    }

    private turn(): void {
        this.isTurnAsked = false;
        if (!this.pause || this.timer !== 0) return;
        if (this.isOver()) this.end();
        else this.setTimer();
    }

    private askForTurn(): void {
        if (!this.isTurnAsked) this.channel.port2.postMessage(null);
        this.isTurnAsked = true;
    }

    private setTimer(): void {
        this.timer = setTimeout(() => this.end(), Math.ceil(this.rest()));
    }

    private end(): void {
        this.endPause()?.resolve();
    }

    private endPause(): Pause | undefined {
        clearTimeout(this.timer);
        this.timer = 0;
        const pause = this.pause;
        this.pause = undefined;
        return pause;
    }

    private noteVisibility(gone: boolean): void {
        this.gone = gone;
        this.end();
    }
}
