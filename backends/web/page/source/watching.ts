// Watching a recorded game: the program shows it in the picture, and the controls below it are made here.
import { add, make } from './elements';
import type { Notices } from './notices';
import { EventKind, WatchCommand, type WatchRecord } from './records';
import type { Waiting } from './waiting';

/** How long a sentence about a recorded game is shown, in milliseconds. */
export const noticeTime = 15_000;

const paces = [1, 2, 4, 8];

export class Watching {
    /** Called when the player leaves. */
    whenLeft: () => void = () => undefined;
    private readonly bar = make('section', 'watching');
    private readonly pause: HTMLButtonElement;
    private readonly playOn: HTMLButtonElement;
    private readonly slider = make('input');
    private readonly time = make('output');
    private readonly pace = make('select');
    private readonly status = make('p');
    private ready = new Uint8Array();
    private hasStarted = false;
    private record: WatchRecord | undefined;

    constructor(
        private readonly waiting: Waiting,
        private readonly notices: Notices,
        footer: HTMLElement,
    ) {
        this.bar.hidden = true;
        this.bar.setAttribute('aria-label', 'Watching a recorded game');
        this.pause = this.addButton('Pause', () => (this.isStill ? WatchCommand.GoOn : WatchCommand.Pause));
        this.addSlider();
        this.addPace();
        this.playOn = this.addButton('Play on from here', () => WatchCommand.PlayOn);
        this.addButton('Leave', () => WatchCommand.Leave);
        this.status.setAttribute('role', 'status');
        this.bar.append(this.status);
        footer.before(this.bar);
    }

    /** Leaves the current game and shows a recording, which may be any text; once the program has started, if it has not. */
    begin(recording: string): void {
        this.notices.show('games', '');
        this.ready = new TextEncoder().encode(recording);
        if (this.hasStarted) this.command(WatchCommand.Begin);
    }

    /** The length in bytes of the recording to show, which is then ready to be copied. */
    open(): number {
        this.hasStarted = true;
        return this.ready.length;
    }

    copyTo(memory: Uint8Array): void {
        memory.set(this.ready);
    }

    refuse(line: number, reason: string): void {
        this.notices.show('games', `This recording cannot be watched: line ${line}, ${reason}.`, noticeTime);
        this.whenLeft();
    }

    show(record: WatchRecord): void {
        const before = this.record;
        this.record = record;
        const { isWatching, isPaused, isOver, differs, pace, position, length } = record;
        if (isWatching !== (before?.isWatching ?? false)) this.appear(isWatching);
        this.pause.textContent = isPaused || isOver ? 'Play' : 'Pause';
        this.playOn.disabled = isOver;
        if (pace !== before?.pace) this.pace.value = String(pace);
        this.slider.max = String(Math.ceil(length / 1000));
        if (!this.slider.matches(':active')) this.slider.value = String(Math.floor(position / 1000));
        const words = `${clock(position)} of ${clock(length)}`;
        if (this.time.textContent !== words) {
            this.time.textContent = words;
            this.slider.setAttribute('aria-valuetext', words);
        }
        const status = differs
            ? 'From here on the game differs from its recording.'
            : isOver
              ? 'The game is over.'
              : '';
        if (this.status.textContent !== status) this.status.textContent = status;
    }

    private get isStill(): boolean {
        return this.record !== undefined && (this.record.isPaused || this.record.isOver);
    }

    private appear(isWatching: boolean): void {
        document.body.classList.toggle('is-watching', isWatching);
        this.bar.hidden = !isWatching;
        if (isWatching) this.pause.focus({ preventScroll: true });
        else this.whenLeft();
    }

    private command(command: WatchCommand, value = 0): void {
        this.waiting.send(EventKind.Watch, 0, command, value);
    }

    private addButton(words: string, command: () => WatchCommand): HTMLButtonElement {
        const button = add(this.bar, make('button', 'plain'));
        button.type = 'button';
        button.textContent = words;
        button.addEventListener('click', () => {
            // At the end, Play starts again from the beginning.
            if (this.record?.isOver && button === this.pause) this.command(WatchCommand.GoTo, 0);
            this.command(command());
        });
        return button;
    }

    private addSlider(): void {
        this.slider.type = 'range';
        this.slider.min = '0';
        this.slider.setAttribute('aria-label', 'Time in the game');
        this.slider.addEventListener('input', () => this.command(WatchCommand.GoTo, Number(this.slider.value)));
        this.bar.append(this.slider, this.time);
        this.time.setAttribute('aria-live', 'off'); // the slider announces it
    }

    private addPace(): void {
        this.pace.className = 'plain';
        this.pace.setAttribute('aria-label', 'Pace');
        for (const pace of paces) {
            const option = add(this.pace, make('option'));
            option.value = String(pace);
            option.textContent = `${pace}×`;
        }
        this.pace.addEventListener('change', () => this.command(WatchCommand.Pace, Number(this.pace.value)));
        this.bar.append(this.pace);
    }
}

/** Minutes and seconds. */
export function clock(milliseconds: number): string {
    const seconds = Math.floor(milliseconds / 1000);
    return `${Math.floor(seconds / 60)}:${String(seconds % 60).padStart(2, '0')}`;
}
