// The painted layer of the main window: a canvas of one pixel for each of the game's, whatever its size on the page.
export class Surface {
    readonly canvas = document.createElement('canvas');
    private readonly context: CanvasRenderingContext2D | null;

    constructor(width: number, height: number) {
        this.canvas.width = width;
        this.canvas.height = height;
        this.canvas.setAttribute('role', 'img');
        this.canvas.setAttribute('aria-label', 'Playfield');
        this.context = this.canvas.getContext('2d', { willReadFrequently: true });
    }

    show(pixels: Uint8ClampedArray<ArrayBuffer>, left: number, top: number, width: number): void {
        this.context?.putImageData(new ImageData(pixels, width), left, top);
    }
}
