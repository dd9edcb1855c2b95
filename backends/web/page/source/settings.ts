// Settings and scores: one text in the browser's storage, so either all of it is stored or none. What it contains is
// the program's business.
const key = 'prismfall';

export class Settings {
    private opened = new Uint8Array();

    /** Returns the length of the stored text in bytes; it can then be copied. */
    open(): number {
        this.opened = new TextEncoder().encode(this.stored());
        return this.opened.length;
    }

    copyTo(memory: Uint8Array): void {
        memory.set(this.opened);
    }

    /** Returns whether it could be stored. */
    write(text: string): boolean {
        try {
            localStorage.setItem(key, text);
            return true;
        } catch {
            return false;
        }
    }

    private stored(): string {
        try {
            return localStorage.getItem(key) ?? '';
        } catch {
            return '';
        }
    }
}
