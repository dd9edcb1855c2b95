// What the page says by itself: one line under the picture, and words that only a screen reader speaks.
const wordsKept = 4;

export class Notices {
    private readonly line: HTMLElement;
    private readonly voice: HTMLElement;

    constructor(line: HTMLElement, voice: HTMLElement) {
        this.line = line;
        this.voice = voice;
    }

    /** An empty sentence takes the line away. */
    show(sentence: string): void {
        this.line.textContent = sentence;
    }

    /** What comes at the same time is spoken one after the other. */
    speak(words: string): void {
        const spoken = document.createElement('p');
        spoken.textContent = words;
        this.voice.append(spoken);
        while (this.voice.children.length > wordsKept) this.voice.firstElementChild?.remove();
    }
}
