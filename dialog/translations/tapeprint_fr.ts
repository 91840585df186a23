<?xml version="1.0" encoding="utf-8"?>
<!-- SPDX-License-Identifier: Apache-2.0 -->
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
<context>
    <name>tapeprint::dialog::LayoutPage</name>
    <message>
        <source>Size:</source>
        <comment>of a page on the tape</comment>
        <translation>Taille&#xa0;:</translation>
    </message>
    <message>
        <source>Shrink when too large</source>
        <translation>Réduire si trop grand</translation>
    </message>
    <message>
        <source>Fit to the tape</source>
        <translation>Ajuster au ruban</translation>
    </message>
    <message>
        <source>Fill the tape, cut off the rest</source>
        <translation>Remplir le ruban, couper le reste</translation>
    </message>
    <message>
        <source>Original size</source>
        <translation>Taille d’origine</translation>
    </message>
    <message>
        <source>Direction:</source>
        <comment>in which a page lies on the tape</comment>
        <translation>Sens&#xa0;:</translation>
    </message>
    <message>
        <source>Longer side along the tape</source>
        <translation>Grand côté le long du ruban</translation>
    </message>
    <message>
        <source>Along the tape</source>
        <translation>Le long du ruban</translation>
    </message>
    <message>
        <source>Across the tape</source>
        <translation>En travers du ruban</translation>
    </message>
    <message>
        <source>Along the tape, upside down</source>
        <translation>Le long du ruban, à l’envers</translation>
    </message>
    <message>
        <source>Across the tape, upside down</source>
        <translation>En travers du ruban, à l’envers</translation>
    </message>
    <message>
        <source>Along the tape:</source>
        <comment>where a page stands</comment>
        <translation>Le long du ruban&#xa0;:</translation>
    </message>
    <message>
        <source>Left</source>
        <translation>À gauche</translation>
    </message>
    <message>
        <source>Middle</source>
        <translation>Au milieu</translation>
    </message>
    <message>
        <source>Right</source>
        <translation>À droite</translation>
    </message>
    <message>
        <source>Across the tape:</source>
        <comment>where a page stands</comment>
        <translation>En travers du ruban&#xa0;:</translation>
    </message>
    <message>
        <source>Top</source>
        <translation>En haut</translation>
    </message>
    <message>
        <source>Bottom</source>
        <translation>En bas</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::OptionsPage</name>
    <message>
        <source>%1:</source>
        <comment>name of an option</comment>
        <translation>%1&#xa0;:</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::Panels</name>
    <message>
        <source>The plug-in %1 could not make its panel: printing works without it.</source>
        <translation>Le module %1 n’a pas pu créer son volet. L’impression fonctionne sans lui.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; of %2 has no view: its values are printed as they are laid down.</source>
        <translation>Le volet «&#xa0;%1&#xa0;» de %2 n’a pas de vue. Ses valeurs sont imprimées telles qu’elles sont définies.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; could not hand over its values: %2</source>
        <translation>Le volet «&#xa0;%1&#xa0;» n’a pas pu transmettre ses valeurs&#xa0;: %2</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; could not restore its values: %2</source>
        <translation>Le volet «&#xa0;%1&#xa0;» n’a pas pu rétablir ses valeurs&#xa0;: %2</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PreviewArea</name>
    <message>
        <source>Previous label</source>
        <translation>Étiquette précédente</translation>
    </message>
    <message>
        <source>Next label</source>
        <translation>Étiquette suivante</translation>
    </message>
    <message>
        <source>%1 / %2</source>
        <comment>which label of how many</comment>
        <translation>%1 / %2</translation>
    </message>
    <message>
        <source>Label %1 of %2</source>
        <translation>Étiquette %1 sur %2</translation>
    </message>
    <message>
        <source>Part of the page is cut off.</source>
        <translation>Une partie de la page est coupée.</translation>
    </message>
    <message>
        <source>Nothing is drawn on this page.</source>
        <translation>Cette page est vide.</translation>
    </message>
    <message>
        <source>Ink of this colour is hard to see on this tape.</source>
        <translation>L’encre de cette couleur se voit mal sur ce ruban.</translation>
    </message>
    <message numerus="yes">
        <source>%n sheet(s)</source>
        <translation>
            <numerusform>%n feuille</numerusform>
            <numerusform>%n feuilles</numerusform>
        </translation>
    </message>
    <message>
        <source>%1, %2 of tape</source>
        <comment>such as: 3 labels, 18.6 cm of tape</comment>
        <translation>%1, %2 de ruban</translation>
    </message>
    <message numerus="yes">
        <source>%n label(s)</source>
        <translation>
            <numerusform>%n étiquette</numerusform>
            <numerusform>%n étiquettes</numerusform>
        </translation>
    </message>
    <message>
        <source>There is no preview: %1</source>
        <translation>Pas d’aperçu : %1</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::PrintDialog</name>
    <message>
        <source>Print %1</source>
        <translation>Imprimer %1</translation>
    </message>
    <message>
        <source>P&amp;rinter:</source>
        <translation>&amp;Imprimante&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Tape:</source>
        <translation>&amp;Ruban&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Copies:</source>
        <translation>&amp;Copies&#xa0;:</translation>
    </message>
    <message>
        <source>Pa&amp;nel:</source>
        <translation>&amp;Volet&#xa0;:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
    <message>
        <source>Re&amp;vert</source>
        <translation>Ré&amp;tablir</translation>
    </message>
    <message>
        <source>Go back to the values that the dialog was opened with</source>
        <translation>Revenir aux valeurs présentes à l’ouverture de la fenêtre</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>I&amp;mprimer</translation>
    </message>
    <message>
        <source>%1 (no print queue)</source>
        <translation>%1 (sans file d’impression)</translation>
    </message>
    <message>
        <source>%1 (%2)</source>
        <translation>%1 (%2)</translation>
    </message>
    <message>
        <source>This panel has no view.</source>
        <translation>Ce volet n’a pas de vue.</translation>
    </message>
    <message>
        <source>More Options</source>
        <translation>Autres options</translation>
    </message>
    <message>
        <source>P&amp;aper:</source>
        <translation>&amp;Papier&#xa0;:</translation>
    </message>
    <message>
        <source>&amp;Fit Length</source>
        <translation>&amp;Ajuster la longueur</translation>
    </message>
    <message>
        <source>Make the tape as long as what is drawn needs, with both margins</source>
        <translation>Donner au ruban la longueur qu’exige le contenu, avec les deux marges</translation>
    </message>
    <message>
        <source>&amp;Keep it fitted</source>
        <translation>&amp;Garder ajustée</translation>
    </message>
    <message>
        <source>Printing</source>
        <translation>Impression</translation>
    </message>
    <message>
        <source>Printing…</source>
        <translation>Impression…</translation>
    </message>
    <message>
        <source>Layout</source>
        <translation>Disposition</translation>
    </message>
    <message>
        <source>Nothing is drawn on the document: the tape keeps its length.</source>
        <translation>Rien n’est dessiné sur le document&#xa0;: le ruban garde sa longueur.</translation>
    </message>
    <message>
        <source>The document needs more tape than the printer takes: it is made smaller.</source>
        <translation>Le document demande plus de ruban que l’imprimante n’en prend&#xa0;: il est réduit.</translation>
    </message>
    <message>
        <source>The tape length was set to %1 mm by hand. Replace it by the length that fits?</source>
        <translation>La longueur du ruban a été réglée à la main sur %1 mm. La remplacer par la longueur qui convient&#xa0;?</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::SummaryView</name>
    <message>
        <source>Summary</source>
        <translation>Résumé</translation>
    </message>
