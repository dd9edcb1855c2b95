// The sound effects' one voice: a new sound cuts off the old. The files come after the first picture; until one is there,
// and where nothing can sound, it is silence. How long a sound takes is the program's business.
import { build } from './build';
import { onPress } from './gestures';
import type { Notices } from './notices';

const ids = [102, 103, 104, 105, 106, 107, 108];
const decodingRate = 44100;

export class Sounds {
    private readonly sounds = new Map<number, AudioBuffer>();
    private readonly notices: Notices;
    private context: AudioContext | undefined;
    private playing: AudioBufferSourceNode | undefined;

    constructor(notices: Notices) {
        this.notices = notices;
        onPress(() => this.wake());
        document.addEventListener('visibilitychange', () => this.noteVisibility());
    }

    async load(): Promise<void> {
        try {
            const decoder = new OfflineAudioContext(1, 1, decodingRate);
            await Promise.all(ids.map((id) => this.loadOne(decoder, id)));
        } catch {
            this.notices.show('The sounds cannot be played here.');
        }
    }

    play(id: number): void {
        this.playing?.stop();
        this.playing = undefined;
        const sound = this.sounds.get(id);
        if (!sound || this.context?.state !== 'running' || document.hidden) return;
        this.playing = this.context.createBufferSource();
        this.playing.buffer = sound;
        this.playing.connect(this.context.destination);
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
