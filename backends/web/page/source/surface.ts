// The painted layer of the main window: one pixel for each game pixel, whatever its size on the page. Nearly all of it
// is the playfield, where the background is black. That part is a separate opaque canvas, which browsers put on the
// screen with far less work; the canvas beneath it shows what is painted around it.
import { add, make } from './elements';

const accessibleName =
    'Playfield. The arrow keys and Tab choose the end of a beam, Space bends it, Enter runs it forward. Shift+Tab leaves the playfield.';

const field = { left: 16, top: 18, right: 668, bottom: 584 };

// What is painted this close to the field's edge is on both canvases, since at some scales both can be seen there.
const seam = 4;
const inside = {
    left: field.left + seam,
    top: field.top + seam,
    right: field.right - seam,
    bottom: field.bottom - seam,
};

export class Surface {
    /** Both canvases, one on top of the other. */
    readonly node = make('div', 'surface');
    private readonly below: CanvasRenderingContext2D | null;
    private readonly above: CanvasRenderingContext2D | null;

    /** What is on the lower canvas, around the field. */
    private readonly around: Uint32Array;

    constructor(
        private readonly width: number,
        height: number,
    ) {
        this.around = new Uint32Array(width * height);
        // It takes the keys: see keys.ts.
        this.node.tabIndex = 0;
        this.node.setAttribute('role', 'application');
        this.node.setAttribute('aria-label', accessibleName);
        this.below = this.addCanvas(0, 0, width, height, true);
        this.above = this.addCanvas(field.left, field.top, field.right - field.left, field.bottom - field.top, false);
    }

    /** Changes the given pixels: what is unpainted is black on the playfield. */
    show(pixels: Uint8ClampedArray<ArrayBuffer>, left: number, top: number, width: number): void {
        const image = new ImageData(pixels, width);
        const whole = new Uint32Array(pixels.buffer, pixels.byteOffset, pixels.length / 4);
        if (this.noteAround(whole, left, top, width)) this.below?.putImageData(image, left, top);
        makeOpaque(whole);
        this.above?.putImageData(image, left - field.left, top - field.top);
    }

    /** Whether anything changes around the field. Much of it is repainted again and again unchanged. */
    private noteAround(pixels: Uint32Array, left: number, top: number, width: number): boolean {
        let isChanged = false;
        for (let i = 0; i < pixels.length; ++i) {
            const x = left + (i % width);
            const y = top + Math.floor(i / width);
            const isInside = y >= inside.top && y < inside.bottom && x >= inside.left && x < inside.right;
            // The rest of the row up to there is inside.
            if (isInside) {
                i += Math.min(inside.right - x, width - (i % width)) - 1;
                continue;
            }
            const at = y * this.width + x;
            if (this.around[at] === pixels[i]) continue;
            this.around[at] = pixels[i] ?? 0;
            isChanged = true;
        }
        return isChanged;
    }

    private addCanvas(
        left: number,
        top: number,
        width: number,
        height: number,
        alpha: boolean,
    ): CanvasRenderingContext2D | null {
        const canvas = add(this.node, make('canvas'));
        Object.assign(canvas, { width, height });
        Object.assign(canvas.style, { left: `${left}px`, top: `${top}px` });
        const context = canvas.getContext('2d', { alpha, willReadFrequently: true, desynchronized: true });
        if (!alpha) context?.fillRect(0, 0, width, height);
        return context;
    }
}

/** An opaque canvas must not be given transparent pixels: some browsers show them white. */
function makeOpaque(pixels: Uint32Array): void {
    pixels.forEach((pixel, i) => (pixels[i] = pixel | 0xff000000));
}