</context>
<context>
    <name>tapeprint::dialog::TapePreview</name>
    <message>
        <source>Tape preview</source>
        <translation>Aperçu du ruban</translation>
    </message>
    <message>
        <source>Length %1, width %2</source>
        <translation>Longueur %1, largeur %2</translation>
    </message>
    <message>
        <source>Paper preview</source>
        <translation>Aperçu du papier</translation>
    </message>
    <message>
        <source>%1; part of the page is cut off</source>
        <comment>length and width</comment>
        <translation>%1 ; une partie de la page est coupée</translation>
    </message>
</context>
<context>
    <name>tapeprint::job::Texts</name>
    <message>
        <source>they do not say why</source>
        <translation>sans en indiquer la raison</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes cannot be written to %1 (%2): make room there, or name another file with --output.</source>
        <translation>Les données d’impression ne peuvent pas être écrites dans %1 (%2). Libérez de la place ou indiquez un autre fichier avec --output.</translation>
    </message>
    <message>
        <source>The filters cannot be started (%1): see that CUPS is installed whole.</source>
        <translation>Les filtres ne peuvent pas être lancés (%1). Vérifiez que CUPS est entièrement installé.</translation>
    </message>
    <message>
        <source>The filters of %1 could not print the document %2: %3.</source>
        <translation>Les filtres de %1 n’ont pas pu imprimer le document %2&#xa0;: %3.</translation>
    </message>
    <message>
        <source>The program cupsfilter is missing: install the package cups.</source>
        <translation>Le programme cupsfilter est introuvable. Installez le paquet cups.</translation>
    </message>
    <message>
        <source>The file %1 cannot be written (%2): name another with --output.</source>
        <translation>Le fichier %1 ne peut pas être écrit (%2). Indiquez-en un autre avec --output.</translation>
    </message>
    <message>
        <source>The filters of %1 made nothing of the document: see that it has pages to print.</source>
        <translation>Les filtres de %1 n’ont rien produit à partir du document. Vérifiez qu’il contient des pages à imprimer.</translation>
    </message>
    <message>
        <source>The document %1 cannot be read (%2): name a readable file.</source>
        <translation>Le document %1 ne peut pas être lu (%2). Indiquez un fichier lisible.</translation>
    </message>
    <message>
        <source>The print server did not take the document %1 (%2): see that it is a kind of document that the queue prints.</source>
        <translation>Le serveur d’impression a refusé le document %1 (%2). Vérifiez que la file imprime ce type de document.</translation>
    </message>
    <message>
        <source>The queue %1 cannot be reached (%2): see lpstat -e for the queues there are.</source>
        <translation>La file d’impression %1 est injoignable (%2). La commande lpstat -e donne les files existantes.</translation>
    </message>
    <message>
        <source>The queue %1 did not take the job (%2): see lpstat -p %1 -l.</source>
        <translation>La file d’impression %1 a refusé la tâche (%2). Voyez lpstat -p %1 -l.</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists.</source>
        <translation>%1=%2 ne figure pas parmi les choix du fichier PPD de l’imprimante.</translation>
    </message>
    <message>
        <source>Option %1 never reaches the printer&apos;s filter, because the print server takes it for its own attribute %2: give it another name in the PPD.</source>
        <translation>L’option %1 n’atteint jamais le filtre de l’imprimante, car le serveur d’impression la prend pour son propre attribut %2. Donnez-lui un autre nom dans le fichier PPD.</translation>
    </message>
    <message>
        <source>its code is no plug-in that this Qt can load</source>
        <translation>son code n’est pas un module que cette version de Qt peut charger</translation>
    </message>
    <message>
        <source>it is made for another panel interface (%1)</source>
        <translation>il est conçu pour une autre interface de volets (%1)</translation>
    </message>
    <message>
        <source>its metadata names no principal class</source>
        <translation>ses métadonnées n’indiquent aucune classe principale</translation>
    </message>
    <message>
        <source>it does not serve printer panels</source>
        <translation>il ne fournit pas de volets d’imprimante</translation>
    </message>
    <message>
        <source>it has no file %1</source>
        <translation>il n’a pas de fichier %1</translation>
    </message>
    <message>
        <source>its code cannot be loaded: %1</source>
        <translation>son code ne peut pas être chargé&#xa0;: %1</translation>
    </message>
    <message>
        <source>it has no principal class %1</source>
        <translation>il n’a pas de classe principale %1</translation>
    </message>
    <message>
        <source>it cannot serve on this system</source>
        <translation>il ne peut pas fonctionner sur ce système</translation>
    </message>
    <message>
        <source>The plug-in %1 is not used: %2. Printing works without it; update or remove the bundle.</source>
        <translation>Le module %1 n’est pas utilisé&#xa0;: %2. L’impression fonctionne sans lui. Mettez-le à jour ou supprimez-le.</translation>
    </message>
    <message>
        <source>it is a folder</source>
        <translation>c’est un dossier</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be read (%2): name a readable PPD file.</source>
        <translation>Le fichier PPD %1 ne peut pas être lu (%2). Indiquez un fichier PPD lisible.</translation>
    </message>
    <message>
        <source>The PPD file %1 is not valid, line %2: %3. Correct the file or name another.</source>
        <translation>Le fichier PPD %1 n’est pas valide, ligne %2&#xa0;: %3. Corrigez le fichier ou indiquez-en un autre.</translation>
    </message>
    <message>
        <source>The print server %1 does not answer: start it, name another in CUPS_SERVER, or print without one with --ppd FILE.</source>
        <translation>Le serveur d’impression %1 ne répond pas. Démarrez-le, indiquez-en un autre dans CUPS_SERVER ou imprimez sans serveur avec --ppd FICHIER.</translation>
    </message>
    <message>
        <source>There is no default printer: name a print queue with -d QUEUE, or print without one with --ppd FILE.</source>
        <translation>Il n’y a pas d’imprimante par défaut. Indiquez une file d’impression avec -d FILE ou imprimez sans file avec --ppd FICHIER.</translation>
    </message>
    <message>
        <source>The print server knows no queue %1: see lpstat -e for the queues there are.</source>
        <translation>Le serveur d’impression ne connaît pas la file %1. La commande lpstat -e donne les files existantes.</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be had from the print server (%2): see that the queue is set up.</source>
        <translation>Le serveur d’impression ne fournit pas le fichier PPD de la file %1 (%2). Vérifiez que la file est configurée.</translation>
    </message>
    <message>
        <source>of queue %1</source>
        <translation>de la file %1</translation>
    </message>
    <message>
        <source>pending</source>
        <translation>en attente</translation>
    </message>
    <message>
        <source>pending-held</source>
        <translation>suspendue</translation>
    </message>
    <message>
        <source>processing</source>
        <translation>en cours d’impression</translation>
    </message>
    <message>
        <source>processing-stopped</source>
        <translation>interrompue</translation>
    </message>
    <message>
        <source>canceled</source>
        <translation>annulée</translation>
    </message>
    <message>
        <source>aborted</source>
        <translation>abandonnée</translation>
    </message>
    <message>
        <source>completed</source>
        <translation>terminée</translation>
    </message>
    <message>
        <source>sent</source>
        <translation>envoyée</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes are in %1 (%2 bytes).</source>
        <translation>Les données d’impression sont dans %1 (%2 octets).</translation>
    </message>
    <message>
        <source>Job %1-%2 is %3.</source>
        <translation>Tâche %1-%2&#xa0;: %3.</translation>
    </message>
    <message>
        <source>It is no plain file.</source>
        <translation>Ce n’est pas un fichier ordinaire.</translation>
    </message>
    <message>
        <source>%1 cannot be read: %2</source>
        <translation>Impossible de lire %1 : %2</translation>
    </message>
    <message>
        <source>%1 is broken: no page of it can be read.</source>
        <translation>%1 est endommagé : aucune page n’est lisible.</translation>
    </message>
    <message>
        <source>%1 is no PDF document.</source>
        <translation>%1 n’est pas un document PDF.</translation>
    </message>
    <message>
        <source>%1 is protected by a password: save it without one, and print that.</source>
        <translation>%1 est protégé par un mot de passe : enregistrez-le sans mot de passe et imprimez cette copie.</translation>
    </message>
    <message>
        <source>%1 has no page.</source>
        <translation>%1 n’a aucune page.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; holds %2 within its limits and steps: instead of %3 the job carries %4.</source>
        <translation>Le volet «&#xa0;%1&#xa0;» maintient %2 dans ses limites et ses pas&#xa0;: au lieu de %3, la tâche porte %4.</translation>
    </message>
    <message>
        <source>%1=%2 is none of the choices that the printer&apos;s PPD lists: the job carries %3=%4.</source>
        <translation>%1=%2 ne figure pas parmi les choix du fichier PPD de l’imprimante&#xa0;: la tâche porte %3=%4.</translation>
    </message>
    <message>
        <source>The printer&apos;s description asks for the plug-in %1, which is not installed. Printing works without it.</source>
        <translation>La description de l’imprimante demande le module %1, qui n’est pas installé. L’impression fonctionne sans lui.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because bubblewrap is missing: install the package bubblewrap.</source>
        <translation>Les filtres de l’imprimante s’exécutent sans confinement, car bubblewrap est absent : installez le paquet bubblewrap.</translation>
    </message>
    <message>
        <source>The printer&apos;s filters run without confinement, because this machine does not allow it (%1): let users make name spaces.</source>
        <translation>Les filtres de l’imprimante s’exécutent sans confinement, car cette machine ne le permet pas (%1) : autorisez les utilisateurs à créer des espaces de noms.</translation>
    </message>
    <message>
        <source>A temporary file cannot be written (%1): make room in the folder for temporary files.</source>
        <translation>Un fichier temporaire ne peut pas être écrit (%1). Libérez de la place dans le dossier des fichiers temporaires.</translation>
    </message>
    <message>
        <source>The filters could not make pages of the document %1: %2.</source>
        <translation>Les filtres n’ont pas pu faire de pages du document %1 : %2.</translation>
    </message>
    <message>
        <source>The picture %1 (%2 x %3 dots) cannot be unpacked (%4): make it smaller, or print it as a PDF.</source>
        <translation>L’image %1 (%2 x %3 points) ne peut pas être décompressée (%4). Réduisez-la ou imprimez-la en PDF.</translation>
    </message>
    <message>
        <source>The picture %1 is damaged (%2): make it anew or name another.</source>
        <translation>L’image %1 est endommagée (%2). Recréez-la ou indiquez-en une autre.</translation>
    </message>
    <message>
        <source>The document %1 is none that can be laid out on tape: print a PDF, a PostScript file, a picture or plain text.</source>
        <translation>Le document %1 ne peut pas être mis en page sur un ruban. Imprimez un PDF, un fichier PostScript, une image ou du texte brut.</translation>
    </message>
    <message>
        <source>The document %1 is locked with a password: save it without one and print that.</source>
        <translation>Le document %1 est protégé par un mot de passe. Enregistrez-le sans mot de passe et imprimez celui-ci.</translation>
    </message>
    <message>
        <source>The document %1 is damaged (%2): make it anew or name another.</source>
        <translation>Le document %1 est endommagé (%2). Recréez-le ou indiquez-en un autre.</translation>
    </message>
    <message>
        <source>The document %1 has no page: name one with something to print.</source>
        <translation>Le document %1 n’a aucune page. Indiquez-en un qui contienne quelque chose à imprimer.</translation>
    </message>
    <message>
        <source>The labels cannot be laid out (%1): see that the document is whole and that there is room for temporary files.</source>
        <translation>Les étiquettes ne peuvent pas être mises en page (%1). Vérifiez que le document est complet et qu’il y a de la place pour les fichiers temporaires.</translation>
    </message>
    <message>
        <source>This printer&apos;s description takes no page of the chosen length: the page stays %1 mm long, and the length is left to the driver.</source>
        <translation>La description de cette imprimante n’accepte aucune page de la longueur choisie. La page garde une longueur de %1 mm et la longueur est laissée au pilote.</translation>
    </message>
    <message>
        <source>The print system makes a length so near to the tape&apos;s own into that: %1 mm.</source>
        <translation>Une longueur aussi proche de celle du ruban est remplacée par celle-ci par le système d’impression : %1 mm.</translation>
    </message>
    <message>
        <source>The margins leave nothing of the tape to print on: make the tape longer or the margin smaller.</source>
        <translation>Les marges ne laissent rien du ruban à imprimer. Allongez le ruban ou réduisez la marge.</translation>
    </message>
    <message>
        <source>None of the document&apos;s pages is chosen: change the page range.</source>
        <translation>Aucune page du document n’est choisie. Modifiez l’étendue de pages.</translation>
    </message>
    <message>
        <source>The panel &quot;%1&quot; does not offer %2=%3, which the printer has: the job carries %4=%5.</source>
        <translation>Le volet «&#xa0;%1&#xa0;» ne propose pas %2=%3, que l’imprimante possède&#xa0;: la tâche porte %4=%5.</translation>
    </message>
    <message>
        <source>%1 in</source>
        <comment>a length in inches</comment>
        <translation>%1 po</translation>
    </message>
    <message>
        <source>The document %1 is gone: nothing was printed. Put it back, or open another.</source>
        <translation>Le document %1 a disparu : rien n’a été imprimé. Remettez-le en place ou ouvrez-en un autre.</translation>
    </message>
    <message>
        <source>The document %1 has changed since it was opened: nothing was printed. Open it again.</source>
        <translation>Le document %1 a changé depuis son ouverture : rien n’a été imprimé. Ouvrez-le de nouveau.</translation>
    </message>
    <message>
        <source>it is larger than any printer description</source>
        <translation>il est plus grand que toute description d’imprimante</translation>
    </message>
    <message>
        <source>The PPD file %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>Le fichier PPD %1 ne peut pas être conservé dans un fichier temporaire (%2) : libérez-y de la place.</translation>
    </message>
    <message>
        <source>Printing was stopped.</source>
        <translation>L’impression a été arrêtée.</translation>
    </message>
    <message>
        <source>The filters of %1 did not come to an end with the document %2 and were stopped.</source>
        <translation>Les filtres de %1 n’en finissaient pas avec le document %2 et ont été arrêtés.</translation>
    </message>
    <message>
        <source>The printer description %1 is trusted and runs programs or commands of its own: %2.</source>
        <translation>La description d’imprimante %1 est jugée digne de confiance et exécute ses propres programmes ou commandes : %2.</translation>
    </message>
    <message>
        <source>a file of this name is there</source>
        <translation>un fichier de ce nom existe déjà</translation>
    </message>
    <message>
        <source>The file %1 is replaced only as a whole, and nothing can be written beside it (%2): name another with --output.</source>
        <translation>Le fichier %1 n’est remplacé qu’en entier, et rien ne peut être écrit à côté (%2) : indiquez-en un autre avec --output.</translation>
    </message>
    <message>
        <source>standard output</source>
        <translation>la sortie standard</translation>
    </message>
    <message>
        <source>The output (%1) is the same file as %2, which is only read: name another with --output.</source>
        <translation>La sortie (%1) est le même fichier que %2, qui n’est que lu : indiquez-en une autre avec --output.</translation>
    </message>
    <message>
        <source>standard input</source>
        <translation>l’entrée standard</translation>
    </message>
    <message>
        <source>it is a pipe or a device</source>
        <translation>c’est un tube ou un périphérique</translation>
    </message>
    <message>
        <source>The printer description %1 brings programs or commands of its own, which nobody vouches for: %2. Nothing was run. If you trust its author, repeat with --trust-ppd.</source>
        <translation>La description d’imprimante %1 apporte ses propres programmes ou commandes, dont personne ne répond : %2. Rien n’a été exécuté. Si vous faites confiance à son auteur, recommencez avec --trust-ppd.</translation>
    </message>
    <message>
        <source>The PPD of queue %1 cannot be kept in a temporary file (%2): make room there.</source>
        <translation>Le PPD de la file %1 ne peut pas être conservé dans un fichier temporaire (%2) : libérez-y de la place.</translation>
    </message>
    <message>
        <source>The printer&apos;s bytes went to standard output (%1 bytes).</source>
        <translation>Les données d’impression sont allées sur la sortie standard (%1 octets).</translation>
    </message>
    <message>
        <source>Page %1 of the document %2 has no size: leave it out or make it anew.</source>
        <translation>La page %1 du document %2 n’a pas de taille. Omettez-la ou recréez-la.</translation>
    </message>
    <message>
        <source>The print system makes a length so near to that of another paper into that: %1 mm.</source>
        <translation>Une longueur aussi proche de celle d’un autre papier est remplacée par celle-ci par le système d’impression : %1 mm.</translation>
    </message>
    <message>
        <source>more than %1 MiB of memory would be needed</source>
        <translation>plus de %1 Mio de mémoire seraient nécessaires</translation>
    </message>
    <message>
        <source>The pages of the document %1 cannot be written (%2): make room in the folder for temporary files.</source>
        <translation>Les pages du document %1 ne peuvent pas être écrites (%2). Libérez de la place dans le dossier des fichiers temporaires.</translation>
    </message>
    <message>
        <source>The PPD file %1 is cut off: its end is missing. Copy it anew.</source>
        <translation>Le fichier PPD %1 est tronqué&#xa0;: sa fin manque. Copiez-le à nouveau.</translation>
    </message>
</context>
</TS>
