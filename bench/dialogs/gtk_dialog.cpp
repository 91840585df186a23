// SPDX-License-Identifier: Apache-2.0
// GTK's own print dialog in the smallest program that shows it: what ours is measured beside.
#include <gtk/gtkunixprint.h>

int main(int argc, char **argv)
{
    gtk_init(&argc, &argv);
    GtkWidget *dialog = gtk_print_unix_dialog_new("Print", nullptr);
    gtk_dialog_run(GTK_DIALOG(dialog));
    return 0;
}
