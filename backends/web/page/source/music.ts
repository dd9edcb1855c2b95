// The music player: one track at a time, looping or once to its end, streamed by the browser. Nothing here waits; if a
// track cannot be loaded, there is silence, and a line below the picture.
import { build } from './build';
import { onPress } from './gestures';
import type { Notices } from './notices';

export class Music {
    /** Resolves when the first track is opened, which happens only while music is switched on. */
    readonly played: Promise<void>;
    private readonly player = new Audio();
    private notePlayed: () => void = () => undefined;
    /** Whether the game wants the track to be heard now, even if the browser does not allow it. */
    private wanted = false;
    private told = '';

    constructor(private readonly notices: Notices) {
        this.played = new Promise((resolve) => (this.notePlayed = resolve));
        this.player.preload = 'auto';
        this.player.addEventListener('ended', () => (this.wanted = false));
        this.player.addEventListener('error', () => this.tellFault());
        this.player.addEventListener('playing', () => this.tell(''));
        onPress(() => this.sound());
        document.addEventListener('visibilitychange', () => this.sound());
    }

    open(track: string): void {
        this.close();
        this.notePlayed();
        this.player.src = `${build.music}/${track}`;
    }

    close(): void {
        this.stop();
        if (!this.player.hasAttribute('src')) return;
        this.tell('');
        this.player.removeAttribute('src');
        this.player.load();
    }

    setVolume(share: number): void {
        this.player.volume = share;
    }

    playLooping(): void {
        this.stop();
        this.player.loop = true;
        this.wanted = true;
        this.sound();
    }

    /** Plays on to the track's end, once; a track that has ended stays silent. */
    resume(): void {
        if (!this.player.hasAttribute('src') || this.player.ended) return;
        this.player.loop = false;
        this.wanted = true;
        this.sound();
    }

    pause(): void {
        this.wanted = false;
        this.sound();
    }

    stop(): void {
        this.pause();
        if (this.player.readyState > 0) this.player.currentTime = 0;
    }

    private sound(): void {
        if (!this.wanted || document.hidden || !this.player.hasAttribute('src')) {
            this.player.pause();
            return;
        }
        // Refused before the first press, and aborted if the track changes: the next press or track tries again.
        if (this.player.paused) this.player.play().catch(() => undefined);
    }

    /** If a track has been loaded but cannot be heard, there is no audio device, or the file is broken. */
    private tellFault(): void {
        const hasCome = this.player.error?.code === MediaError.MEDIA_ERR_DECODE;
        this.tell(hasCome ? 'The music cannot be played in this browser.' : 'The music cannot be loaded.');
    }

    private tell(sentence: string): void {
        if (sentence === this.told || !this.player.hasAttribute('src')) return;
        this.told = sentence;
        this.notices.show('music', sentence);
    }
}
