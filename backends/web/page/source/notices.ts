// What the page says by itself: one line under the picture, and words that only a screen reader speaks.
export class Notices {
    private readonly line: HTMLElement;
    private readonly voice: HTMLElement;

    constructor(line: HTMLElement, voice: HTMLElement) {
        this.line = line;
        this.voice = voice;
    }

    show(sentence: string): void {
        this.line.textContent = sentence;
    }

    speak(words: string): void {
        this.voice.textContent = words;
    }
}
