// Plays sound effects, one at a time: a new one cuts off the last. The files are fetched after the first picture; until
// then, and where no sound is possible, there is silence. The program itself decides how long it waits for a sound.
import { build } from './build';
import { onPress } from './gestures';
import type { Notices } from './notices';

const decodingRate = 44100;
const latency = 0.02; // seconds; too short to be noticed, and half the work of the shortest
const openTime = 2000; // milliseconds after a press or a sound; an open device costs power

export class Sounds {
    /** From 0 to 1. */
    volume = 1;
    private readonly sounds = new Map<number, AudioBuffer>();
    private context: AudioContext | undefined;
    private playing: AudioBufferSourceNode | undefined;
    /** Whether the browser has let the context run. */
    private isAllowed = false;
    private closing = 0;

    constructor(private readonly notices: Notices) {
        onPress(() => this.wake());
        document.addEventListener('visibilitychange', () => this.noteVisibility());
    }

    async load(): Promise<void> {
        try {
            const decoder = new OfflineAudioContext(1, 1, decodingRate);
            await Promise.all(build.sounds.map((id) => this.loadOne(decoder, id)));
        } catch {
            this.notices.show('sounds', 'The sound effects cannot be played in this browser.');
        }
    }

    stop(): void {
        this.playing?.stop();
        this.playing = undefined;
    }

    play(id: number): void {
        this.stop();
        const sound = this.sounds.get(id);
        if (!sound || !this.context || !this.isAllowed || document.hidden) return;
        this.playing = this.context.createBufferSource();
        this.playing.buffer = sound;
        const gain = new GainNode(this.context, { gain: this.volume });
        this.playing.connect(gain).connect(this.context.destination);
        this.playing.start();
        this.open(1000 * sound.duration);
    }

    /** Opens the device for a sound of `duration` milliseconds. */
    private open(duration = 0): void {
        void this.context?.resume();
        clearTimeout(this.closing);
        this.closing = setTimeout(() => void this.context?.suspend(), duration + openTime);
    }

    private async loadOne(decoder: OfflineAudioContext, id: number): Promise<void> {
        const answer = await fetch(`${build.folder}/sounds/${id}.wav`);
        if (!answer.ok) throw new Error(`sound ${id}: ${answer.status}`);
        this.sounds.set(id, await decoder.decodeAudioData(await answer.arrayBuffer()));
    }

    private wake(): void {
        try {
            this.context ??= this.makeContext();
            this.open();
        } catch {
            // No device: silence.
        }
    }

    private makeContext(): AudioContext {
        const context = new AudioContext({ latencyHint: latency });
        const noteState = () => (this.isAllowed ||= context.state === 'running');
        context.addEventListener('statechange', noteState);
        noteState();
        return context;
    }

    private noteVisibility(): void {
        if (document.hidden) void this.context?.suspend();
        else this.open();
    }
}
