// The picture files, at single or double size, whichever suits the page. Those of the main menu are loaded before the game
// starts, the others right after.
import { build } from './build';
import type { Layout } from './layout';

type Size = '1x' | '2x';

/** The files of this version by size and name, as in "2x/Background". */
const files = new Map<string, string>();
for (const file of build.files) {
    const name = /\/pictures\/(.*)\./.exec(file)?.[1];
    if (name) files.set(name, file);
}

const first = ['Background', 'ImagePrismfall', 'PuzzleUp', 'ArcadeUp', 'OptionsUp', 'ScoresUp', 'AboutUp', 'ExitUp'];

export class Pictures {
    private readonly shown = new Map<HTMLImageElement, string>();
    private readonly kept: HTMLImageElement[] = [];
    private size: Size = '1x';

    constructor(layout: Layout) {
        layout.whenChanged(() => this.choose(layout.density > 1 ? '2x' : '1x'));
    }

    /** Reports each picture of the main menu as it arrives, and returns when every one has arrived or failed. */
    async loadFirst(report: () => void): Promise<void> {
        await Promise.all(first.map((name) => this.load(name).then(report)));
    }

    /** Has a button's other face, or a dialog, ready by the time it is needed. */
    async loadOthers(): Promise<void> {
        const { size } = this;
        for (const key of files.keys()) {
            const [keySize, name] = key.split('/');
            if (name && keySize === size && !first.includes(name)) await this.load(name);
        }
    }

    /** Shows a picture in an image element from now on; an empty name shows nothing. */
    show(image: HTMLImageElement, name: string): void {
        if (this.shown.get(image) === name) return;
        this.shown.set(image, name);
        this.point(image, name);
    }

    forget(image: HTMLImageElement): void {
        this.shown.delete(image);
    }

    private point(image: HTMLImageElement, name: string): void {
        image.hidden = name === '';
        if (name === '') image.removeAttribute('srcset');
        else image.srcset = `${files.get(`${this.size}/${name}`)} ${this.size}`;
    }

    private async load(name: string): Promise<void> {
        const image = new Image();
        this.point(image, name);
        this.kept.push(image);
        await image.decode().catch(() => undefined);
    }

    private choose(size: Size): void {
        if (size === this.size) return;
        this.size = size;
        for (const [image, name] of this.shown) this.point(image, name);
    }
}
