// What the page itself says: one line below the picture, and words for screen readers only.
const wordsKept = 4;
const wordsLast = 5000; // milliseconds; after that, nobody comes across them while reading the page

export type Subject = 'music' | 'sounds' | 'saving' | 'games' | 'fingers' | 'tutorial' | 'pause' | 'end';

export class Notices {
    private readonly sentences = new Map<Subject, string>();
    private readonly endings = new Map<Subject, number>();

    constructor(
        private readonly line: HTMLElement,
        private readonly voice: HTMLElement,
    ) {}

    /**
     * A sentence replaces the previous one on the same subject; an empty one removes it. The newest is shown. If `lasts` is
     * given, the sentence is removed after that many milliseconds.
     */
    show(subject: Subject, sentence: string, lasts?: number): void {
        clearTimeout(this.endings.get(subject));
        const end = () => this.show(subject, '');
        if (lasts !== undefined) this.endings.set(subject, setTimeout(end, lasts));
        this.sentences.delete(subject);
        if (sentence !== '') this.sentences.set(subject, sentence);
        this.line.textContent = [...this.sentences.values()].pop() ?? '';
    }

    /** Words that arrive at the same time are spoken one after the other. */
    speak(words: string): void {
        const spoken = document.createElement('p');
        spoken.textContent = words;
        this.voice.append(spoken);
        setTimeout(() => spoken.remove(), wordsLast);
        while (this.voice.children.length > wordsKept) this.voice.firstElementChild?.remove();
    }
}
