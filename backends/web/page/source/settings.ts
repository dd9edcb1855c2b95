// Settings and scores: one text in the browser's storage, so that all of it is stored or none. Its contents are up to the
// program.
const key = 'prismfall';

export class Settings {
    private opened = new Uint8Array();

    /** The length in bytes of what is stored, which is then ready to be copied. */
    open(): number {
        this.opened = new TextEncoder().encode(this.stored());
        return this.opened.length;
    }

    copyTo(memory: Uint8Array): void {
        memory.set(this.opened);
    }

    /** Whether it could be stored. */
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
