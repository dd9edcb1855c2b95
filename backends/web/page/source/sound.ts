// The sound effects' one voice: a new sound cuts off the old. The files come after the first picture; until one is there,
// and where nothing can sound, it is silence. How long a sound takes is the program's business.
import { build } from './build';
import { onPress } from './gestures';
import type { Notices } from './notices';

const decodingRate = 44100;

export class Sounds {
    /** From 0 to 1. */
    volume = 1;
    private readonly sounds = new Map<number, AudioBuffer>();
    private context: AudioContext | undefined;
    private playing: AudioBufferSourceNode | undefined;

    constructor(private readonly notices: Notices) {
        onPress(() => this.wake());
        document.addEventListener('visibilitychange', () => this.noteVisibility());
    }

    async load(): Promise<void> {
        try {
            const decoder = new OfflineAudioContext(1, 1, decodingRate);
            await Promise.all(build.sounds.map((id) => this.loadOne(decoder, id)));
        } catch {
            this.notices.show('sounds', 'The sounds cannot be played here.');
        }
    }

    stop(): void {
        this.playing?.stop();
        this.playing = undefined;
    }

    play(id: number): void {
        this.stop();
        const sound = this.sounds.get(id);
        if (!sound || this.context?.state !== 'running' || document.hidden) return;
        this.playing = this.context.createBufferSource();
        this.playing.buffer = sound;
        const gain = new GainNode(this.context, { gain: this.volume });
        this.playing.connect(gain).connect(this.context.destination);
        this.playing.start();
    }

    private async loadOne(decoder: OfflineAudioContext, id: number): Promise<void> {
        const answer = await fetch(`${build.folder}/sounds/${id}.wav`);
        if (!answer.ok) throw new Error(`sound ${id}: ${answer.status}`);
        this.sounds.set(id, await decoder.decodeAudioData(await answer.arrayBuffer()));
    }

    private wake(): void {
        try {
            this.context ??= new AudioContext();
            void this.context.resume();
        } catch {
            // No device: it stays silent.
        }
    }

    private noteVisibility(): void {
        void (document.hidden ? this.context?.suspend() : this.context?.resume());
    }
}
