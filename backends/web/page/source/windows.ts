// The windows: the main one is part of the page, the others are dialogs, with a frame, a title and a close box.
import { add, Elements, make, makeSpot } from './elements';
import type { Input } from './input';
import { type Layout, place } from './layout';
import { layOutLong } from './longDialog';
import type { Notices } from './notices';
import type { Pictures } from './pictures';
import { type ElementRecord, EventKind, type SpotRecord, type WindowRecord } from './records';
import type { Surface } from './surface';
import type { Waiting } from './waiting';

interface OpenWindow {
    readonly record: WindowRecord;
    readonly elements: Elements;
    readonly dialog: HTMLDialogElement | undefined;
}

export class Windows {
    private readonly windows = new Map<number, OpenWindow>();
    private readonly spots = make('div', 'spots');

    constructor(
        private readonly layout: Layout,
        private readonly pictures: Pictures,
        private readonly surface: Surface,
        private readonly notices: Notices,
        private readonly waiting: Waiting,
        private readonly input: Input,
        private readonly picture: HTMLElement,
    ) {
        layout.whenChanged(() => {
            place(picture, layout.main);
            picture.classList.toggle('sharp', layout.isSharp);
            picture.classList.toggle('apart', layout.panel !== 'within');
            picture.classList.toggle('beside', layout.panel === 'beside');
            picture.style.setProperty('--grow', String(1 / layout.main.scale));
            picture.style.setProperty('--room', `${layout.width}px`);
            for (const window of this.windows.values()) this.placeDialog(window);
        });
    }

    open(number: number, record: WindowRecord): void {
        const dialog = record.isDialog ? this.makeDialog(number, record) : undefined;
        const root = dialog?.querySelector<HTMLElement>('.inner') ?? this.picture;
        const background = add(root, make('img', 'background'));
        background.alt = '';
        background.draggable = false;
        this.pictures.show(background, record.background);
        if (!dialog) root.append(this.surface.node, this.spots);
        const elements = new Elements(root, this.pictures, this.notices);
        const window = { record, elements, dialog };
        this.windows.set(number, window);
        this.placeDialog(window);
        // Its elements are there only then.
        queueMicrotask(() => this.placeDialog(window));
        this.input.attach(root, number);
        dialog?.showModal();
        dialog?.focus();
    }

    /** The places on the surface that can be pressed, one button for each. */
    showSpots(spots: readonly SpotRecord[]): void {
        this.spots.replaceChildren(...spots.map(makeSpot));
    }

    show(number: number, element: number, record: ElementRecord): void {
        this.windows.get(number)?.elements.show(element, record);
    }

    close(number: number): void {
        const dialog = this.windows.get(number)?.dialog;
        this.windows.delete(number);
        if (!dialog) return;
        for (const image of dialog.querySelectorAll('img')) this.pictures.forget(image);
        dialog.close();
        dialog.remove();
    }

    /** The number of the dialog in front, or undefined if there is none. */
    frontDialog(): number | undefined {
        return [...this.windows].filter(([, { dialog }]) => dialog).pop()?.[0];
    }

    /** The program has ended or failed; the sentence says why. */
    end(sentence = ''): void {
        this.picture.inert = true;
        this.picture.classList.add('ended');
        if (sentence) this.notices.show('end', sentence);
        const again = add(this.picture.parentElement ?? document.body, make('button', 'plain again'));
        again.textContent = 'Play again';
        again.addEventListener('click', () => location.reload());
        again.focus();
    }

    private makeDialog(number: number, record: WindowRecord): HTMLDialogElement {
        const dialog = add(document.body, make('dialog', 'dialog'));
        const inner = add(dialog, make('div', 'inner'));
        inner.id = `inner${number}`;
        dialog.setAttribute('aria-describedby', inner.id);
        // The dialog itself has the focus at first, so that its title and texts are read.
        dialog.tabIndex = -1;
        const header = add(dialog, make('header'));
        const title = add(header, make('h2'));
        title.id = `title${number}`;
        title.textContent = record.title;
        dialog.setAttribute('aria-labelledby', title.id);
        const closeBox = add(header, make('button', 'close'));
        closeBox.setAttribute('aria-label', 'Close');
        closeBox.addEventListener('click', () => this.waiting.send(EventKind.Close, number));
        // Some browsers have other ways to close a dialog, such as a phone's Back.
        dialog.addEventListener('cancel', (event) => {
            event.preventDefault();
            this.waiting.send(EventKind.Close, number);
        });
        return dialog;
    }

    private placeDialog({ dialog, record }: OpenWindow): void {
        const inner = dialog?.querySelector<HTMLElement>('.inner');
        if (!dialog || !inner) return;
        const { left, top, width, height } = record;
        place(dialog, layOutLong(inner, record) ?? this.layout.dialog(left, top, width, height));
    }
}
